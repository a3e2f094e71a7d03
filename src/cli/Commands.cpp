// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "cli/Commands.h"

#include <array>

namespace zol {

namespace {

constexpr std::array commands{
    Command{"info", RunInfo, false, "info FILE [--json]", "what a file is and holds"},
    Command{"dump", RunDump, false, "dump FILE", "everything in a file as JSON"},
    Command{"edit", RunEdit, false, "edit [IN] --script OPS -o OUT [--dump]",
            "run an operation script on a pattern"},
    Command{"convert", RunConvert, false, "convert IN OUT", "write a pattern in another format"},
};

} // namespace

std::span<const Command> AllCommands() {
    return commands;
}

} // namespace zol
