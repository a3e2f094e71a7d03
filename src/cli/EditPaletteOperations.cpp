// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "cli/EditOperations.h"

#include <array>

#include "cli/CommandLine.h"

namespace zol {

namespace {

using Arguments = EditScript::Arguments;

void AddPaletteEntry(EditScript& s, Arguments& a) {
    const int rgb = a.Number();
    const std::string id = a.Text();
    const std::string description = a.Text();
    const std::string manufacturer = a.Text();
    const std::string symbol = a.Text();
    const int strands = a.Number(INT16_MIN, INT16_MAX);
    const int backStrands = a.Number(INT16_MIN, INT16_MAX);
    const int tag = a.Number(INT16_MIN, INT16_MAX);
    const int masterID = a.Number();
    const int lineStyle = a.Byte();
    const std::string longManufacturer = a.Text();
    a.ExpectEnd();
    Palette& palette = s.GetPattern().GetPalette();
    const int status =
        palette.AddPaletteEntry(static_cast<Colour>(rgb), id, description, manufacturer, symbol,
                                strands, backStrands, tag, masterID, lineStyle, longManufacturer);
    if (status != PaletteAdded) {
        throw CommandFailed("the floss was not added");
    }
}

/// Strands, or the number that leaves them as they are.
int ReadStrands(Arguments& a) {
    const int strands = a.Number();
    if (strands != Palette::KeepStrands && (strands < INT16_MIN || strands > INT16_MAX)) {
        throw CommandFailed("there cannot be " + std::to_string(strands) + " strands");
    }
    return strands;
}

void ChangePaletteEntry(EditScript& s, Arguments& a) {
    const int index = a.Number();
    const int rgb = a.Number();
    const std::string id = a.Text();
    const std::string description = a.Text();
    const std::string manufacturer = a.Text();
    const int masterID = a.Number();
    const int strands = ReadStrands(a);
    const int backStrands = ReadStrands(a);
    a.ExpectEnd();
    s.GetPattern().GetPalette().ChangePaletteEntry(index, static_cast<Colour>(rgb), id, description,
                                                   manufacturer, masterID, strands, backStrands);
}

void RemovePaletteEntry(EditScript& s, Arguments& a) {
    const int index = a.Number();
    a.ExpectEnd();
    s.GetPattern().GetPalette().RemovePaletteEntry(index);
}

void BlendFloss(EditScript& s, Arguments& a) {
    const int index = a.Number();
    const int rgb = a.Number();
    const std::string id = a.Text();
    const std::string manufacturer = a.Text();
    const std::string description = a.Text();
    const int masterID = a.Number();
    a.ExpectEnd();
    s.GetPattern().GetPalette().BlendFloss(index, static_cast<Colour>(rgb), id, manufacturer,
                                           description, masterID);
}

void RemoveBlend(EditScript& s, Arguments& a) {
    const int index = a.Number();
    a.ExpectEnd();
    s.GetPattern().GetPalette().RemoveBlend(index);
}

void SortPalette(EditScript& s, Arguments& a) {
    const int order = a.Number();
    a.ExpectEnd();
    s.GetPattern().GetPalette().Sort(order);
}

void SetFlossSymbol(EditScript& s, Arguments& a) {
    const int index = a.Number();
    const std::string symbol = a.Text();
    a.ExpectEnd();
    s.GetPattern().GetPalette().SetFlossSymbol(index, symbol);
}

void SetFlossDesc(EditScript& s, Arguments& a) {
    const int index = a.Number();
    const std::string text = a.Text();
    a.ExpectEnd();
    s.GetPattern().GetPalette().SetFlossDesc(index, text);
}

constexpr std::array paletteOperations{
    EditOperation{"AddPaletteEntry", AddPaletteEntry},
    EditOperation{"ChangePaletteEntry", ChangePaletteEntry},
    EditOperation{"RemovePaletteEntry", RemovePaletteEntry},
    EditOperation{"BlendFloss", BlendFloss},
    EditOperation{"RemoveBlend", RemoveBlend},
    EditOperation{"SortPalette", SortPalette},
    EditOperation{"SetFlossSymbol", SetFlossSymbol},
    EditOperation{"SetFlossDesc", SetFlossDesc},
};

} // namespace

std::span<const EditOperation> EditPaletteOperations() {
    return paletteOperations;
}

} // namespace zol
