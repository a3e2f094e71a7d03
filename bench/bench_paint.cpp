// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Painting a view of 1920 by 1080 pixels, or little pieces of it, against filling the whole view
// once by scan line.

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>

#include "Ratio.h"
#include "Scene.h"
#include "grid/painting/GridPainter.h"

namespace {

constexpr int Width = 1920;
constexpr int Height = 1080;

/// What lines a pattern is given.
enum LineSort : std::uint8_t {
    Outlines = 0, ///< from corner to corner, one to five squares: half along a row, a column or a
                  ///< diagonal, half at any slope
    AnyLines = 1, ///< up to ten squares each way between any regions
};

zol::BackStitchLine AnyLine(std::mt19937& random, LineSort sort, int columns, int rows) {
    const auto roll = [&random](int from, int to) {
        return static_cast<std::int16_t>(
            from + static_cast<int>(random() % static_cast<unsigned>(to - from + 1)));
    };
    const auto region = [&] {
        constexpr std::array<std::int16_t, 4> corners{1, 3, 7, 9};
        return sort == AnyLines ? roll(1, 9) : corners[static_cast<std::size_t>(roll(0, 3))];
    };
    zol::BackStitchLine line;
    line.StartX = roll(1, columns);
    line.StartY = roll(1, rows);
    line.StartPos = region();
    int across = sort == AnyLines ? roll(-10, 10) : roll(-3, 3);
    int down = sort == AnyLines ? roll(-10, 10) : roll(-3, 3);
    line.EndPos = region();
    if (sort == Outlines && roll(0, 1) == 0) {
        const int length = roll(1, 5);
        const int way = roll(0, 3);
        across = way == 0 ? 0 : length;
        down = way == 1 ? 0 : way == 2 ? -length : length;
        line.EndPos = line.StartPos;
    }
    line.EndX = static_cast<std::int16_t>(std::clamp(line.StartX + across, 1, columns));
    line.EndY = static_cast<std::int16_t>(std::clamp(line.StartY + down, 1, rows));
    line.PaletteIndex = static_cast<std::uint8_t>(roll(1, 200));
    line.LineStyle = static_cast<std::uint8_t>(roll(0, 5));
    return line;
}

/// The scene with so many lines instead of its own, in all six styles, all of them within the first
/// `columns` and `rows`.
zol::Pattern& SceneWithLines(int count, int columns, int rows, LineSort sort = AnyLines) {
    zol::Pattern& pattern = zol::SharedScene();
    while (pattern.GetBackStitchCount() > 0) {
        pattern.RemoveBackStitchLine(pattern.GetBackStitchCount());
    }
    std::mt19937 random(20240602);
    while (pattern.GetBackStitchCount() < count) {
        pattern.SetBackstitchLine(AnyLine(random, sort, columns, rows));
    }
    return pattern;
}

zol::GridView ViewOf(const zol::Pattern& pattern, int style, int pixels) {
    zol::GridView view;
    view.Source = &pattern;
    view.Scale = zol::GridScale::ForPicture(pixels, 14, 14);
    view.Options.StitchStyle = style;
    return view;
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
    const int pixels = static_cast<int>(state.range(1));
    const zol::GridView view = ViewOf(zol::SharedScene(), static_cast<int>(state.range(0)), pixels);
    zol::GridPainter painter;
    QImage image(Width, Height, QImage::Format_RGB32);
    const QPoint position(37, 53);
    const auto paint = [&] { painter.PaintImage(image, position, view, view.Everything()); };
    QRgb colour = 0xFF000000U;
    zol::Ratio(state, GoalOf(view.Options.StitchStyle, pixels), zol::Timing::Wall)
        .Measure([&] { Fill(image, ++colour); }, paint);
}

/// Pixels a square, lines in the view, their sort: what the window shows of a design with many
/// lines.
void PaintLines(benchmark::State& state) {
    const int pixels = static_cast<int>(state.range(0));
    const int lines = static_cast<int>(state.range(1));
    const zol::Pattern& pattern =
        SceneWithLines(lines, std::min(999, Width / pixels), std::min(999, Height / pixels),
                       static_cast<LineSort>(state.range(2)));
    const zol::GridView view = ViewOf(pattern, zol::ShowColorSquares, pixels);
    zol::GridPainter painter;
    QImage image(Width, Height, QImage::Format_RGB32);
    const double goal = (pixels < 5 ? 25 : 12) + (lines - 2000) / 1000 * 2;
    QRgb colour = 0xFF000000U;
    zol::Ratio(state, goal, zol::Timing::Wall)
        .Measure([&] { Fill(image, ++colour); },
                 [&] {
                     painter.PaintImage(image, {0, 0}, view, view.Everything());
                 });
}

/// Pixels a square, lines of the pattern: one move of a stroke, 20 squares and their mirror images,
/// each repainted by itself with what reaches into its neighbours.
void PaintStroke(benchmark::State& state) {
    const int pixels = static_cast<int>(state.range(0));
    zol::Pattern& pattern = SceneWithLines(static_cast<int>(state.range(1)), 999, 999);
    const zol::GridView view = ViewOf(pattern, zol::ShowColorSquares, pixels);
    zol::GridPainter painter;
    QImage whole(Width, Height, QImage::Format_RGB32);
    QImage piece(3 * pixels, 3 * pixels, QImage::Format_RGB32);
    QRgb colour = 0xFF000000U;
    const auto square = [&](int x, int y) {
        painter.PaintImage(piece, {(x - 2) * pixels, (y - 2) * pixels}, view,
                           {x - 1, y - 1, x + 1, y + 1});
    };
    int turn = 0;
    zol::Ratio(state, 1, zol::Timing::Wall)
        .Measure([&] { Fill(whole, ++colour); }, [&] { turn = (turn + 1) % 200; },
                 [&] {
                     for (int i = 0; i < 20; ++i) {
                         const int x = 30 + turn + i;
                         const int y = 500 + i;
                         pattern.SetStitch(x, y, zol::StitchWhole, 1 + turn, 5);
                         pattern.SetStitch(999 - x, y, zol::StitchWhole, 1, 5);
                         square(x, y);
                         square(999 - x, y);
                     }
                 });
}

/// Pixels wide and high, lines of the pattern: what comes into sight when the view scrolls by a
/// square of 20 pixels.
void PaintStrip(benchmark::State& state) {
    const zol::Pattern& pattern = SceneWithLines(static_cast<int>(state.range(2)), 999, 999);
    const zol::GridView view = ViewOf(pattern, zol::ShowColorSquares, 20);
    zol::GridPainter painter;
    QImage whole(Width, Height, QImage::Format_RGB32);
    QImage strip(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)),
                 QImage::Format_RGB32);
    QRgb colour = 0xFF000000U;
    int turn = 0;
    zol::Ratio(state, 1, zol::Timing::Wall)
        .Measure([&] { Fill(whole, ++colour); }, [&] { turn = (turn + 1) % 400; },
                 [&] {
                     painter.PaintImage(strip, {turn * 20, turn * 20}, view, view.Everything());
                 });
}

