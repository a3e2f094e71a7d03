// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>

namespace zol {

/// Opens a file for reading; nothing if it is missing, unreadable, or a folder, pipe or device,
/// which have no size to hold counts against.
[[nodiscard]] inline std::optional<std::ifstream>
OpenInputFile(const std::filesystem::path& fileName) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(fileName, error)) {
        return std::nullopt;
    }
    std::ifstream file(fileName, std::ios::binary);
    if (!file.is_open()) {
        return std::nullopt;
    }
    return file;
}

} // namespace zol
