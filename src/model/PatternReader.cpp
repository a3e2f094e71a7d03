// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/PatternReader.h"

#include <algorithm>

#include "model/PatternChecksum.h"
#include "model/RunTimeError.h"

namespace zol {

namespace {

constexpr int headerTextSize = 55;
constexpr std::size_t runSize = 4;
constexpr int orientedKnotVersion = 50200;
constexpr int idVersion = 60300;
/// Four blanks where the version should be. Such a stream has no oriented knots, and yet it
/// passes the test for the IDs.
constexpr int blankVersion = 0x20202020;

} // namespace

bool PatternReader::ReadMagic() {
    m_stream.Seek(m_offset);
    std::array<std::uint8_t, headerTextSize> text{};
    m_stream.ReadBytes(text);
    return std::equal(
        PatternHeader::Magic.begin(), PatternHeader::Magic.end(), text.begin(),
        [](char wanted, std::uint8_t found) { return static_cast<std::uint8_t>(wanted) == found; });
}

Pattern PatternReader::ReadPattern(ProgramContext& context) {
    ReadHeader();
    if ((m_header.PatternFlags & PatternTestChecksum) != 0 &&
        ComputeChecksum(m_stream, m_offset, m_end) != m_header.Checksum) {
        throw RunTimeError(ErrChecksumMismatch);
    }
    Pattern pattern(context);
    ReadSizeAndProperties(pattern);
    if (!pattern.m_palette.LoadFromDisk(m_stream)) {
        throw RunTimeError(ErrInvalidFormat);
    }
    ReadRuns(pattern);
    ReadDupStitches(pattern);
    ReadKnots(pattern, false);
    ReadLines(pattern);
    if (m_header.Version >= orientedKnotVersion && m_header.Version != blankVersion) {
        ReadKnots(pattern, true);
    }
    if (m_header.Version >= idVersion) {
        ReadIDs(pattern);
    }
    pattern.m_changed = false;
    return pattern;
}

void PatternReader::ReadHeader() {
    m_header.Reserved1 = m_stream.ReadU16();
    m_header.Version = m_stream.ReadI32();
    m_header.Reserved2 = m_stream.ReadU32();
    m_firstPatternID = m_stream.ReadU32();
    m_stream.ReadBytes(m_header.Reserved3);
    m_header.PatternFlags = m_stream.ReadU32();
    m_header.Checksum = m_stream.ReadI32();
}

void PatternReader::ReadSizeAndProperties(Pattern& pattern) {
    const int width = m_stream.ReadI16();
    const int height = m_stream.ReadI16();
    const int clothCountX = m_stream.ReadI16();
    const int clothCountY = m_stream.ReadI16();
    std::array<std::string, 5> texts;
    for (std::string& text : texts) {
        text = m_stream.ReadString();
    }
    pattern.Initialize(width, height, clothCountX, clothCountY);
    pattern.Author = std::move(texts[0]);
    pattern.Copyright = std::move(texts[1]);
    pattern.Title = std::move(texts[2]);
    pattern.Fabric = std::move(texts[3]);
    pattern.Instructions = std::move(texts[4]);
    pattern.m_header = m_header;
    pattern.m_allowFlossMapping = (m_header.PatternFlags & PatternNoMapping) == 0;
    // Only now: clearing the pattern has emptied the ID table.
    if (m_firstPatternID != 0) {
        pattern.m_ids.push_back({m_firstPatternID, {}});
    }
}

std::size_t PatternReader::TakeRuns(Pattern& pattern, std::span<const std::uint8_t> bytes,
                                    std::size_t square) {
    const std::size_t squares = pattern.m_grid.size();
    StitchCell* const cells = pattern.m_grid.data();
    std::size_t used = 0;
    for (; used + runSize <= bytes.size() && square < squares; used += runSize) {
        const std::uint8_t* const run = bytes.data() + used;
        const unsigned bits = run[0] | (unsigned{run[1]} << 8U);
        const auto length = static_cast<std::int16_t>(static_cast<std::uint16_t>(bits));
        if (length < 1) {
            throw RunTimeError(ErrPastEnd);
        }
        const std::size_t count = std::min(static_cast<std::size_t>(length), squares - square);
        const std::uint8_t kind = run[3];
        // On an empty square without a position SetStitch stores the plain kinds as they are and
        // leaves the square empty for the others.
        if (kind != NoStitch && Pattern::IsStoredPlainly(kind)) {
            const StitchCell cell{kind, run[2], 0};
            cells[square] = cell;
            if (count > 1) {
                std::fill_n(cells + square + 1, count - 1, cell);
            }
        }
        square += count;
    }
    m_stream.Skip(used);
    return square;
}

void PatternReader::ReadRuns(Pattern& pattern) {
    std::size_t square = 0;
    while (square < pattern.m_grid.size()) {
        const std::span<const std::uint8_t> bytes = m_stream.Ahead(runSize);
        if (bytes.size() >= runSize) {
            square = TakeRuns(pattern, bytes, square);
        } else {
            // What is missing at the end of the file reads as zeros.
            std::array<std::uint8_t, runSize> last{};
            std::copy(bytes.begin(), bytes.end(), last.begin());
            m_stream.Skip(bytes.size());
            square = TakeRuns(pattern, last, square);
        }
    }
}

void PatternReader::ReadDupStitches(Pattern& pattern) {
    const std::int32_t count = m_stream.ReadI32();
    for (std::int32_t i = 0; i < count; ++i) {
        DupStitch dup;
        dup.Load(m_stream);
        if (!pattern.IsInGrid(dup.X, dup.Y)) {
            throw RunTimeError(ErrSubscript);
        }
        if (!pattern.m_dupStitches.Add(KeyedTable<DupStitch>::KeyOf(dup.Y, dup.X), dup)) {
            throw RunTimeError(ErrDuplicateKey);
        }
        pattern.CellRef(dup.X, dup.Y).CellFlags |= CellHasDup;
    }
}

void PatternReader::ReadKnots(Pattern& pattern, bool oriented) {
    const std::int32_t count = m_stream.ReadI32();
    for (std::int32_t i = 0; i < count; ++i) {
        FrenchKnot knot;
        knot.Load(m_stream);
        if (oriented) {
            knot.Orientation = m_stream.ReadU8();
        }
        if (!pattern.IsOnLattice({knot.X, knot.Y})) {
            throw RunTimeError(ErrSubscript);
        }
        if (!pattern.m_frenchKnots.Add(KeyedTable<FrenchKnot>::KeyOf(knot.Y, knot.X), knot)) {
            throw RunTimeError(ErrDuplicateKey);
        }
        pattern.SetKnotFlags(knot.X, knot.Y);
    }
}

void PatternReader::ReadLines(Pattern& pattern) {
    const std::int32_t count = m_stream.ReadI32();
    // Past the end there are only lines of zeros, which would be refused one by one.
    for (std::int32_t i = 0; i < count && m_stream.Remaining() > 0; ++i) {
        BackStitchLine line;
        line.StartX = m_stream.ReadI16();
        line.StartY = m_stream.ReadI16();
        line.StartPos = m_stream.ReadI16();
        line.EndX = m_stream.ReadI16();
        line.EndY = m_stream.ReadI16();
        line.EndPos = m_stream.ReadI16();
        line.PaletteIndex = m_stream.ReadU8();
        line.LineStyle = m_stream.ReadU8();
        pattern.AddBackStitchLine(line);
    }
}

void PatternReader::ReadIDs(Pattern& pattern) {
    const std::int32_t count = m_stream.ReadI32();
    if (count <= 0) {
        return;
    }
    pattern.m_ids.clear();
    for (std::int32_t i = 0; i < count && m_stream.Remaining() > 0; ++i) {
        PatternIDRecord row;
        row.PatternID = m_stream.ReadU32();
        const std::string source = m_stream.ReadString();
        if (!Trimmed(source).empty()) {
            row.PatternSource = source;
        }
        pattern.m_ids.push_back(std::move(row));
    }
}

} // namespace zol
