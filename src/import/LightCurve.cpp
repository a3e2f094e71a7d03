// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/LightCurve.h"

#include <cmath>
#include <cstddef>

namespace zol {

namespace {

double LinearOf(double value) {
    const double v = value / 255;
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

} // namespace

const LightCurve& LightCurve::Get() {
    static const LightCurve curve;
    return curve;
}

LightCurve::LightCurve() : m_values(std::size_t{Full} + 1) {
    unsigned value = 0;
    double nextStep = LinearOf(0.5) * Full; // where the nearest value changes
    for (unsigned light = 0; light <= Full; ++light) {
        while (value < 255 && light >= nextStep) {
            ++value;
            nextStep = LinearOf(value + 0.5) * Full;
        }
        m_values[light] = static_cast<std::uint8_t>(value);
    }
    for (unsigned v = 0; v < m_light.size(); ++v) {
        m_light[v] = static_cast<std::uint16_t>(std::lround(LinearOf(v) * Full));
    }
}

} // namespace zol
