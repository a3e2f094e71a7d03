// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "files/FileCommands.h"

#include <algorithm>
#include <new>
#include <system_error>
#include <utility>

#include "files/FileBusyScope.h"
#include "files/FileNameKind.h"
#include "files/PatternDesign.h"
#include "files/PatternOpener.h"
#include "grid/FileCommandTexts.h"
#include "model/CodePage.h"
#include "model/RunTimeError.h"
#include "model/SafeFile.h"

namespace zol {

namespace fs = std::filesystem;

namespace {

constexpr const char* NoSavedFolder = "*NONE*";

/// A size or count of the settings that can be used, else the built-in one.
int Usable(int value, int builtIn) {
    return value >= 1 && value <= MaxDialogSize ? value : builtIn;
}

bool IsFolder(const fs::path& path) {
    std::error_code error;
    return !path.empty() && fs::is_directory(path, error);
}

/// Makes `pattern` a new one as wanted. 0 or a run-time error number; after an error it is as it
/// was.
int InitializeAs(Pattern& pattern, const NewPattern& wanted) {
    try {
        pattern.Initialize(wanted.Width, wanted.Height, wanted.ClothCountX, wanted.ClothCountY);
    } catch (const RunTimeError& error) {
        return error.Number();
    } catch (const std::bad_alloc&) {
        return ErrOutOfMemory;
    }
    pattern.ClearFlags();
    pattern.ClearNoMapping();
    pattern.Title = wanted.Title;
    pattern.Author = wanted.Author;
    pattern.Copyright = wanted.Copyright;
    pattern.Fabric = wanted.Fabric;
    pattern.Instructions = wanted.Instructions;
    return ErrNone;
}

} // namespace

FileCommands::FileCommands(FileCommandsDesk desk) : m_desk(std::move(desk)) {
    m_openers.push_back(std::make_unique<PatternOpener>(m_desk.CurrentPattern));
    AddOpener(std::make_unique<UnreadFontOpener>());
}

void FileCommands::AddOpener(std::unique_ptr<DesignOpener> opener) {
    m_openers.insert(m_openers.begin(), std::move(opener));
}

DesignOpener& FileCommands::OpenerOf(const std::string& fileName) const {
    const std::string name = LowerCase(fileName);
    return **std::find_if(m_openers.begin(), m_openers.end(),
                          [&name](const auto& opener) { return opener->Takes(name); });
}

// --- What comes onto the grid -------------------------------------------------------------

void FileCommands::PutOnGrid(std::unique_ptr<OpenDesign> design) {
    m_desk.Open.Put(std::move(design));
    m_desk.UndoSteps.WatchOpenDesign();
    m_desk.UndoSteps.RefreshSnapshot();
    m_desk.View.ShowDesign();
    m_desk.View.SetWindowTitle(m_desk.Open.Get().WindowTitle());
    m_desk.View.ShowSummary(FileCommandTexts::Summary(m_desk.Open.Design()));
}

void FileCommands::PrepareColors(Pattern& pattern) const {
    if (m_desk.Context.RecolorPatterns) {
        RefreshFlossColors(pattern);
    }
    pattern.GetPalette().Sort(m_desk.Settings.PaletteSortOrder);
    // Colours that every open brings up to date are no change of the user's.
    pattern.SetChanged(false);
}

NewPattern FileCommands::Defaults() const {
    const Options& settings = m_desk.Settings;
    const NewPattern builtIn;
    NewPattern wanted;
    wanted.Width = Usable(settings.PatternWidth, builtIn.Width);
    wanted.Height = Usable(settings.PatternHeight, builtIn.Height);
    wanted.ClothCountX = Usable(settings.PatternClothCountX, builtIn.ClothCountX);
    wanted.ClothCountY = Usable(settings.PatternClothCountY, builtIn.ClothCountY);
    wanted.Title = settings.Title;
    wanted.Author = settings.Author;
    wanted.Copyright = settings.Copyright;
    wanted.Fabric = settings.Fabric;
    return wanted;
}

void FileCommands::PutUnsavedPattern() {
    PrepareColors(m_desk.CurrentPattern);
    PutOnGrid(std::make_unique<PatternDesign>(m_desk.CurrentPattern, std::string()));
}

void FileCommands::StartFresh() {
    m_desk.View.ResetTools();
    (void)InitializeAs(m_desk.CurrentPattern, Defaults());
    PutUnsavedPattern();
}

// --- Opening ------------------------------------------------------------------------------

int FileCommands::LoadPatternFile(const std::string& fileName, const std::string& displayName) {
    const FileBusyScope busy(m_desk.View);
    m_desk.View.ResetTools();
    DesignOpening opening =
        OpenerOf(fileName).Open(fileName, displayName.empty() ? fileName : displayName);
    if (opening.Result != ErrNone) {
        TellOpenFailure(fileName, opening);
        StartFresh();
        return 1;
    }
    PrepareColors(opening.Design->GetPattern());
    PutOnGrid(std::move(opening.Design));
    m_desk.ClearAutoSave();
    m_desk.AddToMRU(fileName);
    return 0;
}

void FileCommands::TellOpenFailure(const std::string& fileName, const DesignOpening& opening) {
    if (opening.AllTold) {
        return;
    }
    const std::string more =
        opening.More + "\n\nThe file stays as it is. A new pattern is on the grid now.";
    m_desk.Messages.TellMore(FileCommandTexts::OpenFailure(fileName, opening.Result), more,
                             MessageIcon::Exclamation, {});
}

bool FileCommands::New() {
    if (!CheckSave()) {
        return false;
    }
    const std::optional<NewPattern> wanted = m_desk.View.AskNewPattern(Defaults());
    if (!wanted) {
        return false;
    }
    m_desk.View.ResetTools();
    const int result = InitializeAs(m_desk.CurrentPattern, *wanted);
    if (result != ErrNone) {
        m_desk.Messages.TellMore(RunTimeErrorText(result), FileCommandTexts::SizeRefused,
                                 MessageIcon::Exclamation, {});
        return false;
    }
    PutUnsavedPattern();
    // The recovery file still holds the pattern that has been let go.
    m_desk.ClearAutoSave();
    return true;
}

bool FileCommands::Open() {
    if (!CheckSave()) {
        return false;
    }
    FileChoice choice;
    choice.Title = "Open Korvanta Pattern";
    choice.Filter = "Korvanta Pattern Files|*.PAT|Backup Pattern Files|*.bpt";
    choice.Folder =
        IsFolder(m_openFolder) ? m_openFolder : FilePlaces::PatternsFolder(m_desk.Context.AppPath);
    const std::optional<fs::path> file = m_desk.Files.AskOpenFile(choice);
    if (!file) {
        return false;
    }
    m_openFolder = file->parent_path();
    return LoadPatternFile(PathText(*file)) == 0;
}

bool FileCommands::OpenRecent(int index) {
    const std::string fileName = m_desk.RecentFile(index);
    return !fileName.empty() && CheckSave() && LoadPatternFile(fileName) == 0;
}

bool FileCommands::OpenDropped(const std::string& fileName) {
    if (!CanStandOnGrid(KindOfFileName(fileName)) || !OpenerOf(fileName).CanOpen()) {
        m_desk.Messages.TellMore(PathText(PathOf(fileName).filename()) +
                                     " cannot be opened on the grid.",
                                 "Patterns (.pat) and their backups (.bpt) can be dropped here. "
                                 "Your work stays as it is.",
                                 MessageIcon::Exclamation, {});
        return false;
    }
    return CheckSave() && LoadPatternFile(fileName) == 0;
}

// --- Recovery -----------------------------------------------------------------------------

DesignMakers FileCommands::RecoveryMakers() {
    DesignMakers makers;
    for (const std::unique_ptr<DesignOpener>& opener : m_openers) {
        if (!opener->CanOpen()) {
            continue;
        }
        makers.try_emplace(opener->Kind(), [this, &reader = *opener](const std::string& fileName,
                                                                     ByteReader& stream) {
            DesignOpening opening = reader.Recover(fileName, stream);
            if (opening.Design) {
                PrepareColors(opening.Design->GetPattern());
            }
            return std::move(opening.Design);
        });
    }
    return makers;
}

void FileCommands::ShowRecovered(std::unique_ptr<OpenDesign> design) {
    m_desk.View.ResetTools();
    design->GetPattern().SetChanged(true);
    PutOnGrid(std::move(design));
}

// --- Saving -------------------------------------------------------------------------------

bool FileCommands::CheckSave(bool leavingTextMode) {
    if (m_desk.View.IsInTextMode()) {
        if (!leavingTextMode &&
            m_desk.Messages.Ask(
                "You must exit text mode to continue.  Do you want to exit Text mode?",
                MessageIcon::Question, MessageButtons::YesNo, {}) != MessageAnswer::Yes) {
            return false;
        }
        m_desk.View.LeaveTextMode();
    }
    m_desk.View.SettleFloating();
    const OpenDesign& design = m_desk.Open.Get();
    if (!design.GetPattern().IsChanged()) {
        return true;
    }
    const OpenDesign::Question question = design.SaveQuestion();
    switch (m_desk.Messages.Ask(question.Text, MessageIcon::Question, MessageButtons::YesNoCancel,
                                question.Title)) {
    case MessageAnswer::Yes:
        return SaveBeforeLeaving();
    case MessageAnswer::No:
        return true;
    default:
        return false;
    }
}

bool FileCommands::SaveBeforeLeaving() {
    const OpenDesign& design = m_desk.Open.Get();
    // A browser puts files there and takes them away again: the work would go with them.
    const bool mayVanish = design.RecoveryKind() == 'P' &&
                           FilePlaces::IsBelow(PathOf(design.FileName()), m_desk.TempFolder);
    return mayVanish ? SaveAs() : Save();
}

bool FileCommands::MaySave() {
    if (m_desk.View.IsInTextMode()) {
        m_desk.Messages.Tell("You must exit Text mode before saving your pattern.",
                             MessageIcon::Exclamation, "Saving your pattern");
        return false;
    }
    m_desk.View.SettleFloating();
    const Pattern& pattern = m_desk.Open.Design();
    if (pattern.GetPatternWidth() < 1 || pattern.GetPatternHeight() < 1) {
        m_desk.Messages.TellMore("A pattern without squares cannot be saved.",
                                 "Undo brings the deleted rows or columns back. The file on disk "
                                 "stays as it is.",
                                 MessageIcon::Exclamation, {});
        return false;
    }
    return true;
}

bool FileCommands::IsSaved(int result) {
    if (result != ErrNone) {
        m_desk.Messages.TellMore(FileCommandTexts::SaveFailure(result),
                                 "The file on disk stays as it was, and your work is still open. "
                                 "Save As puts it into another place.",
                                 MessageIcon::Exclamation, {});
        return false;
    }
    // Only now: after a failure the recovery file may be all that a crash would leave.
    m_desk.ClearAutoSave();
    return true;
}

bool FileCommands::Save() {
    if (!MaySave()) {
        return false;
    }
    if (!m_desk.Open.Get().HasPlace()) {
        return SaveAs();
    }
    const FileBusyScope busy(m_desk.View);
    return IsSaved(m_desk.Open.Get().Save());
}

FileChoice FileCommands::SaveChoice() const {
    FileChoice choice;
    choice.Title = "Save Korvanta Pattern";
    choice.Filter = "Korvanta Pattern Files|*.pat";
    choice.DefaultExtension = "pat";
    const fs::path present = PathOf(m_desk.Open.Get().FileName());
    choice.SuggestedName = PathText(present.filename());
    choice.Folder = FilePlaces::PatternsFolder(m_desk.Context.AppPath);
    const std::string last = m_desk.Store.ReadSetting("Options", "LastPatSaveLoc", NoSavedFolder);
    const fs::path lastFolder = last == NoSavedFolder ? fs::path() : PathOf(last);
    for (const fs::path& folder : {lastFolder, present.parent_path()}) {
        if (IsFolder(folder)) {
            choice.Folder = folder;
        }
    }
    return choice;
}

bool FileCommands::SaveAs() {
    if (!MaySave()) {
        return false;
    }
    const std::optional<fs::path> file = m_desk.Files.AskSaveFile(SaveChoice());
    if (!file || !SaveUnder(*file)) {
        return false;
    }
    m_desk.Store.WriteSetting("Options", "LastPatSaveLoc", PathText(file->parent_path()));
    return true;
}

bool FileCommands::SaveUnder(const fs::path& fileName) {
    if (!MaySave()) {
        return false;
    }
    const FileBusyScope busy(m_desk.View);
    Pattern& pattern = m_desk.Open.Design();
    if (!IsSaved(pattern.Save(fileName))) {
        return false;
    }
    const std::string name = PathText(fileName);
    if (&pattern == &m_desk.CurrentPattern) {
        // A pattern of a library is a file of its own from now on.
        m_desk.Open.Put(std::make_unique<PatternDesign>(pattern, name));
    }
    m_desk.View.SetWindowTitle(m_desk.Open.Get().WindowTitle());
    m_desk.AddToMRU(name);
    return true;
}

} // namespace zol
