// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FlossesTestSupport.h"
#include "flosses/AvailColors.h"
#include "flosses/CatalogueList.h"
#include "model/RunTimeError.h"

namespace zol {
namespace {

using test::HandWritten;

class AvailColorsTest : public testing::Test {
protected:
    AvailColorsTest() {
        context.AppPath = folder.Path();
        std::filesystem::create_directory(Flosses());
    }

    [[nodiscard]] std::filesystem::path Flosses() const { return folder / "Flosses"; }

    static HandWritten Header(const std::string& name, const std::string& shortName) {
        HandWritten file;
        file.Text(name, 30).Raw({0x10, 0x27, 0, 0}).Text(shortName, 10);
        // 45000.5 days as a double.
        file.Raw({0, 0, 0, 0, 0x10, 0xF9, 0xE5, 0x40}).Raw({7, 0});
        return file;
    }

    static void Row(HandWritten& file, int masterID, const std::string& description,
                    const std::string& flossID, int red, int green, int blue) {
        file.Raw({masterID % 256, masterID / 256, 0, 0});
        file.Text(description, 30).Text(flossID, 10);
        file.Raw({red, 0, green, 0, blue, 0, blue, 0, 2, 0, 3, 0}).Text("c");
    }

    [[nodiscard]] std::vector<std::string> Numbers() const {
        std::vector<std::string> numbers;
        for (int i = 1; i <= catalogue.GetFlossCount(); ++i) {
            numbers.push_back(catalogue.GetFlossManuID(i));
        }
        return numbers;
    }

    void Add(const std::string& flossID, const std::string& description = "d", Colour rgb = 0,
             std::int32_t masterID = 0) {
        catalogue.AddEntry(masterID, description, flossID, static_cast<int>(rgb & 0xFFU),
                           static_cast<int>((rgb >> 8U) & 0xFFU),
                           static_cast<int>((rgb >> 16U) & 0xFFU), 99, 0, 0, "");
    }

