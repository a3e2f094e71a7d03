// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QTimer>

#include "gui/DrawnProgram.h"
#include "gui/KilledRun.h"

namespace zol::test {

/// What a run that ended badly leaves, and how it comes to be there.
class RecoveryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void RecoversAndIgnoresTheFileOfTheCommandLine();
    void NoDeletesAndOpensTheFileOfTheCommandLine();
    void UnknownKindIsLeftAlone();
    void RecoveredDesignAsksBeforeItIsClosed();
    void SavesAtTheFirstStrokeAndEveryTenMinutes();
    void TimerSavesWithoutAStroke();
    void ChangedFlagStaysAsItIs();
    void TimerWaitsForTheButton();
    void CleanEndLeavesNothing();

private:
    struct RunningClock {
        std::chrono::steady_clock::time_point Now = std::chrono::steady_clock::now();
        [[nodiscard]] basAutoSave::Clock Door() {
            return [this] { return Now; };
        }
    };
    /// The recovery file of a design without a file: no name, and its kind.
    static std::string SavedBytes(DrawnProgram& program) {
        return std::string(2, '\0') + 'P' + BytesOf(program.Parts().Open.Get());
    }
    static std::string RecoveryFile(DrawnProgram& program) {
        return ReadFile(program.Parts().AutoSave.AutoSavePath());
    }
    /// The window's timer, made to fire as often as it can.
    static QTimer* HurriedTimer(DrawnProgram& program) {
        auto* timer = program.Find<QTimer>("timAutoSave");
        timer->setInterval(1);
        return timer;
    }
};

void RecoveryTest::RecoversAndIgnoresTheFileOfTheCommandLine() {
    const ProgramHome home;
    const KilledRun dead(home);
    QVERIFY(dead.IsDead());
    DrawnProgram program(home, (home / "app" / "Patterns" / "robin.pat").string());
    program.User.answers = {MessageAnswer::Yes};
    QVERIFY(program.Open());
    QCOMPARE(program.User.asked.size(), std::size_t{1});
    QCOMPARE(program.User.asked.front().title, std::string("Auto Recovery Alert"));
    QCOMPARE(program.User.asked.front().text,
             std::string("Auto Save has detected a pattern for recovery. Do you wish to recover "
                         "previous pattern?"));
    QVERIFY(program.User.asked.front().buttons == MessageButtons::YesNo);
    QVERIFY(BytesOf(program.Parts().Open.Get()) == dead.Design());
    QCOMPARE(program.Window().windowTitle(), QStringLiteral("Korvanta - Unsaved Pattern"));
    QVERIFY(program.Design().IsChanged());
    QVERIFY(!program.Find<QAction>("mnuFileMRU0")->isVisible());
    Twin twin(program.Design());
    for (int x = 2; x <= 5; ++x) {
        twin.SetStitch(x, 3, StitchWhole, 1, 5);
    }
    COMPARE_TWIN(program, twin);
    QVERIFY(!program.Command("mnuEditUndo").isEnabled());
    // It stays until the next save, now as the file of this run.
    QVERIFY(!std::filesystem::exists(dead.File()));
    QCOMPARE(RecoveryFile(program), SavedBytes(program));
    program.User.files = {home / "saved.pat"};
    program.Choose("mnuFileSave");
    QVERIFY(!std::filesystem::exists(program.Parts().AutoSave.AutoSavePath()));
    program.End();
}

void RecoveryTest::NoDeletesAndOpensTheFileOfTheCommandLine() {
    const ProgramHome home;
    const KilledRun dead(home);
    QVERIFY(dead.IsDead());
    {
        DrawnProgram program(home, (home / "app" / "Patterns" / "robin.pat").string());
        program.User.answers = {MessageAnswer::No};
        QVERIFY(program.Open());
        QCOMPARE(program.Design().Title, std::string("Winter Robin"));
        QVERIFY(!program.Design().IsChanged());
        QVERIFY(!std::filesystem::exists(dead.File()));
        program.End();
    }
    DrawnProgram next(home);
    QVERIFY(next.Open());
    QVERIFY(next.User.asked.empty());
    next.End();
}

void RecoveryTest::UnknownKindIsLeftAlone() {
    const ProgramHome home;
    const KilledRun dead(home);
    QVERIFY(dead.IsDead());
    std::string bytes = ReadFile(dead.File());
    bytes[2] = 'X';
    WriteFile(dead.File(), bytes);
    DrawnProgram program(home);
    program.User.answers = {MessageAnswer::Yes};
    QVERIFY(program.Open());
    QCOMPARE(program.User.asked.size(), std::size_t{1});
    QVERIFY(program.User.told.empty());
    QCOMPARE(ReadFile(dead.File()), bytes);
    QCOMPARE(program.Window().windowTitle(), QStringLiteral("Korvanta - Unsaved Pattern"));
    QVERIFY(!program.Design().IsChanged());
    const Twin empty(program.Design());
    COMPARE_TWIN(program, empty);
    program.End();
}

