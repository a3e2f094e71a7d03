// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/Spelling.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QTabWidget>
#include <QWidget>

#include <utility>

#include "model/ProgramContext.h"

namespace zol {

namespace {

void SpellOne(QWidget& widget, const ProgramContext& context) {
    widget.setToolTip(Spelled(widget.toolTip(), context));
    widget.setAccessibleName(Spelled(widget.accessibleName(), context));
    if (auto* label = qobject_cast<QLabel*>(&widget)) {
        label->setText(Spelled(label->text(), context));
    } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        button->setText(Spelled(button->text(), context));
    } else if (auto* tabs = qobject_cast<QTabWidget*>(&widget)) {
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setTabText(tab, Spelled(tabs->tabText(tab), context));
        }
    } else if (auto* list = qobject_cast<QComboBox*>(&widget)) {
        for (int line = 0; line < list->count(); ++line) {
            list->setItemText(line, Spelled(list->itemText(line), context));
        }
    }
}

} // namespace

QString Spelled(QString words, const ProgramContext& context) {
    if (context.BritishSpelling) {
        for (const auto& [american, british] :
             {std::pair("Color", "Colour"), std::pair("color", "colour"),
              std::pair("mize", "mise")}) {
            words.replace(QLatin1String(american), QLatin1String(british));
        }
    }
    return words;
}

void Spell(QWidget& window, const ProgramContext& context) {
    if (!context.BritishSpelling) {
        return;
    }
    window.setWindowTitle(Spelled(window.windowTitle(), context));
    for (QWidget* part : window.findChildren<QWidget*>()) {
        SpellOne(*part, context);
    }
}

} // namespace zol
