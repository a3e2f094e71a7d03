// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/RasterGrid.h"

#include "grid/painting/RasterPass.h"

namespace zol {

RasterGrid::Painted RasterGrid::Paint(QImage& image, QPoint position, const GridView& view,
                                      const SquareRect& rect) {
    m_tiles.Begin(view);
    return RasterPass(image, position, view, rect, m_tiles).Run();
}

} // namespace zol
