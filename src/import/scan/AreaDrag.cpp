// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/scan/AreaDrag.h"

#include <algorithm>
#include <cmath>

namespace zol {

namespace {

struct Span {
    double From = 0.0;
    double Length = 0.0;
};

bool IsNear(double one, double other, double reach) {
    return std::abs(one - other) <= reach;
}

bool IsBetween(double value, double from, double to, double reach) {
    return value >= from - reach && value <= to + reach;
}

/// Between two places, in either order.
Span Between(double one, double other) {
    return {std::min(one, other), std::abs(one - other)};
}

Span Moved(Span span, double by, double room) {
    return {std::clamp(span.From + by, 0.0, std::max(0.0, room - span.Length)), span.Length};
}

/// One side goes to a place, the other stays.
Span Stretched(Span span, bool start, double to) {
    return start ? Between(to, span.From + span.Length) : Between(span.From, to);
}

Span WithinRoom(Span span, double room) {
    const double least = std::min(AreaDrag::LeastSide, room);
    const double from = std::clamp(span.From, 0.0, room - least);
    const double to = std::clamp(span.From + span.Length, from + least, room);
    return {from, to - from};
}

} // namespace

AreaDrag::AreaDrag(const ScanArea& bed, const ScanArea& area, double x, double y, double reach)
    : m_bed(bed),
      m_area(area),
      m_x(x),
      m_y(y) {
    const double right = area.Left + area.Width;
    const double bottom = area.Top + area.Height;
    const bool across = IsBetween(x, area.Left, right, reach);
    const bool down = IsBetween(y, area.Top, bottom, reach);
    m_right = down && IsNear(x, right, reach);
    m_left = down && !m_right && IsNear(x, area.Left, reach);
    m_bottom = across && IsNear(y, bottom, reach);
    m_top = across && !m_bottom && IsNear(y, area.Top, reach);
    // The whole bed has no inside to move, so a new area may begin anywhere in it.
    const bool whole = area.Width >= bed.Width && area.Height >= bed.Height;
    if (m_left || m_right || m_top || m_bottom) {
        m_grip = Grip::Sides;
    } else if (across && down && !whole) {
        m_grip = Grip::Move;
    }
}

ScanArea AreaDrag::To(double x, double y) const {
    x = std::clamp(x, 0.0, m_bed.Width);
    y = std::clamp(y, 0.0, m_bed.Height);
    Span across{m_area.Left, m_area.Width};
    Span down{m_area.Top, m_area.Height};
    switch (m_grip) {
    case Grip::New:
        across = Between(std::clamp(m_x, 0.0, m_bed.Width), x);
        down = Between(std::clamp(m_y, 0.0, m_bed.Height), y);
        break;
    case Grip::Move:
        across = Moved(across, x - m_x, m_bed.Width);
        down = Moved(down, y - m_y, m_bed.Height);
        break;
    case Grip::Sides:
        across = HoldsAcross() ? Stretched(across, m_left, x) : across;
        down = HoldsDown() ? Stretched(down, m_top, y) : down;
        break;
    }
    return Within(m_bed, {across.From, down.From, across.Length, down.Length});
}

ScanArea AreaDrag::Within(const ScanArea& bed, ScanArea area) {
    const Span across = WithinRoom({area.Left, area.Width}, bed.Width);
    const Span down = WithinRoom({area.Top, area.Height}, bed.Height);
    return {across.From, down.From, across.Length, down.Length};
}

} // namespace zol
