// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>

#include <memory>

#include "grid/painting/GridView.h"
#include "grid/painting/PaintColors.h"
#include "grid/painting/StitchImages.h"
#include "grid/painting/SymbolText.h"

class QPainter;
class QRectF;

namespace zol {

class LineIndex;
class LineMasks;
class TileCache;
class ViewPass;

/// Paints patterns: squares in six styles, grid lines, backstitch lines, knots. It has two ways:
/// shape by shape onto any QPainter (paper, where symbols are text and lines stay lines), and
/// straight into an image, for the screen and pictures, with squares that look the same made once
/// and copied. What it has made is kept between calls, so hold on to one. Needs a QGuiApplication.
///
/// Rectangles of squares are cut to the pattern. No painter shows a message or reads a setting.
class GridPainter {
public:
    GridPainter();
    ~GridPainter();
    GridPainter(const GridPainter&) = delete;
    GridPainter& operator=(const GridPainter&) = delete;

    /// Grid lines, squares and backstitch lines of a rectangle of squares. The ground (cloth or
    /// paper) is the caller's.
    void PaintGrid(QPainter& painter, const GridView& view, const SquareRect& rect);
    /// The same straight into an image of Format_RGB32, ground included. `position` is the device
    /// pixel of the grid that the image's upper left pixel shows. What lies outside the
    /// rectangle's squares is left alone.
    void PaintImage(QImage& image, QPoint position, const GridView& view, const SquareRect& rect);
    /// For several images that show pieces of one picture, all of them among these device pixels.
    [[nodiscard]] std::unique_ptr<ViewPass>
    BeginImages(const GridView& view, const SquareRect& rect, const QRect& pixels);

    /// How many threads may paint one image at once, the caller among them; as many as there are
    /// cores unless it is said. The picture is the same.
    void SetWorkers(int workers) { m_workers = workers; }

    void DrawGridLines(QPainter& painter, const GridView& view, const SquareRect& rect);
    /// Stitches, then the knots that touch the squares.
    void DrawSquares(QPainter& painter, const GridView& view, const SquareRect& rect);
    /// The two apart: who paints in strips draws knots when all stitches lie, since a knot reaches
    /// half a square into the next strip.
    void DrawStitches(QPainter& painter, const GridView& view, const SquareRect& rect);
    void DrawKnots(QPainter& painter, const GridView& view, const SquareRect& rect);
    /// Everything in one square, its ground included except on paper. Knots reach half a square
    /// into the neighbours.
    void DrawSquare(QPainter& painter, const GridView& view, int column, int row);
    /// The eight squares round one, for when a knot that reached into them is gone.
    void RedrawNeighbours(QPainter& painter, const GridView& view, int column, int row);
    void DrawBackStitchLines(QPainter& painter, const GridView& view, const SquareRect& rect);

    /// The symbol of a stitch of that kind in the part of the square (or of the knot's rectangle)
    /// that is the kind's.
    void DrawStitchSymbol(QPainter& painter, const GridView& view, const QRectF& rect, int kind,
                          int orientation, int symbol, Colour colour);

    /// Makes the stitch image of a palette entry on a cloth and puts its slot into the palette.
    int BuildStitchImage(int paletteIndex, Palette& palette, Colour cloth);
    /// The slot in the palette, built when there is none.
    int GetPaletteImage(int paletteIndex, Palette& palette, Colour cloth);
    [[nodiscard]] StitchImages& Images() { return *m_images; }
    [[nodiscard]] SymbolText& Symbols() { return *m_symbols; }

private:
    std::unique_ptr<StitchImages> m_images;
    std::unique_ptr<SymbolText> m_symbols;
    std::unique_ptr<LineIndex> m_lines;
    std::unique_ptr<LineMasks> m_lineMasks;
    std::unique_ptr<TileCache> m_tiles;
    int m_workers;
};

} // namespace zol
