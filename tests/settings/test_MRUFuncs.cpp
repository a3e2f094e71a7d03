// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/MRUFuncs.h"

#include <gmock/gmock.h>

#include <map>

namespace zol {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MapStore : public SettingsDoor {
public:
    std::string ReadSetting(const std::string& section, const std::string& name,
                            const std::string& defaultValue) const override {
        const auto found = values.find(section + "/" + name);
        return found != values.end() ? found->second : defaultValue;
    }
    void WriteSetting(const std::string& section, const std::string& name,
                      const std::string& value) override {
        values[section + "/" + name] = value;
    }
    std::map<std::string, std::string> values;
};

class MRUTest : public ::testing::Test {
protected:
    MRUTest() {
        recent.SetMenu([this](const std::vector<std::string>& paths) { menu = paths; });
    }

    MapStore store;
    MRUFuncs recent{store};
    std::vector<std::string> menu{"never called"};
};

TEST_F(MRUTest, AnEmptyListShowsNothing) {
    EXPECT_THAT(menu, IsEmpty());
    recent.LoadMRU();
    EXPECT_THAT(menu, IsEmpty());
}

TEST_F(MRUTest, LoadsTheStoredFiles) {
    store.values = {{"MRU/MRUFile1", "/a.pat"}, {"MRU/MRUFile2", "/b.pat"}};
    recent.LoadMRU();
    EXPECT_THAT(recent.MRUFiles(), ElementsAre("/a.pat", "/b.pat", "", ""));
    EXPECT_THAT(menu, ElementsAre("/a.pat", "/b.pat"));
}

TEST_F(MRUTest, TheFifthFilePushesTheOldestOut) {
    for (const char* path : {"/1.pat", "/2.pat", "/3.pat", "/4.pat", "/5.pat"}) {
        recent.AddToMRU(path);
    }
    EXPECT_THAT(menu, ElementsAre("/5.pat", "/4.pat", "/3.pat", "/2.pat"));
    EXPECT_EQ(store.values["MRU/MRUFile1"], "/5.pat");
    EXPECT_EQ(store.values["MRU/MRUFile4"], "/2.pat");
}

TEST_F(MRUTest, OpeningTheFirstAgainLeavesTheOrder) {
    recent.AddToMRU("/1.pat");
    recent.AddToMRU("/2.pat");
    recent.AddToMRU("/2.pat");
    EXPECT_THAT(recent.MRUFiles(), ElementsAre("/2.pat", "/1.pat", "", ""));
}

TEST_F(MRUTest, AFileThatIsThereMovesToTheTop) {
    for (const char* path : {"/1.pat", "/2.pat", "/3.pat", "/4.pat"}) {
        recent.AddToMRU(path);
    }
    recent.AddToMRU("/2.pat");
    EXPECT_THAT(recent.MRUFiles(), ElementsAre("/2.pat", "/4.pat", "/3.pat", "/1.pat"));
    recent.AddToMRU("/1.pat");
    EXPECT_THAT(recent.MRUFiles(), ElementsAre("/1.pat", "/2.pat", "/4.pat", "/3.pat"));
}

TEST_F(MRUTest, NamesThatDifferByCaseCountAsOne) {
    recent.AddToMRU("/Flowers/K\u00E4the.pat");
    recent.AddToMRU("/other.pat");
    recent.AddToMRU("/flowers/K\u00C4THE.PAT");
    EXPECT_THAT(recent.MRUFiles(), ElementsAre("/flowers/K\u00C4THE.PAT", "/other.pat", "", ""));
}

TEST_F(MRUTest, AGapInTheStoreShowsNoEmptyEntry) {
    store.values = {{"MRU/MRUFile2", "/b.pat"}, {"MRU/MRUFile4", "/d.pat"}};
    recent.LoadMRU();
    EXPECT_THAT(menu, ElementsAre("/b.pat", "/d.pat"));
}

} // namespace
} // namespace zol
