// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "model/ZOLTypes.h"

namespace zol {

/// Every option of the program, read once at the start. Members stand in the order of the
/// sections of the store; a name that two sections share has its section's word in front.
struct Options {
    // "Options"
    std::string DefaultFlossFile;
    int PaletteSortOrder = 1;
    std::string FlossFamily;
    std::string MapFlosses; ///< catalogue file names separated by "|"
    int UseSmart3QS = 1;
    int UseSmartQS = 1;
    int ShowTipsAtStartup = 1;
    int ShowWelcome = 1;
    std::string LastTipShown;
    int StitchSymbol = 0;     ///< print style of stitches
    int BackStitchSymbol = 0; ///< print style of lines
    int PrintManuID = 1;
    int PrintManuDesc = 1;
    int PrintStrands = 0;
    int UpdateInterval = 0; ///< days; 0 is off
    std::string LastPatSaveLoc;
    std::string LastSelectedLibrary;
    std::string Spelling; ///< "British" or "American" overrides the locale

    // "Design Grid Opts"
    std::string Units; ///< "inches" or "centimetres"
    bool RecolorPatterns = true;
    int GridLineWidthPercentage1 = 5; ///< thin grid line, percent of a square
    int GridlineColor1Index = 2;
    int GridLineWidthPercentage2 = 10; ///< bold grid line
    int GridlineColor2Index = 4;
    int BackStitchLineWidthPercentage = 30;
    int ClothColorIndex = 1;
    bool ToolbarVisible = true;
    bool StitchToolbarVisible = true;
    bool RulersVisible = true;
    bool StatusbarVisible = true;
    bool GridlinesVisible = true;
    bool DisplaySymbolInPalette = true;
    int StitchesDisplayAs = 1;
    int PaletteDisplayRows = 1;
    int PaletteDisplaySize = 1;
    bool AnchorBackstitches = false;

    // "Printer Opts"
    int PrintGridLineWidthPercentage1 = 5;
    int PrintGridlineColor1Index = 3;
    int PrintGridLineWidthPercentage2 = 10;
    int PrintGridlineColor2Index = 5;
    int PrintBackStitchLineWidthPercentage = 25;
    std::string TextInfoFontName;
    bool TextInfoFontBold = false;
    bool TextInfoFontItalic = false;
    bool TextInfoFontUnderline = false;
    int TextInfoFontSize = 10; ///< points
    std::string SymbolFontName;
    int SymbolFontCharSet = 0;
    bool SymbolFontBold = false;
    bool SymbolFontItalic = false;
    bool SymbolFontUnderline = false;
    int SymbolFontSize = 10;
    double LeftMargin = 0.5; ///< inches; the defaults are the record's built-in margin
    double RightMargin = 0.5;
    double TopMargin = 0.5;
    double BottomMargin = 0.5;
    bool PrintGridLines = true;
    bool PrintPageNumbers = true;

    // "Pattern Default Properties"
    int PatternClothCountX = 14;
    int PatternClothCountY = 14;
    std::string Author;
    std::string Title;
    std::string Copyright;
    std::string Fabric;
    int PatternHeight = 100;
    int PatternWidth = 100;
    int StitchStrands = 2;
    int BackStitchStrands = 2;
    bool PrintFlossUsage = true;

    // "Settings"; the defaults lie in the program's folder
    std::string BasePath;
    std::string HelpFile;
    std::string CustStitchPath;
    std::string StitchedFontPath;

    // "PatternViewer"
    std::string LastCategory;
    std::string CategoryDirectory;

    // Colours of the indexes above, looked up through their lists.
    Colour ClothColor = 0;
    Colour NormalGLColor = 0;
    Colour BoldGLColor = 0;
    Colour PrintNormalGLColor = 0;
    Colour PrintBoldGLColor = 0;

    // Constants that no value overrides.
    static constexpr double SkeinInches = 313.2; ///< inches of one strand in a skein
    static constexpr int SkeinStrands = 6;
    static constexpr double UsageFactor = 1.1; ///< kept beside them; nothing reads it
    static constexpr const char* DefaultSymbolFontName = "Korvanta Symbols";

    [[nodiscard]] bool UsesInches() const { return Units == "inches"; }
};

} // namespace zol
