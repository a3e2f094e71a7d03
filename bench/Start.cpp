// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// bench-start program APP_PATH SETTINGS: the whole window program up to its first painted window.
// bench-start bare: an empty main window up to the same point.
// Both end there at once, so that the time of the process is that of the start.

#include <QApplication>
#include <QMainWindow>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "app/Arguments.h"
#include "app/basMain.h"
#include "import/scan/SaneScanner.h"
#include "print/windows/SystemPrinter.h"
#include "windowkit/IconFamily.h"
#include "windowkit/QtUserDoor.h"
#include "windowkit/Theme.h"

namespace {

/// Sees the first paint of a main window; splash and dialogs do not count.
class PaintWatch : public QObject {
public:
    bool eventFilter(QObject* object, QEvent* event) override {
        m_begun = m_begun ||
                  (event->type() == QEvent::Paint && qobject_cast<QMainWindow*>(object) != nullptr);
        return false;
    }
    /// Until the window and what lies in it have been painted. False if that never happens.
    [[nodiscard]] bool Wait() const {
        for (int turn = 0; turn < 1000 && !m_begun; ++turn) {
            QCoreApplication::processEvents();
        }
        return m_begun;
    }

private:
    bool m_begun = false;
};

[[noreturn]] void Leave(bool painted) {
    if (!painted) {
        std::fputs("bench-start: nothing was painted\n", stderr);
    }
    std::fflush(nullptr);
    std::_Exit(painted ? 0 : 1);
}

} // namespace

int main(int argc, char** argv) {
    const std::string what = argc > 1 ? argv[1] : "";
    QApplication app(argc, argv);
    PaintWatch watch;
    QApplication::instance()->installEventFilter(&watch);
    if (what == "bare") {
        QMainWindow window;
        window.resize(1280, 800);
        window.show();
        Leave(watch.Wait());
    }
    if (what != "program" || argc < 4) {
        std::fputs("bench-start program APP_PATH SETTINGS | bare\n", stderr);
        return 2;
    }
    zol::Arguments arguments;
    arguments.AppPath = argv[2];
    arguments.Settings = argv[3];
    QApplication::setWindowIcon(zol::IconFamily::ProgramIcon());
    zol::Theme::Apply(app);
    zol::QtUserDoor user;
    zol::SystemPrinter printers;
    zol::SaneScanner scanners;
    zol::basMain program(arguments, {user, user, printers, scanners});
    Leave(program.Start() && watch.Wait());
}
