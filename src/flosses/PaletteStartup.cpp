// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// What a new palette holds.

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "flosses/Palette.h"
#include "model/SafeFile.h"

namespace zol {

namespace {

struct BuiltInFloss {
    const char* FlossID;
    const char* Description; ///< "%" stands for the word for grey
    unsigned Red;
    unsigned Green;
    unsigned Blue;
    const char* Symbol;
};

constexpr std::array<BuiltInFloss, 16> builtInFlosses{{
    {"310", "black", 0, 0, 0, "B"},
    {"820", "royal blue - vy dk", 0, 0, 113, "L"},
    {"702", "kelly green", 0, 128, 0, "y"},
    {"561", "jade - vy dk", 0, 125, 111, "V"},
    {"898", "coffee brown - vy dk", 118, 55, 19, "R"},
    {"550", "violet - vy dk", 121, 0, 122, "+"},
    {"580", "moss green - dk", 128, 116, 0, "g"},
    {"318", "steel % - lt", 165, 157, 153, "*"},
    {"317", "pewter %", 124, 102, 102, "z"},
    {"995", "electric blue - dk", 29, 133, 155, "#"},
    {"700", "christmas green - br", 0, 127, 93, "G"},
    {"964", "seagreen - lt", 0, 244, 203, "p"},
    {"606", "br orange-red", 243, 0, 0, "O"},
    {"3805", "cyclamen pink", 223, 99, 119, "&"},
    {"743", "yellow - md", 255, 164, 63, "Y"},
    {"White", "white", 255, 255, 255, "W"},
}};

std::string WithGrayWord(std::string text, const ProgramContext& context) {
    const std::size_t place = text.find('%');
    if (place != std::string::npos) {
        text.replace(place, 1, LowerCase(context.GrayWord()));
    }
    return text;
}

} // namespace

void Palette::BuildStartupPalette() {
    if (m_context->StartupPalette) {
        TakeStartupPalette(*m_context->StartupPalette);
    } else {
        AddBuiltInEntries();
    }
    m_changed = false;
}

void Palette::TakeStartupPalette(const Palette& startup) {
    m_entries = startup.m_entries;
    m_manufacturers = startup.m_manufacturers;
    m_symbolFontName = startup.m_symbolFontName;
    m_symbolFontBold = startup.m_symbolFontBold;
    m_symbolFontItalic = startup.m_symbolFontItalic;
    m_paletteImages.assign(m_entries.size(), -1);
    Sort(m_sortOrder);
}

void Palette::AddBuiltInEntries() {
    ClearPalette();
    int tag = 0;
    for (const BuiltInFloss& floss : builtInFlosses) {
        AddPaletteEntry(MakeColour(floss.Red, floss.Green, floss.Blue), floss.FlossID,
                        WithGrayWord(floss.Description, *m_context), "DMC", floss.Symbol, 0, 0,
                        tag++, 0, 0, "DMC");
    }
}

void LoadStartupPalette(ProgramContext& context) {
    Palette palette = Palette::Empty(context);
    if (palette.LoadFromDisk(SafeFile::FindIgnoringCase(context.AppPath, "Default.fls"))) {
        context.StartupPalette = std::make_shared<const Palette>(std::move(palette));
    }
}

} // namespace zol
