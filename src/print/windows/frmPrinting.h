// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QTimer>

#include <exception>
#include <functional>
#include <memory>

#include "model/Doors.h"

namespace Ui {
class frmPrinting;
}

namespace zol {

/// Shows which page is being printed, with Cancel. The work is begun by a timer of the window, so
/// that it stands before the first page; wherever the work asks whether it may go on, the window
/// lives for a moment within a busy scope.
class frmPrinting : public QDialog, private ProgressDoor {
    Q_OBJECT

public:
    using Work = std::function<void(ProgressDoor& progress)>;

    explicit frmPrinting(QWidget* parent = nullptr);
    ~frmPrinting() override;

    /// Shows the window modally until the work has ended. What the work throws is thrown on.
    void Run(Work work);
    /// Whether Cancel was pressed.
    [[nodiscard]] bool PrintCancelled() const { return m_cancelled; }

    /// Escape and the window's cross are Cancel.
    void reject() override;

private:
    void StartStatus(const std::string& text, int maximum) override;
    void UpdateStatus(int value) override;
    void StopStatus() override;
    [[nodiscard]] bool MayGoOn() override;

    void Begin();

    std::unique_ptr<Ui::frmPrinting> m_ui;
    QTimer m_timer; ///< its only tick begins the work
    Work m_work;
    std::exception_ptr m_fault;
    bool m_cancelled = false;
};

} // namespace zol
