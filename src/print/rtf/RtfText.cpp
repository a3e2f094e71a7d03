// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/rtf/RtfText.h"

#include <array>
#include <cstdint>
#include <unordered_map>

#include "model/CodePage.h"

namespace zol {

namespace RtfText {

namespace {

constexpr char16_t NoBreakSpace = 0x00A0;
constexpr char16_t SoftHyphen = 0x00AD;
constexpr char16_t NoBreakHyphen = 0x2011;
constexpr char16_t LineSeparator = QChar::LineSeparator;
constexpr char16_t ParagraphSeparator = QChar::ParagraphSeparator;

/// Codes that stand for no character, but that a document uses for objects and frames.
bool IsReserved(char16_t unit) {
    return unit == QChar::ObjectReplacementCharacter || unit >= 0xFFFE ||
           (unit >= 0xFDD0 && unit <= 0xFDEF);
}

bool IsLineEnd(char16_t unit) {
    return unit == '\n' || unit == '\v' || unit == ParagraphSeparator;
}

void AppendHex(std::string& rtf, std::uint8_t byte) {
    constexpr std::string_view Digits = "0123456789abcdef";
    rtf += "\\'";
    rtf += Digits[byte / 16];
    rtf += Digits[byte % 16];
}

void AppendUnit(std::string& rtf, char16_t unit) {
    rtf += "\\u";
    rtf += std::to_string(static_cast<std::int16_t>(unit));
    rtf += '?';
}

/// True if the unit has a form of its own in RTF, which is appended.
bool AppendSpecial(std::string& rtf, char16_t unit) {
    switch (unit) {
    case '\\':
    case '{':
    case '}':
        rtf += '\\';
        rtf += static_cast<char>(unit);
        return true;
    case '\t':
        rtf += "\\tab ";
        return true;
    case LineSeparator:
        rtf += "\\line ";
        return true;
    case NoBreakSpace:
        rtf += "\\~";
        return true;
    case SoftHyphen:
        rtf += "\\-";
        return true;
    case NoBreakHyphen:
        rtf += "\\_";
        return true;
    default:
        return false;
    }
}

} // namespace

QString OfWord(std::string_view word) {
    static const std::unordered_map<std::string_view, char16_t> characters{
        {"tab", u'\t'},         {"line", LineSeparator},  {"lbr", LineSeparator},
        {"emdash", u'\u2014'},  {"endash", u'\u2013'},    {"lquote", u'\u2018'},
        {"rquote", u'\u2019'},  {"ldblquote", u'\u201C'}, {"rdblquote", u'\u201D'},
        {"bullet", u'\u2022'},  {"emspace", u'\u2003'},   {"enspace", u'\u2002'},
        {"qmspace", u'\u2005'}, {"zwj", u'\u200D'},       {"zwnj", u'\u200C'},
        {"ltrmark", u'\u200E'}, {"rtlmark", u'\u200F'},
    };
    const auto character = characters.find(word);
    return character == characters.end() ? QString() : QString(QChar(character->second));
}

QString OfSymbol(char32_t symbol) {
    switch (symbol) {
    case '~':
        return QString(QChar(NoBreakSpace));
    case '-':
        return QString(QChar(SoftHyphen));
    case '_':
        return QString(QChar(NoBreakHyphen));
    case '\t':
        return QStringLiteral("\t");
    default:
        return {};
    }
}

bool IsBreak(const QString& text) {
    return text == QLatin1String("\t") || text == QString(QChar(LineSeparator));
}

QString Cleaned(const QString& text) {
    QString clean;
    clean.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            clean += c;
            clean += text[++i];
        } else if (IsLineEnd(c.unicode())) {
            clean += QChar(LineSeparator);
        } else if (!c.isSurrogate() && !IsReserved(c.unicode()) &&
                   (c.unicode() >= ' ' || c == QLatin1Char('\t'))) {
            clean += c;
        }
    }
    return clean;
}

void AppendEscaped(std::string& rtf, QStringView text) {
    for (const QChar c : text) {
        const char16_t unit = c.unicode();
        if (AppendSpecial(rtf, unit) || IsReserved(unit) || unit < ' ') {
            continue;
        }
        if (unit < 0x7F) {
            rtf += static_cast<char>(unit);
        } else if (const std::uint8_t byte = CodePage::FromUnicode(unit); byte != 0) {
            AppendHex(rtf, byte);
        } else {
            AppendUnit(rtf, unit);
        }
    }
}

} // namespace RtfText

} // namespace zol
