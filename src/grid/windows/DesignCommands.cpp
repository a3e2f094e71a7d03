// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/DesignCommands.h"

#include <QMenu>

#include <utility>

#include "grid/FileCommandTexts.h"
#include "grid/tools/Undo.h"
#include "grid/windows/MainCommands.h"
#include "grid/windows/MainMenus.h"
#include "model/Pattern.h"
#include "model/PatternSize.h"
#include "model/RunTimeError.h"

namespace zol {

DesignCommands::DesignCommands(MainCommands& commands, MainMenus& menus, DesignHolder& open,
                               Undo& steps, Followers followers)
    : m_commands(commands),
      m_menus(menus),
      m_open(open),
      m_steps(steps),
      m_followers(std::move(followers)) {
    ConnectCommands();
    for (const char* menu : {"mnuEdit", "mnuTools", "mnuLibs"}) {
        QMenu& shown = m_menus.At(menu);
        QObject::connect(&shown, &QMenu::aboutToShow, &shown, [this] { RefreshEnabling(); });
    }
}

void DesignCommands::ConnectCommands() {
    const auto connect = [this](const char* name, auto run) {
        m_commands.Connect(name, &m_commands.At(name), run);
    };
    connect("mnuEditUndo", [this] { TakeBack(); });
    connect("mnuCenterVertical",
            [this] { Run("Center", [](Pattern& design) { design.Center(0); }); });
    connect("mnuCenterHorizontal",
            [this] { Run("Center", [](Pattern& design) { design.Center(1); }); });
    connect("mnuCenterBoth", [this] { Run("Center", [](Pattern& design) { design.Center(2); }); });
    connect("mnuToolsShrink", [this] { Crop(); });
    connect("mnuClearPalette", [this] {
        Run("Clear Unused Palette", [](Pattern& design) { design.ClearUnusedPaletteColors(); });
    });
}

void DesignCommands::EnableForNewDesign() {
    m_commands.SetEnabled({"mnuLibAddEditBox"}, false);
    for (const char* menu : {"mnuOptions", "mnuTools", "mnuLibs"}) {
        m_menus.At(menu).setEnabled(true);
    }
    m_commands.SetEnabled({"mnuImport", "mnuExport", "mnuFileSave", "mnuFileSaveAs", "mnuText",
                           "mnuOptionsPalette", "mnuPaintMode", "mnuEraseMode", "mnuLibGetPattern",
                           "mnuViewGridLines"},
                          true);
    RefreshEnabling();
}

void DesignCommands::RefreshEnabling() {
    const std::string label = m_steps.GetUndoLabel();
    m_commands.SetEnabled({"mnuEditUndo"}, !label.empty());
    m_commands.At("mnuEditUndo")
        .setText(label.empty() ? QStringLiteral("Undo")
                               : QStringLiteral("Undo ") + QString::fromStdString(label));
    const bool hasSquares = m_open.Design().IsInGrid(1, 1);
    m_commands.SetEnabled({"mnuCenterVertical", "mnuCenterHorizontal", "mnuCenterBoth",
                           "mnuToolsShrink", "mnuClearPalette", "mnuLibsAdd"},
                          hasSquares);
}

void DesignCommands::Run(const std::string& label, const std::function<void(Pattern&)>& work) {
    m_followers.EndTool();
    Pattern& design = m_open.Design();
    {
        const UndoStep step(m_steps, UndoKind::Snapshot, label);
        work(design);
        design.SetChanged(true);
    }
    m_followers.Changed();
}

void DesignCommands::Crop() {
    // What floats lands first, and counts.
    m_followers.EndTool();
    const Pattern& design = m_open.Design();
    const int fault = PatternSize::ShrinkFault(design);
    if (fault == ErrNone) {
        Run("Shrink Design Area", [](Pattern& cropped) { cropped.ShrinkToFit(); });
    } else if (MessageDoor* messages = design.Context().Messages) {
        messages->TellMore(RunTimeErrorText(fault), FileCommandTexts::SizeRefused,
                           MessageIcon::Exclamation, {});
    }
}

void DesignCommands::TakeBack() {
    // What hangs on the pointer was picked up before the undo: put down later, it would bring back
    // what has been undone. A chain of lines goes on from where it was.
    if (m_steps.IsAvailable()) {
        m_followers.CancelDrag();
    }
    m_steps.PerformUndo();
    m_followers.Undone();
}

} // namespace zol
