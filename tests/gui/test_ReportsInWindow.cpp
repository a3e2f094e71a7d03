// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

#include <initializer_list>

#include "grid/painting/PaintColors.h"
#include "grid/tools/EditBox.h"
#include "gui/DrawnProgram.h"
#include "print/FlossUsageText.h"
#include "print/RtfLegend.h"
#include "support/DialogDriver.h"

namespace zol::test {

/// Export and floss usage in the whole program.
class ReportsInWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void WhatIsDrawnIsExported();
    void TheSelectedAreaIsExportedAsItFloats();
    void WhatWasChosenHoldsForTheRun();
    void WhatIsDrawnIsCountedAndPrinted();
};

namespace {

/// Paints the picture and saves it.
void ExportAndSave(QDialog& wizard) {
    for (const char* button : {"cmdExport", "cmdSaveImage"}) {
        ClickIn(wizard, button);
        QTRY_VERIFY(PartOf<QPushButton>(wizard, "cmdSaveImage").isEnabled());
    }
}

/// A design of 10 by 10 squares, large enough to be met by the mouse, of which these in row 2 are
/// stitched.
void Stitch(DrawnProgram& program, std::initializer_list<int> columns) {
    program.Take(10, 10, 300);
    for (const int column : columns) {
        program.ClickIn(column, 2);
    }
}

QImage Read(const std::filesystem::path& file) {
    return QImage(QString::fromStdString(file.string())).convertToFormat(QImage::Format_RGB32);
}

} // namespace

void ReportsInWindowTest::WhatIsDrawnIsExported() {
    OpenedProgram program;
    Stitch(program, {2, 3});
    const Colour floss = program.Design().GetPalette().GetFlossRGB(1);
    program.User.files = {program.Home / "out.png", program.Home / "out.rtf"};
    DialogDriver driver({[](QDialog& wizard) {
        ExportAndSave(wizard);
        ClickIn(wizard, "cmdSaveInfo");
        QTest::keyClick(&wizard, Qt::Key_Escape);
    }});
    program.Choose("mnuExport");
    QVERIFY(driver.AllDone());
    const QImage picture = Read(program.Home / "out.png");
    QCOMPARE(picture.size(), QSize(100, 100));
    QCOMPARE(picture.pixel(15, 15), ToQColor(floss).rgb());
    QCOMPARE(picture.pixel(25, 15), ToQColor(floss).rgb());
    QVERIFY(picture.pixel(35, 15) != ToQColor(floss).rgb());
    QCOMPARE(ReadFile(program.Home / "out.rtf"),
             RtfLegend::Write(program.Design(), PrintOptionsOf(program.Parts().Settings)));
    QVERIFY(program.User.told.empty());
}

void ReportsInWindowTest::TheSelectedAreaIsExportedAsItFloats() {
    OpenedProgram program;
    Stitch(program, {2});
    program.Tool("DRAWMODE_EDITBOX");
    program.DragOver({{2, 2}, {4, 3}});
    program.User.files = {program.Home / "out.png"};
    DialogDriver driver({[](QDialog& wizard) {
        ClickIn(wizard, "chkSelectedOnly");
        ExportAndSave(wizard);
        wizard.reject();
    }});
    program.Choose("mnuExport");
    QVERIFY(driver.AllDone());
    const QImage picture = Read(program.Home / "out.png");
    QCOMPARE(picture.size(), QSize(30, 20));
    QVERIFY(picture.pixel(5, 5) != picture.pixel(15, 5));
    QVERIFY(program.Window().Modes().Box().IsActive()); // the selection stays
}

void ReportsInWindowTest::WhatWasChosenHoldsForTheRun() {
    OpenedProgram program;
    DialogDriver driver({[](QDialog& wizard) {
                             TypeIn(wizard, "txtPixelsPerSquare", QStringLiteral("3"));
                             PartOf<QComboBox>(wizard, "cmbSDA").setCurrentIndex(2);
                             wizard.reject();
                         },
                         [](QDialog& wizard) {
                             QCOMPARE(PartOf<QLineEdit>(wizard, "txtPixelsPerSquare").text(),
                                      QStringLiteral("3"));
                             QCOMPARE(PartOf<QComboBox>(wizard, "cmbSDA").currentIndex(), 2);
                             wizard.reject();
                         }});
    program.Choose("mnuExport");
    program.Choose("mnuExport");
    QVERIFY(driver.AllDone());
}

void ReportsInWindowTest::WhatIsDrawnIsCountedAndPrinted() {
    OpenedProgram program;
    Stitch(program, {2, 3});
    program.User.files = {program.Home / "out.csv"};
    program.Printers.choices.push_back({QStringLiteral("Loom"), true});
    DialogDriver driver({[](QDialog& window) {
        QCOMPARE(PartOf<QTreeView>(window, "lvFlossUsage").model()->rowCount(), 1);
        ClickIn(window, "cmdSave");
        ClickIn(window, "cmdPrint");
        QTest::keyClick(&window, Qt::Key_Escape);
    }});
    program.Choose("mnuToolsFlossUsage");
    QVERIFY(driver.AllDone());
    const bool inches = program.Parts().Settings.UsesInches();
    QCOMPARE(ReadFile(program.Home / "out.csv"),
             FlossUsageCsv(GetFlossUsages(program.Design(), inches), inches));
    QCOMPARE(program.Printers.device.printed.size(), std::size_t{1});
    QVERIFY(program.User.told.empty());
}

} // namespace zol::test

QTEST_MAIN(zol::test::ReportsInWindowTest)
#include "test_ReportsInWindow.moc"
