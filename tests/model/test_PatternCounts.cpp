// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <cmath>

#include "model/ModelTestKit.h"

namespace zol {
namespace {

using test::Line;
using test::ModelTest;

using PatternCountsTest = ModelTest;

TEST_F(PatternCountsTest, CountsAndLengthsOfEveryKind) {
    Pattern pattern = Make(20, 4, 10);
    const double diagonal = std::sqrt(0.01 + 0.01);
    const std::array<int, 11> kinds{1, 2, 3, 4, 5, 6, 7, 9, 10, 11, 12};
    for (int i = 0; i < 11; ++i) {
        pattern.SetStitch(i + 1, 1, kinds[static_cast<std::size_t>(i)], 3, 0);
    }
    pattern.SetStitch(1, 3, StitchFKnot, 3, 9);
    pattern.CountStitches();
    EXPECT_EQ(pattern.GetColorCount(0, 3), 12);
    EXPECT_NEAR(pattern.GetColorCount(4, 3), (2 + 4 * 1.5 + 2 + 4 * 0.5 + 3) * diagonal, 1e-12);
    EXPECT_EQ(pattern.GetColorCount(0, 1), 0);
}

TEST_F(PatternCountsTest, KnotOnASharedCornerCountsOnce) {
    Pattern pattern = Make(5, 5);
    pattern.SetStitch(2, 2, StitchFKnot, 1, 9);
    pattern.CountStitches();
    EXPECT_EQ(pattern.GetColorCount(0, 1), 1);
}

TEST_F(PatternCountsTest, LinesByHalfSquaresAndBothClothCounts) {
    Pattern pattern(context);
    pattern.Initialize(10, 10, 10, 20);
    pattern.SetBackstitchLine(Line(1, 1, 1, 4, 4, 1, 2)); // 3 columns, 3 rows
    pattern.SetBackstitchLine(Line(1, 1, 5, 1, 1, 6, 2)); // half a column
    pattern.CountStitches();
    EXPECT_EQ(pattern.GetColorCount(1, 2), 2);
    EXPECT_NEAR(pattern.GetColorCount(3, 2), std::hypot(0.3, 0.15) + 0.05, 1e-12);
    pattern.SetStitch(1, 1, StitchWhole, 2, 0);
    pattern.CountStitches();
    EXPECT_EQ(pattern.GetColorCount(2, 2), 3);
}

TEST_F(PatternCountsTest, RangeTakesSquaresWholeLinesAndKnotsByTheRoundedHalf) {
    Pattern pattern = Make(10, 10);
    pattern.SetStitch(2, 2, StitchWhole, 1, 0);
    pattern.SetStitch(5, 5, StitchWhole, 1, 0);
    pattern.SetBackstitchLine(Line(2, 2, 1, 3, 3, 9, 1));
    pattern.SetBackstitchLine(Line(2, 2, 1, 6, 6, 9, 1));
    pattern.CountStitches(2, 2, 4, 4);
    EXPECT_EQ(pattern.GetColorCount(0, 1), 1);
    EXPECT_EQ(pattern.GetColorCount(1, 1), 1);
    // Lattice column 7 rounds to 4, lattice column 5 to 2.
    Pattern knots = Make(10, 10);
    knots.SetStitch(3, 3, StitchFKnot, 1, 6); // LX 7, LY 6
    EXPECT_EQ(knots.GetPaletteStitchCount(1, 4, 3, 4, 3), 1);
    EXPECT_EQ(knots.GetPaletteStitchCount(1, 3, 3, 3, 3), 0);
    Pattern five = Make(10, 10);
    five.SetStitch(2, 3, StitchFKnot, 1, 6); // LX 5, LY 6
    EXPECT_EQ(five.GetPaletteStitchCount(1, 2, 3, 2, 3), 1);
    EXPECT_EQ(five.GetPaletteStitchCount(1, 3, 3, 3, 3), 0);
}

TEST_F(PatternCountsTest, RangeBeyondTheGridCountsWhatIsThere) {
    Pattern pattern = Make(3, 3);
    pattern.SetStitch(3, 3, StitchWhole, 1, 0);
    EXPECT_EQ(pattern.GetPaletteStitchCount(1, -5, -5, 50, 50), 1);
    EXPECT_EQ(pattern.GetPaletteStitchCount(1, 5, 5, 4, 4), 0);
    EXPECT_EQ(pattern.GetPaletteStitchCount(1, 1, 4, 3, 9), 0);
}

TEST_F(PatternCountsTest, FlossOutsideThePaletteIsSkippedAndTheGettersGiveZero) {
    Pattern pattern = Make(3, 3);
    pattern.SetStitch(1, 1, StitchWhole, 200, 0);
    pattern.SetStitch(2, 1, StitchWhole, 0, 0);
    pattern.SetStitch(3, 1, StitchFKnot, 201, 5);
    pattern.SetBackstitchLine(Line(1, 1, 1, 2, 2, 1, 99));
    pattern.SetBackstitchLine(Line(1, 1, 1, 2, 2, 1, 0));
    pattern.CountStitches();
    for (int which = 0; which < 5; ++which) {
        for (const int floss : {-1, 0, 1, 16, 17, 200, 255, 300}) {
            EXPECT_EQ(pattern.GetColorCount(which, floss), 0) << which << " " << floss;
        }
    }
    EXPECT_EQ(pattern.GetPaletteStitchCount(200, Pattern::WholePattern, 0, 0, 0), 0);
    EXPECT_EQ(pattern.GetColorCount(5, 1), 0);
}

TEST_F(PatternCountsTest, ClothWithoutACountHasNoLengths) {
    Pattern pattern(context);
    pattern.Initialize(4, 4, 0, 14);
    pattern.SetStitch(1, 1, StitchWhole, 1, 0);
    pattern.SetBackstitchLine(Line(1, 1, 1, 2, 2, 1, 1));
    pattern.CountStitches();
    EXPECT_EQ(pattern.GetColorCount(0, 1), 1);
    EXPECT_EQ(pattern.GetColorCount(1, 1), 1);
    EXPECT_EQ(pattern.GetColorCount(3, 1), 0);
    EXPECT_EQ(pattern.GetColorCount(4, 1), 0);
}

TEST_F(PatternCountsTest, ResultsStandUntilTheNextCount) {
    Pattern pattern = Make(4, 4);
    EXPECT_EQ(pattern.GetColorCount(0, 1), 0);
    pattern.SetStitch(1, 1, StitchWhole, 1, 0);
    EXPECT_EQ(pattern.GetColorCount(0, 1), 0);
    pattern.CountStitches();
    pattern.SetStitch(2, 1, StitchWhole, 1, 0);
    EXPECT_EQ(pattern.GetColorCount(0, 1), 1);
}

/// Square by square through the readers, as the count is defined.
std::pair<std::vector<int>, std::vector<double>> CountPlainly(const Pattern& pattern,
                                                              const SquareRect& range, bool whole) {
    const auto entries = static_cast<std::size_t>(pattern.GetPalette().GetEntriesCount());
    std::vector<int> counts(entries + 1);
    std::vector<double> lengths(entries + 1);
    const double diagonal =
        std::hypot(1.0 / pattern.GetPatternClothCountX(), 1.0 / pattern.GetPatternClothCountY());
    const auto add = [&](int floss, double weight) {
        if (floss >= 1 && floss <= static_cast<int>(entries)) {
            ++counts[static_cast<std::size_t>(floss)];
            lengths[static_cast<std::size_t>(floss)] += weight * diagonal;
        }
    };
    for (int x = range.Left; x <= range.Right; ++x) {
        for (int y = range.Top; y <= range.Bottom; ++y) {
            for (int i = 0; i < pattern.GetStitchCount(x, y); ++i) {
                if (pattern.GetStitchType(x, y, i) != StitchFKnot) {
                    add(pattern.GetStitchColorIndex(x, y, i),
                        LengthWeight(pattern.GetStitchType(x, y, i)));
                }
            }
        }
    }
    pattern.FrenchKnots().ForEach([&](const FrenchKnot& knot) {
        const double kx = std::nearbyint(knot.X / 2.0);
        const double ky = std::nearbyint(knot.Y / 2.0);
        if (whole ||
            (kx >= range.Left && kx <= range.Right && ky >= range.Top && ky <= range.Bottom)) {
            add(knot.GetPaletteIndex(), 3);
        }
    });
    return {counts, lengths};
}

TEST_F(PatternCountsTest, AgreesWithReadingEverySquareOnRandomContent) {
    for (unsigned seed = 1; seed <= 8; ++seed) {
        std::mt19937 random(seed);
        Pattern pattern = Make(23, 31);
        test::Scatter(pattern, random, 900, 150, 40, 20);
        for (const SquareRect range : {SquareRect{1, 1, 23, 31}, SquareRect{4, 5, 11, 23}}) {
            const bool whole = range.Right == 23;
            pattern.CountStitches(whole ? -1 : range.Left, range.Top, range.Right, range.Bottom);
            const auto [counts, lengths] = CountPlainly(pattern, range, whole);
            for (std::size_t floss = 1; floss < counts.size(); ++floss) {
                ASSERT_EQ(pattern.GetColorCount(0, static_cast<int>(floss)), counts[floss]);
                ASSERT_NEAR(pattern.GetColorCount(4, static_cast<int>(floss)), lengths[floss],
                            1e-9);
            }
        }
    }
}

} // namespace
} // namespace zol
