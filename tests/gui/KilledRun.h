// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>

#include <filesystem>
#include <string>

#include "gui/RunningProgram.h"

namespace zol::test {

/// Another run of the program in the same home. It draws a row of stitches, which saves them for
/// recovery; told a file, it saves there and draws on until that is saved for recovery too. Then
/// the system ends it, without a chance to clean up.
class KilledRun {
public:
    explicit KilledRun(const ProgramHome& home, const std::filesystem::path& saveTo = {}) {
        QStringList words{QString::fromStdString(home.Path().string())};
        if (!saveTo.empty()) {
            words << QString::fromStdString(saveTo.string());
        }
        QProcess run;
        run.start(QStringLiteral(KORVANTA_DRAWING_RUN), words);
        while (run.state() != QProcess::NotRunning && !m_saved) {
            run.waitForReadyRead(1000);
            m_saved = run.readAllStandardOutput().contains("saved");
        }
        run.kill();
        run.waitForFinished();
        m_saved = m_saved && run.exitStatus() == QProcess::CrashExit;
        m_design = ReadFile(home / "design.bytes");
        for (const auto& entry : std::filesystem::recursive_directory_iterator(home / "state")) {
            if (entry.path().filename() == basAutoSave::FileName) {
                m_file = entry.path();
            }
        }
    }

    /// It had saved for recovery, and was killed.
    [[nodiscard]] bool IsDead() const { return m_saved && !m_file.empty(); }
    /// What stood open in it.
    [[nodiscard]] const std::string& Design() const { return m_design; }
    /// Its recovery file.
    [[nodiscard]] const std::filesystem::path& File() const { return m_file; }

private:
    bool m_saved = false;
    std::string m_design;
    std::filesystem::path m_file;
};

} // namespace zol::test
