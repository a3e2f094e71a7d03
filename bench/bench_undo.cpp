// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// A snapshot for undo, against a save of the same scene to the same disk, which also waits until
// its bytes lie there safely; and the knots that erasing has to look for, against erasing without
// any.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>

#include "Folder.h"
#include "Ratio.h"
#include "Scene.h"
#include "files/PatternDesign.h"
#include "grid/tools/Undo.h"

namespace zol {

namespace {

namespace fs = std::filesystem;

void MeasureSnapshot(benchmark::State& state, Timing timing) {
    ProgramContext context;
    const Folder folder;
    Pattern scene(context);
    FillScene(scene);
    DesignHolder open(std::make_unique<PatternDesign>(scene, ""));
    Undo undo(open, folder / "undo.tmp");
    const fs::path file = folder / "scene.pat";
    Ratio(state, 1, timing)
        .Measure(
            [&] {
                if (open.Design().Save(file) != 0) {
                    throw std::runtime_error("the scene cannot be saved");
                }
            },
            [&] {
                undo.BeginUndo(UndoKind::Snapshot, "Center");
                undo.EndUndo();
            });
    if (!undo.IsAvailable()) {
        state.SkipWithError("no snapshot was written");
    }
}

void Snapshot(benchmark::State& state) {
    MeasureSnapshot(state, Timing::Wall);
}

/// As if the disk took no time.
void SnapshotWithoutWaiting(benchmark::State& state) {
    MeasureSnapshot(state, Timing::Thread);
}

/// Stitches 10,000 squares and erases them again.
void StitchAndErase(Pattern& pattern) {
    constexpr int side = 100;
    for (int x = 1; x <= side; ++x) {
        for (int y = 1; y <= side; ++y) {
            pattern.SetStitch(x, y, StitchWhole, 1, 5);
        }
    }
    for (int x = 1; x <= side; ++x) {
        for (int y = 1; y <= side; ++y) {
            pattern.DeleteStitch(x, y, Pattern::Everything);
        }
    }
}

void EraseAmongKnots(benchmark::State& state) {
    ProgramContext context;
    Pattern plain(context);
    plain.Initialize(999, 999, 14, 14);
    Pattern knotted(context);
    knotted.Initialize(999, 999, 14, 14);
    for (int i = 0; i < 2000; ++i) {
        knotted.SetStitch(200 + i % 700, 100 + i % 811, StitchFKnot, 1, 5);
    }
    Ratio(state, 0).Measure([&] { StitchAndErase(plain); }, [&] { StitchAndErase(knotted); });
}

} // namespace

BENCHMARK(Snapshot)->Apply(AsRatio);
BENCHMARK(SnapshotWithoutWaiting)->Apply(AsRatio);
BENCHMARK(EraseAmongKnots)->Apply(AsRatio);

} // namespace zol

BENCHMARK_MAIN();
