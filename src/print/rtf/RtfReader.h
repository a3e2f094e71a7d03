// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "print/rtf/RtfCodePages.h"
#include "print/rtf/RtfDocumentBuilder.h"
#include "print/rtf/RtfFormat.h"
#include "print/rtf/RtfLexer.h"
#include "print/rtf/RtfTables.h"

namespace zol {

/// Reads one RTF text into a document, once. Never fails: what it does not know it leaves out, and
/// the text stays. Time and memory grow with the length of the text alone: groups inside groups are
/// followed to a depth, and looks are told apart up to a number, past which text is plain.
class RtfReader {
public:
    static constexpr std::size_t MaxDepth = 500;
    static constexpr std::size_t MaxFormats = 1000;

    RtfReader(std::string_view rtf, QTextDocument& document);

    void Read();
    /// True if something of the text that was read is not in the document: pictures, page headers,
    /// comments, hidden text, targets of links, or the frame of a table, text box or footnote.
    [[nodiscard]] bool HasLeftOut() const { return m_hasLeftOut; }

private:
    /// Where the text of a group goes.
    enum class Places : std::uint8_t {
        Body,
        Nowhere,
        Fonts,
        Colors,
        Lists,
        Overrides,
        ListText, ///< number or bullet made ready for readers without lists
        OldList
    };
    struct State {
        Places Place = Places::Body;
        RtfCharacter Character;
        RtfParagraph Paragraph;
        int UnicodeSkip = 1; ///< characters that stand for a reader without Unicode
    };

    static std::optional<Places> PlaceOf(std::string_view word);

    void Take(const RtfToken& token);
    void StartGroup();
    void EndGroup();
    void ReturnTo(Places place);
    void Enter(Places place);
    void Symbol(char32_t symbol);

    void Word(const RtfToken& word);
    bool ObeyTables(const RtfToken& word);
    bool ObeyDocument(const RtfToken& word);
    bool ObeyBreak(const RtfToken& word);
    void Unicode(const RtfToken& word);

    void PutByte(char32_t byte);
    void PutText(const QString& text);
    void FlushBytes();
    void FlushRun();
    void EndParagraph(const RtfParagraph& paragraph);
    void EndCell();
    void EndRow();

    [[nodiscard]] int CodePageOfText() const;
    const QTextCharFormat& Format(const RtfCharacter& character);
    const QTextBlockFormat& Format(const RtfParagraph& paragraph);
    [[nodiscard]] RtfListPlace ListPlace(const RtfParagraph& paragraph) const;

    RtfLexer m_lexer;
    RtfDocumentBuilder m_builder;
    RtfCodePages m_codePages;
    RtfFontTable m_fonts;
    RtfColorTable m_colors;
    RtfListTable m_lists;

    State m_state;
    std::vector<State> m_groups;
    std::size_t m_groupsTooDeep = 0;
    struct DeepPlace {
        std::size_t Depth = 0; ///< of m_groupsTooDeep
        Places Before = Places::Body;
    };
    std::vector<DeepPlace> m_deepPlaces; ///< changes of the place in groups too deep
    bool m_isStarred = false; ///< the next word may be skipped with its group if it is not known
    int m_toSkip = 0;
    int m_codePage = RtfCodePages::Western;
    int m_defaultFont = 0;
    int m_cells = 0; ///< ends of cells in the row that no text followed yet
    bool m_hasLeftOut = false;
    std::string m_itemText; ///< ready-made number or bullet of the present paragraph
    QTextListFormat::Style m_oldStyle = RtfParagraph::NoList;
    int m_oldStart = 1;

    std::string m_bytes; ///< text of one code page, not yet decoded
    QString m_run;       ///< text of one look, not yet in the document
    RtfCharacter m_runCharacter;
    RtfParagraph m_textParagraph; ///< of the last text: a document's last paragraph may be open

    std::map<RtfCharacter, QTextCharFormat> m_characterFormats;
    std::map<RtfParagraph, QTextBlockFormat> m_paragraphFormats;
};

} // namespace zol
