// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/rtf/RtfFormat.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace zol {

namespace {

constexpr int MaxHalfPoints = 2 * 1638; // the largest size that word processors take
constexpr int MaxTwips = 31680;         // 22 inches, their widest page

using CharacterChange = void (*)(RtfCharacter&, const RtfToken&);
using ParagraphChange = void (*)(RtfParagraph&, const RtfToken&);

int Twips(const RtfToken& word) {
    return std::clamp(word.NumberOr(0), -MaxTwips, MaxTwips);
}

/// The row of a table that a word names.
int Row(const RtfToken& word) {
    return std::max(word.NumberOr(0), 0);
}

const std::unordered_map<std::string_view, CharacterChange>& CharacterChanges() {
    static constexpr auto underline = [](RtfCharacter& c, const RtfToken& w) {
        c.Underline = w.IsOn();
    };
    static constexpr auto highlight = [](RtfCharacter& c, const RtfToken& w) {
        c.Highlight = Row(w);
    };
    static const std::unordered_map<std::string_view, CharacterChange> changes{
        {"plain", [](RtfCharacter& c, const RtfToken&) { c = RtfCharacter(); }},
        {"b", [](RtfCharacter& c, const RtfToken& w) { c.Bold = w.IsOn(); }},
        {"i", [](RtfCharacter& c, const RtfToken& w) { c.Italic = w.IsOn(); }},
        {"strike", [](RtfCharacter& c, const RtfToken& w) { c.StrikeOut = w.IsOn(); }},
        {"striked", [](RtfCharacter& c, const RtfToken& w) { c.StrikeOut = w.IsOn(); }},
        {"v", [](RtfCharacter& c, const RtfToken& w) { c.Hidden = w.IsOn(); }},
        {"super", [](RtfCharacter& c, const RtfToken& w) { c.Shift = w.IsOn() ? 1 : 0; }},
        {"sub", [](RtfCharacter& c, const RtfToken& w) { c.Shift = w.IsOn() ? -1 : 0; }},
        {"nosupersub", [](RtfCharacter& c, const RtfToken&) { c.Shift = 0; }},
        {"f", [](RtfCharacter& c, const RtfToken& w) { c.Font = Row(w); }},
        {"fs",
         [](RtfCharacter& c, const RtfToken& w) {
             const int size = w.NumberOr(RtfCharacter::DefaultHalfPoints);
             c.HalfPoints = std::clamp(size, 1, MaxHalfPoints);
         }},
        {"cf", [](RtfCharacter& c, const RtfToken& w) { c.Color = Row(w); }},
        {"highlight", highlight},
        {"cb", highlight},
        {"chcbpat", highlight},
        {"ul", underline},
        {"uld", underline},
        {"uldash", underline},
        {"uldashd", underline},
        {"uldashdd", underline},
        {"uldb", underline},
        {"ulhair", underline},
        {"ulth", underline},
        {"ulw", underline},
        {"ulwave", underline},
        {"ulnone", [](RtfCharacter& c, const RtfToken&) { c.Underline = false; }},
    };
    return changes;
}

const std::unordered_map<std::string_view, ParagraphChange>& ParagraphChanges() {
    static const std::unordered_map<std::string_view, ParagraphChange> changes{
        {"pard", [](RtfParagraph& p, const RtfToken&) { p = RtfParagraph(); }},
        {"ql", [](RtfParagraph& p, const RtfToken&) { p.Alignment = Qt::AlignLeft; }},
        {"qc", [](RtfParagraph& p, const RtfToken&) { p.Alignment = Qt::AlignHCenter; }},
        {"qr", [](RtfParagraph& p, const RtfToken&) { p.Alignment = Qt::AlignRight; }},
        {"qj", [](RtfParagraph& p, const RtfToken&) { p.Alignment = Qt::AlignJustify; }},
        {"li", [](RtfParagraph& p, const RtfToken& w) { p.Left = Twips(w); }},
        {"ri", [](RtfParagraph& p, const RtfToken& w) { p.Right = Twips(w); }},
        {"fi", [](RtfParagraph& p, const RtfToken& w) { p.FirstLine = Twips(w); }},
        {"sb", [](RtfParagraph& p, const RtfToken& w) { p.Before = std::max(Twips(w), 0); }},
        {"sa", [](RtfParagraph& p, const RtfToken& w) { p.After = std::max(Twips(w), 0); }},
        {"ls", [](RtfParagraph& p, const RtfToken& w) { p.ListNumber = Row(w); }},
        {"ilvl",
         [](RtfParagraph& p, const RtfToken& w) {
             p.ListLevel = std::clamp(w.NumberOr(0), 0, MaxListLevel - 1);
         }},
        {"tqr", [](RtfParagraph& p, const RtfToken&) { p.NextTab = QTextOption::RightTab; }},
        {"tqc", [](RtfParagraph& p, const RtfToken&) { p.NextTab = QTextOption::CenterTab; }},
        {"tqdec", [](RtfParagraph& p, const RtfToken&) { p.NextTab = QTextOption::DelimiterTab; }},
        {"tx",
         [](RtfParagraph& p, const RtfToken& w) {
             if (p.Tabs.size() < RtfParagraph::MaxTabs) {
                 p.Tabs.push_back({Twips(w), p.NextTab});
             }
             p.NextTab = QTextOption::LeftTab;
         }},
    };
    return changes;
}

} // namespace

bool RtfCharacter::Obey(const RtfToken& word) {
    const auto change = CharacterChanges().find(word.Word);
    if (change == CharacterChanges().end()) {
        return false;
    }
    change->second(*this, word);
    return true;
}

bool RtfParagraph::Obey(const RtfToken& word) {
    const auto change = ParagraphChanges().find(word.Word);
    if (change == ParagraphChanges().end()) {
        return false;
    }
    change->second(*this, word);
    return true;
}

QTextListFormat::Style OldListStyle(const RtfToken& word) {
    static const std::unordered_map<std::string_view, QTextListFormat::Style> styles{
        {"pnlvlblt", QTextListFormat::ListDisc},      {"pndec", QTextListFormat::ListDecimal},
        {"pnlcltr", QTextListFormat::ListLowerAlpha}, {"pnucltr", QTextListFormat::ListUpperAlpha},
        {"pnlcrm", QTextListFormat::ListLowerRoman},  {"pnucrm", QTextListFormat::ListUpperRoman},
    };
    const auto style = styles.find(word.Word);
    return style == styles.end() ? RtfParagraph::NoList : style->second;
}

} // namespace zol
