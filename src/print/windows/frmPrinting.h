// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

#include <chrono>
#include <exception>
#include <functional>
#include <memory>
#include <optional>

#include "model/Doors.h"
#include "windowkit/FeltDelay.h"
#include "windowkit/WaitCursor.h"

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
    /// For work that is often over at once: begins it here, and shows the window when it has lasted
    /// `delay`. Events are let through from then on only.
    void RunLate(Work work, std::chrono::milliseconds delay = FeltDelay);
    /// Whether Cancel was pressed.
    [[nodiscard]] bool PrintCancelled() const { return m_cancelled; }

    /// Escape and the window's cross are Cancel.
    void reject() override;

private:
    void StartStatus(const std::string& text, int maximum) override;
    void UpdateStatus(int value) override;
    void StopStatus() override;
    [[nodiscard]] bool MayGoOn() override;

    void Prepare(Work work);
    void Begin();
    void ThrowOn();

    std::unique_ptr<Ui::frmPrinting> m_ui;
    QTimer m_timer; ///< its only tick begins the work
    Work m_work;
    std::exception_ptr m_fault;
    std::optional<WaitCursor> m_cursor;
    QElapsedTimer m_lasting;
    std::optional<std::chrono::milliseconds> m_showAfter; ///< until it is shown late
    bool m_cancelled = false;
};

} // namespace zol
