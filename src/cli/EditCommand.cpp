// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <fstream>
#include <iostream>
#include <iterator>

#include "cli/CanonicalJson.h"
#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "cli/EditScript.h"
#include "model/SafeFile.h"

namespace zol {

namespace {

std::string ReadScript(const std::string& fileName) {
    if (fileName == "-") {
        const auto bytes = ReadStandardInput();
        return {bytes.begin(), bytes.end()};
    }
    std::ifstream file(PathOf(fileName), std::ios::binary);
    if (!file) {
        throw CommandFailed("the script " + fileName + " cannot be read");
    }
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// What a script starts on when it is given no pattern.
void StartAfresh(Pattern& pattern) {
    constexpr int size = 100;
    constexpr int clothCount = 14;
    pattern.Initialize(size, size, clothCount, clothCount);
}

/// Each standard stream can carry one thing.
void CheckStreams(const CommandLine& line, const std::string& script, const std::string& output) {
    if (script == "-" && !line.Files().empty() && line.Files()[0] == "-") {
        throw WrongUsage("pattern and script cannot both come from standard input");
    }
    if (output == "-" && line.Has("--dump")) {
        throw WrongUsage("pattern and --dump cannot both go to standard output");
    }
}

} // namespace

void RunEdit(Environment& environment, const CommandWords& words) {
    const CommandLine line(words, {{"--script", true}, {"-o", true, "--output"}, {"--dump"}});
    line.ExpectFiles(0, 1);
    const std::string scriptName = line.Required("--script");
    const std::string output = line.Required("-o");
    CheckStreams(line, scriptName, output);
    const std::string script = ReadScript(scriptName);

    if (line.Files().empty()) {
        // A pattern takes the makers of the flosses that it is made with, so before it is.
        environment.Context().StartupPalette.reset();
    }
    Pattern pattern(environment.Context());
    if (line.Files().empty()) {
        StartAfresh(pattern);
    } else {
        environment.LoadPattern(pattern, line.Files()[0]);
    }
    EditScript(pattern).Run(script);
    environment.SavePattern(pattern, output);
    if (line.Has("--dump")) {
        CanonicalJson::WritePattern(std::cout, pattern);
    }
}

void RunConvert(Environment& environment, const CommandWords& words) {
    const CommandLine line(words, {});
    line.ExpectFiles(2, 2);
    const std::string& output = line.Files()[1];
    const std::string name = LowerCase(output);
    const bool known =
        output == "-" || name.ends_with(".pat") || name.ends_with(".bpt") || name.ends_with(".cxs");
    if (!known) {
        throw CommandFailed("no pattern format is known by the ending of " + output);
    }
    Pattern pattern(environment.Context());
    environment.LoadPattern(pattern, line.Files()[0]);
    environment.SavePattern(pattern, output);
}

} // namespace zol
