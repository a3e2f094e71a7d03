// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

#include "model/PlainDesign.h"
#include "print/PagePicture.h"
#include "print/windows/PageView.h"
#include "print/windows/frmPreview.h"
#include "settings/INIFuncs.h"
#include "support/DialogHands.h"
#include "support/FileHurdles.h"
#include "support/ScriptedPrinter.h"
#include "support/ScriptedUser.h"
#include "support/TempFolder.h"

namespace zol::test {

namespace {

Pattern MakeDesign(ProgramContext& context) {
    Pattern pattern(context);
    pattern.Initialize(120, 150, 14, 14);
    pattern.Title = "Rose";
    Palette& palette = pattern.GetPalette();
    palette.ClearPalette();
    for (int i = 1; i <= 3; ++i) {
        palette.AddPaletteEntry(0x402010U * static_cast<unsigned>(i), std::to_string(i), "Floss",
                                "DMC", palette.GetNextAvailableSymbol(), 2, 1, 0, i, 0, "DMC");
    }
    palette.Sort(SortOrderAdded);
    for (int x = 1; x <= 120; ++x) {
        for (int y = 1; y <= 150; ++y) {
            if ((x + y) % 4 != 0) {
                pattern.SetStitch(x, y, StitchWhole, (x * y) % 3 + 1, 5);
            }
        }
    }
    return pattern;
}

/// Presses Cancel of the printing window as soon as it is seen to have begun a page.
class Canceller : public QObject {
public:
    Canceller() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* label = qobject_cast<QLabel*>(watched);
        if (event->type() == QEvent::Paint && label != nullptr && Seen.isEmpty() &&
            label->text().startsWith(QStringLiteral("Previewing"))) {
            Seen = label->text();
            ClickIn(*label->window(), "cmdCancel");
        }
        return false;
    }

    QString Seen;
};

} // namespace

/// The preview of a job of four pattern pages and one of the key, shown on the screen.
class PreviewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void FirstPageIsThePictureOfThatPage();
    void ButtonsStepWithinTheRange();
    void KeysStepAndJump();
    void PageKeysGoThroughALargePageFirst();
    void PagesAreTypedToo();
    void KeyAloneCountsFromItsFirstPage();
    void EveryZoomIsPaintedAnew_data();
    void EveryZoomIsPaintedAnew();
    void WheelZoomsAroundThePointer();
    void MouseDragsThePaper();
    void PrintPagePrintsTheShownPage();
    void PrintPageKeepsToThePrinterOfItsPages();
    void WithoutAPrinterPrintingIsToldAndTheRestWorks();
    void PageIsExported_data();
    void PageIsExported();
    void FullDiskIsToldAndTheOldPictureStays();
    void PdfHoldsTheRange();
    void FullDiskOfAPdfIsTold();
    void NoRightAndNoRoomKeepTheOldFiles_data();
    void NoRightAndNoRoomKeepTheOldFiles();
    void CancelledDialogsWriteNothing();
    void SlowPageShowsTheWindowWithCancel();
    void CancelKeepsThePageThatIsShown();
    void KeyThatFailsIsTold();
    void EscapeLeaves();
    void WindowGoesQuietlyWithWhatIsTyped();

private:
    /// Opens the preview of these pages.
    void Show(int from, int to, bool keyOnly = false);
    [[nodiscard]] QImage Paper() { return PartOf<PageView>(*m_window, "Picture2").Paper().Page(); }
    [[nodiscard]] QImage PictureOf(int page, int dots) {
        return PaintShownPage(*m_job, page, dots, nullptr).Image;
    }
    /// Dots to the inch of what is shown.
    [[nodiscard]] int Dots() { return qRound(Paper().width() * 1440.0 / printers.device.Width()); }
    [[nodiscard]] bool Shows(int page) { return Paper() == PictureOf(page, Dots()); }
    [[nodiscard]] QString Text(const char* label) {
        return PartOf<QLabel>(*m_window, label).text();
    }
    [[nodiscard]] std::filesystem::path File(const char* name) const {
        return std::filesystem::path(m_folder->path().toStdString()) / name;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    ProgramContext context;
    Options settings;
    ScriptedUser user;
    ScriptedPrinter printers;
    double gspi = 10;
    std::unique_ptr<INIFuncs> m_store;
    std::unique_ptr<DesignHolder> m_open;
    std::unique_ptr<PrintDesk> m_desk;
    std::unique_ptr<PrintFuncs> m_job;
    std::unique_ptr<frmPreview> m_window;
};

