// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "model/RunTimeError.h"
#include "model/SafeFile.h"
#include "support/TempFolder.h"

namespace zol {
namespace {

namespace fs = std::filesystem;
using test::ReadFile;
using test::TempFolder;
using test::WriteFile;

std::vector<std::uint8_t> Bytes(const std::string& text) {
    return {text.begin(), text.end()};
}

std::size_t FilesIn(const fs::path& folder) {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

TEST(SafeFile, WritesANewFileAndLeavesNothingElse) {
    const TempFolder folder;
    EXPECT_EQ(SafeFile::Replace(folder / "a.pat", Bytes("new")), ErrNone);
    EXPECT_EQ(ReadFile(folder / "a.pat"), "new");
    EXPECT_EQ(FilesIn(folder.Path()), 1U);
}

TEST(SafeFile, NoOldTailStaysBehindAShorterFile) {
    const TempFolder folder;
    WriteFile(folder / "a.pat", "a long old content");
    EXPECT_EQ(SafeFile::Replace(folder / "a.pat", Bytes("new")), ErrNone);
    EXPECT_EQ(ReadFile(folder / "a.pat"), "new");
}

TEST(SafeFile, BackupTakesTheOldFileAndReplacesAnOlderBackup) {
    const TempFolder folder;
    WriteFile(folder / "a.pat", "old");
    WriteFile(folder / "a.bpt", "older");
    EXPECT_EQ(SafeFile::Replace(folder / "a.pat", Bytes("new"), folder / "a.bpt"), ErrNone);
    EXPECT_EQ(ReadFile(folder / "a.pat"), "new");
    EXPECT_EQ(ReadFile(folder / "a.bpt"), "old");
    EXPECT_EQ(FilesIn(folder.Path()), 2U);
}

TEST(SafeFile, LongestNameIsSavedAndKeptAsBackup) {
    const TempFolder folder;
    std::string letters;
    for (int i = 0; i < 125; ++i) {
        letters += "\xC3\xA4"; // two bytes
    }
    const fs::path file = folder / (letters + ".pat");
    const fs::path backup = folder / (letters + ".bpt");
    EXPECT_EQ(SafeFile::Replace(file, Bytes("old")), ErrNone);
    EXPECT_EQ(SafeFile::Replace(file, Bytes("new"), backup), ErrNone);
    EXPECT_EQ(ReadFile(file), "new");
    EXPECT_EQ(ReadFile(backup), "old");
    EXPECT_EQ(FilesIn(folder.Path()), 2U);
}

TEST(SafeFile, BackupOfAFileThatIsNotThereIsNotMade) {
    const TempFolder folder;
    EXPECT_EQ(SafeFile::Replace(folder / "a.pat", Bytes("new"), folder / "a.bpt"), ErrNone);
    EXPECT_FALSE(fs::exists(folder / "a.bpt"));
}

TEST(SafeFile, KeepsTheModeOfTheOldFileAndFollowsALink) {
    const TempFolder folder;
    WriteFile(folder / "a.pat", "old");
    ASSERT_EQ(::chmod((folder / "a.pat").c_str(), 0640), 0);
    fs::create_symlink(folder / "a.pat", folder / "link.pat");
    EXPECT_EQ(SafeFile::Replace(folder / "link.pat", Bytes("new")), ErrNone);
    EXPECT_TRUE(fs::is_symlink(folder / "link.pat"));
    EXPECT_EQ(ReadFile(folder / "a.pat"), "new");
    struct stat info {};
    ASSERT_EQ(::stat((folder / "a.pat").c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777U, 0640U);
}

TEST(SafeFile, BackupBesideALinkToAnotherFileSystemIsACopy) {
    const fs::path memory = "/dev/shm";
    const TempFolder folder;
    struct stat here {};
    struct stat there {};
    if (::stat(memory.c_str(), &there) != 0 || ::access(memory.c_str(), W_OK) != 0 ||
        ::stat(folder.Path().c_str(), &here) != 0 || here.st_dev == there.st_dev) {
        GTEST_SKIP() << "there is no second file system";
    }
    const TempFolder far(memory);
    WriteFile(far / "a.pat", "old");
    fs::create_symlink(far / "a.pat", folder / "link.pat");
    EXPECT_EQ(SafeFile::Replace(folder / "link.pat", Bytes("new"), folder / "link.bpt"), ErrNone);
    EXPECT_EQ(ReadFile(far / "a.pat"), "new");
    EXPECT_EQ(ReadFile(folder / "link.bpt"), "old");
    EXPECT_TRUE(fs::is_symlink(folder / "link.pat"));
    EXPECT_EQ(FilesIn(folder.Path()), 2U);
    EXPECT_EQ(FilesIn(far.Path()), 1U);
}

TEST(SafeFile, FolderThatIsAFileIsRefused) {
    const TempFolder folder;
    WriteFile(folder / "file", "x");
    EXPECT_EQ(SafeFile::Replace(folder / "file" / "a.pat", Bytes("new")), ErrPathNotFound);
    EXPECT_EQ(ReadFile(folder / "file"), "x");
    EXPECT_EQ(FilesIn(folder.Path()), 1U);
}

TEST(SafeFile, MissingFolderIsRefused) {
    const TempFolder folder;
    EXPECT_EQ(SafeFile::Replace(folder / "no" / "a.pat", Bytes("new")), ErrPathNotFound);
    EXPECT_EQ(FilesIn(folder.Path()), 0U);
}

TEST(SafeFile, NameOfAFolderIsRefused) {
    const TempFolder folder;
    fs::create_directory(folder / "a.pat");
    EXPECT_EQ(SafeFile::Replace(folder / "a.pat", Bytes("new")), ErrPathAccess);
    EXPECT_EQ(FilesIn(folder.Path()), 1U);
}

TEST(SafeFile, FullDeviceIsDiskFull) {
    EXPECT_EQ(SafeFile::Replace("/dev/full", Bytes("new")), ErrDiskFull);
}

TEST(SafeFile, UnsyncedReplacesWholeAndFailsAlike) {
    const TempFolder folder;
    WriteFile(folder / "a", "a long old content");
    EXPECT_EQ(SafeFile::ReplaceUnsynced(folder / "a", Bytes("new")), ErrNone);
    EXPECT_EQ(ReadFile(folder / "a"), "new");
    EXPECT_EQ(FilesIn(folder.Path()), 1U);
    EXPECT_EQ(SafeFile::ReplaceUnsynced("/dev/full", Bytes("new")), ErrDiskFull);
    EXPECT_EQ(SafeFile::ReplaceUnsynced(folder / "no" / "a", Bytes("new")), ErrPathNotFound);
}

TEST(SafeFile, BackupThatCannotBeMadeLeavesEveryNameAsItWas) {
    const TempFolder folder;
    WriteFile(folder / "a.pat", "old");
    fs::create_directory(folder / "a.bpt");
    WriteFile(folder / "a.bpt" / "inside", "x");
    EXPECT_NE(SafeFile::Replace(folder / "a.pat", Bytes("new"), folder / "a.bpt"), ErrNone);
    EXPECT_EQ(ReadFile(folder / "a.pat"), "old");
    EXPECT_EQ(FilesIn(folder.Path()), 2U);
}

/// Number of a Replace as a user without special rights, in a process of its own.
int ReplaceAsPlainUser(const fs::path& path) {
    constexpr uid_t nobody = 65534;
    const pid_t child = ::fork();
    if (child == 0) {
        const bool plain = ::getuid() != 0 || ::setuid(nobody) == 0;
        ::_exit(plain ? SafeFile::Replace(path, Bytes("new")) : 255);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(SafeFile, ReadOnlyFileIsRefusedBeforeAnythingIsWritten) {
    const TempFolder folder;
    WriteFile(folder / "a.pat", "old");
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0777), 0);
    ASSERT_EQ(::chmod((folder / "a.pat").c_str(), 0444), 0);
    EXPECT_EQ(ReplaceAsPlainUser(folder / "a.pat"), ErrPermission);
    EXPECT_EQ(ReadFile(folder / "a.pat"), "old");
    EXPECT_EQ(FilesIn(folder.Path()), 1U);
}

TEST(SafeFile, UnwritableFolderIsRefused) {
    const TempFolder folder;
    WriteFile(folder / "a.pat", "old");
    ASSERT_EQ(::chmod((folder / "a.pat").c_str(), 0666), 0);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0555), 0);
    EXPECT_EQ(ReplaceAsPlainUser(folder / "a.pat"), ErrPermission);
    EXPECT_EQ(ReplaceAsPlainUser(folder / "b.pat"), ErrPermission);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0755), 0);
    EXPECT_EQ(ReadFile(folder / "a.pat"), "old");
    EXPECT_EQ(FilesIn(folder.Path()), 1U);
}

