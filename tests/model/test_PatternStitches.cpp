// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/ModelTestKit.h"
#include "model/RunTimeError.h"

namespace zol {
namespace {

using test::ModelTest;
using test::RecordingUndo;
using test::StitchesAt;
using ::testing::ElementsAre;
using ::testing::Pair;
using ::testing::UnorderedElementsAre;

class PatternStitches : public ModelTest {
protected:
    Pattern pattern = Make(10, 8);
};

TEST_F(PatternStitches, WholeOverSeveralQuartersLeavesOneStitchAndNoDup) {
    pattern.SetStitch(3, 4, StitchULQ, 1, 0);
    pattern.SetStitch(3, 4, StitchURQ, 2, 0);
    pattern.SetStitch(3, 4, StitchLLQ, 3, 0);
    ASSERT_EQ(pattern.GetStitchCount(3, 4), 3);
    ASSERT_EQ(pattern.Cell(3, 4).CellFlags, 1);
    pattern.SetStitch(3, 4, StitchWhole, 4, 0);
    EXPECT_THAT(StitchesAt(pattern, 3, 4), ElementsAre(Pair(1, 4)));
    EXPECT_TRUE(pattern.DupStitches().IsEmpty());
    EXPECT_EQ(pattern.Cell(3, 4).CellFlags, 0);
}

TEST_F(PatternStitches, SameKindAgainReplacesTheFloss) {
    pattern.SetStitch(1, 1, StitchTBH, 2, 0);
    pattern.SetStitch(1, 1, StitchTBH, 5, 0);
    EXPECT_THAT(StitchesAt(pattern, 1, 1), ElementsAre(Pair(6, 5)));
    EXPECT_TRUE(pattern.DupStitches().IsEmpty());
}

TEST_F(PatternStitches, FourQuartersFillThePrimaryAndThreeDupSlots) {
    for (int i = 0; i < 4; ++i) {
        pattern.SetStitch(2, 2, StitchULQ + i, i + 1, 0);
    }
    EXPECT_THAT(StitchesAt(pattern, 2, 2),
                ElementsAre(Pair(9, 1), Pair(10, 2), Pair(11, 3), Pair(12, 4)));
    const DupStitch* dup = pattern.DupStitches().Find(KeyedTable<DupStitch>::KeyOf(2, 2));
    ASSERT_NE(dup, nullptr);
    EXPECT_THAT(dup->StitchTypes(), ElementsAre(10, 11, 12, 255));
}

TEST_F(PatternStitches, DeletingThePrimaryBringsUpTheFirstDupEntry) {
    pattern.SetStitch(2, 2, StitchULQ, 1, 0);
    pattern.SetStitch(2, 2, StitchURQ, 2, 0);
    pattern.SetStitch(2, 2, StitchLLQ, 3, 0);
    pattern.DeleteStitch(2, 2, StitchULQ);
    EXPECT_EQ(pattern.GetStitchType(2, 2, 0), StitchURQ);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(2, 2), 2);
    EXPECT_THAT(StitchesAt(pattern, 2, 2), ElementsAre(Pair(10, 2), Pair(11, 3)));
    EXPECT_EQ(pattern.Cell(2, 2).CellFlags, 1);
}

TEST_F(PatternStitches, OutsideTheGridIsIgnored) {
    for (const auto& [x, y] : {std::pair(0, 5), {5, 0}, {11, 5}, {5, 9}, {-3, -3}}) {
        pattern.SetStitch(x, y, StitchWhole, 1, 0);
        pattern.DeleteStitch(x, y, 0);
        EXPECT_EQ(pattern.GetStitchCount(x, y), -1);
        EXPECT_EQ(pattern.GetStitchType(x, y, 0), 255);
        EXPECT_EQ(pattern.GetStitchColor(x, y, 0, true), 0U);
        EXPECT_EQ(pattern.GetStitchPaletteIndex(x, y), 255);
    }
    EXPECT_FALSE(pattern.IsChanged());
    EXPECT_EQ(test::Dump(pattern), test::Dump(Make(10, 8)));
}

TEST_F(PatternStitches, SmartRequestsTakeTheirKindFromTheCorner) {
    const std::array<std::array<int, 3>, 4> rows{{{1, 2, 9}, {3, 3, 10}, {7, 4, 11}, {9, 5, 12}}};
    for (const auto& [position, threeQuarter, quarter] : rows) {
        pattern.DeleteStitch(1, 1, 0);
        pattern.SetStitch(1, 1, StitchS3Q, 1, position);
        EXPECT_THAT(StitchesAt(pattern, 1, 1), ElementsAre(Pair(threeQuarter, 1)));
        pattern.DeleteStitch(1, 1, 0);
        pattern.SetStitch(1, 1, StitchSQ, 1, position);
        EXPECT_THAT(StitchesAt(pattern, 1, 1), ElementsAre(Pair(quarter, 1)));
    }
}

TEST_F(PatternStitches, SmartRequestAtAnyOtherPositionLeavesTheSquareButMarksChanged) {
    RecordingUndo undo;
    pattern.SetUndoRecorder(&undo);
    pattern.SetStitch(1, 1, StitchTBH, 3, 0);
    pattern.SetChanged(false);
    undo.squares.clear();
    for (const int position : {0, 2, 4, 5, 6, 8, 10, -1}) {
        pattern.SetStitch(1, 1, StitchS3Q, 1, position);
        pattern.SetStitch(1, 1, StitchSQ, 1, position);
    }
    EXPECT_THAT(StitchesAt(pattern, 1, 1), ElementsAre(Pair(6, 3)));
    EXPECT_TRUE(pattern.IsChanged());
    EXPECT_EQ(undo.squares.size(), 16U);
}

/// The kinds that survive beside a new one, as every pair of kinds is told.
TEST_F(PatternStitches, ExclusionTableForEveryPairOfKinds) {
    const std::map<int, std::set<int>> survivors{{1, {}},
                                                 {2, {5, 12}},
                                                 {3, {4, 11}},
                                                 {4, {3, 10}},
                                                 {5, {2, 9}},
                                                 {6, {10, 11}},
                                                 {7, {9, 12}},
                                                 {9, {5, 7, 10, 11, 12}},
                                                 {10, {4, 6, 9, 11, 12}},
                                                 {11, {3, 6, 9, 10, 12}},
                                                 {12, {2, 7, 9, 10, 11}},
                                                 {13, {1, 2, 3, 4, 5, 6, 7, 9, 10, 11, 12}}};
    for (const auto& [fresh, beside] : survivors) {
        for (const int old : {1, 2, 3, 4, 5, 6, 7, 9, 10, 11, 12}) {
            pattern.DeleteStitch(5, 5, 0);
            pattern.SetStitch(5, 5, old, 1, 0);
            pattern.SetStitch(5, 5, fresh, 2, 0);
            if (beside.contains(old)) {
                EXPECT_THAT(StitchesAt(pattern, 5, 5), ElementsAre(Pair(old, 1), Pair(fresh, 2)));
            } else {
                EXPECT_THAT(StitchesAt(pattern, 5, 5), ElementsAre(Pair(fresh, 2)))
                    << old << " then " << fresh;
            }
        }
    }
}

TEST_F(PatternStitches, SurvivingQuarterKeepsThePrimaryPlaceBesideAHalfStitch) {
    pattern.SetStitch(1, 1, StitchURQ, 1, 0);
    pattern.SetStitch(1, 1, StitchULQ, 2, 0);
    pattern.SetStitch(1, 1, StitchTBH, 3, 0);
    EXPECT_THAT(StitchesAt(pattern, 1, 1), ElementsAre(Pair(StitchURQ, 1), Pair(StitchTBH, 3)));
}

TEST_F(PatternStitches, FifthFurtherStitchFindsNoSlotAndIsDropped) {
    pattern.SetStitch(1, 1, StitchWhole, 1, 0);
    for (int kind = 20; kind < 25; ++kind) {
        pattern.SetStitch(1, 1, kind, 2, 0);
    }
    EXPECT_EQ(pattern.GetStitchCount(1, 1), 5);
    EXPECT_EQ(pattern.GetStitchType(1, 1, 4), 23);
}

TEST_F(PatternStitches, NoStitchSetOnAStitchedSquareOpensARecordWithoutStitches) {
    pattern.SetStitch(1, 1, StitchWhole, 3, 0);
    pattern.SetStitch(1, 1, NoStitch, 4, 0);
    EXPECT_EQ(pattern.Cell(1, 1), (StitchCell{StitchWhole, 3, CellHasDup}));
    const DupStitch* dup = pattern.DupStitches().Find(KeyedTable<DupStitch>::KeyOf(1, 1));
    ASSERT_NE(dup, nullptr);
    EXPECT_THAT(dup->PaletteIndexes(), ElementsAre(4, 255, 255, 255));
    EXPECT_EQ(dup->GetStitchCount(), 0);
    EXPECT_EQ(pattern.GetStitchCount(1, 1), 1);
}

TEST_F(PatternStitches, DupBesideAnEmptyPrimaryIsCountedButNotListed) {
    // Only a damaged file can hold this; it is built by hand here.
    ByteWriter stream;
    pattern.SetStitch(1, 1, StitchULQ, 1, 0);
    pattern.SetStitch(1, 1, StitchURQ, 2, 0);
    pattern.SetStitch(1, 1, StitchFKnot, 3, 5);
    ASSERT_EQ(pattern.Save("", stream, 0), 0);
    std::vector<std::uint8_t> bytes = stream.Take();
    const std::vector<std::uint8_t> firstRun{1, 0, 1, StitchULQ};
    const auto run = std::search(bytes.begin(), bytes.end(), firstRun.begin(), firstRun.end());
    ASSERT_NE(run, bytes.end());
    *(run + 3) = NoStitch;
    ByteReader reader(bytes);
    ASSERT_EQ(pattern.Load("", reader, 0, 0), 0);
    EXPECT_EQ(pattern.GetStitchCount(1, 1), 2);
    EXPECT_EQ(pattern.GetStitchType(1, 1, 0), StitchFKnot);
    EXPECT_EQ(pattern.GetFrenchKnotPoint(1, 1, 0), 5);
    EXPECT_EQ(pattern.GetStitchType(1, 1, 1), 255);
    EXPECT_EQ(pattern.GetStitchColor(1, 1, 1, true), 0U);
    pattern.CountStitches();
    EXPECT_EQ(pattern.GetColorCount(0, 2), 0);
    EXPECT_EQ(pattern.GetColorCount(0, 3), 1);
}

TEST_F(PatternStitches, IndexPastTheEndGives255FromTheKindAndZeroFromTheOthers) {
    pattern.SetStitch(1, 1, StitchWhole, 3, 0);
    EXPECT_EQ(pattern.GetStitchType(1, 1, 1), 255);
    EXPECT_EQ(pattern.GetStitchColor(1, 1, 1, true), 0U);
    EXPECT_EQ(pattern.GetStitchColor(1, 1, 1, false), 0U);
    EXPECT_EQ(pattern.GetStitchSymbol(1, 1, 1), 0);
    EXPECT_EQ(pattern.GetStitchImage(1, 1, 1), 0);
    EXPECT_EQ(pattern.GetFrenchKnotPoint(1, 1, 1), 0);
    EXPECT_EQ(pattern.GetFrenchKnotOrientation(1, 1, 1), 0);
    EXPECT_EQ(pattern.GetStitchType(1, 1, -1), 255);
}

TEST_F(PatternStitches, ReadersAnswerThroughThePalette) {
    pattern.SetStitch(1, 1, StitchWhole, 13, 0); // "br orange-red"
    EXPECT_EQ(pattern.GetStitchColor(1, 1, 0, true), 13U);
    EXPECT_EQ(pattern.GetStitchColor(1, 1, 0, false), MakeColour(243, 0, 0));
    EXPECT_EQ(pattern.GetStitchSymbol(1, 1, 0), 'O');
    EXPECT_EQ(pattern.GetStitchImage(1, 1, 0), -1);
}

TEST_F(PatternStitches, ReadersAreSafeWithAnyFloss) {
    pattern.SetStitch(1, 1, StitchWhole, 200, 0);
    pattern.SetStitch(2, 1, StitchWhole, 0, 0);
    for (const int x : {1, 2}) {
        EXPECT_EQ(pattern.GetStitchColor(x, 1, 0, false), 0U);
        EXPECT_EQ(pattern.GetStitchSymbol(x, 1, 0), 0);
        EXPECT_EQ(pattern.GetStitchImage(x, 1, 0), 0);
    }
}

TEST_F(PatternStitches, ValuesBeyondAByteAreIgnored) {
    pattern.SetStitch(1, 1, 256 + StitchWhole, 1, 0);
    pattern.SetStitch(1, 1, StitchWhole, 256, 0);
    pattern.SetStitch(1, 1, StitchWhole, -1, 0);
    EXPECT_EQ(pattern.GetStitchCount(1, 1), 0);
}

TEST_F(PatternStitches, RecorderHearsEachSquareOnceBeforeTheChangeAndOnlyWhenOn) {
    RecordingUndo undo;
    pattern.SetUndoRecorder(&undo);
    pattern.SetStitch(1, 1, StitchULQ, 1, 0);
    pattern.SetStitch(1, 1, StitchURQ, 2, 0);
    pattern.SetStitch(1, 1, StitchWhole, 2, 0);
    EXPECT_THAT(undo.squares, ElementsAre(SquarePos{1, 1}, SquarePos{1, 1}, SquarePos{1, 1}));
    pattern.DeleteStitch(2, 3, 0);
    EXPECT_EQ(undo.squares.back(), (SquarePos{2, 3}));
    pattern.SetRecording(false);
    pattern.SetStitch(1, 1, StitchULQ, 1, 0);
    EXPECT_EQ(undo.squares.size(), 4U);
    EXPECT_FALSE(pattern.IsRecording());
}

TEST_F(PatternStitches, ChangedFollowsPatternAndPalette) {
    EXPECT_FALSE(pattern.IsChanged());
    pattern.DeleteStitch(1, 1, 0);
    EXPECT_TRUE(pattern.IsChanged());
    pattern.SetChanged(false);
    pattern.GetPalette().SetChanged(true);
    EXPECT_TRUE(pattern.IsChanged());
    pattern.SetChanged(false);
    EXPECT_FALSE(pattern.GetPalette().IsChanged());
}

TEST_F(PatternStitches, InitializeClearsAllAndTakesTheDefaults) {
    context.DefaultTitle = "T";
    context.DefaultAuthor = "A";
    context.DefaultCopyright = "C";
    context.DefaultFabric = "F";
    std::mt19937 random(1);
    test::Scatter(pattern, random, 50, 10, 5, 5);
    pattern.AddPatternID(5, "x");
    pattern.AddAPatternNote(1, 1, 1, 1, "n");
    pattern.Instructions = "i";
    pattern.FileName = "f";
    pattern.SetNoMapping();
    pattern.GetPalette().RemovePaletteEntry(1);
    pattern.Initialize(4, 3, 11, 22);
    EXPECT_EQ(test::Dump(pattern), "4x3\n");
    EXPECT_EQ(pattern.GetPatternClothCountX(), 11);
    EXPECT_EQ(pattern.GetPatternClothCountY(), 22);
    EXPECT_EQ(pattern.Title + pattern.Author + pattern.Copyright + pattern.Fabric, "TACF");
    EXPECT_EQ(pattern.Instructions + pattern.FileName, "");
    EXPECT_TRUE(pattern.AllowFlossMapping());
    EXPECT_EQ(pattern.GetPatternIDCount() + pattern.GetPatternNoteCount(), 0);
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 16);
    EXPECT_FALSE(pattern.IsChanged());
}

