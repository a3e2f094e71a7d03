// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/ViewPass.h"

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
    const RasterPass::Painted painted = m_squares->Paint(image, position);
    if (painted.Area.isEmpty() || m_view.Source->Lines().empty()) {
        return;
    }
    const QRect& area = painted.Area;
    const auto stride = image.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(QRgb));
    QRgb* first = reinterpret_cast<QRgb*>(image.scanLine(area.top())) + area.left();
    PixelCanvas canvas({first, stride, area.width(), area.height()}, position + area.topLeft(),
                       m_lineMasks, m_view.Options.Antialias);
    DrawBackStitchLines(canvas, m_view, painted.Squares, m_lines);
    canvas.Flush();
}

} // namespace zol
