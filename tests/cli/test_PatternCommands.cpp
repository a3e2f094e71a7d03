// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include "cli/CliRunner.h"
#include "model/Pattern.h"
#include "support/TestFiles.h"

namespace zol {
namespace {

using test::CliResult;
using test::CliRunner;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

class PatternCommands : public ::testing::Test {
protected:
    CliRunner cli;
};

TEST_F(PatternCommands, HelpAndVersionSucceed) {
    const CliResult help = cli.RunBare({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_THAT(help.out, HasSubstr("Commands:"));
    EXPECT_EQ(cli.RunBare({"--version"}).out, "korvanta-cli 6.4.16\n");
    EXPECT_THAT(cli.RunBare({"info", "--help"}).out, HasSubstr("info FILE [--json]"));
    for (const std::vector<std::string>& options : {std::vector<std::string>{"--quiet"},
                                                    {"--app-path", "D"},
                                                    {"--settings", "S", "--quiet"}}) {
        std::vector<std::string> words = options;
        words.emplace_back("--help");
        EXPECT_EQ(cli.RunBare(words).out, help.out);
        words.back() = "--version";
        EXPECT_EQ(cli.RunBare(words).out, "korvanta-cli 6.4.16\n");
    }
}

TEST_F(PatternCommands, WrongUsageExitsWithTwo) {
    for (const std::vector<std::string>& words : {std::vector<std::string>{},
                                                  {"embroider"},
                                                  {"info"},
                                                  {"info", "a", "b"},
                                                  {"info", "--yaml", "a"},
                                                  {"edit", "-o", "x.pat"},
                                                  {"edit", "-", "--script", "-", "-o", "x.pat"},
                                                  {"edit", "--script", "-", "-o", "-", "--dump"},
                                                  {"--quiet", "--yaml", "--help"},
                                                  {"--app-path"}}) {
        const CliResult result = cli.RunBare(words);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_THAT(result.err, StartsWith("korvanta-cli: "));
    }
}

TEST_F(PatternCommands, MissingFileIsToldAsTheLastBoxWould) {
    const std::string name = cli.File("none.pat");
    const CliResult result = cli.Run({"info", name});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.err, "korvanta-cli: Error Code -10 opening " + name + " [The file " + name +
                              " does not exist. Open Failed.]\n");
    EXPECT_THAT(result.out, IsEmpty());
}

TEST_F(PatternCommands, DumpIsCanonical) {
    const std::string file =
        cli.Pattern("p.pat", "Initialize 2 1 10 10\nSetStitch 1 1 6 1 0\nSetStitch 1 1 10 2 0\n"
                             "SetStitch 2 1 8 3 5\nSetBackstitchLine 1 1 1 1 1 3 1 2\n"
                             "AddPatternID 5 \"here\"\n");
    const CliResult result = cli.Run({"dump", file});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.out, StartsWith("{\"allowFlossMapping\":true,\"author\":\"\",\"cells\":"
                                       "[[1,1,6,1,1],[2,1,255,255,2]],\"clothCountX\":10,"
                                       "\"clothCountY\":10,\"copyright\":\"\",\"counts\":"
                                       "{\"lineLengths\":[0.1,"));
    EXPECT_THAT(result.out, HasSubstr("\"dups\":[[1,1,[2,255,255,255],[10,255,255,255]]]"));
    EXPECT_THAT(result.out, HasSubstr("\"ids\":[[5,\"here\"]]"));
    EXPECT_THAT(result.out, HasSubstr("\"knots\":[[4,2,0,3]]"));
    EXPECT_THAT(result.out, HasSubstr("\"lines\":[[1,1,1,1,1,3,1,2]]"));
    EXPECT_THAT(result.out, HasSubstr("\"stitchLengths\":[0.141421,0.070711,0.424264,0.0,"));
    EXPECT_THAT(result.out, HasSubstr("\"symbolFont\":[\"Korvanta Symbols\",false,false],"
                                      "\"title\":\"\",\"width\":2}\n"));
}

TEST_F(PatternCommands, EditDumpsWhatItSaved) {
    const std::string script = cli.Write("s", "SetStitch 1 1 1 1 0\n");
    const CliResult edited =
        cli.Run({"edit", "--script", script, "-o", cli.File("a.pat"), "--dump"});
    EXPECT_EQ(edited.exitCode, 0);
    EXPECT_EQ(edited.out, cli.Run({"dump", cli.File("a.pat")}).out);
}

TEST_F(PatternCommands, WrongScriptSavesNothing) {
    const std::string script = cli.Write("s", "SetStitch 1 1 1 1 0\nOops\n");
    const CliResult result = cli.Run({"edit", "--script", script, "-o", cli.File("a.pat")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.err, "korvanta-cli: line 2: unknown operation Oops\n");
    EXPECT_THAT(cli.Names(), ElementsAre("s"));
}

TEST_F(PatternCommands, PatternsFlowThroughStandardStreams) {
    const std::string file = cli.Pattern("p.pat", "SetStitch 3 3 1 1 0\n");
    const CliResult copied = cli.Run({"convert", "-", "-"}, cli.Read("p.pat"));
    EXPECT_EQ(copied.exitCode, 0) << copied.err;
    EXPECT_EQ(copied.out, cli.Read("p.pat"));
    const CliResult edited = cli.Run({"edit", file, "--script", "-", "-o", "-"}, "");
    EXPECT_EQ(edited.out, cli.Read("p.pat"));
}

TEST_F(PatternCommands, ConvertKnowsTheFormatByTheName) {
    const std::string file = cli.Pattern("p.pat", "SetStitch 3 3 1 1 0\n");
    EXPECT_EQ(cli.Run({"convert", file, cli.File("p.bpt")}).exitCode, 0);
    EXPECT_EQ(cli.Read("p.bpt"), cli.Read("p.pat"));
    const CliResult result = cli.Run({"convert", file, cli.File("p.jpg")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_FALSE(cli.Exists("p.jpg"));
}

TEST_F(PatternCommands, NewPatternHasTheBuiltInPaletteAlone) {
    (void)cli.Pattern("plain.pat", "SetTitle \"\"\n");
    const std::string makers = cli.Pattern(
        "own.pat", "AddPaletteEntry 0 \"1\" \"d\" \"Own\" \"\" 2 1 0 0 0 \"My own threads\"\n");
    ProgramContext context;
    Pattern own(context);
    ASSERT_EQ(own.Load(makers), 0);
    ASSERT_EQ(own.GetPalette().SaveToDisk(cli.InProgramFolder("Default.fls")), 0);
    (void)cli.Pattern("again.pat", "SetTitle \"\"\n");
    EXPECT_EQ(cli.Read("again.pat"), cli.Read("plain.pat"));
}

TEST_F(PatternCommands, WhatWasToldAtTheStartIsNoReasonForALaterFailure) {
    test::WriteFile(cli.InProgramFolder("Default.fls"), "no palette at all, and told so");
    const std::string cut = cli.Write("cut.pat", "Dear diary");
    EXPECT_THAT(cli.Run({"info", cut}).err, Not(HasSubstr("Invalid File Format")));
}

TEST_F(PatternCommands, FullDiskLeavesNoFileAndSaysSo) {
    const std::string script = cli.Write("s", "SetStitch 1 1 1 1 0\n");
    const CliResult result = cli.Run({"edit", "--script", script, "-o", "/dev/full"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.err, "korvanta-cli: error saving pattern: 61 [Disk full]\n");
}

TEST_F(PatternCommands, UnwritableFolderIsToldAndTheOldFileStays) {
    const std::string script = cli.Write("s", "SetStitch 1 1 1 1 0\n");
    const CliResult result =
        cli.Run({"edit", "--script", script, "-o", cli.File("s") + "/below.pat"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(cli.Read("s"), "SetStitch 1 1 1 1 0\n");
    EXPECT_THAT(cli.Names(), ElementsAre("s"));
}

TEST_F(PatternCommands, DamagedPatternsAreToldAndNeverCrash) {
    (void)cli.Pattern("p.pat", "SetStitch 1 1 1 1 0\nSetStitch 1 1 8 1 9\n");
    const std::string whole = cli.Read("p.pat");
    for (const std::size_t length : {std::size_t{0}, std::size_t{10}, std::size_t{100},
                                     std::size_t{264}, std::size_t{280}, whole.size() / 2}) {
        const std::string cut = cli.Write("cut.pat", whole.substr(0, length));
        const CliResult result = cli.Run({"info", cut});
        EXPECT_EQ(result.exitCode, 1) << length;
        EXPECT_THAT(result.err, StartsWith("korvanta-cli: Error Code ")) << length;
    }
    const CliResult other = cli.Run({"info", cli.Write("text.pat", "Dear diary")});
    EXPECT_EQ(other.exitCode, 1);
    EXPECT_THAT(other.err, HasSubstr("Error Code 321 opening "));
}

TEST_F(PatternCommands, KindsThatCannotBeReadYetSaySo) {
    for (const char* name : {"a.stf", "a.plb"}) {
        const CliResult result = cli.Run({"info", cli.Write(name, "x")});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.err, HasSubstr("which this version cannot read"));
    }
}

TEST_F(PatternCommands, OutputThatCannotBeWrittenFails) {
    const std::string file = cli.Pattern("p.pat", "SetStitch 1 1 1 1 0\n");
    for (const std::vector<std::string>& words : {std::vector<std::string>{"info", file},
                                                  {"info", file, "--json"},
                                                  {"dump", file},
                                                  {"usage", file},
                                                  {"convert", file, "-"},
                                                  {"legend", file, "-o", "-"}}) {
        const CliResult result = cli.RunInto("/dev/full", words);
        EXPECT_EQ(result.exitCode, 1) << words[0];
        EXPECT_EQ(result.err, "korvanta-cli: standard output cannot be written\n") << words[0];
    }
}

TEST_F(PatternCommands, InfoTellsOfPatterns) {
    const std::string file = cli.Pattern("p.pat", "SetStitch 1 1 1 1 0\n");
    EXPECT_THAT(cli.Run({"info", file, "--json"}).out,
                HasSubstr("\"kind\":\"pattern\",\"knots\":0,\"lines\":0,"
                          "\"release\":\"6.4.16\",\"stitches\":1"));
}

} // namespace
} // namespace zol
