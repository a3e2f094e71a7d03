// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>

#include "support/TestFiles.h"

namespace zol::test {

/// A folder of its own for one test; gone with it.
class TempFolder {
public:
    explicit TempFolder(
        const std::filesystem::path& within = std::filesystem::temp_directory_path()) {
        std::random_device source;
        m_path = within / ("korvanta-test-" + std::to_string(source()) + std::to_string(source()));
        std::filesystem::create_directories(m_path);
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return m_path; }
    [[nodiscard]] std::filesystem::path operator/(const std::string& name) const {
        return m_path / name;
    }

private:
    std::filesystem::path m_path;
};

} // namespace zol::test
