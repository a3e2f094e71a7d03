// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QLineF>
#include <QPolygonF>

#include <algorithm>
#include <array>
#include <utility>

#include "grid/painting/Capsule.h"
#include "grid/painting/Cores.h"
#include "grid/painting/LineMasks.h"
#include "grid/painting/PaintColors.h"
#include "grid/painting/StyledLine.h"

namespace zol {

namespace {

/// Straight pieces that stand for one Bezier curve of a squiggle.
int PiecesOf(const std::array<QPointF, 4>& p) {
    constexpr double pixelsEach = 4;
    const double length =
        QLineF(p[0], p[1]).length() + QLineF(p[1], p[2]).length() + QLineF(p[2], p[3]).length();
    return std::clamp(static_cast<int>(length / pixelsEach), 2, 12);
}

} // namespace

std::vector<QPointF> PiecesOfCurve(const std::array<QPointF, 4>& p) {
    std::vector<QPointF> curve{p[0]};
    const int pieces = PiecesOf(p);
    for (int i = 1; i <= pieces; ++i) {
        const double t = static_cast<double>(i) / pieces;
        const double u = 1 - t;
        curve.push_back(p[0] * (u * u * u) + p[1] * (3 * u * u * t) + p[2] * (3 * u * t * t) +
                        p[3] * (t * t * t));
    }
    return curve;
}

void PixelCanvas::Line(QPoint start, QPoint end, const LinePen& pen) {
    if (start.x() > end.x()) {
        std::swap(start, end);
    }
    m_masks.TakeLook(pen, m_antialias);
    const QPoint margin(m_masks.Margin(), m_masks.Margin());
    const QPoint upper(start.x(), std::min(start.y(), end.y()));
    const QPoint lower(end.x(), std::max(start.y(), end.y()));
    if (!QRect(upper - margin, lower + margin).intersects(Visible())) {
        return;
    }
    if (m_masks.IsFull()) {
        Flush();
        m_masks.Clear();
    }
    const LineMask* mask = m_masks.Find(end - start, pen.Style);
    if (mask == nullptr) {
        Flush(); // what lies beneath it
        LineCanvas::Line(start, end, pen);
        return;
    }
    m_placed.push_back({start - m_origin, mask, pen.Ground, pen.Floss});
}

std::vector<std::vector<std::uint32_t>> PixelCanvas::LinesOfBands() const {
    std::vector<std::vector<std::uint32_t>> lines(m_bands.Rows.size() - 1);
    for (std::size_t i = 0; i < m_placed.size(); ++i) {
        const QRect covered = m_placed[i].Mask->Bounds.translated(m_placed[i].Place);
        const int from = std::max(0, covered.top());
        const int to = std::min(m_target.Height - 1, covered.bottom());
        if (covered.isEmpty() || from > to) {
            continue;
        }
        auto band = std::upper_bound(m_bands.Rows.begin(), m_bands.Rows.end(), from) - 1;
        for (; band != m_bands.Rows.end() - 1 && *band <= to; ++band) {
            lines[static_cast<std::size_t>(band - m_bands.Rows.begin())].push_back(
                static_cast<std::uint32_t>(i));
        }
    }
    return lines;
}

void PixelCanvas::Flush() {
    if (m_placed.empty() && !m_bands.Behind) {
        return;
    }
    const std::vector<std::vector<std::uint32_t>> lines = LinesOfBands();
    Cores::Run(m_bands.Workers, static_cast<int>(lines.size()), [&](int worker, int band) {
        const auto at = static_cast<std::size_t>(band);
        PaintBand(worker, m_bands.Rows[at], m_bands.Rows[at + 1] - 1, lines[at]);
    });
    m_bands.Behind = nullptr;
    m_placed.clear();
}

void PixelCanvas::PaintBand(int worker, int top, int bottom,
                            const std::vector<std::uint32_t>& lines) {
    if (m_bands.Behind) {
        m_bands.Behind(worker, top, bottom);
    }
    for (const std::uint32_t i : lines) {
        const Placed& line = m_placed[i];
        BlendCover(m_target, top, bottom, line.Place, line.Mask->Under, ToRgb(line.Ground));
        BlendCover(m_target, top, bottom, line.Place, line.Mask->Over, ToRgb(line.Floss));
    }
}

void PixelCanvas::Piece(const QLine& line, int width, Colour colour) {
    const double shift = width % 2 != 0 ? 0.5 : 0.0;
    const QPointF offset = QPointF(shift, shift) - m_origin;
    const Capsule capsule(line.p1() + offset, line.p2() + offset, width / 2.0);
    const QRgb rgb = ToRgb(colour);
    const int bottom = std::min(capsule.Bottom(), m_target.Height - 1);
    for (int y = std::max(0, capsule.Top()); y <= bottom; ++y) {
        const auto [from, to] = capsule.Row(y);
        QRgb* row = m_target.Row(y);
        for (int x = std::max(0, from); x <= std::min(to, m_target.Width - 1); ++x) {
            BlendPixel(row[x], rgb, Sharpened(capsule.Cover(x, y), m_antialias));
        }
    }
}

void PixelCanvas::Wave(const std::vector<QPoint>& points, int width, Colour colour) {
    const double shift = width % 2 != 0 ? 0.5 : 0.0;
    const QPointF offset = QPointF(shift, shift) - m_origin;
    for (std::size_t i = 0; i + 3 < points.size(); i += 3) {
        const std::array<QPointF, 4> bends{points[i] + offset, points[i + 1] + offset,
                                           points[i + 2] + offset, points[i + 3] + offset};
        CoverCurve(PiecesOfCurve(bends), width, colour);
    }
}

/// The pieces of a curve cover together, so that their joints are no darker than the rest.
void PixelCanvas::CoverCurve(const std::vector<QPointF>& curve, int width, Colour colour) {
    const QRectF bounds = QPolygonF(QList<QPointF>(curve.begin(), curve.end())).boundingRect();
    const QRect area = bounds.toAlignedRect().adjusted(-width, -width, width, width);
    if (!area.intersects(QRect(0, 0, m_target.Width, m_target.Height))) {
        return;
    }
    m_scratch.Width = area.width();
    m_scratch.Height = area.height();
    m_scratch.Cover.assign(
        static_cast<std::size_t>(area.width()) * static_cast<std::size_t>(area.height()), 0);
    for (std::size_t i = 1; i < curve.size(); ++i) {
        const Capsule capsule(curve[i - 1] - area.topLeft(), curve[i] - area.topLeft(),
                              width / 2.0);
        const int bottom = std::min(capsule.Bottom(), area.height() - 1);
        for (int y = std::max(0, capsule.Top()); y <= bottom; ++y) {
            const auto [from, to] = capsule.Row(y);
            std::uint8_t* row = m_scratch.Cover.data() + static_cast<std::size_t>(y) *
                                                             static_cast<std::size_t>(area.width());
            for (int x = std::max(0, from); x <= std::min(to, area.width() - 1); ++x) {
                row[x] = std::max(
                    row[x], static_cast<std::uint8_t>(Sharpened(capsule.Cover(x, y), m_antialias)));
            }
        }
    }
    BlendMask(m_target, area.left(), area.top(), m_scratch, ToRgb(colour));
}

QRect PixelCanvas::Visible() const {
    return {m_origin.x(), m_origin.y(), m_target.Width, m_target.Height};
}

} // namespace zol
