// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "files/FileNameKind.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "files/FilePlaces.h"
#include "support/TempFolder.h"

namespace zol {
namespace {

TEST(FileNameKind, GoesByTheEndingInAnyCase) {
    EXPECT_EQ(KindOfFileName("/a/rose.PAT"), FileNameKind::Pattern);
    EXPECT_EQ(KindOfFileName("rose.Bpt"), FileNameKind::Backup);
    EXPECT_EQ(KindOfFileName("motifs.plb"), FileNameKind::Library);
    EXPECT_EQ(KindOfFileName("rose.pat.txt"), FileNameKind::Other);
    EXPECT_EQ(KindOfFileName(""), FileNameKind::Other);
}

TEST(FileNameKind, StfCountsAnywhere) {
    EXPECT_EQ(KindOfFileName("letters.stf"), FileNameKind::StitchedFont);
    EXPECT_EQ(KindOfFileName("letters.STF.pat"), FileNameKind::StitchedFont);
    EXPECT_EQ(KindOfFileName("letters.stfpat"), FileNameKind::StitchedFont);
}

TEST(FileNameKind, AddOnsGoByTheEndingAlone) {
    EXPECT_TRUE(IsAddOn("a.PLB"));
    EXPECT_TRUE(IsAddOn("a.stf"));
    EXPECT_FALSE(IsAddOn("a.stf.pat"));
    EXPECT_FALSE(IsAddOn("plb"));
}

TEST(FilePlaces, FileBelowAFolderIsFoundThroughLinks) {
    namespace fs = std::filesystem;
    const test::TempFolder folder;
    fs::create_directories(folder / "temp" / "deep");
    fs::create_directories(folder / "temporary");
    fs::create_directory_symlink(folder / "temp", folder / "link");
    const fs::path temp = folder / "temp";
    EXPECT_TRUE(FilePlaces::IsBelow(temp / "a.pat", temp));
    EXPECT_TRUE(FilePlaces::IsBelow(temp / "deep" / "a.pat", temp));
    EXPECT_TRUE(FilePlaces::IsBelow(folder / "link" / "a.pat", temp));
    EXPECT_FALSE(FilePlaces::IsBelow(folder / "temporary" / "a.pat", temp));
    EXPECT_FALSE(FilePlaces::IsBelow(temp / ".." / "a.pat", temp));
    EXPECT_FALSE(FilePlaces::IsBelow("", temp));
    EXPECT_FALSE(FilePlaces::IsBelow(temp / "a.pat", ""));
}

} // namespace
} // namespace zol
