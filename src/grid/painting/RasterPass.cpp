// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/RasterPass.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include "grid/painting/PaintColors.h"

namespace zol {

namespace {

/// Columns whose cells are asked for before they are needed.
constexpr std::size_t ColumnsAhead = 12;

} // namespace

void RasterPass::Paint(QImage& image, QPoint position) {
    m_position = position;
    m_buffer = {reinterpret_cast<QRgb*>(image.bits()),
                image.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(QRgb)), image.width(),
                image.height()};
    const RasterPlan::Painted piece = m_plan.Find(image.size(), position);
    m_area = piece.Area;
    m_rect = piece.Squares;
    if (m_area.isEmpty()) {
        return;
    }
    FindTiles();
    // Squares lie behind their lines, so lines may be painted row by row with them.
    std::size_t next = 0;
    for (int number = m_rect.Top; number <= m_rect.Bottom + 1; ++number) {
        PaintLineAbove(number);
        if (next < m_rows.Shown.size() && m_rows.Shown[next].Number == number) {
            PaintRow(next++);
        }
    }
    PaintMixedSquares();
    PaintKnots();
}

std::vector<QRgb> RasterPass::TemplateRow(QRgb ground, bool normalColumns) const {
    std::vector<QRgb> row(static_cast<std::size_t>(m_area.width()), ground);
    if (!m_view.Options.GridLines) {
        return row;
    }
    for (int number = m_rect.Left; number <= m_rect.Right + 1; ++number) {
        if (!m_plan.Columns().IsBold(number) && !normalColumns) {
            continue;
        }
        const int from = m_plan.Columns().Edge(number) - m_position.x() - m_area.left();
        const int to = std::min(from + m_plan.Columns().LineWidth(number), m_area.width());
        if (to > std::max(0, from)) {
            const Colour colour = m_plan.Columns().IsBold(number) ? m_view.Options.BoldGLColor
                                                                  : m_view.Options.NormalGLColor;
            std::fill(row.begin() + std::max(0, from), row.begin() + to, ToRgb(colour));
        }
    }
    return row;
}

void RasterPass::CopyTemplate(const QRgb* row, int fromPixel, int toPixel) {
    const int from = std::max(fromPixel, m_area.top());
    const int to = std::min(toPixel, m_area.bottom());
    for (int y = from; y <= to; ++y) {
        std::memcpy(Pixel(m_area.left(), y), row, m_groundRow.size() * sizeof(QRgb));
    }
}

void RasterPass::PaintLineAbove(int row) {
    const int width = m_plan.Rows().LineWidth(row);
    const int top = m_plan.Rows().Edge(row) - m_position.y();
    if (width == 0 || top + width <= m_area.top() || top > m_area.bottom()) {
        return;
    }
    const Colour colour = RowLineColour(m_view.Options, row, m_plan.Rows().IsBold(row));
    auto known = std::find_if(m_lineRows.begin(), m_lineRows.end(),
                              [colour](const auto& entry) { return entry.first == colour; });
    if (known == m_lineRows.end()) {
        // Bold columns lie over every row's line.
        known = m_lineRows.insert(known, {colour, TemplateRow(ToRgb(colour), false)});
    }
    CopyTemplate(known->second.data(), top, top + width - 1);
}

void RasterPass::GatherTiles(std::size_t firstRow) {
    const std::size_t columns = m_columns.Shown.size();
    const std::size_t rows = std::min(BandRows, m_rows.Shown.size() - firstRow);
    m_band.resize(BandRows * columns);
    // Where each tile is copied by itself the ground that is there already serves bare squares.
    const bool bareIsDone = m_runs.empty();
    for (std::size_t i = 0; i < columns; ++i) {
        const Stretch& column = m_columns.Shown[i];
        const QRgb** tile = m_band.data() + i;
        for (std::size_t j = 0; j < rows; ++j, tile += columns) {
            const Stretch& row = m_rows.Shown[firstRow + j];
            const StitchCell& cell = m_view.Source->Cell(column.Number, row.Number);
            *tile = bareIsDone && cell.StitchType == NoStitch
                        ? nullptr
                        : m_tiles.Tile(SizeOf(column, row), cell.StitchType, cell.PaletteIndex);
            if (cell.CellFlags != 0) {
                NoteFlags(column, row, cell);
            }
        }
    }
}

