// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zol {

/// What the program was called with.
struct Arguments {
    std::filesystem::path Settings; ///< a settings file other than the user's own
    std::filesystem::path AppPath;  ///< a program folder other than the one that is found
    std::string CommandLine;        ///< the rest, as one text: the name of a file, or a wish
    bool WantsHelp = false;
    bool WantsVersion = false;
    std::string Fault; ///< what cannot be understood; empty if all is well
};

/// Reads the arguments behind the program's name. Those of the window system, which takes them
/// away when it starts, are no fault.
[[nodiscard]] Arguments ReadArguments(const std::vector<std::string>& words);
[[nodiscard]] std::string HelpText();

} // namespace zol
