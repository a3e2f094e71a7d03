// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <iostream>

#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "cli/FileKind.h"
#include "cli/JsonWriter.h"

namespace zol {

namespace {

constexpr int countBoth = 2;
constexpr int countStitches = 0;
constexpr int countLines = 1;

struct Totals {
    std::int64_t stitches = 0;
    int flossesUsed = 0;
};

Totals TotalsOf(Pattern& pattern) {
    Totals totals;
    pattern.CountStitches();
    for (int index = 1; index <= pattern.GetPalette().GetEntriesCount(); ++index) {
        totals.stitches += static_cast<std::int64_t>(pattern.GetColorCount(countStitches, index));
        totals.flossesUsed += pattern.GetColorCount(countBoth, index) > 0 ? 1 : 0;
    }
    return totals;
}

std::string ReleaseText(std::int32_t version) {
    return std::to_string(version / 10000) + "." + std::to_string(version / 100 % 100) + "." +
           std::to_string(version % 100);
}

void PatternAsJson(Pattern& pattern, const Totals& totals) {
    JsonWriter json(std::cout);
    json.BeginObject();
    json.TextMember("author", pattern.Author);
    json.Member("clothCountX", pattern.GetPatternClothCountX());
    json.Member("clothCountY", pattern.GetPatternClothCountY());
    json.TextMember("copyright", pattern.Copyright);
    json.TextMember("fabric", pattern.Fabric);
    json.Member("flosses", pattern.GetPalette().GetEntriesCount());
    json.Member("flossesUsed", totals.flossesUsed);
    json.Member("height", pattern.GetPatternHeight());
    json.TextMember("kind", "pattern");
    json.Member("knots", static_cast<std::int64_t>(pattern.FrenchKnots().Count()));
    json.Member("lines", pattern.GetBackStitchCount());
    json.TextMember("release", ReleaseText(pattern.GetHeader().Version));
    json.Member("stitches", totals.stitches);
    json.TextMember("title", pattern.Title);
    json.Member("version", pattern.GetHeader().Version);
    json.Member("width", pattern.GetPatternWidth());
    json.EndObject();
    std::cout << '\n';
}

void PrintProperty(const char* label, const std::string& value) {
    if (!value.empty()) {
        std::cout << label << value << '\n';
    }
}

void PatternAsText(Pattern& pattern, const Totals& totals) {
    std::cout << "Kind:      pattern\n"
              << "Release:   " << ReleaseText(pattern.GetHeader().Version) << '\n'
              << "Size:      " << pattern.GetPatternWidth() << " x " << pattern.GetPatternHeight()
              << " squares\n"
              << "Cloth:     " << pattern.GetPatternClothCountX() << " x "
              << pattern.GetPatternClothCountY() << " to the inch\n";
    PrintProperty("Title:     ", pattern.Title);
    PrintProperty("Author:    ", pattern.Author);
    PrintProperty("Copyright: ", pattern.Copyright);
    PrintProperty("Fabric:    ", pattern.Fabric);
    std::cout << "Flosses:   " << pattern.GetPalette().GetEntriesCount() << " ("
              << totals.flossesUsed << " used)\n"
              << "Stitches:  " << totals.stitches << " (" << pattern.FrenchKnots().Count()
              << " of them French knots)\n"
              << "Lines:     " << pattern.GetBackStitchCount() << '\n';
    const Palette& palette = pattern.GetPalette();
    for (int position = 1; position <= palette.GetEntriesCount(); ++position) {
        const int index = palette.GetSortIndex(position);
        std::cout << "  " << palette.GetManufShortDesc(index) << ' '
                  << palette.GetFlossLongDesc(index) << ": "
                  << static_cast<std::int64_t>(pattern.GetColorCount(countStitches, index))
                  << " stitches, "
                  << static_cast<std::int64_t>(pattern.GetColorCount(countLines, index))
                  << " lines\n";
    }
}

void PaletteInfo(const Palette& palette, bool asJson) {
    if (asJson) {
        JsonWriter json(std::cout);
        json.BeginObject();
        json.Member("flosses", palette.GetEntriesCount());
        json.TextMember("kind", "palette");
        json.TextMember("symbolFont", palette.GetFontName());
        json.EndObject();
        std::cout << '\n';
        return;
    }
    std::cout << "Kind:      palette\nFlosses:   " << palette.GetEntriesCount()
              << "\nSymbols:   " << palette.GetFontName() << '\n';
    for (int index = 1; index <= palette.GetEntriesCount(); ++index) {
        std::cout << "  " << palette.GetManufShortDesc(index) << ' '
                  << palette.GetFlossLongDesc(index) << '\n';
    }
}

void CatalogueInfo(const AvailColors& catalogue, bool asJson) {
    if (asJson) {
        JsonWriter json(std::cout);
        json.BeginObject();
        json.Member("baseID", catalogue.GetHeader().BaseID);
        json.Member("flosses", catalogue.GetFlossCount());
        json.TextMember("kind", "catalogue");
        json.TextMember("name", catalogue.GetManuDesc());
        json.TextMember("shortName", catalogue.GetShortDesc());
        json.EndObject();
        std::cout << '\n';
        return;
    }
    std::cout << "Kind:      catalogue\nName:      " << catalogue.GetManuDesc()
              << "\nShort:     " << catalogue.GetShortDesc()
              << "\nFlosses:   " << catalogue.GetFlossCount() << '\n';
}

} // namespace

void RunInfo(Environment& environment, const CommandWords& words) {
    const CommandLine line(words, {{"--json"}});
    line.ExpectFiles(1, 1);
    const std::string& fileName = line.Files()[0];
    const bool asJson = line.Has("--json");
    switch (KindOf(fileName)) {
    case FileKind::Pattern: {
        Pattern pattern(environment.Context());
        environment.LoadPattern(pattern, fileName);
        const Totals totals = TotalsOf(pattern);
        if (asJson) {
            PatternAsJson(pattern, totals);
        } else {
            PatternAsText(pattern, totals);
        }
        break;
    }
    case FileKind::Palette:
        PaletteInfo(environment.LoadPalette(fileName), asJson);
        break;
    case FileKind::Catalogue:
        CatalogueInfo(environment.LoadCatalogue(fileName), asJson);
        break;
    }
}

} // namespace zol
