// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <QImage>

#include <algorithm>

#include "cli/CliRunner.h"

namespace zol {
namespace {

using test::CliResult;
using test::CliRunner;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class PictureCommands : public ::testing::Test {
protected:
    PictureCommands() {
        (void)cli.Write("floss.csv", "FlossID,Description,Red,Green,Blue,MasterID\n"
                                     "1,Black,0,0,0,1\n2,Red,255,0,0,2\n3,Green,0,255,0,3\n"
                                     "4,White,255,255,255,4\n");
        EXPECT_EQ(cli.Run({"catalogue", "build", cli.File("floss.csv"), "-o", Catalogue(), "--name",
                           "Four", "--short-name", "Four", "--base-id", "0"})
                      .exitCode,
                  0);
    }

    [[nodiscard]] std::string Catalogue() const { return cli.File("floss.col"); }

    /// Left half red, right half green, an erased corner, a white one.
    [[nodiscard]] std::string Picture() const {
        QImage image(8, 4, QImage::Format_ARGB32);
        image.fill(qRgba(255, 0, 0, 255));
        for (int x = 4; x < 8; ++x) {
            for (int y = 0; y < 4; ++y) {
                image.setPixel(x, y, qRgba(0, 255, 0, 255));
            }
        }
        image.setPixel(0, 0, qRgba(0, 0, 0, 0));
        image.setPixel(7, 3, qRgba(255, 255, 255, 255));
        std::string file = cli.File("picture.png");
        EXPECT_TRUE(image.save(QString::fromStdString(file)));
        return file;
    }

    CliResult Import(const std::vector<std::string>& more) const {
        std::vector<std::string> words{"import",      Picture(),  "-o", cli.File("out.pat"),
                                       "--catalogue", Catalogue()};
        words.insert(words.end(), more.begin(), more.end());
        return cli.Run(words);
    }

    [[nodiscard]] QImage Rendered(const std::string& name) const {
        return QImage(QString::fromStdString(cli.File(name)));
    }

    CliRunner cli;
};

TEST_F(PictureCommands, PixelsBecomeStitchesUnchangedAtTheirOwnSize) {
    const CliResult result = Import({"--width", "8", "--height", "4", "--no-smooth"});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("8 x 4 squares, 3 flosses, 31 stitches"));
    const std::string dump = cli.Run({"dump", cli.File("out.pat")}).out;
    EXPECT_THAT(dump, HasSubstr("\"cells\":[[1,2,1,1,0],[1,3,1,1,0],[1,4,1,1,0],[2,1,1,1,0]"));
    EXPECT_THAT(dump, HasSubstr("[8,3,1,2,0],[8,4,1,3,0]]"));
    EXPECT_THAT(dump, HasSubstr("\"FlossID\":\"4\""));
    EXPECT_EQ(dump.find("\"Black\",\"DisplayDescription\""), std::string::npos)
        << "a floss that won no pixel is left out";
}

TEST_F(PictureCommands, OneSideAloneKeepsTheAspectAndNoneIsAHundredWide) {
    ASSERT_EQ(Import({"--width", "40"}).exitCode, 0);
    EXPECT_THAT(cli.Run({"info", cli.File("out.pat")}).out, HasSubstr("40 x 20 squares"));
    ASSERT_EQ(Import({"--height", "10"}).exitCode, 0);
    EXPECT_THAT(cli.Run({"info", cli.File("out.pat")}).out, HasSubstr("20 x 10 squares"));
    ASSERT_EQ(Import({}).exitCode, 0);
    EXPECT_THAT(cli.Run({"info", cli.File("out.pat")}).out, HasSubstr("100 x 50 squares"));
    ASSERT_EQ(Import({"--width", "2", "--units", "inches", "--cloth-count", "16"}).exitCode, 0);
    EXPECT_THAT(cli.Run({"info", cli.File("out.pat")}).out, HasSubstr("32 x 16 squares"));
    ASSERT_EQ(Import({"--width", "2.54", "--units", "centimetres"}).exitCode, 0);
    EXPECT_THAT(cli.Run({"info", cli.File("out.pat")}).out, HasSubstr("14 x 7 squares"));
}

TEST_F(PictureCommands, CropTakesAPartOfThePicture) {
    ASSERT_EQ(Import({"--crop", "4,0,4,2", "--width", "4", "--no-smooth"}).exitCode, 0);
    const std::string info = cli.Run({"info", cli.File("out.pat"), "--json"}).out;
    EXPECT_THAT(info, HasSubstr("\"flossesUsed\":1,\"height\":2"));
    EXPECT_EQ(Import({"--crop", "99,0,4,2"}).exitCode, 1);
    EXPECT_EQ(Import({"--crop", "1,2,3"}).exitCode, 2);
}

TEST_F(PictureCommands, MaxColorsOutsideIsTheWizardsMessage) {
    EXPECT_EQ(Import({"--max-colors", "0"}).err,
              "korvanta-cli: Pattern must contain at least one color\n");
    EXPECT_EQ(Import({"--max-colors", "201"}).err,
              "korvanta-cli: Pattern can contain no more than 200 colors\n");
    for (const char* number : {"201", "40000", "9000000000", "-40000"}) {
        const CliResult result = Import({"--max-colors", number});
        EXPECT_EQ(result.exitCode, 1) << number;
        EXPECT_EQ(result.err, number[0] == '-'
                                  ? "korvanta-cli: Pattern must contain at least one color\n"
                                  : "korvanta-cli: Pattern can contain no more than 200 colors\n");
    }
    EXPECT_EQ(Import({"--width", "0"}).err,
              "korvanta-cli: Pattern width must be greater than zero\n");
    EXPECT_FALSE(cli.Exists("out.pat"));
}

TEST_F(PictureCommands, AdjustmentsAreCheckedAndDone) {
    for (const std::vector<std::string>& wrong : {std::vector<std::string>{"--brightness", "101"},
                                                  {"--hue", "-1"},
                                                  {"--gamma", "9"},
                                                  {"--contrast", "much"},
                                                  {"--units", "miles"},
                                                  {"--grey=1"}}) {
        EXPECT_EQ(Import(wrong).exitCode, 2) << wrong[0];
    }
    ASSERT_EQ(Import({"--hue", "120", "--width", "8", "--no-smooth"}).exitCode, 0);
    const std::string dump = cli.Run({"dump", cli.File("out.pat")}).out;
    EXPECT_THAT(dump, HasSubstr("\"Description\":\"Green\""));
    ASSERT_EQ(Import({"--grey", "--contrast", "100", "--width", "8"}).exitCode, 0);
}

TEST_F(PictureCommands, DamagedPicturesAreToldAndWriteNothing) {
    const std::string whole = test::ReadFile(Picture());
    std::filesystem::remove(Picture());
    for (const std::size_t length : {std::size_t{0}, std::size_t{8}, std::size_t{40}}) {
        const std::string file = cli.Write("cut.png", whole.substr(0, length));
        const CliResult result =
            cli.Run({"import", file, "-o", cli.File("x.pat"), "--catalogue", Catalogue()});
        EXPECT_EQ(result.exitCode, 1) << length;
        EXPECT_THAT(result.err, StartsWith("korvanta-cli: ")) << length;
        EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1) << result.err;
        EXPECT_FALSE(cli.Exists("x.pat"));
    }
    EXPECT_EQ(cli.Run({"import", cli.File("none.png"), "-o", cli.File("x.pat"), "--catalogue",
                       Catalogue()})
                  .exitCode,
              1);
    EXPECT_EQ(Import({"--palette", "x.fls"}).exitCode, 2);
}

