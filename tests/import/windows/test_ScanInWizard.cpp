// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <memory>

#include "import/PictureOps.h"
#include "import/scan/SaneScanner.h"
#include "import/scan/SaneTestDevice.h"
#include "import/windows/ScannerList.h"
#include "import/windows/SourceScene.h"
#include "support/Arrivals.h"
#include "support/DialogDriver.h"
#include "support/ScriptedScanner.h"

namespace zol::test {

/// From the scanner to the picture that travels through the wizard.
class ScanInWizardTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void AScanBecomesThePictureToImport();
    void ACancelledScanKeepsThePictureOfBefore();
    void AnotherSourceDropsWhatIsStillFound();
    void ASearchThatFailsBehindTheHiddenWizardSaysNothing();
    void TheTestDeviceGoesAllTheWay();

private:
    /// What a user does with the window of the scanner.
    static void ScanThere(QDialog& window) {
        QTRY_VERIFY(PartOf<QPushButton>(window, "cmdScan").isEnabled());
        ClickIn(window, "cmdScan");
    }

    [[nodiscard]] static LatestJob& SearchOf(SourceScene& scene) {
        return *scene.Screen.findChild<ScannerList*>()->findChild<LatestJob*>();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ScriptedScanner> m_scanner;
};

void ScanInWizardTest::init() {
    // One after the other, not one within the other.
    m_folder.reset();
    qunsetenv("TMPDIR");
    const SaneTestDevice inNoFolderOfATest;
    UseTempFolder(m_folder);
    m_scanner = std::make_unique<ScriptedScanner>();
    m_scanner->found.Sources = {{"flatbed", "Maker Flatbed 9"}};
    Picture scanned(7, 5);
    scanned.SetImagePixel(3, 2, MakeColour(101, 67, 33));
    m_scanner->scans = {{scanned, {}}};
}

void ScanInWizardTest::AScanBecomesThePictureToImport() {
    DeskKit kit;
    kit.Desk.Scanners = m_scanner.get();
    SourceScene shown(kit);
    QCOMPARE(m_scanner->Looks(), 0); // not before it is asked for
    QVERIFY(!shown.CanAcquire());
    ClickIn(shown.Screen, "optScan");
    QTRY_VERIFY(shown.CanAcquire());
    QCOMPARE(PartOf<QComboBox>(shown.Screen, "cmbScanSource").currentText(),
             QStringLiteral("Maker Flatbed 9"));
    DialogDriver driver({ScanThere});
    ClickIn(shown.Screen, "cmdAcquire");
    QVERIFY(driver.AllDone());
    QVERIFY(shown.Picture() != nullptr);
    QCOMPARE(shown.Picture()->ImageWidth(), 7);
    // Brought to 16 bits a pixel, as a file is.
    QCOMPARE(shown.Picture()->ImagePixel(3, 2),
             MakeColour(DepthOf16Bits(101), DepthOf16Bits(67), DepthOf16Bits(33)));
    QVERIFY(shown.Screen.ValidateScreen());
    QCOMPARE(kit.Work.TheImage, shown.Picture());
    QVERIFY(kit.User.told.empty());
}

void ScanInWizardTest::ACancelledScanKeepsThePictureOfBefore() {
    DeskKit kit;
    kit.Desk.Scanners = m_scanner.get();
    SourceScene shown(kit);
    ClickIn(shown.Screen, "optScan");
    QTRY_VERIFY(shown.CanAcquire());
    DialogDriver driver({ScanThere, [](QDialog& window) { ClickIn(window, "cmdCancel"); }});
    ClickIn(shown.Screen, "cmdAcquire");
    const SharedPicture first = shown.Picture();
    QVERIFY(first != nullptr);
    ClickIn(shown.Screen, "cmdAcquire");
    QVERIFY(driver.AllDone());
    QCOMPARE(shown.Picture(), first);
}

void ScanInWizardTest::AnotherSourceDropsWhatIsStillFound() {
    DeskKit kit;
    kit.Desk.Scanners = m_scanner.get();
    m_scanner->Hold();
    SourceScene shown(kit);
    const Arrivals arrivals(SearchOf(shown));
    ClickIn(shown.Screen, "optScan");
    QTRY_COMPARE(m_scanner->Looks(), 1);
    ClickIn(shown.Screen, "optFile");
    QTRY_VERIFY(m_scanner->IsCancelled());
    m_scanner->LetGo();
    QTRY_COMPARE(arrivals.Count(), 1);
    QVERIFY(!shown.CanAcquire());
    QVERIFY(!PartOf<QComboBox>(shown.Screen, "cmbScanSource").isEnabled());
    ClickIn(shown.Screen, "optScan");
    QTRY_VERIFY(shown.CanAcquire());
}

void ScanInWizardTest::ASearchThatFailsBehindTheHiddenWizardSaysNothing() {
    DeskKit kit;
    kit.Desk.Scanners = m_scanner.get();
    m_scanner->found.Problem = {ScanProblem::Kind::Failed, "The scanner is busy.", {}};
    m_scanner->Hold();
    SourceScene shown(kit);
    const Arrivals arrivals(SearchOf(shown));
    ClickIn(shown.Screen, "optScan");
    QTRY_VERIFY(m_scanner->IsWaiting());
    shown.Screen.Suspend();
    m_scanner->LetGo();
    QTRY_COMPARE(arrivals.Count(), 1);
    QVERIFY(kit.User.told.empty());
    // Where it is looked at again, it says so.
    shown.Screen.Resume();
    QTRY_COMPARE(kit.User.ToldTexts(), std::vector<std::string>{"The scanner is busy."});
    QCOMPARE(m_scanner->Looks(), 2);
}

void ScanInWizardTest::TheTestDeviceGoesAllTheWay() {
    const SaneTestDevice device({{"mode", "Color"}, {"test-picture", "\"Solid black\""}});
    SaneScanner scanners;
    DeskKit kit;
    kit.Desk.Scanners = &scanners;
    SourceScene shown(kit);
    ClickIn(shown.Screen, "optScan");
    QTRY_VERIFY(shown.CanAcquire());
    DialogDriver driver({ScanThere});
    ClickIn(shown.Screen, "cmdAcquire");
    QVERIFY(driver.AllDone());
    QVERIFY(shown.Picture() != nullptr);
    QCOMPARE(shown.Picture()->ImageWidth(), 1181); // 200 mm at 150 dots an inch
    QCOMPARE(shown.Picture()->ImagePixel(600, 600), Colour{0});
    QVERIFY(shown.Screen.ValidateScreen());
    QVERIFY(kit.Work.TheImage != nullptr);
}

} // namespace zol::test

QTEST_MAIN(zol::test::ScanInWizardTest)
#include "test_ScanInWizard.moc"
