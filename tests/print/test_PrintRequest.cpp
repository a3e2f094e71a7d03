// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PrintRequest.h"

#include <gtest/gtest.h>

#include "print/PrintOptions.h"
#include "settings/Options.h"

namespace zol::test {

TEST(PrintRequestTest, FaultsAreFoundInTheirOrder) {
    struct Case {
        PrintRequest request;
        PrintField field;
        std::string text;
    };
    const std::vector<Case> cases{
        {{0, 0, 0, 5},
         PrintField::GSPI,
         "Stitches per inch can not be 0.  Please enter a valid entry here."},
        {{10, 0, 0, 5},
         PrintField::FromPage,
         "The starting print page can not be 0.  Please enter a valid entry here."},
        {{10, 1, 0, 5},
         PrintField::ToPage,
         "The Ending print page can not be 0.  Please enter a valid entry here."},
        {{10, 3, 2, 5},
         PrintField::ToPage,
         "The ending print page must be greater then the starting print page.  Please enter a "
         "valid entry here."},
        {{10, 1, 6, 5}, PrintField::ToPage, "The ending page can not be larger 5."},
        {{10, 1, 5, 5}, PrintField::None, ""},
    };
    for (const Case& each : cases) {
        const PrintRequestFault fault = CheckPrintRequest(each.request);
        EXPECT_EQ(fault.Field, each.field);
        EXPECT_EQ(fault.Text, each.text);
    }
}

TEST(PrintRequestTest, FromAndToEqualIsAccepted) {
    EXPECT_EQ(CheckPrintRequest({10, 2, 2, 5}).Field, PrintField::None);
}

TEST(PrintRequestTest, CaptionCountsPages) {
    EXPECT_EQ(AllPagesCaption(1), "All:   (1 Page)");
    EXPECT_EQ(AllPagesCaption(7), "All:   (7 Pages)");
}

TEST(PrintRequestTest, WithoutTheKeyTheRangeIsLower) {
    EXPECT_EQ(GetToPage(7, 2, false, true), 7);
    EXPECT_EQ(GetToPage(7, 2, false, false), 5);
    EXPECT_EQ(GetToPage(7, 2, true, true), 2);
}

TEST(PrintRequestTest, FourToTheCentimetreAreTenPointOneSixToTheInch) {
    EXPECT_DOUBLE_EQ(GSPIFromField(4, false), 10.16);
    EXPECT_DOUBLE_EQ(GSPIFromField(4, true), 4);
    EXPECT_EQ(GSPIFieldText(10.16, false), "4.0");
    EXPECT_EQ(GSPIFieldText(10, true), "10.0");
    EXPECT_EQ(GSPILabel(true), "Grid Squares Per Inch");
    EXPECT_EQ(GSPILabel(false), "Grid Squares Per CM");
}

TEST(PrintOptionsTest, VirtualStitchesAreTheTintedImage) {
    EXPECT_EQ(DisplayStyleOf(PrintVirtualStitches), ShowVStitches);
    EXPECT_EQ(DisplayStyleOf(PrintBlocksAndSymbols), ShowColorBlocksSymbols);
    EXPECT_EQ(DisplayStyleOf(PrintNone), 0);
}

TEST(PrintOptionsTest, OptionsOfTheProgramAreTakenOver) {
    Options options;
    options.LeftMargin = 0.75;
    options.PrintGridlineColor1Index = 3;
    options.PrintNormalGLColor = 0x123456;
    options.TextInfoFontName = "Serif";
    options.StitchSymbol = PrintColorSymbols;
    options.Units = "centimetres";
    options.PrintStrands = 1;
    options.MapFlosses = "anchor.col";
    const PrintOptions print = PrintOptionsOf(options);
    EXPECT_EQ(print.LeftMargin, 0.75);
    EXPECT_EQ(print.pNormalGLColor, 0x123456U);
    EXPECT_EQ(print.TextInfoFontName, "Serif");
    EXPECT_EQ(print.StitchSymbol, PrintColorSymbols);
    EXPECT_FALSE(print.InInches());
    EXPECT_TRUE(print.PrintStrands);
    EXPECT_EQ(print.MapFlosses, "anchor.col");
    EXPECT_EQ(print.GSPI, 10);
    EXPECT_TRUE(print.PrintColorKey);
}

} // namespace zol::test
