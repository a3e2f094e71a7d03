// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/PicturePainter.h"

#include <QRegion>

#include <algorithm>
#include <cmath>

namespace zol {

namespace {

/// From here on a pixel of the picture is seen as a square.
constexpr double SquaresFrom = 2;

ScreenPixel Mixed(ScreenPixel first, ScreenPixel second, unsigned share) {
    constexpr ScreenPixel lanes = 0x00FF00FFU;
    const unsigned rest = 256 - share;
    const ScreenPixel even = ((first & lanes) * rest + (second & lanes) * share) >> 8U;
    const ScreenPixel odd = ((first >> 8U) & lanes) * rest + ((second >> 8U) & lanes) * share;
    return (even & lanes) | (odd & ~lanes);
}

/// A pixel that is not opaque, over the ground.
QRgb Over(ScreenPixel pixel, QRgb ground) {
    const unsigned rest = 255 - (pixel >> 24U);
    const auto channel = [&](unsigned shift) {
        const unsigned behind = (((ground >> shift) & 255U) * rest + 127U) / 255U;
        return std::min(255U, ((pixel >> shift) & 255U) + behind) << shift;
    };
    return 0xFF000000U | channel(16) | channel(8) | channel(0);
}

bool IsSmooth(double scale) {
    return scale < SquaresFrom && scale != 1;
}

} // namespace

void PicturePainter::FillSources(std::vector<Source>& sources, int from, int count, int contentSize,
                                 int levelSize, bool smooth) {
    sources.resize(static_cast<std::size_t>(count));
    const double step = double(levelSize) / contentSize;
    for (int i = 0; i < count; ++i) {
        const double middle = (from + i + 0.5) * step;
        Source& source = sources[static_cast<std::size_t>(i)];
        if (smooth) {
            const double place = std::clamp(middle - 0.5, 0.0, levelSize - 1.0);
            source.First = static_cast<int>(place);
            source.Second = std::min(source.First + 1, levelSize - 1);
            source.Share = static_cast<unsigned>((place - source.First) * 256);
        } else {
            source.First = std::clamp(static_cast<int>(middle), 0, levelSize - 1);
            source.Second = source.First;
            source.Share = 0;
        }
    }
}

void PicturePainter::PaintRow(QRgb* out, const PictureLevels& levels, int row) const {
    int last = -1;
    ScreenPixel pixel = 0;
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        if (m_columns[i].First != last) {
            last = m_columns[i].First;
            pixel = levels.PixelAt(last, row);
        }
        out[i] = pixel;
    }
}

void PicturePainter::BlendRow(QRgb* out, PictureLevels& levels, int level, const Source& row) {
    const int left = m_columns.front().First;
    const int count = m_columns.back().Second - left + 1;
    const ScreenPixel* upper = levels.Row(level, row.First, left, count, m_upper);
    if (row.Share != 0) {
        const ScreenPixel* lower = levels.Row(level, row.Second, left, count, m_lower);
        m_mixed.resize(static_cast<std::size_t>(count));
        std::transform(upper, upper + count, lower, m_mixed.begin(),
                       [share = row.Share](ScreenPixel first, ScreenPixel second) {
                           return Mixed(first, second, share);
                       });
        upper = m_mixed.data();
    }
    std::transform(m_columns.begin(), m_columns.end(), out, [&](const Source& column) {
        return Mixed(upper[column.First - left], upper[column.Second - left], column.Share);
    });
}

void PicturePainter::Paint(QImage& target, const QRect& rect, PictureLevels& levels,
                           const PicturePlace& place, const PictureGround& ground) {
    const QRect wanted = rect & target.rect();
    const QRect part = levels.HasPicture() ? wanted & place.Content : QRect();
    for (const QRect& beside : QRegion(wanted) - part) {
        for (int y = beside.top(); y <= beside.bottom(); ++y) {
            auto* line = reinterpret_cast<QRgb*>(target.scanLine(y)) + beside.left();
            std::fill_n(line, beside.width(), ground.Desk);
        }
    }
    if (part.isEmpty()) {
        return;
    }
    const double scale = std::max(place.ScaleX(), place.ScaleY());
    const int level = levels.LevelFor(scale);
    const bool smooth = IsSmooth(scale);
    FillSources(m_columns, part.left() - place.Content.left(), part.width(), place.Content.width(),
                levels.WidthOf(level), smooth);
    FillSources(m_rows, part.top() - place.Content.top(), part.height(), place.Content.height(),
                levels.HeightOf(level), smooth);
    for (int y = 0; y < part.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(target.scanLine(part.top() + y)) + part.left();
        const Source& row = m_rows[static_cast<std::size_t>(y)];
        if (smooth) {
            BlendRow(line, levels, level, row);
        } else {
            PaintRow(line, levels, row.First);
        }
        const int down = (part.top() + y - place.Content.top()) / ground.CheckSide;
        for (int x = 0; x < part.width(); ++x) {
            if ((line[x] >> 24U) != 255U) {
                const int across = (part.left() + x - place.Content.left()) / ground.CheckSide;
                line[x] = Over(line[x], (across + down) % 2 == 0 ? ground.Light : ground.Dark);
            }
        }
    }
}

} // namespace zol
