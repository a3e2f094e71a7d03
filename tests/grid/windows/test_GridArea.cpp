// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPointingDevice>

#include "GridWindowKit.h"
#include "grid/GridViewport.h"

namespace zol {

class test_GridArea : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void scrollBarsRestWhenTheGridFits();
    void scrollBarsReachTheLastSquare_data();
    void scrollBarsReachTheLastSquare();
    void theBarsScrollTheGrid();
    void theCornerSquareIsTheOneUnderTheCorner_data();
    void theCornerSquareIsTheOneUnderTheCorner();
    void theVisibleRangeIsWhatTheHolderShows();
    void zoomOneShowsEverySquare();
    void squaresOfAnUnevenClothAreWide();
    void squaresShareTheirEdges();
    void toFitShowsAllAndRestsTheBars_data();
    void toFitShowsAllAndRestsTheBars();
    void aFrameFillsTheRoom();
    void anotherPatternBeginsAtItsFirstSquare();
    void rulersFollowTheGrid();
    void theWheelScrolls();
    void aTouchPadGathersWholeSquares();
    void ctrlAndWheelKeepTheSquareUnderThePointer();
    void theMiddleButtonDragsTheCloth();
    void spaceDragsTheCloth();
    void pinchingZoomsAtItsCentre();
};

void test_GridArea::scrollBarsRestWhenTheGridFits() {
    GridScene scene(20, 20);
    scene.Show();
    QVERIFY(!scene.Across().isEnabled());
    QVERIFY(!scene.Down().isEnabled());
    QCOMPARE(scene.Across().maximum(), 1);
    scene.Area->ScrollGrid(5, 5, true);
    QCOMPARE(scene.Area->FirstColumn(), 1);
    QCOMPARE(scene.Area->FirstRow(), 1);
    QCOMPARE(scene.Holder().width(), scene.Canvas().width() + 4);
    scene.Area->Zoom().ChangeZoom(400);
    QVERIFY(scene.Across().isEnabled());
    QVERIFY(scene.Down().isEnabled());
    scene.Area->resize(1400, 1300);
    GridScene::Settle();
    QVERIFY(!scene.Across().isEnabled());
    QVERIFY(!scene.Down().isEnabled());
}

void test_GridArea::scrollBarsReachTheLastSquare_data() {
    QTest::addColumn<int>("zoom");
    for (const int zoom : {1, 9, 50, 100, 133, 400, 600, 1000}) {
        QTest::addRow("%d percent", zoom) << zoom;
    }
}

void test_GridArea::scrollBarsReachTheLastSquare() {
    QFETCH(int, zoom);
    GridScene scene(999, 70);
    scene.Area->Zoom().ChangeZoom(zoom);
    scene.Show();
    if (!scene.Across().isEnabled()) {
        QVERIFY(scene.Canvas().width() <= scene.Holder().width() - 4);
        return;
    }
    // By the rule, or a square or two more where rounded squares end too soon.
    const int square = std::max(1, GridViewport::SquareTwips(zoom, 14));
    const int room = (scene.Holder().width() - 4) * 15;
    const double told = (GridViewport::GetGridWidthTwips(999, 14, zoom) - room) / double(square);
    QVERIFY(scene.Across().maximum() >= int(std::nearbyint(told + 1)) ||
            scene.Across().maximum() == 999);
    QVERIFY(scene.Across().maximum() <= told + 4 + 999 * 0.5 / square);
    scene.Across().setValue(scene.Across().maximum());
    GridScene::Settle();
    QVERIFY(scene.Canvas().geometry().right() < scene.Holder().width());
    QCOMPARE(scene.Area->GetVisibleRange().Right, 999);
}

