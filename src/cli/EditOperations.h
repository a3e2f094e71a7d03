// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "cli/EditScript.h"

namespace zol {

/// One operation of a script by its name.
struct EditOperation {
    std::string_view Name;
    void (*Run)(EditScript& script, EditScript::Arguments& arguments);
};

/// The operation of that name, or null.
[[nodiscard]] const EditOperation* FindEditOperation(std::string_view name);

} // namespace zol
