// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "app/Program.h"

#include <QCoreApplication>
#include <QFontDatabase>

#include "files/PatternDesign.h"
#include "flosses/Palette.h"
#include "model/SafeFile.h"
#include "settings/AppPath.h"
#include "settings/basOptions.h"

namespace zol {

namespace {

std::filesystem::path FindAppPath(const Arguments& arguments) {
    if (!arguments.AppPath.empty()) {
        return arguments.AppPath;
    }
    const auto program = PathOf(QCoreApplication::applicationDirPath().toStdString());
    return AppPath::Resolve(program, program / ".." / "share" / "korvanta",
                            AppPath::UserDataFolder());
}

ProgramContext MakeContext(const Arguments& arguments, const UserDoors& doors) {
    ProgramContext context;
    context.AppPath = FindAppPath(arguments);
    context.Messages = &doors.Messages;
    return context;
}

INIFuncs MakeStore(const Arguments& arguments, const UserDoors& doors) {
    return arguments.Settings.empty() ? INIFuncs(&doors.Messages)
                                      : INIFuncs(arguments.Settings, &doors.Messages);
}

} // namespace

Program::Program(const Arguments& arguments, const UserDoors& doors)
    : m_doors(doors),
      m_context(MakeContext(arguments, doors)),
      m_store(MakeStore(arguments, doors)),
      m_pattern(m_context),
      m_open(std::make_unique<PatternDesign>(m_pattern, std::string())),
      m_steps(m_open, Undo::SnapshotPath(m_run.Path())),
      m_recentFiles(m_store),
      m_autoSave(m_open, m_run, doors.Clock) {}

void Program::LoadOptions() {
    m_options = basOptions::LoadOptions(m_store, m_context);
    LoadStartupPalette(m_context);
}

void Program::CreatePattern() {
    constexpr int startSize = 100;
    m_pattern.Initialize(startSize, startSize, m_options.PatternClothCountX,
                         m_options.PatternClothCountY);
    m_pattern.GetPalette().Sort(m_options.PaletteSortOrder);
}

Workshop Program::GetWorkshop() {
    return {m_context,     m_store,          m_options,        m_doors.Messages,
            m_doors.Files, m_doors.Printers, m_doors.Scanners, m_pattern,
            m_open,        m_steps,          m_recentFiles,    m_autoSave};
}

void Program::End() {
    m_steps.DeleteUndoFile();
    m_autoSave.ClearAutoSave();
    m_run.Remove();
    m_recentFiles.StoreMRU();
}

} // namespace zol
