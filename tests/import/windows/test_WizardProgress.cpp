// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

#include "import/windows/WizardProgress.h"
#include "support/DialogHands.h"
#include "support/Gate.h"
#include "support/RecordingDoors.h"
#include "windowkit/FeltDelay.h"
#include "windowkit/JobStatus.h"
#include "windowkit/LatestJob.h"

namespace zol::test {

/// The progress of the wizard's own work, in its strip.
class test_WizardProgress : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void takesTheProgramsPlaceWhileItLives();
    void shortWorkShowsNothing();
    void longWorkShowsHowFarItIs();
    void cancelAndEscapeStopTheWork_data();
    void cancelAndEscapeStopTheWork();
    void nothingElseBeginsMeanwhile();
    void awaitingAJobLetsOnlyItsCancelThrough();

private:
    /// Works on until the condition holds; false if it never does.
    static bool WorkUntil(WizardProgress& progress, const std::function<bool()>& done) {
        QElapsedTimer time;
        time.start();
        while (progress.MayGoOn() && !done() && !time.hasExpired(10000)) {
        }
        return done();
    }
    /// Runs within the next moment in which the window lives, as a user's own event does.
    void Meanwhile(std::function<void()> act) {
        QMetaObject::invokeMethod(m_status, std::move(act), Qt::QueuedConnection);
    }
    QPushButton& Cancel() { return PartOf<QPushButton>(*m_window, "cmdCancelStatus"); }

    std::unique_ptr<QDialog> m_window;
    QPushButton* m_other = nullptr;
    JobStatus* m_status = nullptr;
    RecordingProgress m_program;
    ProgressDoor* m_place = nullptr;
};

void test_WizardProgress::init() {
    m_window = std::make_unique<QDialog>();
    m_window->resize(500, 400);
    m_other = new QPushButton(QStringLiteral("Other"), m_window.get());
    m_status = new JobStatus(m_window.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_program = {};
    m_place = &m_program;
}

void test_WizardProgress::cleanup() {
    m_window.reset();
}

void test_WizardProgress::takesTheProgramsPlaceWhileItLives() {
    {
        const WizardProgress progress(*m_status, m_place);
        QCOMPARE(m_place, static_cast<const ProgressDoor*>(&progress));
        m_place->StartStatus("Creating Pattern", 100);
        QVERIFY(m_place->MayGoOn());
    }
    QCOMPARE(m_place, static_cast<ProgressDoor*>(&m_program));
    QVERIFY(m_program.started.empty());
}

void test_WizardProgress::shortWorkShowsNothing() {
    QElapsedTimer time;
    time.start();
    WizardProgress progress(*m_status, m_place);
    progress.StartStatus("Creating Pattern", 100);
    progress.UpdateStatus(40);
    QVERIFY(progress.MayGoOn());
    const bool seen = m_status->isVisible();
    if (std::chrono::milliseconds(time.elapsed()) < FeltDelay) {
        QVERIFY(!seen);
    }
    progress.StopStatus();
    QVERIFY(!m_status->isVisible());
}

void test_WizardProgress::longWorkShowsHowFarItIs() {
    WizardProgress progress(*m_status, m_place);
    progress.StartStatus("Applying Floss Palette", 100);
    progress.UpdateStatus(40);
    QVERIFY(WorkUntil(progress, [this] { return m_status->isVisible(); }));
    auto& bar = PartOf<QProgressBar>(*m_window, "pbStatus");
    QCOMPARE(PartOf<QLabel>(*m_window, "lblStatus").text(),
             QStringLiteral("Applying Floss Palette"));
    QCOMPARE(bar.value(), 40);
    QCOMPARE(bar.maximum(), 100);
    progress.UpdateStatus(70);
    QCOMPARE(bar.value(), 70);
    // The next step of the same work.
    progress.StartStatus("Creating Pattern", 50);
    QCOMPARE(PartOf<QLabel>(*m_window, "lblStatus").text(), QStringLiteral("Creating Pattern"));
    QCOMPARE(bar.maximum(), 50);
    progress.StopStatus();
    QVERIFY(!m_status->isVisible());
}

void test_WizardProgress::cancelAndEscapeStopTheWork_data() {
    QTest::addColumn<bool>("byKeys");
    QTest::newRow("click") << false;
    QTest::newRow("Escape") << true;
}

void test_WizardProgress::cancelAndEscapeStopTheWork() {
    QFETCH(bool, byKeys);
    {
        WizardProgress progress(*m_status, m_place);
        progress.StartStatus("Creating Pattern", 100);
        QVERIFY(WorkUntil(progress, [this] { return m_status->isVisible(); }));
        Meanwhile([this, byKeys] {
            if (byKeys) {
                QTest::keyClick(m_window->windowHandle(), Qt::Key_Escape);
            } else {
                QTest::mouseClick(&Cancel(), Qt::LeftButton);
            }
        });
        QVERIFY(!WorkUntil(progress, [] { return false; }));
        QVERIFY(!progress.MayGoOn());
    }
    QVERIFY(m_window->isVisible()); // it was not the window that was cancelled
    QVERIFY(!m_status->isVisible());
}

void test_WizardProgress::nothingElseBeginsMeanwhile() {
    int clicks = 0;
    connect(m_other, &QPushButton::clicked, this, [&clicks] { ++clicks; });
    WizardProgress progress(*m_status, m_place);
    progress.StartStatus("Creating Pattern", 100);
    bool tried = false;
    Meanwhile([this, &tried] {
        QTest::mouseClick(m_other, Qt::LeftButton);
        QTest::keyClick(m_other, Qt::Key_Space);
        tried = true;
    });
    QVERIFY(WorkUntil(progress, [&tried] { return tried; }));
    QCOMPARE(clicks, 0);
}

void test_WizardProgress::awaitingAJobLetsOnlyItsCancelThrough() {
    Gate gate;
    LatestJob job;
    m_status->Follow(job, QStringLiteral("Loading Picture"));
    int clicks = 0;
    connect(m_other, &QPushButton::clicked, this, [&clicks] { ++clicks; });
    int result = 0;
    job.Start([&gate](ProgressDoor& /*progress*/) { return gate.PassWith(7); },
              [&result](int value) { result = value; });
    gate.Begun.acquire();
    Meanwhile([&] {
        QTest::mouseClick(m_other, Qt::LeftButton);
        gate.Open.release();
    });
    AwaitJob(job, *m_status);
    QCOMPARE(result, 7);
    QCOMPARE(clicks, 0);
    QVERIFY(!job.IsRunning());
    AwaitJob(job, *m_status); // nothing runs: it is not waited for
    QTest::mouseClick(m_other, Qt::LeftButton);
    QCOMPARE(clicks, 1);
}

} // namespace zol::test

QTEST_MAIN(zol::test::test_WizardProgress)
#include "test_WizardProgress.moc"
