// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/ChartPdf.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <map>

#include <QPdfWriter>

#include "print/ChartReading.h"
#include "print/PdfReading.h"
#include "print/PrintFuncs.h"
#include "print/PrintScene.h"
#include "support/RecordingDoors.h"

namespace zol::test {

namespace {

class ChartPdfTest : public ::testing::Test {
protected:
    static void Fill(Pattern& pattern, int flosses) { FillWithStitches(pattern, flosses); }

    std::filesystem::path Write(Pattern& pattern, const ChartPdfOptions& options) {
        auto path = scene.Path("chart.pdf");
        const ChartPdfResult result = WriteChartPdf(pattern, options, path, nullptr);
        EXPECT_TRUE(result.IsWhole()) << result.ErrorText;
        EXPECT_EQ(result.Pages, PdfPageCount(path));
        return path;
    }

    /// Rebuilds the pattern's symbols from where their text stands on the pages.
    Symbols Rebuild(const std::filesystem::path& pdf, Pattern& pattern,
                    const ChartPdfOptions& options) {
        QPdfWriter paper(QStringLiteral("/dev/null"));
        paper.setPageLayout(QPageLayout(
            options.PageSize, options.Landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
            QMarginsF()));
        PagedPageDevice device(paper);
        PrintFuncs functions(options.Print, &device);
        functions.SetPattern(pattern);
        return SymbolsIn(pdf, functions);
    }

    void ExpectSameChart(Pattern& pattern, const ChartPdfOptions& options) {
        const auto path = Write(pattern, options);
        EXPECT_EQ(Rebuild(path, pattern, options), SymbolsOf(pattern));
    }

