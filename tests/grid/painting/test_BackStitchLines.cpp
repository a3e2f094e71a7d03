// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/BackStitchLines.h"

#include <algorithm>
#include <random>

#include "grid/painting/GridTestKit.h"
#include "grid/painting/LineIndex.h"
#include "grid/painting/LineShapes.h"
#include "grid/painting/StyledLine.h"

namespace zol {
namespace {

BackStitchLine Line(int x1, int y1, int p1, int x2, int y2, int p2) {
    BackStitchLine line;
    line.StartX = static_cast<std::int16_t>(x1);
    line.StartY = static_cast<std::int16_t>(y1);
    line.StartPos = static_cast<std::int16_t>(p1);
    line.EndX = static_cast<std::int16_t>(x2);
    line.EndY = static_cast<std::int16_t>(y2);
    line.EndPos = static_cast<std::int16_t>(p2);
    return line;
}

class BackStitchTest : public PaintTest {};

TEST(MissesRect, ALineOutsideShowsOnlyIfItHugsTheBorder) {
    const SquareRect rect{3, 3, 6, 6};
    EXPECT_FALSE(MissesRect(Line(7, 3, 1, 7, 5, 7), rect));
    EXPECT_TRUE(MissesRect(Line(7, 3, 2, 7, 5, 8), rect));
    EXPECT_TRUE(MissesRect(Line(7, 3, 1, 7, 5, 8), rect));
    EXPECT_TRUE(MissesRect(Line(8, 3, 1, 8, 5, 7), rect));
    EXPECT_FALSE(MissesRect(Line(2, 3, 3, 2, 5, 9), rect));
    EXPECT_TRUE(MissesRect(Line(2, 3, 1, 2, 5, 7), rect));
    EXPECT_FALSE(MissesRect(Line(3, 7, 1, 5, 7, 3), rect));
    EXPECT_TRUE(MissesRect(Line(3, 7, 4, 5, 7, 6), rect));
    EXPECT_FALSE(MissesRect(Line(3, 2, 7, 5, 2, 9), rect));
    EXPECT_TRUE(MissesRect(Line(3, 2, 4, 5, 2, 9), rect));
    EXPECT_FALSE(MissesRect(Line(1, 1, 1, 9, 9, 9), rect));
    EXPECT_FALSE(MissesRect(Line(6, 6, 5, 12, 6, 5), rect));
}

TEST_F(BackStitchTest, ALineOnTheRectanglesRightBorderIsRepainted) {
    AddLine(6, 2, 1, 6, 9, 7, LineStraight);
    AddLine(6, 12, 2, 6, 19, 8, LineStraight);
    GridView view = View(20, 1);
    QImage image(480, 480, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    painter.PaintImage(image, {0, 0}, view, {1, 1, 5, 24});
    EXPECT_EQ(image.pixel(99, 100), ToRgb(Red));
    EXPECT_NE(image.pixel(99, 310), ToRgb(Red));
}

TEST_F(BackStitchTest, PenWidths) {
    EXPECT_EQ(GetBackStitchPenWidth(View(20, 1)), 6);
    EXPECT_EQ(GetBackStitchPenWidth(View(2, 1)), 1);
}

TEST_F(BackStitchTest, AStraightLineIsExactAcross) {
    AddLine(2, 5, 4, 9, 5, 6, LineStraight);
    const QImage image = Paint(View(20, 1));
    for (int y = 80; y < 100; ++y) {
        EXPECT_EQ(image.pixel(115, y) == ToRgb(Red), y >= 87 && y <= 92) << y;
    }
}

TEST_F(BackStitchTest, BlackLinesAreBlack) {
    AddLine(2, 5, 4, 9, 5, 6, LineStraight);
    GridView view = View(20, 1);
    view.Options.LinesStyle = PaintOptions::BlackLines;
    EXPECT_EQ(Paint(view).pixel(115, 90), 0xFF000000U);
}

TEST_F(BackStitchTest, TheGroundPenHidesWhatLiesBelowABrokenLine) {
    for (int x = 1; x <= 24; ++x) {
        pattern.SetStitch(x, 5, StitchWhole, 2, 5);
    }
    AddLine(1, 5, 4, 24, 5, 6, LineDashed);
    GridView view = View(20, 1);
    view.Options.ClothColor = 0x80E0E0;
    const QImage image = Paint(view);
    EXPECT_EQ(image.pixel(4, 90), ToRgb(Red));
    EXPECT_EQ(image.pixel(26, 90), ToRgb(0x80E0E0)) << "the gap shows the ground";
    EXPECT_EQ(image.pixel(26, 98), ToRgb(Blue));
}

TEST_F(BackStitchTest, EveryStyleHasInkAlongItsLine) {
    for (int style = LineStraight; style <= LinePlus; ++style) {
        for (const int pixels : {2, 5, 12, 40}) {
            for (const bool upright : {false, true}) {
                pattern.Initialize(24, 24, 14, 14);
                AddLine(2, 2, 5, upright ? 2 : 20, upright ? 20 : 2, 5, style, 2);
                GridView view = View(pixels, 1);
                view.Options.GridLines = false;
                EXPECT_GT(InkIn(Paint(view), {0, 0, 24 * pixels, 24 * pixels}), 8)
                    << style << " at " << pixels;
                EXPECT_GT(InkIn(PaintByShapes(view), {0, 0, 24 * pixels, 24 * pixels}), 8)
                    << style << " at " << pixels;
            }
        }
    }
}

TEST_F(BackStitchTest, LinesOfNoLengthDoNoHarm) {
    for (int style = LineStraight; style <= 7; ++style) {
        AddLine(2 + style, 2, 5, 2 + style, 2, 5, style);
    }
    for (const int pixels : {1, 3, 20}) {
        (void)Paint(View(pixels, 1));
        (void)PaintByShapes(View(pixels, 1));
    }
}

TEST_F(BackStitchTest, WithoutAntialiasingPixelsAreFullOrNot) {
    AddLine(2, 2, 1, 11, 20, 9, LineStraight, 3);
    AddLine(12, 2, 1, 20, 20, 9, LineSquiggle, 3);
    GridView view = View(11, 1);
    view.Options.Antialias = false;
    view.Options.GridLines = false;
    const QImage image = Paint(view);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            EXPECT_TRUE(image.pixel(x, y) == White || image.pixel(x, y) == ToRgb(Dark));
        }
    }
}

class LineIndexTest : public ::testing::Test {
protected:
    LineIndexTest() : pattern(context) { pattern.Initialize(300, 200, 14, 14); }

