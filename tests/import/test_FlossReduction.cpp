// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/FlossReduction.h"

#include <gtest/gtest.h>

#include "import/PlainRecolor.h"
#include "model/RunTimeError.h"

using namespace zol;

namespace {

constexpr Colour Grey(unsigned level) {
    return MakeColour(level, level, level);
}

/// Candidates in play that have won so many pixels.
struct Won {
    Colour colour;
    std::int32_t pixels;
};

ImportCandidates CandidatesOf(const std::vector<Won>& all) {
    ImportCandidates candidates;
    for (const Won& won : all) {
        candidates.Add(won.colour);
        candidates.ColorUsed.back() = ImportCandidates::InPlay;
        candidates.ColorPixels.back() = won.pixels;
    }
    return candidates;
}

void ReduceOnce(ImportCandidates& candidates) {
    FlossReduction(candidates).ReduceColors();
}

TEST(FlossReduction, AFlossUnderOnePercentGoesFirstAndItsPixelsGoToNobody) {
    ImportCandidates candidates = CandidatesOf({{Grey(0), 500}, {Grey(255), 5}, {Grey(1), 500}});
    ReduceOnce(candidates);
    EXPECT_EQ(candidates.ColorUsed, (std::vector<std::int16_t>{0, -1, 0, -1}));
    EXPECT_EQ(candidates.ColorPixels, (std::vector<std::int32_t>{0, 500, 5, 500}));
}

TEST(FlossReduction, OfEqualRaritiesTheLowestNumberGoes) {
    ImportCandidates candidates = CandidatesOf({{Grey(0), 900}, {Grey(200), 3}, {Grey(100), 3}});
    ReduceOnce(candidates);
    EXPECT_EQ(candidates.ColorUsed, (std::vector<std::int16_t>{0, -1, 0, -1}));
}

TEST(FlossReduction, ExactlyOnePercentIsNoRarity) {
    ImportCandidates candidates = CandidatesOf({{Grey(0), 99}, {Grey(255), 1}});
    ReduceOnce(candidates); // 100 / 100 is not above 1: the nearest pair, of which the lesser goes
    EXPECT_EQ(candidates.ColorUsed, (std::vector<std::int16_t>{0, -1, 0}));
    EXPECT_EQ(candidates.ColorPixels, (std::vector<std::int32_t>{0, 100, 0}));
}

TEST(FlossReduction, AFlossOf999PixelsIsNeverARarity) {
    ImportCandidates candidates =
        CandidatesOf({{Grey(0), 500000}, {Grey(255), 999}, {Grey(4), 400000}});
    ReduceOnce(candidates);
    EXPECT_EQ(candidates.ColorUsed, (std::vector<std::int16_t>{0, -1, -1, 0}));
    EXPECT_EQ(candidates.ColorPixels, (std::vector<std::int32_t>{0, 900000, 999, 0}));

    candidates = CandidatesOf({{Grey(0), 500000}, {Grey(255), 998}, {Grey(4), 400000}});
    ReduceOnce(candidates);
    EXPECT_EQ(candidates.ColorUsed, (std::vector<std::int16_t>{0, -1, 0, -1}));
}

TEST(FlossReduction, OfTheNearestPairTheOneWithFewerPixelsGoes) {
    ImportCandidates candidates = CandidatesOf({{Grey(10), 40}, {Grey(200), 20}, {Grey(205), 30}});
    ReduceOnce(candidates);
    EXPECT_EQ(candidates.ColorUsed, (std::vector<std::int16_t>{0, -1, 0, -1}));
    EXPECT_EQ(candidates.ColorPixels, (std::vector<std::int32_t>{0, 40, 0, 50}));
}

TEST(FlossReduction, ATieInPixelsRemovesTheOuterLoopsCandidate) {
    ImportCandidates candidates = CandidatesOf({{Grey(200), 30}, {Grey(205), 30}});
    ReduceOnce(candidates);
    EXPECT_EQ(candidates.ColorUsed, (std::vector<std::int16_t>{0, 0, -1}));
    EXPECT_EQ(candidates.ColorPixels, (std::vector<std::int32_t>{0, 0, 60}));
}

TEST(FlossReduction, WithoutAPairItFaultsLikeAnIndexOutOfRange) {
    ImportCandidates candidates = CandidatesOf({{Grey(100), 10}});
    try {
        ReduceOnce(candidates);
        FAIL() << "nothing could go";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), ErrSubscript);
        EXPECT_STREQ(error.what(), "Subscript out of range");
    }
}

TEST(FlossReduction, AgreesWithPlainLoopsCallByCall) {
    test::Random32 random(7);
    for (int round = 0; round < 60; ++round) {
        std::vector<Colour> colours;
        const unsigned count = 2 + random() % 60;
        for (unsigned i = 0; i < count; ++i) {
            // Few levels, so that distances tie often.
            colours.push_back(MakeColour(random() % 5 * 60, random() % 5 * 60, random() % 5 * 60));
        }
        test::PlainRecolor plain({}, colours);
        std::vector<Won> won;
        for (unsigned i = 0; i < count; ++i) {
            const auto pixels = static_cast<std::int32_t>(random() % (round % 2 == 0 ? 5 : 3000));
            won.push_back({colours[i], pixels});
            plain.Used(static_cast<int>(i) + 1) = -1;
            plain.Pixels(static_cast<int>(i) + 1) = pixels;
        }
        ImportCandidates candidates = CandidatesOf(won);
        FlossReduction reduction(candidates);
        for (unsigned left = count; left > 1; --left) {
            plain.Reduce();
            reduction.ReduceColors();
            ASSERT_EQ(candidates.ColorUsed, plain.colorUsed) << round << " " << left;
            ASSERT_EQ(candidates.ColorPixels, plain.colorPixels) << round << " " << left;
        }
    }
}

} // namespace
