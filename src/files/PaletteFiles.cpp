// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "files/PaletteFiles.h"

#include <algorithm>
#include <string>
#include <utility>

#include "model/CodePage.h"
#include "model/Pattern.h"
#include "model/RunTimeError.h"
#include "model/SafeFile.h"

namespace zol {

namespace {

namespace fs = std::filesystem;

constexpr const char* LoadTitle = "Load a Floss Palette";
constexpr const char* DefaultFile = "Default.fls";
constexpr const char* Kept = "The palette of your pattern stays as it is.";

/// Passes messages on and remembers whether there were any.
class ListeningDoor : public MessageDoor {
public:
    explicit ListeningDoor(ProgramContext& context)
        : m_context(context),
          m_door(std::exchange(context.Messages, this)) {}
    ~ListeningDoor() override { m_context.Messages = m_door; }
    ListeningDoor(const ListeningDoor&) = delete;
    ListeningDoor& operator=(const ListeningDoor&) = delete;

    void Tell(const std::string& text, MessageIcon icon, const std::string& title) override {
        HasTold = true;
        if (m_door != nullptr) {
            m_door->TellMore(text, Kept, icon, title);
        }
    }
    MessageAnswer Ask(const std::string& text, MessageIcon icon, MessageButtons buttons,
                      const std::string& title) override {
        return m_door != nullptr ? m_door->Ask(text, icon, buttons, title) : MessageAnswer::Cancel;
    }

    bool HasTold = false;

private:
    ProgramContext& m_context;
    MessageDoor* m_door;
};

} // namespace

bool PaletteFiles::IsWithoutStitches(const Pattern& design) {
    const auto& cells = design.Cells();
    return design.GetBackStitchCount() == 0 && design.DupStitches().Count() == 0 &&
           design.FrenchKnots().Count() == 0 &&
           std::all_of(cells.begin(), cells.end(),
                       [](const StitchCell& cell) { return cell.StitchType == NoStitch; });
}

FileChoice PaletteFiles::Choice(const char* title) const {
    FileChoice choice;
    choice.Title = title;
    choice.Filter = "Korvanta Floss Palettes (*.FLS)|*.fls";
    choice.Folder = m_folder.empty() ? m_desk.Context.AppPath : m_folder;
    choice.DefaultExtension = "fls";
    return choice;
}

bool PaletteFiles::SaveTo(const fs::path& file) {
    const int result = m_desk.Open.Design().GetPalette().SaveToDisk(file);
    if (result != 0) {
        m_desk.Messages.TellMore("error saving palette: " + std::to_string(result),
                                 "The palette stays in your pattern. Choose another place for the "
                                 "file, or make room there.",
                                 MessageIcon::Exclamation, {});
    }
    return result == 0;
}

bool PaletteFiles::SavePalette() {
    const auto file = m_desk.Files.AskSaveFile(Choice("Save Floss Palette"));
    if (!file) {
        return false;
    }
    m_folder = file->parent_path();
    return SaveTo(*file);
}

bool PaletteFiles::SaveDefaultPalette() {
    if (!SaveTo(SafeFile::FindIgnoringCase(m_desk.Context.AppPath, DefaultFile))) {
        return false;
    }
    LoadStartupPalette(m_desk.Context);
    return true;
}

std::optional<Palette> PaletteFiles::ReadPalette(const fs::path& file) const {
    Palette loaded = Palette::Empty(m_desk.Context);
    const bool answer = [&] {
        ListeningDoor door(m_desk.Context);
        const bool success = loaded.LoadFromDisk(file);
        if (!success && loaded.GetEntriesCount() == 0 && !door.HasTold) {
            door.Tell("Invalid File Format", MessageIcon::Exclamation, LoadTitle);
        }
        return success;
    }();
    if (loaded.GetEntriesCount() == 0) {
        if (answer) {
            m_desk.Messages.TellMore("Your palette must contain at least one " +
                                         LowerCase(m_desk.Context.ColorWord()),
                                     Kept, MessageIcon::Information, LoadTitle);
        }
        return std::nullopt;
    }
    if (loaded.GetEntriesCount() > Palette::MostFlosses) {
        m_desk.Messages.TellMore(RunTimeErrorText(ErrOverflow),
                                 "The file holds " + std::to_string(loaded.GetEntriesCount()) +
                                     " flosses; a pattern takes at most " +
                                     std::to_string(Palette::MostFlosses) + ". " + Kept,
                                 MessageIcon::Exclamation, LoadTitle);
        return std::nullopt;
    }
    // A palette of the oldest form is loaded and answered with false all the same.
    loaded.Sort(m_desk.Settings.PaletteSortOrder);
    return loaded;
}

bool PaletteFiles::LoadPalette() {
    if (!IsWithoutStitches(m_desk.Open.Design())) {
        m_desk.Messages.TellMore(
            "You cannot load a new palette unless there are no stitches set.",
            "Your stitches and their palette stay as they are. Begin a new pattern to load one.",
            MessageIcon::Exclamation, LoadTitle);
        return false;
    }
    const auto file = m_desk.Files.AskOpenFile(Choice(LoadTitle));
    if (!file) {
        return false;
    }
    m_folder = file->parent_path();
    std::optional<Palette> palette = ReadPalette(*file);
    if (!palette) {
        return false;
    }
    Pattern& design = m_desk.Open.Design();
    const UndoStep step(m_desk.Steps, UndoKind::Snapshot, "Load Palette");
    design.GetPalette() = std::move(*palette);
    design.SetChanged(true);
    return true;
}

} // namespace zol
