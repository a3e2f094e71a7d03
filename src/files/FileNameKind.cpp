// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "files/FileNameKind.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "model/CodePage.h"

namespace zol {

namespace {

constexpr std::array<std::string_view, 9> PictureEndings{
    ".bmp", ".gif", ".heic", ".jpeg", ".jpg", ".png", ".tif", ".tiff", ".webp",
};

} // namespace

FileNameKind KindOfFileName(const std::string& fileName) {
    const std::string name = LowerCase(fileName);
    if (name.find(".stf") != std::string::npos) {
        return FileNameKind::StitchedFont;
    }
    if (name.ends_with(".pat")) {
        return FileNameKind::Pattern;
    }
    if (name.ends_with(".bpt")) {
        return FileNameKind::Backup;
    }
    if (name.ends_with(".plb")) {
        return FileNameKind::Library;
    }
    const bool isPicture =
        std::any_of(PictureEndings.begin(), PictureEndings.end(),
                    [&name](std::string_view ending) { return name.ends_with(ending); });
    return isPicture ? FileNameKind::Picture : FileNameKind::Other;
}

bool CanStandOnGrid(FileNameKind kind) {
    return kind == FileNameKind::Pattern || kind == FileNameKind::Backup ||
           kind == FileNameKind::StitchedFont;
}

bool IsAddOn(const std::string& fileName) {
    const std::string name = LowerCase(fileName);
    return name.ends_with(".plb") || name.ends_with(".stf");
}

} // namespace zol
