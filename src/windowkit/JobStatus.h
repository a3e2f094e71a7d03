// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>
#include <QPointer>
#include <QTimer>

#include <memory>

namespace Ui {
class JobStatus;
}

namespace zol {

class LatestJob;

/// The strip `picStatus`: what runs (`lblStatus`), how far it is, and Cancel. Lies over the middle
/// of the widget that it is made with, and hides while nothing runs.
class JobStatus : public QFrame {
    Q_OBJECT

public:
    explicit JobStatus(QWidget* over);
    ~JobStatus() override;

    /// Comes up with the job's status when it lasts longer than FeltDelay, and goes when nothing
    /// of it runs any more; Cancel and Escape cancel it. `text` stands until the work says what it
    /// does, with a bar that only moves. May follow several jobs, which take turns.
    void Follow(LatestJob& job, const QString& text);

    /// For work on the window's own thread: comes up at once.
    void StartStatus(const QString& text, int maximum);
    void UpdateStatus(int value);
    void StopStatus();

Q_SIGNALS:
    /// Cancel was clicked or Escape pressed while the strip was seen.
    void CancelClicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Await(LatestJob& job, const QString& text);
    void SetStatus(const QString& text, int maximum);
    void Appear();
    void Centre();
    void CancelWork();

    std::unique_ptr<Ui::JobStatus> m_ui;
    QWidget* m_over;
    QPointer<LatestJob> m_job; ///< the one that runs
    QTimer m_delay;
};

} // namespace zol
