// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/StyledLine.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include <algorithm>
#include <initializer_list>

#include "grid/painting/LineShapes.h"
#include "grid/painting/PaintColors.h"

namespace zol {

namespace {

using LineShapes::Mark;

/// From the middle of a pen's pixels to their corner.
double ShiftOf(int width) {
    return width % 2 != 0 ? 0.5 : 0.0;
}

void TakePen(QPainter& painter, int width, Colour colour) {
    painter.setPen(QPen(ToQColor(colour), width, Qt::SolidLine,
                        width > 1 ? Qt::RoundCap : Qt::SquareCap, Qt::RoundJoin));
}

void DrawMarks(LineCanvas& canvas, QPoint start, QPoint end, const LinePen& pen,
               std::initializer_list<Mark> marks) {
    QRect visible = canvas.Visible();
    if (!visible.isNull()) {
        visible.adjust(-pen.Width, -pen.Width, pen.Width, pen.Width);
    }
    for (const Mark mark : marks) {
        for (const QLine& piece :
             LineShapes::Marks(mark, start, end, pen.SquareWidth, pen.SquareHeight, visible)) {
            canvas.Piece(piece, pen.Width, pen.Floss);
        }
    }
}

void DrawSquiggle(LineCanvas& canvas, QPoint start, QPoint end, const LinePen& pen) {
    const int width = std::max(1, pen.Width / 3);
    const std::vector<QPoint> points = LineShapes::Squiggle(start, end, pen.SquareWidth);
    if (points.size() < 4) {
        // Too short for a wave; a line that is there must be seen.
        canvas.Piece({start, end}, width, pen.Floss);
        return;
    }
    canvas.Wave(points, width, pen.Floss);
}

} // namespace

void LineCanvas::Line(QPoint start, QPoint end, const LinePen& pen) {
    const QLine whole(start, end);
    switch (pen.Style) {
    case LineSquiggle:
        DrawSquiggle(*this, start, end, pen);
        break;
    case LineDashed:
        Piece(whole, pen.Width, pen.Ground);
        DrawMarks(*this, start, end, pen, {Mark::Dash});
        break;
    case LineTracks:
        Piece(whole, pen.Width, pen.Floss);
        DrawMarks(*this, start, end, pen, {Mark::Tie});
        break;
    case LineDotted:
        Piece(whole, pen.Width, pen.Ground);
        DrawMarks(*this, start, end, pen, {Mark::Dot});
        break;
    case LinePlus:
        Piece(whole, pen.Width, pen.Ground);
        DrawMarks(*this, start, end, pen, {Mark::Dash, Mark::Cross});
        break;
    default:
        Piece(whole, pen.Width, pen.Floss);
    }
}

void DrawStyledLine(QPainter& painter, QPoint start, QPoint end, const LinePen& pen) {
    PainterCanvas(painter).Line(start, end, pen);
}

void PainterCanvas::Piece(const QLine& line, int width, Colour colour) {
    TakePen(m_painter, width, colour);
    const double shift = ShiftOf(width);
    const QLineF placed = QLineF(line).translated(shift, shift);
    if (line.p1() == line.p2()) {
        m_painter.drawPoint(placed.p1());
    } else {
        m_painter.drawLine(placed);
    }
}

void PainterCanvas::Wave(const std::vector<QPoint>& points, int width, Colour colour) {
    TakePen(m_painter, width, colour);
    m_painter.setBrush(Qt::NoBrush);
    QPainterPath wave(points[0]);
    for (std::size_t i = 1; i + 2 < points.size(); i += 3) {
        wave.cubicTo(points[i], points[i + 1], points[i + 2]);
    }
    m_painter.drawPath(wave.translated(ShiftOf(width), ShiftOf(width)));
}

QRect PainterCanvas::Visible() const {
    return m_painter.hasClipping() ? m_painter.clipBoundingRect().toAlignedRect() : QRect();
}

} // namespace zol
