// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/KeyRows.h"

#include <gtest/gtest.h>

#include "print/PrintScene.h"

namespace zol::test {

namespace {

class KeyRowsTest : public ::testing::Test {
protected:
    void SetUp() override {
        PrintScene::AddFloss(*pattern, 0x112233, "310", 1, "!");
        PrintScene::AddFloss(*pattern, 0x445566, "321", 2, "#");
        PrintScene::AddFloss(*pattern, 0x778899, "403", 1, "$", "Anchor");
        options.MapFlosses = "anchor.col|missing.col";
    }

    KeySection Section(bool isOther, bool isBackstitch = false) {
        pattern->CountStitches();
        return KeyRows(*pattern, options).MakeSection(isOther, isBackstitch);
    }

    PrintScene scene;
    std::unique_ptr<Pattern> pattern = scene.MakePattern(20, 20);
    PrintOptions options;
};

QStringList Q(std::initializer_list<const char*> texts) {
    QStringList list;
    for (const char* text : texts) {
        list.append(QString::fromUtf8(text));
    }
    return list;
}

} // namespace

TEST_F(KeyRowsTest, PaletteWithoutAStitchedFlossHasNoRows) {
    EXPECT_TRUE(Section(false).Rows.empty());
    EXPECT_TRUE(Section(true).Rows.empty());
    EXPECT_TRUE(Section(false, true).Rows.empty());
}

TEST_F(KeyRowsTest, MainCatalogueAndOthersAreApart) {
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    pattern->SetStitch(2, 1, StitchWhole, 3, 5);
    const KeySection main = Section(false);
    ASSERT_EQ(main.Rows.size(), 1U);
    EXPECT_EQ(main.Rows[0].Manus, Q({"310", "403"}));
    EXPECT_EQ(main.Rows[0].Desc, QStringLiteral("Floss 310"));
    EXPECT_EQ(main.Rows[0].Symbol, '!');
    EXPECT_EQ(main.Rows[0].Floss, 0x112233U);
    const KeySection other = Section(true);
    ASSERT_EQ(other.Rows.size(), 1U);
    EXPECT_EQ(other.Rows[0].Manus, Q({"Anchor 403"}));
}

TEST_F(KeyRowsTest, BlendOfTwoMainFlossesIsListedUnderOthers) {
    pattern->GetPalette().BlendFloss(1, 0, "321", "DMC", "Red", 2);
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    EXPECT_TRUE(Section(false).Rows.empty());
    const KeySection other = Section(true);
    ASSERT_EQ(other.Rows.size(), 1U);
    EXPECT_EQ(other.Rows[0].Manus, Q({"310/321"}));
    EXPECT_EQ(other.Title, QStringLiteral("Legend: Other Manufacturers"));
}

TEST_F(KeyRowsTest, MissingEquivalentIsABlank) {
    pattern->GetPalette().SetFlossMasterID(1, 77);
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    EXPECT_EQ(Section(false).Rows[0].Manus, Q({"310", " "}));
}

TEST_F(KeyRowsTest, FlossWithoutIdentityIsNotMappedToAUsersOwn) {
    auto own = scene.MakeCatalogue("Mine", "mine.col", {"X1"});
    own->AddEntry(0, "Mine", "X2", 0, 0, 0, 0, 0, 0, "");
    ASSERT_TRUE(own->SaveToFile({}));
    options.MapFlosses = "mine.col";
    pattern->GetPalette().SetFlossMasterID(1, 0);
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    EXPECT_EQ(Section(false).Rows[0].Manus, Q({"310", " "}));
}

TEST_F(KeyRowsTest, PatternThatForbidsMappingHasNoFurtherColumns) {
    pattern->SetNoMapping();
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    const KeySection section = Section(false);
    EXPECT_EQ(section.Rows[0].Manus, Q({"310"}));
    EXPECT_EQ(section.Title, QStringLiteral("Legend: DMC"));
}

TEST_F(KeyRowsTest, TitlesNameCataloguesAndStrands) {
    EXPECT_EQ(Section(false).Title, QStringLiteral("Legend: DMC / Anchor"));
    EXPECT_EQ(Section(true, true).Title, QStringLiteral("Backstitches: Other Manufacturers"));
    options.PrintStrands = true;
    EXPECT_EQ(Section(false).Title, QStringLiteral("Legend: DMC / Anchor (strands)"));
    EXPECT_EQ(Section(false, true).Title, QStringLiteral("Backstitches: DMC / Anchor (strands)"));
    options.PrintManuID = false;
    EXPECT_EQ(Section(false).Title, QStringLiteral("Legend: DMC (strands)"));
}

TEST_F(KeyRowsTest, StrandsAreThoseOfTheSection) {
    options.PrintStrands = true;
    pattern->GetPalette().SetFlossStrands(1, 3, 1);
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    BackStitchLine line{1, 1, 1, 5, 5, 1, 1, LineDashed};
    pattern->SetBackstitchLine(line);
    EXPECT_EQ(Section(false).Rows[0].Desc, QStringLiteral("Floss 310 (3)"));
    pattern->GetPalette().SetDefaultBSType(1, LineTracks);
    const KeySection lines = Section(false, true);
    ASSERT_EQ(lines.Rows.size(), 1U);
    EXPECT_EQ(lines.Rows[0].Desc, QStringLiteral("Floss 310 (1)"));
    EXPECT_EQ(lines.Rows[0].Symbol, LineTracks);
    options.PrintManuDesc = false;
    EXPECT_EQ(Section(false).Rows[0].Desc, QStringLiteral(" (3)"));
}

TEST_F(KeyRowsTest, WithoutManuIDARowHasOnlyTheDescription) {
    options.PrintManuID = false;
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    const PageFont font = PageFont::TextInfo(options);
    const KeySection section = Section(false);
    const KeyColumns columns = KeyRows(*pattern, options).MeasureKeyColumns(section, font);
    EXPECT_TRUE(columns.Manus.empty());
    EXPECT_EQ(columns.Desc, font.TextWidth(QStringLiteral("Floss 310")));
    EXPECT_EQ(columns.Row, 2 * font.TextWidth(QStringLiteral(" ")) + columns.Desc);
}

TEST_F(KeyRowsTest, RowWidthIsThatOfItsColumns) {
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    pattern->SetStitch(2, 1, StitchWhole, 2, 5);
    const PageFont font = PageFont::TextInfo(options);
    const KeyRows rows(*pattern, options);
    const KeyColumns columns = rows.MeasureKeyColumns(Section(false), font);
    ASSERT_EQ(columns.Manus.size(), 2U);
    EXPECT_EQ(columns.Manus[0], font.TextWidth(QStringLiteral("310")));
    EXPECT_EQ(columns.Manus[1], font.TextWidth(QStringLiteral("9046")));
    EXPECT_EQ(columns.Row, columns.Manus[0] + font.TextWidth(QStringLiteral(" ")) +
                               font.TextWidth(QStringLiteral(" / ")) + columns.Manus[1] +
                               font.TextWidth(QStringLiteral(" ")) + columns.Desc);
}

TEST_F(KeyRowsTest, RowsFollowTheDisplayOrder) {
    pattern->SetStitch(1, 1, StitchWhole, 1, 5);
    pattern->SetStitch(2, 1, StitchWhole, 2, 5);
    pattern->GetPalette().SwapSortIndexes(1, 2);
    const KeySection section = Section(false);
    ASSERT_EQ(section.Rows.size(), 2U);
    EXPECT_EQ(section.Rows[0].Manus[0], QStringLiteral("321"));
}

} // namespace zol::test
