// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Blocks from elsewhere and the room in the palette.

#include <memory>
#include <string>

#include "EditBoxTest.h"

namespace zol::test {

namespace {

class EditBoxRoomTest : public EditBoxTest {
protected:
    /// A block of a row with `count` flosses that no other block nor the design has, all in use.
    [[nodiscard]] std::shared_ptr<Pattern> BlockOf(int count, int firstNumber) {
        auto block = std::make_shared<Pattern>(context);
        block->Initialize(std::max(count, 2), 2, 12, 12);
        block->GetPalette().ClearPalette();
        AddFlosses(block->GetPalette(), count, firstNumber);
        for (int i = 1; i <= count; ++i) {
            block->SetStitch(i, 1, StitchWhole, i, 0);
        }
        return block;
    }
    static void AddFlosses(Palette& palette, int count, int firstNumber) {
        for (int number = firstNumber; number < firstNumber + count; ++number) {
            palette.AddPaletteEntry(static_cast<Colour>(number * 517), std::to_string(number), "F",
                                    "X", "x", 2, 2, 0, number, 0, "X");
        }
    }
    void FillPaletteUpTo(int count) {
        Palette& palette = pattern.GetPalette();
        AddFlosses(palette, count - palette.GetEntriesCount(), 5000);
        pattern.SetChanged(false);
    }
    void ExpectRefusal(const std::string& needed) {
        ASSERT_EQ(messages.told.size(), 1U);
        EXPECT_EQ(messages.told[0].text, "With these stitches the palette would need " + needed +
                                             " flosses. A palette holds at most 254.");
        EXPECT_EQ(messages.told[0].icon, MessageIcon::Exclamation);
    }
};

} // namespace

TEST_F(EditBoxRoomTest, APasteWhoseFlossesDoNotFitIsRefusedBeforeItFloats) {
    FillPaletteUpTo(252);
    { const UndoStep step(steps, UndoKind::Snapshot, "Center"); }
    box.PastePattern(BlockOf(3, 100), "Paste From");
    ExpectRefusal("255");
    EXPECT_FALSE(box.IsActive());
    EXPECT_FALSE(pattern.IsChanged());
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 252);
    EXPECT_EQ(steps.GetUndoLabel(), "Center");
}

TEST_F(EditBoxRoomTest, ARefusedPasteLeavesWhatFloats) {
    FillPaletteUpTo(250);
    box.PastePattern(BlockOf(2, 100), "Paste");
    pattern.SetChanged(false);
    box.PastePattern(BlockOf(3, 200), "Paste");
    ExpectRefusal("255");
    EXPECT_TRUE(box.HasPattern());
    EXPECT_EQ(box.Content()->GetPatternWidth(), 2);
    EXPECT_FALSE(pattern.IsChanged()) << "nothing has landed";
    box.DropEditBox(false);
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 252);
}

TEST_F(EditBoxRoomTest, APasteThatFillsThePaletteLandsWhole) {
    FillPaletteUpTo(251);
    box.PastePattern(BlockOf(3, 100), "Paste");
    box.DropEditBox(false);
    EXPECT_TRUE(messages.told.empty());
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 254);
    EXPECT_EQ(Floss(3, 1), 254);
    box.PastePattern(BlockOf(3, 100), "Paste");
    EXPECT_TRUE(box.IsActive()) << "the palette has them all";
}

TEST_F(EditBoxRoomTest, FlossesThatNoStitchUsesNeedNoRoom) {
    FillPaletteUpTo(253);
    const std::shared_ptr<Pattern> block = BlockOf(1, 100);
    AddFlosses(block->GetPalette(), 100, 200);
    box.PastePattern(block, "Paste");
    EXPECT_TRUE(box.IsActive());
    EXPECT_TRUE(messages.told.empty());
}

TEST_F(EditBoxRoomTest, FlossesOfLinesNeedRoomToo) {
    FillPaletteUpTo(253);
    const std::shared_ptr<Pattern> block = BlockOf(1, 100);
    AddFlosses(block->GetPalette(), 1, 200);
    block->SetBackstitchLine({1, 1, 1, 1, 1, 9, 2, LineStraight});
    box.PastePattern(block, "Paste");
    ExpectRefusal("255");
    EXPECT_FALSE(box.IsActive());
}

TEST_F(EditBoxRoomTest, AnInsertIsRefusedAndACustomStitchIsNot) {
    FillPaletteUpTo(254);
    box.PickUpSelection(*BlockOf(1, 100), 5, 5);
    ExpectRefusal("255");
    EXPECT_FALSE(box.IsActive());
    box.PickUpSelection(*BlockOf(1, 100), 5, 5, 3);
    box.DropEditBox(false);
    EXPECT_EQ(Floss(5, 5), 3);
}

TEST_F(EditBoxRoomTest, ABlockOfAFullDesignMovesWithinIt) {
    FillPaletteUpTo(254);
    Stitch(4, 4, 254);
    Select({4, 4, 5, 5});
    Drag({4, 4}, {9, 9});
    EXPECT_EQ(Floss(9, 9), 254);
    EXPECT_TRUE(messages.told.empty());
}

} // namespace zol::test
