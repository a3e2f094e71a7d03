// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

#include "import/windows/ScannerList.h"
#include "model/ProgramContext.h"
#include "support/Arrivals.h"
#include "support/DialogDriver.h"
#include "support/DialogHands.h"
#include "support/RecordingDoors.h"
#include "support/ScriptedScanner.h"
#include "support/ScriptedUser.h"

using namespace zol;
using zol::test::Arrivals;
using zol::test::ClickIn;
using zol::test::DialogDriver;
using zol::test::MapSettings;
using zol::test::PartOf;
using zol::test::ScriptedScanner;
using zol::test::ScriptedUser;

class test_ScannerList : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void fillsTheListBesideTheWindow();
    void saysWhenThereIsNone();
    void saysWhySystemsCannotScan();
    void looksAgainByItsLastLine();
    void whatComesTooLateIsDropped();
    void aSearchThatWasCutOffBeginsAnewOnComingBack();
    void acquiresFromTheChosenOne();
    void aCancelledScanBringsNothing();

private:
    [[nodiscard]] QStringList Lines() const {
        QStringList lines;
        for (int i = 0; i < m_list->count(); ++i) {
            lines.append(m_list->itemText(i));
        }
        return lines;
    }
    [[nodiscard]] bool IsFilled() const {
        return m_list->itemText(m_list->count() - 1) == QStringLiteral("Look for scanners again");
    }

    std::unique_ptr<ScriptedScanner> m_scanner;
    std::unique_ptr<ScriptedUser> m_user;
    MapSettings m_store;
    ProgramContext m_context;
    std::unique_ptr<QWidget> m_window;
    QComboBox* m_list = nullptr;
    QPushButton* m_acquire = nullptr;
    ScannerList* m_scanners = nullptr;
};

