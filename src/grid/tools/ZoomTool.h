// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "grid/tools/SelectionFrame.h"
#include "grid/tools/Tool.h"
#include "grid/tools/ToolDesk.h"

namespace zol {

/// Zooms to the frame that the left button draws out. The view does the zooming.
class ZoomTool : public Tool {
public:
    explicit ZoomTool(ToolDesk desk) : m_desk(desk) {}

    void Press(const PointerEvent& event) override;
    void Move(const PointerEvent& event) override;
    /// A frame that began outside the pattern is cut to it; one wholly outside is dropped.
    void Release(const PointerEvent& event) override;
    bool Cancel() override;
    [[nodiscard]] Overlay GetOverlay() const override;
    [[nodiscard]] GridCursor Cursor() const override { return GridCursor::Cross; }

private:
    [[nodiscard]] SquareRect FrameInPattern() const;

    ToolDesk m_desk;
    SelectionFrame m_frame;
};

} // namespace zol
