// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <algorithm>

#include "model/Pattern.h"

namespace zol {

namespace {

/// Squares in the order in which a fill takes them. A square enters at most once, so the fill ends
/// also where the old floss stays beside the new stitch.
class PaintQueue {
public:
    explicit PaintQueue(std::size_t squares) : m_seen(squares) {}

    void Add(SquarePos square, std::size_t cell) {
        if (!m_seen[cell]) {
            m_seen[cell] = true;
            m_next.push_back(Pack(square));
        }
    }
    /// Calls take(square) in order until no square is left. take may add.
    template<typename Take>
    void Run(Take take) {
        std::vector<std::uint32_t> present;
        while (!m_next.empty()) {
            present.swap(m_next);
            m_next.clear();
            for (const std::uint32_t packed : present) {
                take(
                    SquarePos{static_cast<int>(packed >> 16U), static_cast<int>(packed & 0xFFFFU)});
            }
        }
    }

private:
    static std::uint32_t Pack(SquarePos square) {
        return (static_cast<std::uint32_t>(square.X) << 16U) | static_cast<std::uint32_t>(square.Y);
    }

    std::vector<bool> m_seen;
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
    PaintQueue queue(m_grid.size());
    const auto enqueue = [&](int nextX, int nextY) {
        if (IsInGrid(nextX, nextY)) {
            const std::size_t at = CellAt(nextX, nextY);
            if (m_grid[at].PaletteIndex == oldIndex) {
                queue.Add({nextX, nextY}, at);
            }
        }
    };
    enqueue(x, y);
    queue.Run([&](SquarePos square) {
        if (newIndex < NoFloss) {
            SetStitch(square.X, square.Y, stitchType, newIndex, 0);
        } else {
            DeleteStitch(square.X, square.Y, Everything);
        }
        m_paintRect.Left = std::min(m_paintRect.Left, square.X);
        m_paintRect.Top = std::min(m_paintRect.Top, square.Y);
        m_paintRect.Right = std::max(m_paintRect.Right, square.X);
        m_paintRect.Bottom = std::max(m_paintRect.Bottom, square.Y);
        enqueue(square.X, square.Y + 1);
        enqueue(square.X, square.Y - 1);
        enqueue(square.X + 1, square.Y);
        enqueue(square.X - 1, square.Y);
    });
}

} // namespace zol
