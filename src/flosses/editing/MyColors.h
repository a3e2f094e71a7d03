// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

#include "flosses/editing/PaletteDialogs.h"
#include "model/ProgramContext.h"

/// The catalogue that holds the flosses a user has mixed.
namespace zol::MyColors {

inline constexpr const char* LongName = "My Colors";
inline constexpr const char* ShortName = "CUSTOM";
inline constexpr const char* FileName = "My Colors.col";

/// Whether the folder of the catalogues can be written to.
[[nodiscard]] bool CanSave(const ProgramContext& context);
/// Adds the floss to the catalogue, which is made if there is none. False if nothing was written:
/// a file there that is no catalogue is left alone.
[[nodiscard]] bool Save(const ProgramContext& context, const CustomFloss& floss,
                        std::chrono::system_clock::time_point now);

} // namespace zol::MyColors
