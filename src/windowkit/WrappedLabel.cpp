// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/WrappedLabel.h"

#include <QResizeEvent>

namespace zol {

WrappedLabel::WrappedLabel(QWidget* parent) : QLabel(parent) {
    setWordWrap(true);
}

QSize WrappedLabel::minimumSizeHint() const {
    QSize least = QLabel::minimumSizeHint();
    // Before it shows its width is nobody's choice.
    if (isVisible() && hasHeightForWidth()) {
        least.setHeight(heightForWidth(width()));
    }
    return least;
}

void WrappedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) {
        updateGeometry();
    }
}

} // namespace zol
