// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <cmath>
#include <span>

#include "model/Pattern.h"
#include "model/Rounding.h"

namespace zol {

namespace {

/// One addition a stitch: the number of stitches in the upper bits, their length in half diagonals
/// in the lower. 16 million squares of 5 stitches fit both.
using Tally = std::uint64_t;
constexpr unsigned countShift = 36;
constexpr Tally unitMask = (Tally{1} << countShift) - 1;

constexpr std::array<Tally, 256> StitchTallies() {
    std::array<Tally, 256> tallies{};
    for (unsigned kind = 0; kind < NoStitch; ++kind) {
        const auto units = static_cast<Tally>(LengthWeight(static_cast<int>(kind)) * 2);
        // A knot is counted once from its table, not by each square that it touches.
        tallies[kind] = kind == StitchFKnot ? 0 : (Tally{1} << countShift) | units;
    }
    return tallies;
}
constexpr std::array<Tally, 256> stitchTallies = StitchTallies();
constexpr Tally knotTally = (Tally{1} << countShift) | 6;

using FlossTallies = std::array<Tally, 256>;

void TallyCells(std::span<const StitchCell> cells, FlossTallies& even, FlossTallies& odd) {
    // Two tables, so that a run of one floss does not wait for its own last addition.
    std::size_t i = 0;
    for (; i + 1 < cells.size(); i += 2) {
        even[cells[i].PaletteIndex] += stitchTallies[cells[i].StitchType];
        odd[cells[i + 1].PaletteIndex] += stitchTallies[cells[i + 1].StitchType];
    }
    if (i < cells.size()) {
        even[cells[i].PaletteIndex] += stitchTallies[cells[i].StitchType];
    }
}

double HalfSteps(int square, int step) {
    return square + step * 0.5;
}

double LineInches(const BackStitchLine& line, int clothCountX, int clothCountY) {
    if (clothCountX == 0 || clothCountY == 0) {
        return 0;
    }
    const double dx = HalfSteps(line.EndX, PositionColumn(line.EndPos)) -
                      HalfSteps(line.StartX, PositionColumn(line.StartPos));
    const double dy = HalfSteps(line.EndY, PositionRow(line.EndPos)) -
                      HalfSteps(line.StartY, PositionRow(line.StartPos));
    return std::hypot(dx / clothCountX, dy / clothCountY);
}

bool Contains(const SquareRect& range, int x, int y) {
    return x >= range.Left && x <= range.Right && y >= range.Top && y <= range.Bottom;
}

} // namespace

bool Pattern::IsKnotInRange(const FrenchKnot& knot, const SquareRect& range) {
    // The rounded half is never below the whole half, so it alone decides both bounds.
    return Contains(range, RoundToInt(knot.X / 2.0), RoundToInt(knot.Y / 2.0));
}

double Pattern::GetDiagonal() const {
    return m_clothCountX == 0 || m_clothCountY == 0
               ? 0
               : std::hypot(1.0 / m_clothCountX, 1.0 / m_clothCountY);
}

void Pattern::CountStitches(int x1, int y1, int x2, int y2) {
    const bool whole = x1 == WholePattern;
    const SquareRect range =
        whole ? SquareRect{1, 1, m_width, m_height} : SquareRect{x1, y1, x2, y2};
    const SquareRect inGrid{std::max(range.Left, 1), std::max(range.Top, 1),
                            std::min<int>(range.Right, m_width),
                            std::min<int>(range.Bottom, m_height)};
    FlossTallies tallies{};
    FlossTallies second{};
    for (int x = inGrid.Left; x <= inGrid.Right && inGrid.Top <= inGrid.Bottom; ++x) {
        const std::size_t first = CellAt(x, inGrid.Top);
        const std::size_t last = CellAt(x, inGrid.Bottom);
        TallyCells(std::span(m_grid).subspan(first, last - first + 1), tallies, second);
    }
    m_dupStitches.ForEach([&](const DupStitch& dup) {
        // Readers do not see a DupStitch beside an empty primary place.
        if (Contains(inGrid, dup.X, dup.Y) && Cell(dup.X, dup.Y).StitchType != NoStitch) {
            for (std::size_t slot = 0; slot < DupStitch::Slots; ++slot) {
                tallies[dup.PaletteIndexes()[slot]] += stitchTallies[dup.StitchTypes()[slot]];
            }
        }
    });
    m_frenchKnots.ForEach([&](const FrenchKnot& knot) {
        if (whole || IsKnotInRange(knot, range)) {
            tallies[knot.GetPaletteIndex()] += knotTally;
        }
    });

    const auto entries = static_cast<std::size_t>(m_palette.GetEntriesCount());
    m_counts = PatternCounts{std::vector<std::int32_t>(entries), std::vector<std::int32_t>(entries),
                             std::vector<double>(entries), std::vector<double>(entries)};
    const double diagonal = GetDiagonal();
    for (std::size_t floss = 1; floss <= std::min<std::size_t>(entries, NoFloss); ++floss) {
        const Tally tally = tallies[floss] + second[floss];
        m_counts.StitchCounts[floss - 1] = static_cast<std::int32_t>(tally >> countShift);
        m_counts.StitchLengths[floss - 1] = static_cast<double>(tally & unitMask) / 2 * diagonal;
    }
    for (const BackStitchLine& line : m_lines) {
        const std::size_t floss = line.PaletteIndex;
        if (floss < 1 || floss > entries ||
            !(whole || (Contains(range, line.StartX, line.StartY) &&
                        Contains(range, line.EndX, line.EndY)))) {
            continue;
        }
        ++m_counts.LineCounts[floss - 1];
        m_counts.LineLengths[floss - 1] += LineInches(line, m_clothCountX, m_clothCountY);
    }
}

double Pattern::GetColorCount(int which, int paletteIndex) const {
    if (paletteIndex < 1 || static_cast<std::size_t>(paletteIndex) > m_counts.StitchCounts.size()) {
        return 0;
    }
    const auto at = static_cast<std::size_t>(paletteIndex - 1);
    switch (which) {
    case 0:
        return m_counts.StitchCounts[at];
    case 1:
        return m_counts.LineCounts[at];
    case 2:
        return m_counts.StitchCounts[at] + m_counts.LineCounts[at];
    case 3:
        return m_counts.LineLengths[at];
    case 4:
        return m_counts.StitchLengths[at];
    default:
        return 0;
    }
}

int Pattern::GetPaletteStitchCount(int paletteIndex, int x1, int y1, int x2, int y2) {
    CountStitches(x1, y1, x2, y2);
    return static_cast<int>(GetColorCount(0, paletteIndex));
}

} // namespace zol
