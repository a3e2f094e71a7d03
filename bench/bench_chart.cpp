// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Writing the chart of a full design as a PDF, against drawing the same glyphs, one glyph run
// each, on the same pages of a QPdfWriter; what it takes in memory; and the first page of a
// preview, against a design that is that page alone.

#include <benchmark/benchmark.h>

#include <QGlyphRun>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QRawFont>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "Ratio.h"
#include "grid/painting/SymbolText.h"
#include "print/ChartPdf.h"
#include "print/PageDevice.h"
#include "print/PagePicture.h"
#include "print/Paper.h"
#include "print/PrintFuncs.h"

namespace {

constexpr int Size = 400;
constexpr int Flosses = 90;

/// A full design without regularity.
std::unique_ptr<zol::Pattern> MakeDesign(int width, int height) {
    static zol::ProgramContext context;
    auto design = std::make_unique<zol::Pattern>(context);
    zol::Pattern& pattern = *design;
    pattern.Initialize(width, height, 14, 14);
    zol::Palette& palette = pattern.GetPalette();
    palette.ClearPalette();
    for (int i = 1; i <= Flosses; ++i) {
        palette.AddPaletteEntry(0x050301U * static_cast<unsigned>(i), std::to_string(i), "Floss",
                                "DMC", palette.GetNextAvailableSymbol(), 2, 1, 0, i, 0, "DMC");
    }
    palette.Sort(zol::SortOrderAdded);
    std::uint32_t state = 1;
    for (int x = 1; x <= width; ++x) {
        for (int y = 1; y <= height; ++y) {
            state = state * 1664525U + 1013904223U;
            pattern.SetStitch(x, y, zol::StitchWhole, static_cast<int>((state >> 8U) % Flosses) + 1,
                              5);
        }
    }
    return design;
}

zol::Pattern& Design() {
    static const auto design = MakeDesign(Size, Size);
    return *design;
}

/// One glyph run for each symbol of the design, at the size of a square.
std::array<QGlyphRun, 256> SymbolRuns(double pixelSize) {
    std::array<QGlyphRun, 256> runs;
    QFont font(zol::SymbolText::LoadBuiltInFont());
    font.setPixelSize(1024);
    font.setHintingPreference(QFont::PreferNoHinting);
    QRawFont raw = QRawFont::fromFont(font);
    raw.setPixelSize(pixelSize);
    for (int i = 1; i <= Flosses; ++i) {
        const int code = Design().GetPalette().GetFlossSymbol(i);
        const char32_t character = zol::SymbolText::ToUnicode(code);
        QGlyphRun& run = runs[static_cast<std::size_t>(i)];
        run.setRawFont(raw);
        run.setGlyphIndexes(raw.glyphIndexesForString(QString::fromUcs4(&character, 1)));
        run.setPositions({QPointF(0, 0)});
    }
    return runs;
}

void DrawGlyphsOnly(const QString& path) {
    QPdfWriter writer(path);
    writer.setResolution(zol::PageDevice::TwipsPerInch);
    writer.setPageMargins(QMarginsF());
    zol::PagedPageDevice device(writer);
    zol::PrintFuncs functions({}, &device);
    functions.SetPattern(Design());
    const int pages = functions.GetPageCount();
    const int square = functions.SquareWidth();
    const auto runs = SymbolRuns(square);
    QPainter painter(&writer);
    for (int page = 1; page <= pages; ++page) {
        if (page > 1) {
            writer.newPage();
        }
        const zol::PageRange range = functions.GetPageRange(page, true);
        for (int x = range.Squares.Left; x <= range.Squares.Right; ++x) {
            for (int y = range.Squares.Top; y <= range.Squares.Bottom; ++y) {
                const auto floss = static_cast<std::size_t>(Design().GetStitchPaletteIndex(x, y));
                painter.drawGlyphRun(
                    QPointF(range.OriginX + (x - 1) * square, range.OriginY + y * square),
                    runs[floss]);
            }
        }
    }
}

void ChartOfAFullDesign(benchmark::State& state) {
    const QTemporaryDir folder;
    const QString chart = folder.filePath(QStringLiteral("chart.pdf"));
    const QString glyphs = folder.filePath(QStringLiteral("glyphs.pdf"));
    zol::ChartPdfOptions options;
    options.Print.StitchSymbol = static_cast<int>(state.range(0));
    zol::Ratio(state, 2).Measure([&] { DrawGlyphsOnly(glyphs); },
                                 [&] {
                                     const zol::ChartPdfResult result = zol::WriteChartPdf(
                                         Design(), options,
                                         std::filesystem::path(chart.toStdString()), nullptr);
                                     if (!result.IsWhole()) {
                                         state.SkipWithError(result.ErrorText.c_str());
                                     }
                                 });
}

BENCHMARK(ChartOfAFullDesign)
    ->ArgName("print style")
    ->Arg(zol::PrintBlackSymbols)
    ->Arg(zol::PrintColorSymbols)
    ->Arg(zol::PrintBlocksAndSymbols)
    ->Arg(zol::PrintColorBlocks)
    ->Apply(zol::AsRatio);

/// The first page of a preview of a full design of that size. The floor is the same page of a
/// design that has no other.
void FirstPageOfAPreview(benchmark::State& state) {
    constexpr int DotsPerInch = 60; // a page that fits a window
    const auto size = static_cast<int>(state.range(0));
    const auto design = MakeDesign(size, size);
    zol::Paper paper((QPageSize(QPageSize::A4)));
    const auto paint = [&](zol::Pattern& pattern) {
        zol::PrintFuncs job({}, &paper);
        job.SetPattern(pattern);
        const int pages = job.GetPageCount();
        if (zol::PaintShownPage(job, 1, DotsPerInch, nullptr).Image.isNull()) {
            state.SkipWithError("no page");
        }
        return pages;
    };
    zol::PrintFuncs job({}, &paper);
    job.SetPattern(*design);
    const auto alone =
        MakeDesign(std::min(size, job.ColumnsPerPage()), std::min(size, job.RowsPerPage()));
    int pages = 0;
    zol::Ratio(state, 1.2).Measure([&] { (void)paint(*alone); }, [&] { pages = paint(*design); });
    state.counters["pages"] = pages;
}

/// The figure of a line of /proc/self/status, in kilobytes.
double StatusFigure(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(name)) {
            return std::stod(line.substr(name.size() + 1));
        }
    }
    return 0;
}

/// What writing that many pages adds to the memory that is in use before: the highest point while
/// they are written.
void MemoryOfAChart(benchmark::State& state) {
    static const auto design = MakeDesign(999, 999);
    const QTemporaryDir folder;
    const std::filesystem::path chart = folder.filePath(QStringLiteral("chart.pdf")).toStdString();
    zol::ChartPdfOptions options;
    options.Print.GSPI = 8.5; // 216 pages
    options.ToPage = static_cast<int>(state.range(0));
    double before = 0;
    for ([[maybe_unused]] auto turn : state) {
        std::ofstream("/proc/self/clear_refs") << '5'; // forgets the highest point until now
        before = StatusFigure("VmRSS:");
        if (!zol::WriteChartPdf(*design, options, chart, nullptr).IsWhole()) {
            state.SkipWithError("no chart");
        }
    }
    state.counters["before_kB"] = before;
    state.counters["added_kB"] = StatusFigure("VmHWM:") - before;
}

BENCHMARK(FirstPageOfAPreview)->ArgName("size")->Arg(100)->Arg(400)->Arg(999)->Apply(zol::AsRatio);
BENCHMARK(MemoryOfAChart)->ArgName("pages")->Arg(50)->Arg(100)->Arg(200)->Iterations(2);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
