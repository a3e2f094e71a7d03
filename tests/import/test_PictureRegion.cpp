// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/PictureRegion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace zol {

namespace {

constexpr Colour Plain = 0x00203040;

Picture PlainPicture(int width, int height) {
    Picture picture(width, height);
    std::fill(picture.Pixels().begin(), picture.Pixels().end(), Plain);
    return picture;
}

/// The selected pixels as "#", row by row; they are those that a fill changes.
std::string Drawn(const PictureRegion& region, int width, int height) {
    Picture picture = PlainPicture(width, height);
    region.FillRegion(picture, EraseColor);
    std::string text;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool filled = picture.ImagePixel(x, y) == EraseColor;
            EXPECT_EQ(filled, region.Contains(x, y)) << x << ", " << y;
            EXPECT_TRUE(filled || picture.ImagePixel(x, y) == Plain);
            text += filled ? '#' : '.';
        }
        text += '\n';
    }
    return text;
}

} // namespace

TEST(PictureRegion, NothingIsSelectedAtFirst) {
    const PictureRegion region(5, 4);
    EXPECT_FALSE(region.HasRegion());
    EXPECT_EQ(region.Bounds(), PixelRect{});
    EXPECT_EQ(Drawn(region, 5, 4).find('#'), std::string::npos);
}

TEST(PictureRegion, ARectangleIsItsPixels) {
    PictureRegion region(6, 4);
    region.SelectRectRegion({1, 1, 3, 2});
    EXPECT_TRUE(region.HasRegion());
    EXPECT_EQ(region.Bounds(), (PixelRect{1, 1, 3, 2}));
    EXPECT_EQ(Drawn(region, 6, 4), "......\n"
                                   ".###..\n"
                                   ".###..\n"
                                   "......\n");
}

TEST(PictureRegion, WhatLiesOutsideThePictureIsNotSelected) {
    PictureRegion region(4, 3);
    region.SelectRectRegion({-5, 1, 7, 50});
    EXPECT_EQ(Drawn(region, 4, 3), "....\n"
                                   "##..\n"
                                   "##..\n");
    region.SelectRectRegion({4, 0, 3, 3});
    EXPECT_FALSE(region.HasRegion());
    region.SelectOvalRegion({-9, -9, 5, 5});
    EXPECT_FALSE(region.HasRegion());
    region.SelectFreehandRegion({{-3, -3}, {-1, -3}, {-1, 9}});
    EXPECT_FALSE(region.HasRegion());
}

TEST(PictureRegion, AShapeWithoutSizeSelectsNothing) {
    PictureRegion region(9, 9);
    region.SelectRectRegion({2, 2, 4, 4});
    region.SelectRectRegion({2, 2, 0, 5});
    EXPECT_FALSE(region.HasRegion());
    region.SelectOvalRegion({2, 2, 5, 0});
    EXPECT_FALSE(region.HasRegion());
    region.SelectFreehandRegion({});
    EXPECT_FALSE(region.HasRegion());
    region.SelectFreehandRegion({{1, 1}});
    EXPECT_FALSE(region.HasRegion());
    region.SelectFreehandRegion({{1, 1}, {8, 8}});
    EXPECT_FALSE(region.HasRegion());
}

TEST(PictureRegion, AnOvalTouchesTheSidesOfItsRectangle) {
    PictureRegion region(8, 7);
    region.SelectOvalRegion({1, 1, 6, 5});
    EXPECT_EQ(Drawn(region, 8, 7), "........\n"
                                   "..####..\n"
                                   ".######.\n"
                                   ".######.\n"
                                   ".######.\n"
                                   "..####..\n"
                                   "........\n");
}

TEST(PictureRegion, APixelBelongsToAnOvalByItsMiddle) {
    constexpr int width = 61;
    constexpr int height = 43;
    PictureRegion region(width, height);
    const PixelRect rect{-7, 5, 50, 31};
    region.SelectOvalRegion(rect);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double across = (x + 0.5 - rect.Left - rect.Width / 2.0) / (rect.Width / 2.0);
            const double down = (y + 0.5 - rect.Top - rect.Height / 2.0) / (rect.Height / 2.0);
            const double far = across * across + down * down;
            if (std::abs(far - 1) > 1e-9) {
                EXPECT_EQ(region.Contains(x, y), far < 1) << x << ", " << y;
            }
        }
    }
}

TEST(PictureRegion, AFreehandLineIsClosed) {
    PictureRegion region(8, 6);
    region.SelectFreehandRegion({{1, 1}, {7, 1}, {1, 5.5}});
    EXPECT_EQ(Drawn(region, 8, 6), "........\n"
                                   ".#####..\n"
                                   ".####...\n"
                                   ".###....\n"
                                   ".#......\n"
                                   "........\n");
}

TEST(PictureRegion, TheWayRoundDoesNotMatter) {
    PictureRegion one(8, 6);
    PictureRegion other(8, 6);
    one.SelectFreehandRegion({{1, 1}, {7, 1}, {7, 4}, {1, 4}});
    other.SelectFreehandRegion({{1, 4}, {7, 4}, {7, 1}, {1, 1}});
    EXPECT_EQ(Drawn(one, 8, 6), Drawn(other, 8, 6));
    EXPECT_EQ(one.Bounds(), (PixelRect{1, 1, 6, 3}));
}

TEST(PictureRegion, WhatIsGoneRoundTwiceIsInside) {
    PictureRegion region(10, 4);
    region.SelectFreehandRegion({{0, 0}, {8, 0}, {8, 4}, {0, 4}, {0, 0}, {6, 0}, {6, 2}, {0, 2}});
    EXPECT_EQ(Drawn(region, 10, 4), "########..\n"
                                    "########..\n"
                                    "########..\n"
                                    "########..\n");
}

TEST(PictureRegion, ALineThatComesBackLeavesItsBay) {
    PictureRegion region(9, 4);
    region.SelectFreehandRegion({{0, 0}, {9, 0}, {9, 4}, {6, 4}, {6, 2}, {3, 2}, {3, 4}, {0, 4}});
    EXPECT_EQ(Drawn(region, 9, 4), "#########\n"
                                   "#########\n"
                                   "###...###\n"
                                   "###...###\n");
    EXPECT_EQ(region.Bounds(), (PixelRect{0, 0, 9, 4}));
}

TEST(PictureRegion, InvertingGoesOverTheWholePicture) {
    PictureRegion region(5, 3);
    region.SelectRectRegion({1, 1, 2, 1});
    region.Invert();
    EXPECT_EQ(Drawn(region, 5, 3), "#####\n"
                                   "#..##\n"
                                   "#####\n");
    region.Invert();
    EXPECT_EQ(Drawn(region, 5, 3), ".....\n"
                                   ".##..\n"
                                   ".....\n");
    region.FreeRegion();
    region.Invert();
    EXPECT_EQ(region.Bounds(), (PixelRect{0, 0, 5, 3}));
    region.Invert();
    EXPECT_FALSE(region.HasRegion());
}

TEST(PictureRegion, FreeingLeavesNothing) {
    PictureRegion region(5, 3);
    region.SelectRectRegion({1, 1, 2, 1});
    region.FreeRegion();
    EXPECT_FALSE(region.HasRegion());
    EXPECT_FALSE(region.Contains(1, 1));
}

} // namespace zol
