// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Flosses that leave a palette or give way to others, with their stitches.

#include <gmock/gmock.h>

#include <algorithm>

#include "flosses/editing/PaletteEditorTest.h"

namespace zol::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string ReplaceText(int stitches) {
    return "The Floss you are about to change the color of " + std::to_string(stitches) +
           " stitches in your current pattern.  \nDo you wish to continue?";
}

// --- Removing -----------------------------------------------------------------------------------

TEST_F(PaletteEditorTest, TheLastFlossStays) {
    while (Flosses().GetEntriesCount() > 1) {
        pattern->RemoveColor(2, Pattern::WholePattern, 0, 0, 0);
    }
    PaletteEditor editor = Editor(1);
    EXPECT_FALSE(editor.Remove());
    EXPECT_THAT(user.ToldTexts(), ElementsAre("Your palette must contain at least one color"));
    EXPECT_EQ(user.told.front().title, "Remove Floss");
    EXPECT_EQ(user.told.front().icon, MessageIcon::Information);
    pattern->DeleteStitch(1, 1, Pattern::Everything);
    pattern->DeleteStitch(5, 5, Pattern::Everything);
    EXPECT_FALSE(editor.Remove());
    EXPECT_THAT(dialogs.removals, IsEmpty());
}

TEST_F(PaletteEditorTest, AnUnusedFlossGoesWithoutAQuestion) {
    PaletteEditor editor = Editor(4);
    EXPECT_TRUE(editor.Remove());
    EXPECT_THAT(dialogs.removals, IsEmpty());
    EXPECT_THAT(user.asked, IsEmpty());
    EXPECT_EQ(Flosses().GetEntriesCount(), 3);
    EXPECT_EQ(editor.SelectedFloss(), 3);
}

TEST_F(PaletteEditorTest, ACancelledRemovalLeavesEverything) {
    PaletteEditor editor = Editor(1);
    EXPECT_FALSE(editor.Remove());
    ASSERT_EQ(dialogs.removals.size(), 1U);
    EXPECT_EQ(dialogs.removals[0].Entry, 1);
    EXPECT_EQ(dialogs.removals[0].Closest, Flosses().GetClosest(Flosses().GetFlossRGB(1), 1));
    EXPECT_EQ(dialogs.removals[0].Text,
              "There are currently 3 stitches of this color in your pattern.");
    EXPECT_TRUE(IsUntouched());
}

TEST_F(PaletteEditorTest, AFlossOfLinesAloneIsInUse) {
    pattern->DeleteStitch(1, 1, Pattern::Everything);
    pattern->DeleteStitch(5, 5, Pattern::Everything);
    PaletteEditor editor = Editor(1);
    EXPECT_FALSE(editor.Remove());
    EXPECT_EQ(dialogs.removals.size(), 1U);
}

TEST_F(PaletteEditorTest, RemovalDropsTheStitches) {
    dialogs.removal = RemovalAnswer::DeleteStitches;
    PaletteEditor editor = Editor(1);
    EXPECT_TRUE(editor.Remove());
    EXPECT_EQ(pattern->GetStitchCount(1, 1), 0);
    EXPECT_EQ(pattern->GetBackStitchCount(), 0);
    EXPECT_EQ(FlossAt(2, 2), 1);
    EXPECT_EQ(Flosses().GetFlossShortDesc(1), "green");
}

TEST_F(PaletteEditorTest, RemovalGivesTheStitchesToTheClosest) {
    dialogs.removal = RemovalAnswer::ReplaceStitches;
    const int closest = Flosses().GetClosest(Flosses().GetFlossRGB(1), 1);
    const std::string name = Flosses().GetFlossLongDesc(closest);
    PaletteEditor editor = Editor(1);
    EXPECT_TRUE(editor.Remove());
    EXPECT_EQ(Flosses().GetEntriesCount(), 3);
    EXPECT_EQ(Flosses().GetFlossLongDesc(editor.SelectedFloss()), name);
    EXPECT_EQ(FlossAt(1, 1), editor.SelectedFloss());
    EXPECT_EQ(pattern->GetBackStitchLine(1).PaletteIndex, editor.SelectedFloss());
}

