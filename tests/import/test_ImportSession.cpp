// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/ImportSession.h"

#include <gtest/gtest.h>

#include "import/SampleCatalogue.h"
#include "model/CodePage.h"
#include "model/Pattern.h"
#include "model/ProgramContext.h"
#include "support/RecordingDoors.h"

using namespace zol;

namespace {

constexpr ImportStatus::Outcome Done = ImportStatus::Outcome::Done;
constexpr Colour Red = MakeColour(200, 0, 0);
constexpr Colour Blue = MakeColour(0, 0, 200);
constexpr Colour White = 0x00FFFFFF;

class Import : public ::testing::Test {
protected:
    Import() { context.Progress = &progress; }

    AvailColors CatalogueOf(const std::vector<Colour>& colours) const {
        return test::CatalogueOf(context, colours);
    }

    Palette PaletteOf(const std::vector<Colour>& colours, const std::string& symbols) {
        Palette palette = Palette::Empty(context);
        for (std::size_t i = 0; i < colours.size(); ++i) {
            palette.AddPaletteEntry(colours[i], std::to_string(i + 1), "thread", "Mill",
                                    symbols.substr(i, 1), 3, 1, 0, 7, 4, "The Mill");
        }
        return palette;
    }

    /// Colours that are told apart on the match curve, at most 200 of them.
    static std::vector<Colour> Shades(unsigned count) {
        std::vector<Colour> shades;
        for (unsigned i = 0; i < count; ++i) {
            shades.push_back(MakeColour(255 - i % 100, i < 100 ? 0 : 255, 0));
        }
        return shades;
    }

    static Picture RowOf(const std::vector<Colour>& colours) {
        Picture picture(static_cast<int>(colours.size()), 1);
        picture.Pixels() = colours;
        return picture;
    }

    ImportStatus Create(int maxColors = 200) {
        return session.CreateThePattern(pattern, maxColors, 16, 18);
    }

    ProgramContext context;
    test::RecordingProgress progress;
    Pattern pattern{context};
    ImportSession session{context};
};

TEST_F(Import, NothingChosenIsSaidInWords) {
    EXPECT_EQ(Create().Message, "You must select an image to import");
    session.SetImage(Picture(2, 2));
    EXPECT_EQ(Create().Message, "You must select a floss family to import.");
    EXPECT_EQ(session.ValidateMapping(30, false), "You must select a floss palette to import.");
    session.ChooseCatalogue(CatalogueOf({Red}));
    EXPECT_EQ(Create(201).Message, "Pattern can contain no more than 200 colors");
    EXPECT_EQ(Create(0).Message, "Pattern must contain at least one color");
}

TEST_F(Import, APatternOfFullStitchesWithTheSurvivorsAsPalette) {
    session.SetImage([] {
        Picture picture(2, 2);
        picture.Pixels() = {Red, Blue, EraseColor, Red};
        return picture;
    }());
    session.ChooseCatalogue(CatalogueOf({White, Blue, MakeColour(0, 250, 0), Red}));
    ASSERT_EQ(Create().Result, Done);
    EXPECT_EQ(pattern.GetPatternWidth(), 2);
    EXPECT_EQ(pattern.GetPatternClothCountX(), 16);
    EXPECT_EQ(pattern.GetPatternClothCountY(), 18);
    const Palette& palette = pattern.GetPalette();
    ASSERT_EQ(palette.GetEntriesCount(), 2);
    EXPECT_EQ(palette.GetFlossRGB(1), Blue);
    EXPECT_EQ(palette.GetManufID(1), "2");
    EXPECT_EQ(palette.GetFlossShortDesc(1), "floss 2");
    EXPECT_EQ(palette.GetManufShortDesc(1), "Maker");
    EXPECT_EQ(palette.GetManufLongDesc(1), "Maker and Sons");
    EXPECT_EQ(palette.GetFlossMasterID(1), 1001);
    EXPECT_EQ(palette.GetEntry(1).EntryTag, 2);
    EXPECT_EQ(palette.GetFlossStitchStrands(1), context.StitchStrands);
    EXPECT_EQ(palette.GetDefaultBSType(1), 0);
    EXPECT_EQ(pattern.Cell(1, 1), (StitchCell{StitchWhole, 2, 0}));
    EXPECT_EQ(pattern.Cell(2, 1), (StitchCell{StitchWhole, 1, 0}));
    EXPECT_EQ(pattern.Cell(1, 2), StitchCell{});
    EXPECT_EQ(pattern.Cell(2, 2), (StitchCell{StitchWhole, 2, 0}));
    EXPECT_EQ(session.Figures().Stitches, 3);
    EXPECT_EQ(session.Figures().Flosses, (std::vector<ImportFigures::FlossUse>{{1, 1}, {2, 2}}));
}

TEST_F(Import, TheNewPaletteIsSortedAsTheOldOneWas) {
    pattern.GetPalette().Sort(SortColor);
    session.SetImage(RowOf({Red, Blue, MakeColour(0, 250, 0)}));
    session.ChooseCatalogue(CatalogueOf({Red, Blue, MakeColour(0, 250, 0)}));
    ASSERT_EQ(Create().Result, Done);
    const Palette& palette = pattern.GetPalette();
    EXPECT_EQ(palette.GetSortOrder(), SortColor);
    Palette sorted = palette;
    sorted.Sort(SortColor);
    for (int place = 1; place <= 3; ++place) {
        EXPECT_EQ(palette.GetSortIndex(place), sorted.GetSortIndex(place)) << place;
    }
    EXPECT_NE(palette.GetSortIndex(1) * 100 + palette.GetSortIndex(2) * 10 +
                  palette.GetSortIndex(3),
              123);
}

TEST_F(Import, APictureAllErasedGivesNoStitchAndAnEmptyPalette) {
    session.SetImage(Picture(12, 12));
    session.ChooseCatalogue(CatalogueOf({Red, White}));
    ASSERT_EQ(Create().Result, Done);
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 0);
    EXPECT_EQ(pattern.Cells(), std::vector<StitchCell>(144));
    EXPECT_TRUE(pattern.IsChanged()); // what was there before is gone
}

