// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// What mouse and keys do to a picture's view.

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>

#include "import/windows/PictureView.h"

namespace zol {

namespace {

/// What a notch of the wheel zooms by, and how far it turns.
constexpr double NotchFactor = 1.25;
constexpr double NotchAngle = 120;

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
    Q_EMIT Moved(InPicture(event->position()), m_dragging);
}

void PictureView::mouseReleaseEvent(QMouseEvent* event) {
    if (m_panning && (event->button() == Qt::MiddleButton || event->button() == Qt::LeftButton)) {
        SetPanning(false);
    } else if (m_dragging && event->button() == Qt::LeftButton) {
        m_dragging = false;
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

void PictureView::focusOutEvent(QFocusEvent* event) {
    m_blankHeld = false;
    ShowPointer();
    QAbstractScrollArea::focusOutEvent(event);
}

bool PictureView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave) {
        Q_EMIT Left();
    }
    return QAbstractScrollArea::viewportEvent(event);
}

} // namespace zol
