// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include "print/FlossUsage.h"

namespace zol {

/// All of the report together.
struct FlossUsageTotals {
    int Flosses = 0;
    std::int64_t Stitches = 0;
    double BackStitchLength = 0; ///< in the unit of the rows
    std::int64_t Skeins = 0;     ///< whole ones, each floss by itself
};

[[nodiscard]] FlossUsageTotals TotalsOf(const std::vector<FlossUsageRow>& rows);

/// Sorts by a column from 0: numbers by their figures, the rest as people read them, so that
/// "DMC 93" comes before "DMC 310". Equal rows keep their order.
void SortFlossUsages(std::vector<FlossUsageRow>& rows, std::size_t column, bool descending);

/// Headings and rows with commas between the columns, one line each.
[[nodiscard]] std::string FlossUsageCsv(const std::vector<FlossUsageRow>& rows, bool inches);
/// The same with tabs, as spreadsheets take it from the clipboard.
[[nodiscard]] std::string FlossUsageTabbed(const std::vector<FlossUsageRow>& rows, bool inches);

} // namespace zol
