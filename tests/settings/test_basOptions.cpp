// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "flosses/AvailColors.h"
#include "settings/AppPath.h"
#include "settings/ColorLists.h"
#include "settings/INIFuncs.h"
#include "settings/OptionsTable.h"
#include "settings/basOptions.h"
#include "support/TempFolder.h"

namespace zol {
namespace {

using test::TempFolder;

class OptionsTest : public ::testing::Test {
protected:
    OptionsTest() { context.AppPath = folder.Path(); }

    Options Load() { return basOptions::LoadOptions(store, context); }

    TempFolder folder;
    INIFuncs store{folder / "s.ini"};
    ProgramContext context;
};

TEST_F(OptionsTest, EmptyStoreGivesTheDefaults) {
    const Options options = Load();
    EXPECT_EQ(options.PatternWidth, 100);
    EXPECT_EQ(options.PatternHeight, 100);
    EXPECT_EQ(options.PatternClothCountX, 14);
    EXPECT_EQ(options.ClothColor, 16777215U) << "Bright White";
    EXPECT_EQ(options.NormalGLColor, 14408667U) << "Light";
    EXPECT_EQ(options.BoldGLColor, 8882055U) << "Dark";
    EXPECT_EQ(options.PrintNormalGLColor, 12369084U) << "Medium";
    EXPECT_EQ(options.PrintBoldGLColor, 10U) << "Black";
    EXPECT_EQ(options.StitchSymbol, 2);
    EXPECT_EQ(options.BackStitchSymbol, 2);
    EXPECT_EQ(options.TextInfoFontName, "Arial");
    EXPECT_EQ(options.LastPatSaveLoc, "*NONE*");
    EXPECT_TRUE(options.UsesInches());
    EXPECT_TRUE(options.GridlinesVisible);
    EXPECT_FALSE(options.AnchorBackstitches);
    EXPECT_DOUBLE_EQ(options.LeftMargin, 0.5);
    EXPECT_EQ(options.PrintBackStitchLineWidthPercentage, 25);
    EXPECT_EQ(options.BackStitchLineWidthPercentage, 30);
}

TEST_F(OptionsTest, CatalogueNameLosesItsFolderAndItsCapitals) {
    store.WriteSetting("Options", "DefaultFlossFile", "C:\\Flosses\\Anchor.COL");
    EXPECT_EQ(Load().DefaultFlossFile, "anchor.col");
}

TEST_F(OptionsTest, BooleansAreFalseOnlyForTheWordFalse) {
    store.WriteSetting("Design Grid Opts", "RulersVisible", "False");
    store.WriteSetting("Design Grid Opts", "GridlinesVisible", "0");
    const Options options = Load();
    EXPECT_FALSE(options.RulersVisible);
    EXPECT_TRUE(options.GridlinesVisible);
}

TEST_F(OptionsTest, PrintStylesComeFromPrinterOptsFirst) {
    store.WriteSetting("Options", "StitchSymbol", "4");
    store.WriteSetting("Options", "BackStitchSymbol", "1");
    EXPECT_EQ(Load().StitchSymbol, 4);
    store.WriteSetting("Printer Opts", "StitchesDisplayAs", "3");
    store.WriteSetting("Printer Opts", "LinesDisplayAs", "-1");
    const Options options = Load();
    EXPECT_EQ(options.StitchSymbol, 3);
    EXPECT_EQ(options.BackStitchSymbol, -1);
}

TEST_F(OptionsTest, ColoursAreLookedUpThroughTheirLists) {
    store.WriteSetting("Design Grid Opts", "ClothColorIndex", "3");
    ColorLists::SaveClothColor(store, 3, {"Sky", 0x123456});
    EXPECT_EQ(Load().ClothColor, 0x123456U);
    EXPECT_EQ(ColorLists::GetClothColor(store, 3).Description, "Sky");
}

TEST_F(OptionsTest, ContextTakesWhatPatternsNeed) {
    store.WriteSetting("Pattern Default Properties", "StitchStrands", "3");
    store.WriteSetting("Pattern Default Properties", "Author", "Ann");
    store.WriteSetting("Options", "Spelling", "British");
    (void)Load();
    EXPECT_EQ(context.StitchStrands, 3);
    EXPECT_EQ(context.DefaultAuthor, "Ann");
    EXPECT_EQ(context.ColorWord(), "Colour");
    EXPECT_NE(context.CurrentCatalogue, nullptr);
}

TEST_F(OptionsTest, FoldersOfStitchesAndFontsComeIntoBeing) {
    const Options options = Load();
    EXPECT_TRUE(std::filesystem::is_directory(options.CustStitchPath));
    EXPECT_TRUE(std::filesystem::is_directory(options.StitchedFontPath));
}

TEST_F(OptionsTest, NonsenseInTheStoreKeepsTheDefault) {
    store.WriteSetting("Printer Opts", "LeftMargin", "wide");
    store.WriteSetting("Design Grid Opts", "GridLineWidthPercentage1", "999");
    const Options options = Load();
    EXPECT_DOUBLE_EQ(options.LeftMargin, 0.5);
    EXPECT_EQ(options.GridLineWidthPercentage1, 100);
}

TEST(OptionsTable, EverySectionHasItsRowsInOnePlace) {
    std::size_t rows = 0;
    for (const char* section : {"Options", "Design Grid Opts", "Printer Opts",
                                "Pattern Default Properties", "Settings", "PatternViewer"}) {
        const auto part = OptionRows(section);
        EXPECT_FALSE(part.empty()) << section;
        for (const OptionRow& row : part) {
            EXPECT_STREQ(row.Section, section);
        }
        rows += part.size();
    }
    EXPECT_EQ(rows, 73U);
    EXPECT_TRUE(OptionRows("Messages").empty());
}

TEST(ColorLists, EightNamesAListAndBlackIsTen) {
    EXPECT_EQ(ColorLists::Default("BoldGLColor", 5), (ColorLists::NamedColor{"Black", 10}));
    EXPECT_EQ(ColorLists::Default("pBoldGLColor", 8), (ColorLists::NamedColor{"Green", 3974448}));
    EXPECT_EQ(ColorLists::Default("pNormalGLColor", 6),
              (ColorLists::NamedColor{"Light Brown", 12638173}));
    EXPECT_EQ(ColorLists::Default("ClothColor", 8), (ColorLists::NamedColor{"Dark Gray", 6052956}));
    for (const char* list : {"ClothColor", "NormalGLColor", "BoldGLColor"}) {
        for (int i = 1; i <= ColorLists::Size; ++i) {
            EXPECT_NE(ColorLists::Default(list, i).Value, 0U);
        }
    }
}

TEST(AppPath, ProgramFolderWithFlossesIsPortable) {
    const TempFolder folder;
    std::filesystem::create_directories(folder / "flosses");
    EXPECT_EQ(AppPath::Resolve(folder.Path(), {}, folder / "user"), folder.Path());
}

TEST(AppPath, InstalledFilesThatAreMissingAreAddedAndChangedOnesKept) {
    const TempFolder folder;
    std::filesystem::create_directories(folder / "bin");
    std::filesystem::create_directories(folder / "share/Flosses");
    test::WriteFile(folder / "share/Flosses/dmc.col", "new");
    test::WriteFile(folder / "share/Flosses/anchor.col", "new");
    std::filesystem::create_directories(folder / "user/Flosses");
    test::WriteFile(folder / "user/Flosses/dmc.col", "mine");
    EXPECT_EQ(AppPath::Resolve(folder / "bin", folder / "share", folder / "user"), folder / "user");
    EXPECT_EQ(test::ReadFile(folder / "user/Flosses/dmc.col"), "mine");
    EXPECT_EQ(test::ReadFile(folder / "user/Flosses/anchor.col"), "new");
}

} // namespace
} // namespace zol
