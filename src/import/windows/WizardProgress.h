// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QObject>

#include <string>

#include "model/Doors.h"

namespace zol {

class LatestJob;
class JobStatus;

/// Lets nothing but the strip's Cancel through until nothing of the job runs any more.
void AwaitJob(LatestJob& job, JobStatus& status);

/// The progress of work on the wizard's own thread, shown in its strip once it has lasted so long
/// that somebody could wonder. At MayGoOn the window lives for a moment, within a busy scope, so
/// that Cancel can be pressed. Takes the place of the program's own progress while it lives,
/// since that lies below the wizard.
class WizardProgress : public QObject, public ProgressDoor {
    Q_OBJECT

public:
    WizardProgress(JobStatus& status, ProgressDoor*& inPlaceOf);
    ~WizardProgress() override;

    void StartStatus(const std::string& text, int maximum) override;
    void UpdateStatus(int value) override;
    void StopStatus() override;
    [[nodiscard]] bool MayGoOn() override;

private:
    void ShowIfDue();

    JobStatus& m_status;
    ProgressDoor*& m_place;
    ProgressDoor* m_before;
    QString m_text;
    int m_maximum = 0;
    int m_value = 0;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceYield;
    bool m_shown = false;
    bool m_cancelled = false;
};

} // namespace zol
