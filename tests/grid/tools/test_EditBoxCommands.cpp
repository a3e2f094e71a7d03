// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Clipboard, turning and erasing, and the undo of each.

#include "EditBoxTest.h"

namespace zol::test {

using Op = TransformOperation;

TEST_F(EditBoxTest, CopyKeepsTheContentItselfAndLaterTurnsLeaveItAlone) {
    Stitch(4, 4, 1);
    Select({4, 4, 6, 4});
    box.CopyEditBox();
    box.TransformEditBox(Op::FlipHorizontal);
    EXPECT_EQ(box.Content()->GetStitchPaletteIndex(3, 1), 1);
    box.PasteClipboard();
    EXPECT_EQ(box.Content()->GetStitchPaletteIndex(1, 1), 1) << "as it was copied";
    EXPECT_EQ(Floss(6, 4), 1) << "what floated has landed";
}

TEST_F(EditBoxTest, WithoutABoxNothingHappens) {
    box.CopyEditBox();
    box.CutEditBox();
    box.EraseEditBox();
    box.TransformEditBox(Op::Rotate90);
    box.PasteClipboard();
    box.DropAsStep(UndoKind::Snapshot, "Text");
    EXPECT_FALSE(box.IsClipboardFilled());
    EXPECT_FALSE(box.IsActive());
    EXPECT_FALSE(pattern.IsChanged());
    EXPECT_FALSE(steps.IsAvailable());
}

TEST_F(EditBoxTest, CutAndPasteKeepAKnotsOrientationOnTheCorner) {
    Stitch(5, 5, 1);
    Knot(5, 5, 1, KnotUpperLeftDiagonal);
    Knot(7, 6, 9, KnotVerticalOval);
    const Twin empty(pattern);
    Select({5, 5, 7, 6});
    box.CutEditBox();
    EXPECT_FALSE(box.IsActive());
    EXPECT_EQ(Difference(empty), "");
    EXPECT_EQ(steps.GetUndoLabel(), "Cut");
    ExpectScreenIsTrue();
    view.visible = {10, 10, 20, 20};
    box.PasteClipboard();
    EXPECT_EQ(steps.GetUndoLabel(), "Paste");
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{10, 10, 12, 11}));
    EXPECT_EQ(Difference(empty), "") << "it floats";
    box.DropEditBox(false);
    EXPECT_EQ(Floss(10, 10), 1);
    EXPECT_EQ(pattern.GetFrenchKnotPoint(10, 10, 1), 1);
    EXPECT_EQ(pattern.GetFrenchKnotOrientation(10, 10, 1), KnotUpperLeftDiagonal);
    EXPECT_EQ(pattern.GetFrenchKnotPoint(12, 11, 0), 9);
    EXPECT_EQ(pattern.GetFrenchKnotOrientation(12, 11, 0), KnotVerticalOval);
    EXPECT_EQ(context.FrenchKnotStyle, KnotNormal);
    ExpectScreenIsTrue();
}

TEST_F(EditBoxTest, CutIsUndone) {
    Stitch(5, 5, 1);
    Select({4, 4, 6, 6});
    box.CutEditBox();
    steps.PerformUndo();
    EXPECT_EQ(Floss(5, 5), 1);
    EXPECT_TRUE(box.IsClipboardFilled());
}

TEST_F(EditBoxTest, EraseTakesStitchesAndLinesAndIsUndone) {
    Stitch(5, 5, 1);
    Stitch(8, 5, 2);
    AddLine(5, 5, 1, 6, 6, 9);
    Select({4, 4, 6, 6});
    box.EraseEditBox();
    EXPECT_FALSE(box.IsActive());
    EXPECT_FALSE(box.IsClipboardFilled());
    EXPECT_EQ(Kind(5, 5), NoStitch);
    EXPECT_EQ(Floss(8, 5), 2);
    EXPECT_EQ(pattern.GetBackStitchCount(), 0);
    EXPECT_EQ(steps.GetUndoLabel(), "Erase");
    EXPECT_TRUE(pattern.IsChanged());
    ExpectScreenIsTrue();
    steps.PerformUndo();
    EXPECT_EQ(Floss(5, 5), 1);
    EXPECT_EQ(pattern.GetBackStitchCount(), 1);
}

