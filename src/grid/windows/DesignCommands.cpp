// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/DesignCommands.h"

#include <utility>

#include "grid/tools/Undo.h"
#include "grid/windows/MainCommands.h"
#include "model/Pattern.h"

namespace zol {

DesignCommands::DesignCommands(MainCommands& commands, DesignHolder& open, Undo& steps,
                               std::function<void()> changed)
    : m_open(open),
      m_steps(steps),
      m_changed(std::move(changed)) {
    const auto connect = [&commands](const char* name, auto run) {
        commands.Connect(name, &commands.At(name), run);
    };
    connect("mnuCenterVertical",
            [this] { Run("Center", [](Pattern& design) { design.Center(0); }); });
    connect("mnuCenterHorizontal",
            [this] { Run("Center", [](Pattern& design) { design.Center(1); }); });
    connect("mnuCenterBoth", [this] { Run("Center", [](Pattern& design) { design.Center(2); }); });
    connect("mnuToolsShrink",
            [this] { Run("Shrink Design Area", [](Pattern& design) { design.ShrinkToFit(); }); });
    connect("mnuClearPalette", [this] {
        Run("Clear Unused Palette", [](Pattern& design) { design.ClearUnusedPaletteColors(); });
    });
}

void DesignCommands::Run(const std::string& label, const std::function<void(Pattern&)>& work) {
    Pattern& design = m_open.Design();
    {
        const UndoStep step(m_steps, UndoKind::Snapshot, label);
        work(design);
        design.SetChanged(true);
    }
    m_changed();
}

} // namespace zol