TEST_F(PaletteEditorTest, InAnAreaTheClosestTakesItsStitchesAlone) {
    dialogs.removal = RemovalAnswer::ReplaceStitches;
    PaletteEditor editor = Editor(1, true);
    EXPECT_TRUE(editor.Remove());
    EXPECT_EQ(Flosses().GetEntriesCount(), 4);
    EXPECT_NE(FlossAt(1, 1), 1);
    EXPECT_EQ(FlossAt(5, 5), 1);
}

// --- Replacing by an entry ----------------------------------------------------------------------

TEST_F(PaletteEditorTest, ReplacingByAnEntryAboveSelectsItAfterTheShift) {
    dialogs.replacement = ReplacementAnswer{4};
    user.answers = {MessageAnswer::Yes};
    PaletteEditor editor = Editor(1);
    EXPECT_TRUE(editor.Replace());
    EXPECT_THAT(user.AskedTexts(), ElementsAre(ReplaceText(3)));
    EXPECT_EQ(user.asked.front().title, "Replace Floss Color");
    EXPECT_EQ(Flosses().GetEntriesCount(), 3);
    EXPECT_EQ(editor.SelectedFloss(), 3);
    EXPECT_EQ(Flosses().GetFlossShortDesc(3), "blue");
    EXPECT_EQ(FlossAt(1, 1), 3);
    EXPECT_EQ(FlossAt(5, 5), 3);
    EXPECT_EQ(FlossAt(2, 2), 1);
    EXPECT_EQ(FlossAt(3, 3), 2);
    EXPECT_EQ(pattern->GetBackStitchLine(1).PaletteIndex, 3);
}

TEST_F(PaletteEditorTest, ReplacingByAnEntryBelow) {
    context.BritishSpelling = true;
    dialogs.replacement = ReplacementAnswer{1};
    user.answers = {MessageAnswer::Yes};
    PaletteEditor editor = Editor(3);
    EXPECT_TRUE(editor.Replace());
    EXPECT_EQ(user.asked.front().text,
              "The Floss you are about to change the colour of 1 stitches in your current "
              "pattern.  \nDo you wish to continue?");
    EXPECT_EQ(user.asked.front().title, "Replace Floss Colour");
    EXPECT_EQ(editor.SelectedFloss(), 1);
    EXPECT_EQ(FlossAt(3, 3), 1);
    EXPECT_EQ(Flosses().GetFlossShortDesc(3), "blue");
}

TEST_F(PaletteEditorTest, ReplacingIsWhatChangingAndRemovingGive) {
    // Every kind of stitch: further ones of a square, knots, lines.
    pattern->SetStitch(7, 7, StitchULQ, 1, 1);
    pattern->SetStitch(7, 7, StitchLRQ, 4, 9);
    pattern->SetStitch(8, 8, StitchFKnot, 1, 5);
    pattern->SetStitch(8, 2, StitchFKnot, 4, 3);
    ByteWriter before;
    ASSERT_EQ(pattern->Save("before", before, 0), 0);
    for (const auto& [from, to] : {std::pair{1, 3}, {4, 2}, {2, 1}}) {
        Pattern stepwise(context);
        const std::vector<std::uint8_t> bytes(before.Bytes().begin(), before.Bytes().end());
        ByteReader reader(bytes);
        ASSERT_EQ(stepwise.Load("stepwise", reader, 0, 0), 0);
        Pattern atOnce(context);
        ByteReader again(bytes);
        ASSERT_EQ(atOnce.Load("stepwise", again, 0, 0), 0);
        stepwise.GetPalette().Sort(1);
        atOnce.GetPalette().Sort(1);
        stepwise.ChangeColor(from, to, Pattern::WholePattern, 0, 0, 0);
        stepwise.RemoveColor(from, Pattern::WholePattern, 0, 0, 0);
        user.answers = {MessageAnswer::Yes};
        dialogs.replacement = ReplacementAnswer{to};
        PaletteEditor editor({atOnce, user, dialogs}, from);
        ASSERT_TRUE(editor.Replace());
        ByteWriter one;
        ByteWriter other;
        ASSERT_EQ(stepwise.Save("same", one, 0), 0);
        ASSERT_EQ(atOnce.Save("same", other, 0), 0);
        EXPECT_TRUE(std::equal(one.Bytes().begin(), one.Bytes().end(), other.Bytes().begin(),
                               other.Bytes().end()))
            << from << " by " << to;
    }
}

