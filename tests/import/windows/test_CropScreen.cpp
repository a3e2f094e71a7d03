// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include <random>

#include "import/PictureOps.h"
#include "import/windows/CropScreen.h"
#include "import/windows/PictureMarks.h"
#include "import/windows/ScreenScene.h"

namespace zol {

using test::Drag;
using test::PartOf;
using test::PlacePicture;
using test::Shot;
using test::ShownAt;

/// The screen with a picture of 300 by 200.
class CropScene : public test::ScreenScene<CropScreen> {
public:
    explicit CropScene(SharedPicture picture = PlacePicture(300, 200))
        : ScreenScene("lpicCrop", std::move(picture)) {}
    [[nodiscard]] QString Text(const char* label) { return PartOf<QLabel>(*Screen, label).text(); }
};

class test_CropScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theInstructionIsAsTold();
    void aBandIsDrawnAndCropped();
    void aBandWithoutSizeIsDropped();
    void theBandsSidesAndCornersAreDragged();
    void whatLiesOutsideTheBandIsDimmed();
    void whatChangesWithTheBandIsRepainted();
    void arrowsNudgeAndStretchTheBand();
    void escapeFreesTheBandFirst();
    void resetBringsThePictureBack();
    void leavingHandsOnThePictureWithoutPureWhite();
    void transparentPixelsStayEmptyAndShowSo();
    void goingBackKeepsThePictureGoingForwardTakesItAnew();
    void erasedSquaresSurviveAResetAfterwards();
    void cropsAtEachZoomAndPixel();
    void aBandGoesOnPastTheEdgeOfTheView();
    void withoutAPictureNothingHappens();
};

void test_CropScreen::theInstructionIsAsTold() {
    CropScene scene;
    QCOMPARE(scene.Screen->Instruction(),
             QStringLiteral("Click and drag the mouse cursor to select the area of the image you "
                            "wish to keep, and click the Crop button."));
    QCOMPARE(PartOf<QPushButton>(*scene.Screen, "cmdResetCrop").text().remove(QLatin1Char('&')),
             QStringLiteral("Reset Picture"));
}

void test_CropScreen::aBandIsDrawnAndCropped() {
    CropScene scene;
    const Picture before = scene.Shown();
    QVERIFY(!scene.Offers("cmdCrop"));
    Drag(scene.View(), {40, 30}, {140, 90});
    QCOMPARE(scene.Text("lblBandSize"), QStringLiteral("100 × 60 pixels"));
    scene.Press("cmdCrop");
    QCOMPARE(scene.Shown(), CropPicture(before, {40, 30, 100, 60}));
    QCOMPARE(scene.Text("lblPictureSize"), QStringLiteral("100 × 60 pixels"));
    QVERIFY(!scene.Offers("cmdCrop"));
    // The picture that travels is that of the screen before until this one is left.
    QCOMPARE(*scene.Kit.Work.TheImage, before);
}

void test_CropScreen::aBandWithoutSizeIsDropped() {
    CropScene scene;
    Drag(scene.View(), {40, 30}, {140, 30});
    QVERIFY(!scene.Offers("cmdCrop"));
    Drag(scene.View(), {40, 30}, {140, 90});
    QVERIFY(scene.Offers("cmdCrop"));
    Drag(scene.View(), {250, 150}, {250, 150});
    QVERIFY(!scene.Offers("cmdCrop"));
    QCOMPARE(scene.Text("lblBandSize"), QStringLiteral("Nothing is selected."));
    QCOMPARE(scene.Shown().ImageWidth(), 300);
}

void test_CropScreen::theBandsSidesAndCornersAreDragged() {
    CropScene scene;
    const Picture before = scene.Shown();
    Drag(scene.View(), {40, 30}, {140, 90});
    test::MoveTo(scene.View(), {40, 30}, Qt::NoButton);
    QCOMPARE(scene.View().viewport()->cursor().shape(), Qt::SizeFDiagCursor);
    Drag(scene.View(), {40, 30}, {20, 10});
    test::MoveTo(scene.View(), {140, 50}, Qt::NoButton);
    QCOMPARE(scene.View().viewport()->cursor().shape(), Qt::SizeHorCursor);
    Drag(scene.View(), {140, 50}, {400, 70});
    QCOMPARE(scene.Text("lblBandSize"), QStringLiteral("280 × 80 pixels"));
    test::MoveTo(scene.View(), {150, 50}, Qt::NoButton);
    QCOMPARE(scene.View().viewport()->cursor().shape(), Qt::SizeAllCursor);
    Drag(scene.View(), {150, 50}, {145, 60});
    scene.Press("cmdCrop");
    QCOMPARE(scene.Shown(), CropPicture(before, {15, 20, 280, 80}));
}

