// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/CatalogueCsv.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>
#include <set>

#include "flosses/AvailColors.h"
#include "model/CodePage.h"
#include "model/ProgramContext.h"
#include "model/RunTimeError.h"

namespace zol {

namespace {

constexpr std::string_view header = "FlossID,Description,Red,Green,Blue,MasterID";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t fieldCount = 6;
constexpr std::size_t maxBytes = 8U << 20U; ///< far above what the greatest catalogue needs

[[noreturn]] void Fail(const std::string& text) {
    throw RunTimeError(ErrInvalidFormat, text);
}

[[noreturn]] void FailAt(std::size_t line, const std::string& text) {
    Fail("Line " + std::to_string(line) + ": " + text);
}

/// What is wrong with a text that is to stand in a field of that many characters, or nothing.
std::optional<std::string> FaultOfText(std::string_view text, std::size_t width) {
    if (Trimmed(text).empty()) {
        return "is empty";
    }
    const std::u32string characters = CodePage::Decode(text);
    if (characters.size() > width) {
        return "is longer than " + std::to_string(width) + " characters";
    }
    const bool fits = std::all_of(characters.begin(), characters.end(), [](char32_t c) {
        return c >= U' ' && c != 127 && CodePage::FromUnicode(c) != 0;
    });
    return fits ? std::nullopt
                : std::optional<std::string>("holds a character that catalogues cannot hold");
}

/// Takes lines off the front of a text.
class LineReader {
public:
    explicit LineReader(std::string_view text) : m_rest(text) {}

    [[nodiscard]] bool AtEnd() const { return m_rest.empty(); }
    [[nodiscard]] std::size_t Line() const { return m_line; }
    std::string_view Next() {
        ++m_line;
        const std::size_t end = std::min(m_rest.find('\n'), m_rest.size());
        std::string_view line = m_rest.substr(0, end);
        m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
        if (!line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        return line;
    }

private:
    std::string_view m_rest;
    std::size_t m_line = 0;
};

/// A quoted field whose opening quote has been taken off `rest`; takes the closing one as well.
std::string TakeQuoted(std::string_view& rest, std::size_t line) {
    std::string field;
    for (;;) {
        const std::size_t quote = rest.find('"');
        if (quote == std::string_view::npos) {
            FailAt(line, "a quoted field is not closed");
        }
        field += rest.substr(0, quote);
        rest.remove_prefix(quote + 1);
        if (rest.empty() || rest.front() != '"') {
            return field;
        }
        field += '"';
        rest.remove_prefix(1);
    }
}

std::string TakePlain(std::string_view& rest, std::size_t line) {
    const std::size_t end = std::min(rest.find(','), rest.size());
    std::string field(rest.substr(0, end));
    if (field.find('"') != std::string::npos) {
        FailAt(line, "a quote stands inside a field that is not quoted");
    }
    rest.remove_prefix(end);
    return field;
}

std::vector<std::string> SplitFields(std::string_view text, std::size_t line) {
    std::vector<std::string> fields;
    for (;;) {
        const bool quoted = !text.empty() && text.front() == '"';
        if (quoted) {
            text.remove_prefix(1);
        }
        fields.push_back(quoted ? TakeQuoted(text, line) : TakePlain(text, line));
        if (text.empty()) {
            return fields;
        }
        if (text.front() != ',') {
            FailAt(line, "something follows a quoted field");
        }
        text.remove_prefix(1);
    }
}

std::int32_t TakeNumber(const std::string& field, std::int32_t maximum, const char* name,
                        std::size_t line) {
    std::int32_t value = 0;
    const char* end = field.data() + field.size();
    const auto [stop, error] = std::from_chars(field.data(), end, value);
    if (error != std::errc() || stop != end || field.front() == '-' || value > maximum) {
        FailAt(line, std::string(name) + " \"" + field + "\" is no number from 0 to " +
                         std::to_string(maximum));
    }
    return value;
}

std::string TakeText(const std::string& field, std::size_t width, const char* name,
                     std::size_t line) {
    if (const auto fault = FaultOfText(field, width)) {
        FailAt(line, std::string(name) + " " + *fault);
    }
    return field;
}

CatalogueCsvRow ReadRow(std::string_view text, std::size_t line) {
    const std::vector<std::string> fields = SplitFields(text, line);
    if (fields.size() != fieldCount) {
        FailAt(line,
               std::to_string(fields.size()) + " fields instead of " + std::to_string(fieldCount));
    }
    CatalogueCsvRow row;
    row.FlossID = TakeText(fields[0], 10, "FlossID", line);
    row.Description = TakeText(fields[1], 30, "Description", line);
    row.Red = TakeNumber(fields[2], 255, "Red", line);
    row.Green = TakeNumber(fields[3], 255, "Green", line);
    row.Blue = TakeNumber(fields[4], 255, "Blue", line);
    row.MasterID =
        TakeNumber(fields[5], std::numeric_limits<std::int32_t>::max(), "MasterID", line);
    return row;
}

} // namespace

std::vector<CatalogueCsvRow> ReadCatalogueCsv(std::string_view csv) {
    if (csv.size() > maxBytes) {
        Fail("The file is too large for a catalogue");
    }
    if (csv.substr(0, byteOrderMark.size()) == byteOrderMark) {
        csv.remove_prefix(byteOrderMark.size());
    }
    LineReader lines(csv);
    if (lines.Next() != header) {
        FailAt(1, "the header is not \"" + std::string(header) + "\"");
    }
    std::vector<CatalogueCsvRow> rows;
    std::set<std::string> numbers;
    while (!lines.AtEnd()) {
        const std::string_view text = lines.Next();
        rows.push_back(ReadRow(text, lines.Line()));
        const std::string& number = rows.back().FlossID;
        if (!numbers.insert(LowerCase(Trimmed(number))).second) {
            FailAt(lines.Line(), "FlossID \"" + number + "\" is there twice");
        }
        if (rows.size() > AvailColors::MaxFlosses) {
            FailAt(lines.Line(), "more than " + std::to_string(AvailColors::MaxFlosses) + " rows");
        }
    }
    return rows;
}

std::vector<std::uint8_t> BuildCatalogue(std::string_view csv, std::string_view name,
                                         std::string_view shortName, std::int32_t baseID,
                                         double date) {
    if (const auto fault = FaultOfText(name, 30)) {
        Fail("The name " + *fault);
    }
    if (const auto fault = FaultOfText(shortName, 10)) {
        Fail("The short name " + *fault);
    }
    const ProgramContext context;
    AvailColors catalogue(context);
    catalogue.Setheader(name, baseID, shortName, date);
    // A new catalogue has no sort order, so the rows stay as they are added.
    int sequence = 0;
    for (const CatalogueCsvRow& row : ReadCatalogueCsv(csv)) {
        catalogue.AddEntry(row.MasterID, row.Description, row.FlossID, row.Red, row.Green, row.Blue,
                           ++sequence, 0, 0, {});
    }
    return catalogue.Bytes();
}

double CatalogueDate(std::int64_t secondsSince1970) {
    constexpr double secondsADay = 86400;
    constexpr double daysTo1970 = 25569;
    return daysTo1970 + static_cast<double>(secondsSince1970) / secondsADay;
}

} // namespace zol
