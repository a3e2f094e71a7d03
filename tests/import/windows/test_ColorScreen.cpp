// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

#include "import/Adjustments.h"
#include "import/windows/ColorScreen.h"
#include "import/windows/DeskKit.h"
#include "import/windows/PictureViewKit.h"
#include "support/DialogHands.h"
#include "windowkit/JobStatus.h"

using namespace zol;
using namespace zol::test;
using Adjustments::Kind;

namespace {

constexpr Colour Sample = MakeColour(200, 100, 50);

} // namespace

class TestColorScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void ListsTheNineAdjustmentsWithTheirSliders_data();
    void ListsTheNineAdjustmentsWithTheirSliders();
    void ShowsThePictureOnBothSides();
    void TheSliderShowsWhatItDoesBesideThePicture();
    void TheNumberFieldMovesTheSlider();
    void AValueIsRelativeToTheAppliedPicture();
    void WithoutASliderTheEffectShowsAtOnce();
    void EdgesAreAddedToThePicture();
    void UndoRestoresBothPictures();
    void ResetRestoresThePictureThatCameIn();
    void OnlyWhatIsAppliedLeavesTheScreen();
    void ComingBackKeepsThePictureButNothingTried();
    void AnotherAdjustmentStartsFromTheAppliedPicture();
    void AnOutdatedSliderJobNeverLands();
    void ApplyTakesTheValueThatStandsThere();
    void CancelPutsTheSliderBackToWhatIsShown();
    void WhiteThatIsMadeShowsAsCloth();
    void ThePicturesScrollAndZoomTogether();
    void SpellsAsTheProgramDoes();

private:
    void ShowScreen();
    void Choose(Kind kind);
    void DragSliderTo(int value);
    [[nodiscard]] Colour Shown(const char* view, int x = 0, int y = 0);
    void Come(std::shared_ptr<Picture> picture);

    std::unique_ptr<DeskKit> m_kit;
    std::unique_ptr<QDialog> m_window;
    ColorScreen* m_screen = nullptr;
};

void TestColorScreen::init() {
    m_kit = std::make_unique<DeskKit>();
    m_kit->Settings.ClothColor = MakeColour(10, 220, 240);
    ShowScreen();
    auto picture = PlainPicture(8, 6, Sample);
    picture->SetImagePixel(1, 0, EraseColor);
    Come(picture);
}

void TestColorScreen::cleanup() {
    m_window.reset();
    m_kit.reset();
}

void TestColorScreen::ShowScreen() {
    m_window = std::make_unique<QDialog>();
    m_screen = new ColorScreen(m_kit->Desk, m_window.get());
    auto* layout = new QVBoxLayout(m_window.get());
    layout->addWidget(m_screen);
    m_window->resize(900, 560);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestColorScreen::Come(std::shared_ptr<Picture> picture) {
    m_kit->Work.TheImage = std::move(picture);
    m_screen->DisplayScreen(false);
}

void TestColorScreen::Choose(Kind kind) {
    auto& box = PartOf<QComboBox>(*m_window, "cmbAdjustmentType");
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Home);
    for (int i = 0; i < static_cast<int>(kind); ++i) {
        QTest::keyClick(&box, Qt::Key_Down);
    }
    QCOMPARE(box.currentIndex(), static_cast<int>(kind));
}

/// With keys: a step each.
void TestColorScreen::DragSliderTo(int value) {
    auto& slider = PartOf<QSlider>(*m_window, "sliAdjuster");
    slider.setFocus();
    while (slider.value() != value) {
        const bool up = slider.value() < value;
        const int away = std::abs(slider.value() - value);
        const bool large = away >= slider.pageStep();
        QTest::keyClick(&slider, large ? (up ? Qt::Key_PageUp : Qt::Key_PageDown)
                                       : (up ? Qt::Key_Right : Qt::Key_Left));
    }
}

Colour TestColorScreen::Shown(const char* view, int x, int y) {
    return PartOf<PictureView>(*m_window, view).Shown()->ImagePixel(x, y);
}

