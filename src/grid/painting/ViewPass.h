// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

#include <memory>

#include "grid/painting/GridView.h"

namespace zol {

class LineIndex;
class LineMasks;
class RasterPass;
class TileCache;

/// One paint of a view into images, made by GridPainter::BeginImages. Pieces of one picture may be
/// painted one after the other; what they share is looked up once. The painter outlives the pass,
/// and the pattern stays as it is until the last piece.
class ViewPass {
public:
    ViewPass(const GridView& view, const SquareRect& rect, const QRect& pixels, TileCache& tiles,
             LineIndex& lines, LineMasks& lineMasks);
    ~ViewPass();
    ViewPass(const ViewPass&) = delete;
    ViewPass& operator=(const ViewPass&) = delete;

    /// Paints a piece into all of an image of Format_RGB32 whose upper left pixel is the device's
    /// pixel `position`. What lies outside the rectangle's squares is left alone.
    void Paint(QImage& image, QPoint position);

private:
    /// Bytes of the pixels that are painted, squares and then lines, before going on to the next.
    static constexpr int BandBytes = 256 * 1024;

    void PaintWithLines(QImage& image, QPoint position, const QRect& area,
                        const SquareRect& squares);

    GridView m_view;
    LineIndex& m_lines;
    LineMasks& m_lineMasks;
    std::unique_ptr<RasterPass> m_squares; ///< null if there is nothing to paint
};

} // namespace zol
