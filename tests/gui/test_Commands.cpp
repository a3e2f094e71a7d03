// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QSlider>
#include <QToolBar>

#include <algorithm>

#include "grid/windows/PaletteStrip.h"
#include "gui/RunningProgram.h"

namespace zol::test {

/// Tool buttons, keys, focus, and the commands on the whole design.
class CommandsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ToolTipsShowTheKeys();
    void ToolButtonsSetTheDrawMode_data();
    void ToolButtonsSetTheDrawMode();
    void EraseIsAFlagWhilePainting();
    void PaintOnceShowsPaintPressed();
    void MirrorButtonsGoOnAndOff();
    void StitchButtonsFollowTheMenu();
    void KnotStyleTakesTheMark();
    void FlexibleBackstitchIsKept();
    void LettersTypedIntoTheZoomBoxAreNoCommands();
    void LettersOnTheClothAre();
    void ControlEqualsZoomsIn();
    void ToolButtonsLeaveTheFocusOnTheCloth();
    void ZoomBoxGivesTheFocusBack();
    void TabsGoFromBarsOverTheClothToTheSlider();
    void NarrowWindowKeepsEveryTool();
    void ZoomToolRemembersTheScrollBars();
    void CenterIsOneStep();
    void CropIsOneStepAndUndoBringsTheSizeBack();
    void CropToMoreThanCanBeIsRefused();
    void EmptyPatternStaysAsItIs();
    void ClearPaletteKeepsTheCurrentFloss();
    void ClearPaletteTakesTheCurrentFloss();

private:
    static bool Activate(RunningProgram& program) {
        program.Window().activateWindow();
        program.Area().Canvas().setFocus();
        return QTest::qWaitForWindowActive(&program.Window());
    }
    static QString DescriptionOfCurrent(RunningProgram& program, int index) {
        return QString::fromStdString(program.Design().GetPalette().GetFlossLongDesc(index));
    }
    /// The number of the floss that the strip frames as the current one.
    static int Current(RunningProgram& program) {
        return program.Window().findChild<PaletteStrip*>()->Current();
    }
};

void CommandsTest::ToolTipsShowTheKeys() {
    StartedProgram program;
    QCOMPARE(program.Find<QToolButton>("New")->toolTip(), QStringLiteral("New (Ctrl+N)"));
    QCOMPARE(program.Find<QToolButton>("Open")->toolTip(), QStringLiteral("Open (Ctrl+O)"));
    QCOMPARE(program.Find<QToolButton>("ZOOMTOOL")->toolTip(), QStringLiteral("Zoom Tool (Z)"));
    QCOMPARE(program.Find<QToolButton>("MIRRORMODE_V")->toolTip(),
             QStringLiteral("Mirror Mode: Vertical (Ctrl+Shift+V)"));
    QCOMPARE(program.Find<QToolButton>("MIRRORMODE_V")->accessibleName(),
             QStringLiteral("Mirror Mode: Vertical"));
    QCOMPARE(program.Find<QToolButton>("ZOOMTOOL3")->toolTip(),
             QStringLiteral("Previous Zoom (Ctrl+0)"));
}

void CommandsTest::ToolButtonsSetTheDrawMode_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("on");
    QTest::addColumn<int>("off");
    const auto row = [](const char* key, int on, int off) {
        QTest::newRow(key) << QString::fromLatin1(key) << on << off;
    };
    row("DRAWMODE_STITCHES", DrawStitches, DrawStitches);
    row("DRAWMODE_LINES", DrawLines, DrawLines);
    row("PAINT", DrawPaint, DrawStitches);
    row("COLORPICKER", DrawColorPicker, DrawStitches);
    row("ERASE", DrawErase, DrawStitches);
    row("ZOOMTOOL", DrawZoom, DrawStitches);
}

