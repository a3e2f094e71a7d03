// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "cli/CliRunner.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>

namespace zol::test {

namespace {

constexpr const char* ownPrefix = ".runner-";

void Redirect(const std::filesystem::path& file, int flags, int target) {
    const int handle = ::open(file.c_str(), flags, 0600);
    if (handle < 0 || ::dup2(handle, target) < 0) {
        ::_exit(126);
    }
}

[[noreturn]] void Execute(const std::vector<std::string>& words) {
    std::vector<char*> argv;
    std::string program = KORVANTA_CLI;
    argv.push_back(program.data());
    std::vector<std::string> copies = words;
    for (std::string& word : copies) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    ::execv(argv[0], argv.data());
    ::_exit(127);
}

} // namespace

CliRunner::CliRunner() {
    std::filesystem::create_directories(m_folder / ".runner-app");
}

std::string CliRunner::Write(const std::string& name, const std::string& content) const {
    WriteFile(m_folder / name, content);
    return File(name);
}

std::vector<std::string> CliRunner::Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(m_folder.Path())) {
        const std::string name = entry.path().filename().string();
        if (!name.starts_with(ownPrefix)) {
            names.push_back(name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

CliResult CliRunner::Start(const std::vector<std::string>& words, const std::string& input,
                           const std::filesystem::path& output) const {
    WriteFile(m_folder / ".runner-in", input);
    const pid_t child = ::fork();
    if (child == 0) {
        Redirect(m_folder / ".runner-in", O_RDONLY, STDIN_FILENO);
        Redirect(output, O_WRONLY | O_CREAT | O_TRUNC, STDOUT_FILENO);
        Redirect(m_folder / ".runner-err", O_WRONLY | O_CREAT | O_TRUNC, STDERR_FILENO);
        Execute(words);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status), {}, Read(".runner-err")};
}

std::vector<std::string> CliRunner::WithOptions(const std::vector<std::string>& words) const {
    std::vector<std::string> all{"--app-path", File(".runner-app"), "--settings",
                                 File(".runner-settings.ini")};
    all.insert(all.end(), words.begin(), words.end());
    return all;
}

CliResult CliRunner::RunBare(const std::vector<std::string>& words,
                             const std::string& input) const {
    CliResult result = Start(words, input, m_folder / ".runner-out");
    result.out = Read(".runner-out");
    return result;
}

CliResult CliRunner::Run(const std::vector<std::string>& words, const std::string& input) const {
    return RunBare(WithOptions(words), input);
}

CliResult CliRunner::RunInto(const std::filesystem::path& output,
                             const std::vector<std::string>& words) const {
    return Start(WithOptions(words), {}, output);
}

std::string CliRunner::Pattern(const std::string& name, const std::string& script) const {
    const CliResult result =
        Run({"edit", "--script", Write(".runner-script", script), "-o", File(name)});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    return File(name);
}

} // namespace zol::test
