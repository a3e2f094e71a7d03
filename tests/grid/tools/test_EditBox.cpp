// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Selecting, moving and dropping.

#include "EditBoxTest.h"

namespace zol::test {

TEST_F(EditBoxTest, ADrawnFrameBecomesABoxWithItsContent) {
    Stitch(4, 5, 2);
    RecordingProgress progress;
    context.Progress = &progress;
    modes.Press(Left(6, 8));
    modes.Move(Left(3, 5));
    EXPECT_TRUE(box.IsSelecting());
    EXPECT_EQ(modes.GetOverlay().Frame, (SquareRect{3, 5, 6, 8}));
    EXPECT_EQ(box.Content(), nullptr);
    modes.Release(Left(3, 5));
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{3, 5, 6, 8}));
    ASSERT_NE(box.Content(), nullptr);
    EXPECT_EQ(box.Content()->GetPatternWidth(), 4);
    EXPECT_EQ(box.Content()->GetStitchPaletteIndex(2, 1), 2);
    EXPECT_FALSE(modes.GetOverlay().Content.has_value());
    EXPECT_FALSE(box.HasPattern());
    EXPECT_EQ(progress.started, (std::vector<std::pair<std::string, int>>{{"Selecting Area", 16}}));
    EXPECT_EQ(progress.stopped, 1);
    context.Progress = nullptr;
}

TEST_F(EditBoxTest, ProgressStepsEveryTenth) {
    RecordingProgress progress;
    context.Progress = &progress;
    Select({1, 1, 20, 10});
    EXPECT_EQ(progress.updates, (std::vector<int>{20, 40, 60, 80, 100, 120, 140, 160, 180, 200}));
    context.Progress = nullptr;
}

TEST_F(EditBoxTest, AFrameThatReachesOutIsCutAndOneOutsideIsGone) {
    modes.Press(Left(-3, 20));
    modes.Move(Left(4, 22));
    modes.Release(Left(4, 22));
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{1, 20, 4, 22}));
    modes.Press(Left(30, 30));
    modes.Release(Left(30, 30));
    EXPECT_FALSE(box.IsActive());
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{0, 0, 0, 0}));
}

TEST_F(EditBoxTest, OtherButtonsDoNothing) {
    modes.Press(Right(3, 3));
    modes.Move(Right(6, 6));
    modes.Release(Right(6, 6));
    EXPECT_FALSE(box.IsActive());
}

TEST_F(EditBoxTest, ABoxThatWasNeverMovedChangesNothing) {
    Stitch(4, 4, 1);
    pattern.SetChanged(false);
    const Twin before(pattern);
    Select({3, 3, 6, 6});
    modes.Press(Left(10, 10));
    EXPECT_FALSE(pattern.IsChanged());
    EXPECT_FALSE(steps.IsAvailable());
    EXPECT_EQ(Kind(4, 4), StitchWhole);
}

TEST_F(EditBoxTest, AClickIntoASelectionIsNoStep) {
    Stitch(4, 4, 1);
    { const UndoStep step(steps, UndoKind::Snapshot, "Center"); }
    pattern.SetChanged(false);
    Select({3, 3, 6, 6});
    modes.Press(Left(4, 4));
    EXPECT_TRUE(box.IsLifted());
    modes.Release(Left(4, 4));
    EXPECT_FALSE(box.IsActive());
    EXPECT_EQ(steps.GetUndoLabel(), "Center");
    EXPECT_FALSE(pattern.IsChanged());
}

TEST_F(EditBoxTest, AOneSquareBoxMovesLikeAnyOther) {
    Stitch(4, 4, 2);
    modes.Press(Left(4, 4));
    modes.Release(Left(4, 4));
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{4, 4, 4, 4}));
    Drag({4, 4}, {9, 7});
    EXPECT_EQ(Kind(4, 4), NoStitch);
    EXPECT_EQ(Floss(9, 7), 2);
    EXPECT_FALSE(box.IsActive());
    ExpectScreenIsTrue();
}

TEST_F(EditBoxTest, TheDesignChangesOnlyAtTheDrop) {
    Stitch(4, 4, 2);
    AddLine(4, 4, 1, 5, 5, 9);
    Select({4, 4, 6, 6});
    const Twin before(pattern);
    const auto bytes = pattern.Lines();
    modes.Press(Left(5, 5));
    modes.Move(Left(10, 5));
    EXPECT_TRUE(box.HasPattern());
    EXPECT_EQ(Floss(4, 4), 2);
    EXPECT_EQ(pattern.Lines(), bytes);
    const Overlay overlay = modes.GetOverlay();
    ASSERT_TRUE(overlay.Content.has_value());
    EXPECT_EQ(overlay.Content->At, (SquarePos{9, 4}));
    EXPECT_EQ(overlay.Frame, (SquareRect{9, 4, 11, 6}));
    modes.Release(Left(10, 5));
    EXPECT_EQ(Kind(4, 4), NoStitch);
    EXPECT_EQ(Floss(9, 4), 2);
    ASSERT_EQ(pattern.GetBackStitchCount(), 1);
    EXPECT_EQ(pattern.GetBackStitchLine(1).StartX, 9);
    EXPECT_TRUE(pattern.IsChanged());
    EXPECT_EQ(steps.GetUndoLabel(), "Move Section");
    EXPECT_FALSE(modes.GetOverlay().Content.has_value());
    ExpectScreenIsTrue();
    steps.PerformUndo();
    EXPECT_EQ(Floss(4, 4), 2);
    EXPECT_EQ(Kind(9, 4), NoStitch);
    EXPECT_EQ(pattern.Lines(), bytes);
}

