// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "files/FilePlaces.h"

#include <algorithm>
#include <system_error>

#include "model/SafeFile.h"

namespace zol::FilePlaces {

namespace fs = std::filesystem;

fs::path SystemTempFolder() {
    std::error_code error;
    const fs::path folder = fs::temp_directory_path(error);
    return error ? fs::path() : folder;
}

bool IsBelow(const fs::path& file, const fs::path& folder) {
    if (file.empty() || folder.empty()) {
        return false;
    }
    std::error_code error;
    const fs::path inner = fs::weakly_canonical(file, error);
    const fs::path outer = error ? fs::path() : fs::weakly_canonical(folder, error);
    if (error) {
        return false;
    }
    return std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first ==
           outer.end();
}

fs::path PatternsFolder(const fs::path& appPath) {
    fs::path folder = SafeFile::FindIgnoringCase(appPath, "Patterns");
    std::error_code error;
    return fs::is_directory(folder, error) ? folder : appPath;
}

} // namespace zol::FilePlaces
