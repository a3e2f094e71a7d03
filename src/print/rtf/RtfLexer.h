// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace zol {

/// The smallest piece of an RTF text that means something.
struct RtfToken {
    enum class Kinds : std::uint8_t {
        End,
        GroupStart,
        GroupEnd,
        Word,     ///< a control word: Word, and Number if one follows it
        Symbol,   ///< a backslash and one character that is no letter: Value
        Byte,     ///< one byte of text in the code page of its font: Value
        Character ///< text that came as Unicode, outside every code page: Value
    };

    Kinds Kind = Kinds::End;
    std::string_view Word;
    std::optional<int> Number;
    char32_t Value = 0;

    [[nodiscard]] int NumberOr(int otherwise) const { return Number.value_or(otherwise); }
    /// For words that switch: "\b" and "\b1" are on, "\b0" is off.
    [[nodiscard]] bool IsOn() const { return NumberOr(1) != 0; }
};

/// Takes an RTF text apart, once from front to back; does not know what words mean, but for "\bin",
/// whose raw data it steps over. Never fails and never reads past the end. The text is either the
/// bytes of a file or, as inside this program, the same bytes taken for Windows-1252 and turned
/// into UTF-8; both give the same bytes out.
class RtfLexer {
public:
    /// The text has to outlive the lexer and its tokens.
    explicit RtfLexer(std::string_view rtf);

    [[nodiscard]] RtfToken Next();

private:
    [[nodiscard]] bool AtEnd() const { return m_at >= m_rtf.size(); }
    [[nodiscard]] bool IsAt(char c) const { return !AtEnd() && m_rtf[m_at] == c; }
    RtfToken Text();
    std::optional<RtfToken> Control();
    RtfToken Word();
    std::optional<int> Number();
    std::optional<RtfToken> HexByte();

    std::string_view m_rtf;
    std::size_t m_at = 0;
    bool m_isUtf8;
};

} // namespace zol