TEST_F(PaletteEditorTest, OnlyYesReplaces) {
    dialogs.replacement = ReplacementAnswer{4};
    user.answers = {MessageAnswer::No};
    PaletteEditor editor = Editor(1);
    EXPECT_FALSE(editor.Replace());
    EXPECT_TRUE(IsUntouched());
}

TEST_F(PaletteEditorTest, AFlossIsNotReplacedByItself) {
    dialogs.replacement = ReplacementAnswer{1};
    PaletteEditor editor = Editor(1);
    EXPECT_FALSE(editor.Replace());
    EXPECT_THAT(user.asked, IsEmpty());
}

TEST_F(PaletteEditorTest, AnUnusedFlossIsReplacedWithoutAQuestion) {
    dialogs.replacement = ReplacementAnswer{2};
    PaletteEditor editor = Editor(4);
    EXPECT_TRUE(editor.Replace());
    EXPECT_THAT(user.asked, IsEmpty());
    EXPECT_EQ(Flosses().GetEntriesCount(), 3);
}

TEST_F(PaletteEditorTest, InAnAreaTheOldEntryStays) {
    pattern->DeleteStitch(5, 5, Pattern::Everything);
    dialogs.replacement = ReplacementAnswer{2};
    user.answers = {MessageAnswer::Yes};
    PaletteEditor editor = Editor(1, true);
    EXPECT_TRUE(editor.Replace());
    EXPECT_EQ(Flosses().GetEntriesCount(), 4) << "though no stitches of it remain";
    EXPECT_EQ(FlossAt(1, 1), 2);
    EXPECT_EQ(pattern->GetBackStitchLine(1).PaletteIndex, 2);
    EXPECT_EQ(editor.SelectedFloss(), 2);
}

TEST_F(PaletteEditorTest, InAnAreaStitchesOutsideStay) {
    dialogs.replacement = ReplacementAnswer{4};
    user.answers = {MessageAnswer::Yes};
    PaletteEditor editor = Editor(1, true);
    EXPECT_TRUE(editor.Replace());
    EXPECT_EQ(FlossAt(1, 1), 4);
    EXPECT_EQ(FlossAt(5, 5), 1);
    EXPECT_EQ(editor.SelectedFloss(), 4);
}

// --- Replacing by a floss of the catalogue ------------------------------------------------------

TEST_F(PaletteEditorTest, AnAvailableFlossTurnsTheEntryIntoItself) {
    dialogs.replacement = ReplacementAnswer{};
    user.answers = {MessageAnswer::Yes};
    PaletteEditor editor = Editor(1);
    ASSERT_TRUE(editor.Available().Find("666"));
    EXPECT_TRUE(editor.Replace());
    EXPECT_THAT(user.AskedTexts(), ElementsAre(ReplaceText(2)));
    EXPECT_EQ(dialogs.replacements[0].AvailableRow, 4);
    EXPECT_EQ(Flosses().GetEntriesCount(), 4);
    EXPECT_EQ(Flosses().GetFlossRGB(1), MakeColour(227, 29, 66));
    EXPECT_EQ(Flosses().GetFlossLongDesc(1), "666 - Bright Red");
    EXPECT_EQ(Flosses().GetManufShortDesc(1), "DMC");
    EXPECT_EQ(Flosses().GetFlossMasterID(1), 666);
    EXPECT_EQ(Flosses().GetFlossStitchStrands(1), 2);
    EXPECT_EQ(Flosses().GetFlossBackStitchStrands(1), 1);
    EXPECT_EQ(Flosses().GetFlossSymbol(1), 'R');
    EXPECT_EQ(FlossAt(1, 1), 1);
}

