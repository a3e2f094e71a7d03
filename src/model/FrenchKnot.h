// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "model/ByteStream.h"
#include "model/ZOLTypes.h"

namespace zol {

/// A French knot on the half-square lattice.
class FrenchKnot {
public:
    static constexpr int RecordSize = 5; ///< without the orientation

    std::int16_t X = 0; ///< lattice column LX
    std::int16_t Y = 0; ///< lattice row LY
    std::uint8_t Orientation = KnotNormal;

    /// Sets the knot's floss.
    void AddFrenchKnot(std::uint8_t paletteIndex) { m_paletteIndex = paletteIndex; }
    [[nodiscard]] std::uint8_t GetPaletteIndex() const { return m_paletteIndex; }
    void SetPaletteIndex(std::uint8_t paletteIndex) { m_paletteIndex = paletteIndex; }

    void Load(ByteReader& stream);
    void Save(ByteWriter& stream) const;

private:
    std::uint8_t m_paletteIndex = NoFloss;
};

} // namespace zol
