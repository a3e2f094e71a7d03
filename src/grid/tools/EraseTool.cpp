// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/EraseTool.h"

#include "grid/tools/BackstitchTool.h"

namespace zol {

void EraseTool::Press(const PointerEvent& event) {
    if (event.Button == PointerButton::None) {
        return;
    }
    if (m_takesLines) {
        PressOnLine(event);
    } else {
        m_stroke.Begin(event, true);
    }
}

void EraseTool::PressOnLine(const PointerEvent& event) {
    const int line = m_lines.GetLineAtPoint(event.At);
    if (line < 0) {
        return;
    }
    if (event.Button == PointerButton::Left) {
        m_lines.RemoveLine(0);
        return;
    }
    m_desk.View.OpenLineMenu(m_desk.Design().GetBackStitchLine(line).LineStyle);
    m_lines.CancelLine();
}

Overlay EraseTool::GetOverlay() const {
    return m_lines.GetOverlay();
}

} // namespace zol
