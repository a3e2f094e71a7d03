// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QAbstractButton>
#include <QGuiApplication>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>

#include "gui/RunningProgram.h"
#include "windowkit/BusyScope.h"
#include "windowkit/QtUserDoor.h"

namespace zol::test {

/// The way out of the program, and the window's place when it comes back.
class ClosingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void UnchangedClosesWithoutAQuestion();
    void CancelKeepsEverything_data();
    void CancelKeepsEverything();
    void NoClosesWithoutSaving();
    void YesSavesFirst();
    void FailedSaveKeepsTheWindowOpen();
    void BusyProgramIsNotClosed();
    void OtherWindowsAreClosedToo();
    void MaximizedComesBackMaximized();
    void PlaceOutsideEveryScreenComesBack();
    void UnwritableSettingsAreToldOnce();
    void RealMessageBoxAsks();

private:
    ScriptedPrinter m_printers;
    ScriptedScanner m_scanners;
};

void ClosingTest::UnchangedClosesWithoutAQuestion() {
    StartedProgram program;
    program.Choose("mnuFileExit");
    QVERIFY(!program.Window().isVisible());
    QVERIFY(program.User.asked.empty());
    const auto stored = [&](const char* name) {
        return program.Parts().Store.ReadSetting("Options", name, "none");
    };
    QCOMPARE(stored("WinState"), std::string("0"));
    QCOMPARE(stored("FormWidth"), std::to_string(program.Window().width()));
    QCOMPARE(stored("FormHeight"), std::to_string(program.Window().height()));
    QVERIFY(stored("FormLeft") != "none");
    QVERIFY(stored("FormTop") != "none");
}

void ClosingTest::CancelKeepsEverything_data() {
    QTest::addColumn<bool>("byMenu");
    QTest::newRow("Exit") << true;
    QTest::newRow("window") << false;
}

void ClosingTest::CancelKeepsEverything() {
    QFETCH(const bool, byMenu);
    StartedProgram program;
    program.ClickSquare(6, 6);
    program.User.answers = {MessageAnswer::Cancel};
    if (byMenu) {
        program.Choose("mnuFileExit");
    } else {
        QVERIFY(!program.Window().close());
    }
    QCOMPARE(program.User.asked.size(), std::size_t{1});
    QCOMPARE(program.User.asked[0].text, std::string("Save <New Pattern> ?"));
    QVERIFY(program.User.asked[0].buttons == MessageButtons::YesNoCancel);
    QVERIFY(program.Window().isVisible());
    QVERIFY(program.Design().IsChanged());
    QCOMPARE(program.Design().GetStitchCount(6, 6), 1);
    QVERIFY(program.Command("mnuEditUndo").isEnabled());
    QCOMPARE(program.Parts().Store.ReadSetting("Options", "WinState", "none"), std::string("none"));
}

void ClosingTest::NoClosesWithoutSaving() {
    StartedProgram program;
    program.ClickSquare(6, 6);
    program.User.answers = {MessageAnswer::No};
    QVERIFY(program.Window().close());
    QVERIFY(program.User.saveDialogs.empty());
}

void ClosingTest::YesSavesFirst() {
    StartedProgram program;
    program.ClickSquare(6, 6);
    program.User.answers = {MessageAnswer::Yes};
    program.User.files = {program.Home / "kept.pat"};
    QVERIFY(program.Window().close());
    QVERIFY(std::filesystem::file_size(program.Home / "kept.pat") > 0);
}

void ClosingTest::FailedSaveKeepsTheWindowOpen() {
    StartedProgram program;
    program.ClickSquare(6, 6);
    program.User.answers = {MessageAnswer::Yes};
    program.User.files = {program.Home / "no such folder" / "kept.pat"};
    QVERIFY(!program.Window().close());
    QVERIFY(program.Window().isVisible());
    QVERIFY(!program.User.told.empty());
    QCOMPARE(program.User.told.back().text, std::string("error saving pattern: 76"));
    QVERIFY(program.Design().IsChanged());
    // Cancelled in the file dialog: neither closed.
    program.User.answers = {MessageAnswer::Yes};
    program.User.files = {std::nullopt};
    QVERIFY(!program.Window().close());
}