TEST_F(EditBoxTest, ADragStopsAtTheEdgeAndThePointerRunsOnAlone) {
    Stitch(20, 10, 1);
    Select({18, 9, 20, 11});
    modes.Press(Left(19, 10));
    modes.Move(Left(23, 10));
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{22, 9, 24, 11}));
    modes.Move(Left(24, 10));
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{22, 9, 24, 11}));
    modes.Move(Left(23, 10));
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{22, 9, 24, 11}));
    modes.Move(Left(22, 10));
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{21, 9, 23, 11}));
    modes.Move(Left(1, 1));
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{1, 1, 3, 3}));
    modes.Move(Left(1, 2));
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{1, 1, 3, 3}));
    modes.Move(Left(2, 3));
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{1, 2, 3, 4}));
    modes.Release(Left(2, 3));
    EXPECT_EQ(Floss(3, 3), 1);
    EXPECT_EQ(Kind(20, 10), NoStitch);
}

TEST_F(EditBoxTest, EachMoveOfTheBoxAsksForTheViewToFollow) {
    Select({3, 3, 5, 5});
    modes.Press(Left(4, 4));
    modes.Move(Left(6, 4));
    modes.Move(Left(6, 4));
    EXPECT_EQ(view.scrolledTo, (std::vector<SquareRect>{{5, 3, 7, 5}}));
    EXPECT_TRUE(view.redraws.empty());
}

TEST_F(EditBoxTest, ThePointerShowsWhatAPressWouldDo) {
    Select({3, 3, 5, 5});
    EXPECT_EQ(view.cursors.back(), GridCursor::Move);
    modes.Move(At(8, 8, PointerButton::None));
    EXPECT_EQ(view.cursors.back(), GridCursor::Cross);
    modes.Move(At(3, 5, PointerButton::None));
    EXPECT_EQ(view.cursors.back(), GridCursor::Move);
    EXPECT_EQ(modes.Cursor(), GridCursor::Move);
    modes.Press(Left(10, 10));
    EXPECT_EQ(view.cursors.back(), GridCursor::Cross);
}

TEST_F(EditBoxTest, EscapeCallsADragOffAndThenDropsTheBox) {
    Stitch(4, 4, 2);
    const Twin before(pattern);
    Select({3, 3, 5, 5});
    modes.Press(Left(4, 4));
    modes.Move(Left(12, 12));
    modes.Escape();
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{3, 3, 5, 5}));
    EXPECT_FALSE(box.HasPattern());
    modes.Release(Left(12, 12));
    EXPECT_TRUE(box.IsActive());
    modes.Escape();
    EXPECT_FALSE(box.IsActive());
    EXPECT_EQ(modes.GetDrawMode(), DrawEditBox);
    EXPECT_EQ(Floss(4, 4), 2);
    modes.Escape();
    EXPECT_EQ(modes.GetDrawMode(), DrawStitches);
}

TEST_F(EditBoxTest, AChangeOfToolDuringADragLeavesTheSquaresWhereTheyWere) {
    Stitch(4, 4, 2);
    Select({3, 3, 5, 5});
    modes.Press(Left(4, 4));
    modes.Move(Left(12, 12));
    modes.SetDrawMode(DrawStitches);
    EXPECT_FALSE(box.IsActive());
    EXPECT_EQ(Floss(4, 4), 2);
    EXPECT_EQ(Kind(12, 12), NoStitch);
}

TEST_F(EditBoxTest, AChangeOfToolLandsWhatFloats) {
    Stitch(4, 4, 2);
    Select({3, 3, 5, 5});
    box.TransformEditBox(TransformOperation::FlipHorizontal);
    EXPECT_EQ(Kind(4, 4), NoStitch);
    modes.SetDrawMode(DrawLines);
    EXPECT_EQ(Floss(4, 4), 2);
    EXPECT_FALSE(box.IsActive());
}

