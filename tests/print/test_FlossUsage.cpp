// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/FlossUsage.h"

#include <gtest/gtest.h>

#include <cmath>

#include <QPdfWriter>

#include "print/PdfReading.h"
#include "print/PrintScene.h"

namespace zol::test {

namespace {

class FlossUsageTest : public ::testing::Test {
protected:
    std::filesystem::path PrintReport(const PrintOptions& options = {}) {
        auto path = scene.Path("usage.pdf");
        QPdfWriter writer(QString::fromStdString(path.string()));
        writer.setResolution(PageDevice::TwipsPerInch);
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        PagedPageDevice device(writer);
        EXPECT_TRUE(PrintFlossUsage(*pattern, options, device));
        return path;
    }

    PrintScene scene;
    std::unique_ptr<Pattern> pattern = scene.MakePattern(100, 100);
};

BackStitchLine LineFrom(int x1, int y1, int x2, int y2, int floss) {
    BackStitchLine line;
    line.StartX = static_cast<std::int16_t>(x1);
    line.StartY = static_cast<std::int16_t>(y1);
    line.StartPos = 1;
    line.EndX = static_cast<std::int16_t>(x2);
    line.EndY = static_cast<std::int16_t>(y2);
    line.EndPos = 1;
    line.PaletteIndex = static_cast<std::uint8_t>(floss);
    return line;
}

} // namespace

TEST_F(FlossUsageTest, OneStitchShowsATenthOfASkein) {
    PrintScene::AddFloss(*pattern, 0, "310", 1, "!");
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    const auto rows = GetFlossUsages(*pattern, true);
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].FlossID, "DMC 310");
    EXPECT_EQ(rows[0].Description, "Floss 310");
    EXPECT_EQ(rows[0].Stitches, "1");
    EXPECT_EQ(rows[0].BackStitch, "0.0");
    EXPECT_EQ(rows[0].Skeins, "0.1");
    // Two diagonals of a square in two strands, of 6 * 313.2 * 0.83 inches.
    const double diagonal = std::sqrt(2.0) / 14;
    EXPECT_NEAR(rows[0].SkeinCount, 2 * diagonal * 2 / 1559.736 + 0.05, 1e-9);
}

TEST_F(FlossUsageTest, LinesAloneShowNoStitches) {
    PrintScene::AddFloss(*pattern, 0, "310", 1, "!");
    pattern->SetBackstitchLine(LineFrom(1, 1, 15, 1, 1)); // one inch
    const auto rows = GetFlossUsages(*pattern, true);
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].Stitches, "0");
    EXPECT_EQ(rows[0].BackStitch, "1.0");
    EXPECT_NEAR(rows[0].SkeinCount, 1 / 1559.736 + 0.05, 1e-9);
    EXPECT_GT(rows[0].SkeinCount, 0.05);
}

TEST_F(FlossUsageTest, CentimetresChangeTheThreadAndTheHeading) {
    PrintScene::AddFloss(*pattern, 0, "310", 1, "!");
    pattern->SetBackstitchLine(LineFrom(1, 1, 15, 1, 1));
    EXPECT_EQ(GetFlossUsages(*pattern, false)[0].BackStitch, "2.5");
    EXPECT_EQ(FlossUsageHeadings(true)[3], "Back Stitch (Inches)");
    EXPECT_EQ(FlossUsageHeadings(false)[3], "Back Stitch (cm)");
}

TEST_F(FlossUsageTest, HandReckonedPatternOfEveryKind) {
    PrintScene::AddFloss(*pattern, 0, "310", 1, "!");
    PrintScene::AddFloss(*pattern, 0, "321", 2, "#");
    pattern->GetPalette().SetFlossStrands(2, 3, 2);
    pattern->SetStitch(1, 1, StitchWhole, 2, 5);
    pattern->SetStitch(2, 1, StitchUL3Q, 2, 1);
    pattern->SetStitch(3, 1, StitchTBH, 2, 5);
    pattern->SetStitch(4, 1, StitchLRQ, 2, 9);
    pattern->SetStitch(6, 6, StitchFKnot, 2, 5);
    pattern->SetBackstitchLine(LineFrom(1, 1, 4, 5, 2)); // 3, 4, 5 squares
    const auto rows = GetFlossUsages(*pattern, true);
    ASSERT_EQ(rows.size(), 1U); // the first floss is not used
    EXPECT_EQ(rows[0].Entry, 2);
    EXPECT_EQ(rows[0].StitchCount, 5);
    const double diagonal = std::sqrt(2.0) / 14;
    const double stitches = (2 + 1.5 + 1 + 0.5 + 3) * diagonal;
    const double lines = 5.0 / 14;
    EXPECT_NEAR(rows[0].BackStitchLength, lines, 1e-12);
    EXPECT_NEAR(rows[0].SkeinCount, (lines * 2 + stitches * 3) / 1559.736 + 0.05, 1e-12);
}

