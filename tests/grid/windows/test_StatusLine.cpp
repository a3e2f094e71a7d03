// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QStatusTipEvent>
#include <QTest>
#include <QVBoxLayout>

#include <functional>
#include <memory>

#include "grid/windows/StatusLine.h"
#include "grid/windows/ZoomPanel.h"
#include "windowkit/FeltDelay.h"

using namespace zol;

namespace {

/// Counts what a widget is told to paint.
class PaintCounter : public QObject {
public:
    int painted = 0;

    bool eventFilter(QObject* watched, QEvent* event) override {
        painted += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

class TestStatusLine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }

    void PanelsShowWhatTheyAreTold();
    void PanelsAreWrittenOnlyIfTheirTextChanges();
    void LongTextsDoNotWidenTheWindow();
    void StatusTipLeavesThePanels();

    void StartWritesFiveBlanksAndTheText();
    void ShortWorkShowsNoProgress();
    void ProgressLiesOverTheFirstPanel();
    void UpdateAloneShowsProgress();
    void StopHidesAndClears();
    void HiddenBarShowsWhileWorkRuns();
    void CancelEndsTheWork();
    void EscapeEndsTheWork();
    void NoCommandBeginsWhileWorkRuns();
    void TightLoopYieldsNowAndThen();

    void ZoomScaleIsEven();
    void SliderChoosesZoom();
    void ShowingZoomChoosesNothing();

private:
    template<class Widget>
    Widget* Find(const char* name) const {
        auto* widget = m_window->findChild<Widget*>(QLatin1String(name));
        Q_ASSERT(widget != nullptr);
        return widget;
    }
    [[nodiscard]] QString TextOf(const char* name) const { return Find<QLabel>(name)->text(); }
    /// Works until the progress shows.
    [[nodiscard]] bool WorkUntilShown() const;
    /// Does something from within the next yields, as the user would.
    void DoMeanwhile(const std::function<void()>& deed) const {
        QMetaObject::invokeMethod(m_line, deed, Qt::QueuedConnection);
    }

