// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "grid/tools/Tool.h"
#include "grid/tools/ToolDesk.h"

namespace zol {

/// Mode 8: a release takes up the floss of the square's first stitch.
class ColorPickerTool : public Tool {
public:
    /// `picked` is called at each release with the floss number, 0 where there is no stitch.
    ColorPickerTool(ToolDesk desk, std::function<void(int)> picked);

    void Press(const PointerEvent& /*event*/) override {}
    void Move(const PointerEvent& /*event*/) override {}
    void Release(const PointerEvent& event) override;
    [[nodiscard]] GridCursor Cursor() const override { return GridCursor::ColorPicker; }

private:
    ToolDesk m_desk;
    std::function<void(int)> m_picked;
};

} // namespace zol
