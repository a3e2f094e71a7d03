// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QMenu>
#include <QTimer>

#include <functional>

#include "grid/tools/BackstitchTool.h"
#include "gui/DrawnProgram.h"

namespace zol::test {

/// Backstitch lines, drawn and changed with the mouse and by the menu at the pointer.
class LinesInWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void DragAndTwoClicksDrawLines();
    void ClickOnOnePointLeavesTheFirstEnd();
    void SamePointOfTwoSquaresIsRefused();
    void RubberBandFollowsThePointer();
    void ChainEndsWithTheRightButton();
    void HandleMovesAnEnd();
    void HandleDroppedOnTheOtherEndChangesNothing();
    void SavePutsATakenUpLineBack();
    void UndoTakesNoLineFromThePointer();
    void EveryStyleByTheMenu();
    void MenuTakesTheLineAway();
    void MenuGivesTheCurrentColor();
    void MenuWithoutALineDoesNothing();
    void NearerLineIsSelected();
    void AnchoredEndsFallOnTheUpperLeft();
    void EraserTakesALineAway();
    void EraserOpensTheMenu();

private:
    using InMenu = std::function<void(DrawnProgram&, QMenu&)>;

    /// A right click there, and what is done while the menu is open. False if it never opened.
    static bool RightClick(DrawnProgram& program, QPointF place, const InMenu& work) {
        auto* menu = program.Find<QMenu>("mnuLines");
        bool opened = false;
        QObject once;
        connect(menu, &QMenu::aboutToShow, &once, [&] {
            opened = true;
            QTimer::singleShot(0, &once, [&] {
                program.Pointer.Release(Qt::RightButton);
                work(program, *menu);
                menu->close(); // whatever has come of it, or the test would wait for ever
            });
        });
        program.Pointer.MoveTo(program.Grid(), place);
        program.Pointer.Press(Qt::RightButton);
        return QTest::qWaitFor([&] { return opened && !menu->isVisible(); });
    }
    static void ClickEntry(DrawnProgram& program, QMenu& menu, QAction* entry) {
        program.Pointer.Click(menu, QRectF(menu.actionGeometry(entry)).center());
    }
    static InMenu Choose(const char* entry) {
        return [entry](DrawnProgram& program, QMenu& menu) {
            ClickEntry(program, menu, program.Find<QAction>(entry));
        };
    }
    static InMenu ChooseStyle(int item) {
        return [item](DrawnProgram& program, QMenu& menu) {
            auto* styles = program.Find<QMenu>("mnuLineStyle");
            ClickEntry(program, menu, styles->menuAction());
            if (QTest::qWaitFor([styles] { return styles->isVisible(); })) {
                ClickEntry(program, *styles, styles->actions().at(item));
            }
        };
    }
    /// Selects the one line and presses the handle at its end, (9, 5).
    static void TakeUpItsEnd(DrawnProgram& program) {
        QVERIFY(RightClick(program, program.In(6, 4), Choose("mnuLineCancel")));
        program.Pointer.MoveTo(program.Grid(), program.In(9, 5));
        program.Pointer.Press();
        QVERIFY(program.OnTop().RubberBand.has_value());
        QCOMPARE(program.Design().GetBackStitchCount(), 0);
    }
    /// The design with one line from (3, 3) to (9, 5), and the lines' tool on.
    static void DrawOneLine(DrawnProgram& program, Twin& twin) {
        program.Tool("DRAWMODE_LINES");
        program.DragOver({{3, 3}, {9, 5}});
        twin.Line({3, 3}, 5, {9, 5}, 5);
    }
};

void LinesInWindowTest::DragAndTwoClicksDrawLines() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    Twin twin(program.Design());
    DrawOneLine(program, twin);
    COMPARE_TWIN(program, twin);
    program.ClickIn(4, 8, 0.1, 0.1);
    program.ClickIn(8, 9, 0.9, 0.5);
    twin.Line({4, 8}, 1, {8, 9}, 6);
    COMPARE_TWIN(program, twin);
}

void LinesInWindowTest::ClickOnOnePointLeavesTheFirstEnd() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    Twin twin(program.Design());
    program.Tool("DRAWMODE_LINES");
    program.ClickIn(3, 3);
    program.ClickIn(3, 3);
    COMPARE_TWIN(program, twin);
    program.ClickIn(6, 3);
    twin.Line({3, 3}, 5, {6, 3}, 5);
    COMPARE_TWIN(program, twin);
}

void LinesInWindowTest::SamePointOfTwoSquaresIsRefused() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    const Twin empty(program.Design());
    program.Tool("DRAWMODE_LINES");
    program.Pointer.MoveTo(program.Grid(), program.In(5, 5, 0.9, 0.9));
    program.Pointer.Press();
    program.Pointer.MoveTo(program.Grid(), program.In(6, 6, 0.1, 0.1));
    program.Pointer.Release();
    COMPARE_TWIN(program, empty);
}

