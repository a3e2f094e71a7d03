// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "files/CommandLineFile.h"

#include "files/FilesTestKit.h"

namespace zol {
namespace {

using test::FilesTest;
using test::WriteFile;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace fs = std::filesystem;
using Outcome = CommandLineFile::Outcome;

TEST(CommandLineText, PatternViewerIsKnownInAnyCase) {
    EXPECT_TRUE(CommandLineText::WantsPatternViewer("-PATTERNVIEWER"));
    EXPECT_TRUE(CommandLineText::WantsPatternViewer("-PatternViewer"));
    EXPECT_TRUE(CommandLineText::WantsPatternViewer(" -patternviewer "));
    EXPECT_FALSE(CommandLineText::WantsPatternViewer("-PATTERNVIEWER rose.pat"));
    EXPECT_FALSE(CommandLineText::WantsPatternViewer("PATTERNVIEWER"));
    EXPECT_FALSE(CommandLineText::WantsPatternViewer(""));
}

TEST(CommandLineText, NameIsTakenOutOfQuotesAndBlanks) {
    EXPECT_EQ(CommandLineText::FileNameOf("rose.pat"), "rose.pat");
    EXPECT_EQ(CommandLineText::FileNameOf("  my rose.pat \n"), "my rose.pat");
    EXPECT_EQ(CommandLineText::FileNameOf("\"my rose.pat\""), "my rose.pat");
    EXPECT_EQ(CommandLineText::FileNameOf(" \"my rose.pat\" more"), "my rose.pat");
    EXPECT_EQ(CommandLineText::FileNameOf("\"my rose.pat"), "my rose.pat");
    EXPECT_EQ(CommandLineText::FileNameOf(""), "");
    EXPECT_EQ(CommandLineText::FileNameOf("  "), "");
    EXPECT_EQ(CommandLineText::FileNameOf("\"\""), "");
}

TEST(CommandLineText, CleaningDropsWhatBrowsersAdd) {
    struct Row {
        const char* given;
        const char* clean;
    };
    for (const Row& row : {
             Row{"a%20b[2].pat", "a b.pat"},
             Row{"a[1].pat", "a.pat"},
             Row{"a[1][2].pat", "a[1].pat"},
             Row{"a[x]b[12].pat", "a[x]b.pat"},
             Row{"[1].pat", ".pat"},
             Row{"a[1].b.pat", "a[1].b.pat"}, // not before the ending
             Row{"a[1]b.pat", "a[1]b.pat"},   // no "]."
             Row{"a1].pat", "a1].pat"},       // no "["
             Row{"a].p[at", "a].p[at"},       // the wrong way round
             Row{"x[1].d/a.pat", "x[1].d/a.pat"},
             Row{"%20%20a%2", "  a%2"},
             Row{"", ""},
         }) {
        EXPECT_EQ(CommandLineText::CleanFileName(row.given), row.clean) << row.given;
    }
}

TEST(CommandLineText, NameStandsAlone) {
    EXPECT_EQ(CommandLineText::FileNameOnly("/a/b/rose.pat"), "rose.pat");
    EXPECT_EQ(CommandLineText::FileNameOnly("rose.pat"), "rose.pat");
    EXPECT_EQ(CommandLineText::FileNameOnly("/a/"), "");
}

/// Comes back to the folder that the process was in.
class InFolder {
public:
    explicit InFolder(const fs::path& path) : m_old(fs::current_path()) { fs::current_path(path); }
    ~InFolder() {
        std::error_code ignored;
        fs::current_path(m_old, ignored);
    }
    InFolder(const InFolder&) = delete;
    InFolder& operator=(const InFolder&) = delete;

private:
    fs::path m_old;
};

class CommandLine : public FilesTest {
protected:
    CommandLine() {
        commands.StartFresh();
        view.calls.clear();
    }
    [[nodiscard]] fs::path InPatterns(const std::string& name) const {
        return folder / "app" / "patterns" / name;
    }

