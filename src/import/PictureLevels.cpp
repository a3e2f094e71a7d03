// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/PictureLevels.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "import/PictureOps.h"

namespace zol {

namespace {

/// The mean of four pixels, two channels at a time.
ScreenPixel MeanOf(ScreenPixel a, ScreenPixel b, ScreenPixel c, ScreenPixel d) {
    constexpr ScreenPixel lanes = 0x00FF00FFU;
    constexpr ScreenPixel half = 0x00020002U;
    const ScreenPixel even = (a & lanes) + (b & lanes) + (c & lanes) + (d & lanes) + half;
    const ScreenPixel odd = ((a >> 8U) & lanes) + ((b >> 8U) & lanes) + ((c >> 8U) & lanes) +
                            ((d >> 8U) & lanes) + half;
    return ((even >> 2U) & lanes) | (((odd >> 2U) & lanes) << 8U);
}

int SizeAt(int size, int level) {
    return std::max(1, static_cast<int>((std::int64_t{size} + (std::int64_t{1} << level) - 1) >>
                                        static_cast<unsigned>(level)));
}

} // namespace

void PictureLevels::Take(SharedPicture picture, Empty empty) {
    m_picture = std::move(picture);
    m_empty = empty;
    m_levels.clear();
}

ScreenPixel PictureLevels::OnScreen(Colour colour) const {
    const bool empty =
        (colour & 0xFF000000U) != 0 || (m_empty == Empty::White && colour == EraseColor);
    const ScreenPixel opaque =
        0xFF000000U | ((colour & 0xFFU) << 16U) | (colour & 0xFF00U) | ((colour >> 16U) & 0xFFU);
    return empty ? 0 : opaque;
}

int PictureLevels::LevelFor(double scale) const {
    int level = 0;
    while (scale <= 0.5 && (WidthOf(level) > 1 || HeightOf(level) > 1)) {
        scale *= 2;
        ++level;
    }
    return level;
}

int PictureLevels::WidthOf(int level) const {
    return SizeAt(m_picture->ImageWidth(), level);
}

int PictureLevels::HeightOf(int level) const {
    return SizeAt(m_picture->ImageHeight(), level);
}

const ScreenPixel* PictureLevels::Row(int level, int y, int left, int count,
                                      std::vector<ScreenPixel>& scratch) {
    if (level > 0) {
        MakeUpTo(level);
        const Level& made = m_levels[static_cast<std::size_t>(level) - 1];
        return made.Pixels.data() +
               static_cast<std::size_t>(y) * static_cast<std::size_t>(made.Width) +
               static_cast<std::size_t>(left);
    }
    scratch.resize(static_cast<std::size_t>(count));
    const Colour* from = m_picture->Row(y) + left;
    std::transform(from, from + count, scratch.begin(),
                   [this](Colour colour) { return OnScreen(colour); });
    return scratch.data();
}

void PictureLevels::MakeUpTo(int level) {
    while (static_cast<int>(m_levels.size()) < level) {
        const int next = static_cast<int>(m_levels.size()) + 1;
        Level made{WidthOf(next), HeightOf(next), {}};
        made.Pixels.resize(static_cast<std::size_t>(made.Width) *
                           static_cast<std::size_t>(made.Height));
        m_levels.push_back(std::move(made));
        Reduce(next, {0, 0, m_levels.back().Width, m_levels.back().Height});
    }
}

/// `rect` lies on the level that is made.
void PictureLevels::Reduce(int level, const PixelRect& rect) {
    Level& to = m_levels[static_cast<std::size_t>(level) - 1];
    const int fromWidth = WidthOf(level - 1);
    const int fromHeight = HeightOf(level - 1);
    const int left = 2 * rect.Left;
    const int count = std::min(2 * rect.Width, fromWidth - left);
    for (int y = rect.Top; y < rect.Top + rect.Height; ++y) {
        const int lowerRow = std::min(2 * y + 1, fromHeight - 1);
        const ScreenPixel* upper = Row(level - 1, 2 * y, left, count, m_upper);
        const ScreenPixel* lower = Row(level - 1, lowerRow, left, count, m_lower);
        ScreenPixel* out = to.Pixels.data() +
                           static_cast<std::size_t>(y) * static_cast<std::size_t>(to.Width) +
                           static_cast<std::size_t>(rect.Left);
        const int pairs = count / 2;
        for (int x = 0; x < pairs; ++x) {
            out[x] = MeanOf(upper[2 * x], upper[2 * x + 1], lower[2 * x], lower[2 * x + 1]);
        }
        // An odd side has no neighbour at its end.
        if (pairs < rect.Width) {
            const ScreenPixel above = upper[count - 1];
            const ScreenPixel below = lower[count - 1];
            out[pairs] = MeanOf(above, above, below, below);
        }
    }
}

void PictureLevels::Changed(const PixelRect& rect) {
    if (!HasPicture()) {
        return;
    }
    PixelRect part = ClipToPicture(rect, m_picture->ImageWidth(), m_picture->ImageHeight());
    if (part.Width < 1 || part.Height < 1) {
        return;
    }
    for (int level = 1; level <= static_cast<int>(m_levels.size()); ++level) {
        const int right = (part.Left + part.Width - 1) / 2;
        const int bottom = (part.Top + part.Height - 1) / 2;
        part.Left /= 2;
        part.Top /= 2;
        part.Width = right - part.Left + 1;
        part.Height = bottom - part.Top + 1;
        Reduce(level, part);
    }
}

} // namespace zol
