// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/SelectOnFocus.h"

#include <QFocusEvent>
#include <QLineEdit>

#include <utility>

namespace zol {

SelectOnFocus::SelectOnFocus(QLineEdit* field) : QObject(field), m_field(field) {
    field->installEventFilter(this);
}

bool SelectOnFocus::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        m_field->selectAll();
        m_clickedInto = static_cast<const QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
    } else if (event->type() == QEvent::MouseButtonRelease && std::exchange(m_clickedInto, false) &&
               !m_field->hasSelectedText()) {
        // The press has placed the cursor; a part that was dragged over stays selected.
        m_field->selectAll();
    }
    return false;
}

} // namespace zol