void test_CropScreen::whatLiesOutsideTheBandIsDimmed() {
    CropScene scene;
    const QImage plain = Shot(scene.View());
    Drag(scene.View(), {40, 30}, {140, 90});
    const QImage banded = Shot(scene.View());
    QCOMPARE(ShownAt(scene.View(), banded, {90, 60}), ShownAt(scene.View(), plain, {90, 60}));
    QVERIFY(qGreen(ShownAt(scene.View(), banded, {200, 120})) <
            qGreen(ShownAt(scene.View(), plain, {200, 120})));
    // What a further drag repaints is what a repaint of everything gives.
    Drag(scene.View(), {140, 90}, {220, 50});
    Drag(scene.View(), {100, 40}, {70, 120});
    const QImage moved = Shot(scene.View());
    scene.View().viewport()->update();
    QCOMPARE(moved, Shot(scene.View()));
    QCOMPARE(ShownAt(scene.View(), moved, {100, 120}), ShownAt(scene.View(), plain, {100, 120}));
}

void test_CropScreen::whatChangesWithTheBandIsRepainted() {
    std::mt19937 random(11); // NOLINT(cert-msc51-cpp): the same bands each time
    const auto upTo = [&](int last) {
        return static_cast<int>(random() % static_cast<unsigned>(last + 1));
    };
    const auto paint = [](QImage& image, const PicturePlace& place, const QRectF& band,
                          const QRegion& part) {
        QPainter painter(&image);
        for (const QRect& rect : part) {
            painter.setClipRect(rect);
            painter.fillRect(rect, QColor(90, 160, 40));
            PictureMarks::DrawBand(painter, place, band, Qt::blue);
        }
    };
    for (int round = 0; round < 300; ++round) {
        const double ratio = 1 + upTo(4) / 4.0;
        const PicturePlace place{
            {upTo(20) - 10, upTo(20) - 10, 90 + upTo(90), 150}, {80, 70}, ratio};
        QImage image(200, 170, QImage::Format_RGB32);
        const QRectF before(upTo(40), upTo(30), 1 + upTo(39), 1 + upTo(39));
        // Each side moves or stays by itself.
        const auto move = [&] { return upTo(1) * (upTo(18) - 9); };
        const QRectF after = before.adjusted(move(), move(), move(), move());
        if (after.width() < 1 || after.height() < 1 || !QRectF(0, 0, 80, 70).contains(after)) {
            continue;
        }
        paint(image, place, before, image.rect());
        paint(image, place, after, PictureMarks::BandChange(place, before, after));
        QImage anew(image.size(), image.format());
        paint(anew, place, after, anew.rect());
        QCOMPARE(image, anew);
    }
}

void test_CropScreen::arrowsNudgeAndStretchTheBand() {
    CropScene scene;
    const Picture before = scene.Shown();
    Drag(scene.View(), {40, 30}, {140, 90});
    scene.View().setFocus();
    QTest::keyClick(&scene.View(), Qt::Key_Right);
    QTest::keyClick(&scene.View(), Qt::Key_Up, Qt::ControlModifier);
    QTest::keyClick(&scene.View(), Qt::Key_Left, Qt::ShiftModifier);
    QTest::keyClick(&scene.View(), Qt::Key_Down, Qt::ShiftModifier | Qt::ControlModifier);
    QCOMPARE(scene.Text("lblBandSize"), QStringLiteral("99 × 70 pixels"));
    scene.Press("cmdCrop");
    QCOMPARE(scene.Shown(), CropPicture(before, {41, 20, 99, 70}));
}

