// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PageFont.h"

#include <algorithm>

#include "model/Rounding.h"

namespace zol {

namespace {

/// A line of text with its leading.
constexpr double LineHeightInEms = 1.25;

QFont MakeFont(const QString& family, double points, bool bold, bool italic, bool underline) {
    constexpr double TwipsPerPoint = 20;
    constexpr double LargestSize = 20000; // beyond any paper; keeps absurd settings harmless
    QFont font(family);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(
        std::max(1, RoundToInt(std::clamp(points * TwipsPerPoint, 1.0, LargestSize))));
    font.setBold(bold);
    font.setItalic(italic);
    font.setUnderline(underline);
    font.setKerning(false);
    return font;
}

} // namespace

PageFont::PageFont(const QString& family, double points, bool bold, bool italic, bool underline)
    : m_font(MakeFont(family, points, bold, italic, underline)),
      m_metrics(m_font),
      m_height(RoundToInt(std::max(m_metrics.height(), m_font.pixelSize() * LineHeightInEms))) {}

PageFont PageFont::TextInfo(const PrintOptions& options) {
    return TextInfo(options, options.TextInfoFontSize);
}

PageFont PageFont::TextInfo(const PrintOptions& options, double points) {
    return {QString::fromStdString(options.TextInfoFontName), points, options.TextInfoFontBold,
            options.TextInfoFontItalic, options.TextInfoFontUnderline};
}

PageFont PageFont::TextInfoPlain(const PrintOptions& options) {
    return {QString::fromStdString(options.TextInfoFontName), options.TextInfoFontSize, false,
            options.TextInfoFontItalic, false};
}

double PageFont::Ascent() const {
    return m_metrics.ascent() + (m_height - m_metrics.height()) / 2;
}

int PageFont::TextWidth(const QString& text) const {
    return RoundToInt(m_metrics.horizontalAdvance(text));
}

} // namespace zol
