// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>

#include "import/Eraser.h"
#include "import/windows/EraseScreen.h"
#include "import/windows/ScreenScene.h"

namespace zol {

using test::Drag;
using test::PartOf;
using test::PlacePicture;
using test::Shot;
using test::ShownAt;

/// The screen with a picture of 300 by 200.
class EraseScene : public test::ScreenScene<EraseScreen> {
public:
    explicit EraseScene(SharedPicture picture = PlacePicture(300, 200))
        : ScreenScene("lpicErase", std::move(picture)) {}
    [[nodiscard]] bool IsErased(int x, int y) { return Shown().ImagePixel(x, y) == EraseColor; }
    void SelectRectangle(QPointF from, QPointF to) {
        Press("optEraseBy1");
        Press("optMaskMode1");
        Drag(View(), from, to);
    }
};

class test_EraseScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void textsAreAsTold();
    void eachToolShowsItsChoices();
    void theHelpIsWholeAndNothingMovesWithTheTool();
    void theEraserHasThreeSizes_data();
    void theEraserHasThreeSizes();
    void aQuickDragLeavesNoGaps();
    void whatIsErasedShowsAtOnce();
    void thePointerShowsTheTrueSize_data();
    void thePointerShowsTheTrueSize();
    void undoTakesOneStrokeBack();
    void areasAreSelectedAndCleared_data();
    void areasAreSelectedAndCleared();
    void clearOutsideAreaLeavesTheArea();
    void theOutlineShowsAndGoes();
    void deleteClearsAndCtrlZTakesBack();
    void escapeFreesTheRegionFirst();
    void anAreaWithoutSizeSelectsNothing();
    void resetBringsThePictureBack();
    void leavingFreesTheRegionAndHandsOn();
    void goingBackKeepsThePictureGoingForwardTakesItAnew();
    void aStrokeGoesOnPastTheEdgeOfTheView();
    void anAreaGoesOnPastTheEdgeOfTheView_data();
    void anAreaGoesOnPastTheEdgeOfTheView();
    void withoutAPictureNothingHappens();
};

void test_EraseScreen::textsAreAsTold() {
    EraseScene scene;
    QCOMPARE(scene.Screen->Instruction(),
             QStringLiteral("Here you can erase sections of the image using the Eraser tool or by "
                            "selecting and clearing areas."));
    const auto text = [&](const char* name) {
        return PartOf<QAbstractButton>(*scene.Screen, name).text().remove(QLatin1Char('&'));
    };
    QCOMPARE(text("optEraseBy0"), QStringLiteral("Eraser Tool"));
    QCOMPARE(text("optEraseBy1"), QStringLiteral("Erase Area"));
    QCOMPARE(text("optMaskMode0"), QStringLiteral("Freehand"));
    QCOMPARE(text("optMaskMode1"), QStringLiteral("Rectangle"));
    QCOMPARE(text("optMaskMode2"), QStringLiteral("Oval"));
    QCOMPARE(text("cmdClearUnselected"), QStringLiteral("Clear Outside Area"));
    QCOMPARE(text("cmdResetErase"), QStringLiteral("Reset Picture"));
    auto& help = PartOf<QLabel>(*scene.Screen, "lblHelp");
    QCOMPARE(help.text(), QStringLiteral("Select an eraser size, then click and drag the mouse to "
                                         "erase an area."));
    scene.Press("optEraseBy1");
    QCOMPARE(help.text(),
             QStringLiteral("Select the type of are you want to draw, then draw by clicking and "
                            "holding down the left mouse button."));
}

void test_EraseScreen::theHelpIsWholeAndNothingMovesWithTheTool() {
    EraseScene scene;
    scene.Dialog.resize(scene.Dialog.minimumSizeHint());
    QCoreApplication::processEvents();
    const QSize size = scene.Dialog.size();
    const auto& help = PartOf<QLabel>(*scene.Screen, "lblHelp");
    const int below = PartOf<QWidget>(*scene.Screen, "fraTool").y();
    for (const char* tool : {"optEraseBy0", "optEraseBy1"}) {
        scene.Press(tool);
        QCoreApplication::processEvents();
        QVERIFY2(help.height() >= help.heightForWidth(help.width()), tool);
        QCOMPARE(PartOf<QWidget>(*scene.Screen, "fraTool").y(), below);
        QCOMPARE(scene.Dialog.size(), size);
    }
    for (const char* button : {"cmdClearSelected", "cmdClearUnselected", "cmdUndo"}) {
        const auto& shown = PartOf<QWidget>(*scene.Screen, button);
        QVERIFY2(shown.height() >= shown.sizeHint().height(), button);
    }
}

