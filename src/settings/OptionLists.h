// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include "model/Doors.h"

namespace zol {

/// One choice of an option: what the user reads, and the value of the option.
struct OptionItem {
    std::string Text;
    int Value = 0;

    friend bool operator==(const OptionItem&, const OptionItem&) = default;
};

/// What the options can be chosen from. `colorWord` is "Color" or "Colour".
namespace OptionLists {

using Items = std::vector<OptionItem>;

/// The value is the days between two checks.
[[nodiscard]] Items UpdateIntervals();
[[nodiscard]] Items PaletteSizes();
[[nodiscard]] Items PaletteRows();
/// Widths of lines in percent of a square.
[[nodiscard]] Items WidthPercents();
[[nodiscard]] Items ClothCounts();
[[nodiscard]] Items Strands();
[[nodiscard]] Items DisplayStyles(const std::string& colorWord);
[[nodiscard]] Items PrintStitchStyles(const std::string& colorWord);
[[nodiscard]] Items PrintLineStyles(const std::string& colorWord);
[[nodiscard]] Items SortOrders(const std::string& colorWord);
/// The shown descriptions of a list of ColorLists, each with its index from 1.
[[nodiscard]] Items Colors(const SettingsDoor& store, int list);

} // namespace OptionLists
} // namespace zol
