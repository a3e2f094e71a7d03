// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/RasterPass.h"

#include <algorithm>

namespace zol {

void RasterPass::FindTiles() {
    const Across across{m_plan.Paint(), m_position.x(), m_rect.Left,
                        m_rect.Right,   m_area.left(),  m_area.right()};
    if (m_across != across) {
        FindColumns();
        m_across = across;
    }
    m_rows.Find(m_plan.Rows(), m_rect.Top, m_rect.Bottom, m_position.y(), m_area.top(),
                m_area.bottom());
    m_sizes.clear();
    for (const int height : m_rows.Sizes) {
        for (const int width : m_columns.Sizes) {
            m_sizes.push_back(&m_tiles.SizeOf(width, height));
        }
    }
}

void RasterPass::FindColumns() {
    m_columns.Find(m_plan.Columns(), m_rect.Left, m_rect.Right, m_position.x(), m_area.left(),
                   m_area.right());
    m_copiers.clear();
    for (const int width : m_columns.Sizes) {
        m_copiers.push_back(TileCopierFor(width));
    }
    m_lineRows.clear();
    m_groundRow = TemplateRow(m_tiles.GroundOf(), true);
    if (m_view.Options.StitchStyle == ShowColorSquares) {
        PrepareSolidLine();
    } else {
        FindRuns();
    }
}

} // namespace zol
