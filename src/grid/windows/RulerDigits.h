// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QRect>

#include <unordered_map>

class QPaintDevice;

namespace zol {

/// The numbers of a ruler as glyphs in their places, laid out once each: shaping a text takes
/// longer than painting it. All measures are device pixels.
class RulerDigits {
public:
    struct Number {
        QGlyphRun Glyphs; ///< with the base line's beginning at (0, 0)
        int Width = 0;
    };

    /// To be called before each paint. Forgets what another font, or another size of it, made.
    void SetFont(const QFont& font, int pixelSize, const QPaintDevice& device);
    [[nodiscard]] const Number& Of(int number);
    /// Of a digit whose base line begins at (0, 0).
    [[nodiscard]] const QRect& Box() const { return m_box; }
    [[nodiscard]] int WidthOfThree() const { return m_widthOfThree; }
    [[nodiscard]] int Ascent() const { return m_ascent; }

private:
    QFont m_from; ///< what the next was made of
    QFont m_font;
    int m_resolution = 0;
    QRect m_box;
    int m_widthOfThree = 0;
    int m_ascent = 0;
    std::unordered_map<int, Number> m_numbers;
};

} // namespace zol
