// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/GridNavigator.h"

#include <QApplication>
#include <QGestureEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

#include "grid/GridViewport.h"
#include "grid/windows/GridArea.h"
#include "model/Rounding.h"

namespace zol {

namespace {

constexpr int WheelStep = 120; ///< of a wheel's angle: one notch
constexpr double LinePixels = 16;

} // namespace

GridNavigator::GridNavigator(GridArea& area) : m_area(area) {
    area.installEventFilter(this);
    area.Canvas().installEventFilter(this);
    area.grabGesture(Qt::PinchGesture);
}

bool GridNavigator::eventFilter(QObject* watched, QEvent* event) {
    const auto placeOf = [&](QPointF place) {
        return watched == &m_area ? place : m_area.Canvas().mapTo(&m_area, place);
    };
    switch (event->type()) {
    case QEvent::Wheel: {
        auto& wheel = static_cast<QWheelEvent&>(*event);
        return Wheel(wheel, placeOf(wheel.position()));
    }
    case QEvent::NativeGesture: {
        auto& gesture = static_cast<QNativeGestureEvent&>(*event);
        return NativeGesture(gesture, placeOf(gesture.position()));
    }
    case QEvent::Gesture:
        return Gesture(static_cast<QGestureEvent&>(*event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return MousePress(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseMove:
        return MouseMove(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease:
        return MouseRelease(static_cast<QMouseEvent&>(*event));
    case QEvent::KeyPress:
        return Space(static_cast<QKeyEvent&>(*event), true);
    case QEvent::KeyRelease:
        return Space(static_cast<QKeyEvent&>(*event), false);
    case QEvent::FocusOut:
        m_spaceHeld = false;
        ShowHand();
        return false;
    default:
        return false;
    }
}

void GridNavigator::ScrollBy(int columns, int rows) {
    m_area.ScrollGrid(m_area.FirstColumn() + columns, m_area.FirstRow() + rows, false);
}

bool GridNavigator::Wheel(QWheelEvent& event, QPointF place) {
    event.accept();
    return event.modifiers().testFlag(Qt::ControlModifier) ? WheelZoom(event, place)
                                                           : WheelScroll(event);
}

bool GridNavigator::WheelZoom(const QWheelEvent& event, QPointF place) {
    m_zoomAngle += event.angleDelta().y();
    int zoom = m_area.Zoom().GridZoom();
    for (; m_zoomAngle >= WheelStep; m_zoomAngle -= WheelStep) {
        zoom = GridViewport::ZoomIn(zoom);
    }
    for (; m_zoomAngle <= -WheelStep; m_zoomAngle += WheelStep) {
        zoom = GridViewport::ZoomOut(zoom);
    }
    m_area.ZoomAt(place, zoom);
    return true;
}

bool GridNavigator::WheelScroll(const QWheelEvent& event) {
    const QSizeF square = m_area.SquareSize();
    if (square.isEmpty()) {
        return true;
    }
    // Touch pads tell pixels; what is not yet a whole square waits for the next event.
    QPointF pixels = event.pixelDelta();
    if (event.phase() == Qt::NoScrollPhase || pixels.isNull()) {
        const double lines = QApplication::wheelScrollLines() / static_cast<double>(WheelStep);
        const auto notch = [lines](int angle, double size) {
            return angle * lines * size * std::max(1.0, std::round(LinePixels / size));
        };
        pixels = {notch(event.angleDelta().x(), square.width()),
                  notch(event.angleDelta().y(), square.height())};
    }
    if (event.modifiers().testFlag(Qt::ShiftModifier) && pixels.x() == 0) {
        pixels = {pixels.y() * square.width() / square.height(), 0};
    }
    if (event.phase() == Qt::ScrollBegin) {
        m_pending = {};
    }
    m_pending += QPointF(pixels.x() / square.width(), pixels.y() / square.height());
    const QPoint whole(TruncToInt(m_pending.x()), TruncToInt(m_pending.y()));
    m_pending -= whole;
    ScrollBy(-whole.x(), -whole.y());
    return true;
}

bool GridNavigator::NativeGesture(QNativeGestureEvent& event, QPointF place) {
    // Or else it would come to the parent too.
    event.accept();
    switch (event.gestureType()) {
    case Qt::BeginNativeGesture:
        m_pinched = m_area.Zoom().GridZoom();
        return true;
    case Qt::EndNativeGesture:
        m_pinched = 0;
        return true;
    case Qt::ZoomNativeGesture:
        Pinch(1 + event.value(), place);
        return true;
    default:
        return false;
    }
}

bool GridNavigator::Gesture(QGestureEvent& event) {
    auto* pinch = static_cast<QPinchGesture*>(event.gesture(Qt::PinchGesture));
    if (pinch == nullptr) {
        return false;
    }
    if (pinch->state() == Qt::GestureStarted) {
        m_pinched = m_area.Zoom().GridZoom();
    }
    if (pinch->changeFlags().testFlag(QPinchGesture::ScaleFactorChanged)) {
        Pinch(pinch->scaleFactor(), m_area.mapFromGlobal(pinch->centerPoint()));
    }
    event.accept(pinch);
    return true;
}

void GridNavigator::Pinch(double factor, QPointF place) {
    const int now = m_area.Zoom().GridZoom();
    // A slow pinch grows by less than a percent at a time.
    if (RoundToInt(m_pinched) != now) {
        m_pinched = now;
    }
    m_pinched = std::clamp<double>(m_pinched * std::max(0.01, factor), GridViewport::MinZoom,
                                   GridViewport::MaxZoom);
    m_area.ZoomAt(place, RoundToInt(m_pinched));
}

bool GridNavigator::MousePress(const QMouseEvent& event) {
    const bool grabs =
        event.button() == Qt::MiddleButton || (event.button() == Qt::LeftButton && m_spaceHeld);
    if (m_dragging || !grabs) {
        return m_dragging;
    }
    m_dragging = true;
    m_dragButton = event.button();
    m_dragFrom = event.globalPosition();
    m_dragFirst = {m_area.FirstColumn(), m_area.FirstRow()};
    ShowHand();
    return true;
}

bool GridNavigator::MouseMove(const QMouseEvent& event) {
    const QSizeF square = m_area.SquareSize();
    if (!m_dragging || square.isEmpty()) {
        return m_dragging;
    }
    const QPointF way = m_dragFrom - event.globalPosition();
    m_area.ScrollGrid(m_dragFirst.X + RoundToInt(way.x() / square.width()),
                      m_dragFirst.Y + RoundToInt(way.y() / square.height()), false);
    return true;
}

bool GridNavigator::MouseRelease(const QMouseEvent& event) {
    if (!m_dragging) {
        return false;
    }
    if (event.button() == m_dragButton) {
        m_dragging = false;
        ShowHand();
    }
    return true;
}

bool GridNavigator::Space(const QKeyEvent& event, bool down) {
    if (event.key() != Qt::Key_Space) {
        return false;
    }
    if (!event.isAutoRepeat()) {
        m_spaceHeld = down;
        ShowHand();
    }
    return true;
}

void GridNavigator::ShowHand() {
    if (m_dragging) {
        m_area.Canvas().SetHand(Qt::ClosedHandCursor);
    } else if (m_spaceHeld) {
        m_area.Canvas().SetHand(Qt::OpenHandCursor);
    } else {
        m_area.Canvas().SetHand(std::nullopt);
    }
}

} // namespace zol
