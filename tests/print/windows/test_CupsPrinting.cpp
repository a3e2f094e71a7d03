// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QImage>
#include <QPointer>

#include "print/PdfJob.h"
#include "print/PdfReading.h"
#include "print/PrintJob.h"
#include "print/windows/PrintWindow.h"
#include "print/windows/PrinterChoice.h"
#include "print/windows/PrivateCups.h"
#include "print/windows/SystemPrinter.h"
#include "print/windows/frmPrinting.h"

namespace zol::test {

namespace {

constexpr int PrintMilliseconds = 20000;

std::filesystem::path PathOfName(const QString& name) {
    return name.toStdString();
}

/// A page as a picture.
QImage PageOf(const std::filesystem::path& pdf, int page, const std::filesystem::path& folder) {
    const QString root = QString::fromStdString((folder / "page").string());
    (void)OutputOf(QStringLiteral("pdftoppm"),
                   {QStringLiteral("-r"), QStringLiteral("60"), QStringLiteral("-png"),
                    QStringLiteral("-singlefile"), QStringLiteral("-f"), QString::number(page),
                    QString::fromStdString(pdf.string()), root});
    return QImage(root + QStringLiteral(".png"));
}

} // namespace

/// Prints for real, to a print server of its own, and reads back what came out.
class CupsPrintingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void MeasuresAreThePrinters();
    void PrintedPagesHoldThePatternSquareBySquare();
    void PrintedPagesLookLikeThePdf();
    void SelectedAreaIsPrinted();
    void CancelInTheMiddlePrintsNothing();
    void PausedQueueKeepsThePages();
    void RefusingQueueIsTold();
    void RemovedQueueIsTold();
    void QueueThatVanishesWhileThePagesAreMadeIsTold();
    void ChosenPrinterComesBackWhileItExists();
    void WithoutAQueueThereIsNoPrinter();

private:
    [[nodiscard]] QString NextPrint(PrintWindow& window);

    PrivateCups m_cups;
    QStringList m_before;
};

void CupsPrintingTest::initTestCase() {
    if (!PrivateCups::IsInstalled()) {
        if (qEnvironmentVariableIsSet("KORVANTA_NEEDS_CUPS")) {
            QFAIL("the print server is not installed (packages cups-daemon, cups-client)");
        }
        QSKIP("the print server is not installed (packages cups-daemon, cups-client)");
    }
    QVERIFY2(m_cups.Start(), qPrintable(m_cups.Complaints()));
}

void CupsPrintingTest::init() {
    QVERIFY2(m_cups.AddPrinter(QStringLiteral("Loom")), qPrintable(m_cups.Complaints()));
    m_before = m_cups.Printed();
}

void CupsPrintingTest::cleanup() {
    m_cups.RemovePrinter(QStringLiteral("Loom"));
    m_cups.RemovePrinter(QStringLiteral("Frame"));
}

QString CupsPrintingTest::NextPrint(PrintWindow& window) {
    window.Click("cmdPrint");
    const bool came = QTest::qWaitFor([this] { return m_cups.Printed().size() > m_before.size(); },
                                      PrintMilliseconds);
    return came ? m_cups.Printed().last() : QString();
}

void CupsPrintingTest::MeasuresAreThePrinters() {
    SystemPrinter printers;
    QVERIFY(printers.Printer() == nullptr);
    QVERIFY(printers.IsPrinterDefined());
    QCOMPARE(printers.DeviceName(), QStringLiteral("Loom"));
    const PageDevice& pages = *printers.Printer();
    QCOMPARE(pages.Width(), 11900);
    QCOMPARE(pages.Height(), 16840);
    QCOMPARE(pages.BorderX(), 360);
    QCOMPARE(pages.BorderY(), 360);
    QCOMPARE(printers.State(), PrinterState::Ready);
}

