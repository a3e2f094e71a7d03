// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <memory>

#include "windowkit/DialogManners.h"

namespace zol::test {

class test_DialogManners : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void aFieldUnderTheWheelLeavesItToThePage();
    void aFieldWithTheKeysTakesTheWheel();
    void usualButtonsHaveNoLetters();
    void ownCaptionsAndMessageBoxesKeepTheirs();

private:
    /// Turns the wheel a notch over a field; false if the field leaves it to what lies beneath.
    static bool TakesWheel(QWidget& field);

    std::unique_ptr<QDialog> m_dialog;
    QComboBox* m_list = nullptr;
    QSpinBox* m_number = nullptr;
};

void test_DialogManners::initTestCase() {
    DialogManners::Teach(*qApp);
}

void test_DialogManners::init() {
    m_dialog = std::make_unique<QDialog>();
    auto* column = new QVBoxLayout(m_dialog.get());
    column->addWidget(new QLineEdit(m_dialog.get()));
    column->addWidget(m_list = new QComboBox(m_dialog.get()));
    column->addWidget(m_number = new QSpinBox(m_dialog.get()));
    m_list->addItems({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")});
    m_number->setValue(30);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

bool test_DialogManners::TakesWheel(QWidget& field) {
    const QPoint place = field.rect().center();
    QWheelEvent event(place, field.mapToGlobal(place), {}, QPoint(0, -120), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&field, &event);
    return event.isAccepted();
}

void test_DialogManners::aFieldUnderTheWheelLeavesItToThePage() {
    QVERIFY(!TakesWheel(*m_list));
    QVERIFY(!TakesWheel(*m_number));
    QCOMPARE(m_list->currentIndex(), 0);
    QCOMPARE(m_number->value(), 30);
    // Nor does the wheel give it the keys, with which it would take the next notch.
    QCOMPARE(m_list->focusPolicy(), Qt::StrongFocus);
    QCOMPARE(m_number->focusPolicy(), Qt::StrongFocus);
}

void test_DialogManners::aFieldWithTheKeysTakesTheWheel() {
    QTest::mouseClick(m_number, Qt::LeftButton, {}, QPoint(5, m_number->height() / 2));
    QVERIFY(TakesWheel(*m_number));
    QCOMPARE(m_number->value(), 29);
    QVERIFY(!TakesWheel(*m_list));
    m_list->setFocus(Qt::TabFocusReason);
    QVERIFY(TakesWheel(*m_list));
    QCOMPARE(m_list->currentIndex(), 1);
    QVERIFY(!TakesWheel(*m_number));
    QCOMPARE(m_number->value(), 29);
}

void test_DialogManners::usualButtonsHaveNoLetters() {
    QDialog dialog;
    auto* column = new QVBoxLayout(&dialog);
    auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    column->addWidget(box);
    // As some desktops write them.
    box->button(QDialogButtonBox::Ok)->setText(QStringLiteral("&OK"));
    box->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("&Cancel"));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(box->button(QDialogButtonBox::Ok)->text(), QStringLiteral("OK"));
    QCOMPARE(box->button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Cancel"));
}

void test_DialogManners::ownCaptionsAndMessageBoxesKeepTheirs() {
    QDialog dialog;
    auto* column = new QVBoxLayout(&dialog);
    auto* box = new QDialogButtonBox(QDialogButtonBox::Ok, &dialog);
    column->addWidget(box);
    box->addButton(QStringLiteral("A&pply"), QDialogButtonBox::ApplyRole);
    box->button(QDialogButtonBox::Ok)->setText(QStringLiteral("&Use Printer"));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(box->button(QDialogButtonBox::Ok)->text(), QStringLiteral("&Use Printer"));
    QCOMPARE(box->buttons().last()->text(), QStringLiteral("A&pply"));
    QMessageBox question(QMessageBox::Question, QString(), QStringLiteral("?"),
                         QMessageBox::Yes | QMessageBox::No);
    question.show();
    QVERIFY(QTest::qWaitForWindowExposed(&question));
    QCOMPARE(question.button(QMessageBox::Yes)->text(), QStringLiteral("&Yes"));
}

} // namespace zol::test

QTEST_MAIN(zol::test::test_DialogManners)
#include "test_DialogManners.moc"
