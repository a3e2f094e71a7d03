// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QComboBox>
#include <QMenu>
#include <QStatusBar>
#include <QToolBar>

#include "gui/RunningProgram.h"

namespace zol::test {

/// The start, the end, and what the window looks like in between.
class StartTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void StartsWithTheStartPattern();
    void HasEveryToolButtonOfTheTables();
    void RemembersItsPlace();
    void OpensTheFileOfTheCommandLine();
    void MissingFileIsTold();
    void DamagedFileLeavesTheFreshPattern();
    void PatternViewerEndsTheRunWithOne();
    void PatternViewerIsStartedAndEndsTheRun();
    void StartsWithoutItsFolders();
    void FileNameWithBlanksAndRelative();
    void ShowsSmartButtonsInPlaceOfTheFixedOnes();

private:
    ScriptedUser m_nobody;
    ScriptedPrinter m_printers;
    ScriptedScanner m_scanners;
};

void StartTest::StartsWithTheStartPattern() {
    StartedProgram program;
    QCOMPARE(program.Window().windowTitle(), QStringLiteral("Korvanta - Unsaved Pattern"));
    QCOMPARE(program.Design().GetPatternWidth(), 100);
    QCOMPARE(program.Design().GetPatternHeight(), 100);
    QVERIFY(!program.Design().IsChanged());
    QVERIFY(!program.Command("mnuEditUndo").isEnabled());
    QVERIFY(!program.Command("mnuEditCut").isEnabled());
    QVERIFY(program.Command("mnuDrawModeStitches").isChecked());
    QVERIFY(program.Command("mnuStitchWhole").isChecked());
    QVERIFY(program.User.told.empty());
    program.End();
    QVERIFY2(CountFiles(program.Home / "state") <= 1,
             "a run that ended well leaves no files of its own");
}

void StartTest::HasEveryToolButtonOfTheTables() {
    StartedProgram program;
    for (const char* key : {"New",
                            "Open",
                            "Save",
                            "Print",
                            "Cut",
                            "Copy",
                            "Paste",
                            "DRAWMODE_STITCHES",
                            "DRAWMODE_LINES",
                            "DRAWMODE_EDITBOX",
                            "DRAWMODE_TEXT",
                            "GRIDLINES",
                            "PALETTE",
                            "ZOOMTOOL",
                            "ZOOMTOOL1",
                            "ZOOMTOOL2",
                            "ZOOMTOOL3",
                            "ZOOMSETTING",
                            "INSERT_LIBRARY",
                            "MIRRORMODE_V",
                            "MIRRORMODE_H",
                            "PAINT",
                            "COLORPICKER",
                            "ERASE",
                            "STITCH_WHOLE",
                            "STITCH_UL3Q",
                            "STITCH_UR3Q",
                            "STITCH_LL3Q",
                            "STITCH_LR3Q",
                            "STITCH_TBH",
                            "STITCH_BTH",
                            "STITCH_FKNOT",
                            "STITCH_ULQ",
                            "STITCH_URQ",
                            "STITCH_LLQ",
                            "STITCH_LRQ",
                            "STITCH_CUSTOM",
                            "STITCH_S3Q",
                            "STITCH_SQ"}) {
        auto* button = program.Find<QToolButton>(key);
        QVERIFY2(!button->icon().isNull(), key);
        QVERIFY2(!button->accessibleName().isEmpty(), key);
        QVERIFY2(!button->toolTip().isEmpty(), key);
    }
}

void StartTest::RemembersItsPlace() {
    const ProgramHome home;
    {
        RunningProgram program(home);
        QVERIFY(program.Start());
        program.Window().setGeometry(40, 60, 900, 620);
        QTRY_COMPARE(program.Window().geometry(), QRect(40, 60, 900, 620));
        QVERIFY(program.Window().close());
        program.End();
    }
    basMain second(home.CalledWith(), UserDoors{m_nobody, m_nobody, m_printers, m_scanners});
    QVERIFY(second.Start());
    QTRY_COMPARE(second.MainWindow().geometry(), QRect(40, 60, 900, 620));
    second.End();
}

void StartTest::OpensTheFileOfTheCommandLine() {
    const ProgramHome home;
    const std::string robin = (home / "app" / "Patterns" / "robin.pat").string();
    RunningProgram program(home, robin);
    QVERIFY(program.Start());
    QCOMPARE(program.Window().windowTitle(),
             QStringLiteral("Korvanta - ") + QString::fromStdString(robin));
    QCOMPARE(program.Design().Title, std::string("Winter Robin"));
    QCOMPARE(program.Find<QAction>("mnuFileMRU0")->isVisible(), true);
    QCOMPARE(program.Find<QAction>("mnuFileMRU1")->isVisible(), false);
    program.End();
}

