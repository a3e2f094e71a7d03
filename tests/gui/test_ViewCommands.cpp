// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QRadioButton>
#include <QSlider>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

#include "grid/windows/ZoomControl.h"
#include "gui/RunningProgram.h"

namespace zol::test {

/// What the View menu and the zoom tools do to the window.
class ViewCommandsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PartsAreShownAndHiddenAndKept_data();
    void PartsAreShownAndHiddenAndKept();
    void HiddenPartsStayHiddenInTheNextRun();
    void GridLinesGoInStepByButtonAndMenu();
    void DisplayStyleTakesTheMarkAndIsKept();
    void RefreshLeavesTheScrollPosition();
    void ZoomWindowHoldsPaintingAndZooms();
    void ZoomWindowCancelledChangesNothing();
    void ZoomStepsMenuHasTheBoxesSteps();
    void SliderAndBoxFollowEachOther();
};

void ViewCommandsTest::PartsAreShownAndHiddenAndKept_data() {
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("value");
    QTest::newRow("mnuViewToolbar") << "tbKorvantaToolBar"
                                    << "ToolbarVisible";
    QTest::newRow("mnuStitchToolbar") << "tbStitchToolbar"
                                      << "StitchToolbarVisible";
    QTest::newRow("mnuViewRulers") << "picHRuler"
                                   << "RulersVisible";
    QTest::newRow("mnuViewStatusBar") << "sbStatusBar"
                                      << "StatusbarVisible";
}

void ViewCommandsTest::PartsAreShownAndHiddenAndKept() {
    QFETCH(const QString, widget);
    QFETCH(const QString, value);
    StartedProgram program;
    const char* command = QTest::currentDataTag();
    auto* part = program.Find<QWidget>(qPrintable(widget));
    const auto stored = [&] {
        return program.Parts().Store.ReadSetting("Design Grid Opts", value.toStdString(), "");
    };
    QVERIFY(part->isVisible());
    QVERIFY(program.Command(command).isChecked());
    program.Choose(command);
    QVERIFY(!part->isVisible());
    QVERIFY(!program.Command(command).isChecked());
    QCOMPARE(stored(), std::string("FALSE"));
    program.Choose(command);
    QVERIFY(part->isVisible());
    QVERIFY(program.Command(command).isChecked());
    QCOMPARE(stored(), std::string("TRUE"));
}

void ViewCommandsTest::HiddenPartsStayHiddenInTheNextRun() {
    const ProgramHome home;
    {
        RunningProgram first(home);
        QVERIFY(first.Start());
        first.Choose("mnuViewStatusBar");
        first.Choose("mnuStitchToolbar");
        QVERIFY(first.Window().close());
        first.End();
    }
    RunningProgram second(home);
    QVERIFY(second.Start());
    QVERIFY(!second.Find<QStatusBar>("sbStatusBar")->isVisible());
    QVERIFY(!second.Find<QToolBar>("tbStitchToolbar")->isVisible());
    QVERIFY(second.Find<QToolBar>("tbKorvantaToolBar")->isVisible());
    QVERIFY(!second.Command("mnuViewStatusBar").isChecked());
    // What a hidden bar would say must not stand in the way of drawing.
    second.ClickSquare(4, 4);
    QVERIFY(second.Design().IsChanged());
    second.End();
}

void ViewCommandsTest::GridLinesGoInStepByButtonAndMenu() {
    StartedProgram program;
    program.Area().Zoom().ChangeZoom(400);
    auto* button = program.Find<QToolButton>("GRIDLINES");
    QVERIFY(button->isChecked());
    const QImage with = program.Grid().grab().toImage();
    program.Click("GRIDLINES");
    QVERIFY(!program.Command("mnuViewGridLines").isChecked());
    QVERIFY(!button->isChecked());
    QVERIFY(!program.Parts().Settings.GridlinesVisible);
    QVERIFY(program.Grid().grab().toImage() != with);
    program.Choose("mnuViewGridLines");
    QVERIFY(button->isChecked());
    QCOMPARE(program.Parts().Store.ReadSetting("Design Grid Opts", "GridlinesVisible", ""),
             std::string("TRUE"));
    QCOMPARE(program.Grid().grab().toImage(), with);
}

