// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/PatternWriter.h"

#include <array>
#include <span>

#include "model/PatternChecksum.h"
#include "model/RunTimeError.h"

namespace zol {

namespace {

/// Codes runs into a small block, so that the stream grows by blocks.
class RunCoder {
public:
    explicit RunCoder(ByteWriter& stream) : m_stream(stream) {}

    void Put(int length, std::uint8_t paletteIndex, std::uint8_t kind) {
        const auto bits = static_cast<unsigned>(length);
        std::uint8_t* run = m_block.data() + m_used;
        run[0] = static_cast<std::uint8_t>(bits & 0xFFU);
        run[1] = static_cast<std::uint8_t>(bits >> 8U);
        run[2] = kind == NoStitch ? NoFloss : paletteIndex;
        run[3] = kind;
        m_used += RunSize;
        if (m_used == m_block.size()) {
            Flush();
        }
    }
    void Flush() {
        m_stream.WriteBytes(std::span(m_block).first(m_used));
        m_used = 0;
    }

    static constexpr std::size_t RunSize = 4;

private:
    ByteWriter& m_stream;
    std::array<std::uint8_t, 4096 * RunSize> m_block{};
    std::size_t m_used = 0;
};

struct RunValue {
    std::uint8_t kind = NoStitch;
    std::uint8_t paletteIndex = 0;

    friend bool operator==(const RunValue&, const RunValue&) = default;
};

} // namespace

ByteWriter PatternWriter::WriteStream(Pattern& pattern) {
    if (pattern.m_grid.empty()) {
        throw RunTimeError(ErrInvalidCall, "A pattern without squares cannot be saved");
    }
    ByteWriter stream;
    // Room for a run a square, so that no growing stream is copied. What is not used is not touched
    // either.
    stream.Reserve(pattern.m_grid.size() * RunCoder::RunSize);
    PatternWriter writer(pattern, stream);
    writer.WriteHeader();
    writer.WriteSizeAndProperties();
    pattern.m_palette.SaveToDisk(stream);
    writer.WriteRuns();
    writer.WriteDupStitches();
    writer.WritePlainKnots();
    writer.WriteLines();
    writer.WriteOrientedKnots();
    writer.WriteIDs();
    const std::int32_t checksum = ComputeChecksum(stream.Bytes());
    stream.Seek(PatternHeader::ChecksumOffset + 1);
    stream.WriteI32(checksum);
    return stream;
}

void PatternWriter::WriteHeader() {
    constexpr std::size_t headerTextSize = 55;
    std::string text(PatternHeader::Magic);
    text.resize(headerTextSize, ' ');
    PatternHeader& header = m_pattern.m_header;
    header.Version = PatternVersion;
    m_stream.WriteRaw(text);
    m_stream.WriteI16(static_cast<std::int16_t>(header.Reserved1));
    m_stream.WriteI32(header.Version);
    m_stream.WriteU32(header.Reserved2);
    m_stream.WriteU32(m_pattern.GetPatternID(1));
    m_stream.WriteBytes(header.Reserved3);
    m_stream.WriteU32(header.PatternFlags & (PatternNoMapping | PatternReservedFlags));
    m_stream.WriteI32(header.Checksum);
}

void PatternWriter::WriteSizeAndProperties() {
    m_stream.WriteI16(m_pattern.m_width);
    m_stream.WriteI16(m_pattern.m_height);
    m_stream.WriteI16(m_pattern.m_clothCountX);
    m_stream.WriteI16(m_pattern.m_clothCountY);
    m_stream.WriteString(m_pattern.Author);
    m_stream.WriteString(m_pattern.Copyright);
    m_stream.WriteString(m_pattern.Title);
    m_stream.WriteString(m_pattern.Fabric);
    m_stream.WriteString(m_pattern.Instructions);
}

void PatternWriter::WriteRuns() {
    // Index 0 of a square as readers see it. An empty square reads as floss 0 and one with a knot
    // alone counts as floss 255: both are stored alike, but they do not share a run.
    const std::vector<StitchCell>& cells = m_pattern.m_grid;
    const auto valueAt = [this, &cells](std::size_t square) {
        const StitchCell& cell = cells[square];
        if (cell.StitchType != NoStitch) {
            return RunValue{cell.StitchType, cell.PaletteIndex};
        }
        if ((cell.CellFlags & CellHasKnot) == 0) {
            return RunValue{};
        }
        const auto rows = static_cast<std::size_t>(m_pattern.m_height);
        const bool knot =
            m_pattern.GetStitchType(static_cast<int>(square / rows) + 1,
                                    static_cast<int>(square % rows) + 1, 0) == StitchFKnot;
        return RunValue{NoStitch, knot ? NoFloss : std::uint8_t{0}};
    };
    RunCoder coder(m_stream);
    RunValue run = valueAt(0);
    int length = 1;
    for (std::size_t square = 1; square < cells.size(); ++square) {
        const RunValue value = valueAt(square);
        if (value == run && length < MaxRunLength) {
            ++length;
        } else {
            coder.Put(length, run.paletteIndex, run.kind);
            run = value;
            length = 1;
        }
    }
    coder.Put(length, run.paletteIndex, run.kind);
    coder.Flush();
}

void PatternWriter::WriteDupStitches() {
    m_stream.WriteI32(static_cast<std::int32_t>(m_pattern.m_dupStitches.Count()));
    m_pattern.m_dupStitches.ForEach([this](const DupStitch& dup) { dup.Save(m_stream); });
}

void PatternWriter::WritePlainKnots() {
    std::int32_t plain = 0;
    m_pattern.m_frenchKnots.ForEach(
        [&plain](const FrenchKnot& knot) { plain += knot.Orientation == KnotNormal ? 1 : 0; });
    m_stream.WriteI32(plain);
    m_pattern.m_frenchKnots.ForEach([this](const FrenchKnot& knot) {
        if (knot.Orientation == KnotNormal) {
            knot.Save(m_stream);
        }
    });
}

void PatternWriter::WriteLines() {
    m_stream.WriteI32(m_pattern.GetBackStitchCount());
    for (const BackStitchLine& line : m_pattern.m_lines) {
        m_stream.WriteI16(line.StartX);
        m_stream.WriteI16(line.StartY);
        m_stream.WriteI16(line.StartPos);
        m_stream.WriteI16(line.EndX);
        m_stream.WriteI16(line.EndY);
        m_stream.WriteI16(line.EndPos);
        m_stream.WriteU8(line.PaletteIndex);
        m_stream.WriteU8(line.LineStyle);
    }
}

void PatternWriter::WriteOrientedKnots() {
    std::int32_t oriented = 0;
    m_pattern.m_frenchKnots.ForEach([&oriented](const FrenchKnot& knot) {
        oriented += knot.Orientation != KnotNormal ? 1 : 0;
    });
    m_stream.WriteI32(oriented);
    m_pattern.m_frenchKnots.ForEach([this](const FrenchKnot& knot) {
        if (knot.Orientation != KnotNormal) {
            knot.Save(m_stream);
            m_stream.WriteU8(knot.Orientation);
        }
    });
}

void PatternWriter::WriteIDs() {
    m_stream.WriteI32(m_pattern.GetPatternIDCount());
    for (const PatternIDRecord& row : m_pattern.m_ids) {
        m_stream.WriteU32(row.PatternID);
        m_stream.WriteString(row.PatternSource);
    }
}

} // namespace zol
