// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/windows/MarginField.h"

#include <QFocusEvent>

#include <utility>

#include "settings/Margins.h"
#include "settings/basCommonFunctions.h"
#include "windowkit/NumericFilter.h"

namespace zol {

namespace {

constexpr int FiguresBefore = 1;
constexpr int FiguresBehind = 2;

} // namespace

MarginField::MarginField(QWidget* parent) : QLineEdit(parent) {
    new NumericFilter(this, FiguresBefore, FiguresBehind);
}

void MarginField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    selectAll();
    m_clickedInto = event->reason() == Qt::MouseFocusReason;
}

void MarginField::mousePressEvent(QMouseEvent* event) {
    QLineEdit::mousePressEvent(event);
    // The click that brought the focus has placed the cursor.
    if (std::exchange(m_clickedInto, false)) {
        selectAll();
    }
}

void MarginField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    setText(Margins::FormatStandard(basCommonFunctions::FieldValue(text())));
}

} // namespace zol
