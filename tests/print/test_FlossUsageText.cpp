// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/FlossUsageText.h"

#include <gtest/gtest.h>

namespace zol::test {

namespace {

FlossUsageRow Row(const std::string& id, int stitches, double line, double skeins) {
    FlossUsageRow row;
    row.FlossID = id;
    row.Description = "Floss " + id;
    row.StitchCount = stitches;
    row.BackStitchLength = line;
    row.SkeinCount = skeins;
    row.Stitches = std::to_string(stitches);
    row.BackStitch = "b";
    row.Skeins = "s";
    return row;
}

std::string Order(const std::vector<FlossUsageRow>& rows) {
    std::string order;
    for (const FlossUsageRow& row : rows) {
        order += row.FlossID + ";";
    }
    return order;
}

} // namespace

TEST(FlossUsageTextTest, NumbersSortAsNumbersAndNamesAsPeopleReadThem) {
    std::vector<FlossUsageRow> rows{Row("DMC 310", 9, 2.25, 0.5), Row("DMC 93", 100, 10.5, 0.1),
                                    Row("Anchor 1006", 20, 2.5, 12)};
    SortFlossUsages(rows, 0, false);
    EXPECT_EQ(Order(rows), "Anchor 1006;DMC 93;DMC 310;");
    SortFlossUsages(rows, 2, false);
    EXPECT_EQ(Order(rows), "DMC 310;Anchor 1006;DMC 93;");
    SortFlossUsages(rows, 2, true);
    EXPECT_EQ(Order(rows), "DMC 93;Anchor 1006;DMC 310;");
    SortFlossUsages(rows, 3, false);
    EXPECT_EQ(Order(rows), "DMC 310;Anchor 1006;DMC 93;");
    SortFlossUsages(rows, 4, true);
    EXPECT_EQ(Order(rows), "Anchor 1006;DMC 310;DMC 93;");
}

TEST(FlossUsageTextTest, EqualRowsKeepTheirOrderBothWays) {
    std::vector<FlossUsageRow> rows{Row("c", 1, 0, 0), Row("a", 1, 0, 0), Row("b", 0, 0, 0)};
    SortFlossUsages(rows, 2, false);
    EXPECT_EQ(Order(rows), "b;c;a;");
    SortFlossUsages(rows, 2, true);
    EXPECT_EQ(Order(rows), "c;a;b;");
}

TEST(FlossUsageTextTest, CsvQuotesWhatNeedsIt) {
    std::vector<FlossUsageRow> rows{Row("DMC 1", 3, 0, 0)};
    rows[0].Description = "red, \"deep\"";
    EXPECT_EQ(FlossUsageCsv(rows, true),
              "Floss ID,Description,Stitches,Back Stitch (Inches),Skeins\n"
              "DMC 1,\"red, \"\"deep\"\"\",3,b,s\n");
    EXPECT_EQ(FlossUsageCsv({}, false), "Floss ID,Description,Stitches,Back Stitch (cm),Skeins\n");
}

TEST(FlossUsageTextTest, TabsInTextsAreNoColumns) {
    std::vector<FlossUsageRow> rows{Row("DMC 1", 3, 0, 0)};
    rows[0].Description = "deep\tred\n";
    EXPECT_EQ(FlossUsageTabbed(rows, true),
              "Floss ID\tDescription\tStitches\tBack Stitch (Inches)\tSkeins\n"
              "DMC 1\tdeep red \t3\tb\ts\n");
}

TEST(FlossUsageTextTest, TotalsCountWholeSkeinsFlossByFloss) {
    const FlossUsageTotals totals = TotalsOf({Row("a", 3, 1.5, 0.1), Row("b", 4, 2, 2.25)});
    EXPECT_EQ(totals.Flosses, 2);
    EXPECT_EQ(totals.Stitches, 7);
    EXPECT_DOUBLE_EQ(totals.BackStitchLength, 3.5);
    EXPECT_EQ(totals.Skeins, 4);
}

} // namespace zol::test
