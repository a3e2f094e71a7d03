// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QGuiApplication>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <memory>

#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "model/RunTimeError.h"
#include "model/SafeFile.h"

namespace {

using namespace zol;

constexpr int exitFailed = 1;
constexpr int exitUsage = 2;
constexpr std::string_view versionOption = "--version";
constexpr std::string_view globalUsage =
    "korvanta-cli [--app-path DIR] [--settings FILE] [--quiet] COMMAND ...";

void PrintHelp(std::ostream& out) {
    out << "Usage: " << globalUsage << "\n\nCommands:\n";
    for (const Command& command : AllCommands()) {
        out << "  " << command.Name << std::string(12 - command.Name.size(), ' ') << command.Summary
            << '\n';
    }
    out << "\n\"korvanta-cli COMMAND --help\" tells a command's options.\n";
}

bool AsksForHelp(const std::string& word) {
    return word == "--help" || word == "-h";
}

/// Takes the options before the command off the front of the words.
GlobalOptions TakeGlobalOptions(std::vector<std::string>& words) {
    GlobalOptions global;
    std::size_t used = 0;
    const auto valueOf = [&words, &used](const std::string& option) {
        if (used + 1 >= words.size()) {
            throw WrongUsage("option " + option + " needs a value");
        }
        return PathOf(words[++used]);
    };
    for (; used < words.size() && words[used].starts_with("-"); ++used) {
        if (AsksForHelp(words[used]) || words[used] == versionOption) {
            break; // asked of the program, whatever stands before
        }
        const std::string option = words[used];
        if (option == "--app-path") {
            global.AppPath = valueOf(option);
        } else if (option == "--settings") {
            global.Settings = valueOf(option);
        } else if (option == "--quiet") {
            global.Quiet = true;
        } else {
            throw WrongUsage("unknown option " + option);
        }
    }
    words.erase(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(used));
    return global;
}

/// Remarks of the libraries below are nothing that a script should find in its error output.
void DropRemarks(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (type == QtFatalMsg) {
        std::cerr << "korvanta-cli: " << text.toStdString() << '\n';
    }
}

/// Commands that paint need fonts, which need a GUI application; it asks for no display.
std::unique_ptr<QCoreApplication> MakeApplication(const Command& command, int& argc, char** argv) {
    if (!command.Paints) {
        return std::make_unique<QCoreApplication>(argc, argv);
    }
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    qInstallMessageHandler(DropRemarks);
    return std::make_unique<QGuiApplication>(argc, argv);
}

int RunCommand(int argc, char** argv) {
    std::vector<std::string> words(argv + 1, argv + argc);
    const GlobalOptions global = TakeGlobalOptions(words);
    if (!words.empty() && AsksForHelp(words[0])) {
        PrintHelp(std::cout);
        return 0;
    }
    if (std::find(words.begin(), words.end(), versionOption) != words.end()) {
        std::cout << "korvanta-cli " KORVANTA_VERSION "\n";
        return 0;
    }
    if (words.empty()) {
        throw WrongUsage("a command is missing");
    }
    const auto all = AllCommands();
    const auto command = std::find_if(all.begin(), all.end(),
                                      [&words](const Command& c) { return c.Name == words[0]; });
    if (command == all.end()) {
        throw WrongUsage("unknown command " + words[0]);
    }
    words.erase(words.begin());
    if (std::find(words.begin(), words.end(), "--help") != words.end()) {
        std::cout << "Usage: korvanta-cli " << command->Usage << '\n';
        return 0;
    }
    const auto application = MakeApplication(*command, argc, argv);
    Environment environment(global);
    command->Run(environment, words);
    if (!std::cout.flush()) {
        throw CommandFailed("standard output cannot be written");
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return RunCommand(argc, argv);
    } catch (const WrongUsage& fault) {
        std::cerr << "korvanta-cli: " << fault.what() << "\nUsage: " << globalUsage << '\n';
        return exitUsage;
    } catch (const RunTimeError& failure) {
        std::cerr << "korvanta-cli: " << failure.what() << '\n';
    } catch (const std::bad_alloc&) {
        std::cerr << "korvanta-cli: " << RunTimeErrorText(ErrOutOfMemory) << '\n';
    } catch (const std::exception& failure) {
        std::cerr << "korvanta-cli: " << failure.what() << '\n';
    }
    return exitFailed;
}
