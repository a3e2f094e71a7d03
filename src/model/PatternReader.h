// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "model/ByteStream.h"
#include "model/Pattern.h"

namespace zol {

/// Makes a fresh pattern from a release 6 stream: whole, or a RunTimeError and nothing. It names
/// no file and shows nothing. Every count, size and length is held against the bytes that are
/// there before it is used.
class PatternReader {
public:
    /// `offset` is the 1-based position of the stream's first byte, `end` that of its last or 0;
    /// `end` bounds the checksum alone.
    PatternReader(ByteReader& stream, std::uint64_t offset, std::uint64_t end)
        : m_stream(stream),
          m_offset(offset),
          m_end(end) {}

    /// Whether the release 6 magic stands at the offset. Reads the 55 bytes of the header text.
    [[nodiscard]] bool ReadMagic();
    /// The rest, behind the header text.
    [[nodiscard]] Pattern ReadPattern(ProgramContext& context);

private:
    void ReadHeader();
    void ReadSizeAndProperties(Pattern& pattern);
    void ReadRuns(Pattern& pattern);
    /// One stretch of whole runs from bytes at hand; the squares done with it.
    std::size_t TakeRuns(Pattern& pattern, std::span<const std::uint8_t> bytes, std::size_t square);
    void ReadDupStitches(Pattern& pattern);
    void ReadKnots(Pattern& pattern, bool oriented);
    void ReadLines(Pattern& pattern);
    void ReadIDs(Pattern& pattern);

    ByteReader& m_stream;
    std::uint64_t m_offset;
    std::uint64_t m_end;
    PatternHeader m_header;
    std::uint32_t m_firstPatternID = 0;
};

} // namespace zol
