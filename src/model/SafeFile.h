// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>

namespace zol {

/// Saves that never destroy the last good file.
namespace SafeFile {

/// Writes `bytes` to a new file beside `path`, flushes and syncs it, and only then gives it the
/// name. If `backup` is not empty, the old file takes that name first (an old backup is removed).
/// Answers 0 or a run-time error number; after an error every name is as it was and nothing new
/// is left behind.
[[nodiscard]] int Replace(const std::filesystem::path& path, std::span<const std::uint8_t> bytes,
                          const std::filesystem::path& backup = {});

/// The same for a file that nobody needs after a power cut: not synced, and so as quick as the
/// system's memory.
[[nodiscard]] int ReplaceUnsynced(const std::filesystem::path& path,
                                  std::span<const std::uint8_t> bytes);

/// A name for a new file beside `path` that nobody has, for writers that need a name (a PDF
/// device). The file does not exist yet.
[[nodiscard]] std::filesystem::path NewNameBeside(const std::filesystem::path& path);

/// Syncs the finished file `fresh` and gives it the name `path`; removes `fresh` on an error.
/// Answers 0 or a run-time error number.
[[nodiscard]] int Adopt(const std::filesystem::path& fresh, const std::filesystem::path& path);

/// The run-time error number of an errno value.
[[nodiscard]] int ErrorNumberOf(int systemError);

/// The file of that name in `folder` whatever the case of its letters, or `folder / name` if
/// there is none.
[[nodiscard]] std::filesystem::path FindIgnoringCase(const std::filesystem::path& folder,
                                                     const std::string& name);

} // namespace SafeFile

/// A path as UTF-8 text and back.
[[nodiscard]] std::string PathText(const std::filesystem::path& path);
[[nodiscard]] std::filesystem::path PathOf(const std::string& utf8);

} // namespace zol
