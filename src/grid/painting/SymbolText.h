// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPainterPath>
#include <QRawFont>
#include <QRectF>
#include <QString>

#include <array>
#include <optional>
#include <string>

#include "flosses/Palette.h"
#include "model/ZOLTypes.h"

class QPainter;

namespace zol {

/// The symbols of one symbol font, by their codes. Needs a QGuiApplication. Symbols are painted as
/// text on paper, so that they can be found there, and as outlines elsewhere.
class SymbolText {
public:
    /// The font "Korvanta Symbols", which the program carries within itself.
    SymbolText();

    /// A code through Windows-1252, but for 160 and 173 (a blank and a soft hyphen there), which
    /// take U+E0A0 and U+E0AD; 0 for code 0 and codes outside a byte.
    [[nodiscard]] static char32_t ToUnicode(int code);
    /// Makes the built-in font known to Qt, once; its family name, empty if it is missing.
    static const QString& LoadBuiltInFont();

    /// Takes another font. A missing family gives Qt's substitute for it; a symbol that the font
    /// lacks is taken from the built-in font.
    void SetFont(const std::string& name, bool bold, bool italic);
    void SetFont(const Palette& palette) {
        SetFont(palette.GetFontName(), palette.GetFontBold(), palette.GetFontItalic());
    }

    /// The symbol as text: the font's height is `scale` times the rectangle's, and its cell is
    /// centred in the rectangle. Nothing for symbol 0.
    void DrawText(QPainter& painter, const QRectF& rect, int symbol, const QColor& color,
                  double scale = 1);
    /// The symbol's outline as DrawText places it. With `snap` the edges of a small symbol fall on
    /// pixel borders, which keeps it crisp.
    [[nodiscard]] QPainterPath Outline(const QRectF& rect, int symbol, double scale, bool snap);

    /// Takes a symbol's outline from the font. Once this is done, Outline() of that symbol may be
    /// asked for from any one thread at a time.
    void Prepare(int symbol);

    /// Where a symbol's glyph begins, and in which of the two fonts at which size.
    struct PlacedGlyph {
        quint32 Index = 0;
        QPointF Position;
        double PixelSize = 0;
        bool IsBuiltIn = false; ///< taken from the built-in font
    };
    /// As DrawText paints it; nothing for symbol 0 and for a rectangle without height.
    [[nodiscard]] std::optional<PlacedGlyph> Place(const QRectF& rect, int symbol, double scale);
    [[nodiscard]] QRawFont FontOfSize(double pixelSize, bool isBuiltIn) const;

private:
    /// A glyph in a cell of height 1 whose centre is (0, 0).
    struct Glyph {
        const QRawFont* font = nullptr;
        quint32 index = 0;
        QPainterPath outline;
        QPointF origin;  ///< where its base line begins
        double size = 0; ///< the font's pixel size at which the cell is 1 high
    };
    [[nodiscard]] const Glyph& GlyphOf(int symbol);
    [[nodiscard]] static Glyph MakeGlyph(const QRawFont& font, quint32 index);

    std::string m_name;
    bool m_bold = false;
    bool m_italic = false;
    QRawFont m_font;
    QRawFont m_builtIn;
    std::array<std::optional<Glyph>, 256> m_glyphs;
};

} // namespace zol