TEST_F(EditBoxTest, UndoOfAPasteTakesTheFloatingBlockAway) {
    Stitch(5, 5, 1);
    const Twin before(pattern);
    Select({5, 5, 5, 5});
    box.CopyEditBox();
    box.PasteClipboard();
    steps.PerformUndo();
    EXPECT_FALSE(box.IsActive());
    EXPECT_EQ(Floss(5, 5), 1);
    EXPECT_EQ(Kind(1, 1), NoStitch);
    box.PasteClipboard();
    modes.SetDrawMode(DrawEditBox);
    EXPECT_EQ(Floss(1, 1), 1);
    steps.PerformUndo();
    EXPECT_EQ(Kind(1, 1), NoStitch);
}

TEST_F(EditBoxTest, UndoOfAPasteLeavesTheBlockThatLandedBeforeIt) {
    Stitch(5, 5, 1);
    Select({5, 5, 5, 5});
    box.CopyEditBox();
    box.PasteClipboard();
    view.visible = {12, 12, 20, 20};
    box.PasteClipboard();
    EXPECT_EQ(Floss(1, 1), 1);
    steps.PerformUndo();
    EXPECT_EQ(Floss(1, 1), 1);
}

TEST_F(EditBoxTest, APastedBlockTakesTheClothCountsAndStaysInside) {
    view.visible = {20, 22, 24, 24};
    box.PastePattern(ForeignBlock(8, 4), "Paste From");
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{17, 21, 24, 24}));
    EXPECT_EQ(box.Content()->GetPatternClothCountX(), 12);
    EXPECT_EQ(box.Content()->GetPatternClothCountY(), 12);
    EXPECT_TRUE(box.IsPasted());
    EXPECT_TRUE(box.HasPattern());
    EXPECT_TRUE(box.IsLifted());
    EXPECT_EQ(steps.GetUndoLabel(), "Paste From");
    EXPECT_TRUE(messages.told.empty());
}

TEST_F(EditBoxTest, ALargerBlockAsksAndTheDesignGrows) {
    Stitch(24, 24, 2);
    box.PastePattern(ForeignBlock(30, 10), "Paste");
    ASSERT_EQ(messages.told.size(), 1U);
    EXPECT_EQ(messages.told[0].text, "The Copied pattern is larger than your current pattern.\n"
                                     "Do you wish to increase the size of the current pattern?");
    EXPECT_EQ(messages.told[0].icon, MessageIcon::Question);
    EXPECT_EQ(pattern.GetPatternWidth(), 30);
    EXPECT_EQ(pattern.GetPatternHeight(), 24);
    EXPECT_EQ(pattern.GetPatternClothCountX(), 12);
    EXPECT_EQ(view.designChanges, 1);
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{1, 1, 30, 10}));
    EXPECT_EQ(Floss(24, 24), 2);
    steps.PerformUndo();
    EXPECT_EQ(pattern.GetPatternWidth(), 24);
}

TEST_F(EditBoxTest, ALargerBlockWithNoIsCutAtTheDrop) {
    messages.answer = MessageAnswer::No;
    const std::shared_ptr<Pattern> block = ForeignBlock(30, 10);
    block->SetStitch(24, 10, StitchWhole, 1, 0);
    block->SetBackstitchLine({26, 2, 1, 29, 2, 9, 1, LineStraight});
    box.PastePattern(block, "Paste");
    EXPECT_EQ(pattern.GetPatternWidth(), Size);
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{1, 1, 24, 10}));
    modes.Press(Left(3, 3));
    modes.Move(Left(9, 4));
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{1, 2, 24, 11}));
    modes.Release(Left(9, 4));
    EXPECT_EQ(Kind(1, 2), StitchWhole);
    EXPECT_EQ(Kind(24, 11), StitchWhole);
    EXPECT_EQ(pattern.GetBackStitchCount(), 0);
    EXPECT_EQ(pattern.GetPatternWidth(), Size);
}

TEST_F(EditBoxTest, ABlockBeyondAllBoundsIsRefusedWithAMessage) {
    pattern.Resize(10, 20'000, 12, 12);
    box.PastePattern(ForeignBlock(1000, 3), "Paste");
    ASSERT_EQ(messages.told.size(), 2U);
    EXPECT_EQ(messages.told[1].text, "Out of memory");
    EXPECT_EQ(pattern.GetPatternWidth(), 10);
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{1, 1, 10, 3}));
}

