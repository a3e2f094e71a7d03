// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTest>
#include <QWidget>

namespace zol::test {

/// A widget of a dialog by its object name.
template<typename Widget>
Widget& PartOf(QWidget& dialog, const char* name) {
    auto* found = dialog.findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) {
        qFatal("there is no %s", name);
    }
    return *found;
}

/// Types over what the field holds.
inline void TypeIn(QWidget& dialog, const char* field, const QString& text) {
    auto& widget = PartOf<QWidget>(dialog, field);
    widget.setFocus();
    QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&widget, Qt::Key_Delete);
    QTest::keyClicks(&widget, text);
}

/// A click where buttons, boxes and rings all have their sign.
inline void ClickIn(QWidget& dialog, const char* button) {
    auto& widget = PartOf<QWidget>(dialog, button);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(10, widget.height() / 2));
}

} // namespace zol::test
