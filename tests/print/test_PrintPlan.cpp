// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PrintPlan.h"

#include <gtest/gtest.h>

#include "print/PrintScene.h"

namespace zol::test {

namespace {

class PrintPlanTest : public ::testing::Test {
protected:
    [[nodiscard]] PrintPlan Plan(PrintPlan::Form form = PrintPlan::Form::Pattern) {
        return PrintPlan(options, paper, *pattern, form);
    }
    static PrintRequest Asking(int from, int to, double gspi = 10) {
        PrintRequest request;
        request.GSPI = gspi;
        request.FromPage = from;
        request.ToPage = to;
        return request;
    }

    PrintScene scene;
    MeasuredPaper paper{11906, 16838, 360, 360};
    PrintOptions options;
    std::unique_ptr<Pattern> pattern = scene.MakePattern(100, 120);
};

} // namespace

TEST_F(PrintPlanTest, LastPageCountsTheKeyWhileItIsWanted) {
    PrintPlan plan = Plan();
    const int all = plan.LastPage();
    ASSERT_GE(plan.Job().KeyPages(), 1);
    EXPECT_EQ(all, plan.Job().PatternPages() + plan.Job().KeyPages());
    plan.SetPrintColorKey(false);
    EXPECT_EQ(plan.LastPage(), plan.Job().PatternPages());
    plan.SetPrintColorKey(true);
    EXPECT_EQ(plan.LastPage(), all);
}

TEST_F(PrintPlanTest, FittedPatternIsOnePageAndStaysSoOnOtherPaper) {
    PrintPlan plan = Plan();
    plan.SetFitPage(true);
    EXPECT_EQ(plan.LastPage(), 1 + plan.Job().KeyPages());
    MeasuredPaper small{7000, 9000, 100, 100};
    plan.SetPrinter(small);
    EXPECT_EQ(plan.LastPage(), 1 + plan.Job().KeyPages());
    const double fitted = plan.GSPI();
    plan.SetFitPage(false);
    EXPECT_EQ(plan.GSPI(), fitted);
    plan.SetPrinter(paper);
    EXPECT_EQ(plan.GSPI(), fitted);
}

TEST_F(PrintPlanTest, SelectionIsCountedAsAPatternOfItsOwn) {
    PrintPlan plan = Plan();
    const int whole = plan.LastPage();
    const auto selection = scene.MakePattern(5, 5);
    plan.PrintSelection(*selection, {40, 50});
    EXPECT_EQ(plan.LastPage(), 1 + plan.Job().KeyPages());
    EXPECT_EQ(plan.Job().NumberOffset().X, 39);
    plan.PrintWhole(*pattern);
    EXPECT_EQ(plan.LastPage(), whole);
    EXPECT_EQ(plan.Job().NumberOffset().X, 0);
}

TEST_F(PrintPlanTest, KeyAloneDoesNotDependOnTheSquares) {
    options.GSPI = 4000;
    PrintPlan plan = Plan(PrintPlan::Form::ColorKey);
    EXPECT_EQ(plan.LastPage(), plan.Job().KeyPages());
    EXPECT_GE(plan.Job().PatternPages(), 1);
    EXPECT_TRUE(plan.Check(Asking(1, plan.LastPage())).Text.empty());
}

TEST_F(PrintPlanTest, SettingsKeepTheSquaresAndTheKey) {
    PrintPlan plan = Plan();
    plan.SetGSPI(14);
    plan.SetPrintColorKey(false);
    PrintOptions other = options;
    other.StitchSymbol = PrintColorBlocks;
    other.GSPI = 10;
    plan.SetOptions(other);
    EXPECT_EQ(plan.GSPI(), 14);
    EXPECT_FALSE(plan.Job().Options().PrintColorKey);
    EXPECT_EQ(plan.Job().Options().StitchSymbol, PrintColorBlocks);
}

TEST_F(PrintPlanTest, PagesWithoutASquareAreCountedAs999AndRefused) {
    options.LeftMargin = 6;
    options.RightMargin = 6;
    PrintPlan wide = Plan();
    EXPECT_EQ(wide.LastPage(), 999);
    EXPECT_EQ(wide.Check(Asking(1, 1000)).Text, "The ending page can not be larger 999.");
    EXPECT_EQ(wide.Check(Asking(1, 999)).Text, NoSquareText);
    options = {};
    PrintPlan plan = Plan();
    plan.SetGSPI(4000);
    EXPECT_EQ(plan.LastPage(), 999);
    EXPECT_EQ(plan.Check(Asking(1, 1, 4000)).Text, NoSquareText);
    EXPECT_EQ(plan.Check(Asking(1, 1, 4000)).Field, PrintField::GSPI);
}

TEST_F(PrintPlanTest, MorePagesThanCanBeCountedAreRefused) {
    pattern = scene.MakePattern(999, 999);
    options.GSPI = 0.8;
    PrintPlan plan = Plan();
    EXPECT_EQ(plan.LastPage(), 999);
    const PrintRequestFault fault = plan.Check(Asking(1, 1, 0.8));
    EXPECT_EQ(fault.Field, PrintField::GSPI);
    EXPECT_EQ(fault.Text, "The chart takes more pages than can be counted.");
}

TEST_F(PrintPlanTest, KeyThatCannotBeCountedStandsInNobodysWayWhoDoesNotWantIt) {
    pattern->Instructions = std::string(30000, '\n') + "end";
    PrintPlan plan = Plan();
    EXPECT_FALSE(plan.Check(Asking(1, 1)).Text.empty());
    plan.SetPrintColorKey(false);
    EXPECT_EQ(plan.Check(Asking(1, plan.LastPage())).Text, "");
    EXPECT_EQ(plan.LastPage(), plan.Job().PatternPages());
    plan.SetPrintColorKey(true);
    EXPECT_FALSE(plan.Check(Asking(1, 1)).Text.empty());
    EXPECT_FALSE(Plan(PrintPlan::Form::ColorKey).Check(Asking(1, 1)).Text.empty());
}

TEST_F(PrintPlanTest, OneAndTheSamePageIsARange) {
    PrintPlan plan = Plan();
    EXPECT_TRUE(plan.Check(Asking(2, 2)).Text.empty());
    EXPECT_EQ(plan.Check(Asking(2, 1)).Field, PrintField::ToPage);
}

TEST_F(PrintPlanTest, RaisedMarginsAreCountedAnew) {
    options.LeftMargin = options.RightMargin = 0;
    pattern = scene.MakePattern(70, 20); // beside each other only without margins
    MeasuredPaper bordered{11906, 16838, 2000, 2000};
    PrintPlan plan(options, bordered, *pattern, PrintPlan::Form::Pattern);
    const int before = plan.LastPage();
    ASSERT_TRUE(plan.Job().CheckPrintMargins());
    plan.RaisePrintMargins();
    EXPECT_FALSE(plan.Job().CheckPrintMargins());
    EXPECT_GT(plan.LastPage(), before);
}

} // namespace zol::test
