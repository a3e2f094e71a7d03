// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "flosses/AvailColors.h"
#include "flosses/Palette.h"
#include "model/Doors.h"
#include "model/Pattern.h"
#include "model/ProgramContext.h"
#include "settings/INIFuncs.h"
#include "settings/Options.h"

namespace zol {

/// Keeps what would stand in message boxes: the last of them becomes the line on standard error.
class LastMessage : public MessageDoor {
public:
    void Tell(const std::string& text, MessageIcon icon, const std::string& title) override;
    /// Nobody is there to answer, so every question is declined.
    MessageAnswer Ask(const std::string& text, MessageIcon icon, MessageButtons buttons,
                      const std::string& title) override;
    [[nodiscard]] const std::string& Text() const { return m_text; }
    void Clear() { m_text.clear(); }

private:
    std::string m_text;
};

/// A line on standard error that is rewritten, when that is a terminal.
class TerminalProgress : public ProgressDoor {
public:
    explicit TerminalProgress(bool quiet);
    void StartStatus(const std::string& text, int maximum) override;
    void UpdateStatus(int value) override;
    void StopStatus() override;
    bool MayGoOn() override { return true; }

private:
    bool m_shown;
    std::string m_text;
    int m_maximum = 0;
    int m_lastPercent = -1;
};

/// Gives a new floss the first free symbol, as nobody can be asked.
class FirstFreeSymbol : public SymbolDoor {
public:
    std::optional<std::string> ChooseSymbol(const Palette& palette) override;
};

/// What is said before the command.
struct GlobalOptions {
    std::filesystem::path AppPath; ///< empty: found as the window program finds it
    std::filesystem::path Settings;
    bool Quiet = false;
};

/// The running program as the command line brings it: settings, options, doors and context.
class Environment {
public:
    explicit Environment(const GlobalOptions& global);

    [[nodiscard]] ProgramContext& Context() { return m_context; }
    [[nodiscard]] const Options& GetOptions() const { return m_options; }
    /// A line about the output that was written, for people; nothing with --quiet, nor where the
    /// output itself went to standard output.
    void Say(const std::string& output, const std::string& text) const;

    /// Throws CommandFailed with the words that a window would show last. "-" reads standard
    /// input.
    void LoadPattern(Pattern& pattern, const std::string& fileName);
    /// Throws CommandFailed; old-form palettes count as loaded.
    [[nodiscard]] Palette LoadPalette(const std::string& fileName);
    [[nodiscard]] AvailColors LoadCatalogue(const std::string& fileName);
    /// "-" writes to standard output.
    void SavePattern(Pattern& pattern, const std::string& fileName);

private:
    LastMessage m_messages;
    TerminalProgress m_progress;
    FirstFreeSymbol m_symbols;
    std::unique_ptr<INIFuncs> m_store;
    ProgramContext m_context;
    Options m_options;
    bool m_quiet;
};

/// All of standard input.
[[nodiscard]] std::vector<std::uint8_t> ReadStandardInput();
/// Writes a whole file, or to standard output for "-". Throws CommandFailed.
void WriteOutput(const std::string& fileName, std::span<const std::uint8_t> bytes);

} // namespace zol
