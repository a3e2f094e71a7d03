// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/RasterPass.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "grid/painting/PaintColors.h"

namespace zol {

namespace {

/// Look-ups of a square's record that cost as much as walking one record of the table.
constexpr std::size_t RecordsPerLookUp = 16;

/// Records of knots whose walking costs as much as asking for the points of one square.
constexpr std::size_t RecordsPerSquare = 9;

} // namespace

void RasterPass::NoteFlags(const Stretch& column, const Stretch& row, const StitchCell& cell) {
    if ((cell.CellFlags & CellHasKnot) != 0) {
        m_knotted.push_back({column.Number, row.Number});
    }
    if ((cell.CellFlags & CellHasDup) != 0) {
        m_mixed.push_back({column.Number, row.Number});
    }
}

void RasterPass::PaintMixedSquares() {
    const KeyedTable<DupStitch>& table = m_view.Source->DupStitches();
    // Whichever is less work: walking the table, or looking each square up in it.
    const bool sorted = m_plan.HasDups() || m_plan.IsMuchOfAll(m_mixed.size() * RecordsPerLookUp,
                                                               CountSquares(), table.Count());
    if (!sorted) {
        for (const SquarePos& square : m_mixed) {
            PaintMixedSquare(*m_columns.At(square.X), *m_rows.At(square.Y),
                             table.Find(KeyedTable<DupStitch>::KeyOf(square.Y, square.X)));
        }
    } else if (!m_mixed.empty()) {
        for (const Stretch& row : m_rows.Shown) {
            for (const DupStitch* dup : m_plan.DupsOf(row.Number)) {
                if (const Stretch* column = m_columns.At(dup->X); column != nullptr) {
                    PaintMixedSquare(*column, row, dup);
                }
            }
        }
    }
    m_mixed.clear();
}

void RasterPass::PaintMixedSquare(const Stretch& column, const Stretch& row, const DupStitch* dup) {
    const StitchCell& cell = m_view.Source->Cell(column.Number, row.Number);
    if ((cell.CellFlags & CellHasDup) == 0 || cell.StitchType == NoStitch) {
        return;
    }
    const SquareContent content(cell, dup);
    TileCache::Size& size = SizeOf(column, row);
    if (!column.Cut && !row.Cut) {
        m_tiles.Compose(
            {Pixel(column.First, row.First), m_buffer.Stride, size.Width(), size.Height()}, size,
            content);
        return;
    }
    m_scratch.resize(static_cast<std::size_t>(size.Width()) *
                     static_cast<std::size_t>(size.Height()));
    m_tiles.Compose({m_scratch.data(), size.Width(), size.Width(), size.Height()}, size, content);
    CopyTile(column, row, m_scratch.data());
}

void RasterPass::FindKnots() {
    const Pattern& pattern = *m_view.Source;
    m_knots.clear();
    if (pattern.FrenchKnots().Count() == 0) {
        return;
    }
    // The pen, and a turned oval where squares are no squares, reach out of the squares that a
    // knot touches: it may show although none of them does.
    const GridScale& s = m_view.Scale;
    const double across = s.SquareTwipsX / s.TwipsPerPixelX;
    const double down = s.SquareTwipsY / s.TwipsPerPixelY;
    const int reach =
        KnotShapes::PenWidth(m_view) + static_cast<int>(std::abs(across - down) / 2) + 2;
    const std::vector<int> columns =
        m_columns.Around(m_plan.Columns(), m_position.x() + m_area.left() - reach,
                         m_position.x() + m_area.right() + reach);
    const std::vector<int> rows =
        m_rows.Around(m_plan.Rows(), m_position.y() + m_area.top() - reach,
                      m_position.y() + m_area.bottom() + reach);
    const std::size_t beside =
        columns.size() * (rows.size() + m_rows.Shown.size()) + rows.size() * m_columns.Shown.size();
    if (m_plan.HasKnots() || m_plan.IsMuchOfAll(m_knotted.size() * RecordsPerSquare + beside,
                                                CountSquares(), pattern.FrenchKnots().Count())) {
        const std::vector<PlacedKnot>& all = m_plan.Knots();
        std::copy_if(all.begin(), all.end(), std::back_inserter(m_knots),
                     [this](const PlacedKnot& knot) {
                         return knot.Square.Y >= m_rect.Top && knot.Square.Y <= m_rect.Bottom &&
                                knot.Square.X >= m_rect.Left && knot.Square.X <= m_rect.Right;
                     });
        return;
    }
    const auto note = [&](int column, int row) {
        if ((pattern.Cell(column, row).CellFlags & CellHasKnot) != 0) {
            m_knotted.push_back({column, row});
        }
    };
    for (const int column : columns) {
        std::for_each(rows.begin(), rows.end(), [&](int row) { note(column, row); });
        for (const Stretch& row : m_rows.Shown) {
            note(column, row.Number);
        }
    }
    for (const Stretch& column : m_columns.Shown) {
        std::for_each(rows.begin(), rows.end(), [&](int row) { note(column.Number, row); });
    }
    m_knots = KnotsOf(pattern, m_rect, m_knotted);
}

void RasterPass::PaintKnots() {
    FindKnots();
    for (const PlacedKnot& placed : m_knots) {
        PaintKnot(placed);
    }
    m_knotted.clear();
}

void RasterPass::PaintKnot(const PlacedKnot& placed) {
    const PixelRect box =
        KnotShapes::Box(m_view, placed.Square.X, placed.Square.Y, placed.Knot.Position);
    const int pen = KnotShapes::PenWidth(m_view);
    const int x = box.Left - m_position.x() - m_area.left();
    const int y = box.Top - m_position.y() - m_area.top();
    const PixelBuffer target{Pixel(m_area.left(), m_area.top()), m_buffer.Stride, m_area.width(),
                             m_area.height()};
    const std::uint8_t floss = placed.Knot.PaletteIndex;
    const KnotInk ink = KnotInkOf(m_view.Options, m_tiles.ColourOf(floss));
    const auto blend = [&](Colour colour, bool filled) {
        const PixelMask& mask = m_tiles.KnotMask(placed.Knot.Orientation, box.Right - box.Left,
                                                 box.Bottom - box.Top, pen, filled);
        BlendMask(target, x + mask.Left, y + mask.Top, mask, ToRgb(colour));
    };
    if (ink.Body) {
        blend(*ink.Body, true);
    }
    if (ink.Outline) {
        blend(*ink.Outline, false);
    }
    const int symbol = m_tiles.SymbolOf(floss);
    const PixelRect inner = KnotShapes::SymbolRect(box);
    if (ink.Symbol && symbol != 0 && placed.Knot.Orientation == KnotNormal && !inner.IsEmpty()) {
        const PixelMask& mask = m_tiles.KnotSymbol(symbol, inner.Width(), inner.Height());
        BlendMask(target, x + inner.Left - box.Left + mask.Left, y + inner.Top - box.Top + mask.Top,
                  mask, ToRgb(*ink.Symbol));
    }
}

} // namespace zol
