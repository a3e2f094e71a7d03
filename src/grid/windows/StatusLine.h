// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QStatusBar>

#include <string>

#include "model/Doors.h"

class QProgressBar;
class QPushButton;

namespace zol {

class ElidedLabel;
class ZoomPanel;

/// The status bar of the main window, `sbStatusBar`: place, size of the selection, floss and zoom,
/// and the progress of long work laid over the first of them. Status tips show for as long as the
/// pointer rests on their command; the panels are there again behind them.
///
/// At MayGoOn the window lives for a moment, within a busy scope, about thirty times a second.
class StatusLine : public QStatusBar, public ProgressDoor {
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);
    ~StatusLine() override;

    /// First panel: a square, as in "12, 30".
    void ShowPlace(int column, int row);
    /// First panel: any text, such as what a file holds that was opened; empty clears it.
    void ShowNote(const QString& text);
    /// Second panel: the size of the selection in squares; nothing if either is 0.
    void ShowSelection(int columns, int rows);
    /// Third panel: a floss's long description; empty for none.
    void ShowFloss(const QString& description);
    /// Fourth panel: the zoom in percent.
    void ShowZoom(int percent);

    void StartStatus(const std::string& text, int maximum) override;
    void UpdateStatus(int value) override;
    void StopStatus() override;
    [[nodiscard]] bool MayGoOn() override;

Q_SIGNALS:
    /// 1 to 1000 percent, by the slider.
    void ZoomChosen(int percent);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void SetUpPanels();
    void SetUpProgress();
    [[nodiscard]] bool IsDue() const;
    void ShowProgress();
    void LayProgress();

    ElidedLabel* m_place = nullptr;
    ElidedLabel* m_selection = nullptr;
    ElidedLabel* m_floss = nullptr;
    ZoomPanel* m_zoom = nullptr;
    QWidget* m_progress = nullptr; ///< holds the next three
    ElidedLabel* m_task = nullptr; ///< `lblStatus`
    QProgressBar* m_bar = nullptr; ///< `pbStatus`
    QPushButton* m_cancel = nullptr;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceYield;
    bool m_running = false;
    bool m_cancelled = false;
    bool m_shownForWork = false; ///< the bar was hidden before the work
};

} // namespace zol
