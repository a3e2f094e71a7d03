// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "cli/Environment.h"

#include <unistd.h>

#include <QCoreApplication>

#include <array>
#include <cstdio>
#include <iostream>

#include "cli/CommandLine.h"
#include "flosses/AvailColors.h"
#include "grid/FileCommandTexts.h"
#include "model/RunTimeError.h"
#include "model/SafeFile.h"
#include "settings/AppPath.h"
#include "settings/basOptions.h"

namespace zol {

void LastMessage::Tell(const std::string& text, MessageIcon /*icon*/,
                       const std::string& /*title*/) {
    m_text = text;
}

MessageAnswer LastMessage::Ask(const std::string& text, MessageIcon /*icon*/,
                               MessageButtons buttons, const std::string& /*title*/) {
    m_text = text;
    return buttons == MessageButtons::Ok ? MessageAnswer::Ok : MessageAnswer::No;
}

TerminalProgress::TerminalProgress(bool quiet) : m_shown(!quiet && ::isatty(STDERR_FILENO) == 1) {}

void TerminalProgress::StartStatus(const std::string& text, int maximum) {
    m_text = text;
    m_maximum = maximum;
    m_lastPercent = -1;
    UpdateStatus(0);
}

void TerminalProgress::UpdateStatus(int value) {
    if (!m_shown || m_maximum <= 0) {
        return;
    }
    const int percent = static_cast<int>(std::int64_t{value} * 100 / m_maximum);
    if (percent != m_lastPercent) {
        m_lastPercent = percent;
        std::cerr << "\r" << m_text << " " << percent << " %" << std::flush;
    }
}

void TerminalProgress::StopStatus() {
    if (m_shown) {
        std::cerr << "\r\033[K" << std::flush;
    }
}

std::optional<std::string> FirstFreeSymbol::ChooseSymbol(const Palette& palette) {
    return palette.GetNextAvailableSymbol();
}

Environment::Environment(const GlobalOptions& global)
    : m_progress(global.Quiet),
      m_store(global.Settings.empty() ? std::make_unique<INIFuncs>(&m_messages)
                                      : std::make_unique<INIFuncs>(global.Settings, &m_messages)),
      m_quiet(global.Quiet) {
    m_context.Messages = &m_messages;
    m_context.Progress = &m_progress;
    m_context.Symbols = &m_symbols;
    if (global.AppPath.empty()) {
        const auto program = PathOf(QCoreApplication::applicationDirPath().toStdString());
        m_context.AppPath = AppPath::Resolve(program, program / ".." / "share" / "korvanta",
                                             AppPath::UserDataFolder());
    } else {
        m_context.AppPath = global.AppPath;
    }
    m_options = basOptions::LoadOptions(*m_store, m_context);
    LoadStartupPalette(m_context);
    // A batch run leaves colours as the file has them.
    m_context.RecolorPatterns = false;
}

void Environment::Say(const std::string& output, const std::string& text) const {
    if (!m_quiet && output != "-") {
        std::cout << output << ": " << text << '\n';
    }
}

// What was told before, at the start for one, is no word about the file that comes now.

void Environment::LoadPattern(Pattern& pattern, const std::string& fileName) {
    m_messages.Clear();
    int result = 0;
    if (fileName == "-") {
        const auto bytes = ReadStandardInput();
        ByteReader stream(bytes);
        result = pattern.Load("-", stream, 0, 0);
    } else {
        result = pattern.Load(PathOf(fileName));
    }
    if (result != 0) {
        throw CommandFailed(FileCommandTexts::OpenFailure(fileName, result), m_messages.Text());
    }
    pattern.GetPalette().Sort(m_options.PaletteSortOrder);
}

Palette Environment::LoadPalette(const std::string& fileName) {
    m_messages.Clear();
    std::error_code error;
    if (!std::filesystem::is_regular_file(PathOf(fileName), error)) {
        throw CommandFailed(fileName + " cannot be read", RunTimeErrorText(ErrFileNotFound));
    }
    Palette palette = Palette::Empty(m_context);
    const bool loaded = palette.LoadFromDisk(PathOf(fileName));
    const std::string told = m_messages.Text();
    // The oldest form is loaded and yet answered with a failure, without a word.
    const bool oldForm = !loaded && told.empty() && palette.GetEntriesCount() > 0 &&
                         std::filesystem::file_size(PathOf(fileName), error) % 37 == 0;
    if (!loaded && !oldForm) {
        throw CommandFailed(told.empty() ? fileName + " is no palette that can be read"
                                         : told + " (" + fileName + ")");
    }
    palette.Sort(m_options.PaletteSortOrder);
    return palette;
}

AvailColors Environment::LoadCatalogue(const std::string& fileName) {
    AvailColors catalogue(m_context);
    // A name without a folder would be looked for among the program's own catalogues.
    if (!catalogue.Initialize(std::filesystem::absolute(PathOf(fileName)))) {
        throw CommandFailed(fileName + " is no catalogue that can be read");
    }
    return catalogue;
}

void Environment::SavePattern(Pattern& pattern, const std::string& fileName) {
    m_messages.Clear();
    int result = 0;
    if (fileName == "-") {
        ByteWriter stream;
        result = pattern.Save("-", stream, 0);
        if (result == 0) {
            WriteOutput("-", stream.Bytes());
        }
    } else {
        result = pattern.Save(PathOf(fileName));
    }
    if (result != 0) {
        throw CommandFailed(FileCommandTexts::SaveFailure(result), m_messages.Text());
    }
}

std::vector<std::uint8_t> ReadStandardInput() {
    std::vector<std::uint8_t> bytes;
    std::array<std::uint8_t, 65536> part{};
    std::size_t got = 0;
    while ((got = std::fread(part.data(), 1, part.size(), stdin)) > 0) {
        bytes.insert(bytes.end(), part.begin(), part.begin() + static_cast<std::ptrdiff_t>(got));
    }
    return bytes;
}

void WriteOutput(const std::string& fileName, std::span<const std::uint8_t> bytes) {
    if (fileName == "-") {
        const bool written = std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() &&
                             std::fflush(stdout) == 0;
        if (!written) {
            throw CommandFailed("standard output cannot be written");
        }
        return;
    }
    const int result = SafeFile::Replace(PathOf(fileName), bytes);
    if (result != 0) {
        throw CommandFailed(fileName + " cannot be written", RunTimeErrorText(result));
    }
}

} // namespace zol
