// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Writing the chart of a full design as a PDF, against drawing the same glyphs, one glyph run
// each, on the same pages of a QPdfWriter.

#include <benchmark/benchmark.h>

#include <QGlyphRun>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QRawFont>
#include <QTemporaryDir>

#include <array>
#include <string>

#include "Ratio.h"
#include "grid/painting/SymbolText.h"
#include "print/ChartPdf.h"
#include "print/PageDevice.h"
#include "print/PrintFuncs.h"

namespace {

constexpr int Size = 300;
constexpr int Flosses = 50;

zol::Pattern& Design() {
    static zol::ProgramContext context;
    static zol::Pattern* design = [] {
        static zol::Pattern pattern(context);
        pattern.Initialize(Size, Size, 14, 14);
        zol::Palette& palette = pattern.GetPalette();
        palette.ClearPalette();
        for (int i = 1; i <= Flosses; ++i) {
            palette.AddPaletteEntry(0x050301U * static_cast<unsigned>(i), std::to_string(i),
                                    "Floss", "DMC", palette.GetNextAvailableSymbol(), 2, 1, 0, i, 0,
                                    "DMC");
        }
        palette.Sort(zol::SortOrderAdded);
        std::uint32_t state = 1;
        for (int x = 1; x <= Size; ++x) {
            for (int y = 1; y <= Size; ++y) {
                state = state * 1664525U + 1013904223U;
                pattern.SetStitch(x, y, zol::StitchWhole,
                                  static_cast<int>((state >> 8U) % Flosses) + 1, 5);
            }
        }
        return &pattern;
    }();
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

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
