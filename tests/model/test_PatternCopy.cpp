// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/ModelTestKit.h"

namespace zol {
namespace {

using test::Line;
using test::ModelTest;
using test::StitchesAt;
using ::testing::ElementsAre;
using ::testing::Pair;

class PatternCopy : public ModelTest {
protected:
    PatternCopy() {
        source.GetPalette().ClearPalette();
        target.GetPalette().ClearPalette();
        for (int i = 1; i <= 3; ++i) {
            source.GetPalette().AddPaletteEntry(
                MakeColour(static_cast<unsigned>(i), 0, 0), std::to_string(i), "floss", "X",
                std::string(1, static_cast<char>('a' + i)), 2, 1, 0, i, 0, "X");
        }
    }

    Pattern source = Make(10, 8);
    Pattern target = Make(10, 8);
};

TEST_F(PatternCopy, MergesOnlyTheFlossesThatAreNeeded) {
    source.SetStitch(2, 2, StitchULQ, 3, 0);
    source.SetStitch(2, 2, StitchLRQ, 1, 0);
    source.SetStitch(3, 3, StitchWhole, 3, 0);
    source.CopySectionToTarget(target, 5, 6, 2, 2, 2, 2, -1);
    EXPECT_EQ(target.GetPalette().GetEntriesCount(), 2);
    EXPECT_EQ(target.GetPalette().GetFlossMasterID(1), 3);
    EXPECT_THAT(StitchesAt(target, 5, 6), ElementsAre(Pair(StitchULQ, 1), Pair(StitchLRQ, 2)));
    EXPECT_THAT(StitchesAt(target, 6, 7), ElementsAre(Pair(StitchWhole, 1)));
    EXPECT_EQ(source.GetStitchCount(2, 2), 2);
}

TEST_F(PatternCopy, OverrideGivesEveryStitchOneFloss) {
    source.SetStitch(1, 1, StitchULQ, 3, 0);
    source.SetStitch(1, 1, StitchFKnot, 2, 5);
    source.SetBackstitchLine(Line(1, 1, 1, 2, 2, 1, 2));
    source.CopySectionToTarget(target, 1, 1, 1, 1, 1, 1, 9);
    EXPECT_EQ(target.GetStitchColorIndex(1, 1, 0), 9);
    EXPECT_EQ(target.GetStitchColorIndex(1, 1, 1), 9);
    EXPECT_EQ(target.GetBackStitchLine(1).PaletteIndex, 9);
    EXPECT_EQ(target.GetPalette().GetEntriesCount(), 0);
}

TEST_F(PatternCopy, KnotsKeepTheirOrientationAndTheStyleIsPutBack) {
    context.FrenchKnotStyle = KnotVerticalOval;
    source.SetStitch(2, 2, StitchFKnot, 1, 5);
    context.FrenchKnotStyle = KnotHorizontalOval;
    source.SetStitch(3, 2, StitchFKnot, 1, 5);
    context.FrenchKnotStyle = KnotUpperLeftDiagonal;
    source.CopySectionToTarget(target, 2, 2, 2, 2, 2, 1, -1);
    EXPECT_EQ(target.GetFrenchKnotOrientation(2, 2, 0), KnotVerticalOval);
    EXPECT_EQ(target.GetFrenchKnotOrientation(3, 2, 0), KnotHorizontalOval);
    EXPECT_EQ(context.FrenchKnotStyle, KnotUpperLeftDiagonal);
}

TEST_F(PatternCopy, LinesOfTheSectionAloneAreShiftedAndMerged) {
    source.SetBackstitchLine(Line(2, 2, 1, 3, 3, 9, 2, LineDotted));
    source.SetBackstitchLine(Line(2, 2, 1, 4, 4, 9, 2));
    source.CopySectionToTarget(target, 4, 4, 2, 2, 2, 2, -1);
    ASSERT_EQ(target.GetBackStitchCount(), 1);
    EXPECT_EQ(target.GetBackStitchLine(1), Line(4, 4, 1, 5, 5, 9, 1, LineDotted));
    EXPECT_TRUE(target.IsChanged());
}

TEST_F(PatternCopy, FlossOutsideTheSourcePaletteIsSkipped) {
    source.SetStitch(1, 1, StitchWhole, 99, 0);
    source.SetStitch(2, 1, StitchWhole, 0, 0);
    source.SetStitch(3, 1, StitchFKnot, 255, 5);
    source.SetStitch(4, 1, StitchWhole, 2, 0);
    source.SetBackstitchLine(Line(1, 1, 1, 2, 2, 1, 77));
    source.CopySectionToTarget(target, 1, 1, 1, 1, 10, 8, -1);
    EXPECT_EQ(test::Dump(target), "10x8\n4,1 1/1/0\n");
}

TEST_F(PatternCopy, SectionBeyondTheGridCopiesWhatIsThere) {
    source.SetStitch(10, 8, StitchWhole, 1, 0);
    source.CopySectionToTarget(target, 1, 1, 10, 8, 30000, 30000, -1);
    EXPECT_EQ(test::Dump(target), "10x8\n1,1 1/1/0\n");
    source.CopySectionToTarget(target, 9, 8, 10, 8, 1, 1, -1);
    EXPECT_EQ(target.GetStitchCount(9, 8), 1);
}

TEST_F(PatternCopy, TargetMayBeTheSource) {
    source.SetStitch(1, 1, StitchWhole, 2, 0);
    source.SetBackstitchLine(Line(1, 1, 1, 2, 2, 1, 1));
    source.CopySectionToTarget(source, 4, 4, 1, 1, 2, 2, -1);
    EXPECT_EQ(source.GetStitchColorIndex(4, 4, 0), 2);
    EXPECT_EQ(source.GetBackStitchCount(), 2);
    EXPECT_EQ(source.GetPalette().GetEntriesCount(), 3);
}

TEST_F(PatternCopy, AFullPaletteTakesTheNearestFlossAndGrowsNoFurther) {
    Palette& full = target.GetPalette();
    for (int i = 1; i < Palette::MostFlosses; ++i) {
        full.AddPaletteEntry(MakeColour(static_cast<unsigned>(i), 90, 0), std::to_string(i), "full",
                             "Y", "a", 2, 1, 0, 1000 + i, 0, "Y");
    }
    for (int i = 1; i <= 3; ++i) {
        source.SetStitch(i, 1, StitchWhole, i, 0);
    }
    source.SetBackstitchLine(Line(1, 1, 1, 2, 2, 1, 2));
    source.CopySectionToTarget(target, 1, 1, 1, 1, 10, 8, MergeFlosses);
    EXPECT_EQ(full.GetEntriesCount(), 254);
    EXPECT_EQ(target.GetStitchColorIndex(1, 1, 0), 254) << "there was room for one";
    EXPECT_EQ(target.GetStitchColorIndex(2, 1, 0), 254) << "nearer than any of the target's own";
    EXPECT_EQ(target.GetStitchColorIndex(3, 1, 0), 254);
    EXPECT_EQ(target.GetBackStitchLine(1).PaletteIndex, 254);
}

} // namespace
} // namespace zol
