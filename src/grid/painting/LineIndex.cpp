// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/LineIndex.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <type_traits>

#include "model/Pattern.h"

namespace zol {

namespace {

bool SameLine(const BackStitchLine& a, const BackStitchLine& b) {
    static_assert(std::has_unique_object_representations_v<BackStitchLine>);
    return std::memcmp(&a, &b, sizeof a) == 0;
}

/// Changes of up to one line in so many are worked into the blocks; more of them make them anew.
constexpr std::size_t LinesPerChange = 4;

} // namespace

std::vector<int> LineIndex::Find(const Pattern& pattern, const SquareRect& rect) {
    const std::size_t count = pattern.Lines().size();
    const bool whole = rect.Left <= 1 && rect.Top <= 1 && rect.Right >= pattern.GetPatternWidth() &&
                       rect.Bottom >= pattern.GetPatternHeight();
    if (!whole && count > WalkUpTo) {
        Update(pattern);
        return FindInBlocks(rect);
    }
    std::vector<int> all(count);
    for (std::size_t i = 0; i < count; ++i) {
        all[i] = static_cast<int>(i) + 1;
    }
    return all;
}

void LineIndex::Update(const Pattern& pattern) {
    if (m_revision == pattern.LinesRevision()) {
        return;
    }
    if (m_width != pattern.GetPatternWidth() || m_height != pattern.GetPatternHeight() ||
        !Mend(pattern.Lines())) {
        Rebuild(pattern);
    }
    m_revision = pattern.LinesRevision();
}

void LineIndex::Rebuild(const Pattern& pattern) {
    m_width = pattern.GetPatternWidth();
    m_height = pattern.GetPatternHeight();
    m_lines = pattern.Lines();
    m_blocksAcross = m_width / BlockSize + 1;
    m_blocksDown = m_height / BlockSize + 1;
    m_blocks.resize(static_cast<std::size_t>(m_blocksAcross) *
                    static_cast<std::size_t>(m_blocksDown));
    for (std::vector<int>& block : m_blocks) {
        block.clear();
    }
    m_found.resize(m_lines.size() / 64 + 1);
    InsertLines(0, m_lines.size());
}

bool LineIndex::Mend(const std::vector<BackStitchLine>& lines) {
    const std::size_t fewer = std::min(m_lines.size(), lines.size());
    std::size_t before = 0;
    while (before < fewer && SameLine(m_lines[before], lines[before])) {
        ++before;
    }
    std::size_t behind = 0;
    while (behind < fewer - before &&
           SameLine(m_lines[m_lines.size() - 1 - behind], lines[lines.size() - 1 - behind])) {
        ++behind;
    }
    const std::size_t gone = m_lines.size() - behind - before;
    const std::size_t fresh = lines.size() - behind - before;
    if ((gone + fresh) * LinesPerChange > lines.size()) {
        return false;
    }
    if (before < m_lines.size()) {
        Renumber(static_cast<int>(before), static_cast<int>(gone), static_cast<int>(fresh));
    }
    m_lines = lines;
    m_found.resize(m_lines.size() / 64 + 1);
    InsertLines(before, before + fresh);
    return true;
}

void LineIndex::Renumber(int before, int gone, int fresh) {
    for (std::vector<int>& block : m_blocks) {
        std::erase_if(block, [=](int index) { return index > before && index <= before + gone; });
        for (int& index : block) {
            index += index > before ? fresh - gone : 0;
        }
    }
}

void LineIndex::InsertLines(std::size_t from, std::size_t to) {
    for (std::size_t i = from; i < to; ++i) {
        Insert(m_lines[i], static_cast<int>(i) + 1);
    }
}

int LineIndex::BlockOf(int square, int blocks) const {
    return std::clamp(square / BlockSize, 0, blocks - 1);
}

void LineIndex::Insert(const BackStitchLine& line, int index) {
    const double x1 = std::min(line.StartX, line.EndX);
    const double x2 = std::max(line.StartX, line.EndX);
    const bool ordered = line.StartX <= line.EndX;
    const double y1 = ordered ? line.StartY : line.EndY;
    const double y2 = ordered ? line.EndY : line.StartY;
    const double slope = x2 > x1 ? (y2 - y1) / (x2 - x1) : 0;
    const int first = BlockOf(static_cast<int>(x1), m_blocksAcross);
    const int last = BlockOf(static_cast<int>(x2), m_blocksAcross);
    for (int block = first; block <= last; ++block) {
        // The line's stretch within this column of blocks, a square more on each side, since its
        // ends are known to the square only.
        const double from = std::clamp<double>(block * BlockSize - 1, x1, x2);
        const double to = std::clamp<double>((block + 1) * BlockSize + 1, x1, x2);
        const bool upright = x1 == x2;
        const double ya = upright ? y1 : y1 + (from - x1) * slope;
        const double yb = upright ? y2 : y1 + (to - x1) * slope;
        const int top = BlockOf(static_cast<int>(std::floor(std::min(ya, yb))) - 2, m_blocksDown);
        const int bottom = BlockOf(static_cast<int>(std::ceil(std::max(ya, yb))) + 2, m_blocksDown);
        for (int row = top; row <= bottom; ++row) {
            m_blocks[PlaceOf(block, row)].push_back(index);
        }
    }
}

std::vector<int> LineIndex::FindInBlocks(const SquareRect& rect) {
    const int left = BlockOf(rect.Left - 2, m_blocksAcross);
    const int right = BlockOf(rect.Right + 2, m_blocksAcross);
    const int top = BlockOf(rect.Top - 2, m_blocksDown);
    const int bottom = BlockOf(rect.Bottom + 2, m_blocksDown);
    for (int row = top; row <= bottom; ++row) {
        for (int column = left; column <= right; ++column) {
            for (const int index : m_blocks[PlaceOf(column, row)]) {
                const auto bit = static_cast<unsigned>(index);
                m_found[bit / 64] |= std::uint64_t{1} << (bit % 64);
            }
        }
    }
    // Later lines lie over earlier ones: bit by bit they come in order, each once.
    std::vector<int> found;
    for (std::size_t i = 0; i < m_found.size(); ++i) {
        for (std::uint64_t bits = m_found[i]; bits != 0; bits &= bits - 1) {
            found.push_back(static_cast<int>(i) * 64 + std::countr_zero(bits));
        }
        m_found[i] = 0;
    }
    return found;
}

} // namespace zol
