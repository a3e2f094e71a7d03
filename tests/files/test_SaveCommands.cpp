// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <fstream>

#include "files/FilesTestKit.h"
#include "model/RunTimeError.h"
#include "support/FileHurdles.h"

namespace zol {
namespace {

using test::FilesTest;
using test::FullDisk;
using test::ReadFile;
using test::WriteFile;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace fs = std::filesystem;

class SaveCommands : public FilesTest {
protected:
    /// The pattern on the grid, saved once and then changed at square (3, 3).
    void OpenAndChange(const std::string& name) {
        ASSERT_EQ(commands.LoadPatternFile(WritePattern(Work(name))), 0);
        Draw(3, 3);
        mru.clear();
        autoSaveClears = 0;
    }
    [[nodiscard]] std::vector<std::string> FilesInWork() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder / "work")) {
            names.push_back(PathText(entry.path().filename()));
        }
        std::sort(names.begin(), names.end());
        return names;
    }
};

TEST_F(SaveCommands, SaveKeepsTheOldFileAsBackup) {
    OpenAndChange("rose.pat");
    const std::string old = ReadFile(Work("rose.pat"));
    EXPECT_TRUE(commands.Save());
    EXPECT_EQ(ReadFile(Work("rose.bpt")), old);
    EXPECT_NE(ReadFile(Work("rose.pat")), old);
    EXPECT_FALSE(current.IsChanged());
    EXPECT_EQ(autoSaveClears, 1);
    EXPECT_EQ(view.busy, 0);
    EXPECT_THAT(FilesInWork(), ElementsAre("rose.bpt", "rose.pat"));
    EXPECT_THAT(user.told, IsEmpty());
}

TEST_F(SaveCommands, NextSaveReplacesTheBackup) {
    OpenAndChange("rose.PAT");
    ASSERT_TRUE(commands.Save());
    const std::string second = ReadFile(Work("rose.PAT"));
    Draw(4, 3);
    EXPECT_TRUE(commands.Save());
    EXPECT_EQ(ReadFile(Work("rose.bpt")), second);
    EXPECT_THAT(FilesInWork(), ElementsAre("rose.PAT", "rose.bpt"));
}

TEST_F(SaveCommands, OtherEndingsGetNoBackup) {
    for (const char* name : {"rose.bpt", "rose.pat.old", "rosepat", "rose.patt"}) {
        OpenAndChange(name);
        EXPECT_TRUE(commands.Save()) << name;
        EXPECT_THAT(FilesInWork(), ElementsAre(name));
        fs::remove(Work(name));
    }
}

TEST_F(SaveCommands, OnlyTheLastFourCharactersChangeForTheBackup) {
    OpenAndChange("my.pat.rose.pat");
    EXPECT_TRUE(commands.Save());
    EXPECT_THAT(FilesInWork(), ElementsAre("my.pat.rose.bpt", "my.pat.rose.pat"));
}

TEST_F(SaveCommands, FullDiskLeavesTheOldFileAndTheWork) {
    OpenAndChange("rose.pat");
    const std::string old = ReadFile(Work("rose.pat"));
    {
        const FullDisk disk(100);
        EXPECT_FALSE(commands.Save());
    }
    EXPECT_THAT(user.ToldTexts(), ElementsAre("Disk full", "error saving pattern: 61"));
    EXPECT_EQ(user.told[1].icon, MessageIcon::Exclamation);
    EXPECT_THAT(user.told[1].more, HasSubstr("your work is still open"));
    EXPECT_EQ(ReadFile(Work("rose.pat")), old);
    EXPECT_THAT(FilesInWork(), ElementsAre("rose.pat"));
    EXPECT_TRUE(HasStitch(3, 3));
    EXPECT_TRUE(current.IsChanged());
    EXPECT_EQ(view.title, WorkName("rose.pat"));
    // The recovery file may be all that is left after a crash.
    EXPECT_EQ(autoSaveClears, 0);
    EXPECT_TRUE(commands.Save());
}

TEST_F(SaveCommands, VanishedFolderLeavesTheWork) {
    OpenAndChange("rose.pat");
    fs::remove_all(folder / "work");
    EXPECT_FALSE(commands.Save());
    EXPECT_THAT(user.ToldTexts(), ElementsAre("Path not found", "error saving pattern: 76"));
    EXPECT_TRUE(HasStitch(3, 3));
    EXPECT_TRUE(current.IsChanged());
    EXPECT_EQ(current.FileName, WorkName("rose.pat"));
}

