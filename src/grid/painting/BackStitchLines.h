// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "grid/painting/GridView.h"

namespace zol {

class LineCanvas;
class LineIndex;

/// Width in pixels of backstitch lines, at least 1.
[[nodiscard]] int GetBackStitchPenWidth(const GridView& view);

/// Whether a line has nothing to show in a rectangle of squares. One that stands in the column or
/// row just outside shows only if it hugs the border between the two.
[[nodiscard]] bool MissesRect(const BackStitchLine& line, const SquareRect& rect);

/// Paints the lines of a rectangle of squares, cut to it.
void DrawBackStitchLines(LineCanvas& canvas, const GridView& view, const SquareRect& rect,
                         LineIndex& index);

} // namespace zol