    PrintScene scene;
};

} // namespace

TEST_F(ChartPdfTest, TextOfThePagesRebuildsThePatternSquareBySquare) {
    const auto pattern = scene.MakePattern(150, 120);
    Fill(*pattern, 200);
    ChartPdfOptions options;
    const auto path = Write(*pattern, options);
    EXPECT_GT(PdfPageCount(path), 4);
    EXPECT_EQ(Rebuild(path, *pattern, options), SymbolsOf(*pattern));
}

TEST_F(ChartPdfTest, LandscapePagesRebuildThePattern) {
    const auto pattern = scene.MakePattern(130, 90);
    Fill(*pattern, 60);
    ChartPdfOptions options;
    options.Landscape = true;
    options.PageSize = QPageSize(QPageSize::Letter);
    options.Print.LeftMargin = 1;
    options.Print.TopMargin = 0.75;
    ExpectSameChart(*pattern, options);
}

TEST_F(ChartPdfTest, OblongSmallSquaresRebuildThePattern) {
    const auto pattern = scene.MakePattern(120, 150, 14, 18);
    Fill(*pattern, 40);
    ChartPdfOptions options;
    options.Print.GSPI = 17;
    options.Print.StitchSymbol = PrintColorSymbols;
    ExpectSameChart(*pattern, options);
}

TEST_F(ChartPdfTest, BlocksAndSymbolsRebuildThePattern) {
    const auto pattern = scene.MakePattern(60, 60);
    Fill(*pattern, 30);
    ChartPdfOptions options;
    options.Print.StitchSymbol = PrintBlocksAndSymbols;
    ExpectSameChart(*pattern, options);
}

TEST_F(ChartPdfTest, PartStitchesOfOneSquareBothShowTheirSymbols) {
    const auto pattern = scene.MakePattern(40, 40);
    Fill(*pattern, 20);
    for (int i = 1; i <= 40; ++i) {
        pattern->DeleteStitch(i, i, Pattern::Everything);
        pattern->SetStitch(i, i, StitchUL3Q, 1 + i % 19, 1);
        pattern->SetStitch(i, i, StitchLRQ, 1 + (i + 7) % 19, 9);
    }
    ExpectSameChart(*pattern, {});
}

TEST_F(ChartPdfTest, SymbolsInARowAreNotTakenForAWord) {
    const auto pattern = scene.MakePattern(60, 30);
    Fill(*pattern, 20);
    for (int x = 1; x <= 60; ++x) {
        for (int y = 1; y <= 30; ++y) {
            if (y != 7 && y != 11) {
                pattern->DeleteStitch(x, y, Pattern::Everything);
            }
        }
    }
    ExpectSameChart(*pattern, {});
}

TEST_F(ChartPdfTest, SymbolsAreTextInTheEmbeddedSymbolFontAndNoPictures) {
    const auto pattern = scene.MakePattern(20, 20);
    Fill(*pattern, 10);
    const auto path = Write(*pattern, {});
    EXPECT_FALSE(HasImages(path));
    const QString fonts =
        OutputOf(QStringLiteral("pdffonts"), {QString::fromStdString(path.string())});
    int symbolFonts = 0;
    for (const QString& line : fonts.split(QLatin1Char('\n')).mid(2)) {
        const QStringList fields = line.simplified().split(QLatin1Char(' '));
        if (fields.size() < 7) {
            continue;
        }
        symbolFonts += fields[0].contains(QStringLiteral("KorvantaSymbols")) ? 1 : 0;
        // ... encoding, embedded, subset, ToUnicode, object number and generation
        EXPECT_EQ(fields[fields.size() - 5], QStringLiteral("yes")) << line.toStdString();
        EXPECT_EQ(fields[fields.size() - 3], QStringLiteral("yes")) << line.toStdString();
    }
    EXPECT_EQ(symbolFonts, 1);
}

TEST_F(ChartPdfTest, EveryTenthLineIsNumberedOnBothEdges) {
    const auto pattern = scene.MakePattern(35, 25);
    QStringList right;
    QStringList below;
    for (const PdfWord& word : PdfWords(Write(*pattern, {}))) {
        if (word.Page != 1) {
            continue;
        }
        if (word.Left > 36 + 35 * 7.2 && word.Top < 36 + 25 * 7.2) {
            right.append(word.Text);
        } else if (word.Top < 36 + 30 * 7.2) {
            below.append(word.Text);
        }
    }
    EXPECT_EQ(right, (QStringList{QStringLiteral("10"), QStringLiteral("20")}));
    EXPECT_EQ(below,
              (QStringList{QStringLiteral("10"), QStringLiteral("20"), QStringLiteral("30")}));
}

TEST_F(ChartPdfTest, NumbersStandAtTheirLines) {
    const auto pattern = scene.MakePattern(35, 25);
    for (const PdfWord& word : PdfWords(Write(*pattern, {}))) {
        if (word.Page == 1 && word.Text == QStringLiteral("30")) {
            EXPECT_NEAR(word.Left, 36 + 30 * 7.2, 0.5); // the line behind thirty columns
            EXPECT_GT(word.Top, 36 + 25 * 7.2);
        }
    }
}

TEST_F(ChartPdfTest, OnePagePatternIsPageOneBottomRightOnTheFooterRow) {
    const auto pattern = scene.MakePattern(20, 20);
    pattern->Title = "Rose";
    pattern->Copyright = "Nobody";
    ChartPdfOptions options;
    options.Print.PrintColorKey = false;
    const auto words = PdfWords(Write(*pattern, options));
    const auto find = [&](const QString& text) {
        for (const PdfWord& word : words) {
            if (word.Text == text) {
                return word;
            }
        }
        ADD_FAILURE() << text.toStdString() << " is not on the page";
        return PdfWord();
    };
    const PdfWord page = find(QStringLiteral("Page"));
    const PdfWord copyright = find(QStringLiteral("Nobody"));
    EXPECT_NEAR(page.Top, copyright.Top, 0.1);
    EXPECT_LT(find(QStringLiteral("Rose")).Top, copyright.Top);
    EXPECT_NEAR(find(QStringLiteral("1")).Right, 595 - 36, 0.5);
    EXPECT_LT(page.Bottom, 842 - 36 + 0.1);
}

TEST_F(ChartPdfTest, WithoutPageNumbersThereIsNone) {
    const auto pattern = scene.MakePattern(20, 20);
    ChartPdfOptions options;
    options.Print.PrintPageNumbers = false;
    options.Print.PrintColorKey = false;
    EXPECT_FALSE(PdfText(Write(*pattern, options), 1).contains(QStringLiteral("Page")));
}

TEST_F(ChartPdfTest, RangeKeepsThePagesNumbers) {
    const auto pattern = scene.MakePattern(150, 120);
    ChartPdfOptions options;
    options.FromPage = 2;
    options.ToPage = 3;
    const auto path = Write(*pattern, options);
    ASSERT_EQ(PdfPageCount(path), 2);
    EXPECT_TRUE(PdfText(path, 1).endsWith(QStringLiteral("Page 2")));
    EXPECT_TRUE(PdfText(path, 2).endsWith(QStringLiteral("Page 3")));
}

TEST_F(ChartPdfTest, FitPagePutsThePatternOnOnePage) {
    const auto pattern = scene.MakePattern(200, 310);
    ChartPdfOptions options;
    options.FitPage = true;
    options.Print.PrintColorKey = false;
    EXPECT_EQ(PdfPageCount(Write(*pattern, options)), 1);
}

TEST_F(ChartPdfTest, PageRangeBeyondTheJobIsRefusedAndWritesNothing) {
    const auto pattern = scene.MakePattern(20, 20);
    ChartPdfOptions options;
    options.ToPage = 9;
    const auto path = scene.Path("chart.pdf");
    const ChartPdfResult result = WriteChartPdf(*pattern, options, path, nullptr);
    EXPECT_EQ(result.ErrorText, "The ending page can not be larger 2.");
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(ChartPdfTest, NoSquaresToTheInchAreRefused) {
    const auto pattern = scene.MakePattern(20, 20);
    ChartPdfOptions options;
    options.Print.GSPI = 0;
    EXPECT_EQ(WriteChartPdf(*pattern, options, scene.Path("a.pdf"), nullptr).ErrorText,
              "Stitches per inch can not be 0.  Please enter a valid entry here.");
    options.Print.GSPI = 1e-12;
    EXPECT_EQ(WriteChartPdf(*pattern, options, scene.Path("a.pdf"), nullptr).ErrorText,
              "A page with these margins holds no whole square.");
    EXPECT_FALSE(std::filesystem::exists(scene.Path("a.pdf")));
}

TEST_F(ChartPdfTest, FailureLeavesTheOldFileAndNothingElse) {
    const auto pattern = scene.MakePattern(20, 20);
    const TempFolder folder;
    WriteFile(folder / "chart.pdf", "the old one");
    ChartPdfOptions options;
    options.Print.LeftMargin = 20;
    const ChartPdfResult result = WriteChartPdf(*pattern, options, folder / "chart.pdf", nullptr);
    EXPECT_FALSE(result.IsWhole());
    EXPECT_EQ(ReadFile(folder / "chart.pdf"), "the old one");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 1);
}

TEST_F(ChartPdfTest, CancelLeavesTheOldFileAndNothingElse) {
    const auto pattern = scene.MakePattern(150, 120);
    Fill(*pattern, 10);
    const TempFolder folder;
    WriteFile(folder / "chart.pdf", "the old one");
    RecordingProgress progress;
    progress.cancelAfter = 2;
    const ChartPdfResult result = WriteChartPdf(*pattern, {}, folder / "chart.pdf", &progress);
    EXPECT_TRUE(result.Cancelled);
    EXPECT_FALSE(result.IsWhole());
    EXPECT_EQ(progress.stopped, static_cast<int>(progress.started.size()));
    EXPECT_EQ(ReadFile(folder / "chart.pdf"), "the old one");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 1);
}

