// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QString>

#include <map>
#include <string>
#include <vector>

#include "print/rtf/RtfFormat.h"
#include "print/rtf/RtfNumbering.h"

class QTextBlock;
class QTextBlockFormat;
class QTextCharFormat;
class QTextDocument;
class QTextList;

namespace zol {

/// Writes a document as RTF of 7-bit characters, once. Only what changes is written, as a pattern
/// file holds little more than 32000 bytes of it. Pictures are left out; tables are their cells,
/// one paragraph after the other.
class RtfWriter {
public:
    /// The document has to outlive the writer.
    explicit RtfWriter(const QTextDocument& document);

    [[nodiscard]] std::string Write();

private:
    void WriteBlock(const QTextBlock& block);
    void WriteParagraph(const QTextBlock& block);
    std::string ItemWords(const QTextBlock& block);
    void WriteItemText(const QTextList& list, int number);
    void WriteCharacter(const QTextCharFormat& format);
    [[nodiscard]] RtfCharacter CharacterOf(const QTextCharFormat& format);
    [[nodiscard]] int FontRow(const QString& family);
    [[nodiscard]] int ColorRow(const QColor& color);
    [[nodiscard]] std::string Head() const;

    const QTextDocument& m_document;
    std::string m_body;
    std::vector<QString> m_fonts;
    std::vector<QColor> m_colors; ///< from row 1
    std::string m_paragraph;      ///< the words of the paragraph before
    RtfCharacter m_character;     ///< of the text before
    RtfListRows m_lists;
    std::map<const QTextList*, int> m_items; ///< how many of a list's were written
    std::string m_itemText;                  ///< a number that is text of the paragraph
};

} // namespace zol
