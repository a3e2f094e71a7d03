// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QBackingStore>
#include <QDialog>
#include <QImage>
#include <QPainter>
#include <QScreen>
#include <QTimer>

#include <cmath>
#include <string>
#include <vector>

#include "grid/painting/BackStitchLines.h"
#include "grid/painting/GridPainter.h"
#include "grid/tools/FloatingPicture.h"
#include "grid/tools/OverlayPainter.h"
#include "gui/Mouse.h"
#include "gui/RunningProgram.h"
#include "gui/Twin.h"
#include "model/ByteStream.h"
#include "windowkit/Theme.h"

namespace zol::test {

/// Everything that a file would hold of what stands open.
inline std::string BytesOf(OpenDesign& open) {
    ByteWriter stream;
    return open.WriteTo(stream) == 0 ? std::string(stream.Bytes().begin(), stream.Bytes().end())
                                     : std::string("cannot be written");
}

/// The whole program drawn in with the system's mouse and keys, and what its screen shows.
class DrawnProgram : public RunningProgram {
public:
    using RunningProgram::RunningProgram;

    /// As Start, and the window has the keys.
    [[nodiscard]] bool Open() {
        if (!Start()) {
            return false;
        }
        Window().activateWindow();
        const bool active = QTest::qWaitForWindowActive(&Window());
        Grid().setFocus();
        Settle();
        return active;
    }
    /// Until everything asked for has been painted.
    static void Settle() {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }
    /// A design of that size, and the zoom.
    void Take(int width, int height, int zoom) {
        Design().Initialize(width, height, 14, 14);
        Resized(zoom);
    }
    void Resized(int zoom) {
        Area().Zoom().ChangeZoom(zoom);
        Choose("mnuViewRefresh");
        Area().ScrollGrid(1, 1, true);
        Settle();
    }

    /// Where a part of a square lies, 0 to 1 across and down, in pixels of the grid's widget.
    [[nodiscard]] QPointF In(int column, int row, double across = 0.5, double down = 0.5) {
        const GridGeometry& geometry = Area().Geometry();
        const double left = geometry.LeftOf(column);
        const double top = geometry.TopOf(row);
        const QPointF device(left + (geometry.LeftOf(column + 1) - left) * across,
                             top + (geometry.TopOf(row + 1) - top) * down);
        return device / geometry.PixelRatio();
    }
    void ClickIn(int column, int row, double across = 0.5, double down = 0.5,
                 Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {}) {
        Pointer.Click(Grid(), In(column, row, across, down), button, keys);
    }
    /// Press, one move to each of the other squares, release.
    void DragOver(const std::vector<SquarePos>& squares, Qt::MouseButton button = Qt::LeftButton,
                  Qt::KeyboardModifiers keys = {}) {
        Pointer.MoveTo(Grid(), In(squares.front().X, squares.front().Y));
        Pointer.Press(button, keys);
        for (std::size_t i = 1; i < squares.size(); ++i) {
            Pointer.MoveTo(Grid(), In(squares[i].X, squares[i].Y), keys);
        }
        Pointer.Release(button, keys);
    }
    /// A tool button, clicked as it shows.
    void Tool(const char* key) {
        auto* button = Find<QToolButton>(key);
        QVERIFY2(button->isVisible() && button->isEnabled(), key);
        Pointer.Click(*button, QRectF(button->rect()).center());
    }
    /// File, New; what it asks of the new pattern is left as it is offered.
    void NewPatternByMenu() {
        QTimer::singleShot(0, &Window(), [] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                dialog->accept();
            }
        });
        Choose("mnuFileNew");
        Settle();
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers keys = {}) {
        QTest::keyClick(Window().windowHandle(), key, keys);
    }

    /// Pixels of the grid on the screen that are not what a fresh painting of the design and of
    /// what lies over it gives.
    [[nodiscard]] int WrongPixels() {
        Settle();
        const QRect rect = ShownPixels();
        if (rect.isEmpty()) {
            return -1;
        }
        const QImage screen = OnScreen().copy(rect).convertToFormat(QImage::Format_RGB32);
        const QImage fresh = Fresh(rect);
        int wrong = 0;
        for (int y = 0; y < screen.height(); ++y) {
            for (int x = 0; x < screen.width(); ++x) {
                wrong += screen.pixel(x, y) != fresh.pixel(x, y) ? 1 : 0;
            }
        }
        return wrong;
    }
    [[nodiscard]] Overlay OnTop() { return Area().Canvas().GetOverlay(); }

    Mouse Pointer;

private:
    /// The window as the display has it. Where there is none, what was painted last stands for it;
    /// where there is one, that is not enough, as what scrolls is moved by the display.
    [[nodiscard]] QImage OnScreen() {
        if (QGuiApplication::platformName() != QLatin1String("offscreen")) {
            return Window().screen()->grabWindow(Window().winId()).toImage();
        }
        const auto* painted = dynamic_cast<const QImage*>(Window().backingStore()->paintDevice());
        return painted != nullptr ? *painted : QImage();
    }
    [[nodiscard]] QPoint CanvasCorner() {
        const double ratio = Area().devicePixelRatioF();
        const QPointF corner = QPointF(Grid().mapTo(&Window(), QPoint())) * ratio;
        return {int(std::floor(corner.x() + 0.5)), int(std::floor(corner.y() + 0.5))};
    }
    /// Whole pixels of the window's picture that show squares.
    [[nodiscard]] QRect ShownPixels() {
        const double ratio = Area().devicePixelRatioF();
        const auto* holder = Find<QWidget>("picGridHolder");
        const QRect shown = (Grid().rect() & holder->rect().translated(-Grid().pos()))
                                .translated(Grid().mapTo(&Window(), QPoint()));
        const QPoint from(int(std::ceil(shown.left() * ratio)),
                          int(std::ceil(shown.top() * ratio)));
        const QPoint to(int(std::floor((shown.right() + 1) * ratio)) - 1,
                        int(std::floor((shown.bottom() + 1) * ratio)) - 1);
        return QRect(from, to) & QRect(CanvasCorner(), Area().Geometry().GridSize());
    }
    [[nodiscard]] QImage Fresh(const QRect& rect) {
        GridCanvas& canvas = Area().Canvas();
        const GridView view = canvas.View();
        QImage image(rect.size(), QImage::Format_RGB32);
        image.fill(qRgb(1, 2, 3));
        const QPoint origin = rect.topLeft() - CanvasCorner();
        GridPainter painter;
        painter.PaintImage(image, origin, view, Area().Geometry().Everything());
        OverlayStyle style;
        style.Accent = Theme::Accent(canvas.palette());
        style.LineWidth = GetBackStitchPenWidth(view);
        if (const auto& content = canvas.GetOverlay().Content) {
            FloatingPicture().Paint(image, origin, *content, Area().Geometry(), view.Options);
        }
        QPainter over(&image);
        over.translate(-origin);
        const OverlayPainter overlay(canvas.GetOverlay(), Area().Geometry(), style);
        overlay.Paint(over);
        return image;
    }
};

using OpenedProgram = AtHome<DrawnProgram, &DrawnProgram::Open>;

} // namespace zol::test

/// The design is the twin's, and the screen shows it.
#define COMPARE_TWIN(program, twin)                                                                \
    do {                                                                                           \
        const std::string difference = zol::test::DifferenceOf((program).Design(), twin);          \
        QVERIFY2(difference.empty(), difference.c_str());                                          \
        QTRY_COMPARE((program).WrongPixels(), 0);                                                  \
    } while (false)