void test_GridArea::theBarsScrollTheGrid() {
    GridScene scene;
    scene.Area->Zoom().ChangeZoom(300);
    scene.Show();
    int scrolled = 0;
    connect(scene.Area.get(), &GridArea::Scrolled, this, [&] { ++scrolled; });
    scene.Across().setValue(6);
    QCOMPARE(scene.Area->FirstColumn(), 6);
    QCOMPARE(scene.Area->FirstRow(), 1);
    scene.Down().triggerAction(QAbstractSlider::SliderSingleStepAdd);
    QCOMPARE(scene.Area->FirstRow(), 2);
    QCOMPARE(scene.Area->FirstColumn(), 6);
    QCOMPARE(scrolled, 2);
    // Beyond the end is the end; the same place once more is nothing.
    scene.Area->ScrollGrid(5000, 5000, false);
    QCOMPARE(scene.Across().value(), scene.Across().maximum());
    QCOMPARE(scene.Down().value(), scene.Down().maximum());
    scene.Area->ScrollGrid(5000, 5000, false);
    QCOMPARE(scrolled, 3);
}

void test_GridArea::theCornerSquareIsTheOneUnderTheCorner_data() {
    QTest::addColumn<int>("zoom");
    for (const int zoom : {33, 77, 100, 237, 600}) {
        QTest::addRow("%d percent", zoom) << zoom;
    }
}

void test_GridArea::theCornerSquareIsTheOneUnderTheCorner() {
    QFETCH(int, zoom);
    GridScene scene(999, 40);
    if (scene.Area->devicePixelRatioF() != 1 && zoom < 100) {
        QSKIP("a window's pixel holds more than one square's edge");
    }
    scene.Area->Zoom().ChangeZoom(zoom);
    scene.Show();
    int column = 0;
    connect(scene.Area.get(), &GridArea::Moved, this,
            [&](const PointerEvent& event) { column = event.At.Column; });
    for (int first = 1; first <= scene.Across().maximum(); ++first) {
        scene.Area->ScrollGrid(first, 1, false);
        // The first whole window pixel of the holder; at a broken ratio the one behind it.
        const double ratio = scene.Area->devicePixelRatioF();
        const int inside = ratio == 1 ? 0 : 1;
        const QPointF place = QPointF(inside, 5) - scene.Canvas().pos();
        QMouseEvent event(QEvent::MouseMove, place, scene.Canvas().mapToGlobal(place), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&scene.Canvas(), &event);
        QCOMPARE(column, first);
        QCOMPARE(scene.Area->GetVisibleRange().Left, first);
    }
}

void test_GridArea::theVisibleRangeIsWhatTheHolderShows() {
    GridScene scene;
    scene.Area->Zoom().ChangeZoom(300);
    scene.Show();
    scene.Area->ScrollGrid(9, 4, true);
    const SquareRect range = scene.Area->GetVisibleRange();
    const GridGeometry& geometry = scene.Area->Geometry();
    const int width = int(scene.Holder().width() * geometry.PixelRatio());
    QCOMPARE(range.Left, 9);
    QCOMPARE(range.Top, 4);
    QVERIFY(geometry.LeftOf(range.Right) - geometry.LeftOf(9) < width + 2);
    QVERIFY(geometry.LeftOf(range.Right + 1) - geometry.LeftOf(9) >= width - 2);
}

