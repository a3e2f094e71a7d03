// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "model/ModelTestKit.h"
#include "model/PatternInfo.h"

namespace zol::test {
namespace {

PatternInfo OfSize(int width, int height) {
    PatternInfo info;
    info.Width = width;
    info.Height = height;
    return info;
}

PatternSizeFields Fields(double width, double height, double across = 14, double down = 14) {
    PatternSizeFields fields;
    fields.Width = width;
    fields.Height = height;
    fields.ClothCountX = across;
    fields.ClothCountY = down;
    return fields;
}

PatternSizeFields Lengths(double width, double height, double unitsPerInch = 1) {
    PatternSizeFields fields = Fields(width, height);
    fields.UseUnits = true;
    fields.UnitsPerInch = unitsPerInch;
    return fields;
}

/// The message of the first fault; empty if there is none.
std::string TextOf(const PatternSizeFields& fields, const PatternInfo& present = {}) {
    const auto fault = fields.FindFault(present);
    return fault ? fault->Text : std::string();
}

PatternInfo Taken(const PatternSizeFields& fields) {
    PatternInfo info;
    fields.PutInto(info);
    return info;
}

} // namespace

// --- Faults -------------------------------------------------------------------------------

TEST(PatternSizeFields, GoodFieldsHaveNoFault) {
    EXPECT_EQ(TextOf(Fields(1, 1, 1, 1)), "");
    EXPECT_EQ(TextOf(Lengths(7.143, 7.143)), "");
}

TEST(PatternSizeFields, ZeroIsTold) {
    EXPECT_EQ(TextOf(Fields(0, 100)), "Your pattern width is invalid.");
    EXPECT_EQ(TextOf(Fields(100, 0)), "Your pattern height is invalid.");
    EXPECT_EQ(TextOf(Fields(100, 100, 0)), "Your horizontal cloth count is invalid.");
    EXPECT_EQ(TextOf(Fields(100, 100, 14, 0)), "Your vertical cloth count is invalid.");
    EXPECT_EQ(TextOf(Lengths(0, 1)), "Your pattern width is invalid.");
}

TEST(PatternSizeFields, BelowZeroAndNoNumberAreTold) {
    EXPECT_EQ(TextOf(Fields(-5, 100)), "Your pattern width is invalid.");
    EXPECT_EQ(TextOf(Fields(100, -1)), "Your pattern height is invalid.");
    EXPECT_EQ(TextOf(Fields(100, 100, -14)), "Your horizontal cloth count is invalid.");
    EXPECT_EQ(TextOf(Fields(100, 100, 14, -14)), "Your vertical cloth count is invalid.");
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(TextOf(Fields(none, 100)), "Your pattern width is invalid.");
    EXPECT_EQ(TextOf(Fields(100, 100, none)), "Your horizontal cloth count is invalid.");
}

TEST(PatternSizeFields, FirstFaultIsToldWithItsField) {
    const auto all = Fields(0, 0, 0, 0).FindFault({});
    ASSERT_TRUE(all);
    EXPECT_EQ(all->Where, PatternInfoField::Width);
    EXPECT_EQ(Fields(1, 0, 0, 0).FindFault({})->Where, PatternInfoField::Height);
    EXPECT_EQ(Fields(1, 1, 0, 0).FindFault({})->Where, PatternInfoField::ClothCountX);
    EXPECT_EQ(Fields(1, 1, 1, 0).FindFault({})->Where, PatternInfoField::ClothCountY);
    // A cloth without a count leaves no stitches, which is not the width's fault.
    PatternSizeFields noCloth = Lengths(7, 7);
    noCloth.ClothCountX = 0;
    EXPECT_EQ(noCloth.FindFault({})->Where, PatternInfoField::ClothCountX);
}

TEST(PatternSizeFields, WhatRoundsToNothingIsTold) {
    EXPECT_EQ(TextOf(Fields(0.3, 100)), "Your pattern width is invalid.");
    EXPECT_EQ(TextOf(Fields(100, 0.5)), "Your pattern height is invalid.");
    EXPECT_EQ(TextOf(Lengths(0.03, 1)), "Your pattern width is invalid.");
    EXPECT_EQ(TextOf(Fields(100, 100, 0.4)), "Your horizontal cloth count is invalid.");
    EXPECT_EQ(TextOf(Fields(0.51, 1)), "");
}

TEST(PatternSizeFields, LongestSideIsThatOfTheKnots) {
    EXPECT_EQ(TextOf(Fields(16383, 10)), "");
    EXPECT_EQ(TextOf(Fields(16384, 10)), "Your pattern width is invalid.");
    EXPECT_EQ(TextOf(Fields(32767, 10)), "Your pattern width is invalid.");
    EXPECT_EQ(TextOf(Fields(10, 32767)), "Your pattern height is invalid.");
    EXPECT_EQ(TextOf(Fields(1e300, 10)), "Your pattern width is invalid.");
    EXPECT_EQ(TextOf(Lengths(1171, 1)), "Your pattern width is invalid.");
    EXPECT_EQ(TextOf(Fields(100, 100, 32768)), "Your horizontal cloth count is invalid.");
    EXPECT_NE(Fields(32767, 10).FindFault({})->More.find("16383"), std::string::npos);
}

TEST(PatternSizeFields, LongPatternFromAFileMayStayAsItIs) {
    EXPECT_EQ(TextOf(Fields(20000, 10), OfSize(20000, 10)), "");
    EXPECT_EQ(TextOf(Fields(20001, 10), OfSize(20000, 10)), "Your pattern width is invalid.");
    EXPECT_EQ(TextOf(Fields(100, 10), OfSize(20000, 10)), "");
}

TEST(PatternSizeFields, GridOfTooManySquaresIsTold) {
    EXPECT_EQ(TextOf(Fields(4000, 4000)), "");
    const auto fault = Fields(4001, 4000).FindFault({});
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->Text, "Your pattern is too large.");
    EXPECT_EQ(fault->More, "A pattern can have up to 16000000 squares; this one would have "
                           "16004000.");
    EXPECT_EQ(fault->Where, PatternInfoField::Width);
}

