// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QApplication>

#include <iostream>
#include <string>
#include <vector>

#include "app/Arguments.h"
#include "app/basMain.h"
#include "grid/windows/frmDesignGrid.h"
#include "import/scan/SaneScanner.h"
#include "print/windows/SystemPrinter.h"
#include "windowkit/DialogManners.h"
#include "windowkit/IconFamily.h"
#include "windowkit/QtUserDoor.h"
#include "windowkit/Theme.h"

namespace {

zol::Arguments ArgumentsLeft() {
    std::vector<std::string> words;
    for (const QString& word : QCoreApplication::arguments().mid(1)) {
        words.push_back(word.toStdString());
    }
    return zol::ReadArguments(words);
}

int Run(int argc, char** argv) {
    zol::Arguments arguments = zol::ReadArguments(std::vector<std::string>(argv + 1, argv + argc));
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
    QApplication app(argc, argv);
    // Without those that Qt itself understands.
    arguments = ArgumentsLeft();
    QApplication::setApplicationName(QStringLiteral("Korvanta"));
    QApplication::setDesktopFileName(QStringLiteral("korvanta"));
    QApplication::setWindowIcon(zol::IconFamily::ProgramIcon());
    zol::Theme::Apply(app);
    zol::DialogManners::Teach(app);
    zol::QtUserDoor user;
    zol::SystemPrinter printers;
    zol::SaneScanner scanners;
    zol::basMain program(arguments, {user, user, printers, scanners});
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
