// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QLabel>
#include <QMenu>

#include "grid/tools/EditBox.h"
#include "gui/DrawnProgram.h"

namespace zol::test {

/// The edit box in the whole program, by mouse and keys: the design and the screen after each.
class EditBoxInWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void MenusAndButtonsFollowTheBox();
    void SelectionShowsItsSize();
    void DragMovesTheSection();
    void BlendsGoWithTheSection();
    void DragShowsTheBlockUnderWay();
    void DragCarriesTheBoxOverTheEdgeOfTheView();
    void ZoomChangesWhileABlockFloats();
    void DesignChangesBelowAFloatingBlock();
    void CutAndPasteByKeys();
    void PasteIsLargerThanTheDesign_data();
    void PasteIsLargerThanTheDesign();
    void EraseByKey();
    void TurnsByMenu_data();
    void TurnsByMenu();
    void DragTurnDragAndUndo();
    void ArrowsAndEnter();
    void ArrowsWithoutABoxScroll();
    void SelectAllByKey();
    void EscapeDropsWhatFloats();
    void SquareUndoRefreshesASelection();
    void UndoAmidADragMovesNothing();

private:
    /// A design of 30 by 24 squares with a stitch of each of two flosses, in draw mode 3.
    static void Prepare(DrawnProgram& program) {
        // Squares of 12 pixels.
        program.Take(30, 24, 175);
        program.Design().SetStitch(4, 4, StitchWhole, 1, 0);
        program.Design().SetStitch(6, 5, StitchTBH, 2, 0);
        program.Choose("mnuViewRefresh");
        program.Tool("DRAWMODE_EDITBOX");
        DrawnProgram::Settle();
    }
    static Twin Prepared(DrawnProgram& program) {
        Twin twin(program.Design());
        twin.SetStitch(4, 4, StitchWhole, 1, 0);
        twin.SetStitch(6, 5, StitchTBH, 2, 0);
        return twin;
    }
    static EditBox& Box(DrawnProgram& program) { return program.Window().Modes().Box(); }
};

void EditBoxInWindowTest::MenusAndButtonsFollowTheBox() {
    OpenedProgram program;
    Prepare(program);
    const auto enabled = [&](bool box, bool paste) {
        for (const char* name : {"mnuEditCut", "mnuEditCopy", "mnuEditErase", "mnuEditCopyTo",
                                 "mnuFlipHorizontal", "mnuRotate90"}) {
            if (program.Command(name).isEnabled() != box) {
                return false;
            }
        }
        return program.Find<QMenu>("mnuEditFlip")->isEnabled() == box &&
               program.Find<QMenu>("mnuEditRotate")->isEnabled() == box &&
               program.Find<QToolButton>("Cut")->isEnabled() == box &&
               program.Find<QToolButton>("Copy")->isEnabled() == box &&
               program.Find<QToolButton>("Paste")->isEnabled() == paste &&
               program.Command("mnuEditPaste").isEnabled() == paste;
    };
    QVERIFY(enabled(false, false));
    QVERIFY(program.Command("mnuDrawModeEditBox").isChecked());
    program.DragOver({{3, 3}, {7, 6}});
    QVERIFY(enabled(true, false));
    program.Tool("Copy");
    QVERIFY(enabled(true, true));
    program.Tool("DRAWMODE_STITCHES");
    QVERIFY(enabled(false, true));
    program.User.answers = {MessageAnswer::No};
    program.NewPatternByMenu();
    QVERIFY2(enabled(false, true), "the clipboard outlives a design");
}

void EditBoxInWindowTest::SelectionShowsItsSize() {
    OpenedProgram program;
    Prepare(program);
    auto* panel = program.Find<QLabel>("selectionPanel");
    program.Pointer.MoveTo(program.Grid(), program.In(3, 3));
    program.Pointer.Press();
    program.Pointer.MoveTo(program.Grid(), program.In(7, 5));
    QCOMPARE(panel->text(), QStringLiteral("5 × 3 squares"));
    program.Pointer.Release();
    QCOMPARE(panel->text(), QStringLiteral("5 × 3 squares"));
    program.Key(Qt::Key_Escape);
    QCOMPARE(panel->text(), QString());
}

