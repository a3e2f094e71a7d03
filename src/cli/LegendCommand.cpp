// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "print/RtfLegend.h"

namespace zol {

void RunLegend(Environment& environment, const CommandWords& words) {
    const CommandLine line(words, {{"-o", true, "--output"}});
    line.ExpectFiles(1, 1);
    const std::string output = line.Required("-o");
    Pattern pattern(environment.Context());
    environment.LoadPattern(pattern, line.Files()[0]);
    const std::string legend = RtfLegend::Write(pattern, PrintOptionsOf(environment.GetOptions()));
    WriteOutput(output, {reinterpret_cast<const std::uint8_t*>(legend.data()), legend.size()});
}

} // namespace zol
