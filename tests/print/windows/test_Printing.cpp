// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QProgressBar>

#include <stdexcept>

#include "print/PdfReading.h"
#include "print/windows/PrintWindow.h"
#include "print/windows/PrinterChoice.h"
#include "print/windows/frmPrinting.h"

namespace zol::test {

namespace {

/// The window that shows which page is printed; null while none does.
frmPrinting* PrintingWindow() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* window = qobject_cast<frmPrinting*>(widget); window && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

QString LabelNow() {
    return PartOf<QLabel>(*PrintingWindow(), "lblPrinting").text();
}

/// A click that the window gets as soon as it lets events through.
void PostClick(QWidget& button) {
    const QPointF place = button.rect().center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QCoreApplication::postEvent(
            &button,
            new QMouseEvent(type, place, button.mapToGlobal(place), Qt::LeftButton,
                            type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {}));
    }
}

} // namespace

/// The job as it runs: its window, Cancel, margins, printers that fail, and the PDF.
class PrintingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void AllPagesArePrintedAndTheDialogCloses();
    void RangeOfOnePageIsPrinted();
    void WindowSaysWhichPageIsPrinted();
    void CancelBetweenPagesKillsTheDocument();
    void PagesAreCountedAnewAfterACancel();
    void CancelIsHeardWithinAPage();
    void CancelIsHeardOnAPageOfLinesAlone();
    void EscapeCancels();
    void FaultOfTheWorkIsThrownOn();
    void LateWindowShowsWhileTheSameWorkGoesOn();
    void WorkThatIsSoonOverShowsNoLateWindow();
    void MarginsInTheBorderAreRaisedOnYes();
    void MarginsInTheBorderStayOnNo();
    void PausedPrinterAsksFirst();
    void PrinterThatIsGoneIsTold();
    void PrinterThatTakesNothingIsTold();
    void FailedDocumentIsTold();
    void WithoutAPrinterNothingOpens();
    void RememberedPrinterIsTakenWhileItIsThere();
    void PdfHoldsTheSamePages();
    void PdfThatCannotBeWrittenLeavesTheOldFile();
    void PdfNeedsNoPrinter();
};

void PrintingTest::AllPagesArePrintedAndTheDialogCloses() {
    PrintWindow window;
    window.Open();
    const auto pages = static_cast<std::size_t>(window.Text("txtToPage").toInt());
    window.Click("cmdPrint");
    QCOMPARE(window.PagesPrinted(), pages);
    QCOMPARE(window.Printers.device.ended, 1);
    QCOMPARE(window.Printers.device.killed, 0);
    QCOMPARE(window.Printers.documents, QStringList{QStringLiteral("rose.pat")});
    QVERIFY(!window.Dialog->isVisible());
    QVERIFY(window.User.told.empty());
    for (const QImage& page : window.Printers.device.printed) {
        QVERIFY(page != QImage(page.size(), page.format()));
    }
}

void PrintingTest::RangeOfOnePageIsPrinted() {
    PrintWindow window;
    window.Open();
    window.Click("optPages1");
    window.Type("txtFromPage", "2");
    window.Type("txtToPage", "2");
    QString label;
    window.Printers.device.onPage = [&](int) { label = LabelNow(); };
    window.Click("cmdPrint");
    QCOMPARE(window.PagesPrinted(), std::size_t{1});
    QCOMPARE(label, QStringLiteral("Printing Pattern Page 2"));
}

void PrintingTest::WindowSaysWhichPageIsPrinted() {
    PrintWindow window;
    window.Open();
    QStringList labels;
    window.Printers.device.onPage = [&](int) {
        labels << LabelNow();
        QVERIFY(PrintingWindow()->isModal());
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    };
    window.Click("cmdPrint");
    QVERIFY(labels.size() > 2);
    QCOMPARE(labels.last(), QStringLiteral("Printing Color Key Page 1"));
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    QVERIFY(PrintingWindow() == nullptr);
}

