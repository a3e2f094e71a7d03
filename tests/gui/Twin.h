// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "model/Pattern.h"

namespace zol::test {

/// Where two designs differ in stitches, knots or lines: the first place, empty if nowhere.
inline std::string DifferenceOf(const Pattern& a, const Pattern& b) {
    if (a.GetPatternWidth() != b.GetPatternWidth() ||
        a.GetPatternHeight() != b.GetPatternHeight()) {
        return "the size";
    }
    for (int x = 1; x <= a.GetPatternWidth(); ++x) {
        for (int y = 1; y <= a.GetPatternHeight(); ++y) {
            const std::string place = std::to_string(x) + ", " + std::to_string(y);
            if (a.Cell(x, y) != b.Cell(x, y) || a.GetStitchCount(x, y) != b.GetStitchCount(x, y)) {
                return "square " + place;
            }
            for (int i = 0; i < a.GetStitchCount(x, y); ++i) {
                if (a.GetStitchType(x, y, i) != b.GetStitchType(x, y, i) ||
                    a.GetStitchColorIndex(x, y, i) != b.GetStitchColorIndex(x, y, i) ||
                    a.GetFrenchKnotPoint(x, y, i) != b.GetFrenchKnotPoint(x, y, i) ||
                    a.GetFrenchKnotOrientation(x, y, i) != b.GetFrenchKnotOrientation(x, y, i)) {
                    return "stitch " + std::to_string(i) + " of " + place;
                }
            }
        }
    }
    return a.Lines() == b.Lines() ? std::string() : "lines";
}

/// The design as it should be: begun as another one is, and changed by the model's own operations
/// where that one is drawn in.
class Twin : public Pattern {
public:
    explicit Twin(const Pattern& other) : Pattern(other.Context()) {
        Initialize(other.GetPatternWidth(), other.GetPatternHeight(), other.GetPatternClothCountX(),
                   other.GetPatternClothCountY());
        other.GetPalette().CreateCopy(GetPalette());
    }
    void Line(SquarePos from, int fromPosition, SquarePos to, int toPosition, int floss = 1,
              int style = 0) {
        BackStitchLine line;
        line.StartX = static_cast<std::int16_t>(from.X);
        line.StartY = static_cast<std::int16_t>(from.Y);
        line.StartPos = static_cast<std::int16_t>(fromPosition);
        line.EndX = static_cast<std::int16_t>(to.X);
        line.EndY = static_cast<std::int16_t>(to.Y);
        line.EndPos = static_cast<std::int16_t>(toPosition);
        line.PaletteIndex = static_cast<std::uint8_t>(floss);
        line.LineStyle = static_cast<std::uint8_t>(style);
        SetBackstitchLine(line);
    }
};

} // namespace zol::test
