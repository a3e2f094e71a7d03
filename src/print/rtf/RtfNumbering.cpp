// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/rtf/RtfNumbering.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace zol {

namespace {

constexpr int Letters = 26;
constexpr int MostRoman = 4999; // there is no sign for 5000
constexpr std::array<std::pair<int, std::string_view>, 13> RomanSigns{{
    {1000, "m"},
    {900, "cm"},
    {500, "d"},
    {400, "cd"},
    {100, "c"},
    {90, "xc"},
    {50, "l"},
    {40, "xl"},
    {10, "x"},
    {9, "ix"},
    {5, "v"},
    {4, "iv"},
    {1, "i"},
}};

std::string InLetters(int number) {
    std::string text;
    for (; number > 0; number = (number - 1) / Letters) {
        text.insert(text.begin(), static_cast<char>('a' + (number - 1) % Letters));
    }
    return text;
}

std::string InRoman(int number) {
    std::string text;
    for (const auto& [value, sign] : RomanSigns) {
        for (; number >= value; number -= value) {
            text += sign;
        }
    }
    return text;
}

int OfLetters(std::string_view letters) {
    std::int64_t number = 0;
    for (const char c : letters) {
        number = std::min<std::int64_t>(number * Letters + (c - 'a' + 1), INT32_MAX);
    }
    return static_cast<int>(number);
}

int OfRoman(std::string_view letters) {
    int number = 0;
    for (const auto& [value, sign] : RomanSigns) {
        // A run of letters may be as long as the text; none of them is a number from here on.
        while (letters.starts_with(sign) && number <= MostRoman) {
            number += value;
            letters.remove_prefix(sign.size());
        }
    }
    return number;
}

int OfFigures(std::string_view figures) {
    std::int64_t number = 0;
    for (const char c : figures) {
        number = std::min<std::int64_t>(number * 10 + (c - '0'), INT32_MAX);
    }
    return static_cast<int>(number);
}

bool IsUpper(QTextListFormat::Style style) {
    return style == QTextListFormat::ListUpperAlpha || style == QTextListFormat::ListUpperRoman;
}
bool IsRoman(QTextListFormat::Style style) {
    return style == QTextListFormat::ListLowerRoman || style == QTextListFormat::ListUpperRoman;
}

/// The last characters of one kind that follow each other.
std::string LastRun(std::string_view text, std::string_view kind) {
    const std::size_t last = text.find_last_of(kind);
    if (last == std::string_view::npos) {
        return {};
    }
    const std::size_t before = text.substr(0, last).find_last_not_of(kind);
    const std::size_t first = before == std::string_view::npos ? 0 : before + 1;
    return std::string(text.substr(first, last + 1 - first));
}

void ChangeCase(std::string& letters, char from, char to) {
    for (char& c : letters) {
        c = static_cast<char>(c - from + to);
    }
}

} // namespace

bool RtfNumbering::IsNumbered(QTextListFormat::Style style) {
    return style <= QTextListFormat::ListDecimal;
}

std::string RtfNumbering::Text(QTextListFormat::Style style, int number) {
    const bool isRoman = IsRoman(style);
    if (style == QTextListFormat::ListDecimal || number < 1 || (isRoman && number > MostRoman)) {
        return std::to_string(number);
    }
    std::string text = isRoman ? InRoman(number) : InLetters(number);
    if (IsUpper(style)) {
        ChangeCase(text, 'a', 'A');
    }
    return text;
}

std::string RtfNumbering::ItemText(QTextListFormat::Style style, int number) {
    return (IsNumbered(style) ? Text(style, number) + "." : "\u2022") + "\t";
}

std::optional<int> RtfNumbering::OfText(QTextListFormat::Style style, std::string_view text) {
    std::string run = LastRun(text, "0123456789");
    int number = OfFigures(run);
    if (style != QTextListFormat::ListDecimal && run.empty()) {
        run = LastRun(text,
                      IsUpper(style) ? "ABCDEFGHIJKLMNOPQRSTUVWXYZ" : "abcdefghijklmnopqrstuvwxyz");
        if (IsUpper(style)) {
            ChangeCase(run, 'A', 'a');
        }
        number = IsRoman(style) ? OfRoman(run) : OfLetters(run);
        if (run != (IsRoman(style) ? InRoman(number) : InLetters(number))) {
            return std::nullopt; // letters, but no number
        }
    }
    return run.empty() || number > MaxNumber ? std::nullopt : std::optional(number);
}

bool RtfListRow::GoesOnWith(QTextListFormat::Style style, int number) const {
    if (Style != style) {
        return false;
    }
    return RtfNumbering::IsNumbered(style) ? number == Next && (IsOpen || number > 1) : IsOpen;
}

void RtfListRows::CloseBelow(int level) {
    std::for_each(m_rows.begin() + level + 1, m_rows.end(),
                  [](RtfListRow& row) { row.IsOpen = false; });
}

} // namespace zol
