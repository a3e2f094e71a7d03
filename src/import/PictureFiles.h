// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace zol {

struct FilePreview;
struct ImagingResult;
class ProgressDoor;

/// Picture files by their names, and what is said about them.
namespace PictureFiles {

/// The picture of the last import, in the temporary folder.
inline constexpr std::string_view LastImportName = "LastImport.jpg";

/// The filter of a file dialog: all that can be decoded, then kind by kind.
[[nodiscard]] std::string DialogFilter();
/// Whether a file goes by its name as a picture that can be decoded; the case does not count.
[[nodiscard]] bool HasPictureName(const std::filesystem::path& file);
/// The picture of a file, made to fit a square of `side` pixels, and its own size in words; or why
/// there is none.
[[nodiscard]] FilePreview Preview(const std::filesystem::path& file, int side,
                                  ProgressDoor& progress);
/// "4000 × 3000 pixels".
[[nodiscard]] std::string SizeWords(int width, int height);
/// What the user sees of a picture that could not be loaded: the error by number and text.
[[nodiscard]] std::string LoadFailure(const ImagingResult& result);

} // namespace PictureFiles
} // namespace zol