TEST_F(PaletteEditorTest, ABlendKeepsItsSecondThread) {
    dialogs.replacement = ReplacementAnswer{};
    user.answers = {MessageAnswer::Yes};
    PaletteEditor editor = Editor(3);
    ASSERT_TRUE(editor.Available().Find("666"));
    EXPECT_TRUE(editor.Replace());
    EXPECT_TRUE(Flosses().IsBlended(3));
    EXPECT_EQ(Flosses().GetFlossLongDesc(3), "DMC-666 & DMC-B5200");
}

TEST_F(PaletteEditorTest, ADropAsksAsReplacingDoes) {
    user.answers = {MessageAnswer::No, MessageAnswer::Yes};
    PaletteEditor editor = Editor(4);
    ASSERT_TRUE(editor.Available().Find("321"));
    EXPECT_FALSE(editor.DropOn(2));
    EXPECT_THAT(user.AskedTexts(), ElementsAre(ReplaceText(1)));
    EXPECT_TRUE(IsUntouched());
    EXPECT_TRUE(editor.DropOn(2));
    EXPECT_EQ(editor.SelectedFloss(), 2);
    EXPECT_EQ(Flosses().GetFlossLongDesc(2), "321 - Red");
}

TEST_F(PaletteEditorTest, InAnAreaAnAvailableFlossIsAddedAndTakesItsStitches) {
    dialogs.replacement = ReplacementAnswer{};
    user.answers = {MessageAnswer::Yes};
    PaletteEditor editor = Editor(1, true);
    ASSERT_TRUE(editor.Available().Find("666"));
    EXPECT_TRUE(editor.Replace());
    EXPECT_THAT(user.AskedTexts(), ElementsAre(ReplaceText(1))) << "those of the area";
    EXPECT_EQ(Flosses().GetEntriesCount(), 5);
    EXPECT_EQ(FlossAt(1, 1), 5);
    EXPECT_EQ(FlossAt(5, 5), 1);
    EXPECT_EQ(editor.SelectedFloss(), 5);
}

TEST_F(PaletteEditorTest, InAnAreaAFlossThatIsThereIsTheTarget) {
    dialogs.replacement = ReplacementAnswer{};
    user.answers = {MessageAnswer::Yes};
    PaletteEditor editor = Editor(1, true);
    ASSERT_TRUE(editor.Available().Find("310"));
    EXPECT_TRUE(editor.Replace());
    EXPECT_EQ(Flosses().GetEntriesCount(), 4);
    EXPECT_EQ(FlossAt(1, 1), 3);
    EXPECT_THAT(dialogs.symbolsOf, IsEmpty());
}

TEST_F(PaletteEditorTest, InAnAreaACancelledSymbolEndsTheReplacement) {
    dialogs.replacement = ReplacementAnswer{};
    dialogs.symbol = std::nullopt;
    user.answers = {MessageAnswer::Yes};
    PaletteEditor editor = Editor(1, true);
    ASSERT_TRUE(editor.Available().Find("666"));
    EXPECT_FALSE(editor.Replace());
    EXPECT_TRUE(IsUntouched());
}

TEST_F(PaletteEditorTest, InAnAreaWithoutItsStitchesNothingIsAsked) {
    dialogs.replacement = ReplacementAnswer{};
    PaletteEditor editor = Editor(4, true);
    ASSERT_TRUE(editor.Available().Find("310"));
    EXPECT_TRUE(editor.Replace());
    EXPECT_THAT(user.asked, IsEmpty());
    EXPECT_EQ(Flosses().GetEntriesCount(), 4);
}

TEST_F(PaletteEditorTest, ACancelledDialogReplacesNothing) {
    PaletteEditor editor = Editor(1);
    EXPECT_FALSE(editor.Replace());
    EXPECT_TRUE(IsUntouched());
}

TEST_F(PaletteEditorTest, WithoutAnEditBoxTheAreaStaysOff) {
    PaletteEditor editor = Editor(1);
    editor.SetEditBoxOnly(true);
    EXPECT_FALSE(editor.IsEditBoxOnly());
}

} // namespace

} // namespace zol::test