TEST_F(Import, ARealWhiteAreaIsStitchedInWhite) {
    session.SetImage(RowOf({WhiteStandIn, EraseColor}));
    session.ChooseCatalogue(CatalogueOf({Red, White}));
    ASSERT_EQ(Create().Result, Done);
    EXPECT_EQ(pattern.GetPalette().GetFlossRGB(1), White);
    EXPECT_EQ(pattern.Cell(1, 1).StitchType, StitchWhole);
    EXPECT_EQ(pattern.Cell(2, 1).StitchType, NoStitch);
}

TEST_F(Import, FinishBeforeAnyPreviewMakesIt) {
    session.SetImage(RowOf({Red, Blue}));
    session.ChooseCatalogue(CatalogueOf({Red, Blue}));
    EXPECT_TRUE(session.Preview().IsEmpty());
    ASSERT_EQ(Create().Result, Done);
    EXPECT_EQ(session.Preview(), RowOf({Red, Blue}));
    ASSERT_EQ(progress.started.size(), 3U);
    EXPECT_EQ(progress.started[2].first, "Creating Pattern");
}

TEST_F(Import, ChoosingFlossesAnewDropsThePreview) {
    session.SetImage(RowOf({Red, Blue}));
    session.ChooseCatalogue(CatalogueOf({Red, Blue}));
    ASSERT_EQ(session.RecolorImage(5).Result, Done);
    EXPECT_FALSE(session.Preview().IsEmpty());
    session.ChooseCatalogue(CatalogueOf({Blue}));
    EXPECT_TRUE(session.Preview().IsEmpty());
}

