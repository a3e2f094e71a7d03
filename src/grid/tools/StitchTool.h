// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "grid/tools/StitchStroke.h"
#include "grid/tools/Tool.h"

namespace zol {

/// Mode 1: the left button draws stitches, the right one takes them away.
class StitchTool : public Tool {
public:
    explicit StitchTool(ToolDesk desk) : m_stroke(desk) {}

    void Press(const PointerEvent& event) override;
    void Move(const PointerEvent& event) override { m_stroke.Extend(event); }
    void Release(const PointerEvent& /*event*/) override { m_stroke.End(); }
    bool Cancel() override { return m_stroke.End(); }

private:
    StitchStroke m_stroke;
};

} // namespace zol
