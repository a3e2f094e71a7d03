// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <iostream>

#include "cli/CanonicalJson.h"
#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "cli/FileKind.h"

namespace zol {

void RunDump(Environment& environment, const CommandWords& words) {
    const CommandLine line(words, {});
    line.ExpectFiles(1, 1);
    const std::string& fileName = line.Files()[0];
    switch (KindOf(fileName)) {
    case FileKind::Pattern: {
        Pattern pattern(environment.Context());
        environment.LoadPattern(pattern, fileName);
        CanonicalJson::WritePattern(std::cout, pattern);
        break;
    }
    case FileKind::Palette:
        CanonicalJson::WritePalette(std::cout, environment.LoadPalette(fileName));
        break;
    case FileKind::Catalogue:
        CanonicalJson::WriteCatalogue(std::cout, environment.LoadCatalogue(fileName));
        break;
    }
}

} // namespace zol