TEST_F(Import, SymbolsGoOutInCandidateOrderAndJumpTheCodesWithoutSign) {
    const std::vector<Colour> shades = Shades(200);
    session.SetImage(RowOf(shades));
    std::vector<Colour> flosses = shades;
    flosses.resize(300, MakeColour(255, 0, 0)); // the limit of the search is the candidates' number
    session.ChooseCatalogue(CatalogueOf(flosses));
    ASSERT_EQ(Create().Result, Done);
    const Palette& palette = pattern.GetPalette();
    ASSERT_EQ(palette.GetEntriesCount(), 200);
    for (int i = 1; i <= 200; ++i) {
        ASSERT_EQ(palette.GetFlossSymbol(i), Palette::SymbolCode(i)) << i;
    }
    EXPECT_EQ(session.Figures().FlossesSharingSymbol, 0);
}

TEST_F(Import, ASmallCatalogueGivesSeveralFlossesOneSymbol) {
    // 40 candidates: the search stops at code 40, the eighth symbol.
    session.SetImage(RowOf(Shades(40)));
    session.ChooseCatalogue(CatalogueOf(Shades(40)));
    ASSERT_EQ(Create().Result, Done);
    const Palette& palette = pattern.GetPalette();
    EXPECT_EQ(palette.GetFlossSymbol(7), 39);
    EXPECT_EQ(palette.GetFlossSymbol(8), 40);
    EXPECT_EQ(palette.GetFlossSymbol(9), 40);
    EXPECT_EQ(palette.GetFlossSymbol(40), 40);
    EXPECT_EQ(session.Figures().FlossesSharingSymbol, 33);
}

TEST_F(Import, WithFewerThan33CandidatesAllShareTheFirstSymbol) {
    session.SetImage(RowOf(Shades(3)));
    session.ChooseCatalogue(CatalogueOf(Shades(3)));
    ASSERT_EQ(Create().Result, Done);
    EXPECT_EQ(pattern.GetPalette().GetFlossSymbol(3), 33);
    EXPECT_EQ(session.Figures().FlossesSharingSymbol, 3);
}

TEST_F(Import, ASavedPaletteReplacesThePatternsWhole) {
    session.SetImage(RowOf({Blue}));
    session.ChoosePalette(PaletteOf({Red, Blue}, "ab"));
    EXPECT_EQ(session.ProposedMaxColors(), 2);
    ASSERT_EQ(Create().Result, Done);
    const Palette& palette = pattern.GetPalette();
    ASSERT_EQ(palette.GetEntriesCount(), 2); // the unused entry stays
    EXPECT_EQ(palette.GetFlossSymbol(2), 'b');
    EXPECT_EQ(pattern.Cell(1, 1).PaletteIndex, 2);
}

TEST_F(Import, ABlendOfASavedPaletteIsMatchedMixedAndArrivesAsItsPrimaryThread) {
    Palette palette = PaletteOf({MakeColour(200, 0, 0), MakeColour(0, 200, 0)}, "ab");
    palette.BlendFloss(1, MakeColour(0, 0, 200), "9", "Mill", "blue", 8);
    session.SetImage(RowOf({MakeColour(100, 0, 100)}));
    session.ChoosePalette(palette);
    EXPECT_EQ(session.Candidates().ColorRGB[1], MakeColour(100, 0, 100));
    ASSERT_EQ(Create().Result, Done);
    EXPECT_FALSE(pattern.GetPalette().IsBlended(1));
    EXPECT_EQ(pattern.GetPalette().GetFlossRGB(1), MakeColour(200, 0, 0));
}

TEST_F(Import, TheCurrentPaletteLosesItsBlends) {
    pattern.Initialize(5, 5, 14, 14);
    pattern.GetPalette() = PaletteOf({Red, Blue}, "ab");
    pattern.GetPalette().BlendFloss(1, Blue, "9", "Mill", "blue", 8);
    session.SetImage(RowOf({Red, Blue, Red}));
    session.ChooseCurrentPalette(pattern.GetPalette());
    EXPECT_EQ(session.Candidates().ColorRGB[1], Red);
    ASSERT_EQ(Create().Result, Done);
    EXPECT_EQ(pattern.GetPatternWidth(), 3);
    EXPECT_FALSE(pattern.GetPalette().IsBlended(1));
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 2);
}