TEST_F(PictureCommands, MissingPaletteIsTold) {
    const CliResult none =
        cli.Run({"import", Picture(), "-o", cli.File("x.pat"), "--palette", cli.File("none.fls")});
    EXPECT_EQ(none.exitCode, 1);
    EXPECT_THAT(none.err, HasSubstr("none.fls cannot be read"));
}

TEST_F(PictureCommands, RenderPaintsEverySquare) {
    const std::string file =
        cli.Pattern("p.pat", "Initialize 3 2 14 14\nSetStitch 1 1 1 3 0\nSetStitch 3 2 1 13 0\n");
    ASSERT_EQ(
        cli.Run({"render", file, "-o", cli.File("a.png"), "--pixels-per-square", "4"}).exitCode, 0);
    const QImage image = Rendered("a.png");
    ASSERT_EQ(image.size(), QSize(12, 8));
    EXPECT_EQ(image.pixel(1, 1), qRgb(0, 128, 0));
    EXPECT_EQ(image.pixel(9, 5), qRgb(243, 0, 0));
    EXPECT_EQ(image.pixel(5, 5), qRgb(255, 255, 255));
    ASSERT_EQ(cli.Run({"render", file, "-o", cli.File("b.bmp"), "--pixels-per-square", "4",
                       "--area", "3,2,3,2"})
                  .exitCode,
              0);
    EXPECT_EQ(Rendered("b.bmp").size(), QSize(4, 4));
    EXPECT_EQ(Rendered("b.bmp").pixel(1, 1), qRgb(243, 0, 0));
}

TEST_F(PictureCommands, RenderOfAnOblongClothHasOblongSquares) {
    const std::string file = cli.Pattern("p.pat", "Initialize 2 2 14 18\n");
    ASSERT_EQ(
        cli.Run({"render", file, "-o", cli.File("a.png"), "--pixels-per-square", "9"}).exitCode, 0);
    EXPECT_EQ(Rendered("a.png").size(), QSize(18, 14));
}

