// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/LineShapes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace zol {
namespace {

using namespace LineShapes;

constexpr Bounds Box{0, 0, 100, 100};

struct ClipCase {
    const char* name;
    TwipsPoint start, end;
    bool remains;
    TwipsPoint cutStart, cutEnd;
};

class ClipLine : public ::testing::TestWithParam<ClipCase> {};

TEST_P(ClipLine, CutsToTheRectangle) {
    ClipCase c = GetParam();
    EXPECT_EQ(ClipLineToRect(c.start, c.end, Box), c.remains);
    if (c.remains) {
        EXPECT_EQ(c.start, c.cutStart);
        EXPECT_EQ(c.end, c.cutEnd);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ClipLine,
    ::testing::Values(ClipCase{"Inside", {10, 20}, {30, 40}, true, {10, 20}, {30, 40}},
                      ClipCase{"Beside", {110, 20}, {130, 40}, false, {}, {}},
                      ClipCase{"Above", {10, -20}, {30, -4}, false, {}, {}},
                      ClipCase{"PastACorner", {-10, 5}, {5, -10}, false, {}, {}},
                      ClipCase{"LeftHalf", {-50, 0}, {50, 100}, true, {0, 50}, {50, 100}},
                      ClipCase{"BothEnds", {-50, 50}, {150, 50}, true, {0, 50}, {100, 50}},
                      ClipCase{"Backwards", {150, 50}, {-50, 50}, true, {100, 50}, {0, 50}},
                      ClipCase{"Upright", {40, -10}, {40, 300}, true, {40, 0}, {40, 100}},
                      ClipCase{"OnTheEdge", {100, -10}, {100, 50}, true, {100, 0}, {100, 50}},
                      ClipCase{"Truncated", {-10, 0}, {20, 10}, true, {0, 3}, {20, 10}},
                      ClipCase{"Corners", {-100, -50}, {300, 150}, true, {0, 0}, {100, 50}},
                      ClipCase{"NoLengthInside", {7, 8}, {7, 8}, true, {7, 8}, {7, 8}},
                      ClipCase{"NoLengthOutside", {-7, 8}, {-7, 8}, false, {}, {}}),
    [](const auto& entry) { return std::string(entry.param.name); });

TEST(LineShapes, TurnsAgainstTheClockAndTruncates) {
    const Rotation quarter({10, 10}, 90);
    EXPECT_EQ(quarter.Map(20, 10), QPoint(10, 0));
    const Rotation slant({0, 100}, 30);
    EXPECT_EQ(slant.Map(10, 100), QPoint(8, 95)); // 8.66, 95.0
}

TEST(LineShapes, AnglesRunAgainstTheClock) {
    EXPECT_NEAR(AngleOf({0, 0}, {10, -10}), 45, 1e-4);
    EXPECT_NEAR(AngleOf({0, 0}, {10, 10}), 315, 1e-4);
    EXPECT_NEAR(AngleOf({0, 0}, {10, 0}), 360, 1e-9);
    EXPECT_EQ(AngleOf({5, 0}, {5, 9}), 270);
    EXPECT_EQ(AngleOf({5, 9}, {5, 0}), 90);
    EXPECT_EQ(AngleOf({5, 5}, {5, 5}), 270);
}

TEST(LineShapes, DashesFillThreeQuartersOfTheirStep) {
    const std::vector<QLine> dashes = Marks(Mark::Dash, {0, 50}, {100, 50}, 10, 10);
    ASSERT_EQ(dashes.size(), 7U); // a step of 15
    EXPECT_EQ(dashes[0], QLine(0, 50, 11, 50));
    EXPECT_EQ(dashes[1], QLine(15, 50, 26, 50));
    EXPECT_EQ(dashes[6], QLine(90, 50, 100, 50)) << "cut at the end";
}

TEST(LineShapes, TiesStandAcrossEveryHalfSquare) {
    const std::vector<QLine> ties = Marks(Mark::Tie, {0, 50}, {100, 50}, 10, 10);
    ASSERT_EQ(ties.size(), 21U);
    EXPECT_EQ(ties[1], QLine(5, 47, 5, 53));
}

TEST(LineShapes, DotsAreAThirdOfTheirStep) {
    const std::vector<QLine> dots = Marks(Mark::Dot, {0, 50}, {70, 50}, 20, 20);
    ASSERT_EQ(dots.size(), 5U); // a step of 15
    EXPECT_EQ(dots[1], QLine(15, 50, 19, 50));
}

TEST(LineShapes, CrossesStandInTheMiddleOfDashes) {
    const std::vector<QLine> crosses = Marks(Mark::Cross, {0, 50}, {60, 50}, 10, 10);
    ASSERT_EQ(crosses.size(), 4U);
    EXPECT_EQ(crosses[0], QLine(5, 46, 5, 54)); // at 5.625, four to each side
}

TEST(LineShapes, LinesRunFromLeftToRightWhicheverWayTheyWereDrawn) {
    EXPECT_EQ(Marks(Mark::Dash, {0, 50}, {100, 30}, 10, 10),
              Marks(Mark::Dash, {100, 30}, {0, 50}, 10, 10));
}

TEST(LineShapes, UprightLinesDoNotLean) {
    for (const QPoint end : {QPoint(40, 300), QPoint(40, -300)}) {
        for (const QLine& dash : Marks(Mark::Dash, {40, 10}, end, 10, 10)) {
            EXPECT_EQ(dash.x1(), 40);
            EXPECT_EQ(dash.x2(), 40);
        }
    }
}

TEST(LineShapes, WhatIsOutOfSightIsLeftOutAndTheRestStays) {
    const std::vector<QLine> all = Marks(Mark::Dash, {0, 0}, {30000, 20000}, 10, 10);
    const QRect window(15000, 10000, 200, 100);
    const std::vector<QLine> seen = Marks(Mark::Dash, {0, 0}, {30000, 20000}, 10, 10, window);
    EXPECT_LT(seen.size(), 60U);
    for (const QLine& dash : all) {
        if (window.contains(dash.p1()) || window.contains(dash.p2())) {
            EXPECT_NE(std::find(seen.begin(), seen.end(), dash), seen.end());
        }
    }
}

TEST(LineShapes, SquigglesAreWholeWaves) {
    for (int length = 0; length < 40; ++length) {
        const std::vector<QPoint> points = Squiggle({0, 50}, {length, 50}, 10);
        EXPECT_EQ(points.size() % 3, 1U) << length;
        if (points.size() > 1) {
            EXPECT_EQ(points.back(), QPoint(length, 50));
        }
    }
    const std::vector<QPoint> wave = Squiggle({0, 50}, {100, 50}, 20);
    EXPECT_EQ(wave[1], QPoint(3, 65)); // a step of 3, three quarters of a square high
    EXPECT_EQ(wave[2], QPoint(6, 35));
    EXPECT_EQ(wave[3], QPoint(9, 50));
}

TEST(LineShapes, LinesOfNoLengthHaveMarksButNoTrouble) {
    EXPECT_EQ(Squiggle({5, 5}, {5, 5}, 10).size(), 1U);
    EXPECT_LE(Marks(Mark::Dash, {5, 5}, {5, 5}, 10, 10).size(), 1U);
    EXPECT_LE(Marks(Mark::Cross, {5, 5}, {5, 5}, 10, 10).size(), 1U);
    EXPECT_LE(Marks(Mark::Dot, {5, 5}, {5, 5}, 0, 0).size(), 1U);
}

} // namespace
} // namespace zol
