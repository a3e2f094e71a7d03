// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace zol {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

void ElidedLabel::ShowText(const QString& text) {
    if (text != this->text()) {
        setText(text);
    }
}

QSize ElidedLabel::minimumSizeHint() const {
    return {fontMetrics().horizontalAdvance(QStringLiteral("…")), QLabel::sizeHint().height()};
}

QString ElidedLabel::CutText() const {
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                          isEnabled(), CutText(), foregroundRole());
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && CutText() != text()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
        return true;
    }
    return QLabel::event(event);
}

} // namespace zol
