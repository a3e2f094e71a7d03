// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QSignalSpy>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>

#include "grid/windows/PaletteStripKit.h"

using namespace zol;

class TestPaletteStripInput : public PaletteStripTest {
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUp(); }
    void cleanup() { TearDown(); }

    void LeftClickPicks();
    void DoubleClickAsksForTheEditor();
    void ArrowsScrollWhileHeld();
    void ArrowsEndAtTheEnds();
    void DragScrollsAndPicksNothing();
    void WheelScrolls();
    void FittingPaletteNeedsNoArrows();
    void CurrentFlossStaysVisible();
    void KeysMoveAndPick();
    void KeysMoveByColumns();
    void TypingFindsAFloss();
    void PauseBeginsANewNumber();
};

void TestPaletteStripInput::LeftClickPicks() {
    Fill(10);
    Show();
    const QSignalSpy picked(m_strip.get(), &PaletteStrip::FlossPicked);
    ClickInWindow(Qt::LeftButton, PlaceOf(4));
    QCOMPARE(picked.count(), 1);
    QCOMPARE(picked.first().first().toInt(), 4);
    ClickInWindow(Qt::RightButton, PlaceOf(5));
    QCOMPARE(picked.count(), 1);
    // It shows what it is told; whoever heard the pick decides.
    QCOMPARE(m_strip->Current(), 0);
}

void TestPaletteStripInput::DoubleClickAsksForTheEditor() {
    Fill(10);
    Show();
    const QSignalSpy picked(m_strip.get(), &PaletteStrip::FlossPicked);
    const QSignalSpy asked(m_strip.get(), &PaletteStrip::PaletteEditorRequested);
    connect(m_strip.get(), &PaletteStrip::FlossPicked, m_strip.get(), &PaletteStrip::SetCurrent);
    QTest::mouseDClick(m_strip->windowHandle(), Qt::LeftButton, {},
                       Swatches()->mapTo(m_strip.get(), PlaceOf(3)));
    QCOMPARE(asked.count(), 1);
    QCOMPARE(picked.count(), 1);
    QCOMPARE(picked.first().first().toInt(), 3);
}

void TestPaletteStripInput::ArrowsScrollWhileHeld() {
    Fill(200);
    Show();
    auto* right = Find<QToolButton>("cmdPaletteRight");
    auto* left = Find<QToolButton>("cmdPaletteLeft");
    const auto* timer = m_strip->findChild<QTimer*>(QStringLiteral("timPaletteScroll"));
    QVERIFY(timer != nullptr);
    QVERIFY(!left->isEnabled());
    QTest::mousePress(right, Qt::LeftButton);
    QCOMPARE(Offset(), 25);
    QVERIFY(timer->isActive());
    QTRY_VERIFY(Offset() >= 100);
    QTest::mouseRelease(right, Qt::LeftButton);
    QVERIFY(!timer->isActive());
    const int reached = Offset();
    QVERIFY(left->isEnabled());
    QTest::mouseClick(left, Qt::LeftButton);
    QCOMPARE(Offset(), reached - 25);
}

void TestPaletteStripInput::ArrowsEndAtTheEnds() {
    Fill(60);
    Show(800);
    const auto* timer = m_strip->findChild<QTimer*>(QStringLiteral("timPaletteScroll"));
    auto* right = Find<QToolButton>("cmdPaletteRight");
    QTest::mousePress(right, Qt::LeftButton);
    QTRY_VERIFY_WITH_TIMEOUT(!timer->isActive(), 20000);
    QCOMPARE(Offset(), Swatches()->width() - Find<QWidget>("picPaletteHolder")->width());
    QVERIFY(IsInView(60));
    QVERIFY(!right->isEnabled());
    QTest::mouseRelease(right, Qt::LeftButton);
}

