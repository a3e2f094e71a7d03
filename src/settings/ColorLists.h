// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <string>

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

} // namespace ColorLists
} // namespace zol
