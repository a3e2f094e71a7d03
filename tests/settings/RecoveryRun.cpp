// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// A run of the program that saves its work for recovery, says so, and waits for its end.
// Arguments: the base folder, the pattern's file name, its title, and "clean" for a clean end.

#include <unistd.h>

#include <cstdio>
#include <string>
#include <vector>

#include "model/PlainDesign.h"
#include "settings/basAutoSave.h"

int main(int argc, char** argv) {
    const std::vector<std::string> words(argv, argv + argc);
    if (words.size() < 4) {
        return 2;
    }
    zol::ProgramContext context;
    zol::Pattern pattern(context);
    pattern.Initialize(20, 10, 14, 14);
    pattern.FileName = words[2];
    pattern.Title = words[3];
    pattern.SetStitch(3, 4, zol::StitchWhole, 1, 0);
    zol::DesignHolder open(std::make_unique<zol::test::PlainDesign>(std::move(pattern)));
    zol::RunFolder run(words[1]);
    zol::basAutoSave save(open, run);
    save.AutoSaveTick(false, false);
    std::puts(run.Path().c_str());
    std::fflush(stdout);
    if (words.size() > 4) {
        save.ClearAutoSave();
        run.Remove();
        return 0;
    }
    for (;;) {
        ::pause();
    }
}