void EditBoxInWindowTest::DragMovesTheSection() {
    OpenedProgram program;
    Prepare(program);
    Twin before = Prepared(program);
    program.DragOver({{3, 3}, {7, 6}});
    QTRY_COMPARE(program.WrongPixels(), 0);
    QCOMPARE(program.Grid().cursor().shape(), Qt::SizeAllCursor);
    program.DragOver({{5, 5}, {9, 5}, {15, 10}});
    Twin after(program.Design());
    after.SetStitch(14, 9, StitchWhole, 1, 0);
    after.SetStitch(16, 10, StitchTBH, 2, 0);
    COMPARE_TWIN(program, after);
    QVERIFY(!Box(program).IsActive());
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Move Section"));
    program.Key(Qt::Key_Z, Qt::ControlModifier);
    COMPARE_TWIN(program, before);
}

void EditBoxInWindowTest::BlendsGoWithTheSection() {
    OpenedProgram program;
    Prepare(program);
    Palette& flosses = program.Design().GetPalette();
    flosses.BlendFloss(1, MakeColour(250, 200, 40), "725", "DMC", "topaz", 0);
    flosses.BlendFloss(2, MakeColour(40, 200, 250), "996", "DMC", "blue", 0);
    const int count = flosses.GetEntriesCount();
    program.Choose("mnuViewRefresh");
    program.DragOver({{3, 3}, {7, 6}});
    program.DragOver({{5, 5}, {9, 5}, {15, 10}});
    QCOMPARE(program.Design().GetStitchPaletteIndex(14, 9), 1);
    QCOMPARE(program.Design().GetStitchPaletteIndex(16, 10), 2);
    program.DragOver({{13, 8}, {17, 11}});
    program.Choose("mnuFlipHorizontal");
    program.Key(Qt::Key_Left);
    program.Key(Qt::Key_Return);
    QCOMPARE(program.Design().GetStitchPaletteIndex(15, 9), 1);
    QCOMPARE(program.Design().GetStitchPaletteIndex(13, 10), 2);
    QCOMPARE(program.Design().GetPalette().GetEntriesCount(), count);
    QVERIFY(program.Design().GetPalette().IsBlended(2));
    QTRY_COMPARE(program.WrongPixels(), 0);
}

void EditBoxInWindowTest::DragShowsTheBlockUnderWay() {
    OpenedProgram program;
    Prepare(program);
    const Twin before = Prepared(program);
    program.DragOver({{3, 3}, {7, 6}});
    program.Pointer.MoveTo(program.Grid(), program.In(4, 4));
    program.Pointer.Press();
    for (const SquarePos to : {SquarePos{5, 4}, {12, 4}, {12, 14}, {30, 24}}) {
        program.Pointer.MoveTo(program.Grid(), program.In(to.X, to.Y));
        QVERIFY(program.OnTop().Content.has_value());
        COMPARE_TWIN(program, before);
    }
    QCOMPARE(Box(program).GetEditBoxRect(), (SquareRect{26, 21, 30, 24}));
    program.Key(Qt::Key_Escape);
    QVERIFY(!program.OnTop().Content.has_value());
    COMPARE_TWIN(program, before);
    program.Pointer.Release();
    QCOMPARE(Box(program).GetEditBoxRect(), (SquareRect{3, 3, 7, 6}));
    COMPARE_TWIN(program, before);
}

void EditBoxInWindowTest::DragCarriesTheBoxOverTheEdgeOfTheView() {
    OpenedProgram program;
    Prepare(program);
    program.Design().Resize(200, 24, 14, 14);
    program.Resized(300);
    program.DragOver({{4, 4}, {5, 5}});
    const int last = program.Area().GetVisibleRange().Right;
    QVERIFY(last < 150);
    program.Pointer.MoveTo(program.Grid(), program.In(4, 4));
    program.Pointer.Press();
    for (int step = 0; step < 6; ++step) {
        const int edge = program.Area().GetVisibleRange().Right;
        program.Pointer.MoveTo(program.Grid(), program.In(edge + 1, 4));
        QTRY_COMPARE(program.WrongPixels(), 0);
    }
    QVERIFY(program.Area().FirstColumn() >= 6);
    program.Pointer.Release();
    const SquareRect visible = program.Area().GetVisibleRange();
    QVERIFY(program.Design().GetStitchPaletteIndex(visible.Right, 4) == 1 ||
            program.Design().GetStitchPaletteIndex(visible.Right - 1, 4) == 1);
    QTRY_COMPARE(program.WrongPixels(), 0);
}

