// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "grid/GridGeometry.h"
#include "grid/tools/Overlay.h"
#include "grid/tools/ToolView.h"

namespace zol {

enum class PointerButton { None, Left, Right };

/// The pointer at one moment. A press and a release may lie outside the pattern; a move has been
/// brought into it.
struct PointerEvent {
    GridSpot At;
    /// Pressed or released; during a move the one held down, None when two are.
    PointerButton Button = PointerButton::None;
    bool Shift = false;
    bool Ctrl = false;
};

/// One draw mode's way with the pointer. A tool holds the state of its own gesture and no more;
/// it is given squares and positions, never pixels.
class Tool {
public:
    Tool() = default;
    virtual ~Tool() = default;
    Tool(const Tool&) = delete;
    Tool& operator=(const Tool&) = delete;

    virtual void Press(const PointerEvent& event) = 0;
    virtual void Move(const PointerEvent& event) = 0;
    virtual void Release(const PointerEvent& event) = 0;
    /// Ends what is under way and takes its overlay away. Called whenever the draw mode changes
    /// and when the user presses Escape. False if there was nothing to end.
    virtual bool Cancel() { return false; }
    /// An arrow key: one of the two is 1 or -1. False if there is nothing that it moves.
    virtual bool Nudge(int /*columns*/, int /*rows*/) { return false; }
    /// The Enter key: what floats is done with. False if there was nothing.
    virtual bool Confirm() { return false; }

    [[nodiscard]] virtual Overlay GetOverlay() const { return {}; }
    [[nodiscard]] virtual GridCursor Cursor() const { return GridCursor::Default; }
};

} // namespace zol
