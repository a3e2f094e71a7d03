// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "PaletteSeeds.h"
#include "flosses/Palette.h"
#include "model/RunTimeError.h"

namespace zol {
namespace {

using test::WriteFile;

class PaletteFile : public testing::Test {
protected:
    PaletteFile() {
        context.AppPath = folder.Path();
        context.Messages = &messages;
    }

    void InstallCatalogue() const {
        std::filesystem::create_directory(folder / "flosses");
        test::WriteBytes(folder / "flosses" / "DMC.col", test::CatalogueBytes());
    }

    bool LoadBytes(const std::vector<std::uint8_t>& bytes) {
        test::WriteBytes(folder / "x.fls", bytes);
        return palette.LoadFromDisk(folder / "x.fls");
    }

    test::TempFolder folder;
    test::RecordedMessages messages;
    ProgramContext context;
    Palette palette = Palette::Empty(context);
};

// --- Release 6 ----------------------------------------------------------------------------------

TEST_F(PaletteFile, ReadsRelease6) {
    context.FontCharSet = [](const std::string&) { return 99; };
    ASSERT_TRUE(LoadBytes(test::Rel6Bytes()));
    ASSERT_EQ(palette.GetEntriesCount(), 2);
    EXPECT_EQ(palette.GetManufacturerCount(), 2);
    EXPECT_EQ(palette.GetManufacturer(1).LongName.Text(), "DMC Mouline");
    EXPECT_EQ(palette.GetFontName(), "Arial");
    EXPECT_TRUE(palette.GetFontBold());
    EXPECT_FALSE(palette.GetFontItalic());
    EXPECT_EQ(palette.GetFontCharSet(), 0) << "the caller applies the font if it wants to";
    EXPECT_EQ(palette.GetFlossRGB(1), MakeColour(1, 2, 3));
    EXPECT_EQ(palette.GetFlossLongDesc(1), "310 - My black");
    EXPECT_EQ(palette.GetEntry(1).Description.Text(), "Black");
    EXPECT_EQ(palette.GetFlossMasterID(1), 300);
    EXPECT_EQ(palette.GetFlossSymbol(1), 'A');
    EXPECT_EQ(palette.GetFlossStitchStrands(1), 2);
    EXPECT_EQ(palette.GetFlossBackStitchStrands(1), 1);
    EXPECT_EQ(palette.GetEntry(1).EntryTag, 7);
    EXPECT_EQ(palette.GetDefaultBSType(1), 4);
    EXPECT_EQ(palette.GetFlossRGB(2), MakeColour(12, 20, 30)) << "a blend";
    EXPECT_EQ(palette.GetEntry(2).BlendDescription.Text(), "Blue");
    EXPECT_EQ(palette.GetEntry(2).BlendMasterID, 9);
    EXPECT_EQ(palette.GetBlendManufShortDesc(2), "Anchor");
    EXPECT_EQ(palette.GetNonRepColor(2), 0x12345678U);
    EXPECT_EQ(palette.GetNonRepDesc(2), "Gold");
    EXPECT_TRUE(messages.Told.empty());
}

TEST_F(PaletteFile, WritesTheSameBytes) {
    ASSERT_TRUE(LoadBytes(test::Rel6Bytes()));
    ASSERT_EQ(palette.SaveToDisk(folder / "y.fls"), ErrNone);
    EXPECT_EQ(test::ReadBytes(folder / "y.fls"), test::Rel6Bytes());
}

TEST_F(PaletteFile, TheDisplayOrderIsZeroUntilItIsSorted) {
    ASSERT_TRUE(LoadBytes(test::Rel6Bytes()));
    EXPECT_EQ(palette.GetSortIndex(1), 0);
    EXPECT_EQ(palette.GetSortIndex(2), 0);
    palette.Sort(palette.GetSortOrder());
    EXPECT_EQ(palette.GetSortIndex(2), 2);
}

TEST_F(PaletteFile, APaletteOfNothingIsThirtyFiveBytesAndTheFontsName) {
    palette.SetSymbolFont("Ab", false, true);
    ByteWriter stream;
    palette.SaveToDisk(stream);
    test::HandWritten expected;
    expected.Text("Korvanta 6 Floss Palette!").Raw({0, 0, 0, 0, 2, 0}).Text("Ab");
    expected.Raw({0, 0, 0xFF, 0xFF});
    EXPECT_EQ(stream.Bytes(), expected.Bytes);
    EXPECT_EQ(stream.Bytes().size(), 25U + 2 + 2 + 2 + 2 + 2 + 2);
    test::AddFloss(palette, 0, "1");
    ASSERT_TRUE(LoadBytes(expected.Bytes));
    EXPECT_EQ(palette.GetEntriesCount(), 0);
    EXPECT_EQ(palette.GetManufacturerCount(), 0);
}

TEST_F(PaletteFile, ABlockLeavesTheStreamBehindItsLastEntry) {
    test::HandWritten file;
    file.Text("xyz");
    const auto block = test::Rel6Bytes();
    file.Bytes.insert(file.Bytes.end(), block.begin(), block.end());
    file.Text("tail");
    ByteReader stream(file.Bytes);
    stream.Seek(4);
    palette.SetChanged(true);
    ASSERT_TRUE(palette.LoadFromDisk(stream));
    EXPECT_EQ(stream.Position(), 4 + block.size());
    EXPECT_EQ(stream.ReadU8(), 't');
    EXPECT_FALSE(palette.IsChanged());
}

TEST_F(PaletteFile, SavingInsideAPatternClearsChangedAndAloneDoesNot) {
    palette.SetChanged(true);
    EXPECT_EQ(palette.SaveToDisk(folder / "y.fls"), ErrNone);
    EXPECT_TRUE(palette.IsChanged());
    ByteWriter stream;
    palette.SaveToDisk(stream);
    EXPECT_FALSE(palette.IsChanged());
}

TEST_F(PaletteFile, LoadingAStandAloneFileLeavesChanged) {
    palette.SetChanged(true);
    ASSERT_TRUE(LoadBytes(test::Rel6Bytes()));
    EXPECT_TRUE(palette.IsChanged());
    palette.SetChanged(false);
    ASSERT_TRUE(LoadBytes(test::Rel6Bytes()));
    EXPECT_FALSE(palette.IsChanged());
}

TEST_F(PaletteFile, ASaveOverALongerFileLeavesNoOldTail) {
    test::WriteBytes(folder / "y.fls", std::vector<std::uint8_t>(5000, 1));
    ASSERT_EQ(palette.SaveToDisk(folder / "y.fls"), ErrNone);
    ByteWriter stream;
    palette.SaveToDisk(stream);
    EXPECT_EQ(test::ReadBytes(folder / "y.fls"), stream.Bytes());
    EXPECT_NE(palette.SaveToDisk(folder / "none" / "y.fls"), ErrNone);
}

TEST_F(PaletteFile, ADirectReadOfAnotherFormIsRefusedWithAMessage) {
    test::AddFloss(palette, 0, "1");
    test::WriteBytes(folder / "x.fls", test::Rel5Bytes());
    EXPECT_FALSE(palette.LoadRel6FromDisk(folder / "x.fls"));
    EXPECT_THAT(messages.Told, testing::ElementsAre(testing::Pair("Invalid Palette Information",
                                                                  MessageIcon::Exclamation)));
    EXPECT_EQ(palette.GetEntriesCount(), 1);
    test::WriteBytes(folder / "x.fls", test::Rel6Bytes());
    EXPECT_TRUE(palette.LoadRel6FromDisk(folder / "x.fls"));
    EXPECT_EQ(palette.GetEntriesCount(), 2);
}

TEST_F(PaletteFile, PaddingIsKeptAndTrimmedByGettersOnly) {
    auto bytes = test::Rel6Bytes();
    bytes[27 + 80 + 2 + 2 + 5 + 4] = ' '; // first letter of the first description
    ASSERT_TRUE(LoadBytes(bytes));
    EXPECT_EQ(palette.GetEntry(1).Description.Padded(), " lack" + std::string(25, ' '));
    EXPECT_EQ(palette.GetEntry(1).Description.Text(), "lack");
}

// --- Release 5 ----------------------------------------------------------------------------------

TEST_F(PaletteFile, ReadsRelease5AndMapsItThroughTheCatalogue) {
    InstallCatalogue();
    test::AddFloss(palette, 0, "old");
    palette.Sort(SortDescription);
    ASSERT_TRUE(LoadBytes(test::Rel5Bytes()));
    ASSERT_EQ(palette.GetEntriesCount(), 2);
    EXPECT_EQ(palette.GetFontName(), "Arial");
    EXPECT_TRUE(palette.GetFontItalic());
    EXPECT_EQ(palette.GetFlossLongDesc(1), "310 - Black");
    EXPECT_EQ(palette.GetFlossMasterID(1), 300);
    EXPECT_EQ(palette.GetFlossSymbol(1), 'A');
    EXPECT_EQ(palette.GetFlossStitchStrands(1), 3);
    EXPECT_EQ(palette.GetFlossBackStitchStrands(1), 2) << "0 is the program's default";
    EXPECT_EQ(palette.GetEntry(2).EntryTag, 2);
    EXPECT_EQ(palette.GetFlossMasterID(2), 0) << "not in the catalogue";
    EXPECT_EQ(palette.GetFlossShortDesc(2), "A description of more than thi");
    EXPECT_EQ(palette.GetManufShortDesc(2), "DMC");
    EXPECT_EQ(palette.GetSortIndex(1), 2) << "adding sorts in the present order";
    EXPECT_TRUE(palette.IsChanged());
}

TEST_F(PaletteFile, Release5WithoutACatalogueHasNoIdentities) {
    ASSERT_TRUE(LoadBytes(test::Rel5Bytes()));
    EXPECT_EQ(palette.GetFlossMasterID(1), 0);
}

TEST_F(PaletteFile, TheMappingCatalogueIsHeldAcrossCalls) {
    InstallCatalogue();
    ASSERT_TRUE(LoadBytes(test::Rel5Bytes()));
    std::filesystem::remove(folder / "flosses" / "DMC.col");
    Palette second = Palette::Empty(context);
    ASSERT_TRUE(second.LoadFromDisk(folder / "x.fls"));
    EXPECT_EQ(second.GetFlossMasterID(1), 300);
}

TEST_F(PaletteFile, ARelease5BlockOfAPatternIsReadToItsEnd) {
    const auto bytes = test::Rel5Bytes();
    ByteReader stream(bytes);
    ASSERT_TRUE(palette.LoadFromDisk(stream));
    EXPECT_EQ(palette.GetEntriesCount(), 2);
    EXPECT_EQ(stream.Remaining(), 0U);
    EXPECT_FALSE(palette.IsChanged());
}

// --- Old form -----------------------------------------------------------------------------------

TEST_F(PaletteFile, AnOldFileIsLoadedAndStillAnsweredAsAFailure) {
    InstallCatalogue();
    test::AddFloss(palette, 0, "old");
    EXPECT_FALSE(LoadBytes(test::OldBytes()));
    EXPECT_TRUE(messages.Told.empty());
    ASSERT_EQ(palette.GetEntriesCount(), 2);
    EXPECT_EQ(palette.GetFlossLongDesc(1), "310 - Black");
    EXPECT_EQ(palette.GetFlossMasterID(1), 300);
    EXPECT_EQ(palette.GetFlossSymbol(1), 'A');
    EXPECT_EQ(palette.GetEntry(1).EntryTag, 0);
    EXPECT_EQ(palette.GetFlossLongDesc(2), "0 - Custom") << "a second number keeps the record";
    EXPECT_EQ(palette.GetFlossSymbol(2), 'B');
    EXPECT_EQ(palette.GetEntry(2).EntryTag, 1);
    EXPECT_EQ(palette.GetFlossMasterID(2), 0);
    EXPECT_FALSE(palette.IsChanged());
}

TEST_F(PaletteFile, LoadOldPaletteAnswersZeroOnSuccess) {
    test::WriteBytes(folder / "x.fls", test::OldBytes());
    EXPECT_EQ(palette.LoadOldPalette(folder / "x.fls"), 0);
    EXPECT_EQ(palette.GetEntriesCount(), 2);
    EXPECT_EQ(palette.LoadOldPalette(folder / "none.fls"), 1);
}

TEST_F(PaletteFile, ThirtySevenZeroBytesGiveAnEmptyPalette) {
    test::AddFloss(palette, 0, "1");
    EXPECT_FALSE(LoadBytes(std::vector<std::uint8_t>(37, 0)));
    EXPECT_EQ(palette.GetEntriesCount(), 0);
    EXPECT_TRUE(messages.Told.empty());
}

TEST_F(PaletteFile, AnEmptySymbolOfAnOldRecordIsAskedFor) {
    test::HandWritten file;
    file.Raw({1, 2, 3, 0, 5, 0, 0, 0, 0, 0}).Text("first", 25).Text("", 2);
    file.Raw({1, 2, 3, 0, 6, 0, 0, 0, 0, 0}).Text("second", 25).Text("S", 2);
    test::FixedSymbol cancelling(std::nullopt);
    context.Symbols = &cancelling;
    EXPECT_FALSE(LoadBytes(file.Bytes));
    ASSERT_EQ(palette.GetEntriesCount(), 1) << "a cancelled floss is left out, the rest goes on";
    EXPECT_EQ(palette.GetManufID(1), "6");
    EXPECT_EQ(palette.GetEntry(1).EntryTag, 0) << "only flosses that were added are counted";
    test::FixedSymbol answering("Q");
    context.Symbols = &answering;
    EXPECT_FALSE(LoadBytes(file.Bytes));
    ASSERT_EQ(palette.GetEntriesCount(), 2);
    EXPECT_EQ(palette.GetFlossSymbol(1), 'Q');
}

// --- Startup ------------------------------------------------------------------------------------

TEST_F(PaletteFile, DefaultFlsIsTheStartupPaletteWhateverItsCase) {
    test::WriteBytes(folder / "DEFAULT.FLS", test::Rel6Bytes());
    LoadStartupPalette(context);
    ASSERT_NE(context.StartupPalette, nullptr);
    const Palette fresh(context);
    ASSERT_EQ(fresh.GetEntriesCount(), 2);
    EXPECT_EQ(fresh.GetSortIndex(2), 2);
    EXPECT_EQ(fresh.GetFontName(), "Korvanta Symbols");
    EXPECT_FALSE(fresh.IsChanged());
}

TEST_F(PaletteFile, WithoutASuccessfulDefaultFlsTheBuiltInListServes) {
    LoadStartupPalette(context);
    EXPECT_EQ(context.StartupPalette, nullptr);
    test::WriteBytes(folder / "Default.fls", test::OldBytes());
    LoadStartupPalette(context);
    EXPECT_EQ(context.StartupPalette, nullptr) << "the old form counts as a failure";
    EXPECT_EQ(Palette(context).GetEntriesCount(), 16);
}

} // namespace
} // namespace zol
