// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/HSLFuncs.h"

#include <algorithm>
#include <cstdlib>

#include "model/Rounding.h"

namespace zol::HSLFuncs {

namespace {

constexpr double hslMax = 240;
constexpr double rgbMax = 255;

std::array<std::uint8_t, 256> MakeMatchCurve() {
    std::array<std::uint8_t, 256> curve{};
    for (std::size_t i = 0; i < curve.size(); ++i) {
        const auto c = static_cast<double>(i);
        curve[i] = static_cast<std::uint8_t>(RoundToInt(c * (c / rgbMax)));
    }
    return curve;
}

std::int16_t Rounded(double value) {
    return static_cast<std::int16_t>(RoundToInt(value));
}

} // namespace

int RedOf(Colour colour) {
    return static_cast<int>(colour & 0xFFU);
}

int GreenOf(Colour colour) {
    return static_cast<int>((colour & 0x100FF00U) / 256U);
}

int BlueOf(Colour colour) {
    return static_cast<int>((colour & 0xFF0000U) / 65536U);
}

std::int16_t MaxOf(std::int16_t a, std::int16_t b) {
    return std::max(a, b);
}

std::int16_t MinOf(std::int16_t a, std::int16_t b) {
    return std::min(a, b);
}

HSLColor RGBtoHSL(int red, int green, int blue) {
    // A damaged catalogue holds any number; within the channel's range every divisor below is
    // positive.
    red = std::clamp(red, 0, 255);
    green = std::clamp(green, 0, 255);
    blue = std::clamp(blue, 0, 255);
    const double cMax = std::max({red, green, blue});
    const double cMin = std::min({red, green, blue});
    const double sum = cMax + cMin;
    const double diff = cMax - cMin;
    const double luminosity = (sum * hslMax + rgbMax) / (2 * rgbMax);
    if (diff == 0) {
        return {160, 0, Rounded(luminosity)};
    }
    const double saturation =
        (diff * hslMax + 0.5) / (luminosity <= hslMax / 2 ? sum : 2 * rgbMax - sum);
    const auto share = [cMax, diff](int channel) {
        return ((cMax - channel) * (hslMax / 6) + 0.5) / diff;
    };
    double hue = 0;
    if (red == cMax) {
        hue = share(blue) - share(green);
    } else if (green == cMax) {
        hue = hslMax / 3 + share(red) - share(blue);
    } else {
        hue = 2 * hslMax / 3 + share(green) - share(red);
    }
    if (hue < 0) {
        hue += hslMax;
    }
    return {Rounded(hue), Rounded(saturation), Rounded(luminosity)};
}

std::int32_t HueKey(int red, int green, int blue) {
    const HSLColor hsl = RGBtoHSL(red, green, blue);
    return (hsl.Hue * 255 + hsl.Saturation) * 255 + hsl.Luminosity;
}

const std::array<std::uint8_t, 256>& MatchCurve() {
    static const std::array<std::uint8_t, 256> curve = MakeMatchCurve();
    return curve;
}

int WhatsTheDifference1(int red1, int green1, int blue1, int red2, int green2, int blue2) {
    return std::abs(CurveOf(red1) - CurveOf(red2)) + std::abs(CurveOf(green1) - CurveOf(green2)) +
           std::abs(CurveOf(blue1) - CurveOf(blue2));
}

} // namespace zol::HSLFuncs
