// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/RasterPlan.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "grid/painting/BackStitchLines.h"
#include "grid/painting/TileCache.h"

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

RasterPlan::RasterPlan(const GridView& view, const SquareRect& rect, const QRect& pixels,
                       TileCache& tiles)
    : m_view(view),
      m_tiles(tiles),
      m_all(ShownIn(rect, pixels)) {
    if (!m_all.IsEmpty()) {
        m_x = SquareSpans::Columns(m_view, m_all.Left, m_all.Right);
        m_y = SquareSpans::Rows(m_view, m_all.Top, m_all.Bottom);
    }
}

SquareRect RasterPlan::ShownIn(const SquareRect& rect, const QRect& pixels) const {
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

RasterPlan::Painted RasterPlan::Find(const QSize& size, QPoint position) const {
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

std::vector<int> RasterPlan::BandsOf(const Painted& piece, QPoint position, int rows) const {
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

void RasterPlan::Begin() {
    if (m_paint == 0 || m_paint != m_tiles.Paint()) {
        m_tiles.Begin(m_view);
        m_paint = m_tiles.Paint();
    }
}

bool RasterPlan::IsMuchOfAll(std::size_t work, std::size_t squares, std::size_t table) const {
    const auto rows = static_cast<std::size_t>(m_all.Bottom - m_all.Top) + 1;
    const auto columns = static_cast<std::size_t>(m_all.Right - m_all.Left) + 1;
    return squares > 0 && table <= work * (rows * columns / squares);
}

RasterPlan::DupRange RasterPlan::DupsOf(int row) {
    if (!HasDups()) {
        const std::lock_guard lock(m_finding);
        if (!HasDups()) {
            SortDups();
            m_hasDups.store(true, std::memory_order_release);
        }
    }
    const auto at = static_cast<std::size_t>(row - m_all.Top);
    return {m_dups.data() + m_dupsOfRow[at], m_dups.data() + m_dupsOfRow[at + 1]};
}

void RasterPlan::SortDups() {
    const auto isHere = [this](const DupStitch& dup) {
        return dup.X >= m_all.Left && dup.X <= m_all.Right && dup.Y >= m_all.Top &&
               dup.Y <= m_all.Bottom;
    };
    const auto rowOf = [this](const DupStitch& dup) {
        return static_cast<std::size_t>(dup.Y - m_all.Top);
    };
    m_dupsOfRow.assign(static_cast<std::size_t>(m_all.Bottom - m_all.Top) + 3, 0);
    std::vector<const DupStitch*> found;
    m_view.Source->DupStitches().ForEach([&](const DupStitch& dup) {
        if (isHere(dup)) {
            found.push_back(&dup);
            ++m_dupsOfRow[rowOf(dup) + 2];
        }
    });
    std::partial_sum(m_dupsOfRow.begin(), m_dupsOfRow.end(), m_dupsOfRow.begin());
    m_dups.resize(found.size());
    for (const DupStitch* dup : found) {
        m_dups[m_dupsOfRow[rowOf(*dup) + 1]++] = dup;
    }
}

const std::vector<PlacedKnot>& RasterPlan::Knots() {
    if (!HasKnots()) {
        const std::lock_guard lock(m_finding);
        if (!HasKnots()) {
            m_knots = KnotsOf(*m_view.Source, m_all);
            m_hasKnots.store(true, std::memory_order_release);
        }
    }
    return m_knots;
}

} // namespace zol
