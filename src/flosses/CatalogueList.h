// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "model/ProgramContext.h"

namespace zol {

/// One catalogue file of the folder "Flosses".
struct CatalogueName {
    std::string FileName; ///< lower case
    std::string Name;     ///< trimmed manufacturer name from the file's first 30 bytes
};

/// The folder "Flosses" of the application folder, in any case of its letters.
[[nodiscard]] std::filesystem::path CatalogueFolder(const ProgramContext& context);
/// The file of that name there.
[[nodiscard]] std::filesystem::path CataloguePath(const ProgramContext& context,
                                                  const std::string& name);

/// The catalogues of that folder by file name, as a folder is listed; names match ".col" in any
/// case.
[[nodiscard]] std::vector<CatalogueName> ListCatalogues(const ProgramContext& context);

/// The catalogue file names of the option "MapFlosses", which "|" separates.
[[nodiscard]] std::vector<std::string> SplitMapFlosses(const std::string& option);
[[nodiscard]] std::string JoinMapFlosses(const std::vector<std::string>& fileNames);
/// Whether the option names that file.
[[nodiscard]] bool IsMappedFloss(const std::string& option, const std::string& fileName);

} // namespace zol
