// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "flosses/AvailColors.h"
#include "flosses/editing/PaletteEditor.h"
#include "model/Pattern.h"
#include "support/ScriptedUser.h"
#include "support/TempFolder.h"

namespace zol::test {

/// Answers the editor's dialogs as the test says and keeps what they were asked with.
class ScriptedDialogs : public PaletteDialogs {
public:
    RemovalAnswer AskRemoval(const RemovalQuestion& question) override {
        removals.push_back(question);
        return removal;
    }
    std::optional<ReplacementAnswer> AskReplacement(const ReplacementQuestion& question) override {
        replacements.push_back(question);
        return replacement;
    }
    std::optional<CustomFloss> AskCustomFloss(bool maySave) override {
        maySaveSeen.push_back(maySave);
        return custom;
    }
    std::optional<std::string> AskSymbol(int entry, const FlossLook& newFloss) override {
        symbolsOf.push_back(entry);
        looks.push_back(newFloss);
        return symbol;
    }

    RemovalAnswer removal = RemovalAnswer::Cancel;
    std::optional<ReplacementAnswer> replacement;
    std::optional<CustomFloss> custom;
    std::optional<std::string> symbol = "!";
    std::vector<RemovalQuestion> removals;
    std::vector<ReplacementQuestion> replacements;
    std::vector<bool> maySaveSeen;
    std::vector<int> symbolsOf;
    std::vector<FlossLook> looks;
};

/// A catalogue of the maker "DMC" in an application folder: rows 1 to 4 by number are 3 (no master
/// identity), 310, 321 and 666.
inline void WriteCatalogue(const ProgramContext& context) {
    std::filesystem::create_directories(context.AppPath / "Flosses");
    AvailColors catalogue(context);
    catalogue.Setheader("DMC", 1, "DMC", 0);
    catalogue.AddEntry(310, "Black", "310", 0, 0, 0, 1, 0, 0, "");
    catalogue.AddEntry(666, "Bright Red", "666", 227, 29, 66, 2, 0, 0, "");
    catalogue.AddEntry(321, "Red", "321", 199, 43, 59, 3, 0, 0, "");
    catalogue.AddEntry(0, "Home Dyed", "3", 1, 2, 3, 4, 0, 0, "");
    ASSERT_TRUE(catalogue.SaveToFile(context.AppPath / "Flosses" / "dmc.col"));
}

/// A pattern of 10 by 10 squares in four flosses: 1 red and 2 green of the maker "ABC" with master
/// identities 101 and 102, 3 a blend of 310 with white, 4 blue and unused. Floss 1 has two
/// stitches, at (1, 1) and (5, 5), and a line; floss 2 one at (2, 2); floss 3 one at (3, 3).
class PaletteEditorTest : public ::testing::Test {
protected:
    PaletteEditorTest() {
        context.AppPath = folder.Path();
        context.Messages = &user;
        WriteCatalogue(context);
        pattern = std::make_unique<Pattern>(context);
        pattern->Initialize(10, 10, 14, 14);
        Palette& palette = pattern->GetPalette();
        palette.ClearPalette();
        palette.AddPaletteEntry(MakeColour(200, 0, 0), "R1", "red", "ABC", "R", 2, 1, 0, 101, 0,
                                "");
        palette.AddPaletteEntry(MakeColour(0, 200, 0), "G1", "green", "ABC", "G", 2, 1, 0, 102, 0,
                                "");
        palette.AddPaletteEntry(0, "310", "Black", "DMC", "B", 2, 1, 0, 310, 0, "");
        palette.BlendFloss(3, MakeColour(255, 255, 255), "B5200", "DMC", "Snow White", 5200);
        palette.AddPaletteEntry(MakeColour(0, 0, 200), "B1", "blue", "ABC", "U", 2, 1, 0, 103, 0,
                                "");
        pattern->SetStitch(1, 1, StitchWhole, 1, 5);
        pattern->SetStitch(5, 5, StitchWhole, 1, 5);
        pattern->SetStitch(2, 2, StitchWhole, 2, 5);
        pattern->SetStitch(3, 3, StitchWhole, 3, 5);
        BackStitchLine line;
        line.StartX = 1;
        line.StartY = 1;
        line.StartPos = 1;
        line.EndX = 2;
        line.EndY = 2;
        line.EndPos = 1;
        line.PaletteIndex = 1;
        pattern->SetBackstitchLine(line);
        pattern->SetChanged(false);
    }

    /// The first two squares of each row and column are the edit box, when there is one.
    [[nodiscard]] PaletteEditor Editor(int selected, bool onlyEditBox = false) {
        PaletteEditor editor({*pattern, user, dialogs,
                              onlyEditBox ? std::optional(SquareRect{1, 1, 2, 2}) : std::nullopt,
                              [this] { ++firstChanges; }},
                             selected);
        editor.Available().Show("dmc.col");
        editor.SetEditBoxOnly(onlyEditBox);
        return editor;
    }
    [[nodiscard]] Palette& Flosses() { return pattern->GetPalette(); }
    [[nodiscard]] int FlossAt(int x, int y) const { return pattern->GetStitchPaletteIndex(x, y); }
    [[nodiscard]] bool IsUntouched() const { return firstChanges == 0 && !pattern->IsChanged(); }

    TempFolder folder;
    ScriptedUser user;
    ScriptedDialogs dialogs;
    ProgramContext context;
    std::unique_ptr<Pattern> pattern;
    int firstChanges = 0;
};

} // namespace zol::test
