// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QMenu>
#include <QMenuBar>

#include "gui/DrawnProgram.h"

namespace zol::test {

/// The one step back, as the Edit menu and its key give it.
class UndoInWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void MenuNamesTheStepUntilItIsUndone();
    void SecondUndoDoesNothing();
    void UndoWaitsForTheEndOfAStroke();
    void KnotAndHalfStitchComeBack();
    void ChainGoesAtOnce();
    void LineUnderWayIsNoStepYet();
    void UndoInAChainLeavesItsRubberBand();
    void SnapshotSteps_data();
    void SnapshotSteps();
    void SizeComesBack();
    void NothingToUndoInANewPattern();
    void NothingToUndoInAnOpenedPattern();
    void SavingLeavesTheStep();
    void SnapshotGoesWhereItIsTold();

private:
    /// Opens the Edit menu by a click and gives its first entry; the menu stays open.
    static QAction* OpenEditMenu(DrawnProgram& program) {
        auto* menu = program.Find<QMenu>("mnuEdit");
        QMenuBar* bar = program.Window().menuBar();
        program.Pointer.Click(*bar, QRectF(bar->actionGeometry(menu->menuAction())).center());
        return QTest::qWaitFor([menu] { return menu->isVisible(); }) ? menu->actions().first()
                                                                     : nullptr;
    }
    static void ClickEntry(DrawnProgram& program, QAction* entry) {
        auto* menu = program.Find<QMenu>("mnuEdit");
        program.Pointer.Click(*menu, QRectF(menu->actionGeometry(entry)).center());
    }
    static void Undo(DrawnProgram& program) { program.Key(Qt::Key_Z, Qt::ControlModifier); }
};

void UndoInWindowTest::MenuNamesTheStepUntilItIsUndone() {
    OpenedProgram program;
    const Twin empty(program.Design());
    QAction* undo = OpenEditMenu(program);
    QVERIFY(undo != nullptr);
    QCOMPARE(undo->text(), QStringLiteral("Undo"));
    QVERIFY(!undo->isEnabled());
    program.Key(Qt::Key_Escape);
    program.DragOver({{3, 3}, {6, 4}});
    undo = OpenEditMenu(program);
    QVERIFY(undo != nullptr);
    QCOMPARE(undo->text(), QStringLiteral("Undo Stitches"));
    QVERIFY(undo->isEnabled());
    ClickEntry(program, undo);
    COMPARE_TWIN(program, empty);
    QCOMPARE(undo->text(), QStringLiteral("Undo"));
    QVERIFY(!undo->isEnabled());
    program.ClickIn(4, 4, 0.5, 0.5, Qt::RightButton);
    undo = OpenEditMenu(program);
    QCOMPARE(undo->text(), QStringLiteral("Undo Erase Stitches"));
    program.Key(Qt::Key_Escape);
}

void UndoInWindowTest::SecondUndoDoesNothing() {
    OpenedProgram program;
    Twin twin(program.Design());
    program.ClickIn(2, 2);
    program.ClickIn(4, 2);
    Undo(program);
    Undo(program);
    twin.SetStitch(2, 2, StitchWhole, 1, 5);
    COMPARE_TWIN(program, twin);
    program.Choose("mnuEditUndo"); // disabled, as the menu shows it
    COMPARE_TWIN(program, twin);
}

void UndoInWindowTest::UndoWaitsForTheEndOfAStroke() {
    OpenedProgram program;
    Twin twin(program.Design());
    program.ClickIn(2, 2);
    twin.SetStitch(2, 2, StitchWhole, 1, 5);
    program.Pointer.MoveTo(program.Grid(), program.In(5, 5));
    program.Pointer.Press();
    Undo(program);
    program.Pointer.MoveTo(program.Grid(), program.In(6, 5));
    program.Pointer.Release();
    Twin drawn(program.Design());
    for (const SquarePos at : {SquarePos{2, 2}, {5, 5}, {6, 5}}) {
        drawn.SetStitch(at.X, at.Y, StitchWhole, 1, 5);
    }
    COMPARE_TWIN(program, drawn);
    Undo(program);
    COMPARE_TWIN(program, twin);
}

