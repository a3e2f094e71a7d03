// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/RtfLegend.h"

#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include "print/PrintScene.h"
#include "print/RTFFuncs.h"
#include "print/rtf/RtfScene.h"

namespace zol::test {

namespace {

class RtfLegendTest : public ::testing::Test {
protected:
    [[nodiscard]] std::string Written() { return RtfLegend::Write(*pattern, options); }
    /// The lines as words, a line each.
    [[nodiscard]] std::string Lines() { return TextOf(*ReadRtf(Written())); }

    PrintScene scene;
    std::unique_ptr<Pattern> pattern = scene.MakePattern(28, 14);
    PrintOptions options;
};

} // namespace

TEST_F(RtfLegendTest, SmallPatternByteForByte) {
    pattern->Title = "Rose {red}";
    pattern->Author = "Anna";
    pattern->Fabric = "Aida";
    PrintScene::AddFloss(*pattern, 0, "310", 1, "}");
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    pattern->SetStitch(28, 14, StitchWhole, 1, 5);
    EXPECT_EQ(
        Written(),
        "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}"
        "{\\f1\\fnil\\fcharset0 Korvanta Symbols;}}\r\n"
        "\\pard\\tx1440\\tx2880\\tx4320\\tx5760\\tx7200\\fi-2880\\li2880 "
        "\\f0\\fs20\\b \\tab Title:\\b0 \\tab Rose \\{red\\}\\par\r\n"
        "\\b \\tab Author:\\b0 \\tab Anna\\par\r\n"
        "\\b \\tab Grid Size:\\b0 \\tab 28 W  x  14 H\\par\r\n"
        "\\b \\tab Cloth Count:\\b0 \\tab 14 Horizontal, 14 Vertical\\par\r\n"
        "\\b \\tab Fabric:\\b0 \\tab Aida\\par\r\n"
        "\\b \\tab Design Area:\\b0 \\tab 2\" W  x  1\" H   ( 28 x 14 stitches ) \\par\r\n"
        "\\pard\\tx1080\\tx3240\\tx4320\\sb240 \\b DMC Key\\par\r\n"
        "\\pard\\tx1080\\tx3240\\tx4320 \\b0 Symbol\\tab DMC\\tab Strands\\tab Description\\par\r\n"
        "\\f1 \\}\\f0 \\tab 310\\tab 2\\tab Floss 310\\par\r\n"
        "}\r\n");
}

TEST_F(RtfLegendTest, PropertiesWithoutAValueHaveNoLine) {
    pattern->Title = "   ";
    const std::string lines = Lines();
    EXPECT_EQ(lines.find("Title:"), std::string::npos);
    EXPECT_EQ(lines.find("Author:"), std::string::npos);
    EXPECT_EQ(lines.find("Copyright:"), std::string::npos);
    EXPECT_EQ(lines.find("Fabric:"), std::string::npos);
    pattern->Copyright = "(c) me\n2026";
    EXPECT_NE(Lines().find("\tCopyright:\t(c) me 2026\n"), std::string::npos) << Lines();
}

TEST_F(RtfLegendTest, WithoutStitchesTheKeyIsItsHeading) {
    PrintScene::AddFloss(*pattern, 0, "310", 1, "!");
    EXPECT_EQ(Lines(), "\tGrid Size:\t28 W  x  14 H\n"
                       "\tCloth Count:\t14 Horizontal, 14 Vertical\n"
                       "\tDesign Area:\t0\" W  x  0\" H   ( 0 x 0 stitches ) \n"
                       "DMC Key\n"
                       "Symbol\tDMC\tStrands\tDescription");
}

TEST_F(RtfLegendTest, SizesInCentimetresAndOddCounts) {
    pattern = scene.MakePattern(100, 100, 14, 18);
    PrintScene::AddFloss(*pattern, 0, "310", 1, "!");
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    pattern->SetStitch(10, 36, StitchWhole, 1, 5);
    EXPECT_NE(Lines().find("0.71\" W  x  2\" H   ( 10 x 36 stitches )"), std::string::npos);
    options.Units = "centimetres";
    EXPECT_NE(Lines().find("1.81 cm W  x  5.08 cm H"), std::string::npos) << Lines();
    EXPECT_NE(Lines().find("14 Horizontal, 18 Vertical"), std::string::npos);
}

TEST_F(RtfLegendTest, FlossesStandInDisplayOrderByWhatTheyAreBoughtBy) {
    PrintScene::AddFloss(*pattern, 0, "973", 4, "a");
    PrintScene::AddFloss(*pattern, 0, "310", 1, "b");
    PrintScene::AddFloss(*pattern, 0, "403", 1, "c", "Anchor");
    PrintScene::AddFloss(*pattern, 0, "321", 2, "d");
    PrintScene::AddFloss(*pattern, 0, "702", 3, "e");
    Palette& palette = pattern->GetPalette();
    palette.BlendFloss(4, 0, "702", "DMC", "green", 3);
    palette.SetFlossStrands(2, 3, 1);
    for (int entry = 1; entry <= 4; ++entry) {
        pattern->SetStitch(entry, 1, StitchWhole, entry, 5);
    }
    BackStitchLine line;
    line.StartX = line.StartY = line.EndX = 1;
    line.EndY = 3;
    line.StartPos = line.EndPos = 1;
    line.PaletteIndex = 5; // a line only
    pattern->SetBackstitchLine(line);
    palette.Sort(SortManufacturerID);
    const std::string lines = Lines() + "\n";
    const std::size_t head = lines.find("Description\n");
    ASSERT_NE(head, std::string::npos);
    const std::string key = lines.substr(head + 12);
    EXPECT_NE(key.find("b\t310\t3\tFloss 310\n"), std::string::npos) << key;
    EXPECT_NE(key.find("a\t973\t2\tFloss 973\n"), std::string::npos) << key;
    EXPECT_NE(key.find("c\tAnchor 403\t2\t"), std::string::npos) << key;
    EXPECT_NE(key.find("d\t321/702\t2\t"), std::string::npos) << key;
    EXPECT_LT(key.find("b\t310"), key.find("a\t973"));
    EXPECT_EQ(std::count(key.begin(), key.end(), '\n'), 4) << key;
}

TEST_F(RtfLegendTest, OddTextsAndSymbolsAreSevenBitsAndComeBack) {
    pattern->Title = "Fleur d\u2019\u00e9t\u00e9 \u0416 \U0001F9F5";
    PrintScene::AddFloss(*pattern, 0, "310", 1, "!");
    pattern->GetPalette().SetFlossSymbol(1, "\u00a0"); // the code of a blank that cannot be seen
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    const std::string rtf = Written();
    EXPECT_TRUE(std::all_of(rtf.begin(), rtf.end(), [](char c) { return c > 0; }));
    EXPECT_NE(rtf.find("Fleur d\\'92\\'e9t\\'e9 \\u1046?"), std::string::npos) << rtf;
    EXPECT_NE(rtf.find("\\f1 \\u-8032?\\f0"), std::string::npos) << rtf;
    EXPECT_NE(Lines().find("Title:\tFleur d\u2019\u00e9t\u00e9 \u0416 \U0001F9F5\n"),
              std::string::npos);
}

TEST_F(RtfLegendTest, TakesThePatternInformationFontAndThePalettesOwn) {
    options.TextInfoFontName = "DejaVu Serif";
    options.TextInfoFontSize = 12;
    options.TextInfoFontBold = true;
    options.TextInfoFontItalic = true;
    PrintScene::AddFloss(*pattern, 0, "310", 1, "!");
    pattern->GetPalette().SetSymbolFont("DejaVu Sans", true, false);
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    const std::string all = Described(*ReadRtf(Written()));
    EXPECT_NE(all.find("DejaVu Serif 12 bold italic - on -: \tGrid Size:"), std::string::npos);
    EXPECT_NE(all.find("DejaVu Serif 12 italic - on -: \t28 W"), std::string::npos) << all;
    EXPECT_NE(all.find("DejaVu Sans 12 bold - on -: !"), std::string::npos) << all;
    EXPECT_NE(all.find("tab 96/0 tab 192/0 tab 288/0 tab 384/0 tab 480/0"), std::string::npos);
}

TEST_F(RtfLegendTest, AWordProcessorOpensIt) {
    const QString program = QStandardPaths::findExecutable(QStringLiteral("soffice"));
    if (program.isEmpty()) {
        GTEST_SKIP() << "LibreOffice is not installed";
    }
    pattern->Title = "Caf\u00e9 \u0416";
    PrintScene::AddFloss(*pattern, 0, "310", 1, "#");
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    WriteFile(scene.Path("legend.rtf"), Written());
    const QString folder = QString::fromStdString(scene.Folder().string());
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(
        program,
        {QStringLiteral("-env:UserInstallation=file://") + folder + QStringLiteral("/profile"),
         QStringLiteral("--headless"), QStringLiteral("--convert-to"),
         QStringLiteral("txt:Text (encoded):UTF8"), QStringLiteral("legend.rtf")});
    ASSERT_TRUE(process.waitForFinished(100000) && process.exitCode() == 0);
    // It widens every blank of several by a thin one.
    const std::string text = QString::fromStdString(ReadFile(scene.Path("legend.txt")))
                                 .remove(QChar(0x2006))
                                 .toStdString();
    for (const char* part :
         {"\tTitle:\tCaf\u00e9 \u0416\n", "\tGrid Size:\t28 W  x  14 H\n",
          "DMC Key\nSymbol\tDMC\tStrands\tDescription\n#\t310\t2\tFloss 310\n"}) {
        EXPECT_NE(text.find(part), std::string::npos) << part << " in\n" << text;
    }
}

} // namespace zol::test
