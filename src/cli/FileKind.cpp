// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "cli/FileKind.h"

#include <algorithm>
#include <fstream>

#include "cli/CommandLine.h"
#include "model/CodePage.h"
#include "model/PatternHeader.h"
#include "model/SafeFile.h"

namespace zol {

FileKind KindOf(const std::string& fileName) {
    const std::string name = LowerCase(fileName);
    const std::string ending = name.substr(std::min(name.rfind('.'), name.size()));
    if (ending == ".stf") {
        throw CommandFailed(fileName + " is a stitched font, which this version cannot read");
    }
    if (ending == ".plb") {
        throw CommandFailed(fileName + " is a pattern library, which this version cannot read");
    }
    std::string start(25, '\0');
    std::ifstream file(PathOf(fileName), std::ios::binary);
    file.read(start.data(), static_cast<std::streamsize>(start.size()));
    if (start.starts_with(PatternHeader::Magic)) {
        return FileKind::Pattern;
    }
    if (ending == ".fls" || start.substr(10) == " Floss Palette!") {
        return FileKind::Palette;
    }
    return ending == ".col" ? FileKind::Catalogue : FileKind::Pattern;
}

} // namespace zol
