// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/GridPainter.h"

#include <QPainter>

#include <algorithm>
#include <vector>

#include "grid/painting/BackStitchLines.h"
#include "grid/painting/Cores.h"
#include "grid/painting/GridLines.h"
#include "grid/painting/LineIndex.h"
#include "grid/painting/LineMasks.h"
#include "grid/painting/SquarePainter.h"
#include "grid/painting/StyledLine.h"
#include "grid/painting/TileCache.h"
#include "grid/painting/ViewPass.h"

namespace zol {

namespace {

SquareRect CutToPattern(const GridView& view, const SquareRect& rect) {
    const SquareRect all = view.Everything();
    return {std::max(rect.Left, all.Left), std::max(rect.Top, all.Top),
            std::min(rect.Right, all.Right), std::min(rect.Bottom, all.Bottom)};
}

/// On paper every second column comes first, then those between. Symbols that lie side by side then
/// do not follow one another in a document, where a reader of its text would take them for a word.
std::vector<int> ColumnsInOrder(const SquareRect& rect, RenderTarget target) {
    const int passes = target == TargetPrinter ? 2 : 1;
    std::vector<int> columns;
    for (int pass = 0; pass < passes; ++pass) {
        for (int column = rect.Left + pass; column <= rect.Right; column += passes) {
            columns.push_back(column);
        }
    }
    return columns;
}

} // namespace

GridPainter::GridPainter()
    : m_images(std::make_unique<StitchImages>()),
      m_symbols(std::make_unique<SymbolText>()),
      m_lines(std::make_unique<LineIndex>()),
      m_lineMasks(std::make_unique<LineMasks>()),
      m_tiles(std::make_unique<TileCache>(*m_images, *m_symbols)),
      m_workers(Cores::Count()) {}

GridPainter::~GridPainter() = default;

void GridPainter::PaintGrid(QPainter& painter, const GridView& view, const SquareRect& rect) {
    DrawGridLines(painter, view, rect);
    DrawSquares(painter, view, rect);
    DrawBackStitchLines(painter, view, rect);
}

void GridPainter::PaintImage(QImage& image, QPoint position, const GridView& view,
                             const SquareRect& rect) {
    BeginImages(view, rect, QRect(position, image.size()))->Paint(image, position);
}

std::unique_ptr<ViewPass> GridPainter::BeginImages(const GridView& view, const SquareRect& rect,
                                                   const QRect& pixels) {
    return std::make_unique<ViewPass>(view, CutToPattern(view, rect), pixels,
                                      ViewPass::Stock{*m_tiles, *m_lines, *m_lineMasks, m_workers});
}

void GridPainter::DrawGridLines(QPainter& painter, const GridView& view, const SquareRect& rect) {
    zol::DrawGridLines(painter, view, CutToPattern(view, rect));
}

void GridPainter::DrawSquares(QPainter& painter, const GridView& view, const SquareRect& rect) {
    DrawStitches(painter, view, rect);
    DrawKnots(painter, view, rect);
}

void GridPainter::DrawStitches(QPainter& painter, const GridView& view, const SquareRect& rect) {
    const SquareRect cut = CutToPattern(view, rect);
    if (cut.IsEmpty() || view.Options.StitchStyle == PaintOptions::None) {
        return;
    }
    const SquareSpans x = SquareSpans::Columns(view, cut.Left, cut.Right);
    const SquareSpans y = SquareSpans::Rows(view, cut.Top, cut.Bottom);
    SquarePainter squares(painter, view, *m_images, *m_symbols);
    for (const int column : ColumnsInOrder(cut, view.Options.Target)) {
        for (int row = cut.Top; row <= cut.Bottom; ++row) {
            const StitchCell& cell = view.Source->Cell(column, row);
            if (cell.StitchType != NoStitch) {
                squares.DrawStitches(SquareContent(*view.Source, column, row),
                                     {x.First(column), y.First(row), x.Last(column), y.Last(row)});
            }
        }
    }
}

void GridPainter::DrawKnots(QPainter& painter, const GridView& view, const SquareRect& rect) {
    const SquareRect cut = CutToPattern(view, rect);
    if (cut.IsEmpty() || view.Options.StitchStyle == PaintOptions::None) {
        return;
    }
    std::vector<SquarePos> knotted;
    for (int column = cut.Left; column <= cut.Right; ++column) {
        for (int row = cut.Top; row <= cut.Bottom; ++row) {
            if ((view.Source->Cell(column, row).CellFlags & CellHasKnot) != 0) {
                knotted.push_back({column, row});
            }
        }
    }
    SquarePainter squares(painter, view, *m_images, *m_symbols);
    for (const PlacedKnot& knot : KnotsOf(*view.Source, cut, knotted)) {
        squares.DrawKnot(knot);
    }
}

void GridPainter::DrawSquare(QPainter& painter, const GridView& view, int column, int row) {
    if (!view.Source->IsInGrid(column, row) || view.Options.StitchStyle == PaintOptions::None) {
        return;
    }
    SquarePainter squares(painter, view, *m_images, *m_symbols);
    squares.DrawStitches(SquareContent(*view.Source, column, row), SquarePixels(view, column, row));
    for (const PlacedKnot& knot :
         KnotsOf(*view.Source, {column, row, column, row}, {{column, row}})) {
        squares.DrawKnot(knot);
    }
}

void GridPainter::RedrawNeighbours(QPainter& painter, const GridView& view, int column, int row) {
    for (int y = row - 1; y <= row + 1; ++y) {
        for (int x = column - 1; x <= column + 1; ++x) {
            if (x != column || y != row) {
                DrawSquare(painter, view, x, y);
            }
        }
    }
}

void GridPainter::DrawBackStitchLines(QPainter& painter, const GridView& view,
                                      const SquareRect& rect) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, view.Options.Antialias);
    PainterCanvas canvas(painter);
    zol::DrawBackStitchLines(canvas, view, CutToPattern(view, rect), *m_lines);
    painter.restore();
}

void GridPainter::DrawStitchSymbol(QPainter& painter, const GridView& view, const QRectF& rect,
                                   int kind, int orientation, int symbol, Colour colour) {
    if (kind == StitchFKnot && orientation != KnotNormal) {
        return;
    }
    const QRect whole = rect.toRect();
    SquarePainter squares(painter, view, *m_images, *m_symbols);
    squares.DrawSymbol(
        StitchShapes::SymbolRect(kind, {whole.left(), whole.top(), whole.right(), whole.bottom()}),
        symbol, colour);
}

int GridPainter::BuildStitchImage(int paletteIndex, Palette& palette, Colour cloth) {
    const int slot = m_images->SlotOf(palette.GetFlossRGB(paletteIndex), cloth);
    palette.SetPaletteImage(paletteIndex, slot);
    return slot;
}

int GridPainter::GetPaletteImage(int paletteIndex, Palette& palette, Colour cloth) {
    // The store is asked each time: the floss or the cloth may have another colour by now.
    return BuildStitchImage(paletteIndex, palette, cloth);
}

} // namespace zol
