// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/ModelTestKit.h"
#include "model/PatternSize.h"
#include "model/RunTimeError.h"

namespace zol {
namespace {

using test::Dump;
using test::KnotPoints;
using test::Line;
using test::ModelTest;
using test::StitchesAt;
using ::testing::ElementsAre;
using ::testing::Pair;

using PatternAreas = ModelTest;

void FillBlock(Pattern& pattern, const SquareRect& rect, int floss = 1) {
    for (int x = rect.Left; x <= rect.Right; ++x) {
        for (int y = rect.Top; y <= rect.Bottom; ++y) {
            pattern.SetStitch(x, y, StitchWhole, floss, 0);
        }
    }
}

TEST_F(PatternAreas, BoxOfAnEmptyPatternIsEmpty) {
    const Pattern pattern = Make(10, 8);
    EXPECT_EQ(pattern.GetPatternRect(), (SquareRect{10, 8, 0, 0}));
    EXPECT_EQ(pattern.GetPatternAreaRect(), (SquareRect{10, 8, 0, 0}));
    EXPECT_EQ(pattern.GetDesignWidth(), 0);
    EXPECT_EQ(pattern.GetDesignHeight(), 0);
    EXPECT_TRUE(Make(1, 1).GetPatternRect().IsEmpty());
}

TEST_F(PatternAreas, BoxTakesStitchesAndKnotsOnEmptySquares) {
    Pattern pattern = Make(10, 8);
    pattern.SetStitch(4, 5, StitchULQ, 1, 0);
    EXPECT_EQ(pattern.GetPatternRect(), (SquareRect{4, 5, 4, 5}));
    pattern.SetStitch(6, 3, StitchFKnot, 1, 6); // touches (7, 3) too
    EXPECT_EQ(pattern.GetPatternRect(), (SquareRect{4, 3, 7, 5}));
}

TEST_F(PatternAreas, PrimaryStitchOfFlossZeroDoesNotCountAsUsed) {
    Pattern pattern = Make(10, 8);
    pattern.SetStitch(4, 5, StitchWhole, 0, 0);
    EXPECT_TRUE(pattern.GetPatternRect().IsEmpty());
}

TEST_F(PatternAreas, BoxTakesRawLineEndsAndTheAreaTheirInnerSide) {
    Pattern pattern = Make(10, 8);
    pattern.SetStitch(4, 4, StitchWhole, 1, 0);
    pattern.SetBackstitchLine(Line(3, 3, 9, 5, 5, 1));
    EXPECT_EQ(pattern.GetPatternRect(), (SquareRect{3, 3, 5, 5}));
    EXPECT_EQ(pattern.GetPatternAreaRect(), (SquareRect{4, 4, 4, 4}));
    EXPECT_EQ(pattern.GetDesignWidth(), 1);
    EXPECT_EQ(pattern.GetDesignHeight(), 1);
}

TEST_F(PatternAreas, TrimNarrowsToUsedColumns) {
    Pattern pattern = Make(10, 8);
    pattern.SetStitch(4, 4, StitchWhole, 1, 0);
    pattern.SetStitch(6, 2, StitchWhole, 1, 0);
    int left = 2;
    int right = 9;
    pattern.TrimARec(3, left, 8, right);
    EXPECT_EQ(left, 4);
    EXPECT_EQ(right, 4);
    left = 2;
    right = 9;
    pattern.TrimARec(1, left, 8, right);
    EXPECT_EQ(left, 4);
    EXPECT_EQ(right, 6);
}

TEST_F(PatternAreas, TrimKeepsColumnsThatLinesReach) {
    Pattern pattern = Make(10, 8);
    pattern.SetBackstitchLine(Line(3, 4, 6, 6, 4, 4)); // from the edge of 4 to the edge of 5
    pattern.SetBackstitchLine(Line(1, 7, 1, 9, 8, 5)); // not in the rectangle
    int left = 1;
    int right = 9;
    pattern.TrimARec(1, left, 6, right);
    EXPECT_EQ(left, 4);
    EXPECT_EQ(right, 5);
}

TEST_F(PatternAreas, TrimOfNothingLeavesLeftAboveRight) {
    const Pattern pattern = Make(10, 8);
    int left = 2;
    int right = 9;
    pattern.TrimARec(1, left, 8, right);
    EXPECT_GT(left, right);
}

TEST_F(PatternAreas, OverlappingMoveStaysCorrectInAllDirections) {
    for (int deltaX = -2; deltaX <= 2; ++deltaX) {
        for (int deltaY = -2; deltaY <= 2; ++deltaY) {
            std::mt19937 random(5);
            Pattern pattern = Make(16, 16);
            for (int x = 5; x <= 11; ++x) {
                for (int y = 5; y <= 11; ++y) {
                    pattern.SetStitch(x, y, StitchULQ + static_cast<int>(random() % 4), 1 + x, 0);
                    pattern.SetStitch(x, y, StitchULQ + static_cast<int>(random() % 4), 1 + y, 0);
                }
            }
            std::vector<std::vector<std::pair<int, int>>> before;
            for (int x = 5; x <= 11; ++x) {
                for (int y = 5; y <= 11; ++y) {
                    before.push_back(StitchesAt(pattern, x, y));
                }
            }
            pattern.MoveArea(5, 5, 11, 11, deltaX, deltaY);
            std::size_t i = 0;
            for (int x = 5; x <= 11; ++x) {
                for (int y = 5; y <= 11; ++y) {
                    ASSERT_EQ(StitchesAt(pattern, x + deltaX, y + deltaY), before[i++]);
                }
            }
            test::CheckInvariants(pattern);
            int stitches = 0;
            for (const StitchCell& cell : pattern.Cells()) {
                stitches += cell.StitchType != NoStitch ? 1 : 0;
            }
            ASSERT_EQ(stitches, 49);
        }
    }
}

TEST_F(PatternAreas, MoveByOneSquareBringsEveryKnotOnce) {
    for (const auto& [deltaX, deltaY] : {std::pair(1, 0), {-1, 0}, {0, 1}, {0, -1}, {1, 1}}) {
        Pattern pattern = Make(12, 12);
        for (int x = 5; x <= 7; ++x) {
            for (int y = 5; y <= 7; ++y) {
                for (int position = 1; position <= 9; ++position) {
                    pattern.SetStitch(x, y, StitchFKnot, 1 + position, position);
                }
            }
        }
        std::set<std::pair<int, int>> expected;
        for (const auto& [lx, ly] : KnotPoints(pattern)) {
            expected.insert({lx + 2 * deltaX, ly + 2 * deltaY});
        }
        ASSERT_EQ(expected.size(), 49U);
        pattern.MoveArea(5, 5, 7, 7, deltaX, deltaY);
        EXPECT_EQ(KnotPoints(pattern), expected) << deltaX << "," << deltaY;
        test::CheckInvariants(pattern);
        for (int x = 1; x <= 12; ++x) {
            for (int y = 1; y <= 12; ++y) {
                const bool touches = x + 1 >= 5 + deltaX && x - 1 <= 7 + deltaX &&
                                     y + 1 >= 5 + deltaY && y - 1 <= 7 + deltaY;
                EXPECT_EQ(pattern.GetStitchCount(x, y) > 0, touches) << x << "," << y;
            }
        }
    }
}

TEST_F(PatternAreas, MovedKnotTakesTheCurrentStyle) {
    Pattern pattern = Make(12, 12);
    context.FrenchKnotStyle = KnotVerticalOval;
    pattern.SetStitch(5, 5, StitchFKnot, 3, 5);
    context.FrenchKnotStyle = KnotHorizontalOval;
    pattern.MoveArea(5, 5, 5, 5, 2, 0);
    EXPECT_EQ(pattern.GetFrenchKnotOrientation(7, 5, 0), KnotHorizontalOval);
    EXPECT_EQ(pattern.GetStitchColorIndex(7, 5, 0), 3);
}

TEST_F(PatternAreas, KnotHiddenByAClearedFlagMovesAlongAndIsSeenAgain) {
    Pattern pattern = Make(12, 12);
    pattern.SetStitch(3, 3, StitchULQ, 1, 0);
    pattern.SetStitch(3, 3, StitchLRQ, 2, 0);
    pattern.SetStitch(3, 3, StitchFKnot, 4, 5);
    pattern.DeleteStitch(3, 3, StitchLRQ);
    pattern.MoveArea(3, 3, 3, 3, 1, 0);
    EXPECT_EQ(pattern.GetStitchCount(4, 3), 2);
}

TEST_F(PatternAreas, WhatLandsOutsideIsLostAndAKnotOnTheGridsEdgeArrives) {
    Pattern pattern = Make(6, 6);
    FillBlock(pattern, {4, 4, 6, 6});
    pattern.SetStitch(5, 5, StitchFKnot, 2, 5); // its square leaves the grid
    pattern.SetStitch(4, 4, StitchFKnot, 2, 5); // stays inside
    pattern.SetStitch(4, 5, StitchFKnot, 2, 9); // LX 9, LY 11: lands on LX 13, the right edge
    pattern.MoveArea(4, 4, 6, 6, 2, 0);
    EXPECT_THAT(KnotPoints(pattern), ElementsAre(Pair(12, 8), Pair(13, 11)));
    EXPECT_EQ(pattern.GetPatternRect().Left, 6);
    test::CheckInvariants(pattern);
}

TEST_F(PatternAreas, MoveShiftsTheLinesOfTheAreaWithoutACheck) {
    Pattern pattern = Make(6, 6);
    pattern.SetBackstitchLine(Line(4, 4, 1, 5, 5, 9));
    pattern.SetBackstitchLine(Line(1, 1, 1, 5, 5, 9));
    pattern.MoveArea(4, 4, 6, 6, 3, -1);
    EXPECT_EQ(pattern.GetBackStitchLine(1), Line(7, 3, 1, 8, 4, 9));
    EXPECT_EQ(pattern.GetBackStitchLine(2), Line(1, 1, 1, 5, 5, 9));
    EXPECT_TRUE(pattern.IsChanged());
}

TEST_F(PatternAreas, MoveOfAnEmptyBandMovesNothingLinesIncluded) {
    Pattern pattern = Make(6, 6);
    pattern.SetStitch(1, 6, StitchWhole, 1, 0);
    pattern.SetBackstitchLine(Line(1, 6, 7, 3, 6, 7)); // on the lower edge of the last row
    const std::string before = Dump(pattern);
    pattern.SetChanged(false);
    pattern.MoveArea(1, 7, 6, 6, 0, 2);
    pattern.MoveArea(1, 1, 6, 6, 0, 0);
    EXPECT_EQ(Dump(pattern), before);
    EXPECT_FALSE(pattern.IsChanged());
}

TEST_F(PatternAreas, MoveOntoStitchesFollowsTheExclusionTable) {
    Pattern pattern = Make(6, 6);
    pattern.SetStitch(1, 1, StitchULQ, 1, 0);
    pattern.SetStitch(3, 1, StitchLRQ, 2, 0);
    pattern.MoveArea(1, 1, 1, 1, 2, 0);
    EXPECT_THAT(StitchesAt(pattern, 3, 1), ElementsAre(Pair(StitchLRQ, 2), Pair(StitchULQ, 1)));
    EXPECT_EQ(pattern.GetStitchCount(1, 1), 0);
}

TEST_F(PatternAreas, MoveTellsTheRecorderOfSourceAndTarget) {
    Pattern pattern = Make(6, 6);
    pattern.SetStitch(1, 1, StitchULQ, 1, 0);
    test::RecordingUndo undo;
    pattern.SetUndoRecorder(&undo);
    pattern.MoveArea(1, 1, 1, 1, 2, 0);
    EXPECT_THAT(undo.squares, ElementsAre(SquarePos{1, 1}, SquarePos{3, 1}));
}

TEST_F(PatternAreas, CenterOfATenSquarePatternMovesColumnsThreeToFourByTwo) {
    Pattern pattern = Make(10, 10);
    FillBlock(pattern, {3, 3, 4, 4});
    pattern.Center(1);
    EXPECT_EQ(pattern.GetPatternRect(), (SquareRect{5, 3, 6, 4}));
    pattern.Center(0);
    EXPECT_EQ(pattern.GetPatternRect(), (SquareRect{5, 5, 6, 6}));
    Pattern both = Make(10, 10);
    FillBlock(both, {3, 3, 4, 4});
    both.Center(2);
    EXPECT_EQ(both.GetPatternRect(), (SquareRect{5, 5, 6, 6}));
}

TEST_F(PatternAreas, CenterOfAnEmptyPatternChangesNothing) {
    Pattern pattern = Make(10, 10);
    pattern.Center(2);
    EXPECT_FALSE(pattern.IsChanged());
}

TEST_F(PatternAreas, ShrinkToFitOnAnEmptyPatternChangesNothing) {
    Pattern pattern = Make(10, 10);
    pattern.ShrinkToFit();
    EXPECT_EQ(pattern.GetPatternWidth(), 10);
    EXPECT_FALSE(pattern.IsChanged());
}

TEST_F(PatternAreas, ShrinkToFitFromColumnTwoGivesSixBySixWithoutAMove) {
    Pattern pattern = Make(100, 100);
    FillBlock(pattern, {2, 2, 5, 5});
    pattern.SetChanged(false);
    pattern.ShrinkToFit();
    EXPECT_EQ(pattern.GetPatternWidth(), 6);
    EXPECT_EQ(pattern.GetPatternHeight(), 6);
    EXPECT_EQ(pattern.GetPatternRect(), (SquareRect{2, 2, 5, 5}));
    EXPECT_FALSE(pattern.IsChanged());
}

TEST_F(PatternAreas, ShrinkToFitMovesAndLeavesABorderOfOne) {
    Pattern pattern = Make(100, 100);
    FillBlock(pattern, {40, 50, 44, 51});
    pattern.SetStitch(44, 51, StitchFKnot, 2, 5);
    pattern.SetBackstitchLine(Line(40, 50, 1, 44, 51, 9));
    pattern.ShrinkToFit();
    EXPECT_EQ(pattern.GetPatternWidth(), 7);
    EXPECT_EQ(pattern.GetPatternHeight(), 4);
    EXPECT_EQ(pattern.GetPatternRect(), (SquareRect{2, 2, 6, 3}));
    EXPECT_EQ(pattern.GetBackStitchLine(1), Line(2, 2, 1, 6, 3, 9));
    EXPECT_EQ(pattern.FrenchKnots().Count(), 1U);
}

TEST_F(PatternAreas, ShrinkToFitThatWouldGrowTooLargeMovesNothing) {
    Pattern pattern = Make(4000, 4000);
    pattern.SetStitch(1, 3, StitchWhole, 1, 0);
    pattern.SetStitch(4000, 3998, StitchWhole, 1, 0);
    EXPECT_EQ(PatternSize::ShrinkFault(pattern), ErrNone) << "4002 x 3998";
    pattern.SetStitch(4000, 3999, StitchWhole, 1, 0);
    EXPECT_EQ(PatternSize::ShrinkFault(pattern), ErrOutOfMemory) << "4002 x 3999";
    EXPECT_THROW(pattern.ShrinkToFit(), RunTimeError);
    EXPECT_EQ(pattern.GetPatternRect(), (SquareRect{1, 3, 4000, 3999}));
    EXPECT_EQ(pattern.GetPatternHeight(), 4000);
}

TEST_F(PatternAreas, ShrinkToFitRefusesASideThatFilesCannotHold) {
    Pattern pattern = Make(32767, 2);
    pattern.SetStitch(1, 1, StitchWhole, 1, 0);
    pattern.SetStitch(32767, 1, StitchWhole, 1, 0);
    EXPECT_EQ(PatternSize::ShrinkFault(pattern), ErrSubscript) << "32769 across";
}

TEST_F(PatternAreas, ShrinkToFitMovesADesignAtTheFarCornerButKeepsTheSize) {
    Pattern pattern = Make(20, 20);
    FillBlock(pattern, {15, 16, 20, 20});
    pattern.ShrinkToFit();
    EXPECT_EQ(pattern.GetPatternWidth(), 20);
    EXPECT_EQ(pattern.GetPatternHeight(), 20);
    EXPECT_EQ(pattern.GetPatternRect(), (SquareRect{2, 2, 7, 6}));
}

TEST_F(PatternAreas, ResizeToLargerKeepsEveryStitchAndAddsEmptySquares) {
    std::mt19937 random(3);
    Pattern pattern = Make(7, 9);
    test::Scatter(pattern, random, 60, 10, 6, 5);
    std::vector<std::string> before;
    for (int x = 1; x <= 7; ++x) {
        for (int y = 1; y <= 9; ++y) {
            before.push_back(test::CellText(pattern.Cell(x, y)));
        }
    }
    const auto knots = KnotPoints(pattern);
    const int lines = pattern.GetBackStitchCount();
    pattern.SetChanged(false);
    pattern.Resize(12, 11, 16, 18);
    EXPECT_FALSE(pattern.IsChanged()) << "the caller marks the change";
    EXPECT_EQ(pattern.GetPatternClothCountX(), 16);
    EXPECT_EQ(pattern.GetPatternClothCountY(), 18);
    std::size_t i = 0;
    for (int x = 1; x <= 12; ++x) {
        for (int y = 1; y <= 11; ++y) {
            EXPECT_EQ(test::CellText(pattern.Cell(x, y)),
                      x <= 7 && y <= 9 ? before[i++] : "255/255/0");
        }
    }
    EXPECT_EQ(KnotPoints(pattern), knots);
    EXPECT_EQ(pattern.GetBackStitchCount(), lines);
    test::CheckInvariants(pattern);
}

TEST_F(PatternAreas, ResizeToSmallerDropsWhatLiesOutside) {
    Pattern pattern = Make(10, 10);
    pattern.SetStitch(8, 2, StitchULQ, 1, 0);
    pattern.SetStitch(8, 2, StitchURQ, 1, 0);
    pattern.SetStitch(2, 2, StitchULQ, 1, 0);
    pattern.SetStitch(2, 2, StitchURQ, 1, 0);
    pattern.SetStitch(5, 3, StitchFKnot, 1, 6); // LX 11: on the edge of a width of 5
    pattern.SetStitch(6, 3, StitchFKnot, 1, 5); // LX 12
    pattern.SetBackstitchLine(Line(1, 1, 1, 6, 2, 1, 1));
    pattern.SetBackstitchLine(Line(1, 1, 1, 1, 9, 1, 2));
    pattern.SetBackstitchLine(Line(1, 1, 1, 5, 5, 9, 3));
    pattern.Resize(5, 5, 14, 14);
    EXPECT_EQ(pattern.DupStitches().Count(), 1U);
    EXPECT_THAT(KnotPoints(pattern), ElementsAre(Pair(11, 6)));
    ASSERT_EQ(pattern.GetBackStitchCount(), 1);
    EXPECT_EQ(pattern.GetBackStitchLine(1).PaletteIndex, 3);
    EXPECT_EQ(pattern.GetStitchCount(5, 3), 1);
    test::CheckInvariants(pattern);
}

TEST_F(PatternAreas, KnotOnTheRightEdgeSurvivesAResizeOfTheSameWidth) {
    Pattern pattern = Make(10, 10);
    pattern.SetStitch(10, 5, StitchFKnot, 1, 6);
    pattern.Resize(10, 20, 14, 14);
    EXPECT_EQ(pattern.FrenchKnots().Count(), 1U);
    EXPECT_EQ(pattern.GetStitchCount(10, 5), 1);
}

TEST_F(PatternAreas, PatternWithoutSquaresStaysUsable) {
    Pattern pattern = Make(4, 5);
    FillBlock(pattern, {1, 1, 4, 5});
    pattern.SetBackstitchLine(Line(1, 1, 1, 2, 2, 1));
    pattern.Resize(4, 0, 14, 14);
    EXPECT_EQ(pattern.GetPatternHeight(), 0);
    EXPECT_EQ(pattern.GetStitchCount(1, 1), -1);
    EXPECT_TRUE(pattern.GetPatternRect().IsEmpty());
    EXPECT_TRUE(pattern.GetPatternAreaRect().IsEmpty());
    EXPECT_EQ(pattern.GetDesignWidth(), 0);
    pattern.SetStitch(1, 1, StitchWhole, 1, 0);
    pattern.SetStitch(1, 1, StitchFKnot, 1, 5);
    pattern.DeleteStitch(1, 1, 0);
    pattern.SetBackstitchLine(Line(1, 1, 1, 2, 2, 1));
    pattern.ClearPaintRect();
    pattern.Paint(1, 1, StitchWhole, 1, NoFloss);
    pattern.MoveArea(1, 1, 4, 5, 1, 1);
    pattern.Center(2);
    pattern.ShrinkToFit();
    pattern.CountStitches();
    pattern.ChangeColor(1, 2, -1, 0, 0, 0);
    pattern.RemoveColor(1, -1, 0, 0, 0);
    pattern.ClearUnusedPaletteColors();
    EXPECT_EQ(Dump(pattern), "4x0\n");
    pattern.Resize(4, 5, 14, 14);
    pattern.SetStitch(4, 5, StitchWhole, 1, 0);
    EXPECT_EQ(pattern.GetStitchCount(4, 5), 1);
    pattern.Resize(0, 0, 14, 14);
    EXPECT_TRUE(pattern.GetPatternRect().IsEmpty());
}

TEST_F(PatternAreas, ResizeRefusesAbsurdSizesAndKeepsTheContent) {
    Pattern pattern = Make(4, 5);
    pattern.SetStitch(4, 5, StitchWhole, 1, 0);
    EXPECT_THROW(pattern.Resize(-1, 5, 14, 14), RunTimeError);
    EXPECT_THROW(pattern.Resize(30000, 30000, 14, 14), RunTimeError);
    EXPECT_EQ(pattern.GetStitchCount(4, 5), 1);
    EXPECT_EQ(pattern.GetPatternHeight(), 5);
}

} // namespace
} // namespace zol