void ClosingTest::BusyProgramIsNotClosed() {
    StartedProgram program;
    {
        const BusyScope work;
        program.Window().close();
        QVERIFY(program.Window().isVisible());
    }
    QVERIFY(program.Window().close());
}

void ClosingTest::OtherWindowsAreClosedToo() {
    StartedProgram program;
    QWidget other;
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    QVERIFY(program.Window().close());
    QVERIFY(!other.isVisible());
}

void ClosingTest::MaximizedComesBackMaximized() {
    const ProgramHome home;
    {
        RunningProgram program(home);
        QVERIFY(program.Start());
        program.Window().setWindowState(Qt::WindowMaximized);
        QTRY_VERIFY(program.Window().isMaximized());
        QVERIFY(program.Window().close());
        QCOMPARE(program.Parts().Store.ReadSetting("Options", "WinState", ""), std::string("2"));
        QCOMPARE(program.Parts().Store.ReadSetting("Options", "FormWidth", "none"),
                 std::string("none"));
        program.End();
    }
    ScriptedUser nobody;
    basMain second(home.CalledWith(), UserDoors{nobody, nobody, m_printers, m_scanners});
    QVERIFY(second.Start());
    QTRY_VERIFY(second.MainWindow().isMaximized());
    second.End();
}

void ClosingTest::PlaceOutsideEveryScreenComesBack() {
    const ProgramHome home;
    WriteFile(home / "settings.ini", "[Options]\nFormLeft=-30000\nFormTop=9000\n"
                                     "FormWidth=900\nFormHeight=700\nWinState=1\n");
    ScriptedUser nobody;
    basMain program(home.CalledWith(), UserDoors{nobody, nobody, m_printers, m_scanners});
    QVERIFY(program.Start());
    QVERIFY(!program.MainWindow().isMinimized());
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QVERIFY(screen.intersects(program.MainWindow().geometry()));
    program.End();
}

void ClosingTest::UnwritableSettingsAreToldOnce() {
    const ProgramHome home;
    WriteFile(home / "file", "no folder");
    ScriptedUser user;
    Arguments arguments = home.CalledWith();
    arguments.Settings = home / "file" / "settings.ini";
    basMain program(arguments, UserDoors{user, user, m_printers, m_scanners});
    QVERIFY(program.Start());
    QVERIFY(program.MainWindow().isVisible());
    QVERIFY(user.told.empty());
    QVERIFY(program.MainWindow().close());
    QCOMPARE(user.ToldTexts(), (std::vector<std::string>{"Error 1"}));
    program.End();
    QCOMPARE(user.told.size(), std::size_t{1});
}

void ClosingTest::RealMessageBoxAsks() {
    const ProgramHome home;
    QtUserDoor door;
    basMain program(home.CalledWith(), UserDoors{door, door, m_printers, m_scanners});
    QVERIFY(program.Start());
    door.SetParent(&program.MainWindow());
    program.MainWindow().Modes().SetDrawMode(DrawStitches);
    program.Parts().GetWorkshop().Open.Design().SetStitch(3, 3, StitchWhole, 1, 0);
    QString shown;
    const auto answer = [&shown](QMessageBox::StandardButton button) {
        QTimer::singleShot(0, [&shown, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box != nullptr);
            shown = box->text();
            QTest::mouseClick(box->button(button), Qt::LeftButton);
        });
    };
    answer(QMessageBox::Cancel);
    QVERIFY(!program.MainWindow().close());
    QCOMPARE(shown, QStringLiteral("Save <New Pattern> ?"));
    QVERIFY(program.MainWindow().isVisible());
    answer(QMessageBox::No);
    QVERIFY(program.MainWindow().close());
    program.End();
}

} // namespace zol::test

QTEST_MAIN(zol::test::ClosingTest)
#include "test_Closing.moc"
