// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/SymbolBatch.h"

#include <QGlyphRun>
#include <QPainter>

namespace zol {

void SymbolBatch::Add(SymbolText& symbols, const QRectF& rect, int symbol, const QColor& color,
                      double scale) {
    const std::optional<SymbolText::PlacedGlyph> glyph = symbols.Place(rect, symbol, scale);
    if (!glyph) {
        return;
    }
    const Key key{color.rgba(), glyph->PixelSize, glyph->IsBuiltIn};
    const auto [found, isNew] = m_index.try_emplace(key, m_groups.size());
    if (isNew) {
        m_groups.push_back({color, symbols.FontOfSize(glyph->PixelSize, glyph->IsBuiltIn), {}, {}});
    }
    Group& group = m_groups[found->second];
    group.glyphs.push_back(glyph->Index);
    group.positions.push_back(glyph->Position);
}

void SymbolBatch::Flush(QPainter& painter) {
    for (const Group& group : m_groups) {
        QGlyphRun run;
        run.setRawFont(group.font);
        run.setGlyphIndexes(group.glyphs);
        run.setPositions(group.positions);
        painter.setPen(group.color);
        painter.drawGlyphRun(QPointF(0, 0), run);
    }
    m_groups.clear();
    m_index.clear();
}

} // namespace zol
