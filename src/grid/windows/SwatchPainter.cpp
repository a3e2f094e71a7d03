// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/SwatchPainter.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygon>

#include "grid/painting/PaintColors.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

/// Height of a symbol's cell by the swatch's.
constexpr double SymbolScale = 0.8;
constexpr int FrameWidth = 2;

/// A ring of filled bars, which stays crisp at every scale of the screen.
void PaintRing(QPainter& painter, const QRect& rect, int width, const QColor& color) {
    painter.fillRect(rect.left(), rect.top(), rect.width(), width, color);
    painter.fillRect(rect.left(), rect.bottom() - width + 1, rect.width(), width, color);
    const int side = rect.height() - 2 * width;
    painter.fillRect(rect.left(), rect.top() + width, width, side, color);
    painter.fillRect(rect.right() - width + 1, rect.top() + width, width, side, color);
}

QColor Contrast(Colour colour) {
    return ToQColor(GetContrastColor(colour));
}

/// The half of a swatch that a blend's first thread takes, or its second.
QPolygon Triangle(const QRect& rect, bool first) {
    const QPoint topRight(rect.right() + 1, rect.top());
    const QPoint bottomLeft(rect.left(), rect.bottom() + 1);
    return {{first ? rect.topLeft() : QPoint(rect.right() + 1, rect.bottom() + 1), topRight,
             bottomLeft}};
}

} // namespace

void SwatchPainter::Paint(QPainter& painter, const QRect& rect, const Palette& palette, int floss,
                          bool withSymbol, const QPalette& theme) {
    if (floss < 1 || floss > palette.GetEntriesCount()) {
        return;
    }
    const int symbol = withSymbol ? palette.GetFlossSymbol(floss) : 0;
    if (palette.IsBlended(floss)) {
        const PaletteEntry& entry = palette.GetEntry(floss);
        for (const bool first : {true, false}) {
            // Each half takes the symbol's ink that stands out from its own thread.
            const Colour thread = first ? entry.RGB : entry.BlendRGB;
            QPainterPath half;
            half.addPolygon(Triangle(rect, first));
            painter.save();
            painter.setClipPath(half, Qt::IntersectClip);
            painter.fillRect(rect, ToQColor(thread));
            PaintSymbol(painter, rect, symbol, Contrast(thread));
            painter.restore();
        }
    } else {
        const Colour colour = palette.GetFlossRGB(floss);
        painter.fillRect(rect, ToQColor(colour));
        PaintSymbol(painter, rect, symbol, Contrast(colour));
    }
    // So that white thread shows on a light window and black on a dark one.
    PaintRing(painter, rect, 1,
              Theme::IsDark(theme) ? QColor(255, 255, 255, 56) : QColor(0, 0, 0, 44));
}

void SwatchPainter::PaintSymbol(QPainter& painter, const QRect& rect, int symbol,
                                const QColor& color) {
    if (symbol == 0) {
        return;
    }
    // In pixels of the device, where the outline's edges are fitted to them.
    const double ratio = painter.device()->devicePixelRatioF();
    const QRectF device(rect.x() * ratio, rect.y() * ratio, rect.width() * ratio,
                        rect.height() * ratio);
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(m_symbols.Outline(device, symbol, SymbolScale, true), color);
    painter.restore();
}

void SwatchPainter::PaintFrame(QPainter& painter, const QRect& rect, const Palette& palette,
                               int floss, const QPalette& theme) {
    PaintRing(painter, rect, FrameWidth, Theme::Accent(theme));
    PaintRing(painter, rect.marginsRemoved({FrameWidth, FrameWidth, FrameWidth, FrameWidth}), 1,
              Contrast(palette.GetFlossRGB(floss)));
}

void SwatchPainter::PaintFocus(QPainter& painter, const QRect& rect, const Palette& palette,
                               int floss) {
    constexpr int inset = FrameWidth + 2;
    QPen pen(Contrast(palette.GetFlossRGB(floss)), 1, Qt::CustomDashLine);
    pen.setDashPattern({2, 2});
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect.adjusted(inset, inset, -inset - 1, -inset - 1));
}

} // namespace zol
