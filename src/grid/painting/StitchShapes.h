// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPolygonF>
#include <QRectF>

namespace zol {

/// A rectangle of device pixels, both corners inclusive.
struct PixelRect {
    int Left = 0;
    int Top = 0;
    int Right = -1;
    int Bottom = -1;

    [[nodiscard]] int Width() const { return Right - Left + 1; }
    [[nodiscard]] int Height() const { return Bottom - Top + 1; }
    [[nodiscard]] bool IsEmpty() const { return Right < Left || Bottom < Top; }
    /// The area of its pixels.
    [[nodiscard]] QRectF Area() const { return QRectF(Left, Top, Width(), Height()); }

    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

/// The shapes of stitches inside a square.
namespace StitchShapes {

/// Corners of a kind's shape as pixels of the square, in polygon order; empty for kinds without
/// one (a French knot among them). A device that fills it paints its outline too.
[[nodiscard]] QPolygonF Polygon(int kind, const PixelRect& square);
/// The same shape as an area, for devices whose pixels are too fine to see: it ends where the
/// square's last pixels end.
[[nodiscard]] QPolygonF Area(int kind, const PixelRect& square);

/// The part of a square that holds the symbol of a kind.
[[nodiscard]] PixelRect SymbolRect(int kind, const PixelRect& square);

/// Whether pixel (i, j) of a stitch image of width x height belongs to a kind from 2 to 7; true
/// for other kinds.
[[nodiscard]] bool ImagePixelBelongs(int kind, int i, int j, int width, int height);
/// The part of a square, as an area, that a kind takes of the stitch image.
[[nodiscard]] QPolygonF ImageArea(int kind, const QRectF& square);

} // namespace StitchShapes
} // namespace zol
