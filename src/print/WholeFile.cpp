// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/WholeFile.h"

#include <system_error>
#include <utility>

#include "model/RunTimeError.h"
#include "model/SafeFile.h"

namespace zol {

namespace fs = std::filesystem;

namespace {

/// A new file that is gone again unless it is kept, also when its writer throws.
class FreshFile {
public:
    explicit FreshFile(fs::path path) : m_path(std::move(path)) {}
    ~FreshFile() {
        std::error_code ignored;
        fs::remove(m_path, ignored);
    }
    FreshFile(const FreshFile&) = delete;
    FreshFile& operator=(const FreshFile&) = delete;

    [[nodiscard]] const fs::path& Path() const { return m_path; }

private:
    fs::path m_path;
};

WholeFileResult WriteDevice(const fs::path& path,
                            const std::function<bool(CheckedOutput&)>& write) {
    CheckedOutput output;
    WholeFileResult result{output.OpenDevice(path), false};
    if (result.Number == ErrNone) {
        const bool isWanted = write(output);
        result.Number = output.Finish();
        result.IsWritten = isWanted && result.Number == ErrNone;
    }
    return result;
}

} // namespace

WholeFileResult WriteWholeFile(const fs::path& path,
                               const std::function<bool(CheckedOutput&)>& write) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (fs::is_directory(status)) {
        return {ErrPathAccess, false};
    }
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        return WriteDevice(path, write);
    }
    const FreshFile fresh(SafeFile::NewNameBeside(path));
    CheckedOutput output;
    WholeFileResult result{output.CreateFile(fresh.Path()), false};
    if (result.Number != ErrNone) {
        return result;
    }
    const bool isWanted = write(output);
    result.Number = output.Finish();
    if (isWanted && result.Number == ErrNone) {
        result.Number = SafeFile::Adopt(fresh.Path(), path);
        result.IsWritten = result.Number == ErrNone;
    }
    return result;
}

} // namespace zol