void ViewCommandsTest::DisplayStyleTakesTheMarkAndIsKept() {
    StartedProgram program;
    program.ClickSquare(3, 3);
    QVERIFY(program.Command("mnuStitchColorSquares").isChecked());
    const QImage squares = program.Grid().grab().toImage();
    program.Choose("mnuStitchColorStitch");
    QVERIFY(program.Command("mnuStitchColorStitch").isChecked());
    QVERIFY(!program.Command("mnuStitchColorSquares").isChecked());
    QCOMPARE(program.Parts().Settings.StitchesDisplayAs, 5);
    QCOMPARE(program.Parts().Store.ReadSetting("Design Grid Opts", "StitchesDisplayAs", ""),
             std::string("5"));
    QVERIFY(program.Grid().grab().toImage() != squares);
}

void ViewCommandsTest::RefreshLeavesTheScrollPosition() {
    StartedProgram program;
    program.Area().Zoom().ChangeZoom(600);
    program.Area().ScrollGrid(17, 23, true);
    const QPoint place = program.Grid().pos();
    program.Choose("mnuViewRefresh");
    QCOMPARE(program.Area().FirstColumn(), 17);
    QCOMPARE(program.Area().FirstRow(), 23);
    QCOMPARE(program.Grid().pos(), place);
}

void ViewCommandsTest::ZoomWindowHoldsPaintingAndZooms() {
    StartedProgram program;
    bool sawPresent = false;
    QTimer::singleShot(0, &program.Window(), [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr);
        QVERIFY(dialog->width() <= 1280 && dialog->height() <= 720);
        sawPresent = dialog->findChild<QRadioButton*>(QStringLiteral("optZoom2"))->isChecked();
        dialog->findChild<QRadioButton*>(QStringLiteral("optZoom5"))->click();
        dialog->accept();
    });
    program.Choose("mnuZoom");
    QVERIFY2(sawPresent, "100% was the present zoom");
    QCOMPARE(program.Area().Zoom().GridZoom(), 300);
    QCOMPARE(program.Find<QComboBox>("cmbZoom")->currentText(), QStringLiteral("300%"));
    // Painting goes on afterwards.
    program.ClickSquare(2, 2);
    QCOMPARE(program.Design().GetStitchCount(2, 2), 1);
}

void ViewCommandsTest::ZoomWindowCancelledChangesNothing() {
    StartedProgram program;
    QTimer::singleShot(0, &program.Window(), [] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr);
        dialog->findChild<QRadioButton*>(QStringLiteral("optZoom5"))->click();
        dialog->reject();
    });
    program.Choose("mnuZoom");
    QCOMPARE(program.Area().Zoom().GridZoom(), 100);
}

void ViewCommandsTest::ZoomStepsMenuHasTheBoxesSteps() {
    StartedProgram program;
    auto* button = program.Find<QToolButton>("ZOOMSETTING");
    QVERIFY(button->isEnabled());
    QVERIFY(button->menu() != nullptr);
    QStringList steps;
    for (const QAction* action : button->menu()->actions()) {
        steps << action->text();
    }
    const QComboBox* box = program.Find<QComboBox>("cmbZoom");
    QStringList items;
    for (int i = 0; i < box->count(); ++i) {
        items << box->itemText(i);
    }
    QCOMPARE(steps, items);
    QCOMPARE(steps,
             (QStringList{QStringLiteral("To Fit"), QStringLiteral("10%"), QStringLiteral("25%"),
                          QStringLiteral("50%"), QStringLiteral("100%"), QStringLiteral("200%"),
                          QStringLiteral("400%"), QStringLiteral("600%")}));
    button->menu()->actions().at(5)->trigger();
    QCOMPARE(program.Area().Zoom().GridZoom(), 200);
    button->menu()->actions().at(0)->trigger();
    QTRY_COMPARE(box->currentText(), QStringLiteral("To Fit"));
}

void ViewCommandsTest::SliderAndBoxFollowEachOther() {
    StartedProgram program;
    auto* slider = program.Find<QSlider>("zoomSlider");
    const int at100 = slider->value();
    program.Choose("ZoomIn");
    QTRY_COMPARE(program.Area().Zoom().GridZoom(), 200);
    QVERIFY(slider->value() > at100);
    QVERIFY(program.Find<QLabel>("zoomText")->text().contains(QLatin1String("200")));
    slider->setValue(slider->minimum());
    QTRY_VERIFY(program.Area().Zoom().GridZoom() < 100);
    QCOMPARE(program.Find<QComboBox>("cmbZoom")->currentText(),
             QString::number(program.Area().Zoom().GridZoom()) + QLatin1Char('%'));
}

} // namespace zol::test

QTEST_MAIN(zol::test::ViewCommandsTest)
#include "test_ViewCommands.moc"