TEST_F(FlossUsageTest, UnequalClothCountsChangeTheDiagonal) {
    pattern = scene.MakePattern(10, 10, 14, 18);
    PrintScene::AddFloss(*pattern, 0, "310", 1, "!");
    pattern->SetStitch(1, 1, StitchTBH, 1, 5);
    const double diagonal = std::sqrt(1.0 / (14 * 14) + 1.0 / (18 * 18));
    EXPECT_NEAR(GetFlossUsages(*pattern, true)[0].SkeinCount, diagonal * 2 / 1559.736 + 0.05,
                1e-12);
}

TEST_F(FlossUsageTest, RowsFollowTheDisplayOrder) {
    PrintScene::AddFloss(*pattern, 0, "973", 4, "!");
    PrintScene::AddFloss(*pattern, 0, "310", 1, "#");
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    pattern->SetStitch(2, 1, StitchWhole, 2, 5);
    pattern->GetPalette().Sort(SortManufacturerID);
    const auto rows = GetFlossUsages(*pattern, true);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].FlossID, "DMC 310");
    EXPECT_EQ(rows[1].FlossID, "DMC 973");
}

TEST_F(FlossUsageTest, EmptyPatternPrintsHeadingsAndOnePage) {
    EXPECT_TRUE(GetFlossUsages(*pattern, true).empty());
    const auto path = PrintReport();
    EXPECT_EQ(PdfPageCount(path), 1);
    EXPECT_EQ(PdfText(path, 1),
              QStringLiteral("Korvanta Floss Usage Report Floss ID Description Stitches Back "
                             "Stitch (Inches) Skeins Page 1"));
}

TEST_F(FlossUsageTest, ReportPagesItselfWithHeadingsOnEachPage) {
    pattern->Title = "Meadow";
    for (int i = 1; i <= 120; ++i) {
        PrintScene::AddFloss(*pattern, 0, std::to_string(i), 0, "!");
        pattern->SetStitch((i - 1) % 100 + 1, (i - 1) / 100 + 1, StitchWhole, i, 5);
    }
    const auto path = PrintReport();
    const int pages = PdfPageCount(path);
    ASSERT_GT(pages, 1);
    for (int page = 1; page <= pages; ++page) {
        const QString text = PdfText(path, page);
        EXPECT_TRUE(text.startsWith(QStringLiteral("Korvanta Floss Usage Report Meadow Floss ID")));
        EXPECT_TRUE(text.endsWith(QStringLiteral("Page ") + QString::number(page)));
    }
    int rows = 0;
    for (const PdfWord& word : PdfWords(path)) {
        rows += word.Text == QStringLiteral("DMC") ? 1 : 0;
    }
    EXPECT_EQ(rows, 120);
}

TEST_F(FlossUsageTest, NumbersEndAtTheirColumnsEnd) {
    PrintScene::AddFloss(*pattern, 0, "310", 1, "!");
    PrintScene::AddFloss(*pattern, 0, "321", 2, "#");
    for (int x = 1; x <= 100; ++x) {
        pattern->SetStitch(x, 1, StitchWhole, 1, 5);
    }
    pattern->SetStitch(1, 2, StitchWhole, 2, 5);
    double heading = 0;
    std::vector<double> ends;
    for (const PdfWord& word : PdfWords(PrintReport())) {
        if (word.Text == QStringLiteral("Stitches")) {
            heading = word.Right;
        } else if (word.Text == QStringLiteral("100") || word.Text == QStringLiteral("1")) {
            ends.push_back(word.Right);
        }
    }
    ASSERT_GE(ends.size(), 2U);
    EXPECT_NEAR(ends[0], heading, 0.2);
    EXPECT_NEAR(ends[1], heading, 0.2);
}

} // namespace zol::test
