// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QPainter>

#include <algorithm>
#include <cstring>

#include "grid/painting/GridPainter.h"
#include "grid/painting/PaintColors.h"
#include "grid/painting/ViewPass.h"
#include "grid/tools/OverlayPainter.h"
#include "grid/windows/GridCanvas.h"
#include "windowkit/DevicePixels.h"

namespace zol {

namespace {

/// Pixels whose painting takes so long that nothing is gained by adding others to them.
constexpr double LargeArea = 128 * 1024;

double AreaOf(const QRect& rect) {
    return static_cast<double>(rect.width()) * rect.height();
}

/// A rectangle that is painted at one go.
struct Part {
    QRect Rect;
    double Wanted; ///< pixels in it that are exposed

    [[nodiscard]] bool IsWhollyExposed() const { return Wanted == AreaOf(Rect); }
};

/// Parts that hold the region, few of them: each has its cost beside its pixels. They hold at most
/// about twice the region's pixels; what is too much is cut off by the painter. A large rectangle
/// of the region stays by itself, since what holds nothing else is painted where the window keeps
/// it.
std::vector<Part> FewPartsOf(const QRegion& region) {
    std::vector<Part> parts;
    for (const QRect& rect : region) {
        const double area = AreaOf(rect);
        const auto near = std::find_if(parts.begin(), parts.end(), [&](const Part& part) {
            return area < LargeArea && part.Wanted < LargeArea &&
                   AreaOf(part.Rect | rect) <= 2 * (part.Wanted + area);
        });
        if (near == parts.end()) {
            parts.push_back({rect, area});
        } else {
            near->Rect |= rect;
            near->Wanted += area;
        }
    }
    return parts;
}

/// Copies so many pixels of a picture to a place of another.
void CopyPart(const QImage& picture, QPoint from, QImage& image, QPoint to, const QSize& size) {
    const uchar* source = picture.constScanLine(from.y()) + qsizetype{from.x()} * 4;
    uchar* target = image.scanLine(to.y()) + qsizetype{to.x()} * 4;
    const auto bytes = static_cast<std::size_t>(size.width()) * sizeof(QRgb);
    for (int y = 0; y < size.height(); ++y) {
        std::memcpy(target, source, bytes);
        source += picture.bytesPerLine();
        target += image.bytesPerLine();
    }
}

} // namespace

void GridCanvas::PaintExposed(const QRegion& region) {
    QPainter painter(this);
    const DevicePixels device(painter);
    QRegion exposed;
    for (const QRect& rect : region) {
        exposed += device.Covering(rect);
    }
    if (m_pattern != nullptr) {
        m_pass = m_painter.BeginImages(View(), m_geometry.Everything(), exposed.boundingRect());
    }
    const OverlayPainter overlay = OverlayOf(m_pattern != nullptr ? m_overlay : Overlay{});
    const Layers layers{overlay, overlay.Covered(),
                        device.Covering(visibleRegion().boundingRect())};
    for (const Part& part : FewPartsOf(exposed)) {
        QImage window = device.PixelsOf(*this, painter, part.Rect);
        // What is exposed as a whole is painted where the window keeps its pixels.
        if (!window.isNull() && part.IsWhollyExposed()) {
            PaintPart(window, part.Rect, layers);
            continue;
        }
        for (const QRect& band : BandsOf(part.Rect)) {
            QImage image = BandImage(band.size());
            PaintPart(image, band, layers);
            ShowBand(painter, {window, part.Rect.topLeft()}, {image, band.topLeft()}, exposed);
        }
    }
}

std::vector<QRect> GridCanvas::BandsOf(const QRect& part) const {
    const int rows = std::max(8, BandBytes / (part.width() * static_cast<int>(sizeof(QRgb))));
    std::vector<QRect> bands;
    for (int top = part.top(); top <= part.bottom();) {
        int end = std::min(top + rows, part.bottom() + 1);
        if (end <= part.bottom() && m_pattern != nullptr) {
            // No row of squares is painted twice, if it has room.
            const int edge = m_geometry.TopOf(m_geometry.RowAt(end));
            end = edge > top ? edge : end;
        }
        bands.emplace_back(part.left(), top, part.width(), end - top);
        top = end;
    }
    return bands;
}

QImage GridCanvas::BandImage(const QSize& size) {
    const auto count =
        static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height());
    m_band.resize(std::max(count, m_band.size()));
    return {reinterpret_cast<uchar*>(m_band.data()), size.width(), size.height(),
            static_cast<qsizetype>(size.width()) * 4, QImage::Format_RGB32};
}

void GridCanvas::PaintPart(QImage& image, const QRect& pixels, const Layers& layers) {
    if (m_pattern != nullptr && m_overlay.Content) {
        const QImage& cloth =
            m_behind.Picture(pixels, layers.Shown,
                             [this](QImage& part, QPoint corner) { PaintCloth(part, corner); });
        m_floating.PaintOver(cloth, m_behind.Corner(), image, pixels.topLeft(), *m_overlay.Content,
                             m_geometry, m_options);
    } else {
        PaintCloth(image, pixels.topLeft());
    }
    if (layers.Covered.intersects(pixels)) {
        QPainter over(&image);
        over.translate(-pixels.topLeft());
        over.setClipRect(pixels);
        layers.Over.Paint(over);
    }
}

void GridCanvas::PaintCloth(QImage& image, QPoint corner) {
    const bool whole =
        m_pattern != nullptr &&
        QRect(QPoint(0, 0), m_geometry.GridSize()).contains(QRect(corner, image.size()));
    if (!whole) {
        image.fill(ToRgb(m_options.ClothColor));
    }
    if (m_pass) {
        m_pass->Paint(image, corner);
    }
}

void GridCanvas::ShowBand(QPainter& painter, const Piece& window, const Piece& band,
                          const QRegion& exposed) {
    // A rectangle that lies wholly in what is exposed is copied as it is; one that the system had
    // to cut would go to the screen in little pieces, handed from thread to thread.
    const QRect pixels(band.Corner, band.Image.size());
    for (const QRect& rect : exposed) {
        const QRect shown = rect & pixels;
        if (shown.isEmpty()) {
            continue;
        }
        const QPoint from = shown.topLeft() - band.Corner;
        if (window.Image.isNull()) {
            painter.drawImage(shown.topLeft(), band.Image, QRect(from, shown.size()));
        } else {
            CopyPart(band.Image, from, window.Image, shown.topLeft() - window.Corner, shown.size());
        }
    }
}

} // namespace zol
