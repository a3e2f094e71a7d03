// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/SquareContent.h"

#include <algorithm>
#include <unordered_set>

namespace zol {

SquareContent::SquareContent(const Pattern& pattern, int column, int row) {
    const StitchCell& cell = pattern.Cell(column, row);
    if (cell.StitchType != NoStitch) {
        m_stitches[0] = {cell.StitchType, cell.PaletteIndex};
        m_stitchCount = 1;
        if ((cell.CellFlags & CellHasDup) != 0) {
            const DupStitch* dup =
                pattern.DupStitches().Find(KeyedTable<DupStitch>::KeyOf(row, column));
            for (std::size_t slot = 0; dup != nullptr && slot < DupStitch::Slots; ++slot) {
                if (dup->StitchTypes()[slot] != NoStitch) {
                    m_stitches[static_cast<std::size_t>(m_stitchCount++)] = {
                        dup->StitchTypes()[slot], dup->PaletteIndexes()[slot]};
                }
            }
        }
    }
    // The flag hides knots that are in the table.
    if ((cell.CellFlags & CellHasKnot) == 0) {
        return;
    }
    for (int position = 1; position <= 9; ++position) {
        const LatticePos at = LatticeOf(column, row, position);
        const FrenchKnot* knot =
            pattern.FrenchKnots().Find(KeyedTable<FrenchKnot>::KeyOf(at.LY, at.LX));
        if (knot != nullptr) {
            m_knots[static_cast<std::size_t>(m_knotCount++)] = {position, knot->Orientation,
                                                                knot->GetPaletteIndex()};
        }
    }
}

std::vector<PlacedKnot> KnotsOf(const Pattern& pattern, const std::vector<SquarePos>& squares) {
    std::vector<PlacedKnot> shown;
    std::unordered_set<KeyedTable<FrenchKnot>::Key> seen;
    for (auto square = squares.rbegin(); square != squares.rend(); ++square) {
        const SquareContent content(pattern, square->X, square->Y);
        for (int i = content.KnotCount() - 1; i >= 0; --i) {
            const LatticePos at = LatticeOf(square->X, square->Y, content.Knot(i).Position);
            if (seen.insert(KeyedTable<FrenchKnot>::KeyOf(at.LY, at.LX)).second) {
                shown.push_back({*square, content.Knot(i)});
            }
        }
    }
    std::reverse(shown.begin(), shown.end());
    return shown;
}

} // namespace zol