void test_GridArea::zoomOneShowsEverySquare() {
    GridScene scene(999, 999);
    scene.Area->Zoom().ChangeZoom(1);
    scene.Show();
    QCOMPARE(scene.Area->GetVisibleRange(), (SquareRect{1, 1, 999, 999}));
    QVERIFY(!scene.Across().isEnabled());
    std::vector<PointerEvent> told;
    connect(scene.Area.get(), &GridArea::Moved, this,
            [&](const PointerEvent& event) { told.push_back(event); });
    int last = 0;
    for (int x = 0; x < scene.Canvas().width() - 1; ++x) {
        QMouseEvent event(QEvent::MouseMove, QPointF(x, 0), QPointF(), Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(&scene.Canvas(), &event);
        QVERIFY(told.back().At.Column > last);
        last = told.back().At.Column;
    }
    QVERIFY(last > 900 && last <= 999);
}

void test_GridArea::squaresOfAnUnevenClothAreWide() {
    GridScene scene(70, 70, 14, 18);
    scene.Area->Zoom().ChangeZoom(200);
    QCOMPARE(scene.Area->SquareSize().width() * 14, scene.Area->SquareSize().height() * 18);
    QVERIFY(scene.Area->SquareSize().width() > scene.Area->SquareSize().height());
    QCOMPARE(scene.Canvas().width(), 960);
    QVERIFY(std::abs(scene.Canvas().height() - 747) <= 1);
}

void test_GridArea::squaresShareTheirEdges() {
    GridScene scene;
    scene.Area->Zoom().ChangeZoom(137);
    const GridGeometry& geometry = scene.Area->Geometry();
    for (int column = 1; column < 100; ++column) {
        QCOMPARE(geometry.PixelsOf({column, 1, column, 1}).right() + 1,
                 geometry.PixelsOf({column + 1, 1, column + 1, 1}).left());
    }
}

void test_GridArea::toFitShowsAllAndRestsTheBars_data() {
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("least");
    QTest::newRow("one square") << 1 << 1 << 1000;
    QTest::newRow("small") << 10 << 10 << 101;
    QTest::newRow("wide") << 500 << 20 << 1;
    QTest::newRow("high") << 20 << 500 << 1;
    QTest::newRow("large") << 999 << 999 << 1;
}

void test_GridArea::toFitShowsAllAndRestsTheBars() {
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, least);
    GridScene scene(width, height);
    scene.Show();
    scene.Area->Zoom().ZoomToFit();
    QTRY_COMPARE(scene.Area->Zoom().Box()->currentText(), QStringLiteral("To Fit"));
    QTRY_VERIFY(!scene.Area->findChild<QTimer*>(QStringLiteral("timResize"))->isActive());
    QVERIFY(scene.Area->Zoom().GridZoom() >= least);
    QVERIFY(scene.Area->Zoom().GridZoom() <= 1000);
    QCOMPARE(scene.Area->GetVisibleRange(), (SquareRect{1, 1, width, height}));
    QVERIFY(!scene.Across().isEnabled());
    QVERIFY(!scene.Down().isEnabled());
}

void test_GridArea::aFrameFillsTheRoom() {
    GridScene scene;
    scene.Show();
    const SquareRect frame{21, 31, 40, 44};
    scene.Area->ZoomToFrame(frame);
    const int zoom = scene.Area->Zoom().GridZoom();
    QCOMPARE(zoom, scene.Area->ZoomToRect(frame));
    QCOMPARE(scene.Area->FirstColumn(), 21);
    QCOMPARE(scene.Area->FirstRow(), 31);
    const SquareRect range = scene.Area->GetVisibleRange();
    QVERIFY(range.Right >= 40 && range.Bottom >= 44);
    // The room by the rule: between holder and bars, less 50 twips.
    const double across = (scene.Down().x() - scene.Holder().x()) * 15 - 50;
    const double down = (scene.Across().y() - scene.Holder().y()) * 15 - 50;
    QCOMPARE(zoom, int(std::floor(std::min(across / (20 / 14.0 * 1440), down / (14 / 14.0 * 1440)) *
                                  100)));
}

void test_GridArea::anotherPatternBeginsAtItsFirstSquare() {
    GridScene scene;
    scene.Area->Zoom().ChangeZoom(400);
    scene.Show();
    scene.Area->ScrollGrid(10, 10, false);
    Pattern other(scene.Context);
    other.Initialize(300, 300, 14, 14);
    scene.Area->SetPattern(&other);
    QCOMPARE(scene.Across().value(), 1);
    QCOMPARE(scene.Down().value(), 1);
    QCOMPARE(scene.Area->GetVisibleRange().Left, 1);
    QVERIFY(std::abs(scene.Canvas().width() - 300 * 1440 / 14.0 * 4 / 15) <= 1);
}

void test_GridArea::rulersFollowTheGrid() {
    GridScene scene;
    scene.Area->Zoom().ChangeZoom(300);
    scene.Show();
    auto* across = scene.Area->findChild<QWidget*>(QStringLiteral("picBigHRuler"));
    auto* down = scene.Area->findChild<QWidget*>(QStringLiteral("picBigVRuler"));
    scene.Area->ScrollGrid(7, 5, false);
    QCOMPARE(across->x(), scene.Canvas().x());
    QCOMPARE(down->y(), scene.Canvas().y());
    QCOMPARE(across->parentWidget()->x(), scene.Holder().x());
    QVERIFY(across->isVisible() && down->isVisible());
    QCOMPARE(across->height(), 275 / 15);
    const QPoint with = scene.Holder().pos();
    scene.Area->SetRulers(false, true);
    QVERIFY(!across->isVisible() && !down->isVisible());
    QVERIFY(scene.Holder().x() < with.x() && scene.Holder().y() < with.y());
}