    std::unique_ptr<QMainWindow> m_window;
    StatusLine* m_line = nullptr;
};

void TestStatusLine::init() {
    m_window = std::make_unique<QMainWindow>();
    m_line = new StatusLine;
    m_window->setStatusBar(m_line);
    m_window->setCentralWidget(new QPushButton(QStringLiteral("Command")));
    m_window->resize(900, 300);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

bool TestStatusLine::WorkUntilShown() const {
    QElapsedTimer clock;
    clock.start();
    const auto* bar = Find<QProgressBar>("pbStatus");
    while (!bar->isVisible() && !clock.hasExpired(5000)) {
        if (!m_line->MayGoOn()) {
            return false;
        }
    }
    return bar->isVisible();
}

void TestStatusLine::PanelsShowWhatTheyAreTold() {
    QCOMPARE(m_window->findChild<QStatusBar*>(QStringLiteral("sbStatusBar")), m_line);
    m_line->ShowPlace(12, 30);
    m_line->ShowSelection(20, 15);
    m_line->ShowFloss(QStringLiteral("310 - black"));
    m_line->ShowZoom(150);
    QCOMPARE(TextOf("placePanel"), QStringLiteral("12, 30"));
    QCOMPARE(TextOf("selectionPanel"), QStringLiteral("20 × 15 squares"));
    QCOMPARE(TextOf("flossPanel"), QStringLiteral("310 - black"));
    QCOMPARE(TextOf("zoomText"), QStringLiteral("150%"));
    m_line->ShowNote(QStringLiteral("Roses"));
    m_line->ShowSelection(0, 0);
    m_line->ShowFloss({});
    QCOMPARE(TextOf("placePanel"), QStringLiteral("Roses"));
    QCOMPARE(TextOf("selectionPanel"), QString());
    QCOMPARE(TextOf("flossPanel"), QString());
}

void TestStatusLine::PanelsAreWrittenOnlyIfTheirTextChanges() {
    m_line->ShowPlace(12, 30);
    m_line->ShowFloss(QStringLiteral("310 - black"));
    PaintCounter counter;
    Find<QLabel>("placePanel")->installEventFilter(&counter);
    Find<QLabel>("flossPanel")->installEventFilter(&counter);
    QTRY_VERIFY(counter.painted >= 2);
    int quietRounds = 0;
    while (quietRounds < 10) {
        counter.painted = 0;
        QCoreApplication::processEvents();
        quietRounds = counter.painted == 0 ? quietRounds + 1 : 0;
    }
    m_line->ShowPlace(12, 30);
    m_line->ShowFloss(QStringLiteral("310 - black"));
    for (int round = 0; round < 10; ++round) {
        QCoreApplication::processEvents();
    }
    QCOMPARE(counter.painted, 0);
    m_line->ShowPlace(12, 31);
    QTRY_VERIFY(counter.painted > 0);
}

void TestStatusLine::LongTextsDoNotWidenTheWindow() {
    const int least = m_window->minimumSizeHint().width();
    m_line->ShowNote(QString(500, QLatin1Char('W')));
    m_line->ShowFloss(QString(500, QLatin1Char('W')));
    QCoreApplication::processEvents();
    QCOMPARE(m_window->minimumSizeHint().width(), least);
    QCOMPARE(m_window->width(), 900);
    QVERIFY(Find<ZoomPanel>("zoomPanel")->geometry().right() < m_line->width());
}

void TestStatusLine::StatusTipLeavesThePanels() {
    m_line->ShowPlace(12, 30);
    m_line->ShowFloss(QStringLiteral("310 - black"));
    QStatusTipEvent tip(QStringLiteral("Opens a pattern"));
    QCoreApplication::sendEvent(m_window.get(), &tip);
    QCOMPARE(m_line->currentMessage(), QStringLiteral("Opens a pattern"));
    QVERIFY(!Find<QLabel>("placePanel")->isVisible());
    QVERIFY(Find<QSlider>("zoomSlider")->isVisible());
    QStatusTipEvent noTip{QString()};
    QCoreApplication::sendEvent(m_window.get(), &noTip);
    QVERIFY(Find<QLabel>("placePanel")->isVisible());
    QCOMPARE(TextOf("placePanel"), QStringLiteral("12, 30"));
    QCOMPARE(TextOf("flossPanel"), QStringLiteral("310 - black"));
}

void TestStatusLine::StartWritesFiveBlanksAndTheText() {
    m_line->StartStatus("Applying Floss Palette", 250);
    QCOMPARE(TextOf("lblStatus"), QStringLiteral("     Applying Floss Palette"));
    QCOMPARE(TextOf("placePanel"), QStringLiteral("     Applying Floss Palette"));
    QCOMPARE(Find<QProgressBar>("pbStatus")->minimum(), 0);
    QCOMPARE(Find<QProgressBar>("pbStatus")->maximum(), 250);
    m_line->UpdateStatus(70);
    QCOMPARE(Find<QProgressBar>("pbStatus")->value(), 70);
    m_line->UpdateStatus(900);
    QCOMPARE(Find<QProgressBar>("pbStatus")->value(), 250);
    m_line->StopStatus();
}

void TestStatusLine::ShortWorkShowsNoProgress() {
    PaintCounter counter;
    Find<QProgressBar>("pbStatus")->installEventFilter(&counter);
    QElapsedTimer clock;
    clock.start();
    m_line->StartStatus("Short", 10);
    while (!clock.hasExpired(60)) {
        m_line->UpdateStatus(5);
        QVERIFY(m_line->MayGoOn());
    }
    m_line->StopStatus();
    // On a machine that has other things to do even this may take long enough to be felt.
    QVERIFY(counter.painted == 0 || clock.elapsed() >= FeltDelay.count());
}

void TestStatusLine::ProgressLiesOverTheFirstPanel() {
    QElapsedTimer beforeStart;
    beforeStart.start();
    m_line->StartStatus("Long", 10);
    QElapsedTimer sinceStart;
    sinceStart.start();
    // Not at once, and by the first question that is put after a fifth of a second, however long
    // the machine lets the work wait in between.
    qint64 asked = 0;
    while (!Find<QProgressBar>("pbStatus")->isVisible() && asked < 200) {
        asked = sinceStart.elapsed();
        QVERIFY(m_line->MayGoOn());
    }
    QVERIFY(Find<QProgressBar>("pbStatus")->isVisible());
    QVERIFY(beforeStart.elapsed() >= FeltDelay.count());
    const auto* task = Find<QLabel>("lblStatus");
    const auto* panel = Find<QLabel>("placePanel");
    const QRect overlay(task->parentWidget()->mapTo(m_line, QPoint()),
                        task->parentWidget()->size());
    QVERIFY(overlay.contains(panel->geometry()));
    QVERIFY(!overlay.intersects(Find<ZoomPanel>("zoomPanel")->geometry()));
    const auto* bar = Find<QProgressBar>("pbStatus");
    const auto* cancel = Find<QPushButton>("cmdCancel");
    QVERIFY(cancel->isVisible());
    QVERIFY(cancel->x() > bar->geometry().right());
    QVERIFY(m_line->rect().contains(QRect(cancel->mapTo(m_line, QPoint()), cancel->size())));
    m_line->StopStatus();
}

void TestStatusLine::UpdateAloneShowsProgress() {
    PaintCounter counter;
    auto* bar = Find<QProgressBar>("pbStatus");
    bar->installEventFilter(&counter);
    m_line->StartStatus("Work that never yields", 100);
    QElapsedTimer clock;
    clock.start();
    while (counter.painted == 0 && !clock.hasExpired(5000)) {
        m_line->UpdateStatus(50);
    }
    QVERIFY(counter.painted > 0);
    m_line->StopStatus();
}

void TestStatusLine::StopHidesAndClears() {
    m_line->StartStatus("Long", 10);
    QVERIFY(WorkUntilShown());
    m_line->StopStatus();
    QVERIFY(!Find<QProgressBar>("pbStatus")->isVisible());
    QCOMPARE(TextOf("lblStatus"), QString());
    QCOMPARE(TextOf("placePanel"), QString());
    m_line->UpdateStatus(5);
    QVERIFY(m_line->MayGoOn());
    QVERIFY(!Find<QProgressBar>("pbStatus")->isVisible());
}

void TestStatusLine::HiddenBarShowsWhileWorkRuns() {
    m_line->hide();
    m_line->StartStatus("Long", 10);
    QVERIFY(WorkUntilShown());
    QVERIFY(m_line->isVisible());
    m_line->StopStatus();
    QVERIFY(!m_line->isVisible());
}

void TestStatusLine::CancelEndsTheWork() {
    m_line->StartStatus("Long", 10);
    QVERIFY(WorkUntilShown());
    auto* cancel = Find<QPushButton>("cmdCancel");
    DoMeanwhile([&] {
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {},
                          cancel->mapTo(m_window.get(), cancel->rect().center()));
    });
    QElapsedTimer clock;
    clock.start();
    while (m_line->MayGoOn() && !clock.hasExpired(5000)) {
    }
    QVERIFY(!m_line->MayGoOn());
    QVERIFY(!cancel->isEnabled());
    m_line->StopStatus();
    m_line->StartStatus("The next", 10);
    QVERIFY(m_line->MayGoOn());
    QVERIFY(cancel->isEnabled());
    m_line->StopStatus();
}

void TestStatusLine::EscapeEndsTheWork() {
    m_line->StartStatus("Long", 10);
    QVERIFY(WorkUntilShown());
    DoMeanwhile([&] { QTest::keyClick(m_window->windowHandle(), Qt::Key_Escape); });
    QElapsedTimer clock;
    clock.start();
    while (m_line->MayGoOn() && !clock.hasExpired(5000)) {
    }
    QVERIFY(!m_line->MayGoOn());
    m_line->StopStatus();
}

void TestStatusLine::NoCommandBeginsWhileWorkRuns() {
    auto* command = qobject_cast<QPushButton*>(m_window->centralWidget());
    const QSignalSpy fired(command, &QPushButton::clicked);
    m_line->StartStatus("Long", 10);
    QVERIFY(WorkUntilShown());
    bool wasClosed = false;
    bool done = false;
    DoMeanwhile([&] {
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {},
                          command->geometry().center());
        wasClosed = m_window->close();
        done = true;
    });
    QElapsedTimer clock;
    clock.start();
    while (!done && !clock.hasExpired(5000)) {
        QVERIFY(m_line->MayGoOn());
    }
    QVERIFY(done);
    QVERIFY(!wasClosed);
    QCOMPARE(fired.count(), 0);
    m_line->StopStatus();
    QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {}, command->geometry().center());
    QCOMPARE(fired.count(), 1);
}

