// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

#include "model/ByteStream.h"
#include "model/Pattern.h"

namespace zol {

/// Makes the release 6 stream of a pattern in memory, checksum included. Throws a RunTimeError:
/// 5 for a pattern without squares, 6 for a text that passes 32767 characters.
class PatternWriter {
public:
    /// Notes the writing program's version in the pattern's header and, as every save inside a
    /// pattern does, clears the palette's changed flag.
    [[nodiscard]] static std::vector<std::uint8_t> Write(Pattern& pattern) {
        return WriteStream(pattern).Take();
    }
    /// The same, for a stream that has nothing in front of the pattern and needs no copy of it.
    [[nodiscard]] static ByteWriter WriteStream(Pattern& pattern);

private:
    PatternWriter(Pattern& pattern, ByteWriter& stream) : m_pattern(pattern), m_stream(stream) {}

    void WriteHeader();
    void WriteSizeAndProperties();
    void WriteRuns();
    void WriteDupStitches();
    void WritePlainKnots();
    void WriteLines();
    void WriteOrientedKnots();
    void WriteIDs();

    Pattern& m_pattern;
    ByteWriter& m_stream;
};

} // namespace zol