TEST(SafeFile, AdoptGivesTheFinishedFileTheName) {
    const TempFolder folder;
    WriteFile(folder / "a.pdf", "old");
    const fs::path fresh = SafeFile::NewNameBeside(folder / "a.pdf");
    EXPECT_EQ(fresh.parent_path(), folder.Path());
    EXPECT_FALSE(fs::exists(fresh));
    WriteFile(fresh, "new");
    EXPECT_EQ(SafeFile::Adopt(fresh, folder / "a.pdf"), ErrNone);
    EXPECT_EQ(ReadFile(folder / "a.pdf"), "new");
    EXPECT_EQ(FilesIn(folder.Path()), 1U);
}

TEST(SafeFile, FindsANameWhateverItsCase) {
    const TempFolder folder;
    WriteFile(folder / "DMC.Col", "x");
    EXPECT_EQ(SafeFile::FindIgnoringCase(folder.Path(), "dmc.col"), folder / "DMC.Col");
    EXPECT_EQ(SafeFile::FindIgnoringCase(folder.Path(), "Anchor.col"), folder / "Anchor.col");
    WriteFile(folder / "dmc.col", "y");
    EXPECT_EQ(SafeFile::FindIgnoringCase(folder.Path(), "dmc.col"), folder / "dmc.col");
}

TEST(SafeFile, PathTextIsUtf8BothWays) {
    const std::string name = "m\u00E4rz/\u4E2D.pat";
    EXPECT_EQ(PathText(PathOf(name)), name);
}

TEST(RunTimeErrorText, NamesTheNumbersThatAreShown) {
    EXPECT_EQ(RunTimeErrorText(ErrOutOfMemory), "Out of memory");
    EXPECT_EQ(RunTimeErrorText(ErrPastEnd), "Input past end of file");
    EXPECT_EQ(RunTimeErrorText(ErrInvalidFormat), "Invalid file format");
    EXPECT_EQ(RunTimeErrorText(ErrSubscript), "Subscript out of range");
    EXPECT_EQ(RunTimeErrorText(ErrOverflow), "Overflow");
    EXPECT_EQ(RunTimeError(ErrDiskFull).Number(), ErrDiskFull);
}

} // namespace
} // namespace zol
