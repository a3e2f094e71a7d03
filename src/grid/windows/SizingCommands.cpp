// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/SizingCommands.h"

#include <utility>

#include "grid/windows/MainCommands.h"

namespace zol {

SizingCommands::SizingCommands(MainCommands& commands, QWidget& window, frmAddRows::Desk desk,
                               Followers followers)
    : m_window(window),
      m_desk(desk),
      m_followers(std::move(followers)) {
    commands.Connect("mnuAddRows", &commands.At("mnuAddRows"), [this] { ShowDialog(false); });
    commands.Connect("mnuDelRows", &commands.At("mnuDelRows"), [this] { ShowDialog(true); });
}

void SizingCommands::ShowDialog(bool deleting) {
    m_followers.EndTool();
    frmAddRows dialog(m_desk, deleting, &m_window);
    dialog.exec();
    m_followers.Changed();
}

} // namespace zol
