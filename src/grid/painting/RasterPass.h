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

#include "grid/painting/GridLines.h"
#include "grid/painting/GridView.h"
#include "grid/painting/RasterGrid.h"
#include "grid/painting/SquareContent.h"
#include "grid/painting/TileCache.h"
#include "grid/painting/TileCopy.h"

namespace zol {

/// One paint of RasterGrid, with everything that is worked out once for it.
class RasterPass {
public:
    RasterPass(QImage& image, QPoint position, const GridView& view, const SquareRect& rect,
               TileCache& tiles);

    RasterGrid::Painted Run();

private:
    /// One column or row of squares that shows; pixels are those of the image.
    struct Stretch {
        int Number;
        int Edge;  ///< where the line before it begins
        int First; ///< behind the line
        int Last;
        std::size_t Size; ///< which of the sizes along its axis
        bool Cut;         ///< not wholly in the painted area
    };
    /// The stretches of an axis and the distinct sizes among them.
    struct Axis {
        std::vector<Stretch> Shown;
        std::vector<int> Sizes;
        std::vector<int> PlaceOf; ///< by number less the first: place in Shown, -1 if not there
        int Pitch = 0;            ///< pixels from each edge to the next; 0 if they differ

        void Find(const SquareSpans& spans, int from, int to, int position, int areaFirst,
                  int areaLast);
        void FindPitch();
        [[nodiscard]] const Stretch* At(int number, int from) const;
    };

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

    void FindArea();
    void FindTiles();
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
    [[nodiscard]] std::vector<PlacedKnot> FindKnots();
    /// The columns (or rows) that do not show but touch a stretch of device pixels.
    [[nodiscard]] static std::vector<int> Around(const Axis& axis, const SquareSpans& spans,
                                                 int from, int to, int firstPixel, int lastPixel);
    void PaintKnot(const PlacedKnot& placed);

    [[nodiscard]] QRgb* Pixel(int x, int y) { return m_buffer.Row(y) + x; }
    [[nodiscard]] TileCache::Size& SizeOf(const Stretch& column, const Stretch& row) {
        return *m_sizes[row.Size * m_columns.Sizes.size() + column.Size];
    }

    QPoint m_position;
    const GridView& m_view;
    SquareRect m_rect;
    TileCache& m_tiles;
    PixelBuffer m_buffer;
    std::optional<SquareSpans> m_x;
    std::optional<SquareSpans> m_y;
    QRect m_area; ///< what is painted, in the image's pixels
    Axis m_columns;
    Axis m_rows;
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
    std::vector<QRgb> m_scratch;
};

} // namespace zol
