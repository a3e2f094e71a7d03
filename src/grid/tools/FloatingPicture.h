// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>

#include <cstddef>
#include <memory>
#include <vector>

#include "grid/GridGeometry.h"
#include "grid/painting/PaintOptions.h"
#include "grid/tools/Overlay.h"
#include "grid/tools/PictureRows.h"

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
    /// Lays the block over the cloth that an image shows; its upper left pixel is `corner`, counted
    /// likewise. Nothing outside the grid is touched. The image is of Format_RGB32.
    void Paint(QImage& image, QPoint corner, const OverlayContent& content,
               const GridGeometry& geometry, const PaintOptions& options);
    /// The same from another image, which holds the cloth of all those pixels and whose own upper
    /// left is `clothCorner`: what the block hides is not even read.
    void PaintOver(const QImage& cloth, QPoint clothCorner, QImage& image, QPoint corner,
                   const OverlayContent& content, const GridGeometry& geometry,
                   const PaintOptions& options);
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

    /// Pixels of a row that are laid in one way.
    struct Run {
        int End; ///< behind the last pixel
        PictureRows::Kind What;
    };

    [[nodiscard]] bool Serves(const OverlayContent& content, const GridGeometry& geometry,
                              const PaintOptions& options) const;
    /// Makes sure of the picture's pixels that lie in `visible`; where the block's corner lies now.
    [[nodiscard]] QPoint Prepare(const OverlayContent& content, const GridGeometry& geometry,
                                 const PaintOptions& options, const QRect& visible);
    void BuildEditBoxPicture(const QRect& part);
    void AddRuns(const QRgb* pixels, int count);
    /// A row of the picture from pixel `first` on, over so many pixels of cloth.
    void PaintRow(int row, int first, int count, const QRgb* cloth, QRgb* to) const;

    std::unique_ptr<GridPainter> m_painter;
    Subject m_subject;
    QPoint m_corner; ///< upper left of the block where it was made for, pixels of the design
    QRect m_part;    ///< of the picture, counted from the block's corner
    QImage m_image;
    std::vector<Run> m_runs;              ///< row by row
    std::vector<std::size_t> m_firstRuns; ///< of each row, and behind the last
};

} // namespace zol
