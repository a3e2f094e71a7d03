// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <filesystem>
#include <optional>

#include "app/Arguments.h"
#include "grid/windows/Workshop.h"
#include "settings/INIFuncs.h"

namespace zol {

/// The doors of the program to its user; tests bring their own.
struct UserDoors {
    MessageDoor& Messages;
    FileDoor& Files;
    PrinterDoor& Printers;
    ScannerDoor& Scanners;
    basAutoSave::Clock Clock = &std::chrono::steady_clock::now; ///< what auto-save goes by
};

/// Owns what lives for the whole run: the settings, the one pattern, what stands open, undo,
/// recent files and auto-save. Windows borrow it.
class Program {
public:
    /// Finds the program's folder. Options are not read yet.
    Program(const Arguments& arguments, const UserDoors& doors);

    void LoadOptions();
    void LoadRecentFiles() { m_recentFiles.LoadMRU(); }
    /// The start pattern, 100 by 100 squares on the default cloth.
    void CreatePattern();
    [[nodiscard]] Workshop GetWorkshop();
    /// After the main window has gone: temporary files go too, recent files are stored.
    void End();

    [[nodiscard]] ProgramContext& Context() { return m_context; }
    [[nodiscard]] INIFuncs& Store() { return m_store; }
    [[nodiscard]] const Options& Settings() const { return m_options; }
    [[nodiscard]] Pattern& CurrentPattern() { return m_pattern; }
    [[nodiscard]] const UserDoors& Doors() const { return m_doors; }

private:
    UserDoors m_doors;
    ProgramContext m_context;
    INIFuncs m_store;
    Options m_options;
    RunFolder m_run;
    Pattern m_pattern;
    DesignHolder m_open;
    Undo m_steps;
    MRUFuncs m_recentFiles;
    basAutoSave m_autoSave;
};

} // namespace zol