void TestColorScreen::ListsTheNineAdjustmentsWithTheirSliders_data() {
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasSlider");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("start");
    QTest::newRow("brightness") << 0 << "Brightness" << true << -100 << 100 << 0;
    QTest::newRow("contrast") << 1 << "Contrast" << true << -100 << 100 << 0;
    QTest::newRow("saturation") << 2 << "Saturation" << true << -100 << 100 << 0;
    QTest::newRow("hue") << 3 << "Hue" << true << 0 << 360 << 0;
    QTest::newRow("histo") << 4 << "Histo Equalize" << false << 0 << 0 << 0;
    QTest::newRow("gray") << 5 << "Gray Scale" << false << 0 << 0 << 0;
    QTest::newRow("edge") << 6 << "Edge Enhance" << false << 0 << 0 << 0;
    QTest::newRow("stretch") << 7 << "Stretch Intensity" << false << 0 << 0 << 0;
    QTest::newRow("gamma") << 8 << "Gamma Correct" << true << 10 << 200 << 100;
}

void TestColorScreen::ListsTheNineAdjustmentsWithTheirSliders() {
    QFETCH(int, index);
    QFETCH(QString, text);
    QFETCH(bool, hasSlider);
    auto& box = PartOf<QComboBox>(*m_window, "cmbAdjustmentType");
    QCOMPARE(box.count(), 9);
    QCOMPARE(box.itemText(index), text);
    Choose(static_cast<Kind>(index));
    const auto& slider = PartOf<QSlider>(*m_window, "sliAdjuster");
    QCOMPARE(slider.isVisible(), hasSlider);
    QCOMPARE(PartOf<QSpinBox>(*m_window, "txtAdjuster").isVisible(), hasSlider);
    if (hasSlider) {
        QTEST(slider.minimum(), "minimum");
        QTEST(slider.maximum(), "maximum");
        QTEST(slider.value(), "start");
        QCOMPARE(slider.tickInterval(), 20);
        QCOMPARE(slider.singleStep(), index == 8 ? 10 : 1);
        QCOMPARE(slider.pageStep() == 50, index == 8);
    }
}

void TestColorScreen::ShowsThePictureOnBothSides() {
    QCOMPARE(m_screen->Instruction(),
             QStringLiteral(
                 "You can use this screen to fix the colors in your image before importing."));
    QCOMPARE(PartOf<PictureView>(*m_window, "lpicOrigColor").Shown(), m_kit->Work.TheImage);
    QCOMPARE(PartOf<PictureView>(*m_window, "lpicNewColor").Shown(), m_kit->Work.TheImage);
    QVERIFY(!PartOf<QPushButton>(*m_window, "cmdApplyColor").isEnabled());
    QVERIFY(!PartOf<QPushButton>(*m_window, "cmdUndoColor").isEnabled());
    QVERIFY(!PartOf<QPushButton>(*m_window, "cmdResetColor").isEnabled());
    QCOMPARE(PartOf<QPushButton>(*m_window, "cmdResetColor").text(),
             QStringLiteral("&Reset Picture"));
}

void TestColorScreen::TheSliderShowsWhatItDoesBesideThePicture() {
    DragSliderTo(10);
    QTRY_COMPARE(Shown("lpicNewColor"), MakeColour(226, 126, 76));
    QCOMPARE(Shown("lpicOrigColor"), Sample);
    QCOMPARE(Shown("lpicNewColor", 1), EraseColor);
    QCOMPARE(PartOf<QSpinBox>(*m_window, "txtAdjuster").value(), 10);
}

void TestColorScreen::TheNumberFieldMovesTheSlider() {
    TypeIn(*m_window, "txtAdjuster", QStringLiteral("-100"));
    QCOMPARE(PartOf<QSlider>(*m_window, "sliAdjuster").value(), -100);
    QTRY_COMPARE(Shown("lpicNewColor"), 0U);
}

void TestColorScreen::AValueIsRelativeToTheAppliedPicture() {
    DragSliderTo(-40);
    DragSliderTo(10);
    QTRY_COMPARE(Shown("lpicNewColor"), MakeColour(226, 126, 76));
    ClickIn(*m_window, "cmdApplyColor");
    QCOMPARE(Shown("lpicOrigColor"), MakeColour(226, 126, 76));
    QCOMPARE(PartOf<QSlider>(*m_window, "sliAdjuster").value(), 0);
    DragSliderTo(-10);
    QTRY_COMPARE(Shown("lpicNewColor"), Sample);
}

