// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PdfJob.h"

#include <gtest/gtest.h>

#include "print/Paper.h"
#include "print/PdfReading.h"
#include "print/PrintScene.h"
#include "support/RecordingDoors.h"

namespace zol::test {

namespace {

constexpr int LetterWidth = 12240;
constexpr int LetterHeight = 15840;

class PdfJobTest : public ::testing::Test {
protected:
    PdfJobTest() : pattern(scene.MakePattern(120, 150)) {
        PrintScene::AddFloss(*pattern, 0, "1", 1, "!");
        for (int i = 1; i <= 120; ++i) {
            pattern->SetStitch(i, i, StitchWhole, 1, 5);
        }
        job.SetPattern(*pattern);
        job.CountKeyPages();
        job.SetPrintRange(1, job.GetPageCount(), false);
    }

    [[nodiscard]] PdfResult Write(ProgressDoor* progress = nullptr) {
        return WritePdf(job, path, progress);
    }
    [[nodiscard]] QString PaperSize() const {
        const QString info =
            OutputOf(QStringLiteral("pdfinfo"), {QString::fromStdString(path.string())});
        const auto at = info.indexOf(QStringLiteral("Page size:"));
        return info.mid(at + 10).section(QLatin1Char('\n'), 0, 0).simplified();
    }
    [[nodiscard]] int FilesThere() const {
        return static_cast<int>(
            std::distance(std::filesystem::directory_iterator(files.Path()), {}));
    }

    PrintScene scene;
    TempFolder files;
    std::filesystem::path path = files / "chart.pdf";
    std::unique_ptr<Pattern> pattern;
    MeasuredPaper printer{LetterWidth, LetterHeight, 360, 300};
    PrintFuncs job{{}, &printer};
};

} // namespace

TEST_F(PdfJobTest, PagesAreThoseOfThePrintersPaper) {
    const PdfResult result = Write();
    EXPECT_TRUE(result.IsWhole()) << result.ErrorText;
    EXPECT_EQ(result.Pages, job.GetPageCount());
    EXPECT_EQ(PdfPageCount(path), result.Pages);
    EXPECT_TRUE(PaperSize().startsWith(QStringLiteral("612 x 792 pts")))
        << PaperSize().toStdString();
    EXPECT_EQ(FilesThere(), 1);
}

TEST_F(PdfJobTest, ThePrintersUnprintableBorderDoesNotMoveThePages) {
    ASSERT_TRUE(Write().IsWhole());
    for (const PdfWord& word : PdfWords(path)) {
        if (word.Page == 1 && word.Text == QStringLiteral("!")) {
            // The first square's middle: half an inch of margin and half a square of a tenth.
            EXPECT_NEAR((word.Left + word.Right) / 2, 36 + 3.6, 1);
            EXPECT_NEAR((word.Top + word.Bottom) / 2, 36 + 3.6, 2);
            return;
        }
    }
    FAIL() << "the first stitch is not on the page";
}

TEST_F(PdfJobTest, TheJobIsAfterwardsAsItWas) {
    job.SetPrintRange(2, 3, false);
    job.SetPrintPage(3);
    job.SetPreviewMode(true);
    const PdfResult result = Write();
    EXPECT_EQ(result.Pages, 2);
    EXPECT_EQ(job.PrintPage(), 3);
    EXPECT_TRUE(job.PreviewMode());
    EXPECT_EQ(job.Printer(), &printer);
    EXPECT_TRUE(PdfText(path, 1).endsWith(QStringLiteral("Page 2")));
}

TEST_F(PdfJobTest, WithoutAnyDeviceThePaperIsA4) {
    PrintFuncs bare({}, nullptr);
    bare.SetPattern(*pattern);
    bare.SetPrintRange(1, bare.GetPageCount(), false);
    ASSERT_TRUE(WritePdf(bare, path, nullptr).IsWhole());
    EXPECT_TRUE(PaperSize().startsWith(QStringLiteral("595 x 842 pts")))
        << PaperSize().toStdString();
}

TEST_F(PdfJobTest, PaperByItselfIsLaidOutAsAskedFor) {
    Paper landscape(QPageSize(QPageSize::A3), true);
    job.SetPrinter(&landscape);
    const int pages = job.GetPageCount();
    job.SetPrintRange(1, pages, false);
    ASSERT_TRUE(Write().IsWhole());
    EXPECT_EQ(PdfPageCount(path), pages);
    EXPECT_TRUE(PaperSize().startsWith(QStringLiteral("1191 x 842 pts")))
        << PaperSize().toStdString();
}

TEST_F(PdfJobTest, PaperGoesByTheLocale) {
    EXPECT_EQ(Paper(QLocale(QLocale::English, QLocale::UnitedStates)).Width(), LetterWidth);
    EXPECT_EQ(Paper(QLocale(QLocale::German, QLocale::Germany)).Width(), 595 * 20);
    EXPECT_EQ(Paper(QLocale(QLocale::German, QLocale::Germany)).Height(), 842 * 20);
}

TEST_F(PdfJobTest, ProgressNamesEachPage) {
    RecordingProgress progress;
    job.SetPreviewMode(true);
    ASSERT_TRUE(Write(&progress).IsWhole());
    ASSERT_EQ(static_cast<int>(progress.started.size()), job.GetPageCount());
    EXPECT_EQ(progress.started.front().first, "Printing Pattern Page 1");
    EXPECT_EQ(progress.started.back().first, "Printing Color Key Page 1");
    EXPECT_EQ(progress.stopped, job.GetPageCount());
}

TEST_F(PdfJobTest, CancelledLeavesTheOldFileAndNothingElse) {
    WriteFile(path, "the old one");
    RecordingProgress progress;
    progress.cancelAfter = 2;
    const PdfResult result = Write(&progress);
    EXPECT_TRUE(result.Cancelled);
    EXPECT_FALSE(result.IsWhole());
    EXPECT_EQ(ReadFile(path), "the old one");
    EXPECT_EQ(FilesThere(), 1);
    EXPECT_FALSE(job.PrintCancelled()); // the next page of a preview is not stopped by it
}

TEST_F(PdfJobTest, FullDiskIsTold) {
    const PdfResult result = WritePdf(job, "/dev/full", nullptr);
    EXPECT_EQ(result.ErrorText, "Disk full");
    EXPECT_FALSE(result.IsWhole());
}

TEST_F(PdfJobTest, FolderOrPlaceThatIsNotThereIsTold) {
    EXPECT_EQ(WritePdf(job, files.Path(), nullptr).ErrorText, "Path/File access error");
    EXPECT_EQ(WritePdf(job, files / "nowhere" / "a.pdf", nullptr).ErrorText, "Path not found");
    EXPECT_EQ(FilesThere(), 0);
}

} // namespace zol::test
