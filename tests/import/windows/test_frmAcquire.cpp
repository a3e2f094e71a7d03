// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <memory>

#include "import/PictureOps.h"
#include "import/scan/SaneScanner.h"
#include "import/scan/SaneTestDevice.h"
#include "import/windows/PictureView.h"
#include "import/windows/frmAcquire.h"
#include "model/ProgramContext.h"
#include "support/DialogHands.h"
#include "support/RecordingDoors.h"
#include "support/ScriptedScanner.h"

using namespace zol;
using zol::test::ClickIn;
using zol::test::MapSettings;
using zol::test::PartOf;
using zol::test::SaneTestDevice;
using zol::test::ScriptedScanner;

namespace {

constexpr ScanArea Bed{0.0, 0.0, 200.0, 100.0};

Picture Plain(int width, int height, Colour colour) {
    Picture picture(width, height);
    std::fill(picture.Pixels().begin(), picture.Pixels().end(), colour);
    return picture;
}

ScanProblem LostConnection() {
    return {ScanProblem::Kind::Failed, "The connection to the scanner was lost.",
            "Check the <b>cable</b>."};
}

} // namespace

class test_frmAcquire : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void offersWhatTheScannerCanDo();
    void remembersChoicesAndSize();
    void aScannerWithoutChoices();
    void speaksBritishEnglish();
    void scansWhatWasChosen();
    void scansByKeys();
    void previewShowsTheBed();
    void drawsTheAreaWithTheMouse();
    void allIsWholeInTheSmallestWindow();
    void typesTheArea();
    void rowsShowWhileTheyCome();
    void cancelStopsTheScanAndTheWindowStays();
    void escapeStopsThenLeaves();
    void saysWhatWentWrongAndScansAgain();
    void saysThatTheScannerIsGone();
    void closesWhileTheScannerIsAsked();
    void worksWithTheTestDevice();

private:
    void Open(const std::string& words = "Maker Flatbed 9");
    void OpenAndWait();
    template<typename Widget>
    Widget& Part(const char* name) {
        return PartOf<Widget>(*m_window, name);
    }
    [[nodiscard]] bool IsReady() { return Part<QPushButton>("cmdScan").isEnabled(); }
    [[nodiscard]] PictureView& View() { return Part<PictureView>("picScan"); }
    /// Where in the view a place of the bed lies.
    [[nodiscard]] QPoint OnView(double mmX, double mmY) {
        const QSize picture = View().Place().Picture;
        return View()
            .OnViewport({mmX * picture.width() / Bed.Width, mmY * picture.height() / Bed.Height})
            .toPoint();
    }
    void Drag(QPoint from, QPoint to) {
        QWidget* const port = View().viewport();
        QTest::mousePress(port, Qt::LeftButton, {}, from);
        QTest::mouseMove(port, (from + to) / 2);
        QTest::mouseMove(port, to);
        QTest::mouseRelease(port, Qt::LeftButton, {}, to);
    }
    [[nodiscard]] double Field(const char* name) { return Part<QDoubleSpinBox>(name).value(); }

    std::unique_ptr<ScriptedScanner> m_scanner;
    MapSettings m_store;
    ProgramContext m_context;
    std::unique_ptr<frmAcquire> m_window;
};

void test_frmAcquire::init() {
    m_scanner = std::make_unique<ScriptedScanner>();
    m_scanner->abilities.Abilities = {{75, 150, 300}, {"Gray", "Color"}, "Gray", Bed};
    m_scanner->preview.Image = Plain(200, 100, 0x00204060);
    m_scanner->scans = {{Plain(40, 30, 0x00102030), {}}};
    m_store.values.clear();
    m_context = ProgramContext();
}

void test_frmAcquire::cleanup() {
    m_scanner->LetGo();
    m_window.reset();
}

