// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "gui/DrawnProgram.h"
#include "gui/KilledRun.h"

namespace zol::test {

namespace {

struct StitchButton {
    const char* Key;
    int Type;
};

constexpr StitchButton FixedButtons[] = {
    {"STITCH_WHOLE", StitchWhole}, {"STITCH_UL3Q", StitchUL3Q}, {"STITCH_UR3Q", StitchUR3Q},
    {"STITCH_LL3Q", StitchLL3Q},   {"STITCH_LR3Q", StitchLR3Q}, {"STITCH_TBH", StitchTBH},
    {"STITCH_BTH", StitchBTH},     {"STITCH_ULQ", StitchULQ},   {"STITCH_URQ", StitchURQ},
    {"STITCH_LLQ", StitchLLQ},     {"STITCH_LRQ", StitchLRQ},
};

void SetRow(Pattern& design, int from, int to, int row, int floss = 1) {
    for (int x = from; x <= to; ++x) {
        design.SetStitch(x, row, StitchWhole, floss, 5);
    }
}

/// The file that a design would be saved to.
std::string FileOf(const std::string& design, const std::filesystem::path& path) {
    ProgramContext context;
    Pattern pattern(context);
    const std::vector<std::uint8_t> bytes(design.begin(), design.end());
    ByteReader stream(bytes);
    return pattern.Load(std::string(), stream, 0, 0) == 0 && pattern.Save(path) == 0
               ? ReadFile(path)
               : std::string("no file");
}

} // namespace

/// A design drawn with every stitch tool; pattern and screen are looked at after each stroke.
class DrawingSessionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryFixedStitchByItsButton();
    void SmartStitchesTakeTheQuarterClicked();
    void KnotsInEveryStyleAtEveryPoint();
    void KnotsAreSetByThePressAlone();
    void KeysKeepAStrokeStraight();
    void BothButtonsErase();
    void ErasingUnderALineBringsItBack();
    void FillsOnceAndAgain();
    void FillTakesAwayWithTheEraseButton();
    void PickerTakesTheFlossOfAStitch();
    void MirrorAcrossAColumn();
    void MirrorAcrossARow();
    void MirroredKnotsChangeTheirPoint();
    void CommandsOnTheWholeDesign();
    void KilledSessionIsRecoveredAndSaved();

private:
    /// A floss of the strip, picked by a click on its swatch; its number in the palette.
    static int PickFloss(DrawnProgram& program, int position) {
        const int pitch = 25;
        auto* strip = program.Find<QWidget>("picPalette");
        program.Pointer.Click(*strip, QPointF((position - 1) * pitch + 12, 12));
        return program.Design().GetPalette().GetSortIndex(position);
    }
};

void DrawingSessionTest::EveryFixedStitchByItsButton() {
    const ProgramHome home;
    WriteFile(home / "settings.ini", "[Options]\nUseSmartQS=0\nUseSmart3QS=0\n");
    DrawnProgram program(home);
    QVERIFY(program.Open());
    program.Take(30, 30, 200);
    Twin twin(program.Design());
    QVERIFY(!program.Find<QToolButton>("STITCH_SQ")->isVisible());
    int column = 2;
    for (const StitchButton& button : FixedButtons) {
        program.Tool(button.Key);
        QVERIFY(program.Find<QToolButton>(button.Key)->isChecked());
        program.DragOver({{column, 2}, {column, 5}});
        for (int y = 2; y <= 5; ++y) {
            twin.SetStitch(column, y, button.Type, 1, 5);
        }
        COMPARE_TWIN(program, twin);
        column += 2;
    }
    program.End();
}