void TestColorScreen::WithoutASliderTheEffectShowsAtOnce() {
    Choose(Kind::GrayScale);
    QTRY_COMPARE(Shown("lpicNewColor"), MakeColour(124, 124, 124));
    QCOMPARE(Shown("lpicOrigColor"), Sample);
}

void TestColorScreen::EdgesAreAddedToThePicture() {
    auto picture = PlainPicture(5, 5, MakeColour(90, 90, 90));
    picture->SetImagePixel(2, 2, MakeColour(180, 90, 90));
    Come(picture);
    Choose(Kind::EdgeEnhance);
    QTRY_COMPARE(Shown("lpicNewColor", 2, 2), MakeColour(255, 90, 90));
    ClickIn(*m_window, "cmdApplyColor");
    // The same line again: edges of what was applied.
    const Colour once = Shown("lpicOrigColor", 1, 2);
    Choose(Kind::EdgeEnhance);
    QTRY_VERIFY(PartOf<QPushButton>(*m_window, "cmdApplyColor").isEnabled());
    QCOMPARE(Shown("lpicOrigColor", 1, 2), once);
}

void TestColorScreen::UndoRestoresBothPictures() {
    DragSliderTo(-100);
    ClickIn(*m_window, "cmdApplyColor");
    QCOMPARE(Shown("lpicOrigColor"), 0U);
    DragSliderTo(20);
    QTRY_COMPARE(Shown("lpicNewColor"), MakeColour(51, 51, 51));
    ClickIn(*m_window, "cmdUndoColor");
    QCOMPARE(Shown("lpicOrigColor"), Sample);
    QCOMPARE(Shown("lpicNewColor"), Sample);
    QVERIFY(!PartOf<QPushButton>(*m_window, "cmdUndoColor").isEnabled());
    QCOMPARE(PartOf<QSlider>(*m_window, "sliAdjuster").value(), 0);
}

void TestColorScreen::ResetRestoresThePictureThatCameIn() {
    DragSliderTo(-100);
    ClickIn(*m_window, "cmdApplyColor");
    DragSliderTo(-20);
    ClickIn(*m_window, "cmdApplyColor");
    ClickIn(*m_window, "cmdResetColor");
    QCOMPARE(Shown("lpicOrigColor"), Sample);
    QCOMPARE(Shown("lpicNewColor"), Sample);
    QVERIFY(!PartOf<QPushButton>(*m_window, "cmdResetColor").isEnabled());
}

void TestColorScreen::OnlyWhatIsAppliedLeavesTheScreen() {
    DragSliderTo(10);
    ClickIn(*m_window, "cmdApplyColor");
    DragSliderTo(50);
    QTRY_VERIFY(Shown("lpicNewColor") != MakeColour(226, 126, 76));
    QVERIFY(m_screen->ValidateScreen());
    QCOMPARE(m_kit->Work.TheImage->ImagePixel(0, 0), MakeColour(226, 126, 76));
}

void TestColorScreen::ComingBackKeepsThePictureButNothingTried() {
    DragSliderTo(10);
    ClickIn(*m_window, "cmdApplyColor");
    DragSliderTo(50);
    QVERIFY(m_screen->ValidateScreen());
    m_screen->DisplayScreen(true);
    QCOMPARE(Shown("lpicOrigColor"), MakeColour(226, 126, 76));
    QCOMPARE(Shown("lpicNewColor"), MakeColour(226, 126, 76));
    QVERIFY(PartOf<QPushButton>(*m_window, "cmdUndoColor").isEnabled());
}

void TestColorScreen::AnotherAdjustmentStartsFromTheAppliedPicture() {
    DragSliderTo(10);
    QTRY_COMPARE(Shown("lpicNewColor"), MakeColour(226, 126, 76));
    Choose(Kind::Saturation);
    QCOMPARE(Shown("lpicNewColor"), Sample);
    DragSliderTo(-100);
    QTRY_COMPARE(Shown("lpicNewColor"), MakeColour(124, 124, 124));
}

