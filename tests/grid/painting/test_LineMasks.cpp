// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/LineMasks.h"

#include <gtest/gtest.h>

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
void BlendPlainly(std::vector<QRgb>& pixels, QPoint place, const SpanMask& mask, QRgb colour) {
    const auto blend = [&](int x, int y, unsigned cover) {
        if (x >= 0 && x < Side && y >= 0 && y < Side) {
            BlendPixel(pixels[static_cast<std::size_t>(y) * Side + static_cast<std::size_t>(x)],
                       colour, cover);
        }
    };
    for (int row = 0; row < mask.Height(); ++row) {
        const auto at = static_cast<std::size_t>(row);
        for (std::uint32_t i = mask.Rows[at]; i < mask.Rows[at + 1]; ++i) {
            const SpanMask::Span& span = mask.Spans[i];
            const std::uint8_t* cover = mask.Cover.data() + span.Cover;
            int x = place.x() + span.X;
            const int y = place.y() + mask.Top + row;
            for (int j = 0; j < span.Lead + span.Solid + span.Trail; ++j, ++x) {
                const bool solid = j >= span.Lead && j < span.Lead + span.Solid;
                blend(x, y, solid ? 255U : *cover++);
            }
        }
    }
}

} // namespace

TEST(LineMasks, SpansBlendAsTheirPixelsOneByOne) {
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
                    for (const SpanMask* part : {&mask->Under, &mask->Over}) {
                        BlendSpans({blended.data(), Side, Side, Side}, 0, Side - 1, place, *part,
                                   0xFF2468ACU);
                        BlendPlainly(expected, place, *part, 0xFF2468ACU);
                    }
                    EXPECT_EQ(blended, expected) << width << ' ' << style;
                }
            }
        }
    }
}

TEST(LineMasks, EveryCoverMixesAsOnePixelDoes) {
    SpanMask mask;
    mask.Rows = {0, 1};
    mask.Right = 256;
    mask.Spans = {{0, 256, 0, 0, 0}};
    for (unsigned cover = 0; cover < 256; ++cover) {
        mask.Cover.push_back(static_cast<std::uint8_t>(cover));
    }
    for (const QRgb ground : {0xFF000000U, 0xFFFFFFFFU, 0xFF12F37BU}) {
        std::vector<QRgb> pixels(256, ground);
        BlendSpans({pixels.data(), 256, 256, 1}, 0, 0, {0, 0}, mask, 0xFFFE0180U);
        for (unsigned cover = 0; cover < 256; ++cover) {
            QRgb expected = ground;
            BlendPixel(expected, 0xFFFE0180U, cover);
            EXPECT_EQ(pixels[cover], expected) << cover;
        }
    }
}

} // namespace zol