void DrawingSessionTest::SmartStitchesTakeTheQuarterClicked() {
    OpenedProgram program;
    program.Take(12, 12, 500);
    Twin twin(program.Design());
    const int corners[] = {1, 3, 7, 9};
    for (const auto& [key, type] :
         {StitchButton{"STITCH_S3Q", StitchS3Q}, StitchButton{"STITCH_SQ", StitchSQ}}) {
        program.Tool(key);
        const int row = type == StitchS3Q ? 2 : 4;
        for (int i = 0; i < 4; ++i) {
            program.ClickIn(2 + i, row, i % 2 == 0 ? 0.45 : 0.6, i < 2 ? 0.45 : 0.6);
            twin.SetStitch(2 + i, row, type, 1, corners[i]);
            COMPARE_TWIN(program, twin);
            const int first = type == StitchS3Q ? StitchUL3Q : StitchULQ;
            QCOMPARE(program.Design().GetStitchType(2 + i, row, 0), first + i);
        }
        program.Pointer.MoveTo(program.Grid(), program.In(8, row, 0.4, 0.4));
        program.Pointer.Press();
        program.Pointer.MoveTo(program.Grid(), program.In(10, row + 1));
        program.Pointer.Release();
        twin.SetStitch(8, row, type, 1, 1); // and none on the way
        COMPARE_TWIN(program, twin);
    }
}

void DrawingSessionTest::KnotsInEveryStyleAtEveryPoint() {
    OpenedProgram program;
    program.Take(20, 11, 300);
    Twin twin(program.Design());
    program.Tool("STITCH_FKNOT");
    const double thirds[] = {0.1, 0.5, 0.9};
    for (int style = 0; style < 5; ++style) {
        program.Choose(("mnuFK" + std::to_string(style)).c_str());
        for (int position = 1; position <= 9; ++position) {
            const SquarePos at{2 * position - 1, 2 * style + 1};
            program.ClickIn(at.X, at.Y, thirds[PositionColumn(position)],
                            thirds[PositionRow(position)]);
            twin.SetStitch(at.X, at.Y, StitchFKnot, 1, position);
        }
        COMPARE_TWIN(program, twin);
        const int index = program.Design().GetStitchCount(9, 2 * style + 1) - 1;
        QCOMPARE(program.Design().GetFrenchKnotOrientation(9, 2 * style + 1, index), style);
    }
    QCOMPARE(program.Design().FrenchKnots().Count(), std::size_t{45});
}

void DrawingSessionTest::KnotsAreSetByThePressAlone() {
    OpenedProgram program;
    program.Take(12, 12, 400);
    Twin twin(program.Design());
    program.Tool("STITCH_FKNOT");
    program.DragOver({{3, 3}, {4, 3}, {8, 7}});
    twin.SetStitch(3, 3, StitchFKnot, 1, 5);
    COMPARE_TWIN(program, twin);
    program.ClickIn(1, 1, 0.05, 0.05);
    twin.SetStitch(1, 1, StitchFKnot, 1, 1);
    COMPARE_TWIN(program, twin);
}

void DrawingSessionTest::KeysKeepAStrokeStraight() {
    OpenedProgram program;
    Twin twin(program.Design());
    program.DragOver({{5, 5}, {7, 7}, {3, 9}}, Qt::LeftButton, Qt::ShiftModifier);
    for (int y = 5; y <= 9; ++y) {
        twin.SetStitch(5, y, StitchWhole, 1, 5);
    }
    COMPARE_TWIN(program, twin);
    program.DragOver({{10, 5}, {12, 7}, {15, 2}}, Qt::LeftButton, Qt::ControlModifier);
    SetRow(twin, 10, 15, 5);
    COMPARE_TWIN(program, twin);
    program.DragOver({{11, 5}, {13, 9}}, Qt::RightButton, Qt::ControlModifier);
    for (int x = 11; x <= 13; ++x) {
        twin.DeleteStitch(x, 5, 0);
    }
    COMPARE_TWIN(program, twin);
}

