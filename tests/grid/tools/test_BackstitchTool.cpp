// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/BackstitchTool.h"

#include "ToolTest.h"
#include "grid/tools/LineMenu.h"

namespace zol::test {
namespace {

/// The window at a size of its own; squares are `zoom / 12.5` pixels and more by the ratio.
class ScaledView : public RecordingView {
public:
    ScaledView(const Pattern& pattern, int zoom, double ratio)
        : RecordingView(pattern),
          m_scaled(pattern, zoom, ratio) {}
    [[nodiscard]] const GridGeometry& Geometry() const override { return m_scaled; }

private:
    GridGeometry m_scaled;
};

class LineToolTest : public ToolTest {
protected:
    static GridSpot Spot(int column, int row, int position = 5) {
        return {column, row, position, 1};
    }
    void Click(int column, int row, int position = 5) {
        tool.Press(Left(column, row, position));
        tool.Release(Left(column, row, position));
    }
    void Drag(const GridSpot& from, const GridSpot& to) {
        tool.Press(Left(from.Column, from.Row, from.Position));
        tool.Move(Left(to.Column, to.Row, to.Position));
        tool.Release(Left(to.Column, to.Row, to.Position));
    }
    /// The menu of what lies there, closed at once.
    void RightClick(int column, int row, int position = 5) {
        tool.Press(Right(column, row, position));
        tool.Release(Right(column, row, position));
    }
    [[nodiscard]] int Count() const { return pattern.GetBackStitchCount(); }
    [[nodiscard]] BackStitchLine Line(int index) const { return pattern.GetBackStitchLine(index); }
    static BackStitchLine Expected(int x1, int y1, int p1, int x2, int y2, int p2, int floss,
                                   int style) {
        BackStitchLine line;
        line.StartX = static_cast<std::int16_t>(x1);
        line.StartY = static_cast<std::int16_t>(y1);
        line.StartPos = static_cast<std::int16_t>(p1);
        line.EndX = static_cast<std::int16_t>(x2);
        line.EndY = static_cast<std::int16_t>(y2);
        line.EndPos = static_cast<std::int16_t>(p2);
        line.PaletteIndex = static_cast<std::uint8_t>(floss);
        line.LineStyle = static_cast<std::uint8_t>(style);
        return line;
    }

