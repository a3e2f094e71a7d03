// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <random>

#include "flosses/HSLFuncs.h"
#include "flosses/NearestFloss.h"

namespace zol {
namespace {

using HSLFuncs::WhatsTheDifference1;

struct Channels {
    int Red;
    int Green;
    int Blue;
};

Channels RandomColour(std::mt19937& random) {
    return {static_cast<int>(random() % 256U), static_cast<int>(random() % 256U),
            static_cast<int>(random() % 256U)};
}

NearestFloss Build(const std::vector<Channels>& colours) {
    NearestFloss nearest;
    for (const Channels& c : colours) {
        nearest.Add(MakeColour(static_cast<unsigned>(c.Red), static_cast<unsigned>(c.Green),
                               static_cast<unsigned>(c.Blue)));
    }
    return nearest;
}

int NaiveClosest(const std::vector<Channels>& colours, const Channels& sought,
                 const std::vector<std::int16_t>* used) {
    int best = 768;
    int bestIndex = 0;
    for (std::size_t i = 0; i < colours.size(); ++i) {
        if (used != nullptr && (i >= used->size() || (*used)[i] == 0)) {
            continue;
        }
        const int difference =
            WhatsTheDifference1(sought.Red, sought.Green, sought.Blue, colours[i].Red,
                                colours[i].Green, colours[i].Blue);
        if (difference < best) {
            best = difference;
            bestIndex = static_cast<int>(i) + 1;
        }
    }
    return bestIndex;
}

class NearestFlossOf : public testing::TestWithParam<int> {};

// Sizes around the vector unit's 16 lanes and the 512 of a chunk.
INSTANTIATE_TEST_SUITE_P(Sizes, NearestFlossOf,
                         testing::Values(1, 2, 15, 16, 17, 31, 200, 489, 511, 512, 513, 1300));

TEST_P(NearestFlossOf, AgreesWithTheNaiveSearch) {
    std::mt19937 random(static_cast<unsigned>(GetParam()));
    std::vector<Channels> colours(static_cast<std::size_t>(GetParam()));
    for (Channels& colour : colours) {
        colour = RandomColour(random);
    }
    const NearestFloss nearest = Build(colours);
    ASSERT_EQ(nearest.Count(), GetParam());
    for (int i = 0; i < 2000; ++i) {
        const Channels sought = RandomColour(random);
        ASSERT_EQ(nearest.GetClosest(sought.Red, sought.Green, sought.Blue),
                  NaiveClosest(colours, sought, nullptr));
    }
}

TEST_P(NearestFlossOf, AgreesWithTheNaiveSearchAmongUsedOnes) {
    std::mt19937 random(static_cast<unsigned>(GetParam()) + 99U);
    std::vector<Channels> colours(static_cast<std::size_t>(GetParam()));
    std::vector<std::int16_t> used(colours.size());
    for (std::size_t i = 0; i < colours.size(); ++i) {
        colours[i] = RandomColour(random);
        used[i] = random() % 4U == 0 ? std::int16_t{-1} : std::int16_t{0};
    }
    const NearestFloss nearest = Build(colours);
    for (int i = 0; i < 2000; ++i) {
        const Channels sought = RandomColour(random);
        ASSERT_EQ(nearest.GetClosest(sought.Red, sought.Green, sought.Blue, used),
                  NaiveClosest(colours, sought, &used));
    }
    std::vector<std::int16_t> shorter(used.begin(), used.begin() + GetParam() / 2);
    EXPECT_EQ(nearest.GetClosest(9, 99, 199, shorter),
              NaiveClosest(colours, {9, 99, 199}, &shorter));
}

TEST(NearestFloss, WithoutCandidatesThereIsNone) {
    NearestFloss nearest;
    EXPECT_EQ(nearest.GetClosest(1, 2, 3), 0);
    nearest.Add(0);
    nearest.Clear();
    EXPECT_EQ(nearest.Count(), 0);
    EXPECT_EQ(nearest.GetClosest(1, 2, 3), 0);
}

TEST(NearestFloss, TheLowestIndexWinsATie) {
    NearestFloss nearest;
    for (int i = 0; i < 600; ++i) {
        nearest.Add(i % 2 == 0 ? 0x000000U : 0xFFFFFFU);
    }
    EXPECT_EQ(nearest.GetClosest(255, 255, 255), 2);
    EXPECT_EQ(nearest.GetClosest(0, 0, 0), 1);
}

TEST(NearestFloss, ACandidateBeyondTheFastRangeIsStillFound) {
    NearestFloss nearest;
    nearest.Add(0x000000); // 765 away from white
    nearest.Add(0x0000FF); // 510 away
    EXPECT_EQ(nearest.GetClosest(255, 255, 255), 2);
}

TEST(NearestFloss, NoneIsUsedGivesNone) {
    NearestFloss nearest;
    nearest.Add(0x123456);
    EXPECT_EQ(nearest.GetClosest(0x56, 0x34, 0x12, {0}), 0);
    EXPECT_EQ(nearest.GetClosest(0x56, 0x34, 0x12, {}), 0);
    EXPECT_EQ(nearest.GetClosest(0x56, 0x34, 0x12, {1}), 1);
}

} // namespace
} // namespace zol
