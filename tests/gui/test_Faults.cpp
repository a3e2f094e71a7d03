// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QPushButton>
#include <QTimer>

#include <functional>
#include <new>
#include <stdexcept>

#include "app/GuardedApplication.h"
#include "gui/DrawnProgram.h"
#include "model/RunTimeError.h"

namespace zol::test {

using Work = std::function<void()>;

/// An exception that no command has caught.
class FaultsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void FaultIsToldAndTheWorkStays_data();
    void FaultIsToldAndTheWorkStays();
    void FaultWhileOneIsToldIsNotToldToo();
};

void FaultsTest::FaultIsToldAndTheWorkStays_data() {
    QTest::addColumn<bool>("byTimer");
    QTest::addColumn<Work>("fail");
    QTest::addColumn<QString>("told");
    const auto row = [](const char* name, const Work& fail, const char* told) {
#ifndef __SANITIZE_ADDRESS__ // Qt leaves some bytes of a mouse event behind that ends in a fault
        QTest::addRow("%s, clicked", name) << false << fail << QString::fromLatin1(told);
#endif
        QTest::addRow("%s, from a timer", name) << true << fail << QString::fromLatin1(told);
    };
    row(
        "run-time error", [] { throw RunTimeError(ErrSubscript); }, "Subscript out of range");
    row(
        "no memory", [] { throw std::bad_alloc(); }, "Out of memory");
    row(
        "other", [] { throw std::out_of_range("no such floss"); }, "no such floss");
}

void FaultsTest::FaultIsToldAndTheWorkStays() {
    QFETCH(const bool, byTimer);
    QFETCH(const Work, fail);
    QFETCH(const QString, told);
    OpenedProgram program;
    static_cast<GuardedApplication*>(qApp)->SetFaultTeller(
        [&program](const std::exception& fault) { program.Main().TellFault(fault); });
    program.Take(20, 20, 300);
    Twin twin(program.Design());
    program.ClickIn(3, 3);
    program.ClickIn(4, 4);
    twin.SetStitch(3, 3, StitchWhole, 1, 5);
    twin.SetStitch(4, 4, StitchWhole, 1, 5);
    if (byTimer) {
        QTimer::singleShot(0, &program.Window(), fail);
    } else {
        QPushButton button(&program.Window());
        connect(&button, &QPushButton::clicked, &button, fail);
        button.show();
        program.Pointer.Click(button, QRectF(button.rect()).center());
    }
    QTRY_COMPARE(program.User.told.size(), std::size_t{1});
    QCOMPARE(program.User.told[0].text, told.toStdString());
    QVERIFY(!program.User.told[0].more.empty());
    COMPARE_TWIN(program, twin);
    // Both stitches are in the recovery file, not only the first, which is saved at once.
    QCOMPARE(ReadFile(program.Parts().AutoSave.AutoSavePath()),
             std::string(2, '\0') + 'P' + BytesOf(program.Parts().Open.Get()));
    program.ClickIn(7, 7);
    twin.SetStitch(7, 7, StitchWhole, 1, 5);
    COMPARE_TWIN(program, twin);
    QCOMPARE(program.User.told.size(), std::size_t{1});
}

void FaultsTest::FaultWhileOneIsToldIsNotToldToo() {
    auto* guarded = static_cast<GuardedApplication*>(qApp);
    const Work fail = [] { throw RunTimeError(ErrOverflow); };
    int told = 0;
    bool cameAgain = false;
    guarded->SetFaultTeller([&](const std::exception&) {
        ++told;
        QTimer::singleShot(0, qApp, fail);
        QTimer::singleShot(0, qApp, [&cameAgain] { cameAgain = true; });
        QTRY_VERIFY(cameAgain);
        fail(); // even telling may fail
    });
    QTimer::singleShot(0, qApp, fail);
    QTRY_VERIFY(cameAgain);
    QCOMPARE(told, 1);
    guarded->SetFaultTeller({});
}

} // namespace zol::test

int main(int argc, char** argv) {
    zol::GuardedApplication application(argc, argv);
    zol::test::FaultsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_Faults.moc"
