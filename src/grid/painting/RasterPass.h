// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "grid/painting/GridView.h"
#include "grid/painting/RasterAxis.h"
#include "grid/painting/RasterPlan.h"
#include "grid/painting/SquareContent.h"
#include "grid/painting/TileCache.h"
#include "grid/painting/TileCopy.h"

namespace zol {

/// Paints ground, grid lines, stitches and knots of a view straight into the pixels of images,
/// which are pieces of one picture: lines and solid squares a scan line at a time, other squares as
/// copies of tiles. One paints one piece after the other; several may be at work at once.
class RasterPass {
public:
    /// The plan outlives the pass.
    explicit RasterPass(RasterPlan& plan)
        : m_plan(plan),
          m_view(plan.View()),
          m_tiles(plan.Tiles()) {}

    /// Paints a piece whose upper left pixel is the device's pixel `position`. The plan is begun.
    void Paint(QImage& image, QPoint position);

private:
    using Stretch = RasterAxis::Stretch;

    /// Columns side by side whose tiles are equally wide and equally far apart.
    struct TileRun {
        std::size_t Begin; ///< place of the first column
        std::size_t Count;
        int Pitch; ///< pixels from each tile to the next
        int First; ///< pixel of the first
        int Width;
    };
    /// Tiles of up to so many pixels across are copied a scan line of all columns at a time; larger
    /// ones each by itself.
    static constexpr int LargestRowTile = 8;

    /// Rows whose cells are gathered at a time. The pattern keeps its cells column by column, so
    /// reading them row by row would wait for memory at each.
    static constexpr std::size_t BandRows = 16;

    void FindTiles();
    void FindColumns();
    [[nodiscard]] std::vector<QRgb> TemplateRow(QRgb ground, bool normalColumns) const;
    void CopyTemplate(const QRgb* row, int fromPixel, int toPixel);
    void PaintLineAbove(int row);
    void FindRuns();
    void GatherTiles(std::size_t firstRow);
    void PrepareSolidLine();
    void GatherColours(std::size_t firstRow);
    void PaintSolidRow(const Stretch& row, const QRgb* colours);
    void PaintOddSquares(std::size_t firstRow);
    void PaintRow(std::size_t place);
    void PaintTiles(const Stretch& row, const QRgb* const* tiles);
    void NoteFlags(const Stretch& column, const Stretch& row, const StitchCell& cell);
    void PaintTile(const Stretch& column, const Stretch& row, const StitchCell& cell);
    void CopyTile(const Stretch& column, const Stretch& row, const QRgb* tile);
    void PaintMixedSquares();
    void PaintMixedSquare(const Stretch& column, const Stretch& row, const DupStitch* dup);
    void PaintKnots();
    void FindKnots();
    [[nodiscard]] std::size_t CountSquares() const {
        return m_rows.Shown.size() * m_columns.Shown.size();
    }
    void PaintKnot(const PlacedKnot& placed);

    [[nodiscard]] QRgb* Pixel(int x, int y) { return m_buffer.Row(y) + x; }
    [[nodiscard]] TileCache::Size& SizeOf(const Stretch& column, const Stretch& row) {
        return *m_sizes[row.Size * m_columns.Sizes.size() + column.Size];
    }

    RasterPlan& m_plan;
    const GridView& m_view;
    TileCache& m_tiles;

    // The columns, and what is made of them, stay while pieces lie one below the other.
    struct Across {
        std::uint64_t Paint;
        int Position, Left, Right, First, Last;
        friend bool operator==(const Across&, const Across&) = default;
    };
    std::optional<Across> m_across;
    RasterAxis m_columns;

    // The piece in work.
    QPoint m_position;
    PixelBuffer m_buffer;
    SquareRect m_rect;
    QRect m_area; ///< what is painted, in the image's pixels
    RasterAxis m_rows;
    std::vector<TileCache::Size*> m_sizes;
    std::vector<const QRgb*> m_band; ///< tiles of some rows, row by row as they are painted
    std::vector<TileRun> m_runs;
    std::vector<std::size_t> m_loneColumns; ///< places of those that are in no run
    std::vector<TileCopier> m_copiers;      ///< by the column's size
    std::vector<QRgb> m_groundRow;          ///< ground and upright lines
    std::vector<std::pair<Colour, std::vector<QRgb>>> m_lineRows; ///< rows' own lines, by colour
    std::vector<QRgb> m_line; ///< a scan line in the making, first and last square whole
    int m_lineLeft = 0;       ///< of its first pixel in the image
    std::vector<std::pair<int, int>> m_lineColumns; ///< upright lines: first pixel, width
    std::vector<QRgb> m_colours;      ///< of a band's squares, row by row: floss or ground
    std::vector<std::uint32_t> m_odd; ///< places in the band of squares that need more
    std::size_t m_oddCount = 0;
    std::vector<SquarePos> m_mixed; ///< squares with more than one stitch
    std::vector<SquarePos> m_knotted;
    std::vector<PlacedKnot> m_knots;
    std::vector<QRgb> m_scratch;
};

} // namespace zol
