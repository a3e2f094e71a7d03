// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include "import/windows/DeskKit.h"
#include "import/windows/PictureView.h"
#include "import/windows/PictureViewKit.h"
#include "import/windows/SizeScreen.h"
#include "support/DialogHands.h"

namespace zol::test {

/// How large the picture is stitched, worked as a user does.
class SizeScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ItStartsAsLargeAsThePattern();
    void AWidthOfNothingIsToldAndKeepsTheFocus();
    void AHeightOfNothingIsToldAndKeepsTheFocus();
    void ASizeThatNoPatternHoldsIsTold();
    void AClothOfNothingIsTold();
    void TheHeightGoesWithTheTypedWidth();
    void UnitsAndClothMakeTheStitches();
    void RoughColorsAreThoseOfThePicture();
    void TheEditBoxIsFilled();
    void ItIsShownAtRealSize();
    void ErasedSquaresShowTheCloth();
    void ComingBackResizesWhatCameIn();

private:
    /// A pattern of 140 by 70 on cloth of 14, a picture of 40 by 30.
    struct Shown {
        explicit Shown(std::optional<SquareRect> editBox = std::nullopt)
            : Screen(Prepare(editBox), nullptr) {
            Screen.resize(800, 500);
            Screen.DisplayScreen(false);
            Screen.show();
        }
        ImportDesk& Prepare(std::optional<SquareRect> editBox) {
            Kit.Design.Initialize(140, 70, 14, 14);
            Kit.Work.Size = {true, 14, 14, CmPerUnitInches};
            Kit.Settings.Units = "inches";
            Kit.Settings.ClothColor = MakeColour(10, 220, 240);
            Kit.Work.EditBox = editBox;
            Kit.Work.TheImage = PlacePicture(40, 30);
            return Kit.Desk;
        }
        [[nodiscard]] QString Text(const char* field) {
            return PartOf<QLineEdit>(Screen, field).text();
        }
        [[nodiscard]] bool Enabled(const char* part) {
            return PartOf<QWidget>(Screen, part).isEnabled();
        }
        [[nodiscard]] QString Words(const char* label) {
            return PartOf<QLabel>(Screen, label).text();
        }
        [[nodiscard]] QSize Resized() {
            return Screen.ValidateScreen()
                       ? QSize(Kit.Work.TheImage->ImageWidth(), Kit.Work.TheImage->ImageHeight())
                       : QSize();
        }
        /// What was told, with the focus where it is to be mended.
        [[nodiscard]] std::string Told(const char* field) {
            const SharedPicture before = Kit.Work.TheImage;
            const bool refused = QTest::qWaitForWindowActive(&Screen) && !Screen.ValidateScreen() &&
                                 Kit.Work.TheImage == before;
            return refused && PartOf<QWidget>(Screen, field).hasFocus() && Kit.User.told.size() == 1
                       ? Kit.User.told[0].text
                       : std::string();
        }
        DeskKit Kit;
        SizeScreen Screen;
    };
};

void SizeScreenTest::ItStartsAsLargeAsThePattern() {
    Shown shown;
    QCOMPARE(shown.Screen.Instruction(),
             QStringLiteral("This screen shows what the acual size of your stitched pattern will "
                            "be when completed."));
    QVERIFY(PartOf<QRadioButton>(shown.Screen, "optUnits").isChecked());
    QCOMPARE(PartOf<QRadioButton>(shown.Screen, "optUnits").text(), QStringLiteral("&Inches"));
    QCOMPARE(shown.Text("txtWidth"), QStringLiteral("10.000"));
    QCOMPARE(shown.Text("txtHeight"), QStringLiteral("7.500"));
    QVERIFY(PartOf<QCheckBox>(shown.Screen, "chkAspect").isChecked());
    QVERIFY(!shown.Enabled("txtHeight") && !shown.Enabled("lblImportHeight"));
    auto& cloth = PartOf<QComboBox>(shown.Screen, "cmbClothCount");
    QCOMPARE(cloth.currentText(), QStringLiteral("14"));
    QCOMPARE(cloth.count(), 8);
    QCOMPARE(cloth.itemText(7), QStringLiteral("24"));
    QVERIFY(!shown.Enabled("chkUseEditBox"));
    QVERIFY(!PartOf<QCheckBox>(shown.Screen, "chkUseEditBox").isChecked());
    QCOMPARE(shown.Words("lblImageWidth"), QStringLiteral("Image Width: 40 pixels"));
    QCOMPARE(shown.Words("lblImageHeight"), QStringLiteral("Image Height: 30 pixels"));
    QVERIFY(!PartOf<QLabel>(shown.Screen, "lblEditBoxWidth").isVisible());
    QCOMPARE(shown.Resized(), QSize(140, 105));
    QVERIFY(!shown.Kit.Work.UseEditBox);
}

