// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include "flosses/AvailColors.h"
#include "flosses/windows/ColorFields.h"
#include "flosses/windows/ColorSample.h"
#include "flosses/windows/frmColors.h"
#include "model/ProgramContext.h"
#include "support/DialogDriver.h"
#include "support/DialogHands.h"
#include "support/TestPaths.h"

namespace zol::test {

namespace {

void Type(QDialog& dialog, const char* field, const char* keys) {
    auto& line = PartOf<QLineEdit>(dialog, field);
    line.setFocus();
    line.selectAll();
    QTest::keyClicks(&line, QLatin1String(keys));
}

QString Channels(QDialog& dialog) {
    return PartOf<QLineEdit>(dialog, "txtRed").text() + QLatin1Char(' ') +
           PartOf<QLineEdit>(dialog, "txtGreen").text() + QLatin1Char(' ') +
           PartOf<QLineEdit>(dialog, "txtBlue").text();
}

/// The colour that a widget shows at a place.
Colour PixelOf(QWidget& widget, QPoint place) {
    const QColor pixel = widget.grab().toImage().pixelColor(place * widget.devicePixelRatioF());
    return MakeColour(static_cast<unsigned>(pixel.red()), static_cast<unsigned>(pixel.green()),
                      static_cast<unsigned>(pixel.blue()));
}

} // namespace

/// The colour mixer, driven by mouse and keys.
class frmColorsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void BeginsWithTheColourGiven();
    void TypedValuesAbove255Become255();
    void FieldsTakeFiguresOnly();
    void AnEmptyFieldCountsAsNothing();
    void AClickTakesTheColourAtTheMouse_data();
    void AClickTakesTheColourAtTheMouse();
    void ArrowKeysMoveInAField_data();
    void ArrowKeysMoveInAField();
    void BrightnessScalesByPercent();
    void TheArrowCanBeDragged();
    void TypingMakesANewColourItself();
    void ThreadsAreOfferedOnlyFromACatalogue();
    void CreateCustomColorGivesTheColourOrMinusOne();
    void WordsAreBritishWhereTheProgramIs();
};

void frmColorsTest::BeginsWithTheColourGiven() {
    frmColors mixer(QStringLiteral("Create Custom Color"), MakeColour(10, 20, 30));
    mixer.show();
    QCOMPARE(mixer.windowTitle(), QStringLiteral("Create Custom Color"));
    QCOMPARE(Channels(mixer), QStringLiteral("10 20 30"));
    QVERIFY(PartOf<ColorSample>(mixer, "picOriginal").Color() == MakeColour(10, 20, 30));
    QVERIFY(PartOf<ColorSample>(mixer, "picSample").Color() == MakeColour(10, 20, 30));
    QCOMPARE(PartOf<BrightnessStrip>(mixer, "picBrightness").Percent(), 100);
}

void frmColorsTest::TypedValuesAbove255Become255() {
    frmColors mixer(QStringLiteral("Color"), 0);
    mixer.show();
    for (const char* field : {"txtRed", "txtGreen", "txtBlue"}) {
        Type(mixer, field, "256");
        QCOMPARE(PartOf<QLineEdit>(mixer, field).text(), QStringLiteral("255"));
        Type(mixer, field, "32767");
        QCOMPARE(PartOf<QLineEdit>(mixer, field).text(), QStringLiteral("255"));
    }
    QCOMPARE(mixer.Chosen(), MakeColour(255, 255, 255));
    QVERIFY(PartOf<ColorSample>(mixer, "picSample").Color() == MakeColour(255, 255, 255));
    QVERIFY(PartOf<ColorSample>(mixer, "picOriginal").Color() == Colour{0});
}

void frmColorsTest::FieldsTakeFiguresOnly() {
    frmColors mixer(QStringLiteral("Color"), MakeColour(1, 2, 3));
    mixer.show();
    Type(mixer, "txtGreen", "a-1.x2");
    QCOMPARE(PartOf<QLineEdit>(mixer, "txtGreen").text(), QStringLiteral("12"));
    QCOMPARE(mixer.Chosen(), MakeColour(1, 12, 3));
}

