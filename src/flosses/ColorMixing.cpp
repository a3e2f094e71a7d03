// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/ColorMixing.h"

#include <algorithm>

namespace zol::ColorMixing {

namespace {

constexpr unsigned Full = 255;
constexpr unsigned Steps = 8; ///< of red and of green
constexpr unsigned BlueSteps = 4;

} // namespace

int Channel(double typed) {
    return static_cast<int>(std::clamp(typed, 0.0, double(Full)));
}

Colour Scale(Colour color, int percent) {
    const auto factor = static_cast<unsigned>(std::clamp(percent, 0, LargestPercent));
    const auto scaled = [factor](unsigned channel) {
        return std::min((channel * factor + ItselfPercent / 2) / ItselfPercent, Full);
    };
    return MakeColour(scaled(color & Full), scaled((color >> 8U) & Full),
                      scaled((color >> 16U) & Full));
}

std::vector<Colour> ColorCube() {
    std::vector<Colour> cube;
    for (unsigned green = 0; green < Steps; ++green) {
        for (unsigned blue = 0; blue < BlueSteps; ++blue) {
            for (unsigned red = 0; red < Steps; ++red) {
                cube.push_back(MakeColour(red * Full / (Steps - 1), green * Full / (Steps - 1),
                                          blue * Full / (BlueSteps - 1)));
            }
        }
    }
    return cube;
}

} // namespace zol::ColorMixing
