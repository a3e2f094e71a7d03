// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/StitchTool.h"

namespace zol {

void StitchTool::Press(const PointerEvent& event) {
    if (event.Button != PointerButton::None) {
        m_stroke.Begin(event, event.Button == PointerButton::Right);
    }
}

} // namespace zol
