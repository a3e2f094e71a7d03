// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "grid/GridGeometry.h"
#include "model/ZOLTypes.h"

namespace zol {

/// The pointers over the grid.
enum class GridCursor {
    Default = 0, ///< stitches and lines
    Cross = 1,   ///< edit box, zoom tool, text
    Move = 2,    ///< over a floating edit box
    Paint = 3,
    ColorPicker = 4,
    Erase = 5,
};

/// What tools see of the window: they say what has to be painted anew and show a few words. Its
/// implementer paints later, when the system asks for it.
class ToolView {
public:
    virtual ~ToolView() = default;

    /// Where squares lie now; the reach of a click on a line is told in pixels.
    [[nodiscard]] virtual const GridGeometry& Geometry() const = 0;

    /// The content of these squares has changed. Knots and lines that reach beyond them are the
    /// implementer's to repair.
    virtual void RedrawSquares(const SquareRect& rect) = 0;
    /// As RedrawSquares() where only stitches have changed, which stay inside of their squares: no
    /// other pixel is painted. With a knot or a line among what has changed, that is too little.
    virtual void RedrawStitches(const SquareRect& rect) = 0;
    void RedrawSquare(int column, int row) { RedrawSquares({column, row, column, row}); }
    /// What GetOverlay gives has changed.
    virtual void OverlayChanged() = 0;
    /// Stitches, flosses or the size have changed everywhere.
    virtual void DesignChanged() = 0;
    /// Flosses have joined the palette; no stitch has changed by that.
    virtual void FlossesChanged() = 0;

    virtual void SetGridCursor(GridCursor kind) = 0;
    /// The hourglass, for work that holds the window; calls nest.
    virtual void SetBusy(bool busy) = 0;

    /// First panel of the status bar: the place under the pointer.
    virtual void ShowPlace(const std::string& text) = 0;
    /// Third panel: the floss under the pointer.
    virtual void ShowFloss(const std::string& text) = 0;

    /// Shows these squares as large as the window allows.
    virtual void ZoomToFrame(const SquareRect& frame) = 0;
    /// The squares that show, also in part.
    [[nodiscard]] virtual SquareRect VisibleRange() const = 0;
    /// Scrolls by one square, across and down, towards squares that do not show. Nothing if all do.
    virtual void ScrollTowards(const SquareRect& rect) = 0;
    /// Opens the menu of a backstitch line at the pointer and waits until it closes. `lineStyle`
    /// is the selected line's, -1 without one.
    virtual void OpenLineMenu(int lineStyle) = 0;
};

} // namespace zol