void PrintingTest::CancelBetweenPagesKillsTheDocument() {
    PrintWindow window;
    window.Open();
    window.Printers.device.onPage = [&](int page) {
        if (page == 2) {
            QTest::mouseClick(&PartOf<QPushButton>(*PrintingWindow(), "cmdCancel"), Qt::LeftButton);
        }
    };
    window.Click("cmdPrint");
    QVERIFY(window.Printers.device.killed >= 1);
    QCOMPARE(window.Printers.device.ended, 0);
    QCOMPARE(window.PagesPrinted(), std::size_t{0});
    // The choices are still there to print again.
    QVERIFY(window.Dialog->isVisible());
    window.Printers.device.onPage = nullptr;
    window.Click("cmdPrint");
    QVERIFY(window.PagesPrinted() > 0);
}

void PrintingTest::PagesAreCountedAnewAfterACancel() {
    PrintWindow window;
    window.Open();
    const QString before = window.AllPages();
    window.Printers.device.onPage = [](int) {
        QTest::mouseClick(&PartOf<QPushButton>(*PrintingWindow(), "cmdCancel"), Qt::LeftButton);
    };
    window.Click("cmdPrint");
    QCOMPARE(window.PagesPrinted(), std::size_t{0});
    window.InOptions = [&](QWidget*) { window.Settings.TextInfoFontSize = 40; };
    window.Click("cmdAdvanced");
    const QString after = window.AllPages();
    QVERIFY(after != before);
    window.Open();
    QCOMPARE(after, window.AllPages());
}

void PrintingTest::CancelIsHeardWithinAPage() {
    PrintWindow window;
    window.Open();
    window.Click("chkFitPage");
    int percent = -1;
    window.Printers.device.onPage = [&](int) {
        frmPrinting& printing = *PrintingWindow();
        auto& bar = PartOf<QProgressBar>(printing, "ProgressBar1");
        connect(&PartOf<QPushButton>(printing, "cmdCancel"), &QPushButton::clicked, &printing,
                [&percent, &bar] { percent = bar.value(); });
        PostClick(PartOf<QPushButton>(printing, "cmdCancel"));
    };
    window.Click("cmdPrint");
    // After the first of a hundred columns.
    QCOMPARE(percent, 1);
    QVERIFY(window.Printers.device.killed >= 1);
    QCOMPARE(window.Printers.device.ended, 0);
}

void PrintingTest::CancelIsHeardOnAPageOfLinesAlone() {
    PrintWindow window;
    window.Settings.StitchSymbol = PrintNone;
    window.Open();
    window.Click("chkPrintColorKey");
    QVERIFY(window.Text("txtToPage").toInt() > 1);
    int pages = 0;
    window.Printers.device.onPage = [&](int page) {
        pages = page;
        PostClick(PartOf<QPushButton>(*PrintingWindow(), "cmdCancel"));
    };
    window.Click("cmdPrint");
    QCOMPARE(pages, 1);
    QVERIFY(window.Printers.device.killed >= 1);
    QCOMPARE(window.Printers.device.ended, 0);
}

void PrintingTest::EscapeCancels() {
    PrintWindow window;
    window.Open();
    window.Printers.device.onPage = [](int) { QTest::keyClick(PrintingWindow(), Qt::Key_Escape); };
    window.Click("cmdPrint");
    QCOMPARE(window.PagesPrinted(), std::size_t{0});
    QVERIFY(window.Dialog->isVisible());
}

void PrintingTest::FaultOfTheWorkIsThrownOn() {
    frmPrinting window;
    bool caught = false;
    try {
        window.Run([](ProgressDoor&) { throw std::runtime_error("paper jam"); });
    } catch (const std::runtime_error& fault) {
        caught = std::string(fault.what()) == "paper jam";
    }
    QVERIFY(caught);
    QVERIFY(!window.isVisible());
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
}