TEST_F(Import, AnEmptyPaletteProposesNoColoursAndIsRefused) {
    session.SetImage(RowOf({Red}));
    session.ChoosePalette(Palette::Empty(context));
    EXPECT_EQ(session.ProposedMaxColors(), 0);
    EXPECT_EQ(session.ValidateMapping(session.ProposedMaxColors(), false),
              "Pattern must contain at least one color");
}

TEST_F(Import, ProposedColoursOfACatalogueStopAt50) {
    session.ChooseCatalogue(CatalogueOf(Shades(20)));
    EXPECT_EQ(session.ProposedMaxColors(), 20);
    session.ChooseCatalogue(CatalogueOf(std::vector<Colour>(220, Red)));
    EXPECT_EQ(session.ProposedMaxColors(), 50);
    EXPECT_EQ(session.Candidates().MaxColorLimit(), 200);
}

class ImportIntoEditBox : public Import {
protected:
    ImportIntoEditBox() {
        pattern.Initialize(10, 10, 14, 14);
        pattern.GetPalette() = PaletteOf({Red, MakeColour(0, 90, 0)}, "!z");
        pattern.SetStitch(1, 1, StitchWhole, 2, 5);
        pattern.SetStitch(4, 3, StitchWhole, 2, 5);
        session.UseEditBox(2, 1, pattern.GetPalette());
    }
};

TEST_F(ImportIntoEditBox, ThePictureFallsOnTheBoxAndTheRestStays) {
    session.SetImage([] {
        Picture picture(2, 2);
        picture.Pixels() = {Blue, Red, EraseColor, EraseColor};
        return picture;
    }());
    session.ChooseCatalogue(CatalogueOf({Blue}));
    ASSERT_EQ(Create().Result, Done);
    EXPECT_EQ(pattern.GetPatternWidth(), 10);
    EXPECT_EQ(pattern.GetPatternClothCountX(), 14);
    EXPECT_EQ(pattern.Cell(3, 2).PaletteIndex, 3); // the first pixel
    EXPECT_EQ(pattern.Cell(4, 2).PaletteIndex, 1);
    EXPECT_EQ(pattern.Cell(4, 3).PaletteIndex, 2); // erased there: the square stays as it was
    EXPECT_EQ(pattern.Cell(1, 1).PaletteIndex, 2);
    const Palette& palette = pattern.GetPalette();
    ASSERT_EQ(palette.GetEntriesCount(), 3);
    EXPECT_EQ(palette.GetFlossRGB(3), Blue);
    EXPECT_EQ(palette.GetManufID(3), "1");
    EXPECT_EQ(palette.GetEntry(3).EntryTag, 3);
}

TEST_F(ImportIntoEditBox, ThePatternsFlossesAreLockedAndCountAgainstTheMaximum) {
    session.SetImage(RowOf({Blue, Blue}));
    session.ChooseCatalogue(CatalogueOf({Blue, MakeColour(0, 0, 190)}));
    EXPECT_EQ(session.Candidates().LockedColors(), 2);
    EXPECT_EQ(session.Candidates().NumColors(), 4);
    EXPECT_EQ(Create(1).Message,
              "You must import to at least the 2 colors in your current palette");
    ASSERT_EQ(Create(2).Result, Done);
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 2); // blue had to go
}

TEST_F(ImportIntoEditBox, ASavedPalettesSurvivorsJoinAndKeepSymbolsThatAreFree) {
    session.SetImage(RowOf({Blue, MakeColour(240, 240, 0)}));
    session.ChoosePalette(PaletteOf({Blue, MakeColour(240, 240, 0), White}, "!q "));
    EXPECT_EQ(session.ProposedMaxColors(), 5);
    ASSERT_EQ(Create().Result, Done);
    const Palette& palette = pattern.GetPalette();
    ASSERT_EQ(palette.GetEntriesCount(), 4);
    EXPECT_EQ(palette.GetFlossSymbol(3), '"'); // "!" was taken: the next from 33 on
    EXPECT_EQ(palette.GetFlossSymbol(4), 'q');
    EXPECT_EQ(palette.GetFlossStitchStrands(3), 3);
    EXPECT_EQ(palette.GetFlossBackStitchStrands(3), 1);
    EXPECT_EQ(palette.GetDefaultBSType(3), 4);
    EXPECT_EQ(palette.GetManufLongDesc(3), "The Mill");
}

