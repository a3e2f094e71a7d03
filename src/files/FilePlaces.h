// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

namespace zol::FilePlaces {

/// The system's folder for temporary files; empty if it has none.
[[nodiscard]] std::filesystem::path SystemTempFolder();
/// Whether `file` lies in `folder` or a folder below it, links resolved. False for an empty path.
[[nodiscard]] bool IsBelow(const std::filesystem::path& file, const std::filesystem::path& folder);
/// "Patterns" in the program's folder, in letters of either case, or that folder itself.
[[nodiscard]] std::filesystem::path PatternsFolder(const std::filesystem::path& appPath);

} // namespace zol::FilePlaces
