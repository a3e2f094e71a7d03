// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/ViewPass.h"

#include <algorithm>

#include "grid/painting/BackStitchLines.h"
#include "grid/painting/LineIndex.h"
#include "grid/painting/LineMasks.h"
#include "grid/painting/RasterPass.h"
#include "grid/painting/RasterPlan.h"
#include "grid/painting/StyledLine.h"

namespace zol {

ViewPass::ViewPass(const GridView& view, const SquareRect& rect, const QRect& pixels,
                   const Stock& stock)
    : m_view(view),
      m_stock(stock) {
    if (!rect.IsEmpty()) {
        m_plan = std::make_unique<RasterPlan>(view, rect, pixels, stock.Tiles);
        m_squares.resize(static_cast<std::size_t>(std::max(1, stock.Workers)));
    }
}

ViewPass::~ViewPass() = default;

void ViewPass::Paint(QImage& image, QPoint position) {
    if (!m_plan || image.isNull()) {
        return;
    }
    const RasterPlan::Painted piece = m_plan->Find(image.size(), position);
    if (!piece.Area.isEmpty()) {
        m_plan->Begin();
        PaintBands(image, position, piece.Area, piece.Squares);
    }
}

void ViewPass::PaintBands(QImage& image, QPoint position, const QRect& area,
                          const SquareRect& shown) {
    const auto stride = image.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(QRgb));
    QRgb* first = reinterpret_cast<QRgb*>(image.scanLine(area.top())) + area.left();
    const QPoint corner = position + area.topLeft();
    const auto paintSquares = [&](int worker, int top, int bottom) {
        QImage band(reinterpret_cast<uchar*>(first + top * stride), area.width(), bottom - top + 1,
                    image.bytesPerLine(), image.format());
        auto& squares = m_squares[static_cast<std::size_t>(worker)];
        if (!squares) {
            squares = std::make_unique<RasterPass>(*m_plan);
        }
        squares->Paint(band, corner + QPoint(0, top));
    };
    const int rows = std::max(8, BandBytes / (area.width() * static_cast<int>(sizeof(QRgb))));
    const bool isMuch = qint64{area.width()} * area.height() >= WorthHelp;
    PixelCanvas canvas({first, stride, area.width(), area.height()}, corner, m_stock.Masks,
                       m_view.Options.Antialias,
                       {m_plan->BandsOf({area, shown}, position, rows), paintSquares,
                        isMuch ? m_stock.Workers : 1});
    DrawBackStitchLines(canvas, m_view, shown, m_stock.Lines);
    canvas.Flush();
}

} // namespace zol