void test_frmAcquire::Open(const std::string& words) {
    m_window =
        std::make_unique<frmAcquire>(*m_scanner, m_store, m_context, ScanSource{"flatbed", words});
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void test_frmAcquire::OpenAndWait() {
    Open();
    QTRY_VERIFY(IsReady());
}

void test_frmAcquire::offersWhatTheScannerCanDo() {
    m_scanner->Hold();
    Open();
    QVERIFY(!IsReady());
    QVERIFY(Part<QLabel>("lblDoing").text().startsWith(QStringLiteral("Asking")));
    m_scanner->LetGo();
    QTRY_VERIFY(IsReady());
    QCOMPARE(Part<QLabel>("lblSource").text(), QStringLiteral("Maker Flatbed 9"));
    auto& resolutions = Part<QComboBox>("cmbResolution");
    QCOMPARE(resolutions.count(), 3);
    QCOMPARE(resolutions.currentText(), QStringLiteral("150 dpi"));
    auto& modes = Part<QComboBox>("cmbMode");
    QCOMPARE(modes.count(), 2);
    QCOMPARE(modes.currentText(), QStringLiteral("Color"));
    QCOMPARE(Field("spnWidth"), 200.0);
    QCOMPARE(Field("spnHeight"), 100.0);
    QCOMPARE(Part<QLabel>("lblSize").text(), QStringLiteral("1181 × 591 pixels"));
    QVERIFY(!Part<QProgressBar>("barProgress").isVisible());
    QVERIFY(!Part<QLabel>("lblProblem").isVisible());
    QVERIFY(Part<QPushButton>("cmdScan").isDefault());
    resolutions.setFocus();
    QTest::keyClick(&resolutions, Qt::Key_Down);
    QCOMPARE(Part<QLabel>("lblSize").text(), QStringLiteral("2362 × 1181 pixels"));
}

void test_frmAcquire::remembersChoicesAndSize() {
    OpenAndWait();
    QTest::keyClick(&Part<QComboBox>("cmbResolution"), Qt::Key_End);
    QTest::keyClick(&Part<QComboBox>("cmbMode"), Qt::Key_Home);
    m_window->resize(760, 655);
    ClickIn(*m_window, "cmdScan");
    QTRY_COMPARE(m_window->result(), int(QDialog::Accepted));
    m_window.reset();
    OpenAndWait();
    QCOMPARE(m_window->size(), QSize(760, 655));
    QCOMPARE(Part<QComboBox>("cmbResolution").currentText(), QStringLiteral("300 dpi"));
    QCOMPARE(Part<QComboBox>("cmbMode").currentText(), QStringLiteral("Gray"));
}

void test_frmAcquire::aScannerWithoutChoices() {
    m_scanner->abilities.Abilities = {};
    OpenAndWait();
    QVERIFY(!Part<QComboBox>("cmbResolution").isEnabled());
    QVERIFY(!Part<QComboBox>("cmbMode").isEnabled());
    QVERIFY(!Part<QWidget>("fraArea").isEnabled());
    ClickIn(*m_window, "cmdScan");
    QTRY_COMPARE(m_window->result(), int(QDialog::Accepted));
    const ScanRequest request = m_scanner->Requests().at(0);
    QCOMPARE(request.Resolution, 0);
    QVERIFY(request.Mode.empty());
    QVERIFY(!request.Area.has_value());
}

void test_frmAcquire::speaksBritishEnglish() {
    m_context.BritishSpelling = true;
    OpenAndWait();
    QCOMPARE(Part<QLabel>("lblMode").text(), QStringLiteral("Colour &mode"));
}

void test_frmAcquire::scansWhatWasChosen() {
    OpenAndWait();
    ClickIn(*m_window, "cmdScan");
    QTRY_COMPARE(m_window->result(), int(QDialog::Accepted));
    const ScanRequest request = m_scanner->Requests().at(0);
    QCOMPARE(request.Source, std::string("flatbed"));
    QCOMPARE(request.Resolution, 150);
    QCOMPARE(request.Mode, std::string("Color"));
    QVERIFY(request.Area == Bed);
    QVERIFY(!request.Preview);
    QVERIFY(m_window->TakePicture() == Plain(40, 30, 0x00102030));
}

void test_frmAcquire::scansByKeys() {
    OpenAndWait();
    QTest::keyClick(m_window.get(), Qt::Key_R, Qt::AltModifier);
    QVERIFY(Part<QComboBox>("cmbResolution").hasFocus());
    QTest::keyClick(m_window->focusWidget(), Qt::Key_Home);
    QTest::keyClick(m_window.get(), Qt::Key_S, Qt::AltModifier);
    QTRY_COMPARE(m_window->result(), int(QDialog::Accepted));
    QCOMPARE(m_scanner->Requests().at(0).Resolution, 75);
}

void test_frmAcquire::previewShowsTheBed() {
    OpenAndWait();
    QTest::keyClick(&Part<QComboBox>("cmbResolution"), Qt::Key_End);
    ClickIn(*m_window, "cmdPreview");
    QTRY_VERIFY(IsReady());
    const ScanRequest request = m_scanner->Requests().at(0);
    QVERIFY(request.Preview);
    QCOMPARE(request.Resolution, 75);
    QVERIFY(request.Area == Bed);
    QVERIFY(*View().Shown() == m_scanner->preview.Image);
    QVERIFY(m_window->isVisible());
    QVERIFY(Part<QPushButton>("cmdScan").hasFocus());
}

void test_frmAcquire::drawsTheAreaWithTheMouse() {
    OpenAndWait();
    ClickIn(*m_window, "cmdPreview");
    QTRY_VERIFY(IsReady());
    const double pixel = Bed.Width / (OnView(200.0, 0.0).x() - OnView(0.0, 0.0).x());
    const auto isNear = [pixel](double value, double wanted) {
        return std::abs(value - wanted) <= 2 * pixel;
    };
    Drag(OnView(50.0, 20.0), OnView(150.0, 80.0));
    QVERIFY(isNear(Field("spnLeft"), 50.0));
    QVERIFY(isNear(Field("spnTop"), 20.0));
    QVERIFY(isNear(Field("spnWidth"), 100.0));
    QVERIFY(isNear(Field("spnHeight"), 60.0));
    // By its inside it moves, by its right side it stretches.
    Drag(OnView(100.0, 50.0), OnView(110.0, 40.0));
    QVERIFY(isNear(Field("spnLeft"), 60.0));
    QVERIFY(isNear(Field("spnTop"), 10.0));
    Drag(OnView(160.0, 40.0), OnView(180.0, 40.0));
    QVERIFY(isNear(Field("spnWidth"), 120.0));
    ClickIn(*m_window, "cmdScan");
    QTRY_COMPARE(m_window->result(), int(QDialog::Accepted));
    const ScanArea area = m_scanner->Requests().at(1).Area.value();
    QVERIFY(isNear(area.Left, 60.0) && isNear(area.Top, 10.0));
    QVERIFY(isNear(area.Width, 120.0) && isNear(area.Height, 60.0));
}

void test_frmAcquire::allIsWholeInTheSmallestWindow() {
    Open("Maker of scanners and printers, model 9000 with a lid that is lifted (usb:003:014)");
    QTRY_VERIFY(IsReady());
    m_scanner->preview = {{}, LostConnection()};
    Part<QPushButton>("cmdPreview").click();
    QTRY_VERIFY(IsReady());
    m_window->resize(m_window->minimumSizeHint());
    QCoreApplication::processEvents();
    for (const char* name : {"lblSource", "lblHelp", "lblProblem", "lblProblemMore"}) {
        const auto& label = Part<QLabel>(name);
        QVERIFY2(label.isVisible() && label.height() >= label.heightForWidth(label.width()), name);
    }
    for (const char* name : {"spnHeight", "cmdWholeArea", "lblSize", "cmbMode"}) {
        const auto& part = Part<QWidget>(name);
        QVERIFY2(part.height() >= part.minimumSizeHint().height(), name);
    }
    QVERIFY(m_window->minimumSizeHint().width() <= 1280);
    QVERIFY(m_window->minimumSizeHint().height() <= 720);
}

void test_frmAcquire::typesTheArea() {
    OpenAndWait();
    auto& width = Part<QDoubleSpinBox>("spnWidth");
    width.setFocus();
    width.selectAll();
    QTest::keyClicks(&width, QStringLiteral("50"));
    QTest::keyClick(&width, Qt::Key_Tab);
    QCOMPARE(Part<QLabel>("lblSize").text(), QStringLiteral("295 × 591 pixels"));
    auto& left = Part<QDoubleSpinBox>("spnLeft");
    left.setFocus();
    left.selectAll();
    QTest::keyClicks(&left, QStringLiteral("180"));
    QTest::keyClick(&left, Qt::Key_Tab);
    QCOMPARE(Field("spnWidth"), 20.0); // to the bed's end
    QTest::keyClick(m_window.get(), Qt::Key_A, Qt::AltModifier);
    QTRY_COMPARE(Field("spnLeft"), 0.0);
    QCOMPARE(Field("spnWidth"), 200.0);
}

void test_frmAcquire::rowsShowWhileTheyCome() {
    OpenAndWait();
    m_scanner->Hold();
    ClickIn(*m_window, "cmdPreview");
    auto& bar = Part<QProgressBar>("barProgress");
    QVERIFY(bar.isVisible());
    QTRY_COMPARE(bar.value(), 500); // of a thousand
    QCOMPARE(View().Shown()->ImagePixel(10, 49), 0x00204060U);
    QCOMPARE(View().Shown()->ImagePixel(10, 50), EraseColor);
    QVERIFY(!IsReady());
    m_scanner->LetGo();
    QTRY_VERIFY(IsReady());
    QCOMPARE(View().Shown()->ImagePixel(10, 50), 0x00204060U);
}

void test_frmAcquire::cancelStopsTheScanAndTheWindowStays() {
    OpenAndWait();
    ClickIn(*m_window, "cmdPreview");
    QTRY_VERIFY(IsReady());
    m_scanner->Hold();
    ClickIn(*m_window, "cmdScan");
    QTRY_VERIFY(Part<QProgressBar>("barProgress").value() > 0);
    ClickIn(*m_window, "cmdCancel");
    QTRY_VERIFY(m_scanner->IsCancelled());
    QVERIFY(IsReady());
    QVERIFY(m_window->isVisible());
    QVERIFY(*View().Shown() == m_scanner->preview.Image);
    QVERIFY(!Part<QLabel>("lblProblem").isVisible());
    m_scanner->LetGo();
    ClickIn(*m_window, "cmdScan");
    QTRY_COMPARE(m_window->result(), int(QDialog::Accepted));
}

void test_frmAcquire::escapeStopsThenLeaves() {
    OpenAndWait();
    m_scanner->Hold();
    ClickIn(*m_window, "cmdPreview");
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    QVERIFY(m_window->isVisible());
    QVERIFY(IsReady());
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    QVERIFY(!m_window->isVisible());
    QCOMPARE(m_window->result(), int(QDialog::Rejected));
    QVERIFY(m_window->TakePicture().IsEmpty());
}

void test_frmAcquire::saysWhatWentWrongAndScansAgain() {
    m_scanner->scans = {{{}, LostConnection()}, {Plain(2, 2, 0), {}}};
    OpenAndWait();
    ClickIn(*m_window, "cmdScan");
    auto& problem = Part<QLabel>("lblProblem");
    QTRY_VERIFY(problem.isVisible());
    QCOMPARE(problem.text(), QStringLiteral("The connection to the scanner was lost."));
    auto& more = Part<QLabel>("lblProblemMore");
    QCOMPARE(more.text(), QStringLiteral("Check the <b>cable</b>."));
    QCOMPARE(more.textFormat(), Qt::PlainText);
    QVERIFY(m_window->isVisible());
    QVERIFY(IsReady());
    ClickIn(*m_window, "cmdScan");
    QTRY_COMPARE(m_window->result(), int(QDialog::Accepted));
    QVERIFY(m_window->TakePicture() == Plain(2, 2, 0));
}

void test_frmAcquire::saysThatTheScannerIsGone() {
    m_scanner->abilities.Problem = LostConnection();
    Open();
    QTRY_VERIFY(Part<QLabel>("lblProblem").isVisible());
    QVERIFY(!IsReady());
    QVERIFY(!Part<QPushButton>("cmdPreview").isEnabled());
    ClickIn(*m_window, "cmdCancel");
    QVERIFY(!m_window->isVisible());
}

void test_frmAcquire::closesWhileTheScannerIsAsked() {
    m_scanner->Hold();
    Open();
    // A question that was not put yet is not put any more.
    QTRY_VERIFY(m_scanner->IsWaiting());
    ClickIn(*m_window, "cmdCancel");
    QVERIFY(!m_window->isVisible());
    m_window.reset();
    QVERIFY(m_scanner->IsCancelled());
}

void test_frmAcquire::worksWithTheTestDevice() {
    const SaneTestDevice device({{"test-picture", "\"Grid\""}});
    SaneScanner scanner;
    m_window = std::make_unique<frmAcquire>(scanner, m_store, m_context,
                                            ScanSource{SaneTestDevice::Name, "Test device"});
    m_window->show();
    QTRY_VERIFY(IsReady());
    QCOMPARE(Field("spnHeight"), 200.0);
    ClickIn(*m_window, "cmdPreview");
    QTRY_VERIFY(IsReady());
    QCOMPARE(View().Shown()->ImageWidth(), 590); // 200 mm at 75 dots an inch
    auto& height = Part<QDoubleSpinBox>("spnHeight");
    height.setFocus();
    height.selectAll();
    QTest::keyClicks(&height, QStringLiteral("40"));
    QTest::keyClick(&height, Qt::Key_Tab);
    ClickIn(*m_window, "cmdScan");
    QTRY_COMPARE(m_window->result(), int(QDialog::Accepted));
    const Picture picture = m_window->TakePicture();
    QCOMPARE(picture.ImageWidth(), 1181); // 200 mm at 150 dots an inch
    QCOMPARE(picture.ImageHeight(), 236);
    // Squares of 10 mm, 59 pixels wide: the middles of the first and of its neighbors.
    QCOMPARE(picture.ImagePixel(30, 30), 0x00FFFFFFU);
    QCOMPARE(picture.ImagePixel(89, 30), 0U);
    QCOMPARE(picture.ImagePixel(30, 89), 0U);
    QCOMPARE(picture.ImagePixel(89, 89), 0x00FFFFFFU);
}

QTEST_MAIN(test_frmAcquire)
#include "test_frmAcquire.moc"
