// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLine>
#include <QPoint>
#include <QRect>

#include <vector>

#include "grid/GridViewport.h"

namespace zol {

/// The geometry of backstitch lines.
namespace LineShapes {

/// Edges of a rectangle in twips or pixels; a point on an edge lies inside.
struct Bounds {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;
};

/// Cuts a line to a rectangle, keeping its slope; what it was cut to is truncated. False if
/// nothing remains.
[[nodiscard]] bool ClipLineToRect(TwipsPoint& start, TwipsPoint& end, const Bounds& rect);

/// Turns points about a centre, against the clock as seen on a screen; each is truncated.
class Rotation {
public:
    Rotation(QPoint centre, double degrees);
    [[nodiscard]] QPoint Map(double x, double y) const;

private:
    double m_sin;
    double m_cos;
    double m_x;
    double m_y;
};

/// The angle of a line that runs from left to right, in degrees against the clock.
[[nodiscard]] double AngleOf(QPoint start, QPoint end);

/// The marks along a line: dashes, ties across, dots and crosses.
enum class Mark { Dash = 2, Tie = 3, Dot = 4, Cross = 5 };

/// The pieces of a decoration along a line, from its left end. `squareWidth` and `squareHeight`
/// are pixels; pieces wholly outside `visible` may be left out (a null rectangle: none is).
[[nodiscard]] std::vector<QLine> Marks(Mark mark, QPoint start, QPoint end, double squareWidth,
                                       double squareHeight, const QRect& visible = {});

/// The control points of a squiggle: one more than a multiple of three; less than four where the
/// line is too short for a wave.
[[nodiscard]] std::vector<QPoint> Squiggle(QPoint start, QPoint end, double squareWidth);

} // namespace LineShapes
} // namespace zol
