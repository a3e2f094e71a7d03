// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/EditBoxTool.h"

namespace zol {

void EditBoxTool::Press(const PointerEvent& event) {
    if (event.Button != PointerButton::Left) {
        return;
    }
    m_pointer = {event.At.Column, event.At.Row};
    if (m_box.IsInEditBox(event.At.Column, event.At.Row)) {
        m_box.BeginBoxDrag(m_pointer);
        return;
    }
    m_box.DropEditBox(false);
    m_box.StartSelection(event.At.Column, event.At.Row);
    ShowCursor();
}

void EditBoxTool::Move(const PointerEvent& event) {
    m_pointer = {event.At.Column, event.At.Row};
    if (event.Button == PointerButton::None) {
        ShowCursor();
    } else if (event.Button == PointerButton::Left && m_box.IsDragging()) {
        m_box.DragEditBox(event.At.Column, event.At.Row);
    } else if (event.Button == PointerButton::Left && m_box.IsSelecting()) {
        m_box.TrackSelection(event.At.Column, event.At.Row);
    }
}

void EditBoxTool::Release(const PointerEvent& event) {
    if (event.Button != PointerButton::Left) {
        return;
    }
    m_pointer = {event.At.Column, event.At.Row};
    if (m_box.IsDragging()) {
        m_box.FinishDrag();
    } else {
        m_box.FinishSelection();
    }
    ShowCursor();
}

bool EditBoxTool::Cancel() {
    if (m_box.IsDragging()) {
        m_box.CancelDrag();
        return true;
    }
    if (!m_box.IsActive()) {
        return false;
    }
    m_box.DropEditBox(m_box.IsSelecting());
    ShowCursor();
    return true;
}

bool EditBoxTool::Confirm() {
    return !m_box.IsSelecting() && !m_box.IsDragging() && Cancel();
}

GridCursor EditBoxTool::Cursor() const {
    const bool over = !m_box.IsSelecting() && m_box.IsInEditBox(m_pointer.X, m_pointer.Y);
    return over ? GridCursor::Move : GridCursor::Cross;
}

void EditBoxTool::ShowCursor() {
    m_desk.View.SetGridCursor(Cursor());
}

} // namespace zol
