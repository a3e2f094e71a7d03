// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/Eraser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace zol {

namespace {

constexpr Colour Plain = 0x00203040;

Picture PlainPicture(int width, int height) {
    Picture picture(width, height);
    std::fill(picture.Pixels().begin(), picture.Pixels().end(), Plain);
    return picture;
}

bool IsErased(const Picture& picture, int x, int y) {
    return picture.ImagePixel(x, y) == EraseColor;
}

/// The rectangle round what was erased.
PixelRect ErasedRect(const Picture& picture) {
    int left = picture.ImageWidth();
    int top = picture.ImageHeight();
    int right = 0;
    int bottom = 0;
    for (int y = 0; y < picture.ImageHeight(); ++y) {
        for (int x = 0; x < picture.ImageWidth(); ++x) {
            if (IsErased(picture, x, y)) {
                left = std::min(left, x);
                top = std::min(top, y);
                right = std::max(right, x + 1);
                bottom = std::max(bottom, y + 1);
            }
        }
    }
    return right == 0 ? PixelRect{} : PixelRect{left, top, right - left, bottom - top};
}

} // namespace

TEST(Eraser, HasThreeSizes) {
    EXPECT_EQ(Eraser::Sizes, (std::array<int, 3>{8, 16, 32}));
}

class EraserSize : public ::testing::TestWithParam<int> {};

TEST_P(EraserSize, ADiscIsAsWideAsTold) {
    const int across = GetParam();
    for (const double part : {0.0, 0.3, 0.5, 0.9}) {
        Picture picture = PlainPicture(80, 80);
        const PicturePoint at{40 + part, 41 - part};
        Eraser::Erase(picture, at, at, across);
        const PixelRect erased = ErasedRect(picture);
        EXPECT_EQ(erased.Width, across);
        EXPECT_EQ(erased.Height, across);
        EXPECT_LE(std::abs(erased.Left + across / 2.0 - at.X), 0.5);
        EXPECT_LE(std::abs(erased.Top + across / 2.0 - at.Y), 0.5);
        EXPECT_EQ(erased, Eraser::ReachOf(at, at, across, 80, 80));
    }
}

TEST_P(EraserSize, ADiscIsRound) {
    const int across = GetParam();
    Picture picture = PlainPicture(64, 64);
    Eraser::Erase(picture, {32, 32}, {32, 32}, across);
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            const double far = std::hypot(x + 0.5 - 32, y + 0.5 - 32);
            EXPECT_EQ(IsErased(picture, x, y), far <= across / 2.0) << x << ", " << y;
        }
    }
}

TEST_P(EraserSize, AQuickDragLeavesNoGaps) {
    const int across = GetParam();
    const double radius = across / 2.0;
    for (const PicturePoint to : {PicturePoint{180, 60}, PicturePoint{25, 140},
                                  PicturePoint{150, 150}, PicturePoint{20, 21}}) {
        Picture picture = PlainPicture(200, 160);
        const PicturePoint from{20, 20};
        Eraser::Erase(picture, from, to, across);
        const double length = std::hypot(to.X - from.X, to.Y - from.Y);
        for (int y = 0; y < 160; ++y) {
            for (int x = 0; x < 200; ++x) {
                const double along = std::clamp(
                    ((x + 0.5 - from.X) * (to.X - from.X) + (y + 0.5 - from.Y) * (to.Y - from.Y)) /
                        length,
                    0.0, length);
                const double far = std::hypot(x + 0.5 - from.X - along * (to.X - from.X) / length,
                                              y + 0.5 - from.Y - along * (to.Y - from.Y) / length);
                if (far < radius - 1) {
                    ASSERT_TRUE(IsErased(picture, x, y)) << x << ", " << y;
                } else if (far > radius + 1) {
                    ASSERT_FALSE(IsErased(picture, x, y)) << x << ", " << y;
                }
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, EraserSize, ::testing::ValuesIn(Eraser::Sizes));

TEST(Eraser, ReachCoversWhatIsErasedAndIsClipped) {
    for (const PicturePoint to :
         {PicturePoint{3, 2}, PicturePoint{-70, 44}, PicturePoint{55, 90}}) {
        Picture picture = PlainPicture(60, 50);
        Eraser::Erase(picture, {20, 30}, to, 16);
        const PixelRect erased = ErasedRect(picture);
        const PixelRect reach = Eraser::ReachOf({20, 30}, to, 16, 60, 50);
        // Where the way leaves the picture on a slant, the reach is larger than what it erases.
        EXPECT_GE(erased.Left, reach.Left);
        EXPECT_GE(erased.Top, reach.Top);
        EXPECT_LE(erased.Left + erased.Width, reach.Left + reach.Width);
        EXPECT_LE(erased.Top + erased.Height, reach.Top + reach.Height);
        EXPECT_LE(reach.Left + reach.Width, 60);
        EXPECT_LE(reach.Top + reach.Height, 50);
    }
}

TEST(Eraser, PassesBesideThePicture) {
    Picture picture = PlainPicture(20, 20);
    const Picture before = picture;
    Eraser::Erase(picture, {-4, 5}, {-4, 15}, 8);
    Eraser::Erase(picture, {1e300, 5}, {1e300, 5}, 32);
    EXPECT_EQ(picture, before);
    EXPECT_EQ(Eraser::ReachOf({-4, 5}, {-4, 15}, 8, 20, 20).Width, 0);
    Eraser::Erase(picture, {-3, 10}, {-3, 10}, 8);
    EXPECT_TRUE(IsErased(picture, 0, 10));
    EXPECT_FALSE(IsErased(picture, 1, 10));
}

TEST(Eraser, ErasesAPictureOfOnePixel) {
    Picture picture = PlainPicture(1, 1);
    Eraser::Erase(picture, {0.5, 0.5}, {0.5, 0.5}, 8);
    EXPECT_TRUE(IsErased(picture, 0, 0));
}

} // namespace zol
