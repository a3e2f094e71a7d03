// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/ImportPreview.h"

#include <gtest/gtest.h>

#include <thread>

#include "import/FlossChoices.h"
#include "import/ImportSession.h"
#include "import/SampleCatalogue.h"
#include "model/Pattern.h"
#include "model/ProgramContext.h"
#include "support/RecordingDoors.h"
#include "support/TempFolder.h"

using namespace zol;

namespace {

constexpr Colour Red = MakeColour(200, 0, 0);
constexpr Colour Blue = MakeColour(0, 0, 200);
constexpr Colour Green = MakeColour(0, 200, 0);

class Preview : public ::testing::Test {
protected:
    Preview() { context.AppPath = folder.Path(); }

    AvailColors CatalogueOf(const std::vector<Colour>& colours) const {
        return test::CatalogueOf(context, colours);
    }
    Palette PaletteOf(Colour colour) {
        Palette palette = Palette::Empty(context);
        palette.AddPaletteEntry(colour, "77", "old thread", "Mill", "!", 2, 1, 0, 7, 0, "The Mill");
        return palette;
    }
    static Picture RowOf(const std::vector<Colour>& colours) {
        Picture picture(static_cast<int>(colours.size()), 1);
        picture.Pixels() = colours;
        return picture;
    }
    void Touch(const std::string& name, const std::string& content = {}) const {
        test::WriteFile(folder / name, content);
    }

    test::TempFolder folder;
    ProgramContext context;
    ImportSession session{context};
};

TEST_F(Preview, WorksOnAnotherThreadWhileTheSessionGoesOn) {
    session.SetImage(RowOf({Red, Blue, Red}));
    session.ChooseCatalogue(CatalogueOf({Red, Blue}));
    const PreviewWork work = session.PreparePreview(10);
    ImportPreview preview;
    std::thread thread([&] { preview = work.Run(nullptr); });
    session.SetImage(RowOf({Green}));
    session.ChooseCatalogue(CatalogueOf({Green}));
    thread.join();
    ASSERT_TRUE(preview.Status.IsDone());
    EXPECT_EQ(*preview.Squares, RowOf({Red, Blue, Red}));
    EXPECT_FALSE(session.TakePreview(preview)); // of flosses that are not chosen any more
    EXPECT_TRUE(session.Preview().IsEmpty());
}

TEST_F(Preview, IsTakenOverWithItsSurvivors) {
    session.SetImage(RowOf({Red, Blue, Red, EraseColor}));
    session.ChooseCatalogue(CatalogueOf({Green, Red, Blue}));
    ASSERT_TRUE(session.TakePreview(session.PreparePreview(10).Run(nullptr)));
    EXPECT_EQ(session.Preview(), RowOf({Red, Blue, Red, EraseColor}));
    EXPECT_EQ(session.PreviewFlosses(),
              (std::vector<PreviewFloss>{{Red, "2", "floss 2", 2}, {Blue, "3", "floss 3", 1}}));
    Pattern pattern(context);
    ASSERT_TRUE(session.CreateThePattern(pattern, 10, 14, 14).IsDone());
    EXPECT_EQ(pattern.GetPalette().GetEntriesCount(), 2);
    EXPECT_EQ(session.Figures().Stitches, 3);
}

TEST_F(Preview, ACancelledOneChangesNothing) {
    session.SetImage(RowOf({Red, Blue}));
    session.ChooseCatalogue(CatalogueOf({Red, Blue}));
    ASSERT_TRUE(session.TakePreview(session.PreparePreview(10).Run(nullptr)));
    const auto flosses = session.PreviewFlosses();
    test::RecordingProgress progress;
    progress.cancelAfter = 1;
    EXPECT_FALSE(session.TakePreview(session.PreparePreview(1).Run(&progress)));
    EXPECT_EQ(session.Preview(), RowOf({Red, Blue}));
    EXPECT_EQ(session.PreviewFlosses(), flosses);
}

TEST_F(Preview, OneOfAnotherNumberOfColoursDoesNotCount) {
    session.SetImage(RowOf({Red, Blue}));
    session.ChooseCatalogue(CatalogueOf({Red, Blue}));
    ASSERT_TRUE(session.TakePreview(session.PreparePreview(10).Run(nullptr)));
    session.DropPreviewUnlessOf(10);
    EXPECT_FALSE(session.Preview().IsEmpty());
    session.DropPreviewUnlessOf(9);
    EXPECT_TRUE(session.Preview().IsEmpty());
    EXPECT_TRUE(session.PreviewFlosses().empty());
}

TEST_F(Preview, FlossesWithStitchesAreCountedAfterTheReduction) {
    // The lone green goes first, and its square is stitched in the nearest that is left.
    session.SetImage(RowOf({Red, Red, Red, Blue, Blue, Green}));
    session.ChooseCatalogue(CatalogueOf({Red, Blue, Green}));
    ASSERT_TRUE(session.TakePreview(session.PreparePreview(1).Run(nullptr)));
    ASSERT_EQ(session.PreviewFlosses().size(), 1U);
    EXPECT_EQ(session.PreviewFlosses().front().Stitches, 6);
}

TEST_F(Preview, LockedFlossesKeepTheirNames) {
    session.SetImage(RowOf({Red, Blue, Blue}));
    session.UseEditBox(0, 0, PaletteOf(Red));
    session.ChooseCatalogue(CatalogueOf({Blue}));
    ASSERT_TRUE(session.TakePreview(session.PreparePreview(10).Run(nullptr)));
    EXPECT_EQ(session.PreviewFlosses(),
              (std::vector<PreviewFloss>{{Red, "77", "old thread", 1}, {Blue, "1", "floss 1", 2}}));
}

TEST_F(Preview, NothingChosenIsNothingToMatchWith) {
    session.SetImage(RowOf({Red}));
    session.ChooseCatalogue(CatalogueOf({Red}));
    ASSERT_TRUE(session.TakePreview(session.PreparePreview(10).Run(nullptr)));
    session.ChooseNothing();
    EXPECT_TRUE(session.Preview().IsEmpty());
    EXPECT_EQ(session.ValidateMapping(30, true), "You must select a floss family to import.");
    EXPECT_EQ(session.ProposedMaxColors(), 30);
}

TEST_F(Preview, PaletteFilesAreListedByNameBehindThePatternsOwn) {
    Touch("b.FLS");
    Touch("A.fls");
    Touch("c.col");
    std::filesystem::create_directory(folder.Path() / "folder.fls");
    const auto lines = FlossChoices::Palettes(context);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].Text, "Current Palette");
    EXPECT_TRUE(lines[0].File.empty());
    EXPECT_EQ(lines[1].Text, "A.fls");
    EXPECT_EQ(lines[2].Text, "b.FLS");
}

