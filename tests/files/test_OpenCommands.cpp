// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "files/FilesTestKit.h"
#include "flosses/AvailColors.h"
#include "model/PatternBytes.h"
#include "model/RunTimeError.h"

namespace zol {
namespace {

using test::FilesTest;
using test::PatternBytes;
using test::WriteFile;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class OpenCommands : public FilesTest {
protected:
    std::string WriteBytes(const std::string& name, const PatternBytes& file) {
        const std::vector<std::uint8_t> bytes = file.All();
        WriteFile(Work(name), std::string(bytes.begin(), bytes.end()));
        return WorkName(name);
    }
};

TEST_F(OpenCommands, LoadedPatternStandsOnTheGridUnderItsName) {
    const std::string name = WritePattern(Work("rose.pat"));
    undo.BeginUndo(UndoKind::Snapshot, "Before");
    undo.EndUndo();
    ASSERT_TRUE(undo.IsAvailable());
    EXPECT_EQ(commands.LoadPatternFile(name), 0);
    EXPECT_EQ(current.GetPatternWidth(), 7);
    EXPECT_EQ(current.FileName, name);
    EXPECT_FALSE(current.IsChanged());
    EXPECT_EQ(view.title, name);
    EXPECT_THAT(view.calls, ElementsAre("ResetTools", "ShowDesign"));
    EXPECT_EQ(view.busy, 0);
    EXPECT_EQ(autoSaveClears, 1);
    EXPECT_THAT(mru, ElementsAre(name));
    EXPECT_FALSE(undo.IsAvailable());
    EXPECT_THAT(user.told, IsEmpty());
}

TEST_F(OpenCommands, TitleShowsTheDisplayNameIfThereIsOne) {
    const std::string name = WritePattern(Work("rose.pat"));
    EXPECT_EQ(commands.LoadPatternFile(name, "My Rose"), 0);
    EXPECT_EQ(view.title, "My Rose");
    EXPECT_EQ(current.FileName, name);
}

TEST_F(OpenCommands, SummaryTellsTitleSizeAndFlosses) {
    EXPECT_EQ(commands.LoadPatternFile(WritePattern(Work("rose.pat"))), 0);
    const std::string flosses = std::to_string(current.GetPalette().GetEntriesCount());
    EXPECT_EQ(view.summary, "Rose, 7 x 3, " + flosses + " flosses");
}

TEST_F(OpenCommands, PaletteIsSortedByTheSetting) {
    settings.PaletteSortOrder = SortManufacturerID;
    EXPECT_EQ(commands.LoadPatternFile(WritePattern(Work("rose.pat"))), 0);
    const Palette& palette = current.GetPalette();
    EXPECT_EQ(palette.GetSortOrder(), SortManufacturerID);
    EXPECT_NE(palette.GetSortIndex(1), 0);
}

TEST_F(OpenCommands, FlossColorsAreRefreshedOnlyIfThatIsOnAndAreNoChange) {
    const int dmc310 = 1;
    context.CurrentCatalogue = std::make_shared<AvailColors>(context);
    context.CurrentCatalogue->AddEntry(9310, "black", "310", 11, 22, 33, 0, 0, 0, "DMC");
    Pattern pattern(context);
    pattern.Initialize(3, 3, 14, 14);
    pattern.GetPalette().SetFlossMasterID(dmc310, 9310);
    const Colour old = pattern.GetPalette().GetFlossRGB(dmc310);
    ASSERT_NE(old, MakeColour(11, 22, 33));
    ASSERT_EQ(pattern.Save(Work("a.pat")), 0);

    ASSERT_EQ(commands.LoadPatternFile(WorkName("a.pat")), 0);
    EXPECT_EQ(current.GetPalette().GetFlossRGB(dmc310), old);
    context.RecolorPatterns = true;
    ASSERT_EQ(commands.LoadPatternFile(WorkName("a.pat")), 0);
    EXPECT_EQ(current.GetPalette().GetFlossRGB(dmc310), MakeColour(11, 22, 33));
    EXPECT_FALSE(current.IsChanged());
}

TEST_F(OpenCommands, MissingFileIsToldOnceAndLeavesAFreshPattern) {
    Draw(1, 1);
    EXPECT_EQ(commands.LoadPatternFile(WorkName("none.pat")), 1);
    EXPECT_THAT(user.ToldTexts(),
                ElementsAre("The file " + WorkName("none.pat") + " does not exist. Open Failed."));
    EXPECT_EQ(user.told[0].icon, MessageIcon::Stop);
    ExpectFreshPattern();
    EXPECT_THAT(mru, IsEmpty());
    EXPECT_EQ(autoSaveClears, 0);
    EXPECT_EQ(view.busy, 0);
}

TEST_F(OpenCommands, CorruptedFileIsToldByItsName) {
    PatternBytes file;
    file.flags = 4;
    file.checksum = 12345;
    EXPECT_EQ(commands.LoadPatternFile(WriteBytes("a.pat", file)), 1);
    ASSERT_THAT(user.ToldTexts(),
                ElementsAre(WorkName("a.pat") + " has been corrupted and cannot be opened"));
    EXPECT_EQ(user.told[0].icon, MessageIcon::Exclamation);
    EXPECT_THAT(user.told[0].more, HasSubstr(".bpt"));
    EXPECT_THAT(user.told[0].more, HasSubstr("A new pattern is on the grid"));
    ExpectFreshPattern();
}

TEST_F(OpenCommands, DamageIsToldWithItsTextAndThenItsNumber) {
    PatternBytes file;
    file.width = 0;
    EXPECT_EQ(commands.LoadPatternFile(WriteBytes("a.pat", file)), 1);
    EXPECT_THAT(user.ToldTexts(),
                ElementsAre("Subscript out of range", "Error Code 9 opening " + WorkName("a.pat")));
    ExpectFreshPattern();
}

TEST_F(OpenCommands, ForeignFileIsToldOnce) {
    WriteFile(Work("a.pat"), "something else altogether");
    EXPECT_EQ(commands.LoadPatternFile(WorkName("a.pat")), 1);
    EXPECT_THAT(user.ToldTexts(), ElementsAre("Error Code 321 opening " + WorkName("a.pat")));
    EXPECT_THAT(user.told[0].more, HasSubstr("another kind of file"));
    ExpectFreshPattern();
}

TEST_F(OpenCommands, FailedLoadDropsTheFlagsOfTheOldPattern) {
    current.SetNoMapping();
    EXPECT_EQ(commands.LoadPatternFile(WorkName("none.pat")), 1);
    EXPECT_TRUE(current.AllowFlossMapping());
    EXPECT_EQ(current.GetHeader().PatternFlags, 0U);
}

TEST_F(OpenCommands, FreshPatternTakesTheDefaultSizeAndCounts) {
    settings.PatternWidth = 60;
    settings.PatternHeight = 40;
    settings.PatternClothCountX = 16;
    settings.PatternClothCountY = 18;
    commands.StartFresh();
    EXPECT_EQ(current.GetPatternWidth(), 60);
    EXPECT_EQ(current.GetPatternHeight(), 40);
    EXPECT_EQ(current.GetPatternClothCountX(), 16);
    EXPECT_EQ(current.GetPatternClothCountY(), 18);
}

TEST_F(OpenCommands, UnusableDefaultSizesFallBack) {
    settings.PatternWidth = 0;
    settings.PatternHeight = 1000000;
    settings.PatternClothCountX = -3;
    commands.StartFresh();
    ExpectFreshPattern();
    EXPECT_EQ(current.GetPatternClothCountX(), 14);
}

TEST_F(OpenCommands, StfAnywhereInTheNameTakesTheFontRoad) {
    for (const char* name : {"letters.stf", "Letters.STF.pat", "old.Stf (copy).PAT"}) {
        user.told.clear();
        // Whole patterns, so that only the name can be the reason.
        const std::string fileName = WritePattern(Work(name));
        EXPECT_EQ(commands.LoadPatternFile(fileName), 1);
        EXPECT_THAT(user.ToldTexts(), ElementsAre("Error Code 321 opening " + fileName));
        EXPECT_THAT(user.told[0].more, HasSubstr("stitched font"));
        ExpectFreshPattern();
    }
}

/// A kind of design that a later part of the program might bring.
class CaseOpener : public DesignOpener {
public:
    explicit CaseOpener(Pattern& pattern) : m_pattern(pattern) {}
    char Kind() const override { return 'F'; }
    bool Takes(const std::string& name) const override {
        return name.find(".stf") != std::string::npos;
    }
    DesignOpening Open(const std::string& fileName, const std::string& /*display*/) override {
        opened.push_back(fileName);
        DesignOpening opening;
        opening.Design = std::make_unique<PatternDesign>(m_pattern, "Letters (Stitched Font)");
        return opening;
    }
    DesignOpening Recover(const std::string& /*name*/, ByteReader& /*stream*/) override {
        return {};
    }
    std::vector<std::string> opened;

private:
    Pattern& m_pattern;
};

TEST_F(OpenCommands, AnAddedKindIsAskedFirst) {
    Pattern letters(context);
    letters.Initialize(9, 9, 14, 14);
    auto opener = std::make_unique<CaseOpener>(letters);
    CaseOpener& added = *opener;
    commands.AddOpener(std::move(opener));
    EXPECT_EQ(commands.LoadPatternFile("/fonts/a.STF"), 0);
    EXPECT_THAT(added.opened, ElementsAre("/fonts/a.STF"));
    EXPECT_EQ(view.title, "Letters (Stitched Font)");
    EXPECT_EQ(&open.Design(), &letters);
    EXPECT_EQ(commands.RecoveryMakers().count('F'), 1U);
    // The program's own pattern comes back with the next file.
    EXPECT_EQ(commands.LoadPatternFile(WritePattern(Work("rose.pat"))), 0);
    EXPECT_EQ(&open.Design(), &current);
}

TEST_F(OpenCommands, OpenDialogStartsInThePatternsFolderAndStaysWhereItWas) {
    const std::string name = WritePattern(Work("rose.pat"));
    user.files = {std::nullopt, PathOf(name), std::nullopt};
    EXPECT_FALSE(commands.Open());
    EXPECT_EQ(current.GetPatternWidth(), 5);
    EXPECT_TRUE(commands.Open());
    EXPECT_EQ(current.GetPatternWidth(), 7);
    EXPECT_FALSE(commands.Open());
    EXPECT_EQ(current.GetPatternWidth(), 7);
    ASSERT_THAT(user.openDialogs, SizeIs(3));
    EXPECT_EQ(user.openDialogs[0].Title, "Open Korvanta Pattern");
    EXPECT_EQ(user.openDialogs[0].Filter,
              "Korvanta Pattern Files|*.PAT|Backup Pattern Files|*.bpt");
    EXPECT_EQ(user.openDialogs[0].Folder, folder / "app" / "patterns");
    EXPECT_EQ(user.openDialogs[1].Folder, folder / "app" / "patterns");
    EXPECT_EQ(user.openDialogs[2].Folder, folder / "work");
}

TEST_F(OpenCommands, OpenAsksForChangesFirst) {
    Draw(1, 1);
    user.answers = {MessageAnswer::Cancel};
    EXPECT_FALSE(commands.Open());
    EXPECT_THAT(user.openDialogs, IsEmpty());
    EXPECT_TRUE(HasStitch(1, 1));
    EXPECT_TRUE(current.IsChanged());
}

TEST_F(OpenCommands, RecentFileIsOpenedAfterTheQuestion) {
    recent = {WritePattern(Work("rose.pat"))};
    Draw(1, 1);
    user.answers = {MessageAnswer::Cancel, MessageAnswer::No};
    EXPECT_FALSE(commands.OpenRecent(0));
    EXPECT_EQ(current.GetPatternWidth(), 5);
    EXPECT_TRUE(commands.OpenRecent(0));
    EXPECT_EQ(current.GetPatternWidth(), 7);
    EXPECT_FALSE(commands.OpenRecent(1));
    EXPECT_EQ(current.GetPatternWidth(), 7);
}

TEST_F(OpenCommands, DroppedPatternsAndBackupsAreOpened) {
    EXPECT_TRUE(commands.OpenDropped(WritePattern(Work("rose.PAT"))));
    EXPECT_EQ(current.GetPatternWidth(), 7);
    EXPECT_TRUE(commands.OpenDropped(WritePattern(Work("rose.bpt"), 8)));
    EXPECT_EQ(current.GetPatternWidth(), 8);
}

TEST_F(OpenCommands, DroppedFileAsksForChangesFirst) {
    const std::string name = WritePattern(Work("rose.pat"));
    Draw(1, 1);
    user.answers = {MessageAnswer::Cancel};
    EXPECT_FALSE(commands.OpenDropped(name));
    EXPECT_TRUE(HasStitch(1, 1));
}

TEST_F(OpenCommands, OtherDroppedFilesAreToldAndChangeNothing) {
    Draw(1, 1);
    for (const char* name : {"cat.jpg", "motifs.plb", "letters.stf", "notes.txt"}) {
        user.told.clear();
        EXPECT_FALSE(commands.OpenDropped(WorkName(name)));
        EXPECT_THAT(user.ToldTexts(),
                    ElementsAre(std::string(name) + " cannot be opened on the grid."));
    }
    EXPECT_THAT(user.asked, IsEmpty());
    EXPECT_TRUE(HasStitch(1, 1));
}

TEST_F(OpenCommands, NewPatternIsMadeAsWanted) {
    settings.PatternWidth = 60;
    current.SetNoMapping();
    view.wanted = NewPattern{30, 20, 16, 18, "Rose", "Ann", "2026", "Linen", "Two strands"};
    EXPECT_TRUE(commands.New());
    EXPECT_EQ(view.offered.Width, 60);
    EXPECT_EQ(view.offered.Height, 100);
    EXPECT_EQ(current.GetPatternWidth(), 30);
    EXPECT_EQ(current.GetPatternHeight(), 20);
    EXPECT_EQ(current.GetPatternClothCountX(), 16);
    EXPECT_EQ(current.GetPatternClothCountY(), 18);
    EXPECT_EQ(current.Title, "Rose");
    EXPECT_EQ(current.Author, "Ann");
    EXPECT_EQ(current.Copyright, "2026");
    EXPECT_EQ(current.Fabric, "Linen");
    EXPECT_EQ(current.Instructions, "Two strands");
    EXPECT_TRUE(current.AllowFlossMapping());
    EXPECT_FALSE(current.IsChanged());
    EXPECT_EQ(view.title, "Unsaved Pattern");
    EXPECT_THAT(view.calls, ElementsAre("ResetTools", "ShowDesign"));
}

TEST_F(OpenCommands, CancelledNewPatternChangesNothing) {
    ASSERT_EQ(commands.LoadPatternFile(WritePattern(Work("rose.pat"))), 0);
    EXPECT_FALSE(commands.New());
    EXPECT_EQ(current.GetPatternWidth(), 7);
    EXPECT_EQ(view.title, WorkName("rose.pat"));
}

TEST_F(OpenCommands, NewPatternOfAnImpossibleSizeIsToldAndChangesNothing) {
    view.wanted = NewPattern{};
    view.wanted->Width = 30000;
    view.wanted->Height = 30000;
    EXPECT_FALSE(commands.New());
    EXPECT_THAT(user.ToldTexts(), ElementsAre("Out of memory"));
    EXPECT_EQ(current.GetPatternWidth(), 5);
}

TEST_F(OpenCommands, RecoveredWorkCountsAsChangedAndKeepsItsName) {
    Pattern lost(context);
    lost.Initialize(9, 8, 14, 14);
    lost.Title = "Rose";
    ByteWriter written;
    ASSERT_EQ(PatternDesign(lost, "").WriteTo(written), 0);
    ByteReader stream(written.Bytes());
    DesignMakers makers = commands.RecoveryMakers();
    ASSERT_EQ(makers.count('P'), 1U);
    EXPECT_EQ(makers.count('F'), 0U);
    std::unique_ptr<OpenDesign> design = makers['P'](WorkName("rose.pat"), stream);
    ASSERT_NE(design, nullptr);
    EXPECT_NE(design->GetPattern().GetPalette().GetSortIndex(1), 0);
    commands.ShowRecovered(std::move(design));
    EXPECT_EQ(current.GetPatternWidth(), 9);
    EXPECT_TRUE(current.IsChanged());
    EXPECT_EQ(current.FileName, WorkName("rose.pat"));
    EXPECT_EQ(view.title, WorkName("rose.pat") + " - Rose");
    EXPECT_EQ(autoSaveClears, 0);
    EXPECT_THAT(mru, IsEmpty());
}

TEST_F(OpenCommands, DamagedRecoveryFileLeavesWhatStoodOpen) {
    Draw(1, 1);
    const std::vector<std::uint8_t> bytes(40, 7);
    ByteReader stream(bytes);
    EXPECT_EQ(commands.RecoveryMakers()['P']("x.pat", stream), nullptr);
    EXPECT_THAT(user.ToldTexts(), ElementsAre("Invalid file format"));
    EXPECT_TRUE(HasStitch(1, 1));
    EXPECT_EQ(current.FileName, "");
}

} // namespace
} // namespace zol
