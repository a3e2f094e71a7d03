// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "model/ZOLTypes.h"

namespace zol {

/// Hue, saturation and luminosity on a scale of 0 to 240.
struct HSLColor {
    std::int16_t Hue = 0;
    std::int16_t Saturation = 0;
    std::int16_t Luminosity = 0;

    friend bool operator==(const HSLColor&, const HSLColor&) = default;
};

/// The arithmetic of colour.
namespace HSLFuncs {

[[nodiscard]] int RedOf(Colour colour);
/// Bit 24 survives the mask on purpose; colours of the system never carry it.
[[nodiscard]] int GreenOf(Colour colour);
[[nodiscard]] int BlueOf(Colour colour);
[[nodiscard]] std::int16_t MaxOf(std::int16_t a, std::int16_t b);
[[nodiscard]] std::int16_t MinOf(std::int16_t a, std::int16_t b);

[[nodiscard]] HSLColor RGBtoHSL(int red, int green, int blue);
/// Sorts by hue, then saturation, then luminosity; grey stands at hue 160 among the blues.
[[nodiscard]] std::int32_t HueKey(int red, int green, int blue);

/// The curve on which colours are compared, c * c / 255 rounded half to even, for c from 0 to
/// 255. It weighs differences between bright channels more.
[[nodiscard]] const std::array<std::uint8_t, 256>& MatchCurve();
/// The curve's value for a channel, which counts as 0 below and 255 above its range.
[[nodiscard]] inline std::uint8_t CurveOf(int channel) {
    return MatchCurve()[static_cast<std::size_t>(std::clamp(channel, 0, 255))];
}

/// The distance of two colours: the sum of their channels' differences on the curve, 0 to 765.
[[nodiscard]] int WhatsTheDifference1(int red1, int green1, int blue1, int red2, int green2,
                                      int blue2);

} // namespace HSLFuncs
} // namespace zol
