// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <atomic>
#include <memory>
#include <new>
#include <optional>
#include <stdexcept>
#include <vector>

#include "model/Doors.h"
#include "support/Arrivals.h"
#include "support/Gate.h"
#include "windowkit/LatestJob.h"

using namespace zol;
using test::Arrivals;
using test::Gate;

class TestLatestJob : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheResultArrivesOnTheWindowsThread();
    void WorkRunsBesideTheWindow();
    void ANewerJobCancelsTheOlderOneWhoseOutcomeIsDropped();
    void AnOutcomeThatWaitsToBeDeliveredIsDroppedByANewerJob();
    void CancelEndsAtOnceAndDropsTheOutcome();
    void CancelWithoutAJobTellsNothing();
    void StatusArrivesInOrderOnTheWindowsThread();
    void StatusOfAnOlderJobIsDropped();
    void AnErrorArrivesAsItsText();
    void RunningOutOfMemoryIsAnError();
    void ADoneMayStartTheNextJob();
    void DestructionCancelsAndWaits();
    void ManyStartsBringTheLastResultAlone();
};

void TestLatestJob::TheResultArrivesOnTheWindowsThread() {
    LatestJob job;
    QThread* workThread = nullptr;
    QThread* doneThread = nullptr;
    int result = 0;
    job.Start(
        [&workThread](ProgressDoor& /*progress*/) {
            workThread = QThread::currentThread();
            return 42;
        },
        [&](int value) {
            result = value;
            doneThread = QThread::currentThread();
        });
    QVERIFY(job.IsRunning());
    QCOMPARE(result, 0); // delivered by the event loop, never within Start
    QTRY_COMPARE(result, 42);
    QVERIFY(!job.IsRunning());
    QCOMPARE(doneThread, QThread::currentThread());
    QVERIFY(workThread != QThread::currentThread());
}

void TestLatestJob::WorkRunsBesideTheWindow() {
    Gate gate;
    LatestJob job;
    std::optional<int> result;
    job.Start([&gate](ProgressDoor& /*progress*/) { return gate.PassWith(1); },
              [&result](int value) { result = value; });
    gate.Begun.acquire(); // the work stands in the gate, and this thread goes on
    QCoreApplication::processEvents();
    QVERIFY(!result);
    gate.Open.release();
    QTRY_COMPARE(result.value_or(0), 1);
}

void TestLatestJob::ANewerJobCancelsTheOlderOneWhoseOutcomeIsDropped() {
    Gate older;
    std::atomic<bool> olderMayGoOn = true;
    LatestJob job;
    const Arrivals arrivals(job);
    std::vector<int> results;
    job.Start(
        [&](ProgressDoor& progress) {
            const int value = older.PassWith(1);
            olderMayGoOn = progress.MayGoOn();
            return value;
        },
        [&results](int value) { results.push_back(value); });
    older.Begun.acquire();
    // The newer one does not wait for the older, which has not noticed yet.
    job.Start([](ProgressDoor& /*progress*/) { return 2; },
              [&results](int value) { results.push_back(value); });
    QTRY_COMPARE(results, std::vector<int>{2});
    older.Open.release();
    QTRY_COMPARE(arrivals.Count(), 2);
    QVERIFY(!olderMayGoOn);
    QCOMPARE(results, std::vector<int>{2});
}

void TestLatestJob::AnOutcomeThatWaitsToBeDeliveredIsDroppedByANewerJob() {
    LatestJob job;
    const Arrivals arrivals(job);
    std::vector<int> results;
    const auto keep = std::make_shared<int>(1);
    job.Start([keep](ProgressDoor& /*progress*/) { return *keep; },
              [&results](int value) { results.push_back(value); });
    // What the work held is let go when it is over: from then on its outcome waits for the loop.
    while (keep.use_count() > 1) {
        QThread::yieldCurrentThread();
    }
    job.Start([](ProgressDoor& /*progress*/) { return 2; },
              [&results](int value) { results.push_back(value); });
    QTRY_COMPARE(arrivals.Count(), 2);
    QCOMPARE(results, std::vector<int>{2});
}

void TestLatestJob::CancelEndsAtOnceAndDropsTheOutcome() {
    Gate gate;
    LatestJob job;
    const Arrivals arrivals(job);
    QSignalSpy ended(&job, &LatestJob::Ended);
    bool delivered = false;
    std::atomic<bool> mayGoOn = true;
    job.Start(
        [&](ProgressDoor& progress) {
            gate.PassWith(0);
            mayGoOn = progress.MayGoOn();
            return 0;
        },
        [&delivered](int) { delivered = true; });
    gate.Begun.acquire();
    job.Cancel();
    QVERIFY(!job.IsRunning());
    QCOMPARE(ended.count(), 1);
    gate.Open.release();
    QTRY_COMPARE(arrivals.Count(), 1); // the outcome has come, for nobody
    QVERIFY(!mayGoOn);
    QVERIFY(!delivered);
    QCOMPARE(ended.count(), 1);
}

void TestLatestJob::CancelWithoutAJobTellsNothing() {
    LatestJob job;
    QSignalSpy ended(&job, &LatestJob::Ended);
    job.Cancel();
    QCOMPARE(ended.count(), 0);
}

