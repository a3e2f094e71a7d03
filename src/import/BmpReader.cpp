// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/BmpReader.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <limits>
#include <span>

#include "import/PictureOps.h"
#include "model/RunTimeError.h"

namespace zol::BmpReader {

namespace {

constexpr std::uint64_t FileHeaderSize = 14;
constexpr std::uint32_t CoreHeaderSize = 12;
constexpr std::uint32_t InfoHeaderSize = 40;
constexpr std::uint32_t HeaderSizeWithAlphaMask = 56;
constexpr std::uint32_t LargestHeaderSize = 124;

[[noreturn]] void FailFormat() {
    throw RunTimeError(ErrInvalidFormat);
}

void Require(const ByteReader& stream, std::uint64_t bytes) {
    if (stream.Remaining() < bytes) {
        throw RunTimeError(ErrPastEnd);
    }
}

void ReadSizes(ByteReader& stream, bool core, BmpHeader& header) {
    const std::int32_t width = core ? stream.ReadU16() : stream.ReadI32();
    const std::int32_t height = core ? stream.ReadU16() : stream.ReadI32();
    if (width < 1 || height == 0 || height == std::numeric_limits<std::int32_t>::min()) {
        FailFormat();
    }
    header.Width = width;
    header.Height = std::abs(height);
    header.TopDown = height < 0;
    static_cast<void>(stream.ReadU16()); // planes: always 1, and some writers leave 0
    header.BitCount = stream.ReadU16();
}

bool IsKnownCoding(const BmpHeader& header) {
    switch (header.Coding) {
    case BmpHeader::Plain:
        return header.BitCount == 1 || header.BitCount == 4 || header.BitCount == 8 ||
               header.BitCount == 16 || header.BitCount == 24 || header.BitCount == 32;
    case BmpHeader::RunLength8:
        return header.BitCount == 8 && !header.TopDown;
    case BmpHeader::RunLength4:
        return header.BitCount == 4 && !header.TopDown;
    case BmpHeader::Masks:
    case BmpHeader::MasksWithAlpha:
        return header.BitCount == 16 || header.BitCount == 32;
    default:
        return false;
    }
}

void ReadMasks(ByteReader& stream, std::uint32_t headerSize, BmpHeader& header) {
    if (header.Coding == BmpHeader::Plain) {
        // 5 bits a channel, or a byte each; the fourth byte is not used then.
        header.ChannelMasks =
            header.BitCount == 16
                ? std::array<std::uint32_t, 4>{0x7C00, 0x03E0, 0x001F, 0}
                : std::array<std::uint32_t, 4>{0x00FF0000, 0x0000FF00, 0x000000FF, 0};
        return;
    }
    stream.Seek(FileHeaderSize + InfoHeaderSize + 1);
    const bool alpha =
        header.Coding == BmpHeader::MasksWithAlpha || headerSize >= HeaderSizeWithAlphaMask;
    Require(stream, alpha ? 16 : 12);
    for (std::size_t i = 0; i < (alpha ? 4U : 3U); ++i) {
        header.ChannelMasks[i] = stream.ReadU32();
    }
}

/// The masks stand behind a plain info header, and inside the longer ones.
std::uint64_t ColourTablePosition(std::uint32_t headerSize, const BmpHeader& header) {
    std::uint64_t position = FileHeaderSize + headerSize + 1;
    if (headerSize == InfoHeaderSize && header.Coding == BmpHeader::Masks) {
        position += 12;
    } else if (headerSize == InfoHeaderSize && header.Coding == BmpHeader::MasksWithAlpha) {
        position += 16;
    }
    return position;
}

void ReadColourTable(ByteReader& stream, std::uint32_t used, bool core, BmpHeader& header) {
    const std::uint32_t most = 1U << static_cast<unsigned>(header.BitCount);
    const std::uint32_t count = used == 0 ? most : std::min(used, most);
    Require(stream, std::uint64_t{count} * (core ? 3 : 4));
    // Pixels that name a colour beyond the table are black.
    header.ColourTable.assign(most, 0);
    for (std::uint32_t i = 0; i < count; ++i) {
        const unsigned blue = stream.ReadU8();
        const unsigned green = stream.ReadU8();
        const unsigned red = stream.ReadU8();
        if (!core) {
            static_cast<void>(stream.ReadU8());
        }
        header.ColourTable[i] = MakeColour(red, green, blue);
    }
}

unsigned ChannelOf(std::uint32_t pixel, std::uint32_t mask) {
    if (mask == 0) {
        return 0;
    }
    const std::uint64_t largest = mask >> static_cast<unsigned>(std::countr_zero(mask));
    const std::uint64_t value = (pixel & mask) >> static_cast<unsigned>(std::countr_zero(mask));
    return static_cast<unsigned>((value * 255U + largest / 2) / largest);
}

Colour ColourOf(std::uint32_t pixel, const BmpHeader& header) {
    const auto& masks = header.ChannelMasks;
    const unsigned alpha = masks[3] == 0 ? 255U : ChannelOf(pixel, masks[3]);
    return OverWhite(MakeColour(ChannelOf(pixel, masks[0]), ChannelOf(pixel, masks[1]),
                                ChannelOf(pixel, masks[2])),
                     alpha);
}

void DecodeTableRow(std::span<const std::uint8_t> bytes, const BmpHeader& header, Colour* row) {
    const auto bits = static_cast<unsigned>(header.BitCount);
    const unsigned mask = (1U << bits) - 1U;
    const unsigned perByte = 8U / bits;
    for (unsigned x = 0; x < static_cast<unsigned>(header.Width); ++x) {
        const unsigned shift = 8U - bits * (x % perByte + 1U);
        row[x] = header.ColourTable[(static_cast<unsigned>(bytes[x / perByte]) >> shift) & mask];
    }
}

void DecodeRow(std::span<const std::uint8_t> bytes, const BmpHeader& header, Colour* row) {
    if (header.BitCount <= 8) {
        DecodeTableRow(bytes, header, row);
        return;
    }
    const auto step = static_cast<std::size_t>(header.BitCount / 8);
    const bool plain = header.Coding == BmpHeader::Plain && step >= 3;
    for (std::size_t x = 0; x < static_cast<std::size_t>(header.Width); ++x) {
        const std::uint8_t* at = bytes.data() + x * step;
        if (plain) {
            row[x] = MakeColour(at[2], at[1], at[0]);
            continue;
        }
        std::uint32_t pixel = at[0] | (static_cast<std::uint32_t>(at[1]) << 8U);
        if (step == 4) {
            pixel |= (static_cast<std::uint32_t>(at[2]) << 16U) |
                     (static_cast<std::uint32_t>(at[3]) << 24U);
        }
        row[x] = ColourOf(pixel, header);
    }
}

Picture ReadRows(ByteReader& stream, const BmpHeader& header) {
    const std::uint64_t rowBytes =
        (static_cast<std::uint64_t>(header.Width) * static_cast<std::uint64_t>(header.BitCount) +
         31) /
        32 * 4;
    Require(stream, rowBytes * static_cast<std::uint64_t>(header.Height));
    Picture picture(header.Width, header.Height);
    std::vector<std::uint8_t> bytes(rowBytes);
    for (int row = 0; row < header.Height; ++row) {
        stream.ReadBytes(bytes);
        DecodeRow(bytes, header, picture.Row(header.TopDown ? row : header.Height - 1 - row));
    }
    return picture;
}

/// Reads the codes of a run length coded picture; rows count from the bottom.
class RunLengthDecoder {
public:
    RunLengthDecoder(ByteReader& stream, const BmpHeader& header)
        : m_stream(&stream),
          m_header(&header),
          m_picture(header.Width, header.Height) {
        std::fill(m_picture.Pixels().begin(), m_picture.Pixels().end(), header.ColourTable.front());
    }

