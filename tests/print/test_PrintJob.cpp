// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PrintJob.h"

#include <gtest/gtest.h>

#include <QPdfWriter>

#include "print/PdfReading.h"
#include "print/PrintScene.h"
#include "support/RecordingDoors.h"

namespace zol::test {

namespace {

/// A picture device that counts what a job does with its document.
class CountingDevice : public ImagePageDevice {
public:
    CountingDevice() : ImagePageDevice(11900, 16840, 20) {}
    bool NewPage() override {
        ++newPages;
        return !refusesPages && ImagePageDevice::NewPage();
    }
    bool EndDoc() override {
        ++ended;
        return ImagePageDevice::EndDoc();
    }
    void KillDoc() override {
        ImagePageDevice::KillDoc();
        killed += counting ? 1 : 0;
    }

    int newPages = 0;
    int ended = 0;
    int killed = 0;
    bool refusesPages = false;
    bool counting = false;
};

class PrintJobTest : public ::testing::Test {
protected:
    void SetUp() override {
        functions.SetPattern(*pattern);
        functions.CountKeyPages();
        functions.SetPrintRange(1, functions.GetPageCount(), false);
    }

    PrintScene scene;
    std::unique_ptr<Pattern> pattern = scene.MakePattern(100, 120);
    CountingDevice device;
    PrintFuncs functions{PrintOptions(), &device};
};

} // namespace

TEST_F(PrintJobTest, StepsThroughItsPagesAndEndsTheDocument) {
    RecordingProgress progress;
    PrintJob job(functions, device, &progress);
    int steps = 1;
    while (job.PrintNextPage() == PrintJob::State::Running) {
        ++steps;
    }
    EXPECT_EQ(job.CurrentState(), PrintJob::State::Done);
    EXPECT_EQ(steps, functions.PrintToPage());
    EXPECT_EQ(device.newPages, steps - 1);
    EXPECT_EQ(device.ended, 1);
    ASSERT_EQ(progress.started.size(), static_cast<std::size_t>(steps));
    EXPECT_EQ(progress.started.front().first, "Printing Pattern Page 1");
    EXPECT_EQ(progress.started.back().first, "Printing Color Key Page 1");
    EXPECT_EQ(progress.stopped, steps);
    EXPECT_EQ(job.PrintNextPage(), PrintJob::State::Done); // and stays so
}

TEST_F(PrintJobTest, CancelKillsTheDocument) {
    RecordingProgress progress;
    progress.cancelAfter = 1;
    PrintJob job(functions, device, &progress);
    device.counting = true;
    EXPECT_EQ(job.Run(), PrintJob::State::Cancelled);
    EXPECT_TRUE(functions.PrintCancelled());
    EXPECT_GE(device.killed, 1);
    EXPECT_EQ(device.ended, 0);
}

TEST_F(PrintJobTest, RefusedPageFailsTheJob) {
    device.refusesPages = true;
    PrintJob job(functions, device, nullptr);
    EXPECT_EQ(job.Run(), PrintJob::State::Failed);
    EXPECT_EQ(job.ErrorText(), "Device I/O error");
    EXPECT_EQ(device.ended, 0);
}

TEST_F(PrintJobTest, LabelsTellPreviewAndKey) {
    PrintJob job(functions, device, nullptr);
    functions.SetPreviewMode(true);
    EXPECT_EQ(job.PageLabel(), "Previewing Pattern Page 1");
    functions.SetPrintPage(functions.PatternPages() + 1);
    EXPECT_EQ(job.PageLabel(), "Previewing Color Key Page 1");
}

TEST(SelectionPrintTest, NumbersAreThoseOfTheWholePattern) {
    PrintScene scene;
    const auto selection = scene.MakePattern(20, 15);
    const auto path = scene.Path("selection.pdf");
    {
        QPdfWriter writer(QString::fromStdString(path.string()));
        writer.setPageMargins(QMarginsF());
        PagedPageDevice device(writer);
        PrintFuncs functions({}, &device);
        functions.SetSelection(*selection, {25, 38});
        functions.SetPrintRange(1, functions.GetPageCount(), false);
        PrintJob job(functions, device, nullptr);
        EXPECT_EQ(job.Run(), PrintJob::State::Done);
    }
    // Columns 25 to 44, rows 38 to 52: tenth lines behind 30 and 40, behind 40 and 50.
    QStringList numbers;
    for (const PdfWord& word : PdfWords(path)) {
        if (word.Top < 36 + 20 * 7.2) {
            numbers.append(word.Text);
        }
    }
    numbers.sort();
    EXPECT_EQ(numbers, (QStringList{QStringLiteral("30"), QStringLiteral("40"),
                                    QStringLiteral("40"), QStringLiteral("50")}));
}

TEST(SelectionPrintTest, PagesBearTheNamesOfTheWholePattern) {
    PrintScene scene;
    const auto whole = scene.MakePattern(60, 60);
    whole->Title = "Rose";
    whole->Author = "Ada";
    whole->Copyright = "(c) Ada";
    whole->Fabric = "Linen";
    const auto selection = scene.MakePattern(20, 15);
    const auto path = scene.Path("selection.pdf");
    {
        QPdfWriter writer(QString::fromStdString(path.string()));
        writer.setPageMargins(QMarginsF());
        PagedPageDevice device(writer);
        PrintFuncs functions({}, &device);
        functions.SetPattern(*whole);
        functions.SetSelection(*selection, {25, 38});
        functions.CountKeyPages();
        functions.SetPrintRange(1, functions.GetPageCount(), false);
        PrintJob job(functions, device, nullptr);
        EXPECT_EQ(job.Run(), PrintJob::State::Done);
    }
    EXPECT_TRUE(PdfText(path, 1).endsWith(QStringLiteral("Rose by Ada (c) Ada Page 1")));
    const QString key = PdfText(path, 2);
    EXPECT_TRUE(key.startsWith(QStringLiteral("Rose Author: Ada Grid Size: 20W x 15H")));
    EXPECT_TRUE(key.contains(QStringLiteral("Fabric: Linen")));
    EXPECT_TRUE(key.endsWith(QStringLiteral("(c) Ada")));
    EXPECT_TRUE(selection->Title.empty()); // nor does it get any
}

} // namespace zol::test
