// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// A run of the program that draws, saves its work for recovery, says so and waits for its end.
// Arguments: the folder of its home, and the pattern file to save to, if any.

#include <cstdio>
#include <string>
#include <vector>

#include "gui/DrawnProgram.h"

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    const std::vector<std::string> words(argv, argv + argc);
    if (words.size() < 2) {
        return 2;
    }
    const std::filesystem::path home = words[1];
    auto now = std::chrono::steady_clock::now();
    zol::test::DrawnProgram program(zol::test::ProgramHome::CalledIn(home), [&now] { return now; });
    if (!program.Open()) {
        return 3;
    }
    program.DragOver({{2, 3}, {5, 3}});
    if (words.size() > 2) {
        program.User.files = {words[2]};
        program.Choose("mnuFileSave");
        program.Tool("DRAWMODE_LINES");
        program.DragOver({{2, 5}, {9, 8}});
        program.Tool("DRAWMODE_STITCHES");
        program.Tool("STITCH_FKNOT");
        now += std::chrono::minutes(11);
        program.ClickIn(4, 6, 0.1, 0.1);
    }
    zol::test::WriteFile(home / "design.bytes", zol::test::BytesOf(program.Parts().Open.Get()));
    std::puts("saved");
    std::fflush(stdout);
    return QApplication::exec();
}
