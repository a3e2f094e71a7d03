// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/PictureBand.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace zol {

namespace {

int Border(double place, int limit) {
    return static_cast<int>(std::lround(std::clamp(place, 0.0, static_cast<double>(limit))));
}

/// Which of two sides a place takes hold of: the nearer one of those within reach.
unsigned SideAt(double place, int begin, int end, double reach, unsigned first, unsigned second) {
    const double toBegin = std::abs(place - begin);
    const double toEnd = std::abs(place - end);
    if (std::min(toBegin, toEnd) > reach) {
        return PictureBand::Nothing;
    }
    return toBegin < toEnd ? first : second;
}

bool IsWithin(double place, int begin, int end, double reach) {
    return place >= begin - reach && place <= end + reach;
}

} // namespace

void PictureBand::Start(int width, int height) {
    m_width = width;
    m_height = height;
    m_held = Nothing;
    Clear();
}

int PictureBand::Column(double x) const {
    return Border(x, m_width);
}

int PictureBand::Row(double y) const {
    return Border(y, m_height);
}

unsigned PictureBand::PartAt(PicturePoint place, Reach reach) const {
    const int right = m_rect.Left + m_rect.Width;
    const int bottom = m_rect.Top + m_rect.Height;
    if (!HasBand() || !IsWithin(place.X, m_rect.Left, right, reach.Across) ||
        !IsWithin(place.Y, m_rect.Top, bottom, reach.Down)) {
        return Nothing;
    }
    const unsigned sides = SideAt(place.X, m_rect.Left, right, reach.Across, LeftSide, RightSide) |
                           SideAt(place.Y, m_rect.Top, bottom, reach.Down, TopSide, BottomSide);
    return sides == Nothing ? unsigned{Middle} : sides;
}

void PictureBand::Press(PicturePoint place, Reach reach) {
    const unsigned part = PartAt(place, reach);
    if (part == Nothing) {
        PressAnew(place);
        return;
    }
    m_held = part;
    m_from = place;
    m_before = m_rect;
}

void PictureBand::PressAnew(PicturePoint place) {
    m_rect = {Column(place.X), Row(place.Y), 0, 0};
    m_held = RightSide | BottomSide;
    m_from = {static_cast<double>(m_rect.Left), static_cast<double>(m_rect.Top)};
    m_before = m_rect;
}

void PictureBand::Move(int left, int top) {
    m_rect.Left = std::clamp(left, 0, m_width - m_rect.Width);
    m_rect.Top = std::clamp(top, 0, m_height - m_rect.Height);
}

void PictureBand::MoveTo(PicturePoint place) {
    const double across = place.X - m_from.X;
    const double down = place.Y - m_from.Y;
    if (m_held == Middle) {
        Move(Column(std::max(m_before.Left + across, 0.0)),
             Row(std::max(m_before.Top + down, 0.0)));
        return;
    }
    // A side that is pulled past the other one becomes the other one.
    const auto pull = [this](double by, unsigned first, unsigned second, int& begin, int& size,
                             int from, int length, int limit) {
        const int end = from + length;
        if ((m_held & first) != 0) {
            const int side = Border(from + by, limit);
            begin = std::min(side, end);
            size = std::abs(end - side);
        } else if ((m_held & second) != 0) {
            const int side = Border(end + by, limit);
            begin = std::min(side, from);
            size = std::abs(side - from);
        }
    };
    pull(across, LeftSide, RightSide, m_rect.Left, m_rect.Width, m_before.Left, m_before.Width,
         m_width);
    pull(down, TopSide, BottomSide, m_rect.Top, m_rect.Height, m_before.Top, m_before.Height,
         m_height);
}

void PictureBand::Release() {
    m_held = Nothing;
    if (!HasBand()) {
        Clear();
    }
}

void PictureBand::Nudge(int across, int down) {
    if (HasBand()) {
        Move(m_rect.Left + across, m_rect.Top + down);
    }
}

void PictureBand::Stretch(int across, int down) {
    if (HasBand()) {
        m_rect.Width = std::clamp(m_rect.Width + across, 1, m_width - m_rect.Left);
        m_rect.Height = std::clamp(m_rect.Height + down, 1, m_height - m_rect.Top);
    }
}

} // namespace zol
