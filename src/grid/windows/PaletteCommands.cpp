// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/PaletteCommands.h"

#include <utility>

#include "flosses/windows/frmPalette.h"
#include "grid/tools/DrawModes.h"
#include "grid/tools/EditBox.h"
#include "grid/windows/MainCommands.h"

namespace zol {

PaletteCommands::PaletteCommands(MainCommands& commands, const Workshop& workshop, DrawModes& modes,
                                 const DrawingChoice& choice, QWidget& window, Followers followers)
    : m_workshop(workshop),
      m_modes(modes),
      m_choice(choice),
      m_window(window),
      m_followers(std::move(followers)),
      m_symbols(workshop.Messages, workshop.Store) {
    m_workshop.Context.Symbols = &m_symbols;
    commands.Connect("mnuOptionsPalette", &commands.At("mnuOptionsPalette"),
                     [this] { EditPalette(); });
}

PaletteCommands::~PaletteCommands() {
    if (m_workshop.Context.Symbols == &m_symbols) {
        m_workshop.Context.Symbols = nullptr;
    }
}

std::optional<SquareRect> PaletteCommands::TakeArea() {
    EditBox& box = m_modes.Box();
    if (box.HasPattern()) {
        const SquareRect area = box.GetEditBoxRect();
        box.DropEditBox(false);
        box.StartSelection(area.Left, area.Top);
        box.TrackSelection(area.Right, area.Bottom);
        box.FinishSelection();
    }
    if (!box.IsActive() || box.IsSelecting()) {
        m_followers.EndTool();
        return std::nullopt;
    }
    return box.GetEditBoxRect();
}

void PaletteCommands::EditPalette() {
    const std::optional<SquareRect> area = TakeArea();
    std::optional<UndoStep> step;
    frmPalette window(
        {m_workshop.Open.Design(), m_workshop.Messages, m_workshop.Store,
         m_workshop.Settings.DefaultFlossFile, m_choice.CurrentPaletteIndex, area,
         [this, &step] { step.emplace(m_workshop.Steps, UndoKind::Snapshot, "Palette Changes"); }},
        &m_window);
    window.exec();
    step.reset();
    // Also after a change of the display order alone.
    m_followers.Changed();
}

} // namespace zol
