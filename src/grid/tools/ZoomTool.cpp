// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/ZoomTool.h"

#include <algorithm>

namespace zol {

void ZoomTool::Press(const PointerEvent& event) {
    if (event.Button != PointerButton::Left) {
        return;
    }
    m_frame.StartSelection(event.At.Column, event.At.Row);
    m_desk.View.OverlayChanged();
}

void ZoomTool::Move(const PointerEvent& event) {
    if (event.Button != PointerButton::Left || !m_frame.IsSelecting()) {
        return;
    }
    m_frame.TrackSelection(event.At.Column, event.At.Row);
    m_desk.View.OverlayChanged();
}

void ZoomTool::Release(const PointerEvent& event) {
    if (event.Button != PointerButton::Left || !m_frame.IsSelecting()) {
        return;
    }
    const SquareRect frame = FrameInPattern();
    Cancel();
    if (!frame.IsEmpty()) {
        m_desk.View.ZoomToFrame(frame);
    }
}

bool ZoomTool::Cancel() {
    if (!m_frame.IsActive()) {
        return false;
    }
    m_frame.Clear();
    m_desk.View.OverlayChanged();
    return true;
}

Overlay ZoomTool::GetOverlay() const {
    Overlay overlay;
    if (m_frame.IsActive() && !FrameInPattern().IsEmpty()) {
        overlay.Frame = FrameInPattern();
    }
    return overlay;
}

SquareRect ZoomTool::FrameInPattern() const {
    const SquareRect box = m_frame.GetEditBoxRect();
    const Pattern& design = m_desk.Design();
    return {std::max(box.Left, 1), std::max(box.Top, 1),
            std::min(box.Right, design.GetPatternWidth()),
            std::min(box.Bottom, design.GetPatternHeight())};
}

} // namespace zol
