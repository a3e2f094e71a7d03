// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "grid/tools/Tool.h"
#include "grid/tools/ToolDesk.h"

namespace zol {

/// Modes 6 and 7: a release fills the area of one floss around the square, with stitches or with
/// nothing.
class PaintTool : public Tool {
public:
    /// `painted` is called after each fill, also one that found nothing to do.
    PaintTool(ToolDesk desk, std::function<void()> painted);

    void SetErases(bool on) { m_erases = on; }
    [[nodiscard]] bool Erases() const { return m_erases; }

    void Press(const PointerEvent& /*event*/) override {}
    void Move(const PointerEvent& /*event*/) override {}
    void Release(const PointerEvent& event) override;
    [[nodiscard]] GridCursor Cursor() const override { return GridCursor::Paint; }

private:
    void Fill(int column, int row);

    ToolDesk m_desk;
    std::function<void()> m_painted;
    bool m_erases = false;
};

} // namespace zol
