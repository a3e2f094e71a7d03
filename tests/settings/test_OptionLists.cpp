// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include "settings/ColorLists.h"
#include "settings/INIFuncs.h"
#include "settings/OptionLists.h"
#include "support/TempFolder.h"

namespace zol {
namespace {

using OptionLists::Items;
using ::testing::ElementsAre;
using ::testing::SizeIs;

TEST(OptionLists, StylesSpellTheWordForColour) {
    EXPECT_THAT(OptionLists::DisplayStyles("Colour"),
                ElementsAre(OptionItem{"Coloured Squares", 1}, OptionItem{"B&W Symbols", 2},
                            OptionItem{"Coloured Symbols", 3}, OptionItem{"Blocks & Symbols", 4},
                            OptionItem{"Coloured Stitches", 5}, OptionItem{"Virtual Stitches", 6}));
    EXPECT_EQ(OptionLists::DisplayStyles("Color")[0].Text, "Colored Squares");
}

TEST(OptionLists, PrintStylesStandInTheirOwnOrder) {
    EXPECT_THAT(OptionLists::PrintStitchStyles("Color"),
                ElementsAre(OptionItem{"Black Symbols", 2}, OptionItem{"Color Symbols", 3},
                            OptionItem{"Color Blocks", 1}, OptionItem{"Color Stitches", 5},
                            OptionItem{"Color Blocks and Symbols", 4}, OptionItem{"None", -1}));
    EXPECT_THAT(OptionLists::PrintLineStyles("Colour"),
                ElementsAre(OptionItem{"Black Lines", 2}, OptionItem{"Colour Lines", 1},
                            OptionItem{"None", -1}));
}

TEST(OptionLists, UpdatesGoByDays) {
    EXPECT_THAT(OptionLists::UpdateIntervals(),
                ElementsAre(OptionItem{"Never", 0}, OptionItem{"Every Day", 1},
                            OptionItem{"Once a Week", 7}, OptionItem{"Once a Month", 30},
                            OptionItem{"Twice a Year", 180}));
}

TEST(OptionLists, NumbersReachFromEndToEnd) {
    EXPECT_THAT(OptionLists::WidthPercents(), SizeIs(51));
    EXPECT_EQ(OptionLists::WidthPercents().front().Text, "0");
    EXPECT_EQ(OptionLists::WidthPercents().back(), (OptionItem{"50", 50}));
    EXPECT_EQ(OptionLists::ClothCounts().front().Value, 1);
    EXPECT_EQ(OptionLists::ClothCounts().back().Value, 40);
    EXPECT_EQ(OptionLists::PaletteRows().back().Value, 5);
    EXPECT_THAT(OptionLists::PaletteSizes(), SizeIs(3));
    EXPECT_EQ(OptionLists::SortOrders("Colour").back(), (OptionItem{"Colour", 4}));
}

class ColorListsTest : public ::testing::Test {
protected:
    test::TempFolder folder;
    INIFuncs store{folder / "s.ini"};
};

TEST_F(ColorListsTest, SevenColoursAreOfferedWithTheirIndexes) {
    ColorLists::SaveClothColor(store, 2, {"Sand", 0x99AABB});
    const Items items = OptionLists::Colors(store, ColorLists::ClothList);
    ASSERT_THAT(items, SizeIs(7));
    EXPECT_EQ(items[0], (OptionItem{"Bright White", 1}));
    EXPECT_EQ(items[1], (OptionItem{"Sand", 2}));
    EXPECT_EQ(items[6], (OptionItem{"Navy Blue", 7}));
}

TEST_F(ColorListsTest, WritingSevenLinesLeavesTheEighth) {
    ColorLists::SaveGridColor(store, ColorLists::PrintBoldLines, 8, {"Moss", 0x112233});
    auto lines = ColorLists::LoadColorsList(store, ColorLists::PrintBoldList);
    ASSERT_THAT(lines, SizeIs(7));
    lines[6].Description = "Sky";
    ColorLists::SaveColorsList(store, ColorLists::PrintBoldList, lines);
    EXPECT_EQ(ColorLists::GetGridColor(store, "pBoldGLColor", 7).Description, "Sky");
    EXPECT_EQ(ColorLists::GetGridColor(store, "pBoldGLColor", 8),
              (ColorLists::NamedColor{"Moss", 0x112233}));
    EXPECT_EQ(store.ReadSetting("PBoldGLColor", "Desc1", ""), "Very Light");
}

TEST_F(ColorListsTest, CaptionsNameTheList) {
    EXPECT_EQ(ColorLists::CaptionOf(1, false), "Customize Cloth Colors");
    EXPECT_EQ(ColorLists::CaptionOf(1, true), "Customise Cloth Colours");
    EXPECT_EQ(ColorLists::CaptionOf(2, false), "Customize Normal Grid Line Colors");
    EXPECT_EQ(ColorLists::CaptionOf(3, false), "Customize Bold Grid Line Colors");
    EXPECT_EQ(ColorLists::CaptionOf(4, true), "Customise Normal Printed Grid Line Colours");
    EXPECT_EQ(ColorLists::CaptionOf(5, false), "Customize Bold Printed Grid Line Colors");
    EXPECT_STREQ(ColorLists::SectionOf(4), "pNormalGLColor");
}

TEST_F(ColorListsTest, NonRepresentativeColoursGoOutAndIn) {
    EXPECT_TRUE(ColorLists::LoadNonRepColors(store).empty());
    const std::vector<ColorLists::NamedColor> lines{{"Neon", 0x00FF00}, {"Black", 0}};
    ColorLists::SaveNonRepColors(store, lines);
    EXPECT_EQ(store.ReadSetting("NonRepColors", "Count", ""), "2");
    EXPECT_EQ(store.ReadSetting("NonRepColors", "Color1", ""), "65280");
    EXPECT_EQ(ColorLists::LoadNonRepColors(store), lines);
    ColorLists::SaveNonRepColors(store, {});
    EXPECT_TRUE(ColorLists::LoadNonRepColors(store).empty());
}

TEST_F(ColorListsTest, ACountWithoutLinesEndsWhereTheyEnd) {
    ColorLists::SaveNonRepColors(store, {{"Neon", 1}});
    for (const char* count : {"2000000000", "-5", "many"}) {
        store.WriteSetting("NonRepColors", "Count", count);
        EXPECT_LE(ColorLists::LoadNonRepColors(store).size(), 1U) << count;
    }
    store.WriteSetting("NonRepColors", "Count", "2000000000");
    EXPECT_THAT(ColorLists::LoadNonRepColors(store), SizeIs(1));
}

} // namespace
} // namespace zol
