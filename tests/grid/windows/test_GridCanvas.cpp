// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QMouseEvent>

#include <string>

#include "GridWindowKit.h"
#include "grid/RowsAndColumns.h"

namespace zol {

class test_GridCanvas : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thePixelsOnTheScreenAreThePainters_data();
    void thePixelsOnTheScreenAreThePainters();
    void scrollingPaintsOnlyTheStripThatComesIn();
    void scrolledPixelsAreThePainters();
    void aStrokePaintsItsSquaresOnly_data();
    void aStrokePaintsItsSquaresOnly();
    void stitchesStayInsideOfTheirSquares_data();
    void stitchesStayInsideOfTheirSquares();
    void aKnotTakenAwayLeavesNothing();
    void heldPaintsAreGatheredAndComeAtTheEnd();
    void anOverlayPaintsWhereItLiesAndLeavesNothing();
    void pressesTellSquareButtonAndKeys();
    void aMoveTellsTheHeldButton();
    void aSecondButtonIsLeftOut();
    void quickClicksAreTwoStrokes();
    void regionsHaveTheHoleFrom33To34();
    void halfWayBelongsToTheUpperLeftCorner();
    void aReleaseOutsideTellsASquareOutside();
    void escapeIsTold();
    void cursorsShow();
    void aPatternWithoutSquaresShowsNothing();
};

void test_GridCanvas::thePixelsOnTheScreenAreThePainters_data() {
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("style");
    for (const int zoom : {1, 7, 33, 50, 100, 137, 250, 600, 1000}) {
        QTest::addRow("%d percent", zoom) << zoom << int(ShowColorSquares);
    }
    for (int style = ShowColorSquares; style <= ShowVStitches; ++style) {
        QTest::addRow("style %d", style) << 180 << style;
    }
}

void test_GridCanvas::thePixelsOnTheScreenAreThePainters() {
    QFETCH(int, zoom);
    QFETCH(int, style);
    GridScene scene;
    scene.FillWithStitches();
    PaintOptions options = scene.Canvas().GetPaintOptions();
    options.StitchStyle = style;
    scene.Area->SetPaintOptions(options);
    scene.Area->Zoom().ChangeZoom(zoom);
    scene.Show();
    const QImage shown = scene.OnScreen();
    QVERIFY(!shown.isNull());
    QCOMPARE(GridScene::Differing(shown, scene.Fresh()), 0);
}

void test_GridCanvas::scrollingPaintsOnlyTheStripThatComesIn() {
    GridScene scene;
    scene.FillWithStitches();
    scene.Area->Zoom().ChangeZoom(350); // 24 window pixels a square
    scene.Show();
    PaintWatch watch(scene.Canvas());
    const int before = scene.Canvas().x();
    scene.Area->ScrollGrid(2, 1, false);
    GridScene::Settle();
    const int way = before - scene.Canvas().x();
    const QRect shown = scene.Shown();
    QCOMPARE(way, 24);
    QVERIFY(!watch.Painted.isEmpty());
    const QRect strip(shown.right() + 1 - way, shown.top(), way, shown.height());
    QVERIFY2(QRegion(watch.Painted).subtracted(strip).isEmpty(), "more than the strip was painted");
    QCOMPARE(GridScene::Differing(scene.OnScreen(), scene.Fresh()), 0);
}

void test_GridCanvas::scrolledPixelsAreThePainters() {
    GridScene scene;
    scene.FillWithStitches();
    for (int style = LineStraight; style <= LinePlus; ++style) {
        scene.AddLine(3 + style * 3, 4, 1, 3 + style * 3, 60, 9, style);
        scene.AddLine(2, 6 + style * 4, 5, 70, 6 + style * 4, 5, style);
    }
    scene.Area->Zoom().ChangeZoom(233);
    scene.Show();
    for (const SquarePos to : {SquarePos{4, 1}, {4, 9}, {17, 12}, {16, 11}, {30, 30}, {29, 31}}) {
        scene.Area->ScrollGrid(to.X, to.Y, false);
        GridScene::Settle();
        QCOMPARE(scene.Area->FirstColumn(), to.X);
        QCOMPARE(GridScene::Differing(scene.OnScreen(), scene.Fresh()), 0);
    }
}