    test::TempFolder folder;
    ProgramContext context;
    AvailColors catalogue{context};
};

TEST_F(AvailColorsTest, ANewCatalogueIsEmptyAndCalledDmc) {
    EXPECT_EQ(catalogue.GetFlossCount(), 0);
    EXPECT_EQ(catalogue.GetManuCount(), 3);
    EXPECT_EQ(catalogue.GetHeader().Name.Text(), "DMC");
    EXPECT_EQ(catalogue.GetFlossMasterID(0), -1);
    EXPECT_EQ(catalogue.GetFlossMasterID(1), 0);
    EXPECT_EQ(catalogue.GetFlossManuID(1), "");
    EXPECT_EQ(catalogue.GetFlossDesc(0), "");
    EXPECT_EQ(catalogue.GetFlossRGB(1), 0U);
    EXPECT_EQ(catalogue.FindIndex("1"), 0);
    EXPECT_EQ(catalogue.GetMapIndex(0), -1);
    EXPECT_EQ(catalogue.GetMappingMasterID("1         "), 0);
    EXPECT_THROW((void)catalogue.GetRow(1), std::out_of_range);
}

TEST_F(AvailColorsTest, ReadsBytesWrittenByHand) {
    HandWritten file = Header("Anchor", "Anch");
    Row(file, 300, "Deep red", "20", 1, 2, 3);
    Row(file, 5, "Blue", "10", 4, 5, 6);
    test::WriteBytes(Flosses() / "anchor.col", file.Bytes);
    ASSERT_TRUE(catalogue.Initialize("anchor.col"));
    EXPECT_EQ(catalogue.GetFileName(), Flosses() / "anchor.col");
    EXPECT_EQ(catalogue.GetManuDesc(), "Anchor");
    EXPECT_EQ(catalogue.GetShortDesc(), "Anch");
    EXPECT_EQ(catalogue.GetManuCount(), 7);
    EXPECT_EQ(catalogue.GetHeader().BaseID, 10000);
    EXPECT_EQ(catalogue.GetHeader().Date, 45000.5);
    ASSERT_EQ(catalogue.GetFlossCount(), 2);
    EXPECT_THAT(Numbers(), testing::ElementsAre("10", "20")) << "sorted by number";
    EXPECT_EQ(catalogue.GetFlossMasterID(2), 300);
    EXPECT_EQ(catalogue.GetFlossDesc(2), "Deep red");
    EXPECT_EQ(catalogue.GetFlossRGB(2), MakeColour(1, 2, 3));
    EXPECT_EQ(catalogue.GetFlossRed(1), 4);
    EXPECT_EQ(catalogue.GetFlossGreen(1), 5);
    EXPECT_EQ(catalogue.GetFlossBlue(1), 6);
    EXPECT_EQ(catalogue.GetRow(2).Extra1, 3);
    EXPECT_EQ(catalogue.GetRow(2).Extra2, 2);
    EXPECT_EQ(catalogue.GetRow(2).Extra3, 3);
    EXPECT_EQ(catalogue.GetRow(2).Category, 'c');
}

TEST_F(AvailColorsTest, WritesTheSameBytes) {
    HandWritten file = Header("Anchor", "Anch");
    Row(file, 300, "Deep red", "20", 1, 2, 3);
    Row(file, 5, "Blue", "10", 4, 5, 6);
    ByteReader stream(file.Bytes);
    catalogue.Read(stream);
    EXPECT_EQ(catalogue.Bytes(), file.Bytes);
}

TEST_F(AvailColorsTest, AHeaderAloneHasNoRows) {
    test::WriteBytes(Flosses() / "x.col", Header("Anchor", "Anch").Bytes);
    EXPECT_TRUE(catalogue.Initialize("x.col"));
    EXPECT_EQ(catalogue.GetFlossCount(), 0);
    EXPECT_EQ(catalogue.GetManuDesc(), "Anchor");
}

TEST_F(AvailColorsTest, AShortLastRecordIsDroppedWhereverTheFileEnds) {
    HandWritten file = Header("Anchor", "Anch");
    Row(file, 300, "Deep red", "20", 1, 2, 3);
    Row(file, 5, "Blue", "10", 4, 5, 6);
    for (std::size_t size = 0; size <= file.Bytes.size(); ++size) {
        test::WriteBytes(
            folder / "x.col",
            {file.Bytes.begin(), file.Bytes.begin() + static_cast<std::ptrdiff_t>(size)});
        EXPECT_EQ(catalogue.Initialize(folder / "x.col"), size >= 54) << size;
        EXPECT_EQ(catalogue.GetFlossCount(), size < 54 ? 0 : static_cast<int>((size - 54) / 57));
    }
}

TEST_F(AvailColorsTest, MoreRowsThanCanBeCountedAreNoCatalogue) {
    HandWritten file = Header("Anchor", "Anch");
    file.Bytes.resize(54 + 57 * 32768U, 0x20);
    ByteReader stream(file.Bytes);
    EXPECT_THROW(catalogue.Read(stream), RunTimeError);
    EXPECT_EQ(catalogue.GetFlossCount(), 0);
}

TEST_F(AvailColorsTest, AMissingFileOrAFolderLeavesTheEmptyObject) {
    Add("1");
    EXPECT_FALSE(catalogue.Initialize("none.col"));
    EXPECT_EQ(catalogue.GetFlossCount(), 0);
    EXPECT_EQ(catalogue.GetHeader().Name.Text(), "DMC");
    EXPECT_FALSE(catalogue.Initialize(Flosses()));
}

TEST_F(AvailColorsTest, ABareNameIsFoundWhateverItsCase) {
    test::WriteBytes(Flosses() / "Dmc.COL", Header("DMC", "DMC").Bytes);
    EXPECT_TRUE(catalogue.Initialize("dmc.col"));
}

TEST_F(AvailColorsTest, ChannelsOutsideTheirRangeGiveAPlainColour) {
    HandWritten file = Header("A", "A");
    file.Raw({0, 0, 0, 0}).Text("d", 30).Text("1", 10);
    file.Raw({0xFF, 0xFF, 0x00, 0x01, 0x05, 0, 0, 0, 0, 0, 0, 0}).Text(" ");
    ByteReader stream(file.Bytes);
    catalogue.Read(stream);
    catalogue.SortByCategory(3);
    EXPECT_EQ(catalogue.GetFlossRed(1), -1);
    EXPECT_EQ(catalogue.GetFlossGreen(1), 256);
    EXPECT_EQ(catalogue.GetFlossRGB(1), MakeColour(0, 255, 5));
}

// --- Spelling -----------------------------------------------------------------------------------

TEST_F(AvailColorsTest, BritishSpellingReplacesTheFirstGrayAndIsSavedSo) {
    HandWritten file = Header("DMC", "DMC");
    Row(file, 1, "gray gray Gray", "1", 0, 0, 0);
    Row(file, 2, "Beaver Gray", "2", 0, 0, 0);
    test::WriteBytes(folder / "x.col", file.Bytes);
    context.BritishSpelling = true;
    ASSERT_TRUE(catalogue.Initialize(folder / "x.col"));
    EXPECT_EQ(catalogue.GetFlossDesc(1), "grey gray Gray");
    EXPECT_EQ(catalogue.GetFlossDesc(2), "Beaver Gray");
    EXPECT_EQ(test::ReadBytes(folder / "x.col"), file.Bytes) << "loading leaves the file";
    ASSERT_TRUE(catalogue.SaveToFile({}));
    context.BritishSpelling = false;
    ASSERT_TRUE(catalogue.Initialize(folder / "x.col"));
    EXPECT_EQ(catalogue.GetFlossDesc(1), "grey gray Gray");
}

// --- Rows ---------------------------------------------------------------------------------------

TEST_F(AvailColorsTest, AddEntryCopiesBlueIntoExtra1AndDropsTheSequence) {
    catalogue.AddEntry(5, "name", "42", 1, 2, 3, 99, 8, 9, "x");
    const CatalogueRow& row = catalogue.GetRow(1);
    EXPECT_EQ(row.Extra1, 3);
    EXPECT_EQ(row.Extra2, 8);
    EXPECT_EQ(row.Extra3, 9);
    EXPECT_EQ(row.Category, 'x');
}

TEST_F(AvailColorsTest, AddEntrySortsAgainInThePresentOrder) {
    Add("20");
    Add("10");
    EXPECT_THAT(Numbers(), testing::ElementsAre("20", "10")) << "a new catalogue has no order";
    catalogue.SortByCategory(1);
    Add("15");
    EXPECT_THAT(Numbers(), testing::ElementsAre("10", "15", "20"));
}

TEST_F(AvailColorsTest, ModifyEntryTrimsAndCutsTheTexts) {
    Add("1");
    catalogue.ModifyEntry(1, 7, "  " + std::string(31, 'x'), " 12345678901 ", 1, 2, 3, 4, 5, 6, "");
    EXPECT_EQ(catalogue.GetFlossDesc(1), std::string(30, 'x'));
    EXPECT_EQ(catalogue.GetFlossManuID(1), "1234567890");
    EXPECT_EQ(catalogue.GetRow(1).Extra1, 4);
    EXPECT_EQ(catalogue.GetRow(1).Category, ' ');
    catalogue.ModifyEntry(2, 7, "x", "y", 1, 2, 3, 4, 5, 6, "");
    EXPECT_EQ(catalogue.GetFlossCount(), 1);
}

TEST_F(AvailColorsTest, RemoveEntryTakesTheLastAndTheOnlyRow) {
    Add("1");
    Add("2");
    Add("3");
    catalogue.RemoveEntry(1);
    EXPECT_THAT(Numbers(), testing::ElementsAre("2", "3"));
    catalogue.RemoveEntry(2);
    catalogue.RemoveEntry(2);
    catalogue.RemoveEntry(0);
    EXPECT_THAT(Numbers(), testing::ElementsAre("2"));
    catalogue.RemoveEntry(1);
    EXPECT_EQ(catalogue.GetFlossCount(), 0);
}

// --- Looking up ---------------------------------------------------------------------------------

TEST_F(AvailColorsTest, FindIndexIsTrimmedAndCaseSensitive) {
    Add("Ecru");
    Add("White");
    EXPECT_EQ(catalogue.FindIndex(" White "), 2);
    EXPECT_EQ(catalogue.FindIndex("white"), 0);
}

TEST_F(AvailColorsTest, MappingTakesThePaddedNumberInAnyCase) {
    Add("White", "d", 0, 65536 + 12);
    EXPECT_EQ(catalogue.GetMappingMasterID("white     "), 12) << "narrowed to 16 bits";
    EXPECT_EQ(catalogue.GetMappingMasterID("white"), 0) << "not padded";
}

TEST_F(AvailColorsTest, MapIndexOfZeroFindsTheFirstRowOfAUsersOwn) {
    Add("1", "d", 0, 5);
    Add("2", "d", 0, 0);
    Add("3", "d", 0, 0);
    EXPECT_EQ(catalogue.GetMapIndex(0), 2);
    EXPECT_EQ(catalogue.GetMapIndex(5), 1);
    EXPECT_EQ(catalogue.GetMapIndex(6), -1);
}

// --- Sorting ------------------------------------------------------------------------------------

TEST_F(AvailColorsTest, SortByNumberPutsTextNumbersFirst) {
    Add("310");
    Add("White");
    Add("9");
    Add("Ecru");
    catalogue.SortByCategory(1);
    EXPECT_THAT(Numbers(), testing::ElementsAre("White", "Ecru", "9", "310"));
}

TEST_F(AvailColorsTest, EqualKeysTakeTheOrderOfTheExchange) {
    Add("2a");
    Add("2b");
    Add("1");
    catalogue.SortByCategory(1);
    EXPECT_THAT(Numbers(), testing::ElementsAre("1", "2b", "2a"));
}

TEST_F(AvailColorsTest, SortsByDescriptionAndByHue) {
    Add("1", "b", MakeColour(0, 0, 255));
    Add("2", "B", MakeColour(255, 0, 0));
    Add("3", "a", MakeColour(0, 255, 0));
    catalogue.SortByCategory(2);
    EXPECT_THAT(Numbers(), testing::ElementsAre("2", "3", "1"));
    catalogue.SortByCategory(3);
    EXPECT_THAT(Numbers(), testing::ElementsAre("2", "3", "1"));
    catalogue.SortByCategory(1);
    catalogue.SortByCategory(9);
    EXPECT_THAT(Numbers(), testing::ElementsAre("1", "2", "3")) << "no such order moves nothing";
}

// --- Saving -------------------------------------------------------------------------------------

TEST_F(AvailColorsTest, TheOrderOnDiskFollowsTheLastSort) {
    catalogue.Setheader("My Colors", 10000, "CUSTOM", 45000);
    Add("2", "a");
    Add("1", "b");
    catalogue.SortByCategory(2);
    ASSERT_TRUE(catalogue.SaveToFile(Flosses() / "My Colors.col"));
    const auto bytes = test::ReadBytes(Flosses() / "My Colors.col");
    AvailColors stored(context);
    ByteReader stream(bytes);
    stored.Read(stream);
    EXPECT_EQ(stored.GetFlossManuID(1), "2");
    EXPECT_EQ(stored.GetManuDesc(), "My Colors");
    EXPECT_EQ(stored.GetShortDesc(), "CUSTOM");
    EXPECT_EQ(stored.GetHeader().BaseID, 10000);
}

TEST_F(AvailColorsTest, SavingOverTheOwnFileKeepsTheOldOneAsBak) {
    const auto old = Header("Anchor", "Anch").Bytes;
    test::WriteBytes(Flosses() / "a.Col", old);
    test::WriteBytes(Flosses() / "a.BAK", {1, 2, 3});
    ASSERT_TRUE(catalogue.Initialize(Flosses() / "a.Col"));
    Add("1");
    ASSERT_TRUE(catalogue.SaveToFile({}));
    EXPECT_EQ(test::ReadBytes(Flosses() / "a.BAK"), old);
    EXPECT_EQ(test::ReadBytes(Flosses() / "a.Col"), catalogue.Bytes());
}

TEST_F(AvailColorsTest, AFileOfAnotherNameIsKeptWithColBehindIt) {
    const auto old = Header("Anchor", "Anch").Bytes;
    test::WriteBytes(folder / "threads", old);
    ASSERT_TRUE(catalogue.Initialize(folder / "threads"));
    Add("1");
    ASSERT_TRUE(catalogue.SaveToFile(folder / "threads"));
    EXPECT_EQ(test::ReadBytes(folder / "threads.COL"), old);
}

TEST_F(AvailColorsTest, SavingUnderAnotherNameMakesNoBackup) {
    test::WriteBytes(folder / "a.col", Header("Anchor", "Anch").Bytes);
    test::WriteBytes(folder / "b.col", {1});
    ASSERT_TRUE(catalogue.Initialize(folder / "a.col"));
    ASSERT_TRUE(catalogue.SaveToFile(folder / "b.col"));
    EXPECT_FALSE(std::filesystem::exists(folder / "b.BAK"));
    EXPECT_FALSE(catalogue.SaveToFile(folder / "none" / "c.col"));
    EXPECT_FALSE(AvailColors(context).SaveToFile({}));
}

// --- The folder's list --------------------------------------------------------------------------

TEST_F(AvailColorsTest, TheListHoldsLowerCaseFileNamesAndTrimmedNames) {
    test::WriteBytes(Flosses() / "Zed.COL", Header("Zed Threads", "Zed").Bytes);
    test::WriteBytes(Flosses() / "anchor.col", Header("Anchor", "Anch").Bytes);
    test::WriteBytes(Flosses() / "readme.txt", {1});
    const auto list = ListCatalogues(context);
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[0].FileName, "anchor.col");
    EXPECT_EQ(list[0].Name, "Anchor");
    EXPECT_EQ(list[1].FileName, "zed.col");
    EXPECT_EQ(list[1].Name, "Zed Threads");
}

TEST_F(AvailColorsTest, WithoutTheFolderTheListIsEmpty) {
    context.AppPath = folder / "none";
    EXPECT_TRUE(ListCatalogues(context).empty());
}

TEST(MapFlosses, NamesAreSeparatedByBars) {
    EXPECT_THAT(SplitMapFlosses("a.col|b.col"), testing::ElementsAre("a.col", "b.col"));
    EXPECT_THAT(SplitMapFlosses("|a.col||"), testing::ElementsAre("a.col"));
    EXPECT_TRUE(SplitMapFlosses("").empty());
}

TEST(MapFlosses, NamesAreFoundWholeAndJoined) {
    EXPECT_TRUE(IsMappedFloss("anchor.col|jpc.col", "jpc.col"));
    EXPECT_TRUE(IsMappedFloss("JPC.COL", "jpc.col"));
    EXPECT_FALSE(IsMappedFloss("anchor.col|my jpc.col", "jpc.col"));
    EXPECT_FALSE(IsMappedFloss("", "jpc.col"));
    EXPECT_EQ(JoinMapFlosses({}), "");
    EXPECT_EQ(JoinMapFlosses({"a.col"}), "a.col");
    EXPECT_EQ(JoinMapFlosses({"a.col", "b.col"}), "a.col|b.col");
}

} // namespace
} // namespace zol
