// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>

#include <vector>

#include "grid/GridLines.h"
#include "grid/GridView.h"
#include "grid/TileCache.h"

namespace zol {

/// Paints ground, grid lines, stitches and knots of a rectangle of squares straight into the
/// pixels of an image: lines and solid squares a scan line at a time, other squares as copies of
/// tiles.
class RasterGrid {
public:
    RasterGrid(StitchImages& images, SymbolText& symbols) : m_tiles(images, symbols) {}

    /// As GridPainter::PaintImage, without backstitch lines. The area of the image that was
    /// painted.
    QRect Paint(QImage& image, QPoint position, const GridView& view, const SquareRect& rect);

private:
    TileCache m_tiles;
};

} // namespace zol
