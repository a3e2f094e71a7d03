// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

#include <filesystem>
#include <string>

#include "model/Doors.h"
#include "print/PrintFuncs.h"
#include "print/WholeFile.h"

namespace zol {

/// A page of a job as a picture of the paper.
struct PagePicture {
    QImage Image;          ///< null unless the page is whole
    std::string ErrorText; ///< of a page that failed; empty if it was cancelled
};

/// Paints one page, counted as PrintPage is, with the painter that prints it. The job is afterwards
/// as it was; whether it is a preview is only how the page is named. `progress` may be null.
[[nodiscard]] PagePicture PaintPage(PrintFuncs& job, int page, int dotsPerInch,
                                    ProgressDoor* progress);

/// As PaintPage, for a screen: where it has few dots the page is painted finer and brought down, so
/// that lines and symbols weigh what they weigh on paper.
[[nodiscard]] PagePicture PaintShownPage(PrintFuncs& job, int page, int dotsPerInch,
                                         ProgressDoor* progress);

/// Writes a page as PNG if the name ends so, else as a Windows bitmap; whole or not at all.
[[nodiscard]] WholeFileResult SavePagePicture(const QImage& page,
                                              const std::filesystem::path& file);

} // namespace zol
