// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QTimer>

#include <chrono>
#include <memory>
#include <optional>

#include "print/windows/PreviewZoom.h"
#include "print/windows/PrintDesk.h"
#include "windowkit/FeltDelay.h"

namespace Ui {
class frmPreview;
}

namespace zol {

struct PagePicture;

/// The pages of a job as they will be printed, one at a time, within the range that SetPrintRange
/// gave. A page is painted when it is shown, at the size in which it is shown; what takes longer
/// shows the printing window with Cancel. Prints and exports the shown page, and saves all pages
/// of the range as a PDF.
class frmPreview : public QDialog {
    Q_OBJECT

public:
    /// Desk and job outlive the window. The job's range and page are afterwards as they were.
    frmPreview(PrintDesk& desk, PrintFuncs& job, QWidget* parent);
    ~frmPreview() override;

    /// Counted as the job's PrintPage.
    [[nodiscard]] int ShownPage() const { return m_page; }
    /// How long a page may take before the printing window is shown; FeltDelay unless it is told
    /// otherwise.
    void SetPatience(std::chrono::milliseconds patience) { m_patience = patience; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void SetUpKeys();
    void ConnectControls();

    void ShowPage(int page);
    /// On through the shown page, and at its end to the next one; -1 goes back.
    void TurnOver(int pages);
    void ShowTypedPage();
    void ShowNumbers();
    void TakeZoom(const QString& text);
    void StepZoom(double steps, std::optional<QPoint> anchor);
    /// Gives the paper the size that the zoom asks for; the page is painted anew soon after.
    void Resize(std::optional<QPoint> anchor = std::nullopt);
    void PaintShown();
    [[nodiscard]] PagePicture Paint(int page, int dotsPerInch);
    void TellFault(const std::string& fault, const std::string& more);

    void PrintPage();
    void Export();
    void SavePdf();
    [[nodiscard]] QSize PaperSize() const;

    std::unique_ptr<Ui::frmPreview> m_ui;
    PrintDesk& m_desk;
    PrintFuncs& m_job;
    PreviewZoom m_zoom;
    QTimer m_repaint;
    int m_page;
    std::chrono::milliseconds m_patience = FeltDelay;
    int m_dots = 0; ///< to the inch of the paper's size on the screen
    /// What the fields call through. Last, so that it dies first: a field that loses the focus when
    /// the window goes would otherwise call what is no longer there.
    QObject m_whole;
};

} // namespace zol
