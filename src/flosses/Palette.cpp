// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/Palette.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

#include "flosses/HSLFuncs.h"
#include "model/Rounding.h"
#include "model/RunTimeError.h"

namespace zol {

namespace {

constexpr Colour PaletteDeviceBit = 0x2000000; ///< "match against the logical palette"
constexpr std::size_t MaxRows = std::numeric_limits<std::int16_t>::max();

/// A number for a 16-bit field of a record.
std::int16_t Narrow16(int value) {
    if (value < std::numeric_limits<std::int16_t>::min() ||
        value > std::numeric_limits<std::int16_t>::max()) {
        throw RunTimeError(ErrOverflow);
    }
    return static_cast<std::int16_t>(value);
}

std::uint8_t Narrow8(int value) {
    if (value < 0 || value > std::numeric_limits<std::uint8_t>::max()) {
        throw RunTimeError(ErrOverflow);
    }
    return static_cast<std::uint8_t>(value);
}

/// Whether the trimmed short name is `name` (lower case) in any case. Asked for each row at each
/// floss that is added, so it makes no texts.
bool IsNamed(const PaletteManufacturer& row, std::string_view name) {
    std::string_view text = row.ShortName.Coded();
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    text = text.substr(0, text.find_last_not_of(' ') + 1);
    return std::equal(text.begin(), text.end(), name.begin(), name.end(), [](char a, char b) {
        return (a >= 'A' && a <= 'Z' ? static_cast<char>(a - 'A' + 'a') : a) == b;
    });
}

unsigned MeanChannel(int first, int second) {
    return static_cast<unsigned>(RoundToInt((first + second) / 2.0)) & 0xFFU;
}

} // namespace

Palette::Palette(ProgramContext& context) : m_context(&context) {
    BuildStartupPalette();
    SetSymbolFont(context.SymbolFontName, context.SymbolFontBold, context.SymbolFontItalic);
    m_changed = false;
    m_selectedEntry = -1;
}

Palette::Palette(ProgramContext& context, WithoutEntries) : m_context(&context) {
    SetSymbolFont(context.SymbolFontName, context.SymbolFontBold, context.SymbolFontItalic);
    m_changed = false;
}

Palette Palette::Empty(ProgramContext& context) {
    return {context, WithoutEntries{}};
}

bool Palette::InRange(int index) const {
    return index >= 1 && index <= GetEntriesCount();
}

PaletteEntry& Palette::At(int index) {
    return m_entries[static_cast<std::size_t>(index - 1)];
}

const PaletteEntry& Palette::At(int index) const {
    return m_entries[static_cast<std::size_t>(index - 1)];
}

int Palette::GetEntriesCount() const {
    return static_cast<int>(m_entries.size());
}

const PaletteEntry& Palette::GetEntry(int index) const {
    if (!InRange(index)) {
        throw std::out_of_range("palette entry");
    }
    return At(index);
}

PaletteAddStatus Palette::AddPaletteEntry(Colour rgb, std::string_view flossID,
                                          std::string_view description,
                                          std::string_view manufacturerShort,
                                          std::string_view symbol, int stitchStrands,
                                          int backStitchStrands, int entryTag,
                                          std::int32_t masterID, int defaultBSType,
                                          std::string_view manufacturerLong) {
    const PaletteAddStatus status =
        Append({rgb, flossID, description, manufacturerShort, symbol, stitchStrands,
                backStitchStrands, entryTag, masterID, defaultBSType, manufacturerLong});
    if (status == PaletteAdded) {
        Sort(m_sortOrder);
    }
    return status;
}

PaletteAddStatus Palette::Append(const NewFloss& floss) {
    m_changed = true;
    const std::optional<std::uint8_t> symbol = SymbolOfNewEntry(floss.Symbol);
    if (!symbol) {
        std::fill(m_paletteImages.begin(), m_paletteImages.end(), -1);
        return PaletteAddCancelled;
    }
    if (m_entries.size() >= MaxRows) {
        return PaletteAddFailed;
    }
    try {
        m_sortedIndexes.push_back(0);
        m_paletteImages.push_back(-1);
        PaletteEntry& entry = m_entries.emplace_back();
        entry.RGB = floss.RGB;
        entry.FlossID.Set(floss.FlossID);
        entry.Description.Set(floss.Description);
        entry.DisplayDescription = entry.Description;
        entry.ManufacturerIndex = FindManufacturer(floss.ManufacturerShort, floss.ManufacturerLong);
        entry.EntryTag = Narrow16(floss.EntryTag);
        entry.MasterID = floss.MasterID;
        entry.DefaultBSType = Narrow8(floss.DefaultBSType);
        entry.StitchStrands =
            Narrow16(floss.StitchStrands == 0 ? m_context->StitchStrands : floss.StitchStrands);
        entry.BackStitchStrands = Narrow16(
            floss.BackStitchStrands == 0 ? m_context->BackStitchStrands : floss.BackStitchStrands);
        entry.Symbol = *symbol;
        entry.NonRepDesc.Set("Black");
    } catch (const std::exception&) {
        return PaletteAddFailed;
    }
    m_selectedEntry = static_cast<std::int16_t>(m_entries.size());
    return PaletteAdded;
}

std::optional<std::uint8_t> Palette::SymbolOfNewEntry(std::string_view symbol) const {
    if (!symbol.empty()) {
        return SymbolCodeOf(symbol);
    }
    if (GetNextAvailableSymbol().empty()) {
        return std::uint8_t{0}; // nothing is left to choose from
    }
    if (m_context->Symbols == nullptr) {
        return std::nullopt;
    }
    const std::optional<std::string> chosen = m_context->Symbols->ChooseSymbol(*this);
    if (!chosen || chosen->empty()) {
        return std::nullopt;
    }
    return SymbolCodeOf(*chosen);
}

std::int16_t Palette::FindManufacturer(std::string_view shortName, std::string_view longName) {
    const std::string wanted = LowerCase(Trimmed(CodePage::FromUtf8(shortName)));
    // Of several rows that match, the last one counts.
    const auto found =
        std::find_if(m_manufacturers.rbegin(), m_manufacturers.rend(),
                     [&wanted](const PaletteManufacturer& row) { return IsNamed(row, wanted); });
    if (found != m_manufacturers.rend()) {
        return static_cast<std::int16_t>(m_manufacturers.rend() - found);
    }
    if (m_manufacturers.size() >= MaxRows) {
        throw RunTimeError(ErrOverflow);
    }
    const std::string trimmedLong = Trimmed(longName);
    PaletteManufacturer& row = m_manufacturers.emplace_back();
    row.ShortName.Set(shortName);
    row.LongName.Set(trimmedLong.empty() ? shortName : std::string_view(trimmedLong));
    return static_cast<std::int16_t>(m_manufacturers.size());
}

bool Palette::ChangePaletteEntry(int index, Colour rgb, std::string_view flossID,
                                 std::string_view description, std::string_view manufacturer,
                                 std::int32_t masterID, int stitchStrands, int backStitchStrands) {
    if (!InRange(index)) {
        return false;
    }
    const std::int16_t row = FindManufacturer(manufacturer, {});
    PaletteEntry& entry = At(index);
    entry.RGB = rgb;
    entry.FlossID.Set(flossID);
    entry.Description.Set(description);
    entry.ManufacturerIndex = row;
    entry.MasterID = masterID;
    if (stitchStrands != KeepStrands) {
        entry.StitchStrands = static_cast<std::int16_t>(stitchStrands);
    }
    if (backStitchStrands != KeepStrands) {
        entry.BackStitchStrands = static_cast<std::int16_t>(backStitchStrands);
    }
    Sort(m_sortOrder);
    m_changed = true;
    return true;
}

void Palette::RemovePaletteEntry(int index) {
    if (!InRange(index)) {
        return;
    }
    const auto place = static_cast<std::ptrdiff_t>(index - 1);
    m_entries.erase(m_entries.begin() + place);
    m_sortedIndexes.erase(m_sortedIndexes.begin() + place);
    m_paletteImages.erase(m_paletteImages.begin() + place);
    m_changed = true;
    Sort(m_sortOrder);
}

void Palette::ClearPalette() {
    m_entries.clear();
    m_sortedIndexes.clear();
    m_paletteImages.clear();
    m_changed = true;
}

void Palette::BlendFloss(int index, Colour secondRGB, std::string_view secondFlossID,
                         std::string_view secondManufacturer, std::string_view secondDescription,
                         std::int32_t secondMasterID) {
    if (!InRange(index)) {
        return;
    }
    const std::int16_t row = FindManufacturer(secondManufacturer, {});
    PaletteEntry& entry = At(index);
    entry.IsBlended = -1;
    entry.BlendRGB = secondRGB;
    entry.BlendFlossID.Set(secondFlossID);
    entry.BlendManufacturerIndex = row;
    entry.BlendDescription.Set(secondDescription);
    entry.BlendMasterID = secondMasterID;
    entry.DisplayDescription.Set(GetManufShortDesc(index) + "-" + GetManufID(index) + " & " +
                                 GetBlendManufShortDesc(index) + "-" + GetBlendManufID(index));
    m_changed = true;
}

void Palette::RemoveBlend(int index) {
    if (!InRange(index)) {
        return;
    }
    PaletteEntry& entry = At(index);
    entry.IsBlended = 0;
    entry.BlendRGB = 0;
    entry.BlendFlossID.Set({});
    entry.BlendManufacturerIndex = 0;
    entry.DisplayDescription = entry.Description;
    m_changed = true;
}

Colour Palette::GetFlossRGB(int index) const {
    if (!InRange(index)) {
        return 0;
    }
    using namespace HSLFuncs;
    const PaletteEntry& entry = At(index);
    Colour colour = entry.RGB;
    if (entry.IsBlended != 0) {
        colour = MakeColour(MeanChannel(RedOf(entry.RGB), RedOf(entry.BlendRGB)),
                            MeanChannel(GreenOf(entry.RGB), GreenOf(entry.BlendRGB)),
                            MeanChannel(BlueOf(entry.RGB), BlueOf(entry.BlendRGB)));
    }
    return m_context->ColorDepth == 8 ? colour | PaletteDeviceBit : colour;
}

} // namespace zol
