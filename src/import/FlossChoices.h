// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zol {

class ImportSession;
class Palette;
struct ProgramContext;

/// A line of the list that an import's flosses are chosen from.
struct FlossChoice {
    std::string Text;
    std::filesystem::path File; ///< empty: the pattern's own palette
};

/// What can be chosen, and choosing it.
namespace FlossChoices {

inline constexpr const char* CurrentPalette = "Current Palette";
/// As many palette files are listed.
inline constexpr std::size_t MostPalettes = 100;

/// The catalogues of the program's folder.
[[nodiscard]] std::vector<FlossChoice> Families(const ProgramContext& context);
/// The pattern's own palette and the palette files of the program's folder, by name.
[[nodiscard]] std::vector<FlossChoice> Palettes(const ProgramContext& context);

/// Makes the flosses of a line the session's candidates. False if its file cannot be read: then
/// nothing is chosen.
[[nodiscard]] bool ChooseFamily(ImportSession& session, const ProgramContext& context,
                                const FlossChoice& line);
/// `patternPalette` is what "Current Palette" stands for.
[[nodiscard]] bool ChoosePalette(ImportSession& session, ProgramContext& context,
                                 const FlossChoice& line, const Palette& patternPalette);

} // namespace FlossChoices
} // namespace zol