void EditBoxInWindowTest::ZoomChangesWhileABlockFloats() {
    OpenedProgram program;
    Prepare(program);
    program.DragOver({{3, 3}, {7, 6}});
    program.Choose("mnuFlipHorizontal");
    for (const int zoom : {100, 90, 400, 33, 250}) {
        program.Area().Zoom().ChangeZoom(zoom);
        QVERIFY(program.OnTop().Content.has_value());
        QTRY_COMPARE(program.WrongPixels(), 0);
    }
    program.Choose("mnuStitchVStitches");
    QTRY_COMPARE(program.WrongPixels(), 0);
    program.Area().ScrollGrid(3, 2, false);
    QTRY_COMPARE(program.WrongPixels(), 0);
}

void EditBoxInWindowTest::DesignChangesBelowAFloatingBlock() {
    OpenedProgram program;
    Prepare(program);
    program.DragOver({{3, 3}, {7, 6}});
    program.Choose("mnuFlipHorizontal");
    QTRY_COMPARE(program.WrongPixels(), 0);
    program.Design().SetStitch(5, 5, StitchWhole, 3, 0);
    program.Area().RedrawSquares({5, 5, 5, 5});
    QTRY_COMPARE(program.WrongPixels(), 0);
}

void EditBoxInWindowTest::CutAndPasteByKeys() {
    OpenedProgram program;
    Prepare(program);
    const Twin empty(program.Design());
    program.DragOver({{4, 4}, {6, 5}});
    program.Key(Qt::Key_X, Qt::ControlModifier);
    COMPARE_TWIN(program, empty);
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Cut"));
    program.Tool("DRAWMODE_STITCHES");
    program.Key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(program.Window().Modes().GetDrawMode(), DrawEditBox);
    QCOMPARE(Box(program).GetEditBoxRect(), (SquareRect{1, 1, 3, 2}));
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Paste"));
    COMPARE_TWIN(program, empty);
    program.DragOver({{2, 1}, {12, 11}});
    Twin landed(program.Design());
    landed.SetStitch(11, 11, StitchWhole, 1, 0);
    landed.SetStitch(13, 12, StitchTBH, 2, 0);
    COMPARE_TWIN(program, landed);
    program.Key(Qt::Key_V, Qt::ControlModifier);
    program.Key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!Box(program).IsActive());
    COMPARE_TWIN(program, landed);
}

void EditBoxInWindowTest::PasteIsLargerThanTheDesign_data() {
    QTest::addColumn<bool>("grow");
    QTest::newRow("yes") << true;
    QTest::newRow("no") << false;
}

void EditBoxInWindowTest::PasteIsLargerThanTheDesign() {
    QFETCH(const bool, grow);
    OpenedProgram program;
    Prepare(program);
    program.DragOver({{1, 1}, {20, 6}});
    program.Tool("Copy");
    program.Key(Qt::Key_Escape);
    program.Design().Resize(10, 10, 14, 14);
    program.Resized(200);
    program.User.answers = {grow ? MessageAnswer::Yes : MessageAnswer::No};
    program.Tool("Paste");
    QCOMPARE(
        program.User.AskedTexts(),
        (std::vector<std::string>{"The Copied pattern is larger than your current pattern.\n"
                                  "Do you wish to increase the size of the current pattern?"}));
    QCOMPARE(program.Design().GetPatternWidth(), grow ? 20 : 10);
    QCOMPARE(program.Design().GetPatternHeight(), 10);
    QCOMPARE(Box(program).GetEditBoxRect(), (SquareRect{1, 1, grow ? 20 : 10, 6}));
    QCOMPARE(program.Area().Geometry().Everything().Right, grow ? 20 : 10);
    QTRY_COMPARE(program.WrongPixels(), 0);
    program.Key(Qt::Key_Return);
    QTRY_COMPARE(program.WrongPixels(), 0);
}

void EditBoxInWindowTest::EraseByKey() {
    OpenedProgram program;
    Prepare(program);
    const Twin before = Prepared(program);
    program.DragOver({{4, 4}, {5, 5}});
    program.Key(Qt::Key_Delete);
    Twin after(program.Design());
    after.SetStitch(6, 5, StitchTBH, 2, 0);
    COMPARE_TWIN(program, after);
    QVERIFY(!Box(program).IsActive());
    program.Key(Qt::Key_Z, Qt::ControlModifier);
    COMPARE_TWIN(program, before);
}

