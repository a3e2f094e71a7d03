// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/windows/MarginField.h"

#include <QFocusEvent>

#include "settings/Margins.h"
#include "settings/basCommonFunctions.h"
#include "windowkit/NumericFilter.h"
#include "windowkit/SelectOnFocus.h"

namespace zol {

namespace {

constexpr int FiguresBefore = 1;
constexpr int FiguresBehind = 2;

} // namespace

MarginField::MarginField(QWidget* parent) : QLineEdit(parent) {
    new NumericFilter(this, FiguresBefore, FiguresBehind);
    new SelectOnFocus(this);
}

void MarginField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    setText(Margins::FormatStandard(basCommonFunctions::FieldValue(text())));
}

} // namespace zol
