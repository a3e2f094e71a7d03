// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/WizardProgress.h"

#include <QEventLoop>

#include <utility>

#include "windowkit/BusyScope.h"
#include "windowkit/FeltDelay.h"
#include "windowkit/JobStatus.h"
#include "windowkit/LatestJob.h"

namespace zol {

namespace {

constexpr int YieldEveryMs = 30;

} // namespace

void AwaitJob(LatestJob& job, JobStatus& status) {
    const BusyScope scope(&status);
    QEventLoop loop;
    QObject::connect(&job, &LatestJob::Ended, &loop, &QEventLoop::quit);
    if (job.IsRunning()) {
        loop.exec();
    }
}

WizardProgress::WizardProgress(JobStatus& status, ProgressDoor*& inPlaceOf)
    : m_status(status),
      m_place(inPlaceOf),
      m_before(std::exchange(inPlaceOf, this)) {
    m_sinceStart.start();
    connect(&m_status, &JobStatus::CancelClicked, this, [this] { m_cancelled = true; });
}

WizardProgress::~WizardProgress() {
    m_place = m_before;
    m_status.StopStatus();
}

void WizardProgress::StartStatus(const std::string& text, int maximum) {
    m_text = QString::fromStdString(text);
    m_maximum = maximum;
    m_value = 0;
    if (m_shown) {
        m_status.StartStatus(m_text, m_maximum);
    }
}

void WizardProgress::UpdateStatus(int value) {
    m_value = value;
    if (m_shown) {
        m_status.UpdateStatus(value);
    }
}

void WizardProgress::StopStatus() {
    m_shown = false;
    m_status.StopStatus();
}

bool WizardProgress::MayGoOn() {
    if (m_sinceYield.isValid() && !m_sinceYield.hasExpired(YieldEveryMs)) {
        return !m_cancelled;
    }
    ShowIfDue();
    {
        const BusyScope scope(&m_status);
        BusyScope::LetEventsThrough();
    }
    m_sinceYield.start();
    return !m_cancelled;
}

void WizardProgress::ShowIfDue() {
    if (!m_shown && m_sinceStart.hasExpired(FeltDelay.count())) {
        m_shown = true;
        m_status.StartStatus(m_text, m_maximum);
        m_status.UpdateStatus(m_value);
    }
}

} // namespace zol