void StartTest::MissingFileIsTold() {
    const ProgramHome home;
    RunningProgram program(home, "nowhere.pat");
    QVERIFY(program.Start());
    QCOMPARE(program.User.told.size(), std::size_t{1});
    QCOMPARE(program.User.told.front().text, std::string("nowhere.pat Not Found."));
    QVERIFY(program.User.told.front().icon == MessageIcon::Stop);
    QCOMPARE(program.Window().windowTitle(), QStringLiteral("Korvanta - Unsaved Pattern"));
    program.End();
}

void StartTest::DamagedFileLeavesTheFreshPattern() {
    const ProgramHome home;
    const auto file = home / "damaged.pat";
    WriteFile(file, "no pattern at all");
    RunningProgram program(home, file.string());
    QVERIFY(program.Start());
    QVERIFY(!program.User.told.empty());
    QCOMPARE(program.User.told.back().text, "Error Code 321 opening " + file.string());
    QCOMPARE(program.Window().windowTitle(), QStringLiteral("Korvanta - Unsaved Pattern"));
    QCOMPARE(program.Design().GetPatternWidth(), 100);
    QVERIFY(!program.Design().IsChanged());
    program.End();
}

void StartTest::PatternViewerEndsTheRunWithOne() {
    const ProgramHome home;
    RunningProgram program(home, "-patternviewer");
    QVERIFY(!program.Start());
    QCOMPARE(program.ExitCode(), 1);
    QCOMPARE(program.User.told.size(), std::size_t{1});
    QVERIFY(program.User.told[0].icon == MessageIcon::Stop);
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        QVERIFY2(!window->isVisible(), "no window is left");
    }
    QVERIFY(CountFiles(home / "state") <= 1);
}

void StartTest::PatternViewerIsStartedAndEndsTheRun() {
    const ProgramHome home;
    const auto viewer = home / "app" / "PatternViewer";
    WriteFile(viewer, "#!/bin/sh\ntouch \"$0.ran\"\n");
    std::filesystem::permissions(viewer, std::filesystem::perms::owner_all);
    RunningProgram program(home, "-PATTERNVIEWER");
    QVERIFY(!program.Start());
    QCOMPARE(program.ExitCode(), 0);
    QVERIFY(program.User.told.empty());
    QTRY_VERIFY(std::filesystem::exists(home / "app" / "PatternViewer.ran"));
}

void StartTest::StartsWithoutItsFolders() {
    const ProgramHome home;
    std::filesystem::remove_all(home / "app");
    RunningProgram program(home);
    QVERIFY(program.Start());
    QCOMPARE(program.Window().windowTitle(), QStringLiteral("Korvanta - Unsaved Pattern"));
    QVERIFY(program.Design().GetPalette().GetEntriesCount() > 0);
    program.ClickSquare(4, 4);
    QCOMPARE(program.Design().GetStitchCount(4, 4), 1);
    program.End();
}

void StartTest::FileNameWithBlanksAndRelative() {
    const ProgramHome home;
    const auto folder = home / "my work";
    std::filesystem::create_directory(folder);
    std::filesystem::copy(home / "app" / "Patterns" / "robin.pat", folder / "red robin.pat");
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder);
    RunningProgram program(home, ReadArguments({"red", "robin.pat"}).CommandLine);
    const bool started = program.Start();
    std::filesystem::current_path(before);
    QVERIFY(started);
    QCOMPARE(program.Design().Title, std::string("Winter Robin"));
    QCOMPARE(program.Window().windowTitle(),
             QStringLiteral("Korvanta - ") +
                 QString::fromStdString((folder / "red robin.pat").string()));
    program.End();
}

void StartTest::ShowsSmartButtonsInPlaceOfTheFixedOnes() {
    const ProgramHome home;
    WriteFile(home / "settings.ini", "[Options]\nUseSmartQS=0\n");
    RunningProgram program(home);
    QVERIFY(program.Start());
    QVERIFY(program.Find<QToolButton>("STITCH_S3Q")->isVisible());
    QVERIFY(!program.Find<QToolButton>("STITCH_UL3Q")->isVisible());
    QVERIFY(!program.Find<QToolButton>("STITCH_SQ")->isVisible());
    QVERIFY(program.Find<QToolButton>("STITCH_ULQ")->isVisible());
    program.End();
}

} // namespace zol::test

QTEST_MAIN(zol::test::StartTest)
#include "test_Start.moc"
