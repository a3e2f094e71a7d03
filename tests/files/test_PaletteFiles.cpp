// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "files/FilesTestKit.h"
#include "files/PaletteFiles.h"

namespace zol::test {
namespace {

class PaletteFilesTest : public FilesTest {
protected:
    PaletteFilesDesk PaletteDesk() { return {open, context, settings, user, user, undo}; }
    Palette& Flosses() { return open.Design().GetPalette(); }

    /// Saves a palette of two flosses there.
    void SaveTwo(const std::filesystem::path& file) {
        Palette palette = Palette::Empty(context);
        palette.AddPaletteEntry(0xFF, "666", "red", "DMC", "R", 2, 1, 0, 0, 0, "DMC");
        palette.AddPaletteEntry(0, "310", "black", "DMC", "B", 2, 1, 0, 0, 0, "DMC");
        ASSERT_EQ(palette.SaveToDisk(file), 0);
    }
};

TEST_F(PaletteFilesTest, SavesUnderTheNameChosen) {
    PaletteFiles files(PaletteDesk());
    user.files = {folder / "work" / "mine.fls"};
    EXPECT_TRUE(files.SavePalette());
    ASSERT_EQ(user.saveDialogs.size(), 1U);
    EXPECT_EQ(user.saveDialogs[0].Title, "Save Floss Palette");
    EXPECT_EQ(user.saveDialogs[0].Filter, "Korvanta Floss Palettes (*.FLS)|*.fls");
    EXPECT_EQ(user.saveDialogs[0].DefaultExtension, "fls");
    Palette saved = Palette::Empty(context);
    ASSERT_TRUE(saved.LoadFromDisk(folder / "work" / "mine.fls"));
    EXPECT_EQ(saved.GetEntriesCount(), Flosses().GetEntriesCount());
    // The next dialog begins where this one was.
    user.files = {std::nullopt};
    EXPECT_FALSE(files.SavePalette());
    EXPECT_EQ(user.saveDialogs[1].Folder, folder / "work");
    EXPECT_TRUE(user.told.empty());
}

TEST_F(PaletteFilesTest, AFailedSaveIsTold) {
    PaletteFiles files(PaletteDesk());
    user.files = {folder / "none" / "mine.fls"};
    EXPECT_FALSE(files.SavePalette());
    ASSERT_EQ(user.told.size(), 1U);
    EXPECT_THAT(user.told[0].text, ::testing::StartsWith("error saving palette: "));
}

TEST_F(PaletteFilesTest, LoadsAsOneUndoStep) {
    SaveTwo(folder / "work" / "two.fls");
    PaletteFiles files(PaletteDesk());
    const int before = Flosses().GetEntriesCount();
    settings.PaletteSortOrder = SortManufacturerID;
    open.Design().SetChanged(false);
    user.files = {folder / "work" / "two.fls"};
    EXPECT_TRUE(files.LoadPalette());
    EXPECT_EQ(user.openDialogs.at(0).Title, "Load a Floss Palette");
    EXPECT_EQ(Flosses().GetEntriesCount(), 2);
    EXPECT_EQ(Flosses().GetSortIndex(1), 2) << "310 stands before 666";
    EXPECT_TRUE(open.Design().IsChanged());
    EXPECT_EQ(undo.GetUndoLabel(), "Load Palette");
    undo.PerformUndo();
    EXPECT_EQ(Flosses().GetEntriesCount(), before);
}

TEST_F(PaletteFilesTest, AnyStitchRefusesTheLoad) {
    PaletteFiles files(PaletteDesk());
    Pattern& design = open.Design();
    const auto refused = [&] {
        user.told.clear();
        const bool loaded = files.LoadPalette();
        return !loaded && user.openDialogs.empty() && user.told.size() == 1 &&
               user.told[0].text ==
                   "You cannot load a new palette unless there are no stitches set.";
    };
    EXPECT_TRUE(PaletteFiles::IsWithoutStitches(design));
    design.SetStitch(2, 2, StitchWhole, 1, 5);
    EXPECT_TRUE(refused()) << "a stitch";
    design.DeleteStitch(2, 2, 0);
    EXPECT_TRUE(PaletteFiles::IsWithoutStitches(design));
    design.SetStitch(2, 2, StitchFKnot, 1, 5);
    EXPECT_TRUE(refused()) << "a knot";
    design.DeleteStitch(2, 2, 0);
    EXPECT_TRUE(PaletteFiles::IsWithoutStitches(design));
    BackStitchLine line{1, 1, 1, 3, 3, 1, 1, 0};
    design.AddBackStitchLine(line);
    EXPECT_TRUE(refused()) << "a line";
    design.RemoveBackStitchLine(1);
    EXPECT_TRUE(PaletteFiles::IsWithoutStitches(design));
    EXPECT_FALSE(undo.IsAvailable());
}

TEST_F(PaletteFilesTest, WhatIsNoPaletteLeavesThePalette) {
    SaveTwo(folder / "work" / "two.fls");
    const std::string whole = ReadFile(folder / "work" / "two.fls");
    WriteFile(folder / "work" / "cut.fls", whole.substr(0, whole.size() - 1));
    WriteFile(folder / "work" / "text.fls", "no palette");
    WriteFile(folder / "work" / "zeros.fls", std::string(37, '\0'));
    PaletteFiles files(PaletteDesk());
    const int before = Flosses().GetEntriesCount();
    for (const char* name : {"cut.fls", "text.fls", "missing.fls", "zeros.fls"}) {
        user.told.clear();
        user.files = {folder / "work" / name};
        EXPECT_FALSE(files.LoadPalette()) << name;
        ASSERT_EQ(user.told.size(), 1U) << name;
        EXPECT_EQ(user.told[0].text, "Invalid File Format") << name;
        EXPECT_FALSE(user.told[0].more.empty());
        EXPECT_EQ(Flosses().GetEntriesCount(), before) << name;
    }
    EXPECT_FALSE(undo.IsAvailable());
    EXPECT_EQ(context.Messages, &user) << "the door is put back";
}

TEST_F(PaletteFilesTest, ThePaletteOfNoFlossIsRefused) {
    ASSERT_EQ(Palette::Empty(context).SaveToDisk(folder / "work" / "none.fls"), 0);
    PaletteFiles files(PaletteDesk());
    user.files = {folder / "work" / "none.fls"};
    EXPECT_FALSE(files.LoadPalette());
    EXPECT_THAT(user.ToldTexts(),
                ::testing::ElementsAre("Your palette must contain at least one color"));
}

TEST_F(PaletteFilesTest, AFileOfMoreFlossesThanASquareCanTellApartIsRefused) {
    Palette palette = Palette::Empty(context);
    while (palette.GetEntriesCount() < 255) {
        palette.AddPaletteEntry(0xFF, "666", "red", "DMC", "R", 2, 1, 0, 0, 0, "DMC");
    }
    ASSERT_EQ(palette.GetEntriesCount(), 255);
    ASSERT_EQ(palette.SaveToDisk(folder / "work" / "many.fls"), 0);
    PaletteFiles files(PaletteDesk());
    const int before = Flosses().GetEntriesCount();
    user.files = {folder / "work" / "many.fls"};
    EXPECT_FALSE(files.LoadPalette());
    EXPECT_EQ(Flosses().GetEntriesCount(), before);
    EXPECT_FALSE(undo.IsAvailable());
    ASSERT_EQ(user.ToldTexts(), std::vector<std::string>{"Overflow"});
    EXPECT_THAT(user.told[0].more, ::testing::HasSubstr("255 flosses"));

    palette.RemovePaletteEntry(255);
    ASSERT_EQ(palette.GetEntriesCount(), 254);
    ASSERT_EQ(palette.SaveToDisk(folder / "work" / "many.fls"), 0);
    user.files = {folder / "work" / "many.fls"};
    EXPECT_TRUE(files.LoadPalette());
    EXPECT_EQ(Flosses().GetEntriesCount(), 254);
}

TEST_F(PaletteFilesTest, TheOldestFormIsLoadedToo) {
    std::string record(37, '\0');
    record[0] = '\x10';
    record[4] = '\x36'; // 310
    record[5] = '\x01';
    record.replace(10, 25, std::string("black") + std::string(20, ' '));
    record.replace(35, 2, "B ");
    WriteFile(folder / "work" / "old.fls", record);
    PaletteFiles files(PaletteDesk());
    user.files = {folder / "work" / "old.fls"};
    EXPECT_TRUE(files.LoadPalette());
    ASSERT_EQ(Flosses().GetEntriesCount(), 1);
    EXPECT_EQ(Flosses().GetManufID(1), "310");
    EXPECT_TRUE(user.told.empty());
}

TEST_F(PaletteFilesTest, NewPatternsBeginWithTheDefaultPalette) {
    SaveTwo(folder / "work" / "two.fls");
    PaletteFiles files(PaletteDesk());
    user.files = {folder / "work" / "two.fls"};
    ASSERT_TRUE(files.LoadPalette());
    EXPECT_TRUE(files.SaveDefaultPalette());
    EXPECT_TRUE(std::filesystem::exists(folder / "app" / "Default.fls"));
    EXPECT_EQ(Palette(context).GetEntriesCount(), 2) << "in this run";
    context.StartupPalette.reset();
    LoadStartupPalette(context);
    EXPECT_EQ(Palette(context).GetEntriesCount(), 2) << "and in the next";
    EXPECT_TRUE(user.saveDialogs.empty());
}

TEST_F(PaletteFilesTest, ADefaultPaletteInOtherLettersIsReplaced) {
    WriteFile(folder / "app" / "DEFAULT.FLS", "old");
    PaletteFiles files(PaletteDesk());
    EXPECT_TRUE(files.SaveDefaultPalette());
    EXPECT_FALSE(std::filesystem::exists(folder / "app" / "Default.fls"));
    EXPECT_NE(ReadFile(folder / "app" / "DEFAULT.FLS"), "old");
}

} // namespace
} // namespace zol::test
