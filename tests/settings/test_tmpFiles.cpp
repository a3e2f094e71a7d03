// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/tmpFiles.h"

#include <gmock/gmock.h>

#include <cstdlib>

#include "support/TempFolder.h"

namespace zol {
namespace {

namespace fs = std::filesystem;
using test::TempFolder;
using ::testing::EndsWith;
using ::testing::StartsWith;

/// Tests with a temporary folder of the system that they choose.
class TmpFilesTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (const char* old = std::getenv("TMPDIR")) {
            m_old = old;
        }
    }
    void TearDown() override {
        m_old.empty() ? ::unsetenv("TMPDIR") : ::setenv("TMPDIR", m_old.c_str(), 1);
    }
    static void Choose(const fs::path& path) { ::setenv("TMPDIR", path.c_str(), 1); }

    TempFolder folder;
    TempFolder program;
    tmpFiles files{program.Path()};

private:
    std::string m_old;
};

TEST_F(TmpFilesTest, TheFolderEndsWithASeparator) {
    Choose(folder.Path());
    EXPECT_EQ(files.GetTempFolder().string(), folder.Path().string() + "/");
    Choose(folder.Path().string() + "/");
    EXPECT_EQ(files.GetTempFolder().string(), folder.Path().string() + "/");
}

TEST_F(TmpFilesTest, WithoutATemporaryFolderTheProgramsServes) {
    Choose(folder / "missing");
    EXPECT_EQ(files.GetTempFolder().string(), program.Path().string() + "/");
}

TEST_F(TmpFilesTest, NamesAreTheirOwn) {
    Choose(folder.Path());
    const fs::path one = files.GetTmpFileName("zol");
    const fs::path two = files.GetTmpFileName("zol");
    EXPECT_NE(one, two);
    EXPECT_EQ(one.parent_path(), folder.Path());
    EXPECT_THAT(one.filename().string(), StartsWith("zol"));
    EXPECT_THAT(one.filename().string(), EndsWith(".tmp"));
    EXPECT_EQ(fs::file_size(one), 0U);
}

TEST_F(TmpFilesTest, ALongFolderGivesNoName) {
    fs::path deep = folder.Path();
    while (deep.string().size() < tmpFiles::MaxPathLength) {
        deep /= std::string(100, 'd');
    }
    fs::create_directories(deep);
    Choose(deep);
    EXPECT_TRUE(files.GetTmpFileName("zol").empty());
}

TEST_F(TmpFilesTest, ANameThatCannotBeMadeIsEmpty) {
    Choose(folder.Path());
    EXPECT_TRUE(files.GetTmpFileName("no/such/folder").empty());
}

TEST_F(TmpFilesTest, TheProgramsFolderIsTriedOnce) {
    EXPECT_TRUE(files.CheckTempFolder());
    EXPECT_TRUE(fs::is_empty(program.Path()));
    fs::remove_all(program.Path());
    EXPECT_TRUE(files.CheckTempFolder());
}

TEST_F(TmpFilesTest, AFolderThatTakesNoFilesIsNoPlace) {
    tmpFiles nowhere(program / "missing");
    EXPECT_FALSE(nowhere.CheckTempFolder());
    fs::create_directory(program / "missing");
    EXPECT_FALSE(nowhere.CheckTempFolder()) << "tried once";
}

} // namespace
} // namespace zol
