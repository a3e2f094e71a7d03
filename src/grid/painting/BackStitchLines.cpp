// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/BackStitchLines.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

#include "grid/GridViewport.h"
#include "grid/painting/LineIndex.h"
#include "grid/painting/LineShapes.h"
#include "grid/painting/StyledLine.h"
#include "model/Rounding.h"

namespace zol {

namespace {

/// One axis of MissesRect: squares and thirds (0 to 2) of both ends.
bool MissesAcross(int a, int thirdA, int b, int thirdB, int low, int high) {
    if (a > high && b > high) {
        return a != high + 1 || b != high + 1 || thirdA != 0 || thirdB != 0;
    }
    if (a < low && b < low) {
        return a != low - 1 || b != low - 1 || thirdA != 2 || thirdB != 2;
    }
    return false;
}

/// Pixels of the ends that lines have in a stretch of columns (or rows), each worked out once for
/// all of the lines of a paint, when the first of them asks.
class EndPixels {
public:
    EndPixels(int first, int last, double squareTwips, double origin, double twipsPerPixel)
        : m_first(first),
          m_squareTwips(squareTwips),
          m_origin(origin),
          m_twipsPerPixel(twipsPerPixel),
          m_pixels(static_cast<std::size_t>(last - first) + 1) {}
    /// `third`: 0 to 2, the square's near edge, middle and far edge.
    [[nodiscard]] int At(int index, int third) {
        const auto at = static_cast<std::size_t>(index - m_first);
        const auto which = static_cast<std::size_t>(third);
        if (index < m_first || at >= m_pixels.size()) {
            return Find(index)[which];
        }
        Ends& ends = m_pixels[at];
        if (!ends.Known) {
            ends = {true, Find(index)};
        }
        return ends.Pixels[which];
    }

private:
    struct Ends {
        bool Known = false;
        std::array<int, 3> Pixels{};
    };

    [[nodiscard]] std::array<int, 3> Find(int index) const {
        const SquareEdges edges =
            GridViewport::EdgesOf(index, m_squareTwips, m_origin, m_twipsPerPixel);
        return {ToNearestPixel(edges.First, m_twipsPerPixel),
                ToNearestPixel(edges.Middle, m_twipsPerPixel),
                ToNearestPixel(edges.Last, m_twipsPerPixel)};
    }

    int m_first;
    double m_squareTwips;
    double m_origin;
    double m_twipsPerPixel;
    std::vector<Ends> m_pixels;
};

class LinesPainter {
public:
    LinesPainter(LineCanvas& canvas, const GridView& view, const SquareRect& rect)
        : m_canvas(canvas),
          m_view(view),
          m_x(rect.Left, rect.Right, view.Scale.SquareTwipsX, view.OriginX,
              view.Scale.TwipsPerPixelX),
          m_y(rect.Top, rect.Bottom, view.Scale.SquareTwipsY, view.OriginY,
              view.Scale.TwipsPerPixelY) {
        const TwipsPoint upperLeft = PointOf(rect.Left, rect.Top, 1);
        const TwipsPoint lowerRight = PointOf(rect.Right, rect.Bottom, 9);
        m_bounds = {upperLeft.X, upperLeft.Y, lowerRight.X, lowerRight.Y};
        m_pen.Ground = view.Options.Ground();
        m_pen.Width = GetBackStitchPenWidth(view);
        m_pen.SquareWidth = view.Scale.SquareTwipsX / view.Scale.TwipsPerPixelX;
        m_pen.SquareHeight = view.Scale.SquareTwipsY / view.Scale.TwipsPerPixelY;
    }

    void Draw(const BackStitchLine& line) {
        const bool black = m_view.Options.LinesStyle == PaintOptions::BlackLines;
        m_pen.Style = line.LineStyle;
        m_pen.Floss = black ? 0 : m_view.Source->GetPalette().GetFlossRGB(line.PaletteIndex);
        const bool paper = m_view.Options.Target == TargetPrinter;
        if (!paper && m_canvas.Clips() && !IsLong(line)) {
            // From its own ends, so that neither slope nor pattern moves with what of it shows.
            // What lies outside is the canvas's to cut.
            m_canvas.Line(PixelsOf(line.StartX, line.StartY, line.StartPos),
                          PixelsOf(line.EndX, line.EndY, line.EndPos), m_pen);
            return;
        }
        const TwipsPoint start = PointOf(line.StartX, line.StartY, line.StartPos);
        const TwipsPoint end = PointOf(line.EndX, line.EndY, line.EndPos);
        TwipsPoint cutStart = start;
        TwipsPoint cutEnd = end;
        if (!LineShapes::ClipLineToRect(cutStart, cutEnd, m_bounds)) {
            return;
        }
        // A broken line keeps its pattern in place; a page begins it anew.
        const bool uncut = !paper && (line.LineStyle != LineStraight || m_canvas.Clips());
        m_canvas.Line(ToPixels(uncut ? start : cutStart), ToPixels(uncut ? end : cutEnd), m_pen);
    }

private:
    /// Whether it may be much work to find out on the canvas that nothing of a line shows.
    [[nodiscard]] static bool IsLong(const BackStitchLine& line) {
        constexpr int many = 64;
        return std::abs(line.EndX - line.StartX) + std::abs(line.EndY - line.StartY) > many;
    }
    [[nodiscard]] TwipsPoint PointOf(int column, int row, int region) const {
        return GridViewport::GetGridPoint(column, row, m_view.OriginX, m_view.OriginY, region,
                                          m_view.Scale);
    }
    [[nodiscard]] QPoint ToPixels(const TwipsPoint& point) const {
        return {ToNearestPixel(point.X, m_view.Scale.TwipsPerPixelX),
                ToNearestPixel(point.Y, m_view.Scale.TwipsPerPixelY)};
    }
    [[nodiscard]] QPoint PixelsOf(int column, int row, int region) {
        return {m_x.At(column, PositionColumn(region)), m_y.At(row, PositionRow(region))};
    }

    LineCanvas& m_canvas;
    const GridView& m_view;
    EndPixels m_x;
    EndPixels m_y;
    LineShapes::Bounds m_bounds;
    LinePen m_pen;
};

} // namespace

int GetBackStitchPenWidth(const GridView& view) {
    const double twips =
        RoundHalfEven(view.Options.BackStitchWidthPercent / 100 * view.Scale.LineBaseTwips);
    return std::max(1, ToPixel(twips, view.Scale.TwipsPerPixelX));
}

bool MissesRect(const BackStitchLine& line, const SquareRect& rect) {
    return MissesAcross(line.StartX, PositionColumn(line.StartPos), line.EndX,
                        PositionColumn(line.EndPos), rect.Left, rect.Right) ||
           MissesAcross(line.StartY, PositionRow(line.StartPos), line.EndY,
                        PositionRow(line.EndPos), rect.Top, rect.Bottom);
}

void DrawBackStitchLines(LineCanvas& canvas, const GridView& view, const SquareRect& rect,
                         LineIndex& index) {
    if (view.Options.LinesStyle == PaintOptions::None || rect.IsEmpty()) {
        return;
    }
    const std::vector<int> numbers = index.Find(*view.Source, rect);
    if (numbers.empty()) {
        return;
    }
    LinesPainter lines(canvas, view, rect);
    for (const int number : numbers) {
        const BackStitchLine line = view.Source->GetBackStitchLine(number);
        if (!MissesRect(line, rect)) {
            lines.Draw(line);
        }
    }
}

} // namespace zol
