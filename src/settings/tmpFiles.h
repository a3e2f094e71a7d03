// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>

namespace zol {

/// Finds places for temporary files.
class tmpFiles {
public:
    static constexpr std::size_t MaxPathLength = 512;

    explicit tmpFiles(std::filesystem::path appPath) : m_appPath(std::move(appPath)) {}

    /// The system's temporary folder, or the program's if the system names none that is there;
    /// with a separator at the end.
    [[nodiscard]] std::filesystem::path GetTempFolder() const;
    /// Makes an empty file with a name of its own in the temporary folder. Empty on a failure and
    /// for a folder's path of 512 bytes or more.
    [[nodiscard]] std::filesystem::path GetTmpFileName(const std::string& prefix) const;
    /// Whether the program's folder takes files: tried once, with "ZOLTMP.$$$". If not, the
    /// system's temporary folder serves.
    [[nodiscard]] bool CheckTempFolder();

private:
    std::filesystem::path m_appPath;
    bool m_tempDirChecked = false;
    bool m_tempDirWritable = false;
};

} // namespace zol
