// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "support/TempFolder.h"

namespace zol::test {

/// What a run of the command line gave.
struct CliResult {
    int exitCode = -1;
    std::string out;
    std::string err;
};

/// Runs korvanta-cli in a folder of its own, with settings and program folder of its own.
class CliRunner {
public:
    CliRunner();

    /// A word that stands for a file of this test.
    [[nodiscard]] std::string File(const std::string& name) const {
        return (m_folder / name).string();
    }
    /// Writes a file and gives its path.
    [[nodiscard]] std::string Write(const std::string& name, const std::string& content) const;
    [[nodiscard]] std::string Read(const std::string& name) const {
        return ReadFile(m_folder / name);
    }
    [[nodiscard]] bool Exists(const std::string& name) const {
        return std::filesystem::exists(m_folder / name);
    }
    /// Names in the folder but for those that the runner itself needs.
    [[nodiscard]] std::vector<std::string> Names() const;

    /// Runs a command with this runner's settings and program folder in front.
    CliResult Run(const std::vector<std::string>& words, const std::string& input = {}) const;
    /// Runs exactly these words.
    CliResult RunBare(const std::vector<std::string>& words, const std::string& input = {}) const;
    /// Runs a command, with this runner's settings and program folder, whose output goes to a file.
    CliResult RunInto(const std::filesystem::path& output,
                      const std::vector<std::string>& words) const;
    /// What belongs to the program folder, a file's name in it.
    [[nodiscard]] std::filesystem::path InProgramFolder(const std::string& name) const {
        return m_folder / ".runner-app" / name;
    }
    /// Makes a pattern from a script; its path.
    [[nodiscard]] std::string Pattern(const std::string& name, const std::string& script) const;

private:
    [[nodiscard]] std::vector<std::string> WithOptions(const std::vector<std::string>& words) const;
    CliResult Start(const std::vector<std::string>& words, const std::string& input,
                    const std::filesystem::path& output) const;

    TempFolder m_folder;
};

} // namespace zol::test
