// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/ModelTestKit.h"
#include "model/PatternBytes.h"
#include "model/RunTimeError.h"

namespace zol {
namespace {

using test::Dump;
using test::ModelTest;
using test::PatternBytes;
using ::testing::AnyOf;

class PatternDamage : public ModelTest {
protected:
    int Load(const std::vector<std::uint8_t>& bytes) {
        ByteReader reader(bytes);
        return pattern.Load("name", reader, 0, 0);
    }
    static std::vector<std::uint8_t> Count(std::int64_t count) {
        std::vector<std::uint8_t> bytes;
        PatternBytes::Put32(bytes, count);
        return bytes;
    }

    Pattern pattern = Make(1, 1);
    PatternBytes file;
};

/// Walks all that a reader of a loaded pattern would.
void ReadEverything(Pattern& pattern) {
    for (int x = 0; x <= pattern.GetPatternWidth() + 1; ++x) {
        for (int y = 0; y <= pattern.GetPatternHeight() + 1; ++y) {
            for (int i = 0; i <= pattern.GetStitchCount(x, y); ++i) {
                (void)pattern.GetStitchType(x, y, i);
                (void)pattern.GetStitchColor(x, y, i, false);
                (void)pattern.GetStitchSymbol(x, y, i);
                (void)pattern.GetStitchImage(x, y, i);
                (void)pattern.GetFrenchKnotPoint(x, y, i);
            }
        }
    }
    pattern.CountStitches();
    (void)pattern.GetPatternAreaRect();
}

TEST_F(PatternDamage, TruncatedAtEveryByteNeverCrashesAndEndsAsTold) {
    const std::vector<std::uint8_t> whole = file.All();
    const std::size_t gridEnd = whole.size() - file.ids.size() - file.orientedKnots.size() -
                                file.lines.size() - file.plainKnots.size() - file.dups.size();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const int number = Load({whole.begin(), whole.begin() + static_cast<long>(size)});
        if (size < 23) {
            EXPECT_EQ(number, ErrInvalidFormat) << size;
        } else if (size < 267) {
            EXPECT_EQ(number, ErrSubscript) << size << ": a size of 0";
        } else if (size < gridEnd - 3) {
            EXPECT_NE(number, 0) << size;
        } else {
            // Within the later blocks a record may lack its last bytes or all of them.
            EXPECT_THAT(number, AnyOf(0, ErrSubscript, ErrPastEnd)) << size;
        }
        ReadEverything(pattern);
    }
}

TEST_F(PatternDamage, FileThatEndsBeforeItsLaterBlocksLoadsWithThoseEmpty) {
    const std::size_t whole = file.All().size();
    std::size_t size = whole - file.ids.size();
    const auto loadCut = [&] {
        const std::vector<std::uint8_t> bytes = file.All();
        return Load({bytes.begin(), bytes.begin() + static_cast<long>(size)});
    };
    EXPECT_EQ(loadCut(), 0);
    EXPECT_EQ(pattern.GetPatternIDCount(), 1);
    size -= file.orientedKnots.size();
    EXPECT_EQ(loadCut(), 0);
    EXPECT_EQ(pattern.FrenchKnots().Count(), 1U);
    size -= file.lines.size();
    EXPECT_EQ(loadCut(), 0);
    EXPECT_EQ(pattern.GetBackStitchCount(), 0);
    size -= file.plainKnots.size();
    EXPECT_EQ(loadCut(), 0);
    EXPECT_EQ(pattern.FrenchKnots().Count(), 0U);
    size -= file.dups.size();
    EXPECT_EQ(loadCut(), 0);
    EXPECT_EQ(pattern.DupStitches().Count(), 0U);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(1, 2), 2);
    size -= 4;
    EXPECT_EQ(loadCut(), ErrPastEnd);
}

TEST_F(PatternDamage, RunLengthBelowOneIsPastTheEnd) {
    for (const int length : {0, -1, -32768}) {
        file.runs.clear();
        file.PutRun(2, 2, 1);
        file.PutRun(length, 2, 1);
        EXPECT_EQ(Load(file.All()), ErrPastEnd);
    }
    EXPECT_EQ(messages.told.back().text, "Input past end of file");
}

TEST_F(PatternDamage, SizesBelowOneAndAbsurdSizes) {
    for (const auto& [width, height, number] : {std::tuple(0, 2, int{ErrSubscript}),
                                                {3, 0, ErrSubscript},
                                                {-3, 2, ErrSubscript},
                                                {32767, 32767, ErrOutOfMemory},
                                                {4001, 4000, ErrOutOfMemory}}) {
        file.width = width;
        file.height = height;
        EXPECT_EQ(Load(file.All()), number) << width << " " << height;
    }
    EXPECT_EQ(messages.told.back().text, "Out of memory");
}

TEST_F(PatternDamage, LargestGridWithinTheLimitLoads) {
    file.width = 4000;
    file.height = 4000;
    file.runs.clear();
    for (int i = 0; i < 1600; ++i) {
        file.PutRun(10000, 255, 255);
    }
    EXPECT_EQ(Load(file.All()), 0);
    EXPECT_EQ(pattern.Cells().size(), 16'000'000U);
}

TEST_F(PatternDamage, NegativeLengthsAndLengthsPastTheEnd) {
    file.properties.clear();
    PatternBytes::Put16(file.properties, -1);
    EXPECT_EQ(Load(file.All()), ErrInvalidCall);
    file.properties.clear();
    PatternBytes::Put16(file.properties, 32767);
    EXPECT_EQ(Load(file.All()), ErrPastEnd);
}

TEST_F(PatternDamage, MissingPaletteIsAnInvalidFormat) {
    file.palette.clear();
    EXPECT_NE(Load(file.All()), 0);
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 16) << "the old content stays";
}

