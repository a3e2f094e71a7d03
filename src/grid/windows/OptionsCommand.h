// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/windows/OptionsDesk.h"
#include "settings/windows/frmOptions.h"

class QWidget;

namespace zol {

class MainCommands;

/// The command that opens the options dialog.
class OptionsCommand {
public:
    OptionsCommand(MainCommands& commands, OptionsDesk desk, QWidget& window);

    void Open(frmOptions::Page page, QWidget* parent);

private:
    OptionsDesk m_desk;
    QWidget& m_window;
};

} // namespace zol
