// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>

#include <vector>

#include "grid/painting/GridLines.h"
#include "grid/painting/GridView.h"
#include "grid/painting/TileCache.h"

namespace zol {

/// Paints ground, grid lines, stitches and knots of a rectangle of squares straight into the
/// pixels of an image: lines and solid squares a scan line at a time, other squares as copies of
/// tiles.
class RasterGrid {
public:
    RasterGrid(StitchImages& images, SymbolText& symbols) : m_tiles(images, symbols) {}

    struct Painted {
        QRect Area;         ///< of the image
        SquareRect Squares; ///< those of the rectangle that the image shows, and a few around
    };

    /// As GridPainter::PaintImage, without backstitch lines. What was painted; an empty area if
    /// the image shows nothing of the rectangle.
    Painted Paint(QImage& image, QPoint position, const GridView& view, const SquareRect& rect);

private:
    TileCache m_tiles;
};

} // namespace zol
