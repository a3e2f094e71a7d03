// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "cli/CommandLine.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace zol {

namespace {

const OptionRule* FindRule(std::initializer_list<OptionRule> rules, std::string_view name) {
    const auto* found = std::find_if(rules.begin(), rules.end(), [name](const OptionRule& rule) {
        return rule.Name == name || (!rule.Alias.empty() && rule.Alias == name);
    });
    return found == rules.end() ? nullptr : found;
}

bool IsOption(const std::string& word) {
    return word.size() > 1 && word[0] == '-';
}

} // namespace

CommandLine::CommandLine(const std::vector<std::string>& words,
                         std::initializer_list<OptionRule> rules) {
    bool optionsEnded = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (optionsEnded || !IsOption(word)) {
            m_files.push_back(word);
            continue;
        }
        if (word == "--") {
            optionsEnded = true;
            continue;
        }
        const std::size_t equals = word.starts_with("--") ? word.find('=') : std::string::npos;
        const std::string name = word.substr(0, equals);
        const OptionRule* rule = FindRule(rules, name);
        if (rule == nullptr) {
            throw WrongUsage("unknown option " + name);
        }
        std::string value;
        if (equals != std::string::npos) {
            value = word.substr(equals + 1);
        } else if (rule->TakesValue) {
            if (i + 1 == words.size()) {
                throw WrongUsage("option " + name + " needs a value");
            }
            value = words[++i];
        }
        if (equals != std::string::npos && !rule->TakesValue) {
            throw WrongUsage("option " + name + " takes no value");
        }
        m_options.emplace_back(std::string(rule->Name), value);
    }
}

void CommandLine::ExpectFiles(std::size_t least, std::size_t most) const {
    if (m_files.size() < least) {
        throw WrongUsage("a file name is missing");
    }
    if (m_files.size() > most) {
        throw WrongUsage("too many words: " + m_files[most]);
    }
}

std::optional<std::string> CommandLine::Value(std::string_view option) const {
    const auto found = std::find_if(m_options.rbegin(), m_options.rend(),
                                    [option](const auto& given) { return given.first == option; });
    return found == m_options.rend() ? std::nullopt : std::optional(found->second);
}

bool CommandLine::Has(std::string_view option) const {
    return Value(option).has_value();
}

std::string CommandLine::Required(std::string_view option) const {
    const auto value = Value(option);
    if (!value) {
        throw WrongUsage("option " + std::string(option) + " is missing");
    }
    return *value;
}

std::optional<std::int64_t> CommandLine::Integer(std::string_view option, std::int64_t least,
                                                 std::int64_t most) const {
    const auto text = Value(option);
    if (!text) {
        return std::nullopt;
    }
    const auto number = ParseInteger(*text);
    if (!number || *number < least || *number > most) {
        throw WrongUsage("option " + std::string(option) + " takes a whole number from " +
                         std::to_string(least) + " to " + std::to_string(most));
    }
    return number;
}

std::optional<double> CommandLine::Decimal(std::string_view option, double least,
                                           double most) const {
    const auto text = Value(option);
    if (!text) {
        return std::nullopt;
    }
    const auto number = ParseDecimal(*text);
    if (!number || *number < least || *number > most) {
        throw WrongUsage("option " + std::string(option) + " cannot be " + *text);
    }
    return number;
}

std::optional<std::int64_t> CommandLine::ParseInteger(std::string_view text) {
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    const char* begin = text.data() + (hexadecimal ? 2 : 0);
    const char* end = text.data() + text.size();
    std::int64_t value = 0;
    const auto result = std::from_chars(begin, end, value, hexadecimal ? 16 : 10);
    const bool signedHex = hexadecimal && begin != end && *begin == '-';
    if (result.ec != std::errc() || result.ptr != end || signedHex) {
        return std::nullopt;
    }
    return value;
}

std::optional<double> CommandLine::ParseDecimal(std::string_view text) {
    double value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::optional<std::vector<double>> CommandLine::ParseList(std::string_view text) {
    std::vector<double> numbers;
    while (true) {
        const std::size_t comma = text.find(',');
        const auto number = ParseDecimal(text.substr(0, comma));
        if (!number) {
            return std::nullopt;
        }
        numbers.push_back(*number);
        if (comma == std::string_view::npos) {
            return numbers;
        }
        text.remove_prefix(comma + 1);
    }
}

} // namespace zol
