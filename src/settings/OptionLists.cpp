// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/OptionLists.h"

#include "settings/ColorLists.h"

namespace zol::OptionLists {

namespace {

constexpr int MostRows = 5;
constexpr int MostPercent = 50;
constexpr int MostThreads = 40; ///< of cloth to the inch
constexpr int MostStrands = 6;  ///< of a skein

Items Numbers(int first, int last) {
    Items items;
    for (int number = first; number <= last; ++number) {
        items.push_back({std::to_string(number), number});
    }
    return items;
}

} // namespace

Items UpdateIntervals() {
    return {{"Never", 0},
            {"Every Day", 1},
            {"Once a Week", 7},
            {"Once a Month", 30},
            {"Twice a Year", 180}};
}

Items PaletteSizes() {
    return {{"Small", 1}, {"Medium", 2}, {"Large", 3}};
}

Items PaletteRows() {
    return Numbers(1, MostRows);
}

Items WidthPercents() {
    return Numbers(0, MostPercent);
}

Items ClothCounts() {
    return Numbers(1, MostThreads);
}

Items Strands() {
    return Numbers(1, MostStrands);
}

Items DisplayStyles(const std::string& colorWord) {
    return {{colorWord + "ed Squares", 1},  {"B&W Symbols", 2},
            {colorWord + "ed Symbols", 3},  {"Blocks & Symbols", 4},
            {colorWord + "ed Stitches", 5}, {"Virtual Stitches", 6}};
}

Items PrintStitchStyles(const std::string& colorWord) {
    return {{"Black Symbols", 2},
            {colorWord + " Symbols", 3},
            {colorWord + " Blocks", 1},
            {colorWord + " Stitches", 5},
            {colorWord + " Blocks and Symbols", 4},
            {"None", -1}};
}

Items PrintLineStyles(const std::string& colorWord) {
    return {{"Black Lines", 2}, {colorWord + " Lines", 1}, {"None", -1}};
}

Items SortOrders(const std::string& colorWord) {
    return {{"Order Added", 1}, {"Manufacturer ID", 2}, {"Description", 3}, {colorWord, 4}};
}

Items Colors(const SettingsDoor& store, int list) {
    Items items;
    for (const ColorLists::NamedColor& line : ColorLists::LoadColorsList(store, list)) {
        items.push_back({line.Description, static_cast<int>(items.size()) + 1});
    }
    return items;
}

} // namespace zol::OptionLists
