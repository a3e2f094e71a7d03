// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Environment.h"

namespace zol {

/// The words behind the command's name.
using CommandWords = std::vector<std::string>;

// Each command does its work or throws CommandFailed or WrongUsage.
void RunInfo(Environment& environment, const CommandWords& words);
void RunDump(Environment& environment, const CommandWords& words);
void RunEdit(Environment& environment, const CommandWords& words);
void RunConvert(Environment& environment, const CommandWords& words);
void RunImport(Environment& environment, const CommandWords& words);
void RunChart(Environment& environment, const CommandWords& words);
void RunRender(Environment& environment, const CommandWords& words);
void RunUsage(Environment& environment, const CommandWords& words);
void RunLegend(Environment& environment, const CommandWords& words);
void RunCatalogue(Environment& environment, const CommandWords& words);

struct Command {
    std::string_view Name;
    void (*Run)(Environment& environment, const CommandWords& words);
    bool Paints; ///< needs a GUI application object for its fonts
    std::string_view Usage;
    std::string_view Summary;
};

/// Every command in the order in which the help lists them.
[[nodiscard]] std::span<const Command> AllCommands();

} // namespace zol
