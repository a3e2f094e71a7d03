// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "gui/DrawnProgram.h"
#include "support/DialogDriver.h"

namespace zol::test {

/// Inserting and deleting rows and columns, by the dialog's keys and fields.
class RowsInWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void WordsOfBothModes();
    void FieldsTakeDigitsAlone();
    void PastedFractionIsNoNumberOfRows();
    void Faults_data();
    void Faults();
    void AddingInTheMiddleLosesTheLastRows();
    void AddingAfterTheLastRowMovesNothing();
    void ColumnsUpTo999();
    void DeletingAndItsUndo();
    void DeletingEveryRowStaysUsable();
    void CancelChangesNothing();
    void WhatFloatsLandsFirst();

private:
    /// 6 columns and 5 rows, a stitch in each row of column 2.
    static void Prepare(DrawnProgram& program) {
        program.Take(6, 5, 300);
        for (int y = 1; y <= 5; ++y) {
            program.Design().SetStitch(2, y, StitchWhole, y, 0);
        }
        program.Choose("mnuViewRefresh");
        DrawnProgram::Settle();
    }
    static void Type(QDialog& dialog, const char* field, const char* text) {
        auto* edit = dialog.findChild<QLineEdit*>(QLatin1String(field));
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, QLatin1String(text));
    }
    static void Fill(QDialog& dialog, bool columns, const char* howMany, const char* start) {
        dialog.findChild<QComboBox*>(QStringLiteral("cmbRowCol"))->setCurrentIndex(columns ? 1 : 0);
        Type(dialog, "txtHowMany", howMany);
        Type(dialog, "txtStartRow", start);
    }
    static void Ok(QDialog& dialog) {
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("cmdOK")), Qt::LeftButton);
    }
    /// Opens the dialog by its command, fills it in and presses OK.
    static void Run(DrawnProgram& program, const char* command, bool columns, const char* howMany,
                    const char* start) {
        DialogDriver driver({[&](QDialog& dialog) {
            Fill(dialog, columns, howMany, start);
            Ok(dialog);
            // A refusal leaves it open.
            dialog.reject();
        }});
        program.Choose(command);
        QVERIFY(driver.AllDone());
        program.Window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&program.Window()));
        program.Grid().setFocus();
    }
};

void RowsInWindowTest::WordsOfBothModes() {
    OpenedProgram program;
    struct Mode {
        const char* command;
        QString title;
        QString does;
        QString where;
    };
    for (const Mode& mode : {Mode{"mnuAddRows", QStringLiteral("Add Rows/Columns"),
                                  QStringLiteral("Add"), QStringLiteral("after ")},
                             Mode{"mnuDelRows", QStringLiteral("Delete Rows/Columns"),
                                  QStringLiteral("Delete"), QStringLiteral("starting at ")}}) {
        DialogDriver driver({[&](QDialog& dialog) {
            QCOMPARE(dialog.objectName(), QStringLiteral("frmAddRows"));
            QVERIFY(dialog.isModal());
            QCOMPARE(dialog.windowTitle(), mode.title);
            QCOMPARE(dialog.findChild<QLabel*>(QStringLiteral("lblAddDelete"))->text(), mode.does);
            auto* after = dialog.findChild<QLabel*>(QStringLiteral("lblAfter"));
            auto* which = dialog.findChild<QComboBox*>(QStringLiteral("cmbRowCol"));
            QCOMPARE(which->itemText(0), QStringLiteral("rows"));
            QCOMPARE(which->itemText(1), QStringLiteral("columns"));
            const QString row = mode.where + QStringLiteral("row");
            const QString column = mode.where + QStringLiteral("column");
            QCOMPARE(after->text(), row);
            QTest::keyClick(which, Qt::Key_Down);
            QCOMPARE(after->text(), column);
            QTest::keyClick(which, Qt::Key_Up);
            QCOMPARE(after->text(), row);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        }});
        program.Choose(mode.command);
        QVERIFY(driver.AllDone());
    }
}

void RowsInWindowTest::FieldsTakeDigitsAlone() {
    OpenedProgram program;
    DialogDriver driver({[&](QDialog& dialog) {
        for (const char* field : {"txtHowMany", "txtStartRow"}) {
            Type(dialog, field, "a1-2.,3x");
            QCOMPARE(dialog.findChild<QLineEdit*>(QLatin1String(field))->text(),
                     QStringLiteral("123"));
        }
        dialog.reject();
    }});
    program.Choose("mnuAddRows");
    QVERIFY(driver.AllDone());
}

