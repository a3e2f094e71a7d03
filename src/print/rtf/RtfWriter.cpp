// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/rtf/RtfWriter.h"

#include <QFont>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <algorithm>
#include <string_view>

#include "print/rtf/RtfNumbering.h"
#include "print/rtf/RtfText.h"

namespace zol {

namespace {

std::string Word(std::string_view name) {
    std::string word = "\\";
    word += name;
    return word;
}

std::string Word(std::string_view name, int number) {
    return Word(name) + std::to_string(number);
}

void AppendTwips(std::string& words, std::string_view name, double pixels) {
    if (const int twips = qRound(pixels * TwipsPerPixel); twips != 0) {
        words += Word(name, twips);
    }
}

void AppendSwitch(std::string& words, std::string_view name, bool before, bool now) {
    if (before != now) {
        words += now ? Word(name) : Word(name, 0);
    }
}

void AppendRow(std::string& words, std::string_view name, int before, int now) {
    if (before != now) {
        words += Word(name, now);
    }
}

std::string_view AlignmentWord(Qt::Alignment alignment) {
    if (alignment.testFlag(Qt::AlignHCenter)) {
        return "\\qc";
    }
    if (alignment.testFlag(Qt::AlignRight)) {
        return "\\qr";
    }
    return alignment.testFlag(Qt::AlignJustify) ? "\\qj" : ""; // \pard has set left
}

std::string_view TabWord(QTextOption::TabType type) {
    switch (type) {
    case QTextOption::RightTab:
        return "\\tqr";
    case QTextOption::CenterTab:
        return "\\tqc";
    case QTextOption::DelimiterTab:
        return "\\tqdec";
    case QTextOption::LeftTab:
        return "";
    }
    return "";
}

std::string_view NumberWord(QTextListFormat::Style style) {
    switch (style) {
    case QTextListFormat::ListLowerAlpha:
        return "\\pnlcltr";
    case QTextListFormat::ListUpperAlpha:
        return "\\pnucltr";
    case QTextListFormat::ListLowerRoman:
        return "\\pnlcrm";
    case QTextListFormat::ListUpperRoman:
        return "\\pnucrm";
    default:
        return "\\pndec";
    }
}

/// The words that make a paragraph an item: the older form, which every reader knows.
std::string OldListWords(QTextListFormat::Style style, int start) {
    std::string words = "{\\*\\pn";
    if (RtfNumbering::IsNumbered(style)) {
        words += "\\pnlvlbody";
        words += NumberWord(style);
        words += Word("pnstart", start) + Word("pnindent", TwipsPerListHanging);
        words += "{\\pntxta .}}";
    } else {
        words += "\\pnlvlblt" + Word("pnindent", TwipsPerListHanging) + "{\\pntxtb\\'95}}";
    }
    return words;
}

std::string ParagraphWords(const QTextBlock& block) {
    const QTextBlockFormat format = block.blockFormat();
    std::string words = "\\pard";
    words += AlignmentWord(format.alignment());
    for (const QTextOption::Tab& tab : format.tabPositions()) {
        words += TabWord(tab.type);
        words += Word("tx", qRound(tab.position * TwipsPerPixel));
    }
    AppendTwips(words, "ri", format.rightMargin());
    AppendTwips(words, "sb", format.topMargin());
    AppendTwips(words, "sa", format.bottomMargin());
    return words;
}

std::string IndentWords(const QTextBlock& block) {
    const QTextBlockFormat format = block.blockFormat();
    std::string words;
    const double indent = format.indent() * block.document()->indentWidth();
    AppendTwips(words, "fi", format.textIndent());
    AppendTwips(words, "li", format.leftMargin() + indent);
    return words;
}

} // namespace

RtfWriter::RtfWriter(const QTextDocument& document) : m_document(document) {}

std::string RtfWriter::Write() {
    for (QTextBlock block = m_document.begin(); block.isValid(); block = block.next()) {
        WriteBlock(block);
    }
    return Head() + m_body + "}\r\n";
}

void RtfWriter::WriteBlock(const QTextBlock& block) {
    WriteParagraph(block);
    auto at = block.begin();
    // An empty paragraph keeps the looks of what is typed there later.
    WriteCharacter(at.atEnd() ? block.charFormat() : at.fragment().charFormat());
    RtfText::AppendEscaped(m_body, QString::fromStdString(m_itemText));
    for (; !at.atEnd(); ++at) {
        WriteCharacter(at.fragment().charFormat());
        RtfText::AppendEscaped(m_body, at.fragment().text());
    }
    m_body += "\\par\r\n";
}

void RtfWriter::WriteParagraph(const QTextBlock& block) {
    const QTextList* list = block.textList();
    std::string words = ParagraphWords(block);
    m_itemText.clear();
    if (list == nullptr) {
        m_lists.CloseBelow(0);
        words += IndentWords(block);
    } else {
        words += ItemWords(block);
    }
    if (words != m_paragraph) {
        m_body += words;
        m_body += ' ';
        m_paragraph = words;
    }
    if (list != nullptr && m_itemText.empty()) {
        WriteItemText(*list, m_items[list]);
    }
}

/// Lists that lie across each other cannot be told apart: a number that does not follow from what
/// was written is text then.
std::string RtfWriter::ItemWords(const QTextBlock& block) {
    const QTextList* list = block.textList();
    const bool isNumbered = RtfNumbering::IsNumbered(list->format().style());
    const auto style = isNumbered ? list->format().style() : QTextListFormat::ListDisc;
    const int level =
        std::clamp(list->format().indent() + block.blockFormat().indent(), 1, MaxListLevel);
    const int number = ++m_items[list];
    m_lists.CloseBelow(level);
    RtfListRow& row = m_lists.At(level);
    const bool goesOn = row.GoesOnWith(style, number);
    std::string words;
    if (isNumbered && !goesOn && number != 1) {
        m_itemText = RtfNumbering::ItemText(style, number);
        m_lists.CloseBelow(0);
    } else {
        if (isNumbered && !goesOn) {
            m_paragraph.clear(); // tells a list that touches one of its kind
        }
        if (isNumbered && !(goesOn && row.IsOpen)) {
            row.Start = number;
        }
        row.Style = style;
        row.Next = number + 1;
        row.IsOpen = true;
        words += OldListWords(style, row.Start);
    }
    return words + Word("fi", -TwipsPerListHanging) + Word("li", level * TwipsPerListLevel);
}

/// The bullet or number for readers that know no lists.
void RtfWriter::WriteItemText(const QTextList& list, int number) {
    const QTextListFormat::Style style = list.format().style();
    m_body += "{\\pntext ";
    if (!RtfNumbering::IsNumbered(style)) {
        m_body += "\\'95";
    } else {
        m_body += RtfNumbering::Text(style, number);
        const bool hasSuffix = list.format().hasProperty(QTextFormat::ListNumberSuffix);
        RtfText::AppendEscaped(m_body,
                               hasSuffix ? list.format().numberSuffix() : QStringLiteral("."));
    }
    m_body += "\\tab}";
}

void RtfWriter::WriteCharacter(const QTextCharFormat& format) {
    const RtfCharacter now = CharacterOf(format);
    std::string words;
    AppendRow(words, "f", m_character.Font, now.Font);
    AppendRow(words, "fs", m_character.HalfPoints, now.HalfPoints);
    AppendSwitch(words, "b", m_character.Bold, now.Bold);
    AppendSwitch(words, "i", m_character.Italic, now.Italic);
    AppendSwitch(words, "ul", m_character.Underline, now.Underline);
    AppendSwitch(words, "strike", m_character.StrikeOut, now.StrikeOut);
    if (m_character.Shift != now.Shift) {
        words += now.Shift == 0 ? "\\nosupersub" : now.Shift > 0 ? "\\super" : "\\sub";
    }
    AppendRow(words, "cf", m_character.Color, now.Color);
    // Word processors disagree on which of the two they heed.
    AppendRow(words, "chcbpat", m_character.Highlight, now.Highlight);
    AppendRow(words, "highlight", m_character.Highlight, now.Highlight);
    if (!words.empty()) {
        m_body += words;
        m_body += ' ';
    }
    m_character = now;
}

RtfCharacter RtfWriter::CharacterOf(const QTextCharFormat& format) {
    constexpr double PointsPerPixel = 0.75;
    const QFont font = format.font().resolve(m_document.defaultFont());
    const double points =
        font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize() * PointsPerPixel;
    RtfCharacter character;
    character.Bold = font.weight() > QFont::Medium;
    character.Italic = font.italic();
    character.Underline = font.underline();
    character.StrikeOut = font.strikeOut();
    if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript) {
        character.Shift = 1;
    } else if (format.verticalAlignment() == QTextCharFormat::AlignSubScript) {
        character.Shift = -1;
    }
    character.Font = FontRow(font.families().value(0));
    character.HalfPoints = std::max(qRound(points * 2), 1);
    if (format.foreground().style() != Qt::NoBrush) {
        character.Color = ColorRow(format.foreground().color());
    }
    if (format.background().style() != Qt::NoBrush) {
        character.Highlight = ColorRow(format.background().color());
    }
    return character;
}

