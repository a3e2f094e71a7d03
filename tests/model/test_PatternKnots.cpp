// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/ModelTestKit.h"

namespace zol {
namespace {

using test::KnotPoints;
using test::ModelTest;
using ::testing::ElementsAre;
using ::testing::Pair;

class PatternKnots : public ModelTest {
protected:
    bool HasFlag(int x, int y) { return (pattern.Cell(x, y).CellFlags & CellHasKnot) != 0; }
    std::vector<std::pair<int, int>> FlaggedSquares() {
        std::vector<std::pair<int, int>> flagged;
        for (int x = 1; x <= pattern.GetPatternWidth(); ++x) {
            for (int y = 1; y <= pattern.GetPatternHeight(); ++y) {
                if (HasFlag(x, y)) {
                    flagged.emplace_back(x, y);
                }
            }
        }
        return flagged;
    }

    Pattern pattern = Make(10, 8);
};

TEST_F(PatternKnots, KnotOnTheRightEdgeOfTheLastColumnTouchesThatColumnAlone) {
    pattern.SetStitch(10, 4, StitchFKnot, 2, 3);
    EXPECT_THAT(KnotPoints(pattern), ElementsAre(Pair(21, 7)));
    EXPECT_THAT(FlaggedSquares(), ElementsAre(Pair(10, 3), Pair(10, 4)));
}

TEST_F(PatternKnots, KnotOnTheTopLeftCornerOfTheGridFlagsOneSquare) {
    pattern.SetStitch(1, 1, StitchFKnot, 2, 1);
    EXPECT_THAT(FlaggedSquares(), ElementsAre(Pair(1, 1)));
}

TEST_F(PatternKnots, EachPositionFlagsTheSquaresThatItTouches) {
    const std::array<std::vector<std::pair<int, int>>, 10> touched{{
        {},
        {{4, 4}, {4, 5}, {5, 4}, {5, 5}},
        {{5, 4}, {5, 5}},
        {{5, 4}, {5, 5}, {6, 4}, {6, 5}},
        {{4, 5}, {5, 5}},
        {{5, 5}},
        {{5, 5}, {6, 5}},
        {{4, 5}, {4, 6}, {5, 5}, {5, 6}},
        {{5, 5}, {5, 6}},
        {{5, 5}, {5, 6}, {6, 5}, {6, 6}},
    }};
    for (int position = 1; position <= 9; ++position) {
        pattern.Initialize(10, 8, 14, 14);
        pattern.SetStitch(5, 5, StitchFKnot, 1, position);
        EXPECT_EQ(FlaggedSquares(), touched[static_cast<std::size_t>(position)]) << position;
        EXPECT_EQ(pattern.GetFrenchKnotPoint(5, 5, 0), position);
    }
}

TEST_F(PatternKnots, SamePointNamedFromTwoSquaresKeepsOneKnotWithTheSecondFloss) {
    pattern.SetStitch(3, 3, StitchFKnot, 2, 9);
    pattern.SetStitch(4, 4, StitchFKnot, 5, 1);
    EXPECT_EQ(pattern.FrenchKnots().Count(), 1U);
    EXPECT_EQ(pattern.GetStitchColorIndex(3, 3, 0), 5);
}

TEST_F(PatternKnots, AnExistingKnotKeepsItsOrientation) {
    context.FrenchKnotStyle = KnotVerticalOval;
    pattern.SetStitch(3, 3, StitchFKnot, 2, 5);
    context.FrenchKnotStyle = KnotNormal;
    pattern.SetStitch(3, 3, StitchFKnot, 4, 5);
    EXPECT_EQ(pattern.GetFrenchKnotOrientation(3, 3, 0), KnotVerticalOval);
    EXPECT_EQ(pattern.GetStitchColorIndex(3, 3, 0), 4);
}

TEST_F(PatternKnots, SettingAStitchNeverDisturbsAKnot) {
    pattern.SetStitch(3, 3, StitchFKnot, 2, 5);
    pattern.SetStitch(3, 3, StitchWhole, 1, 0);
    pattern.SetStitch(3, 3, StitchTBH, 1, 0);
    EXPECT_EQ(pattern.FrenchKnots().Count(), 1U);
    EXPECT_EQ(pattern.GetStitchCount(3, 3), 2);
    EXPECT_EQ(pattern.GetStitchType(3, 3, 1), StitchFKnot);
}

TEST_F(PatternKnots, KnotsFollowTheStitchesInPositionOrder) {
    pattern.SetStitch(3, 3, StitchULQ, 1, 0);
    pattern.SetStitch(3, 3, StitchLRQ, 2, 0);
    pattern.SetStitch(3, 3, StitchFKnot, 5, 9);
    pattern.SetStitch(3, 3, StitchFKnot, 4, 2);
    pattern.SetStitch(2, 3, StitchFKnot, 6, 6); // its right edge: position 4 of (3, 3)
    ASSERT_EQ(pattern.GetStitchCount(3, 3), 5);
    EXPECT_EQ(pattern.GetFrenchKnotPoint(3, 3, 0), 0);
    EXPECT_EQ(pattern.GetFrenchKnotPoint(3, 3, 1), 0);
    EXPECT_EQ(pattern.GetFrenchKnotPoint(3, 3, 2), 2);
    EXPECT_EQ(pattern.GetFrenchKnotPoint(3, 3, 3), 4);
    EXPECT_EQ(pattern.GetFrenchKnotPoint(3, 3, 4), 9);
    EXPECT_EQ(pattern.GetStitchColorIndex(3, 3, 3), 6);
    EXPECT_EQ(pattern.GetStitchType(3, 3, 5), 255);
    std::array<bool, 10> positions{};
    EXPECT_EQ(pattern.GetFrenchKnotGPs(3, 3, positions), 3);
    EXPECT_THAT(positions,
                ElementsAre(false, false, true, false, true, false, false, false, false, true));
}

TEST_F(PatternKnots, PositionOutsideOneToNineSetsNothingButMarksChanged) {
    test::RecordingUndo undo;
    pattern.SetUndoRecorder(&undo);
    for (const int position : {0, 10, -1}) {
        pattern.SetChanged(false);
        pattern.SetStitch(3, 3, StitchFKnot, 2, position);
        EXPECT_TRUE(pattern.IsChanged());
    }
    EXPECT_EQ(undo.squares.size(), 3U);
    EXPECT_TRUE(pattern.FrenchKnots().IsEmpty());
    EXPECT_EQ(pattern.Cell(3, 3), StitchCell{});
}

TEST_F(PatternKnots, ErasingASquareTakesItsNineKnotsAlsoThoseOfNeighbours) {
    for (int position = 1; position <= 9; ++position) {
        pattern.SetStitch(3, 3, StitchFKnot, 1, position);
    }
    pattern.SetStitch(4, 3, StitchFKnot, 2, 5);
    pattern.DeleteStitch(3, 3, 0);
    EXPECT_THAT(KnotPoints(pattern), ElementsAre(Pair(8, 6)));
    EXPECT_THAT(FlaggedSquares(), ElementsAre(Pair(4, 3)));
}

TEST_F(PatternKnots, DeletingTheKnotKindRemovesNoKnot) {
    pattern.SetStitch(3, 3, StitchFKnot, 1, 5);
    pattern.DeleteStitch(3, 3, StitchFKnot);
    EXPECT_EQ(pattern.FrenchKnots().Count(), 1U);
    EXPECT_EQ(pattern.GetStitchCount(3, 3), 1);
}

TEST_F(PatternKnots, LastDupEntryTakesTheKnotBitAlongWithMask252) {
    pattern.SetStitch(3, 3, StitchULQ, 1, 0);
    pattern.SetStitch(3, 3, StitchLRQ, 2, 0);
    pattern.SetStitch(3, 3, StitchFKnot, 4, 5);
    ASSERT_EQ(pattern.Cell(3, 3).CellFlags, 3);
    pattern.DeleteStitch(3, 3, StitchLRQ);
    EXPECT_EQ(pattern.Cell(3, 3).CellFlags, 0);
    EXPECT_EQ(pattern.GetStitchCount(3, 3), 1);
    EXPECT_EQ(pattern.GetStitchType(3, 3, 1), 255);
    EXPECT_EQ(pattern.FrenchKnots().Count(), 1U);

    ByteWriter stream;
    ASSERT_EQ(pattern.Save("", stream, 0), 0);
    ByteReader reader(stream.Bytes());
    ASSERT_EQ(pattern.Load("", reader, 0, 0), 0);
    EXPECT_EQ(pattern.GetStitchCount(3, 3), 2) << "saved, and seen again after a load";
}

TEST_F(PatternKnots, ReplacingADupEntryThroughSetStitchAlsoHidesTheKnot) {
    pattern.SetStitch(3, 3, StitchULQ, 1, 0);
    pattern.SetStitch(3, 3, StitchLRQ, 2, 0);
    pattern.SetStitch(3, 3, StitchFKnot, 4, 5);
    pattern.SetStitch(3, 3, StitchWhole, 3, 0);
    EXPECT_EQ(pattern.Cell(3, 3), (StitchCell{StitchWhole, 3, 0}));
    EXPECT_EQ(pattern.FrenchKnots().Count(), 1U);
}

TEST_F(PatternKnots, ErasingANeighbourRestoresAHiddenKnotOfAnotherPoint) {
    pattern.SetStitch(3, 3, StitchULQ, 1, 0);
    pattern.SetStitch(3, 3, StitchLRQ, 2, 0);
    pattern.SetStitch(3, 3, StitchFKnot, 4, 5);
    pattern.DeleteStitch(3, 3, StitchLRQ);
    ASSERT_FALSE(HasFlag(3, 3));
    pattern.SetStitch(4, 3, StitchWhole, 1, 0);
    pattern.DeleteStitch(4, 3, 0);
    EXPECT_TRUE(HasFlag(3, 3));
}

TEST_F(PatternKnots, EmptySquareBesideAKnotCarriesTheFlagAndItsKnotIsIndexZero) {
    pattern.SetStitch(3, 3, StitchFKnot, 4, 6);
    EXPECT_EQ(pattern.Cell(4, 3), (StitchCell{255, 255, 2}));
    EXPECT_EQ(pattern.GetStitchType(4, 3, 0), StitchFKnot);
    EXPECT_EQ(pattern.GetFrenchKnotPoint(4, 3, 0), 4);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(4, 3), 255);
}

} // namespace
} // namespace zol
