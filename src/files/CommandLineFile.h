// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

#include "files/FileCommands.h"
#include "model/Doors.h"

namespace zol {

/// The text of the program's command line, read as the name of one file.
namespace CommandLineText {

/// "-PATTERNVIEWER" in any case: another program is wanted in place of this one.
[[nodiscard]] bool WantsPatternViewer(const std::string& text);
/// The name without the quotes and the blanks around it.
[[nodiscard]] std::string FileNameOf(const std::string& text);
/// "%20" becomes a blank, and the bracketed number that browsers add goes: the text from the last
/// "[" to the "]." before the ending. The point stays. "a%20b[2].pat" becomes "a b.pat".
[[nodiscard]] std::string CleanFileName(const std::string& name);
/// The name without its folder.
[[nodiscard]] std::string FileNameOnly(const std::string& name);

} // namespace CommandLineText

/// Opens the file that was named when the program was started.
class CommandLineFile {
public:
    enum class Outcome : std::uint8_t {
        Nothing,   ///< no file was named
        NotFound,  ///< told; the start pattern stands
        Installed, ///< an add-on that does not come onto the grid
        Failed,    ///< told; a fresh pattern stands
        Loaded,
    };
    /// Brings an add-on file into the program's folders. Told to the user by the installer.
    using Installer = std::function<void(const std::string& fileName)>;

    /// Without an installer add-ons get a message that they cannot be installed.
    CommandLineFile(FileCommands& commands, MessageDoor& messages, std::filesystem::path appPath,
                    Installer installer = {});

    /// Relative names are of the current folder.
    Outcome Run(const std::string& text);

private:
    Outcome OpenFile(const std::filesystem::path& path, bool isNewFile);
    void Install(const std::string& fileName);
    void SaveNewFile(const std::filesystem::path& path);

    FileCommands& m_commands;
    MessageDoor& m_messages;
    std::filesystem::path m_appPath;
    Installer m_installer;
};

} // namespace zol
