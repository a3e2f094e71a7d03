// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// What mouse and keys do to a picture's view.

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimerEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

#include "import/windows/PictureView.h"

namespace zol {

namespace {

/// What a notch of the wheel zooms by, and how far it turns.
constexpr double NotchFactor = 1.25;
constexpr double NotchAngle = 120;
/// Of a drag past the edge: milliseconds from step to step, and the longest step in pixels of the
/// window.
constexpr int ScrollEveryMs = 16;
constexpr double LongestStep = 40;

/// How far to scroll for a pointer that far along a view of that length: 0 inside, more the farther
/// outside it is.
double StepFor(double place, int length) {
    const double outside = place < 0 ? place : std::max(0.0, place - length + 1);
    return std::clamp(outside / 2, -LongestStep, LongestStep);
}

/// Scrolls by that much; false if there is nothing to scroll that way.
bool Scroll(QScrollBar& bar, double step) {
    const int before = bar.value();
    bar.setValue(before + static_cast<int>(step < 0 ? std::floor(step) : std::ceil(step)));
    return bar.value() != before;
}

} // namespace

void PictureView::SetPanning(bool panning, QPoint at) {
    m_panning = panning;
    m_panFrom = at;
    ShowPointer();
}

void PictureView::SetPointer(const QCursor& pointer) {
    m_pointer = pointer;
    ShowPointer();
}

/// A hand while the picture can be dragged; else whatever the view's user has set.
void PictureView::ShowPointer() {
    if (m_panning) {
        viewport()->setCursor(Qt::ClosedHandCursor);
    } else if (m_blankHeld) {
        viewport()->setCursor(Qt::OpenHandCursor);
    } else {
        viewport()->setCursor(m_pointer);
    }
}

void PictureView::mousePressEvent(QMouseEvent* event) {
    if (m_place.IsEmpty() || m_dragging || m_panning) {
        return;
    }
    if (event->button() == Qt::MiddleButton || (event->button() == Qt::LeftButton && m_blankHeld)) {
        SetPanning(true, event->pos());
    } else if (event->button() == Qt::LeftButton) {
        m_dragging = true;
        Q_EMIT Pressed(InPicture(event->position()), event->modifiers());
    }
}

void PictureView::mouseMoveEvent(QMouseEvent* event) {
    if (m_place.IsEmpty()) {
        return;
    }
    if (m_panning) {
        const QPointF moved = QPointF(event->pos() - m_panFrom) * m_place.Ratio;
        m_panFrom = event->pos();
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() -
                                        static_cast<int>(std::lround(moved.x())));
        verticalScrollBar()->setValue(verticalScrollBar()->value() -
                                      static_cast<int>(std::lround(moved.y())));
        return;
    }
    m_dragAt = event->position();
    if (m_dragging && !QRectF(viewport()->rect()).contains(m_dragAt)) {
        // A pointer that keeps moving does not hurry it.
        if (!m_scrolling.isActive()) {
            m_scrolling.start(ScrollEveryMs, this);
        }
    } else {
        m_scrolling.stop();
    }
    Q_EMIT Moved(InPicture(m_dragAt), m_dragging);
}

void PictureView::timerEvent(QTimerEvent* event) {
    if (event->timerId() == m_scrolling.timerId()) {
        ScrollOn();
    } else {
        QAbstractScrollArea::timerEvent(event);
    }
}

/// A step of a drag past the edge: what is drawn goes along with the picture.
void PictureView::ScrollOn() {
    const double ratio = m_place.Ratio;
    const bool across =
        Scroll(*horizontalScrollBar(), StepFor(m_dragAt.x(), viewport()->width()) * ratio);
    const bool down =
        Scroll(*verticalScrollBar(), StepFor(m_dragAt.y(), viewport()->height()) * ratio);
    if (m_dragging && !m_place.IsEmpty() && (across || down)) {
        Q_EMIT Moved(InPicture(m_dragAt), true);
    } else {
        m_scrolling.stop();
    }
}

void PictureView::mouseReleaseEvent(QMouseEvent* event) {
    if (m_panning && (event->button() == Qt::MiddleButton || event->button() == Qt::LeftButton)) {
        SetPanning(false);
    } else if (m_dragging && event->button() == Qt::LeftButton) {
        m_dragging = false;
        m_scrolling.stop();
        Q_EMIT Released(InPicture(event->position()));
    }
}

void PictureView::wheelEvent(QWheelEvent* event) {
    const int turned = event->angleDelta().y();
    if ((event->modifiers() & Qt::ControlModifier) == 0) {
        QAbstractScrollArea::wheelEvent(event);
    } else if (turned != 0 && !m_place.IsEmpty()) {
        SetZoom(Zoom() * std::pow(NotchFactor, turned / NotchAngle), event->position());
        event->accept();
    }
}

void PictureView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Space:
        if (!event->isAutoRepeat()) {
            m_blankHeld = true;
            ShowPointer();
        }
        return;
    case Qt::Key_Home:
        horizontalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
        return;
    case Qt::Key_End:
        horizontalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
        return;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void PictureView::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space) {
        if (!event->isAutoRepeat()) {
            m_blankHeld = false;
            ShowPointer();
        }
        return;
    }
    QAbstractScrollArea::keyReleaseEvent(event);
}

void PictureView::focusInEvent(QFocusEvent* event) {
    viewport()->update(); // its frame
    QAbstractScrollArea::focusInEvent(event);
}

void PictureView::focusOutEvent(QFocusEvent* event) {
    m_blankHeld = false;
    ShowPointer();
    viewport()->update();
    QAbstractScrollArea::focusOutEvent(event);
}

bool PictureView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave) {
        Q_EMIT Left();
    }
    return QAbstractScrollArea::viewportEvent(event);
}

} // namespace zol
