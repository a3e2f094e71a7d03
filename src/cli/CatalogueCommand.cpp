// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "flosses/CatalogueCsv.h"
#include "model/SafeFile.h"

namespace zol {

namespace {

constexpr std::size_t largestCsv = 16'000'000;

std::string ReadCsv(const std::string& fileName) {
    if (fileName == "-") {
        const auto bytes = ReadStandardInput();
        if (bytes.size() > largestCsv) {
            throw CommandFailed("standard input is too large for a catalogue");
        }
        return {bytes.begin(), bytes.end()};
    }
    std::ifstream file(PathOf(fileName), std::ios::binary);
    std::string text(largestCsv + 1, '\0');
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    if (file.gcount() == 0 && !file.eof()) {
        throw CommandFailed(fileName + " cannot be read");
    }
    text.resize(static_cast<std::size_t>(file.gcount()));
    if (text.size() > largestCsv) {
        throw CommandFailed(fileName + " is too large for a catalogue");
    }
    return text;
}

/// The environment's date, so that two builds are equal, else that of the input.
std::int64_t DateOf(const std::string& fileName) {
    if (const char* epoch = std::getenv("SOURCE_DATE_EPOCH")) {
        if (const auto seconds = CommandLine::ParseInteger(epoch)) {
            return *seconds;
        }
        throw WrongUsage("SOURCE_DATE_EPOCH is no number of seconds");
    }
    if (fileName == "-") {
        throw WrongUsage("standard input has no date: set SOURCE_DATE_EPOCH");
    }
    using std::chrono::file_clock;
    const auto written = std::filesystem::last_write_time(PathOf(fileName));
    return std::chrono::duration_cast<std::chrono::seconds>(
               file_clock::to_sys(written).time_since_epoch())
        .count();
}

} // namespace

void RunCatalogue(Environment& environment, const CommandWords& words) {
    if (words.empty() || words[0] != "build") {
        throw WrongUsage("the command catalogue knows only \"build\"");
    }
    const CommandLine line(
        {words.begin() + 1, words.end()},
        {{"-o", true, "--output"}, {"--name", true}, {"--short-name", true}, {"--base-id", true}});
    line.ExpectFiles(1, 1);
    const std::string& input = line.Files()[0];
    const std::string output = line.Required("-o");
    const std::string name = line.Required("--name");
    const std::string shortName = line.Required("--short-name");
    (void)line.Required("--base-id");
    const auto baseID = line.Integer("--base-id", 0, INT32_MAX);
    const std::string table = ReadCsv(input);
    const auto bytes =
        BuildCatalogue(table, name, shortName, static_cast<std::int32_t>(baseID.value_or(0)),
                       CatalogueDate(DateOf(input)));
    WriteOutput(output, bytes);
    environment.Say(output, std::to_string(bytes.size()) + " bytes");
}

} // namespace zol
