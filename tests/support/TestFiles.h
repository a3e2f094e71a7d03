// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <ios>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

namespace zol::test {

/// The whole of a file; empty if there is none.
[[nodiscard]] inline std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The same as bytes.
[[nodiscard]] inline std::vector<std::uint8_t> ReadBytes(const std::filesystem::path& path) {
    const std::string content = ReadFile(path);
    return {content.begin(), content.end()};
}

/// Throws where the file cannot be written.
inline void WriteFile(const std::filesystem::path& path, const std::string& content) {
    std::ofstream file(path, std::ios::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.flush();
    if (!file) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

inline void WriteBytes(const std::filesystem::path& path, const std::vector<std::uint8_t>& bytes) {
    WriteFile(path, std::string(bytes.begin(), bytes.end()));
}

} // namespace zol::test
