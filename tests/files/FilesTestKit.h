// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "files/FileCommands.h"
#include "files/PatternDesign.h"
#include "grid/tools/Undo.h"
#include "model/Pattern.h"
#include "model/SafeFile.h"
#include "support/RecordingDoors.h"
#include "support/ScriptedUser.h"
#include "support/TempFolder.h"

namespace zol::test {

/// A window that remembers what it was told, in order.
class RecordingView : public FileCommandsView {
public:
    void SetBusy(bool on) override { busy += on ? 1 : -1; }
    void ResetTools() override { calls.emplace_back("ResetTools"); }
    void ShowDesign() override { calls.emplace_back("ShowDesign"); }
    void SetWindowTitle(const std::string& name) override { title = name; }
    void ShowSummary(const std::string& text) override { summary = text; }
    std::optional<NewPattern> AskNewPattern(const NewPattern& defaults) override {
        offered = defaults;
        return wanted;
    }
    bool IsInTextMode() const override { return textMode; }
    void LeaveTextMode() override {
        calls.emplace_back("LeaveTextMode");
        textMode = false;
    }

    int busy = 0;
    std::vector<std::string> calls;
    std::string title;
    std::string summary;
    NewPattern offered;
    std::optional<NewPattern> wanted;
    bool textMode = false;
};

/// File commands over a scripted user, with a 5 by 4 pattern without a file on the grid.
class FilesTest : public ::testing::Test {
protected:
    FilesTest() {
        std::filesystem::create_directories(folder / "app" / "patterns");
        std::filesystem::create_directories(folder / "systemtemp");
        std::filesystem::create_directories(folder / "work");
        context.AppPath = folder / "app";
        context.Messages = &user;
        current.Initialize(5, 4, 14, 14);
    }

    void TearDown() override { EXPECT_TRUE(user.unanswered.empty()) << user.unanswered.front(); }

    FileCommandsDesk Desk() {
        FileCommandsDesk desk{open,
                              current,
                              context,
                              settings,
                              store,
                              user,
                              user,
                              undo,
                              view,
                              [this](const std::string& path) { mru.push_back(path); },
                              [this](int index) {
                                  const auto at = static_cast<std::size_t>(index);
                                  return at < recent.size() ? recent[at] : std::string();
                              },
                              [this] { ++autoSaveClears; },
                              folder / "systemtemp"};
        return desk;
    }

    /// A whole stitch at a square of the pattern on the grid, which changes it.
    void Draw(int x, int y) { current.SetStitch(x, y, StitchWhole, 1, 0); }
    [[nodiscard]] bool HasStitch(int x, int y) const { return current.GetStitchCount(x, y) > 0; }

    /// A file with a pattern of that width, one stitch and a title.
    std::string WritePattern(const std::filesystem::path& path, int width = 7) {
        Pattern pattern(context);
        pattern.Initialize(width, 3, 14, 14);
        pattern.Title = "Rose";
        pattern.SetStitch(2, 2, StitchWhole, 1, 0);
        EXPECT_EQ(pattern.Save(path), 0);
        return PathText(path);
    }
    [[nodiscard]] int WidthInFile(const std::filesystem::path& path) {
        Pattern pattern(context);
        EXPECT_EQ(pattern.Load(path), 0) << path;
        return pattern.GetPatternWidth();
    }
    [[nodiscard]] std::filesystem::path Work(const std::string& name) const {
        return folder / "work" / name;
    }
    [[nodiscard]] std::string WorkName(const std::string& name) const {
        return PathText(Work(name));
    }
    void ExpectFreshPattern() const {
        EXPECT_EQ(current.GetPatternWidth(), 100);
        EXPECT_EQ(current.GetPatternHeight(), 100);
        EXPECT_EQ(current.FileName, "");
        EXPECT_FALSE(current.IsChanged());
        EXPECT_EQ(view.title, "Unsaved Pattern");
        EXPECT_FALSE(open.Get().HasPlace());
    }

    TempFolder folder;
    ScriptedUser user;
    RecordingView view;
    MapSettings store;
    Options settings;
    ProgramContext context;
    Pattern current{context};
    DesignHolder open{std::make_unique<PatternDesign>(current, std::string())};
    Undo undo{open, folder / "snapshot"};
    std::vector<std::string> mru;
    std::vector<std::string> recent;
    int autoSaveClears = 0;
    FileCommands commands{Desk()};
};

} // namespace zol::test
