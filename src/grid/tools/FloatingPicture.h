// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>

#include <memory>

#include "grid/GridGeometry.h"
#include "grid/painting/PaintOptions.h"
#include "grid/tools/Overlay.h"

class QPainter;

namespace zol {

class GridPainter;

/// The edit box's picture: a floating block as it looks at the present zoom, without the cloth, so
/// that the design shows through where the block has no stitches. It is made once for a block and
/// a zoom and then only moved. Of a block much larger than a screen it holds the part that shows.
class FloatingPicture {
public:
    FloatingPicture();
    ~FloatingPicture();
    FloatingPicture(const FloatingPicture&) = delete;
    FloatingPicture& operator=(const FloatingPicture&) = delete;

    /// The pixels that the block may cover, counted from the design's square (1, 1).
    [[nodiscard]] static QRect Covered(const OverlayContent& content, const GridGeometry& geometry);
    /// Paints the part of the block that lies in `wanted`, pixels counted likewise, and nothing
    /// outside the grid. One unit of the painter is a pixel, its origin the corner of square (1,
    /// 1).
    void Paint(QPainter& painter, const OverlayContent& content, const GridGeometry& geometry,
               const PaintOptions& options, const QRect& wanted);
    /// Gives the memory back.
    void Clear();

private:
    /// What the picture was made for.
    struct Subject {
        std::shared_ptr<const Pattern> Block;
        SquarePos At; ///< edges of squares are rounded there
        GridScale Scale;
        PaintOptions Options;
    };

    [[nodiscard]] bool Serves(const OverlayContent& content, const GridGeometry& geometry,
                              const PaintOptions& options) const;
    void BuildEditBoxPicture(const QRect& part);

    std::unique_ptr<GridPainter> m_painter;
    Subject m_subject;
    QPoint m_corner; ///< upper left of the block where it was made for, pixels of the design
    QRect m_part;    ///< of the picture, counted from the block's corner
    QImage m_image;
};

} // namespace zol
