// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

namespace zol::AppPath {

/// The folder in which "Flosses", "Patterns" and their like lie: the program's folder if it holds
/// "Flosses" (portable use), else the user's data folder, to which the files of the installed
/// data that are missing there are added. Files that are there are never overwritten.
/// `installedData` may be missing; then nothing is added.
[[nodiscard]] std::filesystem::path Resolve(const std::filesystem::path& programFolder,
                                            const std::filesystem::path& installedData,
                                            const std::filesystem::path& userData);

/// The user's data folder of this program.
[[nodiscard]] std::filesystem::path UserDataFolder();

} // namespace zol::AppPath
