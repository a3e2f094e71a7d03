// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/RasterGrid.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <utility>

#include "grid/PaintColors.h"
#include "grid/SquareContent.h"
#include "grid/StitchLayers.h"

namespace zol {

namespace {

/// Copies rows of a width that the compiler knows; squares are a few pixels wide, where a general
/// copy costs more than its bytes.
template<int Width>
void CopyRows(const QRgb* from, QRgb* to, std::ptrdiff_t stride, int rows, int) {
    for (int row = 0; row < rows; ++row) {
        std::memcpy(to, from, Width * sizeof(QRgb));
        from += Width;
        to += stride;
    }
}

void CopyWideRows(const QRgb* from, QRgb* to, std::ptrdiff_t stride, int rows, int width) {
    for (int row = 0; row < rows; ++row) {
        std::memcpy(to, from, static_cast<std::size_t>(width) * sizeof(QRgb));
        from += width;
        to += stride;
    }
}

using Copier = void (*)(const QRgb*, QRgb*, std::ptrdiff_t, int, int);

template<int... Widths>
constexpr std::array<Copier, sizeof...(Widths)> MakeCopiers(std::integer_sequence<int, Widths...>) {
    return {CopyRows<Widths>...};
}

Copier CopierFor(int width) {
    static constexpr auto copiers = MakeCopiers(std::make_integer_sequence<int, 49>());
    const auto at = static_cast<std::size_t>(width);
    return at < copiers.size() ? copiers[at] : CopyWideRows;
}

/// The columns (or rows) of `first` to `last` that may show between two device pixels, a little
/// more at each end.
std::pair<int, int> ShownOf(int first, int last, int fromPixel, int toPixel, double squareTwips,
                            double origin, double twipsPerPixel) {
    if (squareTwips <= 0) {
        return {first, last};
    }
    const double from = (fromPixel * twipsPerPixel - origin) / squareTwips - 2;
    const double to = (toPixel * twipsPerPixel - origin) / squareTwips + 3;
    return {std::clamp<int>(static_cast<int>(std::clamp(from, -1e9, 1e9)), first, last + 1),
            std::clamp<int>(static_cast<int>(std::clamp(to, -1e9, 1e9)), first - 1, last)};
}

/// One paint: everything that is worked out once for it.
class RasterPass {
public:
    RasterPass(QImage& image, QPoint position, const GridView& view, const SquareRect& rect,
               TileCache& tiles);

    RasterGrid::Painted Run();

private:
    /// One column of squares; pixels are those of the image.
    struct Column {
        int number;
        int first; ///< pixels of the squares
        int last;
        std::size_t width; ///< which of the widths
        bool cut;          ///< not wholly on the image
    };

    void FindSpans();
    void FindColumns();
    std::size_t WidthIndex(int width);
    [[nodiscard]] std::vector<QRgb> TemplateRow(QRgb ground, bool normalColumns) const;
    void CopyTemplate(const std::vector<QRgb>& row, int fromPixel, int toPixel);
    void PaintRow(int row);
    void PaintLineAbove(int row);
    void PaintSolidSquares(int row, int top, int bottom);
    void PaintTiles(int row, int top, int bottom);
    void PaintSquare(const Column& column, int row, int top, int bottom, const StitchCell& cell);
    void PaintWhole(const Column& column, int top, int bottom, TileCache::Size& size,
                    const QRgb* tile);
    void PaintKnots();
    void PaintKnot(const PlacedKnot& placed);
    [[nodiscard]] QRgb* Pixel(int x, int y) { return m_buffer.Row(y) + x; }
    [[nodiscard]] const StitchCell& CellAt(int column, int row) const {
        return m_cells[static_cast<std::size_t>(column - 1) * m_height +
                       static_cast<std::size_t>(row - 1)];
    }

