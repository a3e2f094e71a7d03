// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/PictureMarks.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPixmap>

#include <algorithm>
#include <cmath>

#include "grid/painting/FillHere.h"

namespace zol::PictureMarks {

namespace {

/// Half the side of a band's handle, in pixels of the window.
constexpr double HandleHalf = 4;
/// Pointers larger than that, in device pixels, are not shown by every system.
constexpr int LargestPointer = 128;
const QColor Dim(0, 0, 0, 110);

int LineWidth(const PicturePlace& place) {
    return std::max(1, static_cast<int>(std::lround(place.Ratio)));
}

QRect OnPixels(const PicturePlace& place, const QRectF& rect) {
    const QRectF shown = place.OnView(rect);
    return {shown.topLeft().toPoint(), shown.bottomRight().toPoint() - QPoint(1, 1)};
}

int HandleReach(const PicturePlace& place) {
    return static_cast<int>(std::ceil(HandleHalf * place.Ratio)) + LineWidth(place);
}

/// The middles of a band's handles; a side that is too short for three has those of its corners.
std::vector<QPoint> Handles(const QRect& band, int reach) {
    const QPoint middle = band.center();
    std::vector<QPoint> handles{band.topLeft(), band.topRight(), band.bottomRight(),
                                band.bottomLeft()};
    const int least = 6 * reach;
    if (band.width() >= least) {
        handles.insert(handles.end(), {{middle.x(), band.top()}, {middle.x(), band.bottom()}});
    }
    if (band.height() >= least) {
        handles.insert(handles.end(), {{band.left(), middle.y()}, {band.right(), middle.y()}});
    }
    return handles;
}

QRect Square(QPoint middle, int reach) {
    return {middle - QPoint(reach, reach), middle + QPoint(reach, reach)};
}

/// Draws something white first and then with dark dashes over it.
template<typename Draw>
void DrawTwice(QPainter& painter, const PicturePlace& place, bool dashed, Draw draw) {
    QPen pen(Qt::white, LineWidth(place));
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen);
    draw();
    pen.setColor(QColor(32, 32, 32));
    if (dashed) {
        pen.setDashPattern({4, 4});
    } else {
        pen.setDashPattern({1, 2});
    }
    painter.setPen(pen);
    draw();
}

/// A ring of two colours round a disc of that width.
void DrawRingAt(QPainter& painter, QPointF middle, QSizeF disc, double width) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const auto ring = [&](const QColor& colour, double outside) {
        painter.setPen(QPen(colour, width));
        painter.drawEllipse(middle, disc.width() / 2 + outside, disc.height() / 2 + outside);
    };
    ring(Qt::white, width * 1.5);
    ring(QColor(32, 32, 32), width / 2);
}

} // namespace

void DrawBand(QPainter& painter, const PicturePlace& place, const QRectF& band,
              const QColor& accent) {
    const QRect shown = OnPixels(place, band);
    const QRect all = place.Content;
    const QRect sides[] = {
        {all.topLeft(), QPoint(all.right(), shown.top() - 1)},
        {QPoint(all.left(), shown.bottom() + 1), all.bottomRight()},
        {QPoint(all.left(), shown.top()), QPoint(shown.left() - 1, shown.bottom())},
        {QPoint(shown.right() + 1, shown.top()), QPoint(all.right(), shown.bottom())}};
    const QRect exposed = painter.clipBoundingRect().toAlignedRect();
    const auto fill = [&](const QRect& rect, const QColor& colour) {
        if (rect.intersects(exposed)) {
            FillHere(painter, rect & exposed, colour);
        }
    };
    for (const QRect& side : sides) {
        fill(side, Dim);
    }
    const int width = LineWidth(place);
    const auto frame = [&](const QRect& rect, const QColor& colour) {
        const int across = rect.width();
        const int down = rect.height();
        fill({rect.left(), rect.top(), across, width}, colour);
        fill({rect.left(), rect.bottom() - width + 1, across, width}, colour);
        fill({rect.left(), rect.top(), width, down}, colour);
        fill({rect.right() - width + 1, rect.top(), width, down}, colour);
    };
    frame(shown.adjusted(-width, -width, width, width), Qt::white);
    frame(shown, accent);
    const int reach = HandleReach(place) - width;
    for (const QPoint& handle : Handles(shown, reach)) {
        fill(Square(handle, reach), Qt::white);
        fill(Square(handle, reach - width), accent);
    }
}

