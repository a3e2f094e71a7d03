// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>

#include "model/Doors.h"
#include "support/Arrivals.h"
#include "support/DialogHands.h"
#include "support/Gate.h"
#include "windowkit/FeltDelay.h"
#include "windowkit/JobStatus.h"
#include "windowkit/LatestJob.h"

using namespace zol;
using test::Gate;
using test::PartOf;

namespace {

/// Counts how often a widget comes up.
class ShowCounter : public QObject {
public:
    explicit ShowCounter(QWidget* widget) : QObject(widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        Shown += event->type() == QEvent::Show ? 1 : 0;
        return false;
    }

    int Shown = 0;
};

} // namespace

class TestJobStatus : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void LongWorkShowsItsStatusWithinAFifthOfASecond();
    void ShortWorkShowsNothing();
    void WorkWithoutAStatusMovesTheBarAlone();
    void CancelDropsTheOutcome();
    void EscapeCancelsTheWorkAndNotTheWindow();
    void TheStripStaysInTheMiddle();
    void WorkOfTheWindowsThreadShowsAtOnce();

private:
    void StartGated();

    std::unique_ptr<QDialog> m_window;
    JobStatus* m_status = nullptr;
    std::unique_ptr<LatestJob> m_job;
    std::unique_ptr<Gate> m_gate;
    int m_result = 0;
};

void TestJobStatus::init() {
    m_result = 0;
    m_gate = std::make_unique<Gate>();
    m_job = std::make_unique<LatestJob>();
    m_window = std::make_unique<QDialog>();
    m_window->resize(640, 480);
    m_status = new JobStatus(m_window.get());
    m_status->Follow(*m_job, QStringLiteral("Adjusting"));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QVERIFY(!m_status->isVisible());
}

void TestJobStatus::cleanup() {
    constexpr int enough = 100;
    m_gate->Open.release(enough);
    m_window.reset();
    m_job.reset();
}

void TestJobStatus::StartGated() {
    m_job->Start(
        [gate = m_gate.get()](ProgressDoor& progress) {
            progress.StartStatus("Counting Stitches", 100);
            progress.UpdateStatus(30);
            return gate->PassWith(7);
        },
        [this](int value) { m_result = value; });
}

void TestJobStatus::LongWorkShowsItsStatusWithinAFifthOfASecond() {
    StartGated();
    QElapsedTimer clock;
    clock.start();
    // By the first turn of the event loop after that time, however long the machine lets the
    // window wait in between.
    qint64 turned = 0;
    while (!m_status->isVisible() && turned < 200) {
        turned = clock.elapsed();
        QCoreApplication::processEvents();
    }
    QVERIFY(m_status->isVisible());
    QCOMPARE(m_status->objectName(), QStringLiteral("picStatus"));
    QTRY_COMPARE(PartOf<QLabel>(*m_window, "lblStatus").text(),
                 QStringLiteral("Counting Stitches"));
    QTRY_COMPARE(PartOf<QProgressBar>(*m_window, "pbStatus").value(), 30);
    QCOMPARE(PartOf<QProgressBar>(*m_window, "pbStatus").maximum(), 100);
    m_gate->Open.release();
    QTRY_COMPARE(m_result, 7);
    QVERIFY(!m_status->isVisible());
}

void TestJobStatus::ShortWorkShowsNothing() {
    const auto* counter = new ShowCounter(m_status);
    for (int i = 1; i <= 20; ++i) {
        const int before = counter->Shown;
        QElapsedTimer clock;
        clock.start();
        m_job->Start([i](ProgressDoor& /*progress*/) { return i; },
                     [this](int value) { m_result = value; });
        QTRY_COMPARE(m_result, i);
        // On a machine that has other things to do even this may take long enough to be felt.
        QVERIFY(counter->Shown == before || clock.elapsed() >= FeltDelay.count());
        QVERIFY(!m_status->isVisible());
    }
}

void TestJobStatus::WorkWithoutAStatusMovesTheBarAlone() {
    m_job->Start([gate = m_gate.get()](ProgressDoor& /*progress*/) { return gate->PassWith(1); },
                 [this](int value) { m_result = value; });
    QTRY_VERIFY(m_status->isVisible());
    QCOMPARE(PartOf<QLabel>(*m_window, "lblStatus").text(), QStringLiteral("Adjusting"));
    QCOMPARE(PartOf<QProgressBar>(*m_window, "pbStatus").maximum(), 0);
}

void TestJobStatus::CancelDropsTheOutcome() {
    QSignalSpy clicked(m_status, &JobStatus::CancelClicked);
    const test::Arrivals arrivals(*m_job);
    StartGated();
    QTRY_VERIFY(m_status->isVisible());
    QTRY_COMPARE(arrivals.Count(), 2); // name and number of what runs
    QTest::mouseClick(&PartOf<QPushButton>(*m_window, "cmdCancelStatus"), Qt::LeftButton);
    QVERIFY(!m_job->IsRunning());
    QVERIFY(!m_status->isVisible());
    QCOMPARE(clicked.count(), 1);
    m_gate->Open.release();
    QTRY_COMPARE(arrivals.Count(), 3); // the outcome
    QCOMPARE(m_result, 0);
}

void TestJobStatus::EscapeCancelsTheWorkAndNotTheWindow() {
    StartGated();
    QTRY_VERIFY(m_status->isVisible());
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    QVERIFY(!m_job->IsRunning());
    QVERIFY(m_window->isVisible());
    // With nothing to cancel, Escape is the window's again.
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    QVERIFY(!m_window->isVisible());
}

void TestJobStatus::TheStripStaysInTheMiddle() {
    StartGated();
    QTRY_VERIFY(m_status->isVisible());
    const auto offMiddle = [this] {
        const QPoint off = m_status->geometry().center() - m_window->rect().center();
        return off.manhattanLength();
    };
    QVERIFY(offMiddle() <= 2);
    m_window->resize(900, 700);
    QTRY_VERIFY(offMiddle() <= 2);
}

void TestJobStatus::WorkOfTheWindowsThreadShowsAtOnce() {
    m_status->StartStatus(QStringLiteral("Creating Pattern"), 100);
    QVERIFY(m_status->isVisible());
    m_status->UpdateStatus(5);
    QCOMPARE(PartOf<QProgressBar>(*m_window, "pbStatus").value(), 5);
    QCOMPARE(PartOf<QLabel>(*m_window, "lblStatus").text(), QStringLiteral("Creating Pattern"));
    m_status->StopStatus();
    QVERIFY(!m_status->isVisible());
}

QTEST_MAIN(TestJobStatus)
#include "test_JobStatus.moc"