void TestStatusLine::TightLoopYieldsNowAndThen() {
    int yields = 0;
    std::function<void()> count = [&] {
        ++yields;
        DoMeanwhile(count);
    };
    m_line->StartStatus("Long", 10);
    DoMeanwhile(count);
    QElapsedTimer clock;
    clock.start();
    qint64 calls = 0;
    while (!clock.hasExpired(300)) {
        QVERIFY(m_line->MayGoOn());
        ++calls;
    }
    m_line->StopStatus();
    // A yield each 33 ms at most, whatever the machine does.
    QVERIFY(yields >= 1);
    QVERIFY2(yields <= clock.elapsed() / 33 + 1, qPrintable(QString::number(yields)));
    QVERIFY(calls > 1000);
    count = [] {};
    QCoreApplication::processEvents();
}

void TestStatusLine::ZoomScaleIsEven() {
    QCOMPARE(ZoomPanel::ZoomAt(0), 1);
    QCOMPARE(ZoomPanel::ZoomAt(100), 10);
    QCOMPARE(ZoomPanel::ZoomAt(200), 100);
    QCOMPARE(ZoomPanel::ZoomAt(203), 100);
    QCOMPARE(ZoomPanel::ZoomAt(230), 200);
    QCOMPARE(ZoomPanel::ZoomAt(300), 1000);
    for (int place = 1; place <= ZoomPanel::MostPlace; ++place) {
        QVERIFY(ZoomPanel::ZoomAt(place) >= ZoomPanel::ZoomAt(place - 1));
    }
    QCOMPARE(ZoomPanel::PlaceOf(0), 0);
    QCOMPARE(ZoomPanel::PlaceOf(5000), 300);
}

