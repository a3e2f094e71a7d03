// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>

#include <map>
#include <span>
#include <string_view>

class QWidget;

namespace zol {

/// One command of the main window as the user meets it.
struct MainCommand {
    const char* Name;      ///< the menu item's object name, "mnuFileNew"
    const char* Caption;   ///< with its mnemonic
    const char* StatusTip; ///< what it does, for the status bar and screen readers
    const char* Shortcut;  ///< portable key text; empty for none
    const char* Icon;      ///< name in the icon family; empty for none
    bool Checkable;
    bool Enabled; ///< at the start; what has nothing to work on yet is disabled
};

/// Every command, in the order of the menus.
[[nodiscard]] std::span<const MainCommand> MainCommandTable();

/// The main window's commands as actions, one for each row of the table. Menus and tool buttons
/// show them; groups of commands connect them.
class MainCommands {
public:
    /// The actions become children of `owner`, so that their keys work in its window.
    explicit MainCommands(QWidget& owner);

    /// Ends the program for a name that the table lacks, which is a fault of the caller.
    [[nodiscard]] QAction& At(std::string_view name) const;
    void SetEnabled(std::initializer_list<std::string_view> names, bool enabled);
    void SetChecked(std::string_view name, bool checked);
    /// Runs `run` whenever the user gives the command.
    template<typename Receiver, typename Run>
    void Connect(std::string_view name, Receiver* receiver, Run run) const {
        QObject::connect(&At(name), &QAction::triggered, receiver, run);
    }

private:
    std::map<std::string_view, QAction*> m_actions;
};

} // namespace zol
