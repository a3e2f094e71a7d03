// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QComboBox>
#include <QDragEnterEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QStackedWidget>

#include "flosses/Palette.h"
#include "gui/DrawnProgram.h"
#include "gui/ImportHands.h"
#include "import/windows/PictureView.h"
#include "import/windows/frmImportWizard.h"
#include "support/DialogDriver.h"

namespace zol::test {

/// From a picture to a design in the whole program.
class ImportInWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void APhotoBecomesADesignAndUndoBringsTheOldOneBack();
    void BackKeepsWhatWasDone();
    void AnImportThatWasLeftIsResumedOrNot();
    void AnImportThatWasDoneIsResumedOnItsLastScreen();
    void ACancelDuringFinishLeavesDesignUndoAndWizard();
    void AnImportIntoTheEditBoxLeavesTheRest();
    void ADroppedPictureOpensTheWizardOnIt();
    void EveryNameOfAPictureCanBeDropped_data();
    void EveryNameOfAPictureCanBeDropped();
    void FewFlossesThatShareTheirSymbolsAreTold();

private:
    QTemporaryDir m_folder;
};

namespace {

bool IsShown(frmImportWizard& wizard, const char* part) {
    return PartOf<QWidget>(wizard, part).isVisible();
}

/// Presses Cancel as soon as a strip that says how far work is shows up.
class CancelAtOnce : public QObject {
public:
    explicit CancelAtOnce(QWidget& strip) : m_strip(strip) { strip.installEventFilter(this); }
    [[nodiscard]] bool WasShown() const { return m_wasShown; }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Show && !m_wasShown) {
            m_wasShown = true;
            QMetaObject::invokeMethod(
                this, [this] { ClickIn(m_strip, "cmdCancelStatus"); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    QWidget& m_strip;
    bool m_wasShown = false;
};

} // namespace

void ImportInWindowTest::init() {
    qputenv("TMPDIR", m_folder.path().toUtf8());
}

void ImportInWindowTest::APhotoBecomesADesignAndUndoBringsTheOldOneBack() {
    OpenedProgram program;
    program.Take(20, 10, 300);
    program.ClickIn(2, 2);
    program.Design().FileName = "/patterns/rose.pat";
    const std::string before = BytesOf(program.Parts().Open.Get());
    Import(program, [&program](frmImportWizard& wizard) {
        QCOMPARE(wizard.windowTitle(), QStringLiteral("Import Wizard"));
        QVERIFY(!PartOf<QPushButton>(wizard, "cmdBack").isEnabled());
        // Enter is Next: there is nothing yet.
        QTest::keyClick(&wizard, Qt::Key_Return);
        QCOMPARE(program.User.ToldTexts(),
                 std::vector<std::string>{"You must select an image to import"});
        program.User.told.clear();
        TakeFile(program, wizard, "still-life.jpg");
        SetWidth(wizard, QStringLiteral("60"));
        QCOMPARE(PartOf<QPushButton>(wizard, "cmdNext").text(), QStringLiteral("&Next"));
        GoToMapping(wizard);
        QCOMPARE(PartOf<QPushButton>(wizard, "cmdNext").text(), QStringLiteral("&Finish"));
        QVERIFY(PartOf<QLabel>(wizard, "lblReplaces").text().contains(QLatin1String("Undo")));
        ChooseFamily(wizard, QStringLiteral("12"));
        // Finish before any preview was asked for.
        Next(wizard);
    });
    QVERIFY(program.User.unanswered.empty());
    Pattern& design = program.Design();
    QCOMPARE(design.GetPatternWidth(), 60);
    QCOMPARE(design.GetPatternHeight(), 45);
    QVERIFY(design.GetPalette().GetEntriesCount() <= 12);
    QCOMPARE(design.GetStitchCount(30, 20), 1);
    QVERIFY(design.IsChanged());
    QVERIFY(design.FileName.empty());
    QVERIFY(program.Window().windowTitle().endsWith(QLatin1String("Unsaved Pattern")));
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Import"));
    QTRY_COMPARE(program.WrongPixels(), 0);
    QVERIFY(program.Find<QLabel>("placePanel")->text().contains(QLatin1String("2700 stitches")));
    program.Choose("mnuEditUndo");
    QCOMPARE(BytesOf(program.Parts().Open.Get()), before);
    QCOMPARE(design.FileName, std::string("/patterns/rose.pat"));
    QTRY_COMPARE(program.WrongPixels(), 0);
    design.FileName.clear();
}

void ImportInWindowTest::BackKeepsWhatWasDone() {
    OpenedProgram program;
    Import(program, [&program](frmImportWizard& wizard) {
        TakeFile(program, wizard, "cat.png");
        SetWidth(wizard, QStringLiteral("24"));
        // Going back hands the size on too; coming forward starts from the screen before.
        ClickIn(wizard, "cmdBack");
        QCOMPARE(wizard.CurrentScreen(), 2);
        QCOMPARE(PartOf<PictureView>(wizard, "lpicErase").Shown()->ImageWidth(), 48);
        Next(wizard);
        QCOMPARE(PartOf<QLineEdit>(wizard, "txtWidth").text(), QStringLiteral("24"));
        // A wrong field does not hold one who goes back.
        TypeIn(wizard, "txtWidth", QStringLiteral("0"));
        ClickIn(wizard, "cmdBack");
        QCOMPARE(program.User.ToldTexts(),
                 std::vector<std::string>{"Pattern width must be greater than zero"});
        QCOMPARE(wizard.CurrentScreen(), 2);
        // Forward it does.
        Next(wizard);
        Next(wizard);
        QCOMPARE(wizard.CurrentScreen(), 3);
        QCOMPARE(program.User.told.size(), std::size_t{2});
        for (int screen = 2; screen >= 0; --screen) {
            ClickIn(wizard, "cmdBack");
            QCOMPARE(wizard.CurrentScreen(), screen);
        }
        QVERIFY(!PartOf<QPushButton>(wizard, "cmdBack").isEnabled());
        QVERIFY(PartOf<PictureView>(wizard, "LPicPreview").Shown() != nullptr);
    });
}

void ImportInWindowTest::AnImportThatWasLeftIsResumedOrNot() {
    OpenedProgram program;
    const std::string before = BytesOf(program.Parts().Open.Get());
    // Nothing was chosen, so there is nothing to ask about.
    for (int i = 0; i < 2; ++i) {
        Import(program, [](frmImportWizard& wizard) {
            QTest::keyClick(&wizard, Qt::Key_Escape);
            QVERIFY(!wizard.isVisible());
        });
    }
    QVERIFY(program.User.asked.empty());
    Import(program, [&program](frmImportWizard& wizard) {
        TakeFile(program, wizard, "cat.png");
        SetWidth(wizard, QStringLiteral("31"));
        ClickIn(wizard, "cmdCancel");
        QVERIFY(!wizard.isVisible());
    });
    QCOMPARE(BytesOf(program.Parts().Open.Get()), before);
    QVERIFY(!program.Design().IsChanged());
    // A question that is left unanswered changes nothing: no wizard comes up, and none is lost.
    program.User.answers = {MessageAnswer::Cancel};
    {
        const DialogDriver nobody({});
        program.Choose("mnuImport");
        program.Settle();
        QVERIFY(nobody.AllDone());
    }
    program.User.answers = {MessageAnswer::Yes};
    Import(program, [](frmImportWizard& wizard) {
        QCOMPARE(wizard.CurrentScreen(), 3);
        QCOMPARE(PartOf<QLineEdit>(wizard, "txtWidth").text(), QStringLiteral("31"));
    });
    QCOMPARE(program.User.AskedTexts(),
             std::vector<std::string>(2, "Would you like to resume the last Import?"));
    program.User.answers = {MessageAnswer::No};
    Import(program, [](frmImportWizard& wizard) {
        QCOMPARE(wizard.CurrentScreen(), 0);
        QVERIFY(PartOf<PictureView>(wizard, "LPicPreview").Shown() == nullptr);
        QVERIFY(PartOf<QWidget>(wizard, "optLastImage").isEnabled());
    });
    QVERIFY(program.User.unanswered.empty());
}

void ImportInWindowTest::AnImportThatWasDoneIsResumedOnItsLastScreen() {
    OpenedProgram program;
    Import(program, [&program](frmImportWizard& wizard) {
        TakeFile(program, wizard, "cat.png");
        SetWidth(wizard, QStringLiteral("24"));
        GoToMapping(wizard);
        ChooseFamily(wizard, QStringLiteral("9"));
        Next(wizard);
        QVERIFY(!wizard.isVisible());
    });
    QCOMPARE(program.Design().GetPatternWidth(), 24);
    const std::string first = BytesOf(program.Parts().Open.Get());
    program.User.answers = {MessageAnswer::Yes};
    Import(program, [](frmImportWizard& wizard) {
        QCOMPARE(wizard.CurrentScreen(), 5);
        QCOMPARE(PartOf<QLineEdit>(wizard, "txtMaxColors").text(), QStringLiteral("9"));
        QVERIFY(IsShown(wizard, "lpicPreviewPattern"));
        Next(wizard);
        QVERIFY(!wizard.isVisible());
    });
    QCOMPARE(BytesOf(program.Parts().Open.Get()), first);
}

void ImportInWindowTest::ACancelDuringFinishLeavesDesignUndoAndWizard() {
    OpenedProgram program;
    program.Take(20, 12, 300);
    const std::string before = BytesOf(program.Parts().Open.Get());
    program.Design().SetChanged(false);
    Import(program, [&program](frmImportWizard& wizard) {
        TakeFile(program, wizard, "still-life.jpg");
        SetWidth(wizard, QStringLiteral("2400")); // so many stitches take a while
        GoToMapping(wizard);
        ChooseFamily(wizard, QStringLiteral("12"));
        auto* strip =
            wizard.findChild<QWidget*>(QStringLiteral("picStatus"), Qt::FindDirectChildrenOnly);
        QVERIFY(strip != nullptr);
        const CancelAtOnce cancel(*strip);
        Next(wizard);
        QVERIFY(cancel.WasShown());
        QVERIFY(wizard.isVisible() && !strip->isVisible());
        QCOMPARE(wizard.CurrentScreen(), 5);
        QCOMPARE(PartOf<QLineEdit>(wizard, "txtMaxColors").text(), QStringLiteral("12"));
        QVERIFY(PartOf<QComboBox>(wizard, "cmbFlossFamily").currentIndex() >= 0);
        // All that was done is there on the screens before.
        ClickIn(wizard, "cmdBack");
        ClickIn(wizard, "cmdBack");
        QCOMPARE(PartOf<QLineEdit>(wizard, "txtWidth").text(), QStringLiteral("2400"));
    });
    QCOMPARE(BytesOf(program.Parts().Open.Get()), before);
    QVERIFY(!program.Design().IsChanged());
    QVERIFY(!program.Command("mnuEditUndo").isEnabled());
}

void ImportInWindowTest::AnImportIntoTheEditBoxLeavesTheRest() {
    OpenedProgram program;
    program.Take(20, 12, 300);
    program.ClickIn(1, 1);
    program.ClickIn(6, 6);
    program.Choose("mnuDrawModeEditBox");
    program.DragOver({{4, 3}, {11, 8}});
    const int flosses = program.Design().GetPalette().GetEntriesCount();
    Import(program, [&program](frmImportWizard& wizard) {
        TakeFile(program, wizard, "still-life.jpg");
        ClickIn(wizard, "chkUseEditBox");
        GoToMapping(wizard);
        QVERIFY(PartOf<QLabel>(wizard, "lblReplaces").text().isEmpty());
        ChooseFamily(wizard, QStringLiteral("150"));
        Next(wizard);
        QVERIFY(!wizard.isVisible());
    });
    Pattern& design = program.Design();
    QCOMPARE(design.GetPatternWidth(), 20);
    QVERIFY(design.GetPalette().GetEntriesCount() >= flosses);
    QCOMPARE(design.GetStitchCount(1, 1), 1);
    for (int column = 1; column <= 20; ++column) {
        for (int row = 1; row <= 12; ++row) {
            const bool inside = column >= 4 && column <= 11 && row >= 3 && row <= 8;
            const bool drawn = column == 1 && row == 1;
            QCOMPARE(design.GetStitchCount(column, row) > 0, inside || drawn);
        }
    }
    program.Choose("mnuEditUndo");
    QCOMPARE(design.GetPalette().GetEntriesCount(), flosses);
    QCOMPARE(design.GetStitchCount(4, 3), 0);
    QCOMPARE(design.GetStitchCount(6, 6), 1);
    design.SetChanged(false);
}

void ImportInWindowTest::ADroppedPictureOpensTheWizardOnIt() {
    OpenedProgram program;
    DialogDriver driver({[](QDialog& dialog) {
        auto& wizard = dynamic_cast<frmImportWizard&>(dialog);
        auto& preview = PartOf<PictureView>(wizard, "LPicPreview");
        QTRY_VERIFY(preview.Shown() != nullptr);
        QCOMPARE(preview.Shown()->ImageWidth(), 48);
        // Another one, dropped onto the wizard.
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QString::fromStdString(Sample("logo.png").string()))});
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&wizard, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&wizard, &drop);
        QTRY_VERIFY(preview.Shown() != nullptr && preview.Shown()->ImageWidth() == 600);
        // Further on a drop would take away what was done.
        Next(wizard);
        QCOMPARE(wizard.CurrentScreen(), 1);
        QDragEnterEvent late({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        late.ignore();
        QApplication::sendEvent(&wizard, &late);
        QVERIFY(!late.isAccepted());
        wizard.reject();
    }});
    Q_EMIT program.Window().FileDropped(QString::fromStdString(Sample("cat.png").string()));
    QTRY_VERIFY(driver.AllDone());
}