void test_GridCanvas::aStrokePaintsItsSquaresOnly_data() {
    QTest::addColumn<int>("zoom");
    for (const int zoom : {20, 33, 100, 200, 250, 600}) {
        QTest::addRow("%d percent", zoom) << zoom;
    }
}

void test_GridCanvas::aStrokePaintsItsSquaresOnly() {
    QFETCH(int, zoom);
    GridScene scene;
    scene.FillWithStitches();
    scene.AddLine(5, 5, 5, 30, 5, 5, LineTracks);
    scene.Area->Zoom().ChangeZoom(zoom);
    scene.Show();
    PaintWatch watch(scene.Canvas());
    const double ratio = scene.Area->Geometry().PixelRatio();
    const int more = ratio == std::floor(ratio) ? 0 : 1;
    QRegion own;
    for (int i = 0; i < 10; ++i) {
        const int x = 6 + i;
        const int y = 4 + i % 3;
        scene.Design.SetStitch(x, y, StitchWhole, 1, 5);
        scene.Area->RedrawStitches({x, y, x, y});
        const QRect pixels = scene.Area->Geometry().PixelsOf({x, y, x, y});
        own += QRectF(QPointF(pixels.topLeft()) / ratio, QSizeF(pixels.size()) / ratio)
                   .toAlignedRect()
                   .adjusted(-more, -more, more, more);
    }
    GridScene::Settle();
    QCOMPARE(watch.Count, 1);
    QVERIFY(QRegion(watch.Painted).subtracted(own).isEmpty());
    QCOMPARE(GridScene::Differing(scene.OnScreen(), scene.Fresh()), 0);
}

void test_GridCanvas::stitchesStayInsideOfTheirSquares_data() {
    QTest::addColumn<int>("zoom");
    QTest::addColumn<int>("style");
    for (int style = ShowColorSquares; style <= ShowVStitches; ++style) {
        for (const int zoom : {25, 80, 137, 233, 600}) {
            QTest::addRow("style %d, %d percent", style, zoom) << zoom << style;
        }
    }
}

/// Every kind comes to a square between others, one more joins it, and all go again.
void test_GridCanvas::stitchesStayInsideOfTheirSquares() {
    QFETCH(int, zoom);
    QFETCH(int, style);
    GridScene scene;
    scene.FillWithStitches();
    scene.AddLine(1, 3, 1, 40, 3, 1, LinePlus);
    PaintOptions options = scene.Canvas().GetPaintOptions();
    options.StitchStyle = style;
    scene.Area->SetPaintOptions(options);
    scene.Area->Zoom().ChangeZoom(zoom);
    scene.Show();
    const auto differing = [&](int x, int y) {
        scene.Area->RedrawStitches({x, y, x, y});
        GridScene::Settle();
        return GridScene::Differing(scene.OnScreen(), scene.Fresh());
    };
    for (int kind = StitchWhole; kind <= StitchLRQ; ++kind) {
        if (kind == StitchFKnot) {
            continue;
        }
        const auto context = std::to_string(kind);
        const int x = kind % 2 == 0 ? 2 : 4;
        const int y = 2 + kind % 3;
        scene.Design.SetStitch(x, y, kind, 7, 5);
        QVERIFY2(differing(x, y) == 0, context.c_str());
        scene.Design.SetStitch(x, y, StitchULQ, 2, 1);
        QVERIFY2(differing(x, y) == 0, context.c_str());
        scene.Design.DeleteStitch(x, y, kind);
        QVERIFY2(differing(x, y) == 0, context.c_str());
    }
}

void test_GridCanvas::aKnotTakenAwayLeavesNothing() {
    GridScene scene;
    scene.Area->Zoom().ChangeZoom(300);
    for (int position = 1; position <= 9; ++position) {
        scene.Design.SetStitch(2 + 2 * position, 4, StitchFKnot, 2, position);
    }
    scene.Show();
    for (int position = 1; position <= 9; ++position) {
        const int column = 2 + 2 * position;
        scene.Design.DeleteStitch(column, 4, Pattern::Everything);
        scene.Area->RedrawSquares({column, 4, column, 4});
    }
    GridScene::Settle();
    QCOMPARE(GridScene::Differing(scene.OnScreen(), scene.Fresh()), 0);
}

