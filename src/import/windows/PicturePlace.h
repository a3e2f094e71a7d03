// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>

namespace zol {

/// Where a picture lies in its view. Places in the picture count from 0, and a pixel goes from its
/// number to the next; the view's places are pixels of the device.
struct PicturePlace {
    QRect Content;    ///< the whole picture, in device pixels of the view, scrolling counted in
    QSize Picture;    ///< in pixels of its own
    double Ratio = 1; ///< device pixels to one of the window's

    [[nodiscard]] bool IsEmpty() const { return Picture.isEmpty() || Content.isEmpty(); }
    /// Device pixels that a pixel of the picture takes.
    [[nodiscard]] double ScaleX() const { return double(Content.width()) / Picture.width(); }
    [[nodiscard]] double ScaleY() const { return double(Content.height()) / Picture.height(); }
    [[nodiscard]] QPointF OnView(QPointF place) const {
        return {Content.x() + place.x() * ScaleX(), Content.y() + place.y() * ScaleY()};
    }
    [[nodiscard]] QRectF OnView(const QRectF& rect) const {
        return {OnView(rect.topLeft()), OnView(rect.bottomRight())};
    }
    [[nodiscard]] QPointF InPicture(QPointF device) const {
        return {(device.x() - Content.x()) / ScaleX(), (device.y() - Content.y()) / ScaleY()};
    }

    friend bool operator==(const PicturePlace&, const PicturePlace&) = default;
};

} // namespace zol
