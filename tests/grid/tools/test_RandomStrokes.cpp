// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Gestures that nobody would draw: after each of them the picture must be true, the pattern whole,
// and its one step must bring everything back.

#include <algorithm>
#include <array>
#include <random>

#include "DrawModesTest.h"

namespace zol::test {
namespace {

/// A kind or a knot's place, floss and orientation, by square or lattice point.
using Record = std::array<int, 5>;

/// All that strokes can change, in an order that does not depend on how it came about.
struct Content {
    std::vector<StitchCell> cells;
    std::vector<Record> duplicates;
    std::vector<Record> knots;
    std::vector<BackStitchLine> lines;

    friend bool operator==(const Content&, const Content&) = default;
    /// Without the cells' flags: a design that was read back lists knots that a stitch hid.
    [[nodiscard]] Content AsInAFile() const {
        Content stored = *this;
        for (StitchCell& cell : stored.cells) {
            cell.CellFlags = 0;
        }
        return stored;
    }
};

Content ContentOf(const Pattern& pattern) {
    Content content{pattern.Cells(), {}, {}, pattern.Lines()};
    pattern.DupStitches().ForEach([&content](const DupStitch& dup) {
        for (int i = 1; i <= dup.GetStitchCount(); ++i) {
            content.duplicates.push_back(
                {dup.X, dup.Y, dup.GetStitchType(i), dup.GetPaletteIndex(i), 0});
        }
    });
    pattern.FrenchKnots().ForEach([&content](const FrenchKnot& knot) {
        content.knots.push_back({knot.X, knot.Y, knot.GetPaletteIndex(), knot.Orientation, 0});
    });
    std::sort(content.duplicates.begin(), content.duplicates.end());
    std::sort(content.knots.begin(), content.knots.end());
    return content;
}

class RandomStrokes : public DrawModesTest, public ::testing::WithParamInterface<unsigned> {
protected:
    RandomStrokes() {
        for (int i = 0; i < 200; ++i) {
            context.FrenchKnotStyle = static_cast<std::uint8_t>(Roll(0, 4));
            pattern.SetStitch(Roll(1, Size), Roll(1, Size), Roll(1, 12), Roll(1, 4), Roll(1, 9));
        }
        for (int i = 0; i < 5; ++i) {
            AddLine(Roll(1, Size), Roll(1, Size), Roll(1, 9), Roll(1, Size), Roll(1, Size),
                    Roll(1, 9));
        }
        view.PaintAfresh();
    }

    int Roll(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_random); }

    PointerEvent SomeEvent(PointerButton button) {
        PointerEvent event = At(Roll(-2, Size + 3), Roll(-2, Size + 3), button, Roll(1, 9));
        event.Shift = Roll(0, 5) == 0;
        event.Ctrl = Roll(0, 5) == 0;
        return event;
    }

    void ChooseTool() {
        constexpr std::array<DrawMode, 9> all{DrawStitches,  DrawStitches,    DrawStitches,
                                              DrawErase,     DrawLines,       DrawZoom,
                                              DrawPaintOnce, DrawColorPicker, DrawPaint};
        if (Roll(0, 2) == 0) {
            modes.SetStitchType(Roll(0, 16));
        }
        context.FrenchKnotStyle = static_cast<std::uint8_t>(Roll(0, 4));
        modes.SetCurrentColor(Roll(0, 5));
        modes.SetDrawMode(all[static_cast<std::size_t>(Roll(0, 8))]);
        // Fills would leave little for the others to draw on.
        modes.SetPaintErases(Roll(0, 2) != 0);
        if (Roll(0, 5) == 0) {
            modes.ToggleMirrorMode(Roll(0, 1) == 0 ? MirrorVertical : MirrorHorizontal);
        }
    }

    void Gesture() {
        const PointerButton button = Roll(0, 2) == 0 ? PointerButton::Right : PointerButton::Left;
        modes.Press(SomeEvent(button));
        for (int moves = Roll(0, 4); moves > 0; --moves) {
            modes.Move(SomeEvent(Roll(0, 15) == 0 ? PointerButton::None : button));
        }
        if (Roll(0, 20) == 0) {
            modes.Escape();
        }
        modes.Release(SomeEvent(button));
    }

    void ExpectWhole() {
        pattern.FrenchKnots().ForEach([this](const FrenchKnot& knot) {
            EXPECT_TRUE(pattern.IsOnLattice({knot.X, knot.Y})) << knot.X << ' ' << knot.Y;
        });
        pattern.DupStitches().ForEach([this](const DupStitch& dup) {
            EXPECT_TRUE(pattern.IsInGrid(dup.X, dup.Y)) << dup.X << ' ' << dup.Y;
        });
        EXPECT_EQ(pattern.GetPatternWidth(), Size);
        EXPECT_EQ(pattern.GetPatternHeight(), Size);
        EXPECT_EQ(view.busyDepth, 0);
    }

    /// What has changed was asked to be painted anew.
    void ExpectRedrawn(const Content& before, const Content& after) {
        const std::vector<SquarePos> redrawn = view.RedrawnSquares();
        for (std::size_t i = 0; i < after.cells.size(); ++i) {
            if (before.cells[i] != after.cells[i]) {
                const SquarePos square{static_cast<int>(i) / Size + 1,
                                       static_cast<int>(i) % Size + 1};
                EXPECT_NE(std::find(redrawn.begin(), redrawn.end(), square), redrawn.end())
                    << square.X << ", " << square.Y;
            }
        }
    }

    std::mt19937 m_random{GetParam()};
};

TEST_P(RandomStrokes, LeaveATruePictureAndCanBeTakenBack) {
    int changes = 0;
    for (int turn = 0; turn < 120 && !HasFailure(); ++turn) {
        SCOPED_TRACE(turn);
        ChooseTool();
        SCOPED_TRACE("mode " + std::to_string(modes.GetDrawMode()) + ", type " +
                     std::to_string(choice.CurrentStitchType));
        steps.ClearUndo();
        view.redraws.clear();
        const bool takesLines = modes.BaseDrawMode() == DrawLines;
        const Content before = ContentOf(pattern);
        Gesture();
        const Content after = ContentOf(pattern);
        ExpectWhole();
        ExpectScreenIsTrue();
        ExpectRedrawn(before, after);
        if (after == before) {
            continue;
        }
        ++changes;
        if (!takesLines) {
            EXPECT_TRUE(steps.IsAvailable());
        }
        if (steps.IsAvailable() && Roll(0, 1) == 0) {
            const bool fromFile = steps.GetUndoLabel() == "Paint";
            steps.PerformUndo();
            const Content back = ContentOf(pattern);
            EXPECT_TRUE(fromFile ? back.AsInAFile() == before.AsInAFile() : back == before);
            view.PaintAfresh();
        }
    }
    EXPECT_GT(changes, 40) << "too few gestures change anything";
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomStrokes, ::testing::Range(1U, 11U));

} // namespace
} // namespace zol::test
