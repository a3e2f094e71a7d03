// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/GridCursors.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QPoint>

#include "windowkit/IconFamily.h"

namespace zol::GridCursors {

namespace {

constexpr int Side = 24;

/// The drawing in dark strokes on a light rim of one pixel.
QPixmap Rimmed(const QString& name, qreal ratio) {
    const int side = qRound(Side * ratio);
    const QColor light(Qt::white);
    const QImage rim = IconFamily::Picture(name, side, {light, light, light});
    const QImage drawing = IconFamily::Picture(
        name, side, {QColor(Qt::black), QColor(0xB2, 0x3A, 0x48), QColor(0x88, 0x88, 0x88)});
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    for (const int dy : {-1, 0, 1}) {
        for (const int dx : {-1, 0, 1}) {
            painter.drawImage(QPointF(dx, dy) * ratio, rim);
        }
    }
    painter.drawImage(0, 0, drawing);
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

/// `hotSpot` is the pixel of the drawing that points.
QCursor Drawn(const char* name, qreal ratio, const QPoint& hotSpot) {
    return QCursor(Rimmed(QLatin1String(name), ratio), hotSpot.x(), hotSpot.y());
}

} // namespace

QCursor Cursor(GridCursor kind, qreal ratio) {
    switch (kind) {
    case GridCursor::Cross:
        return {Qt::CrossCursor};
    case GridCursor::Move:
        return {Qt::SizeAllCursor};
    case GridCursor::Paint:
        return Drawn("paint", ratio, {19, 18}); // in the drop
    case GridCursor::ColorPicker:
        return Drawn("color-picker", ratio, {3, 20}); // the tip
    case GridCursor::Erase:
        return Drawn("erase", ratio, {6, 17}); // the edge that rubs
    case GridCursor::Default:
        break;
    }
    return {Qt::ArrowCursor};
}

} // namespace zol::GridCursors
