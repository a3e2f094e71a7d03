// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/Pattern.h"

#include <array>

namespace zol {

namespace {

/// Kinds that are deleted before a new stitch of a kind is placed, in this order, closed by 0. A
/// kind is in its own list: a stitch replaces its like whatever its floss.
using KindList = std::array<std::uint8_t, 12>;
constexpr std::array<KindList, 13> exclusions{{
    {},
    {1, 2, 3, 4, 5, 9, 10, 11, 12, 6, 7},
    {1, 2, 3, 4, 9, 10, 11, 6, 7},
    {1, 2, 3, 5, 9, 10, 12, 6, 7},
    {1, 2, 4, 5, 9, 11, 12, 6, 7},
    {1, 3, 4, 5, 10, 11, 12, 6, 7},
    {1, 2, 3, 4, 5, 9, 12, 6, 7},
    {1, 2, 3, 4, 5, 10, 11, 6, 7},
    {},
    {1, 2, 3, 4, 9, 6},
    {1, 2, 3, 5, 10, 7},
    {1, 2, 4, 5, 11, 7},
    {1, 3, 4, 5, 12, 6},
}};

const KindList& ExcludedBy(int kind) {
    return exclusions[kind >= 1 && kind <= 12 ? static_cast<std::size_t>(kind) : 0U];
}

/// The same lists as sets: bit k of element n tells that kind k goes before a kind n.
constexpr std::array<std::uint16_t, 13> ExclusionSets() {
    std::array<std::uint16_t, 13> sets{};
    for (std::size_t kind = 0; kind < exclusions.size(); ++kind) {
        for (const std::uint8_t excluded : exclusions[kind]) {
            if (excluded != 0) {
                sets[kind] = static_cast<std::uint16_t>(sets[kind] | (1U << excluded));
            }
        }
    }
    return sets;
}
constexpr std::array<std::uint16_t, 13> exclusionSets = ExclusionSets();

/// The stored kind that a request means; NoStitch if the position resolves it to nothing.
int ResolveKind(int kind, int position) {
    if (kind != StitchS3Q && kind != StitchSQ) {
        return kind;
    }
    const bool corner = position == 1 || position == 3 || position == 7 || position == 9;
    if (!corner) {
        return NoStitch;
    }
    const int order = PositionRow(position) + PositionColumn(position) / 2;
    return (kind == StitchS3Q ? StitchUL3Q : StitchULQ) + order;
}

} // namespace

bool Pattern::IsOnLattice(LatticePos point) const {
    return point.LX >= 1 && point.LX <= m_width * 2 + 1 && point.LY >= 1 &&
           point.LY <= m_height * 2 + 1;
}

bool Pattern::IsStoredPlainly(int stitchType) {
    return stitchType != StitchFKnot && stitchType != StitchS3Q && stitchType != StitchSQ;
}

bool Pattern::Replaces(std::uint8_t fresh, std::uint8_t old) {
    return fresh < exclusionSets.size() && old < exclusionSets.size() &&
           ((unsigned{exclusionSets[fresh]} >> old) & 1U) != 0;
}

void Pattern::Record(int x, int y) {
    if (m_recording && m_recorder != nullptr) {
        m_recorder->RecordSquare(*this, x, y);
    }
}

const DupStitch* Pattern::DupAt(int x, int y) const {
    return (Cell(x, y).CellFlags & CellHasDup) != 0
               ? m_dupStitches.Find(KeyedTable<DupStitch>::KeyOf(y, x))
               : nullptr;
}

void Pattern::SetStitch(int x, int y, int stitchType, int paletteIndex, int position) {
    constexpr int byteMax = 255;
    if (!IsInGrid(x, y) || stitchType < 0 || stitchType > byteMax || paletteIndex < 0 ||
        paletteIndex > byteMax) {
        return;
    }
    m_changed = true;
    Record(x, y);
    const bool smart = stitchType == StitchS3Q || stitchType == StitchSQ;
    const int kind = ResolveKind(stitchType, position);
    if (smart && kind == NoStitch) {
        return;
    }
    if (kind == StitchFKnot) {
        if (IsPosition(position)) {
            SetKnot(LatticeOf(x, y, position), paletteIndex);
        }
        return;
    }
    PlaceStitch(x, y, static_cast<std::uint8_t>(kind), static_cast<std::uint8_t>(paletteIndex));
}

void Pattern::PlaceStitch(int x, int y, std::uint8_t kind, std::uint8_t paletteIndex) {
    StitchCell& cell = CellRef(x, y);
    if ((cell.CellFlags & CellHasDup) != 0) {
        if (cell.StitchType != NoStitch) {
            for (const std::uint8_t excluded : ExcludedBy(kind)) {
                if (excluded == 0) {
                    break;
                }
                if (cell.StitchType != NoStitch || cell.CellFlags != 0) {
                    DeleteOneKind(x, y, excluded);
                }
            }
        }
    } else if (cell.StitchType != NoStitch && Replaces(kind, cell.StitchType)) {
        cell.StitchType = NoStitch;
        cell.PaletteIndex = NoFloss;
    }
    const DupStitch* dup = DupAt(x, y);
    if (cell.StitchType == NoStitch && (dup == nullptr || dup->GetStitchCount() == 0)) {
        cell.StitchType = kind;
        cell.PaletteIndex = paletteIndex;
    } else {
        AddToDup(x, y, kind, paletteIndex);
    }
}

void Pattern::AddToDup(int x, int y, std::uint8_t kind, std::uint8_t paletteIndex) {
    CellRef(x, y).CellFlags |= CellHasDup;
    const auto key = KeyedTable<DupStitch>::KeyOf(y, x);
    DupStitch* dup = m_dupStitches.Find(key);
    if (dup == nullptr) {
        DupStitch fresh;
        fresh.X = static_cast<std::int16_t>(x);
        fresh.Y = static_cast<std::int16_t>(y);
        m_dupStitches.Add(key, fresh);
        dup = m_dupStitches.Find(key);
    }
    dup->AddDupStitch(kind, paletteIndex);
}

void Pattern::SetKnot(LatticePos point, int paletteIndex) {
    const auto key = KeyedTable<FrenchKnot>::KeyOf(point.LY, point.LX);
    FrenchKnot* knot = m_frenchKnots.Find(key);
    if (knot == nullptr) {
        FrenchKnot fresh;
        fresh.X = static_cast<std::int16_t>(point.LX);
        fresh.Y = static_cast<std::int16_t>(point.LY);
        fresh.Orientation = m_context->FrenchKnotStyle;
        m_frenchKnots.Add(key, fresh);
        knot = m_frenchKnots.Find(key);
    }
    knot->AddFrenchKnot(static_cast<std::uint8_t>(paletteIndex));
    SetKnotFlags(point.LX, point.LY);
}

void Pattern::DeleteStitch(int x, int y, int stitchType) {
    if (!IsInGrid(x, y)) {
        return;
    }
    Record(x, y);
    m_changed = true;
    const StitchCell& cell = Cell(x, y);
    if (cell.StitchType == NoStitch && cell.CellFlags == 0) {
        return;
    }
    if (stitchType == Everything) {
        DeleteAll(x, y);
    } else {
        DeleteOneKind(x, y, stitchType);
    }
}

void Pattern::DeleteOneKind(int x, int y, int stitchType) {
    StitchCell& cell = CellRef(x, y);
    const auto key = KeyedTable<DupStitch>::KeyOf(y, x);
    DupStitch* dup = (cell.CellFlags & CellHasDup) != 0 ? m_dupStitches.Find(key) : nullptr;
    if (cell.StitchType == stitchType) {
        cell.StitchType = dup != nullptr ? dup->GetStitchType(1) : std::uint8_t{NoStitch};
        cell.PaletteIndex = dup != nullptr ? dup->GetPaletteIndex(1) : NoFloss;
        if (dup != nullptr) {
            dup->DelDupStitchType(cell.StitchType);
        }
    }
    if (dup == nullptr) {
        return;
    }
    dup->DelDupStitchType(static_cast<std::uint8_t>(stitchType));
    if (dup->GetStitchCount() == 0) {
        m_dupStitches.Remove(key);
        // The knot bit goes along: knots on the square stay in their table and are not listed for
        // it until its flag is worked out again.
        cell.CellFlags &= 252;
    }
}

void Pattern::DeletePrimary(int x, int y) {
    Record(x, y);
    m_changed = true;
    DeleteOneKind(x, y, Cell(x, y).StitchType);
}

namespace {

/// Which points of a square and of the eight round it have knots. Squares share the points on their
/// edges, so asking for each square by itself would look most of them up twice or four times.
struct KnotMap {
    static constexpr int Side = 7;
    std::array<bool, std::size_t{Side} * Side> Has{};

