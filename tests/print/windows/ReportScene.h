// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "files/PatternDesign.h"
#include "print/PrintScene.h"
#include "print/windows/PrintDesk.h"
#include "support/RecordingDoors.h"
#include "support/ScriptedPrinter.h"
#include "support/ScriptedUser.h"

namespace zol::test {

/// What the report windows work with: a design of three flosses, a user and a printer that follow a
/// script, and settings in memory.
struct ReportScene {
    ReportScene() {
        pattern->Title = "Rose";
        pattern->FileName = (scene.Folder() / "my.rose.pat").string();
        PrintScene::AddFloss(*pattern, MakeColour(200, 10, 20), "321", 1, "a");
        PrintScene::AddFloss(*pattern, MakeColour(0, 0, 0), "93", 2, "b");
        PrintScene::AddFloss(*pattern, MakeColour(20, 90, 30), "702", 3, "c");
        // 2 stitches, 10 stitches, 9 stitches.
        Stitch(1, 2);
        Stitch(2, 10);
        Stitch(3, 9);
        settings.ClothColor = 0xFFFFFF;
        settings.Units = "inches";
        settings.TextInfoFontName = "Arial";
    }

    [[nodiscard]] PrintDesk Desk() {
        return {open,           scene.context, settings,
                store,          user,          user,
                printers,       gspi,          [this] { return selection; },
                [](QWidget*) {}};
    }

    PrintScene scene;
    std::unique_ptr<Pattern> pattern = scene.MakePattern(12, 8);
    DesignHolder open{std::make_unique<PatternDesign>(*pattern, std::string())};
    Options settings;
    MapSettings store;
    ScriptedUser user;
    ScriptedPrinter printers;
    double gspi = 10;
    std::optional<SelectedArea> selection;

private:
    /// A row of them.
    void Stitch(int floss, int count) {
        for (int column = 1; column <= count; ++column) {
            pattern->SetStitch(column, floss, StitchWhole, floss, 5);
        }
    }
};

} // namespace zol::test
