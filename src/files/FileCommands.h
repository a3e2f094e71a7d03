// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "files/DesignOpener.h"
#include "files/FileCommandsView.h"
#include "files/FilePlaces.h"
#include "grid/tools/Undo.h"
#include "model/Doors.h"
#include "model/OpenDesign.h"
#include "settings/Options.h"
#include "settings/basAutoSave.h"

namespace zol {

/// What the file commands work with; all of it outlives them.
struct FileCommandsDesk {
    DesignHolder& Open;
    Pattern& CurrentPattern; ///< the program's one pattern, which every pattern file refills
    ProgramContext& Context;
    const Options& Settings;
    SettingsDoor& Store;
    MessageDoor& Messages;
    FileDoor& Files;
    Undo& UndoSteps;
    FileCommandsView& View;
    std::function<void(const std::string& path)> AddToMRU;
    std::function<std::string(int index)> RecentFile; ///< from 0; empty if there is none
    std::function<void()> ClearAutoSave;              ///< removes this run's recovery file
    /// What lies below it may vanish at any time.
    std::filesystem::path TempFolder = FilePlaces::SystemTempFolder();
};

/// The commands that open, save and close designs: the one road by which a file reaches the grid
/// and the question before anything that would lose changes. Every command answers whether it was
/// carried out; false means cancelled or failed, and the user has then been told.
class FileCommands {
public:
    explicit FileCommands(FileCommandsDesk desk);

    /// Adds a kind of file; it is asked before those that are there.
    void AddOpener(std::unique_ptr<DesignOpener> opener);

    /// Puts a fresh pattern of the default size, without a file, onto the grid. Asks nothing.
    void StartFresh();
    /// Opens a file without a question. 0, or 1 after a failure: then a fresh pattern stands on
    /// the grid and the user has been told. Without `displayName` the title shows `fileName`.
    int LoadPatternFile(const std::string& fileName, const std::string& displayName = {});
    /// Whether what stands open may go: its changes are saved, unwanted, or there are none.
    /// `leavingTextMode`: the caller has already asked about the text in progress.
    [[nodiscard]] bool CheckSave(bool leavingTextMode = false);

    bool New();
    bool Open();
    bool Save();
    bool SaveAs();
    /// `index` from 0 in the list of recent files.
    bool OpenRecent(int index);
    /// A file that was dropped onto the window. Kinds that cannot stand on the grid are told.
    bool OpenDropped(const std::string& fileName);
    /// Saves what stands open as a pattern file of that name, which it then goes by.
    bool SaveUnder(const std::filesystem::path& fileName);
    /// What reads recovery files, by kind. They fill the program's one pattern where that is what
    /// they are of; after damage what stood open stays, and the user has been told.
    [[nodiscard]] DesignMakers RecoveryMakers();
    /// Puts recovered work onto the grid; it counts as changed.
    void ShowRecovered(std::unique_ptr<OpenDesign> design);

private:
    [[nodiscard]] DesignOpener& OpenerOf(const std::string& fileName) const;
    void TellOpenFailure(const std::string& fileName, const DesignOpening& opening);
    [[nodiscard]] bool MaySave();
    [[nodiscard]] bool SaveBeforeLeaving();
    [[nodiscard]] bool IsSaved(int result);
    [[nodiscard]] NewPattern Defaults() const;
    void PutUnsavedPattern();
    void PrepareColors(Pattern& pattern) const;
    void PutOnGrid(std::unique_ptr<OpenDesign> design);
    [[nodiscard]] FileChoice SaveChoice() const;

    FileCommandsDesk m_desk;
    std::vector<std::unique_ptr<DesignOpener>> m_openers;
    std::filesystem::path m_openFolder; ///< where the open dialog was; empty before the first
};

} // namespace zol
