// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

namespace zol {

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
[[nodiscard]] inline unsigned Sharpened(unsigned cover, bool antialias) {
    return antialias ? cover : cover >= 128 ? 255 : 0;
}

/// The straight pieces that stand for a Bezier curve of a squiggle: its points, the first included.
[[nodiscard]] std::vector<QPointF> PiecesOfCurve(const std::array<QPointF, 4>& bends);

} // namespace zol
