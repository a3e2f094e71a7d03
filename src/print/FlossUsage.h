// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <array>
#include <string>
#include <vector>

#include "model/Pattern.h"
#include "print/PageDevice.h"
#include "print/PrintOptions.h"

namespace zol {

inline constexpr double SkeinShare = 0.83;    ///< of a skein that ends up in the cloth
inline constexpr double SkeinRounding = 0.05; ///< skeins added before display

/// One floss of the report, as figures and as the texts that are shown.
struct FlossUsageRow {
    int Entry = 0;
    int StitchCount = 0;
    double BackStitchLength = 0; ///< inches or centimetres, as the units say
    double SkeinCount = 0;       ///< with SkeinRounding

    std::string FlossID; ///< manufacturer and number
    std::string Description;
    std::string Stitches;
    std::string BackStitch;
    std::string Skeins;

    static constexpr std::size_t ColumnCount = 5;
    static constexpr std::size_t FirstNumericColumn = 2; ///< from there on all are numbers
    [[nodiscard]] const std::string& Text(std::size_t column) const;
};

/// The report's headings; that of backstitch thread names the unit.
[[nodiscard]] std::array<std::string, FlossUsageRow::ColumnCount> FlossUsageHeadings(bool inches);

/// Counts the pattern and lists every floss that is used, in the palette's display order.
[[nodiscard]] std::vector<FlossUsageRow> GetFlossUsages(Pattern& pattern, bool inches);

/// Prints the report with its own paging and ends the document. False if the device cannot be
/// painted on.
bool PrintFlossUsage(Pattern& pattern, const PrintOptions& options, PageDevice& device);
/// The same of rows that are there, in their order.
bool PrintFlossUsage(const Pattern& pattern, const std::vector<FlossUsageRow>& rows,
                     const PrintOptions& options, PageDevice& device);

} // namespace zol
