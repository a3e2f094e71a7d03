// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/ImportCommands.h"

#include <algorithm>
#include <utility>

#include "grid/tools/DrawModes.h"
#include "grid/tools/EditBox.h"
#include "grid/windows/MainCommands.h"
#include "import/ImportMessages.h"
#include "import/windows/frmImportWizard.h"
#include "model/Pattern.h"

namespace zol {

ImportCommands::ImportCommands(MainCommands& commands, const Workshop& workshop,
                               const DrawModes& modes, QWidget& window, Followers followers)
    : m_workshop(workshop),
      m_modes(modes),
      m_window(window),
      m_followers(std::move(followers)) {
    commands.Connect("mnuImport", &window, [this] { Import(); });
}

ImportCommands::~ImportCommands() = default;

void ImportCommands::ForgetEditBox() {
    // New and Open refill one and the same pattern.
    if (m_wizard != nullptr && !m_wizard->CanGoOnOver(m_workshop.Open.Design())) {
        m_wizard.reset();
    }
}

void ImportCommands::Import() {
    bool resume = false;
    if (m_wizard != nullptr && m_wizard->HasWork()) {
        const MessageAnswer answer = m_workshop.Messages.Ask(
            "Would you like to resume the last Import?", MessageIcon::Question,
            MessageButtons::YesNo, ImportMessages::Title);
        if (answer == MessageAnswer::Cancel) {
            return; // neither: the import that was left stays to be resumed
        }
        resume = answer == MessageAnswer::Yes;
    }
    const std::optional<SquareRect> editBox = LandEditBox();
    if (resume) {
        m_wizard->Resume();
    } else {
        BeginAnew(editBox);
    }
    ShowWizard();
}

void ImportCommands::ImportFile(const std::filesystem::path& file) {
    BeginAnew(LandEditBox());
    m_wizard->TakeFile(file);
    ShowWizard();
}

void ImportCommands::BeginAnew(std::optional<SquareRect> editBox) {
    // The old one goes first, with whatever it still works on.
    m_wizard.reset();
    m_wizard = std::make_unique<frmImportWizard>(
        frmImportWizard::Outside{m_workshop.Context, m_workshop.Open.Design(), m_workshop.Store,
                                 m_workshop.Settings, m_workshop.Messages, m_workshop.Files,
                                 &m_workshop.Scanners,
                                 [this](ImportWork& work) { return CreateThePattern(work); }},
        editBox, &m_window);
}

void ImportCommands::ShowWizard() {
    if (m_wizard->exec() == QDialog::Accepted) {
        TellResult();
    }
}

std::optional<SquareRect> ImportCommands::EditBoxInDesign() const {
    const EditBox& box = m_modes.Box();
    const Pattern& design = m_workshop.Open.Design();
    if (!box.IsActive() || box.IsSelecting()) {
        return std::nullopt;
    }
    const SquareRect rect = box.GetEditBoxRect();
    const SquareRect inside{std::max(rect.Left, 1), std::max(rect.Top, 1),
                            std::min(rect.Right, design.GetPatternWidth()),
                            std::min(rect.Bottom, design.GetPatternHeight())};
    return inside.IsEmpty() ? std::nullopt : std::optional(inside);
}

std::optional<SquareRect> ImportCommands::LandEditBox() {
    const std::optional<SquareRect> editBox = EditBoxInDesign();
    if (m_modes.Box().HasPattern()) {
        m_followers.EndTool();
    }
    return editBox;
}

ImportStatus ImportCommands::CreateThePattern(ImportWork& work) {
    std::optional<UndoStep> step;
    ImportStatus status = work.Session.CreateThePattern(
        m_workshop.Open.Design(), work.MaxColors, work.Size.ClothCountX, work.Size.ClothCountY,
        [this, &step] {
            m_followers.EndTool();
            step.emplace(m_workshop.Steps, UndoKind::Snapshot, "Import");
        });
    const bool changed = step.has_value();
    step.reset();
    if (changed) {
        m_figures = work.Session.Figures();
        m_followers.Changed();
    }
    return status;
}

void ImportCommands::TellResult() {
    m_followers.ShowNote(
        ImportMessages::Result(m_figures.Stitches, static_cast<int>(m_figures.Flosses.size())));
    if (m_figures.FlossesSharingSymbol > 0) {
        m_workshop.Messages.TellMore(ImportMessages::SharedSymbols(m_figures.FlossesSharingSymbol),
                                     "The palette editor gives a floss another symbol.",
                                     MessageIcon::Information, ImportMessages::Title);
    }
}

} // namespace zol