TEST_F(SaveCommands, FailedSaveAsKeepsTheOldName) {
    OpenAndChange("rose.pat");
    WriteFile(Work("file"), "no folder");
    user.files = {Work("file") / "lily.pat"};
    EXPECT_FALSE(commands.SaveAs());
    EXPECT_THAT(user.ToldTexts(), ElementsAre("Path not found", "error saving pattern: 76"));
    EXPECT_EQ(current.FileName, WorkName("rose.pat"));
    EXPECT_EQ(view.title, WorkName("rose.pat"));
    EXPECT_TRUE(current.IsChanged());
    EXPECT_THAT(mru, IsEmpty());
    EXPECT_THAT(store.values, IsEmpty());
    // The next save finds the file that it came from.
    user.told.clear();
    EXPECT_TRUE(commands.Save());
    EXPECT_THAT(user.told, IsEmpty());
    EXPECT_TRUE(fs::exists(Work("rose.bpt")));
}

TEST_F(SaveCommands, UnsavedPatternAsksForAName) {
    Draw(1, 1);
    user.files = {Work("new.pat")};
    EXPECT_TRUE(commands.Save());
    ASSERT_THAT(user.saveDialogs, SizeIs(1));
    EXPECT_EQ(user.saveDialogs[0].Title, "Save Korvanta Pattern");
    EXPECT_EQ(user.saveDialogs[0].Filter, "Korvanta Pattern Files|*.pat");
    EXPECT_EQ(user.saveDialogs[0].DefaultExtension, "pat");
    EXPECT_EQ(user.saveDialogs[0].SuggestedName, "");
    EXPECT_EQ(current.FileName, WorkName("new.pat"));
    EXPECT_EQ(view.title, WorkName("new.pat"));
    EXPECT_FALSE(current.IsChanged());
    EXPECT_TRUE(open.Get().HasPlace());
    EXPECT_THAT(mru, ElementsAre(WorkName("new.pat")));
    EXPECT_EQ(autoSaveClears, 1);
    EXPECT_EQ(store.ReadSetting("Options", "LastPatSaveLoc", ""), PathText(folder / "work"));
    EXPECT_THAT(FilesInWork(), ElementsAre("new.pat"));
}

TEST_F(SaveCommands, CancelledSaveAsChangesNothing) {
    OpenAndChange("rose.pat");
    user.files = {std::nullopt};
    EXPECT_FALSE(commands.SaveAs());
    EXPECT_EQ(current.FileName, WorkName("rose.pat"));
    EXPECT_TRUE(current.IsChanged());
    EXPECT_THAT(FilesInWork(), ElementsAre("rose.pat"));
}

TEST_F(SaveCommands, SaveDialogStartsWhereTheFileLies) {
    OpenAndChange("rose.pat");
    store.WriteSetting("Options", "LastPatSaveLoc", PathText(folder / "systemtemp"));
    user.files = {std::nullopt};
    EXPECT_FALSE(commands.SaveAs());
    EXPECT_EQ(user.saveDialogs[0].Folder, folder / "work");
    EXPECT_EQ(user.saveDialogs[0].SuggestedName, "rose.pat");
}

TEST_F(SaveCommands, SaveDialogOfAnUnsavedPatternStartsInTheLastFolder) {
    const fs::path app = folder / "app";
    const auto start = [this] {
        user.files = {std::nullopt};
        EXPECT_FALSE(commands.SaveAs());
        return user.saveDialogs.back().Folder;
    };
    EXPECT_EQ(start(), app / "patterns");
    store.WriteSetting("Options", "LastPatSaveLoc", "*NONE*");
    EXPECT_EQ(start(), app / "patterns");
    store.WriteSetting("Options", "LastPatSaveLoc", PathText(folder / "work"));
    EXPECT_EQ(start(), folder / "work");
    store.WriteSetting("Options", "LastPatSaveLoc", PathText(folder / "gone"));
    EXPECT_EQ(start(), app / "patterns");
    fs::remove(app / "patterns");
    EXPECT_EQ(start(), app);
}

TEST_F(SaveCommands, TextModeRefusesToSave) {
    OpenAndChange("rose.pat");
    view.textMode = true;
    EXPECT_FALSE(commands.Save());
    EXPECT_FALSE(commands.SaveAs());
    EXPECT_THAT(user.ToldTexts(),
                ElementsAre("You must exit Text mode before saving your pattern.",
                            "You must exit Text mode before saving your pattern."));
    EXPECT_EQ(user.told[0].title, "Saving your pattern");
    EXPECT_TRUE(current.IsChanged());
}

