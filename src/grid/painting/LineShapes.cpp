// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/LineShapes.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "model/Rounding.h"

namespace zol::LineShapes {

namespace {

/// The constant that the angles of lines have always been computed with; dashes fall on the same
/// pixels as ever.
constexpr double Pi = 3.1415926;

/// It falls a little short, so upright lines would lean by a pixel when their points are cut.
constexpr double Lean = 1e-3;

struct RealLine {
    double x1, y1, x2, y2;
};

/// Cuts the part of a line outside one edge. `a` and `b` are the coordinates across the edge, `c`
/// and `d` those along it; inside is `sign` times at least `sign * edge`.
bool CutAtEdge(double& a, double& c, double& b, double& d, double edge, double sign) {
    const bool firstOut = sign * a < sign * edge;
    const bool secondOut = sign * b < sign * edge;
    if (firstOut && secondOut) {
        return false;
    }
    if (firstOut != secondOut) {
        const double along = c + (edge - a) * (d - c) / (b - a);
        (firstOut ? a : b) = edge;
        (firstOut ? c : d) = along;
    }
    return true;
}

/// A line laid out flat from its left end, and the turn that brings it back.
struct FlatLine {
    QPoint start;
    int endX;
    Rotation turn;
};

FlatLine Flattened(QPoint start, QPoint end) {
    if (start.x() > end.x()) {
        std::swap(start, end);
    }
    const double run = end.x() - start.x();
    const double rise = end.y() - start.y();
    const double length = std::sqrt(run * run + rise * rise);
    return {start, TruncToInt(start.x() + length), Rotation(start, AngleOf(start, end))};
}

/// Where on the flat line a decoration may begin and end so that nothing visible is missed.
std::pair<double, double> VisibleStretch(const FlatLine& line, const QRect& visible,
                                         double margin) {
    if (visible.isNull()) {
        return {line.start.x(), line.endX};
    }
    const QPointF centre = QRectF(visible).center();
    const double reach = std::hypot(visible.width(), visible.height()) / 2 + margin;
    const QPoint far = line.turn.Map(line.endX, line.start.y());
    const double length = std::max(1, line.endX - line.start.x());
    // The middle of what is visible, measured along the line.
    const double along = ((centre.x() - line.start.x()) * (far.x() - line.start.x()) +
                          (centre.y() - line.start.y()) * (far.y() - line.start.y())) /
                         length;
    return {line.start.x() + along - reach, line.start.x() + along + reach};
}

/// Whole steps in a stretch, -1 and less before its beginning.
int FlooredSteps(double stretch, int step) {
    return static_cast<int>(std::floor(stretch / step));
}

struct MarkMeasure {
    int step;
    double offset; ///< of the piece in its step
    double length; ///< along the line; 0 for a piece across it
    int half;      ///< half a piece's length across the line
};

MarkMeasure MeasureOf(Mark mark, double squareWidth, double squareHeight) {
    switch (mark) {
    case Mark::Dash: {
        const int step = std::max(1, TruncToInt(1.5 * squareWidth));
        return {step, 0, 0.75 * step, 0};
    }
    case Mark::Tie:
        return {std::max(1, TruncToInt(squareWidth / 2)), 0, 0, RoundToInt(squareHeight / 3)};
    case Mark::Dot: {
        const int step = std::max(1, TruncToInt(0.75 * squareWidth));
        return {step, 0, 0.3 * step, 0};
    }
    default: {
        const int step = std::max(1, TruncToInt(1.5 * squareWidth));
        return {step, 0.75 * step / 2, 0, RoundToInt(0.25 * step)};
    }
    }
}

} // namespace

bool ClipLineToRect(TwipsPoint& start, TwipsPoint& end, const Bounds& rect) {
    RealLine line{static_cast<double>(start.X), static_cast<double>(start.Y),
                  static_cast<double>(end.X), static_cast<double>(end.Y)};
    if (!CutAtEdge(line.x1, line.y1, line.x2, line.y2, rect.Left, 1) ||
        !CutAtEdge(line.x1, line.y1, line.x2, line.y2, rect.Right, -1) ||
        !CutAtEdge(line.y1, line.x1, line.y2, line.x2, rect.Top, 1) ||
        !CutAtEdge(line.y1, line.x1, line.y2, line.x2, rect.Bottom, -1)) {
        return false;
    }
    start = {TruncToInt(line.x1), TruncToInt(line.y1)};
    end = {TruncToInt(line.x2), TruncToInt(line.y2)};
    return true;
}

Rotation::Rotation(QPoint centre, double degrees)
    : m_sin(std::sin(degrees * Pi / 180)),
      m_cos(std::cos(degrees * Pi / 180)),
      m_x(centre.x() - centre.x() * m_cos - centre.y() * m_sin),
      m_y(centre.x() * m_sin + centre.y() - centre.y() * m_cos) {}

QPoint Rotation::Map(double x, double y) const {
    return {TruncToInt(x * m_cos + y * m_sin + m_x + Lean),
            TruncToInt(-x * m_sin + y * m_cos + m_y + Lean)};
}

double AngleOf(QPoint start, QPoint end) {
    const bool above = end.y() < start.y();
    if (start.x() == end.x()) {
        return above ? 90 : 270;
    }
    const double rise = std::abs(end.y() - start.y());
    const double run = std::abs(end.x() - start.x());
    const double angle = std::atan(rise / run) * 180 / Pi;
    return above ? angle : 360 - angle;
}

std::vector<QLine> Marks(Mark mark, QPoint start, QPoint end, double squareWidth,
                         double squareHeight, const QRect& visible) {
    const FlatLine line = Flattened(start, end);
    const MarkMeasure measure = MeasureOf(mark, squareWidth, squareHeight);
    const auto [from, to] = VisibleStretch(line, visible, measure.step + measure.half);
    const double begin = line.start.x() + measure.offset;
    const double limit = std::min<double>(line.endX, to);
    const int first = std::max(0, FlooredSteps(from - line.start.x(), measure.step));
    const int last = FlooredSteps(limit - begin, measure.step);
    const int y = line.start.y();
    std::vector<QLine> pieces;
    for (int k = first; k <= last; ++k) {
        const double x = begin + static_cast<double>(k) * measure.step;
        if (measure.half > 0 || measure.length == 0) {
            pieces.emplace_back(line.turn.Map(x, y - measure.half),
                                line.turn.Map(x, y + measure.half));
        } else {
            const double stop = std::min(x + measure.length, static_cast<double>(line.endX));
            pieces.emplace_back(line.turn.Map(x, y), line.turn.Map(stop, y));
        }
    }
    return pieces;
}

std::vector<QPoint> Squiggle(QPoint start, QPoint end, double squareWidth) {
    const FlatLine line = Flattened(start, end);
    const int step = std::max(1, RoundToInt(squareWidth / 7));
    const int amplitude = RoundToInt(0.75 * squareWidth);
    const int steps = (line.endX - line.start.x() + step - 1) / step;
    const int count = steps / 3 * 3 + 1;
    std::vector<QPoint> points;
    points.reserve(static_cast<std::size_t>(count));
    for (int k = 0; k < count; ++k) {
        const int x = std::min(line.start.x() + k * step, line.endX);
        const int offset = k % 3 == 1 ? amplitude : k % 3 == 2 ? -amplitude : 0;
        points.push_back(line.turn.Map(x, line.start.y() + offset));
    }
    if (count > 1) {
        points.back() = line.turn.Map(line.endX, line.start.y());
    }
    return points;
}

} // namespace zol::LineShapes