    int Roll(int from, int to) {
        return from + static_cast<int>(random() % static_cast<unsigned>(to - from + 1));
    }

    void AddLines(int count, int reach) {
        for (int i = 0; i < count; ++i) {
            const int x = Roll(1, 300);
            const int y = Roll(1, 200);
            BackStitchLine line =
                Line(x, y, Roll(1, 9), std::clamp(x + Roll(-reach, reach), 1, 300),
                     std::clamp(y + Roll(-reach, reach), 1, 200), Roll(1, 9));
            pattern.AddBackStitchLine(line);
        }
    }

    void ExpectNothingIsMissed() {
        for (int i = 0; i < 200; ++i) {
            const int left = Roll(1, 300);
            const int top = Roll(1, 200);
            const SquareRect rect{left, top, std::min(300, left + Roll(0, 40)),
                                  std::min(200, top + Roll(0, 40))};
            const std::vector<int> found = index.Find(pattern, rect);
            EXPECT_TRUE(std::is_sorted(found.begin(), found.end()));
            for (int number = 1; number <= pattern.GetBackStitchCount(); ++number) {
                const BackStitchLine line = pattern.GetBackStitchLine(number);
                TwipsPoint start{2 * line.StartX, 2 * line.StartY};
                TwipsPoint end{2 * line.EndX, 2 * line.EndY};
                const bool near = LineShapes::ClipLineToRect(
                    start, end,
                    {2 * rect.Left - 3, 2 * rect.Top - 3, 2 * rect.Right + 3, 2 * rect.Bottom + 3});
                EXPECT_TRUE(!near || std::binary_search(found.begin(), found.end(), number));
            }
        }
    }

    std::mt19937 random{7};
    ProgramContext context;
    Pattern pattern;
    LineIndex index;
};

TEST_F(LineIndexTest, MissesNoLine) {
    AddLines(300, 300);
    ExpectNothingIsMissed();
}

TEST_F(LineIndexTest, FindsFewForASmallRectangle) {
    AddLines(3000, 4);
    EXPECT_LT(index.Find(pattern, {100, 100, 101, 101}).size(), 600U);
}

TEST_F(LineIndexTest, FollowsTheLinesWhenTheyMove) {
    AddLines(200, 20);
    ExpectNothingIsMissed();
    pattern.MoveArea(1, 1, 150, 100, 60, 40);
    ExpectNothingIsMissed();
    pattern.RemoveBackStitchLine(5);
    AddLines(1, 50);
    ExpectNothingIsMissed();
}

TEST_F(LineIndexTest, ServesSeveralPatternsInTurn) {
    AddLines(100, 20);
    Pattern other(context);
    other.Initialize(300, 200, 14, 14);
    for (int i = 0; i < 100; ++i) {
        BackStitchLine line = Line(250, 150, 1, 251, 151, 9);
        other.AddBackStitchLine(line);
    }
    (void)index.Find(pattern, {1, 1, 5, 5});
    EXPECT_EQ(index.Find(other, {240, 140, 260, 160}).size(), 100U);
    ExpectNothingIsMissed();
}

TEST_F(LineIndexTest, WorkingChangesInIsAsGoodAsAnIndexMadeAnew) {
    AddLines(500, 12);
    (void)index.Find(pattern, {1, 1, 5, 5});
    for (int change = 0; change < 300; ++change) {
        const int which = Roll(1, pattern.GetBackStitchCount());
        switch (change % 5) {
        case 0:
            AddLines(1, 40);
            break;
        case 1:
            pattern.RemoveBackStitchLine(which);
            break;
        case 2: // one gone at the front and several more behind
            pattern.RemoveBackStitchLine(1);
            AddLines(3, 8);
            break;
        case 3: // one line moves, and stands where it stood among the others
            pattern.MoveArea(Roll(1, 150), Roll(1, 100), Roll(151, 300), Roll(101, 200), 1, 1);
            break;
        default:
            pattern.ChangeBSColor(which, Roll(1, 9));
        }
        LineIndex fresh;
        const int left = Roll(1, 250);
        const int top = Roll(1, 150);
        const SquareRect rect{left, top, left + Roll(0, 50), top + Roll(0, 50)};
        ASSERT_EQ(index.Find(pattern, rect), fresh.Find(pattern, rect)) << "change " << change;
    }
}

TEST_F(LineIndexTest, FollowsThePatternsSize) {
    AddLines(300, 30);
    (void)index.Find(pattern, {1, 1, 5, 5});
    pattern.Resize(250, 170, 14, 14);
    LineIndex fresh;
    EXPECT_EQ(index.Find(pattern, {200, 100, 220, 140}), fresh.Find(pattern, {200, 100, 220, 140}));
}

} // namespace
} // namespace zol