void RowsInWindowTest::PastedFractionIsNoNumberOfRows() {
    OpenedProgram program;
    const int height = program.Design().GetPatternHeight();
    QGuiApplication::clipboard()->setText(QStringLiteral("0.4"));
    DialogDriver driver({[&](QDialog& dialog) {
        Fill(dialog, false, "", "1");
        auto* field = dialog.findChild<QLineEdit*>(QStringLiteral("txtHowMany"));
        field->setFocus();
        QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(field->text(), QStringLiteral("0.4"));
        Ok(dialog);
        QVERIFY(dialog.isVisible());
        dialog.reject();
    }});
    program.Choose("mnuAddRows");
    QVERIFY(driver.AllDone());
    QCOMPARE(program.User.ToldTexts(),
             (std::vector<std::string>{"You must specify how many rows to add"}));
    QCOMPARE(program.Design().GetPatternHeight(), height);
    QVERIFY(!program.Design().IsChanged());
}

void RowsInWindowTest::Faults_data() {
    QTest::addColumn<bool>("deleting");
    QTest::addColumn<bool>("columns");
    QTest::addColumn<QByteArray>("howMany");
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("field");
    const auto row = [](const char* name, bool deleting, bool columns, const char* howMany,
                        const char* start, const char* message, const char* field) {
        QTest::newRow(name) << deleting << columns << QByteArray(howMany) << QByteArray(start)
                            << QString::fromLatin1(message) << QString::fromLatin1(field);
    };
    row("none", false, false, "0", "1", "You must specify how many rows to add", "txtHowMany");
    row("none, deleting", true, true, "", "1", "You must specify how many columns to add",
        "txtHowMany");
    row("no start", false, true, "1", "0", "You must specify the starting column", "txtStartRow");
    row("no start, deleting", true, false, "1", "", "You must specify the starting row",
        "txtStartRow");
    row("column behind", false, true, "1", "7", "After row must be 6 or less", "txtStartRow");
    row("row behind", false, false, "1", "6", "After column must be 5 or less", "txtStartRow");
    row("1000 wide", false, true, "994", "1",
        "Adding 994 rows would exceed the maximum pattern width", "txtHowMany");
    row("1000 high", false, false, "995", "1",
        "Adding 995 columns would exceed the maximum pattern height", "txtHowMany");
    row("32767", false, false, "32767", "1",
        "Adding 32767 columns would exceed the maximum pattern height", "txtHowMany");
    row("columns behind", true, true, "3", "5", "Deleting 3 rows exceeds the pattern width",
        "txtHowMany");
    row("rows behind", true, false, "2", "5", "Deleting 2 rows exceeds the pattern height",
        "txtHowMany");
}

void RowsInWindowTest::Faults() {
    QFETCH(const bool, deleting);
    QFETCH(const bool, columns);
    QFETCH(const QByteArray, howMany);
    QFETCH(const QByteArray, start);
    QFETCH(const QString, message);
    QFETCH(const QString, field);
    OpenedProgram program;
    Prepare(program);
    Twin before(program.Design());
    for (int y = 1; y <= 5; ++y) {
        before.SetStitch(2, y, StitchWhole, y, 0);
    }
    QString focused;
    bool stayed = false;
    DialogDriver driver({[&](QDialog& dialog) {
        Fill(dialog, columns, howMany.constData(), start.constData());
        Ok(dialog);
        stayed = dialog.isVisible();
        focused = dialog.focusWidget()->objectName();
        dialog.reject();
    }});
    program.Choose(deleting ? "mnuDelRows" : "mnuAddRows");
    QVERIFY(driver.AllDone());
    QCOMPARE(program.User.told.size(), std::size_t{1});
    QCOMPARE(QString::fromStdString(program.User.told[0].text), message);
    QVERIFY(program.User.told[0].icon == MessageIcon::Exclamation);
    QVERIFY(stayed);
    QCOMPARE(focused, field);
    COMPARE_TWIN(program, before);
    QVERIFY(!program.Command("mnuEditUndo").isEnabled());
}

void RowsInWindowTest::AddingInTheMiddleLosesTheLastRows() {
    OpenedProgram program;
    Prepare(program);
    Run(program, "mnuAddRows", false, "2", "2");
    QCOMPARE(program.Design().GetPatternHeight(), 7);
    QCOMPARE(program.Area().Geometry().Everything().Bottom, 7);
    const int expected[] = {1, 2, NoFloss, NoFloss, 3, NoFloss, NoFloss};
    for (int y = 1; y <= 7; ++y) {
        QCOMPARE(program.Design().GetStitchPaletteIndex(2, y), expected[y - 1]);
    }
    QVERIFY(program.Design().IsChanged());
    QTRY_COMPARE(program.WrongPixels(), 0);
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Add Rows"));
    program.Key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(program.Design().GetPatternHeight(), 5);
    QCOMPARE(program.Design().GetStitchPaletteIndex(2, 5), 5);
    QTRY_COMPARE(program.WrongPixels(), 0);
}