void test_GridArea::theWheelScrolls() {
    GridScene scene;
    scene.Area->Zoom().ChangeZoom(400);
    scene.Show();
    const QPoint place(200, 200);
    scene.Wheel({0, -120}, {}, place);
    const int rows = scene.Area->FirstRow() - 1;
    QCOMPARE(rows, QApplication::wheelScrollLines());
    QCOMPARE(scene.Area->FirstColumn(), 1);
    scene.Wheel({0, -120}, Qt::ShiftModifier, place);
    QCOMPARE(scene.Area->FirstColumn() - 1, rows);
    QCOMPARE(scene.Area->FirstRow() - 1, rows);
    scene.Wheel({0, 120}, {}, place);
    QCOMPARE(scene.Area->FirstRow(), 1);
    scene.Wheel({0, 120}, {}, place);
    QCOMPARE(scene.Area->FirstRow(), 1);
    // Over the rulers too.
    scene.Wheel({0, -120}, {}, QPoint(200, 5));
    QCOMPARE(scene.Area->FirstRow() - 1, rows);
}

void test_GridArea::aTouchPadGathersWholeSquares() {
    GridScene scene;
    scene.Area->Zoom().ChangeZoom(350); // 24 pixels a square
    scene.Show();
    const QPoint place(200, 200);
    scene.Wheel({0, -10}, {}, place, {0, -10}, Qt::ScrollBegin);
    scene.Wheel({0, -10}, {}, place, {0, -10}, Qt::ScrollUpdate);
    QCOMPARE(scene.Area->FirstRow(), 1);
    scene.Wheel({0, -10}, {}, place, {0, -10}, Qt::ScrollUpdate);
    QCOMPARE(scene.Area->FirstRow(), 2);
    scene.Wheel({-30, -20}, {}, place, {-30, -20}, Qt::ScrollUpdate);
    QCOMPARE(scene.Area->FirstRow(), 3);
    QCOMPARE(scene.Area->FirstColumn(), 2);
}

void test_GridArea::ctrlAndWheelKeepTheSquareUnderThePointer() {
    GridScene scene(300, 300);
    scene.Area->Zoom().ChangeZoom(200);
    scene.Show();
    scene.Area->ScrollGrid(100, 120, true);
    const QPoint place(231, 187);
    const auto under = [&] {
        const QPointF inCanvas = scene.Canvas().mapFrom(scene.Area.get(), place);
        const GridSpot spot = scene.Area->Geometry().SpotAt(scene.Canvas().DevicePixelAt(inCanvas));
        return SquarePos{spot.Column, spot.Row};
    };
    const SquarePos before = under();
    for (const int zoom : {300, 400, 500, 600, 700}) {
        scene.Wheel({0, 120}, Qt::ControlModifier, place);
        QCOMPARE(scene.Area->Zoom().GridZoom(), zoom);
        QCOMPARE(under(), before);
    }
    for (const int zoom : {600, 500, 400, 300, 200, 100, 90, 80}) {
        scene.Wheel({0, -120}, Qt::ControlModifier, place);
        QCOMPARE(scene.Area->Zoom().GridZoom(), zoom);
        QCOMPARE(under(), before);
    }
    QCOMPARE(scene.Area->Zoom().Box()->currentText(), QStringLiteral("80%"));
}

