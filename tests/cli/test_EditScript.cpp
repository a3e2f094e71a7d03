// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "cli/CommandLine.h"
#include "cli/EditScript.h"

namespace zol {
namespace {

class ScriptTest : public ::testing::Test {
protected:
    ScriptTest() { pattern.Initialize(20, 20, 14, 14); }

    void Run(const std::string& script) { EditScript(pattern).Run(script); }
    std::string Failure(const std::string& script) {
        try {
            Run(script);
        } catch (const CommandFailed& failure) {
            return failure.what();
        }
        return "";
    }

    ProgramContext context;
    Pattern pattern{context};
};

TEST_F(ScriptTest, BlankLinesAndRemarksAreSkipped) {
    Run("\n  \r\n# SetStitch 1 1 1 1 0\n  # too\nSetStitch 2 3 1 4 0\r\n");
    EXPECT_EQ(pattern.GetStitchType(1, 1, 0), NoStitch);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(2, 3), 4);
}

TEST_F(ScriptTest, QuoteInsideATextIsDoubled) {
    Run("SetTitle \"A \"\"B\"\" C\"\nSetAuthor \"\"");
    EXPECT_EQ(pattern.Title, "A \"B\" C");
    EXPECT_EQ(pattern.Author, "");
}

TEST_F(ScriptTest, FirstWrongLineIsToldWithItsNumber) {
    EXPECT_EQ(Failure("SetStitch 1 1 1 1 0\nSetStich 1 1 1 1 0"),
              "line 2: unknown operation SetStich");
    EXPECT_EQ(Failure("SetStitch 1 1 1 1"), "line 1: an argument is missing");
    EXPECT_EQ(Failure("SetStitch 1 1 1 1 0 0"), "line 1: there is an argument too many");
    EXPECT_EQ(Failure("SetStitch 1 1 1 256 0"), "line 1: 256 is not between 0 and 255");
    EXPECT_EQ(Failure("SetStitch a 1 1 1 0"), "line 1: a is no whole number");
    EXPECT_EQ(Failure("SetTitle \"open"), "line 1: a text has no closing quote");
    EXPECT_EQ(Failure("SetTitle 12"), "line 1: a text needs quotes");
    EXPECT_EQ(Failure("SetStitch \"1\" 1 1 1 0"), "line 1: a number stands in quotes");
    EXPECT_EQ(Failure("Initialize 0 5 14 14"), "line 1: Subscript out of range");
    EXPECT_EQ(Failure("Initialize 5000 5000 14 14"), "line 1: Out of memory");
    EXPECT_EQ(Failure("AddBackStitchLine 99999 1 1 1 1 9 1 0"),
              "line 1: 99999 is no place in a pattern");
}

TEST_F(ScriptTest, NumbersThatDoNotFitAreRefused) {
    Run("AddBackStitchLine 3 3 1 3 3 1 2 0");
    for (const char* line :
         {"ChangeBSColor 1 300", "ChangeBSColor 1 -1", "ChangeBSStyle 1 256",
          "Changebackstitchline 258 2", "Changebackstitchline 2 257", "Initialize 5 5 32768 14",
          "Initialize 5 5 14 65550", "Resize 5 5 -32769 14", "Resize 5 5 14 70000",
          "ChangePaletteEntry 1 0 \"i\" \"d\" \"M\" 0 70000 1",
          "ChangePaletteEntry 1 0 \"i\" \"d\" \"M\" 0 1 32768",
          "AddPaletteEntry 0 \"1\" \"d\" \"M\" \"A\" 70000 1 0 0 0 \"Maker\"",
          "AddPaletteEntry 0 \"1\" \"d\" \"M\" \"A\" 1 1 70000 0 0 \"Maker\""}) {
        EXPECT_EQ(Failure(line).substr(0, 8), "line 1: ") << line;
    }
    EXPECT_EQ(pattern.GetBackStitchLine(1).PaletteIndex, 2);
    EXPECT_EQ(pattern.GetBackStitchLine(1).LineStyle, LineStraight);
    EXPECT_EQ(pattern.GetPatternWidth(), 20);
    EXPECT_EQ(pattern.GetPatternClothCountY(), 14);
    EXPECT_EQ(pattern.GetPalette().GetFlossStitchStrands(1), 2);
    EXPECT_EQ(Failure("ChangeBSColor 1 300"), "line 1: 300 is not between 0 and 255");
}

TEST_F(ScriptTest, WrongLineChangesNothingItself) {
    EXPECT_NE(Failure("SetStitch 1 1 1 1 0 99"), "");
    EXPECT_EQ(pattern.GetStitchCount(1, 1), 0);
    EXPECT_EQ(Failure("AddRows 21 1"), "line 1: After column must be 20 or less");
    EXPECT_EQ(pattern.GetPatternHeight(), 20);
}

TEST_F(ScriptTest, MirrorStitchSetsTheTwinAlone) {
    Run("MirrorAxis 1\nMirrorCentre 5 5\nMirrorStitch 7 5 1 2 0");
    EXPECT_EQ(pattern.GetStitchType(7, 5, 0), NoStitch);
    EXPECT_EQ(pattern.GetStitchType(3, 5, 0), StitchWhole);
    Run("MirrorAxis 0\nMirrorStitch 9 9 1 2 0");
    EXPECT_EQ(pattern.GetStitchType(9, 9, 0), NoStitch) << "off at the start of each script";
}

TEST_F(ScriptTest, EmptySymbolTakesTheFirstFreeOne) {
    class FirstFree : public SymbolDoor {
        std::optional<std::string> ChooseSymbol(const Palette& palette) override {
            return palette.GetNextAvailableSymbol();
        }
    } door;
    context.Symbols = &door;
    Run("AddPaletteEntry 0x102030 \"1\" \"d\" \"M\" \"\" 0 1 7 42 3 \"Maker\"");
    const int index = pattern.GetPalette().GetEntriesCount();
    EXPECT_EQ(index, 17);
    EXPECT_EQ(pattern.GetPalette().GetFlossSymbol(index), 33);
    EXPECT_EQ(pattern.GetPalette().GetFlossRGB(index), 0x102030U);
    EXPECT_EQ(pattern.GetPalette().GetManufLongDesc(index), "Maker");
    EXPECT_EQ(pattern.GetPalette().GetFlossStitchStrands(index), 2);
    EXPECT_EQ(pattern.GetPalette().GetFlossBackStitchStrands(index), 1);
}

TEST_F(ScriptTest, EveryOperationOfThePaletteReachesIt) {
    Run("BlendFloss 1 0xFFFFFF \"B\" \"DMC\" \"white\" 9\n"
        "SetFlossSymbol 2 \"?\"\nSetFlossDesc 2 \"mine\"\n"
        "ChangePaletteEntry 3 255 \"new\" \"n\" \"X\" 5 65535 1\n"
        "AddPatternID 77 \"src\"\nSortPalette 3\nRemovePaletteEntry 16");
    const Palette& palette = pattern.GetPalette();
    EXPECT_TRUE(palette.IsBlended(1));
    EXPECT_EQ(palette.GetFlossSymbol(2), '?');
    EXPECT_EQ(palette.GetFlossShortDesc(2), "mine");
    EXPECT_EQ(palette.GetManufID(3), "new");
    EXPECT_EQ(palette.GetFlossStitchStrands(3), 2);
    EXPECT_EQ(palette.GetFlossBackStitchStrands(3), 1);
    EXPECT_EQ(palette.GetEntriesCount(), 15);
    EXPECT_EQ(palette.GetSortOrder(), 3);
    EXPECT_EQ(pattern.GetPatternID(1), 77U);
    Run("RemoveBlend 1");
    EXPECT_FALSE(palette.IsBlended(1));
}

TEST_F(ScriptTest, EveryOperationOfAreasReachesThePattern) {
    Run("SetStitch 5 5 1 2 0\nMoveArea 5 5 5 5 1 1\n");
    EXPECT_EQ(pattern.GetStitchPaletteIndex(6, 6), 2);
    Run("ChangeColor 2 3 -1 0 0 0");
    EXPECT_EQ(pattern.GetStitchPaletteIndex(6, 6), 3);
    Run("CopyPaste 6 6 6 6 1 1\nEraseArea 6 6 6 6");
    EXPECT_EQ(pattern.GetStitchPaletteIndex(1, 1), 3);
    EXPECT_EQ(pattern.GetStitchType(6, 6, 0), NoStitch);
    Run("Paint 20 20 1 4 255");
    EXPECT_EQ(pattern.GetStitchPaletteIndex(20, 1), 4);
    Run("MapPalette 1 2 9 8");
    EXPECT_EQ(pattern.GetStitchPaletteIndex(1, 1), 9);
    EXPECT_EQ(pattern.GetStitchPaletteIndex(20, 1), 8);
    Run("RemoveColor 8 1 1 20 20");
    EXPECT_EQ(pattern.GetStitchType(20, 1, 0), NoStitch);
    Run("SetStitch 4 4 9 1 0\nTransform 4 4 4 4 2");
    EXPECT_EQ(pattern.GetStitchType(4, 4, 0), StitchLRQ);
    Run("ClearUnusedPaletteColors");
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 2);
    Run("Resize 30 31 16 18");
    EXPECT_EQ(pattern.GetPatternHeight(), 31);
    Run("ShrinkToFit");
    EXPECT_EQ(pattern.GetPatternWidth(), 6);
    Run("DeleteStitch 1 1 0\nCenter 2\nFixBackStitchLines");
    EXPECT_EQ(pattern.GetStitchType(1, 1, 0), NoStitch);
}

TEST_F(ScriptTest, EveryOperationOfLinesReachesThePattern) {
    Run("SetBackstitchLine 1 1 1 2 2 9 1 0\nAddBackStitchLine 3 3 1 3 3 1 2 0\n"
        "ChangeBSColor 1 5\nChangeBSStyle 2 4\nChangebackstitchline 5 5");
    ASSERT_EQ(pattern.GetBackStitchCount(), 2);
    EXPECT_EQ(pattern.GetBackStitchLine(1).PaletteIndex, 5);
    EXPECT_EQ(pattern.GetBackStitchLine(1).LineStyle, LineTracks);
    EXPECT_EQ(pattern.GetBackStitchLine(2).LineStyle, LineDotted);
    Run("RemoveBackStitchLine 1");
    EXPECT_EQ(pattern.GetBackStitchCount(), 1);
}

} // namespace
} // namespace zol
