// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/DupStitch.h"

namespace zol {

namespace {

/// Slot of the index-th occupied one, from 1; -1 past the last.
int OccupiedSlot(const std::array<std::uint8_t, DupStitch::Slots>& stitchTypes, int index) {
    int found = 0;
    for (int slot = 0; slot < DupStitch::Slots; ++slot) {
        if (stitchTypes[static_cast<std::size_t>(slot)] != NoStitch && ++found == index) {
            return slot;
        }
    }
    return -1;
}

} // namespace

void DupStitch::AddDupStitch(std::uint8_t stitchType, std::uint8_t paletteIndex) {
    for (std::size_t slot = 0; slot < Slots; ++slot) {
        if (m_stitchTypes[slot] == NoStitch) {
            m_stitchTypes[slot] = stitchType;
            m_paletteIndexes[slot] = paletteIndex;
            return;
        }
    }
}

void DupStitch::DelDupStitchType(std::uint8_t stitchType) {
    for (std::size_t slot = 0; slot < Slots; ++slot) {
        if (m_stitchTypes[slot] == stitchType) {
            m_stitchTypes[slot] = NoStitch;
            m_paletteIndexes[slot] = NoFloss;
        }
    }
}

std::uint8_t DupStitch::GetPaletteIndex(int index) const {
    const int slot = OccupiedSlot(m_stitchTypes, index);
    return slot < 0 ? NoFloss : m_paletteIndexes[static_cast<std::size_t>(slot)];
}

std::uint8_t DupStitch::GetStitchType(int index) const {
    const int slot = OccupiedSlot(m_stitchTypes, index);
    return slot < 0 ? std::uint8_t{NoStitch} : m_stitchTypes[static_cast<std::size_t>(slot)];
}

int DupStitch::GetStitchCount() const {
    int count = 0;
    for (const std::uint8_t stitchType : m_stitchTypes) {
        count += stitchType != NoStitch ? 1 : 0;
    }
    return count;
}

void DupStitch::RemoveColor(std::uint8_t paletteIndex, bool whole, const SquareRect& range) {
    const bool reached =
        whole || (X >= range.Left && X <= range.Right && Y >= range.Top && Y <= range.Bottom);
    for (std::size_t slot = 0; slot < Slots; ++slot) {
        std::uint8_t& floss = m_paletteIndexes[slot];
        if (m_stitchTypes[slot] == NoStitch) {
            continue;
        }
        if (floss == paletteIndex) {
            if (reached) {
                m_stitchTypes[slot] = NoStitch;
                floss = NoFloss;
            }
        } else if (whole && floss > paletteIndex && floss < NoFloss) {
            --floss;
        }
    }
}

void DupStitch::ChangeColor(std::uint8_t oldIndex, std::uint8_t newIndex) {
    for (std::size_t slot = 0; slot < Slots; ++slot) {
        if (m_stitchTypes[slot] != NoStitch && m_paletteIndexes[slot] == oldIndex) {
            m_paletteIndexes[slot] = newIndex;
        }
    }
}

void DupStitch::MapPalette(const std::vector<std::uint8_t>& map) {
    for (std::size_t slot = 0; slot < Slots; ++slot) {
        if (m_stitchTypes[slot] != NoStitch && m_paletteIndexes[slot] < map.size()) {
            m_paletteIndexes[slot] = map[m_paletteIndexes[slot]];
        }
    }
}

void DupStitch::Load(ByteReader& stream) {
    X = stream.ReadI16();
    Y = stream.ReadI16();
    for (std::size_t slot = 0; slot < Slots; ++slot) {
        m_paletteIndexes[slot] = stream.ReadU8();
        m_stitchTypes[slot] = stream.ReadU8();
    }
}

void DupStitch::Save(ByteWriter& stream) const {
    stream.WriteI16(X);
    stream.WriteI16(Y);
    for (std::size_t slot = 0; slot < Slots; ++slot) {
        stream.WriteU8(m_paletteIndexes[slot]);
        stream.WriteU8(m_stitchTypes[slot]);
    }
}

} // namespace zol
