// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/GridGeometry.h"

#include <gtest/gtest.h>

#include <QImage>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <tuple>

#include "grid/painting/GridPainter.h"

namespace zol {
namespace {

constexpr int Wide = 999;

/// A pattern of one cloth, and squares of 200 flosses in turn, so that a column is known by its
/// colour.
class Cloth {
public:
    static constexpr int Flosses = 200;

    Cloth(int width, int height, int countX = 14, int countY = 14) : pattern(context) {
        pattern.Initialize(width, height, countX, countY);
    }

    static Colour FlossOf(int number) {
        return MakeColour(static_cast<unsigned>(20 + number), static_cast<unsigned>(230 - number),
                          77);
    }
    void FillColumns() {
        pattern.GetPalette().ClearPalette();
        for (int number = 1; number <= Flosses; ++number) {
            pattern.GetPalette().AddPaletteEntry(FlossOf(number), std::to_string(number), "Floss",
                                                 "DMC", "!", 2, 2, 0, number, 0, "DMC");
        }
        for (int x = 1; x <= pattern.GetPatternWidth(); ++x) {
            for (int y = 1; y <= pattern.GetPatternHeight(); ++y) {
                pattern.SetStitch(x, y, StitchWhole, FlossNumber(x), 5);
            }
        }
    }
    static int FlossNumber(int column) { return (column - 1) % Flosses + 1; }

