// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "app/basMain.h"

#include <QApplication>
#include <QProcess>
#include <QScreen>
#include <QSplashScreen>

#include <new>

#include "app/Splash.h"
#include "files/CommandLineFile.h"
#include "grid/windows/frmDesignGrid.h"
#include "model/RunTimeError.h"
#include "model/SafeFile.h"

namespace zol {

basMain::basMain(const Arguments& arguments, const UserDoors& doors)
    : m_commandLine(arguments.CommandLine),
      m_program(arguments, doors) {}

basMain::~basMain() = default;

void basMain::Step(const std::function<void()>& work) {
    try {
        work();
    } catch (const std::exception&) {
        m_program.Doors().Messages.Tell("No Default Printer Defined!", MessageIcon::Exclamation,
                                        "Korvanta Initialization");
    }
}

bool basMain::Start() {
    Step([this] { m_program.LoadOptions(); });
    Step([this] { m_program.LoadRecentFiles(); });
    const bool wantsViewer = CommandLineText::WantsPatternViewer(m_commandLine);
    if (!wantsViewer) {
        Step([this] { ShowSplash(); });
    }
    m_program.Context().ColorDepth = QGuiApplication::primaryScreen()->depth();
    Step([this] { m_program.CreatePattern(); });
    Step([this] { m_window = std::make_unique<frmDesignGrid>(m_program.GetWorkshop()); });
    if (wantsViewer) {
        RunPatternViewer();
        End();
        return false;
    }
    if (m_window == nullptr) {
        // What stood in the way has been told; without its window there is no program.
        m_exitCode = 1;
        End();
        return false;
    }
    Step([this] {
        Pattern& pattern = m_program.CurrentPattern();
        if (m_program.Context().RecolorPatterns) {
            RefreshFlossColors(pattern);
        }
        pattern.SetChanged(false);
        m_window->show();
        QCoreApplication::processEvents();
    });
    Step([this] { OpenWhatWasAskedFor(); });
    if (m_splash != nullptr) {
        m_splash->finish(m_window.get());
        m_splash.reset();
    }
    Step([this] { m_window->BeginDrawing(); });
    return true;
}

void basMain::ShowSplash() {
    const double ratio = QGuiApplication::primaryScreen()->devicePixelRatio();
    m_splash = std::make_unique<QSplashScreen>(Splash::Picture(QApplication::palette(), ratio));
    m_splash->show();
}

void basMain::RunPatternViewer() {
    const std::string viewer = PathText(m_program.Context().AppPath / "PatternViewer");
    if (QProcess::startDetached(QString::fromStdString(viewer), {})) {
        return;
    }
    m_exitCode = 1;
    m_program.Doors().Messages.TellMore("The pattern viewer cannot be started.",
                                        viewer + " is not there or is no program that can be run.",
                                        MessageIcon::Stop, frmDesignGrid::ProgramTitle);
}

void basMain::OpenWhatWasAskedFor() {
    // Work that would be lost goes before a file that can be opened at any time.
    if (!m_window->OfferRecovery() && !m_commandLine.empty()) {
        m_window->OpenCommandLine(m_commandLine);
    }
}

void basMain::KeepWork() {
    if (m_window != nullptr) {
        m_window->KeepForRecovery();
    }
}

void basMain::TellFault(const std::exception& fault) {
    // The next fault may be one that nothing can catch.
    m_program.GetWorkshop().AutoSave.AutoSaveTick(true, true);
    const bool noMemory = dynamic_cast<const std::bad_alloc*>(&fault) != nullptr;
    m_program.Doors().Messages.TellMore(
        noMemory ? RunTimeErrorText(ErrOutOfMemory) : fault.what(),
        "What was begun could not be finished. Your work is still open, as it stands on the grid; "
        "Save As puts it into another place.",
        MessageIcon::Exclamation, {});
}

void basMain::End() {
    m_window.reset();
    m_program.End();
}

} // namespace zol
