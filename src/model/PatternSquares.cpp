// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/Pattern.h"

namespace zol {

int Pattern::ListedStitches(int x, int y) const {
    // A DupStitch beside an empty primary place is not listed, though GetStitchCount counts it.
    if (Cell(x, y).StitchType == NoStitch) {
        return 0;
    }
    const DupStitch* dup = DupAt(x, y);
    return 1 + (dup != nullptr ? dup->GetStitchCount() : 0);
}

int Pattern::GetStitchCount(int x, int y) const {
    if (!IsInGrid(x, y)) {
        return -1;
    }
    const StitchCell& cell = Cell(x, y);
    int count = cell.StitchType != NoStitch ? 1 : 0;
    if (cell.CellFlags != 0) {
        const DupStitch* dup = DupAt(x, y);
        count += GetFrenchKnotCount(x, y) + (dup != nullptr ? dup->GetStitchCount() : 0);
    }
    return count;
}

const FrenchKnot* Pattern::KnotAt(int x, int y, int index, int& position) const {
    if ((Cell(x, y).CellFlags & CellHasKnot) == 0) {
        return nullptr;
    }
    int left = index - ListedStitches(x, y);
    if (left < 0) {
        return nullptr;
    }
    for (position = 1; position <= 9; ++position) {
        const LatticePos point = LatticeOf(x, y, position);
        const FrenchKnot* knot =
            m_frenchKnots.Find(KeyedTable<FrenchKnot>::KeyOf(point.LY, point.LX));
        if (knot != nullptr && left-- == 0) {
            return knot;
        }
    }
    return nullptr;
}

Pattern::ListedStitch Pattern::StitchAt(int x, int y, int index) const {
    if (!IsInGrid(x, y) || index < 0) {
        return {};
    }
    const StitchCell& cell = Cell(x, y);
    if (index == 0 && cell.StitchType != NoStitch) {
        return {cell.StitchType, cell.PaletteIndex, 0, 0};
    }
    if (cell.CellFlags == 0) {
        return {};
    }
    if (index < ListedStitches(x, y)) {
        const DupStitch* dup = DupAt(x, y);
        return {dup->GetStitchType(index), dup->GetPaletteIndex(index), 0, 0};
    }
    int position = 0;
    const FrenchKnot* knot = KnotAt(x, y, index, position);
    return knot != nullptr
               ? ListedStitch{StitchFKnot, knot->GetPaletteIndex(), position, knot->Orientation}
               : ListedStitch{};
}

int Pattern::GetStitchType(int x, int y, int index) const {
    return StitchAt(x, y, index).kind;
}

int Pattern::GetStitchPaletteIndex(int x, int y) const {
    return IsInGrid(x, y) ? Cell(x, y).PaletteIndex : int{NoFloss};
}

int Pattern::GetStitchColorIndex(int x, int y, int index) const {
    return StitchAt(x, y, index).paletteIndex;
}

std::uint32_t Pattern::GetStitchColor(int x, int y, int index, bool asIndex) const {
    const int floss = GetStitchColorIndex(x, y, index);
    return asIndex ? static_cast<std::uint32_t>(floss) : m_palette.GetFlossRGB(floss);
}

int Pattern::GetStitchImage(int x, int y, int index) const {
    const int floss = GetStitchColorIndex(x, y, index);
    return floss >= 1 && floss <= m_palette.GetEntriesCount() ? m_palette.GetPaletteImage(floss)
                                                              : 0;
}

int Pattern::GetStitchSymbol(int x, int y, int index) const {
    return m_palette.GetFlossSymbol(GetStitchColorIndex(x, y, index));
}

int Pattern::GetFrenchKnotPoint(int x, int y, int index) const {
    return StitchAt(x, y, index).knotPosition;
}

int Pattern::GetFrenchKnotOrientation(int x, int y, int index) const {
    return StitchAt(x, y, index).orientation;
}

int Pattern::GetFrenchKnotGPs(int x, int y, std::array<bool, 10>& positions) const {
    positions.fill(false);
    if (!IsInGrid(x, y) || (Cell(x, y).CellFlags & CellHasKnot) == 0) {
        return 0;
    }
    int count = 0;
    for (int position = 1; position <= 9; ++position) {
        const LatticePos point = LatticeOf(x, y, position);
        if (m_frenchKnots.Find(KeyedTable<FrenchKnot>::KeyOf(point.LY, point.LX)) != nullptr) {
            positions[static_cast<std::size_t>(position)] = true;
            ++count;
        }
    }
    return count;
}

} // namespace zol
