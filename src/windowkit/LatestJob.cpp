// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/LatestJob.h"

#include <QCoreApplication>
#include <QEvent>

#include <atomic>
#include <exception>
#include <new>
#include <string>

#include "model/Doors.h"
#include "model/RunTimeError.h"

namespace zol {

/// One start. The work's thread writes Result and Error before it posts their delivery, and
/// nothing afterwards.
struct LatestJob::Run {
    std::atomic<bool> MayGoOn = true;
    Work DoIt;
    std::shared_ptr<void> Result; ///< null: the work threw
    QString Error;
};

/// The door of one run, used on the work's thread.
class LatestJob::Progress : public ProgressDoor {
public:
    Progress(LatestJob& job, std::shared_ptr<Run> run) : m_job(&job), m_run(std::move(run)) {}

    void StartStatus(const std::string& text, int maximum) override {
        Tell([job = m_job, text = QString::fromStdString(text), maximum] {
            Q_EMIT job->StatusStarted(text, maximum);
        });
    }
    void UpdateStatus(int value) override {
        Tell([job = m_job, value] { Q_EMIT job->StatusUpdated(value); });
    }
    void StopStatus() override {
        Tell([job = m_job] { Q_EMIT job->StatusStopped(); });
    }
    [[nodiscard]] bool MayGoOn() override { return m_run->MayGoOn.load(); }

private:
    void Tell(std::function<void()> tell) {
        if (m_run->MayGoOn.load()) {
            m_job->Post(m_run, std::move(tell));
        }
    }

    LatestJob* m_job;
    std::shared_ptr<Run> m_run;
};

/// Something to be told on the window's thread.
class LatestJob::Delivery : public QEvent {
public:
    Delivery(std::shared_ptr<Run> run, std::function<void()> tell)
        : QEvent(QEvent::User),
          m_run(std::move(run)),
          m_tell(std::move(tell)) {}

    [[nodiscard]] bool IsOf(const std::shared_ptr<Run>& run) const { return m_run == run; }
    void Tell() const { m_tell(); }

private:
    std::shared_ptr<Run> m_run;
    std::function<void()> m_tell;
};

LatestJob::LatestJob(QObject* parent) : QObject(parent) {
    // One for the latest, one for what is still on its way out.
    m_pool.setMaxThreadCount(2);
}

LatestJob::~LatestJob() {
    Drop();
    m_pool.waitForDone();
}

void LatestJob::StartErased(Work work, Done done) {
    Drop();
    auto run = std::make_shared<Run>();
    run->DoIt = std::move(work);
    m_run = run;
    m_done = std::move(done);
    Q_EMIT Began();
    m_pool.start([this, run] { Execute(run); });
}

void LatestJob::Cancel() {
    if (IsRunning()) {
        Drop();
        Q_EMIT Ended();
    }
}

void LatestJob::Drop() {
    if (m_run != nullptr) {
        m_run->MayGoOn = false;
        m_run.reset();
        m_done = nullptr;
    }
    m_pool.clear();
}

void LatestJob::Execute(const std::shared_ptr<Run>& run) {
    try {
        if (run->MayGoOn.load()) {
            Progress progress(*this, run);
            run->Result = run->DoIt(progress);
        }
    } catch (const std::bad_alloc&) {
        run->Error = QString::fromStdString(RunTimeErrorText(ErrOutOfMemory));
    } catch (const std::exception& error) {
        run->Error = QString::fromUtf8(error.what());
    }
    // What the work held (pictures, palettes) goes here and not on the window's thread.
    run->DoIt = nullptr;
    Post(run, [this, run] { Deliver(run); });
}

void LatestJob::Deliver(const std::shared_ptr<Run>& run) {
    // Whoever is told may start the next job at once: nothing of this one may stand any more.
    const Done done = std::exchange(m_done, nullptr);
    m_run.reset();
    Q_EMIT Ended();
    if (run->Result != nullptr) {
        done(run->Result.get());
    } else {
        Q_EMIT Failed(run->Error);
    }
}

void LatestJob::Post(const std::shared_ptr<Run>& run, std::function<void()> tell) {
    QCoreApplication::postEvent(this, new Delivery(run, std::move(tell)));
}

void LatestJob::customEvent(QEvent* event) {
    // Nobody else sends this object events of a number of their own.
    const auto& delivery = static_cast<const Delivery&>(*event);
    if (delivery.IsOf(m_run)) {
        delivery.Tell();
    }
}

} // namespace zol
