// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include "model/ZOLTypes.h"

namespace zol {
namespace {

TEST(ZOLTypes, NewCellIsEmpty) {
    const StitchCell cell;
    EXPECT_EQ(cell.StitchType, 255);
    EXPECT_EQ(cell.PaletteIndex, 255);
    EXPECT_EQ(cell.CellFlags, 0);
}

TEST(ZOLTypes, RightCornerOfASquareIsLeftCornerOfTheNext) {
    EXPECT_EQ(LatticeOf(4, 7, 3), LatticeOf(5, 7, 1));
    EXPECT_EQ(LatticeOf(4, 7, 9), LatticeOf(5, 8, 1));
    EXPECT_EQ(LatticeOf(1, 1, 1), (LatticePos{1, 1}));
    EXPECT_EQ(LatticeOf(1, 1, 5), (LatticePos{2, 2}));
    EXPECT_EQ(LatticeOf(10, 20, 9), (LatticePos{21, 41}));
}

TEST(ZOLTypes, LengthWeightsByKind) {
    const std::array<double, 16> told{0, 2,   1.5, 1.5, 1.5, 1.5, 1, 1,
                                      3, 0.5, 0.5, 0.5, 0.5, 0,   0, 0};
    for (int kind = 0; kind < 16; ++kind) {
        EXPECT_EQ(LengthWeight(kind), told[static_cast<std::size_t>(kind)]) << kind;
    }
    EXPECT_EQ(LengthWeight(NoStitch), 0);
}

TEST(ZOLTypes, ColourPutsRedInTheLowestByte) {
    EXPECT_EQ(MakeColour(0x11, 0x22, 0x33), 0x00332211U);
}

} // namespace
} // namespace zol
