// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/StitchShapes.h"

#include <gtest/gtest.h>

#include "grid/painting/KnotShapes.h"
#include "grid/painting/StitchLayers.h"
#include "model/ZOLTypes.h"

namespace zol {
namespace {

using Points = QList<QPointF>;

TEST(StitchShapes, PointsOfEveryKind) {
    // Twelve pixels a side: a sixth is 2, the middle is 6.
    const PixelRect square{0, 0, 11, 11};
    const auto points = [&](int kind) { return Points(StitchShapes::Polygon(kind, square)); };
    EXPECT_EQ(points(StitchWhole), (Points{{0, 0}, {11, 0}, {11, 11}, {0, 11}}));
    EXPECT_EQ(points(StitchUL3Q), (Points{{0, 0}, {11, 0}, {0, 11}}));
    EXPECT_EQ(points(StitchUR3Q), (Points{{0, 0}, {11, 0}, {11, 11}}));
    EXPECT_EQ(points(StitchLL3Q), (Points{{0, 0}, {11, 11}, {0, 11}}));
    EXPECT_EQ(points(StitchLR3Q), (Points{{11, 0}, {11, 11}, {0, 11}}));
    EXPECT_EQ(points(StitchTBH), (Points{{0, 2}, {0, 0}, {2, 0}, {11, 9}, {11, 11}, {9, 11}}));
    EXPECT_EQ(points(StitchBTH), (Points{{0, 11}, {0, 9}, {9, 0}, {11, 0}, {11, 2}, {2, 11}}));
    EXPECT_EQ(points(StitchULQ), (Points{{0, 2}, {0, 0}, {2, 0}, {6, 4}, {6, 6}, {4, 6}}));
    EXPECT_EQ(points(StitchURQ), (Points{{6, 6}, {6, 4}, {9, 0}, {11, 0}, {11, 2}, {8, 6}}));
    EXPECT_EQ(points(StitchLLQ), (Points{{0, 11}, {0, 9}, {4, 6}, {6, 6}, {6, 8}, {2, 11}}));
    EXPECT_EQ(points(StitchLRQ), (Points{{6, 8}, {6, 6}, {8, 6}, {11, 9}, {11, 11}, {9, 11}}));
    EXPECT_TRUE(points(StitchFKnot).isEmpty());
    EXPECT_TRUE(points(NoStitch).isEmpty());
}

TEST(StitchShapes, SymbolsLieInTheirPartOfTheSquare) {
    const PixelRect square{10, 20, 30, 40};
    EXPECT_EQ(StitchShapes::SymbolRect(StitchWhole, square), square);
    EXPECT_EQ(StitchShapes::SymbolRect(StitchBTH, square), square);
    EXPECT_EQ(StitchShapes::SymbolRect(StitchUL3Q, square), (PixelRect{10, 20, 20, 30}));
    EXPECT_EQ(StitchShapes::SymbolRect(StitchURQ, square), (PixelRect{20, 20, 30, 30}));
    EXPECT_EQ(StitchShapes::SymbolRect(StitchLL3Q, square), (PixelRect{10, 30, 20, 40}));
    EXPECT_EQ(StitchShapes::SymbolRect(StitchLRQ, square), (PixelRect{20, 30, 30, 40}));
}

TEST(StitchShapes, ImagePixelsOfPartStitches) {
    EXPECT_TRUE(StitchShapes::ImagePixelBelongs(StitchUL3Q, 5, 5, 10, 10));
    EXPECT_FALSE(StitchShapes::ImagePixelBelongs(StitchUL3Q, 6, 5, 10, 10));
    EXPECT_TRUE(StitchShapes::ImagePixelBelongs(StitchUR3Q, 5, 5, 10, 10));
    EXPECT_FALSE(StitchShapes::ImagePixelBelongs(StitchUR3Q, 4, 5, 10, 10));
    EXPECT_TRUE(StitchShapes::ImagePixelBelongs(StitchLL3Q, 4, 5, 10, 10));
    EXPECT_TRUE(StitchShapes::ImagePixelBelongs(StitchLR3Q, 6, 5, 10, 10));
    // A half stitch is the band within forty percent of its diagonal.
    EXPECT_TRUE(StitchShapes::ImagePixelBelongs(StitchTBH, 0, 3, 10, 10));
    EXPECT_FALSE(StitchShapes::ImagePixelBelongs(StitchTBH, 0, 4, 10, 10));
    EXPECT_TRUE(StitchShapes::ImagePixelBelongs(StitchBTH, 5, 5, 10, 10));
    EXPECT_FALSE(StitchShapes::ImagePixelBelongs(StitchBTH, 0, 0, 10, 10));
}

TEST(StitchLayers, ThreadLegsOfEveryKind) {
    const auto legs = [](int kind) {
        std::vector<int> kinds;
        for (const StitchLayer& layer : LayersOf(ShowColorStitch, kind)) {
            kinds.push_back(layer.Kind);
        }
        return kinds;
    };
    EXPECT_EQ(legs(StitchWhole), (std::vector<int>{StitchTBH, StitchBTH}));
    EXPECT_EQ(legs(StitchUL3Q), (std::vector<int>{StitchBTH, StitchULQ}));
    EXPECT_EQ(legs(StitchUR3Q), (std::vector<int>{StitchTBH, StitchURQ}));
    EXPECT_EQ(legs(StitchLL3Q), (std::vector<int>{StitchTBH, StitchLLQ}));
    EXPECT_EQ(legs(StitchLR3Q), (std::vector<int>{StitchBTH, StitchLRQ}));
    EXPECT_EQ(legs(StitchURQ), (std::vector<int>{StitchURQ}));
}

TEST(StitchLayers, OnlyPartsFromTwoToSevenAreOutlined) {
    for (int kind = StitchWhole; kind <= StitchLRQ; ++kind) {
        bool outlined = false;
        for (const StitchLayer& layer : LayersOf(ShowBlackSymbols, kind)) {
            outlined = outlined || layer.What == StitchLayer::Paint::Outline;
        }
        EXPECT_EQ(outlined, kind >= StitchUL3Q && kind <= StitchBTH) << kind;
    }
}

TEST(StitchLayers, UnknownKindsAndStylesPaintNothing) {
    EXPECT_TRUE(LayersOf(ShowColorSquares, StitchCustom).empty());
    EXPECT_TRUE(LayersOf(ShowColorSquares, 0).empty());
    EXPECT_TRUE(LayersOf(7, StitchWhole).empty());
    EXPECT_TRUE(LayersOf(-1, StitchWhole).empty());
}

class KnotShapesTest : public ::testing::Test {
protected:
    KnotShapesTest() : pattern(context) {
        pattern.Initialize(4, 4, 14, 14);
        view.Source = &pattern;
        view.Scale = GridScale::ForPicture(20, 14, 14);
    }

