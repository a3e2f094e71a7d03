// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include "grid/tools/EditBox.h"
#include "gui/RunningProgram.h"
#include "print/windows/frmPrintOptions.h"
#include "settings/windows/frmOptions.h"
#include "support/DialogDriver.h"

namespace zol::test {

/// Printing from the main window: its commands, the edit box, options, page set-up.
class PrintInWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PrintCommandPrintsTheChart();
    void KeyCommandPrintsTheKeyAlone();
    void WithoutAPrinterTheDialogDoesNotOpen();
    void SelectedAreaIsTheEditBox();
    void FloatingBlockStaysAfloat();
    void AdvancedSetupOpensThePrintouts();
    void PageSetupTakesTheMargins();
};

void PrintInWindowTest::PrintCommandPrintsTheChart() {
    const ProgramHome home;
    RunningProgram program(home, (home / "app" / "Patterns" / "robin.pat").string());
    QVERIFY(program.Start());
    DialogDriver driver({[](QDialog& dialog) {
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Print Pattern"));
        ClickIn(dialog, "cmdPrint");
    }});
    program.Choose("mnuFilePrintPreview");
    QVERIFY(driver.AllDone());
    QVERIFY(program.Printers.device.printed.size() >= 2);
    QCOMPARE(program.Printers.device.ended, 1);
    QVERIFY(!program.Design().IsChanged());
    program.End();
}

void PrintInWindowTest::KeyCommandPrintsTheKeyAlone() {
    const ProgramHome home;
    RunningProgram program(home, (home / "app" / "Patterns" / "robin.pat").string());
    QVERIFY(program.Start());
    DialogDriver driver({[](QDialog& dialog) {
        QVERIFY(dialog.windowTitle().endsWith(QStringLiteral(" Key")));
        ClickIn(dialog, "cmdPrint");
    }});
    program.Choose("mnuPrintColorKey");
    QVERIFY(driver.AllDone());
    QCOMPARE(program.Printers.device.printed.size(), std::size_t{1});
    program.End();
}

void PrintInWindowTest::WithoutAPrinterTheDialogDoesNotOpen() {
    StartedProgram program;
    program.Printers.isDefined = false;
    for (const char* command : {"mnuFilePrintPreview", "mnuPrintColorKey"}) {
        program.Choose(command);
        QCOMPARE(program.User.told.back().text, std::string("No Default Printer Defined!"));
    }
    QCOMPARE(program.User.told.size(), std::size_t{2});
}

void PrintInWindowTest::SelectedAreaIsTheEditBox() {
    StartedProgram program;
    program.ClickSquare(5, 6);
    program.Choose("mnuDrawModeEditBox");
    program.Drag({3, 4}, {12, 11});
    QVERIFY(program.Window().Modes().Box().IsActive());
    DialogDriver driver({[](QDialog& dialog) {
        QVERIFY(PartOf<QCheckBox>(dialog, "chkSelectedOnly").isEnabled());
        ClickIn(dialog, "chkSelectedOnly");
        ClickIn(dialog, "chkPrintColorKey");
        QCOMPARE(PartOf<QLineEdit>(dialog, "txtToPage").text(), QStringLiteral("1"));
        ClickIn(dialog, "cmdPrint");
    }});
    program.Choose("mnuFilePrintPreview");
    QVERIFY(driver.AllDone());
    QCOMPARE(program.Printers.device.printed.size(), std::size_t{1});
    QVERIFY(program.Window().Modes().Box().IsActive());
}

void PrintInWindowTest::FloatingBlockStaysAfloat() {
    StartedProgram program;
    program.ClickSquare(5, 6);
    program.Choose("mnuDrawModeEditBox");
    program.Drag({5, 6}, {6, 7});
    program.Choose("mnuEditCopy");
    program.Choose("mnuEditPaste");
    QVERIFY(program.Window().Modes().Box().HasPattern());
    DialogDriver driver({[](QDialog& dialog) { ClickIn(dialog, "cmdPrint"); }});
    program.Choose("mnuFilePrintPreview");
    QVERIFY(driver.AllDone());
    QVERIFY(!program.Printers.device.printed.empty());
    QVERIFY(program.Window().Modes().Box().HasPattern());
}

void PrintInWindowTest::AdvancedSetupOpensThePrintouts() {
    StartedProgram program;
    DialogDriver driver({[](QDialog& dialog) {
                             ClickIn(dialog, "cmdAdvanced");
                             QTest::keyClick(&dialog, Qt::Key_Escape);
                         },
                         [](QDialog& dialog) {
                             QVERIFY(qobject_cast<frmOptions*>(&dialog) != nullptr);
                             QCOMPARE(PartOf<QTabWidget>(dialog, "tbsOptions").currentIndex(),
                                      int(frmOptions::PrintoutsPage));
                             dialog.reject();
                         }});
    program.Choose("mnuFilePrintPreview");
    QVERIFY(driver.AllDone());
}

void PrintInWindowTest::PageSetupTakesTheMargins() {
    StartedProgram program;
    program.Choose("mnuFilePageSetup");
    QCOMPARE(program.Parts().Settings.LeftMargin, 0.5);
    program.Printers.newMargins = QMarginsF(1, 0.75, 0.5, 2);
    program.Choose("mnuFilePageSetup");
    QCOMPARE(program.Printers.pageSetUps.back(), QMarginsF(0.5, 0.5, 0.5, 0.5));
    QCOMPARE(program.Parts().Settings.LeftMargin, 1.0);
    QCOMPARE(program.Parts().Settings.BottomMargin, 2.0);
    QCOMPARE(program.Parts().Store.ReadSetting("Printer Opts", "TopMargin", ""),
             std::string("0.75"));
}

} // namespace zol::test

QTEST_MAIN(zol::test::PrintInWindowTest)
#include "test_PrintInWindow.moc"
