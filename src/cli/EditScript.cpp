// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "cli/EditScript.h"

#include <limits>

#include "cli/CommandLine.h"
#include "cli/EditOperations.h"
#include "model/RunTimeError.h"

namespace zol {

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

void SkipBlanks(std::string_view& line) {
    while (!line.empty() && IsBlank(line.front())) {
        line.remove_prefix(1);
    }
}

/// Takes a text in quotes; a quote inside is doubled.
std::string TakeQuoted(std::string_view& line) {
    std::string text;
    line.remove_prefix(1);
    for (;;) {
        const std::size_t quote = line.find('"');
        if (quote == std::string_view::npos) {
            throw CommandFailed("a text has no closing quote");
        }
        text += line.substr(0, quote);
        line.remove_prefix(quote + 1);
        if (line.empty() || line.front() != '"') {
            return text;
        }
        text += '"';
        line.remove_prefix(1);
    }
}

std::string_view TakeBare(std::string_view& line) {
    const std::size_t end = line.find_first_of(" \t\r");
    const std::string_view word = line.substr(0, end);
    line.remove_prefix(end == std::string_view::npos ? line.size() : end);
    return word;
}

int ToNumber(std::string_view word) {
    const auto number = CommandLine::ParseInteger(word);
    if (!number || *number < std::numeric_limits<std::int32_t>::min() ||
        *number > std::numeric_limits<std::int32_t>::max()) {
        throw CommandFailed(std::string(word) + " is no whole number");
    }
    return static_cast<int>(*number);
}

} // namespace

const EditScript::Word& EditScript::Arguments::Next() {
    if (IsEmpty()) {
        throw CommandFailed("an argument is missing");
    }
    return m_words[m_next++];
}

int EditScript::Arguments::Number() {
    const int* number = std::get_if<int>(&Next());
    if (number == nullptr) {
        throw CommandFailed("a number stands in quotes");
    }
    return *number;
}

std::int16_t EditScript::Arguments::Short() {
    const int number = Number();
    if (number < std::numeric_limits<std::int16_t>::min() ||
        number > std::numeric_limits<std::int16_t>::max()) {
        throw CommandFailed(std::to_string(number) + " is no place in a pattern");
    }
    return static_cast<std::int16_t>(number);
}

int EditScript::Arguments::Number(int least, int most) {
    const int number = Number();
    if (number < least || number > most) {
        throw CommandFailed(std::to_string(number) + " is not between " + std::to_string(least) +
                            " and " + std::to_string(most));
    }
    return number;
}

int EditScript::Arguments::Byte() {
    return Number(0, std::numeric_limits<std::uint8_t>::max());
}

std::string EditScript::Arguments::Text() {
    const std::string* text = std::get_if<std::string>(&Next());
    if (text == nullptr) {
        throw CommandFailed("a text needs quotes");
    }
    return *text;
}

void EditScript::Arguments::ExpectEnd() const {
    if (!IsEmpty()) {
        throw CommandFailed("there is an argument too many");
    }
}

void EditScript::RunLine(std::string_view line) {
    SkipBlanks(line);
    if (line.empty() || line.front() == '#') {
        return;
    }
    const std::string_view name = TakeBare(line);
    const EditOperation* operation = FindEditOperation(name);
    if (operation == nullptr) {
        throw CommandFailed("unknown operation " + std::string(name));
    }
    std::vector<Word> words;
    for (SkipBlanks(line); !line.empty(); SkipBlanks(line)) {
        if (line.front() == '"') {
            words.emplace_back(TakeQuoted(line));
        } else {
            words.emplace_back(ToNumber(TakeBare(line)));
        }
    }
    Arguments arguments(std::move(words));
    operation->Run(*this, arguments);
}

void EditScript::Run(std::string_view script) {
    int number = 0;
    while (!script.empty()) {
        ++number;
        const std::size_t end = script.find('\n');
        const std::string_view line = script.substr(0, end);
        script.remove_prefix(end == std::string_view::npos ? script.size() : end + 1);
        try {
            RunLine(line);
        } catch (const std::runtime_error& failure) {
            throw CommandFailed("line " + std::to_string(number) + ": " + failure.what());
        }
    }
}

} // namespace zol
