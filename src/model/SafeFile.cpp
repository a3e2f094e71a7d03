// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/SafeFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <random>
#include <system_error>

#include "model/CodePage.h"
#include "model/RunTimeError.h"

namespace zol {

namespace fs = std::filesystem;

namespace {

/// Whether a file has to last over a power cut.
enum class Lasting { InMemory, OnDisk };

/// A file descriptor that closes itself.
class OpenFile {
public:
    OpenFile(const fs::path& path, int flags) : m_handle(::open(path.c_str(), flags, 0666)) {}
    ~OpenFile() {
        if (m_handle >= 0) {
            ::close(m_handle);
        }
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    [[nodiscard]] bool IsOpen() const { return m_handle >= 0; }
    [[nodiscard]] bool Write(std::span<const std::uint8_t> bytes) const {
        while (!bytes.empty()) {
            const ssize_t done = ::write(m_handle, bytes.data(), bytes.size());
            if (done < 0 && errno != EINTR) {
                return false;
            }
            bytes = bytes.subspan(done > 0 ? static_cast<std::size_t>(done) : 0);
        }
        return true;
    }
    [[nodiscard]] bool Sync() const { return ::fsync(m_handle) == 0; }
    /// Closes and tells whether the system had kept an error back until now.
    [[nodiscard]] bool Close() {
        const int handle = m_handle;
        m_handle = -1;
        return ::close(handle) == 0;
    }
    [[nodiscard]] bool TakeModeOf(const fs::path& path) const {
        struct stat info {};
        return ::stat(path.c_str(), &info) != 0 || ::fchmod(m_handle, info.st_mode & 07777U) == 0;
    }

private:
    int m_handle;
};

/// Makes the folder's new names last over a power cut. A file system that cannot sync folders is
/// no reason to fail a save whose bytes are safe.
void SyncFolderOf(const fs::path& path) {
    const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    const OpenFile handle(folder, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle.IsOpen()) {
        (void)handle.Sync();
    }
}

int RemoveAndTell(const fs::path& fresh, int systemError) {
    std::error_code ignored;
    fs::remove(fresh, ignored);
    return SafeFile::ErrorNumberOf(systemError);
}

/// The file behind a symbolic link, so that saving replaces the file and not the link.
fs::path ResolveLink(const fs::path& path) {
    std::error_code error;
    if (!fs::is_symlink(path, error)) {
        return path;
    }
    const fs::path resolved = fs::weakly_canonical(path, error);
    return error ? path : resolved;
}

/// Gives the old file the backup's name. Where a link leads onto another file system the backup,
/// which lies beside the link, takes a copy, and the old name stays until the new file takes it.
std::error_code KeepAs(const fs::path& path, const fs::path& backup) {
    std::error_code error;
    fs::rename(path, backup, error);
    if (error != std::errc::cross_device_link) {
        return error;
    }
    const fs::path copy = SafeFile::NewNameBeside(backup);
    fs::copy_file(path, copy, error);
    if (!error) {
        fs::rename(copy, backup, error);
    }
    if (error) {
        std::error_code ignored;
        fs::remove(copy, ignored);
    }
    return error;
}

/// Renames with the old file kept under the backup's name; puts the old name back on a failure.
int RenameOver(Lasting lasting, const fs::path& fresh, const fs::path& path,
               const fs::path& backup) {
    std::error_code error;
    const bool keepOld = !backup.empty() && fs::exists(path, error);
    if (keepOld) {
        error = KeepAs(path, backup);
        if (error) {
            return RemoveAndTell(fresh, error.value());
        }
    }
    fs::rename(fresh, path, error);
    if (error) {
        const int number = RemoveAndTell(fresh, error.value());
        std::error_code ignored;
        if (keepOld && !fs::exists(path, ignored)) {
            fs::rename(backup, path, ignored);
        }
        return number;
    }
    if (lasting == Lasting::OnDisk) {
        SyncFolderOf(path);
    }
    return ErrNone;
}

int ReplaceAs(Lasting lasting, const fs::path& path, std::span<const std::uint8_t> bytes,
              const fs::path& backup) {
    const fs::path target = ResolveLink(path);
    std::error_code error;
    const fs::file_status status = fs::status(target, error);
    if (fs::is_directory(status)) {
        return ErrPathAccess;
    }
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        // A device or a pipe has no name to replace: the bytes go straight to it.
        OpenFile device(target, O_WRONLY | O_CLOEXEC);
        const bool done = device.IsOpen() && device.Write(bytes) && device.Close();
        return done ? ErrNone : SafeFile::ErrorNumberOf(errno);
    }
    if (fs::exists(status) && ::access(target.c_str(), W_OK) != 0) {
        // The folder would let a rename replace it, but a file that was made read-only is meant
        // to stay.
        return ErrPermission;
    }
    const fs::path fresh = SafeFile::NewNameBeside(target);
    OpenFile file(fresh, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC);
    if (!file.IsOpen()) {
        return SafeFile::ErrorNumberOf(errno);
    }
    if (!file.TakeModeOf(target) || !file.Write(bytes) ||
        (lasting == Lasting::OnDisk && !file.Sync()) || !file.Close()) {
        return RemoveAndTell(fresh, errno);
    }
    return RenameOver(lasting, fresh, target, backup);
}

} // namespace

namespace SafeFile {

int ErrorNumberOf(int systemError) {
    switch (systemError) {
    case 0:
        return ErrNone;
    case ENOENT:
    case ENOTDIR:
        return ErrPathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return ErrPermission;
    case EISDIR:
        return ErrPathAccess;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return ErrDiskFull;
    case ENOMEM:
        return ErrOutOfMemory;
    default:
        return ErrDeviceIO;
    }
}

fs::path NewNameBeside(const fs::path& path) {
    const fs::path target = ResolveLink(path);
    std::random_device source;
    for (;;) {
        // Not made of the file's own name, which may be as long as the system lets names be.
        const std::string name = ".korvanta-" + std::to_string(source()) + ".new";
        fs::path candidate = target.parent_path() / name;
        std::error_code error;
        if (!fs::exists(candidate, error)) {
            return candidate;
        }
    }
}

int Adopt(const fs::path& fresh, const fs::path& path) {
    const fs::path target = ResolveLink(path);
    OpenFile file(fresh, O_RDONLY | O_CLOEXEC);
    if (!file.IsOpen() || !file.TakeModeOf(target) || !file.Sync()) {
        return RemoveAndTell(fresh, errno);
    }
    return RenameOver(Lasting::OnDisk, fresh, target, {});
}

int Replace(const fs::path& path, std::span<const std::uint8_t> bytes, const fs::path& backup) {
    return ReplaceAs(Lasting::OnDisk, path, bytes, backup);
}

int ReplaceUnsynced(const fs::path& path, std::span<const std::uint8_t> bytes) {
    return ReplaceAs(Lasting::InMemory, path, bytes, {});
}

fs::path FindIgnoringCase(const fs::path& folder, const std::string& name) {
    std::error_code error;
    if (fs::exists(folder / PathOf(name), error)) {
        return folder / PathOf(name);
    }
    const std::string wanted = LowerCase(name);
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        if (LowerCase(PathText(entry.path().filename())) == wanted) {
            return entry.path();
        }
    }
    return folder / PathOf(name);
}

} // namespace SafeFile

std::string PathText(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

fs::path PathOf(const std::string& utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

} // namespace zol