void RecoveryTest::RecoveredDesignAsksBeforeItIsClosed() {
    const ProgramHome home;
    const auto file = home / "motif.pat";
    const KilledRun dead(home, file);
    QVERIFY(dead.IsDead());
    const std::string saved = ReadFile(file);
    DrawnProgram program(home);
    program.User.answers = {MessageAnswer::Yes, MessageAnswer::Cancel, MessageAnswer::No};
    QVERIFY(program.Open());
    QCOMPARE(program.Window().windowTitle(),
             QStringLiteral("Korvanta - ") + QString::fromStdString(file.string()));
    QVERIFY(program.Design().IsChanged());
    QVERIFY(!program.Window().close());
    QCOMPARE(program.User.asked.back().text, "Save " + file.string() + " ?");
    QVERIFY(program.Window().isVisible());
    QVERIFY(BytesOf(program.Parts().Open.Get()) == dead.Design());
    QVERIFY(program.Window().close());
    QCOMPARE(program.User.asked.size(), std::size_t{3});
    program.End();
    QVERIFY2(ReadFile(file) == saved, "a No saves nothing");
    QVERIFY(CountFiles(home / "state") <= 1);
}

void RecoveryTest::SavesAtTheFirstStrokeAndEveryTenMinutes() {
    const ProgramHome home;
    RunningClock clock;
    DrawnProgram program(home.CalledWith(), clock.Door());
    QVERIFY(program.Open());
    const auto file = program.Parts().AutoSave.AutoSavePath();
    QVERIFY(!std::filesystem::exists(file));
    program.Pointer.MoveTo(program.Grid(), program.In(2, 2));
    program.Pointer.Press();
    QVERIFY(!std::filesystem::exists(file));
    program.Pointer.Release();
    const std::string first = SavedBytes(program);
    QVERIFY(ReadFile(file) == first);
    clock.Now += std::chrono::minutes(10) - std::chrono::seconds(1);
    program.ClickIn(4, 4);
    QVERIFY(ReadFile(file) == first);
    clock.Now += std::chrono::seconds(1);
    program.ClickIn(6, 6);
    QVERIFY(first != SavedBytes(program));
    QVERIFY(ReadFile(file) == SavedBytes(program));
    program.End();
}

void RecoveryTest::TimerSavesWithoutAStroke() {
    const ProgramHome home;
    RunningClock clock;
    DrawnProgram program(home.CalledWith(), clock.Door());
    QVERIFY(program.Open());
    QCOMPARE(program.Find<QTimer>("timAutoSave")->interval(), 60000);
    QVERIFY(program.Find<QTimer>("timAutoSave")->isActive());
    program.ClickIn(2, 2);
    program.ClickIn(3, 3);
    QVERIFY(RecoveryFile(program) != SavedBytes(program));
    HurriedTimer(program);
    clock.Now += std::chrono::minutes(10);
    QTRY_VERIFY(RecoveryFile(program) == SavedBytes(program));
    program.End();
}

void RecoveryTest::ChangedFlagStaysAsItIs() {
    const ProgramHome home;
    RunningClock clock;
    DrawnProgram program(home.CalledWith(), clock.Door());
    QVERIFY(program.Open());
    program.ClickIn(2, 2);
    QVERIFY(program.Design().IsChanged());
    for (const bool changed : {false, true}) {
        program.Design().SetStitch(changed ? 8 : 7, 7, StitchWhole, 1, 5);
        program.Design().SetChanged(changed);
        clock.Now += std::chrono::minutes(10);
        HurriedTimer(program);
        QTRY_VERIFY(RecoveryFile(program) == SavedBytes(program));
        QCOMPARE(program.Design().IsChanged(), changed);
    }
    program.End();
}

void RecoveryTest::TimerWaitsForTheButton() {
    const ProgramHome home;
    RunningClock clock;
    DrawnProgram program(home.CalledWith(), clock.Door());
    QVERIFY(program.Open());
    program.ClickIn(2, 2);
    const std::string before = RecoveryFile(program);
    program.Pointer.MoveTo(program.Grid(), program.In(4, 4));
    program.Pointer.Press();
    program.Pointer.MoveTo(program.Grid(), program.In(6, 4));
    clock.Now += std::chrono::minutes(30);
    int fired = 0;
    connect(HurriedTimer(program), &QTimer::timeout, this, [&fired] { ++fired; });
    QTRY_VERIFY(fired > 5);
    QVERIFY(RecoveryFile(program) == before);
    program.Pointer.Release();
    QVERIFY(RecoveryFile(program) == SavedBytes(program));
    QVERIFY(RecoveryFile(program) != before);
    program.End();
}

void RecoveryTest::CleanEndLeavesNothing() {
    const ProgramHome home;
    {
        DrawnProgram program(home);
        QVERIFY(program.Open());
        program.ClickIn(2, 2);
        QVERIFY(!RecoveryFile(program).empty());
        program.User.answers = {MessageAnswer::No};
        QVERIFY(program.Window().close());
        program.End();
    }
    DrawnProgram next(home);
    QVERIFY(next.Open());
    QVERIFY(next.User.asked.empty());
    next.End();
}

} // namespace zol::test

QTEST_MAIN(zol::test::RecoveryTest)
#include "test_Recovery.moc"
