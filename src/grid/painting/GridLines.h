// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <vector>

#include "grid/painting/GridView.h"
#include "grid/painting/StitchShapes.h"

class QPainter;

namespace zol {

/// Width in pixels of a grid line; 0 where the squares are too small for it. Normal lines go
/// first, bold ones stay while a square is a pixel wide.
[[nodiscard]] int GetNormalGridLineWidth(const GridView& view);
[[nodiscard]] int GetBoldGridLineWidth(const GridView& view);

/// Pixels of a stretch of columns (or rows). A line lies inside the left (or top) edge of the
/// square that follows it, so a square begins behind its line and ends where the next begins.
class SquareSpans {
public:
    /// Columns `first` to `last`, and the edge behind the last.
    static SquareSpans Columns(const GridView& view, int first, int last);
    static SquareSpans Rows(const GridView& view, int first, int last);

    /// Pixel where a column's line begins; `index` up to one past the last.
    [[nodiscard]] int Edge(int index) const { return m_edges[At(index)]; }
    /// First pixel behind the line, and the last pixel.
    [[nodiscard]] int First(int index) const { return m_edges[At(index)] + m_insets[At(index)]; }
    [[nodiscard]] int Last(int index) const { return m_edges[At(index) + 1] - 1; }
    [[nodiscard]] bool IsBold(int index) const { return m_bold[At(index)]; }
    /// Width of the line before the column; 0 without one.
    [[nodiscard]] int LineWidth(int index) const { return m_insets[At(index)]; }

private:
    struct Axis {
        double squareTwips, origin, twipsPerPixel;
        int boldEvery, numberOffset;
    };
    SquareSpans(const GridView& view, const Axis& axis, int first, int last);
    [[nodiscard]] std::size_t At(int index) const {
        return static_cast<std::size_t>(index - m_first);
    }

    int m_first;
    std::vector<int> m_edges;
    std::vector<int> m_insets;
    std::vector<bool> m_bold;
};

/// The colour of the horizontal line above a row.
[[nodiscard]] Colour RowLineColour(const PaintOptions& options, int row, bool bold);

/// The pixels of one square as `view` shows it, its lines excluded.
[[nodiscard]] PixelRect SquarePixels(const GridView& view, int column, int row);

/// Paints the lines of a rectangle of squares, the closing ones included: normal columns, rows,
/// and bold columns over them.
void DrawGridLines(QPainter& painter, const GridView& view, const SquareRect& rect);

} // namespace zol
