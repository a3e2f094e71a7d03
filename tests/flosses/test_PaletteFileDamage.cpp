// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "PaletteSeeds.h"
#include "flosses/Palette.h"
#include "model/RunTimeError.h"

namespace zol {
namespace {

using Bytes = std::vector<std::uint8_t>;

class PaletteFileDamage : public testing::Test {
protected:
    PaletteFileDamage() { context.Messages = &messages; }

    bool Load(const Bytes& bytes) {
        test::WriteBytes(folder / "x.fls", bytes);
        return palette.LoadFromDisk(folder / "x.fls");
    }

    static Bytes Cut(const Bytes& bytes, std::size_t size) {
        return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size)};
    }

    test::TempFolder folder;
    test::RecordedMessages messages;
    ProgramContext context;
    Palette palette = Palette::Empty(context);
};

TEST_F(PaletteFileDamage, ACutRelease6FileIsRefusedOrHasNoEntries) {
    const Bytes whole = test::Rel6Bytes();
    constexpr std::size_t headerEnd = 25;
    constexpr std::size_t manufacturersEnd = 27 + 80;
    for (std::size_t size = 0; size < whole.size(); ++size) {
        palette = Palette::Empty(context);
        test::AddFloss(palette, 0, "kept");
        messages.Told.clear();
        const bool loaded = Load(Cut(whole, size));
        // A file that ends just before a count loads with what it counts empty: what is read past
        // the end is zero.
        const bool endsBeforeACount = size == headerEnd || size == manufacturersEnd;
        EXPECT_EQ(loaded, endsBeforeACount) << size;
        const bool oldForm = size < headerEnd && size % 37 == 0;
        EXPECT_EQ(palette.GetEntriesCount(), loaded || oldForm ? 0 : 1) << size;
        EXPECT_EQ(messages.Told.empty(), size >= headerEnd || oldForm) << size;
    }
}

TEST_F(PaletteFileDamage, ACutRelease5FileIsRefusedOrHasNoEntries) {
    const Bytes whole = test::Rel5Bytes();
    constexpr std::size_t headerEnd = 25;
    for (std::size_t size = headerEnd; size < whole.size(); ++size) {
        palette = Palette::Empty(context);
        test::AddFloss(palette, 0, "kept");
        const bool loaded = Load(Cut(whole, size));
        EXPECT_EQ(loaded, size == headerEnd) << size;
        EXPECT_EQ(palette.GetEntriesCount(), loaded ? 0 : 1) << size;
    }
    EXPECT_TRUE(messages.Told.empty());
}

TEST_F(PaletteFileDamage, AnOldFileOfAnotherLengthIsRefusedUntouched) {
    const Bytes whole = test::OldBytes();
    for (std::size_t size = 1; size < whole.size(); ++size) {
        palette = Palette::Empty(context);
        test::AddFloss(palette, 0, "kept");
        messages.Told.clear();
        EXPECT_FALSE(Load(Cut(whole, size)));
        if (size % 37 != 0) {
            EXPECT_THAT(messages.Told, testing::ElementsAre(testing::Pair("Invalid File Format",
                                                                          MessageIcon::None)));
            EXPECT_EQ(palette.GetManufID(1), "kept");
        } else {
            EXPECT_TRUE(messages.Told.empty());
            EXPECT_EQ(palette.GetManufID(1), "310");
        }
    }
}

TEST_F(PaletteFileDamage, MoreOldRecordsThanCanBeNumberedAreDamage) {
    test::AddFloss(palette, 0, "kept");
    EXPECT_FALSE(Load(Bytes(37 * 32768U, 1)));
    EXPECT_THAT(messages.Told, testing::ElementsAre(
                                   testing::Pair("Invalid File Format", MessageIcon::Exclamation)));
    EXPECT_EQ(palette.GetManufID(1), "kept");
}

