// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/OptionsCommand.h"

#include <utility>

#include "grid/windows/MainCommands.h"

namespace zol {

OptionsCommand::OptionsCommand(MainCommands& commands, OptionsDesk desk, QWidget& window)
    : m_desk(std::move(desk)),
      m_window(window) {
    commands.Connect("mnuViewOptions", &m_window,
                     [this] { Open(frmOptions::DesignGridPage, &m_window); });
}

void OptionsCommand::Open(frmOptions::Page page, QWidget* parent) {
    frmOptions dialog(m_desk, parent);
    dialog.ShowPage(page);
    dialog.exec();
}

} // namespace zol
