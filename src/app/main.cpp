// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <iostream>
#include <string>
#include <vector>

#include "app/Arguments.h"
#include "app/GuardedApplication.h"
#include "app/SessionEnd.h"
#include "app/basMain.h"
#include "grid/windows/frmDesignGrid.h"
#include "import/scan/SaneScanner.h"
#include "print/windows/SystemPrinter.h"
#include "windowkit/DialogManners.h"
#include "windowkit/IconFamily.h"
#include "windowkit/QtUserDoor.h"
#include "windowkit/Theme.h"

namespace {

/// Byte for byte: names of files need not be text.
zol::Arguments ArgumentsIn(int argc, char** argv) {
    return zol::ReadArguments(std::vector<std::string>(argv + 1, argv + argc));
}

int Run(int argc, char** argv) {
    zol::Arguments arguments = ArgumentsIn(argc, argv);
    // What needs no window needs no display either.
    if (!arguments.Fault.empty()) {
        std::cerr << "korvanta: " << arguments.Fault << '\n';
        return 2;
    }
    if (arguments.WantsHelp) {
        std::cout << zol::HelpText();
        return 0;
    }
    if (arguments.WantsVersion) {
        std::cout << "korvanta " KORVANTA_VERSION "\n";
        return 0;
    }
    zol::GuardedApplication app(argc, argv);
    // Without those that Qt itself understands, which it has taken out of the list.
    arguments = ArgumentsIn(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Korvanta"));
    QApplication::setDesktopFileName(QStringLiteral("korvanta"));
    QApplication::setWindowIcon(zol::IconFamily::ProgramIcon());
    zol::Theme::Apply(app);
    zol::DialogManners::Teach(app);
    zol::QtUserDoor user;
    zol::SystemPrinter printers;
    zol::SaneScanner scanners;
    zol::basMain program(arguments, {user, user, printers, scanners});
    app.SetFaultTeller([&program](const std::exception& fault) { program.TellFault(fault); });
    const zol::SessionEnd sessionEnd(app, [&program] { program.KeepWork(); });
    if (!program.Start()) {
        return program.ExitCode();
    }
    user.SetParent(&program.MainWindow());
    const int result = QApplication::exec();
    program.End();
    return result;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return Run(argc, argv);
    } catch (const std::exception& fault) {
        std::cerr << "korvanta: " << fault.what() << '\n';
        return 1;
    }
}
