// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zol {

class Palette;
class Pattern;
class ProgressDoor;

enum class MessageIcon { None, Information, Question, Exclamation, Stop };
enum class MessageButtons { Ok, YesNo, YesNoCancel };
enum class MessageAnswer { Ok, Yes, No, Cancel };

/// The way to the user for an operation that must tell or ask half-way and then go on. Everything
/// else is a result that the caller words.
class MessageDoor {
public:
    virtual ~MessageDoor() = default;
    virtual void Tell(const std::string& text, MessageIcon icon, const std::string& title) = 0;
    /// The same with what was kept and what to do, which stands below the message.
    virtual void TellMore(const std::string& text, const std::string& /*more*/, MessageIcon icon,
                          const std::string& title) {
        Tell(text, icon, title);
    }
    /// Cancel if the question is left without an answer, also one of yes and no alone.
    [[nodiscard]] virtual MessageAnswer Ask(const std::string& text, MessageIcon icon,
                                            MessageButtons buttons, const std::string& title) = 0;
};

/// A small picture of a file that may be chosen: rows from the top, pixels 0x00BBGGRR.
struct FilePreview {
    int Width = 0;
    int Height = 0;
    std::vector<std::uint32_t> Pixels; ///< empty if there is no picture
    std::string Words;                 ///< what else is to be said of the file
};

/// What a dialog for a file's name is asked with.
struct FileChoice {
    std::string Title;
    std::string Filter; ///< "Words|*.PAT|Other words|*.bpt"; letters' case does not count
    std::filesystem::path Folder;
    std::string SuggestedName;
    /// Without the point; what a name is given that has none. Where the filter has several kinds,
    /// the kind that stands chosen gives it, this for the first one, also behind an unknown ending.
    std::string DefaultExtension;
    /// Called on other threads for files that the user looks at; the door is the call's own.
    std::function<FilePreview(const std::filesystem::path&, ProgressDoor&)> Preview = {};
};

/// Lets the user choose a file. Nothing means that the user cancelled.
class FileDoor {
public:
    virtual ~FileDoor() = default;
    [[nodiscard]] virtual std::optional<std::filesystem::path>
    AskOpenFile(const FileChoice& choice) = 0;
    /// Asks before a file that exists would be replaced.
    [[nodiscard]] virtual std::optional<std::filesystem::path>
    AskSaveFile(const FileChoice& choice) = 0;
};

/// Progress of long work. MayGoOn is asked at fixed points; there a window lets events through.
class ProgressDoor {
public:
    virtual ~ProgressDoor() = default;
    virtual void StartStatus(const std::string& text, int maximum) = 0;
    virtual void UpdateStatus(int value) = 0;
    virtual void StopStatus() = 0;
    /// False once the user has cancelled.
    [[nodiscard]] virtual bool MayGoOn() = 0;
};

/// Asks for the symbol of a new palette entry. Nothing means that the user cancelled.
class SymbolDoor {
public:
    virtual ~SymbolDoor() = default;
    /// `palette` does not hold the new entry yet. The answer's first character is the symbol.
    [[nodiscard]] virtual std::optional<std::string> ChooseSymbol(const Palette& palette) = 0;
};

/// Told of each square just before it changes. Owned by the undo machinery; the pattern only
/// holds a pointer and the on/off flag.
class UndoRecorder {
public:
    virtual ~UndoRecorder() = default;
    virtual void RecordSquare(const Pattern& pattern, int x, int y) = 0;
};

/// Text values by section and name.
class SettingsDoor {
public:
    virtual ~SettingsDoor() = default;
    [[nodiscard]] virtual std::string ReadSetting(const std::string& section,
                                                  const std::string& name,
                                                  const std::string& defaultValue) const = 0;
    virtual void WriteSetting(const std::string& section, const std::string& name,
                              const std::string& value) = 0;
};

} // namespace zol
