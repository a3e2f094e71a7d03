// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/OptionsCommand.h"

#include <utility>

#include "grid/windows/MainCommands.h"
#include "settings/windows/frmOptions.h"

namespace zol {

OptionsCommand::OptionsCommand(MainCommands& commands, OptionsDesk desk, QWidget& window)
    : m_desk(std::move(desk)),
      m_window(window) {
    commands.Connect("mnuViewOptions", &m_window, [this] {
        frmOptions dialog(m_desk, &m_window);
        dialog.exec();
    });
}

} // namespace zol
