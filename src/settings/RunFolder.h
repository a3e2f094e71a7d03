// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace zol {

/// A file locked by this process. The system lets go of it when the process ends, however it ends.
class FileLock {
public:
    FileLock() = default;
    ~FileLock();
    FileLock(FileLock&& other) noexcept : m_handle(std::exchange(other.m_handle, -1)) {}
    FileLock& operator=(FileLock&& other) noexcept;
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    /// Makes the file if it is missing and waits until nobody else holds it. Not held on a failure.
    [[nodiscard]] static FileLock Wait(const std::filesystem::path& file);
    /// Not held if another process, or another lock of this one, holds the file.
    [[nodiscard]] static FileLock Try(const std::filesystem::path& file);
    [[nodiscard]] bool IsHeld() const { return m_handle >= 0; }

private:
    int m_handle = -1;
};

/// The folder of a run that ended badly, held by this run so that no other one takes it too.
class DeadRun {
public:
    DeadRun(std::filesystem::path folder, FileLock lock)
        : m_folder(std::move(folder)),
          m_lock(std::move(lock)) {}

    [[nodiscard]] const std::filesystem::path& Path() const { return m_folder; }
    /// Deletes the folder with all that is in it.
    void Remove() const;

private:
    std::filesystem::path m_folder;
    FileLock m_lock;
};

/// A folder of this run alone, in the user's own state folder and closed to other users, for what
/// has to outlive a crash. A lock tells other runs that this one lives; a killed run's folder is
/// found by the next start.
class RunFolder {
public:
    /// "korvanta" in $XDG_STATE_HOME or, without it, in ~/.local/state.
    [[nodiscard]] static std::filesystem::path UserStateFolder();

    /// Makes a folder in `base`. If that cannot be, a folder in the system's temporary folder
    /// serves, which no later start looks for; Path is empty if there is not even that.
    explicit RunFolder(std::filesystem::path base = UserStateFolder());
    /// Lets go of the folder; it stays until Remove.
    ~RunFolder() = default;
    RunFolder(const RunFolder&) = delete;
    RunFolder& operator=(const RunFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return m_path; }
    /// Runs that ended badly and left a file of that name; the newest file comes first. What other
    /// dead runs left is deleted.
    [[nodiscard]] std::vector<DeadRun> TakeDeadRuns(const std::string& fileName) const;
    /// For a clean end: deletes the folder with all that is in it.
    void Remove();

private:
    std::filesystem::path m_base;
    std::filesystem::path m_path;
    FileLock m_lock;
};

} // namespace zol
