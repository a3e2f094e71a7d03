// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "grid/painting/KnotShapes.h"
#include "model/Pattern.h"

namespace zol {

/// What lies in one square, in index order, read straight from the pattern's tables.
class SquareContent {
public:
    struct Stitch {
        std::uint8_t Kind = NoStitch;
        std::uint8_t PaletteIndex = NoFloss;
    };

    SquareContent(const Pattern& pattern, int column, int row);
    /// The stitches alone, of a cell and its record, if it has one.
    SquareContent(const StitchCell& cell, const DupStitch* dup);

    [[nodiscard]] bool IsEmpty() const { return m_stitchCount == 0 && m_knotCount == 0; }
    [[nodiscard]] int StitchCount() const { return m_stitchCount; }
    [[nodiscard]] const Stitch* begin() const { return m_stitches.data(); }
    [[nodiscard]] const Stitch* end() const {
        return m_stitches.data() + static_cast<std::ptrdiff_t>(m_stitchCount);
    }
    [[nodiscard]] int KnotCount() const { return m_knotCount; }
    [[nodiscard]] const SquareKnot& Knot(int index) const {
        return m_knots[static_cast<std::size_t>(index)];
    }

private:
    int m_stitchCount = 0;
    int m_knotCount = 0;
    std::array<Stitch, 1 + DupStitch::Slots> m_stitches{};
    std::array<SquareKnot, 9> m_knots{};
};

/// A knot to be painted, named from one of the squares that it touches.
struct PlacedKnot {
    SquarePos Square;
    SquareKnot Knot;
};

/// The knots that the squares of a rectangle show, in painting order (column by column), each
/// once: where several squares show it, from the last of them, which lies on top.
[[nodiscard]] std::vector<PlacedKnot> KnotsOf(const Pattern& pattern, const SquareRect& rect);
/// The same when the rectangle's squares that a knot may touch are known.
[[nodiscard]] std::vector<PlacedKnot> KnotsOf(const Pattern& pattern, const SquareRect& rect,
                                              const std::vector<SquarePos>& flagged);

} // namespace zol
