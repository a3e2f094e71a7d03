// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/FlossDrag.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>

namespace zol {

namespace {

constexpr int PictureSide = 32;

/// The pointer's arrow head beside a patch of the floss.
QCursor CursorOf(const QColor& floss) {
    const double ratio = qApp->devicePixelRatio();
    QPixmap picture(QSize(PictureSide, PictureSide) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 1));
    painter.setBrush(Qt::black);
    painter.drawPolygon(QPolygonF{{0.5, 0.5}, {0.5, 13.5}, {4, 10.5}, {9.5, 9.5}});
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QColor(128, 128, 128));
    painter.setBrush(floss);
    painter.drawRect(10, 10, 20, 20);
    painter.end();
    return QCursor(picture, 0, 0);
}

} // namespace

FlossDrag::~FlossDrag() {
    Cancel();
}

void FlossDrag::Press(const QMouseEvent& event) {
    Cancel();
    m_pressed = event.button() == Qt::LeftButton;
    m_from = event.globalPosition().toPoint();
}

bool FlossDrag::Move(const QMouseEvent& event, const QColor& floss) {
    const QPoint at = event.globalPosition().toPoint();
    if (!m_pressed || (event.buttons() & Qt::LeftButton) == 0) {
        return false;
    }
    if (!m_dragging && (at - m_from).manhattanLength() >= QApplication::startDragDistance()) {
        Begin(floss);
    }
    if (m_dragging) {
        Q_EMIT Moved(at);
    }
    return m_dragging;
}

bool FlossDrag::Release(const QMouseEvent& event) {
    const bool dragged = m_dragging && event.button() == Qt::LeftButton;
    Cancel();
    if (dragged) {
        Q_EMIT Dropped(event.globalPosition().toPoint());
    }
    return dragged;
}

void FlossDrag::Cancel() {
    m_pressed = false;
    if (m_dragging) {
        End();
    }
}

void FlossDrag::Begin(const QColor& floss) {
    m_dragging = true;
    QGuiApplication::setOverrideCursor(CursorOf(floss));
}

void FlossDrag::End() {
    m_dragging = false;
    QGuiApplication::restoreOverrideCursor();
    Q_EMIT Ended();
}

} // namespace zol
