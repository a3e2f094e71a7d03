// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

#include <memory>
#include <vector>

#include "grid/painting/GridView.h"

namespace zol {

class LineIndex;
class LineMasks;
class RasterPass;
class RasterPlan;
class TileCache;

/// One paint of a view into images, made by GridPainter::BeginImages. Pieces of one picture may be
/// painted one after the other; what they share is looked up once. A large piece is painted by
/// bands on all cores. The painter outlives the pass, and the pattern stays as it is until the last
/// piece.
class ViewPass {
public:
    /// What a painter has for its passes.
    struct Stock {
        TileCache& Tiles;
        LineIndex& Lines;
        LineMasks& Masks;
        int Workers; ///< that may be at work at once
    };

    ViewPass(const GridView& view, const SquareRect& rect, const QRect& pixels, const Stock& stock);
    ~ViewPass();
    ViewPass(const ViewPass&) = delete;
    ViewPass& operator=(const ViewPass&) = delete;

    /// Paints a piece into all of an image of Format_RGB32 whose upper left pixel is the device's
    /// pixel `position`. What lies outside the rectangle's squares is left alone.
    void Paint(QImage& image, QPoint position);

private:
    /// Bytes of the pixels that are painted, squares and then lines, before going on to the next.
    static constexpr int BandBytes = 256 * 1024;
    /// Pixels whose painting takes longer than to wake a helper up.
    static constexpr int WorthHelp = 128 * 1024;

    void PaintBands(QImage& image, QPoint position, const QRect& area, const SquareRect& shown);

    GridView m_view;
    Stock m_stock;
    std::unique_ptr<RasterPlan> m_plan;                 ///< null if there is nothing to paint
    std::vector<std::unique_ptr<RasterPass>> m_squares; ///< of each worker that came
};

} // namespace zol
