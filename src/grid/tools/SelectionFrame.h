// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/ZOLTypes.h"

namespace zol {

/// A rectangle of squares that the pointer draws out from an anchor. It knows no pattern: cutting
/// it to the grid is its user's business.
class SelectionFrame {
public:
    /// The box becomes one square, which is the anchor, and follows TrackSelection.
    void StartSelection(int column, int row);
    /// Draws the box from the anchor to a square. Nothing while no box is being drawn out.
    void TrackSelection(int column, int row);
    /// The box is there at once, or somewhere else: nothing is drawn out.
    void SetBox(const SquareRect& box) {
        m_active = true;
        m_selecting = false;
        m_box = box;
    }
    /// The box stays as it is.
    void EndSelection() { m_selecting = false; }
    void Clear() { *this = SelectionFrame(); }

    [[nodiscard]] bool IsActive() const { return m_active; }
    [[nodiscard]] bool IsSelecting() const { return m_selecting; }
    /// All 0 while there is no box.
    [[nodiscard]] SquareRect GetEditBoxRect() const { return m_box; }
    /// Bounds included.
    [[nodiscard]] bool IsInEditBox(int column, int row) const;

private:
    bool m_active = false;
    bool m_selecting = false;
    SquarePos m_anchor;
    SquareRect m_box;
};

} // namespace zol
