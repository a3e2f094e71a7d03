// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/MirrorMode.h"

#include <array>

namespace zol {

namespace {

// Element k is the twin of kind k; kinds without an element have none and hand over kind 0. An
// upper left quarter gives a lower right one on the first axis: what users have always seen.
using KindTable = std::array<int, 13>;
constexpr KindTable acrossColumn{0, 1, 3, 2, 5, 4, 7, 6, 8, 12, 9, 12, 11};
constexpr KindTable acrossRow{0, 1, 4, 5, 2, 3, 7, 6, 8, 11, 12, 9, 10};

int TwinKind(int kind, MirrorAxis axis) {
    const KindTable& table = axis == MirrorVertical ? acrossColumn : acrossRow;
    return kind >= 1 && kind < static_cast<int>(table.size())
               ? table[static_cast<std::size_t>(kind)]
               : 0;
}

/// A knot's point is exchanged with the point across the square.
int TwinPosition(int kind, int position, MirrorAxis axis) {
    if (kind != StitchFKnot || !IsPosition(position)) {
        return position;
    }
    const int column = PositionColumn(position);
    const int row = PositionRow(position);
    return axis == MirrorVertical ? row * 3 + (2 - column) + 1 : (2 - row) * 3 + column + 1;
}

} // namespace

void MirrorMode::SetMirrorMode(MirrorAxis axis) {
    ClearMirrorMode();
    m_centre = {};
    m_axis = axis;
    m_active = true;
}

void MirrorMode::SetMirrorCentre(int column, int row) {
    m_centre = {column, row};
}

std::optional<SquarePos> MirrorMode::MirrorStitch(Pattern& pattern, int column, int row,
                                                  int stitchType, int paletteIndex, int position) {
    if (m_centre.X == 0) {
        m_centre = {column, row};
    }
    const bool onAxis = m_axis == MirrorVertical ? column == m_centre.X : row == m_centre.Y;
    if (onAxis) {
        return std::nullopt;
    }
    const SquarePos target = m_axis == MirrorVertical ? SquarePos{2 * m_centre.X - column, row}
                                                      : SquarePos{column, 2 * m_centre.Y - row};
    pattern.SetStitch(target.X, target.Y, TwinKind(stitchType, m_axis), paletteIndex,
                      TwinPosition(stitchType, position, m_axis));
    return target;
}

} // namespace zol
