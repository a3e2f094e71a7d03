// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/NewColorKey.h"

#include <gtest/gtest.h>

#include <QPdfWriter>

#include <algorithm>

#include "model/RunTimeError.h"
#include "print/ChartPdf.h"
#include "print/PagePicture.h"
#include "print/PdfReading.h"
#include "print/PrintJob.h"
#include "print/PrintScene.h"

namespace zol::test {

namespace {

class NewColorKeyTest : public ::testing::Test {
protected:
    void AddFlosses(int count) {
        for (int i = 1; i <= count; ++i) {
            PrintScene::AddFloss(*pattern, 0x010203U * static_cast<unsigned>(i), std::to_string(i),
                                 i, "!");
            pattern->SetStitch((i - 1) % 20 + 1, (i - 1) / 20 + 1, StitchWhole, i, 5);
        }
    }

    int Count(const PrintOptions& options) {
        MeasuredPaper paper(11900, 16840);
        PrintFuncs functions(options, &paper);
        functions.SetPattern(*pattern);
        functions.CountKeyPages();
        return functions.KeyPages();
    }

    /// Prints the key behind one pattern page.
    std::filesystem::path Print(const PrintOptions& options) {
        ChartPdfOptions chart;
        chart.Print = options;
        auto path = scene.Path("key.pdf");
        const ChartPdfResult result = WriteChartPdf(*pattern, chart, path, nullptr);
        EXPECT_TRUE(result.IsWhole()) << result.ErrorText;
        return path;
    }

    /// Prints the key alone on paper of that height in twips and so many dots to the inch.
    std::filesystem::path PrintKey(const PrintOptions& options, int height, int dotsPerInch) {
        auto path = scene.Path("key alone.pdf");
        QPdfWriter writer(QString::fromStdString(path.string()));
        writer.setResolution(dotsPerInch);
        writer.setPageLayout(QPageLayout(QPageSize(QSizeF(11900, height) / 20.0, QPageSize::Point),
                                         QPageLayout::Portrait, QMarginsF()));
        PagedPageDevice device(writer);
        PrintFuncs functions(options, &device);
        functions.SetPattern(*pattern);
        functions.CountKeyPages();
        functions.GetPageCount();
        functions.SetPrintRange(1, functions.KeyPages(), true);
        EXPECT_EQ(PrintJob(functions, device, nullptr).Run(), PrintJob::State::Done);
        return path;
    }

