// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Flosses that enter a palette, blends, and what is set on the selected floss.

#include <gmock/gmock.h>

#include "flosses/editing/PaletteEditorTest.h"

namespace zol::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* BlendAnyway =
    "Blending cannot be turned on and off only within a selected area.\n"
    "Do you wish to affect this palette entry for the entire pattern?";

// --- Adding -------------------------------------------------------------------------------------

TEST_F(PaletteEditorTest, AddTakesEverythingOfTheSelectedRow) {
    PaletteEditor editor = Editor(1);
    ASSERT_TRUE(editor.Available().Find("321"));
    ASSERT_TRUE(editor.Add());
    ASSERT_EQ(Flosses().GetEntriesCount(), 5);
    EXPECT_EQ(editor.SelectedFloss(), 5);
    EXPECT_EQ(Flosses().GetFlossRGB(5), MakeColour(199, 43, 59));
    EXPECT_EQ(Flosses().GetFlossLongDesc(5), "321 - Red");
    EXPECT_EQ(Flosses().GetManufShortDesc(5), "DMC");
    EXPECT_EQ(Flosses().GetFlossMasterID(5), 321);
    EXPECT_EQ(Flosses().GetFlossStitchStrands(5), context.StitchStrands);
    EXPECT_EQ(Flosses().GetFlossSymbol(5), '!');
    EXPECT_EQ(Flosses().GetDefaultBSType(5), LineStraight);
    EXPECT_THAT(dialogs.symbolsOf, ElementsAre(0));
    EXPECT_EQ(dialogs.looks.front().Description, "321 - Red");
    EXPECT_TRUE(pattern->IsChanged());
    EXPECT_EQ(firstChanges, 1);
}

TEST_F(PaletteEditorTest, AnAddWhoseSymbolIsCancelledChangesNothing) {
    dialogs.symbol = std::nullopt;
    PaletteEditor editor = Editor(2);
    EXPECT_FALSE(editor.Add());
    EXPECT_EQ(Flosses().GetEntriesCount(), 4);
    EXPECT_EQ(editor.SelectedFloss(), 2);
    EXPECT_TRUE(IsUntouched());
}

TEST_F(PaletteEditorTest, AFlossThatIsThereIsRefused) {
    PaletteEditor editor = Editor(1);
    ASSERT_TRUE(editor.Available().Find("666"));
    ASSERT_TRUE(editor.Add());
    EXPECT_FALSE(editor.Add());
    EXPECT_THAT(user.ToldTexts(), ElementsAre("DMC 666 has already been added to your palette."));
    EXPECT_EQ(user.told.front().icon, MessageIcon::Exclamation);
    EXPECT_EQ(Flosses().GetEntriesCount(), 5);
}

TEST_F(PaletteEditorTest, TheFirstThreadOfABlendIsNoDuplicate) {
    PaletteEditor editor = Editor(1);
    ASSERT_TRUE(editor.Available().Find("310"));
    EXPECT_TRUE(editor.Add());
    EXPECT_THAT(user.told, IsEmpty());
    EXPECT_EQ(Flosses().GetManufID(5), "310");
}

TEST_F(PaletteEditorTest, WithoutAMasterIdentityTheTextsRefuse) {
    Flosses().AddPaletteEntry(MakeColour(90, 90, 90), "3", "another", "DMC", "3", 2, 1, 0, 0, 0,
                              "");
    PaletteEditor editor = Editor(1);
    ASSERT_TRUE(editor.Available().Find("3"));
    EXPECT_EQ(editor.FindInPalette(editor.Available().Selected()), 0); // another colour
    EXPECT_FALSE(editor.Add());
    EXPECT_THAT(user.ToldTexts(), ElementsAre("DMC 3 has already been added to your palette."));
}

TEST_F(PaletteEditorTest, FindsARowByMasterIdentityOrColour) {
    PaletteEditor editor = Editor(1);
    EXPECT_EQ(editor.FindInPalette(2), 3); // 310, also where it is blended
    EXPECT_EQ(editor.FindInPalette(1), 0);
    Flosses().SetFlossRGB(4, MakeColour(1, 2, 3));
    EXPECT_EQ(editor.FindInPalette(1), 4);
    Flosses().SetFlossRGB(4, MakeColour(199, 43, 59));
    EXPECT_EQ(editor.FindInPalette(3), 0) << "321 has an identity, and no entry has it";
}

