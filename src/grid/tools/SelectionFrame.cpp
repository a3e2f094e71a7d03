// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/SelectionFrame.h"

#include <algorithm>

namespace zol {

void SelectionFrame::StartSelection(int column, int row) {
    m_active = true;
    m_selecting = true;
    m_anchor = {column, row};
    m_box = {column, row, column, row};
}

void SelectionFrame::TrackSelection(int column, int row) {
    if (!m_selecting) {
        return;
    }
    m_box = {std::min(m_anchor.X, column), std::min(m_anchor.Y, row), std::max(m_anchor.X, column),
             std::max(m_anchor.Y, row)};
}

bool SelectionFrame::IsInEditBox(int column, int row) const {
    return m_active && column >= m_box.Left && column <= m_box.Right && row >= m_box.Top &&
           row <= m_box.Bottom;
}

} // namespace zol
