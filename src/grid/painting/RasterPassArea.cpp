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

void RasterPass::FindArea() {
    const GridScale& s = m_view.Scale;
    // Marks and waves reach less than a square to the side of a line, and so do knots. Pens are a
    // pixel wide at least, which at the smallest zooms is many squares.
    const double reach =
        std::max(s.SquareTwipsX / s.TwipsPerPixelX, s.SquareTwipsY / s.TwipsPerPixelY) +
        GetBackStitchPenWidth(m_view) + 2;
    const auto [left, right] =
        ShownOf(m_rect.Left, m_rect.Right, m_position.x(), m_position.x() + m_buffer.Width, reach,
                s.SquareTwipsX, m_view.OriginX, s.TwipsPerPixelX);
    const auto [top, bottom] =
        ShownOf(m_rect.Top, m_rect.Bottom, m_position.y(), m_position.y() + m_buffer.Height, reach,
                s.SquareTwipsY, m_view.OriginY, s.TwipsPerPixelY);
    m_rect = {left, top, right, bottom};
    if (m_rect.IsEmpty()) {
        return;
    }
    m_x = SquareSpans::Columns(m_view, left, right);
    m_y = SquareSpans::Rows(m_view, top, bottom);
    // The closing lines are painted too, as far as the image holds them.
    const QPoint corner(m_x->Edge(left), m_y->Edge(top));
    const QPoint end(m_x->First(right + 1), m_y->First(bottom + 1));
    m_area = QRect(corner - m_position, end - m_position - QPoint(1, 1))
                 .intersected(QRect(0, 0, m_buffer.Width, m_buffer.Height));
}

void RasterPass::Axis::Find(const SquareSpans& spans, int from, int to, int position, int areaFirst,
                            int areaLast) {
    for (int number = from; number <= to; ++number) {
        const int edge = spans.Edge(number) - position;
        const int first = spans.First(number) - position;
        const int last = spans.Last(number) - position;
        const bool shown = last >= first && last >= areaFirst && first <= areaLast;
        PlaceOf.push_back(shown ? static_cast<int>(Shown.size()) : -1);
        if (!shown) {
            continue;
        }
        const int size = last - first + 1;
        const auto known = std::find(Sizes.begin(), Sizes.end(), size);
        const auto which = static_cast<std::size_t>(known - Sizes.begin());
        if (known == Sizes.end()) {
            Sizes.push_back(size);
        }
        Shown.push_back({number, edge, first, last, which, first < areaFirst || last > areaLast});
    }
    FindPitch();
}

void RasterPass::Axis::FindPitch() {
    if (Shown.empty()) {
        return;
    }
    Pitch = Shown.front().Last + 1 - Shown.front().Edge;
    int edge = Shown.front().Edge;
    for (const Stretch& stretch : Shown) {
        if (stretch.Edge != edge || stretch.Last + 1 - edge != Pitch) {
            Pitch = 0;
            return;
        }
        edge += Pitch;
    }
}

const RasterPass::Stretch* RasterPass::Axis::At(int number, int from) const {
    const auto at = static_cast<std::size_t>(number - from);
    if (number < from || at >= PlaceOf.size() || PlaceOf[at] < 0) {
        return nullptr;
    }
    return &Shown[static_cast<std::size_t>(PlaceOf[at])];
}

void RasterPass::FindTiles() {
    m_columns.Find(*m_x, m_rect.Left, m_rect.Right, m_position.x(), m_area.left(), m_area.right());
    m_rows.Find(*m_y, m_rect.Top, m_rect.Bottom, m_position.y(), m_area.top(), m_area.bottom());
    for (const int height : m_rows.Sizes) {
        for (const int width : m_columns.Sizes) {
            m_sizes.push_back(&m_tiles.SizeOf(width, height));
        }
    }
    for (const int width : m_columns.Sizes) {
        m_copiers.push_back(TileCopierFor(width));
    }
}

} // namespace zol