    PrintScene scene;
    std::unique_ptr<Pattern> pattern = scene.MakePattern(20, 20);
};

} // namespace

TEST_F(NewColorKeyTest, CoverTellsTheFacts) {
    pattern = scene.MakePattern(28, 20, 14, 18);
    pattern->Title = "Rose";
    pattern->Author = " Ada ";
    pattern->Fabric = "Linen";
    pattern->Copyright = "(c) Ada";
    PrintScene::AddFloss(*pattern, 0, "310", 1, "!");
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    pattern->SetStitch(28, 9, StitchWhole, 1, 5);
    const QString text = PdfText(Print({}), 2);
    EXPECT_TRUE(text.startsWith(QStringLiteral(
        "Rose Author: Ada Grid Size: 28W x 20H Cloth Count: 14 Fabric: Linen Design Area: "
        "2.\" W x 0.5\" H ( 28 x 9 stitches ) Legend: DMC")))
        << text.toStdString();
    EXPECT_TRUE(text.endsWith(QStringLiteral("(c) Ada")));
    EXPECT_FALSE(text.contains(QStringLiteral("Page")));
}

TEST_F(NewColorKeyTest, UnitOfTheDesignAreaIsTheOption) {
    PrintOptions options;
    options.Units = "centimetres";
    EXPECT_TRUE(PdfText(Print(options), 2).contains(QStringLiteral(" cm W x ")));
}

TEST_F(NewColorKeyTest, WithNoneForBothStylesTheKeyHasCoverAndInstructions) {
    AddFlosses(4);
    pattern->Title = "Rose";
    pattern->Instructions = "Start in the middle.";
    PrintOptions options;
    options.StitchSymbol = PrintNone;
    options.BackStitchSymbol = PrintNone;
    const QString text = PdfText(Print(options), 2);
    EXPECT_TRUE(text.startsWith(QStringLiteral("Rose Author:")));
    EXPECT_FALSE(text.contains(QStringLiteral("Legend")));
    EXPECT_TRUE(text.contains(QStringLiteral("Instructions: Start in the middle.")));
}

TEST_F(NewColorKeyTest, PaletteWithoutAStitchedFlossGivesTheCoverAlone) {
    PrintScene::AddFloss(*pattern, 0, "310", 1, "!");
    const QString text = PdfText(Print({}), 2);
    EXPECT_FALSE(text.contains(QStringLiteral("Legend")));
    EXPECT_FALSE(text.contains(QStringLiteral("Backstitches")));
    EXPECT_FALSE(text.contains(QStringLiteral("Instructions")));
}

TEST_F(NewColorKeyTest, CountingAndPrintingGiveTheSamePages) {
    for (const int flosses : {0, 1, 30, 200, 250}) {
        for (const int words : {0, 40, 3000}) {
            pattern = scene.MakePattern(20, 20);
            AddFlosses(flosses);
            pattern->Title = "A rather long title of a pattern that has to wrap";
            pattern->Instructions.clear();
            for (int i = 0; i < words; ++i) {
                pattern->Instructions += "word" + std::to_string(i) + " ";
            }
            PrintOptions options;
            options.TextInfoFontSize = 16;
            const auto path = Print(options);
            EXPECT_EQ(PdfPageCount(path), 1 + Count(options)) << flosses << ", " << words;
            if (words > 0) {
                EXPECT_TRUE(PdfText(path, PdfPageCount(path))
                                .contains(QStringLiteral("word") + QString::number(words - 1)));
            }
        }
    }
}

TEST_F(NewColorKeyTest, EveryFlossIsListedOnceOverPagesThatRepeatTheTitle) {
    AddFlosses(250);
    PrintOptions options;
    options.TextInfoFontSize = 18;
    const auto path = Print(options);
    const int pages = PdfPageCount(path);
    ASSERT_GT(pages, 3);
    std::vector<int> seen(251, 0);
    for (const PdfWord& word : PdfWords(path)) {
        // "310 Floss 310": the number behind the word is the description's.
        if (word.Page > 1 && word.Text.toInt() >= 1 && word.Text.toInt() <= 250) {
            ++seen[static_cast<std::size_t>(word.Text.toInt())];
        }
    }
    for (int i = 21; i <= 250; ++i) { // below that the cover has numbers of its own
        EXPECT_EQ(seen[static_cast<std::size_t>(i)], 2) << i;
    }
    for (int page = 2; page <= pages; ++page) {
        EXPECT_TRUE(PdfText(path, page).contains(QStringLiteral("Legend: DMC"))) << page;
    }
}

TEST_F(NewColorKeyTest, EveryFlossIsListedOnceWhereADotIsWideToo) {
    AddFlosses(120);
    PrintOptions options;
    options.TextInfoFontSize = 18;
    // Over the height of a row, so that the last one of a page fits by every measure once.
    for (int height = 12000; height < 12500; height += 20) {
        const auto path = PrintKey(options, height, 80);
        std::vector<int> seen(121, 0);
        for (const PdfWord& word : PdfWords(path)) {
            const int number = word.Text.toInt();
            if (number > 20 && number <= 120) { // the cover has numbers of its own
                ++seen[static_cast<std::size_t>(number)];
            }
        }
        EXPECT_EQ(std::count(seen.begin() + 21, seen.end(), 2), 100) << height;
    }
}

TEST_F(NewColorKeyTest, TitleStandsOnEveryKeyPage) {
    pattern->Title = "Rosebud";
    for (int i = 0; i < 400; ++i) {
        pattern->Instructions += "A line of its own.\r\n";
    }
    const auto path = Print({});
    const int pages = PdfPageCount(path);
    ASSERT_GT(pages, 5);
    for (int page = 2; page <= pages; ++page) {
        EXPECT_TRUE(PdfText(path, page).startsWith(QStringLiteral("Rosebud")));
    }
}

TEST_F(NewColorKeyTest, LongCopyrightWrapsWithinTheMargins) {
    std::string copyright = "Copyright";
    for (int i = 1; i <= 24; ++i) {
        copyright += " word" + std::to_string(i);
    }
    pattern->Copyright = copyright;
    const auto path = Print({});
    EXPECT_TRUE(PdfText(path, 2).endsWith(QString::fromStdString(copyright)));
    for (const PdfWord& word : PdfWords(path)) {
        if (word.Page == 2) {
            EXPECT_GE(word.Left, 35.5) << word.Text.toStdString();
            EXPECT_LE(word.Right, 595 - 35.5) << word.Text.toStdString();
            EXPECT_LE(word.Bottom, 842 - 35.5) << word.Text.toStdString();
        }
    }
}

TEST_F(NewColorKeyTest, AbsurdlyLongTitleStillLeavesRoomForTheKey) {
    pattern->Title = std::string(20000, 'W');
    AddFlosses(3);
    PrintOptions options;
    options.PrintPageNumbers = false;
    MeasuredPaper paper(11900, 16840);
    PrintFuncs functions(options, &paper);
    functions.SetPattern(*pattern);
    functions.CountKeyPages();
    EXPECT_EQ(functions.KeyPages(), 1);
}

TEST_F(NewColorKeyTest, InstructionsOfMoreThanAHundredPagesFail) {
    pattern->Instructions = std::string(30000, '\n') + "end";
    EXPECT_THROW((void)Count({}), RunTimeError);
    pattern->Instructions = std::string(3000, '\n') + "end";
    EXPECT_LT(Count({}), 101);
}

TEST_F(NewColorKeyTest, RichTextInstructionsShowTheirWords) {
    pattern->Instructions =
        "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0 Use {\\b two} strands.\\par}";
    const QString text = PdfText(Print({}), 2);
    EXPECT_TRUE(text.contains(QStringLiteral("Instructions: Use two strands.")))
        << text.toStdString();
}

TEST_F(NewColorKeyTest, BackstitchesHaveTheirOwnSection) {
    AddFlosses(2);
    BackStitchLine line{1, 1, 1, 9, 9, 1, 2, LineStraight};
    pattern->SetBackstitchLine(line);
    const QString text = PdfText(Print({}), 2);
    EXPECT_TRUE(text.contains(QStringLiteral("Backstitches: DMC 2 Floss 2"))) << text.toStdString();
}

TEST_F(NewColorKeyTest, PaleLinesLieOnAShadeThatShowsThem) {
    constexpr QRgb shade = qRgb(0x80, 0x80, 0x80);
    const auto countOf = [this](QRgb colour, int style) {
        PrintOptions options;
        options.StitchSymbol = PrintNone;
        options.BackStitchSymbol = style;
        MeasuredPaper paper(11900, 16840);
        PrintFuncs job(options, &paper);
        job.SetPattern(*pattern);
        job.CountKeyPages();
        const QImage page = PaintPage(job, job.GetPageCount(), 200, nullptr).Image;
        int count = 0;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                count += page.pixel(x, y) == colour ? 1 : 0;
            }
        }
        return count;
    };
    PrintScene::AddFloss(*pattern, MakeColour(250, 252, 255), "B5200", 1, "!");
    PrintScene::AddFloss(*pattern, MakeColour(220, 150, 60), "783", 2, "!");
    pattern->SetBackstitchLine({1, 1, 1, 9, 9, 1, 2, LineStraight});
    EXPECT_LT(countOf(shade, PrintColorLines), 50); // edges of letters: it is seen on paper
    pattern->SetBackstitchLine({1, 2, 1, 9, 9, 1, 1, LineStraight});
    EXPECT_GT(countOf(shade, PrintColorLines), 300);
    EXPECT_GT(countOf(qRgb(250, 252, 255), PrintColorLines), 20);
    EXPECT_LT(countOf(shade, PrintBlackLines), 50);
}

TEST_F(NewColorKeyTest, KeyIsNotReachedWhenThereAreNoPatternPages) {
    pattern->Title = "Rose";
    const auto path = scene.Path("none.pdf");
    {
        QPdfWriter writer(QString::fromStdString(path.string()));
        PagedPageDevice device(writer);
        PrintFuncs functions({}, &device);
        functions.SetPattern(*pattern);
        functions.SetPrintRange(5, 5, false);
        EXPECT_EQ(functions.PatternPages(), 0);
        EXPECT_TRUE(functions.PrintPatternPage(device, nullptr, false, true));
        device.EndDoc();
    }
    const QString text = PdfText(path, 1);
    EXPECT_TRUE(text.contains(QStringLiteral("Page 5")));
    EXPECT_FALSE(text.contains(QStringLiteral("Grid Size")));
}

TEST_F(NewColorKeyTest, SymbolOfZeroIsAnEmptyCellOfTheKey) {
    PrintScene::AddFloss(*pattern, 0, "310", 1, std::string(1, '\0'));
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    EXPECT_TRUE(PdfText(Print({}), 2).endsWith(QStringLiteral("Legend: DMC 310 Floss 310")));
}

} // namespace zol::test
