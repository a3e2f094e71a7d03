// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <deque>

#include "model/ModelTestKit.h"

namespace zol {
namespace {

using test::Dump;
using test::ModelTest;
using test::StitchesAt;
using ::testing::ElementsAre;
using ::testing::Pair;

using PatternPaint = ModelTest;

TEST_F(PatternPaint, EqualFlossesReturnAtOnce) {
    Pattern pattern = Make(5, 5);
    pattern.Paint(1, 1, StitchWhole, NoFloss, NoFloss);
    pattern.Paint(1, 1, StitchWhole, 3, 3);
    EXPECT_FALSE(pattern.IsChanged());
}

TEST_F(PatternPaint, FillsEmptySquaresInFourDirections) {
    Pattern pattern = Make(5, 5);
    for (int i = 1; i <= 5; ++i) {
        pattern.SetStitch(i, 6 - i, StitchWhole, 1, 0); // a diagonal wall
    }
    pattern.ClearPaintRect();
    EXPECT_EQ(pattern.GetPaintRect(), (SquareRect{5, 5, 0, 0}));
    pattern.Paint(1, 1, StitchWhole, 2, NoFloss);
    for (int x = 1; x <= 5; ++x) {
        for (int y = 1; y <= 5; ++y) {
            const int told = x + y == 6 ? 1 : (x + y < 6 ? 2 : 255);
            EXPECT_EQ(pattern.GetStitchPaletteIndex(x, y), told);
        }
    }
    EXPECT_EQ(pattern.GetPaintRect(), (SquareRect{1, 1, 4, 4}));
}

TEST_F(PatternPaint, StartMustHoldTheOldFloss) {
    Pattern pattern = Make(5, 5);
    pattern.SetStitch(1, 1, StitchWhole, 1, 0);
    pattern.Paint(1, 1, StitchWhole, 2, NoFloss);
    pattern.Paint(0, 1, StitchWhole, 2, NoFloss);
    pattern.Paint(6, 6, StitchWhole, 2, NoFloss);
    EXPECT_EQ(Dump(pattern), "5x5\n1,1 1/1/0\n");
}

TEST_F(PatternPaint, NewFloss255Erases) {
    Pattern pattern = Make(5, 5);
    pattern.SetStitch(1, 1, StitchULQ, 1, 0);
    pattern.SetStitch(1, 1, StitchURQ, 2, 0);
    pattern.SetStitch(2, 1, StitchWhole, 1, 0);
    pattern.SetStitch(2, 1, StitchFKnot, 3, 5);
    pattern.SetStitch(4, 1, StitchWhole, 1, 0);
    pattern.Paint(1, 1, StitchWhole, NoFloss, 1);
    EXPECT_EQ(Dump(pattern), "5x5\n4,1 1/1/0\n");
}

TEST_F(PatternPaint, EndsWhereTheOldFlossSurvivesBesideTheNewStitch) {
    Pattern pattern = Make(30, 30);
    for (int x = 1; x <= 30; ++x) {
        for (int y = 1; y <= 30; ++y) {
            pattern.SetStitch(x, y, StitchURQ, 1, 0);
        }
    }
    pattern.Paint(7, 9, StitchTBH, 2, 1);
    for (int x = 1; x <= 30; ++x) {
        for (int y = 1; y <= 30; ++y) {
            ASSERT_THAT(StitchesAt(pattern, x, y),
                        ElementsAre(Pair(StitchURQ, 1), Pair(StitchTBH, 2)));
        }
    }
}

TEST_F(PatternPaint, EachSquareIsTakenOnce) {
    Pattern pattern = Make(6, 7);
    test::RecordingUndo undo;
    pattern.SetUndoRecorder(&undo);
    pattern.Paint(3, 3, StitchWhole, 1, NoFloss);
    EXPECT_EQ(undo.squares.size(), 42U);
    const std::vector<SquarePos> first(undo.squares.begin(), undo.squares.begin() + 6);
    EXPECT_THAT(first, ElementsAre(SquarePos{3, 3}, SquarePos{3, 4}, SquarePos{3, 2},
                                   SquarePos{4, 3}, SquarePos{2, 3}, SquarePos{3, 5}));
    undo.squares.clear();
    pattern.Paint(3, 3, StitchS3Q, 2, 1); // resolves to nothing, so every square stays
    EXPECT_EQ(undo.squares.size(), 42U);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(3, 3), 1);
}

/// The fill step by step through the public operations.
void PaintPlainly(Pattern& pattern, int x, int y, int kind, int newIndex, int oldIndex) {
    std::deque<SquarePos> queue;
    std::set<std::pair<int, int>> taken;
    const auto enqueue = [&](int nextX, int nextY) {
        if (pattern.IsInGrid(nextX, nextY) &&
            pattern.GetStitchPaletteIndex(nextX, nextY) == oldIndex) {
            queue.push_back({nextX, nextY});
        }
    };
    enqueue(x, y);
    while (!queue.empty()) {
        const SquarePos at = queue.front();
        queue.pop_front();
        if (pattern.GetStitchPaletteIndex(at.X, at.Y) != oldIndex ||
            !taken.insert({at.X, at.Y}).second) {
            continue;
        }
        if (newIndex < 255) {
            pattern.SetStitch(at.X, at.Y, kind, newIndex, 0);
        } else {
            pattern.DeleteStitch(at.X, at.Y, 0);
        }
        enqueue(at.X, at.Y + 1);
        enqueue(at.X, at.Y - 1);
        enqueue(at.X + 1, at.Y);
        enqueue(at.X - 1, at.Y);
    }
}

TEST_F(PatternPaint, AgreesWithThePlainFillOnRandomContent) {
    for (unsigned seed = 1; seed <= 40; ++seed) {
        const auto build = [&] {
            std::mt19937 random(seed);
            Pattern pattern = Make(15, 17);
            test::Scatter(pattern, random, 260, 12, 0, 2);
            return pattern;
        };
        Pattern fast = build();
        Pattern plain = build();
        std::mt19937 random(seed + 1000);
        for (int i = 0; i < 6; ++i) {
            const int x = 1 + static_cast<int>(random() % 15);
            const int y = 1 + static_cast<int>(random() % 17);
            const int kind = 1 + static_cast<int>(random() % 12);
            const int fresh = random() % 4 == 0 ? 255 : 1 + static_cast<int>(random() % 3);
            const int old = fast.GetStitchPaletteIndex(x, y);
            if (fresh != old) {
                fast.Paint(x, y, kind, fresh, old);
                PaintPlainly(plain, x, y, kind, fresh, old);
            }
            ASSERT_EQ(Dump(fast), Dump(plain)) << "seed " << seed << " step " << i;
        }
        test::CheckInvariants(fast);
    }
}

} // namespace
} // namespace zol
