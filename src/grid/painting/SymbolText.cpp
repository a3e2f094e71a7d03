// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/SymbolText.h"

#include <QFont>
#include <QFontDatabase>
#include <QGlyphRun>
#include <QPainter>
#include <QTransform>

#include <cmath>
#include <utility>

#include "model/CodePage.h"

namespace zol {

namespace {

/// Pixel size at which outlines are taken; large, so that no hint bends them.
constexpr double OutlineSize = 1024;
/// Heights of symbols, in pixels, that gain from crisp edges.
constexpr double SnapFrom = 5;
constexpr double SnapTo = 48;

QRawFont FontOf(const QString& family, bool bold, bool italic) {
    QFont font(family);
    font.setBold(bold);
    font.setItalic(italic);
    font.setPixelSize(static_cast<int>(OutlineSize));
    font.setHintingPreference(QFont::PreferNoHinting);
    return QRawFont::fromFont(font);
}

/// Where a stretch of ink begins and how long it is, when both ends shall be pixel borders.
std::pair<double, double> SnappedStretch(double from, double to) {
    const double length = to - from;
    const double middle = (from + to) / 2;
    std::pair<double, double> best{from, length};
    double leastError = 1e9;
    for (const double wanted : {std::floor(length), std::ceil(length)}) {
        if (wanted < 1) {
            continue;
        }
        const double start = std::round(middle - wanted / 2);
        const double error = std::abs(wanted - length) / 2 + std::abs(start + wanted / 2 - middle);
        if (error < leastError) {
            leastError = error;
            best = {start, wanted};
        }
    }
    return best;
}

/// The transform that brings a symbol's ink to pixel borders.
QTransform SnapTransform(const QRectF& ink) {
    if (ink.width() < 1 || ink.height() < 1) {
        return {};
    }
    const auto [left, width] = SnappedStretch(ink.left(), ink.right());
    const auto [top, height] = SnappedStretch(ink.top(), ink.bottom());
    QTransform snap;
    snap.translate(left, top);
    snap.scale(width / ink.width(), height / ink.height());
    snap.translate(-ink.left(), -ink.top());
    return snap;
}

} // namespace

SymbolText::SymbolText() : m_builtIn(FontOf(LoadBuiltInFont(), false, false)) {
    m_font = m_builtIn;
    m_name = LoadBuiltInFont().toStdString();
}

char32_t SymbolText::ToUnicode(int code) {
    switch (code) {
    case 160:
        return 0xE0A0;
    case 173:
        return 0xE0AD;
    default:
        return code > 0 && code < 256 ? CodePage::ToUnicode(static_cast<std::uint8_t>(code)) : 0;
    }
}

const QString& SymbolText::LoadBuiltInFont() {
    static const QString family = [] {
        const int id =
            QFontDatabase::addApplicationFont(QStringLiteral(":/grid/KorvantaSymbols.ttf"));
        return QFontDatabase::applicationFontFamilies(id).value(0);
    }();
    return family;
}

void SymbolText::SetFont(const std::string& name, bool bold, bool italic) {
    if (name == m_name && bold == m_bold && italic == m_italic) {
        return;
    }
    m_name = name;
    m_bold = bold;
    m_italic = italic;
    m_font = FontOf(QString::fromStdString(name), bold, italic);
    m_glyphs.fill({});
}

SymbolText::Glyph SymbolText::MakeGlyph(const QRawFont& font, quint32 index) {
    Glyph glyph;
    glyph.font = &font;
    glyph.index = index;
    const double cell = font.ascent() + font.descent();
    if (cell <= 0) {
        return glyph;
    }
    const double advance = font.advancesForGlyphIndexes({index}).value(0).x();
    glyph.size = OutlineSize / cell;
    glyph.origin = QPointF(-advance / 2, font.ascent() - cell / 2) / cell;
    QTransform place;
    place.translate(glyph.origin.x(), glyph.origin.y());
    place.scale(1 / cell, 1 / cell);
    glyph.outline = place.map(font.pathForGlyph(index));
    return glyph;
}

const SymbolText::Glyph& SymbolText::GlyphOf(int symbol) {
    std::optional<Glyph>& slot = m_glyphs[static_cast<std::size_t>(symbol)];
    if (!slot) {
        const char32_t character = ToUnicode(symbol);
        const QString text = QString::fromUcs4(&character, 1);
        const quint32 index = m_font.glyphIndexesForString(text).value(0);
        slot = index != 0 ? MakeGlyph(m_font, index)
                          : MakeGlyph(m_builtIn, m_builtIn.glyphIndexesForString(text).value(0));
    }
    return *slot;
}

void SymbolText::Prepare(int symbol) {
    if (ToUnicode(symbol) != 0) {
        static_cast<void>(GlyphOf(symbol));
    }
}

std::optional<SymbolText::PlacedGlyph> SymbolText::Place(const QRectF& rect, int symbol,
                                                         double scale) {
    const double height = rect.height() * scale;
    if (ToUnicode(symbol) == 0 || height <= 0) {
        return std::nullopt;
    }
    const Glyph& glyph = GlyphOf(symbol);
    if (glyph.size <= 0) {
        return std::nullopt;
    }
    return PlacedGlyph{glyph.index, rect.center() + glyph.origin * height, glyph.size * height,
                       glyph.font == &m_builtIn};
}

QRawFont SymbolText::FontOfSize(double pixelSize, bool isBuiltIn) const {
    QRawFont font = isBuiltIn ? m_builtIn : m_font;
    font.setPixelSize(pixelSize);
    return font;
}

void SymbolText::DrawText(QPainter& painter, const QRectF& rect, int symbol, const QColor& color,
                          double scale) {
    const std::optional<PlacedGlyph> glyph = Place(rect, symbol, scale);
    if (!glyph) {
        return;
    }
    QGlyphRun run;
    run.setRawFont(FontOfSize(glyph->PixelSize, glyph->IsBuiltIn));
    run.setGlyphIndexes({glyph->Index});
    run.setPositions({QPointF(0, 0)});
    painter.setPen(color);
    painter.drawGlyphRun(glyph->Position, run);
}

QPainterPath SymbolText::Outline(const QRectF& rect, int symbol, double scale, bool snap) {
    if (ToUnicode(symbol) == 0) {
        return {};
    }
    const double height = rect.height() * scale;
    QTransform place;
    place.translate(rect.center().x(), rect.center().y());
    place.scale(height, height);
    const QPainterPath outline = place.map(GlyphOf(symbol).outline);
    if (!snap || height < SnapFrom || height > SnapTo) {
        return outline;
    }
    return SnapTransform(outline.boundingRect()).map(outline);
}

} // namespace zol
