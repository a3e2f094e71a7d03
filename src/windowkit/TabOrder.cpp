// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/TabOrder.h"

#include <QBoxLayout>
#include <QWidget>

namespace zol {

namespace {

/// The box layout within `layout` that a part lies in; null if there is none.
QBoxLayout* BoxOf(QLayout& layout, QWidget& part) {
    auto* box = qobject_cast<QBoxLayout*>(&layout);
    if (box != nullptr && box->indexOf(&part) >= 0) {
        return box;
    }
    for (int i = 0; i < layout.count(); ++i) {
        QLayout* inner = layout.itemAt(i)->layout();
        QBoxLayout* found = inner != nullptr ? BoxOf(*inner, part) : nullptr;
        if (found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

void MoveBehindInTabOrder(QWidget& part) {
    QWidget* parent = part.parentWidget();
    QBoxLayout* box = parent->layout() != nullptr ? BoxOf(*parent->layout(), part) : nullptr;
    if (box == nullptr) {
        return;
    }
    const int place = box->indexOf(&part);
    const int stretch = box->stretch(place);
    // What comes anew to a window goes to the end; setTabOrder() loses the parts of button boxes.
    part.setParent(nullptr);
    box->insertWidget(place, &part, stretch);
}

} // namespace zol
