// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/SizeFields.h"

#include <gtest/gtest.h>

#include "import/ImportMessages.h"
#include "model/LengthUnits.h"

namespace zol::test {
namespace {

using Field = SizeFields::Field;

/// For a pattern of 140 by 70 on cloth of 14, a picture of 400 by 300.
SizeFields InStitches() {
    SizeFields fields({false, 14, 14, CmPerUnitInches}, {140, 70});
    fields.SetImage(400, 300);
    return fields;
}

SizeFields InInches() {
    SizeFields fields({true, 14, 14, CmPerUnitInches}, {100, 70});
    fields.SetImage(400, 300);
    return fields;
}

std::string FaultText(const SizeFields& fields) {
    const auto fault = fields.FindFault();
    return fault ? fault->Text : std::string();
}

TEST(SizeFields, TheyStartAsLargeAsThePattern) {
    EXPECT_EQ(InInches().Width(), 7.143);
    EXPECT_EQ(InInches().Height(), 5);
    EXPECT_EQ(InInches().FieldText(InInches().Width()), "7.143");
    EXPECT_EQ(InStitches().Width(), 140);
    EXPECT_EQ(InStitches().Height(), 70);
    const SizeFields metric({true, 10, 20, CentimetresPerInch}, {100, 100});
    EXPECT_EQ(metric.Width(), 25.4);
    EXPECT_EQ(metric.Height(), 12.7);
}

TEST(SizeFields, TheHeightGoesWithTheWidthWhileTheAspectIsKept) {
    SizeFields fields = InStitches();
    EXPECT_TRUE(fields.KeepsAspect());
    EXPECT_FALSE(fields.IsHeightEnabled());
    fields.ChangeWidth(50);
    EXPECT_EQ(fields.Height(), 38); // 37.5, a half to the even one
    fields.KeepAspect(false);
    EXPECT_TRUE(fields.IsHeightEnabled());
    fields.ChangeWidth(20);
    EXPECT_EQ(fields.Height(), 38);
    fields.ChangeHeight(9);
    EXPECT_EQ(fields.Stitches(), (StitchSize{20, 9}));
    fields.KeepAspect(true);
    EXPECT_EQ(fields.Height(), 15);
}

TEST(SizeFields, InUnitsTheHeightHasThreePlaces) {
    SizeFields fields = InInches();
    fields.ChangeWidth(2.5555);
    EXPECT_EQ(fields.Width(), 2.5555);
    EXPECT_EQ(fields.Height(), 1.917);
}

TEST(SizeFields, AnotherPictureBringsItsOwnAspect) {
    SizeFields fields = InStitches();
    fields.FollowAspect();
    EXPECT_EQ(fields.Height(), 105);
    fields.SetImage(100, 200);
    fields.FollowAspect();
    EXPECT_EQ(fields.Height(), 280);
    fields.KeepAspect(false);
    fields.SetImage(100, 100);
    fields.FollowAspect();
    EXPECT_EQ(fields.Height(), 280);
}

TEST(SizeFields, UnitsAndStitchesConvertBothFields) {
    SizeFields fields = InInches();
    fields.KeepAspect(false);
    fields.ChangeWidth(2);
    fields.ChangeHeight(3);
    fields.UseUnits(false);
    EXPECT_EQ(fields.Width(), 28);
    EXPECT_EQ(fields.Height(), 42);
    fields.UseUnits(false);
    EXPECT_EQ(fields.Width(), 28);
    fields.UseUnits(true);
    EXPECT_EQ(fields.Width(), 2);
    EXPECT_EQ(fields.Height(), 3);
}

TEST(SizeFields, TheClothMakesStitchesOfLengthsAndIsTheSameBothWays) {
    SizeFields fields({true, 14, 20, CmPerUnitInches}, {140, 200});
    fields.SetImage(1, 1);
    fields.KeepAspect(false);
    EXPECT_EQ(fields.Stitches(), (StitchSize{140, 200}));
    fields.ChangeClothCount(11);
    EXPECT_EQ(fields.Stitches(), (StitchSize{110, 110}));
    EXPECT_EQ(fields.Size().ClothCountY, 11);
}

TEST(SizeFields, APictureFillsTheEditBoxExactlyOnTheClothOfThePattern) {
    for (const bool units : {false, true}) {
        SizeFields fields({units, 14, 18, CmPerUnitCentimetres}, {100, 100});
        fields.SetImage(400, 100);
        fields.SetEditBox(StitchSize{21, 33});
        fields.ChangeClothCount(25);
        fields.UseEditBox(true);
        EXPECT_TRUE(fields.UsesEditBox());
        EXPECT_FALSE(fields.IsWidthEnabled());
        EXPECT_FALSE(fields.IsHeightEnabled());
        EXPECT_EQ(fields.Size().ClothCountX, 14);
        EXPECT_EQ(fields.Size().ClothCountY, 18);
        EXPECT_EQ(fields.Width(), units ? 3.81 : 21);
        EXPECT_EQ(fields.Height(), units ? 4.657 : 33);
        fields.FollowAspect();
        EXPECT_EQ(fields.Stitches(), (StitchSize{21, 33}));
        fields.KeepAspect(false);
        EXPECT_FALSE(fields.IsHeightEnabled());
        fields.UseEditBox(false);
        EXPECT_TRUE(fields.IsHeightEnabled());
        EXPECT_TRUE(fields.IsWidthEnabled());
    }
}

TEST(SizeFields, TheAspectCanBeKeptWithinTheEditBox) {
    SizeFields fields = InStitches();
    fields.SetEditBox(StitchSize{40, 15});
    fields.UseEditBox(true);
    fields.KeepAspect(true);
    EXPECT_EQ(fields.Stitches(), (StitchSize{20, 15}));
}

TEST(SizeFields, WithoutAnEditBoxThereIsNothingToFill) {
    SizeFields fields = InStitches();
    EXPECT_FALSE(fields.HasEditBox());
    fields.UseEditBox(true);
    EXPECT_FALSE(fields.UsesEditBox());
}

TEST(SizeFields, ASizeOfNothingIsAFaultOfItsField) {
    SizeFields fields = InStitches();
    fields.KeepAspect(false);
    fields.ChangeWidth(0);
    EXPECT_EQ(FaultText(fields), "Pattern width must be greater than zero");
    EXPECT_EQ(fields.FindFault()->Where, Field::Width);
    EXPECT_FALSE(fields.Stitches());
    fields.ChangeWidth(5);
    fields.ChangeHeight(-1);
    EXPECT_EQ(FaultText(fields), "Pattern height must be greater than zero");
    EXPECT_EQ(fields.FindFault()->Where, Field::Height);
    fields.ChangeHeight(0.3);
    EXPECT_EQ(fields.Stitches(), (StitchSize{5, 1}));
}

TEST(SizeFields, AVeryWidePictureIsARowOfStitches) {
    SizeFields fields = InStitches();
    fields.SetImage(4000, 1);
    fields.ChangeWidth(100);
    EXPECT_EQ(fields.Height(), 1);
    EXPECT_EQ(fields.Stitches(), (StitchSize{100, 1}));
    fields.UseUnits(true);
    fields.ChangeWidth(1);
    EXPECT_EQ(fields.Height(), 0.071);
}

TEST(SizeFields, WhatNoPatternCanHoldIsAFault) {
    SizeFields fields = InStitches();
    fields.KeepAspect(false);
    for (const StitchSize size : {StitchSize{4001, 4000}, {16384, 2}, {2, 16384}}) {
        fields.ChangeWidth(size.Width);
        fields.ChangeHeight(size.Height);
        EXPECT_EQ(FaultText(fields), "Your pattern is too large.");
        EXPECT_FALSE(fields.Stitches());
    }
    fields.ChangeWidth(1e300);
    EXPECT_EQ(FaultText(fields), "Your pattern is too large.");
    fields.ChangeWidth(16383);
    fields.ChangeHeight(900);
    EXPECT_EQ(fields.Stitches(), (StitchSize{16383, 900}));
}

TEST(SizeFields, AClothOfNoThreadsIsAFault) {
    SizeFields fields = InStitches();
    fields.ChangeClothCount(0);
    EXPECT_EQ(FaultText(fields), ImportMessages::ClothCountWrong);
    EXPECT_EQ(fields.FindFault()->Where, Field::ClothCount);
    EXPECT_EQ(fields.Size().ClothCountX, 14);
    fields.ChangeClothCount(18);
    EXPECT_FALSE(fields.FindFault());
    const SizeFields bare({true, 0, 0, CmPerUnitInches}, {10, 10});
    EXPECT_EQ(bare.Size().ClothCountX, 1);
}

} // namespace
} // namespace zol::test
