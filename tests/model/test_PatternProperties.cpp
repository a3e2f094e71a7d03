// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/ModelTestKit.h"

namespace zol {
namespace {

using test::ModelTest;

using PatternProperties = ModelTest;

TEST_F(PatternProperties, IDsAreAddedOnceAndNeverZero) {
    Pattern pattern = Make(2, 2);
    pattern.AddPatternID(0, "none");
    pattern.AddPatternID(7, "first");
    pattern.AddPatternID(9, "second");
    pattern.AddPatternID(7, "again");
    ASSERT_EQ(pattern.GetPatternIDCount(), 2);
    EXPECT_EQ(pattern.GetPatternID(1), 7U);
    EXPECT_EQ(pattern.GetPatternSource(1), "first");
    EXPECT_EQ(pattern.GetPatternID(2), 9U);
    for (const int index : {-1, 0, 3}) {
        EXPECT_EQ(pattern.GetPatternID(index), 0U);
        EXPECT_EQ(pattern.GetPatternSource(index), "");
    }
}

TEST_F(PatternProperties, NotesCountFromOneAndAreEmptyOutside) {
    Pattern pattern = Make(2, 2);
    pattern.AddAPatternNote(1, 2, 3, 4, "A");
    pattern.AddAPatternNote(5, 6, 7, 8, "B");
    ASSERT_EQ(pattern.GetPatternNoteCount(), 2);
    EXPECT_EQ(pattern.GetPatternNote(2), (PatternNote{5, 6, "B", 7, 8}));
    EXPECT_EQ(pattern.GetPatternNote(0), PatternNote());
    EXPECT_EQ(pattern.GetPatternNote(3), PatternNote());
}

TEST_F(PatternProperties, NoMappingIsABitOfTheFlags) {
    Pattern pattern = Make(2, 2);
    EXPECT_TRUE(pattern.AllowFlossMapping());
    PatternHeader header = pattern.GetHeader();
    header.PatternFlags = PatternTestChecksum;
    pattern.Setheader(header);
    pattern.SetNoMapping();
    EXPECT_FALSE(pattern.AllowFlossMapping());
    EXPECT_EQ(pattern.GetHeader().PatternFlags, 16U | 4U | 8U);
    pattern.ClearNoMapping();
    EXPECT_TRUE(pattern.AllowFlossMapping());
    EXPECT_EQ(pattern.GetHeader().PatternFlags, 4U | 8U);
    pattern.ClearFlags();
    EXPECT_EQ(pattern.GetHeader().PatternFlags, 0U);
}

TEST_F(PatternProperties, NewPatternKeepsTheFlagsAndForgetsTheReservedFields) {
    Pattern pattern = Make(2, 2);
    PatternHeader header;
    header.Reserved1 = 1;
    header.Reserved2 = 2;
    header.Reserved3[0] = 3;
    header.PatternFlags = 2;
    pattern.Setheader(header);
    pattern.Initialize(2, 2, 14, 14);
    EXPECT_EQ(pattern.GetHeader().Reserved1, 0);
    EXPECT_EQ(pattern.GetHeader().Reserved2, 0U);
    EXPECT_EQ(pattern.GetHeader().Reserved3[0], 0);
    EXPECT_EQ(pattern.GetHeader().PatternFlags, 2U);
}

} // namespace
} // namespace zol