void test_EraseScreen::eachToolShowsItsChoices() {
    EraseScene scene;
    QVERIFY(PartOf<QWidget>(*scene.Screen, "optEraser0").isVisible());
    QVERIFY(!PartOf<QWidget>(*scene.Screen, "optMaskMode0").isVisible());
    scene.Press("optEraseBy1");
    QVERIFY(!PartOf<QWidget>(*scene.Screen, "optEraser0").isVisible());
    QVERIFY(PartOf<QWidget>(*scene.Screen, "optMaskMode0").isVisible());
    QVERIFY(PartOf<QWidget>(*scene.Screen, "cmdClearSelected").isVisible());
}

void test_EraseScreen::theEraserHasThreeSizes_data() {
    QTest::addColumn<QByteArray>("choice");
    QTest::addColumn<int>("across");
    QTest::newRow("8") << QByteArray("optEraser0") << 8;
    QTest::newRow("16") << QByteArray("optEraser1") << 16;
    QTest::newRow("32") << QByteArray("optEraser2") << 32;
}

void test_EraseScreen::theEraserHasThreeSizes() {
    QFETCH(QByteArray, choice);
    QFETCH(int, across);
    EraseScene scene;
    const Picture before = scene.Shown();
    scene.View().SetZoom(100);
    QCoreApplication::processEvents();
    scene.Press(choice.constData());
    Drag(scene.View(), {150, 100}, {150, 100});
    int columns = 0;
    for (int x = 0; x < 300; ++x) {
        columns += scene.IsErased(x, 100) ? 1 : 0;
    }
    QCOMPARE(columns, across);
    QVERIFY(scene.IsErased(150, 100));
    QVERIFY(scene.IsErased(150 - across / 2, 100));
    QVERIFY(!scene.IsErased(150 + across / 2 - 1, 100 + across / 2 - 1));
    // The picture that travels stays until the screen is left.
    QCOMPARE(*scene.Kit.Work.TheImage, before);
}

void test_EraseScreen::aQuickDragLeavesNoGaps() {
    EraseScene scene;
    test::PressAt(scene.View(), {20, 100});
    test::MoveTo(scene.View(), {280, 100});
    test::ReleaseAt(scene.View(), {280, 150});
    for (int x = 20; x < 280; ++x) {
        QVERIFY(scene.IsErased(x, 100));
    }
    for (int y = 100; y < 150; ++y) {
        QVERIFY(scene.IsErased(280, y));
    }
    QVERIFY(!scene.IsErased(150, 110));
}

void test_EraseScreen::whatIsErasedShowsAtOnce() {
    EraseScene scene;
    scene.View().SetCloth(QColor(10, 200, 30));
    for (const double zoom : {40.0, 100.0, 300.0}) {
        scene.View().SetZoom(zoom);
        Shot(scene.View());
        Drag(scene.View(), {120, 90}, {170, 110});
        test::MoveTo(scene.View(), {0, 0}, Qt::NoButton);
        const QImage shot = Shot(scene.View());
        QCOMPARE(ShownAt(scene.View(), shot, {145, 100}), qRgb(10, 200, 30));
        scene.View().ShowPicture(scene.View().Shown());
        QCOMPARE(shot, Shot(scene.View()));
        scene.Press("cmdUndo");
        QVERIFY(ShownAt(scene.View(), Shot(scene.View()), {145, 100}) != qRgb(10, 200, 30));
    }
}

void test_EraseScreen::thePointerShowsTheTrueSize_data() {
    QTest::addColumn<QByteArray>("choice");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<double>("width");
    QTest::newRow("8 at 100") << QByteArray("optEraser0") << 100.0 << 8.0;
    QTest::newRow("32 at 100") << QByteArray("optEraser2") << 100.0 << 32.0;
    QTest::newRow("16 at 300") << QByteArray("optEraser1") << 300.0 << 48.0;
    QTest::newRow("32 at 1000") << QByteArray("optEraser2") << 1000.0 << 320.0;
}

