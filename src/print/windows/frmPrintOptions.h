// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <memory>
#include <optional>

#include "print/Paper.h"
#include "print/PrintPlan.h"
#include "print/windows/PrintDesk.h"

class QLineEdit;

namespace Ui {
class frmPrintOptions;
}

namespace zol {

/// Collects the decisions of one print job and runs it. Has a form of its own for the colour key
/// alone. Without a printer only the PDF can be had.
class frmPrintOptions : public QDialog {
    Q_OBJECT

public:
    frmPrintOptions(PrintDesk& desk, PrintPlan::Form form, QWidget* parent);
    ~frmPrintOptions() override;

    /// Enter saves a PDF, where that is what the window was opened for.
    void PreferPdf();

private:
    void SetUpControls();
    void ConnectControls();
    void LoadCombos();
    void ShowPrinter();
    void ShowSize();
    void ShowPages();
    [[nodiscard]] PageDevice& Device();

    void ChooseRange();
    void TypeGSPI(const QString& text);
    void FitPage(bool fit);
    void PrintSelectedOnly(bool selected);
    void ChooseStyles();
    void SetUpPrinter();
    void SetUpAdvanced();

    [[nodiscard]] PrintRequest Request();
    [[nodiscard]] bool Validate();
    [[nodiscard]] bool PrepareJob();
    void Preview();
    void Print();
    void SavePdf();

    std::unique_ptr<Ui::frmPrintOptions> m_ui;
    PrintDesk& m_desk;
    Paper m_paper; ///< in place of a printer
    std::optional<SelectedArea> m_selection;
    PrintPlan m_plan;
};

} // namespace zol
