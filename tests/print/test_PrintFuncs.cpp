// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PrintFuncs.h"

#include <gtest/gtest.h>

#include "model/RunTimeError.h"
#include "print/PrintScene.h"

namespace zol::test {

namespace {

constexpr int Twips = PageDevice::TwipsPerInch;

PrintOptions WithoutMargins() {
    PrintOptions options;
    options.LeftMargin = options.RightMargin = options.TopMargin = options.BottomMargin = 0;
    return options;
}

/// The room of row numbers at a number of squares to the inch.
int NumberWidth(const PrintOptions& options) {
    return PageFont::TextInfo(options, 72 / options.GSPI).TextWidth(QStringLiteral("0000"));
}

class PrintFuncsTest : public ::testing::Test {
protected:
    PrintScene scene;
};

} // namespace

TEST_F(PrintFuncsTest, ExactFitLosesAColumn) {
    const PrintOptions options = WithoutMargins();
    const auto pattern = scene.MakePattern(200, 10);
    MeasuredPaper paper(10 * Twips + NumberWidth(options), 20 * Twips);
    PrintFuncs functions(options, &paper);
    functions.SetPattern(*pattern);
    EXPECT_EQ(functions.GetPrintWidth(), 10 * Twips);
    EXPECT_EQ(functions.ColumnsPerPage(), 99);
}

TEST_F(PrintFuncsTest, OneTwipMoreThanAnExactFitHoldsTheColumn) {
    const PrintOptions options = WithoutMargins();
    const auto pattern = scene.MakePattern(200, 10);
    MeasuredPaper paper(10 * Twips + NumberWidth(options) + 1, 20 * Twips);
    PrintFuncs functions(options, &paper);
    functions.SetPattern(*pattern);
    EXPECT_EQ(functions.ColumnsPerPage(), 100);
}

TEST_F(PrintFuncsTest, ExactFitLosesARow) {
    const PrintOptions options = WithoutMargins();
    const auto pattern = scene.MakePattern(10, 200);
    MeasuredPaper roomy(10 * Twips, 20 * Twips);
    PrintFuncs probe(options, &roomy);
    probe.SetPattern(*pattern);
    const int lost = 20 * Twips - probe.GetPrintHeight();

    MeasuredPaper exact(10 * Twips, 10 * Twips + lost);
    PrintFuncs functions(options, &exact);
    functions.SetPattern(*pattern);
    EXPECT_EQ(functions.GetPrintHeight(), 10 * Twips);
    EXPECT_EQ(functions.RowsPerPage(), 99);
}

TEST_F(PrintFuncsTest, MarginsTakeTheirInchesFromTheWidth) {
    PrintOptions options = WithoutMargins();
    options.LeftMargin = 0.5;
    options.RightMargin = 0.75;
    MeasuredPaper paper(12000, 16000);
    PrintFuncs functions(options, &paper);
    EXPECT_EQ(functions.GetPrintWidth(), 12000 - 720 - 1080 - NumberWidth(options));
}

TEST_F(PrintFuncsTest, HeightGivesRoomToNumbersPageNumberAndFooter) {
    PrintOptions options = WithoutMargins();
    const auto pattern = scene.MakePattern(10, 10);
    MeasuredPaper paper(12000, 16000);
    PrintFuncs functions(options, &paper);
    functions.SetPattern(*pattern);
    const double numbers = PageFont::TextInfo(options, 7.2).TextHeight() * 1.5;
    const double line = PageFont::TextInfo(options).TextHeight();

    EXPECT_EQ(functions.GetPrintHeight(), static_cast<int>(16000 - numbers - 2 * line));
    pattern->Title = "Rose";
    // One footer line stands on the row of the page number.
    EXPECT_EQ(functions.GetPrintHeight(), static_cast<int>(16000 - numbers - 2 * line));
    pattern->Copyright = "Nobody";
    EXPECT_EQ(functions.GetPrintHeight(), static_cast<int>(16000 - numbers - 3 * line));
    options.PrintPageNumbers = false;
    functions.SetOptions(options);
    EXPECT_EQ(functions.GetPrintHeight(), static_cast<int>(16000 - numbers - 2 * line));
}

TEST_F(PrintFuncsTest, WithoutADeviceTheRoomIsFixed) {
    const auto pattern = scene.MakePattern(10, 10);
    PrintFuncs functions(PrintOptions(), nullptr);
    functions.SetPattern(*pattern);
    EXPECT_FALSE(functions.PrinterPresent());
    EXPECT_EQ(functions.GetPrintWidth(), 8000);
    EXPECT_EQ(functions.GetPrintHeight(), 13000);
}

TEST_F(PrintFuncsTest, OblongClothPrintsOblongSquares) {
    const auto pattern = scene.MakePattern(10, 10, 14, 18);
    PrintFuncs functions(PrintOptions(), nullptr);
    functions.SetPattern(*pattern);
    EXPECT_EQ(functions.SquareWidth(), 144);
    EXPECT_EQ(functions.SquareHeight(), 112); // 144 * 14 / 18
}

TEST_F(PrintFuncsTest, SquaresRoundHalfToEven) {
    PrintOptions options;
    const auto pattern = scene.MakePattern(10, 10);
    PrintFuncs functions(options, nullptr);
    functions.SetPattern(*pattern);
    options.GSPI = 64; // 22.5 twips
    functions.SetOptions(options);
    EXPECT_EQ(functions.SquareWidth(), 22);
    options.GSPI = 960; // 1.5 twips
    functions.SetOptions(options);
    EXPECT_EQ(functions.SquareWidth(), 2);
}

TEST_F(PrintFuncsTest, NeighbouringHighGSPIsGiveTheSameSquare) {
    PrintOptions options;
    const auto pattern = scene.MakePattern(10, 10);
    PrintFuncs functions(options, nullptr);
    functions.SetPattern(*pattern);
    options.GSPI = 1200;
    functions.SetOptions(options);
    const int square = functions.SquareWidth();
    options.GSPI = 1300;
    functions.SetOptions(options);
    EXPECT_EQ(functions.SquareWidth(), square);
}

TEST_F(PrintFuncsTest, ZeroSquareGivesTheCountOfTooManyPages) {
    PrintOptions options;
    options.GSPI = 4000;
    const auto pattern = scene.MakePattern(10, 10);
    PrintFuncs functions(options, nullptr);
    functions.SetPattern(*pattern);
    EXPECT_EQ(functions.SquareWidth(), 0);
    EXPECT_EQ(functions.GetPageCount(), 999);
    EXPECT_TRUE(functions.GetPageRange(1, true).Squares.IsEmpty());
}

TEST_F(PrintFuncsTest, PageWithoutAWholeSquareGives999AndSetsNothing) {
    PrintOptions options;
    const auto pattern = scene.MakePattern(10, 10);
    PrintFuncs functions(options, nullptr);
    functions.SetPattern(*pattern);
    EXPECT_EQ(functions.GetPageCount(), 1);
    options.GSPI = 0.1;
    functions.SetOptions(options);
    EXPECT_EQ(functions.GetPageCount(), 999);
    EXPECT_EQ(functions.PatternPages(), 1);
}

TEST_F(PrintFuncsTest, MarginsWiderThanThePaperGive999) {
    PrintOptions options;
    options.LeftMargin = 6;
    options.RightMargin = 6;
    const auto pattern = scene.MakePattern(10, 10);
    MeasuredPaper paper(11900, 16840);
    PrintFuncs functions(options, &paper);
    functions.SetPattern(*pattern);
    EXPECT_EQ(functions.GetPageCount(), 999);
}

TEST_F(PrintFuncsTest, MorePagesThanSixteenBitsIsAnOverflow) {
    PrintOptions options;
    options.GSPI = 0.25; // a few squares a page
    const auto pattern = scene.MakePattern(999, 999);
    PrintFuncs functions(options, nullptr);
    functions.SetPattern(*pattern);
    EXPECT_THROW((void)functions.GetPageCount(), RunTimeError);
}

TEST_F(PrintFuncsTest, PagesRunDownFirst) {
    const auto pattern = scene.MakePattern(100, 200);
    PrintFuncs functions(PrintOptions(), nullptr);
    functions.SetPattern(*pattern);
    // 8000 \ 144 = 55 columns, 13000 \ 144 = 90 rows.
    EXPECT_EQ(functions.GetPageCount(), 2 * 3);
    EXPECT_EQ(functions.GetPageRange(1, false).Squares, (SquareRect{1, 1, 55, 90}));
    EXPECT_EQ(functions.GetPageRange(2, false).Squares, (SquareRect{1, 91, 55, 180}));
    EXPECT_EQ(functions.GetPageRange(3, false).Squares, (SquareRect{1, 181, 55, 200}));
    EXPECT_EQ(functions.GetPageRange(4, false).Squares, (SquareRect{56, 1, 100, 90}));
    EXPECT_EQ(functions.GetPageRange(6, false).Squares, (SquareRect{56, 181, 100, 200}));
}

TEST_F(PrintFuncsTest, OriginIsThatOfTheFirstSquareLessTheBorderOnThePrinter) {
    const auto pattern = scene.MakePattern(100, 200);
    MeasuredPaper paper(11900, 16840, 300, 400);
    PrintFuncs functions(PrintOptions(), &paper);
    functions.SetPattern(*pattern);
    const int rows = functions.RowsPerPage();
    const PageRange preview = functions.GetPageRange(2, false);
    EXPECT_EQ(preview.OriginX, 720);
    EXPECT_EQ(preview.OriginY, 720 - rows * 144);
    const PageRange printed = functions.GetPageRange(2, true);
    EXPECT_EQ(printed.OriginX, 720 - 300);
    EXPECT_EQ(printed.OriginY, 720 - rows * 144 - 400);
}

TEST_F(PrintFuncsTest, FitGSPIRoundsUp) {
    const auto pattern = scene.MakePattern(100, 100);
    PrintFuncs functions(PrintOptions(), nullptr);
    functions.SetPattern(*pattern);
    // 8000 \ 100 = 80 twips; 1440 \ 80 = 18 without a remainder.
    EXPECT_EQ(functions.FitGSPI(), 18);
    const auto odd = scene.MakePattern(110, 100);
    functions.SetPattern(*odd);
    // 8000 \ 110 = 72; 1440 \ 72 = 20.
    EXPECT_EQ(functions.FitGSPI(), 20);
    const auto remainder = scene.MakePattern(111, 100);
    functions.SetPattern(*remainder);
    // 8000 \ 111 = 72 again; 13000 has room to spare.
    EXPECT_EQ(functions.FitGSPI(), 20);
    const auto tall = scene.MakePattern(10, 300);
    functions.SetPattern(*tall);
    // 13000 \ 300 = 43; 1440 \ 43 = 33 and a remainder.
    EXPECT_EQ(functions.FitGSPI(), 34);
}

TEST_F(PrintFuncsTest, FittedPatternIsOnePageAndTheKey) {
    MeasuredPaper paper(11900, 16840);
    for (const auto& [width, height, countX, countY] :
         {std::array{100, 100, 14, 14}, std::array{20, 20, 14, 14}, std::array{300, 40, 14, 18},
          std::array{40, 300, 18, 14}, std::array{999, 999, 14, 14}, std::array{1, 1, 14, 14}}) {
        const auto pattern = scene.MakePattern(width, height, countX, countY);
        PrintFuncs functions(PrintOptions(), &paper);
        functions.SetPattern(*pattern);
        functions.FitToPage();
        functions.CountKeyPages();
        ASSERT_GE(functions.KeyPages(), 1);
        EXPECT_EQ(functions.GetPageCount(), 1 + functions.KeyPages()) << width << " x " << height;
    }
}

TEST_F(PrintFuncsTest, KeyOnlyRangeCountsFromTheFirstKeyPage) {
    const auto pattern = scene.MakePattern(100, 200);
    PrintFuncs functions(PrintOptions(), nullptr);
    functions.SetPattern(*pattern);
    (void)functions.GetPageCount();
    functions.SetPrintRange(1, 2, false);
    EXPECT_EQ(functions.PrintFromPage(), 1);
    EXPECT_EQ(functions.PrintToPage(), 2);
    functions.SetPrintRange(1, 2, true);
    EXPECT_EQ(functions.PrintFromPage(), 7);
    EXPECT_EQ(functions.PrintToPage(), 8);
    EXPECT_EQ(functions.PrintPage(), 7);
}

TEST_F(PrintFuncsTest, MarginsInsideTheBorderAreFoundAndRaised) {
    PrintOptions options;
    options.LeftMargin = 0.1;
    options.BottomMargin = 0.1;
    MeasuredPaper paper(11900, 16840, 360, 288); // a quarter and a fifth of an inch
    PrintFuncs functions(options, &paper);
    EXPECT_TRUE(functions.CheckPrintMargins());
    functions.RaisePrintMargins();
    EXPECT_EQ(functions.Options().LeftMargin, 0.25);
    EXPECT_EQ(functions.Options().BottomMargin, 0.2);
    EXPECT_EQ(functions.Options().RightMargin, 0.5);
    EXPECT_EQ(functions.Options().TopMargin, 0.5);
    EXPECT_FALSE(functions.CheckPrintMargins());
}

TEST_F(PrintFuncsTest, BuiltInMarginIsTheLargerOfBorderAndHalfAnInch) {
    const MeasuredPaper narrow(11900, 16840, 360, 900);
    EXPECT_EQ(BuiltInMarginX(&narrow), 0.5);
    EXPECT_EQ(BuiltInMarginY(&narrow), 0.625);
    EXPECT_EQ(BuiltInMarginX(nullptr), 0.5);
}

} // namespace zol::test