    [[nodiscard]] static constexpr std::size_t At(int i, int j) {
        return static_cast<std::size_t>(j) * Side + static_cast<std::size_t>(i);
    }
    /// Squares count from 0, from the upper left of the nine.
    [[nodiscard]] bool TouchSquare(int dx, int dy) const {
        for (int point = 0; point < 9; ++point) {
            if (Has[At(2 * dx + point % 3, 2 * dy + point / 3)]) {
                return true;
            }
        }
        return false;
    }
};

/// Round a square that has no knots left itself; `corner` is its upper left point.
KnotMap KnotsRound(const KeyedTable<FrenchKnot>& table, const LatticePos& corner) {
    KnotMap knots;
    for (int j = 0; j < KnotMap::Side; ++j) {
        for (int i = 0; i < KnotMap::Side; ++i) {
            const bool own = i >= 2 && i <= 4 && j >= 2 && j <= 4;
            knots.Has[KnotMap::At(i, j)] =
                !own && table.Find(KeyedTable<FrenchKnot>::KeyOf(corner.LY - 2 + j,
                                                                 corner.LX - 2 + i)) != nullptr;
        }
    }
    return knots;
}

} // namespace

void Pattern::DeleteAll(int x, int y) {
    StitchCell& cell = CellRef(x, y);
    cell.StitchType = NoStitch;
    cell.PaletteIndex = NoFloss;
    if ((cell.CellFlags & CellHasDup) != 0) {
        cell.CellFlags &= 254;
        m_dupStitches.Remove(KeyedTable<DupStitch>::KeyOf(y, x));
    }
    if (m_frenchKnots.IsEmpty()) {
        return;
    }
    const LatticePos corner = LatticeOf(x, y, 1);
    for (int position = 1; position <= 9; ++position) {
        const LatticePos point = LatticeOf(x, y, position);
        m_frenchKnots.Remove(KeyedTable<FrenchKnot>::KeyOf(point.LY, point.LX));
    }
    const KnotMap knots = KnotsRound(m_frenchKnots, corner);
    for (int dx = 0; dx < 3; ++dx) {
        for (int dy = 0; dy < 3; ++dy) {
            if (IsInGrid(x - 1 + dx, y - 1 + dy)) {
                std::uint8_t& flags = CellRef(x - 1 + dx, y - 1 + dy).CellFlags;
                flags = static_cast<std::uint8_t>(knots.TouchSquare(dx, dy) ? flags | CellHasKnot
                                                                            : flags & 253);
            }
        }
    }
}

int Pattern::CountKnotsAround(int x, int y) const {
    if (m_frenchKnots.IsEmpty()) {
        return 0;
    }
    int count = 0;
    for (int position = 1; position <= 9; ++position) {
        const LatticePos point = LatticeOf(x, y, position);
        count += m_frenchKnots.Find(KeyedTable<FrenchKnot>::KeyOf(point.LY, point.LX)) != nullptr
                     ? 1
                     : 0;
    }
    return count;
}

int Pattern::GetFrenchKnotCount(int x, int y) const {
    return (Cell(x, y).CellFlags & CellHasKnot) != 0 ? CountKnotsAround(x, y) : 0;
}

void Pattern::RefreshKnotFlag(int x, int y) {
    StitchCell& cell = CellRef(x, y);
    if (CountKnotsAround(x, y) == 0) {
        cell.CellFlags &= 253;
    } else {
        cell.CellFlags |= CellHasKnot;
    }
}

Pattern::KnotSquares Pattern::SquaresOfKnot(int lx, int ly) const {
    // An odd coordinate lies on a grid line and so touches the squares on both sides of it.
    KnotSquares touched;
    for (int x = lx / 2; x <= lx / 2 + (lx & 1); ++x) {
        for (int y = ly / 2; y <= ly / 2 + (ly & 1); ++y) {
            if (IsInGrid(x, y)) {
                touched.squares[touched.count++] = {x, y};
            }
        }
    }
    return touched;
}

void Pattern::SetKnotFlags(int lx, int ly) {
    const KnotSquares touched = SquaresOfKnot(lx, ly);
    for (std::size_t i = 0; i < touched.count; ++i) {
        CellRef(touched.squares[i].X, touched.squares[i].Y).CellFlags |= CellHasKnot;
    }
}

void Pattern::ClearKnotFlags(int lx, int ly) {
    const KnotSquares touched = SquaresOfKnot(lx, ly);
    for (std::size_t i = 0; i < touched.count; ++i) {
        const SquarePos& square = touched.squares[i];
        if (GetFrenchKnotCount(square.X, square.Y) <= 1) {
            CellRef(square.X, square.Y).CellFlags &= 253;
        }
    }
}

} // namespace zol
