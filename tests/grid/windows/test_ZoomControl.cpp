// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

#include "grid/windows/ZoomControl.h"
#include "grid/windows/frmZoom.h"
#include "windowkit/NumericFilter.h"

namespace zol {

/// A place where nothing is painted; it keeps what it was asked.
class RecordingSite : public ZoomSite {
public:
    SquarePos ScrollPosition() const override { return Scroll; }
    int ZoomThatFits() const override { return Fits; }
    void ShowZoom() override { ++Shown; }
    void ScrollTo(SquarePos square) override { Scroll = square; }

    SquarePos Scroll{1, 1};
    int Fits = 77;
    int Shown = 0;
};

class test_ZoomControl : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theBoxOffersItsZooms();
    void stepsFollowTheTable_data();
    void stepsFollowTheTable();
    void quickStepsAreOneChange();
    void zoomsBeyondTheLimitsAreBroughtIn();
    void previousZoomAndScrollAreKept();
    void restoringSwapsZoomAndScroll();
    void enterSelectsAndChanges_data();
    void enterSelectsAndChanges();
    void toFitStaysAsText();
    void typingIsOneChangeAndTakesFiguresOnly();
    void pickingStartsTheTimer();
    void leavingTheBoxStartsTheTimer();
    void anOpenTextIsCommittedFirst();
    void theWindowShowsTheZoom_data();
    void theWindowShowsTheZoom();
    void customAloneEnablesItsField();
    void theWindowTellsTheChoice();
    void numbersKeepToTheirLimits();

private:
    [[nodiscard]] QComboBox& Box() const { return *m_zoom->Box(); }
    [[nodiscard]] QTimer& Timer() const {
        return *m_zoom->findChild<QTimer*>(QStringLiteral("timResize"));
    }
    void Type(const QString& text) {
        Box().lineEdit()->selectAll();
        QTest::keyClicks(Box().lineEdit(), text);
    }

    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<RecordingSite> m_site;
    std::unique_ptr<ZoomControl> m_zoom;
};

void test_ZoomControl::init() {
    m_window = std::make_unique<QWidget>();
    m_site = std::make_unique<RecordingSite>();
    m_zoom = std::make_unique<ZoomControl>(*m_site, m_window.get());
    m_window->show();
    Box().show();
}

void test_ZoomControl::cleanup() {
    m_zoom.reset();
    m_window.reset();
}

void test_ZoomControl::theBoxOffersItsZooms() {
    QStringList items;
    for (int i = 0; i < Box().count(); ++i) {
        items.append(Box().itemText(i));
    }
    const QStringList told{QStringLiteral("To Fit"), QStringLiteral("10%"),  QStringLiteral("25%"),
                           QStringLiteral("50%"),    QStringLiteral("100%"), QStringLiteral("200%"),
                           QStringLiteral("400%"),   QStringLiteral("600%")};
    QCOMPARE(items, told);
    QCOMPARE(Box().objectName(), QStringLiteral("cmbZoom"));
    QCOMPARE(Box().currentText(), QStringLiteral("100%"));
}

void test_ZoomControl::stepsFollowTheTable_data() {
    QTest::addColumn<int>("now");
    QTest::addColumn<int>("in");
    QTest::addColumn<int>("out");
    const int table[][3] = {{7, 10, 7},      {10, 20, 10},     {55, 60, 50},     {100, 200, 90},
                            {150, 200, 100}, {900, 1000, 800}, {1000, 1000, 900}};
    for (const auto& row : table) {
        QTest::addRow("from %d", row[0]) << row[0] << row[1] << row[2];
    }
}

void test_ZoomControl::stepsFollowTheTable() {
    QFETCH(int, now);
    QFETCH(int, in);
    QFETCH(int, out);
    m_zoom->SetZoom(now);
    m_zoom->ZoomIn();
    QCOMPARE(Box().currentText(), QString::number(in) + QLatin1Char('%'));
    QCOMPARE(Timer().isActive(), in != now);
    QTRY_VERIFY(!Timer().isActive());
    QCOMPARE(m_zoom->GridZoom(), in);
    m_zoom->SetZoom(now);
    m_zoom->ZoomOut();
    QCOMPARE(Timer().isActive(), out != now);
    QTRY_VERIFY(!Timer().isActive());
    QCOMPARE(m_zoom->GridZoom(), out);
}

void test_ZoomControl::quickStepsAreOneChange() {
    QSignalSpy changed(m_zoom.get(), &ZoomControl::ZoomChanged);
    m_zoom->ZoomIn();
    m_zoom->ZoomIn();
    m_zoom->ZoomIn();
    QCOMPARE(m_zoom->GridZoom(), 100);
    QTRY_COMPARE(m_zoom->GridZoom(), 400);
    QCOMPARE(m_site->Shown, 1);
    QCOMPARE(changed.count(), 1);
}