    QPoint m_position;
    const GridView& m_view;
    SquareRect m_rect;
    TileCache& m_tiles;
    PixelBuffer m_buffer;
    const StitchCell* m_cells;
    std::size_t m_height;
    std::optional<SquareSpans> m_x;
    std::optional<SquareSpans> m_y;
    QRect m_area; ///< what is painted, in the image's pixels
    std::vector<Column> m_columns;
    std::vector<int> m_widths;
    std::vector<Copier> m_copiers;
    std::vector<TileCache::Size*> m_sizes; ///< of the present row, by width
    std::vector<QRgb> m_groundRow;         ///< ground and upright lines
    std::vector<QRgb> m_line;              ///< a scan line in the making
    std::vector<std::pair<const Column*, const StitchCell*>> m_special;
    std::vector<SquarePos> m_knotSquares;
    std::vector<QRgb> m_scratch;
};

RasterPass::RasterPass(QImage& image, QPoint position, const GridView& view, const SquareRect& rect,
                       TileCache& tiles)
    : m_position(position),
      m_view(view),
      m_rect(rect),
      m_tiles(tiles),
      m_buffer{reinterpret_cast<QRgb*>(image.bits()),
               image.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(QRgb)), image.width(),
               image.height()},
      m_cells(view.Source->Cells().data()),
      m_height(static_cast<std::size_t>(view.Source->GetPatternHeight())) {}

RasterGrid::Painted RasterPass::Run() {
    FindSpans();
    if (m_area.isEmpty()) {
        return {};
    }
    FindColumns();
    m_groundRow = TemplateRow(m_tiles.GroundOf(), true);
    for (int row = m_rect.Top; row <= m_rect.Bottom; ++row) {
        PaintLineAbove(row);
        PaintRow(row);
    }
    PaintLineAbove(m_rect.Bottom + 1);
    PaintKnots();
    return {m_area, m_rect};
}

void RasterPass::FindSpans() {
    const GridScale& s = m_view.Scale;
    const auto [left, right] =
        ShownOf(m_rect.Left, m_rect.Right, m_position.x(), m_position.x() + m_buffer.Width,
                s.SquareTwipsX, m_view.OriginX, s.TwipsPerPixelX);
    const auto [top, bottom] =
        ShownOf(m_rect.Top, m_rect.Bottom, m_position.y(), m_position.y() + m_buffer.Height,
                s.SquareTwipsY, m_view.OriginY, s.TwipsPerPixelY);
    m_rect = {left, top, right, bottom};
    if (m_rect.IsEmpty()) {
        return;
    }
    m_x = SquareSpans::Columns(m_view, left, right);
    m_y = SquareSpans::Rows(m_view, top, bottom);
    // The closing lines are painted too, as far as the image holds them.
    const QPoint corner(m_x->Edge(left), m_y->Edge(top));
    const QPoint end(m_x->First(right + 1), m_y->First(bottom + 1));
    m_area = QRect(corner - m_position, end - m_position - QPoint(1, 1))
                 .intersected(QRect(0, 0, m_buffer.Width, m_buffer.Height));
}

std::size_t RasterPass::WidthIndex(int width) {
    const auto found = std::find(m_widths.begin(), m_widths.end(), width);
    if (found != m_widths.end()) {
        return static_cast<std::size_t>(found - m_widths.begin());
    }
    m_widths.push_back(width);
    m_copiers.push_back(CopierFor(width));
    return m_widths.size() - 1;
}

void RasterPass::FindColumns() {
    for (int number = m_rect.Left; number <= m_rect.Right; ++number) {
        const int first = m_x->First(number) - m_position.x();
        const int last = m_x->Last(number) - m_position.x();
        if (last >= first && last >= m_area.left() && first <= m_area.right()) {
            m_columns.push_back({number, first, last, WidthIndex(last - first + 1),
                                 first < m_area.left() || last > m_area.right()});
        }
    }
    m_sizes.resize(m_widths.size());
}

std::vector<QRgb> RasterPass::TemplateRow(QRgb ground, bool normalColumns) const {
    std::vector<QRgb> row(static_cast<std::size_t>(m_area.width()), ground);
    if (!m_view.Options.GridLines) {
        return row;
    }
    for (int number = m_rect.Left; number <= m_rect.Right + 1; ++number) {
        if (!m_x->IsBold(number) && !normalColumns) {
            continue;
        }
        const int from = m_x->Edge(number) - m_position.x() - m_area.left();
        const int to = std::min(from + m_x->LineWidth(number), m_area.width());
        if (to > std::max(0, from)) {
            const Colour colour =
                m_x->IsBold(number) ? m_view.Options.BoldGLColor : m_view.Options.NormalGLColor;
            std::fill(row.begin() + std::max(0, from), row.begin() + to, ToRgb(colour));
        }
    }
    return row;
}

void RasterPass::CopyTemplate(const std::vector<QRgb>& row, int fromPixel, int toPixel) {
    const int from = std::max(fromPixel, m_area.top());
    const int to = std::min(toPixel, m_area.bottom());
    for (int y = from; y <= to; ++y) {
        std::memcpy(Pixel(m_area.left(), y), row.data(), row.size() * sizeof(QRgb));
    }
}

void RasterPass::PaintLineAbove(int row) {
    const int top = m_y->Edge(row) - m_position.y();
    if (!m_view.Options.GridLines || m_y->LineWidth(row) == 0 ||
        top + m_y->LineWidth(row) <= m_area.top() || top > m_area.bottom()) {
        return;
    }
    // Bold columns lie over every row's line.
    const Colour colour = RowLineColour(m_view.Options, row, m_y->IsBold(row));
    CopyTemplate(TemplateRow(ToRgb(colour), false), top, top + m_y->LineWidth(row) - 1);
}

void RasterPass::PaintRow(int row) {
    const int top = m_y->First(row) - m_position.y();
    const int bottom = m_y->Last(row) - m_position.y();
    if (bottom < top || bottom < m_area.top() || top > m_area.bottom()) {
        return;
    }
    for (std::size_t i = 0; i < m_widths.size(); ++i) {
        m_sizes[i] = &m_tiles.SizeOf(m_widths[i], bottom - top + 1);
    }
    if (m_view.Options.StitchStyle == ShowColorSquares) {
        PaintSolidSquares(row, top, bottom);
    } else {
        PaintTiles(row, top, bottom);
    }
}

void RasterPass::PaintSolidSquares(int row, int top, int bottom) {
    m_line = m_groundRow;
    m_special.clear();
    QRgb* line = m_line.data() - m_area.left();
    for (const Column& column : m_columns) {
        const StitchCell& cell = CellAt(column.number, row);
        if (cell.StitchType == StitchWhole && (cell.CellFlags & CellHasDup) == 0) {
            const int first = std::max(column.first, m_area.left());
            const int last = std::min(column.last, m_area.right());
            std::fill(line + first, line + last + 1, m_tiles.FlossOf(cell.PaletteIndex));
        } else if (cell.StitchType != NoStitch) {
            m_special.emplace_back(&column, &cell);
        }
        if ((cell.CellFlags & CellHasKnot) != 0) {
            m_knotSquares.push_back({column.number, row});
        }
    }
    CopyTemplate(m_line, top, bottom);
    for (const auto& [column, cell] : m_special) {
        PaintSquare(*column, row, top, bottom, *cell);
    }
}

void RasterPass::PaintTiles(int row, int top, int bottom) {
    CopyTemplate(m_groundRow, top, bottom);
    for (const Column& column : m_columns) {
        const StitchCell& cell = CellAt(column.number, row);
        if (cell.StitchType != NoStitch) {
            PaintSquare(column, row, top, bottom, cell);
        }
        if ((cell.CellFlags & CellHasKnot) != 0) {
            m_knotSquares.push_back({column.number, row});
        }
    }
}

void RasterPass::PaintSquare(const Column& column, int row, int top, int bottom,
                             const StitchCell& cell) {
    TileCache::Size& size = *m_sizes[column.width];
    if ((cell.CellFlags & CellHasDup) == 0) {
        PaintWhole(column, top, bottom, size,
                   m_tiles.Tile(size, cell.StitchType, cell.PaletteIndex));
        return;
    }
    const SquareContent content(*m_view.Source, column.number, row);
    const bool cut = column.cut || top < m_area.top() || bottom > m_area.bottom();
    if (!cut) {
        m_tiles.Compose({Pixel(column.first, top), m_buffer.Stride, size.Width(), size.Height()},
                        size, content);
        return;
    }
    m_scratch.resize(static_cast<std::size_t>(size.Width()) *
                     static_cast<std::size_t>(size.Height()));
    m_tiles.Compose({m_scratch.data(), size.Width(), size.Width(), size.Height()}, size, content);
    PaintWhole(column, top, bottom, size, m_scratch.data());
}

void RasterPass::PaintWhole(const Column& column, int top, int bottom, TileCache::Size& size,
                            const QRgb* tile) {
    if (!column.cut && top >= m_area.top() && bottom <= m_area.bottom()) {
        m_copiers[column.width](tile, Pixel(column.first, top), m_buffer.Stride, size.Height(),
                                size.Width());
        return;
    }
    const int first = std::max(column.first, m_area.left());
    const int last = std::min(column.last, m_area.right());
    for (int y = std::max(top, m_area.top()); y <= std::min(bottom, m_area.bottom()); ++y) {
        const QRgb* from = tile + static_cast<std::ptrdiff_t>(y - top) * size.Width();
        std::copy(from + (first - column.first), from + (last - column.first) + 1, Pixel(first, y));
    }
}

void RasterPass::PaintKnots() {
    // From column to column, as squares are painted one by one.
    std::stable_sort(m_knotSquares.begin(), m_knotSquares.end(),
                     [](const SquarePos& a, const SquarePos& b) { return a.X < b.X; });
    for (const PlacedKnot& placed : KnotsOf(*m_view.Source, m_knotSquares)) {
        PaintKnot(placed);
    }
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
        const PixelMask& mask = m_tiles.Masks().Knot(placed.Knot.Orientation, box.Right - box.Left,
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
        const PixelMask& mask =
            m_tiles.Masks().Symbol(symbol, StitchFKnot, inner.Width(), inner.Height());
        BlendMask(target, x + inner.Left - box.Left, y + inner.Top - box.Top, mask,
                  ToRgb(*ink.Symbol));
    }
}

} // namespace

RasterGrid::Painted RasterGrid::Paint(QImage& image, QPoint position, const GridView& view,
                                      const SquareRect& rect) {
    m_tiles.Begin(view);
    return RasterPass(image, position, view, rect, m_tiles).Run();
}

} // namespace zol
