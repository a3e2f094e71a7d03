// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include <QMenu>
#include <QMenuBar>

#include <map>

#include "grid/windows/MainCommands.h"
#include "gui/RunningProgram.h"
#include "support/DialogDriver.h"

namespace zol::test {

/// What stands in the menus and what can be chosen there.
class MenusTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void StandInTheirOrder_data();
    void StandInTheirOrder();
    void BarHasTheMenusInOrder();
    void CaptionsAreAsFixed();
    void MnemonicsStandOnceInAMenu();
    void EveryCommandSaysWhatItDoes();
    void CommandsThatNobodyCarriesOutAreDisabled();
    void SelectionCommandsWaitForASelection();
    void ColorIsSpelledAsTheOptionSays();
    void EditMenuShowsWhatCanBeUndone();
    void ToolsMenuRefreshesItsEnabling();
    void NewEnablesWhatAFontHadTakenAway();
    void RecentFilesShowTheirPaths();

private:
    static QStringList NamesIn(const QMenu& menu);
};

QStringList MenusTest::NamesIn(const QMenu& menu) {
    QStringList names;
    for (const QAction* action : menu.actions()) {
        if (!action->isSeparator()) {
            names << (action->menu() != nullptr ? action->menu()->objectName()
                                                : action->objectName());
        }
    }
    return names;
}

void MenusTest::StandInTheirOrder_data() {
    QTest::addColumn<QString>("entries");
    const auto row = [](const char* menu, const char* entries) {
        QTest::newRow(menu) << QString::fromLatin1(entries);
    };
    row("mnuFile",
        "mnuFileNew mnuFileOpen mnuFileBrowse mnuImport mnuExport mnuFileSave "
        "mnuFileSaveAs mnuFilePageSetup mnuFilePrintPreview mnuFileSavePdf mnuPrintColorKey "
        "mnuFileMRU0 mnuFileMRU1 mnuFileMRU2 mnuFileMRU3 mnuFileExit");
    row("mnuEdit", "mnuEditUndo mnuEditCut mnuEditCopy mnuEditPaste mnuSelectAll mnuEditFlip "
                   "mnuEditRotate mnuEditErase mnuEditCopyTo mnuEditPasteFrom");
    row("mnuEditFlip", "mnuFlipHorizontal mnuFlipVertical");
    row("mnuEditRotate", "mnuRotate90 mnuRotate270 mnuRotate180");
    row("mnuOptions", "mnuOptionsFlexBackstitch mnuOptionsPalette mnuSaveDefaultpalette "
                      "mnuSavePalette mnuLoadPalette mnuDrawMode mnuOptionsStitchType mnuFKType");
    row("mnuDrawMode", "mnuDrawModeStitches mnuDrawModeLines mnuDrawModeEditBox");
    row("mnuOptionsStitchType",
        "mnuStitchWhole mnuStitchHalfT2B mnuStitchHalfB2T mnuStitch3Quarter mnuStitch3QuarterUL "
        "mnuStitch3QuarterUR mnuStitch3QuarterLL mnuStitch3QuarterLR mnuStitchQuarter "
        "mnuStitchQuarterUL mnuStitchQuarterUR mnuStitchQuarterLL mnuStitchQuarterLR "
        "mnuStitchFrenchKnot mnuCustomStitch");
    row("mnuFKType", "mnuFK0 mnuFK1 mnuFK2 mnuFK3 mnuFK4");
    row("mnuView", "mnuViewPattern mnuViewToolbar mnuStitchToolbar mnuViewRulers mnuViewStatusBar "
                   "mnuViewGridLines mnuZoom mnuViewRefresh mnuViewOptions mnuStitchDisplay");
    row("mnuStitchDisplay", "mnuStitchColorSquares mnuStitchBlackSymbols mnuStitchColorSymbols "
                            "mnuStitchColorBlocksSymbols mnuStitchColorStitch mnuStitchVStitches");
    row("mnuTools",
        "mnuMirrorMode mnuPaintOnce mnuPaintMode mnuCenter mnuClearPalette mnuEraseMode "
        "mnuColorPicker mnuToolsFlossUsage mnuToolsSizing mnuInstallLibrary mnuInstallFont mnuText "
        "mnuStitchedFonts mnuInsertLibraryPat mnuCustomStitchSelect mnuCustomStitches "
        "mnuPatternInfo");
    row("mnuMirrorMode", "mnuMirrorNone mnuMirrorHorizontal mnuMirrorVertical");
    row("mnuCenter", "mnuCenterVertical mnuCenterHorizontal mnuCenterBoth");
    row("mnuToolsSizing", "mnuAddRows mnuDelRows mnuToolsShrink");
    row("mnuLibs", "mnuLibGetPattern mnuLibsAdd mnuLibAddEditBox mnuLibMaint mnuLibInstall");
    row("mnuHelp", "mnuHelpContents mnuHelpSearch mnuHelpUpdate mnuHelpTutorials mnuShowTips "
                   "mnuHelpAbout");
}

