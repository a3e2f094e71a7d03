// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/AvailColors.h"
#include "model/ModelTestKit.h"

namespace zol {
namespace {

using test::Dump;
using test::Line;
using test::ModelTest;
using test::StitchesAt;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

using PatternFlosses = ModelTest;

TEST_F(PatternFlosses, RemoveColorBringsUpTheOtherFlossAsPrimary) {
    Pattern pattern = Make(5, 5);
    pattern.SetStitch(1, 1, StitchULQ, 3, 0);
    pattern.SetStitch(1, 1, StitchURQ, 5, 0);
    pattern.RemoveColor(3, 1, 1, 5, 5);
    EXPECT_THAT(StitchesAt(pattern, 1, 1), ElementsAre(Pair(StitchURQ, 5)));
    EXPECT_TRUE(pattern.DupStitches().IsEmpty());
}

TEST_F(PatternFlosses, RemoveColorLooksAgainAtWhatComesUp) {
    Pattern pattern = Make(5, 5);
    pattern.SetStitch(1, 1, StitchULQ, 3, 0);
    pattern.SetStitch(1, 1, StitchURQ, 3, 0);
    pattern.SetStitch(1, 1, StitchLLQ, 5, 0);
    pattern.SetStitch(1, 1, StitchLRQ, 2, 0);
    pattern.RemoveColor(3, Pattern::WholePattern, 0, 0, 0);
    EXPECT_THAT(StitchesAt(pattern, 1, 1), ElementsAre(Pair(StitchLLQ, 4), Pair(StitchLRQ, 2)));
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 15);
    test::CheckInvariants(pattern);
}

TEST_F(PatternFlosses, RemoveColorOfTheWholePatternLowersAllAbove) {
    Pattern pattern = Make(6, 6);
    pattern.SetStitch(1, 1, StitchWhole, 3, 0);
    pattern.SetStitch(2, 1, StitchWhole, 4, 0);
    pattern.SetStitch(3, 1, StitchWhole, 2, 0);
    pattern.SetStitch(1, 3, StitchFKnot, 3, 5);
    pattern.SetStitch(2, 3, StitchFKnot, 9, 5);
    pattern.SetBackstitchLine(Line(1, 5, 1, 2, 5, 1, 3));
    pattern.SetBackstitchLine(Line(1, 5, 1, 2, 5, 1, 3));
    pattern.SetBackstitchLine(Line(1, 5, 1, 2, 5, 1, 16));
    const std::string fourth = pattern.GetPalette().GetManufID(4);
    pattern.RemoveColor(3, Pattern::WholePattern, 0, 0, 0);
    EXPECT_EQ(pattern.GetStitchCount(1, 1), 0);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(2, 1), 3);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(3, 1), 2);
    EXPECT_EQ(pattern.GetStitchCount(1, 3), 0);
    EXPECT_EQ(pattern.GetStitchColorIndex(2, 3, 0), 8);
    ASSERT_EQ(pattern.GetBackStitchCount(), 1);
    EXPECT_EQ(pattern.GetBackStitchLine(1).PaletteIndex, 15);
    EXPECT_EQ(pattern.GetPalette().GetManufID(3), fourth);
}