void CupsPrintingTest::PrintedPagesHoldThePatternSquareBySquare() {
    PrintWindow window;
    SystemPrinter printers;
    QVERIFY(printers.IsPrinterDefined());
    window.OpenOn(printers);
    const int pages = window.Text("txtToPage").toInt();
    const QString pdf = NextPrint(window);
    QVERIFY2(!pdf.isEmpty(), qPrintable(m_cups.Complaints()));
    QVERIFY(!window.Dialog->isVisible());
    QVERIFY(pages > 2);
    QCOMPARE(PdfPageCount(PathOfName(pdf)), pages);
    PrintFuncs job(window.Desk->OptionsNow(), printers.Printer());
    job.SetPattern(*window.Design);
    QVERIFY(SymbolsIn(PathOfName(pdf), job) == SymbolsOf(*window.Design));
    const QString options = PrivateCups::OptionsOf(pdf);
    QVERIFY2(options.startsWith(QStringLiteral("rose.pat\n1\n")), qPrintable(options));
    QVERIFY2(options.contains(QStringLiteral("media=A4")), qPrintable(options));
}

void CupsPrintingTest::PrintedPagesLookLikeThePdf() {
    PrintWindow window;
    SystemPrinter printers;
    QVERIFY(printers.IsPrinterDefined());
    window.Settings.StitchSymbol = PrintBlocksAndSymbols;
    window.OpenOn(printers);
    const int pages = window.Text("txtToPage").toInt();
    const QString printed = NextPrint(window);
    QVERIFY(!printed.isEmpty());
    PrintFuncs job(window.Desk->OptionsNow(), printers.Printer());
    job.SetPattern(*window.Design);
    job.CountKeyPages();
    job.SetPrintRange(1, job.GetPageCount(), false);
    const auto pdf = window.Scene.Path("same.pdf");
    QVERIFY(WritePdf(job, pdf, nullptr).IsWhole());
    for (const int page : {1, pages - 1, pages}) {
        const QImage one = PageOf(PathOfName(printed), page, window.Scene.Folder());
        const QImage other = PageOf(pdf, page, window.Scene.Folder());
        QVERIFY(!one.isNull());
        QVERIFY2(one == other, qPrintable(QString::number(page)));
    }
}

void CupsPrintingTest::SelectedAreaIsPrinted() {
    PrintWindow window;
    SystemPrinter printers;
    QVERIFY(printers.IsPrinterDefined());
    const auto part = window.Scene.MakePattern(12, 9);
    FillWithStitches(*part, 5);
    window.Selected = SelectedArea{part.get(), {31, 41}};
    window.OpenOn(printers);
    window.Click("chkSelectedOnly");
    window.Click("chkPrintColorKey");
    const QString pdf = NextPrint(window);
    QVERIFY(!pdf.isEmpty());
    QCOMPARE(PdfPageCount(PathOfName(pdf)), 1);
    PrintFuncs job(window.Desk->OptionsNow(), printers.Printer());
    job.SetPattern(*part);
    QVERIFY(SymbolsIn(PathOfName(pdf), job) == SymbolsOf(*part));
    // The tenth lines of the whole pattern.
    QVERIFY(PdfText(PathOfName(pdf), 1).contains(QStringLiteral("40")));
}

void CupsPrintingTest::CancelInTheMiddlePrintsNothing() {
    PrintWindow window;
    SystemPrinter printers;
    QVERIFY(printers.IsPrinterDefined());
    window.OpenOn(printers);
    PrintFuncs job(window.Desk->OptionsNow(), printers.Printer());
    job.SetPattern(*window.Design);
    job.CountKeyPages();
    job.SetPrintRange(1, job.GetPageCount(), false);
    RecordingProgress progress;
    progress.cancelAfter = 100; // on the second page
    PrintJob pages(job, *printers.Printer(), &progress);
    QCOMPARE(pages.Run(), PrintJob::State::Cancelled);
    QCOMPARE(progress.started.size(), std::size_t{2});
    QCOMPARE(m_cups.Waiting(), 0);
    // What is printed next is the first that comes.
    QVERIFY(!NextPrint(window).isEmpty());
    QCOMPARE(m_cups.Printed().size(), m_before.size() + 1);
}