    ProgramContext context;
    Pattern pattern;
};

using Screen = std::tuple<int, double>;

class EveryScreen : public ::testing::TestWithParam<Screen> {
protected:
    [[nodiscard]] static int Zoom() { return std::get<0>(GetParam()); }
    [[nodiscard]] static double Ratio() { return std::get<1>(GetParam()); }
};

TEST_P(EveryScreen, EdgesNeverGoBackAndEndInTheGridsSize) {
    const Cloth cloth(Wide, 3);
    const GridGeometry geometry(cloth.pattern, Zoom(), Ratio());
    EXPECT_EQ(geometry.LeftOf(1), 0);
    for (int column = 1; column <= Wide; ++column) {
        ASSERT_LE(geometry.LeftOf(column), geometry.LeftOf(column + 1)) << column;
    }
    EXPECT_EQ(geometry.LeftOf(Wide + 1), geometry.GridSize().width());
}

TEST_P(EveryScreen, ErrorsOfTheEdgesNeverAddUp) {
    const Cloth cloth(Wide, 3);
    const GridGeometry geometry(cloth.pattern, Zoom(), Ratio());
    const double pixel = geometry.Scale().TwipsPerPixelX;
    EXPECT_NEAR(pixel, 15 / Ratio(), 0.005);
    for (int column = 1; column <= Wide + 1; ++column) {
        const double ideal = (column - 1) * geometry.Scale().SquareTwipsX / pixel;
        // Cut to a pixel, after the edge was rounded to a twip.
        ASSERT_LE(geometry.LeftOf(column), ideal + 0.51 / pixel) << column;
        ASSERT_GT(geometry.LeftOf(column), ideal - 1 - 0.51 / pixel) << column;
    }
}

TEST_P(EveryScreen, ASquareHoldsEachOfItsPixels) {
    const Cloth cloth(Wide, Wide, 14, 18);
    const GridGeometry geometry(cloth.pattern, Zoom(), Ratio());
    for (int index = 1; index <= Wide; ++index) {
        const int right = geometry.LeftOf(index + 1);
        for (int x = geometry.LeftOf(index); x < right; ++x) {
            ASSERT_EQ(geometry.ColumnAt(x), index) << x;
            ASSERT_EQ(geometry.ColumnAt(x + 0.99), index) << x;
        }
        const int bottom = geometry.TopOf(index + 1);
        for (int y = geometry.TopOf(index); y < bottom; ++y) {
            ASSERT_EQ(geometry.RowAt(y), index) << y;
        }
    }
}

TEST_P(EveryScreen, OutsideThePatternColumnsGoOnCounting) {
    const Cloth cloth(Wide, 3);
    const GridGeometry geometry(cloth.pattern, Zoom(), Ratio());
    for (int x = -60; x < 0; ++x) {
        const int column = geometry.ColumnAt(x);
        ASSERT_LT(column, 1) << x;
        ASSERT_LE(geometry.LeftOf(column), x);
        ASSERT_GT(geometry.LeftOf(column + 1), x);
    }
    const int end = geometry.GridSize().width();
    for (int x = end; x < end + 60; ++x) {
        ASSERT_GT(geometry.ColumnAt(x), Wide) << x;
    }
}

TEST_P(EveryScreen, ThePointerFindsTheColumnThatIsPaintedThere) {
    Cloth cloth(Wide, 1);
    cloth.FillColumns();
    const GridGeometry geometry(cloth.pattern, Zoom(), Ratio());
    GridView view;
    view.Source = &cloth.pattern;
    view.Scale = geometry.Scale();
    view.Options.GridLines = false;
    GridPainter painter;
    const int width = geometry.GridSize().width();
    // At the smallest zooms one row has no pixel of its own.
    const int height = std::max(1, geometry.GridSize().height());
    constexpr int stretch = 4096;
    for (int left = 0; left < width; left += stretch) {
        QImage image(std::min(stretch, width - left), height, QImage::Format_RGB32);
        image.fill(Qt::magenta);
        painter.PaintImage(image, {left, 0}, view, geometry.Everything());
        for (int x = 0; x < image.width() && geometry.GridSize().height() > 0; ++x) {
            const int column = geometry.ColumnAt(left + x);
            ASSERT_EQ(image.pixel(x, height / 2), ToRgb(Cloth::FlossOf(Cloth::FlossNumber(column))))
                << left + x;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Zooms, EveryScreen,
                         ::testing::Combine(::testing::Values(1, 2, 3, 7, 10, 33, 55, 90, 100, 133,
                                                              250, 777, 1000),
                                            ::testing::Values(1, 1.25, 1.5, 1.75, 2, 3)));

/// One square of `pixels` pixels on an ordinary screen, so that percents are told in pixels.
class OneSquare : public ::testing::Test {
protected:
    static constexpr int Zoom = 1000;
    Cloth cloth{5, 5, 10, 10}; // squares of 144 twips at 100 percent, of 96 pixels here
    GridGeometry geometry{cloth.pattern, Zoom, 1};

    [[nodiscard]] GridSpot SpotAtPercent(double x, double y) const {
        return geometry.SpotAt(QPointF(96 + x / 100 * 96, 96 + y / 100 * 96));
    }
};

TEST_F(OneSquare, RegionsAreThirdsWithTheHoleGoingRightAndDown) {
    EXPECT_EQ(SpotAtPercent(0, 0), (GridSpot{2, 2, 1, 1}));
    EXPECT_EQ(SpotAtPercent(33, 33).Position, 1);
    EXPECT_EQ(SpotAtPercent(33.5, 0).Position, 3);
    EXPECT_EQ(SpotAtPercent(0, 33.5).Position, 7);
    EXPECT_EQ(SpotAtPercent(34, 34).Position, 5);
    EXPECT_EQ(SpotAtPercent(66, 66).Position, 5);
    EXPECT_EQ(SpotAtPercent(66.5, 66).Position, 6);
    EXPECT_EQ(SpotAtPercent(99.9, 99.9), (GridSpot{2, 2, 9, 9}));
}

TEST_F(OneSquare, HalfWayBelongsToTheLeftAndToTheTop) {
    EXPECT_EQ(SpotAtPercent(50.5, 50).CornerPosition, 1);
    EXPECT_EQ(SpotAtPercent(51, 50).CornerPosition, 3);
    EXPECT_EQ(SpotAtPercent(50.5, 50.5).CornerPosition, 7);
    EXPECT_EQ(SpotAtPercent(51, 50.5).CornerPosition, 9);
}

TEST_F(OneSquare, OutsideThePatternSpotsKeepTheirRegions) {
    EXPECT_EQ(geometry.SpotAt({-1, -1}), (GridSpot{0, 0, 9, 9}));
    EXPECT_EQ(geometry.SpotAt({-96, -48}), (GridSpot{0, 0, 4, 1}));
    EXPECT_EQ(geometry.SpotAt({5 * 96.0, 6 * 96.0}), (GridSpot{6, 7, 1, 1}));
    EXPECT_EQ(geometry.SpotAt({-0.25, 0}).Column, 0);
}

TEST_F(OneSquare, EdgesAreSharedByNeighbours) {
    EXPECT_EQ(geometry.PointOf(1, 1, 9), geometry.PointOf(2, 2, 1));
    EXPECT_EQ(geometry.PointOf(1, 1, 3), QPoint(96, 0));
    EXPECT_EQ(geometry.PointOf(1, 1, 5), QPoint(48, 48));
    EXPECT_EQ(geometry.PixelsOf({2, 1, 3, 1}), QRect(96, 0, 192, 96));
    EXPECT_EQ(geometry.GridSize(), QSize(480, 480));
}

TEST_F(OneSquare, SquaresOfPixelsAreCutToThePattern) {
    EXPECT_EQ(geometry.SquaresIn({0, 0, 96, 97}), (SquareRect{1, 1, 1, 2}));
    EXPECT_EQ(geometry.SquaresIn({-500, 95, 5000, 2}), (SquareRect{1, 1, 5, 2}));
    EXPECT_EQ(geometry.SquaresIn({95, 479, 1, 1}), (SquareRect{1, 5, 1, 5}));
    EXPECT_TRUE(geometry.SquaresIn({480, 0, 10, 10}).IsEmpty());
    EXPECT_TRUE(geometry.SquaresIn({-10, 0, 10, 10}).IsEmpty());
    EXPECT_TRUE(geometry.SquaresIn(QRect()).IsEmpty());
}

TEST(GridGeometry, AnUnevenClothHasSquaresWiderThanTall) {
    const Cloth cloth(10, 10, 14, 18);
    const GridGeometry geometry(cloth.pattern, 700, 1);
    EXPECT_EQ(geometry.LeftOf(2), 48);
    EXPECT_EQ(geometry.TopOf(2), 37);
    EXPECT_EQ(geometry.GridSize(), QSize(480, 373));
    EXPECT_EQ(geometry.SpotAt({47, 37}), (GridSpot{1, 2, 3, 3}));
}

TEST(GridGeometry, TheMiddleOfASquareIsExactToHalfAPixelAtEveryPixelRatio) {
    const Cloth cloth(Wide, 1);
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        const GridGeometry geometry(cloth.pattern, 90, ratio);
        for (int column = 1; column <= Wide; ++column) {
            const int left = geometry.LeftOf(column);
            const int width = geometry.LeftOf(column + 1) - left;
            // An odd width has two pixels that are as near to its middle.
            const int middle = geometry.PointOf(column, 1, 2).x();
            ASSERT_LE(std::abs(2 * (middle - left) - width), 1) << ratio << ": " << column;
            ASSERT_EQ(geometry.PointOf(column, 1, 1).x(), left);
            ASSERT_EQ(geometry.PointOf(column, 1, 3).x(), left + width);
        }
    }
}

TEST(GridGeometry, SquaresOfOnePixelStillMap) {
    const Cloth cloth(50, 50, 96, 96);
    const GridGeometry geometry(cloth.pattern, 100, 1);
    for (int x = 0; x < 50; ++x) {
        EXPECT_EQ(geometry.SpotAt(QPointF(x, 7)), (GridSpot{x + 1, 8, 1, 1}));
    }
}

TEST(GridGeometry, SquaresBelowAPixelAreAllWithinSquaresIn) {
    const Cloth cloth(Wide, Wide);
    const GridGeometry geometry(cloth.pattern, 1, 1);
    const QRect all(QPoint(0, 0), geometry.GridSize());
    const SquareRect squares = geometry.SquaresIn(all);
    EXPECT_EQ(squares.Right, geometry.ColumnAt(all.right()));
    // What lies behind the last one has no pixel of its own.
    EXPECT_EQ(geometry.LeftOf(squares.Right + 1), all.width());
}

TEST(GridGeometry, APatternWithoutSquaresHasNoPixels) {
    Cloth cloth(5, 5);
    cloth.pattern.Resize(5, 0, 14, 14);
    const GridGeometry geometry(cloth.pattern, 100, 1);
    EXPECT_TRUE(geometry.GridSize().isEmpty());
    EXPECT_TRUE(geometry.SquaresIn({0, 0, 10, 10}).IsEmpty());
    EXPECT_EQ(geometry.RowAt(3), 1);
}

} // namespace
} // namespace zol
