// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "model/ByteStream.h"
#include "model/ZOLTypes.h"

namespace zol {

/// Up to four more stitches of one square, beside its primary one.
class DupStitch {
public:
    static constexpr int Slots = 4;
    static constexpr int RecordSize = 12;

    std::int16_t X = 0;
    std::int16_t Y = 0;

    /// Takes the first free slot; without one nothing happens.
    void AddDupStitch(std::uint8_t stitchType, std::uint8_t paletteIndex);
    /// Empties every slot of that kind.
    void DelDupStitchType(std::uint8_t stitchType);
    /// Of the index-th occupied slot, from 1; 255 past the last.
    [[nodiscard]] std::uint8_t GetPaletteIndex(int index) const;
    [[nodiscard]] std::uint8_t GetStitchType(int index) const;
    [[nodiscard]] int GetStitchCount() const;

    /// Empties the slots of a floss if `whole` or the square lies in the range; with `whole`
    /// also lowers the indexes above it.
    void RemoveColor(std::uint8_t paletteIndex, bool whole, const SquareRect& range);
    /// Changes every occupied slot of a floss; there is no range here.
    void ChangeColor(std::uint8_t oldIndex, std::uint8_t newIndex);
    /// Element i of the map is the new number of floss i.
    void MapPalette(const std::vector<std::uint8_t>& map);

    void Load(ByteReader& stream);
    void Save(ByteWriter& stream) const;

    [[nodiscard]] const std::array<std::uint8_t, Slots>& PaletteIndexes() const {
        return m_paletteIndexes;
    }
    [[nodiscard]] const std::array<std::uint8_t, Slots>& StitchTypes() const {
        return m_stitchTypes;
    }

private:
    std::array<std::uint8_t, Slots> m_paletteIndexes{NoFloss, NoFloss, NoFloss, NoFloss};
    std::array<std::uint8_t, Slots> m_stitchTypes{NoStitch, NoStitch, NoStitch, NoStitch};
};

} // namespace zol
