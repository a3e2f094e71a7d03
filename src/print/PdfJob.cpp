// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PdfJob.h"

#include <exception>

#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>

#include "model/RunTimeError.h"
#include "print/KeptRange.h"
#include "print/PageDevice.h"
#include "print/PageText.h"
#include "print/Paper.h"
#include "print/PrintJob.h"
#include "print/WholeFile.h"

namespace zol {

namespace {

/// Lends the job another device.
class LentDevice {
public:
    LentDevice(PrintFuncs& job, PageDevice& device) : m_job(&job), m_printer(job.Printer()) {
        job.SetPrinter(&device);
    }
    ~LentDevice() { m_job->SetPrinter(m_printer); }
    LentDevice(const LentDevice&) = delete;
    LentDevice& operator=(const LentDevice&) = delete;

private:
    PrintFuncs* m_job;
    PageDevice* m_printer;
};

void SetUpPages(QPdfWriter& writer, const PrintFuncs& job) {
    // A pixel is then a twip, and nothing is rounded on its way to the page.
    writer.setResolution(PageDevice::TwipsPerInch);
    writer.setPageLayout(job.Printer() != nullptr ? Paper::LayoutOf(*job.Printer())
                                                  : Paper(QPageSize(QPageSize::A4)).Layout());
    writer.setTitle(OneLine(job.NamedPattern().Title));
    writer.setCreator(QStringLiteral("Korvanta 6"));
}

PdfResult PrintInto(PrintFuncs& functions, CheckedOutput& output, ProgressDoor* progress) {
    PdfResult result;
    QPdfWriter writer(&output);
    SetUpPages(writer, functions);
    PagedPageDevice device(writer);
    const LentDevice lent(functions, device);
    const KeptRange kept(functions);
    functions.SetPreviewMode(false);
    PrintJob job(functions, device, progress);
    while (job.PrintNextPage() == PrintJob::State::Running && output.ErrorNumber() == ErrNone) {
        ++result.Pages;
    }
    result.Cancelled = job.CurrentState() == PrintJob::State::Cancelled;
    result.ErrorText = job.ErrorText();
    result.Pages += job.CurrentState() == PrintJob::State::Done ? 1 : 0;
    return result;
}

} // namespace

PdfResult WritePdf(PrintFuncs& job, const std::filesystem::path& path, ProgressDoor* progress) {
    PdfResult result;
    const WholeFileResult file = WriteWholeFile(path, [&](CheckedOutput& output) {
        try {
            result = PrintInto(job, output, progress);
        } catch (const std::exception& error) {
            result.ErrorText = error.what();
        }
        return result.IsWhole();
    });
    if (file.Number != ErrNone) {
        result.ErrorText = RunTimeErrorText(file.Number);
    }
    return result;
}

} // namespace zol
