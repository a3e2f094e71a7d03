// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>

namespace zol {

class DesignHolder;
class MainCommands;
class MainMenus;
class Pattern;
class Undo;

/// The commands on the whole design: centering, cropping, clearing the palette, each one undo
/// step, and undo itself. Says what can be done with the design that stands open.
class DesignCommands {
public:
    /// What the window does about a command.
    struct Followers {
        std::function<void()> EndTool;    ///< before: a line or frame under way is let go
        std::function<void()> CancelDrag; ///< before an undo: what is dragged goes back
        std::function<void()> Changed;    ///< after a command has changed the design everywhere
        std::function<void()> Undone;     ///< what an undo did not repaint itself: sizes, overlay
    };

    DesignCommands(MainCommands& commands, MainMenus& menus, DesignHolder& open, Undo& steps,
                   Followers followers);

    /// Another design stands open: nothing is selected in it, and it can be drawn and saved.
    void EnableForNewDesign();
    /// What can be done now. The menus ask for it when they open.
    void RefreshEnabling();

private:
    void ConnectCommands();
    void Run(const std::string& label, const std::function<void(Pattern&)>& work);
    void Crop();
    void TakeBack();

    MainCommands& m_commands;
    MainMenus& m_menus;
    DesignHolder& m_open;
    Undo& m_steps;
    Followers m_followers;
};

} // namespace zol