QRegion BandChange(const PicturePlace& place, const QRectF& before, const QRectF& after) {
    if (before.isEmpty() && after.isEmpty()) {
        return {};
    }
    if (before.isEmpty() || after.isEmpty()) {
        return place.Content; // what is dimmed
    }
    // A strip along each side that moves, from where it was to where it is: few rectangles paint
    // faster than many that cover less. Of one that stays only the handle in its middle may move.
    const QRect old = OnPixels(place, before);
    const QRect now = OnPixels(place, after);
    const QRect both = old | now;
    const int reach = HandleReach(place);
    const QRect middles = QRect(old.center(), old.center()) | QRect(now.center(), now.center());
    QRegion change;
    const auto side = [&](bool moves, const QRect& strip, const QRect& handles) {
        change += (moves ? strip : handles).adjusted(-reach, -reach, reach, reach);
    };
    side(old.top() != now.top(),
         {both.topLeft(), QPoint(both.right(), std::max(old.top(), now.top()))},
         {middles.left(), now.top(), middles.width(), 1});
    side(old.bottom() != now.bottom(),
         {QPoint(both.left(), std::min(old.bottom(), now.bottom())), both.bottomRight()},
         {middles.left(), now.bottom(), middles.width(), 1});
    side(old.left() != now.left(),
         {both.topLeft(), QPoint(std::max(old.left(), now.left()), both.bottom())},
         {now.left(), middles.top(), 1, middles.height()});
    side(old.right() != now.right(),
         {QPoint(std::min(old.right(), now.right()), both.top()), both.bottomRight()},
         {now.right(), middles.top(), 1, middles.height()});
    return change;
}

void DrawRect(QPainter& painter, const PicturePlace& place, const QRectF& rect) {
    const QRect shown = OnPixels(place, rect);
    DrawTwice(painter, place, true, [&] { painter.drawRect(shown); });
}

void DrawOval(QPainter& painter, const PicturePlace& place, const QRectF& rect) {
    const QRect shown = OnPixels(place, rect);
    DrawTwice(painter, place, true, [&] { painter.drawEllipse(shown); });
}

void DrawLine(QPainter& painter, const PicturePlace& place, const std::vector<PicturePoint>& line,
              bool closed) {
    const auto shown = [&](const PicturePoint& point) {
        return place.OnView(QPointF(point.X, point.Y));
    };
    if (closed) {
        QPolygonF polygon;
        for (const PicturePoint& point : line) {
            polygon << shown(point);
        }
        DrawTwice(painter, place, true, [&] { painter.drawPolygon(polygon); });
        return;
    }
    // A long line grows at its end; what lies elsewhere is not gone through again.
    const QRectF exposed = painter.clipBoundingRect().adjusted(-2, -2, 2, 2);
    QVector<QLineF> lines;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const QLineF part(shown(line[i - 1]), shown(line[i]));
        const QRectF box = QRectF(part.p1(), part.p2()).normalized().adjusted(-1, -1, 1, 1);
        if (box.intersects(exposed)) {
            lines << part;
        }
    }
    QPen pen(Qt::white, LineWidth(place) * 3);
    painter.setPen(pen);
    painter.drawLines(lines);
    painter.setPen(QPen(QColor(32, 32, 32), LineWidth(place)));
    painter.drawLines(lines);
}

void DrawRing(QPainter& painter, const PicturePlace& place, QPointF middle, int across) {
    painter.save();
    DrawRingAt(painter, place.OnView(middle), {across * place.ScaleX(), across * place.ScaleY()},
               LineWidth(place));
    painter.restore();
}

std::optional<QCursor> RingPointer(const PicturePlace& place, int across) {
    const QSizeF disc(across * place.ScaleX(), across * place.ScaleY());
    const int width = LineWidth(place);
    const int side =
        2 * static_cast<int>(std::ceil(std::max(disc.width(), disc.height()) / 2 + 3 * width)) + 1;
    if (side > LargestPointer) {
        return std::nullopt;
    }
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    DrawRingAt(painter, {side / 2.0, side / 2.0}, disc, width);
    painter.end();
    pixmap.setDevicePixelRatio(place.Ratio);
    const int middle = side / 2;
    const int hot = static_cast<int>(middle / place.Ratio);
    return QCursor(pixmap, hot, hot);
}

} // namespace zol::PictureMarks