void test_GridCanvas::heldPaintsAreGatheredAndComeAtTheEnd() {
    GridScene scene;
    scene.Area->Zoom().ChangeZoom(200);
    scene.Show();
    PaintWatch watch(scene.Canvas());
    scene.Area->HoldGridPaint(true);
    QVERIFY(scene.Canvas().DirtyRect().IsEmpty());
    scene.Area->RedrawSquares({3, 4, 3, 4});
    scene.Area->RedrawSquares({9, 2, 12, 2});
    GridScene::Settle();
    QCOMPARE(watch.Count, 0);
    QCOMPARE(scene.Canvas().DirtyRect(), (SquareRect{3, 2, 12, 4}));
    scene.Area->HoldGridPaint(false);
    QVERIFY(scene.Canvas().DirtyRect().IsEmpty());
    GridScene::Settle();
    QCOMPARE(watch.Count, 1);
    const QRect pixels = scene.Area->Geometry().PixelsOf({3, 2, 12, 4});
    const double ratio = scene.Area->Geometry().PixelRatio();
    const QRect inside(
        QPoint(int(std::ceil(pixels.left() / ratio)), int(std::ceil(pixels.top() / ratio))),
        QPoint(int(pixels.right() / ratio) - 1, int(pixels.bottom() / ratio) - 1));
    QVERIFY(QRegion(inside).subtracted(watch.Painted).isEmpty());
    // A hold without changes paints nothing.
    watch.Forget();
    scene.Area->HoldGridPaint(true);
    scene.Area->HoldGridPaint(false);
    GridScene::Settle();
    QCOMPARE(watch.Count, 0);
}

void test_GridCanvas::anOverlayPaintsWhereItLiesAndLeavesNothing() {
    GridScene scene;
    scene.FillWithStitches();
    scene.Area->Zoom().ChangeZoom(200);
    scene.Show();
    const QImage bare = scene.OnScreen();
    PaintWatch watch(scene.Canvas());
    Overlay overlay;
    overlay.Frame = SquareRect{5, 5, 12, 9};
    scene.Area->SetOverlay(overlay);
    GridScene::Settle();
    QVERIFY(watch.Count > 0);
    QVERIFY(GridScene::Differing(scene.OnScreen(), bare) > 20);
    const QPoint inside = scene.MiddleOf(8, 7);
    QVERIFY2(!watch.Painted.contains(inside), "what a frame surrounds stays");

    watch.Forget();
    overlay.Frame.reset();
    overlay.RubberBand = OverlayLine{{20, 20}, {31, 26}};
    overlay.Mirror = OverlayAxis{MirrorVertical, {15, 10}};
    scene.Area->SetOverlay(overlay);
    GridScene::Settle();
    QVERIFY(watch.Count > 0);
    QVERIFY(!watch.Painted.contains(inside));
    watch.Forget();
    scene.Area->SetOverlay(overlay);
    GridScene::Settle();
    QCOMPARE(watch.Count, 0);
    scene.Area->SetOverlay({});
    GridScene::Settle();
    QCOMPARE(GridScene::Differing(scene.OnScreen(), bare), 0);
}

