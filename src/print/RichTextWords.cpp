// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/RichTextWords.h"

#include <array>
#include <cctype>
#include <string_view>
#include <vector>

#include "model/CodePage.h"

namespace zol {

namespace {

constexpr std::string_view RtfStart = "{\\rtf";

/// Walks an RTF text once. A group that is a table or a picture is skipped whole.
class RtfWalker {
public:
    explicit RtfWalker(std::string_view rtf) : m_rtf(rtf) {}

    std::string Words() {
        while (m_at < m_rtf.size()) {
            const char c = m_rtf[m_at++];
            if (c == '{') {
                m_groups.push_back(m_state);
            } else if (c == '}') {
                EndGroup();
            } else if (c == '\\') {
                Control();
            } else if (c != '\r' && c != '\n') {
                Put(c);
            }
        }
        return m_words;
    }

private:
    struct State {
        bool Hidden = false;
        int UnicodeSkip = 1; ///< characters that stand for a reader without Unicode
    };

    void EndGroup() {
        if (!m_groups.empty()) {
            m_state = m_groups.back();
            m_groups.pop_back();
        }
    }

    void Put(char c) {
        if (m_toSkip > 0) {
            --m_toSkip;
        } else if (!m_state.Hidden) {
            m_words += c;
        }
    }
    void PutCharacter(char32_t character) {
        if (m_toSkip > 0) {
            --m_toSkip;
        } else if (!m_state.Hidden) {
            CodePage::AppendUtf8(m_words, character);
        }
    }

    /// One UTF-16 unit; the two halves of a character come one after the other.
    void PutUnit(int unit) {
        const bool isHigh = unit >= 0xD800 && unit < 0xDC00;
        const bool isLow = unit >= 0xDC00 && unit < 0xE000;
        if (isLow && m_highHalf != 0) {
            PutCharacter(
                static_cast<char32_t>(0x10000 + ((m_highHalf - 0xD800) << 10) + unit - 0xDC00));
        } else if (unit > 0 && unit < 0x10000 && !isHigh && !isLow) {
            PutCharacter(static_cast<char32_t>(unit));
        }
        m_highHalf = isHigh ? unit : 0;
    }

    void Control() {
        if (m_at >= m_rtf.size()) {
            return;
        }
        const char c = m_rtf[m_at];
        if (std::isalpha(static_cast<unsigned char>(c)) != 0) {
            Word();
            return;
        }
        ++m_at;
        if (c == '\'') {
            HexCharacter();
        } else if (c == '*') {
            m_state.Hidden = true;
        } else if (c == '~') {
            Put(' ');
        } else if (c == '\\' || c == '{' || c == '}') {
            Put(c);
        } else if (c == '\n' || c == '\r') {
            Put('\n');
        }
    }

    void HexCharacter() {
        const std::string digits(m_rtf.substr(m_at, 2));
        m_at += digits.size();
        try {
            PutCharacter(CodePage::ToUnicode(
                static_cast<std::uint8_t>(std::stoi(digits, nullptr, 16) & 255)));
        } catch (const std::exception&) {
            return; // no hexadecimal number: damage, left out
        }
    }

    /// Reads the letters and the number of a control word, with the blank that ends it.
    void Word() {
        const std::size_t start = m_at;
        while (m_at < m_rtf.size() && std::isalpha(static_cast<unsigned char>(m_rtf[m_at])) != 0) {
            ++m_at;
        }
        const std::string_view word = m_rtf.substr(start, m_at - start);
        const int number = Number();
        if (m_at < m_rtf.size() && m_rtf[m_at] == ' ') {
            ++m_at;
        }
        Obey(word, number);
    }

    int Number() {
        const bool negative = m_at < m_rtf.size() && m_rtf[m_at] == '-';
        m_at += negative ? 1 : 0;
        int number = 0;
        while (m_at < m_rtf.size() && std::isdigit(static_cast<unsigned char>(m_rtf[m_at])) != 0) {
            number = number > 999999 ? number : number * 10 + (m_rtf[m_at] - '0');
            ++m_at;
        }
        return negative ? -number : number;
    }

    void Obey(std::string_view word, int number) {
        constexpr std::array<std::string_view, 8> hidden{
            "fonttbl", "colortbl", "stylesheet", "info", "pict", "object", "header", "footer"};
        if (word == "par" || word == "line") {
            Put('\n');
        } else if (word == "tab") {
            Put('\t');
        } else if (word == "u") {
            PutUnit(number < 0 ? number + 65536 : number);
            m_toSkip = m_state.UnicodeSkip;
        } else if (word == "uc") {
            m_state.UnicodeSkip = number < 0 ? 0 : number;
        }
        for (const std::string_view name : hidden) {
            m_state.Hidden = m_state.Hidden || word == name;
        }
    }

    std::string_view m_rtf;
    std::size_t m_at = 0;
    std::string m_words;
    State m_state;
    std::vector<State> m_groups;
    int m_toSkip = 0;
    int m_highHalf = 0;
};

} // namespace

bool IsRichText(const std::string& text) {
    return text.starts_with(RtfStart);
}

QString WordsOfRichText(const std::string& rtf) {
    return QString::fromStdString(RtfWalker(rtf).Words()).trimmed();
}

QString PrintableInstructions(const std::string& instructions) {
    return IsRichText(instructions) ? WordsOfRichText(instructions)
                                    : QString::fromStdString(instructions);
}

} // namespace zol
