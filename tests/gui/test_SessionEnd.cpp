// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QProcess>
#include <QProcessEnvironment>
#include <QSessionManager>

#include <sys/prctl.h>

#include <csignal>

#include "app/SessionEnd.h"
#include "gui/DrawnProgram.h"

namespace zol::test {

/// The end that comes from outside: a signal, or the end of the desktop's session.
class SessionEndTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void SignalKeepsTheWork_data();
    void SignalKeepsTheWork();
    void SavedWorkIsNotOffered();
    void EndOfTheSessionKeepsTheWork();
    void NameThatIsNoTextIsOpenedAndASignalEndsTheProgram();

private:
    /// In the child: whoever runs the tests may have the signal ignored, which the program would
    /// respect, and no program outlives its test.
    static void BeginPlainly(int signal) {
        std::signal(signal, SIG_DFL);
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    }
    /// Lets the program say a word, or end.
    static bool Says(QProcess& run, const char* word) {
        QByteArray said;
        while (run.state() != QProcess::NotRunning && !said.contains(word)) {
            run.waitForReadyRead(1000);
            said += run.readAllStandardOutput();
        }
        return said.contains(word);
    }
    /// Sends the signal and waits. True if that was what ended the program.
    static bool EndsBy(QProcess& run, int signal) {
        ::kill(static_cast<pid_t>(run.processId()), signal);
        run.waitForFinished(-1);
        return run.exitStatus() == QProcess::CrashExit && run.exitCode() == signal;
    }
    /// What the files of that name in the home's state folder hold, one behind the other.
    static std::string StateFiles(const ProgramHome& home, const std::string& name) {
        std::string content;
        if (std::filesystem::exists(home / "state")) {
            for (const auto& entry :
                 std::filesystem::recursive_directory_iterator(home / "state")) {
                content += entry.path().filename() == name ? ReadFile(entry.path()) : "";
            }
        }
        return content;
    }
};

void SessionEndTest::SignalKeepsTheWork_data() {
    QTest::addColumn<int>("signal");
    QTest::addColumn<QString>("work");
    QTest::newRow("SIGTERM") << SIGTERM << "stitch";
    QTest::newRow("SIGHUP") << SIGHUP << "stitch";
    QTest::newRow("SIGINT") << SIGINT << "stitch";
    QTest::newRow("SIGTERM, floating block") << SIGTERM << "block";
}

void SessionEndTest::SignalKeepsTheWork() {
    QFETCH(const int, signal);
    QFETCH(const QString, work);
    const ProgramHome home;
    QProcess run;
    run.setChildProcessModifier([signal] { BeginPlainly(signal); });
    run.start(QStringLiteral(KORVANTA_DRAWING_RUN),
              {QString::fromStdString(home.Path().string()), QStringLiteral("--unsaved"), work});
    QVERIFY(Says(run, "saved"));
    const bool floats = work == QLatin1String("block");
    const std::string before = StateFiles(home, basAutoSave::FileName);
    QVERIFY(!before.empty());
    QVERIFY(EndsBy(run, signal));
    const std::string kept = StateFiles(home, basAutoSave::FileName);
    QVERIFY(kept != before);
    if (!floats) {
        QVERIFY(kept == std::string(2, '\0') + 'P' + ReadFile(home / "design.bytes"));
    }
    DrawnProgram next(home);
    next.User.answers = {MessageAnswer::Yes};
    QVERIFY(next.Open());
    QCOMPARE(next.User.asked.size(), std::size_t{1});
    // The row of four, and then another stitch; or the row a square further on.
    Twin twin(next.Design());
    for (int x = 2; x <= 5; ++x) {
        twin.SetStitch(floats ? x + 1 : x, 3, StitchWhole, 1, 5);
    }
    if (!floats) {
        twin.SetStitch(8, 8, StitchWhole, 1, 5);
    }
    COMPARE_TWIN(next, twin);
    next.End();
}

void SessionEndTest::SavedWorkIsNotOffered() {
    const ProgramHome home;
    DrawnProgram program(home);
    QVERIFY(program.Open());
    program.ClickIn(2, 2);
    program.Main().KeepWork();
    QVERIFY(!StateFiles(home, basAutoSave::FileName).empty());
    program.Design().SetChanged(false);
    program.Main().KeepWork();
    QVERIFY(StateFiles(home, basAutoSave::FileName).empty());
    program.End();
}

void SessionEndTest::EndOfTheSessionKeepsTheWork() {
    const ProgramHome home;
    DrawnProgram program(home);
    QVERIFY(program.Open());
    const SessionEnd sessionEnd(*qGuiApp, [&program] { program.Main().KeepWork(); });
    program.ClickIn(2, 2);
    program.ClickIn(3, 3);
    // Only the desktop has a session's manager, and nobody here looks into it.
    alignas(QSessionManager) char manager[sizeof(QSessionManager)] = {};
    void* arguments[] = {nullptr, manager};
    const QMetaMethod asked = QMetaMethod::fromSignal(&QGuiApplication::commitDataRequest);
    qGuiApp->qt_metacall(QMetaObject::InvokeMetaMethod, asked.methodIndex(), arguments);
    QVERIFY(StateFiles(home, basAutoSave::FileName) ==
            std::string(2, '\0') + 'P' + BytesOf(program.Parts().Open.Get()));
    QVERIFY(program.Window().isVisible());
    program.Design().SetChanged(false);
    program.End();
}

void SessionEndTest::NameThatIsNoTextIsOpenedAndASignalEndsTheProgram() {
    const ProgramHome home;
    std::filesystem::copy_file(home / "app" / "Patterns" / "robin.pat", home / "na\xEFve.pat");
    // Neither the shell's words here nor what they become are text in UTF-8.
    const std::string command = "exec '" + qEnvironmentVariable("KORVANTA_PROGRAM").toStdString() +
                                "' --settings '" + (home / "settings.ini").string() +
                                "' --app-path '" + (home / "app").string() + "' \"$(printf '" +
                                home.Path().string() + "/na\\357ve.pat')\"";
    QProcess run;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    run.setProcessEnvironment(environment);
    run.setChildProcessModifier([] { BeginPlainly(SIGTERM); });
    run.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), QString::fromStdString(command)});
    QVERIFY(run.waitForStarted(-1));
    // The copy for undo is made when a design comes onto the grid.
    const auto isOpen = [&home] {
        return StateFiles(home, "tmppat.$$$").find("Winter Robin") != std::string::npos;
    };
    while (run.state() != QProcess::NotRunning && !isOpen()) {
        run.waitForFinished(100);
    }
    QVERIFY(isOpen());
    QVERIFY(EndsBy(run, SIGTERM));
    QVERIFY(StateFiles(home, basAutoSave::FileName).empty());
}

} // namespace zol::test

QTEST_MAIN(zol::test::SessionEndTest)
#include "test_SessionEnd.moc"
