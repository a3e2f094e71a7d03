// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/GridViewport.h"

#include <gtest/gtest.h>

#include "grid/painting/GridLines.h"
#include "grid/painting/GridView.h"

namespace zol {
namespace {

using namespace GridViewport;

TEST(GridViewport, SquareTwipsIsTheTrueSizeRounded) {
    EXPECT_EQ(SquareTwips(100, 14), 103);
    EXPECT_EQ(SquareTwips(100, 18), 80);
    EXPECT_EQ(SquareTwips(250, 16), 225);
    EXPECT_EQ(SquareTwips(1, 40), 0);
}

TEST(GridViewport, XToColumnCountsFromOneAndMayLeaveThePattern) {
    EXPECT_EQ(XToColumn(0, 103), 1);
    EXPECT_EQ(XToColumn(102.4, 103), 1);
    EXPECT_EQ(XToColumn(102.6, 103), 2);
    EXPECT_EQ(YToRow(103 * 5000.0, 103), 5001);
    EXPECT_EQ(XToColumn(-206, 103), -1);
}

TEST(GridViewport, SquaresWithoutSizeStillMap) {
    EXPECT_EQ(XToColumn(7, 0), 8);
    EXPECT_EQ(GetSquareRegion(7, 7, 0, 0, false), 1);
}

TEST(GridViewport, RegionsAreThirdsWithTheHoleGoingRightAndDown) {
    // A square of 200 twips: one percent is two twips.
    EXPECT_EQ(GetSquareRegion(66, 66, 200, 200, false), 1);
    EXPECT_EQ(GetSquareRegion(67, 0, 200, 200, false), 3); // 33.5 percent
    EXPECT_EQ(GetSquareRegion(0, 67, 200, 200, false), 7);
    EXPECT_EQ(GetSquareRegion(68, 68, 200, 200, false), 5);
    EXPECT_EQ(GetSquareRegion(132, 132, 200, 200, false), 5);
    EXPECT_EQ(GetSquareRegion(133, 133, 200, 200, false), 9);
    EXPECT_EQ(GetSquareRegion(200 * 7 + 100.0, 199, 200, 200, false), 8);
}

TEST(GridViewport, FourCornersSplitsAcrossAndDownByDifferentLimits) {
    EXPECT_EQ(GetSquareRegion(101, 100, 200, 200, true), 1); // 50.5 across, 50 down
    EXPECT_EQ(GetSquareRegion(102, 100, 200, 200, true), 3); // 51 across
    EXPECT_EQ(GetSquareRegion(101, 101, 200, 200, true), 7); // 50.5 down
    EXPECT_EQ(GetSquareRegion(150, 150, 200, 200, true), 9);
}

TEST(GridViewport, SquaresShareTheirSnappedEdges) {
    const GridScale scale = GridScale::ForZoom(100, 14, 14);
    // round(102.857) = 103, less 103 mod 15.
    EXPECT_EQ(GetGridPoint(2, 1, 0, 0, 1, scale).X, 90);
    EXPECT_EQ(GetGridPoint(1, 1, 0, 0, 9, scale).X, 90);
    EXPECT_EQ(GetGridPoint(1, 1, 0, 0, 5, scale), (TwipsPoint{45, 45}));
    EXPECT_EQ(GetGridPoint(1, 2, 0, 0, 2, scale), (TwipsPoint{45, 90}));
}

TEST(GridViewport, CachedPointsEqualFreshOnes) {
    const GridScale scale = GridScale::ForZoom(137, 14, 18);
    GridPointCache cache(scale, 33, 47);
    for (const int column : {1, 2, 2, 5, 1}) {
        for (const int row : {3, 3, 4, 1}) {
            for (int region = 1; region <= 9; ++region) {
                EXPECT_EQ(cache.GetGridPoint(column, row, region),
                          GetGridPoint(column, row, 33, 47, region, scale));
            }
        }
    }
}

TEST(GridViewport, UnevenClothGivesOblongSquares) {
    const GridScale scale = GridScale::ForZoom(200, 14, 18);
    EXPECT_DOUBLE_EQ(scale.SquareTwipsX, 2 * 1440.0 / 14);
    EXPECT_DOUBLE_EQ(scale.SquareTwipsY, 2 * 1440.0 / 18);
    EXPECT_GT(scale.SquareTwipsX, scale.SquareTwipsY);
    EXPECT_EQ(GridScale::ForPicture(9, 14, 18).SquareTwipsY, 7 * 15.0);
    EXPECT_EQ(GridScale::ForPrint(10, 14, 18, 1, 1).SquareTwipsY, 112);
}

TEST(GridViewport, ZoomOneKeepsEverySquareInOrder) {
    const GridScale scale = GridScale::ForZoom(1, 14, 14);
    int last = 0;
    for (int column = 1; column <= 999; ++column) {
        const SquareEdges edges = EdgesOf(column, scale.SquareTwipsX, 0, scale.TwipsPerPixelX);
        EXPECT_EQ(edges.First, last);
        EXPECT_GE(edges.Last, edges.First);
        last = edges.Last;
    }
    EXPECT_EQ(XToColumn(998.0 * SquareTwips(1, 14), SquareTwips(1, 14)), 999);
}

TEST(GridViewport, GridSizeFollowsTheClothAndTheZoom) {
    EXPECT_EQ(GetGridWidthTwips(140, 14, 100), 14400);
    EXPECT_EQ(GetGridHeightTwips(9, 18, 250), 1800);
}

TEST(GridViewport, ZoomStepsAreRound) {
    const int table[][3] = {{7, 10, 7},     {10, 20, 10},    {11, 20, 10},     {55, 60, 50},
                            {100, 200, 90}, {150, 200, 100}, {900, 1000, 800}, {1000, 1000, 900}};
    for (const auto& row : table) {
        EXPECT_EQ(ZoomIn(row[0]), row[1]) << row[0];
        EXPECT_EQ(ZoomOut(row[0]), row[2]) << row[0];
    }
}

TEST(GridViewport, FittingASmallPatternZoomsInUpToTheLimit) {
    const SquareRect rect{1, 1, 10, 10};
    EXPECT_EQ(ZoomToRect(rect, {14410, 14410}, 14, 14), 1400);
    EXPECT_EQ(ClampZoom(ZoomToRect(rect, {14410, 14410}, 14, 14)), 1000);
    EXPECT_EQ(ZoomToRect(rect, {14410, 2057}, 14, 14), 199);
    EXPECT_EQ(ClampZoom(ZoomToRect({1, 1, 999, 999}, {500, 500}, 14, 14)), 1);
}

TEST(GridViewport, ClothCountsOfZeroDoNoHarm) {
    EXPECT_EQ(SquareTwips(100, 0), 1440);
    EXPECT_EQ(GetGridWidthTwips(2, 0, 100), 2880);
    EXPECT_EQ(GridScale::ForZoom(100, 0, 0).SquareTwipsX, 1440);
}

class PaintedColumns : public ::testing::TestWithParam<int> {};

TEST_P(PaintedColumns, ThePixelOfASquareLeadsBackToIt) {
    ProgramContext context;
    Pattern pattern(context);
    pattern.Initialize(999, 1, 14, 14);
    GridView view;
    view.Source = &pattern;
    view.Scale = GridScale::ForZoom(GetParam(), 14, 14);
    view.Options.GridLines = false;
    const SquareSpans spans = SquareSpans::Columns(view, 1, 999);
    const int square = SquareTwips(GetParam(), 14);
    int next = 0;
    for (int column = 1; column <= 999; ++column) {
        ASSERT_EQ(spans.First(column), next) << "columns leave no gap";
        next = spans.Last(column) + 1;
        const double width = next - spans.First(column);
        for (int pixel = spans.First(column); pixel < next; ++pixel) {
            const double fraction = (pixel - spans.First(column)) / width;
            ASSERT_EQ(XToColumn((column - 1.0) * square + fraction * square, square), column);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Zooms, PaintedColumns,
                         ::testing::Values(1, 7, 13, 25, 33, 50, 99, 100, 137, 250, 400, 777,
                                           1000));

} // namespace
} // namespace zol
