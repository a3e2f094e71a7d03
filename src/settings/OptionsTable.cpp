// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/OptionsTable.h"

#include <algorithm>
#include <array>

namespace zol {

namespace {

constexpr const char* general = "Options";
constexpr const char* grid = "Design Grid Opts";
constexpr const char* printer = "Printer Opts";
constexpr const char* defaults = "Pattern Default Properties";
constexpr const char* settings = "Settings";
constexpr const char* viewer = "PatternViewer";

using O = Options;

const std::array rows{
    OptionRow{general, "DefaultFlossFile", "dmc.col", &O::DefaultFlossFile},
    OptionRow{general, "PaletteSortOrder", "1", &O::PaletteSortOrder},
    OptionRow{general, "FlossFamily", "DMC", &O::FlossFamily},
    OptionRow{general, "MapFlosses", "", &O::MapFlosses},
    OptionRow{general, "UseSmart3QS", "1", &O::UseSmart3QS},
    OptionRow{general, "UseSmartQS", "1", &O::UseSmartQS},
    OptionRow{general, "ShowTipsAtStartup", "1", &O::ShowTipsAtStartup},
    OptionRow{general, "ShowWelcome", "1", &O::ShowWelcome, false},
    OptionRow{general, "LastTipShown", "", &O::LastTipShown, false},
    OptionRow{general, "PrintManuID", "1", &O::PrintManuID},
    OptionRow{general, "PrintManuDesc", "1", &O::PrintManuDesc},
    OptionRow{general, "PrintStrands", "0", &O::PrintStrands},
    OptionRow{general, "UpdateInterval", "0", &O::UpdateInterval},
    OptionRow{general, "LastPatSaveLoc", "*NONE*", &O::LastPatSaveLoc, false},
    OptionRow{general, "LastSelectedLibrary", "*NONE*", &O::LastSelectedLibrary, false},
    OptionRow{general, "Spelling", "", &O::Spelling, false},

    OptionRow{grid, "Units", "inches", &O::Units},
    OptionRow{grid, "RecolorPatterns", "TRUE", &O::RecolorPatterns},
    OptionRow{grid, "GridLineWidthPercentage1", "5", &O::GridLineWidthPercentage1},
    OptionRow{grid, "GridlineColor1Index", "2", &O::GridlineColor1Index},
    OptionRow{grid, "GridLineWidthPercentage2", "10", &O::GridLineWidthPercentage2},
    OptionRow{grid, "GridlineColor2Index", "4", &O::GridlineColor2Index},
    OptionRow{grid, "BackStitchLineWidthPercentage", "30", &O::BackStitchLineWidthPercentage},
    OptionRow{grid, "ClothColorIndex", "1", &O::ClothColorIndex},
    OptionRow{grid, "ToolbarVisible", "TRUE", &O::ToolbarVisible},
    OptionRow{grid, "StitchToolbarVisible", "TRUE", &O::StitchToolbarVisible},
    OptionRow{grid, "RulersVisible", "TRUE", &O::RulersVisible},
    OptionRow{grid, "StatusbarVisible", "TRUE", &O::StatusbarVisible},
    OptionRow{grid, "GridlinesVisible", "TRUE", &O::GridlinesVisible},
    OptionRow{grid, "DisplaySymbolInPalette", "TRUE", &O::DisplaySymbolInPalette},
    OptionRow{grid, "StitchesDisplayAs", "1", &O::StitchesDisplayAs},
    OptionRow{grid, "PaletteDisplayRows", "1", &O::PaletteDisplayRows},
    OptionRow{grid, "PaletteDisplaySize", "1", &O::PaletteDisplaySize},
    OptionRow{grid, "AnchorBackstitches", "FALSE", &O::AnchorBackstitches},

    OptionRow{printer, "GridLineWidthPercentage1", "5", &O::PrintGridLineWidthPercentage1},
    OptionRow{printer, "GridlineColor1Index", "3", &O::PrintGridlineColor1Index},
    OptionRow{printer, "GridLineWidthPercentage2", "10", &O::PrintGridLineWidthPercentage2},
    OptionRow{printer, "GridlineColor2Index", "5", &O::PrintGridlineColor2Index},
    OptionRow{printer, "BackStitchLineWidthPercentage", "25",
              &O::PrintBackStitchLineWidthPercentage},
    OptionRow{printer, "TextInfoFontName", "Arial", &O::TextInfoFontName},
    OptionRow{printer, "TextInfoFontBold", "FALSE", &O::TextInfoFontBold},
    OptionRow{printer, "TextInfoFontItalic", "FALSE", &O::TextInfoFontItalic},
    OptionRow{printer, "TextInfoFontUnderline", "FALSE", &O::TextInfoFontUnderline},
    OptionRow{printer, "TextInfoFontSize", "10", &O::TextInfoFontSize},
    OptionRow{printer, "SymbolFontName", Options::DefaultSymbolFontName, &O::SymbolFontName},
    OptionRow{printer, "SymbolFontCharSet", "0", &O::SymbolFontCharSet},
    OptionRow{printer, "SymbolFontBold", "FALSE", &O::SymbolFontBold},
    OptionRow{printer, "SymbolFontItalic", "FALSE", &O::SymbolFontItalic},
    OptionRow{printer, "SymbolFontUnderline", "FALSE", &O::SymbolFontUnderline},
    OptionRow{printer, "SymbolFontSize", "10", &O::SymbolFontSize},
    OptionRow{printer, "LeftMargin", nullptr, &O::LeftMargin},
    OptionRow{printer, "RightMargin", nullptr, &O::RightMargin},
    OptionRow{printer, "TopMargin", nullptr, &O::TopMargin},
    OptionRow{printer, "BottomMargin", nullptr, &O::BottomMargin},
    OptionRow{printer, "PrintGridLines", "True", &O::PrintGridLines},
    OptionRow{printer, "PrintPageNumbers", "True", &O::PrintPageNumbers},

    OptionRow{defaults, "PatternClothCountX", "14", &O::PatternClothCountX},
    OptionRow{defaults, "PatternClothCountY", "14", &O::PatternClothCountY},
    OptionRow{defaults, "Author", "", &O::Author},
    OptionRow{defaults, "Title", "", &O::Title},
    OptionRow{defaults, "Copyright", "", &O::Copyright},
    OptionRow{defaults, "Fabric", "", &O::Fabric},
    OptionRow{defaults, "PatternHeight", "100", &O::PatternHeight, false},
    OptionRow{defaults, "PatternWidth", "100", &O::PatternWidth, false},
    OptionRow{defaults, "StitchStrands", "2", &O::StitchStrands},
    OptionRow{defaults, "BackStitchStrands", "2", &O::BackStitchStrands},
    OptionRow{defaults, "PrintFlossUsage", "TRUE", &O::PrintFlossUsage},

    OptionRow{settings, "BasePath", nullptr, &O::BasePath, false},
    OptionRow{settings, "HelpFile", nullptr, &O::HelpFile, false},
    OptionRow{settings, "CustStitchPath", nullptr, &O::CustStitchPath, false},
    OptionRow{settings, "StitchedFontPath", nullptr, &O::StitchedFontPath, false},

    OptionRow{viewer, "LastCategory", "Samples", &O::LastCategory, false},
    OptionRow{viewer, "CategoryDirectory", nullptr, &O::CategoryDirectory, false},
};

} // namespace

std::span<const OptionRow> OptionRows(std::string_view section) {
    const auto belongs = [section](const OptionRow& row) { return section == row.Section; };
    const auto first = std::find_if(rows.begin(), rows.end(), belongs);
    const auto last = std::find_if_not(first, rows.end(), belongs);
    return {first, last};
}

} // namespace zol
