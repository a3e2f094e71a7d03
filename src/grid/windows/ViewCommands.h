// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace zol {

class MainCommands;
class SettingsDoor;
struct Options;

/// The commands of the View menu that show and hide parts of the window and choose how stitches
/// are shown. What they change is kept in the options and in the store.
class ViewCommands {
public:
    /// What the window does to follow an option.
    struct Followers {
        std::function<void()> PartsChanged;    ///< bars, rulers, status bar
        std::function<void()> PaintingChanged; ///< display style, grid lines
        std::function<void()> Refresh;
    };

    ViewCommands(MainCommands& commands, Options& options, SettingsDoor& store,
                 Followers followers);

    /// The check marks by the options.
    void ShowOptions();

private:
    void ConnectFlags();
    void ConnectStyles();
    void SetDisplayStyle(int style);

    MainCommands& m_commands;
    Options& m_options;
    SettingsDoor& m_store;
    Followers m_followers;
};

} // namespace zol
