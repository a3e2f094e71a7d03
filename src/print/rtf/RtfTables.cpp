// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/rtf/RtfTables.h"

#include <algorithm>
#include <array>

#include "print/rtf/RtfNumbering.h"
#include "print/rtf/RtfText.h"

namespace zol {

namespace {

constexpr qsizetype MaxNameLength = 100; // of a font; any more is damage

/// The numbers of \levelnfc.
QTextListFormat::Style StyleOfNumberFormat(int format) {
    constexpr int Bullet = 23;
    constexpr int None = 255;
    constexpr std::array<QTextListFormat::Style, 5> Numbered{
        QTextListFormat::ListDecimal, QTextListFormat::ListUpperRoman,
        QTextListFormat::ListLowerRoman, QTextListFormat::ListUpperAlpha,
        QTextListFormat::ListLowerAlpha};
    if (format == Bullet) {
        return QTextListFormat::ListDisc;
    }
    if (format == None) {
        return RtfParagraph::NoList;
    }
    const auto row = static_cast<std::size_t>(std::max(format, 0));
    return row < Numbered.size() ? Numbered[row] : QTextListFormat::ListDecimal;
}

/// The number of \levelstartat.
int StartOf(const RtfToken& word) {
    return std::clamp(word.NumberOr(1), 0, RtfNumbering::MaxNumber);
}

} // namespace

void RtfFontTable::Obey(const RtfToken& word, int codePageOfDocument) {
    if (word.Word == "f") {
        m_current = word.NumberOr(0);
        m_fonts[m_current] = Font();
    } else if (word.Word == "fcharset") {
        m_fonts[m_current].CodePage = RtfCodePages::OfCharset(word.NumberOr(0), codePageOfDocument);
    } else if (word.Word == "cpg") {
        m_fonts[m_current].CodePage = word.NumberOr(RtfCodePages::Western);
    }
}

void RtfFontTable::AddText(const QString& text) {
    Font& font = m_fonts[m_current];
    if (font.IsWhole) {
        return;
    }
    const qsizetype end = text.indexOf(QLatin1Char(';'));
    font.Name += end < 0 ? text : text.left(end);
    font.Name.truncate(MaxNameLength);
    if (end >= 0) {
        font.IsWhole = true;
    }
}

QString RtfFontTable::Name(int font) const {
    const auto found = m_fonts.find(font);
    return found == m_fonts.end() ? QString() : RtfText::Cleaned(found->second.Name).simplified();
}

int RtfFontTable::CodePage(int font, int ofDocument) const {
    const auto found = m_fonts.find(font);
    return found == m_fonts.end() ? ofDocument : found->second.CodePage.value_or(ofDocument);
}

int RtfFontTable::CodePageOfName(int ofDocument) const {
    const int page = CodePage(m_current, ofDocument);
    return page == RtfCodePages::Symbol ? ofDocument : page; // its name is made of letters
}

void RtfColorTable::Obey(const RtfToken& word) {
    const int value = std::clamp(word.NumberOr(0), 0, 255);
    const auto change = [&](void (QColor::*set)(int)) {
        if (!m_next.isValid()) {
            m_next = QColor(0, 0, 0);
        }
        (m_next.*set)(value);
    };
    if (word.Word == "red") {
        change(&QColor::setRed);
    } else if (word.Word == "green") {
        change(&QColor::setGreen);
    } else if (word.Word == "blue") {
        change(&QColor::setBlue);
    }
}

void RtfColorTable::Close() {
    m_colors.push_back(m_next);
    m_next = QColor();
}

QColor RtfColorTable::Color(int row) const {
    const auto index = static_cast<std::size_t>(std::max(row, 0));
    return index < m_colors.size() ? m_colors[index] : QColor();
}

void RtfListTable::ObeyList(const RtfToken& word) {
    if (word.Word == "list") {
        m_levels.clear();
    } else if (word.Word == "listlevel" && m_levels.size() < MaxListLevel) {
        m_levels.emplace_back();
    } else if ((word.Word == "levelnfc" || word.Word == "levelnfcn") && !m_levels.empty()) {
        m_levels.back().Style = StyleOfNumberFormat(word.NumberOr(0));
    } else if (word.Word == "levelstartat" && !m_levels.empty()) {
        m_levels.back().Start = StartOf(word);
    } else if (word.Word == "listid") {
        m_lists[word.NumberOr(0)] = m_levels; // stands after the levels
    }
}

void RtfListTable::ObeyOverride(const RtfToken& word) {
    if (word.Word == "listoverride") {
        m_override = Override();
    } else if (word.Word == "listid") {
        m_override.ListID = word.NumberOr(0);
    } else if (word.Word == "lfolevel" && m_override.Starts.size() < MaxListLevel) {
        m_override.Starts.emplace_back();
    } else if (word.Word == "levelstartat" && !m_override.Starts.empty()) {
        m_override.Starts.back() = StartOf(word);
    } else if (word.Word == "ls") {
        m_overrides[word.NumberOr(0)] = m_override;
    }
}

std::optional<RtfListTable::Level> RtfListTable::Find(int listNumber, int level) const {
    const auto over = m_overrides.find(listNumber);
    const auto list = over == m_overrides.end() ? m_lists.end() : m_lists.find(over->second.ListID);
    const auto row = static_cast<std::size_t>(std::max(level, 0));
    if (list == m_lists.end() || row >= list->second.size()) {
        return std::nullopt;
    }
    Level found = list->second[row];
    if (const auto& starts = over->second.Starts; row < starts.size()) {
        found.Start = starts[row].value_or(found.Start);
    }
    return found;
}

} // namespace zol
