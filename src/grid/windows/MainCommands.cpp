// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/MainCommands.h"

#include <array>

namespace zol {

namespace {

constexpr std::array Commands{
    MainCommand{"mnuFileNew", "&New...", "Begin a new pattern", "Ctrl+N", "file-new", false},
    MainCommand{"mnuFileOpen", "&Open...", "Open a pattern file", "Ctrl+O", "file-open", false},
};

} // namespace

std::span<const MainCommand> MainCommands() {
    return Commands;
}

} // namespace zol
