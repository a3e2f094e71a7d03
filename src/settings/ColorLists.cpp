// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/ColorLists.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include "model/CodePage.h"

namespace zol::ColorLists {

namespace {

struct BuiltIn {
    const char* description;
    Colour value;
};
using BuiltInColors = std::array<BuiltIn, Size>;

constexpr BuiltInColors clothColors{{{"Bright White", 16777215},
                                     {"Off White", 15794175},
                                     {"Baby Blue", 16777183},
                                     {"Light Pink", 15790335},
                                     {"Light Brown", 12768475},
                                     {"Forest Green", 3964472},
                                     {"Navy Blue", 10758197},
                                     {"Dark Gray", 6052956}}};
constexpr BuiltInColors normalColors{{{"Very Light", 15790320},
                                      {"Light", 14408667},
                                      {"Medium", 12369084},
                                      {"Dark", 6513507},
                                      {"Black", 10},
                                      {"Light Brown", 12638173},
                                      {"Light Blue", 15122359},
                                      {"Light Green", 13889999}}};
constexpr BuiltInColors boldColors{{{"Very Light", 15790320},
                                    {"Light", 14737632},
                                    {"Medium", 12369084},
                                    {"Dark", 8882055},
                                    {"Black", 10},
                                    {"Brown", 4809331},
                                    {"Blue", 12275775},
                                    {"Green", 3974448}}};

const BuiltInColors& BuiltInList(const std::string& section) {
    const std::string name = LowerCase(section);
    if (name == LowerCase(Cloth)) {
        return clothColors;
    }
    const bool bold = name == LowerCase(BoldLines) || name == LowerCase(PrintBoldLines);
    return bold ? boldColors : normalColors;
}

struct EditedList {
    const char* section;
    const char* words;
};
constexpr std::array<EditedList, 5> editedLists{{{Cloth, " Cloth "},
                                                 {NormalLines, " Normal Grid Line "},
                                                 {BoldLines, " Bold Grid Line "},
                                                 {PrintNormalLines, " Normal Printed Grid Line "},
                                                 {PrintBoldLines, " Bold Printed Grid Line "}}};

const EditedList& ListNumbered(int list) {
    const bool known = list >= ClothList && list <= PrintBoldList;
    return editedLists[static_cast<std::size_t>(known ? list - 1 : 0)];
}

Colour ParseColor(std::string_view text, Colour fallback) {
    Colour value = fallback;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value & 0xFFFFFFU;
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
    return {store.ReadSetting(section, "Desc" + number, builtIn.Description),
            ParseColor(text, builtIn.Value)};
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

const char* SectionOf(int list) {
    return ListNumbered(list).section;
}

std::string CaptionOf(int list, bool british) {
    const std::string words = ListNumbered(list).words;
    return british ? "Customise" + words + "Colours" : "Customize" + words + "Colors";
}

std::vector<NamedColor> LoadColorsList(const SettingsDoor& store, int list) {
    std::vector<NamedColor> lines;
    for (int index = 1; index <= ShownSize; ++index) {
        lines.push_back(GetGridColor(store, SectionOf(list), index));
    }
    return lines;
}

void SaveColorsList(SettingsDoor& store, int list, const std::vector<NamedColor>& lines) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        SaveGridColor(store, SectionOf(list), static_cast<int>(i) + 1, lines[i]);
    }
}

std::vector<NamedColor> LoadNonRepColors(const SettingsDoor& store) {
    const std::string count = store.ReadSetting(NonRepresentative, "Count", "0");
    int lines = 0;
    std::from_chars(count.data(), count.data() + count.size(), lines);
    std::vector<NamedColor> colors;
    for (int i = 1; i <= lines; ++i) {
        const std::string number = std::to_string(i);
        const std::string text = store.ReadSetting(NonRepresentative, "Desc" + number, "");
        const std::string value = store.ReadSetting(NonRepresentative, "Color" + number, "");
        if (text.empty() && value.empty()) {
            break; // a count that somebody wrote by hand
        }
        colors.push_back({text, ParseColor(value, 0)});
    }
    return colors;
}

void SaveNonRepColors(SettingsDoor& store, const std::vector<NamedColor>& lines) {
    store.WriteSetting(NonRepresentative, "Count", std::to_string(lines.size()));
    for (std::size_t i = 0; i < lines.size(); ++i) {
        SaveGridColor(store, NonRepresentative, static_cast<int>(i) + 1, lines[i]);
    }
}

} // namespace zol::ColorLists
