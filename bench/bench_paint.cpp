// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Painting a view of 1920 by 1080 pixels, against filling it once by scan line.

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>

#include <algorithm>

#include "Ratio.h"
#include "Scene.h"
#include "grid/painting/GridPainter.h"

namespace {

constexpr int Width = 1920;
constexpr int Height = 1080;

const zol::Pattern& Scene() {
    static zol::ProgramContext context;
    static const zol::Pattern* scene = [] {
        static zol::Pattern pattern(context);
        zol::FillScene(pattern);
        return &pattern;
    }();
    return *scene;
}

void Fill(QImage& image, QRgb colour) {
    for (int y = 0; y < image.height(); ++y) {
        std::fill_n(reinterpret_cast<QRgb*>(image.scanLine(y)), image.width(), colour);
    }
}

/// How many fills a view may take: small squares are many.
double GoalOf(int style, int pixels) {
    const double plain = style == zol::ShowColorSquares ? 4 : 8;
    return pixels < 5 ? plain * 2.5 : plain;
}

/// Style, pixels a square.
void PaintView(benchmark::State& state) {
    zol::GridView view;
    view.Source = &Scene();
    view.Scale = zol::GridScale::ForPicture(static_cast<int>(state.range(1)), 14, 14);
    view.Options.StitchStyle = static_cast<int>(state.range(0));
    zol::GridPainter painter;
    QImage image(Width, Height, QImage::Format_RGB32);
    const QPoint position(37, 53);
    const auto paint = [&] { painter.PaintImage(image, position, view, view.Everything()); };
    QRgb colour = 0xFF000000U;
    zol::Ratio(state, GoalOf(view.Options.StitchStyle, static_cast<int>(state.range(1))))
        .Measure([&] { Fill(image, ++colour); }, paint);
}

} // namespace

BENCHMARK(PaintView)
    ->ArgNames({"style", "pixels"})
    ->ArgsProduct({{1, 2, 3, 4, 5, 6}, {2, 5, 10, 20, 40}})
    ->Apply(zol::AsRatio);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