TEST_F(ImportIntoEditBox, SymbolsForASavedPaletteAreSearchedUpToCode212) {
    // The pattern's flosses take all codes from 33 to 211.
    Palette own = Palette::Empty(context);
    for (unsigned code = 33; code < 212; ++code) {
        const bool gap =
            (code > 126 && code < 130) || (code > 140 && code < 145) || (code > 156 && code < 159);
        if (!gap) {
            std::string symbol;
            CodePage::AppendUtf8(symbol, CodePage::ToUnicode(static_cast<std::uint8_t>(code)));
            own.AddPaletteEntry(MakeColour(code, 255, 0), "1", "own", "Own", symbol, 2, 1, 1, 1, 0,
                                "Own");
        }
    }
    pattern.GetPalette() = own;
    const int flosses = own.GetEntriesCount();
    session.UseEditBox(2, 1, pattern.GetPalette());
    session.SetImage(RowOf({Blue, MakeColour(90, 0, 90)}));
    session.ChoosePalette(PaletteOf({Blue, MakeColour(90, 0, 90)}, "!!"));
    ASSERT_EQ(Create().Result, Done);
    ASSERT_EQ(pattern.GetPalette().GetEntriesCount(), flosses + 2);
    EXPECT_EQ(pattern.GetPalette().GetFlossSymbol(flosses + 1), 212);
    EXPECT_EQ(pattern.GetPalette().GetFlossSymbol(flosses + 2), 212); // the search ends there
}

TEST_F(ImportIntoEditBox, TheCurrentPaletteStaysAsItsOwnCopy) {
    session.SetImage(RowOf({Red}));
    session.ChooseCurrentPalette(pattern.GetPalette());
    EXPECT_EQ(session.ProposedMaxColors(), 2);
    EXPECT_EQ(session.Candidates().NumColors(), 4);
    ASSERT_EQ(Create().Result, Done);
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 2);
    EXPECT_EQ(pattern.Cell(3, 2).PaletteIndex, 1);
}

TEST_F(ImportIntoEditBox, WhatLiesOutsideTheGridIsLost) {
    session.UseEditBox(9, 9, pattern.GetPalette());
    session.SetImage(RowOf({Red, Red, Red}));
    session.ChooseCurrentPalette(pattern.GetPalette());
    ASSERT_EQ(Create().Result, Done);
    EXPECT_EQ(pattern.Cell(10, 10).PaletteIndex, 1);
}

TEST_F(ImportIntoEditBox, ACancelAtAnyPointLeavesThePatternAsItWas) {
    session.UseWholePattern();
    Picture picture(20, 10);
    std::fill(picture.Pixels().begin(), picture.Pixels().end(), Blue);
    session.ChooseCatalogue(CatalogueOf({Blue}));
    const std::vector<StitchCell> before = pattern.Cells();
    for (const int asked : {0, 50, 101, 150, 202, 203, 302}) {
        session.SetImage(picture); // without a preview
        progress = {};
        progress.cancelAfter = asked;
        EXPECT_EQ(Create().Result, ImportStatus::Outcome::Cancelled) << asked;
        EXPECT_EQ(pattern.Cells(), before);
        EXPECT_EQ(pattern.GetPatternWidth(), 10);
        EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 2);
    }
    progress = {};
    progress.cancelAfter = 303;
    session.SetImage(picture);
    EXPECT_EQ(Create().Result, Done);
}

