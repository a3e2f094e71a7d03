// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

#include <filesystem>
#include <string>
#include <vector>

#include "print/PatternPicture.h"
#include "print/PrintOptions.h"
#include "print/WholeFile.h"
#include "settings/OptionLists.h"

namespace zol {

/// What the user chose for pictures of a pattern. Kept for the run of the program.
struct basExport {
    int ExportDisplayAs = PrintColorBlocks; ///< a print style
    int ExportZoom = 10;                    ///< pixels for a square
    bool ExportGridlines = false;
    bool ExportSelected = false;
    bool ExportToClipboard = false;

    std::filesystem::path Folder; ///< of the last export; empty before the first

    /// The picture of these squares in this look; widths and colours are the options'.
    [[nodiscard]] PatternPicture PictureOf(const Pattern& source, const SquareRect& squares,
                                           const Options& options) const;
};

/// The styles of pictures in the order of their list. `colorWord` is "Color" or "Colour".
[[nodiscard]] std::vector<OptionItem> ExportStyles(const std::string& colorWord);

/// The name that a file is proposed for a pattern: its own up to the first point.
[[nodiscard]] std::string ExportProposal(const std::filesystem::path& patternFile);

enum class PictureFormat { Bmp, Png, Svg, Pdf };
/// By the name's ending; a bitmap where that says nothing.
[[nodiscard]] PictureFormat PictureFormatOf(const std::filesystem::path& file);

/// Writes a picture whole or not at all. `raster` is that picture, painted; where it is null, it is
/// painted if the format needs it. Nothing is written if `progress`, which may be null, says stop.
/// May throw RunTimeError 7.
[[nodiscard]] WholeFileResult SavePicture(const PatternPicture& picture, const QImage& raster,
                                          const std::filesystem::path& file,
                                          ProgressDoor* progress);
/// The same onto a device.
[[nodiscard]] bool WritePicture(const PatternPicture& picture, const QImage& raster,
                                PictureFormat format, QIODevice& device, ProgressDoor* progress);

inline constexpr char ExportMemoryText[] =
    "There is not enough Memory to export the current pattern at the current zoom level.  "
    "Please choose a lower zoom setting.";
/// Kinds of files that a picture can be saved as, for a file dialog.
inline constexpr char PictureFilter[] =
    "Windows BMP File|*.bmp|PNG Picture|*.png|SVG Drawing|*.svg|PDF Document|*.pdf";

} // namespace zol