void DrawingSessionTest::BothButtonsErase() {
    OpenedProgram program;
    program.Take(20, 20, 200);
    Twin twin(program.Design());
    program.DragOver({{2, 2}, {9, 2}});
    SetRow(twin, 2, 9, 2);
    program.Tool("STITCH_FKNOT");
    program.ClickIn(3, 2, 0.9, 0.9); // reaches into three others
    twin.SetStitch(3, 2, StitchFKnot, 1, 9);
    COMPARE_TWIN(program, twin);
    program.ClickIn(4, 2, 0.5, 0.5, Qt::RightButton);
    twin.DeleteStitch(4, 2, 0);
    COMPARE_TWIN(program, twin);
    program.Tool("ERASE");
    program.DragOver({{6, 2}, {7, 2}});
    twin.DeleteStitch(6, 2, 0);
    twin.DeleteStitch(7, 2, 0);
    COMPARE_TWIN(program, twin);
    program.ClickIn(9, 2, 0.5, 0.5, Qt::RightButton);
    twin.DeleteStitch(9, 2, 0);
    COMPARE_TWIN(program, twin);
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Erase Stitches"));
    program.Tool("ERASE");
    program.ClickIn(12, 2);
    twin.SetStitch(12, 2, StitchFKnot, 1, 5);
    COMPARE_TWIN(program, twin);
}

void DrawingSessionTest::ErasingUnderALineBringsItBack() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    Twin twin(program.Design());
    program.DragOver({{2, 3}, {9, 3}});
    SetRow(twin, 2, 9, 3);
    program.Tool("DRAWMODE_LINES");
    program.DragOver({{2, 2}, {8, 5}});
    twin.Line({2, 2}, 5, {8, 5}, 5);
    COMPARE_TWIN(program, twin);
    program.Tool("DRAWMODE_STITCHES");
    program.DragOver({{2, 3}, {9, 3}}, Qt::RightButton);
    for (int x = 2; x <= 9; ++x) {
        twin.DeleteStitch(x, 3, 0);
    }
    COMPARE_TWIN(program, twin);
}

void DrawingSessionTest::FillsOnceAndAgain() {
    OpenedProgram program;
    program.Take(12, 12, 200);
    Twin twin(program.Design());
    program.DragOver({{1, 6}, {12, 6}});
    SetRow(twin, 1, 12, 6);
    const int floss = PickFloss(program, 3);
    QVERIFY(floss > 1);
    program.Choose("mnuPaintOnce");
    program.ClickIn(4, 3);
    twin.Paint(4, 3, StitchWhole, floss, NoFloss);
    COMPARE_TWIN(program, twin);
    QCOMPARE(int{program.Window().Modes().GetDrawMode()}, int{DrawStitches});
    program.Tool("PAINT");
    program.ClickIn(4, 9);
    twin.Paint(4, 9, StitchWhole, floss, NoFloss);
    COMPARE_TWIN(program, twin);
    program.ClickIn(4, 6);
    twin.Paint(4, 6, StitchWhole, floss, 1);
    COMPARE_TWIN(program, twin);
    QCOMPARE(int{program.Window().Modes().GetDrawMode()}, int{DrawPaint});
    program.Tool("PAINT");
    QCOMPARE(int{program.Window().Modes().GetDrawMode()}, int{DrawStitches});
}

void DrawingSessionTest::FillTakesAwayWithTheEraseButton() {
    OpenedProgram program;
    program.Take(12, 12, 200);
    Twin twin(program.Design());
    program.DragOver({{2, 6}, {9, 6}});
    SetRow(twin, 2, 9, 6);
    program.Tool("PAINT");
    program.Tool("ERASE");
    QCOMPARE(int{program.Window().Modes().GetDrawMode()}, int{DrawPaint});
    program.ClickIn(4, 2); // cloth
    COMPARE_TWIN(program, twin);
    program.ClickIn(4, 6);
    for (int x = 2; x <= 9; ++x) {
        twin.DeleteStitch(x, 6, 0);
    }
    COMPARE_TWIN(program, twin);
    program.Tool("ERASE");
    QVERIFY(program.Find<QToolButton>("PAINT")->isChecked());
    program.ClickIn(4, 6);
    twin.Paint(4, 6, StitchWhole, 1, NoFloss);
    COMPARE_TWIN(program, twin);
}

