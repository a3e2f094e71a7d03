// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/rtf/RtfDocumentBuilder.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <algorithm>

namespace zol {

RtfDocumentBuilder::RtfDocumentBuilder(QTextDocument& document) {
    document.clear();
    m_cursor = QTextCursor(&document);
    m_cursor.beginEditBlock();
}

void RtfDocumentBuilder::BeginParagraph() {
    if (!m_isEnded) {
        return;
    }
    m_isEnded = false;
    if (m_paragraphs < MaxParagraphs) {
        m_cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
        ++m_paragraphs;
    } else {
        m_cursor.insertText(QString(QChar::LineSeparator));
        m_isFull = true;
    }
}

void RtfDocumentBuilder::AddText(const QString& text, const QTextCharFormat& format) {
    if (!text.isEmpty()) {
        BeginParagraph();
        m_cursor.insertText(text, format);
        m_hasText = true;
    }
}

void RtfDocumentBuilder::EndParagraph(const QTextBlockFormat& format, const RtfListPlace& place,
                                      const QTextCharFormat& mark) {
    BeginParagraph();
    if (!m_isFull) {
        m_cursor.setBlockFormat(format);
        AddToList(place);
    }
    if (!m_hasText && !m_isFull) {
        m_cursor.setBlockCharFormat(mark);
    }
    m_isEnded = true;
    m_hasText = false;
}

void RtfDocumentBuilder::AddToList(const RtfListPlace& place) {
    const bool isItem = place.Style != RtfParagraph::NoList;
    const auto level =
        static_cast<std::size_t>(isItem ? std::clamp(place.Level, 1, MaxListLevel) : 0);
    // What follows a shallower paragraph is a list of its own.
    std::fill(m_lists.begin() + static_cast<std::ptrdiff_t>(level) + 1, m_lists.end(), nullptr);
    if (!isItem) {
        return;
    }
    QTextList*& list = m_lists[level];
    if (list != nullptr && list->format().style() == place.Style) {
        list->add(m_cursor.block());
    } else if (m_listCount < MaxLists) {
        ++m_listCount;
        QTextListFormat format;
        format.setStyle(place.Style);
        format.setIndent(static_cast<int>(level));
        list = m_cursor.createList(format);
    }
}

void RtfDocumentBuilder::Finish() {
    m_cursor.endEditBlock();
}

} // namespace zol
