// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <bitset>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/DupStitch.h"
#include "model/FrenchKnot.h"
#include "model/ZOLTypes.h"

namespace zol {

/// A square with all that a stitch set or deleted in it can reach: its own stitches, the knots on
/// its nine lattice points, and which of the squares around it list knots.
struct SquareState {
    SquarePos At;
    StitchCell Cell;
    std::optional<DupStitch> Dup;
    std::vector<FrenchKnot> Knots;
    std::bitset<9> KnotFlags; ///< of the 3 by 3 squares, column by column
};

/// An identity that a pattern carries, and where it came from.
struct PatternIDRecord {
    std::uint32_t PatternID = 0;
    std::string PatternSource;

    friend bool operator==(const PatternIDRecord&, const PatternIDRecord&) = default;
};

/// A text note on the grid. Notes live in memory only.
struct PatternNote {
    std::int16_t NoteX = 0;
    std::int16_t NoteY = 0;
    std::string NoteText;
    std::int16_t NoteWidth = 0;  ///< squares
    std::int16_t NoteHeight = 0; ///< squares

    friend bool operator==(const PatternNote&, const PatternNote&) = default;
};

/// What copied stitches and lines are sewn with in the target, beside one floss for all of them.
enum CopiedFlosses : std::int16_t {
    /// In the flosses that they had, which are merged into the target's palette. A full palette
    /// grows no further: a floss that it lacks becomes the nearest one.
    MergeFlosses = -1,
    /// For what was lifted from the target itself: a floss keeps its number, and with it its blend,
    /// where the target's entry of that number is still the same thread; else it is merged.
    KeepFlosses = -2,
};

/// Results of CountStitches; element i - 1 belongs to floss i, lengths in inches.
struct PatternCounts {
    std::vector<std::int32_t> StitchCounts;
    std::vector<std::int32_t> LineCounts;
    std::vector<double> StitchLengths;
    std::vector<double> LineLengths;
};

} // namespace zol
