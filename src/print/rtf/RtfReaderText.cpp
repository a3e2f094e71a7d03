// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QTextOption>

#include "print/rtf/RtfNumbering.h"
#include "print/rtf/RtfReader.h"
#include "print/rtf/RtfText.h"

// What the reader makes of text and formats on their way into the document.

namespace zol {

namespace {

constexpr std::size_t MaxItemText = 40; // no number is longer

} // namespace

int RtfReader::CodePageOfText() const {
    if (m_state.Place == Places::Fonts) {
        return m_fonts.CodePageOfName(m_codePage);
    }
    const int font = m_state.Character.Font;
    return m_fonts.CodePage(font == RtfCharacter::DefaultFont ? m_defaultFont : font, m_codePage);
}

void RtfReader::PutByte(char32_t byte) {
    m_isStarred = false;
    if (m_toSkip > 0) {
        --m_toSkip;
        return;
    }
    switch (m_state.Place) {
    case Places::Body:
    case Places::Fonts:
        m_bytes += static_cast<char>(byte);
        return;
    case Places::Colors:
        if (byte == ';') {
            m_colors.Close();
        }
        return;
    case Places::ListText:
        if (m_itemText.size() < MaxItemText) {
            m_itemText += static_cast<char>(byte);
        }
        return;
    case Places::Lists:
    case Places::Overrides:
    case Places::OldList:
    case Places::Nowhere:
        return;
    }
}

void RtfReader::FlushBytes() {
    if (!m_bytes.empty()) {
        PutText(m_codePages.Decode(m_bytes, CodePageOfText()));
        m_bytes.clear();
    }
}

void RtfReader::PutText(const QString& text) {
    if (m_state.Place == Places::Fonts) {
        m_fonts.AddText(text);
    }
    if (m_state.Place != Places::Body) {
        return;
    }
    if (m_state.Character.Hidden) {
        m_hasLeftOut = true;
        return;
    }
    if (m_state.Character != m_runCharacter) {
        FlushRun();
        m_runCharacter = m_state.Character;
    }
    for (; m_cells > 0; --m_cells) {
        m_run += QLatin1Char('\t');
    }
    m_run += text;
    m_textParagraph = m_state.Paragraph;
}

void RtfReader::FlushRun() {
    m_builder.AddText(RtfText::Cleaned(m_run), Format(m_runCharacter));
    m_run.clear();
}

void RtfReader::EndParagraph(const RtfParagraph& paragraph) {
    m_builder.EndParagraph(Format(paragraph), ListPlace(paragraph), Format(m_state.Character));
    m_itemText.clear();
    m_cells = 0;
}

/// A table's row becomes a line with tabs between its cells.
void RtfReader::EndCell() {
    if (m_state.Place == Places::Body) {
        ++m_cells;
    }
}

void RtfReader::EndRow() {
    FlushRun();
    if (m_state.Place == Places::Body && (m_builder.IsInParagraph() || m_cells > 0)) {
        EndParagraph(m_state.Paragraph);
    }
}

const QTextCharFormat& RtfReader::Format(const RtfCharacter& character) {
    static const QTextCharFormat plain;
    const auto known = m_characterFormats.find(character);
    if (known != m_characterFormats.end()) {
        return known->second;
    }
    if (m_characterFormats.size() >= MaxFormats) {
        return plain;
    }
    QTextCharFormat format;
    const bool isDefault = character.Font == RtfCharacter::DefaultFont;
    const QString family = m_fonts.Name(isDefault ? m_defaultFont : character.Font);
    if (!family.isEmpty()) {
        format.setFontFamilies({family});
    }
    format.setFontPointSize(character.HalfPoints / 2.0);
    if (character.Bold) {
        format.setFontWeight(QFont::Bold);
    }
    if (character.Italic) {
        format.setFontItalic(true);
    }
    if (character.Underline) {
        format.setFontUnderline(true);
    }
    if (character.StrikeOut) {
        format.setFontStrikeOut(true);
    }
    if (character.Shift != 0) {
        format.setVerticalAlignment(character.Shift > 0 ? QTextCharFormat::AlignSuperScript
                                                        : QTextCharFormat::AlignSubScript);
    }
    if (const QColor color = m_colors.Color(character.Color); color.isValid()) {
        format.setForeground(color);
    }
    if (const QColor color = m_colors.Color(character.Highlight); color.isValid()) {
        format.setBackground(color);
    }
    return m_characterFormats.emplace(character, format).first->second;
}

const QTextBlockFormat& RtfReader::Format(const RtfParagraph& paragraph) {
    static const QTextBlockFormat plain;
    RtfParagraph look = paragraph;
    look.OldStart = 1; // numbers are no looks, of which only so many are kept
    const auto known = m_paragraphFormats.find(look);
    if (known != m_paragraphFormats.end()) {
        return known->second;
    }
    if (m_paragraphFormats.size() >= MaxFormats) {
        return plain;
    }
    QTextBlockFormat format;
    format.setAlignment(static_cast<Qt::Alignment>(paragraph.Alignment));
    const bool isItem = ListPlace(paragraph).Style != RtfParagraph::NoList;
    if (!isItem) { // the level of its list moves an item in
        format.setLeftMargin(paragraph.Left / TwipsPerPixel);
        format.setTextIndent(paragraph.FirstLine / TwipsPerPixel);
    }
    format.setRightMargin(paragraph.Right / TwipsPerPixel);
    format.setTopMargin(paragraph.Before / TwipsPerPixel);
    format.setBottomMargin(paragraph.After / TwipsPerPixel);
    QList<QTextOption::Tab> tabs;
    for (const RtfTab& tab : paragraph.Tabs) {
        tabs.append(QTextOption::Tab(tab.Position / TwipsPerPixel, tab.Type));
    }
    if (!tabs.isEmpty()) {
        format.setTabPositions(tabs);
    }
    return m_paragraphFormats.emplace(look, format).first->second;
}

RtfListPlace RtfReader::ListPlace(const RtfParagraph& paragraph) const {
    RtfListPlace place;
    place.Style = paragraph.StyleOfText;
    place.Level = paragraph.ListLevel + 1;
    if (paragraph.ListNumber > 0) {
        if (const auto list = m_lists.Find(paragraph.ListNumber, paragraph.ListLevel)) {
            place.Style = list->Style;
            place.Start = list->Start;
            place.List = paragraph.ListNumber;
            return place;
        }
    } else {
        const int level = (paragraph.Left + TwipsPerListLevel / 2) / TwipsPerListLevel;
        place.Level = std::clamp(level, 1, MaxListLevel);
        if (paragraph.OldStyle != RtfParagraph::NoList) {
            place.Style = paragraph.OldStyle;
            place.Start = paragraph.OldStart;
        }
    }
    if (RtfNumbering::IsNumbered(place.Style)) {
        place.Number = RtfNumbering::OfText(place.Style, m_itemText);
    }
    return place;
}

} // namespace zol
