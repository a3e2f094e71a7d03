// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "grid/MirrorMode.h"

namespace zol {
namespace {

class MirrorTest : public ::testing::Test {
protected:
    MirrorTest() { pattern.Initialize(20, 20, 14, 14); }

    std::optional<SquarePos> Mirror(int x, int y, int kind, int position = 0) {
        return mirror.MirrorStitch(pattern, x, y, kind, 1, position);
    }

    ProgramContext context;
    Pattern pattern{context};
    MirrorMode mirror;
};

TEST_F(MirrorTest, FirstStitchSetsTheCentreAndHasNoTwin) {
    mirror.SetMirrorMode(MirrorVertical);
    EXPECT_EQ(Mirror(5, 6, StitchWhole), std::nullopt);
    EXPECT_EQ(mirror.GetMirrorCentre(), (SquarePos{5, 6}));
    EXPECT_EQ(Mirror(7, 9, StitchWhole), (SquarePos{3, 9}));
    EXPECT_EQ(pattern.GetStitchType(3, 9, 0), StitchWhole);
}

TEST_F(MirrorTest, StitchOnTheAxisHasNoTwin) {
    mirror.SetMirrorMode(MirrorHorizontal);
    mirror.SetMirrorCentre(5, 5);
    EXPECT_EQ(Mirror(9, 5, StitchWhole), std::nullopt);
    EXPECT_EQ(Mirror(9, 6, StitchWhole), (SquarePos{9, 4}));
}

TEST_F(MirrorTest, TwinBeyondTheEdgeSetsNothing) {
    mirror.SetMirrorMode(MirrorVertical);
    mirror.SetMirrorCentre(2, 2);
    EXPECT_EQ(Mirror(9, 2, StitchWhole), (SquarePos{-5, 2}));
    EXPECT_EQ(pattern.GetPatternRect().Left, 20) << "the pattern stays empty";
}

TEST_F(MirrorTest, KindsAcrossAColumnWithTheOneThatDoesNotReflect) {
    mirror.SetMirrorMode(MirrorVertical);
    mirror.SetMirrorCentre(10, 10);
    const std::array<std::pair<int, int>, 11> rows{{{1, 1},
                                                    {6, 7},
                                                    {7, 6},
                                                    {2, 3},
                                                    {3, 2},
                                                    {4, 5},
                                                    {5, 4},
                                                    {9, 12},
                                                    {10, 9},
                                                    {11, 12},
                                                    {12, 11}}};
    for (const auto& [kind, twin] : rows) {
        pattern.DeleteStitch(8, 3, Pattern::Everything);
        Mirror(12, 3, kind);
        EXPECT_EQ(pattern.GetStitchType(8, 3, 0), twin) << kind;
    }
}

TEST_F(MirrorTest, KindsAcrossARow) {
    mirror.SetMirrorMode(MirrorHorizontal);
    mirror.SetMirrorCentre(10, 10);
    const std::array<std::pair<int, int>, 11> rows{{{1, 1},
                                                    {6, 7},
                                                    {7, 6},
                                                    {2, 4},
                                                    {3, 5},
                                                    {4, 2},
                                                    {5, 3},
                                                    {9, 11},
                                                    {10, 12},
                                                    {11, 9},
                                                    {12, 10}}};
    for (const auto& [kind, twin] : rows) {
        pattern.DeleteStitch(3, 8, Pattern::Everything);
        Mirror(3, 12, kind);
        EXPECT_EQ(pattern.GetStitchType(3, 8, 0), twin) << kind;
    }
}

TEST_F(MirrorTest, KnotTakesThePointAcrossTheSquare) {
    mirror.SetMirrorMode(MirrorVertical);
    mirror.SetMirrorCentre(10, 10);
    Mirror(12, 3, StitchFKnot, 1);
    EXPECT_EQ(pattern.GetFrenchKnotPoint(8, 3, 0), 3);
    Mirror(12, 6, StitchFKnot, 8);
    EXPECT_EQ(pattern.GetFrenchKnotPoint(8, 6, 0), 8) << "the middle column stays";
    mirror.SetMirrorMode(MirrorHorizontal);
    mirror.SetMirrorCentre(10, 10);
    Mirror(15, 12, StitchFKnot, 3);
    EXPECT_EQ(pattern.GetFrenchKnotPoint(15, 8, 0), 9);
}

TEST_F(MirrorTest, ChangeOfModeForgetsTheCentre) {
    mirror.SetMirrorMode(MirrorVertical);
    mirror.SetMirrorCentre(4, 4);
    mirror.SetMirrorMode(MirrorHorizontal);
    EXPECT_EQ(mirror.GetMirrorCentre(), SquarePos{});
    mirror.ClearMirrorMode();
    EXPECT_FALSE(mirror.IsMirrorActive());
}

TEST_F(MirrorTest, SmartStitchHandsOverAKindThatShowsNothing) {
    mirror.SetMirrorMode(MirrorVertical);
    mirror.SetMirrorCentre(10, 10);
    Mirror(12, 3, StitchSQ, 1);
    EXPECT_EQ(pattern.GetStitchType(8, 3, 0), 0);
}

} // namespace
} // namespace zol
