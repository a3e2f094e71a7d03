// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "grid/MirrorMode.h"
#include "model/Pattern.h"

namespace zol {

/// Runs operation scripts on a pattern: one operation a line, with whole numbers and quoted
/// texts.
class EditScript {
public:
    explicit EditScript(Pattern& pattern) : m_pattern(pattern) {}

    /// Runs every line. The first wrong one stops the script and is told as "line N: ..." in a
    /// CommandFailed.
    void Run(std::string_view script);

    /// A word of a line: a whole number, or a text that stood in quotes.
    using Word = std::variant<int, std::string>;

    /// The words behind an operation's name. Asking for one that is not there, or is of the other
    /// kind, throws CommandFailed.
    class Arguments {
    public:
        explicit Arguments(std::vector<Word> words) : m_words(std::move(words)) {}
        [[nodiscard]] int Number();
        /// A number between the two, which are allowed.
        [[nodiscard]] int Number(int least, int most);
        [[nodiscard]] std::string Text();
        /// A coordinate or position of a line's record.
        [[nodiscard]] std::int16_t Short();
        /// A floss number, a kind or a line style: what a byte holds.
        [[nodiscard]] int Byte();
        /// Throws CommandFailed if a word is left.
        void ExpectEnd() const;
        [[nodiscard]] bool IsEmpty() const { return m_next == m_words.size(); }

    private:
        [[nodiscard]] const Word& Next();

        std::vector<Word> m_words;
        std::size_t m_next = 0;
    };

    [[nodiscard]] Pattern& GetPattern() { return m_pattern; }
    [[nodiscard]] MirrorMode& Mirror() { return m_mirror; }

private:
    void RunLine(std::string_view line);

    Pattern& m_pattern;
    MirrorMode m_mirror;
};

} // namespace zol
