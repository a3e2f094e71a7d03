// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/ChartPdf.h"

#include "model/RunTimeError.h"
#include "print/Paper.h"
#include "print/PrintFuncs.h"
#include "print/PrintRequest.h"

namespace zol {

namespace {

/// Lays the job out and checks what was asked for; an empty text if it may run.
std::string PrepareJob(PrintFuncs& functions, const ChartPdfOptions& options) {
    if (!(options.Print.GSPI > 0)) {
        return CheckPrintRequest({0, 1, 1, 1}).Text;
    }
    if (options.FitPage) {
        functions.FitToPage();
    }
    if (functions.ColumnsPerPage() <= 0 || functions.RowsPerPage() <= 0) {
        return NoSquareText;
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

} // namespace

ChartPdfResult WriteChartPdf(Pattern& pattern, const ChartPdfOptions& options,
                             const std::filesystem::path& path, ProgressDoor* progress) {
    Paper paper(options.PageSize, options.Landscape);
    PrintFuncs functions(options.Print, &paper);
    functions.SetPattern(pattern);
    try {
        const std::string fault = PrepareJob(functions, options);
        return fault.empty() ? WritePdf(functions, path, progress)
                             : ChartPdfResult{0, fault, false};
    } catch (const RunTimeError& error) {
        return {0, error.what(), false};
    }
}

} // namespace zol