void PrintingTest::LateWindowShowsWhileTheSameWorkGoesOn() {
    frmPrinting window;
    int begun = 0;
    QString label;
    window.RunLate([&](ProgressDoor& progress) {
        ++begun;
        progress.StartStatus("Previewing Pattern Page 1", 100);
        QVERIFY(!window.isVisible());
        while (!window.isVisible()) {
            QVERIFY(progress.MayGoOn());
        }
        label = LabelNow();
        QVERIFY(window.isModal());
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        PostClick(PartOf<QPushButton>(window, "cmdCancel"));
        while (progress.MayGoOn()) {
        }
    });
    QCOMPARE(begun, 1);
    QCOMPARE(label, QStringLiteral("Previewing Pattern Page 1"));
    QVERIFY(window.PrintCancelled());
    QVERIFY(!window.isVisible());
    QVERIFY(QGuiApplication::overrideCursor() == nullptr);
    bool thrown = false;
    try {
        window.RunLate([](ProgressDoor&) { throw std::runtime_error("no ink"); });
    } catch (const std::runtime_error&) {
        thrown = true;
    }
    QVERIFY(thrown);
}

void PrintingTest::WorkThatIsSoonOverShowsNoLateWindow() {
    frmPrinting window;
    int steps = 0;
    const auto work = [&](ProgressDoor& progress) {
        while (steps < 100 && progress.MayGoOn()) {
            ++steps;
            QVERIFY(!window.isVisible());
            QVERIFY(QGuiApplication::overrideCursor() == nullptr);
        }
    };
    window.RunLate(work, std::chrono::hours(1));
    QCOMPARE(steps, 100);
    QVERIFY(!window.PrintCancelled());
    // The same window may show at once after that.
    bool shown = false;
    window.Run([&](ProgressDoor&) { shown = window.isVisible(); });
    QVERIFY(shown);
}

void PrintingTest::MarginsInTheBorderAreRaisedOnYes() {
    PrintWindow window;
    window.Settings.LeftMargin = 0.1;
    window.User.answers = {MessageAnswer::Yes};
    window.Open();
    window.Click("cmdPrint");
    QCOMPARE(window.User.AskedTexts().front(),
             std::string("One or more of your margins are outside the printable area for your "
                         "printer.\n\nDo you wish to automatically adjust?"));
    QCOMPARE(window.Settings.LeftMargin, 0.25);
    QCOMPARE(window.Settings.RightMargin, 0.5);
    QCOMPARE(window.Store.ReadSetting("Printer Opts", "LeftMargin", ""), std::string("0.25"));
    QVERIFY(window.PagesPrinted() > 0);
}

void PrintingTest::MarginsInTheBorderStayOnNo() {
    PrintWindow window;
    window.Settings.TopMargin = 0;
    window.User.answers = {MessageAnswer::No};
    window.Open();
    window.Click("cmdPrint");
    QCOMPARE(window.User.asked.size(), std::size_t{1});
    QCOMPARE(window.Settings.TopMargin, 0.0);
    QVERIFY(window.PagesPrinted() > 0);
}

void PrintingTest::PausedPrinterAsksFirst() {
    PrintWindow window;
    window.Printers.state = PrinterState::Paused;
    window.User.answers = {MessageAnswer::No, MessageAnswer::Yes};
    window.Open();
    window.Click("cmdPrint");
    QCOMPARE(window.PagesPrinted(), std::size_t{0});
    QVERIFY(window.Dialog->isVisible());
    window.Click("cmdPrint");
    QVERIFY(window.PagesPrinted() > 0);
}

void PrintingTest::PrinterThatIsGoneIsTold() {
    PrintWindow window;
    window.Open();
    window.Printers.state = PrinterState::Gone;
    window.Click("cmdPrint");
    QCOMPARE(window.Told(), std::string("The printer \"Loom\" is not there any more."));
    QVERIFY(window.Dialog->isVisible());
    QCOMPARE(window.PagesPrinted(), std::size_t{0});
}

