// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "FlossesTestSupport.h"
#include "flosses/HSLFuncs.h"
#include "flosses/Palette.h"

namespace zol {
namespace {

using test::AddFloss;
using test::FixedSymbol;

class PaletteMatching : public testing::Test {
protected:
    ProgramContext context;
    Palette palette = Palette::Empty(context);
    Palette target = Palette::Empty(context);

    [[nodiscard]] std::vector<int> Order() const {
        std::vector<int> order;
        for (int p = 1; p <= palette.GetEntriesCount(); ++p) {
            order.push_back(palette.GetSortIndex(p));
        }
        return order;
    }
};

// --- Symbols ------------------------------------------------------------------------------------

TEST_F(PaletteMatching, SymbolCodesLeaveTheGapsOut) {
    std::vector<int> codes;
    for (int n = 1; n <= Palette::SymbolCount; ++n) {
        codes.push_back(Palette::SymbolCode(n));
    }
    std::vector<int> expected;
    for (const auto& [first, last] : {std::pair{33, 126}, {130, 140}, {145, 156}, {159, 241}}) {
        for (int code = first; code <= last; ++code) {
            expected.push_back(code);
        }
    }
    EXPECT_EQ(codes, expected);
}

TEST_F(PaletteMatching, After126ComesSymbol130) {
    for (int code = 33; code <= 126; ++code) {
        AddFloss(palette, 0, "1", "d", std::string(1, static_cast<char>(code)));
    }
    EXPECT_EQ(Palette::SymbolCodeOf(palette.GetNextAvailableSymbol()), 130);
}

TEST_F(PaletteMatching, AnEmptyTextAsksAboutSymbolZero) {
    AddFloss(palette, 0, "1", "d", "A");
    EXPECT_TRUE(palette.IsSymbolUsed("A"));
    EXPECT_TRUE(palette.IsSymbolUsed("Abc"));
    EXPECT_FALSE(palette.IsSymbolUsed(""));
    AddFloss(palette, 0, "2", "d", std::string(1, '\0'));
    EXPECT_TRUE(palette.IsSymbolUsed(""));
}

// --- Copy, match, merge -------------------------------------------------------------------------

TEST_F(PaletteMatching, ACopyHoldsPrimaryThreadsOnly) {
    AddFloss(palette, 0x10, "1", "first", "A", 4);
    AddFloss(palette, 0x20, "2", "second", std::string(1, '\0'), 5);
    palette.BlendFloss(1, 0xFF, "9", "Anchor", "other", 6);
    palette.SetFlossDesc(2, "mine");
    palette.SetSymbolFont("Arial", true, true);
    FixedSymbol door("Q");
    context.Symbols = &door;
    AddFloss(target, 0, "x");
    palette.CreateCopy(target);
    ASSERT_EQ(target.GetEntriesCount(), 2);
    EXPECT_EQ(target.GetFlossRGB(1), 0x10U);
    EXPECT_FALSE(target.IsBlended(1));
    EXPECT_EQ(target.GetFlossShortDesc(1), "first");
    EXPECT_EQ(target.GetFlossShortDesc(2), "second");
    EXPECT_EQ(target.GetFlossMasterID(2), 5);
    EXPECT_EQ(target.GetFlossSymbol(2), 0);
    EXPECT_TRUE(door.CountsSeen.empty()) << "an entry without a symbol is copied without one";
    EXPECT_EQ(target.GetFontName(), "Arial");
    EXPECT_EQ(target.GetManufacturerCount(), 1);
    EXPECT_EQ(target.GetSortIndex(2), 2);
}

TEST_F(PaletteMatching, FlossesMatchByIdentityNumberAndMaker) {
    AddFloss(palette, 1, "310", "a", "A", 7);
    AddFloss(target, 2, "310", "b", "B", 7);
    AddFloss(target, 1, "310", "b", "B", 8);
    AddFloss(target, 1, "311", "b", "B", 7);
    EXPECT_TRUE(palette.FlossesMatch(1, target, 1));
    EXPECT_FALSE(palette.FlossesMatch(1, target, 2));
    EXPECT_FALSE(palette.FlossesMatch(1, target, 3));
    EXPECT_FALSE(palette.FlossesMatch(1, target, 4));
}

TEST_F(PaletteMatching, ABlendMatchesThePlainFlossOfItsPrimaryThread) {
    AddFloss(palette, 1, "310", "a", "A", 7);
    AddFloss(target, 1, "310", "a", "A", 7);
    target.BlendFloss(1, 0xFFFFFF, "2", "DMC", "white", 3);
    EXPECT_TRUE(palette.FlossesMatch(1, target, 1));
}

TEST_F(PaletteMatching, AFlossOfTheUsersOwnMatchesOnlyWithItsColour) {
    AddFloss(palette, 1, "310", "a", "A", 0);
    AddFloss(target, 2, "310", "a", "A", 0);
    EXPECT_EQ(palette.MergePaletteEntrytoTarget(target, 1), 2);
    EXPECT_EQ(target.GetEntriesCount(), 2);
    EXPECT_EQ(palette.MergePaletteEntrytoTarget(target, 1), 2) << "now it is there";
}

TEST_F(PaletteMatching, AMergeTakesTheFirstMatch) {
    AddFloss(palette, 1, "310", "a", "A", 7);
    AddFloss(target, 9, "1", "x", "x", 1);
    AddFloss(target, 1, "310", "a", "y", 7);
    AddFloss(target, 1, "310", "a", "z", 7);
    EXPECT_EQ(palette.MergePaletteEntrytoTarget(target, 1), 2);
}

TEST_F(PaletteMatching, AMergeReplacesATakenSymbolByTheSourcesNextFreeOne) {
    AddFloss(palette, 1, "1", "a", "!", 1);
    AddFloss(target, 2, "2", "b", "!", 2);
    AddFloss(target, 3, "3", "c", "\"", 3);
    EXPECT_EQ(palette.MergePaletteEntrytoTarget(target, 1), 3);
    // The source's next is the quotation mark, which the target has already: not checked again.
    EXPECT_EQ(target.GetFlossSymbol(3), '"');
}

TEST_F(PaletteMatching, AMergedBlendArrivesAsItsPrimaryThread) {
    AddFloss(palette, 1, "1", "a", "A", 1);
    palette.BlendFloss(1, 0xFFFFFF, "2", "DMC", "white", 3);
    EXPECT_EQ(palette.MergePaletteEntrytoTarget(target, 1), 1);
    EXPECT_FALSE(target.IsBlended(1));
    EXPECT_EQ(target.GetFlossShortDesc(1), "a");
}

TEST_F(PaletteMatching, AMergeThatFailsAnswersOne) {
    for (int n = 1; n <= Palette::SymbolCount; ++n) {
        AddFloss(palette, 5, std::to_string(n), "d", palette.GetNextAvailableSymbol(), n);
    }
    AddFloss(target, 2, "b", "b", "!", 999);
    AddFloss(target, 2, "c", "c", "#", 998);
    FixedSymbol door(std::nullopt);
    context.Symbols = &door;
    EXPECT_EQ(palette.MergePaletteEntrytoTarget(target, 1), 1);
    EXPECT_EQ(target.GetEntriesCount(), 2);
    EXPECT_THAT(door.CountsSeen, testing::ElementsAre(2));
}

// --- Nearest floss ------------------------------------------------------------------------------

/// The distance as it is defined, in double precision with a rounding at each step.
int ClosestByDefinition(const Palette& palette, Colour rgb, int excluded) {
    using namespace HSLFuncs;
    const auto curve = [](int c) { return c * (c / 255.0); };
    const double red = std::nearbyint(curve(RedOf(rgb)));
    const double green = std::nearbyint(curve(GreenOf(rgb)));
    const double blue = std::nearbyint(curve(BlueOf(rgb)));
    double best = 768;
    int bestIndex = 0;
    for (int i = 1; i <= palette.GetEntriesCount(); ++i) {
        const Colour colour = palette.GetEntry(i).RGB;
        if (i == excluded) {
            continue;
        }
        double difference = std::nearbyint(std::abs(red - curve(RedOf(colour))));
        if (difference > best) {
            continue;
        }
        difference = std::nearbyint(std::abs(green - curve(GreenOf(colour))) + difference);
        if (difference > best) {
            continue;
        }
        difference = std::nearbyint(std::abs(blue - curve(BlueOf(colour))) + difference);
        if (difference < best) {
            best = difference;
            bestIndex = i;
        }
    }
    return bestIndex;
}

TEST_F(PaletteMatching, ClosestAgreesWithTheDefinitionInDoublePrecision) {
    std::mt19937 random(3);
    for (int i = 0; i < 150; ++i) {
        AddFloss(palette, static_cast<Colour>(random() & 0xFFFFFFU), "1");
    }
    for (int i = 0; i < 20000; ++i) {
        const auto sought = static_cast<Colour>(random() & 0xFFFFFFU);
        const int excluded = i % 3 == 0 ? static_cast<int>(random() % 150U) + 1 : -1;
        ASSERT_EQ(palette.GetClosest(sought, excluded),
                  ClosestByDefinition(palette, sought, excluded));
    }
}

TEST_F(PaletteMatching, ClosestTakesTheLowerOfTwoEqualEntries) {
    AddFloss(palette, 0x000000, "1");
    AddFloss(palette, 0xFFFFFF, "2");
    AddFloss(palette, 0xFFFFFF, "3");
    EXPECT_EQ(palette.GetClosest(0xFFFFFF, Palette::NoExclusion), 2);
    EXPECT_EQ(palette.GetClosest(0xFFFFFF, 2), 3);
}

TEST_F(PaletteMatching, ClosestOfNoEligibleEntryIsZero) {
    EXPECT_EQ(palette.GetClosest(0, -1), 0);
    AddFloss(palette, 0, "1");
    EXPECT_EQ(palette.GetClosest(0, 1), 0);
    EXPECT_EQ(palette.GetClosest(0xFFFFFF, -1), 1);
}

TEST_F(PaletteMatching, ABlendMatchesOnItsFirstThread) {
    AddFloss(palette, 0x000000, "1");
    palette.BlendFloss(1, 0xFFFFFF, "2", "DMC", "white", 0);
    AddFloss(palette, 0x606060, "3");
    EXPECT_EQ(palette.GetClosest(0x000000, -1), 1);
}

// --- Display order ------------------------------------------------------------------------------

TEST_F(PaletteMatching, SortByNumberPutsTextNumbersFirst) {
    AddFloss(palette, 0, "310");
    AddFloss(palette, 0, "White");
    AddFloss(palette, 0, "9");
    AddFloss(palette, 0, "Ecru");
    palette.Sort(SortManufacturerID);
    EXPECT_EQ(palette.GetSortOrder(), SortManufacturerID);
    // 310 changes places with White, then nothing passes the equal keys of White and Ecru.
    EXPECT_THAT(Order(), testing::ElementsAre(2, 4, 3, 1));
    EXPECT_EQ(palette.GetSortedPosition(1), 4);
    EXPECT_EQ(palette.GetSortedPosition(5), 0);
    palette.Sort(SortOrderAdded);
    EXPECT_THAT(Order(), testing::ElementsAre(1, 2, 3, 4));
}

TEST_F(PaletteMatching, EqualNumbersTakeTheOrderOfTheExchange) {
    AddFloss(palette, 0, "2a");
    AddFloss(palette, 0, "2b");
    AddFloss(palette, 0, "1");
    palette.Sort(SortManufacturerID);
    EXPECT_THAT(Order(), testing::ElementsAre(3, 2, 1));
}

TEST_F(PaletteMatching, SortByDescriptionGoesByCharacterCode) {
    AddFloss(palette, 0, "1", "apple");
    AddFloss(palette, 0, "2", "Zebra");
    AddFloss(palette, 0, "3", "app");
    AddFloss(palette, 0, "4", "\xC3\xA9t\xC3\xA9"); // e with acute, code 233
    palette.SetFlossDesc(1, "zzz");
    palette.Sort(SortDescription);
    EXPECT_THAT(Order(), testing::ElementsAre(2, 3, 1, 4)) << "not by what the user reads";
}

TEST_F(PaletteMatching, SortByColourGoesByHueOfThePrimaryThread) {
    AddFloss(palette, MakeColour(0, 0, 255), "blue");
    AddFloss(palette, MakeColour(128, 128, 128), "grey");
    AddFloss(palette, MakeColour(255, 0, 0), "red");
    AddFloss(palette, MakeColour(0, 255, 0), "green");
    palette.BlendFloss(3, MakeColour(0, 0, 255), "b", "DMC", "b", 0);
    palette.Sort(SortColor);
    EXPECT_THAT(Order(), testing::ElementsAre(3, 4, 2, 1));
}

TEST_F(PaletteMatching, AddingSortsAgainInThePresentOrder) {
    palette.Sort(SortManufacturerID);
    AddFloss(palette, 0, "20");
    AddFloss(palette, 0, "10");
    EXPECT_THAT(Order(), testing::ElementsAre(2, 1));
    palette.SwapSortIndexes(1, 2);
    EXPECT_THAT(Order(), testing::ElementsAre(1, 2));
    palette.SwapSortIndexes(0, 3);
    EXPECT_THAT(Order(), testing::ElementsAre(1, 2));
}

} // namespace
} // namespace zol