void MenusTest::StandInTheirOrder() {
    QFETCH(const QString, entries);
    StartedProgram program;
    QCOMPARE(NamesIn(*program.Find<QMenu>(QTest::currentDataTag())), entries.split(u' '));
}

void MenusTest::BarHasTheMenusInOrder() {
    StartedProgram program;
    QStringList names;
    for (const QAction* action : program.Window().menuBar()->actions()) {
        names << action->menu()->objectName();
    }
    QCOMPARE(
        names,
        QStringLiteral("mnuFile mnuEdit mnuOptions mnuView mnuTools mnuLibs mnuHelp").split(u' '));
}

void MenusTest::CaptionsAreAsFixed() {
    StartedProgram program;
    const std::map<const char*, const char*> captions{
        {"mnuFK0", "&Normal"},
        {"mnuFK1", "&Horizontal Oval"},
        {"mnuFK2", "Upper &Left Diagonal"},
        {"mnuFK3", "&Vertical Oval"},
        {"mnuFK4", "Upper &Right Diagonal"},
        {"mnuStitchColorSquares", "Coloured Squares"},
        {"mnuStitchBlackSymbols", "&Black && White Symbols"},
        {"mnuStitchColorSymbols", "Coloured Symbols"},
        {"mnuStitchColorBlocksSymbols", "Coloured Blocks && Visible Symbols"},
        {"mnuStitchColorStitch", "Coloured Stitches"},
        {"mnuStitchVStitches", "&Virtual Stitches"},
        {"mnuHelpAbout", "&About Korvanta..."},
        {"mnuEditUndo", "Undo"},
    };
    for (const auto& [command, caption] : captions) {
        QCOMPARE(program.Command(command).text(), QString::fromLatin1(caption));
    }
    QCOMPARE(program.Find<QMenu>("mnuFKType")->title().remove(u'&'),
             QStringLiteral("French Knot Style"));
}

void MenusTest::MnemonicsStandOnceInAMenu() {
    StartedProgram program;
    const QList<QMenu*> menus = program.Window().findChildren<QMenu*>();
    QVERIFY(menus.size() >= 16);
    for (const QMenu* menu : menus) {
        std::map<QString, QString> seen;
        for (const QAction* action : menu->actions()) {
            const QString key = QKeySequence::mnemonic(action->text()).toString();
            if (!key.isEmpty()) {
                QVERIFY2(seen.emplace(key, action->text()).second,
                         qPrintable(menu->objectName() + u' ' + seen[key] + u' ' + action->text()));
            }
        }
    }
}

void MenusTest::EveryCommandSaysWhatItDoes() {
    StartedProgram program;
    std::map<QString, std::string> keys;
    for (const MainCommand& command : MainCommandTable()) {
        const QAction& action = program.Command(command.Name);
        QVERIFY2(action.statusTip().size() > 8, command.Name);
        QVERIFY2(!action.text().isEmpty(), command.Name);
        for (const QKeySequence& key : action.shortcuts()) {
            QVERIFY2(!key.isEmpty(), command.Name);
            QVERIFY2(keys.emplace(key.toString(), command.Name).second, command.Name);
        }
    }
    QCOMPARE(program.Command("ZoomIn").shortcuts(),
             (QList<QKeySequence>{QKeySequence(Qt::CTRL | Qt::Key_Plus),
                                  QKeySequence(Qt::CTRL | Qt::Key_Equal)}));
}

void MenusTest::CommandsThatNobodyCarriesOutAreDisabled() {
    QWidget owner;
    ProgramContext context;
    MainCommands commands(owner, context);
    QVERIFY(!commands.At("mnuFileNew").isEnabled());
    commands.SetEnabled({"mnuFileNew"}, true);
    QVERIFY(!commands.At("mnuFileNew").isEnabled());
    int given = 0;
    commands.Connect("mnuFileNew", &owner, [&given] { ++given; });
    QVERIFY(commands.At("mnuFileNew").isEnabled());
    commands.At("mnuFileNew").trigger();
    QCOMPARE(given, 1);
    commands.SetEnabled({"mnuFileNew"}, false);
    QVERIFY(!commands.At("mnuFileNew").isEnabled());
}

void MenusTest::SelectionCommandsWaitForASelection() {
    StartedProgram program;
    for (const char* name : {"mnuEditUndo", "mnuEditCut", "mnuEditErase", "mnuEditCopy",
                             "mnuEditPaste", "mnuEditCopyTo"}) {
        QVERIFY2(!program.Command(name).isEnabled(), name);
    }
    for (const char* name : {"mnuEditFlip", "mnuEditRotate"}) {
        QVERIFY2(!program.Find<QMenu>(name)->menuAction()->isEnabled(), name);
    }
    for (const char* key : {"Cut", "Copy", "Paste"}) {
        QVERIFY2(!program.Find<QToolButton>(key)->isEnabled(), key);
    }
    for (const char* name : {"mnuFileNew", "mnuFileOpen", "mnuFileSave", "mnuFileSaveAs",
                             "mnuFileExit", "mnuPaintMode", "mnuEraseMode", "mnuViewGridLines"}) {
        QVERIFY2(program.Command(name).isEnabled(), name);
    }
}

