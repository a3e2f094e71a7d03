// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <array>
#include <cmath>

#include "grid/painting/PaintColors.h"
#include "grid/painting/StyledLine.h"

namespace zol {

namespace {

/// A piece of line with round ends: all that lies within `radius` of it.
class Capsule {
public:
    Capsule(QPointF start, QPointF end, double radius)
        : m_start(start),
          m_end(end),
          m_radius(radius),
          m_length(LengthOf(end - start)) {
        if (m_length > 0) {
            m_direction = (end - start) / m_length;
        }
        const double inner = std::max(0.0, radius - 0.5);
        m_innerSquare = inner * inner;
        m_outerSquare = (radius + 0.5) * (radius + 0.5);
        m_slanted = std::abs(m_direction.y()) > 1e-6;
        if (m_slanted) {
            m_slope = m_direction.x() / m_direction.y();
            m_rowReach = (radius + 0.5) / std::abs(m_direction.y());
        }
    }

    [[nodiscard]] int Top() const {
        return FirstPixel(std::min(m_start.y(), m_end.y()) - m_radius - 0.5);
    }
    [[nodiscard]] int Bottom() const {
        return LastPixel(std::max(m_start.y(), m_end.y()) + m_radius + 0.5);
    }
    /// The pixels of a row that may be covered.
    [[nodiscard]] std::pair<int, int> Row(int row) const {
        double from = std::min(m_start.x(), m_end.x()) - m_radius - 0.5;
        double to = std::max(m_start.x(), m_end.x()) + m_radius + 0.5;
        if (m_slanted) {
            const double middle = m_start.x() + (row + 0.5 - m_start.y()) * m_slope;
            from = std::max(from, middle - m_rowReach);
            to = std::min(to, middle + m_rowReach);
        }
        return {FirstPixel(from), LastPixel(to)};
    }

    /// How much of a pixel is covered, 0 to 255.
    [[nodiscard]] unsigned Cover(int x, int y) const {
        const double dx = x + 0.5 - m_start.x();
        const double dy = y + 0.5 - m_start.y();
        const double along = dx * m_direction.x() + dy * m_direction.y();
        const double across = dx * m_direction.y() - dy * m_direction.x();
        if (along >= 0 && along <= m_length) {
            return Share(m_radius + 0.5 - std::abs(across));
        }
        const double beyond = along < 0 ? along : along - m_length;
        const double square = m_length > 0 ? beyond * beyond + across * across : dx * dx + dy * dy;
        if (square <= m_innerSquare) {
            return 255;
        }
        return square >= m_outerSquare ? 0 : Share(m_radius + 0.5 - std::sqrt(square));
    }

private:
    /// The first and last pixel whose middle lies on the inner side of an edge.
    [[nodiscard]] static int FirstPixel(double edge) { return -LastPixel(-edge) - 1; }
    [[nodiscard]] static int LastPixel(double edge) {
        const double place = edge - 0.5;
        const int cut = static_cast<int>(place);
        return place < cut ? cut - 1 : cut;
    }
    static double LengthOf(QPointF span) {
        return std::sqrt(span.x() * span.x() + span.y() * span.y());
    }

    [[nodiscard]] static unsigned Share(double cover) {
        constexpr double half = 0.5; // rounds what is never negative
        return static_cast<unsigned>(std::clamp(cover, 0.0, 1.0) * 255 + half);
    }