TEST_F(PaletteEditorTest, WithEverySymbolTakenNobodyIsAsked) {
    for (int n = 1; n <= Palette::SymbolCount; ++n) {
        std::string symbol;
        CodePage::AppendUtf8(
            symbol, CodePage::ToUnicode(static_cast<std::uint8_t>(Palette::SymbolCode(n))));
        Flosses().AddPaletteEntry(0, "X", "x", "ABC", symbol, 2, 1, 0, 1000 + n, 0, "");
    }
    PaletteEditor editor = Editor(1);
    ASSERT_TRUE(editor.Available().Find("666"));
    ASSERT_TRUE(editor.Add());
    EXPECT_THAT(dialogs.symbolsOf, IsEmpty());
    EXPECT_EQ(Flosses().GetFlossSymbol(Flosses().GetEntriesCount()), 0);
}

TEST_F(PaletteEditorTest, AFullPaletteTakesNoMore) {
    while (Flosses().GetEntriesCount() < NoFloss - 1) {
        Flosses().AddPaletteEntry(0, "X", "x", "ABC", "x", 2, 1, 0, 0, 0, "");
    }
    PaletteEditor editor = Editor(1);
    EXPECT_FALSE(editor.Add());
    EXPECT_THAT(user.ToldTexts(), ElementsAre("A palette holds at most 254 flosses."));
    EXPECT_EQ(Flosses().GetEntriesCount(), 254);
}

TEST_F(PaletteEditorTest, WithoutACatalogueNothingIsAdded) {
    PaletteEditor editor = Editor(1);
    EXPECT_FALSE(editor.Available().Show("missing.col"));
    EXPECT_EQ(editor.Available().Selected(), 0);
    EXPECT_FALSE(editor.Add());
    EXPECT_FALSE(editor.CanToggleBlend());
    EXPECT_TRUE(IsUntouched());
}

// --- Creating -----------------------------------------------------------------------------------

TEST_F(PaletteEditorTest, CreatesAFlossAndShowsMyColors) {
    dialogs.custom = CustomFloss{MakeColour(10, 20, 30), "M1", "My Teal", true};
    PaletteEditor editor = Editor(1);
    EXPECT_EQ(editor.Available().Catalogues().size(), 1U);
    ASSERT_TRUE(editor.Create());
    EXPECT_THAT(dialogs.maySaveSeen, ElementsAre(true));
    EXPECT_EQ(editor.SelectedFloss(), 5);
    EXPECT_EQ(Flosses().GetFlossLongDesc(5), "M1 - My Teal");
    EXPECT_EQ(Flosses().GetManufShortDesc(5), "CUSTOM");
    EXPECT_EQ(Flosses().GetManufLongDesc(5), "My Colors");
    EXPECT_EQ(Flosses().GetFlossMasterID(5), 0);
    ASSERT_EQ(editor.Available().Catalogues().size(), 2U);
    EXPECT_EQ(editor.Available().Shown(), "my colors.col");
    EXPECT_EQ(editor.Available().Rows().GetFlossDesc(editor.Available().Selected()), "My Teal");
}

TEST_F(PaletteEditorTest, AListThatHasMyColorsStaysWhereItIs) {
    dialogs.custom = CustomFloss{MakeColour(10, 20, 30), "M1", "My Teal", true};
    {
        PaletteEditor first = Editor(1);
        ASSERT_TRUE(first.Create());
    }
    dialogs.custom = CustomFloss{MakeColour(40, 50, 60), "M2", "My Smoke", true};
    PaletteEditor editor = Editor(1);
    ASSERT_TRUE(editor.Available().Find("321"));
    const int selected = editor.Available().Selected();
    ASSERT_TRUE(editor.Create());
    EXPECT_EQ(editor.Available().Shown(), "dmc.col");
    EXPECT_EQ(editor.Available().Selected(), selected);
    EXPECT_EQ(editor.Available().Catalogues().size(), 2U);
    editor.Available().Show("my colors.col");
    EXPECT_EQ(editor.Available().Rows().GetFlossCount(), 2);
}