TEST_F(PatternFlosses, RemoveColorOnARangeLeavesPaletteAndOtherIndexes) {
    Pattern pattern = Make(6, 6);
    pattern.SetStitch(1, 1, StitchWhole, 3, 0);
    pattern.SetStitch(5, 5, StitchWhole, 3, 0);
    pattern.SetStitch(2, 2, StitchWhole, 4, 0);
    pattern.SetStitch(3, 3, StitchULQ, 4, 0);
    pattern.SetStitch(3, 3, StitchURQ, 3, 0);
    pattern.SetStitch(5, 6, StitchULQ, 4, 0);
    pattern.SetStitch(5, 6, StitchURQ, 3, 0);
    pattern.SetStitch(2, 2, StitchFKnot, 3, 5);
    pattern.SetStitch(6, 6, StitchFKnot, 3, 5);
    pattern.SetBackstitchLine(Line(1, 1, 1, 2, 2, 9, 3));
    pattern.SetBackstitchLine(Line(1, 1, 1, 6, 6, 9, 3));
    pattern.RemoveColor(3, 1, 1, 4, 4);
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 16);
    EXPECT_EQ(pattern.GetStitchCount(1, 1), 0);
    EXPECT_EQ(pattern.GetStitchCount(5, 5), 1);
    EXPECT_THAT(StitchesAt(pattern, 2, 2), ElementsAre(Pair(StitchWhole, 4)));
    EXPECT_THAT(StitchesAt(pattern, 3, 3), ElementsAre(Pair(StitchULQ, 4)));
    EXPECT_THAT(StitchesAt(pattern, 5, 6), ElementsAre(Pair(StitchULQ, 4), Pair(StitchURQ, 3)));
    EXPECT_THAT(test::KnotPoints(pattern), ElementsAre(Pair(12, 12)));
    EXPECT_EQ(pattern.GetBackStitchCount(), 1);
    test::CheckInvariants(pattern);
}

TEST_F(PatternFlosses, RemovedKnotLeavesTheFlagWhereAnotherKnotTouches) {
    Pattern pattern = Make(6, 6);
    pattern.SetStitch(2, 2, StitchFKnot, 3, 6); // between (2, 2) and (3, 2)
    pattern.SetStitch(3, 2, StitchFKnot, 4, 5);
    pattern.RemoveColor(3, Pattern::WholePattern, 0, 0, 0);
    EXPECT_EQ(pattern.Cell(2, 2).CellFlags, 0);
    EXPECT_EQ(pattern.Cell(3, 2).CellFlags, CellHasKnot);
    EXPECT_EQ(pattern.GetStitchColorIndex(3, 2, 0), 3);
}

TEST_F(PatternFlosses, RemoveColorOutsideThePaletteDoesNothing) {
    Pattern pattern = Make(6, 6);
    pattern.SetStitch(1, 1, StitchWhole, 16, 0);
    for (const int floss : {-1, 0, 17, 255, 300}) {
        pattern.RemoveColor(floss, Pattern::WholePattern, 0, 0, 0);
        pattern.RemoveColor(floss, 1, 1, 6, 6);
    }
    EXPECT_EQ(Dump(pattern), "6x6\n1,1 1/16/0\n");
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 16);
}

TEST_F(PatternFlosses, ChangeColorTakesSquaresKnotsAndLinesOfTheRange) {
    Pattern pattern = Make(6, 6);
    pattern.SetStitch(1, 1, StitchWhole, 3, 0);
    pattern.SetStitch(5, 5, StitchWhole, 3, 0);
    pattern.SetStitch(2, 2, StitchFKnot, 3, 5);
    pattern.SetStitch(6, 6, StitchFKnot, 3, 5);
    pattern.SetBackstitchLine(Line(1, 1, 1, 2, 2, 9, 3));
    pattern.SetBackstitchLine(Line(1, 1, 1, 6, 6, 9, 3));
    pattern.ChangeColor(3, 7, 1, 1, 4, 4);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(1, 1), 7);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(5, 5), 3);
    EXPECT_EQ(pattern.GetStitchColorIndex(2, 2, 0), 7);
    EXPECT_EQ(pattern.GetStitchColorIndex(6, 6, 0), 3);
    EXPECT_EQ(pattern.GetBackStitchLine(1).PaletteIndex, 7);
    EXPECT_EQ(pattern.GetBackStitchLine(2).PaletteIndex, 3);
    pattern.ChangeColor(3, 8, Pattern::WholePattern, 0, 0, 0);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(5, 5), 8);
    EXPECT_EQ(pattern.GetStitchColorIndex(6, 6, 0), 8);
    EXPECT_EQ(pattern.GetBackStitchLine(2).PaletteIndex, 8);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(1, 1), 7);
}

