// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Painting a view of 1920 by 1080 pixels, against filling it once by scan line. Each benchmark
// measures the fill itself between its paints, so that both see the same machine, and gives the
// ratio of the medians as "fills".

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>

#include <algorithm>
#include <ctime>
#include <vector>

#include "Scene.h"
#include "grid/GridPainter.h"

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
    benchmark::ClobberMemory();
}

/// Time of this thread alone: others that keep the machine busy shall not count.
double Now() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

template<typename Work>
double Seconds(Work work) {
    const double begin = Now();
    work();
    return Now() - begin;
}

double Median(std::vector<double> times) {
    std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2),
                     times.end());
    return times[times.size() / 2];
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
    const double first = Seconds(paint);
    std::vector<double> paints;
    std::vector<double> fills;
    QRgb colour = 0xFF000000U;
    for ([[maybe_unused]] auto _ : state) {
        fills.push_back(Seconds([&] { Fill(image, ++colour); }));
        paints.push_back(Seconds(paint));
        state.SetIterationTime(paints.back());
    }
    state.counters["fills"] = Median(paints) / Median(fills);
    state.counters["fill_us"] = Median(fills) * 1e6;
    state.counters["first_ms"] = first * 1e3;
}

} // namespace

BENCHMARK(PaintView)
    ->ArgNames({"style", "pixels"})
    ->ArgsProduct({{1, 2, 3, 4, 5, 6}, {2, 5, 10, 20, 40}})
    ->UseManualTime()
    ->MinTime(0.3)
    ->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
