// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>

#include "model/ZOLTypes.h"

class QPainter;

namespace zol {

/// How a backstitch line is drawn, in device pixels.
struct LinePen {
    int Style = LineStraight; ///< a LineStyle
    Colour Floss = 0;
    Colour Ground = 0xFFFFFF; ///< hides what lies beneath a broken line
    int Width = 1;
    double SquareWidth = 10;
    double SquareHeight = 10;
};

/// Draws one line in its style between two pixels. The pattern of a dash or squiggle starts at the
/// line's left end. A line of no length is a dot or nothing.
void DrawStyledLine(QPainter& painter, QPoint start, QPoint end, const LinePen& pen);

} // namespace zol
