// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QString>

#include "print/PageDevice.h"
#include "print/PageFont.h"

namespace zol {

/// Text, rules and boxes at positions in twips of a page device. A canvas without a device takes
/// everything and paints nothing, so that pages can be counted by the code that paints them.
class PageCanvas {
public:
    PageCanvas() = default;
    /// The device must outlive the canvas; a device that cannot be painted on counts as none.
    explicit PageCanvas(PageDevice& device);

    [[nodiscard]] bool Paints() const { return m_painter != nullptr; }
    /// The painter in the device's pixels; null when nothing is painted.
    [[nodiscard]] QPainter* Painter() const { return m_painter; }
    [[nodiscard]] double PixelX(double twips) const { return twips / m_twipsPerPixelX; }
    [[nodiscard]] double PixelY(double twips) const { return twips / m_twipsPerPixelY; }
    /// A quarter point in twips: a sharp device would lose a finer rule on paper.
    static constexpr double FinestRule = 5;
    /// Width of the finest rule: a pixel of the device, but no finer than FinestRule.
    [[nodiscard]] double Hairline() const;

    /// `y` is the top of the text's line.
    void Text(double x, double y, const QString& text, const PageFont& font,
              const QColor& colour = Qt::black) const;
    void Rule(double x1, double y1, double x2, double y2, double width,
              const QColor& colour = Qt::black) const;
    void Fill(const QRectF& box, const QColor& colour) const;
    void Frame(const QRectF& box, double width, const QColor& colour = Qt::black) const;

private:
    [[nodiscard]] QRectF Pixels(const QRectF& twips) const;

    QPainter* m_painter = nullptr;
    double m_twipsPerPixelX = 1;
    double m_twipsPerPixelY = 1;
};

} // namespace zol