void test_ScannerList::init() {
    m_scanner = std::make_unique<ScriptedScanner>();
    m_scanner->found.Sources = {{"one", "Flatbed One"}, {"two", "Flatbed Two"}};
    Picture picture(5, 4);
    m_scanner->scans = {{picture, {}}};
    m_user = std::make_unique<ScriptedUser>();
    m_store.values.clear();
    m_window = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(m_window.get());
    m_list = new QComboBox;
    m_acquire = new QPushButton(QStringLiteral("Acquire"));
    layout->addWidget(m_list);
    layout->addWidget(m_acquire);
    m_scanners = new ScannerList({*m_scanner, m_context, m_store, *m_user}, *m_list, *m_acquire,
                                 m_window.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void test_ScannerList::cleanup() {
    m_scanner->LetGo();
    m_window.reset();
    QVERIFY(m_user->unanswered.empty());
}

void test_ScannerList::fillsTheListBesideTheWindow() {
    QCOMPARE(m_scanner->Looks(), 0);
    m_scanner->Hold();
    m_scanners->Look();
    QCOMPARE(Lines(), QStringList{QStringLiteral("Looking for scanners...")});
    QVERIFY(!m_acquire->isEnabled());
    QVERIFY(!m_scanners->Chosen().has_value());
    m_scanner->LetGo();
    QTRY_VERIFY(IsFilled());
    QCOMPARE(Lines().mid(0, 2),
             (QStringList{QStringLiteral("Flatbed One"), QStringLiteral("Flatbed Two")}));
    QCOMPARE(m_scanners->Chosen()->Name, std::string("one"));
    QVERIFY(m_acquire->isEnabled());
    QVERIFY(m_user->told.empty());
}

void test_ScannerList::saysWhenThereIsNone() {
    m_scanner->found.Sources.clear();
    m_scanners->Look();
    QTRY_VERIFY(IsFilled());
    QCOMPARE(Lines().at(0), QStringLiteral("No scanner was found"));
    QVERIFY(!m_acquire->isEnabled());
    QVERIFY(m_user->told.empty());
}

void test_ScannerList::saysWhySystemsCannotScan() {
    m_scanner->found = {{},
                        {ScanProblem::Kind::NoScanning,
                         "This computer has no software for scanners.", "Install it."}};
    m_scanners->Look();
    QTRY_COMPARE(m_user->told.size(), std::size_t{1});
    QCOMPARE(m_user->told[0].text, std::string("This computer has no software for scanners."));
    QCOMPARE(m_user->told[0].more, std::string("Install it."));
    QCOMPARE(Lines().at(0), QStringLiteral("This computer has no software for scanners."));
    QVERIFY(!m_acquire->isEnabled());
}

void test_ScannerList::looksAgainByItsLastLine() {
    m_scanners->Look();
    QTRY_VERIFY(IsFilled());
    m_scanner->found.Sources = {{"three", "Flatbed Three"}};
    m_list->setFocus();
    QTest::keyClick(m_list, Qt::Key_End);
    QTRY_COMPARE(Lines().at(0), QStringLiteral("Flatbed Three"));
    QCOMPARE(m_scanner->Looks(), 2);
    QVERIFY(m_acquire->isEnabled());
}

void test_ScannerList::whatComesTooLateIsDropped() {
    m_scanner->found.Problem = {ScanProblem::Kind::Failed, "The scanner is busy.", {}};
    const Arrivals arrivals(*m_scanners->findChild<LatestJob*>());
    m_scanner->Hold();
    m_scanners->Look();
    QTRY_COMPARE(m_scanner->Looks(), 1);
    m_scanners->Leave();
    QTRY_VERIFY(m_scanner->IsCancelled());
    m_scanner->LetGo();
    QTRY_COMPARE(arrivals.Count(), 1);
    QVERIFY(m_user->told.empty());
    QVERIFY(!IsFilled());
}

void test_ScannerList::aSearchThatWasCutOffBeginsAnewOnComingBack() {
    m_scanner->Hold();
    m_scanners->Look();
    QTRY_COMPARE(m_scanner->Looks(), 1);
    m_scanners->Leave();
    m_scanners->Leave();
    QTRY_VERIFY(m_scanner->IsCancelled());
    m_scanner->LetGo();
    m_scanners->ComeBack();
    QTRY_VERIFY(IsFilled());
    QCOMPARE(m_scanner->Looks(), 2);
    // One that came to its end does not.
    m_scanners->Leave();
    m_scanners->ComeBack();
    QVERIFY(IsFilled());
    QVERIFY(m_acquire->isEnabled());
}

void test_ScannerList::acquiresFromTheChosenOne() {
    m_scanners->Look();
    QTRY_VERIFY(IsFilled());
    m_list->setFocus();
    QTest::keyClick(m_list, Qt::Key_Down);
    const auto readyToScan = [](QDialog& dialog) {
        auto& scan = PartOf<QPushButton>(dialog, "cmdScan");
        QTRY_VERIFY(scan.isEnabled());
        ClickIn(dialog, "cmdScan");
    };
    DialogDriver driver({readyToScan});
    const auto picture = m_scanners->Acquire(m_window.get());
    QVERIFY(driver.AllDone());
    QVERIFY(picture.has_value());
    QCOMPARE(picture->ImageWidth(), 5);
    QCOMPARE(m_scanner->Requests().at(0).Source, std::string("two"));
    // And it is the one of the next time.
    m_scanners->Look();
    QTRY_VERIFY(IsFilled());
    QCOMPARE(m_list->currentIndex(), 1);
}

void test_ScannerList::aCancelledScanBringsNothing() {
    m_scanners->Look();
    QTRY_VERIFY(IsFilled());
    DialogDriver driver({[](QDialog& dialog) { ClickIn(dialog, "cmdCancel"); }});
    QVERIFY(!m_scanners->Acquire(m_window.get()).has_value());
    QVERIFY(driver.AllDone());
    QVERIFY(m_scanner->Requests().empty());
}

QTEST_MAIN(test_ScannerList)
#include "test_ScannerList.moc"
