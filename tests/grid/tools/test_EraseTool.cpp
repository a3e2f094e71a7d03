// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/EraseTool.h"

#include "ToolTest.h"
#include "grid/tools/BackstitchTool.h"

namespace zol::test {
namespace {

class EraseToolTest : public ToolTest {
protected:
    EraseToolTest() {
        for (int x = 3; x <= 9; ++x) {
            pattern.SetStitch(x, 5, StitchWhole, 1, 5);
        }
        AddLine(4, 4, 1, 9, 4, 1);
        view.PaintAfresh();
    }

    BackstitchTool lines{desk};
    EraseTool tool{desk, lines};
};

TEST_F(EraseToolTest, BothButtonsEraseStitches) {
    tool.Press(Left(3, 5));
    tool.Move(Left(5, 5));
    tool.Release(Left(5, 5));
    tool.Press(Right(7, 5));
    tool.Release(Right(7, 5));
    for (const int x : {3, 4, 5, 7}) {
        EXPECT_EQ(Kind(x, 5), NoStitch) << x;
    }
    EXPECT_EQ(Kind(6, 5), StitchWhole);
    EXPECT_EQ(steps.GetUndoLabel(), "Erase Stitches");
    EXPECT_EQ(pattern.GetBackStitchCount(), 1);
    ExpectScreenIsTrue();
    steps.PerformUndo();
    EXPECT_EQ(Kind(7, 5), StitchWhole);
    EXPECT_EQ(Kind(5, 5), NoStitch) << "one stroke, one step";
}

TEST_F(EraseToolTest, WhatItErasesIsNotMirrored) {
    mirror.SetMirrorMode(MirrorVertical);
    mirror.SetMirrorCentre(6, 5);
    tool.Press(Left(3, 5));
    tool.Release(Left(3, 5));
    EXPECT_EQ(Kind(3, 5), NoStitch);
    EXPECT_EQ(Kind(9, 5), StitchWhole);
}

TEST_F(EraseToolTest, LeftPressTakesALineAway) {
    tool.TakeLines(true);
    tool.Press(Left(6, 4, 1));
    EXPECT_EQ(pattern.GetBackStitchCount(), 0);
    EXPECT_TRUE(view.lineMenus.empty()) << "without asking";
    tool.Move(Left(6, 5));
    tool.Move(Left(8, 5));
    tool.Release(Left(8, 5));
    EXPECT_EQ(Kind(7, 5), StitchWhole) << "the stitches below stay";
    EXPECT_FALSE(steps.IsAvailable()) << "lines go without a step";
    ExpectScreenIsTrue();
}

TEST_F(EraseToolTest, PressAwayFromLinesTakesNothing) {
    tool.TakeLines(true);
    tool.Press(Left(20, 20));
    tool.Press(Right(20, 20));
    EXPECT_EQ(pattern.GetBackStitchCount(), 1);
    EXPECT_TRUE(view.lineMenus.empty());
}

TEST_F(EraseToolTest, RightPressOnALineOpensItsMenuWithHandlesMeanwhile) {
    pattern.ChangeBSStyle(1, LineDotted);
    tool.TakeLines(true);
    std::optional<OverlayLine> handles;
    view.whileMenuIsOpen = [&] { handles = tool.GetOverlay().Handles; };
    tool.Press(Right(6, 4, 1));
    EXPECT_EQ(view.lineMenus, (std::vector<int>{LineDotted}));
    EXPECT_TRUE(handles.has_value());
    EXPECT_FALSE(tool.GetOverlay().Handles.has_value()) << "they hide when it closes";
    EXPECT_EQ(pattern.GetBackStitchCount(), 1);
}

TEST_F(EraseToolTest, MenuCanDeleteTheLine) {
    tool.TakeLines(true);
    view.whileMenuIsOpen = [&] { lines.DeleteSelected(); };
    tool.Press(Right(6, 4, 1));
    EXPECT_EQ(pattern.GetBackStitchCount(), 0);
    EXPECT_FALSE(tool.GetOverlay().Handles.has_value());
}

} // namespace
} // namespace zol::test
