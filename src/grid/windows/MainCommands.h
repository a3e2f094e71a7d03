// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <span>

namespace zol {

/// One command of the main window as the user meets it. The menu item's object name is `Name`.
struct MainCommand {
    const char* Name;      ///< "mnuFileNew"
    const char* Caption;   ///< with its mnemonic
    const char* StatusTip; ///< what it does, for the status bar and screen readers
    const char* Shortcut;  ///< portable key text; empty for none
    const char* Icon;      ///< name in the icon family; empty for none
    bool Checkable;
};

/// Every command, in the order of the menus.
[[nodiscard]] std::span<const MainCommand> MainCommands();

} // namespace zol
