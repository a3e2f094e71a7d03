// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>
#include <QPointF>
#include <QRect>

class QPainter;
class QWidget;

namespace zol {

/// Lets a widget paint in whole pixels of its device at any pixel ratio, fractions included, so
/// that nothing is blurred. Counts from the pixel in which the widget's upper left corner lies.
class DevicePixels {
public:
    /// Turns the painter's unit into one pixel of the device. The painter must be as it is at the
    /// start of a paint event.
    explicit DevicePixels(QPainter& painter);

    [[nodiscard]] double Ratio() const { return m_ratio; }
    /// The device's pixels that a rectangle of the widget touches.
    [[nodiscard]] QRect Covering(const QRect& rect) const;
    /// Device pixels of a widget that is being painted, where they lie in its window's memory: as a
    /// picture of Format_RGB32 that is painted into without being copied. Nothing is cut: only what
    /// is exposed may be touched. A null picture where the window has no such memory, or its pixels
    /// and the widget's do not meet.
    [[nodiscard]] QImage PixelsOf(const QWidget& widget, const QPainter& painter,
                                  const QRect& rect) const;

    /// The device pixel of a place in a widget on the screen.
    [[nodiscard]] static QPointF At(const QWidget& widget, QPointF place);
    /// The widget's pixels that a rectangle of device pixels touches; at broken ratios a pixel
    /// more on each side, since the two grids may lie in any way to each other.
    [[nodiscard]] static QRect WindowRect(const QRect& pixels, double ratio);
    /// The widget's pixels that hold that many of the device's.
    [[nodiscard]] static int WindowLength(int pixels, double ratio);

private:
    double m_ratio = 1;
    QPointF m_shift; ///< from the corner's pixel to the corner itself, in device pixels
};

} // namespace zol
