// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTextListFormat>
#include <QTextOption>

#include <compare>
#include <vector>

#include "print/rtf/RtfLexer.h"

namespace zol {

/// RTF measures in twips; a document of Qt in pixels, 96 an inch.
constexpr double TwipsPerPixel = 15;
/// What a level of a list is moved in, as word processors do it.
constexpr int TwipsPerListLevel = 720;
/// What a bullet or number stands out from its item.
constexpr int TwipsPerListHanging = 360;
constexpr int MaxListLevel = 9;

/// How characters look, in RTF's own terms: fonts and colours are rows of the document's tables.
struct RtfCharacter {
    static constexpr int DefaultFont = -1; ///< the one that \deff names
    static constexpr int DefaultHalfPoints = 24;

    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    bool StrikeOut = false;
    bool Hidden = false;
    int Shift = 0; ///< 1 superscript, -1 subscript
    int Font = DefaultFont;
    int HalfPoints = DefaultHalfPoints;
    int Color = 0;     ///< 0: the reader's own
    int Highlight = 0; ///< 0: none

    auto operator<=>(const RtfCharacter&) const = default;

    /// Changes what the word says; false if it says nothing about characters.
    bool Obey(const RtfToken& word);
};

struct RtfTab {
    int Position = 0; ///< twips from the left margin
    QTextOption::TabType Type = QTextOption::LeftTab;

    auto operator<=>(const RtfTab&) const = default;
};

/// How a paragraph stands; lengths in twips.
struct RtfParagraph {
    static constexpr std::size_t MaxTabs = 32;
    static constexpr QTextListFormat::Style NoList = QTextListFormat::ListStyleUndefined;

    int Alignment = Qt::AlignLeft;
    int Left = 0;
    int Right = 0;
    int FirstLine = 0;
    int Before = 0;
    int After = 0;
    std::vector<RtfTab> Tabs;
    QTextOption::TabType NextTab = QTextOption::LeftTab;
    int ListNumber = 0;                          ///< row of the list overrides, 0: none
    int ListLevel = 0;                           ///< from 0
    QTextListFormat::Style OldStyle = NoList;    ///< told by \pn, as is
    int OldStart = 1;                            ///< the number that the list begins with
    QTextListFormat::Style StyleOfText = NoList; ///< guessed from a ready-made list text

    auto operator<=>(const RtfParagraph&) const = default;

    /// Changes what the word says; false if it says nothing about paragraphs.
    bool Obey(const RtfToken& word);
};

/// The style that a word inside a \pn group tells; NoList if it tells none.
[[nodiscard]] QTextListFormat::Style OldListStyle(const RtfToken& word);

} // namespace zol