TEST_F(PatternStitches, InitializeRefusesAbsurdSizesAndKeepsTheContent) {
    pattern.SetStitch(1, 1, 1, 1, 0);
    const auto errorOf = [this](int width, int height) {
        try {
            pattern.Initialize(width, height, 14, 14);
            return 0;
        } catch (const RunTimeError& error) {
            return error.Number();
        }
    };
    EXPECT_EQ(errorOf(0, 5), ErrSubscript);
    EXPECT_EQ(errorOf(5, -1), ErrSubscript);
    EXPECT_EQ(errorOf(4001, 4000), ErrOutOfMemory);
    EXPECT_EQ(errorOf(32767, 32767), ErrOutOfMemory);
    EXPECT_EQ(errorOf(32768, 1), ErrSubscript);
    EXPECT_EQ(pattern.GetStitchCount(1, 1), 1);
    EXPECT_EQ(errorOf(32767, 488), 0);
}

TEST_F(PatternStitches, MovedPatternsKeepTheirContent) {
    pattern.SetStitch(1, 1, StitchWhole, 1, 0);
    const Pattern other = std::move(pattern);
    EXPECT_EQ(other.GetStitchCount(1, 1), 1);
    EXPECT_EQ(other.GetPatternWidth(), 10);
}

} // namespace
} // namespace zol