    CommandLineFile file{commands, user, folder / "app"};
};

TEST_F(CommandLine, NothingNamedDoesNothing) {
    EXPECT_EQ(file.Run(""), Outcome::Nothing);
    EXPECT_EQ(file.Run("  "), Outcome::Nothing);
    EXPECT_EQ(file.Run("-PatternViewer"), Outcome::Nothing);
    EXPECT_THAT(view.calls, IsEmpty());
}

TEST_F(CommandLine, ExistingFileIsOpenedAsItStands) {
    const std::string name = WritePattern(Work("rose[1].pat"));
    EXPECT_EQ(file.Run("\"" + name + "\""), Outcome::Loaded);
    EXPECT_EQ(current.GetPatternWidth(), 7);
    EXPECT_EQ(current.FileName, name);
    EXPECT_EQ(view.title, name);
    EXPECT_THAT(user.asked, IsEmpty());
}

TEST_F(CommandLine, RelativeNameIsOfTheCurrentFolder) {
    WritePattern(Work("rose.pat"));
    const InFolder inFolder(folder / "work");
    EXPECT_EQ(file.Run("rose.pat"), Outcome::Loaded);
    EXPECT_EQ(PathOf(current.FileName), fs::current_path() / "rose.pat");
}

TEST_F(CommandLine, MissingFileIsToldByItsCleanName) {
    EXPECT_EQ(file.Run(WorkName("my%20rose[3].pat")), Outcome::NotFound);
    EXPECT_THAT(user.ToldTexts(), ElementsAre("my rose.pat Not Found."));
    EXPECT_EQ(user.told[0].icon, MessageIcon::Stop);
    EXPECT_THAT(user.told[0].more, HasSubstr(PathText(folder / "app" / "patterns")));
    ExpectFreshPattern();
    EXPECT_THAT(view.calls, IsEmpty());
}

TEST_F(CommandLine, FolderIsNoFile) {
    EXPECT_EQ(file.Run(PathText(folder / "work")), Outcome::NotFound);
    EXPECT_EQ(file.Run(PathText(folder / "work") + "/"), Outcome::NotFound);
    EXPECT_EQ(user.ToldTexts()[0], "work Not Found.");
}

TEST_F(CommandLine, FailedLoadLeavesTheFreshPatternAndTheUnsavedTitle) {
    WriteFile(Work("bad.pat"), "nothing to open");
    EXPECT_EQ(file.Run(WorkName("bad.pat")), Outcome::Failed);
    EXPECT_THAT(user.ToldTexts(), ElementsAre("Error Code 321 opening " + WorkName("bad.pat")));
    ExpectFreshPattern();
}

TEST_F(CommandLine, CleanNameIsFoundInThePatternsFolderAndReplacedWithYes) {
    WritePattern(InPatterns("my rose.PAT"));
    user.answers = {MessageAnswer::Yes};
    EXPECT_EQ(file.Run("/from/outside/My%20Rose[2].pat"), Outcome::Loaded);
    EXPECT_THAT(user.AskedTexts(),
                ElementsAre("my rose.PAT already exists.  Do you want to replace it?"));
    EXPECT_EQ(user.asked[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(current.FileName, PathText(InPatterns("my rose.PAT")));
    EXPECT_EQ(view.title, PathText(InPatterns("my rose.PAT")));
    EXPECT_EQ(WidthInFile(InPatterns("my rose.PAT")), 7);
}

TEST_F(CommandLine, NoTakesTheFirstFreeNumber) {
    WritePattern(InPatterns("rose.pat"));
    WriteFile(InPatterns("rose[1].pat"), "taken");
    user.answers = {MessageAnswer::No};
    EXPECT_EQ(file.Run("rose[5].pat"), Outcome::Loaded);
    EXPECT_EQ(current.FileName, PathText(InPatterns("rose[2].pat")));
    EXPECT_EQ(view.title, PathText(InPatterns("rose[2].pat")));
    EXPECT_EQ(WidthInFile(InPatterns("rose[2].pat")), 7);
}

TEST_F(CommandLine, TenthNumberIsTheLast) {
    WritePattern(InPatterns("rose.pat"));
    for (int number = 1; number <= 9; ++number) {
        WriteFile(InPatterns("rose[" + std::to_string(number) + "].pat"), "taken");
    }
    user.answers = {MessageAnswer::No, MessageAnswer::No};
    EXPECT_EQ(file.Run("rose.pat"), Outcome::Loaded);
    EXPECT_EQ(current.FileName, PathText(InPatterns("rose[10].pat")));
    EXPECT_EQ(file.Run("rose.pat"), Outcome::Loaded);
    EXPECT_THAT(user.ToldTexts(), ElementsAre("No free name for rose.pat"));
    EXPECT_FALSE(fs::exists(InPatterns("rose[11].pat")));
    EXPECT_EQ(current.FileName, PathText(InPatterns("rose.pat")));
}

TEST_F(CommandLine, WithoutAPatternsFolderTheProgramsFolderServes) {
    fs::remove(folder / "app" / "patterns");
    WritePattern(folder / "app" / "rose.pat");
    user.answers = {MessageAnswer::Yes};
    EXPECT_EQ(file.Run("rose.pat"), Outcome::Loaded);
    EXPECT_EQ(current.FileName, PathText(folder / "app" / "rose.pat"));
}

TEST_F(CommandLine, LibraryGoesNoFurther) {
    WriteFile(Work("motifs.PLB"), "a library");
    EXPECT_EQ(file.Run(WorkName("motifs.PLB")), Outcome::Installed);
    EXPECT_THAT(user.ToldTexts(), ElementsAre(WorkName("motifs.PLB") + " cannot be installed"));
    ExpectFreshPattern();
    EXPECT_THAT(view.calls, IsEmpty());
}

TEST_F(CommandLine, InstallerGetsLibrariesAndFonts) {
    std::vector<std::string> installed;
    CommandLineFile installing(commands, user, folder / "app",
                               [&](const std::string& name) { installed.push_back(name); });
    WriteFile(Work("motifs.plb"), "a library");
    WriteFile(Work("letters.stf"), "a font");
    EXPECT_EQ(installing.Run(WorkName("motifs.plb")), Outcome::Installed);
    EXPECT_THAT(user.told, IsEmpty());
    EXPECT_EQ(installing.Run(WorkName("letters.stf")), Outcome::Failed);
    EXPECT_THAT(installed, ElementsAre(WorkName("motifs.plb"), WorkName("letters.stf")));
}

TEST_F(CommandLine, StitchedFontIsToldOnceByTheFontRoad) {
    WriteFile(Work("letters.stf"), "a font");
    EXPECT_EQ(file.Run(WorkName("letters.stf")), Outcome::Failed);
    EXPECT_THAT(user.ToldTexts(), ElementsAre("Error Code 321 opening " + WorkName("letters.stf")));
    EXPECT_THAT(user.told[0].more, HasSubstr("stitched font"));
    ExpectFreshPattern();
}

} // namespace
} // namespace zol
