// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/frmFlossUsage.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

#include "print/FlossUsageText.h"
#include "print/windows/ReportScene.h"
#include "support/DialogHands.h"

namespace zol::test {

class FlossUsageWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ListsFlossesInDisplayOrderWithTotals();
    void HeaderClicksAndKeysSort();
    void CopiesAllAndWhatIsSelected();
    void SavesWhatTheListShows();
    void AFailedSaveIsToldAndTheWindowStays();
    void PrintsTheRowsAsTheyAreSorted();
    void ACancelledPrinterDialogIsSilent();
    void PrintersThatFailAreTold();
    void AnEmptyDesignHasAnEmptyList();
    void CountsOnceWhenItOpens();
    void CentimetresChangeTheColumn();
};

namespace {

QTreeView& ListOf(QWidget& window) {
    return PartOf<QTreeView>(window, "lvFlossUsage");
}

QString Cell(QWidget& window, int row, int column) {
    return ListOf(window).model()->index(row, column).data().toString();
}

QString Column(QWidget& window, int column) {
    QStringList texts;
    for (int row = 0; row < ListOf(window).model()->rowCount(); ++row) {
        texts << Cell(window, row, column);
    }
    return texts.join(QLatin1Char(' '));
}

void ClickHeader(QWidget& window, int column) {
    QHeaderView& header = *ListOf(window).header();
    const QPoint middle(header.sectionViewportPosition(column) + header.sectionSize(column) / 2,
                        header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, middle);
}

QString Clipboard() {
    return QGuiApplication::clipboard()->text();
}

void Show(QWidget& window) {
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
}

} // namespace

void FlossUsageWindowTest::ListsFlossesInDisplayOrderWithTotals() {
    ReportScene scene;
    frmFlossUsage window(scene.Desk());
    Show(window);
    QCOMPARE(window.windowTitle(), QStringLiteral("Estimated Floss Usage"));
    QStringList headings;
    for (int column = 0; column < 5; ++column) {
        headings << ListOf(window).model()->headerData(column, Qt::Horizontal).toString();
    }
    QCOMPARE(headings.join(QLatin1Char('|')),
             QStringLiteral("Floss ID|Description|Stitches|Back Stitch (Inches)|Skeins"));
    QCOMPARE(Column(window, 0), QStringLiteral("DMC 321 DMC 93 DMC 702"));
    QCOMPARE(Column(window, 2), QStringLiteral("2 10 9"));
    QCOMPARE(Column(window, 3), QStringLiteral("0.0 0.0 0.0"));
    QCOMPARE(Column(window, 4), QStringLiteral("0.1 0.1 0.1"));
    QCOMPARE(PartOf<QLabel>(window, "lblTotals").text(),
             QStringLiteral("21 stitches in 3 flosses, and 0.0 inches of backstitch: 3 skeins to "
                            "buy"));
}

void FlossUsageWindowTest::HeaderClicksAndKeysSort() {
    ReportScene scene;
    frmFlossUsage window(scene.Desk());
    Show(window);
    ClickHeader(window, 2);
    QCOMPARE(Column(window, 2), QStringLiteral("2 9 10"));
    ClickHeader(window, 2);
    QCOMPARE(Column(window, 2), QStringLiteral("10 9 2"));
    QTest::keyClick(&ListOf(window), Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(Column(window, 0), QStringLiteral("DMC 93 DMC 321 DMC 702"));
    QTest::keyClick(&ListOf(window), Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(Column(window, 0), QStringLiteral("DMC 702 DMC 321 DMC 93"));
    // Equal figures keep the order that was there.
    QTest::keyClick(&ListOf(window), Qt::Key_4, Qt::ControlModifier);
    QCOMPARE(Column(window, 0), QStringLiteral("DMC 702 DMC 321 DMC 93"));
}

void FlossUsageWindowTest::CopiesAllAndWhatIsSelected() {
    ReportScene scene;
    frmFlossUsage window(scene.Desk());
    Show(window);
    const QString head = QStringLiteral("Floss ID\tDescription\tStitches\tBack Stitch (Inches)\t"
                                        "Skeins\n");
    ClickHeader(window, 2);
    ClickIn(window, "cmdCopy");
    QCOMPARE(Clipboard(), head + QStringLiteral("DMC 321\tFloss 321\t2\t0.0\t0.1\n"
                                                "DMC 702\tFloss 702\t9\t0.0\t0.1\n"
                                                "DMC 93\tFloss 93\t10\t0.0\t0.1\n"));
    QTreeView& list = ListOf(window);
    const auto click = [&list](int row, Qt::KeyboardModifiers keys) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, keys,
                          list.visualRect(list.model()->index(row, 0)).center());
    };
    click(2, {});
    click(0, Qt::ControlModifier);
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(Clipboard(), head + QStringLiteral("DMC 321\tFloss 321\t2\t0.0\t0.1\n"
                                                "DMC 93\tFloss 93\t10\t0.0\t0.1\n"));
    // What is selected stays so while the list is sorted anew.
    ClickHeader(window, 2);
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(Clipboard(), head + QStringLiteral("DMC 93\tFloss 93\t10\t0.0\t0.1\n"
                                                "DMC 321\tFloss 321\t2\t0.0\t0.1\n"));
}

