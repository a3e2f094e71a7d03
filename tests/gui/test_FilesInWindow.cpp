// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QDialog>
#include <QLabel>
#include <QMimeData>
#include <QUrl>

#include "grid/windows/PaletteStrip.h"
#include "gui/RunningProgram.h"
#include "support/DialogDriver.h"
#include "windowkit/BusyScope.h"

namespace zol::test {

/// Files come onto the grid and leave it: by menu, by list, by hand.
class FilesInWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_home = std::make_unique<ProgramHome>();
        m_program = std::make_unique<RunningProgram>(*m_home);
        QVERIFY(m_program->Start());
    }
    void cleanup() {
        QVERIFY(m_program->User.unanswered.empty());
        m_program->End();
        m_program.reset();
        m_home.reset();
    }

    void SummaryStandsUntilThePointerMoves();
    void OpenShowsThePattern();
    void OpenLetsGoOfTheToolFirst();
    void OpenCancelledChangesNothing();
    void SaveAsNamesTheWindowAndTheList();
    void NewAsksAndForgetsTheFile();
    void RecentFileThatIsGoneIsTold();
    void UndoDoesNotReachBeyondAnOpen();
    void DroppedPatternIsOpened_data();
    void DroppedPatternIsOpened();
    void DroppedPatternIsCopiedNeverMoved();
    void SeveralFilesAreRefused();
    void NothingIsTakenWhileAWindowAsks();
    void NothingIsOpenedOnceAWindowAsks();
    void NothingIsOpenedAmidLongWork();
    void DropOfNothingIsNoDrop();
    void FolderAndLibraryAreToldAndWorkStays_data();
    void FolderAndLibraryAreToldAndWorkStays();

private:
    [[nodiscard]] std::string Robin() const {
        return (*m_home / "app" / "Patterns" / "robin.pat").string();
    }
    /// Until what has been put into the window's queue by now has been done.
    void AwaitTheQueue() {
        bool done = false;
        QMetaObject::invokeMethod(
            &m_program->Window(), [&done] { done = true; }, Qt::QueuedConnection);
        QTRY_VERIFY(done);
    }
    /// True if a drop of these files would be taken. The drop itself happens then.
    bool Drop(QWidget& onto, const QStringList& files, Qt::DropAction wished = Qt::CopyAction);

    std::unique_ptr<ProgramHome> m_home;
    std::unique_ptr<RunningProgram> m_program;
    Qt::DropAction m_action = Qt::IgnoreAction;
};

bool FilesInWindowTest::Drop(QWidget& onto, const QStringList& files, Qt::DropAction wished) {
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& file : files) {
        urls << QUrl::fromLocalFile(file);
    }
    data.setUrls(urls);
    const QPoint at(5, 5);
    QDragEnterEvent enter(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    enter.setDropAction(wished);
    enter.ignore();
    QApplication::sendEvent(&onto, &enter);
    if (!enter.isAccepted()) {
        return false;
    }
    // Qt delivers the drop where the entry was taken.
    QDropEvent drop(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(wished);
    QApplication::sendEvent(&m_program->Window(), &drop);
    m_action = drop.dropAction();
    return drop.isAccepted();
}

void FilesInWindowTest::SummaryStandsUntilThePointerMoves() {
    m_program->User.files = {Robin()};
    m_program->Choose("mnuFileOpen");
    auto* panel = m_program->Find<QLabel>("placePanel");
    const Pattern& design = m_program->Design();
    const QString summary = QStringLiteral("Winter Robin, %1 x %2, %3 flosses")
                                .arg(design.GetPatternWidth())
                                .arg(design.GetPatternHeight())
                                .arg(design.GetPalette().GetEntriesCount());
    QCOMPARE(panel->text(), summary);
    // The cloth comes from under a pointer that rests.
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&m_program->Grid(), &leave);
    QCOMPARE(panel->text(), summary);
    QTest::qWait(0);
    QVERIFY2(panel->width() >= panel->fontMetrics().horizontalAdvance(summary),
             "all of it can be read");
    QTest::mouseMove(&m_program->Grid(), m_program->Place(3, 4));
    QTRY_COMPARE(panel->text(), QStringLiteral("3, 4"));
    QApplication::sendEvent(&m_program->Grid(), &leave);
    QCOMPARE(panel->text(), QString());
}

void FilesInWindowTest::OpenShowsThePattern() {
    m_program->User.files = {Robin()};
    m_program->Click("Open");
    QCOMPARE(m_program->User.openDialogs.size(), std::size_t{1});
    QCOMPARE(m_program->User.openDialogs[0].Title, std::string("Open Korvanta Pattern"));
    QCOMPARE(m_program->Window().windowTitle(),
             QStringLiteral("Korvanta - ") + QString::fromStdString(Robin()));
    QCOMPARE(m_program->Area().FirstColumn(), 1);
    QCOMPARE(m_program->Area().FirstRow(), 1);
    QVERIFY(m_program->Command("mnuFileMRU0").isVisible());
    QVERIFY(!m_program->Design().IsChanged());
    QVERIFY(m_program->User.told.empty());
}

