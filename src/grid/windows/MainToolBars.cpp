// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/MainToolBars.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <array>
#include <cstdlib>

#include "grid/windows/MainCommands.h"
#include "windowkit/Words.h"

namespace zol {

namespace {

struct ToolRow {
    std::string_view Key;
    const char* Command;
    /// What stands before the caption where that says too little outside its menu.
    const char* Group = "";
};

constexpr std::array Tools{
    ToolRow{"New", "mnuFileNew"},
    ToolRow{"Open", "mnuFileOpen"},
    ToolRow{"Save", "mnuFileSave"},
    ToolRow{"Print", "mnuFilePrintPreview"},
    ToolRow{"Cut", "mnuEditCut"},
    ToolRow{"Copy", "mnuEditCopy"},
    ToolRow{"Paste", "mnuEditPaste"},
    ToolRow{"DRAWMODE_STITCHES", "mnuDrawModeStitches", "Draw "},
    ToolRow{"DRAWMODE_LINES", "mnuDrawModeLines", "Draw "},
    ToolRow{"DRAWMODE_EDITBOX", "mnuDrawModeEditBox"},
    ToolRow{"DRAWMODE_TEXT", "mnuText"},
    ToolRow{"GRIDLINES", "mnuViewGridLines"},
    ToolRow{"PALETTE", "mnuOptionsPalette"},
    ToolRow{"ZOOMTOOL", "ZoomTool"},
    ToolRow{"ZOOMTOOL1", "ZoomIn"},
    ToolRow{"ZOOMTOOL2", "ZoomOut"},
    ToolRow{"ZOOMTOOL3", "ZoomPrevious"},
    ToolRow{"ZOOMSETTING", "ZoomSetting"},
    ToolRow{"INSERT_LIBRARY", "mnuLibGetPattern"},
    ToolRow{"MIRRORMODE_V", "mnuMirrorVertical", "Mirror Mode: "},
    ToolRow{"MIRRORMODE_H", "mnuMirrorHorizontal", "Mirror Mode: "},
    ToolRow{"PAINT", "mnuPaintMode"},
    ToolRow{"COLORPICKER", "mnuColorPicker"},
    ToolRow{"ERASE", "mnuEraseMode"},
    ToolRow{"STITCH_WHOLE", "mnuStitchWhole"},
    ToolRow{"STITCH_UL3Q", "mnuStitch3QuarterUL"},
    ToolRow{"STITCH_UR3Q", "mnuStitch3QuarterUR"},
    ToolRow{"STITCH_LL3Q", "mnuStitch3QuarterLL"},
    ToolRow{"STITCH_LR3Q", "mnuStitch3QuarterLR"},
    ToolRow{"STITCH_TBH", "mnuStitchHalfT2B"},
    ToolRow{"STITCH_BTH", "mnuStitchHalfB2T"},
    ToolRow{"STITCH_FKNOT", "mnuStitchFrenchKnot"},
    ToolRow{"STITCH_ULQ", "mnuStitchQuarterUL"},
    ToolRow{"STITCH_URQ", "mnuStitchQuarterUR"},
    ToolRow{"STITCH_LLQ", "mnuStitchQuarterLL"},
    ToolRow{"STITCH_LRQ", "mnuStitchQuarterLR"},
    ToolRow{"STITCH_CUSTOM", "mnuCustomStitch"},
    ToolRow{"STITCH_S3Q", "mnuStitch3Quarter"},
    ToolRow{"STITCH_SQ", "mnuStitchQuarter"},
};

// "-" is a line between buttons.
constexpr std::string_view CommandKeys =
    "New Open Save Print - Cut Copy Paste - DRAWMODE_STITCHES DRAWMODE_LINES DRAWMODE_EDITBOX "
    "DRAWMODE_TEXT - GRIDLINES PALETTE - ZOOMTOOL ZOOMTOOL1 ZOOMTOOL2 ZOOMTOOL3 ZOOMSETTING - "
    "INSERT_LIBRARY - MIRRORMODE_V MIRRORMODE_H - PAINT COLORPICKER ERASE";
constexpr std::string_view StitchKeys =
    "STITCH_WHOLE - STITCH_S3Q STITCH_UL3Q STITCH_UR3Q STITCH_LL3Q STITCH_LR3Q - STITCH_TBH "
    "STITCH_BTH - STITCH_SQ STITCH_ULQ STITCH_URQ STITCH_LLQ STITCH_LRQ - STITCH_FKNOT "
    "STITCH_CUSTOM";

const ToolRow& RowOf(std::string_view key) {
    const auto* const row = std::find_if(Tools.begin(), Tools.end(),
                                         [&](const ToolRow& each) { return each.Key == key; });
    if (row == Tools.end()) {
        std::abort();
    }
    return *row;
}

QString NameOf(std::string_view key) {
    return QString::fromLatin1(key.data(), static_cast<qsizetype>(key.size()));
}

QToolBar* AddBar(QMainWindow& window, Qt::ToolBarArea area, const char* name, const char* title) {
    auto* bar = new QToolBar(QString::fromUtf8(title), &window);
    bar->setObjectName(QLatin1String(name));
    bar->setMovable(false);
    bar->setIconSize({24, 24});
    // The View menu's own items show and hide the bars.
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    window.addToolBar(area, bar);
    return bar;
}

} // namespace

MainToolBars::MainToolBars(QMainWindow& window, const MainCommands& commands, QWidget* zoomBox)
    : m_commands(AddBar(window, Qt::TopToolBarArea, "tbKorvantaToolBar", "Toolbar")),
      m_stitches(AddBar(window, Qt::LeftToolBarArea, "tbStitchToolbar", "Stitch Toolbar")),
      m_zoomBox(zoomBox) {
    Fill(*m_commands, commands, CommandKeys);
    Fill(*m_stitches, commands, StitchKeys);
}

void MainToolBars::Fill(QToolBar& bar, const MainCommands& commands, std::string_view keys) {
    for (const std::string_view key : Words(keys)) {
        if (key == "-") {
            bar.addSeparator();
            continue;
        }
        const ToolRow& row = RowOf(key);
        QAction& action = commands.At(row.Command);
        action.setToolTip(QLatin1String(row.Group) + action.toolTip());
        auto* button = new QToolButton(&bar);
        button->setDefaultAction(&action);
        button->setObjectName(NameOf(key));
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setAccessibleName(QLatin1String(row.Group) +
                                  action.text().remove(QLatin1Char('&')));
        button->setAccessibleDescription(action.statusTip());
        m_places.emplace(row.Key, bar.addWidget(button));
        m_buttons.emplace(row.Key, button);
        if (key == "ZOOMSETTING") {
            bar.addWidget(m_zoomBox)->setVisible(true);
        }
    }
}

QToolButton& MainToolBars::At(std::string_view key) const {
    const auto found = m_buttons.find(key);
    if (found == m_buttons.end()) {
        std::abort();
    }
    return *found->second;
}

void MainToolBars::UseSmartStitches(bool threeQuarters, bool quarters) {
    Show("STITCH_S3Q", threeQuarters);
    Show("STITCH_UL3Q STITCH_UR3Q STITCH_LL3Q STITCH_LR3Q", !threeQuarters);
    Show("STITCH_SQ", quarters);
    Show("STITCH_ULQ STITCH_URQ STITCH_LLQ STITCH_LRQ", !quarters);
}

void MainToolBars::Show(std::string_view keys, bool visible) {
    for (const std::string_view key : Words(keys)) {
        m_places.at(key)->setVisible(visible);
    }
}

} // namespace zol