void test_EraseScreen::thePointerShowsTheTrueSize() {
    QFETCH(QByteArray, choice);
    QFETCH(double, zoom);
    QFETCH(double, width);
    EraseScene scene;
    scene.Press(choice.constData());
    scene.View().SetZoom(zoom);
    const QCursor pointer = scene.View().viewport()->cursor();
    if (pointer.shape() == Qt::BitmapCursor) {
        // A ring of two lines lies round the disc, and half a pixel of the middle.
        const double side = pointer.pixmap().deviceIndependentSize().width();
        QVERIFY2(side >= width + 4 && side <= width + 9, qPrintable(QString::number(side)));
        QVERIFY(std::abs(pointer.hotSpot().x() - side / 2) <= 1);
        return;
    }
    // Too large for a pointer: the ring is painted.
    QVERIFY(width > 100);
    const QImage plain = Shot(scene.View());
    test::MoveTo(scene.View(), {150, 100}, Qt::NoButton);
    const QImage ringed = Shot(scene.View());
    QVERIFY(plain != ringed);
    const QPointF edge = scene.View().Place().OnView(QPointF(150 + 16, 100));
    bool drawn = false;
    for (int x = int(edge.x()) - 4; x <= int(edge.x()) + 4; ++x) {
        drawn = drawn || plain.pixel(x, int(edge.y())) != ringed.pixel(x, int(edge.y()));
    }
    QVERIFY(drawn);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(scene.View().viewport(), &leave);
    QCOMPARE(Shot(scene.View()), plain);
}

void test_EraseScreen::undoTakesOneStrokeBack() {
    EraseScene scene;
    QVERIFY(!scene.Offers("cmdUndo"));
    Drag(scene.View(), {50, 50}, {90, 60});
    const Picture afterFirst = scene.Shown();
    test::PressAt(scene.View(), {200, 100});
    QVERIFY(scene.Offers("cmdUndo"));
    test::MoveTo(scene.View(), {220, 150});
    test::ReleaseAt(scene.View(), {220, 150});
    QVERIFY(!(scene.Shown() == afterFirst));
    scene.Press("cmdUndo");
    QCOMPARE(scene.Shown(), afterFirst);
    QVERIFY(!scene.Offers("cmdUndo"));
}

void test_EraseScreen::areasAreSelectedAndCleared_data() {
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<bool>("corner"); ///< whether the rectangle's corners belong to it
    QTest::newRow("freehand") << QByteArray("optMaskMode0") << false;
    QTest::newRow("rectangle") << QByteArray("optMaskMode1") << true;
    QTest::newRow("oval") << QByteArray("optMaskMode2") << false;
}

void test_EraseScreen::areasAreSelectedAndCleared() {
    QFETCH(QByteArray, mode);
    QFETCH(bool, corner);
    EraseScene scene;
    const Picture before = scene.Shown();
    scene.Press("optEraseBy1");
    QVERIFY(!scene.Offers("cmdClearSelected"));
    QVERIFY(!scene.Offers("cmdClearUnselected"));
    scene.Press(mode.constData());
    if (mode == "optMaskMode0") {
        test::PressAt(scene.View(), {100, 50});
        test::MoveTo(scene.View(), {150, 80});
        test::MoveTo(scene.View(), {100, 110});
        test::MoveTo(scene.View(), {50, 80});
        test::ReleaseAt(scene.View(), {50, 80});
    } else {
        Drag(scene.View(), {50, 50}, {150, 110});
    }
    QVERIFY(scene.Offers("cmdClearSelected"));
    QVERIFY(scene.Offers("cmdClearUnselected"));
    QCOMPARE(scene.Shown(), before);
    scene.Press("cmdClearSelected");
    QVERIFY(scene.IsErased(100, 80));
    QCOMPARE(scene.IsErased(53, 53), corner);
    QCOMPARE(scene.IsErased(146, 106), corner);
    QVERIFY(!scene.IsErased(160, 80));
    QVERIFY(!scene.Offers("cmdClearSelected"));
    scene.Press("cmdUndo");
    QCOMPARE(scene.Shown(), before);
}

