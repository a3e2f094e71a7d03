// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PrintOptions.h"

#include "settings/Options.h"

namespace zol {

PrintOptions PrintOptionsOf(const Options& options) {
    PrintOptions print;
    print.LeftMargin = options.LeftMargin;
    print.RightMargin = options.RightMargin;
    print.TopMargin = options.TopMargin;
    print.BottomMargin = options.BottomMargin;
    print.PrintGridLines = options.PrintGridLines;
    print.PrintPageNumbers = options.PrintPageNumbers;
    print.GridLineWidthPercentage1 = options.PrintGridLineWidthPercentage1;
    print.GridLineWidthPercentage2 = options.PrintGridLineWidthPercentage2;
    print.pNormalGLColor = options.PrintNormalGLColor;
    print.pBoldGLColor = options.PrintBoldGLColor;
    print.BackStitchLineWidthPercentage = options.PrintBackStitchLineWidthPercentage;
    print.TextInfoFontName = options.TextInfoFontName;
    print.TextInfoFontBold = options.TextInfoFontBold;
    print.TextInfoFontItalic = options.TextInfoFontItalic;
    print.TextInfoFontUnderline = options.TextInfoFontUnderline;
    print.TextInfoFontSize = options.TextInfoFontSize;
    print.StitchSymbol = options.StitchSymbol;
    print.BackStitchSymbol = options.BackStitchSymbol;
    print.Units = options.Units;
    print.PrintManuID = options.PrintManuID != 0;
    print.PrintManuDesc = options.PrintManuDesc != 0;
    print.PrintStrands = options.PrintStrands != 0;
    print.MapFlosses = options.MapFlosses;
    return print;
}

int DisplayStyleOf(int printStyle) {
    switch (printStyle) {
    case PrintColorBlocks:
    case PrintBlackSymbols:
    case PrintColorSymbols:
    case PrintBlocksAndSymbols:
        return printStyle;
    case PrintVirtualStitches:
        return ShowVStitches;
    default:
        return 0;
    }
}

} // namespace zol