TEST_F(EditBoxTest, ArrowsLiftTheSelectionOnceAndMoveIt) {
    Stitch(4, 4, 2);
    Stitch(7, 4, 1);
    const Twin before(pattern);
    Select({4, 4, 5, 5});
    modes.Nudge(1, 0);
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{5, 4, 6, 5}));
    EXPECT_EQ(Kind(4, 4), NoStitch);
    EXPECT_EQ(steps.GetUndoLabel(), "Move Section");
    modes.Nudge(1, 0);
    modes.Nudge(0, -1);
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{6, 3, 7, 4}));
    EXPECT_EQ(Floss(7, 4), 1) << "nothing has landed yet";
    modes.Confirm();
    EXPECT_FALSE(box.IsActive());
    EXPECT_EQ(Floss(6, 3), 2);
    EXPECT_EQ(Floss(7, 4), 1);
    ExpectScreenIsTrue();
    steps.PerformUndo();
    EXPECT_EQ(Floss(4, 4), 2);
    EXPECT_EQ(Kind(6, 3), NoStitch);
}

TEST_F(EditBoxTest, AnArrowAgainstTheEdgeDoesNothing) {
    Select({1, 1, 3, 3});
    modes.Nudge(-1, 0);
    EXPECT_FALSE(box.HasPattern());
    EXPECT_FALSE(steps.IsAvailable());
}

TEST_F(EditBoxTest, SelectAllTakesWhatIsStitched) {
    box.SelectAll();
    EXPECT_FALSE(box.IsActive());
    Stitch(4, 5, 1);
    AddLine(9, 3, 1, 10, 8, 9);
    box.SelectAll();
    EXPECT_EQ(box.GetEditBoxRect(), pattern.GetPatternRect());
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{4, 3, 10, 8}));
    Drag({5, 5}, {6, 5});
    EXPECT_EQ(Floss(5, 5), 1);
    EXPECT_EQ(Kind(4, 5), NoStitch);
}

TEST_F(EditBoxTest, ASelectionKeepsUpWithTheDesignBelowIt) {
    Stitch(4, 4, 1);
    Select({3, 3, 5, 5});
    pattern.ChangeColor(1, 2, 3, 3, 5, 5);
    box.RefreshSelection();
    Drag({4, 4}, {8, 8});
    EXPECT_EQ(Floss(8, 8), 2);
    Select({20, 20, 24, 24});
    pattern.Resize(22, 22, 12, 12);
    box.RefreshSelection();
    EXPECT_FALSE(box.IsActive());
}

TEST_F(EditBoxTest, DroppingAddsTheFlossesThatThePatternLacks) {
    box.PickUpSelection(*ForeignBlock(2, 2), 5, 5);
    EXPECT_EQ(view.flossChanges, 0);
    box.DropEditBox(false);
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 5);
    EXPECT_EQ(Floss(5, 5), 5);
    EXPECT_EQ(Floss(6, 6), 5);
    EXPECT_EQ(view.flossChanges, 1);
    ExpectScreenIsTrue();
}

TEST_F(EditBoxTest, ACustomStitchTakesTheCurrentFlossAndAnInsertKeepsItsOwn) {
    const std::shared_ptr<Pattern> source = ForeignBlock(2, 1);
    source->SetBackstitchLine({1, 1, 1, 2, 1, 9, 1, LineStraight});
    modes.SetDrawMode(DrawStitches);
    box.PickUpSelection(*source, 5, 5, 3);
    EXPECT_EQ(box.GetEditBoxRect(), (SquareRect{5, 5, 6, 5}));
    EXPECT_EQ(box.Content()->GetStitchPaletteIndex(1, 1), 3);
    EXPECT_EQ(box.Content()->GetBackStitchLine(1).PaletteIndex, 3);
    box.BeginBoxDrag();
    box.DragEditBox(7, 6);
    EXPECT_TRUE(modes.GetOverlay().Content.has_value());
    box.DropAsStep(UndoKind::CustomStitch, "Custom Stitch");
    EXPECT_FALSE(box.IsActive());
    EXPECT_EQ(Floss(7, 6), 3);
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 4);
    EXPECT_EQ(pattern.GetBackStitchCount(), 1);
    EXPECT_EQ(steps.GetUndoLabel(), "Custom Stitch");
    steps.PerformUndo();
    EXPECT_EQ(Kind(7, 6), NoStitch);
    EXPECT_EQ(pattern.GetBackStitchCount(), 0);
    box.PickUpSelection(*source, 5, 5);
    EXPECT_EQ(box.Content()->GetStitchPaletteIndex(1, 1), 1);
    EXPECT_EQ(box.Content()->GetPalette().GetFlossRGB(1), 0x123456U);
}

TEST_F(EditBoxTest, AFollowerHearsOfBoxAndClipboard) {
    int heard = 0;
    box.SetFollower([&heard] { ++heard; });
    Select({2, 2, 3, 3});
    const int selected = heard;
    EXPECT_GT(selected, 0);
    box.CopyEditBox();
    EXPECT_EQ(heard, selected + 1);
    box.DropEditBox(false);
    EXPECT_EQ(heard, selected + 2);
}

} // namespace zol::test
