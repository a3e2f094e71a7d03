// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/FlossUsageText.h"

#include <QCollator>

#include <algorithm>
#include <cmath>
#include <functional>

namespace zol {

namespace {

using Line = std::array<std::string, FlossUsageRow::ColumnCount>;

std::string CsvField(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) {
        return text;
    }
    std::string quoted = "\"";
    for (const char c : text) {
        quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    }
    return quoted + '"';
}

/// Tabs and ends of lines would be taken for columns and rows.
std::string TabbedField(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
    return text;
}

Line LineOf(const FlossUsageRow& row) {
    Line line;
    for (std::size_t column = 0; column < line.size(); ++column) {
        line[column] = row.Text(column);
    }
    return line;
}

std::string Table(const std::vector<FlossUsageRow>& rows, bool inches, char separator,
                  const std::function<std::string(const std::string&)>& field) {
    std::string table;
    const auto append = [&](const Line& line) {
        for (std::size_t column = 0; column < line.size(); ++column) {
            table += field(line[column]);
            table += column + 1 < line.size() ? separator : '\n';
        }
    };
    append(FlossUsageHeadings(inches));
    for (const FlossUsageRow& row : rows) {
        append(LineOf(row));
    }
    return table;
}

/// The figure of a column that has one.
double FigureOf(const FlossUsageRow& row, std::size_t column) {
    switch (column) {
    case 2:
        return row.StitchCount;
    case 3:
        return row.BackStitchLength;
    default:
        return row.SkeinCount;
    }
}

} // namespace

FlossUsageTotals TotalsOf(const std::vector<FlossUsageRow>& rows) {
    FlossUsageTotals totals;
    for (const FlossUsageRow& row : rows) {
        ++totals.Flosses;
        totals.Stitches += row.StitchCount;
        totals.BackStitchLength += row.BackStitchLength;
        totals.Skeins += static_cast<std::int64_t>(std::ceil(row.SkeinCount));
    }
    return totals;
}

void SortFlossUsages(std::vector<FlossUsageRow>& rows, std::size_t column, bool descending) {
    QCollator collator{QLocale(QLocale::English, QLocale::UnitedStates)};
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    const auto before = [&](const FlossUsageRow& a, const FlossUsageRow& b) {
        if (column >= FlossUsageRow::FirstNumericColumn) {
            return FigureOf(a, column) < FigureOf(b, column);
        }
        return collator.compare(QString::fromStdString(a.Text(column)),
                                QString::fromStdString(b.Text(column))) < 0;
    };
    std::stable_sort(rows.begin(), rows.end(), [&](const FlossUsageRow& a, const FlossUsageRow& b) {
        return descending ? before(b, a) : before(a, b);
    });
}

std::string FlossUsageCsv(const std::vector<FlossUsageRow>& rows, bool inches) {
    return Table(rows, inches, ',', CsvField);
}

std::string FlossUsageTabbed(const std::vector<FlossUsageRow>& rows, bool inches) {
    return Table(rows, inches, '\t', TabbedField);
}

} // namespace zol
