// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextListFormat>

#include <map>
#include <optional>
#include <utility>

#include "print/rtf/RtfFormat.h"
#include "print/rtf/RtfNumbering.h"

class QTextDocument;

namespace zol {

/// How a paragraph belongs to a list; none without a style.
struct RtfListPlace {
    QTextListFormat::Style Style = RtfParagraph::NoList;
    int Level = 1; ///< from 1
    int List = 0;  ///< tells numbered lists apart; 0: by what they touch and by their numbers
    int Start = 1; ///< the number of the list's first item
    std::optional<int> Number; ///< the item's own, as a ready-made text tells it
};

/// Fills an empty document from front to back. A list of numbers goes on behind other paragraphs;
/// one that a document cannot number, as it does not begin at 1, has its numbers as text. The
/// document's paragraphs and lists are limited, as a damaged text could ask for millions of them:
/// past the limit a paragraph is a line break, and an item has its bullet or number as text.
class RtfDocumentBuilder {
public:
    static constexpr int MaxParagraphs = 50000;
    static constexpr int MaxLists = 1000;

    /// Empties the document, which has to outlive the builder.
    explicit RtfDocumentBuilder(QTextDocument& document);

    /// `text` holds no paragraph ends.
    void AddText(const QString& text, const QTextCharFormat& format);
    /// Ends the paragraph; the next one is begun only when there is something for it. `mark` is
    /// what an empty paragraph keeps for what is typed there.
    void EndParagraph(const QTextBlockFormat& format, const RtfListPlace& place,
                      const QTextCharFormat& mark);
    /// True if there is text since the last end of a paragraph.
    [[nodiscard]] bool IsInParagraph() const { return m_hasText; }
    void Finish();

private:
    void BeginParagraph();
    RtfListRow* AddToList(const RtfListPlace& place);
    [[nodiscard]] RtfListRow& RowOf(const RtfListPlace& place, int level);
    void BeginList(RtfListRow& row, QTextListFormat::Style style, int level, int number);
    void WriteItemText(const RtfListRow& row, int level);

    QTextCursor m_cursor;
    RtfListRows m_lists;
    std::map<std::pair<int, int>, RtfListRow> m_namedLists; ///< by RtfListPlace::List and level
    bool m_isEnded = false;
    bool m_hasText = false;
    bool m_isFull = false; ///< paragraphs are line breaks now
    int m_paragraphs = 1;
    int m_listCount = 0;
};

} // namespace zol
