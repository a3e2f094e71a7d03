// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/Pattern.h"

namespace zol {

namespace {

/// One of the 3 by 3 squares around a square, column by column.
SquarePos Neighbour(SquarePos at, std::size_t number) {
    const int step = static_cast<int>(number);
    return {at.X - 1 + step / 3, at.Y - 1 + step % 3};
}

} // namespace

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

SquareState Pattern::GetSquareState(int x, int y) const {
    SquareState state;
    state.At = {x, y};
    if (!IsInGrid(x, y)) {
        return state;
    }
    state.Cell = Cell(x, y);
    if (const DupStitch* dup = m_dupStitches.Find(KeyedTable<DupStitch>::KeyOf(y, x))) {
        state.Dup = *dup;
    }
    for (int position = 1; position <= 9 && !m_frenchKnots.IsEmpty(); ++position) {
        const LatticePos point = LatticeOf(x, y, position);
        if (const FrenchKnot* knot =
                m_frenchKnots.Find(KeyedTable<FrenchKnot>::KeyOf(point.LY, point.LX))) {
            state.Knots.push_back(*knot);
        }
    }
    for (std::size_t i = 0; i < state.KnotFlags.size(); ++i) {
        const SquarePos at = Neighbour(state.At, i);
        state.KnotFlags[i] =
            IsInGrid(at.X, at.Y) && (Cell(at.X, at.Y).CellFlags & CellHasKnot) != 0;
    }
    return state;
}

void Pattern::SetSquareState(const SquareState& state) {
    const auto [x, y] = state.At;
    if (!IsInGrid(x, y)) {
        return;
    }
    Record(x, y);
    m_changed = true;
    CellRef(x, y) = state.Cell;
    const auto key = KeyedTable<DupStitch>::KeyOf(y, x);
    if (DupStitch* dup = m_dupStitches.Find(key); dup != nullptr && state.Dup) {
        *dup = *state.Dup;
    } else if (state.Dup) {
        m_dupStitches.Add(key, *state.Dup);
    } else {
        m_dupStitches.Remove(key);
    }
    PutKnotsBack(state);
    for (std::size_t i = 0; i < state.KnotFlags.size(); ++i) {
        const SquarePos at = Neighbour(state.At, i);
        if (IsInGrid(at.X, at.Y)) {
            const unsigned others = CellRef(at.X, at.Y).CellFlags & ~unsigned{CellHasKnot};
            const unsigned own = state.KnotFlags[i] ? unsigned{CellHasKnot} : 0U;
            CellRef(at.X, at.Y).CellFlags = static_cast<std::uint8_t>(others | own);
        }
    }
}

void Pattern::PutKnotsBack(const SquareState& state) {
    auto kept = state.Knots.begin();
    for (int position = 1; position <= 9; ++position) {
        const LatticePos point = LatticeOf(state.At.X, state.At.Y, position);
        const auto key = KeyedTable<FrenchKnot>::KeyOf(point.LY, point.LX);
        // Both go by position, so the next one that was there is the only one that may be here.
        if (kept == state.Knots.end() || kept->X != point.LX || kept->Y != point.LY) {
            m_frenchKnots.Remove(key);
        } else {
            if (FrenchKnot* knot = m_frenchKnots.Find(key)) {
                *knot = *kept;
            } else {
                m_frenchKnots.Add(key, *kept);
            }
            ++kept;
        }
    }
}

} // namespace zol
