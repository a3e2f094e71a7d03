// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <sstream>

#include "model/ByteStream.h"
#include "model/RunTimeError.h"

namespace zol {
namespace {

using ::testing::ElementsAre;

std::string Pattern251(std::size_t size) {
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i) {
        bytes[i] = static_cast<char>(static_cast<unsigned char>(i % 251));
    }
    return bytes;
}

TEST(ByteReader, ReadsLittleEndian) {
    const std::vector<std::uint8_t> bytes{0x01, 0x34, 0x12, 0xFE, 0xFF, 0x78, 0x56, 0x34, 0x12,
                                          0,    0,    0,    0,    0,    0,    0xF8, 0x3F};
    ByteReader reader(bytes);
    EXPECT_EQ(reader.ReadU8(), 1);
    EXPECT_EQ(reader.ReadI16(), 0x1234);
    EXPECT_EQ(reader.ReadI16(), -2);
    EXPECT_EQ(reader.ReadI32(), 0x12345678);
    EXPECT_EQ(reader.ReadF64(), 1.5);
    EXPECT_EQ(reader.Remaining(), 0U);
    EXPECT_EQ(reader.Position(), 18U);
}

TEST(ByteReader, ReadPastTheEndGivesZeros) {
    const std::vector<std::uint8_t> bytes{0xAB};
    ByteReader reader(bytes);
    EXPECT_EQ(reader.ReadI32(), 0xAB);
    EXPECT_EQ(reader.ReadU8(), 0);
    EXPECT_EQ(reader.ReadI16(), 0);
    EXPECT_EQ(reader.Remaining(), 0U);
    EXPECT_EQ(reader.Position(), 8U);
    EXPECT_TRUE(reader.Ahead(4).empty());
}

TEST(ByteReader, FileWindowGivesEveryByteInOrder) {
    const std::string content = Pattern251(200'000);
    std::istringstream stream(content);
    ByteReader reader(stream);
    ASSERT_EQ(reader.Size(), content.size());
    for (std::size_t i = 0; i < content.size(); ++i) {
        ASSERT_EQ(reader.ReadU8(), i % 251) << i;
    }
    EXPECT_EQ(reader.ReadU8(), 0);
}

TEST(ByteReader, FileAndMemoryReadersAgreeOnMixedReads) {
    const std::string content = Pattern251(140'001);
    std::istringstream stream(content);
    ByteReader file(stream);
    ByteReader memory(
        std::span(reinterpret_cast<const std::uint8_t*>(content.data()), content.size()));
    std::vector<std::uint8_t> a(977);
    std::vector<std::uint8_t> b(977);
    unsigned step = 0;
    while (memory.Remaining() > 0) {
        switch (step++ % 6) {
        case 0:
            ASSERT_EQ(file.ReadI32(), memory.ReadI32());
            break;
        case 1:
            file.ReadBytes(a);
            memory.ReadBytes(b);
            ASSERT_EQ(a, b);
            break;
        case 2: {
            const auto ahead = file.Ahead(64);
            const auto same = memory.Ahead(64);
            const std::size_t count = std::min<std::size_t>({ahead.size(), same.size(), 200});
            ASSERT_GE(count, std::min<std::size_t>(64, same.size()));
            ASSERT_TRUE(
                std::equal(same.begin(), same.begin() + static_cast<long>(count), ahead.begin()));
            file.Skip(count);
            memory.Skip(count);
            break;
        }
        case 3:
            file.Seek(file.Position() - 3);
            memory.Seek(memory.Position() - 3);
            break;
        case 4:
            ASSERT_EQ(file.ReadF64(), memory.ReadF64());
            break;
        default:
            file.Seek(file.Position() + 5);
            memory.Seek(memory.Position() + 5);
            break;
        }
        ASSERT_EQ(file.Position(), memory.Position());
        ASSERT_EQ(file.Remaining(), memory.Remaining());
    }
}

TEST(ByteReader, SeeksFarBackAndForthInAFile) {
    const std::string content = Pattern251(300'000);
    std::istringstream stream(content);
    ByteReader reader(stream);
    for (const std::size_t at : {0U, 299'999U, 70'000U, 65'536U, 65'535U, 1U, 250'000U}) {
        reader.Seek(at + 1);
        EXPECT_EQ(reader.Position(), at + 1);
        EXPECT_EQ(reader.ReadU8(), at % 251) << at;
    }
    reader.Seek(400'001);
    EXPECT_EQ(reader.ReadU8(), 0);
    EXPECT_EQ(reader.Remaining(), 0U);
    reader.Seek(1);
    EXPECT_EQ(reader.ReadI16(), 0x0100);
}

TEST(ByteReader, ReadsWholeAheadAfterTheEndWasSeen) {
    std::istringstream stream(std::string("\x05\x00"
                                          "abc",
                                          5));
    ByteReader reader(stream);
    EXPECT_EQ(reader.Ahead(10).size(), 5U);
    reader.Seek(1);
    EXPECT_EQ(reader.ReadI16(), 5);
    EXPECT_EQ(reader.ReadRaw(3), "abc");
}

TEST(ByteReader, NegativeLengthIsInvalidCall) {
    const std::vector<std::uint8_t> bytes{0xFF, 0xFF, 'a'};
    ByteReader reader(bytes);
    try {
        (void)reader.ReadString();
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), ErrInvalidCall);
    }
}

TEST(ByteReader, LengthPastTheEndIsRefusedBeforeItIsAllocated) {
    const std::vector<std::uint8_t> bytes{0xFF, 0x7F, 'a'};
    ByteReader reader(bytes);
    try {
        (void)reader.ReadString();
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), ErrPastEnd);
    }
}

TEST(ByteWriter, WritesLittleEndianAndStrings) {
    ByteWriter writer;
    writer.WriteU8(7);
    writer.WriteI16(-2);
    writer.WriteI32(0x12345678);
    writer.WriteString("a\xC3\xA9");
    writer.WriteString("");
    EXPECT_THAT(writer.Bytes(),
                ElementsAre(7, 0xFE, 0xFF, 0x78, 0x56, 0x34, 0x12, 2, 0, 'a', 0xE9, 0, 0));
}

TEST(ByteWriter, SeekInsideOverwritesAndBehindTheEndFillsWithZeros) {
    ByteWriter writer;
    writer.WriteRaw("abc");
    writer.Seek(2);
    writer.WriteU8('X');
    writer.Seek(6);
    writer.WriteU8('Y');
    EXPECT_THAT(writer.Bytes(), ElementsAre('a', 'X', 'c', 0, 0, 'Y'));
    EXPECT_EQ(writer.Position(), 7U);
}

TEST(ByteWriter, TextOf32767CharactersIsTheLongest) {
    ByteWriter writer;
    EXPECT_NO_THROW(writer.WriteString(std::string(32767, 'a')));
    const std::size_t size = writer.Bytes().size();
    EXPECT_THROW(writer.WriteString(std::string(32768, 'a')), RunTimeError);
    EXPECT_EQ(writer.Bytes().size(), size);
}

} // namespace
} // namespace zol
