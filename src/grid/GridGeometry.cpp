// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/GridGeometry.h"

#include <algorithm>
#include <cmath>

#include "grid/GridViewport.h"
#include "model/Rounding.h"

namespace zol {

namespace {

/// Twips of a device's pixel, in whole hundredths as edges are snapped to pixels: finer ones would
/// let the two drift apart over a wide grid.
double TwipsPerPixelOf(double pixelRatio) {
    return RoundHalfEven(1500 / pixelRatio) / 100;
}

/// One axis of the grid: where its columns (or rows) begin, in pixels.
class Axis {
public:
    Axis(double squareTwips, double twipsPerPixel)
        : m_square(squareTwips),
          m_pixel(twipsPerPixel) {}

    [[nodiscard]] int EdgeOf(int index) const {
        return ToNearestPixel(GridViewport::EdgeOf(index, m_square, 0, m_pixel), m_pixel);
    }
    /// The last index that begins at or before the pixel. Where squares are smaller than a pixel
    /// several begin at one, and the last of them is painted over the others.
    [[nodiscard]] int IndexAt(double pixel) const {
        const int whole = static_cast<int>(std::floor(pixel));
        int index = static_cast<int>(std::floor(whole * m_pixel / m_square)) + 1;
        while (EdgeOf(index) > whole) {
            --index;
        }
        while (EdgeOf(index + 1) <= whole) {
            ++index;
        }
        return index;
    }
    /// The place of a pixel in the ideal twips that the regions are told in.
    [[nodiscard]] double IdealTwips(double pixel, int index, int squareTwips) const {
        const int first = EdgeOf(index);
        const int last = EdgeOf(index + 1);
        const double part = std::clamp((pixel - first) / std::max(1, last - first), 0.0, 1.0);
        // A hair before the next square, since the place is inside this one.
        return std::min(part * squareTwips, squareTwips - 1.0);
    }

private:
    double m_square;
    double m_pixel;
};

Axis AcrossOf(const GridScale& scale) {
    return {scale.SquareTwipsX, scale.TwipsPerPixelX};
}

Axis DownOf(const GridScale& scale) {
    return {scale.SquareTwipsY, scale.TwipsPerPixelY};
}

} // namespace

GridGeometry::GridGeometry(const Pattern& pattern, int zoom, double pixelRatio)
    : m_scale(GridScale::ForZoom(zoom, pattern.GetPatternClothCountX(),
                                 pattern.GetPatternClothCountY(), TwipsPerPixelOf(pixelRatio),
                                 TwipsPerPixelOf(pixelRatio))),
      m_zoom(zoom),
      m_pixelRatio(pixelRatio),
      m_width(pattern.GetPatternWidth()),
      m_height(pattern.GetPatternHeight()) {}

int GridGeometry::LeftOf(int column) const {
    return AcrossOf(m_scale).EdgeOf(column);
}

int GridGeometry::TopOf(int row) const {
    return DownOf(m_scale).EdgeOf(row);
}

QRect GridGeometry::PixelsOf(const SquareRect& rect) const {
    return {QPoint(LeftOf(rect.Left), TopOf(rect.Top)),
            QPoint(LeftOf(rect.Right + 1) - 1, TopOf(rect.Bottom + 1) - 1)};
}

QPoint GridGeometry::PointOf(int column, int row, int region) const {
    const TwipsPoint point = GridViewport::GetGridPoint(column, row, 0, 0, region, m_scale);
    return {ToNearestPixel(point.X, m_scale.TwipsPerPixelX),
            ToNearestPixel(point.Y, m_scale.TwipsPerPixelY)};
}

int GridGeometry::ColumnAt(double x) const {
    return AcrossOf(m_scale).IndexAt(x);
}

int GridGeometry::RowAt(double y) const {
    return DownOf(m_scale).IndexAt(y);
}

GridSpot GridGeometry::SpotAt(QPointF pixel) const {
    // The ideal square is large, so that rounding to twips does not move a region's border.
    constexpr int ideal = 14400;
    GridSpot spot;
    spot.Column = ColumnAt(pixel.x());
    spot.Row = RowAt(pixel.y());
    const double x = AcrossOf(m_scale).IdealTwips(pixel.x(), spot.Column, ideal);
    const double y = DownOf(m_scale).IdealTwips(pixel.y(), spot.Row, ideal);
    spot.Position = GridViewport::GetSquareRegion(x, y, ideal, ideal, false);
    spot.CornerPosition = GridViewport::GetSquareRegion(x, y, ideal, ideal, true);
    return spot;
}

SquareRect GridGeometry::SquaresIn(const QRect& pixels) const {
    const QRect inside = pixels & QRect(QPoint(0, 0), GridSize());
    if (inside.isEmpty()) {
        return {1, 1, 0, 0};
    }
    return {ColumnAt(inside.left()), RowAt(inside.top()), ColumnAt(inside.right()),
            RowAt(inside.bottom())};
}

} // namespace zol
