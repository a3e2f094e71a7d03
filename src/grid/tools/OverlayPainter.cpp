// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/OverlayPainter.h"

#include <QImage>
#include <QLineF>
#include <QPainter>
#include <QRect>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "grid/painting/Capsule.h"
#include "grid/painting/FillHere.h"
#include "grid/painting/PixelMasks.h"
#include "grid/tools/FloatingPicture.h"

namespace zol {

namespace {

constexpr double HandleWidth = 10; // of the window's pixels, as the next one
constexpr double CasingWidth = 1;
constexpr int MaxPieces = 64; // that a rubber band's region is made of
constexpr double PieceLength = 48;
constexpr int AxisCasingAlpha = 150;

/// The four sides of a rectangle's rim, which lies inside it.
std::vector<QRect> RimOf(const QRect& rect, int width) {
    const int across = std::min(width, rect.width());
    const int down = std::min(width, rect.height());
    return {QRect(rect.left(), rect.top(), rect.width(), down),
            QRect(rect.left(), rect.bottom() - down + 1, rect.width(), down),
            QRect(rect.left(), rect.top(), across, rect.height()),
            QRect(rect.right() - across + 1, rect.top(), across, rect.height())};
}

/// Where the parts of an overlay lie, in pixels of the device.
class Layout {
public:
    Layout(const GridGeometry& geometry, int lineWidth)
        : m_geometry(geometry),
          m_lineWidth(std::max(1, lineWidth)) {}

    [[nodiscard]] int LineWidth() const { return m_lineWidth; }
    [[nodiscard]] int Casing() const { return FromWindow(CasingWidth); }

    /// Through the same pixels as a backstitch line of that width.
    [[nodiscard]] QLineF BandOf(const OverlayLine& line) const {
        const double shift = m_lineWidth % 2 != 0 ? 0.5 : 0.0;
        return QLineF(PointOf(line.Start), PointOf(line.End)).translated(shift, shift);
    }
    [[nodiscard]] QRect HandleAt(const LatticePos& end) const {
        const int width = FromWindow(HandleWidth);
        return {PointOf(end) - QPoint(width / 2, width / 2), QSize(width, width)};
    }
    /// Empty if the frame lies outside the grid.
    [[nodiscard]] QRect FrameOf(const SquareRect& frame) const {
        return m_geometry.PixelsOf(frame) & QRect(QPoint(0, 0), m_geometry.GridSize());
    }
    /// Empty while the axis has no centre on the grid.
    [[nodiscard]] QRect AxisOf(const OverlayAxis& axis) const {
        const SquareRect all = m_geometry.Everything();
        const SquarePos centre = axis.Centre;
        if (centre.X < all.Left || centre.X > all.Right || centre.Y < all.Top ||
            centre.Y > all.Bottom) {
            return {};
        }
        const QPoint middle = m_geometry.PointOf(centre.X, centre.Y, 5);
        const QSize grid = m_geometry.GridSize();
        const int width = FromWindow(1);
        return axis.Axis == MirrorVertical ? QRect(middle.x() - width / 2, 0, width, grid.height())
                                           : QRect(0, middle.y() - width / 2, grid.width(), width);
    }

private:
    [[nodiscard]] int FromWindow(double pixels) const {
        return std::max(1, static_cast<int>(std::lround(pixels * m_geometry.PixelRatio())));
    }
    [[nodiscard]] QPoint PointOf(const LatticePos& point) const {
        const auto square = [](int place) {
            return (place - 1 - (place % 2 == 0 ? 1 : 0)) / 2 + 1;
        };
        const int region = (point.LX % 2 == 0 ? 2 : 1) + (point.LY % 2 == 0 ? 3 : 0);
        return m_geometry.PointOf(square(point.LX), square(point.LY), region);
    }

