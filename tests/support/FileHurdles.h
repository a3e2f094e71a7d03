// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <utility>

namespace zol::test {

/// No file of this process can grow beyond `bytes` while it lives: a full disk without one.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : m_oldHandler(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &m_old);
        const rlimit tight{bytes, m_old.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &tight);
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_oldHandler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_old{};
    void (*m_oldHandler)(int);
};

/// Nothing can be made or replaced in the folder while it lives, not even by a process that has
/// all rights: it gives them up for the time.
class ReadOnlyFolder {
public:
    explicit ReadOnlyFolder(std::filesystem::path folder) : m_folder(std::move(folder)) {
        constexpr uid_t nobody = 65534;
        ::chmod(m_folder.c_str(), 0555);
        if (m_user == 0 && ::seteuid(nobody) != 0) {
            ::_exit(2); // what the test would show is not so
        }
    }
    ~ReadOnlyFolder() {
        if (m_user == 0 && ::seteuid(0) != 0) {
            ::_exit(2);
        }
        ::chmod(m_folder.c_str(), 0755);
    }
    ReadOnlyFolder(const ReadOnlyFolder&) = delete;
    ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;

private:
    std::filesystem::path m_folder;
    uid_t m_user = ::geteuid();
};

} // namespace zol::test
