// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QString>

#include <string>
#include <vector>

#include "print/rtf/RtfFormat.h"

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
    void WriteItemText(const QTextList& list, QTextListFormat::Style style);
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
    const QTextList* m_list = nullptr;
    int m_item = 0; ///< of m_list, from 1
};

} // namespace zol