TEST_F(EditBoxTest, ADesignWithoutSquaresTakesABlockOnlyIfItGrows) {
    pattern.Resize(24, 0, 12, 12);
    messages.answer = MessageAnswer::No;
    box.PastePattern(ForeignBlock(2, 2), "Paste");
    EXPECT_FALSE(box.IsActive());
    messages.answer = MessageAnswer::Yes;
    box.PastePattern(ForeignBlock(2, 2), "Paste");
    EXPECT_EQ(pattern.GetPatternHeight(), 2);
    EXPECT_TRUE(box.IsActive());
}

TEST_F(EditBoxTest, RotatingThreeBySevenGivesSevenByThreeOnTheSameCentre) {
    Stitch(10, 8, 1);
    Select({10, 8, 12, 14});
    box.TransformEditBox(Op::Rotate90);
    EXPECT_EQ(steps.GetUndoLabel(), "Rotate");
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{8, 10, 14, 12}));
    EXPECT_EQ(Kind(10, 8), NoStitch);
    EXPECT_EQ(box.Content()->GetStitchPaletteIndex(7, 1), 1);
    ExpectScreenIsTrue();
    box.DropEditBox(false);
    EXPECT_EQ(Floss(14, 10), 1);
    ExpectScreenIsTrue();
}

TEST_F(EditBoxTest, TheCentreIsKeptByRoundingHalvesToEven) {
    Select({10, 8, 12, 13});
    box.TransformEditBox(Op::Rotate270);
    // 10 - 1.5 and 8 + 1.5
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{8, 10, 13, 12}));
    box.DropEditBox(true);
    Select({11, 9, 13, 14});
    box.TransformEditBox(Op::Rotate90);
    // 11 - 1.5 and 9 + 1.5
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{10, 10, 15, 12}));
}

TEST_F(EditBoxTest, FlipsAreAStepOfTheirOwnName) {
    Stitch(3, 3, 1, StitchTBH);
    Select({3, 3, 6, 8});
    box.TransformEditBox(Op::FlipVertical);
    EXPECT_EQ(steps.GetUndoLabel(), "Flip");
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{3, 3, 6, 8}));
    EXPECT_EQ(box.Content()->GetStitchType(1, 6, 0), StitchBTH);
    steps.PerformUndo();
    EXPECT_FALSE(box.IsActive());
    EXPECT_EQ(Kind(3, 3), StitchTBH);
}

TEST_F(EditBoxTest, AfterATurnADragErasesNoSecondPlace) {
    Stitch(10, 10, 1);
    Select({10, 10, 12, 12});
    box.TransformEditBox(Op::Rotate180);
    Stitch(11, 11, 3);
    Drag({11, 11}, {16, 11});
    EXPECT_EQ(Floss(11, 11), 3);
    EXPECT_EQ(Floss(17, 12), 1);
    EXPECT_EQ(steps.GetUndoLabel(), "Move Section");
}

TEST_F(EditBoxTest, UndoAfterATurnAndADragBringsTheBlockBackToItsPlace) {
    Stitch(10, 10, 1);
    Select({10, 10, 12, 12});
    box.TransformEditBox(Op::Rotate180);
    Drag({11, 11}, {16, 11});
    EXPECT_EQ(Floss(17, 12), 1);
    steps.PerformUndo();
    EXPECT_EQ(Floss(10, 10), 1);
    EXPECT_EQ(Kind(17, 12), NoStitch);
}

TEST_F(EditBoxTest, ATurnAfterATurnIsUndoneWithoutALoss) {
    Stitch(10, 10, 1);
    Select({10, 10, 12, 11});
    box.TransformEditBox(Op::Rotate90);
    box.TransformEditBox(Op::FlipVertical);
    EXPECT_EQ(steps.GetUndoLabel(), "Flip");
    steps.PerformUndo();
    EXPECT_FALSE(box.IsActive());
    EXPECT_EQ(Floss(10, 10), 1);
    EXPECT_FALSE(steps.IsAvailable());
}

TEST_F(EditBoxTest, FourQuarterTurnsGiveBackTheBlock) {
    Stitch(10, 10, 1, StitchUL3Q);
    Stitch(12, 13, 2, StitchLRQ);
    Knot(11, 11, 3, KnotUpperLeftDiagonal);
    AddLine(10, 10, 1, 12, 12, 6);
    const Twin before(pattern);
    const auto lines = pattern.Lines();
    Select({10, 10, 13, 13});
    for (int turn = 0; turn < 4; ++turn) {
        box.TransformEditBox(Op::Rotate90);
    }
    box.DropEditBox(false);
    EXPECT_EQ(Kind(10, 10), StitchUL3Q);
    EXPECT_EQ(Kind(12, 13), StitchLRQ);
    EXPECT_EQ(pattern.GetFrenchKnotOrientation(11, 11, 0), KnotUpperLeftDiagonal);
    EXPECT_EQ(pattern.Lines(), lines);
}

