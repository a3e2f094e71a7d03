// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QPainter>

#include <tuple>

#include "ToolTest.h"
#include "grid/basEditBox.h"
#include "grid/tools/FloatingPicture.h"

namespace zol::test {

/// A floating block against the same block written into the design.
class FloatingPictureTest : public ToolTest {
protected:
    FloatingPictureTest() {
        auto made = std::make_shared<Pattern>(context);
        made->Initialize(5, 4, 12, 12);
        pattern.GetPalette().CreateCopy(made->GetPalette());
        made->SetStitch(1, 1, StitchWhole, 1, 0);
        made->SetStitch(2, 1, StitchTBH, 2, 0);
        made->SetStitch(4, 2, StitchUL3Q, 3, 0);
        made->SetStitch(5, 4, StitchLRQ, 4, 0);
        made->SetStitch(3, 3, StitchFKnot, 2, 5);
        made->SetBackstitchLine({2, 2, 1, 4, 4, 5, 3, LineStraight});
        block = made;
        options.GridLines = false;
    }

    [[nodiscard]] QImage Painted(const GridGeometry& geometry) {
        QImage image(geometry.GridSize(), QImage::Format_RGB32);
        GridView seen;
        seen.Source = &pattern;
        seen.Scale = geometry.Scale();
        seen.Options = options;
        GridPainter().PaintImage(image, {}, seen, geometry.Everything());
        return image;
    }
    [[nodiscard]] QImage WithFloating(const GridGeometry& geometry, SquarePos at,
                                      bool moving = false) {
        QImage image = Painted(geometry);
        picture.Paint(image, {}, {block, at, moving}, geometry, options);
        return image;
    }
    /// The largest difference of a channel.
    static int MostBetween(const QImage& a, const QImage& b) {
        int most = 0;
        for (int y = 0; y < a.height(); ++y) {
            for (int x = 0; x < a.width(); ++x) {
                most = std::max(most, Difference(a.pixel(x, y), b.pixel(x, y)));
            }
        }
        return most;
    }

    std::shared_ptr<const Pattern> block;
    PaintOptions options;
    FloatingPicture picture;
};

/// Style and zoom; at 90 and 170 percent squares are no whole number of pixels.
class FloatingStyles : public FloatingPictureTest,
                       public ::testing::WithParamInterface<std::tuple<int, int>> {};

TEST_P(FloatingStyles, OnClothTheBlockLooksAsItWillWhenItHasLanded) {
    options.StitchStyle = std::get<0>(GetParam());
    const GridGeometry geometry(pattern, std::get<1>(GetParam()), 1);
    const QImage floating = WithFloating(geometry, {8, 9});
    basEditBox::WriteBack(*block, pattern, 8, 9);
    // Thread and ground are told apart in 128 steps.
    EXPECT_LE(MostBetween(floating, Painted(geometry)), 3);
}

INSTANTIATE_TEST_SUITE_P(All, FloatingStyles,
                         ::testing::Combine(::testing::Values(1, 2, 3, 4, 5, 6),
                                            ::testing::Values(90, 125, 170, 500)));

TEST_F(FloatingPictureTest, TheDesignShowsThroughWhereTheBlockHasNoStitches) {
    for (int x = 1; x <= Size; ++x) {
        for (int y = 1; y <= Size; ++y) {
            pattern.SetStitch(x, y, StitchWhole, 2, 0);
        }
    }
    const GridGeometry geometry(pattern, 250, 1);
    const QImage before = Painted(geometry);
    const QImage floating = WithFloating(geometry, {8, 9});
    const QPoint empty = geometry.PixelsOf({12, 9, 12, 9}).center();
    const QPoint stitched = geometry.PixelsOf({8, 9, 8, 9}).center();
    EXPECT_EQ(floating.pixel(empty), before.pixel(empty));
    EXPECT_NE(floating.pixel(stitched), before.pixel(stitched));
    EXPECT_EQ(floating.pixel(stitched), qRgb(255, 0, 0));
}

TEST_F(FloatingPictureTest, AFlossInTheClothsColourCovers) {
    auto white = std::make_shared<Pattern>(context);
    white->Initialize(1, 1, 12, 12);
    white->GetPalette().ClearPalette();
    white->GetPalette().AddPaletteEntry(0xFFFFFFU, "White", "White", "DMC", "w", 2, 2, 0, 1, 0,
                                        "DMC");
    white->SetStitch(1, 1, StitchWhole, 1, 0);
    block = white;
    pattern.SetStitch(5, 5, StitchWhole, 3, 0);
    const GridGeometry geometry(pattern, 250, 1);
    const QImage floating = WithFloating(geometry, {5, 5});
    EXPECT_EQ(floating.pixel(geometry.PixelsOf({5, 5, 5, 5}).center()), qRgb(255, 255, 255));
}

TEST_F(FloatingPictureTest, NothingIsPaintedOutsideTheGridOrWhatIsWanted) {
    const GridGeometry geometry(pattern, 250, 1);
    EXPECT_EQ(FloatingPicture::Covered({block, {22, 23}}, geometry),
              geometry.PixelsOf({22, 23, 24, 24}));
    EXPECT_EQ(FloatingPicture::Covered({block, {-3, 3}}, geometry),
              geometry.PixelsOf({1, 3, 1, 6}));
    const QImage before = Painted(geometry);
    QImage image = before;
    const QRect wanted(geometry.PixelsOf({8, 9, 8, 9}).topLeft(), QSize(4, 6));
    QImage part = image.copy(wanted);
    picture.Paint(part, wanted.topLeft(), {block, {8, 9}}, geometry, options);
    QPainter(&image).drawImage(wanted.topLeft(), part);
    QRect changed;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            changed |= image.pixel(x, y) != before.pixel(x, y) ? QRect(x, y, 1, 1) : QRect();
        }
    }
    EXPECT_EQ(changed, wanted);
}