void RowsInWindowTest::AddingAfterTheLastRowMovesNothing() {
    OpenedProgram program;
    Prepare(program);
    Run(program, "mnuAddRows", false, "3", "5");
    QCOMPARE(program.Design().GetPatternHeight(), 8);
    for (int y = 1; y <= 5; ++y) {
        QCOMPARE(program.Design().GetStitchPaletteIndex(2, y), y);
    }
    QCOMPARE(program.Design().GetStitchCount(2, 6), 0);
    QTRY_COMPARE(program.WrongPixels(), 0);
}

void RowsInWindowTest::ColumnsUpTo999() {
    OpenedProgram program;
    Prepare(program);
    Run(program, "mnuAddRows", true, "993", "6");
    QCOMPARE(program.Design().GetPatternWidth(), 999);
    QVERIFY(program.User.told.empty());
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Add Columns"));
    QTRY_COMPARE(program.WrongPixels(), 0);
}

void RowsInWindowTest::DeletingAndItsUndo() {
    OpenedProgram program;
    Prepare(program);
    Run(program, "mnuDelRows", false, "2", "2");
    QCOMPARE(program.Design().GetPatternHeight(), 3);
    const int left[] = {1, 4, 5};
    for (int y = 1; y <= 3; ++y) {
        QCOMPARE(program.Design().GetStitchPaletteIndex(2, y), left[y - 1]);
    }
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Delete Rows"));
    QTRY_COMPARE(program.WrongPixels(), 0);
    program.Key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(program.Design().GetPatternHeight(), 5);
    Run(program, "mnuDelRows", true, "1", "1");
    QCOMPARE(program.Design().GetPatternWidth(), 5);
    QCOMPARE(program.Design().GetStitchPaletteIndex(1, 3), 3);
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Delete Columns"));
    QTRY_COMPARE(program.WrongPixels(), 0);
}

void RowsInWindowTest::DeletingEveryRowStaysUsable() {
    OpenedProgram program;
    Prepare(program);
    Run(program, "mnuDelRows", false, "5", "1");
    QCOMPARE(program.Design().GetPatternHeight(), 0);
    DrawnProgram::Settle();
    program.Choose("mnuSelectAll");
    program.Choose("mnuDrawModeStitches");
    program.Area().Zoom().ChangeZoom(100);
    Run(program, "mnuAddRows", false, "1", "1");
    QCOMPARE(program.User.ToldTexts(),
             (std::vector<std::string>{"After column must be 0 or less"}));
    program.User.told.clear();
    program.Key(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(program.User.ToldTexts(),
             (std::vector<std::string>{"A pattern without squares cannot be saved."}));
    program.Key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(program.Design().GetPatternHeight(), 5);
    QCOMPARE(program.Design().GetStitchPaletteIndex(2, 4), 4);
    QTRY_COMPARE(program.WrongPixels(), 0);
}

void RowsInWindowTest::CancelChangesNothing() {
    OpenedProgram program;
    Prepare(program);
    program.ClickIn(4, 4);
    DialogDriver driver({[&](QDialog& dialog) {
        Fill(dialog, false, "2", "2");
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("cmdCancel")),
                          Qt::LeftButton);
    }});
    program.Choose("mnuDelRows");
    QVERIFY(driver.AllDone());
    QCOMPARE(program.Design().GetPatternHeight(), 5);
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Stitches"));
}

void RowsInWindowTest::WhatFloatsLandsFirst() {
    OpenedProgram program;
    Prepare(program);
    program.Tool("DRAWMODE_EDITBOX");
    program.DragOver({{1, 1}, {3, 1}});
    program.Key(Qt::Key_Right);
    QCOMPARE(program.Design().GetStitchCount(2, 1), 0);
    Run(program, "mnuAddRows", false, "1", "5");
    QCOMPARE(program.Design().GetStitchPaletteIndex(3, 1), 1);
    QCOMPARE(program.Design().GetPatternHeight(), 6);
    QTRY_COMPARE(program.WrongPixels(), 0);
}

} // namespace zol::test

QTEST_MAIN(zol::test::RowsInWindowTest)
#include "test_RowsInWindow.moc"