void FilesInWindowTest::OpenLetsGoOfTheToolFirst() {
    m_program->Click("DRAWMODE_LINES");
    m_program->ClickSquare(5, 5);
    m_program->User.files = {Robin()};
    m_program->Choose("mnuFileOpen");
    const int lines = m_program->Design().GetBackStitchCount();
    QCOMPARE(m_program->Window().Modes().GetDrawMode(), DrawStitches);
    // The end of the line that was begun on the other design is not drawn here.
    m_program->Click("DRAWMODE_LINES");
    m_program->ClickSquare(9, 9);
    QCOMPARE(m_program->Design().GetBackStitchCount(), lines);
}

void FilesInWindowTest::OpenCancelledChangesNothing() {
    m_program->ClickSquare(6, 6);
    m_program->User.answers = {MessageAnswer::Cancel};
    m_program->Choose("mnuFileOpen");
    QCOMPARE(m_program->User.asked.back().text, std::string("Save <New Pattern> ?"));
    QVERIFY(m_program->User.openDialogs.empty());
    m_program->User.answers = {MessageAnswer::No};
    m_program->User.files = {std::nullopt};
    m_program->Choose("mnuFileOpen");
    QCOMPARE(m_program->Design().GetStitchCount(6, 6), 1);
    QVERIFY(m_program->Design().IsChanged());
    QVERIFY(m_program->Command("mnuEditUndo").isEnabled());
}

void FilesInWindowTest::SaveAsNamesTheWindowAndTheList() {
    const auto file = *m_home / "motif.pat";
    m_program->ClickSquare(6, 6);
    m_program->User.files = {file};
    m_program->Click("Save");
    QCOMPARE(m_program->User.saveDialogs.size(), std::size_t{1});
    QCOMPARE(m_program->User.saveDialogs[0].Title, std::string("Save Korvanta Pattern"));
    QVERIFY(std::filesystem::exists(file));
    QCOMPARE(m_program->Window().windowTitle(),
             QStringLiteral("Korvanta - ") + QString::fromStdString(file.string()));
    QCOMPARE(m_program->Command("mnuFileMRU0").text(), QString::fromStdString(file.string()));
    QVERIFY(!m_program->Design().IsChanged());
    QVERIFY2(m_program->Command("mnuEditUndo").isEnabled(), "saving leaves the last step alone");
    // The second save asks nothing and keeps the first as the backup.
    m_program->ClickSquare(7, 7);
    m_program->Choose("mnuFileSave");
    QCOMPARE(m_program->User.saveDialogs.size(), std::size_t{1});
    QVERIFY(std::filesystem::exists(*m_home / "motif.bpt"));
}

void FilesInWindowTest::NewAsksAndForgetsTheFile() {
    m_program->User.files = {Robin()};
    m_program->Choose("mnuFileOpen");
    m_program->ClickSquare(1, 1);
    m_program->User.answers = {MessageAnswer::Cancel};
    m_program->Click("New");
    QCOMPARE(m_program->User.asked.back().text, "Save " + Robin() + " ?");
    QVERIFY(m_program->Window().windowTitle().endsWith(QLatin1String("robin.pat")));
    m_program->User.answers = {MessageAnswer::No, MessageAnswer::No};
    {
        DialogDriver cancelled({[](QDialog& dialog) { dialog.reject(); }});
        m_program->Click("New");
        QVERIFY(cancelled.AllDone());
    }
    QVERIFY(m_program->Window().windowTitle().endsWith(QLatin1String("robin.pat")));
    DialogDriver confirmed({[](QDialog& dialog) { dialog.accept(); }});
    m_program->Click("New");
    QVERIFY(confirmed.AllDone());
    QCOMPARE(m_program->Window().windowTitle(), QStringLiteral("Korvanta - Unsaved Pattern"));
    QCOMPARE(m_program->Design().GetPatternWidth(), 100);
    QVERIFY(!m_program->Command("mnuEditUndo").isEnabled());
}

void FilesInWindowTest::RecentFileThatIsGoneIsTold() {
    const auto file = *m_home / "gone.pat";
    m_program->Parts().RecentFiles.AddToMRU(file.string());
    m_program->ClickSquare(6, 6);
    m_program->User.answers = {MessageAnswer::Cancel};
    m_program->Choose("mnuFileMRU0");
    QVERIFY(m_program->Design().IsChanged());
    QVERIFY(m_program->User.told.empty());
    m_program->User.answers = {MessageAnswer::No};
    m_program->Choose("mnuFileMRU0");
    QCOMPARE(m_program->User.told.size(), std::size_t{1});
    QCOMPARE(m_program->User.told[0].text,
             "The file " + file.string() + " does not exist. Open Failed.");
    QCOMPARE(m_program->Window().windowTitle(), QStringLiteral("Korvanta - Unsaved Pattern"));
}