void TestPaletteStripInput::DragScrollsAndPicksNothing() {
    Fill(200);
    Show();
    QWindow* window = m_strip->windowHandle();
    const QSignalSpy picked(m_strip.get(), &PaletteStrip::FlossPicked);
    const QPoint from = Find<QWidget>("picPaletteHolder")->mapTo(m_strip.get(), QPoint(400, 12));
    QTest::mousePress(window, Qt::LeftButton, {}, from);
    QTest::mouseMove(window, from - QPoint(60, 0));
    QTest::mouseMove(window, from - QPoint(150, 0));
    QCOMPARE(Offset(), 150);
    QTest::mouseMove(window, from - QPoint(100, 0));
    QCOMPARE(Offset(), 100);
    QTest::mouseRelease(window, Qt::LeftButton, {}, from - QPoint(100, 0));
    QCOMPARE(picked.count(), 0);
    QTest::mouseMove(window, from);
    QCOMPARE(Offset(), 100);
    // A hand that trembles still picks.
    QTest::mousePress(window, Qt::LeftButton, {}, from);
    QTest::mouseMove(window, from + QPoint(1, 1));
    QTest::mouseRelease(window, Qt::LeftButton, {}, from + QPoint(1, 1));
    QCOMPARE(picked.count(), 1);
    QCOMPARE(Offset(), 100);
}