TEST_F(PaletteEditorTest, ASavedFlossAppearsInMyColorsAndIsSelectedAlsoWithoutANumber) {
    PaletteEditor editor = Editor(1);
    for (const auto& [colour, name] :
         {std::pair(MakeColour(10, 20, 30), "My Teal"), std::pair(MakeColour(1, 2, 3), "My Soot"),
          std::pair(MakeColour(90, 9, 9), "My Rust")}) {
        dialogs.custom = CustomFloss{colour, "", name, true};
        ASSERT_TRUE(editor.Create());
        EXPECT_EQ(editor.Available().Shown(), "my colors.col");
        EXPECT_EQ(editor.Available().Rows().GetFlossDesc(editor.Available().Selected()), name);
    }
    EXPECT_EQ(editor.Available().Rows().GetFlossCount(), 3);
}

TEST_F(PaletteEditorTest, ACreatedFlossNeedNotBeSaved) {
    dialogs.custom = CustomFloss{MakeColour(10, 20, 30), "M1", "My Teal", false};
    PaletteEditor editor = Editor(1);
    ASSERT_TRUE(editor.Create());
    EXPECT_EQ(editor.Available().Shown(), "dmc.col");
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "Flosses" / "My Colors.col"));
}

TEST_F(PaletteEditorTest, ACancelledMixerEndsIt) {
    PaletteEditor editor = Editor(1);
    EXPECT_FALSE(editor.Create());
    EXPECT_TRUE(IsUntouched());
}

TEST_F(PaletteEditorTest, AFlossThatCannotBeSavedIsToldAndUsed) {
    WriteFile(folder.Path() / "Flosses" / "My Colors.col", "no catalogue");
    dialogs.custom = CustomFloss{MakeColour(10, 20, 30), "M1", "My Teal", true};
    PaletteEditor editor = Editor(1);
    EXPECT_TRUE(editor.Create());
    EXPECT_THAT(user.ToldTexts(), ElementsAre("The floss could not be saved to \"My Colors\"."));
    EXPECT_EQ(ReadFile(folder.Path() / "Flosses" / "My Colors.col"), "no catalogue");
    EXPECT_EQ(Flosses().GetEntriesCount(), 5);
}

// --- Blending -----------------------------------------------------------------------------------

TEST_F(PaletteEditorTest, BlendingAsksWithTheCountAndKeepsTheStitches) {
    user.answers = {MessageAnswer::Yes};
    PaletteEditor editor = Editor(1);
    ASSERT_TRUE(editor.Available().Find("666"));
    ASSERT_TRUE(editor.ToggleBlend());
    EXPECT_THAT(user.AskedTexts(),
                ElementsAre("You are about to change 2 stitches in your current pattern.  \n"
                            "Do you wish to continue?"));
    EXPECT_EQ(user.asked.front().title, "Blend Floss Color");
    EXPECT_EQ(user.asked.front().buttons, MessageButtons::YesNo);
    EXPECT_TRUE(Flosses().IsBlended(1));
    EXPECT_EQ(Flosses().GetFlossShortDesc(1), "ABC-R1 & DMC-666");
    EXPECT_EQ(Flosses().GetEntry(1).BlendMasterID, 666);
    EXPECT_EQ(FlossAt(1, 1), 1);
}

TEST_F(PaletteEditorTest, OnlyYesBlends) {
    user.answers = {MessageAnswer::No};
    PaletteEditor editor = Editor(1);
    EXPECT_FALSE(editor.ToggleBlend());
    EXPECT_FALSE(Flosses().IsBlended(1));
    EXPECT_TRUE(IsUntouched());
}

TEST_F(PaletteEditorTest, ABlendIsRemoved) {
    context.BritishSpelling = true;
    user.answers = {MessageAnswer::Yes};
    PaletteEditor editor = Editor(3);
    ASSERT_TRUE(editor.ToggleBlend());
    EXPECT_EQ(user.asked.front().title, "Blend Floss Colour");
    EXPECT_FALSE(Flosses().IsBlended(3));
    EXPECT_EQ(Flosses().GetFlossShortDesc(3), "Black");
}

TEST_F(PaletteEditorTest, AnUnusedFlossIsBlendedWithoutAQuestion) {
    PaletteEditor editor = Editor(4);
    EXPECT_TRUE(editor.ToggleBlend());
    EXPECT_THAT(user.asked, IsEmpty());
}

TEST_F(PaletteEditorTest, BlendingInAnAreaIsAskedFirst) {
    user.answers = {MessageAnswer::No};
    PaletteEditor editor = Editor(1, true);
    EXPECT_FALSE(editor.ToggleBlend());
    EXPECT_THAT(user.AskedTexts(), ElementsAre(BlendAnyway));
    user.answers = {MessageAnswer::Yes, MessageAnswer::Yes};
    EXPECT_TRUE(editor.ToggleBlend());
    EXPECT_EQ(user.asked.size(), 3U);
    EXPECT_TRUE(Flosses().IsBlended(1));
}