void FilesInWindowTest::UndoDoesNotReachBeyondAnOpen() {
    m_program->ClickSquare(6, 6);
    QVERIFY(m_program->Command("mnuEditUndo").isEnabled());
    m_program->User.answers = {MessageAnswer::No};
    m_program->User.files = {Robin()};
    m_program->Choose("mnuFileOpen");
    QVERIFY(!m_program->Command("mnuEditUndo").isEnabled());
    const int before = m_program->Design().GetStitchCount(2, 2);
    m_program->ClickSquare(2, 2, 5, Qt::RightButton);
    m_program->ClickSquare(2, 2);
    QCOMPARE(m_program->Design().GetStitchCount(2, 2), 1);
    m_program->Choose("mnuEditUndo");
    QCOMPARE(m_program->Design().GetStitchCount(2, 2), 0);
    QVERIFY(before >= 0);
}

void FilesInWindowTest::DroppedPatternIsOpened_data() {
    QTest::addColumn<QString>("onto");
    QTest::newRow("window") << "frmDesignGrid";
    QTest::newRow("cloth") << "picGrid";
    QTest::newRow("holder") << "picGridHolder";
    QTest::newRow("strip") << "picPalette";
    QTest::newRow("bar") << "tbKorvantaToolBar";
}

void FilesInWindowTest::DroppedPatternIsOpened() {
    QFETCH(const QString, onto);
    QWidget* target = &m_program->Window();
    if (onto != target->objectName()) {
        target = m_program->Find<QWidget>(qPrintable(onto));
    }
    QVERIFY(Drop(*target, {QString::fromStdString(Robin())}));
    QTRY_COMPARE(m_program->Design().Title, std::string("Winter Robin"));
}

void FilesInWindowTest::DroppedPatternIsCopiedNeverMoved() {
    QVERIFY(Drop(m_program->Grid(), {QString::fromStdString(Robin())}, Qt::MoveAction));
    QCOMPARE(m_action, Qt::CopyAction);
    QTRY_COMPARE(m_program->Design().Title, std::string("Winter Robin"));
}

void FilesInWindowTest::SeveralFilesAreRefused() {
    const QString robin = QString::fromStdString(Robin());
    QVERIFY(!Drop(m_program->Grid(), {robin, robin}));
    QCOMPARE(m_program->Design().Title, std::string());
}

void FilesInWindowTest::NothingIsTakenWhileAWindowAsks() {
    QDialog question(&m_program->Window());
    question.setModal(true);
    question.show();
    QVERIFY(QTest::qWaitForWindowExposed(&question));
    QVERIFY(!Drop(m_program->Grid(), {QString::fromStdString(Robin())}));
    question.reject();
    QVERIFY(Drop(m_program->Grid(), {QString::fromStdString(Robin())}));
    QTRY_COMPARE(m_program->Design().Title, std::string("Winter Robin"));
}

void FilesInWindowTest::NothingIsOpenedOnceAWindowAsks() {
    // The drop still waits when the window comes up, which works with the design as it stands.
    QVERIFY(Drop(m_program->Grid(), {QString::fromStdString(Robin())}));
    QDialog question(&m_program->Window());
    question.setModal(true);
    question.show();
    AwaitTheQueue();
    QCOMPARE(m_program->Design().Title, std::string());
    question.reject();
}

void FilesInWindowTest::NothingIsOpenedAmidLongWork() {
    QVERIFY(Drop(m_program->Grid(), {QString::fromStdString(Robin())}));
    const BusyScope work;
    AwaitTheQueue();
    QCOMPARE(m_program->Design().Title, std::string());
}

void FilesInWindowTest::DropOfNothingIsNoDrop() {
    QMimeData nothing;
    QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &nothing, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&m_program->Window(), &drop);
    AwaitTheQueue();
    QCOMPARE(m_program->Design().Title, std::string());
    QVERIFY(m_program->User.told.empty());
}

void FilesInWindowTest::FolderAndLibraryAreToldAndWorkStays_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("folder") << "things";
    QTest::newRow("library") << "birds.plb";
}

void FilesInWindowTest::FolderAndLibraryAreToldAndWorkStays() {
    QFETCH(const QString, name);
    const auto path = *m_home / name.toStdString();
    if (name == QLatin1String("things")) {
        std::filesystem::create_directory(path);
    } else {
        WriteFile(path, "x");
    }
    m_program->ClickSquare(6, 6);
    QVERIFY(Drop(m_program->Grid(), {QString::fromStdString(path.string())}));
    QTRY_COMPARE(m_program->User.told.size(), std::size_t{1});
    QCOMPARE(m_program->User.told[0].text, name.toStdString() + " cannot be opened on the grid.");
    QVERIFY(m_program->User.asked.empty());
    QCOMPARE(m_program->Design().GetStitchCount(6, 6), 1);
    QVERIFY(m_program->Design().IsChanged());
}

} // namespace zol::test

QTEST_MAIN(zol::test::FilesInWindowTest)
#include "test_FilesInWindow.moc"