void test_CropScreen::escapeFreesTheBandFirst() {
    CropScene scene;
    scene.View().setFocus();
    QTest::keyClick(&scene.View(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(scene.Text("lblBandSize"), QStringLiteral("300 × 200 pixels"));
    QTest::keyClick(&scene.View(), Qt::Key_Escape);
    QVERIFY(!scene.Offers("cmdCrop"));
    QVERIFY(scene.Dialog.isVisible());
    QTest::keyClick(&scene.View(), Qt::Key_Escape);
    QVERIFY(!scene.Dialog.isVisible());
}

void test_CropScreen::resetBringsThePictureBack() {
    CropScene scene;
    const Picture before = scene.Shown();
    Drag(scene.View(), {40, 30}, {140, 90});
    scene.Press("cmdCrop");
    Drag(scene.View(), {10, 10}, {50, 50});
    scene.Press("cmdCrop");
    QCOMPARE(scene.Shown().ImageWidth(), 40);
    scene.Press("cmdResetCrop");
    QCOMPARE(scene.Shown(), before);
}

void test_CropScreen::leavingHandsOnThePictureWithoutPureWhite() {
    auto picture = PlacePicture(30, 20);
    picture->SetImagePixel(5, 6, EraseColor);
    picture->SetImagePixel(7, 8, TransparentPixel);
    CropScene scene(picture);
    QVERIFY(scene.Screen->ValidateScreen());
    const Picture& handed = *scene.Kit.Work.TheImage;
    QCOMPARE(handed.ImagePixel(5, 6), WhiteStandIn);
    QCOMPARE(handed.ImagePixel(7, 8), EraseColor);
    QCOMPARE(handed.ImagePixel(9, 9), picture->ImagePixel(9, 9));
    QCOMPARE(picture->ImagePixel(5, 6), EraseColor);
}

void test_CropScreen::transparentPixelsStayEmptyAndShowSo() {
    auto picture = test::PlainPicture(30, 20, EraseColor);
    picture->SetImagePixel(7, 8, TransparentPixel);
    CropScene scene(picture);
    scene.View().SetCloth(QColor(10, 200, 30));
    const QImage shot = Shot(scene.View());
    QCOMPARE(ShownAt(scene.View(), shot, {7, 8}), qRgb(10, 200, 30));
    QCOMPARE(ShownAt(scene.View(), shot, {3, 3}), qRgb(255, 255, 255));
}

void test_CropScreen::goingBackKeepsThePictureGoingForwardTakesItAnew() {
    CropScene scene;
    Drag(scene.View(), {40, 30}, {140, 90});
    scene.Press("cmdCrop");
    QVERIFY(scene.Screen->ValidateScreen());
    QCOMPARE(scene.Kit.Work.TheImage->ImageWidth(), 100);
    scene.Kit.Work.TheImage = PlacePicture(77, 55);
    scene.Screen->DisplayScreen(true);
    QCOMPARE(scene.Shown().ImageWidth(), 100);
    scene.Screen->DisplayScreen(false);
    QCOMPARE(scene.Shown().ImageWidth(), 77);
}

void test_CropScreen::erasedSquaresSurviveAResetAfterwards() {
    CropScene scene;
    QVERIFY(scene.Screen->ValidateScreen());
    auto erased = std::make_shared<Picture>(*scene.Kit.Work.TheImage);
    erased->SetImagePixel(50, 50, EraseColor);
    scene.Kit.Work.TheImage = erased;
    scene.Screen->DisplayScreen(true);
    scene.Press("cmdResetCrop");
    QVERIFY(scene.Screen->ValidateScreen());
    QCOMPARE(*scene.Kit.Work.TheImage, *erased);
}

void test_CropScreen::cropsAtEachZoomAndPixel() {
    CropScene scene;
    const Picture before = scene.Shown();
    for (const double zoom : {50.0, 100.0, 250.0}) {
        scene.View().SetZoom(zoom);
        QCoreApplication::processEvents();
        Drag(scene.View(), {80, 60}, {121, 83});
        scene.Press("cmdCrop");
        // A pixel of the screen is two of the picture's at half the size.
        QVERIFY(std::abs(scene.Shown().ImageWidth() - 41) <= (zoom < 100 ? 2 : 0));
        QVERIFY(std::abs(scene.Shown().ImageHeight() - 23) <= (zoom < 100 ? 2 : 0));
        scene.Press("cmdResetCrop");
    }
    QCOMPARE(scene.Shown(), before);
}

void test_CropScreen::aBandGoesOnPastTheEdgeOfTheView() {
    CropScene scene;
    const Picture before = scene.Shown();
    scene.View().SetZoom(400);
    QCoreApplication::processEvents();
    test::PressAt(scene.View(), {20, 10});
    test::MovePast(scene.View(), 1, 1);
    QTRY_COMPARE(scene.Text("lblBandSize"), QStringLiteral("280 × 190 pixels"));
    test::MovePast(scene.View(), -1, -1);
    QTRY_COMPARE(scene.Text("lblBandSize"), QStringLiteral("20 × 10 pixels"));
    test::MovePast(scene.View(), 1, 1);
    QTRY_COMPARE(scene.Text("lblBandSize"), QStringLiteral("280 × 190 pixels"));
    test::ReleaseAt(scene.View(), {320, 220});
    scene.Press("cmdCrop");
    QCOMPARE(scene.Shown(), CropPicture(before, {20, 10, 280, 190}));
}

void test_CropScreen::withoutAPictureNothingHappens() {
    CropScene scene(nullptr);
    QTest::mouseClick(scene.View().viewport(), Qt::LeftButton);
    scene.View().setFocus();
    QTest::keyClick(&scene.View(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&scene.View(), Qt::Key_Right);
    QVERIFY(!scene.Offers("cmdCrop"));
    QVERIFY(!scene.Offers("cmdResetCrop"));
    QVERIFY(scene.Screen->ValidateScreen());
    QVERIFY(scene.Kit.Work.TheImage == nullptr);
}

} // namespace zol

QTEST_MAIN(zol::test_CropScreen)
#include "test_CropScreen.moc"
