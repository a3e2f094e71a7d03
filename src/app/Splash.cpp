// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "app/Splash.h"

#include <QApplication>
#include <QPainter>

#include <array>
#include <string_view>

#include "windowkit/IconFamily.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

constexpr int Square = 8;       ///< of the band's cloth
constexpr int BandColumns = 57; ///< ends with a heart, as it begins
constexpr int Left = 36;
constexpr int SignSide = 96;
constexpr int TextLeft = Left + SignSide + 24;

/// One repeat of the band: a heart and a spray, "#" in the accent and "+" in the text's colour.
constexpr std::array<std::string_view, 5> Band{
    "..##.##.....+...", ".#######..+.+.+.", ".#######...+++..",
    "..#####.....+...", "...###......+...",
};

void PaintCross(QPainter& painter, int column, int row, const QColor& color) {
    constexpr double inset = 1.7;
    const QRectF cell(column * Square, row * Square, Square, Square);
    const QRectF legs = cell.adjusted(inset, inset, -inset, -inset);
    painter.setPen(QPen(color.darker(118), 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(legs.topLeft(), legs.bottomRight());
    painter.setPen(QPen(color, 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(legs.bottomLeft(), legs.topRight());
}

void PaintBand(QPainter& painter, const QPalette& palette, int top) {
    const QColor window = palette.color(QPalette::Window);
    const QColor quiet = Theme::Mix(window, palette.color(QPalette::WindowText), 0.4);
    painter.save();
    painter.translate((Splash::Size.width() - BandColumns * Square) / 2.0, top);
    for (int row = 0; row < static_cast<int>(Band.size()); ++row) {
        const std::string_view stitches = Band[static_cast<std::size_t>(row)];
        for (int column = 0; column < BandColumns; ++column) {
            const char stitch = stitches[static_cast<std::size_t>(column) % stitches.size()];
            if (stitch != '.') {
                PaintCross(painter, column, row, stitch == '#' ? Theme::Accent(palette) : quiet);
            }
        }
    }
    painter.restore();
}

void PaintName(QPainter& painter, const QPalette& palette) {
    QFont font = QApplication::font();
    font.setPixelSize(40);
    font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(palette.color(QPalette::WindowText));
    painter.drawText(QRect(TextLeft, 52, Splash::Size.width() - TextLeft, 52),
                     Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Korvanta"));
    font.setPixelSize(15);
    font.setWeight(QFont::Normal);
    painter.setFont(font);
    painter.setPen(
        Theme::Mix(palette.color(QPalette::WindowText), palette.color(QPalette::Window), 0.25));
    painter.drawText(QRect(TextLeft + 2, 104, Splash::Size.width() - TextLeft, 24),
                     Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("Counted cross-stitch design"));
}

} // namespace

QPixmap Splash::Picture(const QPalette& palette, double ratio) {
    QPixmap picture(Size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(palette.color(QPalette::Window));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPixmap sign = IconFamily::ProgramIcon().pixmap(QSize(SignSide, SignSide), ratio);
    painter.drawPixmap(QPointF(Left, 42), sign);
    PaintName(painter, palette);
    PaintBand(painter, palette, Size.height() - 7 * Square);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(Theme::Edge(palette), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(QPointF(0, 0), QSizeF(Size) - QSizeF(1, 1)));
    return picture;
}

} // namespace zol
