// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string_view>
#include <variant>

#include "settings/Options.h"

namespace zol {

/// One stored option: where it lies, what it is when nothing is stored, and the member it fills.
struct OptionRow {
    using Member =
        std::variant<std::string Options::*, int Options::*, bool Options::*, double Options::*>;

    const char* Section;
    const char* Name;
    const char* Default; ///< null: what the record holds already
    Member Target;
    bool Edited = true; ///< by the options dialog, which alone writes it back
};

/// All rows of a section in the order in which they are read.
[[nodiscard]] std::span<const OptionRow> OptionRows(std::string_view section);

} // namespace zol
