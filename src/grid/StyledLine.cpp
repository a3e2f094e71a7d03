// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/StyledLine.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include <algorithm>

#include "grid/LineShapes.h"
#include "grid/PaintColors.h"

namespace zol {

namespace {

using LineShapes::Mark;

/// What may be seen of a line's pieces; null for painters without bounds.
QRect VisibleOf(const QPainter& painter, int width) {
    if (!painter.hasClipping()) {
        return {};
    }
    return painter.clipBoundingRect().toAlignedRect().adjusted(-width, -width, width, width);
}

class LineDrawer {
public:
    LineDrawer(QPainter& painter, QPoint start, QPoint end, const LinePen& pen)
        : m_painter(painter),
          m_start(start),
          m_end(end),
          m_pen(pen) {
        // A pen of an odd width has its middle in the middle of a pixel.
        m_shift = pen.Width % 2 != 0 ? 0.5 : 0.0;
    }

    void Draw() {
        switch (m_pen.Style) {
        case LineSquiggle:
            DrawSquiggle();
            break;
        case LineDashed:
            DrawStraight(m_pen.Ground);
            DrawMarks({Mark::Dash});
            break;
        case LineTracks:
            DrawStraight(m_pen.Floss);
            DrawMarks({Mark::Tie});
            break;
        case LineDotted:
            DrawStraight(m_pen.Ground);
            DrawMarks({Mark::Dot});
            break;
        case LinePlus:
            DrawStraight(m_pen.Ground);
            DrawMarks({Mark::Dash, Mark::Cross});
            break;
        default:
            DrawStraight(m_pen.Floss);
        }
    }

private:
    void TakePen(Colour colour, int width) {
        m_painter.setPen(QPen(ToQColor(colour), width, Qt::SolidLine,
                              width > 1 ? Qt::RoundCap : Qt::SquareCap, Qt::RoundJoin));
    }

    [[nodiscard]] QLineF Shifted(const QLine& line) const {
        return QLineF(line).translated(m_shift, m_shift);
    }

    void DrawStraight(Colour colour) {
        TakePen(colour, m_pen.Width);
        DrawPiece({m_start, m_end});
    }

    void DrawPiece(const QLine& line) {
        if (line.p1() == line.p2()) {
            m_painter.drawPoint(Shifted(line).p1());
        } else {
            m_painter.drawLine(Shifted(line));
        }
    }

    void DrawMarks(std::initializer_list<Mark> marks) {
        TakePen(m_pen.Floss, m_pen.Width);
        for (const Mark mark : marks) {
            for (const QLine& piece :
                 LineShapes::Marks(mark, m_start, m_end, m_pen.SquareWidth, m_pen.SquareHeight,
                                   VisibleOf(m_painter, m_pen.Width))) {
                DrawPiece(piece);
            }
        }
    }

    void DrawSquiggle() {
        const int width = std::max(1, m_pen.Width / 3);
        TakePen(m_pen.Floss, width);
        m_shift = width % 2 != 0 ? 0.5 : 0.0;
        const std::vector<QPoint> points = LineShapes::Squiggle(m_start, m_end, m_pen.SquareWidth);
        if (points.size() < 4) {
            // Too short for a wave; a line that is there must be seen.
            DrawPiece({m_start, m_end});
            return;
        }
        QPainterPath wave(points[0]);
        for (std::size_t i = 1; i + 2 < points.size(); i += 3) {
            wave.cubicTo(points[i], points[i + 1], points[i + 2]);
        }
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawPath(wave.translated(m_shift, m_shift));
    }

    QPainter& m_painter;
    QPoint m_start;
    QPoint m_end;
    const LinePen& m_pen;
    double m_shift;
};

} // namespace

void DrawStyledLine(QPainter& painter, QPoint start, QPoint end, const LinePen& pen) {
    LineDrawer(painter, start, end, pen).Draw();
}

} // namespace zol