void UndoInWindowTest::KnotAndHalfStitchComeBack() {
    OpenedProgram program;
    program.Take(20, 20, 300);
    Twin twin(program.Design());
    program.Tool("STITCH_TBH");
    program.ClickIn(4, 4);
    program.Tool("STITCH_FKNOT");
    program.ClickIn(4, 4, 0.9, 0.1);
    twin.SetStitch(4, 4, StitchTBH, 1, 5);
    twin.SetStitch(4, 4, StitchFKnot, 1, 3);
    COMPARE_TWIN(program, twin);
    program.Tool("STITCH_WHOLE");
    program.DragOver({{2, 4}, {7, 4}, {4, 4}});
    QVERIFY(!DifferenceOf(program.Design(), twin).empty());
    Undo(program);
    COMPARE_TWIN(program, twin);
    program.DragOver({{2, 4}, {7, 4}, {4, 4}}, Qt::RightButton);
    QCOMPARE(program.Design().GetStitchCount(4, 4), 0);
    Undo(program);
    COMPARE_TWIN(program, twin);
}

void UndoInWindowTest::ChainGoesAtOnce() {
    OpenedProgram program;
    program.Take(20, 20, 200);
    Twin twin(program.Design());
    program.Tool("DRAWMODE_LINES");
    program.DragOver({{12, 12}, {15, 12}});
    twin.Line({12, 12}, 5, {15, 12}, 5);
    program.ClickIn(2, 2, 0.5, 0.5, Qt::LeftButton, Qt::ControlModifier);
    program.ClickIn(5, 2);
    program.ClickIn(5, 6);
    program.ClickIn(2, 2);
    program.ClickIn(9, 9, 0.5, 0.5, Qt::RightButton);
    QCOMPARE(program.Design().GetBackStitchCount(), 4);
    Undo(program);
    COMPARE_TWIN(program, twin);
}

void UndoInWindowTest::LineUnderWayIsNoStepYet() {
    OpenedProgram program;
    program.Take(20, 20, 200);
    Twin twin(program.Design());
    program.ClickIn(8, 8);
    twin.SetStitch(8, 8, StitchWhole, 1, 5);
    program.Tool("DRAWMODE_LINES");
    program.ClickIn(2, 2);
    QVERIFY(!program.Command("mnuEditUndo").isEnabled());
    Undo(program);
    program.Pointer.MoveTo(program.Grid(), program.In(5, 5));
    QVERIFY(program.OnTop().RubberBand.has_value());
    COMPARE_TWIN(program, twin);
    program.ClickIn(5, 5);
    QCOMPARE(program.Design().GetBackStitchCount(), 1);
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Line"));
    Undo(program);
    COMPARE_TWIN(program, twin);
}

void UndoInWindowTest::UndoInAChainLeavesItsRubberBand() {
    OpenedProgram program;
    program.Take(20, 20, 200);
    const Twin empty(program.Design());
    Twin twin(program.Design());
    program.Tool("DRAWMODE_LINES");
    program.ClickIn(2, 2, 0.5, 0.5, Qt::LeftButton, Qt::ControlModifier);
    program.ClickIn(5, 2);
    program.Pointer.MoveTo(program.Grid(), program.In(6, 6));
    Undo(program);
    COMPARE_TWIN(program, empty);
    QVERIFY(program.OnTop().RubberBand.has_value());
    program.ClickIn(6, 6);
    twin.Line({5, 2}, 5, {6, 6}, 5);
    COMPARE_TWIN(program, twin);
    Undo(program);
    COMPARE_TWIN(program, empty);
    program.Key(Qt::Key_Escape);
    QVERIFY(!program.OnTop().RubberBand.has_value());
}

void UndoInWindowTest::SnapshotSteps_data() {
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("label");
    QTest::newRow("paint") << QStringLiteral("mnuPaintOnce") << QStringLiteral("Paint");
    QTest::newRow("both") << QStringLiteral("mnuCenterBoth") << QStringLiteral("Center");
    QTest::newRow("vertical") << QStringLiteral("mnuCenterVertical") << QStringLiteral("Center");
    QTest::newRow("across") << QStringLiteral("mnuCenterHorizontal") << QStringLiteral("Center");
    QTest::newRow("crop") << QStringLiteral("mnuToolsShrink")
                          << QStringLiteral("Shrink Design Area");
    QTest::newRow("palette") << QStringLiteral("mnuClearPalette")
                             << QStringLiteral("Clear Unused Palette");
}

