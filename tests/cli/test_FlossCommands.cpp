// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "cli/CliRunner.h"

namespace zol {
namespace {

using test::CliResult;
using test::CliRunner;
using ::testing::HasSubstr;
using ::testing::StartsWith;

constexpr const char* csvHeader = "FlossID,Description,Red,Green,Blue,MasterID\n";

class FlossCommands : public ::testing::Test {
protected:
    CliResult Build(const std::string& csv) {
        return cli.Run({"catalogue", "build", cli.Write("in.csv", csv), "-o", cli.File("out.col"),
                        "--name", "Test", "--short-name", "Test", "--base-id", "7"});
    }

    CliRunner cli;
};

TEST_F(FlossCommands, CatalogueIsBuiltByteForByte) {
    ::setenv("SOURCE_DATE_EPOCH", "86400", 1);
    const CliResult result = Build(std::string(csvHeader) + "310,Black,1,2,3,258\n");
    ::unsetenv("SOURCE_DATE_EPOCH");
    ASSERT_EQ(result.exitCode, 0) << result.err;
    std::string expected =
        "Test" + std::string(26, ' ') + std::string("\x07\0\0\0", 4) + "Test" + std::string(6, ' ');
    expected += std::string(8, '?'); // the date, looked at below
    expected += std::string(2, '\0');
    expected += std::string("\x02\x01\0\0", 4) + "Black" + std::string(25, ' ') + "310" +
                std::string(7, ' ') + std::string("\x01\0\x02\0\x03\0", 6);
    const std::string built = cli.Read("out.col");
    ASSERT_EQ(built.size(), 54U + 57U);
    EXPECT_EQ(built.substr(0, 44), expected.substr(0, 44));
    EXPECT_EQ(built.substr(52, 52), expected.substr(52, 52));
    double date = 0;
    std::copy_n(built.data() + 44, sizeof date, reinterpret_cast<char*>(&date));
    EXPECT_EQ(date, 25570.0) << "2 January 1970";
}

TEST_F(FlossCommands, TwoBuildsAreEqual) {
    const std::string csv = std::string(csvHeader) + "1,One,1,2,3,4\n2,Two,5,6,7,8\n";
    ASSERT_EQ(Build(csv).exitCode, 0);
    const std::string first = cli.Read("out.col");
    const auto date = std::filesystem::last_write_time(cli.File("in.csv"));
    (void)cli.Write("in.csv", csv);
    std::filesystem::last_write_time(cli.File("in.csv"), date);
    ASSERT_EQ(cli.Run({"catalogue", "build", cli.File("in.csv"), "-o", cli.File("again.col"),
                       "--name", "Test", "--short-name", "Test", "--base-id", "7"})
                  .exitCode,
              0);
    EXPECT_EQ(cli.Read("again.col"), first);
}

TEST_F(FlossCommands, DamagedTableIsToldWithItsLineAndWritesNothing) {
    const CliResult result = Build(std::string(csvHeader) + "310,Black,1,2,300,1\n");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.err, StartsWith("korvanta-cli: Line 2: Blue \"300\" is no number"));
    EXPECT_FALSE(cli.Exists("out.col"));
    EXPECT_EQ(Build("").exitCode, 1);
}

TEST_F(FlossCommands, CatalogueGoesThroughStandardStreams) {
    const std::string csv = std::string(csvHeader) + "310,Black,1,2,3,258\n";
    const std::vector<std::string> words{"catalogue", "build",     "-",    "-o",
                                         "-",         "--name",    "Test", "--short-name",
                                         "Test",      "--base-id", "7"};
    const CliResult undated = cli.Run(words, csv);
    EXPECT_EQ(undated.exitCode, 2);
    EXPECT_THAT(undated.err, HasSubstr("SOURCE_DATE_EPOCH"));
    ::setenv("SOURCE_DATE_EPOCH", "86400", 1);
    const CliResult piped = cli.Run(words, csv);
    const CliResult built = Build(csv);
    ::unsetenv("SOURCE_DATE_EPOCH");
    EXPECT_EQ(piped.exitCode, 0) << piped.err;
    ASSERT_EQ(built.exitCode, 0) << built.err;
    EXPECT_EQ(built.out, cli.File("out.col") + ": 111 bytes\n");
    EXPECT_TRUE(piped.out == cli.Read("out.col")) << piped.out.size();
}

TEST_F(FlossCommands, DateThatIsNoNumberIsNull) {
    ASSERT_EQ(Build(std::string(csvHeader) + "310,Black,1,2,3,258\n").exitCode, 0);
    std::string bytes = cli.Read("out.col");
    const double date = std::numeric_limits<double>::quiet_NaN();
    std::copy_n(reinterpret_cast<const char*>(&date), sizeof date, bytes.data() + 44);
    EXPECT_THAT(cli.Run({"dump", cli.Write("odd.col", bytes)}).out,
                StartsWith("{\"BaseID\":7,\"Date\":null,"));
}

TEST_F(FlossCommands, InfoAndDumpTellOfCataloguesAndPalettes) {
    ASSERT_EQ(Build(std::string(csvHeader) + "310,Black,1,2,3,258\n").exitCode, 0);
    const CliResult info = cli.Run({"info", cli.File("out.col"), "--json"});
    EXPECT_EQ(info.out, "{\"baseID\":7,\"flosses\":1,\"kind\":\"catalogue\","
                        "\"name\":\"Test\",\"shortName\":\"Test\"}\n");
    EXPECT_THAT(cli.Run({"dump", cli.File("out.col")}).out,
                HasSubstr("\"FlossID\":\"310\",\"Green\":2,\"MasterID\":258,\"Red\":1"));
    std::string palette = "Korvanta 6 Floss Palette!";
    palette += std::string(2, '\0') + std::string(2, '\0') + std::string("\x01\0A\0\0\0\0", 7);
    EXPECT_EQ(cli.Run({"info", cli.Write("a.fls", palette), "--json"}).out,
              "{\"flosses\":0,\"kind\":\"palette\",\"symbolFont\":\"A\"}\n");
    const CliResult damaged = cli.Run({"info", cli.Write("b.fls", "no palette")});
    EXPECT_EQ(damaged.exitCode, 1);
    EXPECT_THAT(damaged.err, StartsWith("korvanta-cli: Invalid File Format"));
}

TEST_F(FlossCommands, UsageComesAsTableCsvAndJson) {
    const std::string file =
        cli.Pattern("p.pat", "SetStitch 1 1 1 1 0\nSetBackstitchLine 1 1 1 14 1 3 2 0\n"
                             "SetFlossDesc 1 \"ink, black\"\n");
    const CliResult csv = cli.Run({"usage", file, "--csv"});
    EXPECT_EQ(csv.out, "Floss ID,Description,Stitches,Back Stitch (Inches),Skeins\n"
                       "DMC 310,\"ink, black\",1,0.0,0.1\n"
                       "DMC 820,royal blue - vy dk,0,1.0,0.1\n");
    const CliResult json = cli.Run({"usage", file, "--json"});
    EXPECT_THAT(json.out, StartsWith("{\"flosses\":[{\"backStitch\":0.0,\"description\":"
                                     "\"ink, black\",\"flossID\":\"DMC 310\",\"skeins\":"));
    const CliResult table = cli.Run({"usage", file});
    EXPECT_THAT(table.out, HasSubstr("DMC 310   ink, black "));
    EXPECT_EQ(cli.Run({"usage", file, "--csv", "--json"}).exitCode, 2);
}

TEST_F(FlossCommands, LegendIsRichTextOfFactsAndKey) {
    const std::string file = cli.Pattern(
        "p.pat", "Initialize 28 14 14 14\nSetTitle \"Caf\u00e9\"\nSetStitch 1 1 1 3 0\n");
    const CliResult result = cli.Run({"legend", file, "-o", cli.File("out.rtf")});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.out + result.err, "");
    const std::string rtf = cli.Read("out.rtf");
    EXPECT_THAT(rtf, StartsWith("{\\rtf1\\ansi"));
    EXPECT_THAT(rtf, HasSubstr("\\b \\tab Title:\\b0 \\tab Caf\\'e9\\par"));
    EXPECT_THAT(rtf, HasSubstr("28 W  x  14 H"));
    EXPECT_THAT(rtf, HasSubstr(" Key\\par"));
    EXPECT_EQ(cli.Run({"legend", file, "-o", "-"}).out, rtf);
}

TEST_F(FlossCommands, WrongLegendRequestsAreRefused) {
    const std::string file = cli.Pattern("p.pat", "SetStitch 1 1 1 3 0\n");
    EXPECT_EQ(cli.Run({"legend", file}).exitCode, 2);
    EXPECT_EQ(cli.Run({"legend", "-o", cli.File("x.rtf")}).exitCode, 2);
    EXPECT_EQ(cli.Run({"legend", cli.File("none.pat"), "-o", cli.File("x.rtf")}).exitCode, 1);
    EXPECT_EQ(cli.Run({"legend", file, "-o", "/dev/full"}).exitCode, 1);
    EXPECT_EQ(cli.Run({"legend", file, "-o", cli.File("none/x.rtf")}).exitCode, 1);
    EXPECT_FALSE(cli.Exists("x.rtf"));
}

} // namespace
} // namespace zol
