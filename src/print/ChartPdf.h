// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPageSize>

#include <filesystem>
#include <optional>
#include <string>

#include "model/Doors.h"
#include "model/Pattern.h"
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

struct ChartPdfResult {
    int Pages = 0;         ///< written
    std::string ErrorText; ///< empty if the file is whole
    bool Cancelled = false;

    [[nodiscard]] bool IsWhole() const { return ErrorText.empty() && !Cancelled; }
};

/// Writes the chart, and the colour key if it is wanted, as a PDF. The file appears whole or not
/// at all, and an old one stays as it was until then; a device is written to directly. Needs a
/// QGuiApplication.
[[nodiscard]] ChartPdfResult WriteChartPdf(Pattern& pattern, const ChartPdfOptions& options,
                                           const std::filesystem::path& path,
                                           ProgressDoor* progress);

} // namespace zol
