// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Reading and writing single fields of an entry.

#include "flosses/Palette.h"

namespace zol {

namespace {

/// A row of the manufacturer table, or null for a number that a damaged file made up.
const PaletteManufacturer* RowOf(const std::vector<PaletteManufacturer>& rows, int row) {
    return row >= 1 && row <= static_cast<int>(rows.size())
               ? &rows[static_cast<std::size_t>(row - 1)]
               : nullptr;
}

std::string ShortNameOf(const PaletteManufacturer* row) {
    return row == nullptr ? std::string() : row->ShortName.Text();
}

} // namespace

std::int32_t Palette::GetFlossMasterID(int index) const {
    return InRange(index) ? At(index).MasterID : 0;
}

int Palette::GetDefaultBSType(int index) const {
    return InRange(index) ? At(index).DefaultBSType : 0;
}

int Palette::GetFlossSymbol(int index) const {
    return InRange(index) ? At(index).Symbol : 0;
}

int Palette::GetFlossStitchStrands(int index) const {
    return InRange(index) ? At(index).StitchStrands : 0;
}

int Palette::GetFlossBackStitchStrands(int index) const {
    return InRange(index) ? At(index).BackStitchStrands : 0;
}

bool Palette::IsBlended(int index) const {
    return InRange(index) && At(index).IsBlended != 0;
}

std::string Palette::GetFlossLongDesc(int index) const {
    if (!InRange(index)) {
        return {};
    }
    std::string description = At(index).DisplayDescription.Text();
    if (IsBlended(index)) {
        return description;
    }
    return NumberAndName(At(index).FlossID.Text(), description);
}

std::string Palette::GetFlossShortDesc(int index) const {
    return InRange(index) ? At(index).DisplayDescription.Text() : std::string();
}

std::string Palette::GetManufID(int index) const {
    return InRange(index) ? At(index).FlossID.Text() : std::string();
}

std::string Palette::GetBlendManufID(int index) const {
    return InRange(index) ? At(index).BlendFlossID.Text() : std::string("0");
}

std::string Palette::GetBlendManufShortDesc(int index) const {
    return InRange(index) ? ShortNameOf(RowOf(m_manufacturers, At(index).BlendManufacturerIndex))
                          : std::string();
}

std::string Palette::GetManufShortDesc(int index) const {
    return InRange(index) ? ShortNameOf(RowOf(m_manufacturers, At(index).ManufacturerIndex))
                          : std::string();
}

std::string Palette::GetManufLongDesc(int index) const {
    const PaletteManufacturer* row =
        InRange(index) ? RowOf(m_manufacturers, At(index).ManufacturerIndex) : nullptr;
    return row == nullptr ? std::string() : row->LongName.Text();
}

Colour Palette::GetNonRepColor(int index) const {
    return InRange(index) ? At(index).NonRepColor : 0;
}

std::string Palette::GetNonRepDesc(int index) const {
    return InRange(index) ? At(index).NonRepDesc.Text() : std::string();
}

void Palette::SetFlossRGB(int index, Colour rgb) {
    if (InRange(index)) {
        At(index).RGB = rgb;
    }
}

void Palette::SetFlossMasterID(int index, std::int32_t masterID) {
    if (InRange(index)) {
        At(index).MasterID = masterID;
    }
}

void Palette::SetFlossSymbol(int index, std::string_view symbol) {
    if (InRange(index) && !symbol.empty()) {
        At(index).Symbol = SymbolCodeOf(symbol);
        m_changed = true;
    }
}

void Palette::SetDefaultBSType(int index, int style) {
    if (InRange(index)) {
        At(index).DefaultBSType = static_cast<std::uint8_t>(style);
        m_changed = true;
    }
}

void Palette::SetFlossStrands(int index, int stitch, int back) {
    if (InRange(index)) {
        At(index).StitchStrands = static_cast<std::int16_t>(stitch);
        At(index).BackStitchStrands = static_cast<std::int16_t>(back);
        m_changed = true;
    }
}

void Palette::SetFlossManuIDs(int index, std::string_view flossID) {
    if (InRange(index)) {
        At(index).FlossID.Set(flossID);
        m_changed = true;
    }
}

void Palette::SetFlossDesc(int index, std::string_view text) {
    if (InRange(index)) {
        At(index).DisplayDescription.Set(text);
        m_changed = true;
    }
}

void Palette::SetNonRepColor(int index, Colour colour) {
    if (InRange(index)) {
        At(index).NonRepColor = colour;
    }
}

void Palette::SetNonRepDesc(int index, std::string_view text) {
    if (InRange(index)) {
        At(index).NonRepDesc.Set(text);
    }
}

int Palette::GetManufacturerCount() const {
    return static_cast<int>(m_manufacturers.size());
}

const PaletteManufacturer& Palette::GetManufacturer(int row) const {
    return m_manufacturers.at(static_cast<std::size_t>(row) - 1);
}

int Palette::GetPaletteImage(int index) const {
    return InRange(index) ? m_paletteImages[static_cast<std::size_t>(index - 1)] : -1;
}

void Palette::SetPaletteImage(int index, int slot) {
    if (InRange(index)) {
        m_paletteImages[static_cast<std::size_t>(index - 1)] = slot;
    }
}

} // namespace zol