void LinesInWindowTest::RubberBandFollowsThePointer() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    const Twin empty(program.Design());
    program.Tool("DRAWMODE_LINES");
    program.ClickIn(3, 3);
    for (const SquarePos at : {SquarePos{9, 4}, {12, 12}, {2, 9}}) {
        program.Pointer.MoveTo(program.Grid(), program.In(at.X, at.Y));
        QVERIFY(program.OnTop().RubberBand.has_value());
        QVERIFY(program.OnTop().RubberBand->End == LatticeOf(at.X, at.Y, 5));
        COMPARE_TWIN(program, empty);
    }
    program.Tool("DRAWMODE_STITCHES");
    QVERIFY(!program.OnTop().RubberBand.has_value());
    COMPARE_TWIN(program, empty);
}

void LinesInWindowTest::ChainEndsWithTheRightButton() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    Twin twin(program.Design());
    program.Tool("DRAWMODE_LINES");
    program.ClickIn(2, 2, 0.5, 0.5, Qt::LeftButton, Qt::ControlModifier);
    program.ClickIn(6, 2);
    program.ClickIn(6, 6);
    twin.Line({2, 2}, 5, {6, 2}, 5);
    twin.Line({6, 2}, 5, {6, 6}, 5);
    COMPARE_TWIN(program, twin);
    program.ClickIn(9, 9, 0.5, 0.5, Qt::RightButton); // no menu, or the test would wait in it
    program.Pointer.MoveTo(program.Grid(), program.In(12, 3));
    QVERIFY(!program.OnTop().RubberBand.has_value());
    program.DragOver({{12, 3}, {15, 6}});
    twin.Line({12, 3}, 5, {15, 6}, 5);
    COMPARE_TWIN(program, twin);
    program.Pointer.MoveTo(program.Grid(), program.In(16, 9));
    QVERIFY(!program.OnTop().RubberBand.has_value());
}

void LinesInWindowTest::HandleMovesAnEnd() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    Twin twin(program.Design());
    program.Tool("DRAWMODE_LINES");
    DrawOneLine(program, twin);
    QVERIFY(RightClick(program, program.In(6, 4), ChooseStyle(1)));
    twin.ChangeBSStyle(1, LineSquiggle);
    QVERIFY(RightClick(program, program.In(6, 4), Choose("mnuLineCancel")));
    QVERIFY(program.OnTop().Handles.has_value());
    COMPARE_TWIN(program, twin);
    program.Pointer.MoveTo(program.Grid(), program.In(9, 5));
    program.Pointer.Press();
    QVERIFY(program.OnTop().RubberBand.has_value());
    program.Pointer.MoveTo(program.Grid(), program.In(12, 9));
    QTRY_COMPARE(program.WrongPixels(), 0);
    program.Pointer.Release();
    twin.RemoveBackStitchLine(1);
    twin.Line({3, 3}, 5, {12, 9}, 5, 1, LineSquiggle);
    COMPARE_TWIN(program, twin);
}

void LinesInWindowTest::HandleDroppedOnTheOtherEndChangesNothing() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    Twin twin(program.Design());
    DrawOneLine(program, twin);
    TakeUpItsEnd(program);
    program.Pointer.MoveTo(program.Grid(), program.In(3, 3));
    program.Pointer.Release();
    QVERIFY(!program.OnTop().RubberBand.has_value());
    COMPARE_TWIN(program, twin);
}

void LinesInWindowTest::SavePutsATakenUpLineBack() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    Twin twin(program.Design());
    DrawOneLine(program, twin);
    TakeUpItsEnd(program);
    program.Pointer.MoveTo(program.Grid(), program.In(12, 9));
    program.User.files = {program.Home / "saved.pat"};
    program.Choose("mnuFileSave");
    program.Pointer.Release();
    Pattern saved(program.Parts().Context);
    QCOMPARE(saved.Load(program.Home / "saved.pat"), 0);
    QCOMPARE(saved.GetBackStitchCount(), 1);
    QVERIFY(!program.Design().IsChanged());
    COMPARE_TWIN(program, twin);
}

void LinesInWindowTest::UndoTakesNoLineFromThePointer() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    Twin twin(program.Design());
    DrawOneLine(program, twin);
    TakeUpItsEnd(program);
    program.Pointer.MoveTo(program.Grid(), program.In(12, 9));
    program.Key(Qt::Key_Z, Qt::ControlModifier);
    program.Pointer.Release();
    twin.RemoveBackStitchLine(1);
    COMPARE_TWIN(program, twin);
}

