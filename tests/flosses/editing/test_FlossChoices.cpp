// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// What there is to choose from: symbols, the rows of a catalogue, flosses of the user's own.

#include <gmock/gmock.h>

#include <chrono>

#include "flosses/editing/MyColors.h"
#include "flosses/editing/PaletteEditorTest.h"
#include "flosses/editing/SymbolChoice.h"

namespace zol::test {

namespace {

using ::testing::ElementsAre;

class FlossChoicesTest : public PaletteEditorTest {};

int PlaceOf(int code) {
    int place = 1;
    while (place < Palette::SymbolCount && SymbolChoice::CodeAt(place) != code) {
        ++place;
    }
    return place;
}

TEST_F(FlossChoicesTest, SymbolsRunInTheOrderInWhichTheyAreHandedOut) {
    EXPECT_EQ(SymbolChoice::CodeAt(1), 33);
    EXPECT_EQ(SymbolChoice::CodeAt(94), 126);
    EXPECT_EQ(SymbolChoice::CodeAt(95), 130);
    EXPECT_EQ(SymbolChoice::CodeAt(Palette::SymbolCount), 241);
}

TEST_F(FlossChoicesTest, ANewFlossStartsWithTheFirstFreeSymbol) {
    Flosses().SetFlossSymbol(4, "!");
    const SymbolChoice choice(Flosses(), SymbolChoice::NewEntry, user);
    EXPECT_EQ(SymbolChoice::CodeAt(choice.Chosen()), '"');
    EXPECT_EQ(choice.Text(), "\"");
}

TEST_F(FlossChoicesTest, ATakenSymbolIsToldAndTheChoiceStays) {
    SymbolChoice choice(Flosses(), 2, user);
    EXPECT_EQ(choice.Text(), "G");
    EXPECT_TRUE(choice.IsTaken(PlaceOf('R')));
    EXPECT_FALSE(choice.IsTaken(PlaceOf('G')));
    EXPECT_FALSE(choice.Choose(PlaceOf('R')));
    EXPECT_THAT(user.ToldTexts(),
                ElementsAre("This symbol is already being used by another floss."));
    EXPECT_EQ(user.told.front().title, "Symbol already used");
    EXPECT_EQ(choice.Text(), "G");
    EXPECT_TRUE(choice.Choose(PlaceOf('#')));
    EXPECT_EQ(choice.Text(), "#");
}

TEST_F(FlossChoicesTest, AnEntryMayKeepASymbolThatItShares) {
    Flosses().SetFlossSymbol(4, "G");
    SymbolChoice choice(Flosses(), 2, user);
    EXPECT_FALSE(choice.IsTaken(PlaceOf('G')));
    EXPECT_TRUE(choice.Choose(PlaceOf('G')));
}

TEST_F(FlossChoicesTest, SymbolsBehindTheAsciiOnesComeBackAsTheirCodes) {
    SymbolChoice choice(Flosses(), 2, user);
    for (const int code : {130, 156, 173, 241}) {
        ASSERT_TRUE(choice.Choose(PlaceOf(code)));
        EXPECT_EQ(Palette::SymbolCodeOf(choice.Text()), code);
    }
}

TEST_F(FlossChoicesTest, ARowStaysSelectedWhenRowsMove) {
    AvailableFlosses available(context);
    ASSERT_TRUE(available.Show("dmc.col"));
    EXPECT_EQ(available.Selected(), 1);
    ASSERT_TRUE(available.Find("666"));
    available.Sort(2);
    EXPECT_EQ(available.Rows().GetFlossDesc(1), "Black");
    EXPECT_EQ(available.Rows().GetFlossManuID(available.Selected()), "666");
    ASSERT_TRUE(available.Show("dmc.col"));
    EXPECT_EQ(available.Rows().GetFlossManuID(1), "310") << "the order stays for the next";
    available.Find("321");
    available.Sort(3);
    EXPECT_EQ(available.Rows().GetFlossManuID(available.Selected()), "321");
}

TEST_F(FlossChoicesTest, ANumberIsFoundInAnyCaseAndAMissLeavesTheSelection) {
    AvailColors catalogue(context);
    ASSERT_TRUE(catalogue.Initialize("dmc.col"));
    catalogue.AddEntry(1, "Off white", "Ecru", 240, 234, 218, 0, 0, 0, "");
    ASSERT_TRUE(catalogue.SaveToFile({}));
    AvailableFlosses available(context);
    ASSERT_TRUE(available.Show("dmc.col"));
    EXPECT_TRUE(available.Find("ECRU"));
    EXPECT_EQ(available.LookOf(available.Selected()).Description, "Ecru - Off white");
    const int found = available.Selected();
    EXPECT_FALSE(available.Find("31"));
    EXPECT_EQ(available.Selected(), found);
}

TEST_F(FlossChoicesTest, MyColorsIsMadeAndThenAddedTo) {
    using namespace std::chrono;
    const auto day = system_clock::time_point(hours(24 * 10)); // 11 January 1970
    const CustomFloss teal{MakeColour(10, 20, 30), " M1 ", " My Teal ", true};
    ASSERT_TRUE(MyColors::Save(context, teal, day));
    ASSERT_TRUE(MyColors::Save(context, {MakeColour(1, 1, 1), "M0", "Soot", true}, day));
    AvailColors saved(context);
    ASSERT_TRUE(saved.Initialize("My Colors.col"));
    EXPECT_EQ(saved.GetFlossCount(), 2);
    EXPECT_EQ(saved.GetManuDesc(), "My Colors");
    EXPECT_EQ(saved.GetShortDesc(), "CUSTOM");
    EXPECT_EQ(saved.GetHeader().BaseID, 10000);
    EXPECT_DOUBLE_EQ(saved.GetHeader().Date, 25579);
    const int row = saved.FindIndex("M1");
    ASSERT_GT(row, 0);
    EXPECT_EQ(saved.GetFlossDesc(row), "My Teal");
    EXPECT_EQ(saved.GetFlossMasterID(row), 0);
    EXPECT_EQ(saved.GetFlossRGB(row), MakeColour(10, 20, 30));
    EXPECT_EQ(saved.GetRow(row).Extra1, 30);
    EXPECT_TRUE(std::filesystem::exists(folder.Path() / "Flosses" / "My Colors.BAK"));
}

TEST_F(FlossChoicesTest, MyColorsNeedsAFolder) {
    EXPECT_TRUE(MyColors::CanSave(context));
    context.AppPath = folder.Path() / "elsewhere";
    EXPECT_FALSE(MyColors::CanSave(context));
    EXPECT_FALSE(MyColors::Save(context, {0, "1", "x", true}, {}));
}

} // namespace

} // namespace zol::test
