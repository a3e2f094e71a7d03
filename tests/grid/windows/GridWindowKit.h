// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QBackingStore>
#include <QImage>
#include <QPaintEvent>
#include <QRegion>
#include <QScrollBar>
#include <QWheelEvent>
#include <QtTest>

#include <memory>

#include "grid/painting/GridPainter.h"
#include "grid/windows/GridArea.h"

namespace zol {

/// Collects what a widget is asked to paint, in its own pixels.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            Painted += static_cast<QPaintEvent*>(event)->region();
            ++Count;
        }
        return false;
    }
    void Forget() {
        Painted = {};
        Count = 0;
    }

    QRegion Painted;
    int Count = 0;
};

/// A pattern of many stitches, knots and lines shown on the grid, 480 x 360 window pixels large.
class GridScene {
public:
    static constexpr Colour Red = 0x0000FF;

    explicit GridScene(int width = 100, int height = 80, int clothX = 14, int clothY = 14)
        : Design(Context) {
        Design.Initialize(width, height, clothX, clothY);
        Palette& palette = Design.GetPalette();
        palette.ClearPalette();
        for (int i = 1; i <= 8; ++i) {
            palette.AddPaletteEntry(
                MakeColour(static_cast<unsigned>(i * 30), 90, static_cast<unsigned>(255 - i * 30)),
                std::to_string(i), "Floss", "DMC", std::string(1, char('A' + i)), 2, 2, 0, i, 0,
                "DMC");
        }
        Area = std::make_unique<GridArea>(Painter);
        Area->resize(480, 360);
        PaintOptions options;
        options.ClothColor = 0xE0F0F8;
        Area->SetPaintOptions(options);
        Area->SetPattern(&Design);
    }

    void FillWithStitches() {
        for (int x = 1; x <= Design.GetPatternWidth(); ++x) {
            for (int y = 1; y <= Design.GetPatternHeight(); ++y) {
                const int roll = (x * 7 + y * 13) % 11;
                if (roll < 8) {
                    Design.SetStitch(x, y, roll == 3 ? StitchUL3Q : StitchWhole,
                                     1 + (x + 3 * y) % 8, 5);
                }
                if ((x * 5 + y * 3) % 47 == 0) {
                    Design.SetStitch(x, y, StitchFKnot, 1 + (x + y) % 8, 1 + (x + y) % 9);
                }
            }
        }
        Area->DesignChanged();
    }
    void AddLine(int x1, int y1, int p1, int x2, int y2, int p2, int style) {
        BackStitchLine line;
        line.StartX = static_cast<std::int16_t>(x1);
        line.StartY = static_cast<std::int16_t>(y1);
        line.StartPos = static_cast<std::int16_t>(p1);
        line.EndX = static_cast<std::int16_t>(x2);
        line.EndY = static_cast<std::int16_t>(y2);
        line.EndPos = static_cast<std::int16_t>(p2);
        line.PaletteIndex = 3;
        line.LineStyle = static_cast<std::uint8_t>(style);
        Design.AddBackStitchLine(line);
    }

    void Show() {
        Area->show();
        QVERIFY(QTest::qWaitForWindowExposed(Area.get()));
        Settle();
    }
    /// Until everything asked for has been painted.
    static void Settle() {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }

    [[nodiscard]] GridCanvas& Canvas() const { return Area->Canvas(); }
    [[nodiscard]] QWidget& Holder() const {
        return *Area->findChild<QWidget*>(QStringLiteral("picGridHolder"));
    }
    [[nodiscard]] QScrollBar& Across() const {
        return *Area->findChild<QScrollBar*>(QStringLiteral("hsbGrid"));
    }
    [[nodiscard]] QScrollBar& Down() const {
        return *Area->findChild<QScrollBar*>(QStringLiteral("vsbGrid"));
    }
    /// What of the canvas shows, in its own pixels.
    [[nodiscard]] QRect Shown() const {
        return Canvas().rect() & Holder().rect().translated(-Canvas().pos());
    }

    /// What the screen shows of the canvas: the pixels as they lie there, not painted anew.
    [[nodiscard]] QImage OnScreen() const {
        const auto* window = dynamic_cast<const QImage*>(Area->backingStore()->paintDevice());
        return window->copy(DeviceRect()).convertToFormat(QImage::Format_RGB32);
    }
    /// The same part painted by the painter alone, from the pattern as it is now.
    [[nodiscard]] QImage Fresh() {
        const QRect rect = DeviceRect();
        QImage image(rect.size(), QImage::Format_RGB32);
        image.fill(qRgb(0xF8, 0xF0, 0xE0));
        const QPoint origin = rect.topLeft() - CanvasCorner();
        GridPainter painter;
        painter.PaintImage(image, origin, Canvas().View(), Area->Geometry().Everything());
        return image;
    }
    /// How many pixels differ by more than a rounding of a colour.
    static int Differing(const QImage& a, const QImage& b, int tolerance = 0) {
        if (a.size() != b.size()) {
            return -1;
        }
        int count = 0;
        for (int y = 0; y < a.height(); ++y) {
            for (int x = 0; x < a.width(); ++x) {
                const QRgb p = a.pixel(x, y);
                const QRgb q = b.pixel(x, y);
                count += std::abs(qRed(p) - qRed(q)) > tolerance ||
                                 std::abs(qGreen(p) - qGreen(q)) > tolerance ||
                                 std::abs(qBlue(p) - qBlue(q)) > tolerance
                             ? 1
                             : 0;
            }
        }
        return count;
    }

    /// The middle of a square, in the canvas's pixels.
    [[nodiscard]] QPoint MiddleOf(int column, int row) const {
        const GridGeometry& geometry = Area->Geometry();
        const QRect pixels = geometry.PixelsOf({column, row, column, row});
        return (QPointF(pixels.center()) / geometry.PixelRatio()).toPoint();
    }
    void Wheel(QPoint angle, Qt::KeyboardModifiers modifiers, QPoint inArea, QPoint pixels = {},
               Qt::ScrollPhase phase = Qt::NoScrollPhase) {
        QWidget* target = Area->childAt(inArea);
        target = target != nullptr ? target : Area.get();
        const QPoint place = target->mapFrom(Area.get(), inArea);
        QWheelEvent event(place, target->mapToGlobal(place), pixels, angle, Qt::NoButton, modifiers,
                          phase, false);
        // As from the system, so that it goes on to the parents.
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(target, &event);
        Settle();
    }

    ProgramContext Context;
    Pattern Design;
    GridPainter Painter;
    std::unique_ptr<GridArea> Area;

private:
    [[nodiscard]] QPoint CanvasCorner() const {
        const double ratio = Area->devicePixelRatioF();
        const QPointF corner = QPointF(Canvas().mapTo(Area.get(), QPoint())) * ratio;
        return {int(std::floor(corner.x() + 0.5)), int(std::floor(corner.y() + 0.5))};
    }
    /// Whole device pixels of the window that lie inside what shows of the canvas.
    [[nodiscard]] QRect DeviceRect() const {
        const double ratio = Area->devicePixelRatioF();
        const QRect shown = Shown().translated(Canvas().mapTo(Area.get(), QPoint()));
        const QPoint from(int(std::ceil(shown.left() * ratio)),
                          int(std::ceil(shown.top() * ratio)));
        const QPoint to(int(std::floor((shown.right() + 1) * ratio)) - 1,
                        int(std::floor((shown.bottom() + 1) * ratio)) - 1);
        return QRect(from, to) & QRect(CanvasCorner(), Area->Geometry().GridSize());
    }
};

} // namespace zol
