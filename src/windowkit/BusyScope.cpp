// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/BusyScope.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

namespace zol {

namespace {

/// What could begin a command or end the window.
bool IsHeldBack(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::NativeGesture:
    case QEvent::Gesture:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::FileOpen:
    case QEvent::Close:
    case QEvent::Quit:
    case QEvent::Timer:
        return true;
    default:
        return false;
    }
}

/// Also over the border of a window, as a list that drops down is one of its own.
bool IsWithin(const QWidget* widget, const QWidget* ancestor) {
    while (widget != nullptr && widget != ancestor) {
        widget = widget->parentWidget();
    }
    return widget != nullptr;
}

bool IsEscape(const QEvent& event) {
    return event.type() == QEvent::KeyPress &&
           static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

} // namespace

BusyScope::BusyScope(QWidget* cancel)
    : m_cancel(cancel),
      m_modalBefore(QApplication::activeModalWidget()),
      m_outer(Innermost()) {
    if (m_outer != nullptr) {
        m_outer->m_inner = this;
    }
    // A child of the application, so that the scopes find each other without a global.
    setParent(QCoreApplication::instance());
    QCoreApplication::instance()->installEventFilter(this);
}

BusyScope::~BusyScope() {
    if (m_outer != nullptr) {
        m_outer->m_inner = nullptr;
    }
}

BusyScope* BusyScope::Innermost() {
    const auto scopes = QCoreApplication::instance()->findChildren<BusyScope*>(
        QString(), Qt::FindDirectChildrenOnly);
    for (BusyScope* scope : scopes) {
        if (scope->m_inner == nullptr) {
            return scope;
        }
    }
    return nullptr;
}

bool BusyScope::IsAnyAlive() {
    return Innermost() != nullptr;
}

void BusyScope::LetEventsThrough() {
    // One round only: a timer of no interval would otherwise hold the work up for ever.
    QCoreApplication::processEvents();
}

bool BusyScope::MayReceive(const QObject* receiver) const {
    // Windows of the platform only pass events on to the widgets in them.
    if (receiver->isWindowType()) {
        return true;
    }
    const QObject* object = receiver;
    while (object != nullptr && !object->isWidgetType()) {
        object = object->parent();
    }
    const auto* widget = qobject_cast<const QWidget*>(object);
    if (widget == nullptr) {
        return false;
    }
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal != m_modalBefore && IsWithin(widget, modal)) {
        return true;
    }
    for (const BusyScope* scope = this; scope != nullptr; scope = scope->m_outer) {
        if (IsWithin(widget, scope->m_cancel)) {
            return true;
        }
    }
    return false;
}

void BusyScope::ClickCancel() const {
    for (const BusyScope* scope = this; scope != nullptr; scope = scope->m_outer) {
        auto* button = qobject_cast<QAbstractButton*>(scope->m_cancel.data());
        if (button != nullptr && button->isVisible()) {
            button->click();
            return;
        }
    }
}

bool BusyScope::eventFilter(QObject* receiver, QEvent* event) {
    if (m_inner != nullptr || !IsHeldBack(event->type()) || MayReceive(receiver)) {
        return false;
    }
    if (IsEscape(*event)) {
        ClickCancel();
    }
    if (event->type() == QEvent::Close || event->type() == QEvent::Quit) {
        event->ignore();
    }
    return true;
}

} // namespace zol
