// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/rtf/RtfLexer.h"

#include <QByteArrayView>

#include <algorithm>
#include <limits>

#include "model/CodePage.h"

namespace zol {

namespace {

using Kinds = RtfToken::Kinds;

/// Lists are told apart by ids that fill a number; whatever is larger is damage.
constexpr std::int64_t LargestNumber = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t SmallestNumber = std::numeric_limits<std::int32_t>::min();

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The value of a hexadecimal digit; -1 for any other character.
int HexValue(char c) {
    if (IsDigit(c)) {
        return c - '0';
    }
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

RtfToken TokenOf(Kinds kind, char32_t value = 0) {
    RtfToken token;
    token.Kind = kind;
    token.Value = value;
    return token;
}

} // namespace

RtfLexer::RtfLexer(std::string_view rtf)
    : m_rtf(rtf),
      m_isUtf8(QByteArrayView(rtf.data(), static_cast<qsizetype>(rtf.size())).isValidUtf8()) {}

RtfToken RtfLexer::Next() {
    while (!AtEnd()) {
        const char c = m_rtf[m_at];
        if (c == '\r' || c == '\n') {
            ++m_at; // only keeps the lines of the file short
        } else if (c == '\\') {
            ++m_at;
            if (const std::optional<RtfToken> token = Control()) {
                return *token;
            }
        } else if (c == '{' || c == '}') {
            ++m_at;
            return TokenOf(c == '{' ? Kinds::GroupStart : Kinds::GroupEnd);
        } else {
            return Text();
        }
    }
    return {};
}

RtfToken RtfLexer::Text() {
    const auto first = static_cast<unsigned char>(m_rtf[m_at++]);
    if (first < 0x80 || !m_isUtf8) {
        return TokenOf(Kinds::Byte, first);
    }
    const int following = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    char32_t character = first & (0x3FU >> static_cast<unsigned>(following));
    for (int i = 0; i < following; ++i) {
        character = (character << 6U) | (static_cast<unsigned char>(m_rtf[m_at++]) & 0x3FU);
    }
    const std::uint8_t byte = CodePage::FromUnicode(character);
    return byte != 0 ? TokenOf(Kinds::Byte, byte) : TokenOf(Kinds::Character, character);
}

std::optional<RtfToken> RtfLexer::Control() {
    if (AtEnd()) {
        return std::nullopt;
    }
    if (IsLetter(m_rtf[m_at])) {
        return Word();
    }
    const auto c = static_cast<unsigned char>(m_rtf[m_at]);
    if (c >= 0x80) {
        return std::nullopt; // no symbol: the backslash is damage and the character is text
    }
    ++m_at;
    return c == '\'' ? HexByte() : TokenOf(Kinds::Symbol, c);
}

RtfToken RtfLexer::Word() {
    const std::size_t start = m_at;
    while (!AtEnd() && IsLetter(m_rtf[m_at])) {
        ++m_at;
    }
    RtfToken token = TokenOf(Kinds::Word);
    token.Word = m_rtf.substr(start, m_at - start);
    token.Number = Number();
    if (IsAt(' ')) {
        ++m_at; // ends the word and is no text
    }
    if (token.Word == "bin") {
        for (int left = token.NumberOr(0); left > 0 && !AtEnd(); --left) {
            (void)Text();
        }
    }
    return token;
}

std::optional<int> RtfLexer::Number() {
    const bool isNegative = IsAt('-') && m_at + 1 < m_rtf.size() && IsDigit(m_rtf[m_at + 1]);
    m_at += isNegative ? 1 : 0;
    if (AtEnd() || !IsDigit(m_rtf[m_at])) {
        return std::nullopt;
    }
    std::int64_t number = 0;
    for (; !AtEnd() && IsDigit(m_rtf[m_at]); ++m_at) {
        const int digit = m_rtf[m_at] - '0';
        number = isNegative ? std::max(number * 10 - digit, SmallestNumber)
                            : std::min(number * 10 + digit, LargestNumber);
    }
    return static_cast<int>(number);
}

std::optional<RtfToken> RtfLexer::HexByte() {
    int value = 0;
    bool isWhole = true;
    for (int i = 0; i < 2; ++i) {
        const bool isPlain = !AtEnd() && static_cast<unsigned char>(m_rtf[m_at]) < 0x80;
        if (!isPlain || IsAt('{') || IsAt('}') || IsAt('\\')) {
            return std::nullopt; // a cut escape takes no group's end and no other character with it
        }
        const int digit = HexValue(m_rtf[m_at++]);
        isWhole = isWhole && digit >= 0;
        value = value * 16 + digit;
    }
    return isWhole ? std::optional(TokenOf(Kinds::Byte, static_cast<char32_t>(value)))
                   : std::nullopt;
}

} // namespace zol
