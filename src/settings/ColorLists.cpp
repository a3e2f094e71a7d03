// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/ColorLists.h"

#include <algorithm>
#include <charconv>

#include "model/CodePage.h"

namespace zol::ColorLists {

namespace {

struct BuiltIn {
    const char* description;
    Colour value;
};
using List = std::array<BuiltIn, Size>;

constexpr List clothColors{{{"Bright White", 16777215},
                            {"Off White", 15794175},
                            {"Baby Blue", 16777183},
                            {"Light Pink", 15790335},
                            {"Light Brown", 12768475},
                            {"Forest Green", 3964472},
                            {"Navy Blue", 10758197},
                            {"Dark Gray", 6052956}}};
constexpr List normalColors{{{"Very Light", 15790320},
                             {"Light", 14408667},
                             {"Medium", 12369084},
                             {"Dark", 6513507},
                             {"Black", 10},
                             {"Light Brown", 12638173},
                             {"Light Blue", 15122359},
                             {"Light Green", 13889999}}};
constexpr List boldColors{{{"Very Light", 15790320},
                           {"Light", 14737632},
                           {"Medium", 12369084},
                           {"Dark", 8882055},
                           {"Black", 10},
                           {"Brown", 4809331},
                           {"Blue", 12275775},
                           {"Green", 3974448}}};

const List& BuiltInList(const std::string& section) {
    const std::string name = LowerCase(section);
    if (name == LowerCase(Cloth)) {
        return clothColors;
    }
    const bool bold = name == LowerCase(BoldLines) || name == LowerCase(PrintBoldLines);
    return bold ? boldColors : normalColors;
}

} // namespace

NamedColor Default(const std::string& section, int index) {
    const int clamped = index >= 1 && index <= Size ? index : 1;
    const BuiltIn& color = BuiltInList(section)[static_cast<std::size_t>(clamped - 1)];
    return {color.description, color.value};
}

NamedColor GetGridColor(const SettingsDoor& store, const std::string& section, int index) {
    const NamedColor builtIn = Default(section, index);
    const std::string number = std::to_string(index);
    const std::string text =
        store.ReadSetting(section, "Color" + number, std::to_string(builtIn.Value));
    Colour value = builtIn.Value;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return {store.ReadSetting(section, "Desc" + number, builtIn.Description), value & 0xFFFFFFU};
}

NamedColor GetClothColor(const SettingsDoor& store, int index) {
    return GetGridColor(store, Cloth, index);
}

void SaveGridColor(SettingsDoor& store, const std::string& section, int index,
                   const NamedColor& color) {
    const std::string number = std::to_string(index);
    store.WriteSetting(section, "Desc" + number, color.Description);
    store.WriteSetting(section, "Color" + number, std::to_string(color.Value));
}

void SaveClothColor(SettingsDoor& store, int index, const NamedColor& color) {
    SaveGridColor(store, Cloth, index, color);
}

} // namespace zol::ColorLists