void EditBoxInWindowTest::TurnsByMenu_data() {
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QRect>("box"); // left, top, width, height
    QTest::addColumn<QPoint>("whole");
    QTest::addColumn<int>("half");
    const QRect lying(4, 4, 3, 2);
    QTest::newRow("flip across") << "mnuFlipHorizontal"
                                 << "Undo Flip" << lying << QPoint(6, 4) << int{StitchBTH};
    QTest::newRow("flip down") << "mnuFlipVertical"
                               << "Undo Flip" << lying << QPoint(4, 5) << int{StitchBTH};
    QTest::newRow("90") << "mnuRotate90"
                        << "Undo Rotate" << QRect(4, 4, 2, 3) << QPoint(5, 4) << int{StitchBTH};
    QTest::newRow("180") << "mnuRotate180"
                         << "Undo Rotate" << lying << QPoint(6, 5) << int{StitchTBH};
    QTest::newRow("270") << "mnuRotate270"
                         << "Undo Rotate" << QRect(4, 4, 2, 3) << QPoint(4, 6) << int{StitchBTH};
}

void EditBoxInWindowTest::TurnsByMenu() {
    QFETCH(const QString, command);
    QFETCH(const QString, label);
    QFETCH(const QRect, box);
    QFETCH(const QPoint, whole);
    QFETCH(const int, half);
    OpenedProgram program;
    Prepare(program);
    const Twin empty(program.Design());
    const Twin before = Prepared(program);
    program.DragOver({{4, 4}, {6, 5}});
    program.Choose(command.toLatin1().constData());
    QCOMPARE(Box(program).GetEditBoxRect(),
             (SquareRect{box.left(), box.top(), box.right(), box.bottom()}));
    QCOMPARE(program.Command("mnuEditUndo").text(), label);
    COMPARE_TWIN(program, empty);
    program.Tool("DRAWMODE_STITCHES");
    QCOMPARE(program.Design().GetStitchPaletteIndex(whole.x(), whole.y()), 1);
    const QPoint other(box.left() + box.right() - whole.x(), box.top() + box.bottom() - whole.y());
    QCOMPARE(program.Design().GetStitchType(other.x(), other.y(), 0), half);
    QTRY_COMPARE(program.WrongPixels(), 0);
    program.Key(Qt::Key_Z, Qt::ControlModifier);
    COMPARE_TWIN(program, before);
}

void EditBoxInWindowTest::DragTurnDragAndUndo() {
    OpenedProgram program;
    Prepare(program);
    program.DragOver({{4, 4}, {6, 5}});
    program.DragOver({{5, 4}, {15, 10}});
    Twin moved(program.Design());
    moved.SetStitch(14, 10, StitchWhole, 1, 0);
    moved.SetStitch(16, 11, StitchTBH, 2, 0);
    COMPARE_TWIN(program, moved);
    program.DragOver({{14, 10}, {16, 11}});
    program.Choose("mnuRotate90");
    QTRY_COMPARE(program.WrongPixels(), 0);
    QCOMPARE(Box(program).GetEditBoxRect(), (SquareRect{14, 10, 15, 12}));
    program.DragOver({{14, 11}, {4, 11}});
    Twin turned(program.Design());
    turned.SetStitch(5, 10, StitchWhole, 1, 0);
    turned.SetStitch(4, 12, StitchBTH, 2, 0);
    COMPARE_TWIN(program, turned);
    program.Key(Qt::Key_Z, Qt::ControlModifier);
    COMPARE_TWIN(program, moved);
}

void EditBoxInWindowTest::ArrowsAndEnter() {
    OpenedProgram program;
    Prepare(program);
    const Twin empty(program.Design());
    const Twin before = Prepared(program);
    program.DragOver({{4, 4}, {6, 5}});
    program.Key(Qt::Key_Right);
    COMPARE_TWIN(program, empty);
    program.Key(Qt::Key_Down);
    program.Key(Qt::Key_Down);
    QCOMPARE(Box(program).GetEditBoxRect(), (SquareRect{5, 6, 7, 7}));
    QTRY_COMPARE(program.WrongPixels(), 0);
    program.Key(Qt::Key_Return);
    Twin after(program.Design());
    after.SetStitch(5, 6, StitchWhole, 1, 0);
    after.SetStitch(7, 7, StitchTBH, 2, 0);
    COMPARE_TWIN(program, after);
    program.Key(Qt::Key_Z, Qt::ControlModifier);
    COMPARE_TWIN(program, before);
}