void CommandsTest::ToolButtonsSetTheDrawMode() {
    QFETCH(const QString, key);
    QFETCH(const int, on);
    QFETCH(const int, off);
    StartedProgram program;
    const QByteArray name = key.toLatin1();
    auto* button = program.Find<QToolButton>(name.constData());
    program.Click(name.constData());
    QCOMPARE(int{program.Window().Modes().GetDrawMode()}, on);
    QVERIFY(button->isChecked());
    program.Click(name.constData());
    QCOMPARE(int{program.Window().Modes().GetDrawMode()}, off);
    QCOMPARE(button->isChecked(), on == off);
}

void CommandsTest::EraseIsAFlagWhilePainting() {
    StartedProgram program;
    program.Click("PAINT");
    program.Click("ERASE");
    QCOMPARE(program.Window().Modes().GetDrawMode(), DrawPaint);
    QVERIFY(program.Window().Modes().PaintErases());
    QVERIFY(program.Find<QToolButton>("ERASE")->isChecked());
    QVERIFY(program.Find<QToolButton>("PAINT")->isChecked());
    program.Click("ERASE");
    QCOMPARE(program.Window().Modes().GetDrawMode(), DrawPaint);
    QVERIFY(!program.Find<QToolButton>("ERASE")->isChecked());
}

void CommandsTest::PaintOnceShowsPaintPressed() {
    StartedProgram program;
    program.Choose("mnuPaintOnce");
    QCOMPARE(program.Window().Modes().GetDrawMode(), DrawPaintOnce);
    QVERIFY(program.Find<QToolButton>("PAINT")->isChecked());
    program.Choose("mnuPaintOnce");
    QVERIFY(program.Command("mnuPaintOnce").isChecked());
    program.Click("PAINT");
    QCOMPARE(program.Window().Modes().GetDrawMode(), DrawStitches);
    QVERIFY(!program.Command("mnuPaintOnce").isChecked());
}

void CommandsTest::MirrorButtonsGoOnAndOff() {
    StartedProgram program;
    QVERIFY(program.Command("mnuMirrorNone").isChecked());
    program.Click("MIRRORMODE_V");
    QVERIFY(program.Find<QToolButton>("MIRRORMODE_V")->isChecked());
    QVERIFY(!program.Command("mnuMirrorNone").isChecked());
    program.Click("MIRRORMODE_H");
    QVERIFY(program.Find<QToolButton>("MIRRORMODE_H")->isChecked());
    QVERIFY(!program.Find<QToolButton>("MIRRORMODE_V")->isChecked());
    program.Click("MIRRORMODE_H");
    QVERIFY(!program.Find<QToolButton>("MIRRORMODE_H")->isChecked());
    QVERIFY(program.Command("mnuMirrorNone").isChecked());
    // A stitch left of the axis comes back at its right.
    program.Choose("mnuMirrorVertical");
    program.ClickSquare(10, 10);
    program.ClickSquare(8, 10);
    QCOMPARE(program.Design().GetStitchType(12, 10, 0), int{StitchWhole});
}

void CommandsTest::StitchButtonsFollowTheMenu() {
    StartedProgram program;
    program.Click("STITCH_TBH");
    QVERIFY(program.Command("mnuStitchHalfT2B").isChecked());
    QVERIFY(!program.Find<QToolButton>("STITCH_WHOLE")->isChecked());
    program.Click("STITCH_TBH");
    QVERIFY(program.Find<QToolButton>("STITCH_TBH")->isChecked());
    program.Click("DRAWMODE_LINES");
    program.Choose("mnuStitchFrenchKnot");
    QVERIFY(program.Find<QToolButton>("STITCH_FKNOT")->isChecked());
    QCOMPARE(program.Window().Modes().GetDrawMode(), DrawStitches);
    QVERIFY(program.Find<QToolButton>("DRAWMODE_STITCHES")->isChecked());
    QVERIFY(!program.Find<QToolButton>("DRAWMODE_LINES")->isChecked());
}

void CommandsTest::KnotStyleTakesTheMark() {
    StartedProgram program;
    QVERIFY(program.Command("mnuFK0").isChecked());
    program.Choose("mnuFK3");
    QVERIFY(program.Command("mnuFK3").isChecked());
    QVERIFY(!program.Command("mnuFK0").isChecked());
    QCOMPARE(int{program.Parts().Context.FrenchKnotStyle}, 3);
    program.Choose("mnuFK3");
    QVERIFY(program.Command("mnuFK3").isChecked());
}

