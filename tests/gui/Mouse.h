// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QPointF>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace zol::test {

/// A mouse as the system has it: its events come to windows, which find the widget, hold on to it
/// while a button is down, and close menus. It never clicks twice in quick succession, unless told.
class Mouse {
public:
    /// A place in a widget, also one outside it: the widget's window is told.
    void MoveTo(QWidget& widget, QPointF place, Qt::KeyboardModifiers keys = {}) {
        m_window = widget.window()->windowHandle();
        m_place = QPointF(widget.mapTo(widget.window(), QPoint())) + place;
        Send(QEvent::MouseMove, Qt::NoButton, keys);
    }
    void Press(Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {}) {
        m_down |= button;
        Send(QEvent::MouseButtonPress, button, keys);
    }
    void Release(Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {}) {
        m_down &= ~Qt::MouseButtons(button);
        Send(QEvent::MouseButtonRelease, button, keys);
    }
    void Click(QWidget& widget, QPointF place, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers keys = {}) {
        MoveTo(widget, place, keys);
        Press(button, keys);
        Release(button, keys);
    }
    /// The second click of two in quick succession.
    void ClickAgain(Qt::MouseButton button = Qt::LeftButton) {
        s_time -= Pause - 5;
        Press(button);
        Release(button);
    }

private:
    static constexpr int Pause = 2000; ///< milliseconds, longer than any double click

    void Send(QEvent::Type type, Qt::MouseButton button, Qt::KeyboardModifiers keys) {
        s_time += type == QEvent::MouseButtonPress ? Pause : 1;
        qt_handleMouseEvent(m_window, m_place, m_window->mapToGlobal(m_place), m_down, button, type,
                            keys, s_time);
        QCoreApplication::processEvents();
    }

    static inline int s_time = 1000000;
    QWindow* m_window = nullptr;
    QPointF m_place;
    Qt::MouseButtons m_down;
};

} // namespace zol::test