void EditBoxInWindowTest::ArrowsWithoutABoxScroll() {
    OpenedProgram program;
    program.Take(100, 100, 600);
    program.Area().ScrollGrid(4, 5, true);
    for (const char* tool : {"DRAWMODE_STITCHES", "DRAWMODE_EDITBOX"}) {
        program.Tool(tool);
        program.Grid().setFocus();
        const Twin design(program.Design());
        program.Key(Qt::Key_Right);
        QCOMPARE(SquarePos({program.Area().FirstColumn(), program.Area().FirstRow()}),
                 SquarePos({5, 5}));
        program.Key(Qt::Key_Down);
        QCOMPARE(SquarePos({program.Area().FirstColumn(), program.Area().FirstRow()}),
                 SquarePos({5, 6}));
        program.Key(Qt::Key_Left);
        program.Key(Qt::Key_Up);
        QCOMPARE(SquarePos({program.Area().FirstColumn(), program.Area().FirstRow()}),
                 SquarePos({4, 5}));
        COMPARE_TWIN(program, design);
        QTRY_COMPARE(program.WrongPixels(), 0);
    }
    // The pattern's corner is the end of the way.
    program.Area().ScrollGrid(1, 1, true);
    program.Key(Qt::Key_Up);
    program.Key(Qt::Key_Left);
    QCOMPARE(SquarePos({program.Area().FirstColumn(), program.Area().FirstRow()}),
             SquarePos({1, 1}));
    // A box keeps the keys, also where an edge stops it.
    program.DragOver({{1, 1}, {3, 2}});
    program.Key(Qt::Key_Left);
    program.Key(Qt::Key_Right);
    QCOMPARE(SquarePos({program.Area().FirstColumn(), program.Area().FirstRow()}),
             SquarePos({1, 1}));
    QCOMPARE(Box(program).GetEditBoxRect(), (SquareRect{2, 1, 4, 2}));
}

void EditBoxInWindowTest::SelectAllByKey() {
    OpenedProgram program;
    Prepare(program);
    program.Tool("DRAWMODE_STITCHES");
    program.Key(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(program.Window().Modes().GetDrawMode(), DrawEditBox);
    QCOMPARE(Box(program).GetEditBoxRect(), (SquareRect{4, 4, 6, 5}));
    QTRY_COMPARE(program.WrongPixels(), 0);
}

void EditBoxInWindowTest::EscapeDropsWhatFloats() {
    OpenedProgram program;
    Prepare(program);
    program.DragOver({{4, 4}, {6, 5}});
    program.Choose("mnuFlipHorizontal");
    program.Key(Qt::Key_Escape);
    QVERIFY(!Box(program).IsActive());
    Twin flipped(program.Design());
    flipped.SetStitch(6, 4, StitchWhole, 1, 0);
    flipped.SetStitch(4, 5, StitchBTH, 2, 0);
    COMPARE_TWIN(program, flipped);
    program.Key(Qt::Key_Escape);
    QCOMPARE(program.Window().Modes().GetDrawMode(), DrawStitches);
}

void EditBoxInWindowTest::SquareUndoRefreshesASelection() {
    OpenedProgram program;
    program.Take(30, 24, 200);
    const Twin empty(program.Design());
    program.ClickIn(4, 4);
    program.Tool("DRAWMODE_EDITBOX");
    program.DragOver({{3, 3}, {5, 5}});
    program.Key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(Box(program).IsActive());
    program.DragOver({{4, 4}, {10, 10}});
    COMPARE_TWIN(program, empty);
}

void EditBoxInWindowTest::UndoAmidADragMovesNothing() {
    OpenedProgram program;
    Prepare(program);
    const Twin before = Prepared(program);
    program.Tool("DRAWMODE_STITCHES");
    program.ClickIn(5, 5);
    program.Tool("DRAWMODE_EDITBOX");
    program.DragOver({{3, 3}, {7, 6}});
    program.Pointer.MoveTo(program.Grid(), program.In(4, 4));
    program.Pointer.Press();
    program.Pointer.MoveTo(program.Grid(), program.In(14, 14));
    program.Key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Box(program).GetEditBoxRect(), (SquareRect{3, 3, 7, 6}));
    program.Pointer.MoveTo(program.Grid(), program.In(16, 14));
    program.Pointer.Release();
    COMPARE_TWIN(program, before);
    // What is dragged from now on is the section without the stitch that was undone.
    program.DragOver({{4, 4}, {14, 14}});
    Twin after(program.Design());
    after.SetStitch(14, 14, StitchWhole, 1, 0);
    after.SetStitch(16, 15, StitchTBH, 2, 0);
    COMPARE_TWIN(program, after);
}

} // namespace zol::test

QTEST_MAIN(zol::test::EditBoxInWindowTest)
#include "test_EditBoxInWindow.moc"