void ImportInWindowTest::EveryNameOfAPictureCanBeDropped_data() {
    QTest::addColumn<QString>("ending");
    for (const char* ending : {"jpg", "JPE", "jfif", "heif", "tiff", "dib"}) {
        QTest::newRow(ending) << QString::fromLatin1(ending);
    }
}

void ImportInWindowTest::EveryNameOfAPictureCanBeDropped() {
    QFETCH(const QString, ending);
    OpenedProgram program;
    // What is in the file does not count for where it may be dropped.
    const QString file = m_folder.filePath(QStringLiteral("dropped.") + ending);
    QVERIFY(QFile::copy(QString::fromStdString(Sample("cat.png").string()), file));
    DialogDriver driver({[](QDialog& dialog) {
        QTRY_VERIFY(PartOf<PictureView>(dialog, "LPicPreview").Shown() != nullptr);
        dialog.reject();
    }});
    Q_EMIT program.Window().FileDropped(file);
    QTRY_VERIFY(driver.AllDone());
    QVERIFY(program.User.told.empty());
}

void ImportInWindowTest::FewFlossesThatShareTheirSymbolsAreTold() {
    OpenedProgram program;
    // A palette whose two flosses have the same symbol.
    Palette palette = Palette::Empty(program.Parts().Context);
    palette.AddPaletteEntry(MakeColour(200, 0, 10), "1", "red", "DMC", "R", 2, 1, 0, 0, 0, "DMC");
    palette.AddPaletteEntry(MakeColour(0, 0, 10), "2", "black", "DMC", "R", 2, 1, 0, 0, 0, "DMC");
    program.Design().GetPalette() = palette;
    Import(program, [&program](frmImportWizard& wizard) {
        TakeFile(program, wizard, "cat.png");
        SetWidth(wizard, QStringLiteral("10"));
        GoToMapping(wizard);
        ClickIn(wizard, "optPalette");
        auto& palettes = PartOf<QComboBox>(wizard, "cmbFlossFamily");
        palettes.setFocus();
        QTest::keyClick(&palettes, Qt::Key_Home);
        Next(wizard);
        QVERIFY(!wizard.isVisible());
    });
    QCOMPARE(program.User.ToldTexts(),
             std::vector<std::string>{"2 flosses share their symbol with another one"});
}

} // namespace zol::test

QTEST_MAIN(zol::test::ImportInWindowTest)
#include "test_ImportInWindow.moc"
