// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/ZoomTool.h"

#include "ToolTest.h"

namespace zol::test {
namespace {

TEST(SelectionFrame, WithoutABoxAllIsZero) {
    SelectionFrame frame;
    EXPECT_EQ(frame.GetEditBoxRect(), (SquareRect{0, 0, 0, 0}));
    EXPECT_FALSE(frame.IsInEditBox(0, 0));
    frame.TrackSelection(4, 4);
    EXPECT_FALSE(frame.IsActive());
}

TEST(SelectionFrame, IsDrawnFromTheAnchorInAnyDirection) {
    SelectionFrame frame;
    frame.StartSelection(10, 10);
    EXPECT_EQ(frame.GetEditBoxRect(), (SquareRect{10, 10, 10, 10}));
    frame.TrackSelection(14, 12);
    EXPECT_EQ(frame.GetEditBoxRect(), (SquareRect{10, 10, 14, 12}));
    frame.TrackSelection(7, 13);
    EXPECT_EQ(frame.GetEditBoxRect(), (SquareRect{7, 10, 10, 13}));
    frame.TrackSelection(9, 2);
    EXPECT_EQ(frame.GetEditBoxRect(), (SquareRect{9, 2, 10, 10}));
}

TEST(SelectionFrame, BoundsAreInside) {
    SelectionFrame frame;
    frame.StartSelection(3, 4);
    frame.TrackSelection(5, 6);
    EXPECT_TRUE(frame.IsInEditBox(3, 4));
    EXPECT_TRUE(frame.IsInEditBox(5, 6));
    EXPECT_FALSE(frame.IsInEditBox(6, 6));
    EXPECT_FALSE(frame.IsInEditBox(5, 3));
}

TEST(SelectionFrame, StaysWhenItIsNoLongerDrawn) {
    SelectionFrame frame;
    frame.StartSelection(3, 4);
    frame.EndSelection();
    frame.TrackSelection(9, 9);
    EXPECT_TRUE(frame.IsActive());
    EXPECT_EQ(frame.GetEditBoxRect(), (SquareRect{3, 4, 3, 4}));
    frame.Clear();
    EXPECT_EQ(frame.GetEditBoxRect(), (SquareRect{0, 0, 0, 0}));
}

class ZoomToolTest : public ToolTest {
protected:
    ZoomTool tool{desk};
};

TEST_F(ZoomToolTest, TheReleaseZoomsToTheFrame) {
    tool.Press(Left(8, 9));
    tool.Move(Left(4, 12));
    EXPECT_EQ(tool.GetOverlay().Frame, (SquareRect{4, 9, 8, 12}));
    tool.Release(Left(4, 12));
    EXPECT_EQ(view.zooms, (std::vector<SquareRect>{{4, 9, 8, 12}}));
    EXPECT_EQ(tool.GetOverlay(), Overlay());
    EXPECT_FALSE(pattern.IsChanged());
}

TEST_F(ZoomToolTest, AClickZoomsToItsSquare) {
    tool.Press(Left(8, 9));
    tool.Release(Left(8, 9));
    EXPECT_EQ(view.zooms, (std::vector<SquareRect>{{8, 9, 8, 9}}));
}

TEST_F(ZoomToolTest, OnlyTheLeftButtonDraws) {
    tool.Press(Right(8, 9));
    tool.Move(Right(10, 10));
    tool.Release(Right(10, 10));
    tool.Move(At(10, 10, PointerButton::None));
    EXPECT_TRUE(view.zooms.empty());
    EXPECT_EQ(view.overlayChanges, 0);
}

TEST_F(ZoomToolTest, AFrameFromOutsideIsCutToThePattern) {
    tool.Press(Left(-3, 30));
    EXPECT_EQ(tool.GetOverlay().Frame, std::nullopt);
    tool.Move(Left(5, 20));
    EXPECT_EQ(tool.GetOverlay().Frame, (SquareRect{1, 20, 5, Size}));
    tool.Release(Left(5, 20));
    EXPECT_EQ(view.zooms, (std::vector<SquareRect>{{1, 20, 5, Size}}));
}

TEST_F(ZoomToolTest, AClickOutsideDoesNothing) {
    tool.Press(Left(Size + 1, 3));
    tool.Release(Left(Size + 1, 3));
    EXPECT_TRUE(view.zooms.empty());
}

TEST_F(ZoomToolTest, CancelTakesTheFrameAway) {
    EXPECT_FALSE(tool.Cancel());
    tool.Press(Left(8, 9));
    EXPECT_TRUE(tool.Cancel());
    EXPECT_EQ(tool.GetOverlay(), Overlay());
    tool.Release(Left(9, 9));
    EXPECT_TRUE(view.zooms.empty());
}

TEST_F(ZoomToolTest, ThePointerIsACross) {
    EXPECT_EQ(tool.Cursor(), GridCursor::Cross);
}

} // namespace
} // namespace zol::test