void UndoInWindowTest::SnapshotSteps() {
    QFETCH(const QString, command);
    QFETCH(const QString, label);
    OpenedProgram program;
    program.Take(40, 40, 100);
    program.Tool("STITCH_FKNOT");
    program.ClickIn(3, 3, 0.1, 0.1);
    program.Tool("STITCH_WHOLE");
    program.DragOver({{2, 2}, {9, 5}});
    program.Tool("DRAWMODE_LINES");
    program.DragOver({{2, 8}, {5, 9}});
    const std::string before = BytesOf(program.Parts().Open.Get());
    program.Choose("mnuDrawModeStitches");
    program.Choose(command.toLatin1().constData());
    if (command == QLatin1String("mnuPaintOnce")) {
        program.ClickIn(20, 20);
    }
    QVERIFY(BytesOf(program.Parts().Open.Get()) != before);
    QTRY_COMPARE(program.WrongPixels(), 0);
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo ") + label);
    Undo(program);
    QVERIFY(BytesOf(program.Parts().Open.Get()) == before);
    QTRY_COMPARE(program.WrongPixels(), 0);
    QVERIFY(program.Design().IsChanged());
    QVERIFY(!program.Command("mnuEditUndo").isEnabled());
}

void UndoInWindowTest::SizeComesBack() {
    OpenedProgram program;
    program.DragOver({{10, 10}, {14, 12}});
    const QSize grid = program.Grid().size();
    program.Choose("mnuToolsShrink");
    QCOMPARE(program.Design().GetPatternWidth(), 5 + 2);
    QCOMPARE(program.Design().GetPatternHeight(), 3 + 2);
    QVERIFY(program.Grid().width() < grid.width());
    Undo(program);
    QCOMPARE(program.Design().GetPatternWidth(), 100);
    QCOMPARE(program.Grid().size(), grid);
    QTRY_COMPARE(program.WrongPixels(), 0);
}

void UndoInWindowTest::NothingToUndoInANewPattern() {
    OpenedProgram program;
    program.DragOver({{2, 2}, {5, 2}});
    program.User.answers = {MessageAnswer::No};
    program.NewPatternByMenu();
    const Twin empty(program.Design());
    COMPARE_TWIN(program, empty);
    QVERIFY(!program.Command("mnuEditUndo").isEnabled());
    Undo(program);
    program.Parts().Steps.PerformUndo();
    COMPARE_TWIN(program, empty);
    QVERIFY(!program.Design().IsChanged());
}

void UndoInWindowTest::NothingToUndoInAnOpenedPattern() {
    OpenedProgram program;
    program.DragOver({{2, 2}, {5, 2}});
    program.User.answers = {MessageAnswer::No};
    program.User.files = {program.Home / "app" / "Patterns" / "robin.pat"};
    program.Choose("mnuFileOpen");
    QCOMPARE(program.Design().Title, std::string("Winter Robin"));
    QVERIFY2(!program.Design().IsChanged(), "the fresh snapshot is no change");
    const std::string robin = BytesOf(program.Parts().Open.Get());
    QVERIFY(!program.Command("mnuEditUndo").isEnabled());
    Undo(program);
    program.Parts().Steps.PerformUndo();
    QVERIFY(BytesOf(program.Parts().Open.Get()) == robin);
    QTRY_COMPARE(program.WrongPixels(), 0);
}

void UndoInWindowTest::SavingLeavesTheStep() {
    OpenedProgram program;
    const Twin empty(program.Design());
    program.DragOver({{2, 2}, {5, 2}});
    program.User.files = {program.Home / "saved.pat"};
    program.Key(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!program.Design().IsChanged());
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Stitches"));
    Undo(program);
    COMPARE_TWIN(program, empty);
    QVERIFY2(program.Design().IsChanged(), "the file has what is no longer there");
}

void UndoInWindowTest::SnapshotGoesWhereItIsTold() {
    const ProgramHome home;
    const auto file = home / "of my own";
    qputenv("ZOLUNDO", QByteArray::fromStdString(file.string()));
    DrawnProgram program(home);
    qunsetenv("ZOLUNDO");
    QVERIFY(program.Open());
    const Twin empty(program.Design());
    QVERIFY(!std::filesystem::exists(file));
    program.Tool("PAINT");
    program.ClickIn(3, 3);
    QVERIFY(std::filesystem::exists(file));
    QCOMPARE(program.Design().GetStitchPaletteIndex(9, 9), 1);
    Undo(program);
    COMPARE_TWIN(program, empty);
    program.End();
    QVERIFY(!std::filesystem::exists(file));
}

} // namespace zol::test

QTEST_MAIN(zol::test::UndoInWindowTest)
#include "test_UndoInWindow.moc"
