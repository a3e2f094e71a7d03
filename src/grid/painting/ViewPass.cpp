// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/ViewPass.h"

#include <algorithm>

#include "grid/painting/BackStitchLines.h"
#include "grid/painting/LineIndex.h"
#include "grid/painting/LineMasks.h"
#include "grid/painting/RasterPass.h"
#include "grid/painting/StyledLine.h"

namespace zol {

ViewPass::ViewPass(const GridView& view, const SquareRect& rect, const QRect& pixels,
                   TileCache& tiles, LineIndex& lines, LineMasks& lineMasks)
    : m_view(view),
      m_lines(lines),
      m_lineMasks(lineMasks),
      m_squares(rect.IsEmpty() ? nullptr
                               : std::make_unique<RasterPass>(view, rect, pixels, tiles)) {}

ViewPass::~ViewPass() = default;

void ViewPass::Paint(QImage& image, QPoint position) {
    if (!m_squares || image.isNull()) {
        return;
    }
    const RasterPass::Painted piece = m_squares->Find(image.size(), position);
    if (piece.Area.isEmpty()) {
        return;
    }
    if (m_view.Source->Lines().empty()) {
        m_squares->Paint(image, position);
    } else {
        PaintWithLines(image, position, piece.Area, piece.Squares);
    }
}

void ViewPass::PaintWithLines(QImage& image, QPoint position, const QRect& area,
                              const SquareRect& squares) {
    const auto stride = image.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(QRgb));
    QRgb* first = reinterpret_cast<QRgb*>(image.scanLine(area.top())) + area.left();
    const QPoint corner = position + area.topLeft();
    const auto paintSquares = [&](int top, int bottom) {
        QImage band(reinterpret_cast<uchar*>(first + top * stride), area.width(), bottom - top + 1,
                    image.bytesPerLine(), image.format());
        m_squares->Paint(band, corner + QPoint(0, top));
    };
    const int rows = std::max(8, BandBytes / (area.width() * static_cast<int>(sizeof(QRgb))));
    PixelCanvas canvas({first, stride, area.width(), area.height()}, corner, m_lineMasks,
                       m_view.Options.Antialias,
                       m_squares->BandsOf({area, squares}, position, rows), paintSquares);
    DrawBackStitchLines(canvas, m_view, squares, m_lines);
    canvas.Flush();
}

} // namespace zol
