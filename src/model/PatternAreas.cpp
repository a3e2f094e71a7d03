// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "model/Pattern.h"
#include "model/PatternSize.h"

namespace zol {

namespace {

void Widen(SquareRect& rect, int x, int y) {
    rect.Left = std::min(rect.Left, x);
    rect.Right = std::max(rect.Right, x);
    rect.Top = std::min(rect.Top, y);
    rect.Bottom = std::max(rect.Bottom, y);
}

std::int16_t Moved(std::int16_t value, int delta) {
    return static_cast<std::int16_t>(value + delta);
}

/// The target's numbers of a source's flosses, merged when they are first asked for.
class FlossMerge {
public:
    FlossMerge(const Palette& source, Palette& target, int paletteOverride)
        : m_source(source),
          m_target(target),
          m_override(paletteOverride),
          m_map(static_cast<std::size_t>(source.GetEntriesCount()) + 1, notYet) {}

    /// 0 for a number that the source's palette lacks: such a stitch is not copied.
    int operator()(int floss) {
        if (m_override >= 0) {
            return m_override;
        }
        if (floss < 1 || static_cast<std::size_t>(floss) >= m_map.size()) {
            return 0;
        }
        int& mapped = m_map[static_cast<std::size_t>(floss)];
        if (mapped == notYet) {
            mapped = NumberOf(floss);
        }
        return mapped;
    }

private:
    static constexpr int notYet = -1;

    [[nodiscard]] int NumberOf(int floss) const {
        // A block's palette knows no blends, so a merge could not tell a blend from its first
        // thread, nor two blends of one first thread from each other.
        if (m_override == KeepFlosses && m_source.IsSameThread(floss, m_target, floss)) {
            return floss;
        }
        if (m_target.GetEntriesCount() >= Palette::MostFlosses &&
            m_source.FindMatch(floss, m_target) == 0) {
            return m_target.GetClosest(m_source.GetEntry(floss).RGB, Palette::NoExclusion);
        }
        const int merged = m_source.MergePaletteEntrytoTarget(m_target, floss);
        return merged < NoFloss ? merged : 0;
    }

