// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QSize>

#include "grid/GridScale.h"
#include "model/Pattern.h"
#include "model/ZOLTypes.h"

namespace zol {

/// A place under the pointer: the square painted there and the regions of it. The square may lie
/// outside the pattern.
struct GridSpot {
    int Column = 0;
    int Row = 0;
    int Position = 5;       ///< region 1 to 9 of the 3 by 3 map
    int CornerPosition = 1; ///< 1, 3, 7 or 9: the quarter that a smart stitch takes

    friend bool operator==(const GridSpot&, const GridSpot&) = default;
};

/// Where the squares of a grid lie in pixels of the device, and back, at one zoom on one screen.
/// Pixel (0, 0) is the upper left corner of square (1, 1). Squares are found from their painted
/// edges, so the square under a pixel is always the one that is seen there.
class GridGeometry {
public:
    GridGeometry() = default;
    /// `pixelRatio`: pixels of the device for one of the window's, 1 on an ordinary screen.
    GridGeometry(const Pattern& pattern, int zoom, double pixelRatio);

    [[nodiscard]] int Zoom() const { return m_zoom; }
    [[nodiscard]] double PixelRatio() const { return m_pixelRatio; }
    [[nodiscard]] const GridScale& Scale() const { return m_scale; }
    /// All of the grid's squares.
    [[nodiscard]] SquareRect Everything() const { return {1, 1, m_width, m_height}; }

    /// First pixel of a column; that of the column behind the last is the grid's width.
    [[nodiscard]] int LeftOf(int column) const;
    [[nodiscard]] int TopOf(int row) const;
    [[nodiscard]] QSize GridSize() const { return {LeftOf(m_width + 1), TopOf(m_height + 1)}; }
    /// Pixels of a rectangle of squares.
    [[nodiscard]] QRect PixelsOf(const SquareRect& rect) const;
    /// Where a region 1 to 9 of a square lies; 3, 6 and 9 on the edge to the next column.
    [[nodiscard]] QPoint PointOf(int column, int row, int region) const;

    [[nodiscard]] int ColumnAt(double x) const;
    [[nodiscard]] int RowAt(double y) const;
    [[nodiscard]] GridSpot SpotAt(QPointF pixel) const;
    /// The squares of the pattern that a rectangle of pixels touches; empty if there are none.
    [[nodiscard]] SquareRect SquaresIn(const QRect& pixels) const;

    friend bool operator==(const GridGeometry&, const GridGeometry&) = default;

private:
    GridScale m_scale;
    int m_zoom = 100;
    double m_pixelRatio = 1;
    int m_width = 0;
    int m_height = 0;
};

} // namespace zol