void FlossUsageWindowTest::SavesWhatTheListShows() {
    ReportScene scene;
    frmFlossUsage window(scene.Desk());
    Show(window);
    ClickHeader(window, 2);
    scene.user.files = {scene.scene.Path("out.csv"), std::nullopt};
    ClickIn(window, "cmdSave");
    QCOMPARE(scene.user.saveDialogs.at(0).SuggestedName, std::string("my"));
    QCOMPARE(scene.user.saveDialogs.at(0).DefaultExtension, std::string("csv"));
    auto rows = GetFlossUsages(*scene.pattern, true);
    SortFlossUsages(rows, 2, false);
    QCOMPARE(ReadFile(scene.scene.Path("out.csv")), FlossUsageCsv(rows, true));
    ClickIn(window, "cmdSave"); // cancelled
    QVERIFY(scene.user.told.empty());
    QVERIFY(scene.user.unanswered.empty());
}

void FlossUsageWindowTest::AFailedSaveIsToldAndTheWindowStays() {
    ReportScene scene;
    frmFlossUsage window(scene.Desk());
    Show(window);
    scene.user.files = {scene.scene.Path("none/out.csv")};
    ClickIn(window, "cmdSave");
    QCOMPARE(scene.user.ToldTexts(), std::vector<std::string>{"Path not found"});
    QVERIFY(window.isVisible());
}

void FlossUsageWindowTest::PrintsTheRowsAsTheyAreSorted() {
    ReportScene scene;
    frmFlossUsage window(scene.Desk());
    Show(window);
    const auto print = [&] {
        scene.printers.choices.push_back({QStringLiteral("Loom"), true});
        ClickIn(window, "cmdPrint");
        return scene.printers.device.printed.empty() ? QImage()
                                                     : scene.printers.device.printed.back();
    };
    const auto expected = [&](const std::vector<FlossUsageRow>& rows) {
        PicturePrinter paper;
        PrintOptions options = PrintOptionsOf(scene.settings);
        return PrintFlossUsage(*scene.pattern, rows, options, paper) ? paper.printed.at(0)
                                                                     : QImage();
    };
    auto rows = GetFlossUsages(*scene.pattern, true);
    const QImage first = print();
    QVERIFY(!first.isNull());
    QVERIFY(first == expected(rows));
    ClickHeader(window, 2);
    SortFlossUsages(rows, 2, false);
    const QImage sorted = print();
    QVERIFY(sorted == expected(rows));
    QVERIFY(sorted != first);
    QCOMPARE(scene.printers.documents,
             QStringList({QStringLiteral("Korvanta Floss Usage Report"),
                          QStringLiteral("Korvanta Floss Usage Report")}));
    QVERIFY(scene.user.told.empty());
}

void FlossUsageWindowTest::ACancelledPrinterDialogIsSilent() {
    ReportScene scene;
    frmFlossUsage window(scene.Desk());
    Show(window);
    scene.printers.choices.push_back({QStringLiteral("Loom"), false});
    ClickIn(window, "cmdPrint");
    QCOMPARE(scene.printers.choosers, 1);
    QCOMPARE(scene.printers.device.ended, 0);
    QVERIFY(scene.printers.documents.isEmpty());
    QVERIFY(scene.user.told.empty());
    QVERIFY(scene.user.asked.empty());
    QVERIFY(window.isVisible());
}

void FlossUsageWindowTest::PrintersThatFailAreTold() {
    ReportScene scene;
    frmFlossUsage window(scene.Desk());
    Show(window);
    scene.printers.device.refusesDocuments = true;
    scene.printers.choices.push_back({QStringLiteral("Loom"), true});
    ClickIn(window, "cmdPrint");
    scene.printers.device.why = "Disk full";
    scene.printers.choices.push_back({QStringLiteral("Loom"), true});
    ClickIn(window, "cmdPrint");
    scene.printers.isDefined = false;
    ClickIn(window, "cmdPrint");
    QCOMPARE(scene.user.ToldTexts(), (std::vector<std::string>{"Device I/O error", "Disk full",
                                                               "No Default Printer Defined!"}));
    QCOMPARE(scene.printers.choosers, 2);
}

void FlossUsageWindowTest::AnEmptyDesignHasAnEmptyList() {
    ReportScene scene;
    scene.pattern->Initialize(5, 5, 14, 14);
    frmFlossUsage window(scene.Desk());
    Show(window);
    QCOMPARE(ListOf(window).model()->rowCount(), 0);
    QCOMPARE(PartOf<QLabel>(window, "lblTotals").text(),
             QStringLiteral("Nothing is stitched yet."));
    QVERIFY(!PartOf<QPushButton>(window, "cmdSave").isEnabled());
    ClickHeader(window, 2);
    scene.printers.choices.push_back({QStringLiteral("Loom"), true});
    ClickIn(window, "cmdPrint");
    QCOMPARE(scene.printers.device.printed.size(), std::size_t{1}); // headings and "Page 1"
}

void FlossUsageWindowTest::CountsOnceWhenItOpens() {
    ReportScene scene;
    frmFlossUsage window(scene.Desk());
    Show(window);
    scene.pattern->SetStitch(12, 8, StitchWhole, 1, 5);
    ClickHeader(window, 2);
    QCOMPARE(Column(window, 2), QStringLiteral("2 9 10"));
}

void FlossUsageWindowTest::CentimetresChangeTheColumn() {
    ReportScene scene;
    scene.settings.Units = "centimetres";
    frmFlossUsage window(scene.Desk());
    QCOMPARE(ListOf(window).model()->headerData(3, Qt::Horizontal).toString(),
             QStringLiteral("Back Stitch (cm)"));
}

} // namespace zol::test

QTEST_MAIN(zol::test::FlossUsageWindowTest)
#include "test_frmFlossUsage.moc"
