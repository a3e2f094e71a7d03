// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include "model/ProgramContext.h"

namespace zol {

/// One catalogue file of the folder "Flosses".
struct CatalogueName {
    std::string FileName; ///< lower case
    std::string Name;     ///< trimmed manufacturer name from the file's first 30 bytes
};

/// The catalogues of the application folder in directory order; names match ".col" in any case.
[[nodiscard]] std::vector<CatalogueName> ListCatalogues(const ProgramContext& context);

/// Splits the option "MapFlosses" at "|" and loads each named catalogue that can be read.
[[nodiscard]] std::vector<std::string> SplitMapFlosses(const std::string& option);

} // namespace zol