void test_EraseScreen::clearOutsideAreaLeavesTheArea() {
    EraseScene scene;
    const Picture before = scene.Shown();
    scene.View().SetZoom(100);
    QCoreApplication::processEvents();
    scene.SelectRectangle({50, 50}, {150, 110});
    scene.Press("cmdClearUnselected");
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 300; ++x) {
            const bool inside = x >= 50 && x < 150 && y >= 50 && y < 110;
            QCOMPARE(scene.Shown().ImagePixel(x, y), inside ? before.ImagePixel(x, y) : EraseColor);
        }
    }
    QVERIFY(!scene.Offers("cmdClearUnselected"));
    scene.Press("cmdUndo");
    QCOMPARE(scene.Shown(), before);
}

void test_EraseScreen::theOutlineShowsAndGoes() {
    EraseScene scene;
    scene.Press("optEraseBy1");
    const QImage plain = Shot(scene.View());
    for (const char* mode : {"optMaskMode0", "optMaskMode1", "optMaskMode2"}) {
        scene.Press(mode);
        test::PressAt(scene.View(), {50, 50});
        test::MoveTo(scene.View(), {150, 110});
        test::MoveTo(scene.View(), {120, 130});
        const QImage drawing = Shot(scene.View());
        QVERIFY(drawing != plain);
        scene.View().viewport()->update();
        QCOMPARE(drawing, Shot(scene.View()));
        test::ReleaseAt(scene.View(), {120, 130});
        QVERIFY(Shot(scene.View()) != plain);
        scene.Key(Qt::Key_Escape);
        QCOMPARE(Shot(scene.View()), plain);
    }
}

void test_EraseScreen::deleteClearsAndCtrlZTakesBack() {
    EraseScene scene;
    const Picture before = scene.Shown();
    scene.Key(Qt::Key_Delete);
    QCOMPARE(scene.Shown(), before);
    scene.SelectRectangle({50, 50}, {150, 110});
    scene.Key(Qt::Key_Delete);
    QVERIFY(scene.IsErased(100, 80));
    scene.Key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(scene.Shown(), before);
}

void test_EraseScreen::escapeFreesTheRegionFirst() {
    EraseScene scene;
    const Picture before = scene.Shown();
    scene.SelectRectangle({50, 50}, {150, 110});
    scene.Key(Qt::Key_Escape);
    QVERIFY(scene.Dialog.isVisible());
    QVERIFY(!scene.Offers("cmdClearSelected"));
    // Also half-way through a drag, whose end then selects nothing.
    test::PressAt(scene.View(), {50, 50});
    test::MoveTo(scene.View(), {100, 100});
    scene.Key(Qt::Key_Escape);
    test::ReleaseAt(scene.View(), {120, 120});
    QVERIFY(scene.Dialog.isVisible());
    QVERIFY(!scene.Offers("cmdClearSelected"));
    QCOMPARE(scene.Shown(), before);
    scene.Key(Qt::Key_Escape);
    QVERIFY(!scene.Dialog.isVisible());
}

void test_EraseScreen::anAreaWithoutSizeSelectsNothing() {
    EraseScene scene;
    for (const char* mode : {"optMaskMode0", "optMaskMode1", "optMaskMode2"}) {
        scene.SelectRectangle({50, 50}, {150, 110});
        scene.Press(mode);
        Drag(scene.View(), {60, 60}, {60, 60});
        QVERIFY(!scene.Offers("cmdClearSelected"));
    }
}

void test_EraseScreen::resetBringsThePictureBack() {
    EraseScene scene;
    const Picture before = scene.Shown();
    Drag(scene.View(), {50, 50}, {90, 60});
    scene.SelectRectangle({100, 50}, {150, 110});
    scene.Press("cmdClearSelected");
    scene.Press("cmdResetErase");
    QCOMPARE(scene.Shown(), before);
}

