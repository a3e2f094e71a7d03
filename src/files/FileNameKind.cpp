// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "files/FileNameKind.h"

#include "model/CodePage.h"

namespace zol {

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
    return FileNameKind::Other;
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
