// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/RunFolder.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdlib>
#include <optional>

#include "settings/OtherRun.h"
#include "support/TempFolder.h"

namespace zol {
namespace {

namespace fs = std::filesystem;
using test::OtherRun;
using test::TempFolder;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kept = "ASAVEDATA.$$$";

unsigned ModeOf(const fs::path& path) {
    struct stat info {};
    return ::stat(path.c_str(), &info) == 0 ? info.st_mode & 0777U : 0U;
}

std::vector<fs::path> Folders(const std::vector<DeadRun>& runs) {
    std::vector<fs::path> folders;
    folders.reserve(runs.size());
    for (const DeadRun& run : runs) {
        folders.push_back(run.Path());
    }
    return folders;
}

/// A folder as a killed run leaves it.
fs::path LeaveDeadRun(const fs::path& base, const std::string& name, int minutesAgo) {
    fs::path folder = base / ("run-" + name);
    fs::create_directories(folder);
    test::WriteFile(folder / "lock", "");
    test::WriteFile(folder / kept, name);
    fs::last_write_time(folder / kept,
                        fs::file_time_type::clock::now() - std::chrono::minutes(minutesAgo));
    return folder;
}

TEST(RunFolder, IsClosedToOtherUsers) {
    const TempFolder base;
    const RunFolder run(base / "state" / "korvanta");
    EXPECT_EQ(run.Path().parent_path(), base / "state" / "korvanta");
    EXPECT_EQ(ModeOf(run.Path()), 0700U);
    EXPECT_EQ(ModeOf(base / "state" / "korvanta"), 0700U);
}

TEST(RunFolder, EachRunHasItsOwn) {
    const TempFolder base;
    const RunFolder one(base.Path());
    const RunFolder two(base.Path());
    EXPECT_NE(one.Path(), two.Path());
}

TEST(RunFolder, ACleanEndLeavesNothing) {
    const TempFolder base;
    RunFolder run(base.Path());
    const fs::path folder = run.Path();
    test::WriteFile(folder / "tmppat.$$$", "x");
    run.Remove();
    EXPECT_FALSE(fs::exists(folder));
    EXPECT_TRUE(run.Path().empty());
    run.Remove();
}

TEST(RunFolder, TheFolderOfALivingRunIsNotOffered) {
    const TempFolder base;
    const RunFolder other(base.Path());
    test::WriteFile(other.Path() / kept, "x");
    const RunFolder run(base.Path());
    test::WriteFile(run.Path() / kept, "x");
    EXPECT_THAT(run.TakeDeadRuns(kept), IsEmpty());
    EXPECT_THAT(other.TakeDeadRuns(kept), IsEmpty());
    EXPECT_TRUE(fs::exists(other.Path() / kept));
    EXPECT_TRUE(fs::exists(run.Path() / kept));
}

TEST(RunFolder, ARunThatEndedWithoutACleanEndIsOffered) {
    const TempFolder base;
    fs::path left;
    {
        const RunFolder other(base.Path());
        left = other.Path();
        test::WriteFile(left / kept, "x");
    }
    const RunFolder run(base.Path());
    EXPECT_THAT(Folders(run.TakeDeadRuns(kept)), ElementsAre(left));
}

TEST(RunFolder, AKilledRunIsOfferedAndALivingOneIsNot) {
    const TempFolder base;
    OtherRun killed(base.Path(), "", "killed");
    const OtherRun living(base.Path(), "", "living");
    ASSERT_FALSE(killed.Folder().empty());
    ASSERT_FALSE(living.Folder().empty());
    const RunFolder run(base.Path());
    EXPECT_THAT(run.TakeDeadRuns(kept), IsEmpty());
    killed.Kill();
    EXPECT_THAT(Folders(run.TakeDeadRuns(kept)), ElementsAre(killed.Folder()));
}

TEST(RunFolder, ARunThatIsTakenIsNotTakenTwice) {
    const TempFolder base;
    const fs::path left = LeaveDeadRun(base.Path(), "a", 1);
    const RunFolder one(base.Path());
    const RunFolder two(base.Path());
    {
        const std::vector<DeadRun> taken = one.TakeDeadRuns(kept);
        ASSERT_EQ(taken.size(), 1U);
        EXPECT_THAT(two.TakeDeadRuns(kept), IsEmpty());
    }
    EXPECT_THAT(Folders(two.TakeDeadRuns(kept)), ElementsAre(left));
}

TEST(RunFolder, TheNewestComesFirst) {
    const TempFolder base;
    const fs::path older = LeaveDeadRun(base.Path(), "a", 50);
    const fs::path newest = LeaveDeadRun(base.Path(), "b", 5);
    const fs::path oldest = LeaveDeadRun(base.Path(), "c", 500);
    const RunFolder run(base.Path());
    EXPECT_THAT(Folders(run.TakeDeadRuns(kept)), ElementsAre(newest, older, oldest));
}

TEST(RunFolder, DeadRunsWithoutSuchAFileAreClearedAway) {
    const TempFolder base;
    const fs::path folder = LeaveDeadRun(base.Path(), "a", 1);
    fs::rename(folder / kept, folder / "tmppat.$$$");
    test::WriteFile(base / "run-file", "of somebody else");
    fs::create_directory(base / "other");
    const RunFolder run(base.Path());
    EXPECT_THAT(run.TakeDeadRuns(kept), IsEmpty());
    EXPECT_FALSE(fs::exists(folder));
    EXPECT_TRUE(fs::exists(base / "run-file"));
    EXPECT_TRUE(fs::exists(base / "other"));
}

TEST(RunFolder, WithoutAStateFolderATemporaryOneServes) {
    const TempFolder base;
    test::WriteFile(base / "file", "x");
    RunFolder run(base / "file" / "korvanta");
    ASSERT_FALSE(run.Path().empty());
    EXPECT_EQ(ModeOf(run.Path()), 0700U);
    EXPECT_THAT(run.TakeDeadRuns(kept), IsEmpty());
    run.Remove();
}

/// Sets a variable for a while.
class Environment {
public:
    Environment(const char* name, const char* value) : m_name(name) {
        if (const char* old = std::getenv(name)) {
            m_old = old;
        }
        Set(value);
    }
    ~Environment() { Set(m_old ? m_old->c_str() : nullptr); }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    void Set(const char* value) const {
        if (value != nullptr) {
            ::setenv(m_name, value, 1);
        } else {
            ::unsetenv(m_name);
        }
    }

    const char* m_name;
    std::optional<std::string> m_old;
};

TEST(RunFolder, TheStateFolderIsTheUsersOwn) {
    const Environment home("HOME", "/users/ann");
    {
        const Environment state("XDG_STATE_HOME", "/users/ann/var");
        EXPECT_EQ(RunFolder::UserStateFolder(), "/users/ann/var/korvanta");
    }
    {
        const Environment state("XDG_STATE_HOME", "not/absolute");
        EXPECT_EQ(RunFolder::UserStateFolder(), "/users/ann/.local/state/korvanta");
    }
    const Environment state("XDG_STATE_HOME", nullptr);
    EXPECT_EQ(RunFolder::UserStateFolder(), "/users/ann/.local/state/korvanta");
}

} // namespace
} // namespace zol
