// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <set>

#include "flosses/AvailColors.h"
#include "model/Pattern.h"
#include "support/TestPaths.h"

namespace zol {
namespace {

const std::filesystem::path shareFolder = test::BuildDataFolder;

/// What a design uses of the craft.
struct Craft {
    std::set<int> kinds;
    std::set<int> lineStyles;
    int blends = 0;
};

class SamplePatterns : public ::testing::TestWithParam<const char*> {
protected:
    SamplePatterns() {
        const auto file = shareFolder / "Patterns" / (std::string(GetParam()) + ".pat");
        EXPECT_EQ(pattern.Load(file), 0) << file;
    }

    Craft CraftOf() {
        Craft craft;
        for (int x = 1; x <= pattern.GetPatternWidth(); ++x) {
            for (int y = 1; y <= pattern.GetPatternHeight(); ++y) {
                for (int i = 0; i < pattern.GetStitchCount(x, y); ++i) {
                    craft.kinds.insert(pattern.GetStitchType(x, y, i));
                }
            }
        }
        for (const BackStitchLine& line : pattern.Lines()) {
            craft.lineStyles.insert(line.LineStyle);
        }
        for (int i = 1; i <= pattern.GetPalette().GetEntriesCount(); ++i) {
            craft.blends += pattern.GetPalette().IsBlended(i) ? 1 : 0;
        }
        return craft;
    }

    ProgramContext context;
    Pattern pattern{context};
};

TEST_P(SamplePatterns, TellWhatTheyAre) {
    EXPECT_FALSE(pattern.Title.empty());
    EXPECT_FALSE(pattern.Author.empty());
    EXPECT_FALSE(pattern.Copyright.empty());
    EXPECT_FALSE(pattern.Fabric.empty());
    EXPECT_FALSE(pattern.Instructions.empty());
}

TEST_P(SamplePatterns, ShowKnotsLinesPartStitchesAndBlends) {
    const Craft craft = CraftOf();
    EXPECT_TRUE(craft.kinds.count(StitchWhole));
    EXPECT_TRUE(craft.kinds.count(StitchFKnot));
    EXPECT_GE(craft.kinds.size(), 4U);
    EXPECT_GE(craft.lineStyles.size(), 2U);
    EXPECT_GE(craft.blends, 1);
}

TEST_P(SamplePatterns, EveryFlossIsUsedKnownAndHasASymbolOfItsOwn) {
    AvailColors dmc(context);
    ASSERT_TRUE(dmc.Initialize(shareFolder / "Flosses" / "dmc.col"));
    const Palette& palette = pattern.GetPalette();
    pattern.CountStitches();
    std::set<int> symbols;
    for (int i = 1; i <= palette.GetEntriesCount(); ++i) {
        EXPECT_GT(pattern.GetColorCount(2, i), 0) << palette.GetFlossLongDesc(i);
        EXPECT_TRUE(symbols.insert(palette.GetFlossSymbol(i)).second) << i;
        const int row = dmc.GetMapIndex(palette.GetFlossMasterID(i));
        ASSERT_GT(row, 0) << palette.GetFlossLongDesc(i);
        EXPECT_EQ(dmc.GetFlossManuID(row), palette.GetManufID(i));
    }
}

INSTANTIATE_TEST_SUITE_P(All, SamplePatterns,
                         ::testing::Values("bauble", "cottage", "lavender", "robin", "sampler"),
                         [](const auto& sample) { return std::string(sample.param); });

} // namespace
} // namespace zol