void test_ZoomControl::zoomsBeyondTheLimitsAreBroughtIn() {
    m_zoom->SetZoom(5000);
    QCOMPARE(m_zoom->GridZoom(), 1000);
    m_zoom->SetZoom(-3);
    QCOMPARE(m_zoom->GridZoom(), 1);
    QCOMPARE(Box().currentText(), QStringLiteral("1%"));
}

void test_ZoomControl::previousZoomAndScrollAreKept() {
    m_site->Scroll = {12, 34};
    m_zoom->ChangeZoom(250);
    QCOMPARE(m_zoom->PreviousZoom(), 100);
    QCOMPARE(m_zoom->SavedScrollX(), 12);
    QCOMPARE(m_zoom->SavedScrollY(), 34);
    // Back to the zoom before, what was kept stays.
    m_site->Scroll = {3, 3};
    m_zoom->ChangeZoom(100);
    QCOMPARE(m_zoom->PreviousZoom(), 100);
    QCOMPARE(m_zoom->SavedScrollX(), 12);
}

void test_ZoomControl::restoringSwapsZoomAndScroll() {
    m_zoom->RestorePreviousZoom();
    QVERIFY(!Timer().isActive());
    m_site->Scroll = {12, 34};
    m_zoom->ChangeZoom(250);
    m_site->Scroll = {70, 80};
    m_zoom->RestorePreviousZoom();
    QCOMPARE(Box().currentText(), QStringLiteral("100%"));
    QTRY_COMPARE(m_zoom->GridZoom(), 100);
    QCOMPARE(m_site->Scroll, (SquarePos{12, 34}));
    QCOMPARE(m_zoom->PreviousZoom(), 250);
    m_zoom->RestorePreviousZoom();
    QTRY_COMPARE(m_zoom->GridZoom(), 250);
    QCOMPARE(m_site->Scroll, (SquarePos{70, 80}));
    QCOMPARE(m_zoom->PreviousZoom(), 100);
}

void test_ZoomControl::enterSelectsAndChanges_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("zoom");
    QTest::newRow("number") << QStringLiteral("137") << 137;
    QTest::newRow("with its sign") << QStringLiteral("80%") << 80;
    QTest::newRow("nothing") << QString() << 100;
    QTest::newRow("sign alone") << QStringLiteral("%") << 100;
    QTest::newRow("nonsense") << QStringLiteral("abc") << 1;
    QTest::newRow("nought") << QStringLiteral("0") << 1;
    QTest::newRow("too much") << QStringLiteral("123456789012345") << 1000;
    QTest::newRow("half to even") << QStringLiteral("62.5") << 62;
    QTest::newRow("the same") << QStringLiteral("100") << 100;
}

void test_ZoomControl::enterSelectsAndChanges() {
    QFETCH(QString, text);
    QFETCH(int, zoom);
    Box().setEditText(text);
    QTest::keyClick(Box().lineEdit(), Qt::Key_Return);
    QCOMPARE(m_zoom->GridZoom(), zoom);
    QCOMPARE(Box().currentText(), QString::number(zoom) + QLatin1Char('%'));
    QCOMPARE(Box().lineEdit()->selectedText(), Box().currentText());
    QCOMPARE(m_site->Shown, zoom == 100 ? 0 : 1);
    QVERIFY(!Timer().isActive());
}

void test_ZoomControl::toFitStaysAsText() {
    m_site->Fits = 1234;
    m_zoom->ZoomToFit();
    QTRY_COMPARE(m_zoom->GridZoom(), 1000);
    QCOMPARE(Box().currentText(), QStringLiteral("To Fit"));
    QTest::keyClick(Box().lineEdit(), Qt::Key_Return);
    QCOMPARE(Box().currentText(), QStringLiteral("To Fit"));
    m_zoom->ZoomOut();
    QTRY_COMPARE(m_zoom->GridZoom(), 900);
    QCOMPARE(Box().currentText(), QStringLiteral("900%"));
}

void test_ZoomControl::typingIsOneChangeAndTakesFiguresOnly() {
    Type(QStringLiteral("2x5-0,."));
    QCOMPARE(Box().currentText(), QStringLiteral("250"));
    QVERIFY(Timer().isActive());
    QCOMPARE(m_zoom->GridZoom(), 100);
    QTRY_COMPARE(m_zoom->GridZoom(), 250);
    QCOMPARE(Box().currentText(), QStringLiteral("250%"));
    QCOMPARE(m_site->Shown, 1);
}

void test_ZoomControl::pickingStartsTheTimer() {
    Box().setFocus();
    QTest::keyClick(&Box(), Qt::Key_Down);
    QVERIFY(Timer().isActive());
    const QString picked = Box().currentText();
    QTRY_VERIFY(!Timer().isActive());
    QCOMPARE(Box().currentText(), picked);
}

