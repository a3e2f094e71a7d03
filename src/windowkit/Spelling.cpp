// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/Spelling.h"

#include <QAbstractButton>
#include <QLabel>

namespace zol {

namespace {

QString British(QString text) {
    for (const auto& [american, british] :
         {std::pair("Colo", "Colou"), std::pair("Customiz", "Customis"),
          std::pair("colo", "colou")}) {
        const QString word = QLatin1String(british);
        if (!text.contains(word)) {
            text.replace(QLatin1String(american), word);
        }
    }
    return text;
}

} // namespace

void SpellBritish(QWidget& window) {
    for (QLabel* label : window.findChildren<QLabel*>()) {
        label->setText(British(label->text()));
    }
    for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        button->setText(British(button->text()));
    }
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        widget->setAccessibleName(British(widget->accessibleName()));
    }
}

} // namespace zol
