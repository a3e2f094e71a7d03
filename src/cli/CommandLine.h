// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <initializer_list>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zol {

/// The work failed: exit 1 with this line. `detail` is an inner error text, shown in brackets.
class CommandFailed : public std::runtime_error {
public:
    explicit CommandFailed(const std::string& text, const std::string& detail = {})
        : std::runtime_error(detail.empty() ? text : text + " [" + detail + "]") {}
};

/// The command was called wrongly: exit 2 with this line.
class WrongUsage : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// An option that a command takes.
struct OptionRule {
    std::string_view Name; ///< with its dashes
    bool TakesValue = false;
    std::string_view Alias = {}; ///< a second name, for instance "-o"
};

/// The words behind a command, sorted into options and files by the command's rules. A word that
/// is "-" is a file; "--" ends the options. Numbers use a point whatever the locale.
class CommandLine {
public:
    /// Throws WrongUsage for an option that no rule tells of or one without its value.
    CommandLine(const std::vector<std::string>& words, std::initializer_list<OptionRule> rules);

    [[nodiscard]] const std::vector<std::string>& Files() const { return m_files; }
    /// The files, whose number must lie between the two. Throws WrongUsage.
    void ExpectFiles(std::size_t least, std::size_t most) const;

    [[nodiscard]] bool Has(std::string_view option) const;
    [[nodiscard]] std::optional<std::string> Value(std::string_view option) const;
    /// Throws WrongUsage if the option is missing.
    [[nodiscard]] std::string Required(std::string_view option) const;
    /// A number in a range; throws WrongUsage for anything else.
    [[nodiscard]] std::optional<std::int64_t> Integer(std::string_view option, std::int64_t least,
                                                      std::int64_t most) const;
    [[nodiscard]] std::optional<double> Decimal(std::string_view option, double least,
                                                double most) const;
    /// Options with their values in the order in which they were given.
    [[nodiscard]] const std::vector<std::pair<std::string, std::string>>& InOrder() const {
        return m_options;
    }

    /// The whole text as a number, or nothing. Decimal, or hexadecimal after "0x".
    [[nodiscard]] static std::optional<std::int64_t> ParseInteger(std::string_view text);
    [[nodiscard]] static std::optional<double> ParseDecimal(std::string_view text);
    /// Numbers between commas.
    [[nodiscard]] static std::optional<std::vector<double>> ParseList(std::string_view text);

private:
    std::vector<std::string> m_files;
    std::vector<std::pair<std::string, std::string>> m_options;
};

} // namespace zol