void test_GridCanvas::pressesTellSquareButtonAndKeys() {
    GridScene scene;
    scene.Area->Zoom().ChangeZoom(300);
    scene.Show();
    std::vector<PointerEvent> pressed;
    std::vector<PointerEvent> released;
    connect(scene.Area.get(), &GridArea::Pressed, this,
            [&](const PointerEvent& event) { pressed.push_back(event); });
    connect(scene.Area.get(), &GridArea::Released, this,
            [&](const PointerEvent& event) { released.push_back(event); });
    QTest::mouseClick(&scene.Canvas(), Qt::LeftButton, Qt::ShiftModifier, scene.MiddleOf(7, 3));
    QTest::mouseClick(&scene.Canvas(), Qt::RightButton, Qt::ControlModifier, scene.MiddleOf(2, 9));
    QCOMPARE(pressed.size(), std::size_t{2});
    QCOMPARE(released.size(), std::size_t{2});
    QCOMPARE(pressed[0].At.Column, 7);
    QCOMPARE(pressed[0].At.Row, 3);
    QCOMPARE(pressed[0].At.Position, 5);
    QVERIFY(pressed[0].Button == PointerButton::Left);
    QVERIFY(pressed[0].Shift && !pressed[0].Ctrl);
    QCOMPARE(pressed[1].At.Column, 2);
    QCOMPARE(pressed[1].At.Row, 9);
    QVERIFY(pressed[1].Button == PointerButton::Right);
    QVERIFY(!pressed[1].Shift && pressed[1].Ctrl);
    QVERIFY(released[1].Button == PointerButton::Right);
}

void test_GridCanvas::aMoveTellsTheHeldButton() {
    GridScene scene;
    scene.Area->Zoom().ChangeZoom(300);
    scene.Show();
    std::vector<PointerEvent> moved;
    connect(scene.Area.get(), &GridArea::Moved, this,
            [&](const PointerEvent& event) { moved.push_back(event); });
    QTest::mouseMove(&scene.Canvas(), scene.MiddleOf(3, 3));
    QTest::mousePress(&scene.Canvas(), Qt::RightButton, {}, scene.MiddleOf(3, 3));
    QTest::mouseMove(&scene.Canvas(), scene.MiddleOf(5, 6));
    QTest::mouseRelease(&scene.Canvas(), Qt::RightButton, {}, scene.MiddleOf(5, 6));
    QTest::mouseMove(&scene.Canvas(), scene.MiddleOf(8, 8));
    QVERIFY(moved.size() >= 3);
    QVERIFY(moved.front().Button == PointerButton::None);
    QVERIFY(moved.back().Button == PointerButton::None);
    QCOMPARE(moved.back().At.Column, 8);
    const bool dragged = std::any_of(moved.begin(), moved.end(), [](const PointerEvent& event) {
        return event.Button == PointerButton::Right && event.At.Column == 5 && event.At.Row == 6;
    });
    QVERIFY(dragged);
}

void test_GridCanvas::aSecondButtonIsLeftOut() {
    GridScene scene;
    scene.Show();
    int presses = 0;
    int releases = 0;
    connect(scene.Area.get(), &GridArea::Pressed, this, [&] { ++presses; });
    connect(scene.Area.get(), &GridArea::Released, this, [&] { ++releases; });
    const QPoint place = scene.MiddleOf(5, 5);
    QTest::mousePress(&scene.Canvas(), Qt::LeftButton, {}, place);
    QTest::mousePress(&scene.Canvas(), Qt::RightButton, {}, place);
    QTest::mouseRelease(&scene.Canvas(), Qt::RightButton, {}, place);
    QCOMPARE(presses, 1);
    QCOMPARE(releases, 0);
    QTest::mouseRelease(&scene.Canvas(), Qt::LeftButton, {}, place);
    QCOMPARE(releases, 1);
}

void test_GridCanvas::quickClicksAreTwoStrokes() {
    GridScene scene;
    scene.Show();
    int presses = 0;
    connect(scene.Area.get(), &GridArea::Pressed, this, [&] { ++presses; });
    QTest::mouseClick(&scene.Canvas(), Qt::LeftButton, {}, scene.MiddleOf(5, 5));
    QTest::mouseDClick(&scene.Canvas(), Qt::LeftButton, {}, scene.MiddleOf(5, 5));
    QVERIFY(presses >= 2);
}

