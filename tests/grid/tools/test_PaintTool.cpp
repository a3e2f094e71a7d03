// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/tools/PaintTool.h"

#include "ToolTest.h"
#include "grid/tools/ColorPickerTool.h"

namespace zol::test {
namespace {

class PaintToolTest : public ToolTest {
protected:
    int painted = 0;
    PaintTool tool{desk, [this] { ++painted; }};

    void Click(int column, int row) {
        tool.Press(Left(column, row));
        tool.Move(Left(column, row));
        tool.Release(Left(column, row));
    }
    /// A ring of whole stitches from (5, 5) to (9, 9).
    void DrawRing() {
        for (int k = 5; k <= 9; ++k) {
            for (const auto& [x, y] : {std::pair{k, 5}, {k, 9}, {5, k}, {9, k}}) {
                pattern.SetStitch(x, y, StitchWhole, 1, 5);
            }
        }
        view.PaintAfresh();
    }
};

TEST_F(PaintToolTest, FillsWhatTheRingEnclosesAtTheRelease) {
    DrawRing();
    choice.CurrentPaletteIndex = 2;
    tool.Press(Left(7, 7));
    tool.Move(Left(7, 7));
    EXPECT_EQ(Kind(7, 7), NoStitch) << "nothing happens before the release";
    tool.Release(Left(7, 7));
    for (int x = 6; x <= 8; ++x) {
        for (int y = 6; y <= 8; ++y) {
            EXPECT_EQ(Floss(x, y), 2);
        }
    }
    pattern.CountStitches();
    EXPECT_EQ(pattern.GetColorCount(0, 2), 9) << "the ring holds";
    EXPECT_EQ(view.redraws, (std::vector<SquareRect>{{6, 6, 8, 8}}));
    EXPECT_EQ(view.timesBusy, 1);
    EXPECT_EQ(view.busyDepth, 0);
    EXPECT_EQ(painted, 1);
    ExpectScreenIsTrue();
}

TEST_F(PaintToolTest, IsOneStepWithASnapshot) {
    DrawRing();
    const auto before = pattern.Cells();
    choice.CurrentPaletteIndex = 3;
    Click(1, 1);
    ASSERT_NE(pattern.Cells(), before);
    EXPECT_EQ(steps.GetUndoLabel(), "Paint");
    steps.PerformUndo();
    EXPECT_EQ(pattern.Cells(), before);
}

TEST_F(PaintToolTest, ErasesTheAreaOfOneFloss) {
    DrawRing();
    pattern.SetStitch(9, 9, StitchFKnot, 2, 9);
    view.PaintAfresh();
    tool.SetErases(true);
    Click(5, 5);
    pattern.CountStitches();
    EXPECT_EQ(pattern.GetColorCount(0, 1), 0);
    EXPECT_TRUE(pattern.FrenchKnots().IsEmpty());
    EXPECT_EQ(view.redraws, (std::vector<SquareRect>{{4, 4, 10, 10}})) << "the knot reached beyond";
    ExpectScreenIsTrue();
}

TEST_F(PaintToolTest, ErasingAnEmptySquareChangesNothingVisible) {
    DrawRing();
    const auto before = pattern.Cells();
    const QImage screen = view.Screen();
    tool.SetErases(true);
    Click(7, 7);
    EXPECT_EQ(pattern.Cells(), before);
    EXPECT_TRUE(view.redraws.empty());
    EXPECT_EQ(view.Screen(), screen);
}

TEST_F(PaintToolTest, FillWithTheSameFlossChangesNothing) {
    DrawRing();
    const auto before = pattern.Cells();
    choice.CurrentStitchType = StitchTBH;
    Click(5, 5);
    EXPECT_EQ(pattern.Cells(), before);
    EXPECT_TRUE(view.redraws.empty());
}

TEST_F(PaintToolTest, ReleaseBesideThePatternIsHarmless) {
    choice.CurrentPaletteIndex = 2;
    Click(7, 7);
    const auto before = pattern.Cells();
    choice.CurrentPaletteIndex = 1;
    for (const bool erases : {false, true}) {
        tool.SetErases(erases);
        for (const auto& [x, y] : {std::pair{0, 5}, {5, 0}, {25, 5}, {5, 25}, {-3, 99}}) {
            Click(x, y);
        }
    }
    EXPECT_EQ(pattern.Cells(), before);
    EXPECT_EQ(painted, 11);
    steps.PerformUndo();
    EXPECT_EQ(Kind(7, 7), NoStitch) << "the last fill can still be undone";
}

TEST_F(PaintToolTest, CustomStitchIsRefusedWithAMessage) {
    choice.CurrentStitchType = StitchCustom;
    Click(7, 7);
    ASSERT_EQ(messages.told.size(), 1U);
    EXPECT_EQ(messages.told[0].text, "Function Not Allowed With Custom Stitches");
    EXPECT_EQ(messages.told[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(Kind(7, 7), NoStitch);
    EXPECT_FALSE(steps.IsAvailable());
    EXPECT_EQ(painted, 0) << "and nothing more";
}

TEST_F(PaintToolTest, LinesStayOverTheFill) {
    DrawRing();
    AddLine(6, 6, 1, 8, 8, 9);
    view.PaintAfresh();
    choice.CurrentPaletteIndex = 4;
    Click(7, 7);
    const QRect square = view.Geometry().PixelsOf({7, 7, 7, 7});
    EXPECT_EQ(view.Screen().pixel(square.center()), 0xFF0000FFU);
    ExpectScreenIsTrue();
}

class ColorPickerToolTest : public ToolTest {
protected:
    std::vector<int> picked;
    ColorPickerTool tool{desk, [this](int floss) { picked.push_back(floss); }};
};

TEST_F(ColorPickerToolTest, PicksTheFirstStitchOfTheSquareAtTheRelease) {
    pattern.SetStitch(3, 3, StitchULQ, 3, 5);
    pattern.SetStitch(3, 3, StitchLRQ, 2, 5);
    tool.Press(Left(3, 3));
    tool.Move(Left(3, 3));
    EXPECT_TRUE(picked.empty());
    tool.Release(Left(3, 3));
    EXPECT_EQ(picked, (std::vector<int>{3}));
}

TEST_F(ColorPickerToolTest, PicksAKnotWhereNothingElseLies) {
    pattern.SetStitch(3, 3, StitchFKnot, 4, 5);
    tool.Release(Left(3, 3));
    EXPECT_EQ(picked, (std::vector<int>{4}));
}

TEST_F(ColorPickerToolTest, ClothAndTheOutsideGiveNothing) {
    for (const auto& [x, y] : {std::pair{5, 5}, {0, 5}, {5, 0}, {25, 5}, {5, 25}, {-9, -9}}) {
        tool.Release(Left(x, y));
    }
    EXPECT_EQ(picked, (std::vector<int>{0, 0, 0, 0, 0, 0}));
}

} // namespace
} // namespace zol::test