void TestStatusLine::SliderChoosesZoom() {
    QSignalSpy chosen(m_line, &StatusLine::ZoomChosen);
    auto* slider = Find<QSlider>("zoomSlider");
    m_line->ShowZoom(100);
    QTest::keyClick(slider, Qt::Key_PageUp);
    QCOMPARE(chosen.count(), 1);
    QCOMPARE(chosen.takeFirst().first().toInt(), 200);
    QCOMPARE(TextOf("zoomText"), QStringLiteral("200%"));
    QTest::keyClick(slider, Qt::Key_End);
    QCOMPARE(chosen.takeFirst().first().toInt(), 1000);
    QTest::keyClick(slider, Qt::Key_Home);
    QCOMPARE(chosen.takeFirst().first().toInt(), 1);
}

void TestStatusLine::ShowingZoomChoosesNothing() {
    const QSignalSpy chosen(m_line, &StatusLine::ZoomChosen);
    auto* slider = Find<QSlider>("zoomSlider");
    for (const int zoom : {1, 7, 55, 100, 101, 640, 1000}) {
        m_line->ShowZoom(zoom);
        QCOMPARE(TextOf("zoomText"), QString::number(zoom) + QLatin1Char('%'));
        QCOMPARE(slider->value(), ZoomPanel::PlaceOf(zoom));
    }
    QCOMPARE(chosen.count(), 0);
}

QTEST_MAIN(TestStatusLine)
#include "test_StatusLine.moc"
