// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "grid/StitchTransform.h"
#include "grid/basEditBox.h"
#include "model/Pattern.h"

namespace zol {
namespace {

using Op = TransformOperation;

constexpr std::array allOperations{Op::Rotate90, Op::Rotate180, Op::Rotate270, Op::FlipVertical,
                                   Op::FlipHorizontal};

/// A corner quarter, three-quarter or knot position by its corner: what a square of paper that
/// carries it would show after the same turn.
TEST(StitchTransform, QuartersFollowTheirCorners) {
    EXPECT_EQ(StitchTransform::StitchType(StitchULQ, Op::Rotate90), StitchURQ);
    EXPECT_EQ(StitchTransform::StitchType(StitchURQ, Op::Rotate90), StitchLRQ);
    EXPECT_EQ(StitchTransform::StitchType(StitchLRQ, Op::Rotate90), StitchLLQ);
    EXPECT_EQ(StitchTransform::StitchType(StitchULQ, Op::Rotate180), StitchLRQ);
    EXPECT_EQ(StitchTransform::StitchType(StitchULQ, Op::Rotate270), StitchLLQ);
    EXPECT_EQ(StitchTransform::StitchType(StitchUL3Q, Op::FlipVertical), StitchLL3Q);
    EXPECT_EQ(StitchTransform::StitchType(StitchUL3Q, Op::FlipHorizontal), StitchUR3Q);
    EXPECT_EQ(StitchTransform::StitchType(StitchTBH, Op::Rotate90), StitchBTH);
    EXPECT_EQ(StitchTransform::StitchType(StitchTBH, Op::Rotate180), StitchTBH);
}

TEST(StitchTransform, FourQuarterTurnsAndTwoFlipsChangeNothing) {
    for (int kind = 1; kind <= 12; ++kind) {
        int turned = kind;
        for (int i = 0; i < 4; ++i) {
            turned = StitchTransform::StitchType(turned, Op::Rotate90);
        }
        EXPECT_EQ(turned, kind);
        for (const Op flip : {Op::FlipVertical, Op::FlipHorizontal}) {
            EXPECT_EQ(StitchTransform::StitchType(StitchTransform::StitchType(kind, flip), flip),
                      kind);
        }
    }
    for (int position = 1; position <= 9; ++position) {
        EXPECT_EQ(StitchTransform::Position(StitchTransform::Position(position, Op::Rotate90),
                                            Op::Rotate270),
                  position);
    }
}

TEST(StitchTransform, KindsWithoutARowKeepTheirKind) {
    for (const int kind : {13, 14, 15, 200, 255, 0}) {
        for (const Op operation : allOperations) {
            EXPECT_EQ(StitchTransform::StitchType(kind, operation), kind);
        }
    }
}

TEST(StitchTransform, PositionsTurnClockwise) {
    EXPECT_EQ(StitchTransform::Position(1, Op::Rotate90), 3);
    EXPECT_EQ(StitchTransform::Position(2, Op::Rotate90), 6);
    EXPECT_EQ(StitchTransform::Position(1, Op::Rotate180), 9);
    EXPECT_EQ(StitchTransform::Position(2, Op::FlipVertical), 8);
    EXPECT_EQ(StitchTransform::Position(2, Op::FlipHorizontal), 2);
    for (const Op operation : allOperations) {
        EXPECT_EQ(StitchTransform::Position(5, operation), 5);
    }
}

TEST(StitchTransform, OvalKnotsTurnWithTheBlock) {
    EXPECT_EQ(StitchTransform::Orientation(KnotHorizontalOval, Op::Rotate90), KnotVerticalOval);
    EXPECT_EQ(StitchTransform::Orientation(KnotVerticalOval, Op::Rotate270), KnotHorizontalOval);
    EXPECT_EQ(StitchTransform::Orientation(KnotUpperLeftDiagonal, Op::Rotate90),
              KnotUpperRightDiagonal);
    for (int style = KnotNormal; style <= KnotUpperRightDiagonal; ++style) {
        EXPECT_EQ(StitchTransform::Orientation(style, Op::Rotate180), style);
    }
    EXPECT_EQ(StitchTransform::Orientation(KnotHorizontalOval, Op::FlipVertical),
              KnotHorizontalOval);
    EXPECT_EQ(StitchTransform::Orientation(KnotUpperRightDiagonal, Op::FlipHorizontal),
              KnotUpperLeftDiagonal);
    EXPECT_EQ(StitchTransform::Orientation(KnotNormal, Op::Rotate90), KnotNormal);
}

TEST(StitchTransform, QuarterTurnKeepsTheCentreRoundedToEven) {
    const SquareRect turned = StitchTransform::Rect({10, 10, 12, 16}, Op::Rotate90);
    EXPECT_EQ(turned, (SquareRect{8, 12, 14, 14})) << "3 by 7 becomes 7 by 3";
    // Left 10 - 0.5 = 9.5 goes to 10 and top 10 + 0.5 = 10.5 to 10: both to the even neighbour.
    EXPECT_EQ(StitchTransform::Rect({10, 10, 11, 12}, Op::Rotate270), (SquareRect{10, 10, 12, 11}));
    EXPECT_EQ(StitchTransform::Rect({1, 2, 3, 9}, Op::Rotate180), (SquareRect{1, 2, 3, 9}));
}

class BlockTest : public ::testing::Test {
protected:
    BlockTest() { pattern.Initialize(20, 20, 14, 14); }

