// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "model/ZOLTypes.h"

namespace zol {

/// What a painter is asked for. Painters read no settings: whoever calls fills this in.
struct PaintOptions {
    static constexpr int None = -1; ///< of StitchStyle and LinesStyle
    enum LineColours : std::uint8_t { ColourLines = 1, BlackLines = 2 };

    RenderTarget Target = TargetGrid;
    int StitchStyle = ShowColorSquares; ///< a DisplayStyle, or None
    int LinesStyle = ColourLines;       ///< ColourLines, BlackLines or None
    bool GridLines = true;
    bool Antialias = true;

    double NormalWidthPercent = 5; ///< normal grid line, percent of a square
    double BoldWidthPercent = 10;  ///< bold grid line
    double BackStitchWidthPercent = 30;
    double SymbolScale = 1; ///< height of a symbol's em box in heights of its rectangle

    Colour ClothColor = 0xFFFFFF;
    Colour NormalGLColor = 14408667;
    Colour BoldGLColor = 8882055;
    Colour ThirdGLColor = 0x0000FF; ///< the base line while a stitched font is edited

    int BoldEveryX = 10;
    int BoldEveryY = 10;
    int BaseLineRow = 0;   ///< rows below each bold line where the base line lies; 0 for none
    int NumberOffsetX = 0; ///< squares of the whole pattern left of this one's first column
    int NumberOffsetY = 0;

    /// The colour of the ground that stitches lie on: paper is white.
    [[nodiscard]] Colour Ground() const { return Target == TargetPrinter ? 0xFFFFFF : ClothColor; }

    friend bool operator==(const PaintOptions&, const PaintOptions&) = default;
};

} // namespace zol