void DrawingSessionTest::PickerTakesTheFlossOfAStitch() {
    OpenedProgram program;
    Twin twin(program.Design());
    const int floss = PickFloss(program, 4);
    program.ClickIn(3, 3);
    twin.SetStitch(3, 3, StitchWhole, floss, 5);
    const int other = PickFloss(program, 2);
    QVERIFY(other != floss);
    program.Tool("COLORPICKER");
    program.ClickIn(8, 8); // cloth: the floss stays
    QCOMPARE(int{program.Window().Modes().GetDrawMode()}, int{DrawStitches});
    program.ClickIn(5, 3);
    twin.SetStitch(5, 3, StitchWhole, other, 5);
    COMPARE_TWIN(program, twin);
    program.Tool("COLORPICKER");
    program.ClickIn(3, 3);
    program.ClickIn(7, 3);
    twin.SetStitch(7, 3, StitchWhole, floss, 5);
    COMPARE_TWIN(program, twin);
}

void DrawingSessionTest::MirrorAcrossAColumn() {
    OpenedProgram program;
    program.Take(20, 20, 200);
    Twin twin(program.Design());
    program.Tool("MIRRORMODE_V");
    program.Tool("STITCH_TBH");
    program.ClickIn(8, 4); // the axis
    twin.SetStitch(8, 4, StitchTBH, 1, 5);
    COMPARE_TWIN(program, twin);
    program.DragOver({{9, 4}, {11, 4}});
    for (int i = 1; i <= 3; ++i) {
        twin.SetStitch(8 + i, 4, StitchTBH, 1, 5);
        twin.SetStitch(8 - i, 4, StitchBTH, 1, 5);
    }
    COMPARE_TWIN(program, twin);
    program.ClickIn(8, 4, 0.5, 0.5, Qt::RightButton); // erases nothing
    program.ClickIn(5, 10, 0.5, 0.5, Qt::RightButton);
    COMPARE_TWIN(program, twin);
    program.ClickIn(3, 10);
    twin.SetStitch(3, 10, StitchTBH, 1, 5);
    twin.SetStitch(7, 10, StitchBTH, 1, 5);
    COMPARE_TWIN(program, twin);
    program.ClickIn(12, 12); // its twin would lie beyond the cloth
    twin.SetStitch(12, 12, StitchTBH, 1, 5);
    COMPARE_TWIN(program, twin);
    program.Tool("MIRRORMODE_V");
    program.ClickIn(2, 15);
    twin.SetStitch(2, 15, StitchTBH, 1, 5);
    COMPARE_TWIN(program, twin);
}

void DrawingSessionTest::MirrorAcrossARow() {
    OpenedProgram program;
    program.Take(20, 20, 200);
    Twin twin(program.Design());
    program.Tool("MIRRORMODE_H");
    program.ClickIn(8, 8, 0.5, 0.5, Qt::RightButton);
    program.Tool("STITCH_BTH");
    program.DragOver({{3, 9}, {3, 11}});
    for (int i = 1; i <= 3; ++i) {
        twin.SetStitch(3, 8 + i, StitchBTH, 1, 5);
        twin.SetStitch(3, 8 - i, StitchTBH, 1, 5);
    }
    COMPARE_TWIN(program, twin);
    program.Key(Qt::Key_Z, Qt::ControlModifier);
    const Twin empty(program.Design());
    COMPARE_TWIN(program, empty);
    program.Choose("mnuMirrorNone");
    QVERIFY(!program.OnTop().Mirror.has_value());
    QVERIFY(!program.Find<QToolButton>("MIRRORMODE_H")->isChecked());
}

