// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <cstdlib>
#include <filesystem>
#include <map>
#include <sstream>

#include "model/ModelTestKit.h"
#include "model/PatternBytes.h"
#include "model/PatternChecksum.h"
#include "model/RunTimeError.h"
#include "support/TempFolder.h"

namespace zol {
namespace {

using test::ModelTest;
using test::PatternBytes;
using test::StitchesAt;
using ::testing::ElementsAre;
using ::testing::Pair;

class PatternFormat : public ModelTest {
protected:
    int Load(const std::vector<std::uint8_t>& bytes) {
        ByteReader reader(bytes);
        return pattern.Load("name", reader, 0, 0);
    }
    std::vector<std::uint8_t> Save() {
        ByteWriter writer;
        EXPECT_EQ(pattern.Save("name", writer, 0), 0);
        return writer.Take();
    }
    /// The runs of a pattern as (length, floss, kind), read from its stream.
    std::vector<std::array<int, 3>> Runs() {
        pattern.GetPalette().ClearPalette();
        pattern.GetPalette().SetSymbolFont("", false, false);
        pattern.Title.clear();
        const std::vector<std::uint8_t> bytes = Save();
        ByteReader reader(bytes);
        const int makers = pattern.GetPalette().GetManufacturerCount();
        reader.Seek(264 + 8 + 10 + 25 + 2 + static_cast<unsigned>(makers) * 40 + 2 + 2 + 4 + 1);
        std::vector<std::array<int, 3>> runs;
        int left = pattern.GetPatternWidth() * pattern.GetPatternHeight();
        while (left > 0) {
            const int length = reader.ReadI16();
            const int floss = reader.ReadU8();
            runs.push_back({length, floss, reader.ReadU8()});
            left -= length;
        }
        return runs;
    }

