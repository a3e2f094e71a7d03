// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace zol {

/// The kinds of files that can be read.
enum class FileKind { Pattern, Palette, Catalogue };

/// What a file is by its first bytes, or, where these say nothing, by its name's ending. A file
/// with neither counts as a pattern, whose reader then says what is wrong. Throws CommandFailed
/// for the kinds of this program that cannot be read yet.
[[nodiscard]] FileKind KindOf(const std::string& fileName);

} // namespace zol
