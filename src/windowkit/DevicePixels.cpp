// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/DevicePixels.h"

#include <QBackingStore>
#include <QPaintEngine>
#include <QPainter>
#include <QTransform>
#include <QWidget>

#include <cmath>

namespace zol {

namespace {

/// Halves go up on both sides of 0, so that a widget scrolled by whole device pixels keeps its
/// pixels.
QPointF Rounded(QPointF place) {
    return {std::floor(place.x() + 0.5), std::floor(place.y() + 0.5)};
}

bool IsWhole(double ratio) {
    return std::floor(ratio) == ratio;
}

} // namespace

DevicePixels::DevicePixels(QPainter& painter) {
    const QTransform& device = painter.deviceTransform();
    m_ratio = device.m11();
    const QPointF corner(device.dx(), device.dy());
    m_shift = corner - Rounded(corner);
    const QPointF back = -m_shift / m_ratio;
    painter.setWorldTransform({1 / m_ratio, 0, 0, 1 / m_ratio, back.x(), back.y()});
}

QRect DevicePixels::Covering(const QRect& rect) const {
    const QRectF scaled(QPointF(rect.topLeft()) * m_ratio + m_shift, QSizeF(rect.size()) * m_ratio);
    return scaled.toAlignedRect();
}

QImage DevicePixels::PixelsOf(const QWidget& widget, const QPainter& painter,
                              const QRect& rect) const {
    QBackingStore* store = widget.backingStore();
    QPaintDevice* device = painter.paintEngine()->paintDevice();
    // A picture that somebody makes of the widget may be cut in ways that only the painter knows.
    auto* window = store != nullptr && store->paintDevice() == device
                       ? dynamic_cast<QImage*>(device)
                       : nullptr;
    const QTransform& place = painter.deviceTransform();
    if (window == nullptr || !window->isDetached() || !IsWhole(m_ratio) ||
        place.type() > QTransform::TxTranslate ||
        (window->format() != QImage::Format_RGB32 &&
         window->format() != QImage::Format_ARGB32_Premultiplied)) {
        return {};
    }
    const QRect pixels = rect.translated(QPointF(place.dx(), place.dy()).toPoint());
    if (rect.isEmpty() || !window->rect().contains(pixels)) {
        return {};
    }
    return {window->scanLine(pixels.top()) + qsizetype{pixels.left()} * 4, pixels.width(),
            pixels.height(), window->bytesPerLine(), QImage::Format_RGB32};
}

QPointF DevicePixels::At(const QWidget& widget, QPointF place) {
    const double ratio = widget.devicePixelRatioF();
    const QPointF corner = QPointF(widget.mapTo(widget.window(), QPoint())) * ratio;
    return place * ratio + corner - Rounded(corner);
}

QRect DevicePixels::WindowRect(const QRect& pixels, double ratio) {
    const QRectF scaled(QPointF(pixels.topLeft()) / ratio, QSizeF(pixels.size()) / ratio);
    const int more = IsWhole(ratio) ? 0 : 1;
    return scaled.toAlignedRect().adjusted(-more, -more, more, more);
}

int DevicePixels::WindowLength(int pixels, double ratio) {
    // A hair less, so that a product of the ratio comes back whole.
    return static_cast<int>(std::ceil(pixels / ratio - 1e-6));
}

} // namespace zol
