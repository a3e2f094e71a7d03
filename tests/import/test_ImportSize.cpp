// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/ImportSize.h"

#include <gtest/gtest.h>

using namespace zol;

namespace {

TEST(ImportSize, StitchesRoundToNearestAHalfToEven) {
    const ImportSize size;
    EXPECT_EQ(size.StitchesOf(2.5, 3.5), (StitchSize{2, 4}));
    EXPECT_EQ(size.StitchesOf(100, 75), (StitchSize{100, 75}));
}

TEST(ImportSize, ASideThatRoundsToZeroIsTakenAsOne) {
    const ImportSize size;
    EXPECT_EQ(size.StitchesOf(0.2, 0), (StitchSize{1, 1}));
    EXPECT_EQ(size.StitchesOf(-7, 0.5), (StitchSize{1, 1}));
}

TEST(ImportSize, UnitsGoByTheClothCountOfEachDirection) {
    ImportSize size;
    size.UseUnits = true;
    size.ClothCountX = 14;
    size.ClothCountY = 18;
    EXPECT_EQ(size.StitchesOf(10, 5), (StitchSize{140, 90}));
    size.CmPerUnit = CmPerUnitCentimetres;
    EXPECT_EQ(size.StitchesOf(25.4, 12.7), (StitchSize{140, 90}));
}

TEST(ImportSize, StitchesAndUnitsConvertBothWays) {
    ImportSize size;
    size.CmPerUnit = CmPerUnitCentimetres;
    EXPECT_DOUBLE_EQ(size.UnitsOf(140, 14), 25.4);
    EXPECT_DOUBLE_EQ(size.StitchesOfUnits(25.4, 14), 140);
}

TEST(ImportSize, FieldsShowWholeStitchesOrThreePlaces) {
    ImportSize size;
    EXPECT_EQ(size.FieldText(74.6), "75");
    size.UseUnits = true;
    EXPECT_EQ(size.FieldText(0.5), "0.500");
    EXPECT_EQ(size.FieldText(7.1428571), "7.143");
}

TEST(ImportSize, AGridBeyondTheLimitsIsRefused) {
    const ImportSize size;
    EXPECT_EQ(size.StitchesOf(4000, 4000), (StitchSize{4000, 4000}));
    EXPECT_FALSE(size.StitchesOf(4001, 4000));
    EXPECT_FALSE(size.StitchesOf(32768, 1));
    EXPECT_TRUE(size.StitchesOf(32767, 1));
    EXPECT_FALSE(size.StitchesOf(1e300, 1));
}

TEST(ImportSize, HeightFollowsTheAspect) {
    const ImportSize size;
    const ProportionalSize fields = SetProportionalHeight(size, 100, 4000, 3000, std::nullopt);
    EXPECT_DOUBLE_EQ(fields.Height, 75);
    EXPECT_DOUBLE_EQ(fields.Width, 100);
    EXPECT_FALSE(fields.WidthChanged);
    EXPECT_DOUBLE_EQ(ProportionalWidth(75, 4000, 3000), 100);
}

TEST(ImportSize, AHeightThatPassesTheEditBoxTakesTheWidthAlong) {
    ImportSize size;
    const ProportionalSize fields = SetProportionalHeight(size, 100, 4000, 3000, 60);
    EXPECT_DOUBLE_EQ(fields.Height, 60);
    EXPECT_DOUBLE_EQ(fields.Width, 80);
    EXPECT_TRUE(fields.WidthChanged);
    EXPECT_FALSE(SetProportionalHeight(size, 80, 4000, 3000, 60).WidthChanged);

    size.UseUnits = true;
    const ProportionalSize units = SetProportionalHeight(size, 10, 4000, 3000, 70);
    EXPECT_DOUBLE_EQ(units.Height, 5); // 70 squares of 14 an inch
    EXPECT_DOUBLE_EQ(units.Width, 5 / 0.75);
}

} // namespace
