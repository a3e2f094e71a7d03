// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>

#include "grid/windows/Workshop.h"
#include "print/PrintPlan.h"
#include "print/windows/PrintDesk.h"

class QWidget;

namespace zol {

class EditBox;
class MainCommands;

/// The commands that print the design: the chart, the colour key alone, and how the page is set up.
/// Holds what the print windows work with.
class PrintCommands {
public:
    /// `openOptions` opens the options dialog on the tab of printouts.
    PrintCommands(MainCommands& commands, const Workshop& workshop, EditBox& box, QWidget& window,
                  std::function<void(QWidget* parent)> openOptions);

    [[nodiscard]] PrintDesk& Desk() { return m_desk; }

private:
    [[nodiscard]] std::optional<SelectedArea> Selection();
    void Print(PrintPlan::Form form);
    void SavePdf();
    void SetUpPage();

    EditBox& m_box;
    QWidget& m_window;
    double m_gspi = PrintOptions().GSPI;
    PrintDesk m_desk;
};

} // namespace zol
