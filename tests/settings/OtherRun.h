// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace zol::test {

/// Another run of the program, in a process of its own, that has saved its work for recovery.
class OtherRun {
public:
    OtherRun(const std::filesystem::path& base, const std::string& fileName,
             const std::string& title, bool clean = false) {
        int ends[2] = {-1, -1};
        if (::pipe2(ends, O_CLOEXEC) != 0) {
            return;
        }
        std::vector<std::string> words{KORVANTA_RECOVERY_RUN, base.string(), fileName, title};
        if (clean) {
            words.emplace_back("clean");
        }
        m_process = ::fork();
        if (m_process == 0) {
            Execute(std::move(words), ends[1]);
        }
        ::close(ends[1]);
        char letter = 0;
        while (::read(ends[0], &letter, 1) == 1 && letter != '\n') {
            m_folder += letter;
        }
        ::close(ends[0]);
    }
    ~OtherRun() { Kill(); }
    OtherRun(const OtherRun&) = delete;
    OtherRun& operator=(const OtherRun&) = delete;

    /// The folder of that run; it has saved by the time that this is known.
    [[nodiscard]] std::filesystem::path Folder() const { return m_folder; }
    void Kill() {
        if (m_process > 0) {
            ::kill(m_process, SIGKILL);
        }
        Wait();
    }
    /// For a run that ends by itself.
    void Wait() {
        if (m_process > 0) {
            ::waitpid(m_process, nullptr, 0);
            m_process = -1;
        }
    }

private:
    [[noreturn]] static void Execute(std::vector<std::string> words, int output) {
        std::vector<char*> argv;
        argv.reserve(words.size() + 1);
        for (std::string& word : words) {
            argv.push_back(word.data());
        }
        argv.push_back(nullptr);
        if (::dup2(output, STDOUT_FILENO) < 0) {
            ::_exit(126);
        }
        ::execv(argv[0], argv.data());
        ::_exit(127);
    }

    pid_t m_process = -1;
    std::string m_folder;
};

} // namespace zol::test
