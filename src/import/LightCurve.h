// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace zol {

/// The amount of light behind a channel's value (the sRGB curve), 0 to 65535, and back. Mixing
/// values themselves makes fine detail darker than it looks; mixing light does not.
class LightCurve {
public:
    static constexpr std::uint16_t Full = 65535;

    [[nodiscard]] static const LightCurve& Get();

    [[nodiscard]] std::uint16_t LightOf(unsigned value) const { return m_light[value & 255U]; }
    /// The value whose light lies nearest. Back and forth gives the same value again.
    [[nodiscard]] std::uint8_t ValueOf(unsigned light) const { return m_values[light]; }

private:
    LightCurve();

    std::array<std::uint16_t, 256> m_light{};
    std::vector<std::uint8_t> m_values;
};

} // namespace zol