void CupsPrintingTest::PausedQueueKeepsThePages() {
    PrintWindow window;
    SystemPrinter printers;
    QVERIFY(printers.IsPrinterDefined());
    window.OpenOn(printers);
    QVERIFY(m_cups.Pause(QStringLiteral("Loom")));
    QCOMPARE(printers.State(), PrinterState::Paused);
    window.User.answers = {MessageAnswer::No, MessageAnswer::Yes};
    window.Click("cmdPrint");
    QCOMPARE(m_cups.Waiting(), 0);
    QVERIFY(window.Dialog->isVisible());
    window.Click("cmdPrint");
    QVERIFY(!window.Dialog->isVisible());
    QCOMPARE(m_cups.Waiting(), 1);
    QCOMPARE(m_cups.Printed(), m_before);
    QVERIFY(m_cups.GoOn(QStringLiteral("Loom")));
    QTRY_COMPARE_WITH_TIMEOUT(m_cups.Printed().size(), m_before.size() + 1, PrintMilliseconds);
}

void CupsPrintingTest::RefusingQueueIsTold() {
    PrintWindow window;
    SystemPrinter printers;
    QVERIFY(printers.IsPrinterDefined());
    window.OpenOn(printers);
    QVERIFY(m_cups.Refuse(QStringLiteral("Loom")));
    window.Click("cmdPrint");
    QCOMPARE(window.Told(), std::string("The printer \"Loom\" takes no jobs at present."));
    QVERIFY(window.Dialog->isVisible());
}

void CupsPrintingTest::RemovedQueueIsTold() {
    PrintWindow window;
    SystemPrinter printers;
    QVERIFY(printers.IsPrinterDefined());
    window.OpenOn(printers);
    QVERIFY(m_cups.RemovePrinter(QStringLiteral("Loom")));
    window.Click("cmdPrint");
    QCOMPARE(window.Told(), std::string("The printer \"Loom\" is not there any more."));
    QVERIFY(window.Dialog->isVisible());
    // The pages can still be had.
    const auto path = window.Scene.Path("rose.pdf");
    window.User.files = {path};
    window.Click("cmdSavePdf");
    QVERIFY(PdfPageCount(path) > 1);
}

void CupsPrintingTest::QueueThatVanishesWhileThePagesAreMadeIsTold() {
    PrintWindow window;
    SystemPrinter printers;
    QVERIFY(printers.IsPrinterDefined());
    PrintFuncs job(PrintOptions(), printers.Printer());
    job.SetPattern(*window.Design);
    job.SetPrintRange(1, job.GetPageCount(), false);
    PrintJob pages(job, *printers.Printer(), nullptr);
    QCOMPARE(pages.PrintNextPage(), PrintJob::State::Running);
    QVERIFY(m_cups.RemovePrinter(QStringLiteral("Loom")));
    QCOMPARE(pages.Run(), PrintJob::State::Failed);
    QVERIFY(!pages.ErrorText().empty());
    QVERIFY(pages.ErrorText() != "Device I/O error");
}

void CupsPrintingTest::ChosenPrinterComesBackWhileItExists() {
    QVERIFY(m_cups.AddPrinter(QStringLiteral("Frame")));
    PrintWindow window;
    window.Store.WriteSetting("Printer Opts", "PrinterName", "Frame");
    SystemPrinter printers;
    window.MakeDesk(printers);
    QVERIFY(PrinterChoice::NeedPrinter(*window.Desk));
    QCOMPARE(printers.DeviceName(), QStringLiteral("Frame"));
    QVERIFY(m_cups.RemovePrinter(QStringLiteral("Frame")));
    QVERIFY(PrinterChoice::NeedPrinter(*window.Desk));
    QCOMPARE(printers.DeviceName(), QStringLiteral("Loom"));
}

void CupsPrintingTest::WithoutAQueueThereIsNoPrinter() {
    QVERIFY(m_cups.RemovePrinter(QStringLiteral("Loom")));
    PrintWindow window;
    SystemPrinter printers;
    window.MakeDesk(printers);
    QVERIFY(!PrinterChoice::NeedPrinter(*window.Desk));
    QCOMPARE(window.Told(), std::string("No Default Printer Defined!"));
    QVERIFY(printers.Printer() == nullptr);
    QVERIFY(printers.DeviceName().isEmpty());
}

} // namespace zol::test

QTEST_MAIN(zol::test::CupsPrintingTest)
#include "test_CupsPrinting.moc"
