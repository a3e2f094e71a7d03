// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/LineMasks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace zol {

namespace {

constexpr int Side = 120;

LinePen PenOf(int width) {
    LinePen pen;
    pen.Width = width;
    pen.SquareWidth = 20;
    pen.SquareHeight = 20;
    return pen;
}

/// Pixels that all differ from their neighbours.
std::vector<QRgb> Ground() {
    std::vector<QRgb> pixels;
    for (unsigned i = 0; i < Side * Side; ++i) {
        pixels.push_back(0xFF000000U | ((i * 2654435761U) >> 8U));
    }
    return pixels;
}

/// Pixel by pixel, with none outside.
void BlendPlainly(std::vector<QRgb>& pixels, QPoint place, const CoverMask& mask, QRgb colour) {
    const auto blend = [&](int x, int y, unsigned cover) {
        if (x >= 0 && x < Side && y >= 0 && y < Side) {
            BlendPixel(pixels[static_cast<std::size_t>(y) * Side + static_cast<std::size_t>(x)],
                       colour, cover);
        }
    };
    for (const CoverMask::Four& four : mask.Fours) {
        for (int i = 0; i < 4; ++i) {
            blend(place.x() + four.X + i, place.y() + four.Y,
                  four.Cover[static_cast<std::size_t>(i)]);
        }
    }
    for (const CoverMask::Stretch& stretch : mask.Stretches) {
        for (int i = 0; i < stretch.Length; ++i) {
            blend(place.x() + stretch.X + i, place.y() + stretch.Y, 255);
        }
    }
}

} // namespace

TEST(LineMasks, MasksBlendAsTheirPixelsOneByOne) {
    for (const int width : {1, 3, 8, 21}) {
        LineMasks masks;
        masks.TakeLook(PenOf(width), true);
        for (int style = LineStraight; style <= LinePlus; ++style) {
            for (const QPoint span : {QPoint(60, 0), QPoint(0, 60), QPoint(40, 40), QPoint(60, -7),
                                      QPoint(5, 50), QPoint(0, 0)}) {
                const LineMask* mask = masks.Find(span, style);
                ASSERT_NE(mask, nullptr);
                // In the middle, and cut at each side.
                for (const QPoint place : {QPoint(30, 30), QPoint(-9, 40), QPoint(95, 50),
                                           QPoint(40, -13), QPoint(33, 101), QPoint(-300, 5)}) {
                    std::vector<QRgb> blended = Ground();
                    std::vector<QRgb> expected = blended;
                    for (const CoverMask* part : {&mask->Under, &mask->Over}) {
                        BlendCover({blended.data(), Side, Side, Side}, 0, Side - 1, place, *part,
                                   0xFF2468ACU);
                        BlendPlainly(expected, place, *part, 0xFF2468ACU);
                    }
                    EXPECT_EQ(blended, expected) << width << ' ' << style;
                }
            }
        }
    }
}

TEST(LineMasks, PiecesGoFromTopToBottomWithinTheirBounds) {
    LineMasks masks;
    masks.TakeLook(PenOf(18), true);
    for (int style = LineStraight; style <= LinePlus; ++style) {
        const LineMask* mask = masks.Find(QPoint(50, -30), style);
        ASSERT_NE(mask, nullptr);
        const CoverMask& over = mask->Over;
        EXPECT_FALSE(over.Stretches.empty()) << "a line as thick as that has solid pixels";
        const auto higher = [](const auto& a, const auto& b) { return a.Y < b.Y; };
        EXPECT_TRUE(std::is_sorted(over.Fours.begin(), over.Fours.end(), higher));
        EXPECT_TRUE(std::is_sorted(over.Stretches.begin(), over.Stretches.end(), higher));
        QRect bounds;
        for (const CoverMask::Four& four : over.Fours) {
            bounds |= QRect(four.X, four.Y, 4, 1);
        }
        for (const CoverMask::Stretch& stretch : over.Stretches) {
            bounds |= QRect(stretch.X, stretch.Y, stretch.Length, 1);
        }
        EXPECT_EQ(over.Bounds, bounds);
        EXPECT_EQ(mask->Bounds, bounds | mask->Under.Bounds);
    }
    EXPECT_TRUE(masks.Find(QPoint(50, -30), LineStraight)->Under.Bounds.isEmpty());
}

TEST(LineMasks, EveryCoverMixesAsOnePixelDoes) {
    CoverMask mask;
    mask.Bounds = {0, 0, 256, 1};
    for (std::int16_t x = 0; x < 256; ++x) {
        if (x % 4 == 0) {
            mask.Fours.push_back({x, 0, {}});
        }
        mask.Fours.back().Cover[static_cast<std::size_t>(x % 4)] = static_cast<std::uint8_t>(x);
    }
    for (const QRgb ground : {0xFF000000U, 0xFFFFFFFFU, 0xFF12F37BU}) {
        std::vector<QRgb> pixels(256, ground);
        BlendCover({pixels.data(), 256, 256, 1}, 0, 0, {0, 0}, mask, 0xFFFE0180U);
        for (unsigned cover = 0; cover < 256; ++cover) {
            QRgb expected = ground;
            BlendPixel(expected, 0xFFFE0180U, cover);
            EXPECT_EQ(pixels[cover], expected) << cover;
        }
    }
}

} // namespace zol