void frmColorsTest::AnEmptyFieldCountsAsNothing() {
    frmColors mixer(QStringLiteral("Color"), MakeColour(100, 100, 100));
    mixer.show();
    auto& red = PartOf<QLineEdit>(mixer, "txtRed");
    red.setFocus();
    red.selectAll();
    QTest::keyClick(&red, Qt::Key_Delete);
    QCOMPARE(mixer.Chosen(), MakeColour(0, 100, 100));
    QTest::keyClick(&red, Qt::Key_0);
    QCOMPARE(mixer.Chosen(), MakeColour(0, 100, 100));
    QVERIFY(PartOf<ColorSample>(mixer, "picSample").Color() == MakeColour(0, 100, 100));
}

void frmColorsTest::AClickTakesTheColourAtTheMouse_data() {
    QTest::addColumn<int>("page");
    QTest::newRow("picColor") << 0;
    QTest::newRow("pic256Color") << 1;
    QTest::newRow("picDMC3") << 2;
}

void frmColorsTest::AClickTakesTheColourAtTheMouse() {
    ProgramContext context;
    context.AppPath = BuildDataFolder;
    AvailColors threads(context);
    QVERIFY(threads.Initialize("dmc.col"));
    frmColors mixer(QStringLiteral("Color"), MakeColour(7, 7, 7), {nullptr, &threads});
    mixer.show();
    QFETCH(const int, page);
    PartOf<QTabWidget>(mixer, "tabFields").setCurrentIndex(page);
    auto& field = PartOf<ColorField>(mixer, QTest::currentDataTag());
    QVERIFY(field.isVisible());
    const QPoint place(field.width() * 2 / 3, field.height() / 3);
    const Colour shown = PixelOf(field, place);
    QTest::mouseClick(&field, Qt::LeftButton, {}, place);
    QCOMPARE(mixer.Chosen(), shown);
    QVERIFY(mixer.Chosen() != MakeColour(7, 7, 7));
    QVERIFY(PartOf<ColorSample>(mixer, "picSample").Color() == shown);
    // Beyond the edge the mouse still has the nearest place.
    QTest::mousePress(&field, Qt::LeftButton, {}, place);
    QTest::mouseMove(&field, QPoint(-50, -50));
    QTest::mouseRelease(&field, Qt::LeftButton, {}, QPoint(-50, -50));
    QVERIFY(mixer.Chosen() != shown);
}

void frmColorsTest::ArrowKeysMoveInAField_data() {
    AClickTakesTheColourAtTheMouse_data();
}

void frmColorsTest::ArrowKeysMoveInAField() {
    ProgramContext context;
    context.AppPath = BuildDataFolder;
    AvailColors threads(context);
    QVERIFY(threads.Initialize("dmc.col"));
    frmColors mixer(QStringLiteral("Color"), MakeColour(200, 60, 60), {nullptr, &threads});
    mixer.show();
    QFETCH(const int, page);
    PartOf<QTabWidget>(mixer, "tabFields").setCurrentIndex(page);
    auto& field = PartOf<ColorField>(mixer, QTest::currentDataTag());
    QTest::mouseClick(&field, Qt::LeftButton, {}, field.rect().center());
    const Colour first = mixer.Chosen();
    QTest::keyClick(&field, Qt::Key_Right, Qt::ShiftModifier);
    const Colour second = mixer.Chosen();
    QVERIFY(second != first);
    QTest::keyClick(&field, Qt::Key_Left, Qt::ShiftModifier);
    QTest::keyClick(&field, Qt::Key_Up);
    const Colour third = mixer.Chosen();
    QTest::keyClick(&field, Qt::Key_Down);
    QVERIFY(third != mixer.Chosen());
}

