// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "grid/tools/Tool.h"
#include "grid/tools/ToolDesk.h"

namespace zol {

/// A stroke from the press of a button to its release: it sets stitches or takes them away square
/// by square, with their twins in mirror mode. It is one undo step however long it is.
class StitchStroke {
public:
    explicit StitchStroke(ToolDesk desk) : m_desk(desk) {}

    /// Sets or erases the square that was pressed, which may lie outside the pattern.
    void Begin(const PointerEvent& event, bool erases);
    /// Goes on to a square and fills the gap to the last one. Shift keeps the column, Ctrl the
    /// row, both together keep neither. Another button than the pressed one ends the stroke.
    void Extend(const PointerEvent& event);
    /// False if there was none.
    bool End();

private:
    void DrawRun(SquarePos to, int position);
    void ChangeSquare(SquarePos square, int position);
    void SetSquare(int column, int row, int position);
    void EraseSquare(int column, int row);
    /// `reachesOut`: a knot is among what has changed.
    void Redraw(const SquareRect& rect, bool reachesOut);

    ToolDesk m_desk;
    PointerButton m_button = PointerButton::None;
    bool m_erases = false;
    std::optional<SquarePos> m_last; ///< where the pointer was; nothing without a stroke
    std::optional<UndoStep> m_step;
};

} // namespace zol