    const GridGeometry& m_geometry;
    int m_lineWidth;
};

/// Follows the line in short pieces, so that a slanting one does not cover all that lies between
/// its ends.
QRegion RegionAlong(const QLineF& line, double margin) {
    const int pieces =
        std::clamp(static_cast<int>(std::ceil(line.length() / PieceLength)), 1, MaxPieces);
    QRegion region;
    for (int piece = 0; piece < pieces; ++piece) {
        const QPointF from = line.pointAt(static_cast<double>(piece) / pieces);
        const QPointF to = line.pointAt((piece + 1.0) / pieces);
        region += QRectF(from, to)
                      .normalized()
                      .adjusted(-margin, -margin, margin, margin)
                      .toAlignedRect();
    }
    return region;
}

QRect Widened(const QRect& rect, int by) {
    return rect.adjusted(-by, -by, by, by);
}

/// What of the painter's device may be painted; far more where nothing is cut.
QRect VisibleOf(const QPainter& painter) {
    constexpr int far = 1 << 28;
    return painter.hasClipping() ? painter.clipBoundingRect().toAlignedRect()
                                 : QRect(QPoint(-far, -far), QPoint(far, far));
}

/// Accent with casing round it.
void FillCased(QPainter& painter, const QRect& visible, const QRect& rect, int casing,
               const OverlayStyle& style) {
    FillHere(painter, Widened(rect, casing) & visible, style.Casing);
    FillHere(painter, rect & visible, style.Accent);
}

void PaintFrame(QPainter& painter, const QRect& visible, const QRect& frame, int width,
                const OverlayStyle& style) {
    for (const QRect& side : RimOf(Widened(frame, width), 3 * width)) {
        FillHere(painter, side & visible, style.Casing);
    }
    for (const QRect& side : RimOf(frame, width)) {
        FillHere(painter, side & visible, style.Accent);
    }
}

/// Mixes a colour into the pixels of a strip, row by row without a gap.
void CoverPiece(std::vector<QRgb>& pixels, const QRect& strip, const Capsule& piece, QRgb colour) {
    const std::uint64_t ink = LanesOf(colour);
    QRgb* row = pixels.data();
    for (int y = strip.top(); y <= strip.bottom(); ++y, row += strip.width()) {
        const auto [from, to] = piece.Row(y);
        const int last = std::min(to, strip.right());
        for (int x = std::max(from, strip.left()); x <= last; ++x) {
            const unsigned cover = piece.Cover(x, y);
            QRgb& pixel = row[x - strip.left()];
            pixel = PixelOf(ink * cover + LanesOf(pixel) * (255 - cover));
        }
    }
}

/// As a backstitch line is painted: some scan lines at a time, so that only the pixels along the
/// line are touched. The system's own smooth lines cost a view's repaint half as much again.
void PaintBand(QPainter& painter, const QRect& visible, const QLineF& band, const Layout& layout,
               const OverlayStyle& style) {
    constexpr int rows = 32;
    const double width = layout.LineWidth();
    const Capsule cased(band.p1(), band.p2(), width / 2 + layout.Casing());
    const Capsule accent(band.p1(), band.p2(), width / 2);
    const int last = std::min(visible.bottom(), cased.Bottom());
    std::vector<QRgb> pixels;
    for (int top = std::max(visible.top(), cased.Top()); top <= last; top += rows) {
        const int bottom = std::min(top + rows - 1, last);
        const auto [upperLeft, upperRight] = cased.Row(top);
        const auto [lowerLeft, lowerRight] = cased.Row(bottom);
        const QRect strip = QRect(QPoint(std::min(upperLeft, lowerLeft), top),
                                  QPoint(std::max(upperRight, lowerRight), bottom)) &
                            visible;
        if (strip.isEmpty()) {
            continue;
        }
        pixels.assign(
            static_cast<std::size_t>(strip.width()) * static_cast<std::size_t>(strip.height()), 0);
        CoverPiece(pixels, strip, cased, style.Casing.rgb());
        CoverPiece(pixels, strip, accent, style.Accent.rgb());
        const QImage picture(reinterpret_cast<const uchar*>(pixels.data()), strip.width(),
                             strip.height(), QImage::Format_ARGB32_Premultiplied);
        painter.drawImage(strip.topLeft(), picture);
    }
}

} // namespace

QRegion OverlayPainter::Covered() const {
    const Layout layout(m_geometry, m_style.LineWidth);
    QRegion region;
    if (m_overlay.Content) {
        region += FloatingPicture::Covered(*m_overlay.Content, m_geometry);
    }
    if (m_overlay.Mirror) {
        const QRect axis = layout.AxisOf(*m_overlay.Mirror);
        region += axis.isEmpty() ? axis : Widened(axis, layout.Casing());
    }
    if (m_overlay.Frame) {
        const QRect frame = layout.FrameOf(*m_overlay.Frame);
        if (!frame.isEmpty()) {
            for (const QRect& side : RimOf(Widened(frame, layout.Casing()), 3 * layout.Casing())) {
                region += side;
            }
        }
    }
    if (m_overlay.RubberBand) {
        // Half the pen, the casing, and a pixel that smoothing may touch.
        const double margin = layout.LineWidth() / 2.0 + layout.Casing() + 1;
        region += RegionAlong(layout.BandOf(*m_overlay.RubberBand), margin);
    }
    if (m_overlay.Handles) {
        for (const LatticePos& end : {m_overlay.Handles->Start, m_overlay.Handles->End}) {
            region += Widened(layout.HandleAt(end), layout.Casing());
        }
    }
    return region;
}

void OverlayPainter::Paint(QPainter& painter) const {
    const Layout layout(m_geometry, m_style.LineWidth);
    const QRect visible = VisibleOf(painter);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    if (m_overlay.Mirror) {
        const QRect axis = layout.AxisOf(*m_overlay.Mirror);
        if (!axis.isEmpty()) {
            OverlayStyle fine = m_style;
            fine.Casing.setAlpha(AxisCasingAlpha);
            FillCased(painter, visible, axis, layout.Casing(), fine);
        }
    }
    if (m_overlay.Frame) {
        const QRect frame = layout.FrameOf(*m_overlay.Frame);
        if (!frame.isEmpty()) {
            PaintFrame(painter, visible, frame, layout.Casing(), m_style);
        }
    }
    if (m_overlay.RubberBand) {
        PaintBand(painter, visible, layout.BandOf(*m_overlay.RubberBand), layout, m_style);
    }
    if (m_overlay.Handles) {
        for (const LatticePos& end : {m_overlay.Handles->Start, m_overlay.Handles->End}) {
            FillCased(painter, visible, layout.HandleAt(end), layout.Casing(), m_style);
        }
    }
    painter.restore();
}

} // namespace zol
