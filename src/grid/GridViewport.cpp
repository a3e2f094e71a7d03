// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/GridViewport.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "model/Rounding.h"

namespace zol {

namespace {

/// The nearest whole number, brought into the range of int.
int RoundClamped(double value) {
    constexpr double limit = 2'000'000'000;
    return RoundToInt(std::clamp(value, -limit, limit));
}

/// Snaps an edge, in whole twips, to the pixel that it falls into.
int Snapped(double edge, double twipsPerPixel) {
    const auto twips = static_cast<std::int64_t>(std::clamp(edge, -2e9, 2e9));
    const auto pixel = static_cast<std::int64_t>(RoundHalfEven(twipsPerPixel * 100));
    if (pixel < 1) {
        return static_cast<int>(twips);
    }
    const auto beyond = static_cast<double>(twips * 100 % pixel) / 100;
    return static_cast<int>(twips - static_cast<std::int64_t>(RoundHalfEven(beyond)));
}

int ToSquare(double twips, int squareTwips) {
    return RoundClamped(twips) / std::max(1, squareTwips) + 1;
}

/// How far into its square a point lies, in percent.
double PercentOf(double twips, int squareTwips) {
    const int size = std::max(1, squareTwips);
    return 100.0 * (RoundClamped(twips) % size) / size;
}

/// Third 0 to 2 of a square. What lies between 33 and 34 belongs to the last one.
int ThirdOf(double percent) {
    if (percent >= 0 && percent <= 33) {
        return 0;
    }
    return percent >= 34 && percent <= 66 ? 1 : 2;
}

} // namespace

namespace GridViewport {

int SquareTwips(double percent, int clothCount) {
    return RoundClamped(percent / 100 * 1440 / std::max(1, clothCount));
}

int XToColumn(double x, int squareTwips) {
    return ToSquare(x, squareTwips);
}

int YToRow(double y, int squareTwips) {
    return ToSquare(y, squareTwips);
}

int GetSquareRegion(double x, double y, int squareTwipsX, int squareTwipsY, bool fourCorners) {
    const double px = PercentOf(x, squareTwipsX);
    const double py = PercentOf(y, squareTwipsY);
    if (fourCorners) {
        // Exactly half way belongs to the left and to the top, by two different limits.
        return (px < 51 ? 1 : 3) + (py > 50 ? 6 : 0);
    }
    return ThirdOf(px) + 1 + 3 * ThirdOf(py);
}

int EdgeOf(int index, double squareTwips, double origin, double twipsPerPixel) {
    return Snapped(RoundHalfEven((index - 1.0) * squareTwips + origin), twipsPerPixel);
}

SquareEdges EdgesOf(int index, double squareTwips, double origin, double twipsPerPixel) {
    SquareEdges edges;
    edges.First = EdgeOf(index, squareTwips, origin, twipsPerPixel);
    edges.Last = EdgeOf(index + 1, squareTwips, origin, twipsPerPixel);
    edges.Middle = edges.First + (edges.Last - edges.First) / 2;
    return edges;
}

TwipsPoint GetGridPoint(int column, int row, double originX, double originY, int region,
                        const GridScale& scale) {
    return GridPointCache(scale, originX, originY).GetGridPoint(column, row, region);
}

int GetGridWidthTwips(int width, int clothCountX, double percent) {
    return RoundClamped(static_cast<double>(width) / std::max(1, clothCountX) * 1440 * percent /
                        100);
}

int GetGridHeightTwips(int height, int clothCountY, double percent) {
    return GetGridWidthTwips(height, clothCountY, percent);
}

int ClampZoom(int percent) {
    return std::clamp(percent, MinZoom, MaxZoom);
}

int ZoomIn(int percent) {
    if (percent >= MaxZoom) {
        return percent;
    }
    const int step = percent >= 100 ? 100 : 10;
    return percent / step * step + step;
}

int ZoomOut(int percent) {
    if (percent < 11) {
        return percent;
    }
    const int step = percent <= 100 ? 10 : 100;
    return percent % step != 0 ? percent / step * step : percent - step;
}

int ZoomToRect(const SquareRect& rect, const TwipsSize& room, int clothCountX, int clothCountY) {
    const double width = std::max(1, rect.Right - rect.Left + 1);
    const double height = std::max(1, rect.Bottom - rect.Top + 1);
    const double zoomX = room.Width / (width / std::max(1, clothCountX) * 1440) * 100;
    const double zoomY = room.Height / (height / std::max(1, clothCountY) * 1440) * 100;
    return RoundClamped(std::floor(std::min(zoomX, zoomY)));
}

} // namespace GridViewport

TwipsPoint GridPointCache::GetGridPoint(int column, int row, int region) {
    if (!m_valid || column != m_column) {
        m_x =
            GridViewport::EdgesOf(column, m_scale.SquareTwipsX, m_originX, m_scale.TwipsPerPixelX);
    }
    if (!m_valid || row != m_row) {
        m_y = GridViewport::EdgesOf(row, m_scale.SquareTwipsY, m_originY, m_scale.TwipsPerPixelY);
    }
    m_valid = true;
    m_column = column;
    m_row = row;
    const auto pick = [](const SquareEdges& edges, int third) {
        return third == 0 ? edges.First : third == 1 ? edges.Middle : edges.Last;
    };
    return {pick(m_x, PositionColumn(region)), pick(m_y, PositionRow(region))};
}

} // namespace zol
