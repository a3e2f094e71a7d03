// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/Spelling.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QTabWidget>
#include <QWidget>

#include "model/ProgramContext.h"

namespace zol {

namespace {

QString Spelled(QString words) {
    words.replace(QStringLiteral("Color"), QStringLiteral("Colour"));
    return words.replace(QStringLiteral("color"), QStringLiteral("colour"));
}

void SpellOne(QWidget& widget) {
    widget.setToolTip(Spelled(widget.toolTip()));
    widget.setAccessibleName(Spelled(widget.accessibleName()));
    if (auto* label = qobject_cast<QLabel*>(&widget)) {
        label->setText(Spelled(label->text()));
    } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        button->setText(Spelled(button->text()));
    }
}

} // namespace

void Spell(QWidget& window, const ProgramContext& context) {
    if (!context.BritishSpelling) {
        return;
    }
    window.setWindowTitle(Spelled(window.windowTitle()));
    for (QWidget* part : window.findChildren<QWidget*>()) {
        SpellOne(*part);
    }
    for (QTabWidget* tabs : window.findChildren<QTabWidget*>()) {
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setTabText(tab, Spelled(tabs->tabText(tab)));
        }
    }
    for (QComboBox* list : window.findChildren<QComboBox*>()) {
        for (int line = 0; line < list->count(); ++line) {
            list->setItemText(line, Spelled(list->itemText(line)));
        }
    }
}

} // namespace zol
