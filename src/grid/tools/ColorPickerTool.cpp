// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/ColorPickerTool.h"

#include <utility>

namespace zol {

ColorPickerTool::ColorPickerTool(ToolDesk desk, std::function<void(int)> picked)
    : m_desk(desk),
      m_picked(std::move(picked)) {}

void ColorPickerTool::Release(const PointerEvent& event) {
    m_picked(m_desk.Design().GetStitchColorIndex(event.At.Column, event.At.Row, 0));
}

} // namespace zol
