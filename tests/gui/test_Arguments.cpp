// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>

#include "app/Arguments.h"

namespace zol::test {

namespace {

/// How a run of the program itself ended.
struct Run {
    int Exit = -1;
    QString Out;
    QString Err;
};

/// The program as a shell starts it; with `display` false there is none to connect to.
Run RunProgram(const QStringList& arguments, bool display) {
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"),
                       display ? QStringLiteral("offscreen") : QStringLiteral("xcb"));
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    program.setProcessEnvironment(environment);
    program.start(qEnvironmentVariable("KORVANTA_PROGRAM"), arguments);
    Run run;
    if (program.waitForFinished(60000) && program.exitStatus() == QProcess::NormalExit) {
        run.Exit = program.exitCode();
    }
    run.Out = QString::fromUtf8(program.readAllStandardOutput());
    run.Err = QString::fromUtf8(program.readAllStandardError());
    return run;
}

} // namespace

/// What the program can be called with.
class ArgumentsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void NothingIsAPlainStart();
    void WordsOfAFileNameAreJoined();
    void OptionsTakeTheirPaths();
    void FaultsAreNamed();
    void WindowSystemOptionsAreNoFault();
    void HelpAndVersionNeedNoDisplay();
    void FaultEndsWithTwoAndNeedsNoDisplay();
};

void ArgumentsTest::NothingIsAPlainStart() {
    const Arguments arguments = ReadArguments({});
    QVERIFY(arguments.Settings.empty());
    QVERIFY(arguments.AppPath.empty());
    QCOMPARE(arguments.CommandLine, std::string(""));
    QCOMPARE(arguments.Fault, std::string(""));
}

void ArgumentsTest::WordsOfAFileNameAreJoined() {
    QCOMPARE(ReadArguments({"my", "red", "rose.pat"}).CommandLine, std::string("my red rose.pat"));
    QCOMPARE(ReadArguments({"my  rose.pat"}).CommandLine, std::string("my  rose.pat"));
    QCOMPARE(ReadArguments({"-PATTERNVIEWER"}).CommandLine, std::string("-PATTERNVIEWER"));
}

void ArgumentsTest::OptionsTakeTheirPaths() {
    const Arguments arguments =
        ReadArguments({"--settings", "a b.ini", "rose.pat", "--app-path", "/cloth"});
    QCOMPARE(arguments.Settings, std::filesystem::path("a b.ini"));
    QCOMPARE(arguments.AppPath, std::filesystem::path("/cloth"));
    QCOMPARE(arguments.CommandLine, std::string("rose.pat"));
    QCOMPARE(arguments.Fault, std::string(""));
}

void ArgumentsTest::FaultsAreNamed() {
    QCOMPARE(ReadArguments({"--settings"}).Fault, std::string("--settings needs a path behind it"));
    QCOMPARE(ReadArguments({"--app-path"}).Fault, std::string("--app-path needs a path behind it"));
    QCOMPARE(ReadArguments({"--colour"}).Fault, std::string("there is no option --colour"));
}

void ArgumentsTest::WindowSystemOptionsAreNoFault() {
    QCOMPARE(ReadArguments({"--platform", "offscreen"}).Fault, std::string(""));
    QCOMPARE(ReadArguments({"--style=fusion"}).Fault, std::string(""));
    QCOMPARE(ReadArguments({"--platforms"}).Fault, std::string("there is no option --platforms"));
}

void ArgumentsTest::HelpAndVersionNeedNoDisplay() {
    for (const char* option : {"--help", "-h"}) {
        const Run run = RunProgram({QLatin1String(option)}, false);
        QVERIFY2(run.Exit == 0, qPrintable(run.Err));
        QVERIFY(run.Out.startsWith(QLatin1String("usage: korvanta")));
    }
    const Run version = RunProgram({QStringLiteral("--version")}, false);
    QCOMPARE(version.Exit, 0);
    QVERIFY(version.Out.startsWith(QLatin1String("korvanta ")));
}

void ArgumentsTest::FaultEndsWithTwoAndNeedsNoDisplay() {
    const Run run = RunProgram({QStringLiteral("--colour")}, false);
    QCOMPARE(run.Exit, 2);
    QCOMPARE(run.Err, QStringLiteral("korvanta: there is no option --colour\n"));
    QCOMPARE(run.Out, QString());
}

} // namespace zol::test

QTEST_GUILESS_MAIN(zol::test::ArgumentsTest)
#include "test_Arguments.moc"
