// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "grid/GridScale.h"
#include "model/ZOLTypes.h"

namespace zol {

struct TwipsPoint {
    int X = 0;
    int Y = 0;

    friend bool operator==(const TwipsPoint&, const TwipsPoint&) = default;
};

/// The two edges and the middle of one column or row, in twips.
struct SquareEdges {
    int First = 0;
    int Middle = 0;
    int Last = 0;
};

/// Room in a window, in twips.
struct TwipsSize {
    double Width = 0;
    double Height = 0;
};

/// The arithmetic between squares, twips and zoom percents. Columns and rows count from 1. Cloth
/// counts below 1 count as 1.
namespace GridViewport {

inline constexpr int MinZoom = 1;
inline constexpr int MaxZoom = 1000;

/// Twips of a square, rounded; 0 for squares under half a twip.
[[nodiscard]] int SquareTwips(double percent, int clothCount);
/// Column of a point; may lie outside the pattern.
[[nodiscard]] int XToColumn(double x, int squareTwips);
[[nodiscard]] int YToRow(double y, int squareTwips);
/// Region 1 to 9 of the square at a point; with `fourCorners` only 1, 3, 7 or 9.
[[nodiscard]] int GetSquareRegion(double x, double y, int squareTwipsX, int squareTwipsY,
                                  bool fourCorners);

/// The first edge of a column (or row), snapped to a pixel.
[[nodiscard]] int EdgeOf(int index, double squareTwips, double origin, double twipsPerPixel);
/// Edges of a column (or row), each snapped to a pixel.
[[nodiscard]] SquareEdges EdgesOf(int index, double squareTwips, double origin,
                                  double twipsPerPixel);
/// Where a region 1 to 9 of a square lies. The origin is the upper left corner of square (1, 1).
[[nodiscard]] TwipsPoint GetGridPoint(int column, int row, double originX, double originY,
                                      int region, const GridScale& scale);

[[nodiscard]] int GetGridWidthTwips(int width, int clothCountX, double percent);
[[nodiscard]] int GetGridHeightTwips(int height, int clothCountY, double percent);

/// The percent as SetZoom takes it: 1 to 1000.
[[nodiscard]] int ClampZoom(int percent);
/// The zoom one step further in or out; the same where there is none.
[[nodiscard]] int ZoomIn(int percent);
[[nodiscard]] int ZoomOut(int percent);
/// The largest whole percent at which the rectangle fits the room, before clamping.
[[nodiscard]] int ZoomToRect(const SquareRect& rect, const TwipsSize& room, int clothCountX,
                             int clothCountY);

} // namespace GridViewport

/// GetGridPoint for painters that walk along a column or row: the edges of the last column and
/// row are kept and only the axis that changed is worked out again.
class GridPointCache {
public:
    GridPointCache(const GridScale& scale, double originX, double originY)
        : m_scale(scale),
          m_originX(originX),
          m_originY(originY) {}

    [[nodiscard]] TwipsPoint GetGridPoint(int column, int row, int region);

private:
    GridScale m_scale;
    double m_originX;
    double m_originY;
    bool m_valid = false;
    int m_column = 0;
    int m_row = 0;
    SquareEdges m_x;
    SquareEdges m_y;
};

} // namespace zol
