// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// A run of the program that draws, saves its work for recovery, says so and waits for its end.
// Arguments: the folder of its home, and the pattern file to save to, if any. With "--unsaved" and
// "stitch" or "block" in its place it works on without saving that, and heeds signals.

#include <cstdio>
#include <string>
#include <vector>

#include "app/SessionEnd.h"
#include "gui/DrawnProgram.h"

namespace {

/// Another stitch, or the row as a block that floats.
void GoOn(zol::test::DrawnProgram& program, const std::string& work) {
    if (work == "stitch") {
        program.ClickIn(8, 8);
        return;
    }
    program.Tool("DRAWMODE_EDITBOX");
    program.DragOver({{2, 3}, {5, 3}});
    program.Grid().setFocus();
    program.Key(Qt::Key_Right);
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
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
    const zol::SessionEnd sessionEnd(app, [&program] { program.Main().KeepWork(); });
    program.DragOver({{2, 3}, {5, 3}});
    if (words.size() > 3) {
        GoOn(program, words[3]);
    } else if (words.size() > 2) {
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
