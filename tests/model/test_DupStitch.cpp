// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include "model/DupStitch.h"
#include "model/FrenchKnot.h"

namespace zol {
namespace {

using ::testing::ElementsAre;

DupStitch Full() {
    DupStitch dup;
    dup.X = 3;
    dup.Y = 4;
    dup.AddDupStitch(StitchULQ, 5);
    dup.AddDupStitch(StitchURQ, 6);
    dup.AddDupStitch(StitchLLQ, 5);
    dup.AddDupStitch(StitchLRQ, 9);
    return dup;
}

TEST(DupStitch, NewRecordIsFree) {
    const DupStitch dup;
    EXPECT_THAT(dup.PaletteIndexes(), ElementsAre(255, 255, 255, 255));
    EXPECT_THAT(dup.StitchTypes(), ElementsAre(255, 255, 255, 255));
    EXPECT_EQ(dup.GetStitchCount(), 0);
    EXPECT_EQ(dup.GetStitchType(1), 255);
    EXPECT_EQ(dup.GetPaletteIndex(1), 255);
}

TEST(DupStitch, FullRecordTakesNothing) {
    DupStitch dup = Full();
    dup.AddDupStitch(StitchWhole, 1);
    EXPECT_EQ(dup.GetStitchCount(), 4);
    EXPECT_THAT(dup.StitchTypes(), ElementsAre(9, 10, 11, 12));
}

TEST(DupStitch, IndexesWalkTheOccupiedSlotsAndTheFirstFreeSlotIsTaken) {
    DupStitch dup = Full();
    dup.DelDupStitchType(StitchURQ);
    EXPECT_EQ(dup.GetStitchType(2), StitchLLQ);
    EXPECT_EQ(dup.GetPaletteIndex(3), 9);
    EXPECT_EQ(dup.GetStitchType(4), 255);
    EXPECT_EQ(dup.GetStitchType(0), 255);
    dup.AddDupStitch(StitchTBH, 7);
    EXPECT_THAT(dup.StitchTypes(), ElementsAre(9, 6, 11, 12));
    EXPECT_THAT(dup.PaletteIndexes(), ElementsAre(5, 7, 5, 9));
}

TEST(DupStitch, RemoveColorOfTheWholePatternLowersWhatLiesAbove) {
    DupStitch dup = Full();
    dup.RemoveColor(5, true, {});
    EXPECT_THAT(dup.StitchTypes(), ElementsAre(255, 10, 255, 12));
    EXPECT_THAT(dup.PaletteIndexes(), ElementsAre(255, 5, 255, 8));
}

TEST(DupStitch, RemoveColorInARangeTestsTheSquareAndLowersNothing) {
    DupStitch dup = Full();
    dup.RemoveColor(5, false, {1, 1, 2, 9});
    EXPECT_EQ(dup.GetStitchCount(), 4);
    dup.RemoveColor(5, false, {3, 4, 3, 4});
    EXPECT_THAT(dup.PaletteIndexes(), ElementsAre(255, 6, 255, 9));
}

TEST(DupStitch, ChangeColorAndMapPaletteReachOccupiedSlotsAlone) {
    DupStitch dup = Full();
    dup.DelDupStitchType(StitchLRQ);
    dup.ChangeColor(5, 2);
    dup.ChangeColor(255, 1);
    EXPECT_THAT(dup.PaletteIndexes(), ElementsAre(2, 6, 2, 255));
    std::vector<std::uint8_t> map(256, 3);
    dup.MapPalette(map);
    EXPECT_THAT(dup.PaletteIndexes(), ElementsAre(3, 3, 3, 255));
    dup.MapPalette({0, 1, 2});
    EXPECT_THAT(dup.PaletteIndexes(), ElementsAre(3, 3, 3, 255)) << "a map may be short";
}

TEST(DupStitch, RecordHasTwelveBytesWithFlossBeforeKind) {
    DupStitch dup = Full();
    dup.DelDupStitchType(StitchURQ);
    ByteWriter writer;
    dup.Save(writer);
    EXPECT_THAT(writer.Bytes(), ElementsAre(3, 0, 4, 0, 5, 9, 255, 255, 5, 11, 9, 12));
    ByteReader reader(writer.Bytes());
    DupStitch back;
    back.Load(reader);
    EXPECT_EQ(back.X, 3);
    EXPECT_EQ(back.Y, 4);
    EXPECT_EQ(back.StitchTypes(), dup.StitchTypes());
    EXPECT_EQ(back.PaletteIndexes(), dup.PaletteIndexes());
}

TEST(FrenchKnot, RecordHasFiveBytesAndLoadsAsAPlainKnot) {
    FrenchKnot knot;
    EXPECT_EQ(knot.GetPaletteIndex(), 255);
    knot.X = 300;
    knot.Y = 2;
    knot.Orientation = KnotVerticalOval;
    knot.AddFrenchKnot(7);
    ByteWriter writer;
    knot.Save(writer);
    EXPECT_THAT(writer.Bytes(), ElementsAre(44, 1, 2, 0, 7));
    ByteReader reader(writer.Bytes());
    knot.Load(reader);
    EXPECT_EQ(knot.X, 300);
    EXPECT_EQ(knot.GetPaletteIndex(), 7);
    EXPECT_EQ(knot.Orientation, KnotNormal);
}

} // namespace
} // namespace zol
