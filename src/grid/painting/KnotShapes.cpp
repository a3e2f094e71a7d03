// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/KnotShapes.h"

#include <QPainter>
#include <QTransform>

#include <algorithm>

#include "grid/GridViewport.h"
#include "grid/painting/PaintColors.h"
#include "model/Rounding.h"

namespace zol {

KnotInk KnotInkOf(const PaintOptions& options, Colour floss) {
    switch (options.StitchStyle) {
    case ShowColorSquares:
    case ShowColorStitch:
    case ShowVStitches:
        return {floss, {}, {}};
    case ShowColorBlocksSymbols:
        return {floss, {}, GetContrastColor(floss)};
    case ShowBlackSymbols:
        return {options.Ground(), Colour{0}, Colour{0}};
    case ShowColorSymbols:
        return {options.Ground(), floss, floss};
    default:
        return {};
    }
}

namespace KnotShapes {

namespace {

/// Distance of an oval's control points from its axes, in widths and heights of the oval.
constexpr double OvalControl = 0.2761423749154;

/// Degrees that the upright oval is turned by, against the clock.
double TurnOf(int orientation) {
    switch (orientation) {
    case KnotHorizontalOval:
        return 90;
    case KnotUpperLeftDiagonal:
        return 30;
    case KnotUpperRightDiagonal:
        return 330;
    default:
        return 0;
    }
}

QPainterPath UprightOval(const QRectF& oval) {
    const double cx = oval.width() * OvalControl;
    const double cy = oval.height() * OvalControl;
    const QPointF c = oval.center();
    QPainterPath path(QPointF(oval.left(), c.y()));
    path.cubicTo(oval.left(), c.y() - cy, c.x() - cx, oval.top(), c.x(), oval.top());
    path.cubicTo(c.x() + cx, oval.top(), oval.right(), c.y() - cy, oval.right(), c.y());
    path.cubicTo(oval.right(), c.y() + cy, c.x() + cx, oval.bottom(), c.x(), oval.bottom());
    path.cubicTo(c.x() - cx, oval.bottom(), oval.left(), c.y() + cy, oval.left(), c.y());
    path.closeSubpath();
    return path;
}

} // namespace

int PenWidth(const GridView& view) {
    const double twips =
        RoundHalfEven(view.Options.BackStitchWidthPercent / 100 * view.Scale.LineBaseTwips);
    return std::max(1, ToPixel(twips, view.Scale.TwipsPerPixelX) / 2);
}

PixelRect Box(const GridView& view, int column, int row, int position) {
    // A position in the left third has its box from the middle of the square to the left to the
    // middle of this one; one in the middle has the square itself; and so down.
    const int thirdX = PositionColumn(position);
    const int thirdY = PositionRow(position);
    const GridScale& s = view.Scale;
    const auto corners = [](int index, int third, double square, double origin, double tpp) {
        const SquareEdges first =
            GridViewport::EdgesOf(index - (third == 0 ? 1 : 0), square, origin, tpp);
        const SquareEdges second =
            GridViewport::EdgesOf(index + (third == 2 ? 1 : 0), square, origin, tpp);
        const bool whole = third == 1;
        return std::pair(ToNearestPixel(whole ? first.First : first.Middle, tpp),
                         ToNearestPixel(whole ? second.Last : second.Middle, tpp));
    };
    const auto [left, right] =
        corners(column, thirdX, s.SquareTwipsX, view.OriginX, s.TwipsPerPixelX);
    const auto [top, bottom] = corners(row, thirdY, s.SquareTwipsY, view.OriginY, s.TwipsPerPixelY);
    const int inset = PenWidth(view) / 2;
    return {left + inset, top + inset, right, bottom};
}

QPainterPath Curve(const PixelRect& box, int orientation) {
    // The pen runs through the middles of the box's outermost pixels.
    const int width = std::max(1, box.Right - box.Left);
    const int height = std::max(1, box.Bottom - box.Top);
    QRectF area(box.Left + 0.5, box.Top + 0.5, width - 1, height - 1);
    if (orientation == KnotNormal) {
        QPainterPath path;
        path.addEllipse(area);
        return path;
    }
    const int inset = TruncToInt(width / 3.5);
    area.adjust(inset, 0, -inset, 0);
    QTransform turn;
    turn.translate(area.center().x(), area.center().y());
    turn.rotate(-TurnOf(orientation));
    turn.translate(-area.center().x(), -area.center().y());
    return turn.map(UprightOval(area));
}

void Draw(QPainter& painter, const PixelRect& box, int orientation, int penWidth,
          const QColor& color, bool filled) {
    painter.setPen(QPen(color, penWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(filled && orientation == KnotNormal ? QBrush(color) : QBrush(Qt::NoBrush));
    painter.drawPath(Curve(box, orientation));
}

PixelRect SymbolRect(const PixelRect& box) {
    const int x = TruncToInt(0.2 * (box.Right - box.Left));
    const int y = TruncToInt(0.2 * (box.Bottom - box.Top));
    return {box.Left + x, box.Top + y, box.Right - x - 1, box.Bottom - y - 1};
}

} // namespace KnotShapes
} // namespace zol
