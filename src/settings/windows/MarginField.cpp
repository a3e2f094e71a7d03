// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/windows/MarginField.h"

#include <QTimer>

#include "settings/Margins.h"
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
    // The click that brings the focus would place the cursor afterwards.
    QTimer::singleShot(0, this, &QLineEdit::selectAll);
}

void MarginField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    setText(Margins::FormatStandard(Margins::Val(text())));
}

} // namespace zol