void SizeScreenTest::AWidthOfNothingIsToldAndKeepsTheFocus() {
    Shown shown;
    TypeIn(shown.Screen, "txtWidth", QStringLiteral("0"));
    QCOMPARE(shown.Told("txtWidth"), std::string("Pattern width must be greater than zero"));
}

void SizeScreenTest::AHeightOfNothingIsToldAndKeepsTheFocus() {
    Shown shown;
    ClickIn(shown.Screen, "chkAspect");
    QVERIFY(shown.Enabled("txtHeight") && shown.Enabled("lblImportHeight"));
    TypeIn(shown.Screen, "txtHeight", QStringLiteral("0"));
    QCOMPARE(shown.Told("txtHeight"), std::string("Pattern height must be greater than zero"));
}

void SizeScreenTest::ASizeThatNoPatternHoldsIsTold() {
    Shown shown;
    ClickIn(shown.Screen, "optStitches");
    TypeIn(shown.Screen, "txtWidth", QStringLiteral("16383"));
    QCOMPARE(shown.Told("txtWidth"), std::string("Your pattern is too large."));
    QVERIFY(shown.Kit.User.told[0].more.find("16000000") != std::string::npos);
}

void SizeScreenTest::AClothOfNothingIsTold() {
    Shown shown;
    auto& cloth = PartOf<QComboBox>(shown.Screen, "cmbClothCount");
    cloth.setFocus();
    QTest::keyClick(cloth.lineEdit(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(cloth.lineEdit(), QStringLiteral("0"));
    QCOMPARE(cloth.currentText(), QStringLiteral("0"));
    QCOMPARE(shown.Told("cmbClothCount"), std::string("Your cloth count is invalid."));
}

void SizeScreenTest::TheHeightGoesWithTheTypedWidth() {
    Shown shown;
    ClickIn(shown.Screen, "optStitches");
    QCOMPARE(shown.Text("txtWidth"), QStringLiteral("140"));
    TypeIn(shown.Screen, "txtWidth", QStringLiteral("20"));
    QCOMPARE(shown.Text("txtWidth"), QStringLiteral("20"));
    QCOMPARE(shown.Text("txtHeight"), QStringLiteral("15"));
    QCOMPARE(shown.Words("lblStitches"), QStringLiteral("20 × 15 stitches"));
    QTRY_COMPARE(PartOf<QWidget>(shown.Screen, "picStatus").isVisible(), false);
    QCOMPARE(shown.Resized(), QSize(20, 15));
    ClickIn(shown.Screen, "chkAspect");
    TypeIn(shown.Screen, "txtWidth", QStringLiteral("33"));
    TypeIn(shown.Screen, "txtHeight", QStringLiteral("7"));
    QCOMPARE(shown.Resized(), QSize(33, 7));
    ClickIn(shown.Screen, "chkAspect");
    QCOMPARE(shown.Text("txtHeight"), QStringLiteral("25"));
}

void SizeScreenTest::UnitsAndClothMakeTheStitches() {
    Shown shown;
    TypeIn(shown.Screen, "txtWidth", QStringLiteral("2"));
    QCOMPARE(shown.Text("txtHeight"), QStringLiteral("1.500"));
    auto& cloth = PartOf<QComboBox>(shown.Screen, "cmbClothCount");
    cloth.setFocus();
    QTest::keyClick(cloth.lineEdit(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(cloth.lineEdit(), QStringLiteral("11"));
    QCOMPARE(shown.Resized(), QSize(22, 16)); // 16.5, a half to the even one
    QCOMPARE(shown.Kit.Work.Size.ClothCountX, 11);
    QCOMPARE(shown.Kit.Work.Size.ClothCountY, 11);
    ClickIn(shown.Screen, "optStitches");
    QCOMPARE(shown.Text("txtWidth"), QStringLiteral("22"));
    ClickIn(shown.Screen, "optUnits");
    QCOMPARE(shown.Text("txtWidth"), QStringLiteral("2.000"));
}

void SizeScreenTest::RoughColorsAreThoseOfThePicture() {
    Shown shown;
    ClickIn(shown.Screen, "optStitches");
    TypeIn(shown.Screen, "txtWidth", QStringLiteral("4"));
    QCOMPARE(shown.Resized(), QSize(4, 3));
    const SharedPicture smooth = shown.Kit.Work.TheImage;
    ClickIn(shown.Screen, "chkSmoothColors");
    QCOMPARE(shown.Resized(), QSize(4, 3));
    const SharedPicture rough = shown.Kit.Work.TheImage;
    QVERIFY(*rough != *smooth);
    const SharedPicture source = PlacePicture(40, 30);
    for (const Colour pixel : rough->Pixels()) {
        const auto& all = source->Pixels();
        QVERIFY(std::find(all.begin(), all.end(), pixel) != all.end());
    }
}

void SizeScreenTest::TheEditBoxIsFilled() {
    Shown shown(SquareRect{11, 5, 30, 54});
    QVERIFY(shown.Enabled("chkUseEditBox"));
    QCOMPARE(shown.Words("lblEditBoxWidth"), QStringLiteral("Edit Box Width: 20"));
    QCOMPARE(shown.Words("lblEditBoxHeight"), QStringLiteral("Edit Box Height: 50"));
    ClickIn(shown.Screen, "optStitches");
    ClickIn(shown.Screen, "chkUseEditBox");
    for (const char* part : {"txtWidth", "txtHeight", "lblImportWidth", "lblImportHeight",
                             "cmbClothCount", "lblClothCount"}) {
        QVERIFY2(!shown.Enabled(part), part);
    }
    QCOMPARE(shown.Text("txtWidth"), QStringLiteral("20"));
    QCOMPARE(shown.Text("txtHeight"), QStringLiteral("50"));
    QCOMPARE(shown.Resized(), QSize(20, 50));
    QVERIFY(shown.Kit.Work.UseEditBox);
    // It comes into view once more: still the whole box.
    shown.Screen.DisplayScreen(true);
    QCOMPARE(shown.Resized(), QSize(20, 50));
    ClickIn(shown.Screen, "chkUseEditBox");
    QVERIFY(shown.Enabled("txtWidth") && shown.Enabled("cmbClothCount"));
    QVERIFY(!shown.Enabled("txtHeight"));
    QVERIFY(shown.Resized().isValid());
    QVERIFY(!shown.Kit.Work.UseEditBox);
}

void SizeScreenTest::ItIsShownAtRealSize() {
    Shown shown;
    auto& view = PartOf<PictureView>(shown.Screen, "lpicResized");
    QTRY_VERIFY(view.Shown() != nullptr);
    QCOMPARE(view.Zoom(), 100.0);
    // A stitch on cloth of 14 is a 14th of an inch of the screen.
    const double stitch = view.Place().ScaleX() / view.Place().Ratio;
    QVERIFY(std::abs(stitch - shown.Screen.logicalDpiX() / 14.0) < 0.05);
}

void SizeScreenTest::ErasedSquaresShowTheCloth() {
    Shown shown;
    auto& view = PartOf<PictureView>(shown.Screen, "lpicResized");
    shown.Kit.Work.TheImage = PlainPicture(40, 30, EraseColor);
    shown.Screen.DisplayScreen(false);
    QTRY_VERIFY(view.Shown() != nullptr && view.Shown()->ImagePixel(3, 3) == EraseColor);
    QCOMPARE(ShownAt(view, Shot(view), {3, 3}), OnScreen(shown.Kit.Settings.ClothColor));
}

void SizeScreenTest::ComingBackResizesWhatCameIn() {
    Shown shown;
    ClickIn(shown.Screen, "optStitches");
    TypeIn(shown.Screen, "txtWidth", QStringLiteral("4"));
    QCOMPARE(shown.Resized(), QSize(4, 3));
    shown.Screen.DisplayScreen(true);
    TypeIn(shown.Screen, "txtWidth", QStringLiteral("40"));
    QCOMPARE(shown.Resized(), QSize(40, 30));
    QCOMPARE(*shown.Kit.Work.TheImage, *PlacePicture(40, 30));
}

} // namespace zol::test

QTEST_MAIN(zol::test::SizeScreenTest)
#include "test_SizeScreen.moc"
