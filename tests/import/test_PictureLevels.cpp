// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/PictureLevels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace zol {

namespace {

std::vector<ScreenPixel> LevelOf(PictureLevels& levels, int level) {
    std::vector<ScreenPixel> pixels;
    std::vector<ScreenPixel> scratch;
    for (int y = 0; y < levels.HeightOf(level); ++y) {
        const ScreenPixel* row = levels.Row(level, y, 0, levels.WidthOf(level), scratch);
        pixels.insert(pixels.end(), row, row + levels.WidthOf(level));
    }
    return pixels;
}

std::shared_ptr<Picture> Noise(int width, int height) {
    auto picture = std::make_shared<Picture>(width, height);
    unsigned seed = 1;
    for (Colour& pixel : picture->Pixels()) {
        seed = seed * 1664525U + 1013904223U;
        pixel = (seed >> 8U) & 0x00FFFFFFU;
    }
    return picture;
}

} // namespace

TEST(PictureLevels, HalvesHoldMeans) {
    auto picture = std::make_shared<Picture>(2, 2);
    picture->SetImagePixel(0, 0, MakeColour(10, 0, 200));
    picture->SetImagePixel(1, 0, MakeColour(20, 0, 100));
    picture->SetImagePixel(0, 1, MakeColour(30, 0, 0));
    picture->SetImagePixel(1, 1, MakeColour(40, 8, 0));
    PictureLevels levels;
    levels.Take(picture, PictureLevels::Empty::White);
    EXPECT_EQ(LevelOf(levels, 1), (std::vector<ScreenPixel>{0xFF19024BU}));
}

TEST(PictureLevels, EmptyPixelsHaveNoOpacity) {
    auto picture = std::make_shared<Picture>(2, 2);
    picture->SetImagePixel(0, 0, 0);
    picture->SetImagePixel(1, 0, TransparentPixel);
    PictureLevels levels;
    levels.Take(picture, PictureLevels::Empty::White);
    EXPECT_EQ(levels.PixelAt(1, 0), 0U);
    EXPECT_EQ(levels.PixelAt(0, 1), 0U);
    EXPECT_EQ(LevelOf(levels, 1), (std::vector<ScreenPixel>{0x40000000U}));
    levels.Take(picture, PictureLevels::Empty::Transparent);
    EXPECT_EQ(levels.PixelAt(1, 0), 0U);
    EXPECT_EQ(levels.PixelAt(0, 1), 0xFFFFFFFFU);
}

TEST(PictureLevels, TheLevelIsTheSmallestThatIsLargeEnough) {
    PictureLevels levels;
    levels.Take(Noise(100, 60), PictureLevels::Empty::White);
    EXPECT_EQ(levels.LevelFor(3), 0);
    EXPECT_EQ(levels.LevelFor(0.51), 0);
    EXPECT_EQ(levels.LevelFor(0.5), 1);
    EXPECT_EQ(levels.LevelFor(0.26), 1);
    EXPECT_EQ(levels.LevelFor(0.1), 3);
    EXPECT_EQ(levels.LevelFor(1e-9), 7);
    EXPECT_EQ(levels.WidthOf(7), 1);
    EXPECT_EQ(levels.HeightOf(3), 8);
}

TEST(PictureLevels, AChangeGivesWhatAllAnewGives) {
    for (const int width : {1, 2, 63, 64, 101}) {
        for (const int height : {1, 50, 77}) {
            const auto picture = Noise(width, height);
            PictureLevels levels;
            levels.Take(picture, PictureLevels::Empty::White);
            static_cast<void>(LevelOf(levels, 4));
            for (const PixelRect& rect :
                 {PixelRect{width - 1, height - 1, 5, 5}, PixelRect{-3, 0, 9, 3},
                  PixelRect{width / 2, height / 3, 7, 1}, PixelRect{width + 5, 0, 3, 3}}) {
                for (int y = std::max(rect.Top, 0); y < std::min(rect.Top + rect.Height, height);
                     ++y) {
                    for (int x = std::max(rect.Left, 0);
                         x < std::min(rect.Left + rect.Width, width); ++x) {
                        picture->SetImagePixel(x, y, EraseColor);
                    }
                }
                levels.Changed(rect);
                PictureLevels anew;
                anew.Take(picture, PictureLevels::Empty::White);
                for (int level = 0; level <= 4; ++level) {
                    ASSERT_EQ(LevelOf(levels, level), LevelOf(anew, level))
                        << width << " by " << height << ", level " << level;
                }
            }
        }
    }
}

TEST(PictureLevels, WithoutAPictureAChangeIsNothing) {
    PictureLevels levels;
    EXPECT_FALSE(levels.HasPicture());
    levels.Changed({0, 0, 5, 5});
    levels.Take(std::make_shared<Picture>(), PictureLevels::Empty::White);
    EXPECT_FALSE(levels.HasPicture());
    levels.Changed({0, 0, 5, 5});
}

} // namespace zol
