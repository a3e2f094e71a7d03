// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/SquareContent.h"

#include <algorithm>
#include <optional>
#include <tuple>

namespace zol {

namespace {

bool ShowsKnots(const Pattern& pattern, int column, int row) {
    return (pattern.Cell(column, row).CellFlags & CellHasKnot) != 0;
}

/// The last square of the rectangle, column by column, that shows a knot.
std::optional<SquarePos> LastSquareOf(const Pattern& pattern, const SquareRect& rect,
                                      const FrenchKnot& knot) {
    // A point on a line between squares touches those on both sides.
    for (int column = (knot.X + 1) / 2; column >= knot.X / 2; --column) {
        for (int row = (knot.Y + 1) / 2; row >= knot.Y / 2; --row) {
            if (column >= rect.Left && column <= rect.Right && row >= rect.Top &&
                row <= rect.Bottom && ShowsKnots(pattern, column, row)) {
                return SquarePos{column, row};
            }
        }
    }
    return {};
}

PlacedKnot Placed(const SquarePos& square, const FrenchKnot& knot) {
    const LatticePos first = LatticeOf(square.X, square.Y, 1);
    const int position = (knot.Y - first.LY) * 3 + (knot.X - first.LX) + 1;
    return {square, {position, knot.Orientation, knot.GetPaletteIndex()}};
}

void AddShown(std::vector<PlacedKnot>& shown, const Pattern& pattern, const SquareRect& rect,
              const FrenchKnot& knot) {
    if (const auto square = LastSquareOf(pattern, rect, knot); square) {
        shown.push_back(Placed(*square, knot));
    }
}

/// In painting order, each once.
void PutInOrder(std::vector<PlacedKnot>& knots) {
    const auto place = [](const PlacedKnot& knot) {
        return std::tuple(knot.Square.X, knot.Square.Y, knot.Knot.Position);
    };
    std::sort(knots.begin(), knots.end(),
              [&](const PlacedKnot& a, const PlacedKnot& b) { return place(a) < place(b); });
    knots.erase(
        std::unique(knots.begin(), knots.end(),
                    [&](const PlacedKnot& a, const PlacedKnot& b) { return place(a) == place(b); }),
        knots.end());
}

} // namespace

SquareContent::SquareContent(const StitchCell& cell, const DupStitch* dup) {
    if (cell.StitchType == NoStitch) {
        return;
    }
    m_stitches[0] = {cell.StitchType, cell.PaletteIndex};
    m_stitchCount = 1;
    for (std::size_t slot = 0; dup != nullptr && slot < DupStitch::Slots; ++slot) {
        if (dup->StitchTypes()[slot] != NoStitch) {
            m_stitches[static_cast<std::size_t>(m_stitchCount++)] = {dup->StitchTypes()[slot],
                                                                     dup->PaletteIndexes()[slot]};
        }
    }
}

SquareContent::SquareContent(const Pattern& pattern, int column, int row)
    : SquareContent(pattern.Cell(column, row),
                    (pattern.Cell(column, row).CellFlags & CellHasDup) != 0
                        ? pattern.DupStitches().Find(KeyedTable<DupStitch>::KeyOf(row, column))
                        : nullptr) {
    const StitchCell& cell = pattern.Cell(column, row);
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

std::vector<PlacedKnot> KnotsOf(const Pattern& pattern, const SquareRect& rect) {
    std::vector<PlacedKnot> shown;
    pattern.FrenchKnots().ForEach(
        [&](const FrenchKnot& knot) { AddShown(shown, pattern, rect, knot); });
    PutInOrder(shown);
    return shown;
}

std::vector<PlacedKnot> KnotsOf(const Pattern& pattern, const SquareRect& rect,
                                const std::vector<SquarePos>& flagged) {
    const KeyedTable<FrenchKnot>& knots = pattern.FrenchKnots();
    // Whichever is less work: walking the table, or asking for the points of the squares.
    if (knots.Count() <= flagged.size() * 9) {
        return KnotsOf(pattern, rect);
    }
    std::vector<PlacedKnot> shown;
    for (const SquarePos& square : flagged) {
        for (int position = 1; position <= 9; ++position) {
            const LatticePos at = LatticeOf(square.X, square.Y, position);
            if (const auto* knot = knots.Find(KeyedTable<FrenchKnot>::KeyOf(at.LY, at.LX));
                knot != nullptr) {
                AddShown(shown, pattern, rect, *knot);
            }
        }
    }
    PutInOrder(shown);
    return shown;
}

} // namespace zol
