// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/PdfJob.h"

#include <exception>
#include <system_error>

#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>

#include "model/RunTimeError.h"
#include "model/SafeFile.h"
#include "print/CheckedOutput.h"
#include "print/PageDevice.h"
#include "print/PageText.h"
#include "print/Paper.h"
#include "print/PrintJob.h"

namespace zol {

namespace fs = std::filesystem;

namespace {

/// Lends the job another device and gives back what printing on it changes.
class LentDevice {
public:
    LentDevice(PrintFuncs& job, PageDevice& device)
        : m_job(&job),
          m_printer(job.Printer()),
          m_page(job.PrintPage()),
          m_isPreview(job.PreviewMode()) {
        job.SetPrinter(&device);
        job.SetPreviewMode(false);
    }
    ~LentDevice() {
        m_job->SetPrinter(m_printer);
        m_job->SetPreviewMode(m_isPreview);
        m_job->SetPrintPage(m_page);
        m_job->SetPrintCancelled(false);
    }
    LentDevice(const LentDevice&) = delete;
    LentDevice& operator=(const LentDevice&) = delete;

private:
    PrintFuncs* m_job;
    PageDevice* m_printer;
    int m_page;
    bool m_isPreview;
};

void SetUpPages(QPdfWriter& writer, const PrintFuncs& job) {
    // A pixel is then a twip, and nothing is rounded on its way to the page.
    writer.setResolution(PageDevice::TwipsPerInch);
    writer.setPageLayout(job.Printer() != nullptr ? Paper::LayoutOf(*job.Printer())
                                                  : Paper(QPageSize(QPageSize::A4)).Layout());
    writer.setTitle(OneLine(job.PrintPattern()->Title));
    writer.setCreator(QStringLiteral("Korvanta 6"));
}

PdfResult PrintInto(PrintFuncs& functions, CheckedOutput& output, ProgressDoor* progress) {
    PdfResult result;
    QPdfWriter writer(&output);
    SetUpPages(writer, functions);
    PagedPageDevice device(writer);
    const LentDevice lent(functions, device);
    PrintJob job(functions, device, progress);
    while (job.PrintNextPage() == PrintJob::State::Running && output.ErrorNumber() == ErrNone) {
        ++result.Pages;
    }
    result.Cancelled = job.CurrentState() == PrintJob::State::Cancelled;
    result.ErrorText = job.ErrorText();
    result.Pages += job.CurrentState() == PrintJob::State::Done ? 1 : 0;
    return result;
}

PdfResult PrintAndFinish(PrintFuncs& functions, CheckedOutput& output, ProgressDoor* progress) {
    PdfResult result;
    try {
        result = PrintInto(functions, output, progress);
    } catch (const std::exception& error) {
        result.ErrorText = error.what();
    }
    const int number = output.Finish();
    if (number != ErrNone) {
        result.ErrorText = RunTimeErrorText(number);
    }
    return result;
}

} // namespace

PdfResult WritePdf(PrintFuncs& job, const fs::path& path, ProgressDoor* progress) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (fs::is_directory(status)) {
        return {0, RunTimeErrorText(ErrPathAccess), false};
    }
    const bool isDevice = fs::exists(status) && !fs::is_regular_file(status);
    const fs::path fresh = isDevice ? path : SafeFile::NewNameBeside(path);
    CheckedOutput output;
    const int opened = isDevice ? output.OpenDevice(path) : output.CreateFile(fresh);
    if (opened != ErrNone) {
        return {0, RunTimeErrorText(opened), false};
    }
    PdfResult result = PrintAndFinish(job, output, progress);
    if (isDevice) {
        return result;
    }
    if (!result.IsWhole()) {
        fs::remove(fresh, error);
    } else if (const int number = SafeFile::Adopt(fresh, path); number != ErrNone) {
        result.ErrorText = RunTimeErrorText(number);
    }
    return result;
}

} // namespace zol