TEST_F(PatternDamage, DupOutsideTheGridOrTwice) {
    for (const auto& [x, y] : {std::pair(0, 1), {1, 0}, {4, 1}, {1, 3}, {-1, 1}}) {
        file.dups = Count(1);
        file.PutDup(x, y, {2, 12, 255, 255, 255, 255, 255, 255});
        EXPECT_EQ(Load(file.All()), ErrSubscript) << x << "," << y;
    }
    file.dups = Count(2);
    file.PutDup(3, 2, {2, 12, 255, 255, 255, 255, 255, 255});
    file.PutDup(3, 2, {2, 12, 255, 255, 255, 255, 255, 255});
    EXPECT_EQ(Load(file.All()), ErrDuplicateKey);
}

TEST_F(PatternDamage, KnotOutsideTheLatticeOrTwice) {
    for (const auto& [lx, ly] : {std::pair(0, 1), {1, 0}, {8, 1}, {1, 6}, {-1, -1}}) {
        file.plainKnots = Count(1);
        PatternBytes::PutKnot(file.plainKnots, lx, ly, 1);
        EXPECT_EQ(Load(file.All()), ErrSubscript) << lx << "," << ly;
    }
    file.plainKnots = Count(1);
    PatternBytes::PutKnot(file.plainKnots, 7, 5, 1); // stands among the oriented ones, too
    EXPECT_EQ(Load(file.All()), ErrDuplicateKey);
}

TEST_F(PatternDamage, NegativeCountsReadNothing) {
    file.dups = Count(-1);
    file.plainKnots = Count(-2);
    file.lines = Count(-3);
    file.orientedKnots = Count(-4);
    file.ids = Count(-5);
    ASSERT_EQ(Load(file.All()), 0);
    EXPECT_TRUE(pattern.DupStitches().IsEmpty());
    EXPECT_TRUE(pattern.FrenchKnots().IsEmpty());
    EXPECT_EQ(pattern.GetBackStitchCount(), 0);
    EXPECT_EQ(pattern.GetPatternIDCount(), 1);
}

TEST_F(PatternDamage, LinesOutsideAreRefusedAndTheRestIsRead) {
    file.lines = Count(4);
    file.PutLine(9, 9, 5, 1, 1, 5, 1, 0);
    file.PutLine(1, 1, 0, 2, 2, 5, 1, 0);
    file.PutLine(0, 1, 3, 2, 2, 5, 1, 0);
    file.PutLine(1, 1, 1, 2, 2, 5, 2, 99);
    ASSERT_EQ(Load(file.All()), 0);
    ASSERT_EQ(pattern.GetBackStitchCount(), 2);
    EXPECT_EQ(pattern.GetBackStitchLine(1).StartX, 1) << "normalised";
    EXPECT_EQ(pattern.FrenchKnots().Count(), 2U);
}

TEST_F(PatternDamage, AbsurdCountsEndWithTheFile) {
    const std::int64_t absurd = 0x7FFFFFFF;
    PatternBytes damaged = file;
    damaged.orientedKnots.clear();
    damaged.ids.clear();
    damaged.lines = Count(absurd);
    EXPECT_EQ(Load(damaged.All()), 0);
    EXPECT_EQ(pattern.GetBackStitchCount(), 0);
    damaged = file;
    damaged.ids = Count(absurd);
    PatternBytes::Put32(damaged.ids, 5);
    PatternBytes::PutString(damaged.ids, "x");
    EXPECT_EQ(Load(damaged.All()), 0);
    EXPECT_EQ(pattern.GetPatternIDCount(), 1);
    EXPECT_EQ(pattern.GetPatternSource(1), "x");
    damaged = file;
    damaged.dups[0] = damaged.dups[1] = damaged.dups[2] = 0xFF;
    EXPECT_NE(Load(damaged.All()), 0);
    damaged = file;
    damaged.plainKnots = Count(absurd);
    EXPECT_NE(Load(damaged.All()), 0);
}

TEST_F(PatternDamage, FlossNumbersBeyondThePaletteAreSafe) {
    file.runs.clear();
    file.PutRun(3, 250, 1);
    file.PutRun(3, 0, 9);
    file.dups = Count(1);
    file.PutDup(3, 2, {251, 12, 252, 8, 253, 14, 254, 200});
    file.plainKnots = Count(1);
    PatternBytes::PutKnot(file.plainKnots, 2, 2, 255);
    ASSERT_EQ(Load(file.All()), 0);
    ReadEverything(pattern);
    pattern.ClearUnusedPaletteColors();
    pattern.MoveArea(1, 1, 3, 2, 1, 0);
    Pattern target = Make(5, 5);
    pattern.CopySectionToTarget(target, 1, 1, 1, 1, 3, 2, -1);
    pattern.RemoveColor(1, -1, 0, 0, 0);
    pattern.Paint(2, 1, StitchWhole, 1, 250);
    ReadEverything(pattern);
}

TEST_F(PatternDamage, EveryByteChangedNeverCrashes) {
    const std::vector<std::uint8_t> whole = file.All();
    for (std::size_t at = 55; at < whole.size(); ++at) {
        for (const std::uint8_t value :
             {std::uint8_t{0x00}, std::uint8_t{0xFF}, std::uint8_t{0x7F}, std::uint8_t{0x80}}) {
            // The high byte of a side makes grids of millions of squares; two are enough.
            const bool side = at >= 264 && at < 268;
            if (side && value != 0xFF && value != 0x00) {
                continue;
            }
            std::vector<std::uint8_t> bytes = whole;
            bytes[at] = value;
            if (Load(bytes) == 0) {
                ReadEverything(pattern);
            }
        }
    }
}

} // namespace
} // namespace zol