void LinesInWindowTest::EveryStyleByTheMenu() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    Twin twin(program.Design());
    DrawOneLine(program, twin);
    const int styles[] = {LineStraight, LineSquiggle, LineDashed, LineDotted, LineTracks, LinePlus};
    for (int item = 5; item >= 0; --item) {
        QVERIFY(RightClick(program, program.In(6, 4), ChooseStyle(item)));
        twin.ChangeBSStyle(1, styles[item]);
        COMPARE_TWIN(program, twin);
        QVERIFY(!program.OnTop().Handles.has_value());
    }
}

void LinesInWindowTest::MenuTakesTheLineAway() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    Twin twin(program.Design());
    DrawOneLine(program, twin);
    program.DragOver({{3, 10}, {9, 10}});
    twin.Line({3, 10}, 5, {9, 10}, 5);
    QVERIFY(RightClick(program, program.In(6, 4), Choose("mnuLineDelete")));
    twin.RemoveBackStitchLine(1);
    COMPARE_TWIN(program, twin);
    // The step of the other line still takes that one back, and no more.
    program.Key(Qt::Key_Z, Qt::ControlModifier);
    twin.RemoveBackStitchLine(1);
    COMPARE_TWIN(program, twin);
}

void LinesInWindowTest::MenuGivesTheCurrentColor() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    Twin twin(program.Design());
    DrawOneLine(program, twin);
    program.Window().Modes().SetCurrentColor(3);
    QVERIFY(RightClick(program, program.In(6, 4), Choose("mnuLineColor")));
    twin.ChangeBSColor(1, 3);
    QVERIFY(program.OnTop().Handles.has_value());
    COMPARE_TWIN(program, twin);
}

void LinesInWindowTest::MenuWithoutALineDoesNothing() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    Twin twin(program.Design());
    DrawOneLine(program, twin);
    for (const char* entry : {"mnuLineDelete", "mnuLineColor", "mnuLineCancel"}) {
        QVERIFY(RightClick(program, program.In(15, 15), Choose(entry)));
        QVERIFY(!program.OnTop().Handles.has_value());
        COMPARE_TWIN(program, twin);
    }
    QVERIFY(RightClick(program, program.In(10, 5), Choose("mnuLineDelete"))); // past its end
    COMPARE_TWIN(program, twin);
}

void LinesInWindowTest::NearerLineIsSelected() {
    OpenedProgram program;
    program.Take(20, 20, 100);
    Twin twin(program.Design());
    program.Tool("DRAWMODE_LINES");
    program.DragOver({{3, 3}, {12, 3}});
    program.DragOver({{3, 5}, {12, 5}});
    twin.Line({3, 5}, 5, {12, 5}, 5);
    QVERIFY(RightClick(program, program.In(7, 4, 0.5, 0.1), Choose("mnuLineDelete")));
    COMPARE_TWIN(program, twin);
}

void LinesInWindowTest::AnchoredEndsFallOnTheUpperLeft() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    Twin twin(program.Design());
    program.Choose("mnuOptionsFlexBackstitch");
    QVERIFY(!program.Command("mnuOptionsFlexBackstitch").isChecked());
    program.Tool("DRAWMODE_LINES");
    program.ClickIn(4, 4, 0.1, 0.1);
    program.ClickIn(4, 4, 0.9, 0.9);
    COMPARE_TWIN(program, twin);
    program.ClickIn(8, 6, 0.9, 0.9);
    twin.Line({4, 4}, 1, {8, 6}, 1);
    COMPARE_TWIN(program, twin);
}

void LinesInWindowTest::EraserTakesALineAway() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    Twin twin(program.Design());
    program.ClickIn(6, 4);
    twin.SetStitch(6, 4, StitchWhole, 1, 5);
    DrawOneLine(program, twin);
    COMPARE_TWIN(program, twin);
    program.Tool("ERASE");
    program.ClickIn(15, 15); // no line there
    COMPARE_TWIN(program, twin);
    program.ClickIn(6, 4);
    twin.RemoveBackStitchLine(1);
    COMPARE_TWIN(program, twin); // and not the stitch under it
}

void LinesInWindowTest::EraserOpensTheMenu() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    Twin twin(program.Design());
    DrawOneLine(program, twin);
    program.Tool("ERASE");
    bool hadHandles = false;
    QVERIFY(RightClick(program, program.In(6, 4), [&](DrawnProgram& inside, QMenu& menu) {
        hadHandles = inside.OnTop().Handles.has_value();
        ClickEntry(inside, menu, inside.Find<QAction>("mnuLineCancel"));
    }));
    QVERIFY(hadHandles);
    QVERIFY(!program.OnTop().Handles.has_value());
    COMPARE_TWIN(program, twin);
    program.ClickIn(6, 4); // and the eraser hears the next press
    twin.RemoveBackStitchLine(1);
    COMPARE_TWIN(program, twin);
}

} // namespace zol::test

QTEST_MAIN(zol::test::LinesInWindowTest)
#include "test_LinesInWindow.moc"
