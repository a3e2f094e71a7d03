// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/RulerDigits.h"

#include <QFontMetrics>
#include <QPaintDevice>
#include <QTextLayout>

namespace zol {

void RulerDigits::SetFont(const QFont& font, int pixelSize, const QPaintDevice& device) {
    // A font that is made anew is looked for among all of the system's.
    const int resolution = device.logicalDpiY();
    if (m_from == font && m_font.pixelSize() == pixelSize && m_resolution == resolution) {
        return;
    }
    m_from = font;
    m_font = QFont(font, &device);
    m_font.setPixelSize(pixelSize);
    m_resolution = resolution;
    m_numbers.clear();
    const QFontMetrics metrics(m_font, &device);
    m_box = metrics.tightBoundingRect(QStringLiteral("0"));
    m_widthOfThree = metrics.horizontalAdvance(QStringLiteral("000"));
    m_ascent = metrics.ascent();
}

const RulerDigits::Number& RulerDigits::Of(int number) {
    const auto [place, isNew] = m_numbers.try_emplace(number);
    if (isNew) {
        QTextLayout layout(QString::number(number), m_font);
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(1e6);
        line.setPosition({0, -line.ascent()});
        layout.endLayout();
        const QList<QGlyphRun> runs = layout.glyphRuns();
        if (!runs.isEmpty()) {
            place->second.Glyphs = runs.first();
        }
        place->second.Width = QFontMetrics(m_font).horizontalAdvance(layout.text());
    }
    return place->second;
}

} // namespace zol
