// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "files/CommandLineFile.h"

#include <algorithm>
#include <optional>
#include <system_error>
#include <utility>

#include "files/FileNameKind.h"
#include "files/FilePlaces.h"
#include "model/CodePage.h"
#include "model/SafeFile.h"

namespace zol {

namespace fs = std::filesystem;

namespace {

constexpr const char* Blanks = " \t\r\n";

bool IsFile(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error) && !fs::is_directory(path, error);
}

fs::path Absolute(const std::string& name) {
    std::error_code error;
    fs::path path = fs::absolute(PathOf(name), error);
    return error ? PathOf(name) : path;
}

/// The first of the ten names "rose[1].pat" to "rose[10].pat" that nobody has.
std::optional<fs::path> FreeNameBeside(const fs::path& path) {
    const std::string base = PathText(path.stem());
    for (int number = 1; number <= 10; ++number) {
        fs::path candidate =
            path.parent_path() / PathOf(base + "[" + std::to_string(number) + "].pat");
        std::error_code error;
        if (!fs::exists(candidate, error)) {
            return candidate;
        }
    }
    return std::nullopt;
}

} // namespace

namespace CommandLineText {

bool WantsPatternViewer(const std::string& text) {
    return UpperCase(Trimmed(text)) == "-PATTERNVIEWER";
}

std::string FileNameOf(const std::string& text) {
    const std::size_t first = text.find_first_not_of(Blanks);
    if (first == std::string::npos) {
        return {};
    }
    if (text[first] == '"') {
        const std::size_t end = std::min(text.find('"', first + 1), text.size());
        return text.substr(first + 1, end - first - 1);
    }
    return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

std::string CleanFileName(const std::string& name) {
    std::string clean = name;
    for (std::size_t at = clean.find("%20"); at != std::string::npos;
         at = clean.find("%20", at + 1)) {
        clean.replace(at, 3, " ");
    }
    const std::size_t open = clean.rfind('[');
    const std::size_t close = clean.rfind("].");
    const bool beforeTheEnding = open != std::string::npos && close != std::string::npos &&
                                 open < close &&
                                 clean.find_first_of("./", close + 2) == std::string::npos;
    if (beforeTheEnding) {
        clean.erase(open, close + 1 - open);
    }
    return clean;
}

std::string FileNameOnly(const std::string& name) {
    return name.substr(name.rfind('/') + 1);
}

} // namespace CommandLineText

CommandLineFile::CommandLineFile(FileCommands& commands, MessageDoor& messages, fs::path appPath,
                                 Installer installer)
    : m_commands(commands),
      m_messages(messages),
      m_appPath(std::move(appPath)),
      m_installer(std::move(installer)) {}

CommandLineFile::Outcome CommandLineFile::Run(const std::string& text) {
    const std::string given = CommandLineText::FileNameOf(text);
    if (given.empty() || CommandLineText::WantsPatternViewer(text)) {
        return Outcome::Nothing;
    }
    fs::path path = Absolute(given);
    const bool isNewFile = !IsFile(path);
    if (isNewFile) {
        const std::string name =
            CommandLineText::FileNameOnly(CommandLineText::CleanFileName(given));
        const fs::path folder = FilePlaces::PatternsFolder(m_appPath);
        path = SafeFile::FindIgnoringCase(folder, name);
        if (!IsFile(path)) {
            m_messages.TellMore(name + " Not Found.",
                                "Looked for " + given + " and in " + PathText(folder) + ".",
                                MessageIcon::Stop, {});
            return Outcome::NotFound;
        }
    }
    return OpenFile(path, isNewFile);
}

CommandLineFile::Outcome CommandLineFile::OpenFile(const fs::path& path, bool isNewFile) {
    const std::string fileName = PathText(path);
    if (IsAddOn(fileName)) {
        Install(fileName);
        if (KindOfFileName(fileName) == FileNameKind::Library) {
            return Outcome::Installed;
        }
    }
    if (m_commands.LoadPatternFile(fileName) != 0) {
        return Outcome::Failed;
    }
    if (isNewFile) {
        SaveNewFile(path);
    }
    return Outcome::Loaded;
}

void CommandLineFile::Install(const std::string& fileName) {
    if (m_installer) {
        m_installer(fileName);
    } else if (KindOfFileName(fileName) == FileNameKind::Library) {
        // Of a stitched font the road onto the grid says that it cannot be read.
        m_messages.TellMore(fileName + " cannot be installed",
                            "It is a pattern library, and this release cannot install pattern "
                            "libraries. The file stays as it is.",
                            MessageIcon::Exclamation, {});
    }
}

void CommandLineFile::SaveNewFile(const fs::path& path) {
    const std::string name = PathText(path.filename());
    if (!IsFile(path) ||
        m_messages.Ask(name + " already exists.  Do you want to replace it?", MessageIcon::Question,
                       MessageButtons::YesNo, {}) == MessageAnswer::Yes) {
        (void)m_commands.SaveUnder(path);
        return;
    }
    if (const std::optional<fs::path> free = FreeNameBeside(path)) {
        (void)m_commands.SaveUnder(*free);
        return;
    }
    m_messages.TellMore("No free name for " + name,
                        "All the names from [1] to [10] are taken, so nothing was saved. Save As "
                        "puts the pattern under a name of your own.",
                        MessageIcon::Exclamation, {});
}

} // namespace zol