TEST_F(PatternFlosses, ChangeColorOnARangeReachesDupStitchesEverywhere) {
    Pattern pattern = Make(6, 6);
    pattern.SetStitch(6, 6, StitchULQ, 3, 0);
    pattern.SetStitch(6, 6, StitchURQ, 3, 0);
    pattern.ChangeColor(3, 7, 1, 1, 2, 2);
    EXPECT_THAT(StitchesAt(pattern, 6, 6), ElementsAre(Pair(StitchULQ, 3), Pair(StitchURQ, 7)));
}

TEST_F(PatternFlosses, ChangeColorOf255LeavesEmptySquaresEmpty) {
    Pattern pattern = Make(2, 2);
    pattern.ChangeColor(255, 3, Pattern::WholePattern, 0, 0, 0);
    pattern.ChangeColor(3, 300, Pattern::WholePattern, 0, 0, 0);
    EXPECT_EQ(Dump(pattern), "2x2\n");
}

TEST_F(PatternFlosses, MapPaletteReachesStitchesDupsLinesAndKnots) {
    Pattern pattern = Make(6, 6);
    pattern.SetStitch(1, 1, StitchULQ, 1, 0);
    pattern.SetStitch(1, 1, StitchURQ, 2, 0);
    pattern.SetStitch(2, 2, StitchFKnot, 3, 5);
    pattern.SetStitch(4, 4, StitchWhole, 200, 0);
    pattern.SetBackstitchLine(Line(1, 1, 1, 2, 2, 9, 4));
    pattern.MapPalette({0, 11, 12, 13, 14});
    EXPECT_THAT(StitchesAt(pattern, 1, 1), ElementsAre(Pair(StitchULQ, 11), Pair(StitchURQ, 12)));
    EXPECT_EQ(pattern.GetStitchColorIndex(2, 2, 0), 13);
    EXPECT_EQ(pattern.GetBackStitchLine(1).PaletteIndex, 14);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(4, 4), 200) << "outside the map";
    EXPECT_EQ(pattern.GetStitchPaletteIndex(3, 3), 255);
}

TEST_F(PatternFlosses, ClearUnusedKeepsWhatStitchesKnotsAndLinesUse) {
    Pattern pattern = Make(6, 6);
    pattern.SetStitch(1, 1, StitchULQ, 4, 0);
    pattern.SetStitch(1, 1, StitchURQ, 7, 0);
    pattern.SetStitch(3, 3, StitchFKnot, 9, 5);
    pattern.SetBackstitchLine(Line(1, 1, 1, 2, 2, 9, 16));
    const auto& palette = pattern.GetPalette();
    const std::vector<std::string> kept{palette.GetManufID(4), palette.GetManufID(7),
                                        palette.GetManufID(9), palette.GetManufID(16)};
    pattern.ClearUnusedPaletteColors();
    ASSERT_EQ(palette.GetEntriesCount(), 4);
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(palette.GetManufID(i), kept[static_cast<std::size_t>(i - 1)]);
    }
    EXPECT_THAT(StitchesAt(pattern, 1, 1), ElementsAre(Pair(StitchULQ, 1), Pair(StitchURQ, 2)));
    EXPECT_EQ(pattern.GetStitchColorIndex(3, 3, 0), 3);
    EXPECT_EQ(pattern.GetBackStitchLine(1).PaletteIndex, 4);
}

TEST_F(PatternFlosses, ClearUnusedLeavesTheFirstEntryWhenNothingIsUsed) {
    Pattern pattern = Make(6, 6);
    const std::string first = pattern.GetPalette().GetManufID(1);
    pattern.ClearUnusedPaletteColors();
    ASSERT_EQ(pattern.GetPalette().GetEntriesCount(), 1);
    EXPECT_EQ(pattern.GetPalette().GetManufID(1), first);
}

