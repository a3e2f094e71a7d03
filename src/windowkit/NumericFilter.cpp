// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/NumericFilter.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>

namespace zol {

NumericFilter::NumericFilter(QLineEdit* field, int maxBefore, int maxAfter)
    : QObject(field),
      m_field(field),
      m_maxBefore(maxBefore),
      m_maxAfter(maxAfter) {
    field->installEventFilter(this);
    // The field of a box gets its keys from the box, past any filter of its own.
    if (QWidget* box = field->focusProxy()) {
        box->installEventFilter(this);
    }
}

void NumericFilter::SetLimits(int maxBefore, int maxAfter) {
    m_maxBefore = maxBefore;
    m_maxAfter = maxAfter;
}

bool NumericFilter::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_field && watched != m_field->focusProxy()) {
        return false;
    }
    if (event->type() == QEvent::InputMethod) {
        const QString& text = static_cast<QInputMethodEvent*>(event)->commitString();
        return !text.isEmpty() && !Passes(text);
    }
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool command = (key->modifiers() & (Qt::ControlModifier | Qt::MetaModifier)) != 0;
    const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    return !command && !enter && !key->text().isEmpty() && !Passes(key->text());
}

bool NumericFilter::Passes(const QString& text) const {
    basCommonFunctions::FieldState state;
    state.Text = m_field->text();
    state.SelStart =
        m_field->hasSelectedText() ? m_field->selectionStart() : m_field->cursorPosition();
    state.SelLength = m_field->selectionLength();
    for (const QChar character : text) {
        const int code = character.unicode();
        if (basCommonFunctions::FilterNumericKey(state, code, m_maxBefore, m_maxAfter) == 0) {
            return false;
        }
        if (code >= 31) {
            state.Text.replace(state.SelStart, state.SelLength, character);
            ++state.SelStart;
            state.SelLength = 0;
        }
    }
    return true;
}

} // namespace zol