void PreviewTest::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    context = ProgramContext();
    context.StartupPalette = std::make_shared<const Palette>(Palette::Empty(context));
    settings = Options();
    user = ScriptedUser();
    printers.isDefined = true;
    printers.device.printed.clear();
    m_store = std::make_unique<INIFuncs>(File("settings.ini"));
    m_open = std::make_unique<DesignHolder>(std::make_unique<PlainDesign>(MakeDesign(context)));
    m_desk = std::make_unique<PrintDesk>(
        PrintDesk{*m_open, context, settings, *m_store, user, user, printers, gspi,
                  [] { return std::optional<SelectedArea>(); }, [](QWidget*) {}});
    m_job = std::make_unique<PrintFuncs>(PrintOptions(), &printers.device);
    m_job->SetPattern(m_open->Design());
    m_job->CountKeyPages();
    QCOMPARE(m_job->GetPageCount(), 5);
}

void PreviewTest::cleanup() {
    m_window.reset();
    QVERIFY(user.unanswered.empty());
}

void PreviewTest::Show(int from, int to, bool keyOnly) {
    m_job->SetPrintRange(from, to, keyOnly);
    m_window = std::make_unique<frmPreview>(*m_desk, *m_job, nullptr);
    m_window->show();
    QTRY_VERIFY(!Paper().isNull());
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void PreviewTest::FirstPageIsThePictureOfThatPage() {
    Show(1, 5);
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Pattern Preview"));
    QVERIFY(Shows(1));
    QCOMPARE(Text("lblOfPages"), QStringLiteral("of 5"));
    QCOMPARE(Text("lblPageName"), QStringLiteral("Pattern Page 1"));
    // The whole page is to be seen.
    auto& view = PartOf<PageView>(*m_window, "Picture2");
    QVERIFY(view.viewport()->rect().contains(
        QRect(view.Paper().mapTo(view.viewport(), QPoint(0, 0)), view.Paper().size())));
}

void PreviewTest::ButtonsStepWithinTheRange() {
    Show(2, 3);
    QVERIFY(Shows(2));
    QVERIFY(!PartOf<QPushButton>(*m_window, "cmdPrevious").isEnabled());
    QCOMPARE(Text("lblOfPages"), QStringLiteral("of 2 to 3"));
    ClickIn(*m_window, "cmdNextPage");
    QVERIFY(Shows(3));
    QVERIFY(!PartOf<QPushButton>(*m_window, "cmdNextPage").isEnabled());
    ClickIn(*m_window, "cmdPrevious");
    QVERIFY(Shows(2));
    // What the preview does leaves the range to be printed alone.
    QCOMPARE(m_job->PrintFromPage(), 2);
    QCOMPARE(m_job->PrintToPage(), 3);
    QCOMPARE(m_job->PrintPage(), 2);
}

void PreviewTest::KeysStepAndJump() {
    Show(1, 5);
    QTest::keyClick(m_window.get(), Qt::Key_PageDown);
    QVERIFY(Shows(2));
    QTest::keyClick(m_window.get(), Qt::Key_End, Qt::ControlModifier);
    QVERIFY(Shows(5));
    QCOMPARE(Text("lblPageName"), QStringLiteral("Color Key Page 1"));
    QTest::keyClick(m_window.get(), Qt::Key_PageDown);
    QVERIFY(Shows(5));
    QTest::keyClick(m_window.get(), Qt::Key_PageUp);
    QVERIFY(Shows(4));
    QTest::keyClick(m_window.get(), Qt::Key_Home, Qt::ControlModifier);
    QVERIFY(Shows(1));
}

void PreviewTest::PageKeysGoThroughALargePageFirst() {
    Show(1, 5);
    TypeIn(*m_window, "cmbZoom", QStringLiteral("100"));
    QTest::keyClick(&PartOf<QComboBox>(*m_window, "cmbZoom"), Qt::Key_Return);
    QScrollBar& bar = *PartOf<PageView>(*m_window, "Picture2").verticalScrollBar();
    QTRY_VERIFY(bar.maximum() > 0);
    int keys = 0;
    while (bar.value() < bar.maximum() && keys < 20) {
        QTest::keyClick(m_window.get(), Qt::Key_PageDown);
        ++keys;
        QVERIFY(Shows(1));
    }
    QVERIFY(keys > 0);
    QTest::keyClick(m_window.get(), Qt::Key_PageDown);
    QVERIFY(Shows(2));
    QCOMPARE(bar.value(), 0);
    QTest::keyClick(m_window.get(), Qt::Key_PageUp);
    QVERIFY(Shows(1));
}

void PreviewTest::PagesAreTypedToo() {
    Show(1, 5);
    TypeIn(*m_window, "txtPage", QStringLiteral("4"));
    QTest::keyClick(&PartOf<QLineEdit>(*m_window, "txtPage"), Qt::Key_Return);
    QVERIFY(Shows(4));
    TypeIn(*m_window, "txtPage", QStringLiteral("99"));
    QTest::keyClick(&PartOf<QLineEdit>(*m_window, "txtPage"), Qt::Key_Return);
    QVERIFY(Shows(5));
    QCOMPARE(PartOf<QLineEdit>(*m_window, "txtPage").text(), QStringLiteral("5"));
    QVERIFY(m_window->isVisible());
}

void PreviewTest::KeyAloneCountsFromItsFirstPage() {
    Show(1, 1, true);
    QCOMPARE(m_window->ShownPage(), 5);
    QVERIFY(Shows(5));
    QCOMPARE(PartOf<QLineEdit>(*m_window, "txtPage").text(), QStringLiteral("1"));
    QCOMPARE(Text("lblPageName"), QStringLiteral("Color Key Page 1"));
}

void PreviewTest::EveryZoomIsPaintedAnew_data() {
    QTest::addColumn<QString>("zoom");
    QTest::addColumn<int>("dots");
    QTest::newRow("half") << QStringLiteral("50%") << 48;
    QTest::newRow("whole") << QStringLiteral("100") << 96;
    QTest::newRow("double") << QStringLiteral("200 %") << 192;
    QTest::newRow("too large") << QStringLiteral("9000") << 384;
    QTest::newRow("too small") << QStringLiteral("1") << 10;
}

void PreviewTest::EveryZoomIsPaintedAnew() {
    QFETCH(const QString, zoom);
    QFETCH(const int, dots);
    Show(1, 5);
    TypeIn(*m_window, "cmbZoom", zoom);
    QTest::keyClick(&PartOf<QComboBox>(*m_window, "cmbZoom"), Qt::Key_Return);
    QTRY_COMPARE(Dots(), dots);
    QVERIFY(Shows(1));
    QCOMPARE(PartOf<PageView>(*m_window, "Picture2").Paper().width(), Paper().width() + 2);
}

void PreviewTest::WheelZoomsAroundThePointer() {
    Show(1, 5);
    auto& view = PartOf<PageView>(*m_window, "Picture2");
    TypeIn(*m_window, "cmbZoom", QStringLiteral("200"));
    QTest::keyClick(&PartOf<QComboBox>(*m_window, "cmbZoom"), Qt::Key_Return);
    QTRY_COMPARE(Dots(), 192);
    view.verticalScrollBar()->setValue(600);
    view.horizontalScrollBar()->setValue(300);
    const QPoint at(200, 150);
    const auto place = [&] {
        return QPointF(view.Paper().mapFrom(view.viewport(), at)) / view.Paper().width();
    };
    const QPointF before = place();
    QWheelEvent wheel(at, view.viewport()->mapToGlobal(at), {}, {0, 120}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view.viewport(), &wheel);
    QCOMPARE(PartOf<QComboBox>(*m_window, "cmbZoom").currentText(), QStringLiteral("250%"));
    QVERIFY((place() - before).manhattanLength() < 0.005);
    QTRY_COMPARE(Dots(), 240);
    QVERIFY(Shows(1));
}

void PreviewTest::MouseDragsThePaper() {
    Show(1, 5);
    auto& view = PartOf<PageView>(*m_window, "Picture2");
    TypeIn(*m_window, "cmbZoom", QStringLiteral("200"));
    QTest::keyClick(&PartOf<QComboBox>(*m_window, "cmbZoom"), Qt::Key_Return);
    view.verticalScrollBar()->setValue(300);
    const QPoint grip = view.Paper().mapFrom(view.viewport(), QPoint(200, 200));
    QTest::mousePress(&view.Paper(), Qt::LeftButton, {}, grip);
    QTest::mouseMove(&view.Paper(), grip - QPoint(0, 50));
    QCOMPARE(view.verticalScrollBar()->value(), 350);
    QTest::mouseRelease(&view.Paper(), Qt::LeftButton, {}, grip);
}

void PreviewTest::PrintPagePrintsTheShownPage() {
    Show(1, 5);
    ClickIn(*m_window, "cmdNextPage");
    ClickIn(*m_window, "cmdPrintPage");
    QCOMPARE(printers.device.printed.size(), 1U);
    QCOMPARE(m_job->PrintToPage(), 5);
    // The printer's picture is the page without the border that it cannot print on.
    const QImage page = PaintPage(*m_job, 2, PicturePrinter::DotsPerInch, nullptr).Image;
    const int border = 360 / 20;
    const QImage printed = printers.device.printed[0];
    QCOMPARE(printed, page.copy(QRect(QPoint(border, border), printed.size())));
    QVERIFY(m_window->isVisible());
}

void PreviewTest::PrintPageKeepsToThePrinterOfItsPages() {
    // Another one is remembered, and would be found if one were looked for.
    m_store->WriteSetting("Printer Opts", "PrinterName", "Frame");
    printers.others = QStringList{QStringLiteral("Loom"), QStringLiteral("Frame")};
    Show(1, 5);
    ClickIn(*m_window, "cmdPrintPage");
    QCOMPARE(printers.DeviceName(), QStringLiteral("Loom"));
    QCOMPARE(printers.device.printed.size(), 1U);
    printers.state = PrinterState::Gone;
    ClickIn(*m_window, "cmdPrintPage");
    printers.state = PrinterState::Ready;
    QCOMPARE(user.ToldTexts(),
             std::vector<std::string>{"The printer \"Loom\" is not there any more."});
    QCOMPARE(printers.device.printed.size(), 1U);
}

void PreviewTest::WithoutAPrinterPrintingIsToldAndTheRestWorks() {
    printers.isDefined = false;
    Show(1, 5);
    ClickIn(*m_window, "cmdPrintPage");
    QCOMPARE(user.ToldTexts(), std::vector<std::string>{"No Default Printer Defined!"});
    user.files = {File("all.pdf")};
    ClickIn(*m_window, "cmdSavePdf");
    QVERIFY(std::filesystem::file_size(File("all.pdf")) > 10000);
}

void PreviewTest::PageIsExported_data() {
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("png") << QByteArray("page.png") << QByteArray("\x89PNG");
    QTest::newRow("bmp") << QByteArray("page.bmp") << QByteArray("BM");
}

void PreviewTest::PageIsExported() {
    QFETCH(const QByteArray, name);
    QFETCH(const QByteArray, start);
    Show(1, 5);
    ClickIn(*m_window, "cmdNextPage");
    user.files = {File(name.constData())};
    ClickIn(*m_window, "cmdExport");
    QCOMPARE(user.saveDialogs.at(0).Title, std::string("Export Pattern Print Page"));
    QCOMPARE(user.saveDialogs.at(0).SuggestedName, std::string("chart page 2.png"));
    QFile file(QString::fromStdString(File(name.constData()).string()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().startsWith(start));
    const QImage saved(file.fileName());
    QCOMPARE(saved.convertToFormat(QImage::Format_RGB32), PictureOf(2, 300));
    QCOMPARE(saved.dotsPerMeterX(), 11811);
    QVERIFY(Shows(2));
}

void PreviewTest::FullDiskIsToldAndTheOldPictureStays() {
    Show(1, 5);
    user.files = {std::filesystem::path("/dev/full")};
    ClickIn(*m_window, "cmdExport");
    QCOMPARE(user.ToldTexts(), std::vector<std::string>{"Disk full"});
    QCOMPARE(user.told[0].title, std::string("Export Pattern Print Page"));
    user.files = {File("nowhere") / "page.png"};
    ClickIn(*m_window, "cmdExport");
    QCOMPARE(user.told.at(1).text, std::string("Path not found"));
}

void PreviewTest::PdfHoldsTheRange() {
    Show(2, 4);
    ClickIn(*m_window, "cmdNextPage");
    user.files = {File("chart.pdf")};
    ClickIn(*m_window, "cmdSavePdf");
    QFile file(QString::fromStdString(File("chart.pdf").string()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().count("/Type /Page\n"), 3);
    QVERIFY(Shows(3));
    QCOMPARE(m_window->ShownPage(), 3);
}

void PreviewTest::FullDiskOfAPdfIsTold() {
    Show(1, 5);
    user.files = {std::filesystem::path("/dev/full")};
    ClickIn(*m_window, "cmdSavePdf");
    QCOMPARE(user.ToldTexts(), std::vector<std::string>{"Disk full"});
}

void PreviewTest::NoRightAndNoRoomKeepTheOldFiles_data() {
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("page") << QByteArray("cmdExport") << QByteArray("page.png");
    QTest::newRow("bitmap") << QByteArray("cmdExport") << QByteArray("page.bmp");
    QTest::newRow("pdf") << QByteArray("cmdSavePdf") << QByteArray("chart.pdf");
}

void PreviewTest::NoRightAndNoRoomKeepTheOldFiles() {
    QFETCH(const QByteArray, button);
    QFETCH(const QByteArray, name);
    Show(1, 2);
    const std::filesystem::path folder = File("out");
    std::filesystem::create_directory(folder);
    const std::filesystem::path file = folder / name.toStdString();
    WriteFile(file, "old");
    user.files = {file, file};
    {
        const ReadOnlyFolder locked(folder);
        ClickIn(*m_window, button.constData());
    }
    {
        const FullDisk disk(1000);
        ClickIn(*m_window, button.constData());
    }
    QCOMPARE(user.ToldTexts(), (std::vector<std::string>{"Permission denied", "Disk full"}));
    QVERIFY(user.told[1].more.find("A file of that name is as it was.") != std::string::npos);
    QCOMPARE(ReadFile(file), std::string("old"));
    QCOMPARE(QDir(QString::fromStdString(folder.string())).entryList(QDir::Files).size(), 1);
    QVERIFY(Shows(1));
}

void PreviewTest::CancelledDialogsWriteNothing() {
    Show(1, 5);
    user.files = {std::nullopt, std::nullopt};
    ClickIn(*m_window, "cmdExport");
    ClickIn(*m_window, "cmdSavePdf");
    QVERIFY(user.told.empty());
}

void PreviewTest::SlowPageShowsTheWindowWithCancel() {
    m_job->SetPrintRange(1, 5, false);
    const Canceller canceller;
    m_window = std::make_unique<frmPreview>(*m_desk, *m_job, nullptr);
    m_window->SetPatience({});
    m_window->show();
    // Nothing was to be seen before the cancel, so there is nothing to look at.
    QTRY_VERIFY(!m_window->isVisible());
    QVERIFY(Paper().isNull());
    QCOMPARE(canceller.Seen, QStringLiteral("Previewing Pattern Page 1"));
}

void PreviewTest::CancelKeepsThePageThatIsShown() {
    Show(1, 5);
    m_window->SetPatience({});
    const QImage before = Paper();
    const Canceller canceller;
    QTest::keyClick(m_window.get(), Qt::Key_PageDown);
    QCOMPARE(canceller.Seen, QStringLiteral("Previewing Pattern Page 2"));
    QCOMPARE(Paper(), before);
    QCOMPARE(m_window->ShownPage(), 1);
    QCOMPARE(PartOf<QLineEdit>(*m_window, "txtPage").text(), QStringLiteral("1"));
    // Slow pages that are not cancelled are shown.
    ClickIn(*m_window, "cmdNextPage");
    QVERIFY(Shows(2));
}

void PreviewTest::KeyThatFailsIsTold() {
    Show(1, 5);
    m_open->Design().Instructions = std::string(30000, '\n') + "end";
    m_job->SetPattern(m_open->Design()); // what was counted no longer holds
    m_job->SetPrintRange(1, 200, false);
    ClickIn(*m_window, "cmdNextPage");
    TypeIn(*m_window, "txtPage", QStringLiteral("200"));
    QTest::keyClick(&PartOf<QLineEdit>(*m_window, "txtPage"), Qt::Key_Return);
    QCOMPARE(user.ToldTexts(), std::vector<std::string>{"Subscript out of range"});
    QVERIFY(Shows(2));
}

void PreviewTest::EscapeLeaves() {
    Show(1, 5);
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    QVERIFY(!m_window->isVisible());
}

void PreviewTest::WindowGoesQuietlyWithWhatIsTyped() {
    for (const char* field : {"txtPage", "cmbZoom"}) {
        Show(1, 5);
        TypeIn(*m_window, field, QStringLiteral("3"));
        QVERIFY(PartOf<QWidget>(*m_window, field).hasFocus());
        m_window.reset();
        QCOMPARE(m_job->PrintPage(), 1);
    }
}

} // namespace zol::test

QTEST_MAIN(zol::test::PreviewTest)
#include "test_frmPreview.moc"
