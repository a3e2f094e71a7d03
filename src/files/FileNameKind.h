// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>

namespace zol {

/// What a file is, told by its name alone.
enum class FileNameKind : std::uint8_t { Pattern, Backup, StitchedFont, Library, Other };

/// By the name's ending in any case; a stitched font's ".stf" counts anywhere in the name.
[[nodiscard]] FileNameKind KindOfFileName(const std::string& fileName);
/// Whether files of this kind hold a design that can stand on the grid.
[[nodiscard]] bool CanStandOnGrid(FileNameKind kind);
/// Whether the file is one that is installed into the program's folders (".plb" or ".stf").
[[nodiscard]] bool IsAddOn(const std::string& fileName);

} // namespace zol