void TestLatestJob::StatusArrivesInOrderOnTheWindowsThread() {
    LatestJob job;
    QStringList told;
    const auto tell = [&told](const QString& text) {
        told << (QThread::currentThread() == QCoreApplication::instance()->thread()
                     ? text
                     : QStringLiteral("elsewhere"));
    };
    connect(&job, &LatestJob::Began, &job, [&] { tell(QStringLiteral("began")); });
    connect(&job, &LatestJob::StatusStarted, &job, [&](const QString& text, int maximum) {
        tell(QStringLiteral("%1 of %2").arg(text).arg(maximum));
    });
    connect(&job, &LatestJob::StatusUpdated, &job,
            [&](int value) { tell(QString::number(value)); });
    connect(&job, &LatestJob::StatusStopped, &job, [&] { tell(QStringLiteral("stopped")); });
    connect(&job, &LatestJob::Ended, &job, [&] { tell(QStringLiteral("ended")); });
    job.Start(
        [](ProgressDoor& progress) {
            progress.StartStatus("Counting", 2);
            progress.UpdateStatus(1);
            progress.UpdateStatus(2);
            progress.StopStatus();
            return progress.MayGoOn();
        },
        [&](bool mayGoOn) { tell(mayGoOn ? QStringLiteral("done") : QStringLiteral("not")); });
    QTRY_VERIFY(!job.IsRunning());
    QCOMPARE(told.join(QLatin1Char(',')),
             QStringLiteral("began,Counting of 2,1,2,stopped,ended,done"));
}

void TestLatestJob::StatusOfAnOlderJobIsDropped() {
    Gate gate;
    LatestJob job;
    const Arrivals arrivals(job);
    QSignalSpy updated(&job, &LatestJob::StatusUpdated);
    const auto nothing = [](int) {};
    job.Start(
        [&gate](ProgressDoor& progress) {
            progress.UpdateStatus(1); // waits for the loop when the job is replaced
            gate.PassWith(0);
            progress.UpdateStatus(2); // told by a job that does not count any more
            return 0;
        },
        nothing);
    gate.Begun.acquire();
    job.Start(
        [&gate](ProgressDoor& progress) {
            gate.Open.release();
            progress.UpdateStatus(3);
            return 0;
        },
        nothing);
    // What the older one told before, its outcome, and all of the newer one.
    QTRY_COMPARE(arrivals.Count(), 4);
    QVERIFY(!job.IsRunning());
    QCOMPARE(updated.count(), 1);
    QCOMPARE(updated.first().first().toInt(), 3);
}

void TestLatestJob::AnErrorArrivesAsItsText() {
    LatestJob job;
    QSignalSpy failed(&job, &LatestJob::Failed);
    bool delivered = false;
    job.Start([](ProgressDoor& /*progress*/) -> int { throw std::runtime_error("No film"); },
              [&delivered](int) { delivered = true; });
    QTRY_COMPARE(failed.count(), 1);
    QCOMPARE(failed.first().first().toString(), QStringLiteral("No film"));
    QVERIFY(!delivered);
    QVERIFY(!job.IsRunning());
}

void TestLatestJob::RunningOutOfMemoryIsAnError() {
    LatestJob job;
    QSignalSpy failed(&job, &LatestJob::Failed);
    job.Start([](ProgressDoor& /*progress*/) -> int { throw std::bad_alloc(); }, [](int) {});
    QTRY_COMPARE(failed.count(), 1);
    QCOMPARE(failed.first().first().toString(), QStringLiteral("Out of memory"));
}

void TestLatestJob::ADoneMayStartTheNextJob() {
    LatestJob job;
    int last = 0;
    job.Start([](ProgressDoor& /*progress*/) { return 1; },
              [&](int first) {
                  job.Start([first](ProgressDoor& /*progress*/) { return first + 1; },
                            [&last](int second) { last = second; });
                  QVERIFY(job.IsRunning());
              });
    QTRY_COMPARE(last, 2);
}

void TestLatestJob::DestructionCancelsAndWaits() {
    std::atomic<bool> left = false;
    bool delivered = false;
    {
        QSemaphore begun;
        LatestJob job;
        job.Start(
            [&](ProgressDoor& progress) {
                begun.release();
                while (progress.MayGoOn()) {
                    QThread::yieldCurrentThread();
                }
                left = true;
                return 0;
            },
            [&delivered](int) { delivered = true; });
        begun.acquire();
    }
    QVERIFY(left);
    QCoreApplication::processEvents();
    QVERIFY(!delivered);
}

void TestLatestJob::ManyStartsBringTheLastResultAlone() {
    LatestJob job;
    QSignalSpy ended(&job, &LatestJob::Ended);
    std::vector<int> results;
    constexpr int starts = 500; // as a slider that is dragged
    for (int i = 1; i <= starts; ++i) {
        job.Start([i](ProgressDoor& /*progress*/) { return i; },
                  [&results](int value) { results.push_back(value); });
    }
    QTRY_VERIFY(!job.IsRunning());
    QCOMPARE(results, std::vector<int>{starts});
    QCOMPARE(ended.count(), 1);
}

QTEST_MAIN(TestLatestJob)
#include "test_LatestJob.moc"
