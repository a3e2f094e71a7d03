// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <numeric>

#include "model/Pattern.h"

namespace zol {

/// What becomes of each floss number when entries leave the palette for good.
struct Pattern::FlossRemoval {
    std::array<std::uint8_t, 256> newIndex{}; ///< of a floss that stays
    std::array<bool, 256> gone{};
    std::vector<int> entries; ///< the entries that leave, from the last to the first

    explicit FlossRemoval(std::vector<int> leaving) : entries(std::move(leaving)) {
        std::iota(newIndex.begin(), newIndex.end(), std::uint8_t{0});
        for (const int entry : entries) {
            if (entry >= NoFloss) {
                continue;
            }
            gone[static_cast<std::size_t>(entry)] = true;
            for (auto above = static_cast<std::size_t>(entry) + 1; above < NoFloss; ++above) {
                --newIndex[above];
            }
        }
    }
};

void Pattern::RemoveFlosses(const FlossRemoval& removal) {
    for (int x = 1; x <= m_width; ++x) {
        for (int y = 1; y <= m_height; ++y) {
            StitchCell& cell = CellRef(x, y);
            // What comes up from the DupStitch has its old number still and is looked at again.
            while (cell.StitchType != NoStitch && removal.gone[cell.PaletteIndex]) {
                DeletePrimary(x, y);
            }
            if (cell.StitchType != NoStitch) {
                cell.PaletteIndex = removal.newIndex[cell.PaletteIndex];
            }
        }
    }
    m_dupStitches.RemoveUnless([&](DupStitch& dup) {
        for (const int entry : removal.entries) {
            if (entry < NoFloss) {
                dup.RemoveColor(static_cast<std::uint8_t>(entry), true, {});
            }
        }
        if (dup.GetStitchCount() == 0) {
            CellRef(dup.X, dup.Y).CellFlags &= 254;
        }
        return dup.GetStitchCount() > 0;
    });
    m_frenchKnots.RemoveUnless([&](FrenchKnot& knot) {
        const std::uint8_t floss = knot.GetPaletteIndex();
        if (removal.gone[floss]) {
            ClearKnotFlags(knot.X, knot.Y);
            return false;
        }
        knot.AddFrenchKnot(removal.newIndex[floss]);
        return true;
    });
    std::erase_if(LinesToChange(),
                  [&](const BackStitchLine& line) { return removal.gone[line.PaletteIndex]; });
    for (BackStitchLine& line : LinesToChange()) {
        line.PaletteIndex = removal.newIndex[line.PaletteIndex];
    }
    for (const int entry : removal.entries) {
        m_palette.RemovePaletteEntry(entry);
    }
}

void Pattern::RemoveColorInRange(std::uint8_t paletteIndex, const SquareRect& range) {
    const SquareRect inGrid = InGrid(range);
    for (int x = inGrid.Left; x <= inGrid.Right; ++x) {
        for (int y = inGrid.Top; y <= inGrid.Bottom; ++y) {
            const StitchCell& cell = Cell(x, y);
            while (cell.StitchType != NoStitch && cell.PaletteIndex == paletteIndex) {
                DeletePrimary(x, y);
            }
        }
    }
    m_dupStitches.RemoveUnless([&](DupStitch& dup) {
        dup.RemoveColor(paletteIndex, false, range);
        if (dup.GetStitchCount() == 0) {
            CellRef(dup.X, dup.Y).CellFlags &= 254;
        }
        return dup.GetStitchCount() > 0;
    });
    m_frenchKnots.RemoveUnless([&](const FrenchKnot& knot) {
        if (knot.GetPaletteIndex() != paletteIndex || !IsKnotInRange(knot, range)) {
            return true;
        }
        ClearKnotFlags(knot.X, knot.Y);
        return false;
    });
    for (int index = 1; index <= GetBackStitchCount();) {
        if (GetBackStitchLine(index).PaletteIndex == paletteIndex &&
            IsLineInRect(index, range.Left, range.Top, range.Right, range.Bottom)) {
            RemoveBackStitchLine(index);
        } else {
            ++index;
        }
    }
}

void Pattern::RemoveColor(int paletteIndex, int x1, int y1, int x2, int y2) {
    if (paletteIndex < 1 || paletteIndex > m_palette.GetEntriesCount()) {
        return;
    }
    if (x1 == WholePattern) {
        RemoveFlosses(FlossRemoval({paletteIndex}));
    } else if (paletteIndex < NoFloss) {
        RemoveColorInRange(static_cast<std::uint8_t>(paletteIndex), {x1, y1, x2, y2});
    }
}

void Pattern::ChangeColor(int oldIndex, int newIndex, int x1, int y1, int x2, int y2) {
    if (oldIndex < 0 || oldIndex > NoFloss || newIndex < 0 || newIndex > NoFloss) {
        return;
    }
    const auto from = static_cast<std::uint8_t>(oldIndex);
    const auto to = static_cast<std::uint8_t>(newIndex);
    const bool whole = x1 == WholePattern;
    const SquareRect range =
        whole ? SquareRect{1, 1, m_width, m_height} : SquareRect{x1, y1, x2, y2};
    const SquareRect inGrid = InGrid(range);
    for (int x = inGrid.Left; x <= inGrid.Right; ++x) {
        for (int y = inGrid.Top; y <= inGrid.Bottom; ++y) {
            StitchCell& cell = CellRef(x, y);
            if (cell.StitchType != NoStitch && cell.PaletteIndex == from) {
                cell.PaletteIndex = to;
            }
        }
    }
    // The further stitches of every square change, in the range or not.
    m_dupStitches.ForEach([from, to](DupStitch& dup) { dup.ChangeColor(from, to); });
    for (int index = 1; index <= GetBackStitchCount(); ++index) {
        BackStitchLine& line = *LineAt(index);
        if (line.PaletteIndex == from &&
            (whole || IsLineInRect(index, range.Left, range.Top, range.Right, range.Bottom))) {
            line.PaletteIndex = to;
        }
    }
    m_frenchKnots.ForEach([&](FrenchKnot& knot) {
        if (knot.GetPaletteIndex() == from && (whole || IsKnotInRange(knot, range))) {
            knot.SetPaletteIndex(to);
        }
    });
}

void Pattern::MapPalette(const std::vector<std::uint8_t>& map) {
    std::array<std::uint8_t, 256> mapped{};
    std::iota(mapped.begin(), mapped.end(), std::uint8_t{0});
    std::copy_n(map.begin(), std::min(map.size(), mapped.size()), mapped.begin());
    for (StitchCell& cell : m_grid) {
        if (cell.StitchType != NoStitch) {
            cell.PaletteIndex = mapped[cell.PaletteIndex];
        }
    }
    m_dupStitches.ForEach([&map](DupStitch& dup) { dup.MapPalette(map); });
    for (BackStitchLine& line : LinesToChange()) {
        line.PaletteIndex = mapped[line.PaletteIndex];
    }
    m_frenchKnots.ForEach(
        [&mapped](FrenchKnot& knot) { knot.SetPaletteIndex(mapped[knot.GetPaletteIndex()]); });
}

void Pattern::ClearUnusedPaletteColors() {
    CountStitches();
    const int entries = m_palette.GetEntriesCount();
    std::vector<int> unused;
    for (int entry = entries; entry >= 1; --entry) {
        const bool onlyOneLeft = entries - static_cast<int>(unused.size()) == 1;
        if (onlyOneLeft) {
            break;
        }
        if (GetColorCount(0, entry) == 0 && GetColorCount(1, entry) == 0) {
            unused.push_back(entry);
        }
    }
    if (!unused.empty()) {
        RemoveFlosses(FlossRemoval(std::move(unused)));
    }
}

} // namespace zol
