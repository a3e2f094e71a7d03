// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/PaletteFileCommands.h"

#include <utility>

#include "grid/windows/MainCommands.h"

namespace zol {

PaletteFileCommands::PaletteFileCommands(MainCommands& commands, const PaletteFilesDesk& desk,
                                         Followers followers)
    : m_palettes(desk),
      m_followers(std::move(followers)) {
    const auto connect = [&commands](const char* name, auto run) {
        commands.Connect(name, &commands.At(name), run);
    };
    connect("mnuSavePalette", [this] {
        if (m_palettes.SavePalette()) {
            m_followers.ShowSummary("Palette saved");
        }
    });
    connect("mnuSaveDefaultpalette", [this] {
        if (m_palettes.SaveDefaultPalette()) {
            m_followers.ShowSummary("New patterns begin with this palette");
        }
    });
    connect("mnuLoadPalette", [this] {
        m_followers.EndTool();
        if (m_palettes.LoadPalette()) {
            m_followers.Changed();
        }
    });
}

} // namespace zol
