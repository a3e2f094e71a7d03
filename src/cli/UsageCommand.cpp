// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <iostream>

#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "cli/JsonWriter.h"
#include "print/FlossUsageText.h"

namespace zol {

namespace {

void AsJson(const std::vector<FlossUsageRow>& rows, bool inches) {
    JsonWriter json(std::cout);
    json.BeginObject();
    json.Key("flosses");
    json.BeginArray();
    for (const FlossUsageRow& row : rows) {
        json.BeginObject();
        json.Key("backStitch");
        json.Decimal(row.BackStitchLength);
        json.TextMember("description", row.Description);
        json.TextMember("flossID", row.FlossID);
        json.Key("skeins");
        json.Decimal(row.SkeinCount);
        json.Member("stitches", row.StitchCount);
        json.EndObject();
    }
    json.EndArray();
    json.TextMember("units", inches ? "inches" : "centimetres");
    json.EndObject();
    std::cout << '\n';
}

using Texts = std::array<std::string, FlossUsageRow::ColumnCount>;

Texts TextsOf(const FlossUsageRow& row) {
    Texts texts;
    for (std::size_t column = 0; column < texts.size(); ++column) {
        texts[column] = row.Text(column);
    }
    return texts;
}

/// Characters of a UTF-8 text, for columns of equal width.
std::size_t WidthOf(const std::string& text) {
    return CodePage::Decode(text).size();
}

void AsTable(const Texts& headings, const std::vector<FlossUsageRow>& rows) {
    std::vector<Texts> lines{headings};
    for (const FlossUsageRow& row : rows) {
        lines.push_back(TextsOf(row));
    }
    std::array<std::size_t, FlossUsageRow::ColumnCount> widths{};
    for (const Texts& line : lines) {
        for (std::size_t column = 0; column < widths.size(); ++column) {
            widths[column] = std::max(widths[column], WidthOf(line[column]));
        }
    }
    for (const Texts& line : lines) {
        std::string text;
        for (std::size_t column = 0; column < widths.size(); ++column) {
            const std::string gap(widths[column] - WidthOf(line[column]), ' ');
            text += column > 0 ? "  " : "";
            text += column < FlossUsageRow::FirstNumericColumn ? line[column] + gap
                                                               : gap + line[column];
        }
        std::cout << text << '\n';
    }
}

} // namespace

void RunUsage(Environment& environment, const CommandWords& words) {
    const CommandLine line(words, {{"--json"}, {"--csv"}});
    line.ExpectFiles(1, 1);
    if (line.Has("--json") && line.Has("--csv")) {
        throw WrongUsage("only one of --json and --csv can be given");
    }
    Pattern pattern(environment.Context());
    environment.LoadPattern(pattern, line.Files()[0]);
    const bool inches = environment.GetOptions().UsesInches();
    const std::vector<FlossUsageRow> rows = GetFlossUsages(pattern, inches);
    if (line.Has("--json")) {
        AsJson(rows, inches);
        return;
    }
    if (line.Has("--csv")) {
        std::cout << FlossUsageCsv(rows, inches);
        return;
    }
    AsTable(FlossUsageHeadings(inches), rows);
}

} // namespace zol
