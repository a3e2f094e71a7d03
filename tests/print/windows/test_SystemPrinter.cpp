// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/SystemPrinter.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>

#include "print/Paper.h"
#include "print/PdfReading.h"
#include "print/windows/PrintWindow.h"
#include "support/DialogDriver.h"

namespace zol::test {

/// Page set-up where there is no printer: the paper is that of PDFs.
class SystemPrinterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void PageSetUpTakesThePaperOfPdfs();
    void CancelledPageSetUpKeepsThePaper();

private:
    TempFolder m_folder;
};

namespace {

/// Chooses A5 across with an inch at the left, and leaves by the button.
DialogDriver::Step TakeA5(QDialogButtonBox::StandardButton button) {
    return [button](QDialog& dialog) {
        QCOMPARE(dialog.objectName(), QStringLiteral("dlgPageSetup"));
        auto& sizes = PartOf<QComboBox>(dialog, "pageSizeCombo");
        const int a5 = sizes.findText(QPageSize::name(QPageSize::A5));
        QVERIFY(a5 >= 0);
        while (sizes.currentIndex() != a5) {
            QTest::keyClick(&sizes, sizes.currentIndex() < a5 ? Qt::Key_Down : Qt::Key_Up);
        }
        ClickIn(dialog, "landscape");
        PartOf<QComboBox>(dialog, "unitCombo").setCurrentText(QStringLiteral("Inches (in)"));
        PartOf<QDoubleSpinBox>(dialog, "leftMargin").setValue(1);
        QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
    };
}

constexpr QMarginsF HalfAnInch(0.5, 0.5, 0.5, 0.5);

} // namespace

void SystemPrinterTest::initTestCase() {
    // A print server that nobody has started.
    qputenv("CUPS_SERVER", QByteArray::fromStdString((m_folder / "socket").string()));
}

void SystemPrinterTest::PageSetUpTakesThePaperOfPdfs() {
    SystemPrinter printers;
    QVERIFY(!printers.IsPrinterDefined());
    QVERIFY(printers.Printer() == nullptr);
    DialogDriver driver({TakeA5(QDialogButtonBox::Ok)});
    const std::optional<QMarginsF> margins = printers.SetUpPage(nullptr, HalfAnInch);
    QVERIFY(driver.AllDone());
    QVERIFY(margins.has_value());
    QVERIFY(qAbs(margins->left() - 1) < 0.01);
    QVERIFY(qAbs(margins->right() - 0.5) < 0.01);
    QCOMPARE(printers.Paper().pageSize().id(), QPageSize::A5);
    QCOMPARE(printers.Paper().orientation(), QPageLayout::Landscape);
    QVERIFY(printers.Paper().margins().isNull()); // a PDF has no border

    PrintWindow window;
    window.OpenOn(printers);
    const std::filesystem::path pdf = window.Scene.Path("rose.pdf");
    window.User.files = {pdf};
    window.Click("cmdSavePdf");
    QVERIFY(window.User.told.empty());
    const QString facts =
        OutputOf(QStringLiteral("pdfinfo"), {QString::fromStdString(pdf.string())});
    QVERIFY2(facts.contains(QStringLiteral("595 x 420 pts")), qPrintable(facts));
}

void SystemPrinterTest::CancelledPageSetUpKeepsThePaper() {
    SystemPrinter printers;
    QVERIFY(!printers.IsPrinterDefined());
    const QPageLayout before = printers.Paper();
    QCOMPARE(before.pageSize().id(), Paper(QLocale()).Layout().pageSize().id());
    DialogDriver driver({TakeA5(QDialogButtonBox::Cancel)});
    QVERIFY(!printers.SetUpPage(nullptr, HalfAnInch).has_value());
    QVERIFY(driver.AllDone());
    QVERIFY(printers.Paper() == before);
}

} // namespace zol::test

QTEST_MAIN(zol::test::SystemPrinterTest)
#include "test_SystemPrinter.moc"
