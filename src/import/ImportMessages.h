// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zol {

/// The words of the import wizard that the core owns: what is wrong with a screen's fields, and
/// what is shown beside the progress bar.
namespace ImportMessages {

inline constexpr int MaxImportColors = 200;

/// Of the wizard, and of all that it says.
inline constexpr char Title[] = "Import Wizard";

inline constexpr std::string_view NoImage = "You must select an image to import";
inline constexpr std::string_view WidthTooSmall = "Pattern width must be greater than zero";
inline constexpr std::string_view HeightTooSmall = "Pattern height must be greater than zero";
inline constexpr std::string_view ClothCountWrong = "Your cloth count is invalid.";
inline constexpr std::string_view TooLarge = "Your pattern is too large.";
inline constexpr std::string_view NoFlossFamily = "You must select a floss family to import.";
inline constexpr std::string_view NoFlossPalette = "You must select a floss palette to import.";

inline constexpr std::string_view LoadingPicture = "Loading Picture";
inline constexpr std::string_view ResizingPicture = "Resizing Picture";
inline constexpr std::string_view ApplyingPalette = "Applying Floss Palette";
inline constexpr std::string_view CreatingPattern = "Creating Pattern";
/// `colorWord` as the running program spells it.
[[nodiscard]] std::string Reducing(std::string_view colorWord);

/// "420 stitches in 12 flosses".
[[nodiscard]] std::string Result(int stitches, int flosses);
/// "3 flosses share their symbol with another one"; `flosses` is above 1.
[[nodiscard]] std::string SharedSymbols(int flosses);

/// What is wrong with the size screen's fields; nothing if they will do.
[[nodiscard]] std::optional<std::string> ValidateSize(double width, double height);

/// What is wrong with the number of colours; nothing if it will do. `paletteCount` is the entry
/// count of the pattern's palette when the edit box is used; nothing else.
[[nodiscard]] std::optional<std::string>
ValidateMaxColors(int maxColors, std::optional<int> paletteCount, std::string_view colorWord);

} // namespace ImportMessages
} // namespace zol
