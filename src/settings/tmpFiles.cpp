// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/tmpFiles.h"

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <system_error>

namespace zol {

namespace fs = std::filesystem;

fs::path tmpFiles::GetTempFolder() const {
    std::error_code error;
    const fs::path folder = fs::temp_directory_path(error);
    // An empty name behind the folder gives the separator, and none if there is one.
    return (error ? m_appPath : folder) / "";
}

fs::path tmpFiles::GetTmpFileName(const std::string& prefix) const {
    const fs::path folder = GetTempFolder();
    if (folder.native().size() >= MaxPathLength) {
        return {};
    }
    std::string name = (folder / (prefix + "XXXXXX.tmp")).native();
    constexpr int suffixLength = 4;
    const int handle = ::mkstemps(name.data(), suffixLength);
    if (handle < 0) {
        return {};
    }
    ::close(handle);
    return name;
}

bool tmpFiles::CheckTempFolder() {
    if (!m_tempDirChecked) {
        m_tempDirChecked = true;
        const fs::path probe = m_appPath / "ZOLTMP.$$$";
        m_tempDirWritable = std::ofstream(probe).is_open();
        if (m_tempDirWritable) {
            std::error_code ignored;
            fs::remove(probe, ignored);
        }
    }
    return m_tempDirWritable;
}

} // namespace zol
