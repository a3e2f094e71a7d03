// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/ReportCommands.h"

#include "grid/windows/MainCommands.h"
#include "print/windows/frmExportWizard.h"
#include "print/windows/frmFlossUsage.h"

namespace zol {

ReportCommands::ReportCommands(MainCommands& commands, PrintDesk& desk, QWidget& window)
    : m_desk(desk),
      m_window(window) {
    commands.Connect("mnuExport", &m_window, [this] {
        frmExportWizard dialog(m_desk, m_export, &m_window);
        dialog.exec();
    });
    commands.Connect("mnuToolsFlossUsage", &m_window, [this] {
        frmFlossUsage dialog(m_desk, &m_window);
        dialog.exec();
    });
}

} // namespace zol
