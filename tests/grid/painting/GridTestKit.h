// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "grid/painting/GridPainter.h"

namespace zol {

/// A small pattern with four flosses (symbols "!" to "$") and both ways of painting it.
class PaintTest : public ::testing::Test {
protected:
    static constexpr Colour Red = 0x0000FF;
    static constexpr Colour Blue = 0xFF0000;
    static constexpr Colour Dark = 0x202020;
    static constexpr Colour Light = 0xE0F0E0;
    static constexpr QRgb White = 0xFFFFFFFFU;

    PaintTest() : pattern(context) {
        pattern.Initialize(24, 24, 14, 14);
        pattern.GetPalette().ClearPalette();
        int number = 0;
        for (const Colour rgb : {Red, Blue, Dark, Light}) {
            const std::string symbol(1, static_cast<char>('!' + number++));
            pattern.GetPalette().AddPaletteEntry(rgb, std::to_string(number), "Floss", "DMC",
                                                 symbol, 2, 2, 0, number, 0, "DMC");
        }
    }

    [[nodiscard]] GridView View(int pixels, int style) const {
        GridView view;
        view.Source = &pattern;
        view.Scale = GridScale::ForPicture(pixels, 14, 14);
        view.Options.Target = TargetPicture;
        view.Options.StitchStyle = style;
        return view;
    }

    /// The whole pattern straight into an image.
    [[nodiscard]] QImage Paint(const GridView& view) {
        const int pixels = ToPixel(view.Scale.SquareTwipsX, view.Scale.TwipsPerPixelX);
        QImage image(pattern.GetPatternWidth() * pixels, pattern.GetPatternHeight() * pixels,
                     QImage::Format_RGB32);
        image.fill(Qt::magenta);
        painter.PaintImage(image, {0, 0}, view, view.Everything());
        return image;
    }

    /// The same shape by shape.
    [[nodiscard]] QImage PaintByShapes(const GridView& view) {
        const int pixels = ToPixel(view.Scale.SquareTwipsX, view.Scale.TwipsPerPixelX);
        QImage image(pattern.GetPatternWidth() * pixels, pattern.GetPatternHeight() * pixels,
                     QImage::Format_RGB32);
        image.fill(ToRgb(view.Options.ClothColor));
        QPainter qt(&image);
        painter.PaintGrid(qt, view, view.Everything());
        return image;
    }

    /// Every kind in a square of its own, squares with several, knots in all positions and
    /// orientations.
    void FillWithEverything() {
        int column = 1;
        for (int kind = StitchWhole; kind <= StitchLRQ; ++kind) {
            if (kind != StitchFKnot) {
                pattern.SetStitch(column++, 2, kind, kind % 4 + 1, 5);
            }
        }
        pattern.SetStitch(2, 4, StitchUL3Q, 1, 1);
        pattern.SetStitch(2, 4, StitchLR3Q, 2, 9);
        for (const int kind : {StitchULQ, StitchURQ, StitchLLQ, StitchLRQ}) {
            pattern.SetStitch(4, 4, kind, kind % 4 + 1, 5);
        }
        pattern.SetStitch(6, 4, StitchURQ, 1, 5);
        pattern.SetStitch(6, 4, StitchTBH, 2, 5);
        for (int position = 1; position <= 9; ++position) {
            context.FrenchKnotStyle = static_cast<std::uint8_t>(position % 5);
            pattern.SetStitch(position * 2, 8, StitchWhole, 4, 5);
            pattern.SetStitch(position * 2, 8, StitchFKnot, 1 + position % 4, position);
            pattern.SetStitch(position * 2, 12, StitchFKnot, 1 + position % 4, position);
        }
        context.FrenchKnotStyle = KnotNormal;
        pattern.SetStitch(1, 1, StitchFKnot, 2, 1);
    }

    void AddLine(int x1, int y1, int p1, int x2, int y2, int p2, int style, int floss = 1) {
        BackStitchLine line;
        line.StartX = static_cast<std::int16_t>(x1);
        line.StartY = static_cast<std::int16_t>(y1);
        line.StartPos = static_cast<std::int16_t>(p1);
        line.EndX = static_cast<std::int16_t>(x2);
        line.EndY = static_cast<std::int16_t>(y2);
        line.EndPos = static_cast<std::int16_t>(p2);
        line.PaletteIndex = static_cast<std::uint8_t>(floss);
        line.LineStyle = static_cast<std::uint8_t>(style);
        pattern.AddBackStitchLine(line);
    }

    /// Pixels of a rectangle that are not of a colour.
    static int InkIn(const QImage& image, const QRect& rect, QRgb ground = White) {
        int ink = 0;
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            for (int x = rect.left(); x <= rect.right(); ++x) {
                ink += image.pixel(x, y) != ground ? 1 : 0;
            }
        }
        return ink;
    }

    /// The largest difference of a channel between two pictures.
    static int Difference(const QImage& a, const QImage& b) {
        int most = 0;
        for (int y = 0; y < a.height(); ++y) {
            for (int x = 0; x < a.width(); ++x) {
                const QRgb p = a.pixel(x, y);
                const QRgb q = b.pixel(x, y);
                most = std::max({most, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                                 std::abs(qBlue(p) - qBlue(q))});
            }
        }
        return most;
    }

    ProgramContext context;
    Pattern pattern;
    GridPainter painter;
};

} // namespace zol
