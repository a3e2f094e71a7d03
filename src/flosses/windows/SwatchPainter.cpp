// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/SwatchPainter.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmapCache>
#include <QPolygon>
#include <QTransform>

#include <algorithm>
#include <cmath>

#include "grid/painting/PaintColors.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

/// Height of a symbol's cell by the swatch's.
constexpr double SymbolScale = 0.8;
constexpr int FrameWidth = 2;

void PaintRing(QPainter& painter, const QRect& rect, int width, const QColor& color) {
    painter.fillRect(rect.left(), rect.top(), rect.width(), width, color);
    painter.fillRect(rect.left(), rect.bottom() - width + 1, rect.width(), width, color);
    const int side = rect.height() - 2 * width;
    painter.fillRect(rect.left(), rect.top() + width, width, side, color);
    painter.fillRect(rect.right() - width + 1, rect.top() + width, width, side, color);
}

/// While one lives its painter takes pixels of the device, so that edges stay crisp at every scale
/// of the screen.
class PixelScope {
public:
    explicit PixelScope(QPainter& painter)
        : m_painter(painter),
          m_device(painter.deviceTransform()) {
        painter.save();
        painter.setWorldTransform(m_device.inverted() * painter.worldTransform());
    }
    ~PixelScope() { m_painter.restore(); }
    PixelScope(const PixelScope&) = delete;
    PixelScope& operator=(const PixelScope&) = delete;

    [[nodiscard]] QRect Of(const QRect& rect) const {
        const QRectF device = m_device.mapRect(QRectF(rect));
        return {device.topLeft().toPoint(), device.bottomRight().toPoint() - QPoint(1, 1)};
    }
    [[nodiscard]] int Lengths(int pixels) const {
        return static_cast<int>(std::lround(pixels * m_device.m11()));
    }
    /// The thinnest line that is seen well.
    [[nodiscard]] int Thin() const { return std::max(1, static_cast<int>(m_device.m11())); }

private:
    QPainter& m_painter;
    QTransform m_device;
};

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

void SwatchPainter::TakeFont(const Palette& palette) {
    m_symbols.SetFont(palette);
    m_fontName = QString::fromStdString(palette.GetFontName());
    m_fontName += palette.GetFontBold() ? QLatin1String(" bold") : QLatin1String();
    m_fontName += palette.GetFontItalic() ? QLatin1String(" italic") : QLatin1String();
}

void SwatchPainter::Paint(QPainter& painter, const QRect& rect, const Palette& palette, int floss,
                          bool withSymbol, const QPalette& theme) {
    if (floss < 1 || floss > palette.GetEntriesCount()) {
        return;
    }
    const PixelScope device(painter);
    const QRect pixels = device.Of(rect);
    const int symbol = withSymbol ? palette.GetFlossSymbol(floss) : 0;
    if (palette.IsBlended(floss)) {
        const PaletteEntry& entry = palette.GetEntry(floss);
        for (const bool first : {true, false}) {
            // Each half takes the symbol's ink that stands out from its own thread.
            const Colour thread = first ? entry.RGB : entry.BlendRGB;
            QPainterPath half;
            half.addPolygon(Triangle(pixels, first));
            painter.save();
            painter.setClipPath(half, Qt::IntersectClip);
            PaintThread(painter, pixels, thread, symbol);
            painter.restore();
        }
    } else {
        PaintThread(painter, pixels, palette.GetFlossRGB(floss), symbol);
    }
    // So that white thread shows on a light window and black on a dark one.
    PaintRing(painter, pixels, device.Thin(),
              Theme::IsDark(theme) ? QColor(255, 255, 255, 56) : QColor(0, 0, 0, 44));
}

void SwatchPainter::PaintThread(QPainter& painter, const QRect& pixels, Colour thread, int symbol) {
    painter.fillRect(pixels, ToQColor(thread));
    if (symbol != 0) {
        painter.drawPixmap(pixels.topLeft(),
                           Picture(pixels.size(), symbol, GetContrastColor(thread)));
    }
}

QPixmap SwatchPainter::Picture(const QSize& size, int symbol, Colour ink) {
    const QString name = QStringLiteral("swatch symbol %1 %2 %3 %4 ")
                             .arg(symbol)
                             .arg(ink)
                             .arg(size.width())
                             .arg(size.height()) +
                         m_fontName;
    QPixmap picture;
    if (QPixmapCache::find(name, &picture)) {
        return picture;
    }
    picture = QPixmap(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(m_symbols.Outline(QRect(QPoint(0, 0), size), symbol, SymbolScale, true),
                     ToQColor(ink));
    painter.end();
    QPixmapCache::insert(name, picture);
    return picture;
}

void SwatchPainter::PaintFrame(QPainter& painter, const QRect& rect, const Palette& palette,
                               int floss, const QPalette& theme) {
    const PixelScope device(painter);
    const QRect pixels = device.Of(rect);
    const int width = device.Lengths(FrameWidth);
    PaintRing(painter, pixels, width, Theme::Accent(theme));
    PaintRing(painter, pixels.adjusted(width, width, -width, -width), device.Thin(),
              Contrast(palette.GetFlossRGB(floss)));
}

void SwatchPainter::PaintFocus(QPainter& painter, const QRect& rect, bool isFramed,
                               const QPalette& theme) {
    const PixelScope device(painter);
    const int inset = device.Lengths(isFramed ? FrameWidth + 2 : 1);
    const int width = device.Thin();
    const QRect ring = device.Of(rect).adjusted(inset, inset, -inset, -inset);
    // One of the two stands out from any floss.
    PaintRing(painter, ring, width, Qt::white);
    QPen pen(Theme::Accent(theme), width, Qt::CustomDashLine, Qt::FlatCap, Qt::MiterJoin);
    pen.setDashPattern({3, 3});
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(ring).adjusted(width / 2.0, width / 2.0, -width / 2.0, -width / 2.0));
}

} // namespace zol
