// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/QuietParts.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <array>

#include "windowkit/Theme.h"

namespace zol::QuietParts {

namespace {

constexpr double Radius = 3;
// How much of the text's colour the ground takes.
constexpr double LineShare = 0.16;
constexpr double HoverShare = 0.08;
constexpr double DownShare = 0.16;
constexpr double FieldShare = 0.55;
constexpr double MarkShare = 0.75; ///< frames of boxes and rings, whose curves soften them; the
                                   ///< palette fades those that are off
/// How much of the accent's colour the ground of what is on takes.
constexpr double OnShare = 0.14;

/// Ground and frame of a box or ring that is ticked or not; Fusion's are lost on dark.
void SetMarkColors(const QStyleOption& option, QPainter& painter) {
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool marked =
        option.state.testFlag(QStyle::State_On) || option.state.testFlag(QStyle::State_NoChange);
    const QColor accent = Theme::Accent(option.palette);
    painter.setRenderHint(QPainter::Antialiasing);
    if (marked && enabled) {
        painter.setPen(QPen(accent, 1));
        painter.setBrush(accent);
        return;
    }
    const bool hover = option.state.testFlag(QStyle::State_MouseOver);
    painter.setPen(QPen(Ground(option, hover ? 1 : MarkShare), 1));
    painter.setBrush(option.palette.color(QPalette::Base));
}

QColor MarkColor(const QStyleOption& option) {
    return option.state.testFlag(QStyle::State_Enabled)
               ? option.palette.color(QPalette::HighlightedText)
               : Ground(option, MarkShare);
}

/// The largest square in the middle of the room, its sides on the middles of pixels.
QRectF SquareIn(const QRect& room) {
    const int side = std::min(room.width(), room.height());
    const QRect square(room.x() + (room.width() - side) / 2, room.y() + (room.height() - side) / 2,
                       side, side);
    return QRectF(square).adjusted(0.5, 0.5, -0.5, -0.5);
}

} // namespace

QColor Ground(const QStyleOption& option, double share) {
    return Theme::Mix(option.palette.color(QPalette::Window),
                      option.palette.color(QPalette::WindowText), share);
}

void DrawPlate(QPainter& painter, const QRect& rect, const QColor& ground, const QColor& frame) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(frame, 1));
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), Radius, Radius);
    painter.restore();
}

void DrawOn(QPainter& painter, const QRect& rect, const QPalette& palette) {
    const QColor accent = Theme::Accent(palette);
    const QColor window = palette.color(QPalette::Window);
    DrawPlate(painter, rect, Theme::Mix(window, accent, OnShare), accent);
}

void DrawToolButton(const QStyleOption& option, QPainter& painter) {
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    if (option.state.testFlag(QStyle::State_On)) {
        const QColor faded = Ground(option, HoverShare);
        if (enabled) {
            DrawOn(painter, option.rect, option.palette);
        } else {
            DrawPlate(painter, option.rect, faded, Ground(option, LineShare));
        }
        return;
    }
    if (enabled && option.state.testFlag(QStyle::State_Sunken)) {
        const QColor down = Ground(option, DownShare);
        DrawPlate(painter, option.rect, down, down);
    } else if (enabled && option.state.testFlag(QStyle::State_MouseOver)) {
        const QColor hover = Ground(option, HoverShare);
        DrawPlate(painter, option.rect, hover, hover);
    }
}

void DrawBarSeparator(const QStyleOption& option, QPainter& painter) {
    constexpr int inset = 5;
    const QPoint middle = option.rect.center();
    const QRect line =
        option.state.testFlag(QStyle::State_Horizontal)
            ? QRect(middle.x(), option.rect.top() + inset, 1, option.rect.height() - 2 * inset)
            : QRect(option.rect.left() + inset, middle.y(), option.rect.width() - 2 * inset, 1);
    painter.fillRect(line, Ground(option, LineShare));
}

void DrawCheckBox(const QStyleOption& option, QPainter& painter) {
    const QRectF box = SquareIn(option.rect);
    painter.save();
    SetMarkColors(option, painter);
    painter.drawRoundedRect(box, Radius, Radius);
    const auto at = [&box](double x, double y) {
        return QPointF(box.x() + x * box.width(), box.y() + y * box.height());
    };
    painter.setPen(
        QPen(MarkColor(option), box.width() / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    if (option.state.testFlag(QStyle::State_On)) {
        const std::array<QPointF, 3> tick{at(0.24, 0.52), at(0.42, 0.7), at(0.77, 0.3)};
        painter.drawPolyline(tick.data(), static_cast<int>(tick.size()));
    } else if (option.state.testFlag(QStyle::State_NoChange)) {
        painter.drawLine(at(0.25, 0.5), at(0.75, 0.5));
    }
    painter.restore();
}

void DrawRadioButton(const QStyleOption& option, QPainter& painter) {
    const QRectF ring = SquareIn(option.rect);
    painter.save();
    SetMarkColors(option, painter);
    painter.drawEllipse(ring);
    if (option.state.testFlag(QStyle::State_On)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(MarkColor(option));
        painter.drawEllipse(ring.center(), ring.width() / 5, ring.width() / 5);
    }
    painter.restore();
}

void DrawFieldFrame(const QStyleOption& option, QPainter& painter) {
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const bool focus = enabled && option.state.testFlag(QStyle::State_HasFocus);
    DrawPlate(painter, option.rect, Qt::transparent,
              focus ? Theme::Accent(option.palette)
                    : Ground(option, enabled ? FieldShare : LineShare));
}

void DrawFocus(const QStyleOption& option, QPainter& painter) {
    if (option.state.testFlag(QStyle::State_KeyboardFocusChange)) {
        DrawPlate(painter, option.rect, Qt::transparent, Theme::Accent(option.palette));
    }
}

} // namespace zol::QuietParts
