// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "flosses/Palette.h"
#include "model/RunTimeError.h"

using namespace zol;

namespace {

/// Everything that a palette answers about what was read must hold for any content.
void Exercise(Palette& palette) {
    for (const int order : {SortOrderAdded, SortManufacturerID, SortDescription, SortColor}) {
        palette.Sort(order);
    }
    for (int i = 0; i <= palette.GetEntriesCount() + 1; ++i) {
        (void)palette.GetFlossLongDesc(i);
        (void)palette.GetFlossRGB(i);
        (void)palette.GetManufLongDesc(i);
        (void)palette.GetBlendManufShortDesc(i);
        (void)palette.GetClosest(palette.GetFlossRGB(i), i);
    }
    Palette copy = Palette::Empty(palette.Context());
    palette.CreateCopy(copy);
    (void)palette.MergePaletteEntrytoTarget(copy, 1);
}

/// What was read is written and read again as it was.
void CheckRoundTrip(Palette& palette) {
    ByteWriter written;
    palette.SaveToDisk(written);
    Palette again = Palette::Empty(palette.Context());
    ByteReader stream(written.Bytes());
    again.LoadFromDisk(stream);
    ByteWriter rewritten;
    again.SaveToDisk(rewritten);
    if (rewritten.Bytes() != written.Bytes() || stream.Remaining() != 0) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ProgramContext context;
    Palette palette = Palette::Empty(context);
    ByteReader file({data, size});
    palette.LoadWholeFile(file);
    Exercise(palette);
    CheckRoundTrip(palette);
    try {
        ByteReader block({data, size});
        palette.LoadFromDisk(block);
    } catch (const RunTimeError&) {
        return 0; // how a damaged block of a pattern is told
    }
    CheckRoundTrip(palette);
    return 0;
}
