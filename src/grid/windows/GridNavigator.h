// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPoint>
#include <QPointF>

#include "model/ZOLTypes.h"

class QGestureEvent;
class QKeyEvent;
class QMouseEvent;
class QNativeGestureEvent;
class QWheelEvent;

namespace zol {

class GridArea;

/// How people get about on the cloth besides the scroll bars: the wheel scrolls (with Shift
/// sideways) and zooms with Ctrl, the middle button or a held Space drags the cloth, two fingers
/// zoom. Watches the area and its canvas; belongs to the area.
class GridNavigator : public QObject {
    Q_OBJECT

public:
    explicit GridNavigator(GridArea& area);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Wheel(QWheelEvent& event, QPointF place);
    bool WheelZoom(const QWheelEvent& event, QPointF place);
    bool WheelScroll(const QWheelEvent& event);
    bool NativeGesture(QNativeGestureEvent& event, QPointF place);
    bool Gesture(QGestureEvent& event);
    void Pinch(double factor, QPointF place);
    bool MousePress(const QMouseEvent& event);
    bool MouseMove(const QMouseEvent& event);
    bool MouseRelease(const QMouseEvent& event);
    bool Space(const QKeyEvent& event, bool down);
    void ShowHand();
    void ScrollBy(int columns, int rows);

    GridArea& m_area;
    QPointF m_pending;    ///< scrolled so far, in squares, that is not yet a whole one
    int m_zoomAngle = 0;  ///< of the wheel, not yet a whole step
    double m_pinched = 0; ///< percent, with its fraction, while fingers zoom
    bool m_spaceHeld = false;
    bool m_dragging = false;
    Qt::MouseButton m_dragButton = Qt::NoButton;
    QPointF m_dragFrom; ///< on the screen
    SquarePos m_dragFirst;
};

} // namespace zol