    Picture Decode() {
        while (!m_done) {
            Require(*m_stream, 2);
            const unsigned count = m_stream->ReadU8();
            const unsigned value = m_stream->ReadU8();
            if (count > 0) {
                Run(count, value);
            } else {
                Escape(value);
            }
        }
        return std::move(m_picture);
    }

private:
    void Put(unsigned index) {
        if (m_x < m_header->Width && m_y < m_header->Height) {
            m_picture.SetImagePixel(m_x, m_header->Height - 1 - m_y, m_header->ColourTable[index]);
            ++m_x;
        }
    }

    void Run(unsigned count, unsigned value) {
        for (unsigned i = 0; i < count; ++i) {
            Put(m_header->BitCount == 8 ? value : (i % 2 == 0 ? value >> 4U : value & 15U));
        }
    }

    void Escape(unsigned code) {
        constexpr unsigned endOfRow = 0;
        constexpr unsigned endOfPicture = 1;
        constexpr unsigned move = 2;
        if (code == endOfRow) {
            m_x = 0;
            m_done = ++m_y >= m_header->Height;
        } else if (code == endOfPicture) {
            m_done = true;
        } else if (code == move) {
            Require(*m_stream, 2);
            m_x = std::min(m_x + m_stream->ReadU8(), m_header->Width);
            m_y = std::min(m_y + m_stream->ReadU8(), m_header->Height);
        } else {
            Literal(code);
        }
    }

