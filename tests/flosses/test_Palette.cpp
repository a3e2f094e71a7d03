// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FlossesTestSupport.h"
#include "flosses/Palette.h"

namespace zol {
namespace {

using test::AddFloss;
using test::FixedSymbol;

class PaletteTest : public testing::Test {
protected:
    ProgramContext context;
    Palette palette = Palette::Empty(context);
};

// --- Startup ------------------------------------------------------------------------------------

TEST_F(PaletteTest, StartsWithSixteenFlossesUnchanged) {
    context.StitchStrands = 3;
    context.BackStitchStrands = 1;
    const Palette fresh(context);
    ASSERT_EQ(fresh.GetEntriesCount(), 16);
    EXPECT_EQ(fresh.GetFlossLongDesc(1), "310 - black");
    EXPECT_EQ(fresh.GetFlossRGB(5), MakeColour(118, 55, 19));
    EXPECT_EQ(fresh.GetFlossLongDesc(8), "318 - steel gray - lt");
    EXPECT_EQ(fresh.GetFlossLongDesc(16), "White - white");
    EXPECT_EQ(fresh.GetFlossSymbol(16), 'W');
    EXPECT_EQ(fresh.GetEntry(16).EntryTag, 15);
    EXPECT_EQ(fresh.GetManufLongDesc(4), "DMC");
    EXPECT_EQ(fresh.GetFlossStitchStrands(1), 3);
    EXPECT_EQ(fresh.GetFlossBackStitchStrands(1), 1);
    EXPECT_EQ(fresh.GetManufacturerCount(), 1);
    EXPECT_EQ(fresh.GetSelectedEntry(), -1);
    EXPECT_EQ(fresh.GetSortOrder(), SortOrderAdded);
    EXPECT_EQ(fresh.GetFontName(), "Korvanta Symbols");
    EXPECT_FALSE(fresh.IsChanged());
}

TEST_F(PaletteTest, StartupSpellsGreyAsTheProgramDoes) {
    context.BritishSpelling = true;
    const Palette fresh(context);
    EXPECT_EQ(fresh.GetFlossShortDesc(8), "steel grey - lt");
    EXPECT_EQ(fresh.GetFlossShortDesc(9), "pewter grey");
}

TEST_F(PaletteTest, StartupPaletteOfTheProgramComesFirst) {
    AddFloss(palette, 0x112233, "42", "answer");
    context.StartupPalette = std::make_shared<const Palette>(palette);
    const Palette fresh(context);
    ASSERT_EQ(fresh.GetEntriesCount(), 1);
    EXPECT_EQ(fresh.GetFlossLongDesc(1), "42 - answer");
    EXPECT_EQ(fresh.GetSortIndex(1), 1);
    EXPECT_EQ(fresh.GetManufShortDesc(1), "DMC");
    EXPECT_FALSE(fresh.IsChanged());
}

TEST_F(PaletteTest, AnEmptyPaletteAnswersNeutrally) {
    EXPECT_EQ(palette.GetEntriesCount(), 0);
    EXPECT_EQ(palette.GetFlossRGB(1), 0U);
    EXPECT_EQ(palette.GetFlossLongDesc(1), "");
    EXPECT_EQ(palette.GetSortedPosition(0), 0);
    EXPECT_EQ(palette.GetSortIndex(0), 0);
    EXPECT_EQ(palette.GetNextAvailableSymbol(), "!");
    EXPECT_EQ(palette.GetBlendManufID(1), "0");
    EXPECT_EQ(palette.GetNonRepDesc(1), "");
    EXPECT_EQ(palette.GetManufShortDesc(0), "");
    EXPECT_EQ(palette.GetPaletteImage(1), -1);
    EXPECT_FALSE(palette.IsBlended(1));
    EXPECT_THROW((void)palette.GetEntry(1), std::out_of_range);
}

// --- Adding -------------------------------------------------------------------------------------

TEST_F(PaletteTest, AddFillsAnEntry) {
    palette.SetChanged(false);
    EXPECT_EQ(palette.AddPaletteEntry(0x00332211, "321", "red", "DMC", "R", 3, 0, 7, 12, 2, ""),
              PaletteAdded);
    const PaletteEntry& entry = palette.GetEntry(1);
    EXPECT_EQ(entry.RGB, 0x00332211U);
    EXPECT_EQ(entry.FlossID.Padded(), "321       ");
    EXPECT_EQ(entry.DisplayDescription, entry.Description);
    EXPECT_EQ(entry.Symbol, 'R');
    EXPECT_EQ(entry.StitchStrands, 3);
    EXPECT_EQ(entry.BackStitchStrands, 2);
    EXPECT_EQ(entry.EntryTag, 7);
    EXPECT_EQ(entry.MasterID, 12);
    EXPECT_EQ(entry.DefaultBSType, 2);
    EXPECT_EQ(entry.IsBlended, 0);
    EXPECT_EQ(entry.NonRepDesc.Text(), "Black");
    EXPECT_EQ(palette.GetManufLongDesc(1), "DMC");
    EXPECT_EQ(palette.GetSelectedEntry(), 1);
    EXPECT_EQ(palette.GetPaletteImage(1), -1);
    EXPECT_TRUE(palette.IsChanged());
}

TEST_F(PaletteTest, AnEmptySymbolIsAskedForBeforeAnythingGrows) {
    FixedSymbol door("Qx");
    context.Symbols = &door;
    EXPECT_EQ(AddFloss(palette, 0, "1", "d", ""), PaletteAdded);
    EXPECT_EQ(palette.GetFlossSymbol(1), 'Q');
    EXPECT_THAT(door.CountsSeen, testing::ElementsAre(0));
}

TEST_F(PaletteTest, CancellingTheSymbolAddsNothing) {
    AddFloss(palette, 0, "1");
    palette.SetPaletteImage(1, 5);
    FixedSymbol door(std::nullopt);
    context.Symbols = &door;
    EXPECT_EQ(palette.AddPaletteEntry(0, "2", "d", "Anchor", "", 0, 0, 0, 0, 0, ""),
              PaletteAddCancelled);
    EXPECT_EQ(palette.GetEntriesCount(), 1);
    EXPECT_EQ(palette.GetManufacturerCount(), 1);
    EXPECT_EQ(palette.GetSelectedEntry(), 1);
    EXPECT_EQ(palette.GetPaletteImage(1), -1) << "images are built anew after a cancelled add";
}

TEST_F(PaletteTest, WithoutASymbolDoorAnEmptySymbolCountsAsCancelled) {
    EXPECT_EQ(AddFloss(palette, 0, "1", "d", ""), PaletteAddCancelled);
    EXPECT_EQ(palette.GetEntriesCount(), 0);
}

TEST_F(PaletteTest, WithAllSymbolsTakenNobodyIsAskedAndThereIsNone) {
    for (int n = 1; n <= Palette::SymbolCount; ++n) {
        ASSERT_EQ(AddFloss(palette, 0, "1", "d", palette.GetNextAvailableSymbol()), PaletteAdded);
    }
    EXPECT_EQ(palette.GetNextAvailableSymbol(), "");
    FixedSymbol door("Q");
    context.Symbols = &door;
    EXPECT_EQ(AddFloss(palette, 0, "1", "d", ""), PaletteAdded);
    EXPECT_EQ(palette.GetFlossSymbol(201), 0);
    EXPECT_TRUE(door.CountsSeen.empty());
}

TEST_F(PaletteTest, AFailureAfterTheGrowthLeavesTheCountRaised) {
    EXPECT_EQ(palette.AddPaletteEntry(0, "1", "d", "DMC", "A", 40000, 0, 0, 0, 0, ""),
              PaletteAddFailed);
    EXPECT_EQ(palette.GetEntriesCount(), 1);
}

// --- Manufacturers ------------------------------------------------------------------------------

TEST_F(PaletteTest, ManufacturersMatchByTrimmedShortNameInAnyCase) {
    palette.AddPaletteEntry(0, "1", "d", "Anchor", "A", 0, 0, 0, 0, 0, "Anchor Threads");
    palette.AddPaletteEntry(0, "2", "d", " aNCHOR ", "A", 0, 0, 0, 0, 0, "other");
    EXPECT_EQ(palette.GetManufacturerCount(), 1);
    EXPECT_EQ(palette.GetManufLongDesc(2), "Anchor Threads");
}

TEST_F(PaletteTest, ManufacturersStayWhenThePaletteIsCleared) {
    AddFloss(palette, 0, "1");
    palette.SetChanged(false);
    palette.ClearPalette();
    EXPECT_EQ(palette.GetEntriesCount(), 0);
    EXPECT_EQ(palette.GetManufacturerCount(), 1);
    EXPECT_TRUE(palette.IsChanged());
}

// --- Changing and removing ----------------------------------------------------------------------

TEST_F(PaletteTest, ChangeLeavesSymbolDisplayTextAndBlend) {
    AddFloss(palette, 1, "310", "black", "B");
    palette.BlendFloss(1, 2, "321", "DMC", "red", 9);
    palette.SetChanged(false);
    ASSERT_TRUE(palette.ChangePaletteEntry(1, 5, "400", "brown", "Anchor", 77, 4, 1));
    const PaletteEntry& entry = palette.GetEntry(1);
    EXPECT_EQ(entry.RGB, 5U);
    EXPECT_EQ(entry.FlossID.Text(), "400");
    EXPECT_EQ(entry.Description.Text(), "brown");
    EXPECT_EQ(palette.GetManufShortDesc(1), "Anchor");
    EXPECT_EQ(entry.MasterID, 77);
    EXPECT_EQ(entry.StitchStrands, 4);
    EXPECT_EQ(entry.BackStitchStrands, 1);
    EXPECT_EQ(entry.Symbol, 'B');
    EXPECT_EQ(entry.DisplayDescription.Text(), "DMC-310 & DMC-321");
    EXPECT_NE(entry.IsBlended, 0);
    EXPECT_TRUE(palette.IsChanged());
}

TEST_F(PaletteTest, ChangeWith65535KeepsTheStrands) {
    palette.AddPaletteEntry(0, "1", "d", "DMC", "A", 3, 5, 0, 0, 0, "");
    palette.ChangePaletteEntry(1, 0, "1", "d", "DMC", 0, 65535, 65535);
    EXPECT_EQ(palette.GetFlossStitchStrands(1), 3);
    EXPECT_EQ(palette.GetFlossBackStitchStrands(1), 5);
    EXPECT_FALSE(palette.ChangePaletteEntry(2, 0, "1", "d", "DMC", 0, 1, 1));
}

TEST_F(PaletteTest, RemoveMovesLaterEntriesDown) {
    AddFloss(palette, 10, "30");
    AddFloss(palette, 20, "20");
    AddFloss(palette, 30, "10");
    palette.SetPaletteImage(3, 8);
    palette.Sort(SortManufacturerID);
    palette.SetChanged(false);
    palette.RemovePaletteEntry(2);
    ASSERT_EQ(palette.GetEntriesCount(), 2);
    EXPECT_EQ(palette.GetFlossRGB(2), 30U);
    EXPECT_EQ(palette.GetPaletteImage(2), 8);
    EXPECT_EQ(palette.GetSortIndex(1), 2) << "sorted again in the present order";
    EXPECT_TRUE(palette.IsChanged());
    palette.SetChanged(false);
    palette.RemovePaletteEntry(3);
    palette.RemovePaletteEntry(0);
    EXPECT_EQ(palette.GetEntriesCount(), 2);
    EXPECT_FALSE(palette.IsChanged());
}

// --- Blends -------------------------------------------------------------------------------------

TEST_F(PaletteTest, ABlendShowsTheMeanWithHalvesToTheEvenNeighbour) {
    AddFloss(palette, MakeColour(10, 20, 30), "1");
    palette.BlendFloss(1, MakeColour(13, 21, 31), "2", "Anchor", "second", 55);
    EXPECT_EQ(palette.GetFlossRGB(1), MakeColour(12, 20, 30));
    EXPECT_TRUE(palette.IsBlended(1));
    EXPECT_EQ(palette.GetFlossLongDesc(1), "DMC-1 & Anchor-2");
    EXPECT_EQ(palette.GetBlendManufID(1), "2");
    EXPECT_EQ(palette.GetBlendManufShortDesc(1), "Anchor");
    EXPECT_EQ(palette.GetEntry(1).BlendMasterID, 55);
}

TEST_F(PaletteTest, TheTextOfABlendIsCutAtThirtyCharacters) {
    palette.AddPaletteEntry(0, "1234567890", "d", "Abcdefghij", "A", 0, 0, 0, 0, 0, "");
    palette.BlendFloss(1, 0, "0987654321", "Klmnopqrst", "second", 0);
    EXPECT_EQ(palette.GetFlossShortDesc(1), "Abcdefghij-1234567890 & Klmnop");
}

TEST_F(PaletteTest, RemoveBlendLeavesTheSecondThreadsNameAndIdentity) {
    AddFloss(palette, 1, "1", "primary");
    palette.BlendFloss(1, 3, "2", "DMC", "second", 55);
    palette.SetChanged(false);
    palette.RemoveBlend(1);
    const PaletteEntry& entry = palette.GetEntry(1);
    EXPECT_EQ(palette.GetFlossRGB(1), 1U);
    EXPECT_EQ(entry.DisplayDescription.Text(), "primary");
    EXPECT_EQ(entry.BlendRGB, 0U);
    EXPECT_EQ(entry.BlendFlossID.Text(), "");
    EXPECT_EQ(entry.BlendManufacturerIndex, 0);
    EXPECT_EQ(entry.BlendDescription.Text(), "second");
    EXPECT_EQ(entry.BlendMasterID, 55);
    EXPECT_TRUE(palette.IsChanged());
}

TEST_F(PaletteTest, ADisplayOfEightBitsMarksTheColour) {
    AddFloss(palette, MakeColour(1, 2, 3), "1");
    context.ColorDepth = 8;
    EXPECT_EQ(palette.GetFlossRGB(1), 0x2000000U | MakeColour(1, 2, 3));
    palette.BlendFloss(1, MakeColour(3, 4, 5), "2", "DMC", "", 0);
    EXPECT_EQ(palette.GetFlossRGB(1), 0x2000000U | MakeColour(2, 3, 4));
    context.ColorDepth = 16;
    EXPECT_EQ(palette.GetFlossRGB(1), MakeColour(2, 3, 4));
}

// --- Fields -------------------------------------------------------------------------------------

TEST_F(PaletteTest, LongDescriptionJoinsNumberAndTextOnlyIfBothAreThere) {
    AddFloss(palette, 0, "12", "");
    AddFloss(palette, 0, "", "plain");
    AddFloss(palette, 0, "12", "both");
    EXPECT_EQ(palette.GetFlossLongDesc(1), "12");
    EXPECT_EQ(palette.GetFlossLongDesc(2), "plain");
    EXPECT_EQ(palette.GetFlossLongDesc(3), "12 - both");
    EXPECT_EQ(palette.GetFlossLongDesc(4), "");
}

TEST_F(PaletteTest, SomeSettersMarkThePaletteChanged) {
    AddFloss(palette, 0, "1");
    const auto marks = [this](const std::function<void()>& set) {
        palette.SetChanged(false);
        set();
        return palette.IsChanged();
    };
    EXPECT_TRUE(marks([this] { palette.SetFlossSymbol(1, "Z"); }));
    EXPECT_TRUE(marks([this] { palette.SetDefaultBSType(1, 3); }));
    EXPECT_TRUE(marks([this] { palette.SetFlossStrands(1, 1, 1); }));
    EXPECT_TRUE(marks([this] { palette.SetFlossManuIDs(1, "2"); }));
    EXPECT_TRUE(marks([this] { palette.SetFlossDesc(1, "t"); }));
    EXPECT_TRUE(marks([this] { palette.SetSymbolFont("Arial", false, false); }));
    EXPECT_FALSE(marks([this] { palette.SetFlossRGB(1, 5); }));
    EXPECT_FALSE(marks([this] { palette.SetFlossMasterID(1, 5); }));
    EXPECT_FALSE(marks([this] { palette.SetNonRepColor(1, 5); }));
    EXPECT_FALSE(marks([this] { palette.SetNonRepDesc(1, "Gold"); }));
    EXPECT_FALSE(marks([this] { palette.SetFlossSymbol(1, ""); }));
    EXPECT_FALSE(marks([this] { palette.SetFlossDesc(2, "outside"); }));
    EXPECT_EQ(palette.GetFlossSymbol(1), 'Z');
    EXPECT_EQ(palette.GetDefaultBSType(1), 3);
    EXPECT_EQ(palette.GetManufID(1), "2");
    EXPECT_EQ(palette.GetFlossRGB(1), 5U);
    EXPECT_EQ(palette.GetFlossMasterID(1), 5);
    EXPECT_EQ(palette.GetNonRepColor(1), 5U);
    EXPECT_EQ(palette.GetNonRepDesc(1), "Gold");
}

TEST_F(PaletteTest, SymbolFontAsksForItsCharacterSet) {
    context.FontCharSet = [](const std::string& name) { return name == "Wingdings" ? 2 : 0; };
    palette.SetSymbolFont("Wingdings", true, false);
    EXPECT_EQ(palette.GetFontCharSet(), 2);
    EXPECT_EQ(palette.GetFontName(), "Wingdings");
    EXPECT_TRUE(palette.GetFontBold());
    EXPECT_FALSE(palette.GetFontItalic());
}

} // namespace
} // namespace zol
