// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>

#include <algorithm>

namespace zol {

/// Fills a small part of a window. A high rectangle of a colour that shows what lies beneath would
/// be shared out by the system among its threads, and to wake one takes longer than the filling;
/// strips of few rows it fills at once.
inline void FillHere(QPainter& painter, const QRect& rect, const QColor& colour) {
    constexpr int rows = 64;
    for (int top = rect.top(); top <= rect.bottom(); top += rows) {
        painter.fillRect(rect.left(), top, rect.width(), std::min(rows, rect.bottom() - top + 1),
                         colour);
    }
}

} // namespace zol