void PrintingTest::PrinterThatTakesNothingIsTold() {
    PrintWindow window;
    window.Open();
    window.Printers.state = PrinterState::Refusing;
    window.Click("cmdPrint");
    QCOMPARE(window.Told(), std::string("The printer \"Loom\" takes no jobs at present."));
    QVERIFY(window.Dialog->isVisible());
}

void PrintingTest::FailedDocumentIsTold() {
    PrintWindow window;
    window.Open();
    window.Printers.device.refusesDocuments = true;
    window.Click("cmdPrint");
    QCOMPARE(window.Told(), std::string("Device I/O error"));
    QVERIFY(window.Dialog->isVisible());
    QCOMPARE(window.PagesPrinted(), std::size_t{0});
}

void PrintingTest::WithoutAPrinterNothingOpens() {
    PrintWindow window;
    window.Printers.isDefined = false;
    window.MakeDesk(window.Printers);
    QVERIFY(!PrinterChoice::NeedPrinter(*window.Desk));
    QCOMPARE(window.Told(), std::string("No Default Printer Defined!"));
}

void PrintingTest::RememberedPrinterIsTakenWhileItIsThere() {
    PrintWindow window;
    window.Store.WriteSetting("Printer Opts", "PrinterName", "Frame");
    window.MakeDesk(window.Printers);
    QVERIFY(PrinterChoice::NeedPrinter(*window.Desk));
    QCOMPARE(window.Printers.DeviceName(), QStringLiteral("Frame"));
    window.Printers.others.clear();
    window.Printers.name = QStringLiteral("Loom");
    QVERIFY(PrinterChoice::NeedPrinter(*window.Desk));
    QCOMPARE(window.Printers.DeviceName(), QStringLiteral("Loom"));
    QVERIFY(window.User.told.empty());
}

void PrintingTest::PdfHoldsTheSamePages() {
    PrintWindow window;
    window.Open();
    const int pages = window.Text("txtToPage").toInt();
    const auto path = window.Scene.Path("rose.pdf");
    window.User.files = {path};
    window.Click("cmdSavePdf");
    QCOMPARE(window.User.saveDialogs.front().DefaultExtension, std::string("pdf"));
    QCOMPARE(PdfPageCount(path), pages);
    QVERIFY(!window.Dialog->isVisible());
    PrintFuncs job(window.Desk->OptionsNow(), window.Printers.Printer());
    job.SetPattern(*window.Design);
    QVERIFY(SymbolsIn(path, job) == SymbolsOf(*window.Design));
    QCOMPARE(window.PagesPrinted(), std::size_t{0});
}

void PrintingTest::PdfThatCannotBeWrittenLeavesTheOldFile() {
    PrintWindow window;
    window.Open();
    window.User.files = {std::filesystem::path("/dev/full")};
    window.Click("cmdSavePdf");
    QCOMPARE(window.User.told.size(), std::size_t{1});
    QVERIFY(window.Dialog->isVisible());
    // The name dialog cancelled: nothing at all.
    window.User.files = {std::nullopt};
    window.Click("cmdSavePdf");
    QCOMPARE(window.User.told.size(), std::size_t{1});
    QVERIFY(window.Dialog->isVisible());
}

void PrintingTest::PdfNeedsNoPrinter() {
    PrintWindow window;
    window.Printers.isDefined = false;
    window.Open();
    QVERIFY(!window.Find("cmdPrint").isEnabled());
    const auto path = window.Scene.Path("rose.pdf");
    window.User.files = {path};
    window.Click("cmdSavePdf");
    QVERIFY(PdfPageCount(path) > 1);
    QVERIFY(window.User.told.empty());
}

} // namespace zol::test

QTEST_MAIN(zol::test::PrintingTest)
#include "test_Printing.moc"