void test_EraseScreen::leavingFreesTheRegionAndHandsOn() {
    EraseScene scene;
    Drag(scene.View(), {50, 50}, {90, 60});
    const Picture erased = scene.Shown();
    scene.SelectRectangle({100, 50}, {150, 110});
    QVERIFY(scene.Screen->ValidateScreen());
    QVERIFY(!scene.Offers("cmdClearSelected"));
    QCOMPARE(*scene.Kit.Work.TheImage, erased);
    // What is erased after coming back does not touch what was handed on.
    scene.Screen->DisplayScreen(true);
    const SharedPicture handed = scene.Kit.Work.TheImage;
    scene.Press("optEraseBy0");
    Drag(scene.View(), {200, 150}, {210, 150});
    QVERIFY(scene.IsErased(205, 150));
    QCOMPARE(*handed, erased);
}

void test_EraseScreen::goingBackKeepsThePictureGoingForwardTakesItAnew() {
    EraseScene scene;
    Drag(scene.View(), {50, 50}, {90, 60});
    const Picture erased = scene.Shown();
    QVERIFY(scene.Screen->ValidateScreen());
    scene.Kit.Work.TheImage = PlacePicture(20, 10);
    scene.Screen->DisplayScreen(true);
    QCOMPARE(scene.Shown(), erased);
    QVERIFY(scene.Offers("cmdUndo"));
    scene.Screen->DisplayScreen(false);
    QCOMPARE(scene.Shown(), *scene.Kit.Work.TheImage);
    QVERIFY(!scene.Offers("cmdUndo"));
}

void test_EraseScreen::aStrokeGoesOnPastTheEdgeOfTheView() {
    EraseScene scene;
    PictureView& view = scene.View();
    view.SetZoom(400);
    QCoreApplication::processEvents();
    const int row = int(view.InPicture(view.viewport()->rect().center()).y());
    test::PressAt(view, {20, row + 0.5});
    test::MovePast(view, 1, 0);
    QTRY_VERIFY(scene.IsErased(299, row));
    test::MovePast(view, -1, 0);
    QTRY_VERIFY(scene.IsErased(0, row));
    test::ReleaseAt(view, {0, row + 0.5});
    for (int x = 0; x < 300; ++x) {
        QVERIFY(scene.IsErased(x, row));
    }
}

void test_EraseScreen::anAreaGoesOnPastTheEdgeOfTheView_data() {
    QTest::addColumn<QByteArray>("mode");
    QTest::newRow("freehand") << QByteArray("optMaskMode0");
    QTest::newRow("rectangle") << QByteArray("optMaskMode1");
    QTest::newRow("oval") << QByteArray("optMaskMode2");
}

/// A drag round three sides; the fourth is closed by itself.
void test_EraseScreen::anAreaGoesOnPastTheEdgeOfTheView() {
    QFETCH(QByteArray, mode);
    EraseScene scene;
    scene.Press("optEraseBy1");
    scene.Press(mode.constData());
    PictureView& view = scene.View();
    view.SetZoom(400);
    QCoreApplication::processEvents();
    const QScrollBar& across = *view.horizontalScrollBar();
    const QScrollBar& down = *view.verticalScrollBar();
    test::PressAt(view, {1, 1});
    test::MovePast(view, 1, 0);
    QTRY_COMPARE(across.value(), across.maximum());
    test::MovePast(view, 1, 1);
    QTRY_COMPARE(down.value(), down.maximum());
    const QPointF end = view.InPicture(QPointF(view.viewport()->rect().bottomRight()));
    QVERIFY(end.x() > 295 && end.y() > 195);
    test::ReleaseAt(view, end);
    QVERIFY(scene.Offers("cmdClearSelected"));
    scene.Press("cmdClearSelected");
    QVERIFY(scene.IsErased(200, 95));
    QVERIFY(scene.IsErased(260, 120));
    QVERIFY(!scene.IsErased(10, 190) || mode == "optMaskMode1");
}

void test_EraseScreen::withoutAPictureNothingHappens() {
    EraseScene scene(nullptr);
    QTest::mouseClick(scene.View().viewport(), Qt::LeftButton);
    scene.Key(Qt::Key_Delete);
    scene.Key(Qt::Key_Z, Qt::ControlModifier);
    for (const char* button : {"cmdUndo", "cmdResetErase"}) {
        QVERIFY(!scene.Offers(button));
    }
    QVERIFY(scene.Screen->ValidateScreen());
    QVERIFY(scene.Kit.Work.TheImage == nullptr);
}

} // namespace zol

QTEST_MAIN(zol::test_EraseScreen)
#include "test_EraseScreen.moc"
