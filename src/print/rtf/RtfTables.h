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

    struct Level {
        QTextListFormat::Style Style = QTextListFormat::ListDecimal;
        int Start = 1; ///< the number of the first item
    };
    /// Nothing if the tables do not know the list.
    [[nodiscard]] std::optional<Level> Find(int listNumber, int level) const;

private:
    using Levels = std::vector<Level>;
    struct Override {
        int ListID = 0;
        std::vector<std::optional<int>> Starts; ///< of the levels that begin elsewhere
    };
    Levels m_levels; ///< of the list being read
    std::map<int, Levels> m_lists;
    Override m_override; ///< being read
    std::map<int, Override> m_overrides;
};

} // namespace zol
