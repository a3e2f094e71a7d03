// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Matching a picture of 999 by 999 pixels to 489 flosses, reducing it to 50 and writing the
// pattern, and the preview of a smaller one, against one pass over its pixels that looks each one
// up in a table. A step of the slider that adjusts colours, against filling the picture.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <random>
#include <vector>

#include "Ratio.h"
#include "import/Adjustments.h"
#include "import/ColorAdjusting.h"
#include "import/ImportSession.h"
#include "import/PictureOps.h"
#include "model/Pattern.h"
#include "model/ProgramContext.h"

namespace {

using namespace zol;

constexpr int Side = 999;
constexpr int Flosses = 489;
constexpr int MaxColors = 50;

/// Soft shapes of many colours with grain, as a photo has.
Picture Photo(bool ofDepth, int width = Side, int height = Side) {
    std::mt19937 random(1);
    Picture picture(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto channel = [&random, x, y](double fx, double fy, double phase) {
                const double wave = std::sin(x * fx + phase) * std::cos(y * fy - phase);
                const double grain = static_cast<double>(random() % 17) - 8;
                return static_cast<unsigned>(std::clamp(128 + 110 * wave + grain, 0.0, 254.0));
            };
            picture.SetImagePixel(x, y,
                                  MakeColour(channel(0.011, 0.007, 0.3), channel(0.005, 0.013, 1.9),
                                             channel(0.017, 0.003, 4.1)));
        }
    }
    if (ofDepth) {
        ReduceDepth(picture);
        RemapWhite(picture);
    }
    return picture;
}

AvailColors Catalogue(const ProgramContext& context) {
    std::mt19937 random(2);
    AvailColors catalogue(context);
    for (int i = 1; i <= Flosses; ++i) {
        CatalogueRow row;
        row.MasterID = i;
        row.FlossID.Set(std::to_string(i));
        row.Red = static_cast<std::int16_t>(random() % 256);
        row.Green = static_cast<std::int16_t>(random() % 256);
        row.Blue = static_cast<std::int16_t>(random() % 256);
        catalogue.AppendRow(row);
    }
    return catalogue;
}

/// The floor: every pixel's upper five bits a channel name an element of a table.
void LookUp(const Picture& picture, const std::vector<std::uint16_t>& table,
            std::vector<std::uint16_t>& result) {
    std::transform(picture.Pixels().begin(), picture.Pixels().end(), result.begin(),
                   [&table](Colour pixel) {
                       return table[((pixel >> 3U) & 0x1FU) | ((pixel >> 6U) & 0x3E0U) |
                                    ((pixel >> 9U) & 0x7C00U)];
                   });
}

class Pass {
public:
    explicit Pass(const Picture& picture)
        : m_picture(&picture),
          m_table(32768),
          m_result(picture.Pixels().size()) {}
    void operator()() { LookUp(*m_picture, m_table, m_result); }

private:
    const Picture* m_picture;
    std::vector<std::uint16_t> m_table;
    std::vector<std::uint16_t> m_result;
};

void ImportPhoto(benchmark::State& state, bool ofDepth) {
    ProgramContext context;
    const Picture picture = Photo(ofDepth);
    ImportSession session(context);
    session.ChooseCatalogue(Catalogue(context));
    Pattern pattern(context);
    Ratio(state, ofDepth ? 50 : 200)
        .Measure(
            Pass(picture),
            [&] {
                session.SetImage(picture);
                pattern = Pattern(context);
            },
            [&] {
                benchmark::DoNotOptimize(session.CreateThePattern(pattern, MaxColors, 14, 14));
            });
}

/// What the mapping screen works out at a press of its button: the picture is there and so are the
/// candidates, 400 by 300 pixels as a photo comes out of the smoothing.
void PreviewPhoto(benchmark::State& state, bool ofDepth) {
    ProgramContext context;
    const Picture picture = Photo(ofDepth, 400, 300);
    ImportSession session(context);
    session.SetImage(picture);
    session.ChooseCatalogue(Catalogue(context));
    Ratio(state, 200).Measure(Pass(picture), [&] {
        benchmark::DoNotOptimize(session.PreparePreview(MaxColors).Run(nullptr));
    });
}

/// A step of the slider: a new picture from the one last applied.
void Adjust(benchmark::State& state) {
    const Adjustments::Item& item = Adjustments::Items()[static_cast<std::size_t>(state.range(0))];
    const auto picture = std::make_shared<const Picture>(Photo(false));
    Picture filled(Side, Side);
    Ratio(state, 40).Measure(
        [&filled, colour = Colour{0}]() mutable {
            std::fill_n(filled.Pixels().data(), filled.Pixels().size(), ++colour);
        },
        [&] {
            benchmark::DoNotOptimize(ColorAdjusting::Adjusted(
                picture, item.What, (item.Start + item.Maximum) / 2, nullptr));
        });
    state.SetLabel(std::string(item.Text));
}

} // namespace

BENCHMARK_CAPTURE(ImportPhoto, FiveBitsAChannel, true)->Apply(AsRatio);
BENCHMARK_CAPTURE(ImportPhoto, Smoothed, false)->Apply(AsRatio);
BENCHMARK_CAPTURE(PreviewPhoto, FiveBitsAChannel, true)->Apply(AsRatio);
BENCHMARK_CAPTURE(PreviewPhoto, Smoothed, false)->Apply(AsRatio);
BENCHMARK(Adjust)->DenseRange(0, 8)->Apply(AsRatio);
BENCHMARK_MAIN();