void DrawingSessionTest::MirroredKnotsChangeTheirPoint() {
    OpenedProgram program;
    program.Take(20, 20, 400);
    Twin twin(program.Design());
    program.Tool("MIRRORMODE_V");
    program.ClickIn(5, 5, 0.5, 0.5, Qt::RightButton);
    program.Tool("STITCH_FKNOT");
    program.ClickIn(3, 3, 0.1, 0.5);
    twin.SetStitch(3, 3, StitchFKnot, 1, 4);
    twin.SetStitch(7, 3, StitchFKnot, 1, 6);
    COMPARE_TWIN(program, twin);
    program.ClickIn(3, 6, 0.5, 0.1);
    twin.SetStitch(3, 6, StitchFKnot, 1, 2);
    twin.SetStitch(7, 6, StitchFKnot, 1, 2);
    COMPARE_TWIN(program, twin);
}

void DrawingSessionTest::CommandsOnTheWholeDesign() {
    OpenedProgram program;
    program.Take(40, 40, 100);
    Twin twin(program.Design());
    const int floss = PickFloss(program, 3);
    program.DragOver({{2, 2}, {9, 2}});
    SetRow(twin, 2, 9, 2, floss);
    program.Tool("DRAWMODE_LINES");
    program.DragOver({{2, 4}, {9, 6}});
    twin.Line({2, 4}, 5, {9, 6}, 5, floss);
    program.Choose("mnuCenterBoth");
    twin.Center(2);
    COMPARE_TWIN(program, twin);
    program.Choose("mnuToolsShrink");
    twin.ShrinkToFit();
    COMPARE_TWIN(program, twin);
    program.Choose("mnuClearPalette");
    twin.ClearUnusedPaletteColors();
    COMPARE_TWIN(program, twin);
    QCOMPARE(program.Design().GetPalette().GetEntriesCount(), 1);
    program.Choose("mnuDrawModeStitches");
    program.ClickIn(2, 3); // with a floss that is there
    twin.SetStitch(2, 3, StitchWhole, 1, 5);
    COMPARE_TWIN(program, twin);
}

void DrawingSessionTest::KilledSessionIsRecoveredAndSaved() {
    const ProgramHome home;
    const auto file = home / "motif.pat";
    const auto other = home / "other.pat";
    const KilledRun dead(home, file);
    QVERIFY(dead.IsDead());
    const std::string firstSave = ReadFile(file);
    {
        DrawnProgram program(home);
        program.User.answers = {MessageAnswer::Yes};
        program.User.files = {other};
        QVERIFY(program.Open());
        QCOMPARE(program.Window().windowTitle(),
                 QStringLiteral("Korvanta - ") + QString::fromStdString(file.string()));
        QVERIFY(program.Design().IsChanged());
        QVERIFY(BytesOf(program.Parts().Open.Get()) == dead.Design());
        QTRY_COMPARE(program.WrongPixels(), 0);
        program.Choose("mnuFileSaveAs");
        QVERIFY(!program.Design().IsChanged());
        QCOMPARE(program.Window().windowTitle(),
                 QStringLiteral("Korvanta - ") + QString::fromStdString(other.string()));
        QVERIFY(program.Window().close());
        program.End();
    }
    QVERIFY2(ReadFile(file) == firstSave, "what was saved before the end is as it was");
    QVERIFY(ReadFile(other) == FileOf(dead.Design(), home / "expected.pat"));
    DrawnProgram program(home);
    program.User.files = {other};
    QVERIFY(program.Open());
    program.Choose("mnuFileOpen");
    QVERIFY(BytesOf(program.Parts().Open.Get()) == dead.Design());
    QVERIFY(!program.Design().IsChanged());
    QTRY_COMPARE(program.WrongPixels(), 0);
    QCOMPARE(program.User.asked.size(), std::size_t{0});
    program.End();
}

} // namespace zol::test

QTEST_MAIN(zol::test::DrawingSessionTest)
#include "test_DrawingSession.moc"
