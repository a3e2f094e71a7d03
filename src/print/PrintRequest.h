// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace zol {

/// The choices of page range that are checked before a job runs.
struct PrintRequest {
    double GSPI = 10; ///< the number in its field, in squares to the inch or centimetre
    int FromPage = 1;
    int ToPage = 1;
    int LastPage = 1; ///< of all the job's pages
};

enum class PrintField { None, GSPI, FromPage, ToPage };

/// Which field is wrong and what is said of it, in a warning box titled "Print".
struct PrintRequestFault {
    PrintField Field = PrintField::None;
    std::string Text;
};

/// The first fault in the order of the checks; PrintField::None if the job may run.
[[nodiscard]] PrintRequestFault CheckPrintRequest(const PrintRequest& request);

/// What is said where the checks above find nothing and there is nothing to print all the same.
inline constexpr char NoSquareText[] = "A page with these margins holds no whole square.";

/// "All:   (1 Page)", "All:   (7 Pages)".
[[nodiscard]] std::string AllPagesCaption(int pages);
/// The last page that can be asked for: `pageCount` is GetPageCount's.
[[nodiscard]] int GetToPage(int pageCount, int keyPages, bool keyOnly, bool printColorKey);

/// Squares to the inch from what was typed, which is squares to the centimetre in centimetres.
[[nodiscard]] double GSPIFromField(double typed, bool inches);
/// The field's text, in the format "#.0".
[[nodiscard]] std::string GSPIFieldText(double gspi, bool inches);
[[nodiscard]] std::string GSPILabel(bool inches);

} // namespace zol
