// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>

#include <functional>
#include <map>

#include "gui/DrawnProgram.h"
#include "support/DialogDriver.h"
#include "support/DialogHands.h"

namespace zol::test {

namespace {

template<typename Widget>
Widget& In(QDialog& dialog, const char* name) {
    auto& found = PartOf<Widget>(dialog, name);
    auto& tabs = *dialog.findChild<QTabWidget*>(QStringLiteral("tbsOptions"));
    for (int page = 0; page < tabs.count(); ++page) {
        if (tabs.widget(page)->isAncestorOf(&found)) {
            tabs.setCurrentIndex(page);
        }
    }
    return found;
}

void Click(QDialog& dialog, const char* button) {
    auto& box = In<QAbstractButton>(dialog, button);
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
}

void Choose(QDialog& dialog, const char* combo, int line) {
    auto& list = In<QComboBox>(dialog, combo);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Home);
    for (int i = 0; i < line; ++i) {
        QTest::keyClick(&list, Qt::Key_Down);
    }
}

/// Opens the options from the menu, does the work there and closes them by a button.
void InOptions(DrawnProgram& program, const std::function<void(QDialog&)>& work,
               const char* button = "cmdOK") {
    DialogDriver user({[&](QDialog& dialog) {
        QCOMPARE(dialog.objectName(), QStringLiteral("frmOptions"));
        work(dialog);
        Click(dialog, button);
    }});
    program.Choose("mnuViewOptions");
    QVERIFY(user.AllDone());
    program.Settle();
}

/// The store without the sizes of windows, which a window keeps when it closes.
std::map<QString, QString> Stored(const ProgramHome& home) {
    const QSettings file(QString::fromStdString((home / "settings.ini").string()),
                         QSettings::IniFormat);
    std::map<QString, QString> values;
    for (const QString& key : file.allKeys()) {
        if (!key.startsWith(QStringLiteral("Windows/"))) {
            values[key] = file.value(key).toString();
        }
    }
    return values;
}

} // namespace

/// What the options dialog does to the whole window.
class OptionsInWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PartsOfTheWindowFollow_data();
    void PartsOfTheWindowFollow();
    void TheGridsPixelsFollow_data();
    void TheGridsPixelsFollow();
    void TheStripFollows();
    void ToolsFollow();
    void RulersFollowTheUnit();
    void ApplyThenCancelKeepsTheRunOnly();
    void OkWritesOnlyWithTheTick();
};

void OptionsInWindowTest::PartsOfTheWindowFollow_data() {
    QTest::addColumn<QString>("part");
    QTest::addColumn<QString>("command");
    QTest::newRow("chkToolbar") << "tbKorvantaToolBar"
                                << "mnuViewToolbar";
    QTest::newRow("chkStitchToolbar") << "tbStitchToolbar"
                                      << "mnuStitchToolbar";
    QTest::newRow("chkRulers") << "picHRuler"
                               << "mnuViewRulers";
    QTest::newRow("chkStatusBar") << "sbStatusBar"
                                  << "mnuViewStatusBar";
}

void OptionsInWindowTest::PartsOfTheWindowFollow() {
    QFETCH(const QString, part);
    QFETCH(const QString, command);
    OpenedProgram program;
    auto* widget = program.Find<QWidget>(qPrintable(part));
    const char* tick = QTest::currentDataTag();
    for (const bool shown : {false, true}) {
        InOptions(program, [&](QDialog& dialog) { Click(dialog, tick); });
        QCOMPARE(widget->isVisible(), shown);
        QCOMPARE(program.Command(qPrintable(command)).isChecked(), shown);
    }
}

void OptionsInWindowTest::TheGridsPixelsFollow_data() {
    QTest::addColumn<int>("line"); // -1: a tick
    QTest::newRow("cmbSDA") << 1;
    QTest::newRow("cmbClothColor") << 5;
    QTest::newRow("cmbNormalGLWidth") << 40;
    QTest::newRow("cmbNormalGLColor") << 4;
    QTest::newRow("cmbBoldGLWidth") << 50;
    QTest::newRow("cmbBoldGLColor") << 5;
    QTest::newRow("cmbBackStitchWidth") << 50;
    QTest::newRow("chkGridLines") << -1;
}

void OptionsInWindowTest::TheGridsPixelsFollow() {
    QFETCH(const int, line);
    OpenedProgram program;
    program.Take(20, 20, 300);
    program.ClickIn(3, 3);
    BackStitchLine stitch{1, 1, 1, 3, 3, 9, 1, 0};
    program.Design().AddBackStitchLine(stitch);
    program.Choose("mnuViewRefresh");
    QCOMPARE(program.WrongPixels(), 0);
    const QImage before = program.Grid().grab().toImage();
    const char* control = QTest::currentDataTag();
    InOptions(program, [&](QDialog& dialog) {
        line < 0 ? Click(dialog, control) : Choose(dialog, control, line);
        // Nothing is painted anew before it is applied.
        QVERIFY(program.Grid().grab().toImage() == before);
        Click(dialog, "cmdApply");
        QVERIFY(program.Grid().grab().toImage() != before);
    });
    QVERIFY(program.Grid().grab().toImage() != before);
    QTRY_COMPARE(program.WrongPixels(), 0);
}

