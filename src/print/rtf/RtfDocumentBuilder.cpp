// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/rtf/RtfDocumentBuilder.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <algorithm>

namespace zol {

namespace {

int LevelOf(const RtfListPlace& place) {
    return std::clamp(place.Level, 1, MaxListLevel);
}

} // namespace

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
        const RtfListRow* row = AddToList(place);
        if (!m_hasText) {
            m_cursor.setBlockCharFormat(mark);
        }
        if (row != nullptr && row->List == nullptr) {
            WriteItemText(*row, LevelOf(place));
        }
    }
    m_isEnded = true;
    m_hasText = false;
}

/// The row of the item's list, which counts it; null for a paragraph of no list.
RtfListRow* RtfDocumentBuilder::AddToList(const RtfListPlace& place) {
    if (place.Style == RtfParagraph::NoList) {
        m_lists.CloseBelow(0);
        return nullptr;
    }
    const int level = LevelOf(place);
    m_lists.CloseBelow(level);
    RtfListRow& row = RowOf(place, level);
    const bool isNamed = &row != &m_lists.At(level);
    const bool isRun = row.Style == place.Style && (isNamed || row.IsOpen);
    const bool isSameStart = isNamed || row.Start == place.Start;
    const int number = place.Number.value_or(isRun && isSameStart ? row.Next : place.Start);
    if (isNamed ? !isRun : !row.GoesOnWith(place.Style, number)) {
        BeginList(row, place.Style, level, number);
    } else if (row.List != nullptr) {
        row.List->add(m_cursor.block());
    }
    row.Start = place.Start;
    row.Next = number + 1;
    if (row.List == nullptr) {
        m_lists.CloseBelow(0); // what is written of it is no item
    }
    row.IsOpen = true;
    return &row;
}

RtfListRow& RtfDocumentBuilder::RowOf(const RtfListPlace& place, int level) {
    if (place.List == 0 || !RtfNumbering::IsNumbered(place.Style)) {
        return m_lists.At(level);
    }
    m_lists.At(level) = RtfListRow();
    // An item lets the list's deeper levels begin anew.
    m_namedLists.erase(m_namedLists.upper_bound({place.List, level}),
                       m_namedLists.upper_bound({place.List, MaxListLevel}));
    return m_namedLists[{place.List, level}];
}

void RtfDocumentBuilder::BeginList(RtfListRow& row, QTextListFormat::Style style, int level,
                                   int number) {
    row = RtfListRow();
    row.Style = style;
    const bool isCounted = number == 1 || !RtfNumbering::IsNumbered(style);
    if (isCounted && m_listCount < MaxLists) {
        ++m_listCount;
        QTextListFormat format;
        format.setStyle(style);
        format.setIndent(level);
        row.List = m_cursor.createList(format);
    }
}

void RtfDocumentBuilder::WriteItemText(const RtfListRow& row, int level) {
    QTextBlockFormat format = m_cursor.blockFormat();
    format.setLeftMargin(level * TwipsPerListLevel / TwipsPerPixel);
    format.setTextIndent(-TwipsPerListHanging / TwipsPerPixel);
    m_cursor.setBlockFormat(format);
    QTextCursor front(m_cursor.block());
    front.insertText(QString::fromStdString(RtfNumbering::ItemText(row.Style, row.Next - 1)),
                     front.charFormat());
}

void RtfDocumentBuilder::Finish() {
    m_cursor.endEditBlock();
}

} // namespace zol
