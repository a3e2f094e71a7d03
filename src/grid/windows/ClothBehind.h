// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QRegion>

#include <functional>

namespace zol {

/// The cloth that shows, as it looks without what floats over it. Kept while a block floats, so
/// that moving the block paints no square anew. Pixels are the device's, counted from the corner of
/// square (1, 1).
class ClothBehind {
public:
    /// Paints the cloth into an image whose upper left pixel is the one given.
    using Paint = std::function<void(QImage& image, QPoint corner)>;

    /// Nothing of it is true any more; the memory is given back.
    void Forget() { *this = ClothBehind(); }
    /// These pixels are not.
    void Forget(const QRect& pixels) { m_true -= pixels; }
    /// The picture, of which `wanted` is true: what is not known of it is painted first. `shown` is
    /// all that the window shows of the cloth.
    [[nodiscard]] const QImage& Picture(const QRect& wanted, const QRect& shown,
                                        const Paint& paint);
    /// The pixel that the picture's upper left one shows.
    [[nodiscard]] QPoint Corner() const { return m_area.topLeft(); }

private:
    void MoveTo(const QRect& area);

    QImage m_image;
    QRect m_area;   ///< of the image
    QRegion m_true; ///< the part of it that is painted
};

} // namespace zol
