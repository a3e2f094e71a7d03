// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "print/basExport.h"

class QWidget;

namespace zol {

class MainCommands;
struct PrintDesk;

/// The commands that give out what the design is: as a picture or a legend, and how much floss it
/// takes. Keeps what was chosen for pictures.
class ReportCommands {
public:
    /// The windows stand before `window`; the desk outlives this.
    ReportCommands(MainCommands& commands, PrintDesk& desk, QWidget& window);

private:
    PrintDesk& m_desk;
    QWidget& m_window;
    basExport m_export;
};

} // namespace zol
