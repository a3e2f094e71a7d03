// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QDialog>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <memory>

#include "windowkit/BusyScope.h"

using namespace zol;

namespace {

/// Counts its paint and resize events.
class Canvas : public QWidget {
public:
    using QWidget::QWidget;

    int painted = 0;
    int resized = 0;

protected:
    void paintEvent(QPaintEvent* /*event*/) override { ++painted; }
    void resizeEvent(QResizeEvent* /*event*/) override { ++resized; }
};

} // namespace

class TestBusyScope : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }

    void ButtonOutsideDoesNotFire();
    void CancelFires();
    void EscapeClicksCancel();
    void ShortcutsAreRefused();
    void WhatWasClickedMeanwhileIsNotDoneLater();
    void CloseIsRefused();
    void TimersWait();
    void PaintingAndResizingPass();
    void ScopesNest();
    void QuestionWithinWorkCanBeAnswered();

private:
    void ClickOn(QWidget* widget) const {
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {},
                          widget->mapTo(m_window.get(), widget->rect().center()));
    }

    std::unique_ptr<QMainWindow> m_window;
    QPushButton* m_command = nullptr;
    QPushButton* m_cancel = nullptr;
    QPushButton* m_otherCancel = nullptr;
    Canvas* m_canvas = nullptr;
};

void TestBusyScope::init() {
    m_window = std::make_unique<QMainWindow>();
    auto* center = new QWidget;
    auto* column = new QVBoxLayout(center);
    m_command = new QPushButton(QStringLiteral("Command"));
    m_cancel = new QPushButton(QStringLiteral("Cancel"));
    m_otherCancel = new QPushButton(QStringLiteral("Cancel that"));
    m_canvas = new Canvas;
    for (QWidget* widget :
         std::initializer_list<QWidget*>{m_command, m_cancel, m_otherCancel, m_canvas}) {
        column->addWidget(widget);
    }
    m_window->setCentralWidget(center);
    m_window->resize(300, 300);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TestBusyScope::ButtonOutsideDoesNotFire() {
    const QSignalSpy fired(m_command, &QPushButton::clicked);
    {
        const BusyScope scope(m_cancel);
        QVERIFY(BusyScope::IsAnyAlive());
        ClickOn(m_command);
        QTest::keyClick(m_command, Qt::Key_Space);
        BusyScope::LetEventsThrough();
        QCOMPARE(fired.count(), 0);
    }
    QVERIFY(!BusyScope::IsAnyAlive());
    ClickOn(m_command);
    QCOMPARE(fired.count(), 1);
}

void TestBusyScope::CancelFires() {
    const QSignalSpy fired(m_cancel, &QPushButton::clicked);
    const BusyScope scope(m_cancel);
    ClickOn(m_cancel);
    QCOMPARE(fired.count(), 1);
}

void TestBusyScope::EscapeClicksCancel() {
    const QSignalSpy fired(m_cancel, &QPushButton::clicked);
    const BusyScope scope(m_cancel);
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Escape);
    QCOMPARE(fired.count(), 1);
    m_cancel->hide();
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Escape);
    QCOMPARE(fired.count(), 1);
}

void TestBusyScope::ShortcutsAreRefused() {
    QAction* save =
        m_window->menuBar()->addMenu(QStringLiteral("File"))->addAction(QStringLiteral("Save"));
    save->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
    const QSignalSpy fired(save, &QAction::triggered);
    {
        const BusyScope scope(m_cancel);
        QTest::keyClick(m_window->windowHandle(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(fired.count(), 0);
    }
    QTest::keyClick(m_window->windowHandle(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(fired.count(), 1);
}

void TestBusyScope::WhatWasClickedMeanwhileIsNotDoneLater() {
    const QSignalSpy fired(m_command, &QPushButton::clicked);
    {
        const BusyScope scope(m_cancel);
        ClickOn(m_command);
    }
    QCoreApplication::processEvents();
    QCOMPARE(fired.count(), 0);
}

void TestBusyScope::CloseIsRefused() {
    {
        const BusyScope scope(m_cancel);
        QVERIFY(!m_window->close());
        QVERIFY(!m_window->windowHandle()->close());
        QVERIFY(m_window->isVisible());
    }
    QVERIFY(m_window->close());
    QVERIFY(!m_window->isVisible());
}

void TestBusyScope::TimersWait() {
    QTimer repeating;
    QTimer once;
    once.setSingleShot(true);
    const QSignalSpy repeated(&repeating, &QTimer::timeout);
    const QSignalSpy firedOnce(&once, &QTimer::timeout);
    repeating.start(0);
    once.start(0);
    {
        const BusyScope scope(m_cancel);
        for (int round = 0; round < 20; ++round) {
            BusyScope::LetEventsThrough();
        }
        QCOMPARE(repeated.count(), 0);
        QCOMPARE(firedOnce.count(), 0);
    }
    QTRY_COMPARE(firedOnce.count(), 1);
    QTRY_VERIFY(repeated.count() > 1);
    QCOMPARE(firedOnce.count(), 1);
}

void TestBusyScope::PaintingAndResizingPass() {
    QTRY_VERIFY(m_canvas->painted > 0);
    const BusyScope scope(m_cancel);
    const int painted = m_canvas->painted;
    m_canvas->update();
    for (int round = 0; round < 100 && m_canvas->painted == painted; ++round) {
        BusyScope::LetEventsThrough();
    }
    QVERIFY(m_canvas->painted > painted);
    const int resized = m_canvas->resized;
    m_window->resize(400, 350);
    for (int round = 0; round < 100 && m_canvas->resized == resized; ++round) {
        BusyScope::LetEventsThrough();
    }
    QVERIFY(m_canvas->resized > resized);
}

void TestBusyScope::ScopesNest() {
    const QSignalSpy fired(m_command, &QPushButton::clicked);
    const QSignalSpy outerCancel(m_cancel, &QPushButton::clicked);
    const QSignalSpy innerCancel(m_otherCancel, &QPushButton::clicked);
    const BusyScope outer(m_cancel);
    {
        const BusyScope inner(m_otherCancel);
        ClickOn(m_cancel);
        ClickOn(m_otherCancel);
        ClickOn(m_command);
        QCOMPARE(outerCancel.count(), 1);
        QCOMPARE(innerCancel.count(), 1);
    }
    ClickOn(m_otherCancel);
    ClickOn(m_command);
    QCOMPARE(innerCancel.count(), 1);
    QCOMPARE(fired.count(), 0);
}

void TestBusyScope::QuestionWithinWorkCanBeAnswered() {
    const BusyScope scope(m_cancel);
    QDialog question(m_window.get());
    auto* yes = new QPushButton(QStringLiteral("Yes"), &question);
    connect(yes, &QPushButton::clicked, &question, &QDialog::accept);
    const QSignalSpy fired(m_command, &QPushButton::clicked);
    QMetaObject::invokeMethod(
        &question,
        [&] {
            ClickOn(m_command);
            QTest::mouseClick(question.windowHandle(), Qt::LeftButton, {},
                              yes->geometry().center());
        },
        Qt::QueuedConnection);
    QCOMPARE(question.exec(), static_cast<int>(QDialog::Accepted));
    QCOMPARE(fired.count(), 0);
}

QTEST_MAIN(TestBusyScope)
#include "test_BusyScope.moc"
