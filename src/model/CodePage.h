// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace zol {

/// Windows-1252, the code page of every file of ours. Text inside the program is UTF-8. The code
/// page's five undefined bytes map to the control characters of the same number, so every byte
/// survives a round trip. A character that the code page lacks becomes its nearest plain letter,
/// or "?".
namespace CodePage {

[[nodiscard]] char32_t ToUnicode(std::uint8_t code);
/// The code of a character; 0 if the code page lacks it (and for U+0000).
[[nodiscard]] std::uint8_t FromUnicode(char32_t character);

[[nodiscard]] std::string ToUtf8(std::string_view codePageText);
[[nodiscard]] std::string FromUtf8(std::string_view utf8);

/// Appends one character to a UTF-8 text.
void AppendUtf8(std::string& utf8, char32_t character);
/// The characters of a UTF-8 text; malformed bytes are read as Latin-1.
[[nodiscard]] std::u32string Decode(std::string_view utf8);

} // namespace CodePage

/// `text` without the blanks at its ends (blanks alone: no tabs or line breaks).
[[nodiscard]] std::string Trimmed(std::string_view text);
[[nodiscard]] std::string TrimmedRight(std::string_view text);
/// ASCII letters lowered; other characters as they are.
[[nodiscard]] std::string LowerCase(std::string_view text);
[[nodiscard]] std::string UpperCase(std::string_view text);

/// A text field of a record: exactly N bytes of the code page, padded with blanks, byte for byte
/// as they stand on disk. Comparing two fields compares by character code with the padding.
template<std::size_t N>
class FixedText {
public:
    FixedText() { m_bytes.fill(static_cast<std::uint8_t>(' ')); }
    /// Takes UTF-8; what passes N characters is cut.
    explicit FixedText(std::string_view utf8) : FixedText() { Set(utf8); }

    void Set(std::string_view utf8) {
        const std::string coded = CodePage::FromUtf8(utf8);
        for (std::size_t i = 0; i < N; ++i) {
            m_bytes[i] = i < coded.size() ? static_cast<std::uint8_t>(coded[i])
                                          : static_cast<std::uint8_t>(' ');
        }
    }

    /// The whole field in UTF-8, with its padding.
    [[nodiscard]] std::string Padded() const { return CodePage::ToUtf8(Coded()); }
    /// The field in UTF-8 without blanks at its ends.
    [[nodiscard]] std::string Text() const { return CodePage::ToUtf8(zol::Trimmed(Coded())); }
    /// The bytes of the code page.
    [[nodiscard]] std::string_view Coded() const {
        return {reinterpret_cast<const char*>(m_bytes.data()), N};
    }
    [[nodiscard]] std::span<std::uint8_t> Bytes() { return m_bytes; }
    [[nodiscard]] std::span<const std::uint8_t> Bytes() const { return m_bytes; }

    friend bool operator==(const FixedText&, const FixedText&) = default;
    friend auto operator<=>(const FixedText&, const FixedText&) = default;

private:
    std::array<std::uint8_t, N> m_bytes;
};

} // namespace zol
