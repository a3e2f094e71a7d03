// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zol {

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

/// Results of CountStitches; element i - 1 belongs to floss i, lengths in inches.
struct PatternCounts {
    std::vector<std::int32_t> StitchCounts;
    std::vector<std::int32_t> LineCounts;
    std::vector<double> StitchLengths;
    std::vector<double> LineLengths;
};

} // namespace zol
