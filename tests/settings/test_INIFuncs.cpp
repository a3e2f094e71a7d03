// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <gmock/gmock.h>

#include <sys/wait.h>
#include <unistd.h>

#include "settings/INIFuncs.h"
#include "support/RecordingDoors.h"
#include "support/TempFolder.h"

namespace zol {
namespace {

using test::TempFolder;
using ::testing::HasSubstr;

TEST(INIFuncs, MissingValueGivesTheDefaultAsItStands) {
    const TempFolder folder;
    const INIFuncs store(folder / "s.ini");
    EXPECT_EQ(store.ReadSetting("Options", "MapFlosses", " as it is "), " as it is ");
}

TEST(INIFuncs, ReadingCreatesNothing) {
    const TempFolder folder;
    { (void)INIFuncs(folder / "s.ini").ReadSetting("Options", "A", "b"); }
    EXPECT_FALSE(std::filesystem::exists(folder / "s.ini"));
}

TEST(INIFuncs, WrittenValueComesBackInAnotherRun) {
    const TempFolder folder;
    INIFuncs(folder / "s.ini").WriteSetting("Design Grid Opts", "Units", "centimetres");
    EXPECT_EQ(INIFuncs(folder / "s.ini").ReadSetting("Design Grid Opts", "Units", "inches"),
              "centimetres");
}

TEST(INIFuncs, SectionAndNameMatchWithoutRegardToCase) {
    const TempFolder folder;
    INIFuncs store(folder / "s.ini");
    store.WriteSetting("OPTIONS", "flossFamily", "Anchor");
    EXPECT_EQ(store.ReadSetting("Options", "FlossFamily", "DMC"), "Anchor");
    store.WriteSetting("options", "FLOSSFAMILY", "Cosmo");
    EXPECT_EQ(store.ReadSetting("Options", "FlossFamily", "DMC"), "Cosmo");
    const std::string file = test::ReadFile(folder / "s.ini");
    EXPECT_THAT(file, HasSubstr("flossFamily=Cosmo"));
    EXPECT_EQ(file.find("FLOSSFAMILY"), std::string::npos) << "the value stands there once";
}

TEST(INIFuncs, ValueIsCutAt255CharactersAndTrimmed) {
    const TempFolder folder;
    INIFuncs store(folder / "s.ini");
    store.WriteSetting("Options", "Long", std::string(300, 'x'));
    EXPECT_EQ(store.ReadSetting("Options", "Long", ""), std::string(255, 'x'));
    store.WriteSetting("Options", "Blanks", "  a b  ");
    EXPECT_EQ(store.ReadSetting("Options", "Blanks", ""), "a b");
    store.WriteSetting("Options", "Cut", std::string(253, 'x') + "  y");
    EXPECT_EQ(store.ReadSetting("Options", "Cut", ""), std::string(253, 'x'));
}

TEST(INIFuncs, ValueEndsAtItsFirstZeroByte) {
    const TempFolder folder;
    INIFuncs store(folder / "s.ini");
    store.WriteSetting("Options", "Zero", std::string("ab\0cd", 5));
    EXPECT_EQ(store.ReadSetting("Options", "Zero", ""), "ab");
}

TEST(INIFuncs, AnyTextSurvives) {
    const TempFolder folder;
    const std::string text = "a,b;c=d[e]\\f|\"g\" \xC3\xA4\xE2\x82\xAC";
    INIFuncs(folder / "s.ini").WriteSetting("Options", "Text", text);
    EXPECT_EQ(INIFuncs(folder / "s.ini").ReadSetting("Options", "Text", ""), text);
}

TEST(INIFuncs, CommasTypedByHandAreText) {
    const TempFolder folder;
    test::WriteFile(folder / "s.ini", "[Options]\nAuthor=Ann, Bob\n");
    EXPECT_EQ(INIFuncs(folder / "s.ini").ReadSetting("Options", "Author", ""), "Ann, Bob");
}

TEST(INIFuncs, StoreThatCannotBeOpenedIsToldWithItsCode) {
    const TempFolder folder;
    test::WriteFile(folder / "file", "x");
    test::RecordingMessages messages;
    INIFuncs store(folder / "file" / "s.ini", &messages);
    store.WriteSetting("Options", "A", "b");
    ASSERT_EQ(messages.told.size(), 1U);
    EXPECT_EQ(messages.told[0].text, "Error 1");
    EXPECT_EQ(messages.told[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(test::ReadFile(folder / "file"), "x");
}

TEST(INIFuncs, TwoProgramsWritingAtOnceLoseNothingOfEachOther) {
    const TempFolder folder;
    const auto file = folder / "s.ini";
    const auto writeAll = [&file](const std::string& who) {
        INIFuncs store(file);
        for (int i = 0; i < 40; ++i) {
            store.WriteSetting("Options", who + std::to_string(i), who);
        }
    };
    const pid_t other = ::fork();
    ASSERT_GE(other, 0);
    if (other == 0) {
        writeAll("child");
        ::_exit(0);
    }
    writeAll("parent");
    int status = 0;
    ASSERT_EQ(::waitpid(other, &status, 0), other);
    ASSERT_EQ(status, 0);
    const INIFuncs store(file);
    for (int i = 0; i < 40; ++i) {
        EXPECT_EQ(store.ReadSetting("Options", "child" + std::to_string(i), ""), "child");
        EXPECT_EQ(store.ReadSetting("Options", "parent" + std::to_string(i), ""), "parent");
    }
}

} // namespace
} // namespace zol