TEST_F(Preview, AHundredPaletteFilesAreListed) {
    for (int i = 0; i < 105; ++i) {
        Touch("p" + std::to_string(1000 + i) + ".fls");
    }
    const auto lines = FlossChoices::Palettes(context);
    ASSERT_EQ(lines.size(), 101U);
    EXPECT_EQ(lines.back().Text, "p1099.fls");
}

TEST_F(Preview, AFileThatCannotBeReadLeavesNothingChosen) {
    Touch("bad.fls", "no palette");
    Pattern pattern(context);
    test::RecordingMessages messages;
    context.Messages = &messages;
    session.ChooseCatalogue(CatalogueOf({Red}));
    EXPECT_FALSE(FlossChoices::ChoosePalette(session, context, {"bad", folder.Path() / "bad.fls"},
                                             pattern.GetPalette()));
    EXPECT_TRUE(messages.told.empty());
    EXPECT_EQ(context.Messages, &messages);
    EXPECT_EQ(session.Candidates().NumColors(), 0);
    EXPECT_FALSE(
        FlossChoices::ChooseFamily(session, context, {"none", folder.Path() / "none.col"}));
    EXPECT_TRUE(FlossChoices::ChoosePalette(session, context, {"Current Palette", {}},
                                            pattern.GetPalette()));
    EXPECT_EQ(session.Candidates().NumColors(), pattern.GetPalette().GetEntriesCount());
}

TEST_F(Preview, SavedPalettesAndCataloguesAreChosenByTheirFiles) {
    ASSERT_EQ(PaletteOf(Blue).SaveToDisk(folder.Path() / "mill.fls"), 0);
    ASSERT_TRUE(test::WriteCatalogue(context, "maker.col", "Maker and Sons", {Red, Green}));
    Pattern pattern(context);
    const auto palettes = FlossChoices::Palettes(context);
    ASSERT_EQ(palettes.size(), 2U);
    ASSERT_TRUE(FlossChoices::ChoosePalette(session, context, palettes[1], pattern.GetPalette()));
    EXPECT_EQ(session.Candidates().NumColors(), 1);
    const auto families = FlossChoices::Families(context);
    ASSERT_EQ(families.size(), 1U);
    EXPECT_EQ(families[0].Text, "Maker and Sons");
    ASSERT_TRUE(FlossChoices::ChooseFamily(session, context, families[0]));
    EXPECT_EQ(session.Candidates().NumColors(), 2);
}

} // namespace