TEST_F(PictureCommands, RenderWritesDrawingsToo) {
    const std::string file = cli.Pattern("p.pat", "Initialize 3 2 14 14\nSetStitch 1 1 1 3 0\n");
    ASSERT_EQ(cli.Run({"render", file, "-o", cli.File("a.svg")}).exitCode, 0);
    EXPECT_THAT(cli.Read("a.svg"), HasSubstr("viewBox=\"0 0 30 20\""));
    ASSERT_EQ(cli.Run({"render", file, "-o", cli.File("a.pdf")}).exitCode, 0);
    EXPECT_THAT(cli.Read("a.pdf"), StartsWith("%PDF-"));
}

TEST_F(PictureCommands, WhatNoMemoryHoldsIsToldAsTheWindowTellsIt) {
    const std::string file = cli.Pattern("p.pat", "Initialize 999 999 14 14\n");
    const CliResult result =
        cli.Run({"render", file, "-o", cli.File("a.png"), "--pixels-per-square", "200"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.err, StartsWith("korvanta-cli: There is not enough Memory to export the "
                                       "current pattern at the current zoom level.  "));
    EXPECT_FALSE(cli.Exists("a.png"));
}

TEST_F(PictureCommands, WrongRenderRequestsAreRefused) {
    const std::string file = cli.Pattern("p.pat", "Initialize 3 2 14 14\n");
    const std::string out = cli.File("a.png");
    EXPECT_EQ(cli.Run({"render", file, "-o", out, "--style", "7"}).exitCode, 2);
    EXPECT_EQ(cli.Run({"render", file, "-o", out, "--pixels-per-square", "0"}).exitCode, 2);
    EXPECT_EQ(cli.Run({"render", file, "-o", out, "--area", "1,1,4,1"}).exitCode, 1);
    EXPECT_EQ(cli.Run({"render", file, "-o", cli.File("a.gif")}).exitCode, 1);
    EXPECT_EQ(cli.Run({"render", file}).exitCode, 2);
    EXPECT_EQ(cli.Run({"render", file, "-o", "/dev/full"}).exitCode, 1);
    EXPECT_THAT(cli.Names(), ElementsAre("floss.col", "floss.csv", "p.pat"));
}

TEST_F(PictureCommands, ChartIsAPdfWithItsPages) {
    const std::string file = cli.Pattern("p.pat", "SetStitch 1 1 1 3 0\n");
    const CliResult result = cli.Run({"chart", file, "-o", cli.File("c.pdf")});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("c.pdf: "));
    EXPECT_THAT(cli.Read("c.pdf"), StartsWith("%PDF-"));
}

TEST_F(PictureCommands, ChartGoesToStandardOutputAlone) {
    const std::string file = cli.Pattern("p.pat", "SetStitch 1 1 1 3 0\n");
    const CliResult result = cli.Run({"chart", file, "-o", "-"});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    EXPECT_THAT(result.out, StartsWith("%PDF-"));
    EXPECT_THAT(result.out, EndsWith("%%EOF\n"));
    EXPECT_EQ(cli.Run({"chart", file, "-o", "-", "--pages", "1-99"}).out, "");
    EXPECT_THAT(cli.Names(), ElementsAre("floss.col", "floss.csv", "p.pat"));
}

TEST_F(PictureCommands, ChartRequestsAreCheckedInTheWordsOfTheDialog) {
    const std::string file = cli.Pattern("p.pat", "SetStitch 1 1 1 3 0\n");
    const auto failure = [&](const std::vector<std::string>& more) {
        std::vector<std::string> words{"chart", file, "-o", cli.File("c.pdf")};
        words.insert(words.end(), more.begin(), more.end());
        return cli.Run(words);
    };
    EXPECT_EQ(failure({"--gspi", "0"}).err,
              "korvanta-cli: Stitches per inch can not be 0.  Please enter a valid entry here.\n");
    EXPECT_EQ(failure({"--pages", "0-1"}).err,
              "korvanta-cli: The starting print page can not be 0.  Please enter a valid entry "
              "here.\n");
    EXPECT_EQ(failure({"--pages", "1-99"}).exitCode, 1);
    EXPECT_EQ(failure({"--pages", "x"}).exitCode, 2);
    EXPECT_EQ(failure({"--page-size", "A99"}).exitCode, 2);
    EXPECT_EQ(failure({"--margins", "1,2"}).exitCode, 2);
    EXPECT_EQ(failure({"--stitches-as", "0"}).exitCode, 2);
    EXPECT_EQ(failure({"--gspi", "8", "--fit-page"}).exitCode, 2);
    EXPECT_FALSE(cli.Exists("c.pdf"));
}

TEST_F(PictureCommands, ChartToAFullDiskFailsAndLeavesTheOldFile) {
    const std::string file = cli.Pattern("p.pat", "SetStitch 1 1 1 3 0\n");
    EXPECT_EQ(cli.Run({"chart", file, "-o", "/dev/full"}).exitCode, 1);
    EXPECT_EQ(cli.Run({"chart", file, "-o", cli.File("p.pat") + "/c.pdf"}).exitCode, 1);
    EXPECT_THAT(cli.Names(), ElementsAre("floss.col", "floss.csv", "p.pat"));
}

} // namespace
} // namespace zol
