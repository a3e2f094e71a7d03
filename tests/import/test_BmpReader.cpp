// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/BmpReader.h"

#include <gtest/gtest.h>

#include "model/RunTimeError.h"

using namespace zol;

namespace {

constexpr Colour Red = MakeColour(255, 0, 0);
constexpr Colour Green = MakeColour(0, 255, 0);
constexpr Colour Blue = MakeColour(0, 0, 255);
constexpr Colour Black = 0;

/// Writes a BMP file by hand; `tail` is everything behind the info header.
std::vector<std::uint8_t> File(std::int32_t width, std::int32_t height, std::uint16_t bits,
                               std::uint32_t coding, std::uint32_t colours,
                               std::uint32_t pixelOffset, const std::vector<std::uint8_t>& tail,
                               std::uint32_t headerSize = 40) {
    ByteWriter writer;
    writer.WriteRaw("BM");
    writer.WriteU32(0); // the file's size: not looked at
    writer.WriteU32(0);
    writer.WriteU32(pixelOffset);
    writer.WriteU32(headerSize);
    writer.WriteI32(width);
    writer.WriteI32(height);
    writer.WriteI16(1);
    writer.WriteI16(static_cast<std::int16_t>(bits));
    writer.WriteU32(coding);
    writer.WriteU32(0);
    writer.WriteI32(2835);
    writer.WriteI32(2835);
    writer.WriteU32(colours);
    writer.WriteU32(0);
    writer.WriteBytes(tail);
    return writer.Take();
}

Picture Read(const std::vector<std::uint8_t>& bytes) {
    ByteReader reader(bytes);
    const BmpHeader header = BmpReader::ReadHeader(reader);
    return BmpReader::ReadPixels(reader, header);
}

int ErrorOf(const std::vector<std::uint8_t>& bytes) {
    try {
        static_cast<void>(Read(bytes));
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return 0;
}

const std::vector<std::uint8_t> RedGreenTable{0, 0, 255, 0, 0, 255, 0, 0}; // blue, green, red, 0

std::vector<std::uint8_t> Joined(std::vector<std::uint8_t> a, const std::vector<std::uint8_t>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

TEST(BmpReader, RowsRunFromTheBottomAndArePaddedToFourBytes) {
    const auto bytes = File(2, 2, 24, 0, 0, 54,
                            {255, 0, 0, 0, 255, 0, 9, 9, // lower row: blue, green
                             0, 0, 255, 0, 0, 0, 9, 9}); // upper row: red, black
    EXPECT_EQ(Read(bytes).Pixels(), (std::vector<Colour>{Red, Black, Blue, Green}));
}

TEST(BmpReader, ANegativeHeightRunsFromTheTop) {
    const auto bytes = File(1, -2, 24, 0, 0, 54, {255, 0, 0, 0, 0, 0, 255, 0});
    EXPECT_EQ(Read(bytes).Pixels(), (std::vector<Colour>{Blue, Red}));
}

TEST(BmpReader, OneBitAPixelReadsTheHighestBitFirst) {
    const auto bytes =
        File(10, 1, 1, 0, 2, 62, Joined(RedGreenTable, {0b01000000, 0b01000000, 0, 0}));
    std::vector<Colour> expected(10, Red);
    expected[1] = Green;
    expected[9] = Green;
    EXPECT_EQ(Read(bytes).Pixels(), expected);
}

TEST(BmpReader, FourBitsAPixelAndAColourBeyondTheTableIsBlack) {
    const auto bytes = File(3, 1, 4, 0, 2, 62, Joined(RedGreenTable, {0x1F, 0x00, 0, 0}));
    EXPECT_EQ(Read(bytes).Pixels(), (std::vector<Colour>{Green, Black, Red}));
}

TEST(BmpReader, EightBitsAPixel) {
    const auto bytes = File(3, 1, 8, 0, 2, 62, Joined(RedGreenTable, {1, 0, 1, 0}));
    EXPECT_EQ(Read(bytes).Pixels(), (std::vector<Colour>{Green, Red, Green}));
}

TEST(BmpReader, SixteenBitsAreFiveAChannel) {
    const auto bytes = File(2, 1, 16, 0, 0, 54, {0x00, 0x7C, 0xE0, 0x03});
    EXPECT_EQ(Read(bytes).Pixels(), (std::vector<Colour>{Red, Green}));
}

TEST(BmpReader, SixteenBitsWithMasksOfItsOwn) {
    const auto bytes = File(2, 1, 16, 3, 0, 66,
                            {0x00, 0xF8, 0, 0, 0xE0, 0x07, 0, 0, 0x1F, 0, 0, 0, // 5, 6, 5 bits
                             0xE0, 0x07, 0x1F, 0x00});
    EXPECT_EQ(Read(bytes).Pixels(), (std::vector<Colour>{Green, Blue}));
}

TEST(BmpReader, TheFourthByteOf32BitsIsNotOpacity) {
    const auto bytes = File(2, 1, 32, 0, 0, 54, {0, 0, 255, 0, 0, 255, 0, 77});
    EXPECT_EQ(Read(bytes).Pixels(), (std::vector<Colour>{Red, Green}));
}

TEST(BmpReader, AnAlphaMaskMakesPixelsTransparent) {
    const auto bytes = File(3, 1, 32, 3, 0, 70,
                            {0, 0, 255, 0, 0, 255, 0, 0,   255, 0, 0, 0,  0, 0, 0, 255, // masks
                             0, 0, 255, 0, 0, 255, 0, 255, 0,   0, 0, 128},
                            56);
    EXPECT_EQ(Read(bytes).Pixels(),
              (std::vector<Colour>{TransparentPixel, Green, MakeColour(127, 127, 127)}));
}

TEST(BmpReader, TheOldHeaderHasThreeByteColours) {
    ByteWriter writer;
    writer.WriteRaw("BM");
    writer.WriteU32(0);
    writer.WriteU32(0);
    writer.WriteU32(32);
    writer.WriteU32(12);
    writer.WriteI16(2);
    writer.WriteI16(1);
    writer.WriteI16(1);
    writer.WriteI16(1);
    writer.WriteBytes(std::vector<std::uint8_t>{0, 0, 255, 255, 0, 0, 0b01000000, 0, 0, 0});
    EXPECT_EQ(Read(writer.Bytes()).Pixels(), (std::vector<Colour>{Red, Blue}));
}

TEST(BmpReader, RunsOfEightBits) {
    const auto bytes = File(4, 3, 8, 1, 2, 62,
                            Joined(RedGreenTable, {3, 1, 0, 0,                   // run, end of row
                                                   0, 3, 1, 0, 1, 0,             // literal, padded
                                                   0, 2, 0, 1,                   // one row up
                                                   1, 1, 0, 1}));                // a pixel, the end
    EXPECT_EQ(Read(bytes).Pixels(), (std::vector<Colour>{Red, Red, Red, Green,   //
                                                         Green, Red, Green, Red, //
                                                         Green, Green, Green, Red}));
}

TEST(BmpReader, RunsOfFourBitsAlternate) {
    const auto bytes =
        File(5, 1, 4, 2, 2, 62, Joined(RedGreenTable, {3, 0x10, 0, 3, 0x01, 0x00, 0, 1}));
    EXPECT_EQ(Read(bytes).Pixels(), (std::vector<Colour>{Green, Red, Green, Red, Green}));
}

TEST(BmpReader, RunsBeyondThePictureAreCut) {
    const auto bytes =
        File(2, 1, 8, 1, 2, 62, Joined(RedGreenTable, {200, 1, 0, 2, 255, 255, 9, 0, 0, 1}));
    EXPECT_EQ(Read(bytes).Pixels(), (std::vector<Colour>{Green, Green}));
}

TEST(BmpReader, EveryTruncationFails) {
    const auto plain = File(3, 2, 8, 0, 2, 62, Joined(RedGreenTable, {1, 0, 1, 0, 0, 0, 0, 0}));
    const auto runs = File(3, 1, 8, 1, 2, 62, Joined(RedGreenTable, {0, 3, 1, 0, 1, 0, 0, 1}));
    for (const auto& whole : {plain, runs}) {
        ASSERT_EQ(ErrorOf(whole), 0);
        for (std::size_t size = 0; size < whole.size(); ++size) {
            EXPECT_NE(ErrorOf({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)}),
                      0)
                << size;
        }
    }
}

TEST(BmpReader, AHugeSizeWithoutPixelsFailsBeforeAnythingIsAllocated) {
    EXPECT_EQ(ErrorOf(File(2147483647, 2147483647, 32, 0, 0, 54, {})), ErrPastEnd);
    EXPECT_EQ(ErrorOf(File(2147483647, 2147483647, 1, 0, 0, 62, RedGreenTable)), ErrPastEnd);
}

TEST(BmpReader, WhatIsNotUnderstoodIsRefused) {
    EXPECT_EQ(ErrorOf(File(0, 1, 24, 0, 0, 54, {})), ErrInvalidFormat);
    EXPECT_EQ(ErrorOf(File(-1, 1, 24, 0, 0, 54, {})), ErrInvalidFormat);
    EXPECT_EQ(ErrorOf(File(1, 0, 24, 0, 0, 54, {})), ErrInvalidFormat);
    EXPECT_EQ(ErrorOf(File(1, -2147483647 - 1, 24, 0, 0, 54, {})), ErrInvalidFormat);
    EXPECT_EQ(ErrorOf(File(1, 1, 7, 0, 0, 54, {})), ErrInvalidFormat);
    EXPECT_EQ(ErrorOf(File(1, 1, 24, 4, 0, 54, {})), ErrInvalidFormat); // a JPEG inside
    EXPECT_EQ(ErrorOf(File(1, -1, 8, 1, 2, 62, RedGreenTable)), ErrInvalidFormat);
    EXPECT_EQ(ErrorOf(File(1, 1, 24, 0, 0, 54, {}, 39)), ErrInvalidFormat);
    EXPECT_EQ(ErrorOf({'P', 'M', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}),
              ErrInvalidFormat);
}

} // namespace