void CommandsTest::FlexibleBackstitchIsKept() {
    StartedProgram program;
    QVERIFY(program.Command("mnuOptionsFlexBackstitch").isChecked());
    program.Choose("mnuOptionsFlexBackstitch");
    QVERIFY(!program.Command("mnuOptionsFlexBackstitch").isChecked());
    QVERIFY(program.Parts().Settings.AnchorBackstitches);
    QCOMPARE(program.Parts().Store.ReadSetting("Design Grid Opts", "AnchorBackstitches", ""),
             std::string("TRUE"));
}

void CommandsTest::LettersTypedIntoTheZoomBoxAreNoCommands() {
    StartedProgram program;
    QVERIFY(Activate(program));
    auto* box = program.Find<QComboBox>("cmbZoom");
    box->setFocus();
    QVERIFY(box->hasFocus());
    for (const int key : {Qt::Key_P, Qt::Key_E, Qt::Key_I, Qt::Key_Z}) {
        QTest::keyClick(box, static_cast<Qt::Key>(key));
        QCOMPARE(program.Window().Modes().GetDrawMode(), DrawStitches);
    }
    QCOMPARE(box->currentText(), QStringLiteral("100%"));
    box->lineEdit()->selectAll();
    QTest::keyClicks(box, QStringLiteral("25"));
    QTest::keyClick(box, Qt::Key_Return);
    QCOMPARE(program.Area().Zoom().GridZoom(), 25);
    QCOMPARE(box->lineEdit()->selectedText(), QStringLiteral("25%"));
}

void CommandsTest::LettersOnTheClothAre() {
    StartedProgram program;
    QVERIFY(Activate(program));
    QTest::keyClick(&program.Grid(), Qt::Key_P);
    QCOMPARE(program.Window().Modes().GetDrawMode(), DrawPaint);
    QTest::keyClick(&program.Grid(), Qt::Key_P);
    QTest::keyClick(&program.Grid(), Qt::Key_E);
    QCOMPARE(program.Window().Modes().GetDrawMode(), DrawErase);
    QTest::keyClick(&program.Grid(), Qt::Key_I);
    QCOMPARE(program.Window().Modes().GetDrawMode(), DrawColorPicker);
    QTest::keyClick(&program.Grid(), Qt::Key_F2);
    QCOMPARE(program.Window().Modes().GetDrawMode(), DrawStitches);
    QTest::keyClick(&program.Grid(), Qt::Key_Z);
    QCOMPARE(program.Window().Modes().GetDrawMode(), DrawZoom);
    QTest::keyClick(&program.Grid(), Qt::Key_Escape);
    QCOMPARE(program.Window().Modes().GetDrawMode(), DrawStitches);
}

void CommandsTest::ControlEqualsZoomsIn() {
    StartedProgram program;
    QVERIFY(Activate(program));
    QTest::keyClick(&program.Grid(), Qt::Key_Equal, Qt::ControlModifier);
    QTRY_COMPARE(program.Area().Zoom().GridZoom(), 200);
    QTest::keyClick(&program.Grid(), Qt::Key_Plus, Qt::ControlModifier);
    QTRY_COMPARE(program.Area().Zoom().GridZoom(), 300);
    QTest::keyClick(&program.Grid(), Qt::Key_0, Qt::ControlModifier);
    QTRY_COMPARE(program.Area().Zoom().GridZoom(), 200);
    QTest::keyClick(&program.Grid(), Qt::Key_Minus, Qt::ControlModifier);
    QTRY_COMPARE(program.Area().Zoom().GridZoom(), 100);
}

void CommandsTest::ToolButtonsLeaveTheFocusOnTheCloth() {
    StartedProgram program;
    QVERIFY(Activate(program));
    for (const char* key : {"GRIDLINES", "DRAWMODE_LINES", "STITCH_WHOLE", "ZOOMTOOL1"}) {
        program.Click(key);
        QVERIFY2(program.Area().Canvas().hasFocus(), key);
    }
}

