// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QRectF>

#include <vector>

#include "import/PictureBand.h"
#include "import/PictureRegion.h"
#include "import/windows/PicturePlace.h"

class QPainter;

namespace zol {

class PictureView;

/// The outline of an area that somebody draws over a picture. All places are the picture's.
class AreaOutline {
public:
    enum class Shape { Freehand, Rectangle, Oval };

    /// Takes the place of what was drawn before, on a picture of that size.
    void Begin(Shape shape, QPointF place, int width, int height);
    /// On to that place; the view repaints what differs.
    void ExtendTo(QPointF place, PictureView& view);
    void Clear() { m_line.clear(); }

    /// Selects what lies within.
    void SelectIn(PictureRegion& region) const;
    /// The painter's unit is a pixel of the device. A line by hand that is not closed lacks the way
    /// back to its start.
    void Paint(QPainter& painter, const PicturePlace& place, bool closed) const;

private:
    [[nodiscard]] QRectF Rect() const;

    Shape m_shape = Shape::Freehand;
    std::vector<PicturePoint> m_line; ///< of one by hand
    PictureBand m_band;               ///< of the others
};

} // namespace zol