    /// `count` pixels as they stand, padded to a whole number of 16-bit words.
    void Literal(unsigned count) {
        const bool wide = m_header->BitCount == 8;
        const unsigned bytes = wide ? count : (count + 1) / 2;
        Require(*m_stream, bytes + bytes % 2);
        unsigned value = 0;
        for (unsigned i = 0; i < count; ++i) {
            if (wide || i % 2 == 0) {
                value = m_stream->ReadU8();
            }
            Put(wide ? value : (i % 2 == 0 ? value >> 4U : value & 15U));
        }
        if (bytes % 2 != 0) {
            static_cast<void>(m_stream->ReadU8());
        }
    }

    ByteReader* m_stream;
    const BmpHeader* m_header;
    Picture m_picture;
    int m_x = 0;
    int m_y = 0;
    bool m_done = false;
};

} // namespace

BmpHeader ReadHeader(ByteReader& stream) {
    stream.Seek(1);
    Require(stream, FileHeaderSize + 4);
    if (stream.ReadU8() != 'B' || stream.ReadU8() != 'M') {
        FailFormat();
    }
    BmpHeader header;
    stream.Seek(11);
    header.PixelOffset = stream.ReadU32();
    const std::uint32_t size = stream.ReadU32();
    const bool core = size == CoreHeaderSize;
    if ((!core && size < InfoHeaderSize) || size > LargestHeaderSize) {
        FailFormat();
    }
    Require(stream, size - 4);
    ReadSizes(stream, core, header);
    std::uint32_t coloursUsed = 0;
    if (!core) {
        header.Coding = stream.ReadU32();
        stream.Seek(FileHeaderSize + 33);
        coloursUsed = stream.ReadU32();
    }
    if (!IsKnownCoding(header)) {
        FailFormat();
    }
    if (header.BitCount > 8) {
        ReadMasks(stream, size, header);
    } else {
        stream.Seek(ColourTablePosition(size, header));
        ReadColourTable(stream, coloursUsed, core, header);
    }
    return header;
}

Picture ReadPixels(ByteReader& stream, const BmpHeader& header) {
    stream.Seek(std::uint64_t{header.PixelOffset} + 1);
    if (header.Coding == BmpHeader::RunLength8 || header.Coding == BmpHeader::RunLength4) {
        return RunLengthDecoder(stream, header).Decode();
    }
    return ReadRows(stream, header);
}

} // namespace zol::BmpReader
