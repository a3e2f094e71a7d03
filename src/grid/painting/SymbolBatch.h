// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPointF>
#include <QRawFont>
#include <QRectF>
#include <QVector>

#include <map>
#include <utility>
#include <vector>

#include "grid/painting/SymbolText.h"

class QPainter;

namespace zol {

/// Symbols that are painted as text together: all of one colour and size in one go, which spares
/// a document the change of state between any two of them. Each stays a text item of its own.
class SymbolBatch {
public:
    /// Places the symbol as SymbolText::DrawText does. Nothing for symbol 0.
    void Add(SymbolText& symbols, const QRectF& rect, int symbol, const QColor& color,
             double scale);
    /// Paints what was added, in the order in which colours and sizes came up.
    void Flush(QPainter& painter);

private:
    struct Group {
        QColor color;
        QRawFont font;
        QVector<quint32> glyphs;
        QVector<QPointF> positions;
    };
    struct Key {
        QRgb color = 0;
        double pixelSize = 0;
        bool builtIn = false;
        friend auto operator<=>(const Key&, const Key&) = default;
    };

    std::vector<Group> m_groups;
    std::map<Key, std::size_t> m_index;
};

} // namespace zol
