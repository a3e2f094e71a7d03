// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Symbols, the display order, and what brings two palettes together.

#include "flosses/Palette.h"

#include <algorithm>
#include <bitset>
#include <cstdlib>
#include <iterator>
#include <numeric>
#include <utility>

#include "flosses/ExchangeSort.h"
#include "flosses/HSLFuncs.h"
#include "model/Rounding.h"

namespace zol {

namespace {

/// A symbol as the text that AddPaletteEntry takes. Code 0 gives a text of one zero character:
/// an entry without a symbol is copied without one, and nobody is asked.
std::string SymbolText(std::uint8_t code) {
    std::string text;
    CodePage::AppendUtf8(text, CodePage::ToUnicode(code));
    return text;
}

} // namespace

// --- Symbols ------------------------------------------------------------------------------------

std::uint8_t Palette::SymbolCodeOf(std::string_view symbol) {
    const std::string coded = CodePage::FromUtf8(symbol);
    return coded.empty() ? std::uint8_t{0} : static_cast<std::uint8_t>(coded.front());
}

bool Palette::IsSymbolUsed(std::string_view symbol) const {
    const std::uint8_t code = SymbolCodeOf(symbol);
    return std::any_of(m_entries.begin(), m_entries.end(),
                       [code](const PaletteEntry& entry) { return entry.Symbol == code; });
}

int Palette::SymbolCode(int n) {
    // The gaps leave out codes that fonts of the code page do not fill.
    int code = n + 32;
    if (code >= 127) {
        code += 3;
    }
    if (code >= 141) {
        code += 4;
    }
    if (code >= 157) {
        code += 2;
    }
    return code;
}

std::string Palette::GetNextAvailableSymbol() const {
    std::bitset<256> used;
    for (const PaletteEntry& entry : m_entries) {
        used.set(entry.Symbol);
    }
    for (int n = 1; n <= SymbolCount; ++n) {
        const int code = SymbolCode(n);
        if (!used.test(static_cast<std::size_t>(code))) {
            return SymbolText(static_cast<std::uint8_t>(code));
        }
    }
    return {};
}

void Palette::SetSymbolFont(std::string_view name, bool bold, bool italic) {
    m_symbolFontName = name;
    m_symbolFontBold = bold;
    m_symbolFontItalic = italic;
    m_symbolFontCharSet = m_context->FontCharSet ? m_context->FontCharSet(m_symbolFontName) : 0;
    m_changed = true;
}

// --- Palettes together --------------------------------------------------------------------------

PaletteAddStatus Palette::AppendTo(Palette& target, int index, std::string_view symbol) const {
    const PaletteEntry& entry = At(index);
    const std::string flossID = entry.FlossID.Padded();
    const std::string description = entry.Description.Padded();
    const std::string manufacturerShort = GetManufShortDesc(index);
    const std::string manufacturerLong = GetManufLongDesc(index);
    return target.Append({entry.RGB, flossID, description, manufacturerShort, symbol,
                          entry.StitchStrands, entry.BackStitchStrands, entry.EntryTag,
                          entry.MasterID, entry.DefaultBSType, manufacturerLong});
}

void Palette::CreateCopy(Palette& target) const {
    if (&target == this) {
        return;
    }
    target.ClearPalette();
    target.SetSymbolFont(m_symbolFontName, m_symbolFontBold, m_symbolFontItalic);
    for (int index = 1; index <= GetEntriesCount(); ++index) {
        AppendTo(target, index, SymbolText(At(index).Symbol));
    }
    target.Sort(target.m_sortOrder);
}

bool Palette::HasSameName(int index, const Palette& other, int otherIndex) const {
    return InRange(index) && other.InRange(otherIndex) &&
           GetFlossMasterID(index) == other.GetFlossMasterID(otherIndex) &&
           GetManufID(index) == other.GetManufID(otherIndex) &&
           GetManufShortDesc(index) == other.GetManufShortDesc(otherIndex);
}

bool Palette::FlossesMatch(int index, const Palette& other, int otherIndex) const {
    return HasSameName(index, other, otherIndex) &&
           (GetFlossMasterID(index) != 0 || GetFlossRGB(index) == other.GetFlossRGB(otherIndex));
}

int Palette::FindMatch(int index, const Palette& other) const {
    for (int i = 1; i <= other.GetEntriesCount(); ++i) {
        if (FlossesMatch(index, other, i)) {
            return i;
        }
    }
    return 0;
}

bool Palette::IsSameThread(int index, const Palette& other, int otherIndex) const {
    return HasSameName(index, other, otherIndex) && At(index).RGB == other.At(otherIndex).RGB;
}

int Palette::MergePaletteEntrytoTarget(Palette& target, int index) const {
    if (!InRange(index)) {
        return 0;
    }
    if (const int match = FindMatch(index, target); match != 0) {
        return match;
    }
    std::string symbol = SymbolText(At(index).Symbol);
    if (target.IsSymbolUsed(symbol)) {
        symbol = GetNextAvailableSymbol();
    }
    if (AppendTo(target, index, symbol) != PaletteAdded) {
        return 1;
    }
    target.Sort(target.m_sortOrder);
    return target.GetEntriesCount();
}

int Palette::GetClosest(Colour rgb, int excludedIndex) const {
    using namespace HSLFuncs;
    const int red = CurveOf(RedOf(rgb));
    const int green = CurveOf(GreenOf(rgb) & 0xFF);
    const int blue = CurveOf(BlueOf(rgb));
    int best = 768;
    int bestIndex = 0;
    for (int index = 1; index <= GetEntriesCount(); ++index) {
        const Colour colour = At(index).RGB;
        int difference = std::abs(red - CurveOf(RedOf(colour)));
        if (index == excludedIndex || difference >= best) {
            continue;
        }
        difference += std::abs(green - CurveOf(GreenOf(colour) & 0xFF));
        difference += std::abs(blue - CurveOf(BlueOf(colour)));
        if (difference < best) {
            best = difference;
            bestIndex = index;
        }
    }
    return bestIndex;
}

// --- Display order ------------------------------------------------------------------------------

std::vector<int> Palette::SortedPlaces() const {
    const auto order = [this](auto keyOf) {
        std::vector<decltype(keyOf(m_entries.front()))> keys;
        keys.reserve(m_entries.size());
        std::transform(m_entries.begin(), m_entries.end(), std::back_inserter(keys), keyOf);
        return ExchangeOrder(keys);
    };
    switch (m_sortOrder) {
    case SortManufacturerID:
        return order([](const PaletteEntry& entry) {
            const std::string_view number = entry.FlossID.Coded();
            return LeadingNumber(number.data(), number.data() + number.size());
        });
    case SortDescription:
        return order([](const PaletteEntry& entry) { return entry.Description; });
    case SortColor:
        return order([](const PaletteEntry& entry) {
            return HSLFuncs::HueKey(HSLFuncs::RedOf(entry.RGB), HSLFuncs::GreenOf(entry.RGB),
                                    HSLFuncs::BlueOf(entry.RGB));
        });
    default:
        std::vector<int> places(m_entries.size());
        std::iota(places.begin(), places.end(), 0);
        return places;
    }
}

void Palette::Sort(int order) {
    m_sortOrder = static_cast<std::int16_t>(order);
    const std::vector<int> places = SortedPlaces();
    m_sortedIndexes.resize(places.size());
    std::transform(places.begin(), places.end(), m_sortedIndexes.begin(),
                   [](int place) { return static_cast<std::int16_t>(place + 1); });
}

void Palette::SwapSortIndexes(int a, int b) {
    if (InRange(a) && InRange(b)) {
        std::swap(m_sortedIndexes[static_cast<std::size_t>(a - 1)],
                  m_sortedIndexes[static_cast<std::size_t>(b - 1)]);
    }
}

int Palette::GetSortIndex(int position) const {
    return InRange(position) ? m_sortedIndexes[static_cast<std::size_t>(position - 1)] : 0;
}

int Palette::GetSortedPosition(int entry) const {
    const auto found = std::find(m_sortedIndexes.rbegin(), m_sortedIndexes.rend(), entry);
    return static_cast<int>(m_sortedIndexes.rend() - found);
}

} // namespace zol
