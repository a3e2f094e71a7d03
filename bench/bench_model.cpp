// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// The pattern's own work, each against the least that any program would have to do: read the
// bytes, write the bytes, look once at each cell.

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <numeric>
#include <stdexcept>

#include "Folder.h"
#include "Ratio.h"
#include "Scene.h"

namespace zol {

namespace {

namespace fs = std::filesystem;

ProgramContext& Context() {
    static ProgramContext context;
    return context;
}

Pattern& Scene() {
    static Pattern* scene = [] {
        static Pattern pattern(Context());
        FillScene(pattern);
        return &pattern;
    }();
    return *scene;
}

const fs::path& SceneFile() {
    static const Folder folder;
    static const fs::path path = [] {
        fs::path file = folder / "scene.pat";
        if (Scene().Save(file) != 0) {
            throw std::runtime_error("the scene cannot be saved");
        }
        return file;
    }();
    return path;
}

void Check(bool done) {
    if (!done) {
        std::perror("bench_model");
        std::abort();
    }
}

unsigned SumOfBytes(const fs::path& path) {
    static std::array<unsigned char, 65536> block{};
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    Check(file >= 0);
    unsigned sum = 0;
    ssize_t got = 0;
    while ((got = ::read(file, block.data(), block.size())) > 0) {
        sum = std::accumulate(block.begin(), block.begin() + got, sum);
    }
    ::close(file);
    return sum;
}

/// What a save does for the bytes' safety, and nothing else.
void WriteWithSyncs(const fs::path& path, const std::vector<char>& bytes) {
    const fs::path fresh = path.string() + ".new";
    const int file = ::open(fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    Check(file >= 0);
    Check(::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
    Check(::fsync(file) == 0 && ::close(file) == 0);
    Check(::rename(fresh.c_str(), path.c_str()) == 0);
    const int folder = ::open(path.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    Check(folder >= 0 && ::fsync(folder) == 0 && ::close(folder) == 0);
}

/// One pass over the scene's cells.
void Pass() {
    std::array<unsigned, 256> counts{};
    for (const StitchCell& cell : Scene().Cells()) {
        ++counts[cell.PaletteIndex];
    }
    benchmark::DoNotOptimize(counts);
}

void Load(benchmark::State& state) {
    const fs::path& file = SceneFile();
    Pattern pattern(Context());
    Ratio(state, 8).Measure([&] { benchmark::DoNotOptimize(SumOfBytes(file)); },
                            [&] { Check(pattern.Load(file) == 0); });
}

void MeasureSave(benchmark::State& state, Timing timing) {
    Pattern& scene = Scene();
    const fs::path& file = SceneFile();
    std::ifstream stream(file, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(stream), {}};
    const fs::path copy = file.string() + ".floor";
    Ratio(state, 8, timing)
        .Measure([&] { WriteWithSyncs(copy, bytes); }, [&] { Check(scene.Save(file) == 0); });
}

void Save(benchmark::State& state) {
    MeasureSave(state, Timing::Wall);
}

/// As if the disk took no time.
void SaveWithoutWaiting(benchmark::State& state) {
    MeasureSave(state, Timing::Thread);
}

void CountStitches(benchmark::State& state) {
    Pattern& scene = Scene();
    Ratio(state, 4).Measure(Pass, [&] { scene.CountStitches(); });
}

constexpr int MillionSide = 1000;
constexpr int Middle = MillionSide / 2;

void PaintEmptySquares(benchmark::State& state) {
    Pattern pattern(Context());
    Ratio(state, 40).Measure(
        Pass, [&] { pattern.Initialize(MillionSide, MillionSide, 14, 14); },
        [&] { pattern.Paint(Middle, Middle, StitchWhole, 1, NoFloss); });
    Check(pattern.GetPaletteStitchCount(1, Pattern::WholePattern, 0, 0, 0) ==
          MillionSide * MillionSide);
}

void PaintStitchedSquares(benchmark::State& state) {
    Pattern pattern(Context());
    pattern.Initialize(MillionSide, MillionSide, 14, 14);
    pattern.Paint(Middle, Middle, StitchWhole, 1, NoFloss);
    int floss = 1;
    Ratio(state, 40).Measure(Pass, [&] {
        pattern.Paint(Middle, Middle, StitchWhole, 3 - floss, floss);
        floss = 3 - floss;
    });
    Check(pattern.GetPaletteStitchCount(floss, Pattern::WholePattern, 0, 0, 0) ==
          MillionSide * MillionSide);
}

/// Both, one after the other, within the promise for one.
void PaintEmptyThenStitched(benchmark::State& state) {
    Pattern pattern(Context());
    Ratio(state, 40).Measure(
        Pass, [&] { pattern.Initialize(MillionSide, MillionSide, 14, 14); },
        [&] {
            pattern.Paint(Middle, Middle, StitchWhole, 1, NoFloss);
            pattern.Paint(Middle, Middle, StitchWhole, 2, 1);
        });
}

} // namespace

BENCHMARK(Load)->Apply(AsRatio);
BENCHMARK(Save)->Apply(AsRatio);
BENCHMARK(SaveWithoutWaiting)->Apply(AsRatio);
BENCHMARK(CountStitches)->Apply(AsRatio);
BENCHMARK(PaintEmptySquares)->Apply(AsRatio);
BENCHMARK(PaintStitchedSquares)->Apply(AsRatio);
BENCHMARK(PaintEmptyThenStitched)->Apply(AsRatio);

} // namespace zol

BENCHMARK_MAIN();