void OptionsInWindowTest::TheStripFollows() {
    OpenedProgram program;
    auto* strip = program.Find<QWidget>("picPaletteHolder");
    const int low = strip->height();
    InOptions(program, [](QDialog& dialog) { Choose(dialog, "cmbPaletteSize", 2); });
    const int large = strip->height();
    QVERIFY(large > low);
    InOptions(program, [](QDialog& dialog) { Choose(dialog, "cmbPaletteRows", 1); });
    QVERIFY(strip->height() > large);
    const QImage with = strip->grab().toImage();
    InOptions(program, [](QDialog& dialog) { Click(dialog, "chkDisplayPaletteSymbol"); });
    QVERIFY(strip->grab().toImage() != with);
}

void OptionsInWindowTest::ToolsFollow() {
    OpenedProgram program;
    const auto* smart3 = program.Find<QToolButton>("STITCH_S3Q");
    const auto* smart1 = program.Find<QToolButton>("STITCH_SQ");
    QVERIFY(smart3->isVisible() && smart1->isVisible());
    QTest::mouseClick(program.Find<QToolButton>("STITCH_S3Q"), Qt::LeftButton);
    QVERIFY(smart3->isChecked());
    const bool flexible = program.Command("mnuOptionsFlexBackstitch").isChecked();
    InOptions(program, [](QDialog& dialog) {
        Click(dialog, "ChksUseSmart3QS");
        Click(dialog, "chkFlexBackstitch");
    });
    QVERIFY(!smart3->isVisible());
    QVERIFY(smart1->isVisible());
    QVERIFY(!smart3->isChecked());
    QVERIFY(program.Find<QToolButton>("STITCH_WHOLE")->isChecked());
    QCOMPARE(program.Command("mnuOptionsFlexBackstitch").isChecked(), !flexible);
    InOptions(program, [](QDialog& dialog) { Click(dialog, "ChksUseSmartQS"); });
    QVERIFY(!smart1->isVisible());
}

void OptionsInWindowTest::RulersFollowTheUnit() {
    OpenedProgram program;
    const QImage inches = program.Find<QWidget>("picHRuler")->grab().toImage();
    InOptions(program, [](QDialog& dialog) { Choose(dialog, "cmbUnits", 1); });
    QVERIFY(program.Find<QWidget>("picHRuler")->grab().toImage() != inches);
}

void OptionsInWindowTest::ApplyThenCancelKeepsTheRunOnly() {
    const ProgramHome home;
    {
        DrawnProgram program(home);
        QVERIFY(program.Open());
        const auto before = Stored(home);
        InOptions(
            program,
            [](QDialog& dialog) {
                Click(dialog, "chkRulers");
                Click(dialog, "cmdApply");
            },
            "cmdCancel");
        QVERIFY(!program.Find<QWidget>("picHRuler")->isVisible());
        QVERIFY(Stored(home) == before);
        // The dialog shows what the run has.
        InOptions(
            program,
            [](QDialog& dialog) {
                QVERIFY(!In<QCheckBox>(dialog, "chkRulers").isChecked());
                Click(dialog, "chkRulers");
            },
            "cmdCancel");
        QVERIFY(!program.Find<QWidget>("picHRuler")->isVisible());
        program.End();
    }
    DrawnProgram next(home);
    QVERIFY(next.Open());
    QVERIFY(next.Find<QWidget>("picHRuler")->isVisible());
    next.End();
}

void OptionsInWindowTest::OkWritesOnlyWithTheTick() {
    const ProgramHome home;
    {
        DrawnProgram program(home);
        QVERIFY(program.Open());
        const auto before = Stored(home);
        InOptions(program, [](QDialog& dialog) { Click(dialog, "chkStatusBar"); });
        QVERIFY(!program.Find<QWidget>("sbStatusBar")->isVisible());
        QVERIFY(Stored(home) == before);
        InOptions(program, [](QDialog& dialog) { Click(dialog, "chkDefault"); });
        const auto after = Stored(home);
        QCOMPARE(after.at(QStringLiteral("Design Grid Opts/StatusbarVisible")),
                 QStringLiteral("FALSE"));
        QCOMPARE(after.size() - before.size(), std::size_t{62});
        program.End();
    }
    DrawnProgram next(home);
    QVERIFY(next.Open());
    QVERIFY(!next.Find<QWidget>("sbStatusBar")->isVisible());
    next.End();
}

} // namespace zol::test

QTEST_MAIN(zol::test::OptionsInWindowTest)
#include "test_OptionsInWindow.moc"
