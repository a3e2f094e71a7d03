// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "grid/RowsAndColumns.h"

namespace zol {
namespace {

using namespace RowsAndColumns;

class RowsTest : public ::testing::Test {
protected:
    RowsTest() {
        pattern.Initialize(6, 5, 14, 18);
        for (int y = 1; y <= 5; ++y) {
            pattern.SetStitch(2, y, StitchWhole, y, 0);
        }
    }

    std::string Fault(Band band, bool deleting, double start, double howMany) {
        const auto fault = ValidateAddRows(pattern, band, deleting, start, howMany);
        return fault ? fault->Text : "";
    }

    ProgramContext context;
    Pattern pattern{context};
};

TEST_F(RowsTest, ZeroNeverReachesThePattern) {
    EXPECT_EQ(Fault(Band::Rows, true, 1, 0), "You must specify how many rows to add");
    EXPECT_EQ(Fault(Band::Columns, false, 1, 0), "You must specify how many columns to add");
    EXPECT_EQ(Fault(Band::Columns, false, 0, 1), "You must specify the starting column");
}

TEST_F(RowsTest, FractionsCountAsTheNumberThatIsUsed) {
    EXPECT_EQ(Fault(Band::Rows, false, 1, 0.4), "You must specify how many rows to add");
    EXPECT_EQ(Fault(Band::Rows, true, 0.5, 1), "You must specify the starting row");
    EXPECT_EQ(Fault(Band::Rows, false, 5.4, 1), "");
    EXPECT_EQ(Fault(Band::Rows, false, 5.6, 1), "After column must be 5 or less");
    EXPECT_EQ(Fault(Band::Rows, false, 1, 994.4), "");
    EXPECT_EQ(Fault(Band::Rows, true, 5, 1.6), "Deleting 2 rows exceeds the pattern height");
}

TEST_F(RowsTest, WordsStandCrossed) {
    EXPECT_EQ(Fault(Band::Columns, false, 7, 1), "After row must be 6 or less");
    EXPECT_EQ(Fault(Band::Rows, false, 6, 1), "After column must be 5 or less");
    EXPECT_EQ(Fault(Band::Columns, false, 1, 994),
              "Adding 994 rows would exceed the maximum pattern width");
    EXPECT_EQ(Fault(Band::Rows, false, 1, 995),
              "Adding 995 columns would exceed the maximum pattern height");
    EXPECT_EQ(Fault(Band::Columns, true, 5, 3), "Deleting 3 rows exceeds the pattern width");
    EXPECT_EQ(Fault(Band::Rows, true, 5, 2), "Deleting 2 rows exceeds the pattern height");
}

TEST_F(RowsTest, FieldAtFaultIsNamed) {
    EXPECT_EQ(ValidateAddRows(pattern, Band::Rows, false, 9, 1)->Where, Field::Start);
    EXPECT_EQ(ValidateAddRows(pattern, Band::Rows, false, 1, 999)->Where, Field::HowMany);
}

TEST_F(RowsTest, Exactly999IsAllowed) {
    EXPECT_EQ(Fault(Band::Columns, false, 1, 993), "");
    EXPECT_EQ(Fault(Band::Rows, false, 1, 994), "");
}

TEST_F(RowsTest, OtherSideCountsToo) {
    pattern.Initialize(16383, 970, 14, 14);
    const auto refused = ValidateAddRows(pattern, Band::Rows, false, 970, 29);
    ASSERT_TRUE(refused.has_value());
    EXPECT_EQ(refused->Text, "Out of memory");
    EXPECT_EQ(refused->More, "A pattern of this size cannot be made. What was on the grid is still "
                             "there.");
    EXPECT_EQ(refused->Where, Field::HowMany);
    EXPECT_EQ(Fault(Band::Rows, false, 970, 6), "") << "16383 x 976 is within 16 million";
    EXPECT_EQ(Fault(Band::Rows, true, 1, 970), "");
}

TEST_F(RowsTest, AddingAfterTheLastRowMovesNothing) {
    pattern.SetBackstitchLine({1, 5, 1, 2, 5, 9, 1, LineStraight});
    Add(pattern, Band::Rows, 5, 2);
    EXPECT_EQ(pattern.GetPatternHeight(), 7);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(2, 5), 5);
    EXPECT_EQ(pattern.GetStitchType(2, 6, 0), NoStitch);
    EXPECT_EQ(pattern.GetBackStitchLine(1).StartY, 5);
}

TEST_F(RowsTest, AddingInTheMiddlePushesTheLastRowsOff) {
    Add(pattern, Band::Rows, 2, 2);
    EXPECT_EQ(pattern.GetPatternHeight(), 7);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(2, 2), 2);
    EXPECT_EQ(pattern.GetStitchType(2, 3, 0), NoStitch);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(2, 5), 3);
    EXPECT_EQ(pattern.GetStitchType(2, 6, 0), NoStitch) << "row 4 fell off the old edge";
    EXPECT_TRUE(pattern.IsChanged());
}

TEST_F(RowsTest, DeletingMovesTheRestUp) {
    Delete(pattern, Band::Rows, 2, 2);
    EXPECT_EQ(pattern.GetPatternHeight(), 3);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(2, 1), 1);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(2, 2), 4);
    EXPECT_EQ(pattern.GetPatternClothCountY(), 18);
}

TEST_F(RowsTest, DeletingEveryRowLeavesAUsablePattern) {
    EXPECT_EQ(Fault(Band::Rows, true, 1, 5), "");
    Delete(pattern, Band::Rows, 1, 5);
    EXPECT_EQ(pattern.GetPatternHeight(), 0);
    pattern.SetStitch(1, 1, StitchWhole, 1, 0);
    EXPECT_EQ(pattern.GetStitchCount(1, 1), -1);
}

TEST_F(RowsTest, ColumnsGoTheSameWay) {
    Add(pattern, Band::Columns, 1, 3);
    EXPECT_EQ(pattern.GetPatternWidth(), 9);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(5, 4), 4);
    Delete(pattern, Band::Columns, 2, 3);
    EXPECT_EQ(pattern.GetPatternWidth(), 6);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(2, 4), 4);
}

} // namespace
} // namespace zol
