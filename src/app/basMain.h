// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>
#include <functional>
#include <memory>

#include "app/Program.h"

class QSplashScreen;

namespace zol {

class frmDesignGrid;

/// The start of the program in its order, and its end.
class basMain {
public:
    basMain(const Arguments& arguments, const UserDoors& doors);
    ~basMain();
    basMain(const basMain&) = delete;
    basMain& operator=(const basMain&) = delete;

    /// Brings the program up to its open main window. False if the run ends here, with `ExitCode`.
    [[nodiscard]] bool Start();
    [[nodiscard]] int ExitCode() const { return m_exitCode; }
    /// After the main window has been closed.
    void End();

    /// Keeps the work for recovery, as the end may come without any more questions.
    void KeepWork();
    /// Tells a fault that no command has caught. The design stays as it is, and is kept first.
    void TellFault(const std::exception& fault);

    [[nodiscard]] frmDesignGrid& MainWindow() { return *m_window; }
    [[nodiscard]] Program& Parts() { return m_program; }

private:
    /// A fault in one step of the start is told, and the start goes on with the next.
    void Step(const std::function<void()>& work);
    void ShowSplash();
    void OpenWhatWasAskedFor();
    /// The viewer is a program of its own; this run ends with its start.
    void RunPatternViewer();

    std::string m_commandLine;
    Program m_program;
    std::unique_ptr<QSplashScreen> m_splash;
    std::unique_ptr<frmDesignGrid> m_window;
    int m_exitCode = 0;
};

} // namespace zol
