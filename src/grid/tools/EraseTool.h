// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "grid/tools/StitchStroke.h"
#include "grid/tools/Tool.h"
#include "grid/tools/ToolDesk.h"

namespace zol {

class BackstitchTool;

/// Mode 9. Entered from stitches, both buttons take stitches away. Entered from lines, the left
/// button takes the line under the pointer away, without an undo step, and the right one opens
/// the line's menu.
class EraseTool : public Tool {
public:
    EraseTool(ToolDesk desk, BackstitchTool& lines)
        : m_desk(desk),
          m_lines(lines),
          m_stroke(desk) {}

    void TakeLines(bool on) { m_takesLines = on; }

    void Press(const PointerEvent& event) override;
    void Move(const PointerEvent& event) override { m_stroke.Extend(event); }
    void Release(const PointerEvent& /*event*/) override { m_stroke.End(); }
    bool Cancel() override { return m_stroke.End(); }
    [[nodiscard]] Overlay GetOverlay() const override;
    [[nodiscard]] GridCursor Cursor() const override { return GridCursor::Erase; }

private:
    void PressOnLine(const PointerEvent& event);

    ToolDesk m_desk;
    BackstitchTool& m_lines;
    StitchStroke m_stroke;
    bool m_takesLines = false;
};

} // namespace zol