/// What a press at a part of a square's width and height tells. Squares are large enough for the
/// part to fall on a pixel.
static PointerEvent PressAt(GridScene& scene, double across, double down) {
    PointerEvent told;
    const auto connection = QObject::connect(scene.Area.get(), &GridArea::Pressed, scene.Area.get(),
                                             [&](const PointerEvent& event) { told = event; });
    const GridGeometry& geometry = scene.Area->Geometry();
    const QRect square = geometry.PixelsOf({2, 2, 2, 2});
    const QPointF corner = scene.Canvas().DevicePixelAt(QPointF(0, 0));
    const QPointF place =
        (QPointF(square.left() + across * square.width(), square.top() + down * square.height()) -
         corner) /
        geometry.PixelRatio();
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, place, scene.Canvas().mapToGlobal(place), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&scene.Canvas(), &event);
    }
    QObject::disconnect(connection);
    return told;
}

void test_GridCanvas::regionsHaveTheHoleFrom33To34() {
    GridScene scene;
    scene.Area->Zoom().ChangeZoom(1000);
    scene.Show();
    QCOMPARE(PressAt(scene, 0.32, 0.5).At.Position, 4);
    QCOMPARE(PressAt(scene, 0.335, 0.5).At.Position, 6);
    QCOMPARE(PressAt(scene, 0.35, 0.5).At.Position, 5);
    QCOMPARE(PressAt(scene, 0.5, 0.335).At.Position, 8);
    QCOMPARE(PressAt(scene, 0.9, 0.9).At.Position, 9);
}

void test_GridCanvas::halfWayBelongsToTheUpperLeftCorner() {
    GridScene scene;
    scene.Area->Zoom().ChangeZoom(1000);
    scene.Show();
    QCOMPARE(PressAt(scene, 0.505, 0.5).At.CornerPosition, 1);
    QCOMPARE(PressAt(scene, 0.515, 0.5).At.CornerPosition, 3);
    QCOMPARE(PressAt(scene, 0.505, 0.505).At.CornerPosition, 7);
}

void test_GridCanvas::aReleaseOutsideTellsASquareOutside() {
    GridScene scene(5, 5);
    scene.Area->Zoom().ChangeZoom(300);
    scene.Show();
    PointerEvent told;
    connect(scene.Area.get(), &GridArea::Released, this,
            [&](const PointerEvent& event) { told = event; });
    QTest::mousePress(&scene.Canvas(), Qt::LeftButton, {}, scene.MiddleOf(2, 2));
    QTest::mouseRelease(&scene.Canvas(), Qt::LeftButton, {}, scene.MiddleOf(9, -1));
    QCOMPARE(told.At.Column, 9);
    QCOMPARE(told.At.Row, -1);
}

void test_GridCanvas::escapeIsTold() {
    GridScene scene;
    scene.Show();
    int told = 0;
    connect(scene.Area.get(), &GridArea::EscapePressed, this, [&] { ++told; });
    QTest::keyClick(&scene.Canvas(), Qt::Key_Escape);
    QCOMPARE(told, 1);
}

void test_GridCanvas::cursorsShow() {
    GridScene scene;
    scene.Area->SetGridCursor(GridCursor::Cross);
    QCOMPARE(scene.Canvas().cursor().shape(), Qt::CrossCursor);
    scene.Area->SetGridCursor(GridCursor::Move);
    QCOMPARE(scene.Canvas().cursor().shape(), Qt::SizeAllCursor);
    scene.Area->SetGridCursor(GridCursor::Default);
    QCOMPARE(scene.Canvas().cursor().shape(), Qt::ArrowCursor);
}

void test_GridCanvas::aPatternWithoutSquaresShowsNothing() {
    GridScene scene(6, 1);
    scene.Show();
    RowsAndColumns::Delete(scene.Design, RowsAndColumns::Band::Rows, 1, 1);
    QCOMPARE(scene.Design.GetPatternHeight(), 0);
    scene.Area->DesignChanged();
    GridScene::Settle();
    QVERIFY(scene.Canvas().size().isEmpty());
    QVERIFY(scene.Area->GetVisibleRange().IsEmpty());
    QVERIFY(!scene.Down().isEnabled());
    scene.Area->RedrawSquares({1, 1, 6, 1});
    GridScene::Settle();
}

} // namespace zol

QTEST_MAIN(zol::test_GridCanvas)
#include "test_GridCanvas.moc"
