// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QRegion>

#include "grid/GridGeometry.h"
#include "grid/tools/Overlay.h"

class QPainter;

namespace zol {

struct OverlayStyle {
    QColor Accent;
    /// Lies under and beside the accent, so that it is seen on a ground of any colour.
    QColor Casing = Qt::white;
    int LineWidth = 1; ///< pixels of the device, GetBackStitchPenWidth of the grid
};

/// Paints what lies over the design. All of it is in pixels of the device, counted from the upper
/// left corner of square (1, 1), as GridGeometry gives them.
class OverlayPainter {
public:
    /// Of a frame or an axis only what lies inside the grid is painted.
    OverlayPainter(const Overlay& overlay, const GridGeometry& geometry, OverlayStyle style)
        : m_overlay(overlay),
          m_geometry(geometry),
          m_style(style) {}

    /// All pixels that Paint may touch, and few others: what has to be painted anew when the
    /// overlay comes or goes.
    [[nodiscard]] QRegion Covered() const;
    /// All but the floating block, which FloatingPicture paints before. One unit of the painter
    /// must be one pixel of the device, and its origin the corner of square (1, 1). The painter's
    /// state is as it was afterwards.
    void Paint(QPainter& painter) const;

private:
    Overlay m_overlay;
    GridGeometry m_geometry;
    OverlayStyle m_style;
};

} // namespace zol
