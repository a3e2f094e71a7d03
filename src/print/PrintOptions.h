// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "model/ZOLTypes.h"

namespace zol {

struct Options;

/// How stitches are printed; the codes are those of the settings.
enum PrintStyle : int {
    PrintNone = -1,
    PrintColorBlocks = 1,
    PrintBlackSymbols = 2,
    PrintColorSymbols = 3,
    PrintBlocksAndSymbols = 4,
    PrintVirtualStitches = 5,
};

/// How backstitch lines are printed; -1 prints none.
enum LinePrintStyle : int { PrintColorLines = 1, PrintBlackLines = 2 };

/// Everything that printing depends on beside the pattern. A record by value: whoever starts a
/// job fills it from the settings, and nothing in printing reads a setting itself. The values
/// here are the built-in defaults.
struct PrintOptions {
    static constexpr double BuiltInMargin = 0.5; ///< inches, unless the device's border is wider

    double LeftMargin = BuiltInMargin; ///< inches, as are the other margins
    double RightMargin = BuiltInMargin;
    double TopMargin = BuiltInMargin;
    double BottomMargin = BuiltInMargin;
    double GSPI = 10; ///< grid squares per inch

    bool PrintGridLines = true;
    bool PrintPageNumbers = true;
    int GridLineWidthPercentage1 = 5;  ///< normal line, percent of a square
    int GridLineWidthPercentage2 = 10; ///< every tenth line
    Colour pNormalGLColor = 12369084;
    Colour pBoldGLColor = 10;
    int BackStitchLineWidthPercentage = 25;

    std::string TextInfoFontName = "Arial"; ///< the pattern information font
    bool TextInfoFontBold = false;
    bool TextInfoFontItalic = false;
    bool TextInfoFontUnderline = false;
    double TextInfoFontSize = 10; ///< points

    int StitchSymbol = PrintBlackSymbols;
    int BackStitchSymbol = PrintBlackLines;

    std::string Units = "inches"; ///< "inches" or "centimetres"
    bool PrintColorKey = true;
    bool PrintManuID = true;
    bool PrintManuDesc = true;
    bool PrintStrands = false;
    std::string MapFlosses; ///< catalogue file names separated by "|"

    [[nodiscard]] bool InInches() const { return Units == "inches"; }
};

/// The printing options of the running program; GSPI and PrintColorKey, which are not stored,
/// have their first values.
[[nodiscard]] PrintOptions PrintOptionsOf(const Options& options);

/// The display style that paints a print style; 0 for none.
[[nodiscard]] int DisplayStyleOf(int printStyle);

} // namespace zol
