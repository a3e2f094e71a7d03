// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/StitchShapes.h"

#include <cmath>

#include "model/ZOLTypes.h"

namespace zol::StitchShapes {

namespace {

/// The lines that the corners of every shape lie on.
struct Frame {
    double L, T, R, B; ///< edges
    double MX, MY;     ///< middle
    double dx, dy;     ///< half a thread's width along the edges
};

QPolygonF ThreeQuarter(int kind, const Frame& f) {
    switch (kind) {
    case StitchUL3Q:
        return QPolygonF({{f.L, f.T}, {f.R, f.T}, {f.L, f.B}});
    case StitchUR3Q:
        return QPolygonF({{f.L, f.T}, {f.R, f.T}, {f.R, f.B}});
    case StitchLL3Q:
        return QPolygonF({{f.L, f.T}, {f.R, f.B}, {f.L, f.B}});
    default:
        return QPolygonF({{f.R, f.T}, {f.R, f.B}, {f.L, f.B}});
    }
}

QPolygonF Half(int kind, const Frame& f) {
    if (kind == StitchTBH) {
        return QPolygonF({{f.L, f.T + f.dy},
                          {f.L, f.T},
                          {f.L + f.dx, f.T},
                          {f.R, f.B - f.dy},
                          {f.R, f.B},
                          {f.R - f.dx, f.B}});
    }
    return QPolygonF({{f.L, f.B},
                      {f.L, f.B - f.dy},
                      {f.R - f.dx, f.T},
                      {f.R, f.T},
                      {f.R, f.T + f.dy},
                      {f.L + f.dx, f.B}});
}

QPolygonF UpperQuarter(int kind, const Frame& f) {
    if (kind == StitchULQ) {
        return QPolygonF({{f.L, f.T + f.dy},
                          {f.L, f.T},
                          {f.L + f.dx, f.T},
                          {f.MX, f.MY - f.dy},
                          {f.MX, f.MY},
                          {f.MX - f.dx, f.MY}});
    }
    return QPolygonF({{f.MX, f.MY},
                      {f.MX, f.MY - f.dy},
                      {f.R - f.dx, f.T},
                      {f.R, f.T},
                      {f.R, f.T + f.dy},
                      {f.MX + f.dx, f.MY}});
}

QPolygonF LowerQuarter(int kind, const Frame& f) {
    if (kind == StitchLLQ) {
        return QPolygonF({{f.L, f.B},
                          {f.L, f.B - f.dy},
                          {f.MX - f.dx, f.MY},
                          {f.MX, f.MY},
                          {f.MX, f.MY + f.dy},
                          {f.L + f.dx, f.B}});
    }
    return QPolygonF({{f.MX, f.MY + f.dy},
                      {f.MX, f.MY},
                      {f.MX + f.dx, f.MY},
                      {f.R, f.B - f.dy},
                      {f.R, f.B},
                      {f.R - f.dx, f.B}});
}

QPolygonF Shape(int kind, const Frame& f) {
    switch (kind) {
    case StitchWhole:
        return QPolygonF({{f.L, f.T}, {f.R, f.T}, {f.R, f.B}, {f.L, f.B}});
    case StitchUL3Q:
    case StitchUR3Q:
    case StitchLL3Q:
    case StitchLR3Q:
        return ThreeQuarter(kind, f);
    case StitchTBH:
    case StitchBTH:
        return Half(kind, f);
    case StitchULQ:
    case StitchURQ:
        return UpperQuarter(kind, f);
    case StitchLLQ:
    case StitchLRQ:
        return LowerQuarter(kind, f);
    default:
        return {};
    }
}

/// Share of the square, in percent, that a half stitch's thread lies off its diagonal.
constexpr double HalfStitchBand = 40;

} // namespace

QPolygonF Polygon(int kind, const PixelRect& square) {
    // The middle and a sixth of the square are whole pixels.
    const int halfWidth = square.Width() / 2;
    const int halfHeight = square.Height() / 2;
    const int dx = square.Width() / 6;
    const int dy = square.Height() / 6;
    const QPointF first(square.Left, square.Top);
    const QPointF last(square.Right, square.Bottom);
    const QPointF middle = first + QPointF(halfWidth, halfHeight);
    return Shape(kind, {first.x(), first.y(), last.x(), last.y(), middle.x(), middle.y(),
                        static_cast<double>(dx), static_cast<double>(dy)});
}

QPolygonF Area(int kind, const PixelRect& square) {
    const QRectF area = square.Area();
    return Shape(kind, {area.left(), area.top(), area.right(), area.bottom(), area.center().x(),
                        area.center().y(), area.width() / 6, area.height() / 6});
}

PixelRect SymbolRect(int kind, const PixelRect& square) {
    const int mx = square.Left + (square.Right - square.Left) / 2;
    const int my = square.Top + (square.Bottom - square.Top) / 2;
    switch (kind) {
    case StitchUL3Q:
    case StitchULQ:
        return {square.Left, square.Top, mx, my};
    case StitchUR3Q:
    case StitchURQ:
        return {mx, square.Top, square.Right, my};
    case StitchLL3Q:
    case StitchLLQ:
        return {square.Left, my, mx, square.Bottom};
    case StitchLR3Q:
    case StitchLRQ:
        return {mx, my, square.Right, square.Bottom};
    default:
        return square;
    }
}

bool ImagePixelBelongs(int kind, int i, int j, int width, int height) {
    const double a = static_cast<double>(i) / width;
    const double b = static_cast<double>(j) / height;
    const double c = static_cast<double>(width - i) / width;
    switch (kind) {
    case StitchUL3Q:
        return c >= b;
    case StitchUR3Q:
        return b <= a;
    case StitchLL3Q:
        return b >= a;
    case StitchLR3Q:
        return c <= b;
    case StitchTBH:
        return std::abs(100 * a - 100 * b) < HalfStitchBand;
    case StitchBTH:
        return std::abs(100 * c - 100 * b) < HalfStitchBand;
    default:
        return true;
    }
}

QPolygonF ImageArea(int kind, const QRectF& square) {
    const double bandX = square.width() * HalfStitchBand / 100;
    const double bandY = square.height() * HalfStitchBand / 100;
    const QRectF& s = square;
    const QPointF centre = s.center();
    switch (kind) {
    case StitchUL3Q:
    case StitchUR3Q:
    case StitchLL3Q:
    case StitchLR3Q:
        return ThreeQuarter(kind, {s.left(), s.top(), s.right(), s.bottom(), 0, 0, 0, 0});
    case StitchTBH:
    case StitchBTH:
        return Half(kind, {s.left(), s.top(), s.right(), s.bottom(), 0, 0, bandX, bandY});
    case StitchULQ:
        return QPolygonF(QRectF(s.topLeft(), centre));
    case StitchURQ:
        return QPolygonF(QRectF(QPointF(centre.x(), s.top()), QPointF(s.right(), centre.y())));
    case StitchLLQ:
        return QPolygonF(QRectF(QPointF(s.left(), centre.y()), QPointF(centre.x(), s.bottom())));
    case StitchLRQ:
        return QPolygonF(QRectF(centre, s.bottomRight()));
    default:
        return QPolygonF(s);
    }
}

} // namespace zol::StitchShapes