    ProgramContext context;
    Pattern pattern{context};
};

TEST_F(BlockTest, TurnedBlockCarriesStitchesKnotsAndLines) {
    pattern.SetStitch(5, 5, StitchULQ, 3, 0);
    context.FrenchKnotStyle = KnotHorizontalOval;
    pattern.SetStitch(5, 5, StitchFKnot, 2, 1);
    context.FrenchKnotStyle = KnotNormal;
    pattern.SetBackstitchLine({5, 5, 1, 6, 5, 3, 4, LineDashed});
    basEditBox::TransformArea(pattern, {5, 5, 7, 7}, Op::Rotate90);
    EXPECT_EQ(pattern.GetStitchType(7, 5, 0), StitchURQ);
    EXPECT_EQ(pattern.GetStitchColorIndex(7, 5, 0), 3);
    EXPECT_EQ(pattern.GetStitchType(7, 5, 1), StitchFKnot);
    EXPECT_EQ(pattern.GetFrenchKnotPoint(7, 5, 1), 3);
    EXPECT_EQ(pattern.GetFrenchKnotOrientation(7, 5, 1), KnotVerticalOval);
    ASSERT_EQ(pattern.GetBackStitchCount(), 1);
    EXPECT_EQ(pattern.GetBackStitchLine(1), (BackStitchLine{7, 5, 3, 7, 6, 9, 4, LineDashed}));
    EXPECT_EQ(pattern.GetStitchCount(5, 5), 0);
    EXPECT_EQ(context.FrenchKnotStyle, KnotNormal);
}

TEST_F(BlockTest, CopiedKnotKeepsItsOrientation) {
    context.FrenchKnotStyle = KnotUpperLeftDiagonal;
    pattern.SetStitch(3, 3, StitchFKnot, 2, 9);
    context.FrenchKnotStyle = KnotNormal;
    const Pattern content = basEditBox::PickUpSelection(pattern, {2, 2, 3, 3});
    basEditBox::WriteBack(content, pattern, 10, 10);
    EXPECT_EQ(pattern.GetFrenchKnotPoint(11, 11, 0), 9);
    EXPECT_EQ(pattern.GetFrenchKnotOrientation(11, 11, 0), KnotUpperLeftDiagonal);
}

TEST_F(BlockTest, WriteBackClipsAtTheEdges) {
    for (int x = 1; x <= 4; ++x) {
        pattern.SetStitch(x, 1, StitchWhole, 1, 0);
    }
    const Pattern content = basEditBox::PickUpSelection(pattern, {1, 1, 4, 1});
    basEditBox::WriteBack(content, pattern, 18, 20);
    EXPECT_EQ(pattern.GetStitchType(20, 20, 0), StitchWhole);
    basEditBox::WriteBack(content, pattern, -2, 10);
    EXPECT_EQ(pattern.GetStitchType(1, 10, 0), StitchWhole);
    EXPECT_EQ(pattern.GetStitchType(2, 10, 0), NoStitch);
}

TEST_F(BlockTest, WriteBackAddsTheFlossThatTheTargetLacks) {
    Pattern other(context);
    other.Initialize(3, 3, 14, 14);
    other.GetPalette().AddPaletteEntry(0x112233, "999", "new", "DMC", "!", 2, 2, 0, 4711, 0, "DMC");
    const int newest = other.GetPalette().GetEntriesCount();
    other.SetStitch(1, 1, StitchWhole, newest, 0);
    basEditBox::WriteBack(other, pattern, 2, 2);
    const int floss = pattern.GetStitchPaletteIndex(2, 2);
    EXPECT_EQ(pattern.GetPalette().GetManufID(floss), "999");
}

TEST_F(BlockTest, CustomStitchTakesTheCurrentFloss) {
    pattern.SetStitch(1, 1, StitchWhole, 1, 0);
    pattern.SetStitch(1, 1, StitchFKnot, 2, 5);
    pattern.SetBackstitchLine({1, 1, 1, 1, 1, 9, 3, LineStraight});
    const Pattern content = basEditBox::PickUpSelection(pattern, {1, 1, 1, 1}, 7);
    EXPECT_EQ(content.GetStitchColorIndex(1, 1, 0), 7);
    EXPECT_EQ(content.GetStitchColorIndex(1, 1, 1), 7);
    EXPECT_EQ(content.GetBackStitchLine(1).PaletteIndex, 7);
}

TEST_F(BlockTest, EraseAreaTakesOnlyLinesThatLieInside) {
    pattern.SetBackstitchLine({2, 2, 1, 3, 3, 9, 1, LineStraight});
    pattern.SetBackstitchLine({2, 2, 1, 9, 9, 9, 1, LineStraight});
    pattern.SetStitch(2, 2, StitchWhole, 1, 0);
    basEditBox::EraseArea(pattern, {-5, -5, 4, 4});
    EXPECT_EQ(pattern.GetBackStitchCount(), 1);
    EXPECT_EQ(pattern.GetStitchCount(2, 2), 0);
}

TEST_F(BlockTest, OneSquareIsABlockLikeAnyOther) {
    pattern.SetStitch(4, 4, StitchUL3Q, 2, 0);
    basEditBox::TransformArea(pattern, {4, 4, 4, 4}, Op::FlipHorizontal);
    EXPECT_EQ(pattern.GetStitchType(4, 4, 0), StitchUR3Q);
}

} // namespace
} // namespace zol
