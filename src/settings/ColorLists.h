// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <string>
#include <vector>

#include "model/Doors.h"
#include "model/ZOLTypes.h"

namespace zol {

/// The lists of named colours from which cloth and grid lines are chosen; eight names each.
namespace ColorLists {

inline constexpr int Size = 8;
inline constexpr int ShownSize = 7; ///< the eighth stays in the store and is not shown

inline constexpr const char* Cloth = "ClothColor";
inline constexpr const char* NormalLines = "NormalGLColor";
inline constexpr const char* BoldLines = "BoldGLColor";
inline constexpr const char* PrintNormalLines = "pNormalGLColor";
inline constexpr const char* PrintBoldLines = "pBoldGLColor";
/// Colours in which a floss is shown instead of its own; a list of any length with a count.
inline constexpr const char* NonRepresentative = "NonRepColors";

/// The five lists as their editor numbers them.
enum List { ClothList = 1, NormalList, BoldList, PrintNormalList, PrintBoldList };

struct NamedColor {
    std::string Description;
    Colour Value = 0;

    friend bool operator==(const NamedColor&, const NamedColor&) = default;
};

/// The built-in colour of a list, `index` from 1 to 8; the first for an index outside.
[[nodiscard]] NamedColor Default(const std::string& section, int index);

/// "Black" is 10 in the lists of lines, since the value 0 does not occur in them.
[[nodiscard]] NamedColor GetGridColor(const SettingsDoor& store, const std::string& section,
                                      int index);
[[nodiscard]] NamedColor GetClothColor(const SettingsDoor& store, int index);
void SaveGridColor(SettingsDoor& store, const std::string& section, int index,
                   const NamedColor& color);
void SaveClothColor(SettingsDoor& store, int index, const NamedColor& color);

/// The section of a list; that of cloth for a number outside 1 to 5.
[[nodiscard]] const char* SectionOf(int list);
/// What the list's editor is called, as "Customize Cloth Colors".
[[nodiscard]] std::string CaptionOf(int list, bool british);
/// The lines of a list that are shown, in their order; always seven.
[[nodiscard]] std::vector<NamedColor> LoadColorsList(const SettingsDoor& store, int list);
/// Writes those lines back; what follows them in the store stays.
void SaveColorsList(SettingsDoor& store, int list, const std::vector<NamedColor>& lines);

/// Ends early where the store has fewer lines than its count says.
[[nodiscard]] std::vector<NamedColor> LoadNonRepColors(const SettingsDoor& store);
void SaveNonRepColors(SettingsDoor& store, const std::vector<NamedColor>& lines);

} // namespace ColorLists
} // namespace zol
