// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <array>

#include "model/Pattern.h"

namespace zol {

namespace {

/// Squares in the order in which a fill takes them, ring by ring.
class PaintQueue {
public:
    void Add(int x, int y) {
        m_next.push_back((static_cast<std::uint32_t>(x) << 16U) | static_cast<std::uint32_t>(y));
    }
    /// Calls visit(x, y) in order until no square is left. visit may add.
    template<typename Visit>
    void Run(Visit visit) {
        std::vector<std::uint32_t> present;
        while (!m_next.empty()) {
            present.swap(m_next);
            m_next.clear();
            for (const std::uint32_t packed : present) {
                visit(static_cast<int>(packed >> 16U), static_cast<int>(packed & 0xFFFFU));
            }
        }
    }

private:
    std::vector<std::uint32_t> m_next;
};

} // namespace

void Pattern::ClearPaintRect() {
    m_paintRect = {m_width, m_height, 0, 0};
}

void Pattern::Paint(int x, int y, int stitchType, int newIndex, int oldIndex) {
    if (newIndex == oldIndex) {
        return;
    }
    // Old kinds that the new stitch simply replaces. Such a square is written directly where
    // nobody asks to hear of it: SetStitch would come to the same.
    std::array<bool, 256> replaced{};
    const bool direct = !(m_recording && m_recorder != nullptr) && newIndex >= 0 &&
                        newIndex < NoFloss && stitchType >= 0 && stitchType < NoStitch &&
                        IsStoredPlainly(stitchType);
    for (unsigned old = 0; direct && old < replaced.size(); ++old) {
        replaced[old] = old == NoStitch || Replaces(static_cast<std::uint8_t>(stitchType),
                                                    static_cast<std::uint8_t>(old));
    }
    PaintQueue queue;
    SquareRect rect = m_paintRect;
    // Squares whose old floss has survived the new stitch: they are not to be taken again.
    std::vector<bool> survived;
    // A square is painted as it enters. It would be as it leaves, too: both orders are the same,
    // and a square that has lost the old floss cannot enter twice.
    const auto take = [&](int nextX, int nextY) {
        if (!IsInGrid(nextX, nextY)) {
            return;
        }
        const std::size_t at = CellAt(nextX, nextY);
        StitchCell& cell = m_grid[at];
        if (cell.PaletteIndex != oldIndex || (!survived.empty() && survived[at])) {
            return;
        }
        if (replaced[cell.StitchType] && (cell.CellFlags & CellHasDup) == 0) {
            cell.StitchType = static_cast<std::uint8_t>(stitchType);
            cell.PaletteIndex = static_cast<std::uint8_t>(newIndex);
            m_changed = true;
        } else if (newIndex < NoFloss) {
            SetStitch(nextX, nextY, stitchType, newIndex, 0);
        } else {
            DeleteStitch(nextX, nextY, Everything);
        }
        if (cell.PaletteIndex == oldIndex) {
            survived.resize(m_grid.size());
            survived[at] = true;
        }
        rect = {std::min(rect.Left, nextX), std::min(rect.Top, nextY), std::max(rect.Right, nextX),
                std::max(rect.Bottom, nextY)};
        queue.Add(nextX, nextY);
    };
    take(x, y);
    queue.Run([&take](int fromX, int fromY) {
        take(fromX, fromY + 1);
        take(fromX, fromY - 1);
        take(fromX + 1, fromY);
        take(fromX - 1, fromY);
    });
    m_paintRect = rect;
}

} // namespace zol
