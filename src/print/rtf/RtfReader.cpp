// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/rtf/RtfReader.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "print/rtf/RtfNumbering.h"
#include "print/rtf/RtfText.h"

namespace zol {

using Kinds = RtfToken::Kinds;

namespace {

/// True if the page shows something at this word that a document is not given. Other groups that
/// are left out, such as style sheets, tell only what is told once more where it is used.
bool LosesSomething(std::string_view word) {
    static const std::unordered_set<std::string_view> lost{
        "pict",    "shppict",    "nonshppict", "object",   "objdata",    "shp",     "shpinst",
        "do",      "background", "header",     "headerl",  "headerr",    "headerf", "footer",
        "footerl", "footerr",    "footerf",    "footnote", "annotation", "fldinst", "trowd",
        "cell",    "row",        "nestcell",   "nestrow",  "xe",         "tc",      "tcn"};
    return lost.contains(word);
}

} // namespace

RtfReader::RtfReader(std::string_view rtf, QTextDocument& document)
    : m_lexer(rtf),
      m_builder(document) {}

void RtfReader::Read() {
    for (RtfToken token = m_lexer.Next(); token.Kind != Kinds::End; token = m_lexer.Next()) {
        Take(token);
    }
    FlushBytes();
    FlushRun();
    if (m_builder.IsInParagraph()) {
        m_state.Character = m_runCharacter;
        EndParagraph(m_textParagraph);
    }
    m_builder.Finish();
}

void RtfReader::Take(const RtfToken& token) {
    switch (token.Kind) {
    case Kinds::GroupStart:
        StartGroup();
        return;
    case Kinds::GroupEnd:
        EndGroup();
        return;
    case Kinds::Word:
        Word(token);
        return;
    case Kinds::Symbol:
        Symbol(token.Value);
        return;
    case Kinds::Byte:
        PutByte(token.Value);
        return;
    case Kinds::Character:
        FlushBytes();
        PutText(QString::fromUcs4(&token.Value, 1));
        return;
    case Kinds::End:
        return;
    }
}

void RtfReader::StartGroup() {
    FlushBytes();
    m_toSkip = 0;
    m_isStarred = false;
    if (m_groups.size() < MaxDepth) {
        m_groups.push_back(m_state);
    } else {
        ++m_groupsTooDeep;
    }
}

void RtfReader::EndGroup() {
    FlushBytes();
    m_toSkip = 0;
    m_isStarred = false;
    if (m_groupsTooDeep > 0) {
        for (; !m_deepPlaces.empty() && m_deepPlaces.back().Depth == m_groupsTooDeep;
             m_deepPlaces.pop_back()) {
            ReturnTo(m_deepPlaces.back().Before);
        }
        --m_groupsTooDeep;
        return;
    }
    if (m_groups.empty()) {
        return; // damage: one end too many
    }
    const Places left = m_state.Place;
    m_state = std::move(m_groups.back());
    m_groups.pop_back();
    const Places before = std::exchange(m_state.Place, left);
    ReturnTo(before);
}

/// What a group tells of a list is for the paragraph that it stands in.
void RtfReader::ReturnTo(Places place) {
    const Places left = std::exchange(m_state.Place, place);
    if (left == place) {
        return;
    }
    if (left == Places::ListText) {
        const bool hasDigit = m_itemText.find_first_of("0123456789") != std::string::npos;
        m_state.Paragraph.StyleOfText =
            hasDigit ? QTextListFormat::ListDecimal : QTextListFormat::ListDisc;
    } else if (left == Places::OldList) {
        m_state.Paragraph.OldStyle = m_oldStyle;
        m_state.Paragraph.OldStart = m_oldStart;
    }
}

/// For the rest of the group, also of one too deep to be followed.
void RtfReader::Enter(Places place) {
    if (m_groupsTooDeep > 0) {
        m_deepPlaces.push_back({m_groupsTooDeep, m_state.Place});
    }
    m_state.Place = place;
    if (place == Places::ListText) {
        m_itemText.clear();
    } else if (place == Places::OldList) {
        m_oldStyle = RtfParagraph::NoList;
        m_oldStart = 1;
    }
}

void RtfReader::Symbol(char32_t symbol) {
    if (symbol == '*') {
        m_isStarred = true;
        return;
    }
    if (symbol == '\\' || symbol == '{' || symbol == '}') {
        PutByte(symbol);
        return;
    }
    FlushBytes();
    if (symbol == '\r' || symbol == '\n') {
        RtfToken paragraph;
        paragraph.Word = "par";
        Word(paragraph);
    } else if (const QString text = RtfText::OfSymbol(symbol); !text.isEmpty()) {
        if (m_toSkip > 0) {
            --m_toSkip;
        } else {
            PutText(text);
        }
    }
}

std::optional<RtfReader::Places> RtfReader::PlaceOf(std::string_view word) {
    static const std::unordered_map<std::string_view, Places> places{
        {"fonttbl", Places::Fonts},
        {"colortbl", Places::Colors},
        {"listtable", Places::Lists},
        {"listoverridetable", Places::Overrides},
        {"listtext", Places::ListText},
        {"pntext", Places::ListText},
        {"pn", Places::OldList},
        // Groups that a reader may skip, but that hold text of the page.
        {"shpinst", Places::Body},
        {"footnote", Places::Body},
        {"stylesheet", Places::Nowhere},
        {"info", Places::Nowhere},
        {"pict", Places::Nowhere},
        {"objdata", Places::Nowhere},
        {"fldinst", Places::Nowhere},
        {"sp", Places::Nowhere},
        {"shprslt", Places::Nowhere}, // the text of a shape once more
        {"nonshppict", Places::Nowhere},
        {"header", Places::Nowhere},
        {"headerl", Places::Nowhere},
        {"headerr", Places::Nowhere},
        {"headerf", Places::Nowhere},
        {"footer", Places::Nowhere},
        {"footerl", Places::Nowhere},
        {"footerr", Places::Nowhere},
        {"footerf", Places::Nowhere},
        {"filetbl", Places::Nowhere},
        {"revtbl", Places::Nowhere},
        {"xe", Places::Nowhere},
        {"tc", Places::Nowhere},
        {"tcn", Places::Nowhere},
    };
    const auto place = places.find(word);
    return place == places.end() ? std::nullopt : std::optional(place->second);
}

void RtfReader::Word(const RtfToken& word) {
    FlushBytes();
    const bool isStarred = std::exchange(m_isStarred, false);
    if (const QString text = RtfText::OfWord(word.Word); !text.isEmpty()) {
        // A break is no stand-in for a character, as texts without one would lose it.
        if (m_toSkip > 0 && !RtfText::IsBreak(text)) {
            --m_toSkip;
        } else {
            m_toSkip = 0;
            PutText(text);
        }
        return;
    }
    m_toSkip = 0;
    if (m_state.Place == Places::Nowhere) {
        return;
    }
    m_hasLeftOut = m_hasLeftOut || LosesSomething(word.Word);
    if (const std::optional<Places> place = PlaceOf(word.Word)) {
        Enter(*place);
    } else if (isStarred) {
        Enter(Places::Nowhere);
    } else if (!ObeyTables(word) && !ObeyDocument(word) && !ObeyBreak(word)) {
        // What neither knows is left out, and its text stays.
        (void)(m_state.Character.Obey(word) || m_state.Paragraph.Obey(word));
    }
}

/// Inside a table words mean something else: "\f" begins a font there, outside it chooses one.
bool RtfReader::ObeyTables(const RtfToken& word) {
    switch (m_state.Place) {
    case Places::Fonts:
        if (word.Word != "u") {
            m_fonts.Obey(word, m_codePage);
            return true;
        }
        return false;
    case Places::Colors:
        m_colors.Obey(word);
        return true;
    case Places::Lists:
        m_lists.ObeyList(word);
        return true;
    case Places::Overrides:
        m_lists.ObeyOverride(word);
        return true;
    case Places::OldList:
        if (const auto style = OldListStyle(word); style != RtfParagraph::NoList) {
            m_oldStyle = style;
        } else if (word.Word == "pnstart") {
            m_oldStart = std::clamp(word.NumberOr(1), 0, RtfNumbering::MaxNumber);
        }
        return true;
    case Places::Body:
    case Places::ListText:
    case Places::Nowhere:
        return false;
    }
    return false;
}

bool RtfReader::ObeyDocument(const RtfToken& word) {
    static const std::unordered_map<std::string_view, int> pages{
        {"ansi", RtfCodePages::Western}, {"mac", 10000}, {"pc", 437}, {"pca", 850}};
    if (word.Word == "u") {
        Unicode(word);
    } else if (word.Word == "uc") {
        m_state.UnicodeSkip = std::max(word.NumberOr(1), 0);
    } else if (word.Word == "ansicpg") {
        m_codePage = word.NumberOr(RtfCodePages::Western);
    } else if (word.Word == "deff") {
        m_defaultFont = word.NumberOr(0);
    } else if (const auto page = pages.find(word.Word); page != pages.end()) {
        m_codePage = page->second;
    } else {
        return false;
    }
    return true;
}

bool RtfReader::ObeyBreak(const RtfToken& word) {
    if (word.Word == "par" || word.Word == "sect" || word.Word == "page") {
        if (m_state.Place == Places::Body) {
            FlushRun();
            EndParagraph(m_state.Paragraph);
        }
    } else if (word.Word == "cell" || word.Word == "nestcell") {
        EndCell();
    } else if (word.Word == "row" || word.Word == "nestrow") {
        EndRow();
    } else {
        return false;
    }
    return true;
}

/// One UTF-16 unit, as a signed number; the halves of a character come one after the other.
void RtfReader::Unicode(const RtfToken& word) {
    constexpr int Units = 0x10000;
    const int unit = word.NumberOr(0) < 0 ? word.NumberOr(0) + Units : word.NumberOr(0);
    if (unit > 0 && unit < Units) {
        PutText(QString(QChar(static_cast<char16_t>(unit))));
    }
    m_toSkip = m_state.UnicodeSkip;
}

} // namespace zol