TEST_F(SaveCommands, PatternWithoutSquaresIsNotSaved) {
    OpenAndChange("rose.pat");
    const std::string old = ReadFile(Work("rose.pat"));
    current.Resize(7, 0, 14, 14);
    EXPECT_FALSE(commands.Save());
    EXPECT_FALSE(commands.SaveAs());
    EXPECT_THAT(user.ToldTexts(), ElementsAre("A pattern without squares cannot be saved.",
                                              "A pattern without squares cannot be saved."));
    EXPECT_THAT(user.saveDialogs, IsEmpty());
    EXPECT_EQ(ReadFile(Work("rose.pat")), old);
    EXPECT_THAT(FilesInWork(), ElementsAre("rose.pat"));
}

// --- The question before a loss ---------------------------------------------------------------

TEST_F(SaveCommands, NothingIsAskedWithoutChanges) {
    EXPECT_TRUE(commands.CheckSave());
    EXPECT_THAT(user.asked, IsEmpty());
}

TEST_F(SaveCommands, QuestionNamesTheFile) {
    Draw(1, 1);
    user.answers = {MessageAnswer::No, MessageAnswer::No};
    EXPECT_TRUE(commands.CheckSave());
    OpenAndChange("rose.pat");
    EXPECT_TRUE(commands.CheckSave());
    EXPECT_THAT(user.AskedTexts(),
                ElementsAre("Save <New Pattern> ?", "Save " + WorkName("rose.pat") + " ?"));
    EXPECT_EQ(user.asked[0].icon, MessageIcon::Question);
    EXPECT_EQ(user.asked[0].buttons, MessageButtons::YesNoCancel);
    EXPECT_FALSE(fs::exists(Work("rose.bpt")));
}

TEST_F(SaveCommands, CancelKeepsThePatternAndItsChanges) {
    OpenAndChange("rose.pat");
    const std::string old = ReadFile(Work("rose.pat"));
    user.answers = {MessageAnswer::Cancel};
    EXPECT_FALSE(commands.CheckSave());
    EXPECT_TRUE(HasStitch(3, 3));
    EXPECT_TRUE(current.IsChanged());
    EXPECT_EQ(ReadFile(Work("rose.pat")), old);
}

TEST_F(SaveCommands, YesSavesWithBackup) {
    OpenAndChange("rose.pat");
    user.answers = {MessageAnswer::Yes};
    EXPECT_TRUE(commands.CheckSave());
    EXPECT_FALSE(current.IsChanged());
    EXPECT_TRUE(fs::exists(Work("rose.bpt")));
}

TEST_F(SaveCommands, YesWithAFailedOrCancelledSaveKeepsThePattern) {
    Draw(1, 1);
    user.answers = {MessageAnswer::Yes, MessageAnswer::Yes};
    user.files = {std::nullopt, folder / "gone" / "a.pat"};
    EXPECT_FALSE(commands.CheckSave());
    EXPECT_FALSE(commands.CheckSave());
    EXPECT_TRUE(current.IsChanged());
    EXPECT_TRUE(HasStitch(1, 1));
}

TEST_F(SaveCommands, FileInTheSystemsTemporaryFolderIsSavedUnderANewName) {
    const fs::path temporary = folder / "systemtemp" / "sub" / "rose.pat";
    fs::create_directories(temporary.parent_path());
    ASSERT_EQ(commands.LoadPatternFile(WritePattern(temporary)), 0);
    Draw(3, 3);
    user.answers = {MessageAnswer::Yes};
    user.files = {Work("kept.pat")};
    EXPECT_TRUE(commands.CheckSave());
    EXPECT_THAT(user.saveDialogs, SizeIs(1));
    EXPECT_EQ(current.FileName, WorkName("kept.pat"));
    EXPECT_EQ(WidthInFile(Work("kept.pat")), 7);
}

TEST_F(SaveCommands, TextModeIsLeftOnlyWithTheUsersYes) {
    const std::string question =
        "You must exit text mode to continue.  Do you want to exit Text mode?";
    view.textMode = true;
    user.answers = {MessageAnswer::No, MessageAnswer::Yes};
    EXPECT_FALSE(commands.CheckSave());
    EXPECT_TRUE(view.textMode);
    EXPECT_TRUE(commands.CheckSave());
    EXPECT_FALSE(view.textMode);
    EXPECT_THAT(user.AskedTexts(), ElementsAre(question, question));
    EXPECT_EQ(user.asked[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(user.asked[0].icon, MessageIcon::Question);
}

TEST_F(SaveCommands, TextModeIsLeftWithoutAQuestionIfTheCallerHasAsked) {
    view.textMode = true;
    EXPECT_TRUE(commands.CheckSave(true));
    EXPECT_FALSE(view.textMode);
    EXPECT_THAT(user.asked, IsEmpty());
}

} // namespace
} // namespace zol
