// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>

#include "model/Doors.h"
#include "print/PrintFuncs.h"

namespace zol {

/// What became of a PDF.
struct PdfResult {
    int Pages = 0;         ///< written
    std::string ErrorText; ///< empty if the file is whole
    bool Cancelled = false;

    [[nodiscard]] bool IsWhole() const { return ErrorText.empty() && !Cancelled; }
};

/// Writes the pages of the range that SetPrintRange gave as a PDF of the size of the job's paper
/// (its printer's, or a Paper where no printer is; A4 where the job has none). The pages are those
/// that the printer would give; its unprintable border does not count. The file appears whole or
/// not at all, and an old one stays as it was until then; a device file is written to directly.
/// The job is afterwards as it was, its page too. `progress` may be null. Needs a QGuiApplication.
[[nodiscard]] PdfResult WritePdf(PrintFuncs& job, const std::filesystem::path& path,
                                 ProgressDoor* progress);

} // namespace zol