TEST_F(PatternFlosses, ClearUnusedKeepsTheOnlyUsedEntryAndDropsTheFirst) {
    Pattern pattern = Make(6, 6);
    pattern.SetStitch(1, 1, StitchWhole, 2, 0);
    const std::string second = pattern.GetPalette().GetManufID(2);
    pattern.ClearUnusedPaletteColors();
    ASSERT_EQ(pattern.GetPalette().GetEntriesCount(), 1);
    EXPECT_EQ(pattern.GetPalette().GetManufID(1), second);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(1, 1), 1);
}

TEST_F(PatternFlosses, ClearUnusedEqualsRemovingOneFlossAfterAnother) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        const auto build = [&] {
            std::mt19937 random(seed);
            Pattern pattern = Make(8, 8);
            test::Scatter(pattern, random, 12, 3, 2, 16);
            return pattern;
        };
        Pattern together = build();
        Pattern single = build();
        together.ClearUnusedPaletteColors();
        single.CountStitches();
        for (int floss = 16; floss >= 1 && single.GetPalette().GetEntriesCount() > 1; --floss) {
            if (single.GetPaletteStitchCount(floss, -1, 0, 0, 0) == 0 &&
                single.GetColorCount(1, floss) == 0) {
                single.RemoveColor(floss, -1, 0, 0, 0);
            }
        }
        ASSERT_EQ(Dump(together), Dump(single)) << seed;
        ASSERT_EQ(together.GetPalette().GetEntriesCount(), single.GetPalette().GetEntriesCount());
    }
}

TEST_F(PatternFlosses, RefreshTakesColoursThroughTheMasterIdentity) {
    context.CurrentCatalogue = std::make_shared<AvailColors>(context);
    CatalogueRow row;
    row.MasterID = 77;
    row.Red = 1;
    row.Green = 2;
    row.Blue = 3;
    context.CurrentCatalogue->AppendRow(row);
    row.MasterID = 0;
    row.Red = 9;
    context.CurrentCatalogue->AppendRow(row);
    Pattern pattern = Make(2, 2);
    Palette& palette = pattern.GetPalette();
    const Colour second = palette.GetFlossRGB(2);
    palette.SetFlossMasterID(1, 77);
    palette.SetFlossMasterID(3, 78);
    const Colour third = palette.GetFlossRGB(3);
    RefreshFlossColors(pattern);
    EXPECT_EQ(palette.GetFlossRGB(1), MakeColour(1, 2, 3));
    EXPECT_EQ(palette.GetFlossRGB(2), second) << "no identity";
    EXPECT_EQ(palette.GetFlossRGB(3), third) << "not in the catalogue";
    EXPECT_FALSE(pattern.IsChanged());
}

TEST_F(PatternFlosses, InitializeRefreshesOnlyWhenTheSettingIsOn) {
    context.CurrentCatalogue = std::make_shared<AvailColors>(context);
    CatalogueRow row;
    row.MasterID = 77;
    row.Red = 1;
    context.CurrentCatalogue->AppendRow(row);
    Palette startup(context);
    startup.SetFlossMasterID(1, 77);
    context.StartupPalette = std::make_shared<const Palette>(startup);
    const Pattern plain = Make(2, 2);
    EXPECT_EQ(plain.GetPalette().GetFlossMasterID(1), 77);
    EXPECT_EQ(plain.GetPalette().GetFlossRGB(1), 0U);
    context.RecolorPatterns = true;
    const Pattern recoloured = Make(2, 2);
    EXPECT_EQ(recoloured.GetPalette().GetFlossRGB(1), MakeColour(1, 0, 0));
    context.CurrentCatalogue.reset();
    EXPECT_NO_THROW((void)Make(2, 2));
}

} // namespace
} // namespace zol