// --- Units --------------------------------------------------------------------------------

TEST(PatternSizeFields, StitchesBecomeInchesByTheClothCount) {
    PatternSizeFields fields = Fields(100, 90, 14, 18);
    fields.SwitchUnits(true);
    EXPECT_EQ(fields.FieldText(fields.Width), "7.143");
    EXPECT_EQ(fields.FieldText(fields.Height), "5.000");
}

TEST(PatternSizeFields, StitchesBecomeCentimetresOfTheSameCloth) {
    PatternSizeFields fields = Fields(140, 7);
    fields.UnitsPerInch = 2.54;
    fields.SwitchUnits(true);
    EXPECT_EQ(fields.FieldText(fields.Width), "25.400");
    EXPECT_EQ(fields.FieldText(fields.Height), "1.270");
}

TEST(PatternSizeFields, ShownLengthsGiveTheSameStitchesBack) {
    for (const double unitsPerInch : {1.0, 2.54}) {
        for (int count = 1; count <= 40; ++count) {
            for (int side : {1, 2, 99, 100, 333, 999, 16383}) {
                PatternSizeFields fields = Fields(side, side, count, count);
                fields.UnitsPerInch = unitsPerInch;
                fields.SwitchUnits(true);
                fields.Width = std::stod(fields.FieldText(fields.Width));
                fields.SwitchUnits(false);
                ASSERT_EQ(fields.FieldText(fields.Width), std::to_string(side)) << count;
            }
        }
    }
}

TEST(PatternSizeFields, SwitchingToTheSameUnitsChangesNothing) {
    PatternSizeFields fields = Lengths(3, 4);
    fields.SwitchUnits(true);
    EXPECT_EQ(fields.Width, 3);
    EXPECT_EQ(fields.Height, 4);
}

TEST(PatternSizeFields, LengthsAreStitchedOnTheClothAsItIsNow) {
    PatternSizeFields fields = Lengths(10, 5);
    fields.ClothCountX = 20;
    fields.ClothCountY = 11;
    const PatternInfo info = Taken(fields);
    EXPECT_EQ(info.Width, 200);
    EXPECT_EQ(info.Height, 55);
    EXPECT_EQ(info.ClothCountX, 20);
    EXPECT_EQ(info.ClothCountY, 11);
}

TEST(PatternSizeFields, HalvesGoToTheEvenStitch) {
    EXPECT_EQ(Taken(Fields(10.5, 11.5)).Width, 10);
    EXPECT_EQ(Taken(Fields(10.5, 11.5)).Height, 12);
    EXPECT_EQ(Taken(Lengths(2.54, 25.4, 2.54)).Width, 14);
}

// --- What it does to a pattern ------------------------------------------------------------

TEST(PatternInfo, OnlyAShrunkSideCutsIntoThePattern) {
    const PatternInfo present = OfSize(50, 60);
    EXPECT_FALSE(OfSize(50, 60).CutsInto(present));
    EXPECT_FALSE(OfSize(51, 100).CutsInto(present));
    EXPECT_TRUE(OfSize(49, 60).CutsInto(present));
    EXPECT_TRUE(OfSize(50, 59).CutsInto(present));
    EXPECT_TRUE(OfSize(500, 59).CutsInto(present));
    EXPECT_STREQ(ResizeWarning, "Warning! By resizing your pattern, you will lose any stitches "
                                "which are outside the new pattern area\nAre  you sure you wish "
                                "to resize the pattern?");
}

TEST(PatternInfo, GivesItsPropertiesToThePattern) {
    ProgramContext context;
    Pattern pattern(context);
    pattern.Initialize(20, 10, 14, 14);
    pattern.SetStitch(3, 3, StitchWhole, 1, 5);
    pattern.SetStitch(20, 10, StitchWhole, 1, 5);
    pattern.SetChanged(false);
    PatternInfo info = PatternInfo::Of(pattern);
    EXPECT_EQ(info.Width, 20);
    EXPECT_EQ(info.Height, 10);
    info.Width = 12;
    info.ClothCountX = 16;
    info.ClothCountY = 18;
    info.Title = "Rose";
    info.Author = "Ann";
    info.Copyright = "2026";
    info.Fabric = "Aida";
    info.Instructions = "{\\rtf1 Two strands.}";
    info.ApplyTo(pattern);
    EXPECT_EQ(PatternInfo::Of(pattern), info);
    EXPECT_TRUE(pattern.IsChanged());
    EXPECT_EQ(pattern.GetStitchCount(3, 3), 1);
    EXPECT_EQ(pattern.GetStitchCount(20, 10), -1);
}

TEST(PatternInfo, ChangedInstructionsHaveToFitAFile) {
    PatternInfo present;
    PatternInfo wanted;
    wanted.Instructions = std::string(PatternInfo::MaxText, 'x');
    EXPECT_FALSE(InstructionsFault(wanted, present));
    wanted.Instructions += 'x';
    const auto fault = InstructionsFault(wanted, present);
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->Where, PatternInfoField::Instructions);
    EXPECT_EQ(fault->Text, "Your instructions are too long.");
    present.Instructions = wanted.Instructions;
    EXPECT_FALSE(InstructionsFault(wanted, present));
}

} // namespace zol::test
