// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/PictureOps.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "import/DistinctColours.h"

using namespace zol;

namespace {

Picture Numbered(int width, int height) {
    Picture picture(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            picture.SetImagePixel(x, y, static_cast<Colour>(y * 256 + x));
        }
    }
    return picture;
}

TEST(PictureOps, NewBitmapIsPureWhite) {
    const Picture picture(3, 2);
    EXPECT_EQ(picture.Pixels(), std::vector<Colour>(6, EraseColor));
    EXPECT_TRUE(Picture(0, 5).IsEmpty());
    EXPECT_EQ(Picture(0, 5).ImageHeight(), 0);
}

TEST(PictureOps, TakesWholeRowsOver) {
    const Picture picture(2, std::vector<Colour>{1, 2, 3, 4, 5});
    EXPECT_EQ(picture.ImageWidth(), 2);
    EXPECT_EQ(picture.ImageHeight(), 2);
    EXPECT_EQ(picture.ImagePixel(1, 1), 4U);
    EXPECT_EQ(picture.Pixels().size(), 4U);
    EXPECT_TRUE(Picture(3, std::vector<Colour>{1, 2}).IsEmpty());
    EXPECT_TRUE(Picture(0, std::vector<Colour>{1, 2}).IsEmpty());
}

TEST(PictureOps, DepthKeepsFiveBitsAndRepeatsTheUpperThree) {
    Picture picture(1, 1);
    for (unsigned c = 0; c < 256; ++c) {
        const unsigned v = c >> 3U;
        const unsigned expected = (v << 3U) | (v >> 2U);
        EXPECT_EQ(DepthOf16Bits(c), expected);
        picture.SetImagePixel(0, 0, MakeColour(c, 255 - c, 128));
        ReduceDepth(picture);
        EXPECT_EQ(picture.ImagePixel(0, 0),
                  MakeColour(expected, DepthOf16Bits(255 - c), DepthOf16Bits(128)));
    }
}

TEST(PictureOps, DepthTwiceIsDepthOnce) {
    for (unsigned c = 0; c < 256; ++c) {
        EXPECT_EQ(DepthOf16Bits(DepthOf16Bits(c)), DepthOf16Bits(c));
    }
}

TEST(PictureOps, DepthLeavesTransparentPixelsMarked) {
    Picture picture(1, 1);
    picture.SetImagePixel(0, 0, TransparentPixel);
    ReduceDepth(picture);
    EXPECT_EQ(picture.ImagePixel(0, 0), TransparentPixel);
}

TEST(PictureOps, RemapWhiteKeepsRealWhiteAndErasesTheTransparent) {
    Picture picture(4, 1);
    picture.SetImagePixel(0, 0, 0x00FFFFFF);
    picture.SetImagePixel(1, 0, TransparentPixel);
    picture.SetImagePixel(2, 0, 0x00F7F7F7);
    picture.SetImagePixel(3, 0, 0x00FFFFF7);
    RemapWhite(picture);
    EXPECT_EQ(picture.Pixels(),
              (std::vector<Colour>{WhiteStandIn, EraseColor, WhiteStandIn, 0x00FFFFF7}));
}

TEST(PictureOps, PartlyTransparentPixelsShowOverWhite) {
    EXPECT_EQ(OverWhite(0x00102030, 255), 0x00102030U);
    EXPECT_EQ(OverWhite(0x00102030, 0), TransparentPixel);
    EXPECT_EQ(OverWhite(0x00000000, 128), MakeColour(127, 127, 127));
    EXPECT_EQ(OverWhite(0x00FFFFFF, 1), 0x00FFFFFFU);
}

TEST(PictureOps, CropTakesThePartInsideThePicture) {
    const Picture picture = Numbered(5, 4);
    const Picture part = CropPicture(picture, {3, 2, 10, 10});
    ASSERT_EQ(part.ImageWidth(), 2);
    ASSERT_EQ(part.ImageHeight(), 2);
    EXPECT_EQ(part.ImagePixel(0, 0), 2U * 256U + 3U);
    EXPECT_EQ(part.ImagePixel(1, 1), 3U * 256U + 4U);
    EXPECT_EQ(CropPicture(picture, {-1, -1, 2, 2}).Pixels(), std::vector<Colour>{0});
}

TEST(PictureOps, ACropWithoutPixelsIsDropped) {
    const Picture picture = Numbered(5, 4);
    EXPECT_EQ(CropPicture(picture, {2, 2, 0, 3}), picture);
    EXPECT_EQ(CropPicture(picture, {5, 0, 3, 3}), picture);
    EXPECT_EQ(CropPicture(picture, {2147483647, 0, 2147483647, 3}), picture);
    EXPECT_EQ(CropPicture(picture, {3, 3, -2, -2}), picture);
}

TEST(PictureOps, NearestTakesThePixelUnderTheMiddle) {
    const Picture picture = Numbered(4, 4);
    const Picture half = ResampleNearest(picture, 2, 2);
    EXPECT_EQ(half.Pixels(), (std::vector<Colour>{257, 259, 769, 771}));
    const Picture twice = ResampleNearest(picture, 8, 8);
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            EXPECT_EQ(twice.ImagePixel(x, y), picture.ImagePixel(x / 2, y / 2));
        }
    }
    EXPECT_EQ(ResampleNearest(picture, 4, 4), picture);
    EXPECT_EQ(ResampleNearest(picture, 0, -3).Pixels().size(), 1U);
}

TEST(PictureOps, ErasedPixelsThatAreMarkedStayEmpty) {
    Picture image(3, 1);
    image.SetImagePixel(0, 0, WhiteStandIn);
    image.SetImagePixel(2, 0, 0x00010203);
    const Picture before = image;
    MarkErased(image);
    EXPECT_EQ(image.ImagePixel(1, 0), TransparentPixel);
    RemapWhite(image);
    EXPECT_EQ(image, before);
}

TEST(DistinctColours, EachColourOnceAndEveryPixelFindsIts) {
    Picture picture(130, 70);
    for (int y = 0; y < 70; ++y) {
        for (int x = 0; x < 130; ++x) {
            // Both colours of 5 bits a channel and others, many of them more than once.
            picture.SetImagePixel(x, y, static_cast<Colour>((x * 26544 + y * 97) % 5000 * 3));
        }
    }
    const DistinctColours distinct(picture);
    std::vector<Colour> sorted = distinct.Colours;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(std::adjacent_find(sorted.begin(), sorted.end()), sorted.end());
    for (unsigned y = 0; y < 70; ++y) {
        for (unsigned x = 0; x < 130; ++x) {
            const std::uint32_t place = distinct.Places[std::size_t{70} * x + y];
            ASSERT_EQ(distinct.Colours[place],
                      picture.ImagePixel(static_cast<int>(x), static_cast<int>(y)));
        }
    }
}

} // namespace
