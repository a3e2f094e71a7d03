// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>

#include "files/PaletteFiles.h"

namespace zol {

class MainCommands;

/// The commands that save and load the palette of what stands open.
class PaletteFileCommands {
public:
    /// What the window does about a command.
    struct Followers {
        std::function<void()> EndTool; ///< before: a line or frame under way is let go
        std::function<void()> Changed; ///< after: the palette is another
        std::function<void(const std::string&)> ShowSummary;
    };

    PaletteFileCommands(MainCommands& commands, const PaletteFilesDesk& desk, Followers followers);

private:
    PaletteFiles m_palettes;
    Followers m_followers;
};

} // namespace zol