int RtfWriter::FontRow(const QString& family) {
    const auto found = std::find(m_fonts.begin(), m_fonts.end(), family);
    if (found == m_fonts.end()) {
        m_fonts.push_back(family);
        return static_cast<int>(m_fonts.size()) - 1;
    }
    return static_cast<int>(found - m_fonts.begin());
}

int RtfWriter::ColorRow(const QColor& color) {
    const auto found = std::find_if(m_colors.begin(), m_colors.end(), [&](const QColor& known) {
        return known.rgb() == color.rgb();
    });
    if (found == m_colors.end()) {
        m_colors.push_back(color);
        return static_cast<int>(m_colors.size());
    }
    return static_cast<int>(found - m_colors.begin()) + 1;
}

std::string RtfWriter::Head() const {
    std::string head = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1{\\fonttbl";
    for (std::size_t row = 0; row < m_fonts.size(); ++row) {
        QString name = m_fonts[row];
        name.replace(QLatin1Char(';'), QLatin1Char(' ')); // would end the name
        head += "{" + Word("f", static_cast<int>(row)) + "\\fnil\\fcharset0 ";
        RtfText::AppendEscaped(head, name);
        head += ";}";
    }
    head += "}\r\n";
    if (!m_colors.empty()) {
        head += "{\\colortbl ;";
        for (const QColor& color : m_colors) {
            head += Word("red", color.red()) + Word("green", color.green()) +
                    Word("blue", color.blue()) + ";";
        }
        head += "}\r\n";
    }
    return head;
}

} // namespace zol
