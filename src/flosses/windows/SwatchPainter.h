// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPalette>
#include <QPixmap>
#include <QRect>
#include <QString>

#include "flosses/Palette.h"
#include "grid/painting/SymbolText.h"

class QPainter;

namespace zol {

/// Paints a floss of a palette as a swatch: its colour with a fine edge, a blend's two colours in
/// two triangles, and its symbol in black or white, whichever stands out.
class SwatchPainter {
public:
    /// Follows the palette's symbol font. Call once before a row of swatches.
    void TakeFont(const Palette& palette);
    /// Nothing outside the palette.
    void Paint(QPainter& painter, const QRect& rect, const Palette& palette, int floss,
               bool withSymbol, const QPalette& theme);
    /// The frame of the floss that is drawn with: the accent, and inside it a line that keeps it
    /// apart from any floss.
    static void PaintFrame(QPainter& painter, const QRect& rect, const Palette& palette, int floss,
                           const QPalette& theme);
    /// The dashed ring of the swatch that the keyboard stands on; inside the frame if it has one.
    static void PaintFocus(QPainter& painter, const QRect& rect, bool isFramed,
                           const QPalette& theme);

private:
    /// `pixels` of the device.
    void PaintThread(QPainter& painter, const QRect& pixels, Colour thread, int symbol);

    /// The symbol over the whole swatch, kept for every window that shows swatches of this size.
    [[nodiscard]] QPixmap Picture(const QSize& size, int symbol, Colour ink);

    SymbolText m_symbols;
    QString m_fontName; ///< with its style, as it stands in the names of pictures
};

} // namespace zol
