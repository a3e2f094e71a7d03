// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/ViewCommands.h"

#include <array>
#include <string>
#include <utility>

#include "grid/windows/MainCommands.h"
#include "model/Doors.h"
#include "model/ZOLTypes.h"
#include "settings/Options.h"

namespace zol {

namespace {

constexpr const char* Section = "Design Grid Opts";

/// The menu's entries in the order of the display styles, from 1.
constexpr std::array Styles{"mnuStitchColorSquares", "mnuStitchBlackSymbols",
                            "mnuStitchColorSymbols", "mnuStitchColorBlocksSymbols",
                            "mnuStitchColorStitch",  "mnuStitchVStitches"};

/// An option that a menu entry turns on and off.
struct Flag {
    const char* Command;
    const char* Value; ///< its name in the store
    bool Options::*Member;
    bool IsPainting; ///< a matter of painting, not of the window's parts
};

constexpr std::array Flags{
    Flag{"mnuViewToolbar", "ToolbarVisible", &Options::ToolbarVisible, false},
    Flag{"mnuStitchToolbar", "StitchToolbarVisible", &Options::StitchToolbarVisible, false},
    Flag{"mnuViewRulers", "RulersVisible", &Options::RulersVisible, false},
    Flag{"mnuViewStatusBar", "StatusbarVisible", &Options::StatusbarVisible, false},
    Flag{"mnuViewGridLines", "GridlinesVisible", &Options::GridlinesVisible, true},
};

} // namespace

ViewCommands::ViewCommands(MainCommands& commands, Options& options, SettingsDoor& store,
                           Followers followers)
    : m_commands(commands),
      m_options(options),
      m_store(store),
      m_followers(std::move(followers)) {
    ConnectFlags();
    ConnectStyles();
    m_commands.Connect("mnuViewRefresh", &m_commands.At("mnuViewRefresh"),
                       [this] { m_followers.Refresh(); });
    ShowOptions();
}

void ViewCommands::ConnectFlags() {
    for (const Flag& flag : Flags) {
        m_commands.Connect(flag.Command, &m_commands.At(flag.Command), [this, &flag] {
            m_options.*flag.Member = !(m_options.*flag.Member);
            m_store.WriteSetting(Section, flag.Value, m_options.*flag.Member ? "TRUE" : "FALSE");
            ShowOptions();
            (flag.IsPainting ? m_followers.PaintingChanged : m_followers.PartsChanged)();
        });
    }
}

void ViewCommands::ConnectStyles() {
    for (std::size_t i = 0; i < Styles.size(); ++i) {
        m_commands.Connect(Styles[i], &m_commands.At(Styles[i]),
                           [this, i] { SetDisplayStyle(static_cast<int>(i) + 1); });
    }
}

void ViewCommands::SetDisplayStyle(int style) {
    m_options.StitchesDisplayAs = style;
    m_store.WriteSetting(Section, "StitchesDisplayAs", std::to_string(style));
    ShowOptions();
    m_followers.PaintingChanged();
}

void ViewCommands::ShowOptions() {
    for (const Flag& flag : Flags) {
        m_commands.SetChecked(flag.Command, m_options.*flag.Member);
    }
    for (std::size_t i = 0; i < Styles.size(); ++i) {
        m_commands.SetChecked(Styles[i], m_options.StitchesDisplayAs == static_cast<int>(i) + 1);
    }
}

} // namespace zol
