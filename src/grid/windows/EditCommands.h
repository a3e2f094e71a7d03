// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "grid/StitchTransform.h"
#include "model/Doors.h"
#include "model/OpenDesign.h"

namespace zol {

class DrawModes;
class EditBox;
class MainCommands;
class MainMenus;
class StatusLine;

/// The commands of the edit box: clipboard, turning, erasing, files. Keeps their menu items and
/// buttons in step with what is selected, and shows how large that is.
class EditCommands {
public:
    /// What they work with; all of it outlives them.
    struct Desk {
        DesignHolder& Open;
        MessageDoor& Messages;
        FileDoor& Files;
        StatusLine& Status;
    };

    /// `done` is called after each command: what can be undone may have changed.
    EditCommands(MainCommands& commands, MainMenus& menus, DrawModes& modes, Desk desk,
                 std::function<void()> done);

    /// What can be done with the box and the clipboard as they are now.
    void UpdateEditMenus();
    /// Lets a block from elsewhere float over the design, in draw mode 3, as one undo step;
    /// nothing, which is told, without room for its flosses.
    void LayPattern(std::shared_ptr<Pattern> block, const std::string& label);

private:
    void ConnectCommands();
    void SelectAll();
    void Paste();
    void PasteFrom();
    void CopyTo();
    [[nodiscard]] std::shared_ptr<Pattern> Load(const std::filesystem::path& file);

    MainCommands& m_commands;
    MainMenus& m_menus;
    DrawModes& m_modes;
    EditBox& m_box;
    Desk m_desk;
    std::function<void()> m_done;
    std::filesystem::path m_folder; ///< where the last block was read or written
};

} // namespace zol
