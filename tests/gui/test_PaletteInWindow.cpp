// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// The palette editor in the whole program: the step that takes it back, what follows a change, the
// selected area.

#include <QCheckBox>
#include <QDialog>
#include <QListWidget>

#include "flosses/windows/PaletteGrid.h"
#include "grid/tools/EditBox.h"
#include "grid/windows/PaletteStrip.h"
#include "gui/DrawnProgram.h"
#include "support/DialogHands.h"

namespace zol::test {

namespace {

/// Does something to the modal window that opens next.
void InNextWindow(const char* name, std::function<void(QDialog&)> work) {
    QTimer::singleShot(0, qApp, [name, work = std::move(work)] {
        auto* window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (window == nullptr || window->objectName() != QLatin1String(name)) {
            qFatal("%s has not opened", name);
        }
        work(*window);
        window->close();
    });
}

} // namespace

class PaletteInWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ReplacingIsOneStep();
    void NothingChangedIsNoStep();
    void CurrentFlossFollows();
    void AddedFlossAsksForItsSymbol();
    void SelectedAreaAloneIsReplaced();
    void FloatingBlockIsWrittenBackFirst();
};

void PaletteInWindowTest::ReplacingIsOneStep() {
    OpenedProgram program;
    program.DragOver({{2, 2}, {6, 2}});
    const std::string drawn = BytesOf(program.Parts().Open.Get());
    program.User.answers = {MessageAnswer::Yes};
    InNextWindow("frmPalette", [](QDialog& editor) {
        InNextWindow("frmReplaceColor", [](QDialog& window) {
            PartOf<QListWidget>(window, "imgPaletteColors").setCurrentRow(3);
            ClickIn(window, "cmdOK");
        });
        ClickIn(editor, "cmdReplaceColor");
    });
    program.Choose("mnuOptionsPalette");
    QCOMPARE(program.Design().GetPalette().GetEntriesCount(), 15);
    QCOMPARE(program.Design().GetStitchPaletteIndex(4, 2), 4);
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Palette Changes"));
    QTRY_COMPARE(program.WrongPixels(), 0);
    program.Choose("mnuEditUndo");
    QVERIFY(BytesOf(program.Parts().Open.Get()) == drawn);
    QTRY_COMPARE(program.WrongPixels(), 0);
}

void PaletteInWindowTest::NothingChangedIsNoStep() {
    OpenedProgram program;
    program.DragOver({{2, 2}, {6, 2}});
    InNextWindow("frmPalette", [](QDialog& editor) {
        QTest::keyClick(&PartOf<PaletteGrid>(editor, "picPalette"), Qt::Key_End);
    });
    program.Choose("mnuOptionsPalette");
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Stitches"));
}

void PaletteInWindowTest::CurrentFlossFollows() {
    OpenedProgram program;
    program.Window().Modes().SetCurrentColor(5);
    InNextWindow("frmPalette", [](QDialog& editor) {
        auto& grid = PartOf<PaletteGrid>(editor, "picPalette");
        QTest::mouseClick(&grid, Qt::LeftButton, {}, grid.RectOf(2).center());
        ClickIn(editor, "cmdRemoveColor");
    });
    program.Choose("mnuOptionsPalette");
    QCOMPARE(program.Window().findChild<PaletteStrip*>()->Current(), 4);
    program.Choose("mnuEditUndo");
    QCOMPARE(program.Window().findChild<PaletteStrip*>()->Current(), 5);
}

void PaletteInWindowTest::AddedFlossAsksForItsSymbol() {
    OpenedProgram program;
    InNextWindow("frmPalette", [](QDialog& editor) {
        InNextWindow("frmSymbols", [](QDialog& window) { ClickIn(window, "cmdOK"); });
        ClickIn(editor, "cmdAdd");
    });
    program.Choose("mnuOptionsPalette");
    QCOMPARE(program.Design().GetPalette().GetEntriesCount(), 17);
    QCOMPARE(program.Design().GetPalette().GetFlossSymbol(17), int('!'));
    QVERIFY(program.Design().IsChanged());
    // The same window serves every other palette of the program.
    QVERIFY(program.Parts().Context.Symbols != nullptr);
}

void PaletteInWindowTest::SelectedAreaAloneIsReplaced() {
    OpenedProgram program;
    program.DragOver({{2, 2}, {9, 2}});
    program.Window().Modes().SetDrawMode(DrawEditBox);
    program.DragOver({{1, 1}, {4, 4}});
    QVERIFY(program.Window().Modes().Box().IsActive());
    program.User.answers = {MessageAnswer::Yes};
    InNextWindow("frmPalette", [](QDialog& editor) {
        PartOf<QCheckBox>(editor, "chkEditBoxOnly").click();
        InNextWindow("frmReplaceColor", [](QDialog& window) { ClickIn(window, "cmdOK"); });
        ClickIn(editor, "cmdReplaceColor");
    });
    program.Choose("mnuOptionsPalette");
    QCOMPARE(program.Design().GetStitchPaletteIndex(4, 2), 2);
    QCOMPARE(program.Design().GetStitchPaletteIndex(5, 2), 1);
    // The selection stays, with what its squares hold now.
    const EditBox& box = program.Window().Modes().Box();
    QCOMPARE(box.GetEditBoxRect(), (SquareRect{1, 1, 4, 4}));
    QCOMPARE(box.Content()->GetStitchPaletteIndex(4, 2), 2);
}

void PaletteInWindowTest::FloatingBlockIsWrittenBackFirst() {
    OpenedProgram program;
    program.DragOver({{2, 2}, {4, 2}});
    program.Window().Modes().SetDrawMode(DrawEditBox);
    program.DragOver({{2, 2}, {4, 2}});
    QVERIFY(program.Window().Modes().Box().Nudge(0, 5));
    QVERIFY(program.Window().Modes().Box().HasPattern());
    QCOMPARE(program.Design().GetStitchCount(3, 7), 0);
    program.User.answers = {MessageAnswer::Yes};
    InNextWindow("frmPalette", [](QDialog& editor) {
        PartOf<QCheckBox>(editor, "chkEditBoxOnly").click();
        InNextWindow("frmReplaceColor", [](QDialog& window) { ClickIn(window, "cmdOK"); });
        ClickIn(editor, "cmdReplaceColor");
    });
    program.Choose("mnuOptionsPalette");
    QCOMPARE(
        program.User.asked.front().text,
        std::string("The Floss you are about to change the color of 3 stitches in your current "
                    "pattern.  \nDo you wish to continue?"));
    QCOMPARE(program.Design().GetStitchPaletteIndex(3, 7), 2);
    QCOMPARE(program.Window().Modes().Box().GetEditBoxRect(), (SquareRect{2, 7, 4, 7}));
    QTRY_COMPARE(program.WrongPixels(), 0);
}

} // namespace zol::test

QTEST_MAIN(zol::test::PaletteInWindowTest)
#include "test_PaletteInWindow.moc"