TEST_F(FloatingPictureTest, FromAnotherImageOfTheClothItIsTheSame) {
    for (int x = 1; x <= Size; ++x) {
        pattern.SetStitch(x, 10, StitchWhole, 2, 0);
    }
    const GridGeometry geometry(pattern, 170, 1);
    const QImage cloth = Painted(geometry);
    const QImage expected = WithFloating(geometry, {8, 9});
    const QRect part = geometry.PixelsOf({6, 7, 14, 14}).adjusted(3, 2, 0, 0);
    QImage image(part.size(), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    picture.PaintOver(cloth, {}, image, part.topLeft(), {block, {8, 9}}, geometry, options);
    EXPECT_EQ(image, expected.copy(part));
}

TEST_F(FloatingPictureTest, AnotherZoomOrBlockMakesAnotherPicture) {
    const GridGeometry small(pattern, 125, 1);
    const GridGeometry large(pattern, 250, 1);
    EXPECT_FALSE(WithFloating(small, {8, 9}).isNull());
    FloatingPicture fresh;
    QImage expected = Painted(large);
    fresh.Paint(expected, {}, {block, {8, 9}}, large, options);
    EXPECT_EQ(WithFloating(large, {8, 9}), expected);
    picture.Clear();
    EXPECT_EQ(WithFloating(large, {8, 9}), expected);
    block = std::make_shared<Pattern>(basEditBox::PickUpSelection(*block, {2, 1, 5, 4}));
    EXPECT_NE(WithFloating(large, {8, 9}), expected);
}

TEST_F(FloatingPictureTest, WhatIsHeldIsMovedAsItIs) {
    const GridGeometry geometry(pattern, 90, 1);
    EXPECT_FALSE(WithFloating(geometry, {8, 9}).isNull());
    QImage moved = Painted(geometry);
    const QImage held = WithFloating(geometry, {9, 9}, true);
    const QRect there = FloatingPicture::Covered({block, {9, 9}}, geometry);
    const QImage first = WithFloating(geometry, {8, 9}, true);
    const QRect here = FloatingPicture::Covered({block, {8, 9}}, geometry);
    const QSize both = there.size().boundedTo(here.size());
    EXPECT_EQ(held.copy(QRect(there.topLeft(), both)), first.copy(QRect(here.topLeft(), both)));
}

TEST_F(FloatingPictureTest, OfAHugeBlockTheShownPartIsRight) {
    auto huge = std::make_shared<Pattern>(context);
    huge->Initialize(400, 400, 12, 12);
    pattern.GetPalette().CreateCopy(huge->GetPalette());
    for (int i = 1; i <= 400; ++i) {
        huge->SetStitch(i, i, StitchWhole, 1, 0);
    }
    block = huge;
    const GridGeometry geometry(pattern, 250, 1);
    const QImage floating = WithFloating(geometry, {-300, -300});
    const QPoint on = geometry.PixelsOf({7, 7, 7, 7}).center();
    const QPoint off = geometry.PixelsOf({7, 8, 7, 8}).center();
    EXPECT_EQ(floating.pixel(on), qRgb(255, 0, 0));
    EXPECT_EQ(floating.pixel(off), qRgb(255, 255, 255));
}

} // namespace zol::test