TEST_F(EditBoxTest, ADragThenATurnThenADrag) {
    Stitch(3, 3, 1);
    Select({3, 3, 4, 5});
    Drag({3, 3}, {8, 3});
    EXPECT_EQ(Floss(8, 3), 1);
    Select({8, 3, 9, 5});
    box.TransformEditBox(Op::Rotate90);
    const SquareRect turned = box.GetEditBoxRect();
    EXPECT_EQ(turned.Right - turned.Left, 2);
    Drag({turned.Left, turned.Top}, {turned.Left, turned.Top + 10});
    EXPECT_EQ(Floss(turned.Right, turned.Top + 10), 1);
    EXPECT_EQ(Kind(8, 3), NoStitch);
    EXPECT_EQ(Kind(3, 3), NoStitch);
    pattern.CountStitches();
    EXPECT_EQ(pattern.GetColorCount(0, 1), 1);
    ExpectScreenIsTrue();
    steps.PerformUndo();
    EXPECT_EQ(Floss(8, 3), 1);
}

TEST_F(EditBoxTest, ABoxThatATurnPushedOutComesBackWithTheDrag) {
    Stitch(1, 1, 1);
    Select({1, 1, 2, 20});
    box.TransformEditBox(Op::Rotate90);
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{-8, 10, 11, 11}));
    EXPECT_EQ(modes.GetOverlay().Content->At, (SquarePos{-8, 10}));
    modes.Press(Left(3, 10));
    modes.Move(Left(4, 10));
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{1, 10, 20, 11}));
    modes.Release(Left(4, 10));
    EXPECT_EQ(Floss(20, 10), 1);
}

TEST_F(EditBoxTest, CutOfAFloatingBlockIsUndoneToBeforeItFloated) {
    Stitch(10, 10, 1);
    Select({10, 10, 12, 12});
    box.TransformEditBox(Op::Rotate90);
    box.CutEditBox();
    EXPECT_EQ(steps.GetUndoLabel(), "Cut");
    EXPECT_EQ(Kind(12, 10), NoStitch);
    steps.PerformUndo();
    EXPECT_EQ(Floss(10, 10), 1);
    box.PasteClipboard();
    EXPECT_EQ(box.Content()->GetStitchPaletteIndex(3, 1), 1);
}

TEST_F(EditBoxTest, AnInsertThatIsTurnedContinuesNoOldStep) {
    Stitch(20, 20, 1);
    {
        const UndoStep step(steps, UndoKind::Snapshot, "Center");
        Stitch(21, 21, 1);
    }
    box.PickUpSelection(*ForeignBlock(2, 2), 3, 3);
    box.TransformEditBox(Op::Rotate90);
    steps.PerformUndo();
    EXPECT_EQ(Floss(21, 21), 1) << "the step before stays done";
    EXPECT_FALSE(box.IsActive());
}

TEST_F(EditBoxTest, TheContentTakesTheHeaderForAFileOfItsOwn) {
    EXPECT_EQ(box.ContentWithHeader(), nullptr);
    PatternHeader header = pattern.GetHeader();
    header.Reserved2 = 0xABCD;
    pattern.Setheader(header);
    Stitch(4, 4, 1);
    Select({4, 4, 5, 5});
    ASSERT_NE(box.ContentWithHeader(), nullptr);
    EXPECT_EQ(box.ContentWithHeader()->GetHeader().Reserved2, 0xABCDU);
    EXPECT_EQ(box.ContentWithHeader()->Save(folder / "block.pat"), 0);
    EXPECT_TRUE(box.IsActive());
}

TEST_F(EditBoxTest, ADesignThatMayNotBeMappedHandsItsIDsOn) {
    pattern.SetNoMapping();
    pattern.AddPatternID(77, "A shop");
    Select({4, 4, 5, 5});
    EXPECT_FALSE(box.Content()->AllowFlossMapping());
    EXPECT_EQ(box.Content()->GetPatternID(1), 77U);
}

} // namespace zol::test
