// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

#include "model/Pattern.h"
#include "model/ProgramContext.h"

namespace {

/// What a painter, a counter and the tools would do with a pattern that came from anywhere.
void Use(zol::Pattern& pattern) {
    constexpr int enough = 40;
    const int width = std::min(pattern.GetPatternWidth(), enough);
    const int height = std::min(pattern.GetPatternHeight(), enough);
    for (int x = 1; x <= width; ++x) {
        for (int y = 1; y <= height; ++y) {
            for (int i = 0; i <= pattern.GetStitchCount(x, y); ++i) {
                (void)pattern.GetStitchColor(x, y, i, false);
                (void)pattern.GetStitchSymbol(x, y, i);
                (void)pattern.GetFrenchKnotPoint(x, y, i);
            }
        }
    }
    pattern.CountStitches();
    (void)pattern.GetPatternAreaRect();
    if (pattern.Cells().size() > std::size_t{enough} * enough) {
        return;
    }
    zol::Pattern copy(pattern.Context());
    copy.Initialize(width, height, 14, 14);
    pattern.CopySectionToTarget(copy, 1, 1, 1, 1, width, height, -1);
    pattern.Paint(1, 1, zol::StitchTBH, 1, pattern.GetStitchPaletteIndex(1, 1));
    pattern.MoveArea(1, 1, width, height, 1, -1);
    pattern.ClearUnusedPaletteColors();
    pattern.ShrinkToFit();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zol::ProgramContext context;
    zol::Pattern pattern(context);
    zol::ByteReader stream(std::span(data, size));
    if (pattern.Load("fuzz", stream, 0, 0) != 0) {
        return 0;
    }
    // What could be read can be written, and what was written can be read.
    zol::ByteWriter saved;
    if (pattern.Save("fuzz", saved, 0) == 0) {
        zol::Pattern again(context);
        zol::ByteReader back(saved.Bytes());
        if (again.Load("again", back, 0, 0) != 0) {
            __builtin_trap();
        }
    }
    Use(pattern);
    return 0;
}
