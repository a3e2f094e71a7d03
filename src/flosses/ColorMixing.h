// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "model/ZOLTypes.h"

namespace zol {

/// What the colour mixer does with colours.
namespace ColorMixing {

inline constexpr int ItselfPercent = 100; ///< the brightness of a colour itself
inline constexpr int LargestPercent = 200;

/// A channel as it was typed, brought to 0 to 255.
[[nodiscard]] int Channel(double typed);
/// Every channel times `percent` hundredths; what goes above 255 becomes 255.
[[nodiscard]] Colour Scale(Colour color, int percent);

inline constexpr int CubeColumns = 32;
/// The 256 colours of a display of 8 bits: 8 steps of red and green and 4 of blue. Rows of
/// CubeColumns: green goes down, red and blue across.
[[nodiscard]] std::vector<Colour> ColorCube();

} // namespace ColorMixing
} // namespace zol