void test_GridArea::theMiddleButtonDragsTheCloth() {
    GridScene scene;
    scene.Area->Zoom().ChangeZoom(350);
    scene.Show();
    scene.Area->ScrollGrid(10, 10, true);
    int presses = 0;
    connect(scene.Area.get(), &GridArea::Pressed, this, [&] { ++presses; });
    const auto send = [&](QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held,
                          QPoint inArea) {
        const QPointF place = scene.Canvas().mapFrom(scene.Area.get(), inArea);
        QMouseEvent event(type, place, scene.Area->mapToGlobal(inArea), button, held,
                          Qt::NoModifier);
        QApplication::sendEvent(&scene.Canvas(), &event);
    };
    send(QEvent::MouseButtonPress, Qt::MiddleButton, Qt::MiddleButton, {200, 200});
    QCOMPARE(scene.Canvas().cursor().shape(), Qt::ClosedHandCursor);
    send(QEvent::MouseMove, Qt::NoButton, Qt::MiddleButton, {200 + 48, 200 - 72});
    QCOMPARE(scene.Area->FirstColumn(), 8);
    QCOMPARE(scene.Area->FirstRow(), 13);
    send(QEvent::MouseButtonRelease, Qt::MiddleButton, Qt::NoButton, {248, 128});
    QCOMPARE(scene.Canvas().cursor().shape(), Qt::ArrowCursor);
    send(QEvent::MouseMove, Qt::NoButton, Qt::NoButton, {100, 100});
    QCOMPARE(scene.Area->FirstColumn(), 8);
    QCOMPARE(presses, 0);
}

void test_GridArea::spaceDragsTheCloth() {
    GridScene scene;
    scene.Area->Zoom().ChangeZoom(350);
    scene.Show();
    int presses = 0;
    connect(scene.Area.get(), &GridArea::Pressed, this, [&] { ++presses; });
    scene.Canvas().setFocus();
    QTest::keyPress(&scene.Canvas(), Qt::Key_Space);
    QCOMPARE(scene.Canvas().cursor().shape(), Qt::OpenHandCursor);
    QTest::mousePress(&scene.Canvas(), Qt::LeftButton, {}, QPoint(240, 240));
    QTest::mouseMove(&scene.Canvas(), QPoint(240 - 48, 240));
    QCOMPARE(scene.Area->FirstColumn(), 3);
    QTest::mouseRelease(&scene.Canvas(), Qt::LeftButton, {}, QPoint(240, 240));
    QTest::keyRelease(&scene.Canvas(), Qt::Key_Space);
    QCOMPARE(scene.Canvas().cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(presses, 0);
    QTest::mouseClick(&scene.Canvas(), Qt::LeftButton, {}, QPoint(240, 240));
    QCOMPARE(presses, 1);
}

void test_GridArea::pinchingZoomsAtItsCentre() {
    GridScene scene(300, 300);
    scene.Area->Zoom().ChangeZoom(200);
    scene.Show();
    scene.Area->ScrollGrid(50, 50, true);
    const QPointF place = scene.Canvas().mapFrom(scene.Area.get(), QPoint(240, 180));
    const auto under = [&] {
        const QPointF inCanvas = scene.Canvas().mapFrom(scene.Area.get(), QPoint(240, 180));
        return scene.Area->Geometry().SpotAt(scene.Canvas().DevicePixelAt(inCanvas)).Column;
    };
    const int before = under();
    const QPointF global = scene.Canvas().mapToGlobal(place);
    const auto pinch = [&](Qt::NativeGestureType type, double value) {
        const QPointF local = scene.Canvas().mapFromGlobal(global);
        QNativeGestureEvent event(type, QPointingDevice::primaryPointingDevice(), 2, local, local,
                                  global, value, QPointF());
        QApplication::sendEvent(&scene.Canvas(), &event);
    };
    pinch(Qt::BeginNativeGesture, 0);
    for (int i = 0; i < 100; ++i) {
        // Each step alone is less than a percent of the zoom.
        pinch(Qt::ZoomNativeGesture, 0.002);
    }
    pinch(Qt::EndNativeGesture, 0);
    const int zoom = scene.Area->Zoom().GridZoom();
    QVERIFY2(zoom >= 240 && zoom <= 248, qPrintable(QString::number(zoom)));
    QVERIFY(std::abs(under() - before) <= 1);
}

} // namespace zol

QTEST_MAIN(zol::test_GridArea)
#include "test_GridArea.moc"
