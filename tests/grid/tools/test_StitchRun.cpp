// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/StitchRun.h"

#include <gtest/gtest.h>

namespace zol {
namespace {

using Squares = std::vector<SquarePos>;

TEST(StitchRun, DiagonalHasOneSquareARow) {
    EXPECT_EQ(StitchRun({5, 5}, {3, 7}), (Squares{{5, 5}, {4, 6}, {3, 7}}));
}

TEST(StitchRun, FlatStrokeMakesStepsOfEqualLength) {
    // Six columns in two rows: three squares each, and the square where a step begins twice.
    EXPECT_EQ(StitchRun({1, 1}, {6, 2}),
              (Squares{{1, 1}, {2, 1}, {3, 1}, {4, 1}, {4, 2}, {5, 2}, {6, 2}}));
}

TEST(StitchRun, SteepStrokeUpwardsStaysBetweenItsEnds) {
    EXPECT_EQ(StitchRun({2, 4}, {2, 1}), (Squares{{2, 4}, {2, 3}, {2, 2}, {2, 1}}));
}

} // namespace
} // namespace zol