    QPointF m_start;
    QPointF m_end;
    double m_radius;
    double m_length;
    QPointF m_direction; ///< of length 1; (0, 0) for a point
    double m_innerSquare;
    double m_outerSquare;
    bool m_slanted;
    double m_rowReach = 0;
    double m_slope = 0;
};

/// Without antialiasing a pixel is covered or not.
unsigned Sharpened(unsigned cover, bool antialias) {
    return antialias ? cover : cover >= 128 ? 255 : 0;
}

/// The mask of a piece from (0, 0), its pen's shift included.
PixelMask MaskOf(QPoint span, int width, bool antialias) {
    const double shift = width % 2 != 0 ? 0.5 : 0.0;
    const Capsule capsule({shift, shift}, span + QPointF(shift, shift), width / 2.0);
    const auto coverOf = [&](int x, int y) {
        return static_cast<std::uint8_t>(Sharpened(capsule.Cover(x, y), antialias));
    };
    QRect inked;
    for (int y = capsule.Top(); y <= capsule.Bottom(); ++y) {
        const auto [from, to] = capsule.Row(y);
        for (int x = from; x <= to; ++x) {
            if (coverOf(x, y) != 0) {
                inked |= QRect(x, y, 1, 1);
            }
        }
    }
    PixelMask mask{inked.left(), inked.top(), inked.width(), inked.height(), {}};
    mask.Cover.reserve(static_cast<std::size_t>(mask.Width) *
                       static_cast<std::size_t>(mask.Height));
    for (int y = inked.top(); y <= inked.bottom(); ++y) {
        for (int x = inked.left(); x <= inked.right(); ++x) {
            mask.Cover.push_back(coverOf(x, y));
        }
    }
    return mask;
}

/// Straight pieces that stand for one Bezier curve of a squiggle.
int PiecesOf(const std::array<QPointF, 4>& p) {
    constexpr double pixelsEach = 4;
    const double length =
        QLineF(p[0], p[1]).length() + QLineF(p[1], p[2]).length() + QLineF(p[2], p[3]).length();
    return std::clamp(static_cast<int>(length / pixelsEach), 2, 12);
}

void AddCurve(std::vector<QPointF>& curve, const std::array<QPointF, 4>& p) {
    const int pieces = PiecesOf(p);
    for (int i = 1; i <= pieces; ++i) {
        const double t = static_cast<double>(i) / pieces;
        const double u = 1 - t;
        curve.push_back(p[0] * (u * u * u) + p[1] * (3 * u * u * t) + p[2] * (3 * u * t * t) +
                        p[3] * (t * t * t));
    }
}

} // namespace

void PixelCanvas::Piece(const QLine& line, int width, Colour colour) {
    if (std::abs(line.dx()) <= ShortReach && std::abs(line.dy()) <= ShortReach) {
        const PixelMask& mask = ShortPiece({line.dx(), line.dy()}, width);
        BlendMask(m_target, line.x1() - m_origin.x() + mask.Left,
                  line.y1() - m_origin.y() + mask.Top, mask, ToRgb(colour));
        return;
    }
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

PixelCanvas::ShortPieces& PixelCanvas::ShortPiecesOf(int width) {
    for (ShortPieces& pieces : m_short) {
        if (pieces.Width == width) {
            return pieces;
        }
    }
    ShortPieces& pieces = m_short.emplace_back();
    pieces.Width = width;
    pieces.Masks.resize((2 * ShortReach + 1) * (2 * ShortReach + 1));
    return pieces;
}

const PixelMask& PixelCanvas::ShortPiece(QPoint span, int width) {
    const int place = (span.y() + ShortReach) * (2 * ShortReach + 1) + span.x() + ShortReach;
    auto& mask = ShortPiecesOf(width).Masks[static_cast<std::size_t>(place)];
    if (!mask) {
        mask = std::make_unique<const PixelMask>(MaskOf(span, width, m_antialias));
    }
    return *mask;
}

void PixelCanvas::Wave(const std::vector<QPoint>& points, int width, Colour colour) {
    const double shift = width % 2 != 0 ? 0.5 : 0.0;
    const QPointF offset = QPointF(shift, shift) - m_origin;
    for (std::size_t i = 0; i + 3 < points.size(); i += 3) {
        const std::array<QPointF, 4> bends{points[i] + offset, points[i + 1] + offset,
                                           points[i + 2] + offset, points[i + 3] + offset};
        std::vector<QPointF> curve{bends[0]};
        AddCurve(curve, bends);
        CoverCurve(curve, width, colour);
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
