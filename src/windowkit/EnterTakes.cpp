// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/EnterTakes.h"

#include <QKeyEvent>
#include <QWidget>

#include <utility>

namespace zol {

EnterTakes::EnterTakes(QWidget& field, std::function<void()> take)
    : QObject(&field),
      m_take(std::move(take)) {
    field.installEventFilter(this);
}

bool EnterTakes::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            m_take();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zol
