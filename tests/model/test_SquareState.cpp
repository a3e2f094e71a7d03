// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/ModelTestKit.h"

namespace zol {
namespace {

using test::Dump;
using ::testing::ElementsAre;

class SquareStateTest : public test::ModelTest {
protected:
    Pattern pattern = Make(6, 6);
};

TEST_F(SquareStateTest, HoldsStitchesKnotsAndTheFlagsAround) {
    pattern.SetStitch(3, 3, StitchULQ, 1, 0);
    pattern.SetStitch(3, 3, StitchLRQ, 2, 0);
    pattern.SetStitch(3, 3, StitchFKnot, 3, 9);
    const SquareState state = pattern.GetSquareState(3, 3);
    EXPECT_EQ(state.At, (SquarePos{3, 3}));
    EXPECT_EQ(state.Cell.StitchType, StitchULQ);
    ASSERT_TRUE(state.Dup.has_value());
    EXPECT_EQ(state.Dup->GetStitchType(1), StitchLRQ);
    ASSERT_EQ(state.Knots.size(), 1U);
    EXPECT_EQ(state.Knots[0].X, 7);
    // The squares (3, 3), (3, 4), (4, 3) and (4, 4), column by column from (2, 2).
    EXPECT_EQ(state.KnotFlags.to_string(), "110110000");
}

TEST_F(SquareStateTest, PutBackItReplacesWhatIsThere) {
    pattern.SetStitch(3, 3, StitchTBH, 1, 0);
    pattern.SetStitch(2, 3, StitchFKnot, 3, 6);
    const std::string before = Dump(pattern);
    const SquareState state = pattern.GetSquareState(3, 3);
    pattern.SetStitch(3, 3, StitchULQ, 1, 0);
    pattern.SetStitch(3, 3, StitchLRQ, 2, 0);
    pattern.SetStitch(3, 3, StitchFKnot, 4, 4);
    pattern.SetStitch(3, 3, StitchFKnot, 4, 9);
    ASSERT_NE(Dump(pattern), before);
    pattern.SetChanged(false);
    pattern.SetSquareState(state);
    EXPECT_EQ(Dump(pattern), before);
    EXPECT_TRUE(pattern.IsChanged());
}

TEST_F(SquareStateTest, TheRecorderHearsOfItFirst) {
    test::RecordingUndo recorder;
    const SquareState state = pattern.GetSquareState(2, 5);
    pattern.SetUndoRecorder(&recorder);
    pattern.SetSquareState(state);
    EXPECT_THAT(recorder.squares, ElementsAre(SquarePos{2, 5}));
}

TEST_F(SquareStateTest, OutsideTheGridNothingHappens) {
    SquareState state = pattern.GetSquareState(7, 1);
    EXPECT_EQ(state.Cell, StitchCell{});
    state.Cell = {StitchWhole, 1, 0};
    const std::string before = Dump(pattern);
    pattern.SetSquareState(state);
    EXPECT_EQ(Dump(pattern), before);
    EXPECT_FALSE(pattern.IsChanged());
}

} // namespace
} // namespace zol
