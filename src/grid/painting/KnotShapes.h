// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPainterPath>

#include <optional>

#include "grid/painting/GridView.h"
#include "grid/painting/StitchShapes.h"

class QPainter;

namespace zol {

/// The colours of a knot in a display style; what is missing is not painted.
struct KnotInk {
    std::optional<Colour> Body;    ///< filled, or an oval's line
    std::optional<Colour> Outline; ///< the same curve hollow, on top
    std::optional<Colour> Symbol;  ///< round knots only
};

[[nodiscard]] KnotInk KnotInkOf(const PaintOptions& options, Colour floss);

/// A knot at a square's position 1 to 9, as painters see it.
struct SquareKnot {
    int Position = 0;
    int Orientation = KnotNormal;
    std::uint8_t PaletteIndex = NoFloss;
};

namespace KnotShapes {

/// Width in pixels of the pen that knots are drawn with, at least 1.
[[nodiscard]] int PenWidth(const GridView& view);

/// The box of a knot: one square wide and high, centred on the position's point, less half a pen
/// at the left and top. Right and Bottom are exclusive here, as ellipses take them.
[[nodiscard]] PixelRect Box(const GridView& view, int column, int row, int position);

/// The curve of a knot in its box: an ellipse, or an oval turned as its orientation says.
[[nodiscard]] QPainterPath Curve(const PixelRect& box, int orientation);

/// Draws the curve. Only round knots can be filled; an oval is the pen's line alone.
void Draw(QPainter& painter, const PixelRect& box, int orientation, int penWidth,
          const QColor& color, bool filled);

/// What of the box holds the symbol of a round knot.
[[nodiscard]] PixelRect SymbolRect(const PixelRect& box);

} // namespace KnotShapes
} // namespace zol
