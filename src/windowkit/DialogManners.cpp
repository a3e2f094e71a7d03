// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/DialogManners.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QMessageBox>
#include <QPushButton>

namespace zol {

namespace {

/// One whose value the wheel would change.
QWidget* FieldOf(QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const bool isField = qobject_cast<QComboBox*>(object) != nullptr ||
                         qobject_cast<QAbstractSpinBox*>(object) != nullptr;
    return isField ? widget : nullptr;
}

QString Plain(const QAbstractButton& button) {
    return button.text().remove(QLatin1Char('&'));
}

void TakeLettersAway(QDialogButtonBox& box) {
    for (QAbstractButton* button : box.buttons()) {
        const QDialogButtonBox::StandardButton standard = box.standardButton(button);
        if (standard == QDialogButtonBox::NoButton) {
            continue;
        }
        // A caption that the window gave it stays, with its letter.
        const QDialogButtonBox usual(standard);
        const QString plain = Plain(*button);
        if (plain == Plain(*usual.button(standard))) {
            button->setText(plain);
        }
    }
}

} // namespace

void DialogManners::Teach(QApplication& application) {
    application.installEventFilter(new DialogManners(&application));
}

bool DialogManners::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Polish) {
        if (QWidget* field = FieldOf(watched); field != nullptr) {
            // Otherwise the wheel gives it the keys first.
            if (field->focusPolicy() == Qt::WheelFocus) {
                field->setFocusPolicy(Qt::StrongFocus);
            }
        } else if (auto* box = qobject_cast<QDialogButtonBox*>(watched);
                   box != nullptr && qobject_cast<QMessageBox*>(box->window()) == nullptr) {
            TakeLettersAway(*box);
        }
    } else if (event->type() == QEvent::Wheel) {
        if (const QWidget* field = FieldOf(watched); field != nullptr && !field->hasFocus()) {
            event->ignore();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zol
