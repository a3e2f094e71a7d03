// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/ChartPdf.h"

#include <system_error>

#include <QPageLayout>
#include <QPdfWriter>

#include "model/RunTimeError.h"
#include "model/SafeFile.h"
#include "print/CheckedOutput.h"
#include "print/PageDevice.h"
#include "print/PageText.h"
#include "print/PrintFuncs.h"
#include "print/PrintJob.h"
#include "print/PrintRequest.h"

namespace zol {

namespace fs = std::filesystem;

namespace {

void SetUpPages(QPdfWriter& writer, const Pattern& pattern, const ChartPdfOptions& options) {
    // A pixel is then a twip, and nothing is rounded on its way to the page.
    writer.setResolution(PageDevice::TwipsPerInch);
    writer.setPageLayout(QPageLayout(
        options.PageSize, options.Landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
        QMarginsF(0, 0, 0, 0)));
    writer.setTitle(OneLine(pattern.Title));
    writer.setCreator(QStringLiteral("Korvanta 6"));
}

/// Lays the job out and checks what was asked for; an empty text if it may run.
std::string PrepareJob(PrintFuncs& functions, const ChartPdfOptions& options) {
    if (!(options.Print.GSPI > 0)) {
        return CheckPrintRequest({0, 1, 1, 1}).Text;
    }
    if (options.FitPage) {
        functions.FitToPage();
    }
    if (functions.ColumnsPerPage() <= 0 || functions.RowsPerPage() <= 0) {
        return "A page with these margins holds no whole square.";
    }
    if (options.Print.PrintColorKey) {
        functions.CountKeyPages();
    }
    PrintRequest request;
    request.GSPI = functions.Options().GSPI;
    request.LastPage = functions.GetPageCount();
    request.FromPage = options.FromPage.value_or(1);
    request.ToPage = options.ToPage.value_or(request.LastPage);
    const PrintRequestFault fault = CheckPrintRequest(request);
    if (fault.Field == PrintField::None) {
        functions.SetPrintRange(request.FromPage, request.ToPage, false);
    }
    return fault.Text;
}

ChartPdfResult PrintPages(Pattern& pattern, const ChartPdfOptions& options, CheckedOutput& output,
                          ProgressDoor* progress) {
    ChartPdfResult result;
    QPdfWriter writer(&output);
    SetUpPages(writer, pattern, options);
    PagedPageDevice device(writer);
    PrintFuncs functions(options.Print, &device);
    functions.SetPattern(pattern);
    result.ErrorText = PrepareJob(functions, options);
    if (!result.ErrorText.empty()) {
        return result;
    }
    PrintJob job(functions, device, progress);
    while (job.PrintNextPage() == PrintJob::State::Running && output.ErrorNumber() == ErrNone) {
        ++result.Pages;
    }
    result.Cancelled = job.CurrentState() == PrintJob::State::Cancelled;
    result.ErrorText = job.ErrorText();
    result.Pages += job.CurrentState() == PrintJob::State::Done ? 1 : 0;
    return result;
}

ChartPdfResult PrintInto(Pattern& pattern, const ChartPdfOptions& options, CheckedOutput& output,
                         ProgressDoor* progress) {
    ChartPdfResult result;
    try {
        result = PrintPages(pattern, options, output, progress);
    } catch (const RunTimeError& error) {
        result.ErrorText = error.what();
    }
    const int number = output.Finish();
    if (number != ErrNone) {
        result.ErrorText = RunTimeErrorText(number);
    }
    return result;
}

} // namespace

ChartPdfResult WriteChartPdf(Pattern& pattern, const ChartPdfOptions& options, const fs::path& path,
                             ProgressDoor* progress) {
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
    ChartPdfResult result = PrintInto(pattern, options, output, progress);
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