void test_ZoomControl::leavingTheBoxStartsTheTimer() {
    Box().setEditText(QStringLiteral("300"));
    QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(Box().lineEdit(), &out);
    QVERIFY(Timer().isActive());
    QTRY_COMPARE(m_zoom->GridZoom(), 300);
}

void test_ZoomControl::anOpenTextIsCommittedFirst() {
    int zoomThen = 0;
    m_zoom->SetBeforeChange([&] { zoomThen = m_zoom->GridZoom(); });
    m_zoom->ChangeZoom(200);
    QCOMPARE(zoomThen, 100);
}

void test_ZoomControl::theWindowShowsTheZoom_data() {
    QTest::addColumn<int>("zoom");
    QTest::addColumn<QString>("option");
    const std::pair<int, const char*> rows[] = {{25, "25%"},    {50, "50%"},     {100, "100%"},
                                                {150, "150%"},  {200, "200%"},   {300, "300%"},
                                                {99, "Custom"}, {1000, "Custom"}};
    for (const auto& [zoom, option] : rows) {
        QTest::addRow("%d", zoom) << zoom << QString::fromLatin1(option);
    }
}

void test_ZoomControl::theWindowShowsTheZoom() {
    QFETCH(int, zoom);
    QFETCH(QString, option);
    const frmZoom window(zoom);
    QString checked;
    for (const QRadioButton* button : window.findChildren<QRadioButton*>()) {
        checked += button->isChecked() ? button->text() : QString();
    }
    QCOMPARE(checked, option);
    QCOMPARE(window.Percent(), zoom);
    const auto* custom = window.findChild<QLineEdit*>(QStringLiteral("txtCustomZoom"));
    QCOMPARE(custom->isEnabled(), option == QStringLiteral("Custom"));
    if (custom->isEnabled()) {
        QCOMPARE(custom->text(), QString::number(zoom));
    }
}

void test_ZoomControl::customAloneEnablesItsField() {
    frmZoom window(100);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto* custom = window.findChild<QLineEdit*>(QStringLiteral("txtCustomZoom"));
    auto* option = window.findChild<QRadioButton*>(QStringLiteral("optZoom6"));
    QVERIFY(!custom->isEnabled());
    QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(8, option->height() / 2));
    QVERIFY(custom->isEnabled());
    QCOMPARE(window.focusWidget(), custom);
    QTest::keyClicks(custom, QStringLiteral("4a2.0"));
    QCOMPARE(custom->text(), QStringLiteral("420"));
    QCOMPARE(window.Percent(), 420);
    auto* other = window.findChild<QRadioButton*>(QStringLiteral("optZoom4"));
    QTest::mouseClick(other, Qt::LeftButton, {}, QPoint(8, other->height() / 2));
    QVERIFY(!custom->isEnabled());
    QCOMPARE(window.Percent(), 200);
}

void test_ZoomControl::theWindowTellsTheChoice() {
    frmZoom window(100);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::mouseClick(window.findChild<QPushButton*>(QStringLiteral("cmdCancel")), Qt::LeftButton);
    QCOMPARE(window.result(), int(QDialog::Rejected));
    frmZoom again(40);
    again.show();
    again.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&again));
    auto* custom = again.findChild<QLineEdit*>(QStringLiteral("txtCustomZoom"));
    QTest::keyClicks(custom, QStringLiteral("45"));
    QTest::keyClick(custom, Qt::Key_Return);
    QCOMPARE(again.result(), int(QDialog::Accepted));
    QCOMPARE(again.Percent(), 45);
}

void test_ZoomControl::numbersKeepToTheirLimits() {
    QLineEdit field;
    new NumericFilter(&field, 1, 2);
    field.show();
    QTest::keyClicks(&field, QStringLiteral("12.3456"));
    QCOMPARE(field.text(), QStringLiteral("1.34"));
    QTest::keyClick(&field, Qt::Key_Backspace);
    QCOMPARE(field.text(), QStringLiteral("1.3"));
    QTest::keyClicks(&field, QStringLiteral(".a-"));
    QCOMPARE(field.text(), QStringLiteral("1.3"));
    field.selectAll();
    QTest::keyClicks(&field, QStringLiteral("7"));
    QCOMPARE(field.text(), QStringLiteral("7"));
    QInputMethodEvent letters(QString(), {});
    letters.setCommitString(QStringLiteral("x"));
    QApplication::sendEvent(&field, &letters);
    QCOMPARE(field.text(), QStringLiteral("7"));
    QSignalSpy entered(&field, &QLineEdit::returnPressed);
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(entered.count(), 1);
}

} // namespace zol

QTEST_MAIN(zol::test_ZoomControl)
#include "test_ZoomControl.moc"
