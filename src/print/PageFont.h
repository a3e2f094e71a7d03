// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QString>

#include "print/PrintOptions.h"

namespace zol {

/// A font measured in twips. Its pixel size is its height in twips and it is not hinted, so that
/// the same text has the same width on every device: what was counted on one page device is what
/// another prints.
class PageFont {
public:
    /// `points` may be a fraction; sizes go by twips, a twentieth of a point.
    PageFont(const QString& family, double points, bool bold, bool italic, bool underline);

    /// The pattern information font at its own size, with its bold, italic and underline.
    [[nodiscard]] static PageFont TextInfo(const PrintOptions& options);
    /// The same at another size.
    [[nodiscard]] static PageFont TextInfo(const PrintOptions& options, double points);
    [[nodiscard]] static PageFont TextInfoPlain(const PrintOptions& options);

    [[nodiscard]] int TextWidth(const QString& text) const;
    /// Of a line, with the air between lines that it brings.
    [[nodiscard]] int TextHeight() const { return m_height; }
    /// From the top of a line to its base line.
    [[nodiscard]] double Ascent() const;
    [[nodiscard]] const QFont& Font() const { return m_font; }

private:
    QFont m_font;
    QFontMetricsF m_metrics;
    int m_height;
};

} // namespace zol