void RasterPass::PaintRow(std::size_t place) {
    const Stretch& row = m_rows.Shown[place];
    const std::size_t inBand = place % BandRows;
    const std::size_t first = inBand * m_columns.Shown.size();
    if (m_view.Options.StitchStyle != ShowColorSquares) {
        if (inBand == 0) {
            GatherTiles(place);
        }
        PaintTiles(row, m_band.data() + first);
        return;
    }
    if (inBand == 0) {
        GatherColours(place);
    }
    PaintSolidRow(row, m_colours.data() + first);
    if (inBand + 1 == BandRows || place + 1 == m_rows.Shown.size()) {
        PaintOddSquares(place - inBand);
    }
}

void RasterPass::PrepareSolidLine() {
    m_lineColumns.clear();
    if (m_columns.Shown.empty()) {
        // Nothing but an upright line.
        m_lineLeft = m_area.left();
        m_line = m_groundRow;
        return;
    }
    m_lineLeft = std::min(m_area.left(), m_columns.Shown.front().Edge);
    const int end = std::max(m_area.right(), m_columns.Shown.back().Last) + 1;
    m_line.assign(static_cast<std::size_t>(end - m_lineLeft), m_tiles.GroundOf());
    std::copy(m_groundRow.begin(), m_groundRow.end(), m_line.begin() + m_area.left() - m_lineLeft);
    for (const Stretch& column : m_columns.Shown) {
        const int first = std::max(column.Edge, m_area.left());
        if (first < column.First) {
            m_lineColumns.emplace_back(first, column.First - first);
        }
    }
}

void RasterPass::GatherColours(std::size_t firstRow) {
    const std::size_t columns = m_columns.Shown.size();
    const std::size_t rows = std::min(BandRows, m_rows.Shown.size() - firstRow);
    m_colours.resize(BandRows * columns);
    m_odd.resize(BandRows * columns);
    std::array<int, BandRows> below{};
    const int top = m_rows.Shown[firstRow].Number;
    for (std::size_t j = 0; j < rows; ++j) {
        below[j] = m_rows.Shown[firstRow + j].Number - top;
    }
    const int bottom = top + below[rows - 1];
    const QRgb ground = m_tiles.GroundOf();
    const QRgb* flosses = m_tiles.Flosses();
    std::uint32_t* odd = m_odd.data();
    for (std::size_t i = 0; i < columns; ++i) {
        const StitchCell* cells = &m_view.Source->Cell(m_columns.Shown[i].Number, top);
        // Columns lie too far apart for the machine to fetch the next by itself.
        const int ahead = m_columns.Shown[std::min(i + ColumnsAhead, columns - 1)].Number;
        __builtin_prefetch(&m_view.Source->Cell(ahead, top));
        __builtin_prefetch(&m_view.Source->Cell(ahead, bottom));
        QRgb* colours = m_colours.data() + i;
        // Nothing here branches by what a square holds: no machine can foretell that.
        for (std::size_t j = 0; j < rows; ++j, colours += columns) {
            const StitchCell& cell = cells[below[j]];
            const unsigned kind = cell.StitchType;
            const QRgb solid = QRgb{0} - QRgb{kind == StitchWhole};
            *colours = (flosses[cell.PaletteIndex] & solid) | (ground & ~solid);
            *odd = static_cast<std::uint32_t>(i * BandRows + j);
            odd += static_cast<unsigned>(((kind + 1) & 0xFFU) > StitchWhole + 1U) |
                   static_cast<unsigned>(cell.CellFlags != 0);
        }
    }
    m_oddCount = static_cast<std::size_t>(odd - m_odd.data());
}