    const Palette& m_source;
    Palette& m_target;
    int m_override;
    std::vector<int> m_map;
};

} // namespace

SquareRect Pattern::InGrid(const SquareRect& rect) const {
    return {std::max(rect.Left, 1), std::max(rect.Top, 1), std::min<int>(rect.Right, m_width),
            std::min<int>(rect.Bottom, m_height)};
}

bool Pattern::IsUsed(int x, int y) const {
    const StitchCell& cell = Cell(x, y);
    if (cell.StitchType != NoStitch) {
        return cell.PaletteIndex != 0;
    }
    return (cell.CellFlags & CellHasKnot) != 0 && GetStitchColorIndex(x, y, 0) != 0;
}

SquareRect Pattern::GetStitchRect() const {
    if (m_grid.empty()) {
        return {1, 1, 0, 0};
    }
    SquareRect rect{m_width, m_height, 0, 0};
    for (int x = 1; x <= m_width; ++x) {
        int top = 1;
        while (top <= m_height && !IsUsed(x, top)) {
            ++top;
        }
        if (top > m_height) {
            continue;
        }
        int bottom = m_height;
        while (!IsUsed(x, bottom)) {
            --bottom;
        }
        Widen(rect, x, top);
        Widen(rect, x, bottom);
    }
    return rect;
}

SquareRect Pattern::GetPatternRect() const {
    SquareRect rect = GetStitchRect();
    for (const BackStitchLine& line : m_lines) {
        Widen(rect, line.StartX, line.StartY);
        Widen(rect, line.EndX, line.EndY);
    }
    return rect;
}

SquareRect Pattern::GetPatternAreaRect() const {
    SquareRect rect = GetStitchRect();
    if (const int left = GetLeftMostLine(); left != -1) {
        rect.Left = std::min(rect.Left, left);
    }
    if (const int top = GetTopMostLine(); top != -1) {
        rect.Top = std::min(rect.Top, top);
    }
    rect.Right = std::max(rect.Right, GetRightMostLine());
    rect.Bottom = std::max(rect.Bottom, GetBottomMostLine());
    return rect;
}

int Pattern::GetDesignWidth() const {
    const SquareRect rect = GetPatternAreaRect();
    return rect.IsEmpty() ? 0 : rect.Right - rect.Left + 1;
}

int Pattern::GetDesignHeight() const {
    const SquareRect rect = GetPatternAreaRect();
    return rect.IsEmpty() ? 0 : rect.Bottom - rect.Top + 1;
}

bool Pattern::IsColumnUsed(int x, int top, int bottom) const {
    for (int y = std::max(top, 1); y <= std::min<int>(bottom, m_height); ++y) {
        if (GetStitchCount(x, y) > 0) {
            return true;
        }
    }
    return false;
}

void Pattern::TrimARec(int top, int& left, int bottom, int& right) const {
    int firstLine = right + 1;
    int lastLine = left - 1;
    for (int index = 1; index <= GetBackStitchCount(); ++index) {
        if (IsLineInRect(index, left, top, right, bottom)) {
            const BackStitchLine& line = m_lines[static_cast<std::size_t>(index - 1)];
            // An end on a column's far edge belongs to the column on the line's own side.
            const auto leftReach = [](int x, int position) { return x + (position % 3 == 0); };
            const auto rightReach = [](int x, int position) { return x - (position % 3 == 1); };
            firstLine = std::min({firstLine, leftReach(line.StartX, line.StartPos),
                                  leftReach(line.EndX, line.EndPos)});
            lastLine = std::max({lastLine, rightReach(line.StartX, line.StartPos),
                                 rightReach(line.EndX, line.EndPos)});
        }
    }
    const int oldLeft = left;
    while (left <= right && left < firstLine && !IsColumnUsed(left, top, bottom)) {
        ++left;
    }
    while (right >= oldLeft && right > lastLine && !IsColumnUsed(right, top, bottom)) {
        --right;
    }
}

std::vector<FrenchKnot> Pattern::TakeKnots(const SquareRect& area) {
    const int left = area.Left * 2 - 1;
    const int top = area.Top * 2 - 1;
    const int right = area.Right * 2 + 1;
    const int bottom = area.Bottom * 2 + 1;
    std::vector<FrenchKnot> taken;
    m_frenchKnots.RemoveUnless([&](const FrenchKnot& knot) {
        const bool inside = knot.X >= left && knot.X <= right && knot.Y >= top && knot.Y <= bottom;
        if (inside) {
            taken.push_back(knot);
        }
        return !inside;
    });
    for (const FrenchKnot& knot : taken) {
        const KnotSquares touched = SquaresOfKnot(knot.X, knot.Y);
        for (std::size_t i = 0; i < touched.count; ++i) {
            RefreshKnotFlag(touched.squares[i].X, touched.squares[i].Y);
        }
    }
    return taken;
}

void Pattern::MoveStitches(int x, int y, int toX, int toY) {
    StitchCell& cell = CellRef(x, y);
    if (cell.StitchType == NoStitch && (cell.CellFlags & CellHasDup) == 0) {
        return;
    }
    if (IsInGrid(toX, toY)) {
        for (int index = 0; index < ListedStitches(x, y); ++index) {
            const ListedStitch stitch = StitchAt(x, y, index);
            SetStitch(toX, toY, stitch.kind, stitch.paletteIndex, 0);
        }
    }
    if ((cell.CellFlags & CellHasDup) != 0) {
        m_dupStitches.Remove(KeyedTable<DupStitch>::KeyOf(y, x));
        cell.CellFlags &= 254;
    }
    cell.StitchType = NoStitch;
    cell.PaletteIndex = NoFloss;
}

void Pattern::MoveArea(int x1, int y1, int x2, int y2, int deltaX, int deltaY) {
    if ((deltaX == 0 && deltaY == 0) || x1 > x2 || y1 > y2) {
        return;
    }
    const SquareRect area = InGrid({x1, y1, x2, y2});
    for (int x = area.Left; x <= area.Right; ++x) {
        for (int y = area.Top; y <= area.Bottom; ++y) {
            Record(x, y);
        }
    }
    // Knots leave first and come back last: a square that is emptied would otherwise take along
    // the knots that its neighbour has just brought to their common edge.
    const std::vector<FrenchKnot> knots =
        area.IsEmpty() ? std::vector<FrenchKnot>() : TakeKnots(area);
    const int columns = area.Right - area.Left;
    const int rows = area.Bottom - area.Top;
    for (int i = 0; i <= columns; ++i) {
        const int x = deltaX >= 0 ? area.Right - i : area.Left + i;
        for (int k = 0; k <= rows; ++k) {
            const int y = deltaY >= 0 ? area.Bottom - k : area.Top + k;
            MoveStitches(x, y, x + deltaX, y + deltaY);
        }
    }
    for (const FrenchKnot& knot : knots) {
        const LatticePos point{knot.X + deltaX * 2, knot.Y + deltaY * 2};
        if (IsOnLattice(point)) {
            const KnotSquares touched = SquaresOfKnot(point.LX, point.LY);
            for (std::size_t i = 0; i < touched.count; ++i) {
                Record(touched.squares[i].X, touched.squares[i].Y);
            }
            SetKnot(point, knot.GetPaletteIndex());
        }
    }
    for (int index = 1; index <= GetBackStitchCount(); ++index) {
        if (IsLineInRect(index, x1, y1, x2, y2)) {
            BackStitchLine& line = *LineAt(index);
            line.StartX = Moved(line.StartX, deltaX);
            line.EndX = Moved(line.EndX, deltaX);
            line.StartY = Moved(line.StartY, deltaY);
            line.EndY = Moved(line.EndY, deltaY);
        }
    }
    m_changed = true;
}

void Pattern::Center(int mode) {
    const SquareRect box = GetPatternRect();
    const int deltaX = mode != 0 ? (m_width + 1 - (box.Right - box.Left)) / 2 - box.Left : 0;
    const int deltaY = mode != 1 ? (m_height + 1 - (box.Bottom - box.Top)) / 2 - box.Top : 0;
    MoveArea(box.Left, box.Top, box.Right, box.Bottom, deltaX, deltaY);
}

void Pattern::ShrinkToFit() {
    const SquareRect box = GetPatternRect();
    if (box.IsEmpty()) {
        return;
    }
    const std::optional<PatternSize::Size> wanted = PatternSize::Shrunk(*this, box);
    if (wanted) {
        CheckSize(wanted->Width, wanted->Height);
    }
    const int deltaX = box.Left > 2 ? 2 - box.Left : 0;
    const int deltaY = box.Top >= 3 ? 2 - box.Top : 0;
    if (deltaX != 0 || deltaY != 0) {
        MoveArea(box.Left, box.Top, box.Right, box.Bottom, deltaX, deltaY);
    }
    if (wanted) {
        Resize(wanted->Width, wanted->Height, m_clothCountX, m_clothCountY);
    }
}

void Pattern::CopySectionToTarget(Pattern& target, int targetX, int targetY, int sourceX,
                                  int sourceY, int sourceWidth, int sourceHeight,
                                  int paletteOverride) const {
    FlossMerge flossOf(m_palette, target.m_palette, paletteOverride);
    const int shiftX = targetX - sourceX;
    const int shiftY = targetY - sourceY;
    const SquareRect wanted{sourceX, sourceY, sourceX + sourceWidth - 1,
                            sourceY + sourceHeight - 1};
    const SquareRect source = InGrid(wanted);
    std::uint8_t& knotStyle = target.m_context->FrenchKnotStyle;
    for (int x = source.Left; x <= source.Right; ++x) {
        for (int y = source.Top; y <= source.Bottom; ++y) {
            for (int index = 0; index < GetStitchCount(x, y); ++index) {
                const ListedStitch stitch = StitchAt(x, y, index);
                const int floss = stitch.kind == NoStitch ? 0 : flossOf(stitch.paletteIndex);
                if (floss == 0) {
                    continue;
                }
                const std::uint8_t presentStyle = knotStyle;
                if (stitch.kind == StitchFKnot) {
                    knotStyle = static_cast<std::uint8_t>(stitch.orientation);
                }
                target.SetStitch(x + shiftX, y + shiftY, stitch.kind, floss, stitch.knotPosition);
                knotStyle = presentStyle;
            }
        }
    }
    const int lines = GetBackStitchCount(); // fixed: the target may be this pattern
    for (int index = 1; index <= lines; ++index) {
        BackStitchLine line = GetBackStitchLine(index);
        const int floss = IsLineInRect(index, wanted.Left, wanted.Top, wanted.Right, wanted.Bottom)
                              ? flossOf(line.PaletteIndex)
                              : 0;
        if (floss != 0) {
            line.StartX = Moved(line.StartX, shiftX);
            line.EndX = Moved(line.EndX, shiftX);
            line.StartY = Moved(line.StartY, shiftY);
            line.EndY = Moved(line.EndY, shiftY);
            line.PaletteIndex = static_cast<std::uint8_t>(floss);
            target.SetBackstitchLine(line);
        }
    }
}

} // namespace zol