void frmColorsTest::BrightnessScalesByPercent() {
    frmColors mixer(QStringLiteral("Color"), MakeColour(100, 50, 20));
    mixer.show();
    auto& strip = PartOf<BrightnessStrip>(mixer, "picBrightness");
    QTest::keyClick(&strip, Qt::Key_Left);
    QCOMPARE(strip.Percent(), 99);
    QCOMPARE(mixer.Chosen(), MakeColour(99, 50, 20));
    QTest::keyClick(&strip, Qt::Key_Home);
    QCOMPARE(Channels(mixer), QStringLiteral("0 0 0"));
    QTest::keyClick(&strip, Qt::Key_End);
    QCOMPARE(Channels(mixer), QStringLiteral("200 100 40"));
    for (int i = 0; i < 10; ++i) {
        QTest::keyClick(&strip, Qt::Key_PageDown);
    }
    QCOMPARE(strip.Percent(), 100);
    QCOMPARE(Channels(mixer), QStringLiteral("100 50 20"));
}

void frmColorsTest::TheArrowCanBeDragged() {
    frmColors mixer(QStringLiteral("Color"), MakeColour(100, 50, 20));
    mixer.show();
    auto& strip = PartOf<BrightnessStrip>(mixer, "picBrightness");
    auto& arrow = PartOf<QWidget>(mixer, "picArrow");
    const QPoint before = arrow.geometry().center();
    QTest::mousePress(&strip, Qt::LeftButton, {}, before);
    QTest::mouseMove(&strip, QPoint(before.x() / 2, before.y()));
    QTest::mouseRelease(&strip, Qt::LeftButton, {}, QPoint(before.x() / 2, before.y()));
    QVERIFY(strip.Percent() < 60 && strip.Percent() > 40);
    QVERIFY(qAbs(arrow.geometry().center().x() - before.x() / 2) <= 1);
    QCOMPARE(PartOf<QLineEdit>(mixer, "txtRed").text(), QString::number(strip.Percent()));
}

void frmColorsTest::TypingMakesANewColourItself() {
    frmColors mixer(QStringLiteral("Color"), MakeColour(100, 50, 20));
    mixer.show();
    auto& strip = PartOf<BrightnessStrip>(mixer, "picBrightness");
    QTest::keyClick(&strip, Qt::Key_Home);
    Type(mixer, "txtRed", "80");
    QCOMPARE(strip.Percent(), 100);
    QCOMPARE(mixer.Chosen(), MakeColour(80, 0, 0));
    QTest::keyClick(&strip, Qt::Key_End);
    QCOMPARE(mixer.Chosen(), MakeColour(160, 0, 0));
}

void frmColorsTest::ThreadsAreOfferedOnlyFromACatalogue() {
    frmColors mixer(QStringLiteral("Color"), 0);
    QCOMPARE(PartOf<QTabWidget>(mixer, "tabFields").count(), 2);
}

void frmColorsTest::CreateCustomColorGivesTheColourOrMinusOne() {
    DialogDriver user({[](QDialog& mixer) {
                           Type(mixer, "txtGreen", "77");
                           QTest::mouseClick(&PartOf<QPushButton>(mixer, "cmdOK"), Qt::LeftButton);
                       },
                       [](QDialog& mixer) {
                           Type(mixer, "txtGreen", "77");
                           QTest::keyClick(&mixer, Qt::Key_Escape);
                       }});
    const auto mix = [] {
        return frmColors::CreateCustomColor(QStringLiteral("Create Custom Color"),
                                            MakeColour(1, 2, 3), nullptr);
    };
    QCOMPARE(mix(), static_cast<int>(MakeColour(1, 77, 3)));
    QCOMPARE(mix(), -1);
    QVERIFY(user.AllDone());
}

void frmColorsTest::WordsAreBritishWhereTheProgramIs() {
    ProgramContext inBritain;
    inBritain.BritishSpelling = true;
    frmColors mixer(QStringLiteral("Create Custom Colour"), 0, {nullptr, nullptr, &inBritain});
    const auto& tabs = PartOf<QTabWidget>(mixer, "tabFields");
    QCOMPARE(tabs.tabText(1).remove(QLatin1Char('&')), QStringLiteral("256 Colours"));
    QCOMPARE(PartOf<ColorSample>(mixer, "picSample").accessibleName(),
             QStringLiteral("New colour"));
    QCOMPARE(mixer.windowTitle(), QStringLiteral("Create Custom Colour"));
}

} // namespace zol::test

QTEST_MAIN(zol::test::frmColorsTest)
#include "test_frmColors.moc"
