// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QString>

#include <map>
#include <optional>
#include <vector>

#include "print/rtf/RtfCodePages.h"
#include "print/rtf/RtfFormat.h"

namespace zol {

/// The \fonttbl of a document.
class RtfFontTable {
public:
    void Obey(const RtfToken& word, int codePageOfDocument);
    void AddText(const QString& text);

    /// Empty if the table has no such font.
    [[nodiscard]] QString Name(int font) const;
    [[nodiscard]] int CodePage(int font, int ofDocument) const;
    /// The code page that the name being read is written in.
    [[nodiscard]] int CodePageOfName(int ofDocument) const;

private:
    struct Font {
        QString Name;
        std::optional<int> CodePage;
        bool IsWhole = false; ///< its name's end was seen
    };
    std::map<int, Font> m_fonts;
    int m_current = 0;
};

/// The \colortbl of a document.
class RtfColorTable {
public:
    void Obey(const RtfToken& word);
    /// The end of an entry.
    void Close();

    /// Invalid for the reader's own colour, and for a row that the table lacks.
    [[nodiscard]] QColor Color(int row) const;

private:
    std::vector<QColor> m_colors;
    QColor m_next;
};

/// The \listtable and the \listoverridetable: what a paragraph's \ls and \ilvl stand for.
class RtfListTable {
public:
    void ObeyList(const RtfToken& word);
    void ObeyOverride(const RtfToken& word);

    /// Nothing if the tables do not know the list.
    [[nodiscard]] std::optional<QTextListFormat::Style> Style(int listNumber, int level) const;

private:
    using Levels = std::vector<QTextListFormat::Style>;
    Levels m_levels; ///< of the list being read
    std::map<int, Levels> m_lists;
    int m_overrideOf = 0;
    std::map<int, int> m_overrides;
};

} // namespace zol
