// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <map>

#include "flosses/AvailColors.h"
#include "settings/ColorLists.h"
#include "settings/INIFuncs.h"
#include "settings/OptionsTable.h"
#include "settings/basOptions.h"
#include "support/TempFolder.h"

namespace zol {
namespace {

/// Keeps what is written, by "section/name".
class WrittenSettings : public SettingsDoor {
public:
    std::string ReadSetting(const std::string& /*section*/, const std::string& /*name*/,
                            const std::string& defaultValue) const override {
        return defaultValue;
    }
    void WriteSetting(const std::string& section, const std::string& name,
                      const std::string& value) override {
        const bool isNew = values.emplace(section + "/" + name, value).second;
        EXPECT_TRUE(isNew) << section << "/" << name << " is written twice";
    }

    std::map<std::string, std::string> values;
};

TEST(SaveOptions, WritesWhatTheDialogEditsAndNoMore) {
    WrittenSettings store;
    Options options;
    options.LeftMargin = 0.635;
    options.MapFlosses = "anchor.col|jpc.col";
    options.AnchorBackstitches = true;
    options.UseSmartQS = 0;
    options.StitchSymbol = 5;
    options.BackStitchSymbol = -1;
    basOptions::SaveOptions(options, store);
    // One for each value of the table of controls.
    EXPECT_EQ(store.values.size(), 62U);
    EXPECT_EQ(store.values.at("Printer Opts/LeftMargin"), "0.635");
    EXPECT_EQ(store.values.at("Printer Opts/StitchesDisplayAs"), "5");
    EXPECT_EQ(store.values.at("Printer Opts/LinesDisplayAs"), "-1");
    EXPECT_EQ(store.values.at("Options/MapFlosses"), "anchor.col|jpc.col");
    EXPECT_EQ(store.values.at("Options/UseSmartQS"), "0");
    EXPECT_EQ(store.values.at("Options/UseSmart3QS"), "1");
    EXPECT_EQ(store.values.at("Design Grid Opts/AnchorBackstitches"), "TRUE");
    EXPECT_EQ(store.values.at("Design Grid Opts/RulersVisible"), "TRUE");
    for (const char* kept :
         {"Options/ShowWelcome", "Options/LastTipShown", "Options/LastPatSaveLoc",
          "Options/LastSelectedLibrary", "Options/Spelling", "Options/StitchSymbol",
          "Pattern Default Properties/PatternWidth", "Settings/BasePath",
          "PatternViewer/LastCategory"}) {
        EXPECT_EQ(store.values.count(kept), 0U) << kept;
    }
}

class SavedOptionsTest : public ::testing::Test {
protected:
    SavedOptionsTest() { context.AppPath = folder.Path(); }

    test::TempFolder folder;
    INIFuncs store{folder / "s.ini"};
    ProgramContext context;
};

TEST_F(SavedOptionsTest, SavedOptionsComeBack) {
    Options options = basOptions::LoadOptions(store, context);
    options.Units = "centimetres";
    options.TopMargin = 1.0 / 3;
    options.GridlinesVisible = false;
    options.PaletteDisplayRows = 3;
    options.TextInfoFontName = "Noto Serif";
    options.StitchSymbol = 4;
    options.BackStitchSymbol = 1;
    options.Title = "Rose, red; 50%";
    basOptions::SaveOptions(options, store);
    const Options again = basOptions::LoadOptions(store, context);
    EXPECT_FALSE(again.UsesInches());
    EXPECT_EQ(again.TopMargin, options.TopMargin) << "every digit";
    EXPECT_FALSE(again.GridlinesVisible);
    EXPECT_EQ(again.PaletteDisplayRows, 3);
    EXPECT_EQ(again.TextInfoFontName, "Noto Serif");
    EXPECT_EQ(again.StitchSymbol, 4);
    EXPECT_EQ(again.BackStitchSymbol, 1);
    EXPECT_EQ(again.Title, options.Title);
}

TEST_F(SavedOptionsTest, ChoicesAreFollowedByColoursAndContext) {
    Options options = basOptions::LoadOptions(store, context);
    ColorLists::SaveClothColor(store, 4, {"Wine", 0x201080});
    options.ClothColorIndex = 4;
    options.GridlineColor2Index = 8;
    options.BackStitchStrands = 1;
    const auto before = context.CurrentCatalogue;
    basOptions::FollowChoices(store, options, context);
    EXPECT_EQ(options.ClothColor, 0x201080U);
    EXPECT_EQ(options.BoldGLColor, 3974448U) << "the eighth, which is not shown";
    EXPECT_EQ(context.BackStitchStrands, 1);
    EXPECT_NE(context.CurrentCatalogue, before);
}

} // namespace
} // namespace zol
