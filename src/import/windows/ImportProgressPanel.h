// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QFrame>

#include <string>

#include "model/Doors.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace zol {

/// The progress of long work within a window, `picStatus`: laid over the middle of its parent as
/// soon as the work has lasted so long that somebody could wonder. At MayGoOn the window lives
/// for a moment, within a busy scope, so that Cancel can be pressed.
class ImportProgressPanel : public QFrame, public ProgressDoor {
    Q_OBJECT

public:
    explicit ImportProgressPanel(QWidget* parent);

    void StartStatus(const std::string& text, int maximum) override;
    void UpdateStatus(int value) override;
    void StopStatus() override;
    [[nodiscard]] bool MayGoOn() override;

private:
    void ShowIfDue();

    QLabel* m_task = nullptr;      ///< `lblStatus`
    QProgressBar* m_bar = nullptr; ///< `pbStatus`
    QPushButton* m_cancel = nullptr;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceYield;
    bool m_running = false;
    bool m_cancelled = false;
};

} // namespace zol
