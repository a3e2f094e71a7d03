// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// What the grid's window paints, against filling a view of 1920 by 1080 pixels once by scan line.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>

#include <algorithm>
#include <cstring>

#include "Ratio.h"
#include "Scene.h"
#include "grid/painting/GridPainter.h"
#include "grid/windows/GridArea.h"
#include "windowkit/Theme.h"

namespace {

constexpr int Width = 1920;
constexpr int Height = 1080;

void Fill(QImage& image, QRgb colour) {
    for (int y = 0; y < image.height(); ++y) {
        std::fill_n(reinterpret_cast<QRgb*>(image.scanLine(y)), image.width(), colour);
    }
}

/// The grid in a window of its own whose holder shows about 1920 by 1080 pixels of it.
class Window {
public:
    explicit Window(int squarePixels) : m_area(m_painter) {
        m_area.resize(Width + 40, Height + 40);
        m_area.SetPattern(&zol::SharedScene());
        // 100 percent of a cloth of 14 are 96 / 14 pixels.
        m_area.Zoom().ChangeZoom((squarePixels * 1400 + 48) / 96);
        m_area.show();
        m_area.ScrollGrid(37, 53, true);
        zol::Overlay overlay;
        const int first = 40;
        overlay.Frame = zol::SquareRect{first, 56, first + 30, 56 + 20};
        overlay.RubberBand = zol::OverlayLine{{90, 120}, {130, 150}};
        overlay.Handles = zol::OverlayLine{{100, 120}, {110, 150}};
        overlay.Mirror = zol::OverlayAxis{zol::MirrorVertical, {60, 70}};
        m_area.SetOverlay(overlay);
        Paint();
    }

    [[nodiscard]] zol::GridArea& Area() { return m_area; }
    /// What has been asked for comes onto the screen.
    static void Paint() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
        QCoreApplication::processEvents();
    }

private:
    zol::GridPainter m_painter;
    zol::GridArea m_area;
};

class Floor {
public:
    void operator()() { Fill(m_image, ++m_colour); }

private:
    QImage m_image{Width, Height, QImage::Format_RGB32};
    QRgb m_colour = 0xFF000000U;
};

/// Cloth, rulers, lines and overlays from nothing. Pixels a square.
void RepaintWindow(benchmark::State& state) {
    const int pixels = static_cast<int>(state.range(0));
    Window window(pixels);
    Floor floor;
    zol::Ratio(state, pixels < 5 ? 25 : 12, zol::Timing::Wall).Measure(floor, [&] {
        // What lies on the area without covering it is painted with it.
        window.Area().update();
        for (QWidget* part : window.Area().findChildren<QWidget*>()) {
            if (part->testAttribute(Qt::WA_OpaquePaintEvent)) {
                part->update();
            }
        }
        Window::Paint();
    });
}

/// One column further and back again by turns.
void ScrollOneSquare(benchmark::State& state) {
    Window window(20);
    Floor floor;
    int column = 100;
    zol::Ratio(state, 1, zol::Timing::Wall).Measure(floor, [&] {
        column = column == 100 ? 101 : 100;
        window.Area().ScrollGrid(column, 53, false);
        Window::Paint();
    });
}

/// What the system's own part of such a scroll is: the view's pixels are moved by a square, all but
/// the strip that comes in. Nothing that shows one window's pixels can be faster.
void MoveOneSquare(benchmark::State& state) {
    QImage view(Width, Height, QImage::Format_RGB32);
    view.fill(Qt::white);
    Floor floor;
    constexpr int square = 20;
    int turn = 0;
    zol::Ratio(state, 0, zol::Timing::Wall).Measure(floor, [&] {
        turn = 1 - turn;
        for (int y = 0; y < Height; ++y) {
            auto* line = reinterpret_cast<QRgb*>(view.scanLine(y));
            const int from = turn == 0 ? 0 : square;
            const int to = square - from;
            std::memmove(line + to, line + from, (Width - square) * sizeof(QRgb));
        }
    });
}

/// A move of the pointer that sets 20 squares and their 20 mirror images.
void StrokeMove(benchmark::State& state) {
    Window window(20);
    Floor floor;
    int floss = 1;
    zol::Ratio(state, 1, zol::Timing::Wall).Measure(floor, [&] {
        floss = floss % 200 + 1;
        for (int i = 0; i < 20; ++i) {
            for (const int column : {45 + i, 125 - i}) {
                const int row = 60 + i;
                zol::SharedScene().SetStitch(column, row, zol::StitchWhole, floss, 5);
                window.Area().RedrawStitches({column, row, column, row});
            }
        }
        Window::Paint();
    });
}

} // namespace

BENCHMARK(RepaintWindow)
    ->ArgName("pixels")
    ->Arg(2)
    ->Arg(5)
    ->Arg(10)
    ->Arg(20)
    ->Arg(40)
    ->Apply(zol::AsRatio);
BENCHMARK(ScrollOneSquare)->Apply(zol::AsRatio);
BENCHMARK(MoveOneSquare)->Apply(zol::AsRatio);
BENCHMARK(StrokeMove)->Apply(zol::AsRatio);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    zol::Theme::Apply(app); // the program's own scroll bars
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
