// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PageCanvas.h"

#include <algorithm>

namespace zol {

PageCanvas::PageCanvas(PageDevice& device)
    : m_painter(device.Painter()),
      m_twipsPerPixelX(device.TwipsPerPixelX()),
      m_twipsPerPixelY(device.TwipsPerPixelY()) {}

double PageCanvas::Hairline() const {
    return std::max(FinestRule, m_twipsPerPixelX);
}

void PageCanvas::Text(double x, double y, const QString& text, const PageFont& font,
                      const QColor& colour) const {
    if (m_painter == nullptr || text.isEmpty()) {
        return;
    }
    // The font's pixel is a twip, so the painter is scaled rather than the font.
    m_painter->save();
    m_painter->scale(1 / m_twipsPerPixelX, 1 / m_twipsPerPixelY);
    m_painter->setFont(font.Font());
    m_painter->setPen(colour);
    m_painter->drawText(QPointF(x, y + font.Ascent()), text);
    m_painter->restore();
}

void PageCanvas::Rule(double x1, double y1, double x2, double y2, double width,
                      const QColor& colour) const {
    if (m_painter == nullptr) {
        return;
    }
    m_painter->setPen(QPen(colour, PixelX(width), Qt::SolidLine, Qt::FlatCap));
    m_painter->drawLine(QLineF(PixelX(x1), PixelY(y1), PixelX(x2), PixelY(y2)));
}

void PageCanvas::Fill(const QRectF& box, const QColor& colour) const {
    if (m_painter == nullptr) {
        return;
    }
    m_painter->fillRect(Pixels(box), colour);
}

void PageCanvas::Frame(const QRectF& box, double width, const QColor& colour) const {
    if (m_painter == nullptr) {
        return;
    }
    m_painter->setPen(QPen(colour, PixelX(width), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    m_painter->setBrush(Qt::NoBrush);
    m_painter->drawRect(Pixels(box));
}

QRectF PageCanvas::Pixels(const QRectF& twips) const {
    return {PixelX(twips.left()), PixelY(twips.top()), PixelX(twips.width()),
            PixelY(twips.height())};
}

} // namespace zol
