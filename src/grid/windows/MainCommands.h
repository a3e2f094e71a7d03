// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>

#include <map>
#include <span>
#include <string_view>

class QWidget;

namespace zol {

struct ProgramContext;

/// One command of the main window as the user meets it.
struct MainCommand {
    const char* Name;      ///< the menu item's object name, "mnuFileNew"
    const char* Caption;   ///< with its mnemonic
    const char* StatusTip; ///< what it does, for the status bar and screen readers
    const char* Shortcut;  ///< portable key texts, parted by "; "; empty for none
    const char* Icon;      ///< name in the icon family; empty for none
    bool Checkable;
    bool Enabled; ///< at the start; what needs a selection waits for one
};

/// Every command, in the order of the menus.
[[nodiscard]] std::span<const MainCommand> MainCommandTable();

/// The main window's commands as actions, one for each row of the table. Menus and tool buttons
/// show them; groups of commands connect them. A command that no group carries out is disabled,
/// whatever is asked for.
class MainCommands {
public:
    /// The actions become children of `owner`, so that their keys work in its window. The context
    /// says how colour is spelled.
    MainCommands(QWidget& owner, const ProgramContext& context);

    /// Ends the program for a name that the table lacks, which is a fault of the caller.
    [[nodiscard]] QAction& At(std::string_view name) const;
    void SetEnabled(std::initializer_list<std::string_view> names, bool enabled);
    void SetChecked(std::string_view name, bool checked);
    /// Runs `run` whenever the user gives the command.
    template<typename Receiver, typename Run>
    void Connect(std::string_view name, Receiver* receiver, Run run) {
        CarryOut(name);
        QObject::connect(&At(name), &QAction::triggered, receiver, run);
    }
    /// The command is carried out by what shows it, such as a button with a menu.
    void CarryOut(std::string_view name);

private:
    struct Entry {
        QAction* Action = nullptr;
        bool IsWanted = true;      ///< to be enabled
        bool IsCarriedOut = false; ///< by a group of commands
    };

    std::map<std::string_view, Entry> m_entries;
};

} // namespace zol
