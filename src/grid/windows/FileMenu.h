// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

namespace zol {

class FileCommands;
class MainCommands;
class MainMenus;
class MRUFuncs;

/// The File menu: its commands and its list of recent files.
class FileMenu {
public:
    FileMenu(MainCommands& commands, MainMenus& menus, FileCommands& files, MRUFuncs& recent);
    ~FileMenu();
    FileMenu(const FileMenu&) = delete;
    FileMenu& operator=(const FileMenu&) = delete;

private:
    void ShowRecent(const std::vector<std::string>& paths);

    MainMenus& m_menus;
    FileCommands& m_files;
    MRUFuncs& m_recent;
};

} // namespace zol