void CommandsTest::ZoomBoxGivesTheFocusBack() {
    StartedProgram program;
    QVERIFY(Activate(program));
    auto* box = program.Find<QComboBox>("cmbZoom");
    box->setFocus();
    box->showPopup();
    QVERIFY(box->view()->isVisible());
    QTest::keyClick(box->view(), Qt::Key_Down);
    QTest::keyClick(box->view(), Qt::Key_Return);
    QTRY_VERIFY(program.Area().Canvas().hasFocus());
    box->setFocus();
    box->lineEdit()->selectAll();
    QTest::keyClicks(box, QStringLiteral("7"));
    QTest::keyClick(box, Qt::Key_Escape);
    QVERIFY(program.Area().Canvas().hasFocus());
    QVERIFY(program.Area().Zoom().GridZoom() != 7);
    QCOMPARE(box->currentText(),
             QString::number(program.Area().Zoom().GridZoom()) + QLatin1Char('%'));
}

void CommandsTest::TabsGoFromBarsOverTheClothToTheSlider() {
    StartedProgram program;
    QVERIFY(Activate(program));
    program.Find<QToolButton>("New")->setFocus();
    QStringList seen;
    for (int i = 0; i < 80; ++i) {
        const QWidget* now = QApplication::focusWidget();
        QVERIFY(now != nullptr);
        if (seen.contains(now->objectName())) {
            break;
        }
        seen << now->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    const QList<qsizetype> places{
        seen.indexOf(QStringLiteral("New")),          seen.indexOf(QStringLiteral("ERASE")),
        seen.indexOf(QStringLiteral("STITCH_WHOLE")), seen.indexOf(QStringLiteral("picGrid")),
        seen.indexOf(QStringLiteral("picPalette")),   seen.indexOf(QStringLiteral("zoomSlider"))};
    QVERIFY2(places.first() == 0 && std::is_sorted(places.begin(), places.end()),
             qPrintable(seen.join(u' ')));
}

void CommandsTest::NarrowWindowKeepsEveryTool() {
    StartedProgram program;
    program.Window().resize(640, 480);
    QTRY_COMPARE(program.Window().width(), 640);
    auto* bar = program.Find<QToolBar>("tbKorvantaToolBar");
    auto* more = bar->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
    QVERIFY(more != nullptr);
    QTRY_VERIFY(more->isVisible());
    auto* erase = program.Find<QToolButton>("ERASE");
    QVERIFY(!erase->isVisible());
    QTest::mouseClick(more, Qt::LeftButton);
    QTRY_VERIFY(erase->isVisible());
    QTRY_VERIFY(bar->rect().contains(erase->geometry()));
    QTest::mouseClick(erase, Qt::LeftButton);
    QCOMPARE(program.Window().Modes().GetDrawMode(), DrawErase);
}

void CommandsTest::ZoomToolRemembersTheScrollBars() {
    StartedProgram program;
    program.Area().Zoom().ChangeZoom(600);
    program.Area().ScrollGrid(20, 30, true);
    program.Click("ZOOMTOOL");
    QCOMPARE(program.Area().Zoom().SavedScrollX(), 20);
    QCOMPARE(program.Area().Zoom().SavedScrollY(), 30);
    program.Area().ScrollGrid(22, 33, true);
    program.Click("ZOOMTOOL");
    QCOMPARE(program.Area().Zoom().SavedScrollX(), 20);
}

void CommandsTest::CenterIsOneStep() {
    StartedProgram program;
    program.ClickSquare(3, 3);
    program.Design().SetChanged(false);
    program.Choose("mnuCenterBoth");
    QVERIFY(program.Design().IsChanged());
    QCOMPARE(program.Design().GetStitchCount(3, 3), 0);
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Center"));
    program.Choose("mnuEditUndo");
    QCOMPARE(program.Design().GetStitchType(3, 3, 0), int{StitchWhole});
    QVERIFY(!program.Command("mnuEditUndo").isEnabled());
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo"));
}

void CommandsTest::CropIsOneStepAndUndoBringsTheSizeBack() {
    StartedProgram program;
    const QSize whole = program.Grid().size();
    program.ClickSquare(2, 2);
    program.ClickSquare(5, 5);
    program.Choose("mnuToolsShrink");
    QCOMPARE(program.Design().GetPatternWidth(), 6);
    QCOMPARE(program.Design().GetPatternHeight(), 6);
    QVERIFY(program.Grid().width() < whole.width());
    program.Choose("mnuEditUndo");
    QCOMPARE(program.Design().GetPatternWidth(), 100);
    QCOMPARE(program.Grid().size(), whole);
}

void CommandsTest::CropToMoreThanCanBeIsRefused() {
    StartedProgram program;
    program.ClickSquare(2, 2);
    const QString undo = program.Command("mnuEditUndo").text();
    // One square of cloth more on every side would be above 16 million squares.
    Pattern& design = program.Design();
    design.Resize(4000, 4000, 14, 14);
    design.SetStitch(1, 1, StitchWhole, 1, 0);
    design.SetStitch(4000, 3999, StitchWhole, 1, 0);
    design.SetChanged(false);
    program.Choose("mnuToolsShrink");
    QCOMPARE(program.User.ToldTexts(), (std::vector<std::string>{"Out of memory"}));
    QCOMPARE(program.User.told.back().more,
             std::string("A pattern of this size cannot be made. What was on the grid is still "
                         "there."));
    QCOMPARE(design.GetPatternWidth(), 4000);
    QCOMPARE(design.GetStitchCount(1, 1), 1);
    QVERIFY(!design.IsChanged());
    QCOMPARE(program.Command("mnuEditUndo").text(), undo);
}

void CommandsTest::EmptyPatternStaysAsItIs() {
    StartedProgram program;
    for (const char* name : {"mnuCenterVertical", "mnuCenterHorizontal", "mnuCenterBoth",
                             "mnuToolsShrink", "mnuClearPalette"}) {
        program.Choose(name);
        QCOMPARE(program.Design().GetPatternWidth(), 100);
        QCOMPARE(program.Design().GetPatternHeight(), 100);
        QVERIFY2(program.Design().IsChanged(), name);
        program.Design().SetChanged(false);
    }
    QCOMPARE(program.Design().GetPalette().GetEntriesCount(), 1);
    QCOMPARE(Current(program), 1);
    QVERIFY(program.User.told.empty());
}

void CommandsTest::ClearPaletteKeepsTheCurrentFloss() {
    StartedProgram program;
    const int before = program.Design().GetPalette().GetEntriesCount();
    QVERIFY(before > 4);
    program.Window().Modes().SetCurrentColor(4);
    const QString floss = DescriptionOfCurrent(program, 4);
    program.ClickSquare(7, 7);
    program.Choose("mnuClearPalette");
    QCOMPARE(program.Design().GetPalette().GetEntriesCount(), 1);
    QCOMPARE(Current(program), 1);
    QCOMPARE(DescriptionOfCurrent(program, 1), floss);
    program.Choose("mnuEditUndo");
    QCOMPARE(program.Design().GetPalette().GetEntriesCount(), before);
    QCOMPARE(Current(program), 4);
    program.ClickSquare(8, 8);
    QCOMPARE(program.Design().GetStitchPaletteIndex(8, 8), 4);
}

void CommandsTest::ClearPaletteTakesTheCurrentFloss() {
    StartedProgram program;
    for (const int floss : {2, 3, 4}) {
        program.Window().Modes().SetCurrentColor(floss);
        program.ClickSquare(floss, 7);
    }
    program.Window().Modes().SetCurrentColor(1);
    const QString gone = DescriptionOfCurrent(program, 1);
    program.Choose("mnuClearPalette");
    QCOMPARE(program.Design().GetPalette().GetEntriesCount(), 3);
    QCOMPARE(Current(program), 1);
    QVERIFY(DescriptionOfCurrent(program, 1) != gone);
}

} // namespace zol::test

QTEST_MAIN(zol::test::CommandsTest)
#include "test_Commands.moc"