void MenusTest::ColorIsSpelledAsTheOptionSays() {
    const ProgramHome home;
    WriteFile(home / "settings.ini", "[Options]\nSpelling=British\n");
    RunningProgram program(home);
    QVERIFY(program.Start());
    QVERIFY(program.Parts().Context.BritishSpelling);
    QCOMPARE(program.Command("mnuPrintColorKey").text(), QStringLiteral("Print &Colour Key..."));
    QCOMPARE(program.Command("mnuColorPicker").text(), QStringLiteral("Colour Pic&ker"));
    QCOMPARE(program.Command("mnuClearPalette").text(),
             QStringLiteral("&Clear Unused Palette Colours"));
    QCOMPARE(program.Command("mnuStitchColorSquares").text(), QStringLiteral("Coloured Squares"));
    QVERIFY(program.Command("mnuStitchColorSquares")
                .statusTip()
                .endsWith(QLatin1String("floss's colour")));
    QCOMPARE(program.Find<QAction>("mnuLineColor")->text(),
             QStringLiteral("Set to &Current Colour"));
    program.End();
}

void MenusTest::EditMenuShowsWhatCanBeUndone() {
    StartedProgram program;
    program.ClickSquare(5, 5);
    QCOMPARE(program.Design().GetStitchType(5, 5, 0), int{StitchWhole});
    QVERIFY(program.Command("mnuEditUndo").isEnabled());
    QVERIFY(program.Command("mnuEditUndo").text().startsWith(QLatin1String("Undo ")));
    // A step that is still open cannot be taken back.
    program.Parts().Steps.BeginUndo(UndoKind::Squares, "Half");
    Q_EMIT program.Find<QMenu>("mnuEdit")->aboutToShow();
    QVERIFY(!program.Command("mnuEditUndo").isEnabled());
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo"));
    program.Parts().Steps.EndUndo();
    Q_EMIT program.Find<QMenu>("mnuEdit")->aboutToShow();
    QCOMPARE(program.Command("mnuEditUndo").text(), QStringLiteral("Undo Half"));
    program.User.answers = {MessageAnswer::No};
    program.Window().close();
}

void MenusTest::ToolsMenuRefreshesItsEnabling() {
    StartedProgram program;
    QVERIFY(program.Command("mnuCenterBoth").isEnabled());
    program.Design().Resize(4, 0, 14, 14);
    Q_EMIT program.Find<QMenu>("mnuTools")->aboutToShow();
    QVERIFY(!program.Command("mnuCenterBoth").isEnabled());
    QVERIFY(!program.Command("mnuToolsShrink").isEnabled());
}

void MenusTest::NewEnablesWhatAFontHadTakenAway() {
    StartedProgram program;
    for (const char* menu : {"mnuOptions", "mnuTools", "mnuLibs"}) {
        program.Find<QMenu>(menu)->setEnabled(false);
    }
    for (const char* name :
         {"mnuFileSave", "mnuFileSaveAs", "mnuPaintMode", "mnuEraseMode", "mnuViewGridLines"}) {
        program.Command(name).setEnabled(false);
    }
    DialogDriver confirmed({[](QDialog& dialog) { dialog.accept(); }});
    program.Choose("mnuFileNew");
    QVERIFY(confirmed.AllDone());
    for (const char* menu : {"mnuOptions", "mnuTools", "mnuLibs"}) {
        QVERIFY2(program.Find<QMenu>(menu)->menuAction()->isEnabled(), menu);
    }
    for (const char* name :
         {"mnuFileSave", "mnuFileSaveAs", "mnuPaintMode", "mnuEraseMode", "mnuViewGridLines"}) {
        QVERIFY2(program.Command(name).isEnabled(), name);
    }
    for (const char* key : {"PAINT", "ERASE", "GRIDLINES"}) {
        QVERIFY2(program.Find<QToolButton>(key)->isEnabled(), key);
    }
}

void MenusTest::RecentFilesShowTheirPaths() {
    StartedProgram program;
    for (const QAction* action : program.Find<QMenu>("mnuFile")->actions()) {
        QVERIFY(!action->objectName().startsWith(QLatin1String("mnuFileMRU")) ||
                !action->isVisible());
    }
    program.Parts().RecentFiles.AddToMRU("/cloth/Jack & Jill.pat");
    QVERIFY(program.Command("mnuFileMRU0").isVisible());
    QCOMPARE(program.Command("mnuFileMRU0").text(), QStringLiteral("/cloth/Jack && Jill.pat"));
    QVERIFY(!program.Command("mnuFileMRU1").isVisible());
}

} // namespace zol::test

QTEST_MAIN(zol::test::MenusTest)
#include "test_Menus.moc"