TEST_F(PaletteFileDamage, ACutBlockOfAPatternIsARunTimeError) {
    for (const Bytes& whole : {test::Rel6Bytes(), test::Rel5Bytes()}) {
        for (std::size_t size = 0; size < whole.size(); ++size) {
            const Bytes cut = Cut(whole, size);
            ByteReader stream(cut);
            try {
                EXPECT_TRUE(palette.LoadFromDisk(stream));
                EXPECT_EQ(palette.GetEntriesCount(), 0) << size;
            } catch (const RunTimeError& error) {
                EXPECT_EQ(error.Number(), ErrPastEnd) << size;
            }
        }
    }
    EXPECT_TRUE(messages.Told.empty()) << "the pattern's reader words what is wrong";
}

TEST_F(PaletteFileDamage, ABlockWithoutAMagicIsARunTimeError) {
    const Bytes bytes(100, 'x');
    ByteReader stream(bytes);
    try {
        palette.LoadFromDisk(stream);
        FAIL() << "loaded";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), ErrInvalidFormat);
    }
}

TEST_F(PaletteFileDamage, NegativeCountsReadNothing) {
    test::HandWritten file;
    file.Text("Korvanta 6 Floss Palette!").Raw({0xFF, 0xFF, 0x00, 0x80, 0, 0, 0, 0, 0, 0});
    test::AddFloss(palette, 0, "1");
    ASSERT_TRUE(Load(file.Bytes));
    EXPECT_EQ(palette.GetEntriesCount(), 0);
    EXPECT_EQ(palette.GetManufacturerCount(), 0);
}

TEST_F(PaletteFileDamage, CountsBeyondTheFileAreRefused) {
    test::HandWritten manufacturers;
    manufacturers.Text("Korvanta 6 Floss Palette!").Raw({0xFF, 0x7F}).Text("", 400);
    EXPECT_FALSE(Load(manufacturers.Bytes));
    test::HandWritten entries;
    entries.Text("Korvanta 6 Floss Palette!").Raw({0, 0, 0xFF, 0x7F, 0, 0, 0, 0, 0, 0});
    entries.Text("", 400);
    EXPECT_FALSE(Load(entries.Bytes));
    test::HandWritten font;
    font.Text("Korvanta 6 Floss Palette!").Raw({0, 0, 0, 0, 0xFF, 0x7F}).Text("", 400);
    EXPECT_FALSE(Load(font.Bytes));
    test::HandWritten negativeFont;
    negativeFont.Text("Korvanta 6 Floss Palette!").Raw({0, 0, 0, 0, 0xFF, 0xFF}).Text("", 400);
    EXPECT_FALSE(Load(negativeFont.Bytes));
    EXPECT_TRUE(messages.Told.empty());
}

TEST_F(PaletteFileDamage, AManufacturerThatIsNotThereHasNoName) {
    Bytes bytes = test::Rel6Bytes();
    const std::size_t row = 27 + 80 + 2 + 2 + 5 + 4 + 44;
    for (const int value : {0, 3, 255}) {
        bytes[row] = static_cast<std::uint8_t>(value);
        bytes[row + 1] = static_cast<std::uint8_t>(value == 255 ? 255 : 0);
        ASSERT_TRUE(Load(bytes));
        EXPECT_EQ(palette.GetManufShortDesc(1), "");
        EXPECT_EQ(palette.GetManufLongDesc(1), "");
    }
}

TEST_F(PaletteFileDamage, AColourWithStrayBitsIsMatchedByItsChannels) {
    Bytes bytes = test::Rel6Bytes();
    bytes[27 + 80 + 2 + 2 + 5 + 4 + 30 + 3] = 0xFF;
    ASSERT_TRUE(Load(bytes));
    EXPECT_EQ(palette.GetClosest(MakeColour(1, 2, 3), Palette::NoExclusion), 1);
}

TEST_F(PaletteFileDamage, MissingFilesAndFoldersAreAFailureWithoutAMessage) {
    EXPECT_FALSE(palette.LoadFromDisk(folder / "none.fls"));
    EXPECT_FALSE(palette.LoadFromDisk(folder.Path()));
    EXPECT_FALSE(palette.LoadRel6FromDisk(folder.Path()));
    EXPECT_FALSE(palette.LoadFromDisk("/dev/zero"));
    EXPECT_TRUE(messages.Told.empty());
}

} // namespace
} // namespace zol
