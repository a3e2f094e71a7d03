// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextListFormat>

#include <array>

#include "print/rtf/RtfFormat.h"

class QTextDocument;
class QTextList;

namespace zol {

/// How a paragraph belongs to a list; none without a style.
struct RtfListPlace {
    QTextListFormat::Style Style = RtfParagraph::NoList;
    int Level = 1; ///< from 1
};

/// Fills an empty document from front to back. Items of one style that follow each other become one
/// list. The document's paragraphs and lists are limited, as a damaged text could ask for millions
/// of them: past the limit a paragraph is a line break, and an item no item.
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
    void AddToList(const RtfListPlace& place);

    QTextCursor m_cursor;
    std::array<QTextList*, MaxListLevel + 1> m_lists{}; ///< the open list of each level
    bool m_isEnded = false;
    bool m_hasText = false;
    bool m_isFull = false; ///< paragraphs are line breaks now
    int m_paragraphs = 1;
    int m_listCount = 0;
};

} // namespace zol
