// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/GridLines.h"

#include <QLineF>
#include <QPainter>
#include <QVector>

#include "grid/GridViewport.h"
#include "grid/painting/PaintColors.h"
#include "model/Rounding.h"

namespace zol {

namespace {

/// Least width of a square, in pixels, that still has normal lines.
constexpr double NormalLinesAbove = 5;

int WidthOf(const GridView& view, double percent) {
    double twips = percent / 100 * view.Scale.LineBaseTwips;
    if (view.Options.Target != TargetPrinter) {
        twips = RoundHalfEven(twips);
    }
    return ToPixel(twips, view.Scale.TwipsPerPixelX);
}

double SquareInPixels(const GridView& view) {
    return view.Scale.LineBaseTwips / view.Scale.TwipsPerPixelX;
}

bool IsBoldLine(int index, int every, int offset) {
    return every > 0 && (index + offset - 1) % every == 0;
}

/// Lines of one width and colour, painted together.
class LineBatch {
public:
    LineBatch(QPainter& painter, bool paper) : m_painter(painter), m_paper(paper) {}

    void Add(const QRect& line) {
        if (!line.isEmpty()) {
            m_rects.push_back(line);
        }
    }

    /// Paper gets strokes, which stay lines in a document; a screen gets whole pixels.
    void Paint(Colour colour) {
        if (m_rects.empty()) {
            return;
        }
        const QColor color = ToQColor(colour);
        for (const QRect& rect : m_rects) {
            if (m_paper) {
                AddStroke(rect);
            } else {
                m_painter.fillRect(rect, color);
            }
        }
        FlushStrokes(color);
        m_rects.clear();
    }

private:
    void AddStroke(const QRect& rect) {
        const QRectF area(rect);
        if (rect.width() <= rect.height()) {
            m_widths.push_back(rect.width());
            m_strokes.push_back({QPointF(area.center().x(), area.top()),
                                 QPointF(area.center().x(), area.bottom())});
        } else {
            m_widths.push_back(rect.height());
            m_strokes.push_back({QPointF(area.left(), area.center().y()),
                                 QPointF(area.right(), area.center().y())});
        }
    }

    void FlushStrokes(const QColor& color) {
        for (qsizetype from = 0; from < m_strokes.size();) {
            qsizetype to = from;
            while (to < m_strokes.size() && m_widths[to] == m_widths[from]) {
                ++to;
            }
            m_painter.setPen(QPen(color, m_widths[from], Qt::SolidLine, Qt::FlatCap));
            m_painter.drawLines(m_strokes.constData() + from, static_cast<int>(to - from));
            from = to;
        }
        m_strokes.clear();
        m_widths.clear();
    }

    QPainter& m_painter;
    bool m_paper;
    QVector<QRect> m_rects;
    QVector<QLineF> m_strokes;
    QVector<int> m_widths;
};

} // namespace

int GetNormalGridLineWidth(const GridView& view) {
    const int width = WidthOf(view, view.Options.NormalWidthPercent);
    return width >= 1 ? width : SquareInPixels(view) > NormalLinesAbove ? 1 : 0;
}

int GetBoldGridLineWidth(const GridView& view) {
    const int width = WidthOf(view, view.Options.BoldWidthPercent);
    return width >= 1 ? width : SquareInPixels(view) >= 1 ? 1 : 0;
}

SquareSpans::SquareSpans(const GridView& view, const Axis& axis, int first, int last)
    : m_first(first) {
    const bool lines = view.Options.GridLines;
    const int normal = lines ? GetNormalGridLineWidth(view) : 0;
    const int bold = lines ? GetBoldGridLineWidth(view) : 0;
    const auto count = static_cast<std::size_t>(last - first) + 2;
    m_edges.reserve(count);
    m_insets.reserve(count);
    m_bold.reserve(count);
    for (int index = first; index <= last + 1; ++index) {
        const int edge =
            GridViewport::EdgeOf(index, axis.squareTwips, axis.origin, axis.twipsPerPixel);
        const bool isBold = IsBoldLine(index, axis.boldEvery, axis.numberOffset);
        m_edges.push_back(ToNearestPixel(edge, axis.twipsPerPixel));
        m_insets.push_back(isBold ? bold : normal);
        m_bold.push_back(isBold);
    }
}

SquareSpans SquareSpans::Columns(const GridView& view, int first, int last) {
    return {view,
            {view.Scale.SquareTwipsX, view.OriginX, view.Scale.TwipsPerPixelX,
             view.Options.BoldEveryX, view.Options.NumberOffsetX},
            first,
            last};
}

SquareSpans SquareSpans::Rows(const GridView& view, int first, int last) {
    return {view,
            {view.Scale.SquareTwipsY, view.OriginY, view.Scale.TwipsPerPixelY,
             view.Options.BoldEveryY, view.Options.NumberOffsetY},
            first,
            last};
}

Colour RowLineColour(const PaintOptions& options, int row, bool bold) {
    if (bold) {
        return options.BoldGLColor;
    }
    const bool base = options.BaseLineRow > 0 && options.BoldEveryY > 0 &&
                      (row + options.NumberOffsetY - 1) % options.BoldEveryY == options.BaseLineRow;
    return base ? options.ThirdGLColor : options.NormalGLColor;
}

PixelRect SquarePixels(const GridView& view, int column, int row) {
    const SquareSpans x = SquareSpans::Columns(view, column, column);
    const SquareSpans y = SquareSpans::Rows(view, row, row);
    return {x.First(column), y.First(row), x.Last(column), y.Last(row)};
}

void DrawGridLines(QPainter& painter, const GridView& view, const SquareRect& rect) {
    if (!view.Options.GridLines || rect.IsEmpty()) {
        return;
    }
    const SquareSpans columns = SquareSpans::Columns(view, rect.Left, rect.Right);
    const SquareSpans rows = SquareSpans::Rows(view, rect.Top, rect.Bottom);
    // Lines reach to the far edge of the closing line that they meet, so that corners are whole.
    const int left = columns.Edge(rect.Left);
    const int top = rows.Edge(rect.Top);
    const int width = columns.Edge(rect.Right + 1) + columns.LineWidth(rect.Right + 1) - left;
    const int height = rows.Edge(rect.Bottom + 1) + rows.LineWidth(rect.Bottom + 1) - top;

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    LineBatch batch(painter, view.Options.Target == TargetPrinter);
    const auto addColumns = [&](bool bold) {
        for (int column = rect.Left; column <= rect.Right + 1; ++column) {
            if (columns.IsBold(column) == bold) {
                batch.Add({columns.Edge(column), top, columns.LineWidth(column), height});
            }
        }
    };
    addColumns(false);
    batch.Paint(view.Options.NormalGLColor);
    for (int row = rect.Top; row <= rect.Bottom + 1; ++row) {
        batch.Add({left, rows.Edge(row), width, rows.LineWidth(row)});
        const Colour colour = RowLineColour(view.Options, row, rows.IsBold(row));
        if (row > rect.Bottom ||
            colour != RowLineColour(view.Options, row + 1, rows.IsBold(row + 1))) {
            batch.Paint(colour);
        }
    }
    addColumns(true);
    batch.Paint(view.Options.BoldGLColor);
    painter.restore();
}

} // namespace zol
