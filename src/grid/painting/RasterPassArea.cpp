// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/RasterPass.h"

#include <algorithm>
#include <utility>

#include "grid/painting/BackStitchLines.h"

namespace zol {

namespace {

/// The columns (or rows) of `first` to `last` that may show something between two device pixels:
/// those there, and those out of which it reaches so many pixels.
std::pair<int, int> ShownOf(int first, int last, int fromPixel, int toPixel, double reach,
                            double squareTwips, double origin, double twipsPerPixel) {
    if (squareTwips <= 0) {
        return {first, last};
    }
    const double from = ((fromPixel - reach) * twipsPerPixel - origin) / squareTwips - 2;
    const double to = ((toPixel + reach) * twipsPerPixel - origin) / squareTwips + 3;
    return {std::clamp(static_cast<int>(std::clamp(from, -1e9, 1e9)), first, last + 1),
            std::clamp(static_cast<int>(std::clamp(to, -1e9, 1e9)), first - 1, last)};
}

} // namespace

SquareRect RasterPass::ShownIn(const SquareRect& rect, const QRect& pixels) const {
    const GridScale& s = m_view.Scale;
    // Marks and waves reach less than a square to the side of a line, and so do knots. Pens are a
    // pixel wide at least, which at the smallest zooms is many squares.
    const double reach =
        std::max(s.SquareTwipsX / s.TwipsPerPixelX, s.SquareTwipsY / s.TwipsPerPixelY) +
        GetBackStitchPenWidth(m_view) + 2;
    const auto [left, right] =
        ShownOf(rect.Left, rect.Right, pixels.left(), pixels.left() + pixels.width(), reach,
                s.SquareTwipsX, m_view.OriginX, s.TwipsPerPixelX);
    const auto [top, bottom] =
        ShownOf(rect.Top, rect.Bottom, pixels.top(), pixels.top() + pixels.height(), reach,
                s.SquareTwipsY, m_view.OriginY, s.TwipsPerPixelY);
    return {left, top, right, bottom};
}

RasterPass::Painted RasterPass::Find(const QSize& size, QPoint position) const {
    if (m_all.IsEmpty()) {
        return {{}, m_all};
    }
    const SquareRect rect = ShownIn(m_all, QRect(position, size));
    if (rect.IsEmpty()) {
        return {{}, rect};
    }
    // The closing lines are painted too, as far as the image holds them.
    const QPoint corner(m_x->Edge(rect.Left), m_y->Edge(rect.Top));
    const QPoint end(m_x->First(rect.Right + 1), m_y->First(rect.Bottom + 1));
    const QRect squares(corner - position, end - position - QPoint(1, 1));
    return {squares.intersected(QRect(QPoint(0, 0), size)), rect};
}

std::vector<int> RasterPass::BandsOf(const Painted& piece, QPoint position, int rows) const {
    std::vector<int> bands{0};
    const int first = position.y() + piece.Area.top();
    for (int number = piece.Squares.Top; number <= piece.Squares.Bottom; ++number) {
        const int edge = m_y->Edge(number) - first;
        if (edge > bands.back() && edge < piece.Area.height() &&
            m_y->Edge(number + 1) - first - bands.back() > rows) {
            bands.push_back(edge);
        }
    }
    bands.push_back(piece.Area.height());
    return bands;
}

void RasterPass::BeginTiles() {
    // Another paint may have come between two pieces.
    if (m_paint == 0 || m_paint != m_tiles.Paint()) {
        m_tiles.Begin(m_view);
        m_paint = m_tiles.Paint();
        m_across.reset();
    }
}

void RasterPass::FindTiles() {
    const Across across{m_position.x(), m_rect.Left, m_rect.Right, m_area.left(), m_area.right()};
    if (m_across != across) {
        FindColumns();
        m_across = across;
    }
    m_rows.Find(*m_y, m_rect.Top, m_rect.Bottom, m_position.y(), m_area.top(), m_area.bottom());
    m_sizes.clear();
    for (const int height : m_rows.Sizes) {
        for (const int width : m_columns.Sizes) {
            m_sizes.push_back(&m_tiles.SizeOf(width, height));
        }
    }
}

void RasterPass::FindColumns() {
    m_columns.Find(*m_x, m_rect.Left, m_rect.Right, m_position.x(), m_area.left(), m_area.right());
    m_copiers.clear();
    for (const int width : m_columns.Sizes) {
        m_copiers.push_back(TileCopierFor(width));
    }
    m_lineRows.clear();
    m_groundRow = TemplateRow(m_tiles.GroundOf(), true);
    if (m_view.Options.StitchStyle == ShowColorSquares) {
        PrepareSolidLine();
    } else {
        FindRuns();
    }
}

} // namespace zol