TEST_F(ImportIntoEditBox, TheChangeIsAnnouncedJustBeforeItAndOnlyIfItComes) {
    session.SetImage(RowOf({Blue, Red}));
    session.ChooseCatalogue(CatalogueOf({Blue}));
    int announced = 0;
    const auto announce = [this, &announced] {
        ++announced;
        EXPECT_EQ(pattern.Cell(3, 2), StitchCell{});
        EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 2);
    };
    EXPECT_FALSE(session.CreateThePattern(pattern, 1, 14, 14, announce).IsDone());
    progress.cancelAfter = 0;
    EXPECT_FALSE(session.CreateThePattern(pattern, 9, 14, 14, announce).IsDone());
    EXPECT_EQ(announced, 0);
    progress.cancelAfter = -1;
    EXPECT_TRUE(session.CreateThePattern(pattern, 9, 14, 14, announce).IsDone());
    EXPECT_EQ(announced, 1);
}

TEST_F(ImportIntoEditBox, FlossesThatArriveJustBeforeTheChangeKeepTheirNumbers) {
    constexpr Colour late = MakeColour(0, 200, 200);
    session.SetImage(RowOf({Blue, Red}));
    session.ChooseCatalogue(CatalogueOf({Blue}));
    const auto land = [this] {
        pattern.GetPalette().AddPaletteEntry(late, "9", "late", "Mill", "L", 2, 1, 0, 0, 0, {});
        pattern.SetStitch(9, 9, StitchWhole, 3, 5);
    };
    ASSERT_TRUE(session.CreateThePattern(pattern, 9, 14, 14, land).IsDone());
    const Palette& palette = pattern.GetPalette();
    ASSERT_EQ(palette.GetEntriesCount(), 4);
    EXPECT_EQ(palette.GetFlossRGB(pattern.Cell(9, 9).PaletteIndex), late);
    EXPECT_EQ(palette.GetFlossRGB(pattern.Cell(3, 2).PaletteIndex), Blue);
    EXPECT_EQ(palette.GetFlossRGB(pattern.Cell(4, 2).PaletteIndex), Red);
    EXPECT_EQ(session.Figures().Flosses, (std::vector<ImportFigures::FlossUse>{{1, 1}, {4, 1}}));
}

TEST_F(ImportIntoEditBox, LockedFlossesAreKnownFromOthers) {
    EXPECT_TRUE(session.IsUpToDateWith(pattern.GetPalette()));
    EXPECT_FALSE(session.IsUpToDateWith(PaletteOf({Red}, "!")));
    EXPECT_FALSE(session.IsUpToDateWith(PaletteOf({Red, Blue}, "!z")));
    session.UseWholePattern();
    EXPECT_TRUE(session.IsUpToDateWith(PaletteOf({Red}, "!")));
}

TEST_F(Import, TheCurrentPaletteIsOutOfDateOnceAnythingOfAFlossChanged) {
    Palette& palette = pattern.GetPalette();
    palette = PaletteOf({Red, Blue}, "!z");
    palette.BlendFloss(2, Red, "5", "Mill", "thread", 0);
    session.ChooseCurrentPalette(palette);
    EXPECT_TRUE(session.IsUpToDateWith(palette));
    Palette other = palette;
    other.RemoveBlend(2); // no import takes a second thread
    EXPECT_TRUE(session.IsUpToDateWith(other));
    other = palette;
    other.SetFlossSymbol(1, "q");
    EXPECT_FALSE(session.IsUpToDateWith(other));
    other = palette;
    other.SetFlossStrands(1, 6, 1);
    EXPECT_FALSE(session.IsUpToDateWith(other));
    other = palette;
    other.SetFlossManuIDs(2, "77");
    EXPECT_FALSE(session.IsUpToDateWith(other));
    other = palette;
    other.SetSymbolFont("Another Font", true, false);
    EXPECT_FALSE(session.IsUpToDateWith(other));
    session.ChooseCatalogue(CatalogueOf({Red}));
    EXPECT_TRUE(session.IsUpToDateWith(other));
}

TEST_F(Import, APaletteThatAnImportReplacedIsUpToDate) {
    session.SetImage(RowOf({Blue}));
    session.ChooseCurrentPalette(PaletteOf({Red, Blue}, "!z"));
    ASSERT_EQ(Create().Result, Done);
    EXPECT_TRUE(session.IsUpToDateWith(pattern.GetPalette()));
}

} // namespace