    ProgramContext context;
    Pattern pattern;
    GridView view;
};

TEST_F(KnotShapesTest, PenIsHalfALine) {
    EXPECT_EQ(KnotShapes::PenWidth(view), 3); // 30 percent of 20, halved
    view.Scale = GridScale::ForPicture(3, 14, 14);
    EXPECT_EQ(KnotShapes::PenWidth(view), 1);
}

TEST_F(KnotShapesTest, BoxesOfAllPositions) {
    const PixelRect boxes[] = {{11, 11, 30, 30}, {21, 11, 40, 30}, {31, 11, 50, 30},
                               {11, 21, 30, 40}, {21, 21, 40, 40}, {31, 21, 50, 40},
                               {11, 31, 30, 50}, {21, 31, 40, 50}, {31, 31, 50, 50}};
    for (int position = 1; position <= 9; ++position) {
        EXPECT_EQ(KnotShapes::Box(view, 2, 2, position), boxes[position - 1]) << position;
    }
}

TEST_F(KnotShapesTest, TheFirstKnotReachesOutOfThePattern) {
    const PixelRect box = KnotShapes::Box(view, 1, 1, 1);
    EXPECT_LT(box.Left, 0);
    EXPECT_EQ(box.Right, 10);
}

TEST_F(KnotShapesTest, OvalsAreTurned) {
    const PixelRect box{0, 0, 70, 70};
    const auto bounds = [&](int orientation) {
        return KnotShapes::Curve(box, orientation).boundingRect();
    };
    EXPECT_LT(bounds(KnotVerticalOval).width(), bounds(KnotVerticalOval).height());
    EXPECT_GT(bounds(KnotHorizontalOval).width(), bounds(KnotHorizontalOval).height());
    EXPECT_NEAR(bounds(KnotNormal).width(), bounds(KnotNormal).height(), 1e-9);
    // The top of an upper left diagonal leans to the left.
    const QPainterPath left = KnotShapes::Curve(box, KnotUpperLeftDiagonal);
    EXPECT_TRUE(left.contains(QPointF(24, 14)));
    EXPECT_FALSE(left.contains(QPointF(46, 14)));
    const QPainterPath right = KnotShapes::Curve(box, KnotUpperRightDiagonal);
    EXPECT_TRUE(right.contains(QPointF(46, 14)));
}

TEST_F(KnotShapesTest, TheSymbolHasThreeFifthsOfTheBox) {
    EXPECT_EQ(KnotShapes::SymbolRect({10, 10, 29, 29}), (PixelRect{13, 13, 25, 25}));
}

} // namespace
} // namespace zol
