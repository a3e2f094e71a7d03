// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/FlossUsage.h"

#include "flosses/Palette.h"
#include "model/LengthUnits.h"
#include "model/Rounding.h"
#include "settings/Options.h"

namespace zol {

namespace {

/// What GetColorCount is asked for.
enum CountKind { CountOfStitches = 0, CountOfBoth = 2, ThreadOfLines = 3, ThreadOfStitches = 4 };

FlossUsageRow RowOf(const Pattern& pattern, int entry, bool inches) {
    constexpr double SkeinLength = Options::SkeinStrands * Options::SkeinInches * SkeinShare;
    const Palette& palette = pattern.GetPalette();
    const double backThread = pattern.GetColorCount(ThreadOfLines, entry);
    const double stitchThread = pattern.GetColorCount(ThreadOfStitches, entry);
    FlossUsageRow row;
    row.Entry = entry;
    row.StitchCount = TruncToInt(pattern.GetColorCount(CountOfStitches, entry));
    row.BackStitchLength = inches ? backThread : backThread * CentimetresPerInch;
    row.SkeinCount = (backThread * palette.GetFlossBackStitchStrands(entry) +
                      stitchThread * palette.GetFlossStitchStrands(entry)) /
                         SkeinLength +
                     SkeinRounding;
    row.FlossID = palette.GetManufShortDesc(entry) + " " + palette.GetManufID(entry);
    row.Description = palette.GetFlossShortDesc(entry);
    row.Stitches = std::to_string(row.StitchCount);
    row.BackStitch = FormatFixed(row.BackStitchLength, 1);
    row.Skeins = FormatFixed(row.SkeinCount, 1);
    return row;
}

} // namespace

const std::string& FlossUsageRow::Text(std::size_t column) const {
    const std::array<const std::string*, ColumnCount> texts{&FlossID, &Description, &Stitches,
                                                            &BackStitch, &Skeins};
    return *texts.at(column);
}

std::array<std::string, FlossUsageRow::ColumnCount> FlossUsageHeadings(bool inches) {
    return {"Floss ID", "Description", "Stitches",
            inches ? "Back Stitch (Inches)" : "Back Stitch (cm)", "Skeins"};
}

std::vector<FlossUsageRow> GetFlossUsages(Pattern& pattern, bool inches) {
    pattern.CountStitches();
    std::vector<FlossUsageRow> rows;
    const Palette& palette = pattern.GetPalette();
    for (int position = 1; position <= palette.GetEntriesCount(); ++position) {
        const int entry = palette.GetSortIndex(position);
        if (pattern.GetColorCount(CountOfBoth, entry) > 0) {
            rows.push_back(RowOf(pattern, entry, inches));
        }
    }
    return rows;
}

} // namespace zol
