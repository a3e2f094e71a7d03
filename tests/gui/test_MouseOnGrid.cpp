// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QMenu>
#include <QTimer>
#include <QWheelEvent>

#include "grid/tools/BackstitchTool.h"
#include "gui/DrawnProgram.h"

namespace zol::test {

namespace {

/// One notch of the wheel over a place of the grid.
void TurnWheel(DrawnProgram& program, QPointF place, int angle, Qt::KeyboardModifiers keys = {}) {
    QWidget& grid = program.Grid();
    QWheelEvent event(place, grid.mapToGlobal(place), {}, {0, angle}, Qt::NoButton, keys,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    QApplication::sendEvent(&grid, &event);
    DrawnProgram::Settle();
}

std::string Label(DrawnProgram& program) {
    return program.Parts().Steps.GetUndoLabel();
}

} // namespace

/// The mouse over the grid where it is no plain click inside a square: edges, other buttons, other
/// sizes.
class MouseOnGridTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PaintReleasedBesideTheGridIsHarmless();
    void PickerReleasedBesideTheGridIsHarmless();
    void PressBesideTheGridDrawsNothing();
    void MovesAreBroughtIntoThePattern();
    void StrokeLeavesTheWindowAndComesBack();
    void SecondButtonEndsTheStroke();
    void SecondButtonAloneDoesNothing();
    void EscapeEndsAStroke();
    void EscapeLeavesEachTool_data();
    void EscapeLeavesEachTool();
    void EscapeDropsALine();
    void WheelDuringAStroke();
    void ZoomDuringAStroke();
    void DoubleClicksAreClicks();
    void LeftButtonDrawsAfterALineMenu();
    void OneSquare();
    void LargestPattern();
    void PatternWithoutSquares();
    void SmallestAndLargestZoom_data();
    void SmallestAndLargestZoom();
};

void MouseOnGridTest::PaintReleasedBesideTheGridIsHarmless() {
    OpenedProgram program;
    program.Take(8, 8, 100);
    const Twin twin(program.Design());
    for (const char* command : {"mnuPaintMode", "mnuPaintOnce"}) {
        program.Choose("mnuDrawModeStitches");
        program.Choose(command);
        program.Pointer.MoveTo(program.Grid(), program.In(2, 2));
        program.Pointer.Press();
        program.Pointer.MoveTo(program.Grid(), {-7, -9});
        program.Pointer.Release();
        COMPARE_TWIN(program, twin);
        QCOMPARE(Label(program), std::string());
    }
    QVERIFY(program.Window().Modes().GetDrawMode() == DrawStitches);
}

void MouseOnGridTest::PickerReleasedBesideTheGridIsHarmless() {
    OpenedProgram program;
    program.Take(8, 8, 100);
    program.Design().SetStitch(1, 1, StitchWhole, 5, 5);
    program.Tool("COLORPICKER");
    QVERIFY(program.Window().Modes().GetDrawMode() == DrawColorPicker);
    program.Pointer.MoveTo(program.Grid(), program.In(1, 1));
    program.Pointer.Press();
    program.Pointer.MoveTo(program.Grid(), {-3, -3});
    program.Pointer.Release();
    QVERIFY(program.Window().Modes().GetDrawMode() == DrawStitches);
    program.ClickIn(4, 4);
    QCOMPARE(program.Design().GetStitchPaletteIndex(4, 4), 1);
}

void MouseOnGridTest::PressBesideTheGridDrawsNothing() {
    OpenedProgram program;
    program.Take(8, 8, 100);
    const Twin twin(program.Design());
    for (const auto button : {Qt::LeftButton, Qt::RightButton}) {
        program.Pointer.Click(program.Grid(), {-2, 5}, button);
        program.Pointer.Click(program.Grid(),
                              QPointF(program.Grid().rect().bottomRight()) + QPointF(3, 3), button);
    }
    COMPARE_TWIN(program, twin);
    QCOMPARE(Label(program), std::string());
}

void MouseOnGridTest::MovesAreBroughtIntoThePattern() {
    OpenedProgram program;
    program.Take(8, 8, 200);
    Twin twin(program.Design());
    program.DragOver({{3, 3}, {-4, 3}});
    program.DragOver({{6, 6}, {6, 40}});
    for (const SquarePos at : {SquarePos{3, 3}, {2, 3}, {1, 3}, {6, 6}, {6, 7}, {6, 8}}) {
        twin.SetStitch(at.X, at.Y, StitchWhole, 1, 5);
    }
    COMPARE_TWIN(program, twin);
}

void MouseOnGridTest::StrokeLeavesTheWindowAndComesBack() {
    OpenedProgram program;
    program.Take(20, 20, 100);
    Twin twin(program.Design());
    program.Pointer.MoveTo(program.Grid(), program.In(3, 5));
    program.Pointer.Press();
    const QPointF outside(-400, program.In(1, 5).y());
    program.Pointer.MoveTo(program.Grid(), outside);
    program.Pointer.MoveTo(program.Grid(), outside + QPointF(0, 4));
    program.Pointer.MoveTo(program.Grid(), program.In(1, 8));
    program.Pointer.Release();
    for (const SquarePos at : {SquarePos{3, 5}, {2, 5}, {1, 5}, {1, 6}, {1, 7}, {1, 8}}) {
        twin.SetStitch(at.X, at.Y, StitchWhole, 1, 5);
    }
    COMPARE_TWIN(program, twin);
    QCOMPARE(Label(program), std::string("Stitches"));
    program.Key(Qt::Key_Z, Qt::ControlModifier);
    const Twin empty(program.Design());
    COMPARE_TWIN(program, empty);
}

void MouseOnGridTest::SecondButtonEndsTheStroke() {
    OpenedProgram program;
    program.Take(12, 12, 100);
    Twin twin(program.Design());
    for (const SquarePos at : {SquarePos{2, 2}, {3, 2}}) {
        twin.SetStitch(at.X, at.Y, StitchWhole, 1, 5);
    }
    program.Pointer.MoveTo(program.Grid(), program.In(2, 2));
    program.Pointer.Press();
    program.Pointer.MoveTo(program.Grid(), program.In(3, 2));
    program.Pointer.Press(Qt::RightButton);
    program.Pointer.MoveTo(program.Grid(), program.In(6, 2));
    program.Pointer.Release(Qt::RightButton);
    program.Pointer.MoveTo(program.Grid(), program.In(8, 2));
    program.Pointer.Release();
    COMPARE_TWIN(program, twin);
    QCOMPARE(Label(program), std::string("Stitches"));
    // And the next stroke is one as ever.
    program.DragOver({{5, 5}, {6, 5}});
    twin.SetStitch(5, 5, StitchWhole, 1, 5);
    twin.SetStitch(6, 5, StitchWhole, 1, 5);
    COMPARE_TWIN(program, twin);
}

void MouseOnGridTest::SecondButtonAloneDoesNothing() {
    OpenedProgram program;
    program.Take(12, 12, 100);
    Twin twin(program.Design());
    twin.SetStitch(2, 2, StitchWhole, 1, 5);
    program.Pointer.MoveTo(program.Grid(), program.In(2, 2));
    program.Pointer.Press();
    program.Pointer.Press(Qt::RightButton);
    program.Pointer.Release();
    program.Pointer.Release(Qt::RightButton);
    COMPARE_TWIN(program, twin);
}

void MouseOnGridTest::EscapeEndsAStroke() {
    OpenedProgram program;
    program.Take(12, 12, 100);
    Twin twin(program.Design());
    twin.SetStitch(2, 2, StitchWhole, 1, 5);
    program.Pointer.MoveTo(program.Grid(), program.In(2, 2));
    program.Pointer.Press();
    program.Key(Qt::Key_Escape);
    program.Pointer.MoveTo(program.Grid(), program.In(9, 9));
    program.Pointer.Release();
    COMPARE_TWIN(program, twin);
    QCOMPARE(Label(program), std::string("Stitches"));
}

void MouseOnGridTest::EscapeLeavesEachTool_data() {
    QTest::addColumn<QString>("command");
    QTest::addColumn<bool>("afterLines");
    for (const char* command : {"mnuPaintOnce", "mnuPaintMode", "mnuColorPicker", "mnuEraseMode",
                                "ZoomTool", "mnuDrawModeLines", "mnuDrawModeStitches"}) {
        QTest::newRow(command) << QString::fromLatin1(command) << false;
    }
    QTest::newRow("erase lines") << QStringLiteral("mnuEraseMode") << true;
}

void MouseOnGridTest::EscapeLeavesEachTool() {
    QFETCH(const QString, command);
    QFETCH(const bool, afterLines);
    OpenedProgram program;
    const DrawModes& modes = program.Window().Modes();
    program.Choose(afterLines ? "mnuDrawModeLines" : "mnuDrawModeStitches");
    program.Choose(command.toLatin1().constData());
    const bool lines = afterLines || command == QLatin1String("mnuDrawModeLines");
    program.Key(Qt::Key_Escape);
    QCOMPARE(int{modes.GetDrawMode()}, int{lines ? DrawLines : DrawStitches});
    QVERIFY(program.Command(lines ? "mnuDrawModeLines" : "mnuDrawModeStitches").isChecked());
    QVERIFY(!program.Command("mnuEraseMode").isChecked());
    QVERIFY(!program.Command("mnuPaintMode").isChecked());
}

void MouseOnGridTest::EscapeDropsALine() {
    OpenedProgram program;
    program.Take(12, 12, 200);
    const Twin twin(program.Design());
    program.Tool("DRAWMODE_LINES");
    program.Pointer.MoveTo(program.Grid(), program.In(2, 2));
    program.Pointer.Press();
    program.Pointer.MoveTo(program.Grid(), program.In(8, 5));
    QVERIFY(program.OnTop().RubberBand.has_value());
    QCOMPARE(program.WrongPixels(), 0);
    program.Key(Qt::Key_Escape);
    QVERIFY(!program.OnTop().RubberBand.has_value());
    program.Pointer.Release();
    program.ClickIn(4, 9);
    COMPARE_TWIN(program, twin);
}

void MouseOnGridTest::WheelDuringAStroke() {
    OpenedProgram program;
    program.Take(200, 200, 200);
    Twin twin(program.Design());
    program.Pointer.MoveTo(program.Grid(), program.In(5, 5));
    program.Pointer.Press();
    TurnWheel(program, program.In(5, 5), -120);
    const int row = program.Area().FirstRow();
    QVERIFY(row > 1);
    program.Pointer.MoveTo(program.Grid(), program.In(5, row + 6));
    program.Pointer.Release();
    for (int y = 5; y <= row + 6; ++y) {
        twin.SetStitch(5, y, StitchWhole, 1, 5);
    }
    COMPARE_TWIN(program, twin);
    program.Key(Qt::Key_Z, Qt::ControlModifier);
    const Twin empty(program.Design());
    COMPARE_TWIN(program, empty);
}

void MouseOnGridTest::ZoomDuringAStroke() {
    OpenedProgram program;
    program.Take(60, 60, 100);
    Twin twin(program.Design());
    program.Pointer.MoveTo(program.Grid(), program.In(5, 5));
    program.Pointer.Press();
    TurnWheel(program, program.In(5, 5), 120, Qt::ControlModifier);
    QVERIFY(program.Area().Zoom().GridZoom() > 100);
    program.Pointer.MoveTo(program.Grid(), program.In(9, 5));
    program.Pointer.Release();
    for (int x = 5; x <= 9; ++x) {
        twin.SetStitch(x, 5, StitchWhole, 1, 5);
    }
    COMPARE_TWIN(program, twin);
}

void MouseOnGridTest::DoubleClicksAreClicks() {
    OpenedProgram program;
    program.Take(12, 12, 400);
    Twin twin(program.Design());
    program.Tool("STITCH_SQ");
    program.ClickIn(3, 3, 0.2, 0.2);
    program.Pointer.ClickAgain();
    twin.SetStitch(3, 3, StitchULQ, 1, 1);
    twin.SetStitch(3, 3, StitchULQ, 1, 1);
    COMPARE_TWIN(program, twin);
    program.Tool("DRAWMODE_LINES");
    program.ClickIn(5, 5);
    program.Pointer.ClickAgain();
    COMPARE_TWIN(program, twin); // both clicks are at the first end
    program.ClickIn(8, 5);
    twin.Line({5, 5}, 5, {8, 5}, 5);
    COMPARE_TWIN(program, twin);
    program.Pointer.ClickAgain(); // the first end of another line, at once
    program.ClickIn(8, 8);
    twin.Line({8, 5}, 5, {8, 8}, 5);
    COMPARE_TWIN(program, twin);
}

void MouseOnGridTest::LeftButtonDrawsAfterALineMenu() {
    OpenedProgram program;
    program.Take(12, 12, 400);
    Twin twin(program.Design());
    program.Tool("DRAWMODE_LINES");
    auto* menu = program.Find<QMenu>("mnuLines");
    int opened = 0;
    connect(menu, &QMenu::aboutToShow, menu, [&] {
        ++opened;
        // The button comes up over the menu, so the grid never hears of it.
        QTimer::singleShot(0, menu, [&] {
            program.Pointer.MoveTo(*menu, QPointF(menu->rect().center()));
            program.Pointer.Release(Qt::RightButton);
            menu->close();
        });
    });
    program.Pointer.MoveTo(program.Grid(), program.In(3, 3));
    program.Pointer.Press(Qt::RightButton);
    QTRY_VERIFY(!menu->isVisible());
    QCOMPARE(opened, 1);
    program.DragOver({{3, 3}, {6, 7}});
    twin.Line({3, 3}, 5, {6, 7}, 5);
    COMPARE_TWIN(program, twin);
}

void MouseOnGridTest::OneSquare() {
    OpenedProgram program;
    program.Take(1, 1, 1000);
    Twin twin(program.Design());
    program.DragOver({{1, 1}, {3, 3}, {1, 1}});
    twin.SetStitch(1, 1, StitchWhole, 1, 5);
    COMPARE_TWIN(program, twin);
    program.Tool("DRAWMODE_LINES");
    program.Pointer.MoveTo(program.Grid(), program.In(1, 1, 0.1, 0.1));
    program.Pointer.Press();
    program.Pointer.MoveTo(program.Grid(), program.In(1, 1, 0.9, 0.9));
    program.Pointer.Release();
    twin.Line({1, 1}, 1, {1, 1}, 9);
    COMPARE_TWIN(program, twin);
    program.Choose("mnuCenterBoth");
    program.Choose("mnuToolsShrink");
    COMPARE_TWIN(program, twin);
}

void MouseOnGridTest::LargestPattern() {
    OpenedProgram program;
    program.Take(999, 999, 100);
    Twin twin(program.Design());
    program.Area().ScrollGrid(999, 999, true);
    program.DragOver({{997, 999}, {1010, 999}});
    for (int x = 997; x <= 999; ++x) {
        twin.SetStitch(x, 999, StitchWhole, 1, 5);
    }
    COMPARE_TWIN(program, twin);
    program.Tool("ERASE");
    program.ClickIn(998, 999);
    twin.DeleteStitch(998, 999, 0);
    COMPARE_TWIN(program, twin);
}

void MouseOnGridTest::PatternWithoutSquares() {
    OpenedProgram program;
    program.Design().Resize(0, 0, 14, 14);
    program.Resized(100);
    const auto* holder = program.Find<QWidget>("picGridHolder");
    for (const char* command : {"mnuDrawModeStitches", "mnuDrawModeLines", "mnuPaintMode",
                                "mnuColorPicker", "mnuEraseMode", "ZoomTool"}) {
        program.Choose("mnuDrawModeStitches");
        program.Choose(command);
        program.Pointer.MoveTo(program.Grid(), {0, 0});
        program.Pointer.Press();
        program.Pointer.MoveTo(program.Grid(), {20, 20});
        program.Pointer.Release();
        program.Pointer.Click(program.Grid(), {1, 1}, Qt::RightButton);
    }
    QVERIFY(program.Grid().rect().isEmpty() || !holder->rect().intersects(program.Grid().rect()));
    QCOMPARE(program.Design().GetPatternWidth(), 0);
    QCOMPARE(program.Design().GetBackStitchCount(), 0);
    QCOMPARE(Label(program), std::string());
    QVERIFY(program.User.unanswered.empty());
}

void MouseOnGridTest::SmallestAndLargestZoom_data() {
    QTest::addColumn<int>("zoom");
    QTest::newRow("1") << 1;
    QTest::newRow("10") << 10;
    QTest::newRow("1000") << 1000;
}

void MouseOnGridTest::SmallestAndLargestZoom() {
    QFETCH(const int, zoom);
    OpenedProgram program;
    program.Take(300, 300, zoom);
    Twin twin(program.Design());
    // Which square lies under a pixel is the grid's to say; several share one at the smallest.
    const auto squareAt = [&](QPointF place) {
        const GridGeometry& geometry = program.Area().Geometry();
        const QPointF pixel = program.Area().Canvas().DevicePixelAt(place);
        return SquarePos{geometry.ColumnAt(pixel.x()), geometry.RowAt(pixel.y())};
    };
    const QPoint place = program.In(4, 3, 0, 0).toPoint();
    const SquarePos square = squareAt(place);
    program.Pointer.Click(program.Grid(), place);
    twin.SetStitch(square.X, square.Y, StitchWhole, 1, 5);
    COMPARE_TWIN(program, twin);
    program.Pointer.Click(program.Grid(), place, Qt::RightButton);
    twin.DeleteStitch(square.X, square.Y, 0);
    COMPARE_TWIN(program, twin);
    program.Tool("PAINT");
    program.Pointer.Click(program.Grid(), place);
    for (int x = 1; x <= 300; ++x) {
        for (int y = 1; y <= 300; ++y) {
            twin.SetStitch(x, y, StitchWhole, 1, 5);
        }
    }
    COMPARE_TWIN(program, twin);
}

} // namespace zol::test

QTEST_MAIN(zol::test::MouseOnGridTest)
#include "test_MouseOnGrid.moc"