/// Lines of the pattern: one more is drawn, and its squares are repainted.
void PaintNewLine(benchmark::State& state) {
    zol::Pattern& pattern = SceneWithLines(static_cast<int>(state.range(0)), 999, 999);
    const zol::GridView view = ViewOf(pattern, zol::ShowColorSquares, 20);
    zol::GridPainter painter;
    QImage whole(Width, Height, QImage::Format_RGB32);
    QImage piece(160, 160, QImage::Format_RGB32);
    zol::BackStitchLine line{500, 500, 1, 507, 503, 9, 7, zol::LineStraight};
    QRgb colour = 0xFF000000U;
    const auto paint = [&] {
        painter.PaintImage(piece, {499 * 20, 499 * 20}, view, {500, 500, 507, 507});
    };
    pattern.SetBackstitchLine(line);
    zol::Ratio(state, 1, zol::Timing::Wall)
        .Measure([&] { Fill(whole, ++colour); },
                 [&] {
                     pattern.RemoveBackStitchLine(pattern.GetBackStitchCount());
                     paint(); // without it, so that the painter has seen it go
                 },
                 [&] {
                     pattern.SetBackstitchLine(line);
                     paint();
                 });
}

} // namespace

BENCHMARK(PaintView)
    ->ArgNames({"style", "pixels"})
    ->ArgsProduct({{1, 2, 3, 4, 5, 6}, {2, 5, 10, 20, 40}})
    ->Apply(zol::AsRatio);

BENCHMARK(PaintLines)
    ->ArgNames({"pixels", "lines", "sort"})
    ->ArgsProduct({{2, 5, 10, 20, 40}, {2000, 3000, 4000, 10000}, {Outlines, AnyLines}})
    ->Apply(zol::AsRatio);
BENCHMARK(PaintStroke)
    ->ArgNames({"pixels", "lines"})
    ->ArgsProduct({{5, 20, 40}, {2000, 20000}})
    ->Apply(zol::AsRatio);
BENCHMARK(PaintStrip)
    ->ArgNames({"width", "height", "lines"})
    ->Args({Width, 20, 2000})
    ->Args({20, Height, 2000})
    ->Args({Width, 20, 20000})
    ->Args({20, Height, 20000})
    ->Apply(zol::AsRatio);
BENCHMARK(PaintNewLine)->ArgNames({"lines"})->Arg(2000)->Arg(20000)->Apply(zol::AsRatio);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