TEST_F(PaletteEditorTest, NothingIsBlendedWithoutASelectedEntry) {
    PaletteEditor editor = Editor(0, true);
    EXPECT_FALSE(editor.ToggleBlend());
    EXPECT_THAT(user.asked, IsEmpty());
}

// --- The selected floss -------------------------------------------------------------------------

TEST_F(PaletteEditorTest, TextsAndStrandsAreSet) {
    PaletteEditor editor = Editor(2);
    EXPECT_FALSE(editor.SetFlossID("G1"));
    EXPECT_FALSE(editor.SetDescription("green"));
    EXPECT_FALSE(editor.SetStrands(2, 1));
    EXPECT_TRUE(IsUntouched());
    EXPECT_TRUE(editor.SetFlossID("G2"));
    EXPECT_TRUE(editor.SetDescription("grass"));
    EXPECT_TRUE(editor.SetStrands(3, 2));
    EXPECT_EQ(Flosses().GetFlossLongDesc(2), "G2 - grass");
    EXPECT_EQ(Flosses().GetFlossStitchStrands(2), 3);
    EXPECT_EQ(Flosses().GetFlossBackStitchStrands(2), 2);
    EXPECT_EQ(firstChanges, 1) << "told once, before the first change";
}

TEST_F(PaletteEditorTest, ALineStyleAsksForTheLinesThatAreThere) {
    user.answers = {MessageAnswer::No, MessageAnswer::Yes};
    PaletteEditor editor = Editor(1);
    EXPECT_TRUE(editor.SetLineStyle(LineStyleChoices[1]));
    EXPECT_EQ(user.asked.front().text,
              "Would you like to like to change the line style for all  -  R1 - red backstitches "
              "in pattern");
    EXPECT_EQ(user.asked.front().buttons, MessageButtons::YesNo);
    EXPECT_EQ(Flosses().GetDefaultBSType(1), LineSquiggle);
    EXPECT_EQ(pattern->GetBackStitchLine(1).LineStyle, LineStraight);
    EXPECT_TRUE(editor.SetLineStyle(LineStyleChoices[1]));
    EXPECT_EQ(pattern->GetBackStitchLine(1).LineStyle, LineSquiggle);
}

TEST_F(PaletteEditorTest, EachStyleReachesItsLines) {
    for (const LineStyleChoice& choice : LineStyleChoices) {
        user.answers = {MessageAnswer::Yes};
        PaletteEditor editor = Editor(1);
        EXPECT_TRUE(editor.SetLineStyle(choice));
        EXPECT_EQ(Flosses().GetDefaultBSType(1), choice.Style) << choice.Key;
        EXPECT_EQ(pattern->GetBackStitchLine(1).LineStyle, choice.Style) << choice.Key;
    }
}

TEST_F(PaletteEditorTest, NonRepresentativeColoursCountAsAChange) {
    PaletteEditor editor = Editor(1);
    EXPECT_FALSE(editor.SetNonRep(0, "Black"));
    EXPECT_TRUE(editor.SetNonRep(MakeColour(212, 175, 55), "Gold"));
    EXPECT_EQ(Flosses().GetNonRepColor(1), MakeColour(212, 175, 55));
    EXPECT_EQ(Flosses().GetNonRepDesc(1), "Gold");
    EXPECT_TRUE(pattern->IsChanged());
}

TEST_F(PaletteEditorTest, ASymbolIsChosenForTheSelectedEntry) {
    PaletteEditor editor = Editor(2);
    dialogs.symbol = "G";
    EXPECT_FALSE(editor.ChangeSymbol());
    EXPECT_TRUE(IsUntouched());
    dialogs.symbol = "%";
    EXPECT_TRUE(editor.ChangeSymbol());
    EXPECT_EQ(Flosses().GetFlossSymbol(2), '%');
    EXPECT_THAT(dialogs.symbolsOf, ElementsAre(2, 2));
}

TEST_F(PaletteEditorTest, SortingChangesNoDesign) {
    PaletteEditor editor = Editor(1);
    editor.SortPalette(SortDescription);
    EXPECT_EQ(Flosses().GetSortIndex(1), 3);
    EXPECT_TRUE(IsUntouched());
}

} // namespace

} // namespace zol::test
