// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/StitchTool.h"

#include "ToolTest.h"

namespace zol::test {
namespace {

class StitchToolTest : public ToolTest {
protected:
    StitchTool tool{desk};

    void Click(const PointerEvent& event) {
        tool.Press(event);
        tool.Release(event);
    }
};

TEST_F(StitchToolTest, LeftPressSetsTheStitchOfTheChoice) {
    choice.CurrentStitchType = StitchTBH;
    choice.CurrentPaletteIndex = 3;
    tool.Press(Left(5, 7));
    EXPECT_EQ(Kind(5, 7), StitchTBH);
    EXPECT_EQ(Floss(5, 7), 3);
    EXPECT_TRUE(pattern.IsChanged());
    EXPECT_EQ(view.redraws, (std::vector<SquareRect>{{5, 7, 5, 7}}));
    EXPECT_FALSE(steps.IsAvailable()) << "the step is open";
    tool.Release(Left(5, 7));
    EXPECT_EQ(steps.GetUndoLabel(), "Stitches");
    ExpectScreenIsTrue();
}

TEST_F(StitchToolTest, SmartStitchTakesTheQuarterThatIsClicked) {
    choice.CurrentStitchType = StitchS3Q;
    Click(Left(2, 2, 1));
    Click(Left(4, 2, 3));
    Click(Left(2, 4, 7));
    Click(Left(4, 4, 9));
    EXPECT_EQ(Kind(2, 2), StitchUL3Q);
    EXPECT_EQ(Kind(4, 2), StitchUR3Q);
    EXPECT_EQ(Kind(2, 4), StitchLL3Q);
    EXPECT_EQ(Kind(4, 4), StitchLR3Q);
    choice.CurrentStitchType = StitchSQ;
    Click(Left(6, 6, 1));
    Click(Left(6, 6, 9));
    EXPECT_EQ(Kind(6, 6, 0), StitchULQ);
    EXPECT_EQ(Kind(6, 6, 1), StitchLRQ);
    ExpectScreenIsTrue();
}

TEST_F(StitchToolTest, SmartStitchAtHalfTheSquareGoesUpAndToTheLeftUnder51Percent) {
    choice.CurrentStitchType = StitchS3Q;
    const auto click = [this](int column, double x, double y) {
        PointerEvent event;
        const QPoint corner = view.Geometry().PointOf(column, 1, 1);
        event.At = view.Geometry().SpotAt(corner + QPointF(x, y));
        event.Button = PointerButton::Left;
        Click(event);
    };
    // A square is 20 pixels wide and high.
    click(1, 2, 10);
    click(2, 2, 10.2);
    click(3, 10, 2);
    click(4, 10.3, 2);
    EXPECT_EQ(Kind(1, 1), StitchUL3Q) << "exactly half the height is the upper corner";
    EXPECT_EQ(Kind(2, 1), StitchLL3Q);
    EXPECT_EQ(Kind(3, 1), StitchUL3Q) << "exactly half the width is left";
    EXPECT_EQ(Kind(4, 1), StitchUR3Q) << "51 percent and more is right";
}

TEST_F(StitchToolTest, KnotGoesToTheRegionUnderThePointer) {
    choice.CurrentStitchType = StitchFKnot;
    Click(Left(5, 5, 5));
    EXPECT_EQ(pattern.GetFrenchKnotPoint(5, 5, 0), 5);
    EXPECT_EQ(view.redraws.front(), (SquareRect{5, 5, 5, 5})) << "it stays within its square";
    view.redraws.clear();
    Click(Left(10, 10, 2));
    EXPECT_EQ(pattern.GetFrenchKnotPoint(10, 10, 0), 2);
    EXPECT_EQ(view.redraws.front(), (SquareRect{10, 9, 10, 10})) << "half of it lies above";
    view.redraws.clear();
    Click(Left(15, 15, 9));
    EXPECT_EQ(pattern.GetFrenchKnotPoint(15, 15, 0), 9);
    EXPECT_EQ(view.redraws.front(), (SquareRect{15, 15, 16, 16}));
    ExpectScreenIsTrue();
}

TEST_F(StitchToolTest, KnotAtPositionOneOfColumnOneLiesOnThePatternsCorner) {
    choice.CurrentStitchType = StitchFKnot;
    Click(Left(1, 1, 1));
    ASSERT_EQ(pattern.FrenchKnots().Count(), 1U);
    EXPECT_EQ(pattern.GetFrenchKnotPoint(1, 1, 0), 1);
    EXPECT_EQ(view.redraws.front(), (SquareRect{1, 1, 1, 1}));
    ExpectScreenIsTrue();
}

TEST_F(StitchToolTest, DraggingWithAKnotPlacesNoFurtherKnots) {
    choice.CurrentStitchType = StitchFKnot;
    tool.Press(Left(3, 3));
    tool.Move(Left(9, 3));
    tool.Release(Left(9, 3));
    EXPECT_EQ(pattern.FrenchKnots().Count(), 1U);
    EXPECT_EQ(Kind(9, 3), NoStitch);
}

TEST_F(StitchToolTest, DraggingWithASmartStitchSetsNothing) {
    for (const int type : {int{StitchS3Q}, int{StitchSQ}}) {
        choice.CurrentStitchType = type;
        tool.Press(Left(3, type, 1));
        tool.Move(Left(9, type, 1));
        tool.Release(Left(9, type, 1));
        EXPECT_NE(Kind(3, type), NoStitch);
        for (int x = 4; x <= 9; ++x) {
            EXPECT_EQ(Kind(x, type), NoStitch) << x;
        }
    }
}

TEST_F(StitchToolTest, ErasingRunOfAKnotOrSmartTypeErases) {
    for (int x = 3; x <= 9; ++x) {
        pattern.SetStitch(x, 3, StitchWhole, 1, 5);
    }
    for (const int type : {int{StitchFKnot}, int{StitchS3Q}, int{StitchSQ}}) {
        choice.CurrentStitchType = type;
        const int first = 3 + 2 * (type % 7);
        tool.Press(Right(first, 3));
        tool.Move(Right(first + 1, 3));
        tool.Release(Right(first + 1, 3));
        EXPECT_EQ(Kind(first, 3), NoStitch);
        EXPECT_EQ(Kind(first + 1, 3), NoStitch);
    }
}

TEST_F(StitchToolTest, RunFillsTheGapAndRedrawsItsSquaresOnly) {
    tool.Press(Left(2, 2));
    view.redraws.clear();
    tool.Move(Left(6, 6));
    for (int k = 2; k <= 6; ++k) {
        EXPECT_EQ(Kind(k, k), StitchWhole) << k;
    }
    EXPECT_EQ(view.RedrawnSquares(), (std::vector<SquarePos>{{3, 3}, {4, 4}, {5, 5}, {6, 6}}));
    tool.Move(Left(8, 6));
    EXPECT_EQ(Kind(7, 6), StitchWhole);
    EXPECT_EQ(Kind(8, 6), StitchWhole);
    tool.Release(Left(8, 6));
    pattern.CountStitches();
    EXPECT_EQ(pattern.GetColorCount(0, 1), 7);
    ExpectScreenIsTrue();
}

TEST_F(StitchToolTest, StartOfARunIsNotSetAgain) {
    tool.Press(Left(2, 2));
    choice.CurrentPaletteIndex = 2;
    tool.Move(Left(3, 2));
    EXPECT_EQ(Floss(2, 2), 1);
    EXPECT_EQ(Floss(3, 2), 2);
}

TEST_F(StitchToolTest, ShiftKeepsTheColumnOfThePress) {
    tool.Press(WithKeys(Left(5, 5), true, false));
    tool.Move(WithKeys(Left(9, 7), true, false));
    tool.Move(WithKeys(Left(2, 9), true, false));
    tool.Release(Left(2, 9));
    for (int y = 5; y <= 9; ++y) {
        EXPECT_EQ(Kind(5, y), StitchWhole) << y;
    }
    pattern.CountStitches();
    EXPECT_EQ(pattern.GetColorCount(0, 1), 5) << "the pointer's wandering leaves no trace";
    ExpectScreenIsTrue();
}

TEST_F(StitchToolTest, CtrlKeepsTheRowOfThePress) {
    tool.Press(Left(5, 5));
    tool.Move(WithKeys(Left(8, 9), false, true));
    for (int x = 5; x <= 8; ++x) {
        EXPECT_EQ(Kind(x, 5), StitchWhole) << x;
    }
    pattern.CountStitches();
    EXPECT_EQ(pattern.GetColorCount(0, 1), 4);
}

TEST_F(StitchToolTest, ShiftAndCtrlTogetherLockNothing) {
    tool.Press(Left(5, 5));
    tool.Move(WithKeys(Left(7, 7), true, true));
    EXPECT_EQ(Kind(6, 6), StitchWhole);
    EXPECT_EQ(Kind(7, 7), StitchWhole);
}

TEST_F(StitchToolTest, ChangeOfButtonsEndsTheStroke) {
    tool.Press(Left(2, 2));
    tool.Move(At(4, 2, PointerButton::None));
    EXPECT_EQ(Kind(4, 2), NoStitch);
    EXPECT_TRUE(steps.IsAvailable()) << "nothing more can come to this step";
    tool.Move(Left(6, 2));
    EXPECT_EQ(Kind(6, 2), NoStitch) << "the stroke does not come back to life";
    tool.Press(Left(2, 4));
    tool.Move(Right(4, 4));
    EXPECT_EQ(Kind(2, 4), StitchWhole);
    EXPECT_EQ(Kind(4, 4), NoStitch);
}

TEST_F(StitchToolTest, RightPressErasesTheSquare) {
    pattern.SetStitch(5, 5, StitchULQ, 1, 5);
    pattern.SetStitch(5, 5, StitchLRQ, 2, 5);
    view.PaintAfresh();
    tool.Press(Right(5, 5));
    EXPECT_EQ(pattern.GetStitchCount(5, 5), 0);
    EXPECT_EQ(view.redraws, (std::vector<SquareRect>{{5, 5, 5, 5}}));
    tool.Release(Right(5, 5));
    EXPECT_EQ(steps.GetUndoLabel(), "Erase Stitches");
    ExpectScreenIsTrue();
    steps.PerformUndo();
    EXPECT_EQ(pattern.GetStitchCount(5, 5), 2);
}

TEST_F(StitchToolTest, ErasingAKnotRedrawsTheNeighbours) {
    pattern.SetStitch(5, 5, StitchFKnot, 1, 9);
    view.PaintAfresh();
    tool.Press(Right(5, 5));
    EXPECT_TRUE(pattern.FrenchKnots().IsEmpty());
    EXPECT_EQ(view.redraws, (std::vector<SquareRect>{{4, 4, 6, 6}}));
    ExpectScreenIsTrue();
}

TEST_F(StitchToolTest, KnotOfTheNeighbourGoesWithTheSquareItTouches) {
    pattern.SetStitch(1, 1, StitchFKnot, 1, 9);
    view.PaintAfresh();
    tool.Press(Right(2, 2));
    EXPECT_TRUE(pattern.FrenchKnots().IsEmpty());
    EXPECT_EQ(view.redraws, (std::vector<SquareRect>{{1, 1, 3, 3}}));
    ExpectScreenIsTrue();
}

TEST_F(StitchToolTest, LineOverAnErasedStitchComesBackAtTheRelease) {
    pattern.SetStitch(5, 5, StitchWhole, 1, 5);
    AddLine(4, 4, 5, 7, 7, 5);
    view.PaintAfresh();
    tool.Press(Right(5, 5));
    view.redraws.clear();
    tool.Release(Right(5, 5));
    EXPECT_EQ(view.redraws, (std::vector<SquareRect>{{5, 5, 5, 5}}));
    const QRect square = view.Geometry().PixelsOf({5, 5, 5, 5});
    EXPECT_EQ(view.Screen().pixel(square.center()), 0xFF0000FFU) << "the line is blue";
    ExpectScreenIsTrue();
}

TEST_F(StitchToolTest, ReleaseWithoutLinesRedrawsNothing) {
    tool.Press(Left(5, 5));
    tool.Move(Left(9, 9));
    view.redraws.clear();
    tool.Release(Left(9, 9));
    EXPECT_TRUE(view.redraws.empty());
}

TEST_F(StitchToolTest, PressBesideThePatternDoesNothing) {
    Click(Left(5, 5));
    const auto cells = pattern.Cells();
    view.redraws.clear();
    for (const auto& [x, y] : {std::pair{0, 5}, {5, 0}, {25, 5}, {5, 25}, {-1, -1}}) {
        Click(Left(x, y));
        Click(Right(x, y));
    }
    EXPECT_EQ(pattern.Cells(), cells);
    EXPECT_TRUE(view.redraws.empty());
    steps.PerformUndo();
    EXPECT_EQ(Kind(5, 5), NoStitch) << "the last stroke can still be undone";
}

TEST_F(StitchToolTest, StrokeFromBesideThePatternIsOneStep) {
    tool.Press(Left(0, 3));
    tool.Move(Left(4, 3));
    tool.Release(Left(4, 3));
    EXPECT_EQ(Kind(1, 3), StitchWhole);
    EXPECT_EQ(Kind(4, 3), StitchWhole);
    steps.PerformUndo();
    EXPECT_EQ(Kind(1, 3), NoStitch);
    EXPECT_EQ(Kind(4, 3), NoStitch);
}

TEST_F(StitchToolTest, StrokeIsOneStepHoweverLong) {
    const auto before = pattern.Cells();
    tool.Press(Left(2, 2));
    for (int k = 3; k < Size; ++k) {
        tool.Move(Left(k, 2 + k % 5));
    }
    tool.Move(Left(2, 2));
    tool.Release(Left(2, 2));
    EXPECT_NE(pattern.Cells(), before);
    steps.PerformUndo();
    EXPECT_EQ(pattern.Cells(), before);
    EXPECT_FALSE(steps.IsAvailable());
}

TEST_F(StitchToolTest, UndoBringsKnotAndHalfStitchBack) {
    pattern.SetStitch(6, 6, StitchTBH, 2, 5);
    pattern.SetStitch(6, 6, StitchFKnot, 3, 7);
    tool.Press(Right(5, 6));
    tool.Move(Right(8, 6));
    tool.Release(Right(8, 6));
    ASSERT_EQ(pattern.GetStitchCount(6, 6), 0);
    steps.PerformUndo();
    EXPECT_EQ(Kind(6, 6, 0), StitchTBH);
    EXPECT_EQ(Kind(6, 6, 1), StitchFKnot);
    EXPECT_EQ(pattern.GetFrenchKnotPoint(6, 6, 1), 7);
}

TEST_F(StitchToolTest, CancelEndsTheStroke) {
    EXPECT_FALSE(tool.Cancel());
    tool.Press(Left(2, 2));
    EXPECT_TRUE(tool.Cancel());
    EXPECT_FALSE(tool.Cancel());
    EXPECT_EQ(steps.GetUndoLabel(), "Stitches");
    tool.Move(Left(6, 2));
    EXPECT_EQ(Kind(6, 2), NoStitch);
}

// --- Mirror mode -------------------------------------------------------------------------------

TEST_F(StitchToolTest, FirstStitchSetsTheAxisAndHasNoTwin) {
    mirror.SetMirrorMode(MirrorVertical);
    Click(Left(10, 5));
    EXPECT_EQ(mirror.GetMirrorCentre(), (SquarePos{10, 5}));
    EXPECT_EQ(view.overlayChanges, 1) << "the axis shows from now on";
    Click(Left(8, 7));
    EXPECT_EQ(Kind(12, 7), StitchWhole);
    EXPECT_EQ(view.overlayChanges, 1);
    pattern.CountStitches();
    EXPECT_EQ(pattern.GetColorCount(0, 1), 3);
    ExpectScreenIsTrue();
}

TEST_F(StitchToolTest, StitchOnTheAxisIsDrawnOnce) {
    mirror.SetMirrorMode(MirrorHorizontal);
    mirror.SetMirrorCentre(10, 10);
    Click(Left(3, 10));
    EXPECT_EQ(view.redraws, (std::vector<SquareRect>{{3, 10, 3, 10}}));
    pattern.CountStitches();
    EXPECT_EQ(pattern.GetColorCount(0, 1), 1);
}

TEST_F(StitchToolTest, TwinBeyondTheEdgeDrawsNothing) {
    mirror.SetMirrorMode(MirrorVertical);
    mirror.SetMirrorCentre(2, 2);
    Click(Left(9, 2));
    EXPECT_EQ(Kind(9, 2), StitchWhole);
    EXPECT_EQ(view.redraws, (std::vector<SquareRect>{{9, 2, 9, 2}}));
    pattern.CountStitches();
    EXPECT_EQ(pattern.GetColorCount(0, 1), 1);
}

TEST_F(StitchToolTest, RunIsMirroredSquareBySquareInOneStep) {
    mirror.SetMirrorMode(MirrorVertical);
    mirror.SetMirrorCentre(12, 1);
    choice.CurrentStitchType = StitchUL3Q;
    tool.Press(Left(3, 3));
    tool.Move(Left(6, 6));
    tool.Release(Left(6, 6));
    for (int k = 3; k <= 6; ++k) {
        EXPECT_EQ(Kind(k, k), StitchUL3Q) << k;
        EXPECT_EQ(Kind(24 - k, k), StitchUR3Q) << k;
    }
    ExpectScreenIsTrue();
    steps.PerformUndo();
    pattern.CountStitches();
    EXPECT_EQ(pattern.GetColorCount(0, 1), 0) << "twins go with their stitches";
}

TEST_F(StitchToolTest, TwinOfAKnotLiesAcrossItsSquare) {
    choice.CurrentStitchType = StitchFKnot;
    mirror.SetMirrorMode(MirrorVertical);
    mirror.SetMirrorCentre(10, 10);
    Click(Left(7, 10, 1));
    EXPECT_EQ(pattern.GetFrenchKnotPoint(13, 10, 0), 3);
    Click(Left(7, 14, 8));
    EXPECT_EQ(pattern.GetFrenchKnotPoint(13, 14, 0), 8) << "the middle column keeps its place";
    ExpectScreenIsTrue();
    mirror.SetMirrorMode(MirrorHorizontal);
    mirror.SetMirrorCentre(10, 10);
    Click(Left(3, 6, 1));
    EXPECT_EQ(pattern.GetFrenchKnotPoint(3, 14, 0), 7);
    ExpectScreenIsTrue();
}

TEST_F(StitchToolTest, SmartStitchHasNoVisibleTwin) {
    mirror.SetMirrorMode(MirrorVertical);
    mirror.SetMirrorCentre(10, 10);
    choice.CurrentStitchType = StitchS3Q;
    const QImage cloth = view.Screen().copy(view.Geometry().PixelsOf({14, 5, 14, 5}));
    Click(Left(6, 5, 1));
    EXPECT_EQ(Kind(6, 5), StitchUL3Q);
    EXPECT_EQ(view.Screen().copy(view.Geometry().PixelsOf({14, 5, 14, 5})), cloth);
}

} // namespace
} // namespace zol::test
