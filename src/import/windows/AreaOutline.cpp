// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/AreaOutline.h"

#include <cmath>

#include "import/windows/PictureMarks.h"
#include "import/windows/PictureView.h"

namespace zol {

namespace {

PicturePoint PointOf(QPointF place) {
    return {place.x(), place.y()};
}

} // namespace

void AreaOutline::Begin(Shape shape, QPointF place, int width, int height) {
    m_shape = shape;
    m_line.assign(1, PointOf(place));
    m_band.Start(width, height);
    m_band.PressAnew(PointOf(place));
}

void AreaOutline::ExtendTo(QPointF place, PictureView& view) {
    const int reach = 2 + 2 * static_cast<int>(std::ceil(view.Place().Ratio));
    if (m_shape == Shape::Freehand) {
        const PicturePoint last = m_line.back();
        m_line.push_back(PointOf(place));
        view.UpdateOverlay(QRectF(QPointF(last.X, last.Y), place), reach);
    } else {
        const QRectF before = Rect();
        m_band.MoveTo(PointOf(place));
        view.UpdateOverlay(before, reach);
        view.UpdateOverlay(Rect(), reach);
    }
}

void AreaOutline::SelectIn(PictureRegion& region) const {
    switch (m_shape) {
    case Shape::Freehand:
        region.SelectFreehandRegion(m_line);
        break;
    case Shape::Rectangle:
        region.SelectRectRegion(m_band.Rect());
        break;
    case Shape::Oval:
        region.SelectOvalRegion(m_band.Rect());
        break;
    }
}

void AreaOutline::Paint(QPainter& painter, const PicturePlace& place, bool closed) const {
    switch (m_shape) {
    case Shape::Freehand:
        PictureMarks::DrawLine(painter, place, m_line, closed);
        break;
    case Shape::Rectangle:
        PictureMarks::DrawRect(painter, place, Rect());
        break;
    case Shape::Oval:
        PictureMarks::DrawOval(painter, place, Rect());
        break;
    }
}

QRectF AreaOutline::Rect() const {
    const PixelRect& rect = m_band.Rect();
    return QRectF(rect.Left, rect.Top, rect.Width, rect.Height);
}

} // namespace zol