void TestPaletteStripInput::WheelScrolls() {
    Fill(200);
    Show();
    const auto turn = [&](int x, int y) {
        const QPointF place(12, 12);
        QWheelEvent wheel(place, Swatches()->mapToGlobal(place), {}, QPoint(x, y), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(Swatches(), &wheel);
    };
    turn(0, -120);
    QCOMPARE(Offset(), 75);
    turn(-120, 0);
    QCOMPARE(Offset(), 150);
    turn(0, 120);
    QCOMPARE(Offset(), 75);
    turn(0, 2400);
    QCOMPARE(Offset(), 0);
    // A fine wheel loses nothing: 120 steps of one are a notch.
    for (int step = 0; step < 120; ++step) {
        turn(0, -1);
    }
    QVERIFY(std::abs(Offset() - 75) <= 1);
}

void TestPaletteStripInput::FittingPaletteNeedsNoArrows() {
    Fill(5);
    Show();
    QVERIFY(!Find<QToolButton>("cmdPaletteLeft")->isVisible());
    QVERIFY(!Find<QToolButton>("cmdPaletteRight")->isVisible());
    Fill(200);
    m_strip->Refresh();
    QVERIFY(Find<QToolButton>("cmdPaletteLeft")->isVisible());
    QVERIFY(Find<QToolButton>("cmdPaletteRight")->isVisible());
}

void TestPaletteStripInput::CurrentFlossStaysVisible() {
    Fill(200);
    Show();
    m_strip->SetCurrent(200);
    QVERIFY(IsInView(200));
    m_strip->SetCurrent(1);
    QVERIFY(IsInView(1));
    m_strip->SetCurrent(20);
    QVERIFY(IsInView(20));
    m_strip->resize(500, m_strip->height());
    QVERIFY(IsInView(20));
    m_pattern->GetPalette().Sort(SortManufacturerID);
    m_strip->Refresh();
    QVERIFY(IsInView(m_pattern->GetPalette().GetSortedPosition(20)));
}

void TestPaletteStripInput::KeysMoveAndPick() {
    Fill(200);
    Show();
    m_strip->SetCurrent(3);
    m_strip->setFocus();
    QVERIFY(Swatches()->hasFocus());
    const QSignalSpy picked(m_strip.get(), &PaletteStrip::FlossPicked);
    const auto lastPick = [&] { return picked.last().first().toInt(); };
    QWindow* window = m_strip->windowHandle();
    QTest::keyClick(window, Qt::Key_Right);
    QCOMPARE(picked.count(), 0);
    QTest::keyClick(window, Qt::Key_Return);
    QCOMPARE(lastPick(), 4);
    QTest::keyClick(window, Qt::Key_Left);
    QTest::keyClick(window, Qt::Key_Left);
    QTest::keyClick(window, Qt::Key_Space);
    QCOMPARE(lastPick(), 2);
    QTest::keyClick(window, Qt::Key_End);
    QVERIFY(IsInView(200));
    QTest::keyClick(window, Qt::Key_Enter);
    QCOMPARE(lastPick(), 200);
    QTest::keyClick(window, Qt::Key_Right);
    QTest::keyClick(window, Qt::Key_Enter);
    QCOMPARE(lastPick(), 200);
    QTest::keyClick(window, Qt::Key_Home);
    QVERIFY(IsInView(1));
    QTest::keyClick(window, Qt::Key_Enter);
    QCOMPARE(lastPick(), 1);
    QTest::keyClick(window, Qt::Key_PageDown);
    QVERIFY(!IsInView(1));
    QTest::keyClick(window, Qt::Key_PageUp);
    QVERIFY(IsInView(1));
}

void TestPaletteStripInput::KeysMoveByColumns() {
    Fill(8);
    m_strip->SetRows(3);
    Show();
    m_strip->SetCurrent(1);
    m_strip->setFocus();
    const QSignalSpy picked(m_strip.get(), &PaletteStrip::FlossPicked);
    const auto pickAfter = [&](Qt::Key key) {
        QTest::keyClick(Swatches(), key);
        QTest::keyClick(Swatches(), Qt::Key_Return);
        return picked.last().first().toInt();
    };
    QCOMPARE(pickAfter(Qt::Key_Down), 2);
    QCOMPARE(pickAfter(Qt::Key_Down), 3);
    QCOMPARE(pickAfter(Qt::Key_Right), 6);
    // The last column has two swatches.
    QCOMPARE(pickAfter(Qt::Key_Right), 8);
    QCOMPARE(pickAfter(Qt::Key_Right), 8);
    QCOMPARE(pickAfter(Qt::Key_Up), 7);
    QCOMPARE(pickAfter(Qt::Key_Left), 4);
    QCOMPARE(pickAfter(Qt::Key_Left), 1);
    QCOMPARE(pickAfter(Qt::Key_Left), 1);
}

void TestPaletteStripInput::TypingFindsAFloss() {
    Fill(200);
    m_pattern->GetPalette().SetFlossManuIDs(150, "White");
    Show();
    m_strip->setFocus();
    const QSignalSpy picked(m_strip.get(), &PaletteStrip::FlossPicked);
    QTest::keyClicks(Swatches(), QStringLiteral("840"));
    QVERIFY(IsInView(160));
    QTest::keyClick(Swatches(), Qt::Key_Return);
    QCOMPARE(picked.last().first().toInt(), 160);
    auto* pause = m_strip->findChild<QTimer*>(QStringLiteral("typingPause"));
    pause->setInterval(0);
    QTest::keyClicks(Swatches(), QStringLiteral("w"));
    QTRY_VERIFY(!pause->isActive());
    pause->setInterval(60000);
    QTest::keyClicks(Swatches(), QStringLiteral("wHi"));
    QTest::keyClick(Swatches(), Qt::Key_Return);
    QCOMPARE(picked.last().first().toInt(), 150);
    // A number that is not there leaves the place.
    QTest::keyClicks(Swatches(), QStringLiteral("5"));
    QTest::keyClick(Swatches(), Qt::Key_Return);
    QCOMPARE(picked.last().first().toInt(), 150);
}

void TestPaletteStripInput::PauseBeginsANewNumber() {
    Fill(200);
    Show();
    m_strip->setFocus();
    const QSignalSpy picked(m_strip.get(), &PaletteStrip::FlossPicked);
    auto* pause = m_strip->findChild<QTimer*>(QStringLiteral("typingPause"));
    QVERIFY(pause->interval() >= 500);
    QTest::keyClicks(Swatches(), QStringLiteral("85"));
    pause->start(0);
    QTRY_VERIFY(!pause->isActive());
    QTest::keyClicks(Swatches(), QStringLiteral("901"));
    QTest::keyClick(Swatches(), Qt::Key_Return);
    QCOMPARE(picked.last().first().toInt(), 99);
}

QTEST_MAIN(TestPaletteStripInput)
#include "test_PaletteStripInput.moc"
