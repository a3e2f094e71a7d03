// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPageSize>

#include <filesystem>
#include <optional>

#include "model/Doors.h"
#include "model/Pattern.h"
#include "print/PdfJob.h"
#include "print/PrintOptions.h"

namespace zol {

/// What goes into a chart file beside the pattern.
struct ChartPdfOptions {
    PrintOptions Print;
    QPageSize PageSize{QPageSize::A4};
    bool Landscape = false;
    bool FitPage = false;        ///< the whole pattern on one page; GSPI is worked out
    std::optional<int> FromPage; ///< all pages where neither is given
    std::optional<int> ToPage;
};

using ChartPdfResult = PdfResult;

/// Writes the chart, and the colour key if it is wanted, as a PDF, as WritePdf does.
[[nodiscard]] ChartPdfResult WriteChartPdf(Pattern& pattern, const ChartPdfOptions& options,
                                           const std::filesystem::path& path,
                                           ProgressDoor* progress);

} // namespace zol
