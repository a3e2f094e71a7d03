// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "grid/windows/frmAddRows.h"

class QWidget;

namespace zol {

class MainCommands;

/// The commands that make the cloth larger or smaller by rows and columns.
class SizingCommands {
public:
    /// What the window does about a command.
    struct Followers {
        std::function<void()> EndTool; ///< before: what is under way or floats is let go
        std::function<void()> Changed; ///< afterwards, whether or not something was changed
    };

    /// The dialog stands before `window`.
    SizingCommands(MainCommands& commands, QWidget& window, frmAddRows::Desk desk,
                   Followers followers);

private:
    void ShowDialog(bool deleting);

    QWidget& m_window;
    frmAddRows::Desk m_desk;
    Followers m_followers;
};

} // namespace zol
