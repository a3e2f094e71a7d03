// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTextListFormat>

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "print/rtf/RtfFormat.h"

class QTextList;

namespace zol {

/// The numbers of items, from 1, or from 0 where a list begins there.
namespace RtfNumbering {

constexpr int MaxNumber = 99999; ///< lists that begin later are damage

/// True if the items of the list have numbers or letters; else they have bullets.
[[nodiscard]] bool IsNumbered(QTextListFormat::Style style);
/// A number as the items of a style show it, without what follows it. Numbers that the style has no
/// letters for come as figures.
[[nodiscard]] std::string Text(QTextListFormat::Style style, int number);
/// What stands before an item whose number or bullet is text: that, and a tab.
[[nodiscard]] std::string ItemText(QTextListFormat::Style style, int number);
/// The number that a ready-made text such as "iv." or "2.3)" tells for its item, if it tells one.
[[nodiscard]] std::optional<int> OfText(QTextListFormat::Style style, std::string_view text);

} // namespace RtfNumbering

/// The list of one level, as far as it has come.
struct RtfListRow {
    QTextListFormat::Style Style = RtfParagraph::NoList;
    int Next = 1;              ///< the number of its next item
    int Start = 1;             ///< what the paragraphs of its last run tell as its start
    bool IsOpen = false;       ///< what comes next touches it
    QTextList* List = nullptr; ///< null: its bullets or numbers are text

    /// True if an item with this number belongs to this list. A list of numbers goes on behind
    /// other paragraphs, one of bullets does not.
    [[nodiscard]] bool GoesOnWith(QTextListFormat::Style style, int number) const;
};

/// The lists of all levels. Reader and writer both keep them, so that numbers come back as they
/// were shown.
class RtfListRows {
public:
    /// `level` is from 1 to MaxListLevel.
    [[nodiscard]] RtfListRow& At(int level) { return m_rows[static_cast<std::size_t>(level)]; }
    /// A paragraph of this level, 0 for one of no list, parts the lists below it.
    void CloseBelow(int level);

private:
    std::array<RtfListRow, MaxListLevel + 1> m_rows;
};

} // namespace zol