TEST_F(ChartPdfTest, FullDiskIsTold) {
    const auto pattern = scene.MakePattern(20, 20);
    const ChartPdfResult result = WriteChartPdf(*pattern, {}, "/dev/full", nullptr);
    EXPECT_EQ(result.ErrorText, "Disk full");
}

TEST_F(ChartPdfTest, FolderThatIsNotThereIsTold) {
    const auto pattern = scene.MakePattern(20, 20);
    const ChartPdfResult result =
        WriteChartPdf(*pattern, {}, scene.Path("nowhere") / "chart.pdf", nullptr);
    EXPECT_EQ(result.ErrorText, "Path not found");
    EXPECT_FALSE(std::filesystem::exists(scene.Path("nowhere")));
}

TEST_F(ChartPdfTest, FolderAsOutputIsTold) {
    const auto pattern = scene.MakePattern(20, 20);
    const ChartPdfResult result = WriteChartPdf(*pattern, {}, scene.Folder(), nullptr);
    EXPECT_EQ(result.ErrorText, "Path/File access error");
}

TEST_F(ChartPdfTest, ANewChartReplacesTheOldAndKeepsItsMode) {
    const auto pattern = scene.MakePattern(20, 20);
    const auto path = scene.Path("chart.pdf");
    WriteFile(path, "the old one");
    ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
    Write(*pattern, {});
    EXPECT_EQ(ReadFile(path).substr(0, 5), "%PDF-");
    struct stat info {};
    ASSERT_EQ(::stat(path.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777U, 0640U);
}

TEST_F(ChartPdfTest, PatternWithoutSquaresPrintsItsKeyPageRangeOnly) {
    const auto pattern = scene.MakePattern(20, 20);
    pattern->Resize(0, 0, 14, 14);
    ChartPdfOptions options;
    options.Print.PrintColorKey = false;
    const ChartPdfResult result = WriteChartPdf(*pattern, options, scene.Path("a.pdf"), nullptr);
    EXPECT_EQ(result.ErrorText,
              "The Ending print page can not be 0.  Please enter a valid entry here.");
}

TEST_F(ChartPdfTest, EmptySymbolShowsAnEmptyCell) {
    const auto pattern = scene.MakePattern(20, 20);
    PrintScene::AddFloss(*pattern, 0, "1", 1, "!");
    PrintScene::AddFloss(*pattern, 0, "2", 2, std::string(1, '\0'));
    pattern->SetStitch(3, 3, StitchWhole, 1, 5);
    pattern->SetStitch(5, 5, StitchWhole, 2, 5);
    ASSERT_EQ(pattern->GetPalette().GetFlossSymbol(2), 0);
    ChartPdfOptions options;
    const Symbols found = Rebuild(Write(*pattern, options), *pattern, options);
    EXPECT_EQ(found, (Symbols{{{3, 3}, QStringLiteral("!")}}));
}

} // namespace zol::test
