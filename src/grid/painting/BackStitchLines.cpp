// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/BackStitchLines.h"

#include <algorithm>

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

class LinesPainter {
public:
    LinesPainter(LineCanvas& canvas, const GridView& view, const SquareRect& rect)
        : m_canvas(canvas),
          m_view(view) {
        const TwipsPoint upperLeft = PointOf(rect.Left, rect.Top, 1);
        const TwipsPoint lowerRight = PointOf(rect.Right, rect.Bottom, 9);
        m_bounds = {upperLeft.X, upperLeft.Y, lowerRight.X, lowerRight.Y};
        m_pen.Ground = view.Options.Ground();
        m_pen.Width = GetBackStitchPenWidth(view);
        m_pen.SquareWidth = view.Scale.SquareTwipsX / view.Scale.TwipsPerPixelX;
        m_pen.SquareHeight = view.Scale.SquareTwipsY / view.Scale.TwipsPerPixelY;
    }

    void Draw(const BackStitchLine& line) {
        const TwipsPoint start = PointOf(line.StartX, line.StartY, line.StartPos);
        const TwipsPoint end = PointOf(line.EndX, line.EndY, line.EndPos);
        // A broken line is laid out from its own end, so that its pattern stays in place however
        // much of it shows; so is any line on a canvas that clips, lest its slope move by a pixel.
        // A page begins a broken line anew.
        TwipsPoint cutStart = start;
        TwipsPoint cutEnd = end;
        if (!LineShapes::ClipLineToRect(cutStart, cutEnd, m_bounds)) {
            return;
        }
        const bool uncut = m_view.Options.Target != TargetPrinter &&
                           (line.LineStyle != LineStraight || m_canvas.Clips());
        const bool black = m_view.Options.LinesStyle == PaintOptions::BlackLines;
        m_pen.Style = line.LineStyle;
        m_pen.Floss = black ? 0 : m_view.Source->GetPalette().GetFlossRGB(line.PaletteIndex);
        m_canvas.Line(ToPixels(uncut ? start : cutStart), ToPixels(uncut ? end : cutEnd), m_pen);
    }

private:
    [[nodiscard]] TwipsPoint PointOf(int column, int row, int region) const {
        return GridViewport::GetGridPoint(column, row, m_view.OriginX, m_view.OriginY, region,
                                          m_view.Scale);
    }
    [[nodiscard]] QPoint ToPixels(const TwipsPoint& point) const {
        return {ToNearestPixel(point.X, m_view.Scale.TwipsPerPixelX),
                ToNearestPixel(point.Y, m_view.Scale.TwipsPerPixelY)};
    }

    LineCanvas& m_canvas;
    const GridView& m_view;
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
    LinesPainter lines(canvas, view, rect);
    for (const int number : index.Find(*view.Source, rect)) {
        const BackStitchLine line = view.Source->GetBackStitchLine(number);
        if (!MissesRect(line, rect)) {
            lines.Draw(line);
        }
    }
}

} // namespace zol
