// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>
#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>

#include "app/basMain.h"
#include "grid/tools/DrawModes.h"
#include "grid/windows/GridArea.h"
#include "grid/windows/GridCanvas.h"
#include "grid/windows/frmDesignGrid.h"
#include "support/DialogHands.h"
#include "support/ScriptedPrinter.h"
#include "support/ScriptedScanner.h"
#include "support/ScriptedUser.h"
#include "support/TestFiles.h"
#include "support/TestPaths.h"

namespace zol::test {

/// Files below a folder, at any depth.
inline int CountFiles(const std::filesystem::path& folder) {
    int files = 0;
    if (std::filesystem::exists(folder)) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
            files += entry.is_regular_file() ? 1 : 0;
        }
    }
    return files;
}

/// A home of its own for a program under test: settings, program folder, state.
class ProgramHome {
public:
    ProgramHome() {
        namespace fs = std::filesystem;
        fs::create_directories(*this / "app");
        fs::copy(fs::path(BuildDataFolder), *this / "app", fs::copy_options::recursive);
        qputenv("XDG_STATE_HOME", QByteArray::fromStdString((*this / "state").string()));
        qunsetenv("ZOLUNDO");
    }
    [[nodiscard]] std::filesystem::path operator/(const std::string& name) const {
        return Path() / name;
    }
    [[nodiscard]] std::filesystem::path Path() const { return m_folder.path().toStdString(); }
    [[nodiscard]] Arguments CalledWith(std::string commandLine = {}) const {
        return CalledIn(Path(), std::move(commandLine));
    }
    /// For a home that another process has made.
    [[nodiscard]] static Arguments CalledIn(const std::filesystem::path& home,
                                            std::string commandLine = {}) {
        Arguments arguments;
        arguments.Settings = home / "settings.ini";
        arguments.AppPath = home / "app";
        arguments.CommandLine = std::move(commandLine);
        return arguments;
    }

private:
    QTemporaryDir m_folder;
};

/// The whole program as a user starts it, with a user who answers from a script.
class RunningProgram {
public:
    explicit RunningProgram(const ProgramHome& home, const std::string& commandLine = {})
        : RunningProgram(home.CalledWith(commandLine)) {}
    explicit RunningProgram(const Arguments& arguments,
                            const basAutoSave::Clock& clock = &std::chrono::steady_clock::now)
        : m_main(std::make_unique<basMain>(arguments,
                                           UserDoors{User, User, Printers, Scanners, clock})) {}

    /// Shown at a size that tests can rely on.
    [[nodiscard]] bool Start() {
        if (!m_main->Start()) {
            return false;
        }
        Window().resize(1280, 800);
        return QTest::qWaitForWindowExposed(&Window());
    }
    void End() {
        m_ended = true;
        m_main->End();
    }
    [[nodiscard]] bool HasEnded() const { return m_ended; }
    [[nodiscard]] int ExitCode() const { return m_main->ExitCode(); }

    [[nodiscard]] basMain& Main() { return *m_main; }
    [[nodiscard]] frmDesignGrid& Window() { return m_main->MainWindow(); }
    [[nodiscard]] Pattern& Design() { return m_main->Parts().GetWorkshop().Open.Design(); }
    [[nodiscard]] Workshop Parts() { return m_main->Parts().GetWorkshop(); }
    [[nodiscard]] GridArea& Area() { return Window().Area(); }
    [[nodiscard]] QWidget& Grid() { return *Find<QWidget>("picGrid"); }

    template<typename Widget>
    [[nodiscard]] Widget* Find(const char* name) {
        return &PartOf<Widget>(Window(), name);
    }
    [[nodiscard]] QAction& Command(const char* name) { return *Find<QAction>(name); }
    /// A click on a tool button.
    void Click(const char* toolKey) {
        QTest::mouseClick(Find<QToolButton>(toolKey), Qt::LeftButton);
    }
    /// What the menu does when its item is chosen.
    void Choose(const char* command) { Command(command).trigger(); }

    /// Window pixel of a region 1 to 9 of a square, just inside it.
    [[nodiscard]] QPoint Place(int column, int row, int region = 5) {
        const GridGeometry& geometry = Area().Geometry();
        const QRect pixels = geometry.PixelsOf({column, row, column, row});
        const int thirds[] = {0, 50, 99};
        const auto at = [&](int first, int length, int third) {
            return first + length * thirds[third] / 100;
        };
        const QPoint device(at(pixels.left(), pixels.width(), PositionColumn(region)),
                            at(pixels.top(), pixels.height(), PositionRow(region)));
        return (QPointF(device) / geometry.PixelRatio()).toPoint();
    }
    void ClickSquare(int column, int row, int region = 5, Qt::MouseButton button = Qt::LeftButton,
                     Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(&Grid(), button, keys, Place(column, row, region));
    }
    /// Press, moves from square to square, release.
    void Drag(SquarePos from, SquarePos to, Qt::MouseButton button = Qt::LeftButton,
              Qt::KeyboardModifiers keys = {}) {
        QTest::mousePress(&Grid(), button, keys, Place(from.X, from.Y));
        QTest::mouseMove(&Grid(), Place(to.X, to.Y));
        QTest::mouseRelease(&Grid(), button, keys, Place(to.X, to.Y));
    }

    ScriptedUser User;
    ScriptedPrinter Printers;
    ScriptedScanner Scanners;

private:
    std::unique_ptr<basMain> m_main;
    bool m_ended = false;
};

/// For what begins with its members.
struct OwnHome {
    const ProgramHome Home;
};

/// A program in a home of its own, begun; it ends with the test, whatever has changed.
template<typename Program, bool (Program::*Begin)()>
class AtHome : public OwnHome, public Program {
public:
    AtHome() : Program(Home) {
        if (!(this->*Begin)()) {
            qFatal("the program does not start");
        }
    }
    ~AtHome() {
        if (!this->HasEnded()) {
            this->Design().SetChanged(false);
            this->End();
        }
    }
    AtHome(const AtHome&) = delete;
    AtHome& operator=(const AtHome&) = delete;
};

using StartedProgram = AtHome<RunningProgram, &RunningProgram::Start>;

} // namespace zol::test