void TestColorScreen::AnOutdatedSliderJobNeverLands() {
    Come(PlainPicture(1200, 1200, Sample)); // long enough for the next step to overtake it
    Choose(Kind::Hue);
    auto& slider = PartOf<QSlider>(*m_window, "sliAdjuster");
    slider.setFocus();
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(&slider, Qt::Key_PageUp); // 20 degrees each
    }
    QTRY_COMPARE(Shown("lpicNewColor"), MakeColour(50, 200, 100)); // 120 degrees
    // Leaving drops what runs: nothing arrives behind it.
    QTest::keyClick(&slider, Qt::Key_PageUp);
    QVERIFY(m_screen->ValidateScreen());
    QCOMPARE(Shown("lpicNewColor"), Sample);
    Choose(Kind::Brightness);
    DragSliderTo(-100);
    QTRY_COMPARE(Shown("lpicNewColor"), 0U);
    QCOMPARE(Shown("lpicOrigColor"), Sample);
}

void TestColorScreen::ApplyTakesTheValueThatStandsThere() {
    Come(PlainPicture(1200, 1200, Sample));
    Choose(Kind::Hue);
    auto& slider = PartOf<QSlider>(*m_window, "sliAdjuster");
    slider.setFocus();
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(&slider, Qt::Key_PageUp);
    }
    ClickIn(*m_window, "cmdApplyColor"); // before the picture has come
    QCOMPARE(Shown("lpicOrigColor"), MakeColour(50, 200, 100));
}

void TestColorScreen::CancelPutsTheSliderBackToWhatIsShown() {
    Come(PlainPicture(4000, 3000, Sample));
    Choose(Kind::Hue);
    auto& slider = PartOf<QSlider>(*m_window, "sliAdjuster");
    slider.setFocus();
    QTest::keyClick(&slider, Qt::Key_PageUp);
    QTRY_VERIFY(Shown("lpicNewColor") != Sample);
    const Colour shown = Shown("lpicNewColor");
    QTest::keyClick(&slider, Qt::Key_PageUp);
    auto& status = PartOf<JobStatus>(*m_window, "picStatus");
    status.StartStatus({}, 0); // as it comes up by itself when the work takes longer
    QTest::mouseClick(&PartOf<QPushButton>(*m_window, "cmdCancelStatus"), Qt::LeftButton);
    QCOMPARE(Shown("lpicNewColor"), shown);
    QCOMPARE(slider.value(), 20);
    QVERIFY(!status.isVisible());
}

void TestColorScreen::WhiteThatIsMadeShowsAsCloth() {
    auto& view = PartOf<PictureView>(*m_window, "lpicNewColor");
    QVERIFY(ShownAt(view, Shot(view), {3, 3}) == OnScreen(Sample));
    DragSliderTo(100);
    QTRY_COMPARE(Shown("lpicNewColor", 3, 3), EraseColor);
    QCOMPARE(ShownAt(view, Shot(view), {3, 3}), OnScreen(m_kit->Settings.ClothColor));
}

void TestColorScreen::ThePicturesScrollAndZoomTogether() {
    Come(PlainPicture(600, 600, Sample));
    auto& left = PartOf<PictureView>(*m_window, "lpicOrigColor");
    auto& right = PartOf<PictureView>(*m_window, "lpicNewColor");
    QVERIFY(left.IsToFit() && right.IsToFit());
    TypeIn(*m_window, "cmbZoomLevel", QStringLiteral("300"));
    QTest::keyClick(&PartOf<QComboBox>(*m_window, "cmbZoomLevel"), Qt::Key_Return);
    QCOMPARE(left.Zoom(), 300.0);
    QCOMPARE(right.Zoom(), 300.0);
    left.verticalScrollBar()->setValue(123);
    QCOMPARE(right.verticalScrollBar()->value(), 123);
}

void TestColorScreen::SpellsAsTheProgramDoes() {
    m_kit->Context.BritishSpelling = true;
    ShowScreen();
    QCOMPARE(m_screen->Instruction(),
             QStringLiteral(
                 "You can use this screen to fix the colours in your image before importing."));
}

QTEST_MAIN(TestColorScreen)
#include "test_ColorScreen.moc"
