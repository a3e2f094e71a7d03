// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/RunFolder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <system_error>

#include "settings/tmpFiles.h"

namespace zol {

namespace fs = std::filesystem;

namespace {

constexpr const char* lockName = "lock";
constexpr const char* folderPrefix = "run-";
constexpr mode_t ownerOnly = 0700;

/// A new folder that only its owner may enter; empty on a failure.
fs::path MakeFolderIn(const fs::path& base, const std::string& prefix) {
    std::string name = (base / (prefix + "XXXXXX")).native();
    return ::mkdtemp(name.data()) != nullptr ? fs::path(name) : fs::path();
}

/// Makes the folder, and those above it, if they are missing.
bool MakePrivate(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder.parent_path(), error);
    return ::mkdir(folder.c_str(), ownerOnly) == 0 || fs::is_directory(folder, error);
}

int OpenLockFile(const fs::path& file) {
    // Closed in programs that this one starts: a lock must not outlive its run in a child.
    return ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
}

int LockOrClose(int handle, int operation) {
    if (handle < 0) {
        return handle;
    }
    int result = 0;
    do {
        result = ::flock(handle, operation);
    } while (result != 0 && errno == EINTR);
    if (result != 0) {
        ::close(handle);
        return -1;
    }
    return handle;
}

void RemoveFolder(const fs::path& folder) {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
}

} // namespace

FileLock::~FileLock() {
    if (m_handle >= 0) {
        ::close(m_handle);
    }
}

FileLock& FileLock::operator=(FileLock&& other) noexcept {
    std::swap(m_handle, other.m_handle);
    return *this;
}

FileLock FileLock::Wait(const fs::path& file) {
    FileLock lock;
    lock.m_handle = LockOrClose(OpenLockFile(file), LOCK_EX);
    return lock;
}

FileLock FileLock::Try(const fs::path& file) {
    FileLock lock;
    lock.m_handle = LockOrClose(OpenLockFile(file), LOCK_EX | LOCK_NB);
    return lock;
}

void DeadRun::Remove() const {
    RemoveFolder(m_folder);
}

fs::path RunFolder::UserStateFolder() {
    const char* state = std::getenv("XDG_STATE_HOME");
    if (state != nullptr && fs::path(state).is_absolute()) {
        return fs::path(state) / "korvanta";
    }
    const char* home = std::getenv("HOME");
    return fs::path(home != nullptr ? home : "") / ".local" / "state" / "korvanta";
}

RunFolder::RunFolder(fs::path base) : m_base(std::move(base)) {
    if (m_base.is_absolute() && MakePrivate(m_base)) {
        // Until the new folder is locked it looks like a dead run's.
        const FileLock starting = FileLock::Wait(m_base / lockName);
        if (starting.IsHeld()) {
            m_path = MakeFolderIn(m_base, folderPrefix);
        }
        if (!m_path.empty()) {
            m_lock = FileLock::Try(m_path / lockName);
        }
    }
    if (m_lock.IsHeld()) {
        return;
    }
    if (!m_path.empty()) {
        RemoveFolder(m_path);
    }
    m_base.clear();
    m_path = MakeFolderIn(tmpFiles(fs::path()).GetTempFolder(), "korvanta-");
}

std::vector<DeadRun> RunFolder::TakeDeadRuns(const std::string& fileName) const {
    std::vector<DeadRun> runs;
    if (m_base.empty()) {
        return runs;
    }
    const FileLock starting = FileLock::Wait(m_base / lockName);
    if (!starting.IsHeld()) {
        return runs;
    }
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(m_base, error)) {
        const fs::path& folder = entry.path();
        if (!folder.filename().native().starts_with(folderPrefix) || !entry.is_directory(error) ||
            entry.is_symlink(error)) {
            continue;
        }
        FileLock lock = FileLock::Try(folder / lockName);
        if (!lock.IsHeld()) {
            continue;
        }
        if (fs::exists(folder / fileName, error)) {
            runs.emplace_back(folder, std::move(lock));
        } else if (!error) {
            RemoveFolder(folder);
        }
    }
    const auto age = [&fileName](const DeadRun& run) {
        std::error_code unknown;
        return fs::last_write_time(run.Path() / fileName, unknown);
    };
    std::stable_sort(runs.begin(), runs.end(),
                     [&age](const DeadRun& a, const DeadRun& b) { return age(a) > age(b); });
    return runs;
}

void RunFolder::Remove() {
    if (!m_path.empty()) {
        RemoveFolder(m_path);
        m_path.clear();
    }
    m_lock = FileLock();
}

} // namespace zol
