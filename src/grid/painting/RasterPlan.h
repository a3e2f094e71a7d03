// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QRect>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <optional>
#include <vector>

#include "grid/painting/GridLines.h"
#include "grid/painting/GridView.h"
#include "grid/painting/SquareContent.h"

namespace zol {

class TileCache;

/// What the pieces of one picture share, worked out once: where squares lie, and which of them hold
/// more than one stitch or a knot. All but Begin() may be called from several threads at once.
class RasterPlan {
public:
    /// `pixels` are all of the device that pieces will show; `rect` lies in the pattern. Pattern
    /// and tiles outlive the plan.
    RasterPlan(const GridView& view, const SquareRect& rect, const QRect& pixels, TileCache& tiles);

    struct Painted {
        QRect Area;         ///< of the image
        SquareRect Squares; ///< those of the rectangle that the image shows, and a few around
    };
    /// What is painted of a piece whose upper left pixel is the device's pixel `position`. An empty
    /// area if it shows nothing of the rectangle.
    [[nodiscard]] Painted Find(const QSize& size, QPoint position) const;
    /// An area's pixel rows from which bands of squares go, each about so many rows high and at
    /// least one row of squares, and the end of the last band. Counted from the area's first row.
    [[nodiscard]] std::vector<int> BandsOf(const Painted& piece, QPoint position, int rows) const;

    /// To be called before each piece: another paint may have come since the last.
    void Begin();
    /// The paint that the tiles are made for.
    [[nodiscard]] std::uint64_t Paint() const { return m_paint; }

    [[nodiscard]] const GridView& View() const { return m_view; }
    [[nodiscard]] TileCache& Tiles() const { return m_tiles; }
    [[nodiscard]] const SquareSpans& Columns() const { return *m_x; }
    [[nodiscard]] const SquareSpans& Rows() const { return *m_y; }
    [[nodiscard]] const SquareRect& Squares() const { return m_all; }

    /// Whether so much work for a piece of so many squares, and as much for every other piece, is
    /// more than to walk a table of so many records once for all of them.
    [[nodiscard]] bool IsMuchOfAll(std::size_t work, std::size_t squares, std::size_t table) const;

    [[nodiscard]] bool HasDups() const { return m_hasDups.load(Ready); }
    /// The records of a row's squares that hold more than one stitch; sorted out first if they are
    /// not yet.
    struct DupRange {
        const DupStitch* const* First;
        const DupStitch* const* Last;
        [[nodiscard]] const DupStitch* const* begin() const { return First; }
        [[nodiscard]] const DupStitch* const* end() const { return Last; }
    };
    [[nodiscard]] DupRange DupsOf(int row);

    [[nodiscard]] bool HasKnots() const { return m_hasKnots.load(Ready); }
    /// All knots of the picture, in painting order; looked for first if they are not known yet.
    [[nodiscard]] const std::vector<PlacedKnot>& Knots();

private:
    /// What was found is seen by whoever asks whether it is there.
    static constexpr auto Ready = std::memory_order_acquire;

    /// The squares of a rectangle that may show something in these pixels.
    [[nodiscard]] SquareRect ShownIn(const SquareRect& rect, const QRect& pixels) const;
    void SortDups();

    const GridView m_view;
    TileCache& m_tiles;
    std::uint64_t m_paint = 0;
    SquareRect m_all; ///< squares that any piece may show
    std::optional<SquareSpans> m_x;
    std::optional<SquareSpans> m_y;
    std::mutex m_finding;
    std::atomic<bool> m_hasDups = false;
    std::atomic<bool> m_hasKnots = false;
    std::vector<const DupStitch*> m_dups; ///< row by row
    std::vector<std::size_t> m_dupsOfRow; ///< where each row of m_all begins
    std::vector<PlacedKnot> m_knots;
};

} // namespace zol