void RasterPass::PaintSolidRow(const Stretch& row, const QRgb* colours) {
    QRgb* line = m_line.data() - m_lineLeft;
    if (m_columns.Pitch > 0 && !m_columns.Shown.empty()) {
        // Over the upright lines, and those once more over the squares.
        SpreadColours(colours, m_columns.Shown.size(), line + m_columns.Shown.front().Edge,
                      m_columns.Pitch);
        const QRgb* ground = m_groundRow.data() - m_area.left();
        for (const auto& [first, width] : m_lineColumns) {
            FillSpan(line + first, width, ground[first]);
        }
    } else {
        for (const Stretch& column : m_columns.Shown) {
            FillSpan(line + column.First, column.Last - column.First + 1, *colours++);
        }
    }
    CopyTemplate(line + m_area.left(), row.First, row.Last);
}

void RasterPass::PaintOddSquares(std::size_t firstRow) {
    for (std::size_t i = 0; i < m_oddCount; ++i) {
        const Stretch& column = m_columns.Shown[m_odd[i] / BandRows];
        const Stretch& row = m_rows.Shown[firstRow + m_odd[i] % BandRows];
        const StitchCell& cell = m_view.Source->Cell(column.Number, row.Number);
        if (cell.CellFlags != 0) {
            NoteFlags(column, row, cell);
        }
        if (cell.StitchType != NoStitch && (cell.CellFlags & CellHasDup) == 0) {
            PaintTile(column, row, cell);
        }
    }
}

void RasterPass::FindRuns() {
    m_runs.clear();
    m_loneColumns.clear();
    const std::vector<Stretch>& shown = m_columns.Shown;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const Stretch& column = shown[i];
        if (column.Cut || m_columns.Sizes[column.Size] > LargestRowTile) {
            m_loneColumns.push_back(i);
            continue;
        }
        const bool follows =
            i > 0 && !m_runs.empty() && m_runs.back().Begin + m_runs.back().Count == i;
        const int pitch = follows ? column.First - shown[i - 1].First : 0;
        if (!follows || column.Size != shown[i - 1].Size ||
            (m_runs.back().Count > 1 && m_runs.back().Pitch != pitch)) {
            m_runs.push_back({i, 1, 0, column.First, m_columns.Sizes[column.Size]});
        } else {
            m_runs.back().Pitch = pitch;
            ++m_runs.back().Count;
        }
    }
}

void RasterPass::PaintTiles(const Stretch& row, const QRgb* const* tiles) {
    const int top = std::max(row.First, m_area.top());
    const int bottom = std::min(row.Last, m_area.bottom());
    for (int y = top; y <= bottom; ++y) {
        QRgb* line = Pixel(0, y);
        std::memcpy(line + m_area.left(), m_groundRow.data(), m_groundRow.size() * sizeof(QRgb));
        for (const TileRun& run : m_runs) {
            CopyTileRows(tiles + run.Begin, run.Count, run.Width, y - row.First, line + run.First,
                         run.Pitch);
        }
    }
    for (const std::size_t i : m_loneColumns) {
        if (tiles[i] != nullptr) {
            CopyTile(m_columns.Shown[i], row, tiles[i]);
        }
    }
}

void RasterPass::PaintTile(const Stretch& column, const Stretch& row, const StitchCell& cell) {
    CopyTile(column, row, m_tiles.Tile(SizeOf(column, row), cell.StitchType, cell.PaletteIndex));
}

void RasterPass::CopyTile(const Stretch& column, const Stretch& row, const QRgb* tile) {
    const int width = column.Last - column.First + 1;
    if (!column.Cut && !row.Cut) {
        m_copiers[column.Size](tile, Pixel(column.First, row.First), m_buffer.Stride,
                               row.Last - row.First + 1, width);
        return;
    }
    const int first = std::max(column.First, m_area.left());
    const int last = std::min(column.Last, m_area.right());
    for (int y = std::max(row.First, m_area.top()); y <= std::min(row.Last, m_area.bottom()); ++y) {
        const QRgb* from = tile + static_cast<std::ptrdiff_t>(y - row.First) * width;
        std::copy(from + (first - column.First), from + (last - column.First) + 1, Pixel(first, y));
    }
}

} // namespace zol
