// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <random>

#include "flosses/ExchangeSort.h"

namespace zol {
namespace {

TEST(ExchangeSort, EqualKeysThatNothingPassesStay) {
    EXPECT_EQ(ExchangeOrder(std::vector<int>{5, 5, 5}), (std::vector<int>{0, 1, 2}));
}

TEST(ExchangeSort, IsNotStable) {
    // 2a 2b 1: the first exchange carries 2a behind 2b.
    EXPECT_EQ(ExchangeOrder(std::vector<int>{2, 2, 1}), (std::vector<int>{2, 1, 0}));
}

TEST(ExchangeSort, AnEmptyListHasAnEmptyOrder) {
    EXPECT_TRUE(ExchangeOrder(std::vector<int>{}).empty());
}

TEST(ExchangeSort, RanksGiveTheOrderOfTheKeysThemselves) {
    std::mt19937 random(7);
    for (int round = 0; round < 50; ++round) {
        std::vector<double> keys(60);
        for (double& key : keys) {
            key = static_cast<double>(random() % 20U) / 4;
        }
        std::vector<int> places(keys.size());
        std::iota(places.begin(), places.end(), 0);
        for (std::size_t i = 0; i < places.size(); ++i) {
            for (std::size_t j = i + 1; j < places.size(); ++j) {
                if (keys[static_cast<std::size_t>(places[i])] >
                    keys[static_cast<std::size_t>(places[j])]) {
                    std::swap(places[i], places[j]);
                }
            }
        }
        ASSERT_EQ(ExchangeOrder(keys), places);
    }
}

TEST(ExchangeSort, KeysThatAllDifferAscend) {
    EXPECT_EQ(ExchangeOrder(std::vector<double>{4, -1, 2.5, 0}), (std::vector<int>{1, 3, 2, 0}));
}

} // namespace

} // namespace zol
