// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/SquarePainter.h"

#include <QPainter>

#include <algorithm>

#include "grid/painting/PaintColors.h"
#include "grid/painting/StitchPixels.h"

namespace zol {

namespace {

/// Squares per pen width of the outline of a part stitch on paper, where one pixel would be too
/// fine to see.
constexpr double OutlinesPerSquare = 30;

} // namespace

SquarePainter::SquarePainter(QPainter& painter, const GridView& view, StitchImages& images,
                             SymbolText& symbols)
    : m_painter(painter),
      m_view(view),
      m_images(images),
      m_symbols(symbols) {
    m_painter.save();
    m_painter.setRenderHint(QPainter::Antialiasing, view.Options.Antialias);
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
    m_symbols.SetFont(view.Source->GetPalette());
}

SquarePainter::~SquarePainter() {
    FlushSymbols();
    m_painter.restore();
}

void SquarePainter::DrawStitches(const SquareContent& content, const PixelRect& square) {
    if (square.IsEmpty()) {
        return;
    }
    const int style = m_view.Options.StitchStyle;
    const bool covered = content.StitchCount() > 0 && CoversSquare(style, content.begin()->Kind);
    if (!covered && !IsPaper()) {
        m_painter.fillRect(square.Area(), ToQColor(m_view.Options.Ground()));
    }
    const Palette& palette = m_view.Source->GetPalette();
    for (const SquareContent::Stitch& stitch : content) {
        DrawStitch(stitch.Kind, square, palette.GetFlossRGB(stitch.PaletteIndex),
                   palette.GetFlossSymbol(stitch.PaletteIndex));
    }
}

void SquarePainter::DrawStitch(int kind, const PixelRect& square, Colour floss, int symbol) {
    for (const StitchLayer& layer : LayersOf(m_view.Options.StitchStyle, kind)) {
        DrawLayer(layer, square, floss, symbol);
    }
}

void SquarePainter::DrawLayer(const StitchLayer& layer, const PixelRect& square, Colour floss,
                              int symbol) {
    const Colour ink = InkOf(layer.Colour, floss);
    switch (layer.What) {
    case StitchLayer::Paint::Fill:
        FillShape(layer.Kind, square, ink);
        break;
    case StitchLayer::Paint::Outline:
        DrawOutline(layer.Kind, square, ink);
        break;
    case StitchLayer::Paint::Symbol:
        DrawSymbol(StitchShapes::SymbolRect(layer.Kind, square), symbol, ink);
        break;
    case StitchLayer::Paint::Image:
        DrawImage(layer.Kind, square, floss);
        break;
    }
}

void SquarePainter::FillShape(int kind, const PixelRect& square, Colour colour) {
    const QColor color = ToQColor(colour);
    if (kind == StitchWhole) {
        m_painter.fillRect(square.Area(), color);
    } else if (IsPaper()) {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(color);
        m_painter.drawPolygon(StitchShapes::Area(kind, square));
    } else {
        StitchPixels::FillShape(m_painter, kind, square, color);
    }
}

void SquarePainter::DrawOutline(int kind, const PixelRect& square, Colour colour) {
    if (!IsPaper()) {
        StitchPixels::DrawOutline(m_painter, kind, square, ToQColor(colour));
        return;
    }
    const int pen = std::max(1, static_cast<int>(square.Width() / OutlinesPerSquare));
    const int inset = pen / 2;
    m_painter.setPen(QPen(ToQColor(colour), pen, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawPolygon(StitchShapes::Area(kind, {square.Left + inset, square.Top + inset,
                                                    square.Right - inset, square.Bottom - inset}));
}

void SquarePainter::DrawSymbol(const PixelRect& rect, int symbol, Colour colour) {
    if (symbol == 0 || rect.IsEmpty()) {
        return;
    }
    if (IsPaper()) {
        m_batch.Add(m_symbols, rect.Area(), symbol, ToQColor(colour), m_view.Options.SymbolScale);
        return;
    }
    m_painter.fillPath(m_symbols.Outline(rect.Area(), symbol, m_view.Options.SymbolScale, true),
                       ToQColor(colour));
}

void SquarePainter::DrawImage(int kind, const PixelRect& square, Colour floss) {
    const QImage image = m_images.Image(m_images.SlotOf(floss, m_view.Options.Ground()));
    if (!IsPaper()) {
        m_painter.drawImage(QPoint(square.Left, square.Top),
                            StitchPixels::ImagePart(image, kind, square.Width(), square.Height()));
        return;
    }
    if (kind == StitchWhole) {
        m_painter.drawImage(square.Area(), image);
        return;
    }
    QPainterPath part;
    part.addPolygon(StitchShapes::ImageArea(kind, square.Area()));
    part.closeSubpath();
    m_painter.save();
    m_painter.setClipPath(part, Qt::IntersectClip);
    m_painter.drawImage(square.Area(), image);
    m_painter.restore();
}

void SquarePainter::FlushSymbols() {
    m_batch.Flush(m_painter);
}

void SquarePainter::DrawKnot(const PlacedKnot& placed) {
    // A knot lies on the symbols round it, those of earlier knots included.
    FlushSymbols();
    const PixelRect box =
        KnotShapes::Box(m_view, placed.Square.X, placed.Square.Y, placed.Knot.Position);
    const Palette& palette = m_view.Source->GetPalette();
    const Colour floss = palette.GetFlossRGB(placed.Knot.PaletteIndex);
    const KnotInk ink = KnotInkOf(m_view.Options, floss);
    if (ink.Body) {
        DrawKnotCurve(box, placed.Knot.Orientation, *ink.Body, true);
    }
    if (ink.Outline) {
        DrawKnotCurve(box, placed.Knot.Orientation, *ink.Outline, false);
    }
    if (ink.Symbol && placed.Knot.Orientation == KnotNormal) {
        DrawSymbol(KnotShapes::SymbolRect(box), palette.GetFlossSymbol(placed.Knot.PaletteIndex),
                   *ink.Symbol);
    }
}

void SquarePainter::DrawKnotCurve(const PixelRect& box, int orientation, Colour colour,
                                  bool filled) {
    KnotShapes::Draw(m_painter, box, orientation, KnotShapes::PenWidth(m_view), ToQColor(colour),
                     filled);
}

} // namespace zol
