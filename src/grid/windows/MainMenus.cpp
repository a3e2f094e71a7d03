// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/MainMenus.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>
#include <cstdlib>

#include "grid/windows/MainCommands.h"
#include "windowkit/Words.h"

namespace zol {

namespace {

/// A menu and its entries, parted by blanks: a command or another menu by its name, "-" for a line,
/// "MRU" for the recent files.
struct MenuRow {
    std::string_view Name;
    const char* Caption;
    std::string_view Entries;
};

constexpr std::array Tree{
    MenuRow{"mnuFile", "&File",
            "mnuFileNew mnuFileOpen mnuFileBrowse - mnuImport mnuExport - mnuFileSave "
            "mnuFileSaveAs - mnuFilePageSetup mnuFilePrintPreview mnuFileSavePdf "
            "mnuPrintColorKey MRU - mnuFileExit"},
    MenuRow{"mnuEdit", "&Edit",
            "mnuEditUndo - mnuEditCut mnuEditCopy mnuEditPaste mnuSelectAll - mnuEditFlip "
            "mnuEditRotate - mnuEditErase mnuEditCopyTo mnuEditPasteFrom"},
    MenuRow{"mnuEditFlip", "F&lip", "mnuFlipHorizontal mnuFlipVertical"},
    MenuRow{"mnuEditRotate", "&Rotate", "mnuRotate90 mnuRotate270 mnuRotate180"},
    MenuRow{"mnuOptions", "&Options",
            "mnuOptionsFlexBackstitch - mnuOptionsPalette mnuSaveDefaultpalette mnuSavePalette "
            "mnuLoadPalette - mnuDrawMode mnuOptionsStitchType mnuFKType"},
    MenuRow{"mnuDrawMode", "Draw &Mode", "mnuDrawModeStitches mnuDrawModeLines mnuDrawModeEditBox"},
    MenuRow{"mnuOptionsStitchType", "S&titch Type",
            "mnuStitchWhole mnuStitchHalfT2B mnuStitchHalfB2T - mnuStitch3Quarter "
            "mnuStitch3QuarterUL mnuStitch3QuarterUR mnuStitch3QuarterLL mnuStitch3QuarterLR - "
            "mnuStitchQuarter mnuStitchQuarterUL mnuStitchQuarterUR mnuStitchQuarterLL "
            "mnuStitchQuarterLR - mnuStitchFrenchKnot mnuCustomStitch"},
    MenuRow{"mnuFKType", "&French Knot Style", "mnuFK0 mnuFK1 mnuFK2 mnuFK3 mnuFK4"},
    MenuRow{"mnuView", "&View",
            "mnuViewPattern - mnuViewToolbar mnuStitchToolbar mnuViewRulers mnuViewStatusBar "
            "mnuViewGridLines - mnuZoom mnuViewRefresh mnuViewOptions - mnuStitchDisplay"},
    MenuRow{"mnuStitchDisplay", "Stitches &Display As",
            "mnuStitchColorSquares mnuStitchBlackSymbols mnuStitchColorSymbols "
            "mnuStitchColorBlocksSymbols mnuStitchColorStitch mnuStitchVStitches"},
    MenuRow{"mnuTools", "&Tools",
            "mnuMirrorMode mnuPaintOnce mnuPaintMode mnuCenter mnuClearPalette mnuEraseMode "
            "mnuColorPicker mnuToolsFlossUsage mnuToolsSizing - mnuInstallLibrary mnuInstallFont - "
            "mnuText mnuStitchedFonts mnuInsertLibraryPat mnuCustomStitchSelect mnuCustomStitches "
            "- mnuPatternInfo"},
    MenuRow{"mnuMirrorMode", "&Mirror Mode", "mnuMirrorNone mnuMirrorHorizontal mnuMirrorVertical"},
    MenuRow{"mnuCenter", "Cente&r", "mnuCenterVertical mnuCenterHorizontal mnuCenterBoth"},
    MenuRow{"mnuToolsSizing", "Si&zing", "mnuAddRows mnuDelRows mnuToolsShrink"},
    MenuRow{"mnuLibs", "&Libraries",
            "mnuLibGetPattern mnuLibsAdd mnuLibAddEditBox mnuLibMaint mnuLibInstall"},
    MenuRow{"mnuHelp", "&Help",
            "mnuHelpContents mnuHelpSearch mnuHelpUpdate mnuHelpTutorials mnuShowTips - "
            "mnuHelpAbout"},
};

constexpr std::array<std::string_view, 7> Bar{"mnuFile",  "mnuEdit", "mnuOptions", "mnuView",
                                              "mnuTools", "mnuLibs", "mnuHelp"};

const MenuRow* RowOf(std::string_view name) {
    const auto* const row = std::find_if(Tree.begin(), Tree.end(),
                                         [&](const MenuRow& each) { return each.Name == name; });
    return row == Tree.end() ? nullptr : row;
}

} // namespace

MainMenus::MainMenus(QMainWindow& window, const MainCommands& commands) {
    for (const std::string_view name : Bar) {
        window.menuBar()->addMenu(&AddMenu(window, commands, name));
    }
}

QMenu& MainMenus::AddMenu(QMainWindow& window, const MainCommands& commands,
                          std::string_view name) {
    const MenuRow& row = *RowOf(name);
    auto* menu = new QMenu(QString::fromUtf8(row.Caption), &window);
    menu->setObjectName(QLatin1String(row.Name.data(), static_cast<qsizetype>(row.Name.size())));
    m_menus.emplace(row.Name, menu);
    for (const std::string_view entry : Words(row.Entries)) {
        if (entry == "-") {
            menu->addSeparator();
        } else if (entry == "MRU") {
            AddRecentFiles(*menu);
        } else if (RowOf(entry) != nullptr) {
            menu->addMenu(&AddMenu(window, commands, entry));
        } else {
            menu->addAction(&commands.At(entry));
        }
    }
    return *menu;
}

void MainMenus::AddRecentFiles(QMenu& menu) {
    m_recentSeparator = menu.addSeparator();
    m_recentSeparator->setVisible(false);
    int index = 0;
    for (QAction*& entry : m_recent) {
        entry = menu.addAction(QString());
        entry->setObjectName(QLatin1String("mnuFileMRU") + QString::number(index++));
        entry->setVisible(false);
    }
}

QMenu& MainMenus::At(std::string_view name) const {
    const auto found = m_menus.find(name);
    if (found == m_menus.end()) {
        std::abort();
    }
    return *found->second;
}

} // namespace zol