    BackstitchTool tool{desk};
};

// --- Drawing -----------------------------------------------------------------------------

TEST_F(LineToolTest, ADragDrawsALine) {
    choice.CurrentPaletteIndex = 3;
    tool.Press(Left(3, 4, 1));
    tool.Move(Left(9, 7, 5));
    EXPECT_EQ(tool.GetOverlay().RubberBand, (OverlayLine{LatticeOf(3, 4, 1), LatticeOf(9, 7, 5)}));
    tool.Release(Left(9, 7, 5));
    ASSERT_EQ(Count(), 1);
    EXPECT_EQ(Line(1), Expected(3, 4, 1, 9, 7, 5, 3, LineStraight));
    EXPECT_EQ(tool.GetOverlay(), Overlay());
    EXPECT_TRUE(pattern.IsChanged());
    ExpectScreenIsTrue();
}

TEST_F(LineToolTest, ANewLineTakesTheDefaultStyleOfItsFloss) {
    pattern.GetPalette().SetDefaultBSType(2, LineSquiggle);
    choice.CurrentPaletteIndex = 2;
    Drag(Spot(3, 4), Spot(20, 15));
    EXPECT_EQ(Line(1), Expected(3, 4, 5, 20, 15, 5, 2, LineSquiggle));
    ExpectScreenIsTrue();
}

TEST_F(LineToolTest, AClickSetsTheFirstEndAndTheNextFinishesTheLine) {
    Click(3, 4, 1);
    EXPECT_EQ(Count(), 0);
    tool.Move(At(5, 6, PointerButton::None, 2));
    EXPECT_EQ(tool.GetOverlay().RubberBand, (OverlayLine{LatticeOf(3, 4, 1), LatticeOf(5, 6, 2)}));
    Click(8, 4, 3);
    ASSERT_EQ(Count(), 1);
    EXPECT_EQ(Line(1), Expected(3, 4, 1, 8, 4, 3, 1, LineStraight));
    tool.Move(At(9, 9, PointerButton::None));
    EXPECT_EQ(tool.GetOverlay(), Overlay()) << "the line is done";
}

TEST_F(LineToolTest, TheBandVanishesWhileTheLooseEndIsOnTheFirst) {
    tool.Press(Left(5, 5, 9));
    tool.Move(Left(7, 7));
    tool.Move(Left(6, 6, 1));
    EXPECT_EQ(tool.GetOverlay().RubberBand, std::nullopt);
}

TEST_F(LineToolTest, NothingIsAskedWhileTheBandStays) {
    tool.Press(Left(5, 5));
    tool.Move(Left(7, 7, 9));
    const int before = view.overlayChanges;
    tool.Move(Left(8, 8, 1));
    EXPECT_EQ(view.overlayChanges, before);
}

TEST_F(LineToolTest, TheSamePointByTwoNamesMakesNoLine) {
    EXPECT_TRUE(BackstitchTool::PointsEqual(Spot(5, 5, 9), Spot(6, 6, 1)));
    EXPECT_TRUE(BackstitchTool::PointsEqual(Spot(5, 5, 3), Spot(6, 5, 1)));
    EXPECT_TRUE(BackstitchTool::PointsEqual(Spot(5, 5, 8), Spot(5, 6, 2)));
    EXPECT_TRUE(BackstitchTool::PointsEqual(Spot(5, 5, 7), Spot(4, 5, 9)));
    EXPECT_FALSE(BackstitchTool::PointsEqual(Spot(5, 5, 9), Spot(6, 6, 2)));
    Drag(Spot(5, 5, 9), Spot(6, 6, 1));
    EXPECT_EQ(Count(), 0);
    Click(8, 6);
    EXPECT_EQ(Count(), 1) << "the first end was still set";
}

TEST_F(LineToolTest, AnchoredEndsFallOnTheSquaresUpperLeft) {
    choice.AnchorBackstitches = true;
    Click(3, 4, 9);
    Click(3, 4, 2);
    EXPECT_EQ(Count(), 0) << "two clicks in one square";
    tool.Move(At(6, 6, PointerButton::None, 9));
    EXPECT_EQ(tool.GetOverlay().RubberBand, (OverlayLine{LatticeOf(3, 4, 1), LatticeOf(6, 6, 1)}));
    Click(6, 6, 9);
    ASSERT_EQ(Count(), 1);
    EXPECT_EQ(Line(1), Expected(3, 4, 1, 6, 6, 1, 1, LineStraight));
}

TEST_F(LineToolTest, TheReleaseTellsPlaceAndFloss) {
    choice.CurrentPaletteIndex = 2;
    Drag(Spot(3, 4), Spot(9, 7));
    EXPECT_EQ(view.places, (std::vector<std::string>{"9, 7"}));
    EXPECT_EQ(view.flosses, (std::vector<std::string>{pattern.GetPalette().GetFlossLongDesc(2)}));
}

TEST_F(LineToolTest, OnlyTheSquaresRoundTheLineAreAskedFor) {
    Drag(Spot(9, 4), Spot(3, 7));
    EXPECT_EQ(view.redraws, (std::vector<SquareRect>{{2, 3, 10, 8}}));
}

// --- The pattern's edge ----------------------------------------------------------------------

TEST_F(LineToolTest, AnEndOnTheEdgeMayBeNamedFromOutside) {
    Drag(Spot(0, 5, 3), Spot(Size + 1, Size + 1, 1));
    ASSERT_EQ(Count(), 1);
    EXPECT_EQ(Line(1), Expected(1, 5, 1, Size, Size, 9, 1, LineStraight));
}

TEST_F(LineToolTest, APressOutsideStartsNothing) {
    Drag(Spot(0, 5, 5), Spot(6, 6));
    Drag(Spot(6, Size + 3, 1), Spot(6, 6));
    EXPECT_EQ(Count(), 0);
    EXPECT_FALSE(pattern.IsChanged());
    EXPECT_EQ(tool.GetOverlay(), Overlay());
}

TEST_F(LineToolTest, AReleaseOutsideEndsWhereTheBandWasSeen) {
    tool.Press(Left(6, 6));
    tool.Move(Left(Size, 6));
    tool.Release(Left(Size + 3, 6));
    ASSERT_EQ(Count(), 1);
    EXPECT_EQ(Line(1), Expected(6, 6, 5, Size, 6, 5, 1, LineStraight));
}

TEST_F(LineToolTest, AReleaseOutsideWithoutABandIsRefused) {
    tool.Press(Left(6, 6));
    tool.Release(Left(Size + 3, 6));
    EXPECT_EQ(Count(), 0);
    EXPECT_EQ(tool.GetOverlay(), Overlay());
}

TEST_F(LineToolTest, APatternWithoutSquaresTakesNoLine) {
    pattern.Resize(Size, 0, 12, 12);
    Drag(Spot(3, 1), Spot(7, 1));
    RightClick(3, 1);
    EXPECT_EQ(Count(), 0);
}

// --- Chains ----------------------------------------------------------------------------------

TEST_F(LineToolTest, CtrlAtTheFirstPressChainsLines) {
    tool.Press(WithKeys(Left(3, 3), false, true));
    tool.Release(Left(6, 3));
    Click(6, 8);
    Click(2, 8);
    ASSERT_EQ(Count(), 3);
    EXPECT_EQ(Line(2), Expected(6, 3, 5, 6, 8, 5, 1, LineStraight));
    EXPECT_EQ(Line(3), Expected(6, 8, 5, 2, 8, 5, 1, LineStraight));
    RightClick(9, 9);
    EXPECT_TRUE(view.lineMenus.empty()) << "the right button only ends the chain";
    Click(12, 12);
    EXPECT_EQ(Count(), 3);
}

TEST_F(LineToolTest, ShiftAndCtrlTogetherChainNothing) {
    tool.Press(WithKeys(Left(3, 3), true, true));
    tool.Release(Left(6, 3));
    Click(6, 8);
    EXPECT_EQ(Count(), 1);
}

TEST_F(LineToolTest, UndoOfAChainTakesAllOfIt) {
    AddLine(1, 1, 1, 2, 2, 1);
    tool.Press(WithKeys(Left(3, 3), false, true));
    EXPECT_EQ(steps.GetUndoLabel(), "") << "not while the step is open";
    tool.Release(Left(6, 3));
    EXPECT_EQ(steps.GetUndoLabel(), "Line");
    Click(6, 8);
    Click(2, 8);
    tool.Press(Right(2, 8));
    EXPECT_EQ(Count(), 4);
    steps.PerformUndo();
    EXPECT_EQ(Count(), 1);
    steps.PerformUndo();
    EXPECT_EQ(Count(), 1);
}

TEST_F(LineToolTest, AChainThatGoesOnAfterUndoIsAStepOfItsOwn) {
    tool.Press(WithKeys(Left(3, 3), false, true));
    tool.Release(Left(6, 3));
    steps.PerformUndo();
    EXPECT_EQ(Count(), 0);
    Click(6, 8);
    Click(2, 8);
    EXPECT_EQ(Count(), 2);
    steps.PerformUndo();
    EXPECT_EQ(Count(), 0);
}

TEST_F(LineToolTest, AStepThatCameBetweenTheEndsStaysWhole) {
    Click(3, 3);
    steps.BeginUndo(UndoKind::Squares, "Stitches");
    pattern.SetStitch(1, 1, StitchWhole, 1, 5);
    steps.EndUndo();
    Click(8, 3);
    EXPECT_EQ(steps.GetUndoLabel(), "Line");
    steps.PerformUndo();
    EXPECT_EQ(Count(), 0);
    EXPECT_EQ(Kind(1, 1), StitchWhole);
}

// --- Selecting -------------------------------------------------------------------------------

TEST_F(LineToolTest, ARightClickSelectsTheLineAndOpensItsMenu) {
    AddLine(3, 3, 1, 9, 3, 1, 2);
    pattern.ChangeBSStyle(1, LineDotted);
    RightClick(5, 3, 2);
    EXPECT_EQ(tool.SelectedLine(), 1);
    EXPECT_EQ(view.lineMenus, (std::vector<int>{LineDotted}));
    EXPECT_EQ(view.flosses, (std::vector<std::string>{pattern.GetPalette().GetFlossLongDesc(2)}));
    EXPECT_EQ(tool.GetOverlay().Handles, (OverlayLine{LatticeOf(3, 3, 1), LatticeOf(9, 3, 1)}));
}

TEST_F(LineToolTest, WithNoLineNearTheMenuOpensAndItsCommandsDoNothing) {
    AddLine(3, 3, 1, 9, 3, 1, 2);
    view.whileMenuIsOpen = [&] {
        tool.SetStyleOfSelected(LinePlus);
        tool.SetColorOfSelected();
        tool.DeleteSelected();
        tool.HideHandles();
    };
    RightClick(5, 18);
    EXPECT_EQ(view.lineMenus, (std::vector<int>{-1}));
    EXPECT_EQ(Count(), 1);
    EXPECT_EQ(Line(1), Expected(3, 3, 1, 9, 3, 1, 2, LineStraight));
    EXPECT_FALSE(pattern.IsChanged());
    EXPECT_TRUE(view.redraws.empty());
    EXPECT_EQ(tool.SelectedLine(), 0);
}

TEST_F(LineToolTest, ARightClickElsewhereLetsTheSelectionGo) {
    AddLine(3, 3, 1, 9, 3, 1, 2);
    RightClick(5, 3, 2);
    RightClick(5, 18);
    EXPECT_EQ(tool.SelectedLine(), 0);
    EXPECT_EQ(tool.GetOverlay(), Overlay());
}

TEST_F(LineToolTest, TheNearerOfTwoLinesIsTakenAndOfEqualOnesTheFirst) {
    AddLine(3, 5, 1, 9, 5, 1); // 20 pixels a square
    AddLine(3, 6, 4, 9, 6, 4);
    AddLine(9, 6, 4, 3, 6, 4);
    EXPECT_EQ(tool.GetLineAtPoint(Spot(5, 5, 2)), 1);
    EXPECT_EQ(tool.GetLineAtPoint(Spot(5, 6, 2)), 2);
    EXPECT_EQ(tool.SelectedLine(), 2);
    EXPECT_EQ(tool.GetLineAtPoint(Spot(5, 12)), -1);
    EXPECT_EQ(tool.SelectedLine(), 2) << "a miss selects nothing and lets nothing go";
}

TEST_F(LineToolTest, APointPastTheEndIsNoHit) {
    AddLine(3, 5, 1, 9, 5, 1);
    EXPECT_EQ(tool.GetLineDistance(1, Spot(9, 5, 1)), 0);
    EXPECT_EQ(tool.GetLineDistance(1, Spot(9, 5, 2)), -1);
    EXPECT_EQ(tool.GetLineDistance(1, Spot(2, 5, 2)), -1);
    EXPECT_EQ(tool.GetLineDistance(1, Spot(9, 5, 4)), 10);
}

TEST_F(LineToolTest, TheReachIsTwentyPixelsOfTheWindow) {
    AddLine(3, 5, 1, 9, 5, 1);
    EXPECT_EQ(tool.GetLineDistance(1, Spot(5, 6, 1)), 20);
    EXPECT_EQ(tool.GetLineDistance(1, Spot(5, 6, 4)), -1);
    EXPECT_EQ(tool.GetLineDistance(1, Spot(5, 4, 1)), 20);
    ScaledView fine(pattern, RecordingView::Zoom, 2); // as large, of twice the pixels
    const BackstitchTool onFine(ToolDesk{holder, steps, mirror, choice, fine});
    EXPECT_EQ(onFine.GetLineDistance(1, Spot(5, 6, 1)), 40);
    EXPECT_EQ(onFine.GetLineDistance(1, Spot(5, 6, 4)), -1);
    ScaledView large(pattern, 1000, 1);
    const BackstitchTool onLarge(ToolDesk{holder, steps, mirror, choice, large});
    EXPECT_EQ(onLarge.GetLineDistance(1, Spot(5, 5, 4)), -1) << "40 pixels off";
}

TEST_F(LineToolTest, ALineOfNoLengthFromAFileIsHitAtItsPoint) {
    AddLine(5, 5, 9, 6, 6, 1);
    EXPECT_EQ(tool.GetLineDistance(1, Spot(6, 6, 1)), 0);
    EXPECT_EQ(tool.GetLineDistance(1, Spot(6, 6, 2)), 10);
    EXPECT_EQ(tool.GetLineDistance(1, Spot(9, 9, 2)), -1);
    ScaledView tiny(pattern, 1, 1);
    AddLine(5, 5, 5, 5, 5, 9);
    const BackstitchTool onTiny(ToolDesk{holder, steps, mirror, choice, tiny});
    EXPECT_GE(onTiny.GetLineDistance(2, Spot(5, 5, 5)), 0);
}

// --- Handles ---------------------------------------------------------------------------------

TEST_F(LineToolTest, AHandleTakesTheLineUpAndMovesThatEnd) {
    AddLine(3, 3, 1, 9, 3, 1, 2);
    pattern.ChangeBSStyle(1, LineTracks);
    AddLine(1, 20, 1, 9, 20, 1, 4);
    view.PaintAfresh();
    RightClick(5, 3, 2);
    tool.Press(Left(8, 3, 3)); // the same point as position 1 of the next column
    EXPECT_EQ(Count(), 1) << "taken up";
    EXPECT_EQ(tool.GetOverlay().RubberBand, (OverlayLine{LatticeOf(3, 3, 1), LatticeOf(9, 3, 1)}));
    EXPECT_EQ(tool.GetOverlay().Handles, std::nullopt);
    tool.Move(Left(9, 9, 5));
    tool.Release(Left(9, 9, 5));
    ASSERT_EQ(Count(), 2);
    EXPECT_EQ(Line(2), Expected(3, 3, 1, 9, 9, 5, 2, LineTracks));
    ExpectScreenIsTrue();

    Drag(Spot(12, 12), Spot(15, 12));
    EXPECT_EQ(Line(3).PaletteIndex, 1) << "the next line is a new one";
    EXPECT_EQ(Line(3).LineStyle, LineStraight);
}

TEST_F(LineToolTest, TheStartIsMovedByItsHandle) {
    AddLine(3, 3, 1, 9, 3, 1, 2);
    RightClick(5, 3, 2);
    Drag(Spot(3, 3, 1), Spot(3, 9, 1));
    ASSERT_EQ(Count(), 1);
    EXPECT_EQ(Line(1), Expected(9, 3, 1, 3, 9, 1, 2, LineStraight));
}

TEST_F(LineToolTest, AHeldLineGoesBackWhenTheGestureIsGivenUp) {
    AddLine(3, 3, 1, 9, 3, 1, 2);
    const BackStitchLine before = Line(1);
    view.PaintAfresh();
    RightClick(5, 3, 2);
    tool.Press(Left(9, 3, 1));
    tool.Move(Left(9, 9));
    EXPECT_TRUE(tool.Cancel());
    ASSERT_EQ(Count(), 1);
    EXPECT_EQ(Line(1), before);
    EXPECT_EQ(tool.GetOverlay(), Overlay());
    ExpectScreenIsTrue();
    EXPECT_FALSE(tool.Cancel());
}

TEST_F(LineToolTest, AHeldLineIsNotLostOutsideThePattern) {
    AddLine(3, 3, 1, 9, 3, 1, 2);
    RightClick(5, 3, 2);
    tool.Press(Left(9, 3, 1));
    tool.Release(Left(9, Size + 7, 5));
    ASSERT_EQ(Count(), 1);
    tool.Cancel();
    EXPECT_EQ(Count(), 1);
}

TEST_F(LineToolTest, AHeldLineReleasedOnItsOtherEndGoesBack) {
    AddLine(3, 3, 1, 9, 3, 1, 2);
    pattern.ChangeBSStyle(1, LineTracks);
    const BackStitchLine before = Line(1);
    view.PaintAfresh();
    RightClick(5, 3, 2);
    Drag(Spot(9, 3, 1), Spot(2, 3, 3)); // the same point as position 1 of the next column
    ASSERT_EQ(Count(), 1);
    EXPECT_EQ(Line(1), before);
    EXPECT_EQ(tool.GetOverlay(), Overlay()) << "nothing hangs on the pointer";
    ExpectScreenIsTrue();
    Click(12, 12);
    Click(15, 12);
    EXPECT_EQ(Count(), 2) << "the next click is a new line's first end";
}

TEST_F(LineToolTest, OnlyALineThatIsHeldIsPutBack) {
    AddLine(3, 3, 1, 9, 3, 1, 2);
    const BackStitchLine before = Line(1);
    RightClick(5, 3, 2);
    tool.Press(Left(9, 3, 1));
    tool.PutBackTakenUp();
    ASSERT_EQ(Count(), 1);
    EXPECT_EQ(Line(1), before);
    tool.Release(Left(9, 9, 1));
    EXPECT_EQ(Count(), 1) << "its drag has ended";
    Click(12, 12);
    tool.PutBackTakenUp();
    Click(15, 12);
    EXPECT_EQ(Count(), 2) << "a line with one end goes on";
}

TEST_F(LineToolTest, APressBesideTheHandlesStartsANewLine) {
    AddLine(3, 3, 1, 9, 3, 1, 2);
    RightClick(5, 3, 2);
    tool.Press(Left(9, 3, 5));
    EXPECT_EQ(tool.SelectedLine(), 0);
    EXPECT_EQ(tool.GetOverlay(), Overlay());
    tool.Release(Left(9, 9, 5));
    EXPECT_EQ(Count(), 2);
}

TEST_F(LineToolTest, ALineThatUndoTookAwayIsSelectedNoLonger) {
    Drag(Spot(3, 3), Spot(9, 3));
    RightClick(5, 3);
    EXPECT_EQ(tool.SelectedLine(), 1);
    steps.PerformUndo();
    EXPECT_EQ(tool.SelectedLine(), 0);
    EXPECT_EQ(tool.GetOverlay(), Overlay());
    tool.DeleteSelected();
    tool.SetStyleOfSelected(LinePlus);
    EXPECT_EQ(Count(), 0);
}

// --- The menu's commands ---------------------------------------------------------------------

TEST_F(LineToolTest, TheMenusItemsCrossDotsAndTracks) {
    constexpr std::array<LineStyle, 6> styles{LineStraight, LineSquiggle, LineDashed,
                                              LineDotted,   LineTracks,   LinePlus};
    constexpr std::array<const char*, 6> captions{"&Line", "&Squiggle", "&Dash",
                                                  "D&ots", "&Tracks",   "&Plus"};
    for (std::size_t item = 0; item < LineStyleItems.size(); ++item) {
        EXPECT_EQ(LineStyleItems[item].Style, styles[item]);
        EXPECT_STREQ(LineStyleItems[item].Caption, captions[item]);
    }
}

TEST_F(LineToolTest, EveryStyleIsSetAndPaintedAnew) {
    AddLine(3, 3, 1, 19, 8, 1, 2);
    for (const LineStyleItem& item : LineStyleItems) {
        pattern.SetChanged(false);
        view.PaintAfresh();
        ASSERT_EQ(tool.GetLineAtPoint(Spot(3, 3, 1)), 1);
        tool.SetStyleOfSelected(item.Style);
        EXPECT_EQ(Line(1).LineStyle, item.Style);
        EXPECT_EQ(tool.GetOverlay(), Overlay()) << "the handles are hidden";
        EXPECT_TRUE(pattern.IsChanged());
        ExpectScreenIsTrue();
    }
}

TEST_F(LineToolTest, TheCurrentColorIsSetAndTheHandlesStay) {
    AddLine(3, 3, 1, 19, 8, 1, 2);
    view.PaintAfresh();
    choice.CurrentPaletteIndex = 4;
    ASSERT_EQ(tool.GetLineAtPoint(Spot(3, 3, 1)), 1);
    tool.SetColorOfSelected();
    EXPECT_EQ(Line(1).PaletteIndex, 4);
    EXPECT_NE(tool.GetOverlay().Handles, std::nullopt);
    EXPECT_TRUE(pattern.IsChanged());
    ExpectScreenIsTrue();
}

TEST_F(LineToolTest, DeletingRepaintsOneSquareMoreOnEachSide) {
    AddLine(9, 7, 5, 3, 4, 5, 2);
    view.PaintAfresh();
    view.whileMenuIsOpen = [&] { tool.DeleteSelected(); };
    RightClick(9, 7);
    EXPECT_EQ(Count(), 0);
    EXPECT_EQ(view.redraws, (std::vector<SquareRect>{{2, 3, 10, 8}}));
    EXPECT_EQ(tool.GetOverlay(), Overlay());
    EXPECT_TRUE(pattern.IsChanged());
    EXPECT_FALSE(steps.IsAvailable()) << "no undo step";
    ExpectScreenIsTrue();
}

TEST_F(LineToolTest, WhatDeletingRepaintsIsCutToThePattern) {
    AddLine(1, 1, 1, Size, Size, 9);
    tool.RemoveLine(1);
    EXPECT_EQ(view.redraws, (std::vector<SquareRect>{{1, 1, Size, Size}}));
}

TEST_F(LineToolTest, RemovingALineThatIsNotThereDoesNothing) {
    AddLine(3, 3, 1, 9, 3, 1);
    for (const int index : {0, -1, 2, 99}) {
        tool.RemoveLine(index);
    }
    EXPECT_EQ(Count(), 1);
    EXPECT_TRUE(view.redraws.empty());
}

TEST_F(LineToolTest, CancelGoesBackToIdle) {
    EXPECT_FALSE(tool.Cancel());
    Click(3, 3);
    tool.Move(Left(5, 5));
    EXPECT_TRUE(tool.Cancel());
    EXPECT_EQ(tool.GetOverlay(), Overlay());
    tool.Release(Left(9, 9));
    EXPECT_EQ(Count(), 0);
    EXPECT_FALSE(steps.IsAvailable()) << "nothing was drawn that could be undone";
}

// --- Undo of lines after others went or moved ------------------------------------------------

TEST_F(LineToolTest, UndoTakesTheNewLineAlsoAfterAnOlderOneWasDeleted) {
    AddLine(3, 3, 1, 9, 3, 1);
    AddLine(3, 8, 1, 9, 8, 1);
    Drag(Spot(3, 12), Spot(9, 12));
    tool.RemoveLine(1);
    steps.PerformUndo();
    ASSERT_EQ(Count(), 1);
    EXPECT_EQ(Line(1).StartY, 8);
}

TEST_F(LineToolTest, UndoAfterTheNewLineWasDeletedTakesNoOther) {
    AddLine(3, 3, 1, 9, 3, 1);
    Drag(Spot(3, 12), Spot(9, 12));
    tool.RemoveLine(2);
    steps.PerformUndo();
    EXPECT_EQ(Count(), 1);
}

TEST_F(LineToolTest, UndoNeverTakesAnOlderLineThatWasMoved) {
    AddLine(3, 3, 1, 9, 3, 1);
    Drag(Spot(3, 12), Spot(9, 12));
    RightClick(5, 3, 2);
    Drag(Spot(9, 3, 1), Spot(9, 6, 1));
    EXPECT_EQ(Count(), 2);
    EXPECT_FALSE(steps.IsAvailable()) << "the step would take the moved line for its own";
    steps.PerformUndo();
    EXPECT_EQ(Count(), 2);
}

TEST_F(LineToolTest, UndoTakesTheNewLineAlsoAfterItsEndWasMoved) {
    AddLine(3, 3, 1, 9, 3, 1);
    Drag(Spot(3, 12), Spot(9, 12));
    RightClick(5, 12);
    Drag(Spot(9, 12), Spot(9, 16));
    EXPECT_EQ(Line(2).EndY, 16);
    steps.PerformUndo();
    ASSERT_EQ(Count(), 1);
    EXPECT_EQ(Line(1).StartY, 3);
}

TEST_F(LineToolTest, AnUndoOfStitchesOutlivesAMovedLine) {
    AddLine(3, 3, 1, 9, 3, 1);
    steps.BeginUndo(UndoKind::Squares, "Stitches");
    pattern.SetStitch(1, 1, StitchWhole, 1, 5);
    steps.EndUndo();
    RightClick(5, 3, 2);
    Drag(Spot(9, 3, 1), Spot(9, 6, 1));
    EXPECT_EQ(steps.GetUndoLabel(), "Stitches");
    steps.PerformUndo();
    EXPECT_EQ(Kind(1, 1), NoStitch);
    EXPECT_EQ(Count(), 1);
}

} // namespace
} // namespace zol::test
