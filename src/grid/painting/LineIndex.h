// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/ZOLTypes.h"

namespace zol {

class Pattern;

/// Finds a pattern's backstitch lines by the squares that they cross, so that a small repaint
/// does not walk all of them. Brought up to date when the pattern or its lines have changed: a line
/// more or less costs a walk over the numbers, not all the geometry.
class LineIndex {
public:
    /// Indexes from 1, ascending, of the lines that may touch the rectangle of squares.
    [[nodiscard]] std::vector<int> Find(const Pattern& pattern, const SquareRect& rect);

private:
    static constexpr int BlockSize = 32; ///< squares a side of a block
    /// Below this many lines walking them is as fast as any index.
    static constexpr std::size_t WalkUpTo = 64;

    void Update(const Pattern& pattern);
    void Rebuild(const Pattern& pattern);
    /// Works the difference to the lines in the blocks into them; false if there is too much of it.
    bool Mend(const std::vector<BackStitchLine>& lines);
    /// Takes the lines that are gone behind the first `before` out of the blocks and leaves room
    /// in the numbers for fresh ones.
    void Renumber(int before, int gone, int fresh);
    void InsertLines(std::size_t from, std::size_t to);
    void Insert(const BackStitchLine& line, int index);
    [[nodiscard]] std::vector<int> FindInBlocks(const SquareRect& rect);
    [[nodiscard]] int BlockOf(int square, int blocks) const;
    [[nodiscard]] std::size_t PlaceOf(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_blocksAcross) +
               static_cast<std::size_t>(column);
    }

    std::uint64_t m_revision = 0;        ///< of the lines; 0 before the first
    std::vector<BackStitchLine> m_lines; ///< as they stand in the blocks
    int m_width = 0;
    int m_height = 0;
    int m_blocksAcross = 0;
    int m_blocksDown = 0;
    std::vector<std::vector<int>> m_blocks;
    std::vector<std::uint64_t> m_found; ///< a bit for each line; none set between searches
};

} // namespace zol