    Pattern pattern = Make(1, 1);
};

TEST_F(PatternFormat, ReadsEveryBlockOfAStreamWrittenByHand) {
    ASSERT_EQ(Load(PatternBytes().All()), 0);
    EXPECT_EQ(pattern.GetPatternWidth(), 3);
    EXPECT_EQ(pattern.GetPatternHeight(), 2);
    EXPECT_EQ(pattern.GetPatternClothCountX(), 14);
    EXPECT_EQ(pattern.GetPatternClothCountY(), 16);
    EXPECT_EQ(pattern.Author, "Ann");
    EXPECT_EQ(pattern.Copyright, "(c) Ann");
    EXPECT_EQ(pattern.Title, "Rose");
    EXPECT_EQ(pattern.Fabric, "Aida");
    EXPECT_EQ(pattern.Instructions, "Use two strands.");
    EXPECT_EQ(pattern.FileName, "name");
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 2);
    EXPECT_EQ(pattern.GetPalette().GetManufID(2), "666");
    EXPECT_EQ(pattern.GetPalette().GetFontName(), "Some Font");
    EXPECT_EQ(test::Dump(pattern), "3x2\n"
                                   "1,1 1/2/2\n"
                                   "1,2 1/2/0\n"
                                   "2,1 255/255/2\n"
                                   "3,2 9/1/3\n"
                                   "dup 3,2 12/2 255/255 255/255 255/255\n"
                                   "knot 3,2 1/0\n"
                                   "knot 7,5 2/3\n"
                                   "line 1 1 1 3 2 9 2 4 \n");
    EXPECT_EQ(pattern.GetPatternIDCount(), 2);
    EXPECT_EQ(pattern.GetPatternID(1), 0x01020304U);
    EXPECT_EQ(pattern.GetPatternSource(1), "Shop");
    EXPECT_EQ(pattern.GetPatternID(2), 77U);
    EXPECT_EQ(pattern.GetPatternSource(2), "") << "a blank source is not stored";
    EXPECT_EQ(pattern.GetHeader().Version, 60416);
    EXPECT_FALSE(pattern.IsChanged());
    EXPECT_TRUE(messages.told.empty());
}

TEST_F(PatternFormat, WritesTheSameBytesAgainWithTheChecksumInItsField) {
    PatternBytes told;
    // What is written differs from what was read in three places: the runs are split beside a
    // knot, a blank source is empty, and the checksum is worked out.
    told.runs.clear();
    told.PutRun(2, 2, 1);
    told.PutRun(1, 255, 255);
    told.PutRun(2, 255, 255);
    told.PutRun(1, 1, 9);
    told.ids.resize(told.ids.size() - 4);
    PatternBytes::PutString(told.ids, "");
    std::vector<std::uint8_t> expected = told.All();
    told.checksum = PatternBytes::SumOf(expected);
    expected = told.All();
    ASSERT_EQ(Load(PatternBytes().All()), 0);
    EXPECT_EQ(Save(), expected);
}

TEST_F(PatternFormat, LoadingAndSavingKeepsReservedFieldsWhileTheVersionIsTheWriters) {
    PatternBytes file;
    file.version = 60300;
    file.flags = 2 | 32 | 16;
    ASSERT_EQ(Load(file.All()), 0);
    EXPECT_FALSE(pattern.AllowFlossMapping());
    EXPECT_EQ(pattern.GetHeader().Version, 60300);
    const std::vector<std::uint8_t> saved = Save();
    file.version = 60416;
    file.flags = 2 | 16; // unknown bits are 0 in a stream
    file.checksum = PatternBytes::SumOf(saved);
    const std::vector<std::uint8_t> header = file.Header();
    EXPECT_EQ(std::vector<std::uint8_t>(saved.begin(), saved.begin() + 264), header);
}

TEST_F(PatternFormat, HeaderTextIsPaddedWithBlanks) {
    const std::vector<std::uint8_t> saved = Save();
    const std::string text(saved.begin(), saved.begin() + 55);
    EXPECT_EQ(text, "Korvanta 6 Pattern File" + std::string(32, ' '));
}

TEST_F(PatternFormat, OneEmptySquareIsOneRun) {
    EXPECT_THAT(Runs(), ElementsAre(std::array<int, 3>{1, 255, 255}));
}

TEST_F(PatternFormat, TwentyThousandEmptySquaresAreTwoFullRuns) {
    pattern.Initialize(200, 100, 14, 14);
    EXPECT_THAT(Runs(), ElementsAre(std::array<int, 3>{10000, 255, 255},
                                    std::array<int, 3>{10000, 255, 255}));
}

TEST_F(PatternFormat, RunsContinueOverColumnEnds) {
    pattern.Initialize(2, 3, 14, 14);
    pattern.SetStitch(1, 3, StitchWhole, 5, 0);
    pattern.SetStitch(2, 1, StitchWhole, 5, 0);
    EXPECT_THAT(Runs(), ElementsAre(std::array<int, 3>{2, 255, 255}, std::array<int, 3>{2, 5, 1},
                                    std::array<int, 3>{2, 255, 255}));
}

TEST_F(PatternFormat, KnotOnAnEmptySquareLeavesTheRunEmptyAndComesBack) {
    pattern.Initialize(1, 3, 14, 14);
    pattern.SetStitch(1, 2, StitchFKnot, 4, 5);
    EXPECT_THAT(Runs(),
                ElementsAre(std::array<int, 3>{1, 255, 255}, std::array<int, 3>{1, 255, 255},
                            std::array<int, 3>{1, 255, 255}));
    ASSERT_EQ(Load(Save()), 0);
    EXPECT_EQ(pattern.GetStitchType(1, 2, 0), StitchFKnot);
    EXPECT_EQ(pattern.GetStitchColorIndex(1, 2, 0), 4);
}

TEST_F(PatternFormat, PlainKnotsComeBackBeforeOrientedOnes) {
    pattern.Initialize(9, 9, 14, 14);
    const std::array<int, 5> styles{3, 0, 1, 0, 4};
    for (int i = 0; i < 5; ++i) {
        context.FrenchKnotStyle = static_cast<std::uint8_t>(styles[static_cast<std::size_t>(i)]);
        pattern.SetStitch(i + 1, 1, StitchFKnot, i + 1, 5);
    }
    ASSERT_EQ(Load(Save()), 0);
    std::vector<int> flosses;
    pattern.FrenchKnots().ForEach(
        [&flosses](const FrenchKnot& knot) { flosses.push_back(knot.GetPaletteIndex()); });
    EXPECT_THAT(flosses, ElementsAre(2, 4, 1, 3, 5));
    EXPECT_EQ(pattern.GetFrenchKnotOrientation(5, 1, 0), 4);
}

TEST_F(PatternFormat, VersionBelow50200HasNeitherOrientedKnotsNorIDs) {
    PatternBytes file;
    file.version = 50199;
    ASSERT_EQ(Load(file.All()), 0);
    EXPECT_EQ(pattern.FrenchKnots().Count(), 1U);
    EXPECT_EQ(pattern.GetPatternIDCount(), 1) << "the header's own";
    EXPECT_EQ(pattern.GetPatternID(1), 0x01020304U);
}

TEST_F(PatternFormat, VersionBelow60300HasNoIDBlock) {
    PatternBytes file;
    file.version = 60299;
    ASSERT_EQ(Load(file.All()), 0);
    EXPECT_EQ(pattern.FrenchKnots().Count(), 2U);
    EXPECT_EQ(pattern.GetPatternIDCount(), 1);
    EXPECT_EQ(pattern.GetPatternSource(1), "");
}

TEST_F(PatternFormat, VersionOfFourBlanksSkipsOrientedKnotsYetReadsIDs) {
    PatternBytes file;
    file.version = 0x20202020;
    file.orientedKnots.clear();
    ASSERT_EQ(Load(file.All()), 0);
    EXPECT_EQ(pattern.FrenchKnots().Count(), 1U);
    EXPECT_EQ(pattern.GetPatternIDCount(), 2);
    EXPECT_EQ(pattern.GetPatternSource(1), "Shop");
}

TEST_F(PatternFormat, IDCountOfZeroKeepsTheHeadersID) {
    PatternBytes file;
    file.ids.assign(4, 0);
    ASSERT_EQ(Load(file.All()), 0);
    ASSERT_EQ(pattern.GetPatternIDCount(), 1);
    EXPECT_EQ(pattern.GetPatternID(1), 0x01020304U);
    file.firstPatternID = 0;
    ASSERT_EQ(Load(file.All()), 0);
    EXPECT_EQ(pattern.GetPatternIDCount(), 0);
}

TEST_F(PatternFormat, ChecksumLeavesItsOwnFieldOut) {
    std::vector<std::uint8_t> bytes(300, 1);
    EXPECT_EQ(ComputeChecksum(bytes), 296);
    for (std::size_t i = 260; i < 264; ++i) {
        bytes[i] = 200;
    }
    EXPECT_EQ(ComputeChecksum(bytes), 296);
    EXPECT_EQ(ComputeChecksum(std::span(bytes).first(262)), 260);
    EXPECT_EQ(ComputeChecksum(std::span(bytes).first(0)), 0);
    std::fill(bytes.begin(), bytes.end(), std::uint8_t{255});
    EXPECT_EQ(ComputeChecksum(bytes), 296 * 255);
}

TEST_F(PatternFormat, ChecksumOfAFileCountsFromTheOffsetToTheEnd) {
    std::vector<std::uint8_t> bytes(100'000);
    std::mt19937 random(9);
    for (std::uint8_t& byte : bytes) {
        byte = static_cast<std::uint8_t>(random());
    }
    const std::string text(bytes.begin(), bytes.end());
    std::istringstream file(text);
    ByteReader reader(file);
    reader.Seek(77);
    EXPECT_EQ(ComputeChecksum(reader, 1, 0), ComputeChecksum(bytes));
    EXPECT_EQ(ComputeChecksum(reader, 1001, 0), ComputeChecksum(std::span(bytes).subspan(1000)));
    EXPECT_EQ(ComputeChecksum(reader, 1001, 70'000),
              ComputeChecksum(std::span(bytes).subspan(1000, 69'000)));
    EXPECT_EQ(ComputeChecksum(reader, 1001, 1000), 0);
    EXPECT_EQ(reader.Position(), 77U);
}

TEST_F(PatternFormat, ChecksumIsTestedOnlyWithFlagFourOrEight) {
    PatternBytes file;
    file.checksum = 12345;
    EXPECT_EQ(Load(file.All()), 0);
    for (const int flag : {4, 8, 12}) {
        file.flags = flag;
        file.checksum = 12345;
        EXPECT_EQ(Load(file.All()), ErrChecksumMismatch);
        file.checksum = PatternBytes::SumOf(file.All());
        EXPECT_EQ(Load(file.All()), 0);
    }
    EXPECT_TRUE(messages.told.empty()) << "the caller words a wrong checksum";
}

TEST_F(PatternFormat, SavedStreamPassesItsOwnChecksum) {
    PatternBytes file;
    file.flags = 4;
    file.checksum = PatternBytes::SumOf(file.All());
    ASSERT_EQ(Load(file.All()), 0);
    pattern.SetStitch(1, 2, StitchTBH, 2, 0);
    const std::vector<std::uint8_t> saved = Save();
    EXPECT_EQ(Load(saved), 0);
    std::vector<std::uint8_t> damaged = saved;
    damaged[300] ^= 1;
    EXPECT_EQ(Load(damaged), ErrChecksumMismatch);
}

TEST_F(PatternFormat, TextGoesThroughTheCodePage) {
    pattern.Title = "Fl\u00F6tenspiel \u20AC";
    pattern.Instructions = std::string(32767, 'x');
    ASSERT_EQ(Load(Save()), 0);
    EXPECT_EQ(pattern.Title, "Fl\u00F6tenspiel \u20AC");
    EXPECT_EQ(pattern.Instructions.size(), 32767U);
}

TEST_F(PatternFormat, RunThatPassesTheLastSquareIsCut) {
    PatternBytes file;
    file.runs.clear();
    file.PutRun(20000, 2, 1);
    ASSERT_EQ(Load(file.All()), 0);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(3, 1), 2);
    EXPECT_EQ(pattern.DupStitches().Count(), 1U);
}

TEST_F(PatternFormat, KindsThatAreNotStoredLeaveTheSquareEmpty) {
    for (const int kind : {255, 8, 14, 15}) {
        PatternBytes file;
        file.runs.clear();
        file.PutRun(2, 2, kind);
        file.PutRun(4, 1, 1);
        ASSERT_EQ(Load(file.All()), 0);
        EXPECT_EQ(pattern.Cell(1, 2), StitchCell{}) << kind;
        EXPECT_EQ(pattern.Cell(2, 2).StitchType, 1);
    }
}

TEST_F(PatternFormat, RunsGiveWhatSetStitchGivesForEveryKindAndFloss) {
    for (int kind = 0; kind < 256; ++kind) {
        PatternBytes file;
        file.runs.clear();
        file.PutRun(6, kind == 255 ? 255 : 200, kind);
        file.dups.assign(4, 0);
        file.plainKnots.assign(4, 0);
        file.orientedKnots.assign(4, 0);
        ASSERT_EQ(Load(file.All()), 0);
        Pattern plain = Make(3, 2);
        plain.SetStitch(2, 1, kind, kind == 255 ? 255 : 200, 0);
        EXPECT_EQ(pattern.Cell(2, 1), plain.Cell(2, 1)) << kind;
    }
}

/// Streams that the fuzz target starts from. They are written to KORVANTA_CORPUS_DIR/pattern when
/// that names a corpus ("fuzz/corpus" in the sources), and load in any case.
TEST_F(PatternFormat, SeedsOfTheFuzzTargetLoad) {
    std::map<std::string, std::vector<std::uint8_t>> seeds;
    PatternBytes file;
    seeds["every-block.pat"] = file.All();
    file.flags = 4;
    file.checksum = PatternBytes::SumOf(file.All());
    seeds["checksum.pat"] = file.All();
    file.flags = 0;
    file.version = 0x20202020;
    file.orientedKnots.clear();
    seeds["four-blanks.pat"] = file.All();
    file.version = 50199;
    seeds["early.pat"] = file.All();
    pattern.Initialize(6, 5, 14, 14);
    std::mt19937 random(4);
    test::Scatter(pattern, random, 40, 6, 4, 16);
    seeds["scattered.pat"] = Save();
    const char* corpus = std::getenv("KORVANTA_CORPUS_DIR");
    for (const auto& [name, bytes] : seeds) {
        EXPECT_EQ(Load(bytes), 0) << name;
        if (corpus != nullptr) {
            const std::filesystem::path folder = std::filesystem::path(corpus) / "pattern";
            std::filesystem::create_directories(folder);
            test::WriteFile(folder / name, std::string(bytes.begin(), bytes.end()));
        }
    }
}

TEST_F(PatternFormat, RandomPatternsComeBackEqual) {
    for (unsigned seed = 1; seed <= 25; ++seed) {
        std::mt19937 random(seed);
        Pattern original =
            Make(1 + static_cast<int>(random() % 40), 1 + static_cast<int>(random() % 40));
        test::Scatter(original, random, 700, 60, 30, 16);
        ByteWriter writer;
        ASSERT_EQ(original.Save("a", writer, 0), 0);
        ASSERT_EQ(Load(writer.Bytes()), 0);
        // Plain knots come first now, and a flag that was lost is back: a second round is exact.
        const std::vector<std::uint8_t> first = Save();
        const std::string dump = test::Dump(pattern);
        ASSERT_EQ(Load(first), 0);
        ASSERT_EQ(test::Dump(pattern), dump);
        ASSERT_EQ(test::KnotPoints(pattern), test::KnotPoints(original));
        for (int x = 1; x <= original.GetPatternWidth(); ++x) {
            for (int y = 1; y <= original.GetPatternHeight(); ++y) {
                ASSERT_EQ(StitchesAt(pattern, x, y), StitchesAt(original, x, y));
            }
        }
        test::CheckInvariants(pattern);
    }
}

} // namespace
} // namespace zol
