// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <map>
#include <string_view>

class QAction;
class QMainWindow;
class QMenu;

namespace zol {

class MainCommands;

/// The menu bar of the main window: the tree of its menus, made of the window's commands.
class MainMenus {
public:
    static constexpr int RecentCount = 4;

    MainMenus(QMainWindow& window, const MainCommands& commands);

    /// A menu by its object name, "mnuEdit".
    [[nodiscard]] QMenu& At(std::string_view name) const;
    /// The entries for recent files, `mnuFileMRU0` to `mnuFileMRU3`, and the line above them; all
    /// hidden until a file is known.
    [[nodiscard]] const std::array<QAction*, RecentCount>& RecentFiles() const { return m_recent; }
    [[nodiscard]] QAction& RecentSeparator() const { return *m_recentSeparator; }

private:
    QMenu& AddMenu(QMainWindow& window, const MainCommands& commands, std::string_view name);
    void AddRecentFiles(QMenu& menu);

    std::map<std::string_view, QMenu*> m_menus;
    std::array<QAction*, RecentCount> m_recent{};
    QAction* m_recentSeparator = nullptr;
};

} // namespace zol
