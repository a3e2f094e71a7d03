// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// How the main window is put together; what it does afterwards stands in frmDesignGrid.cpp.

#include <QAction>
#include <QMenu>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "files/FileCommands.h"
#include "grid/FileCommandTexts.h"
#include "grid/tools/BackstitchTool.h"
#include "grid/tools/DrawModes.h"
#include "grid/tools/EditBox.h"
#include "grid/windows/DesignCommands.h"
#include "grid/windows/DrawingCommands.h"
#include "grid/windows/EditCommands.h"
#include "grid/windows/FileMenu.h"
#include "grid/windows/GridArea.h"
#include "grid/windows/GridToolView.h"
#include "grid/windows/ImportCommands.h"
#include "grid/windows/MainCommands.h"
#include "grid/windows/MainMenus.h"
#include "grid/windows/MainToolBars.h"
#include "grid/windows/OptionsCommand.h"
#include "grid/windows/PaletteCommands.h"
#include "grid/windows/PaletteFileCommands.h"
#include "grid/windows/PaletteStrip.h"
#include "grid/windows/PrintCommands.h"
#include "grid/windows/PropertiesCommands.h"
#include "grid/windows/ReportCommands.h"
#include "grid/windows/SizingCommands.h"
#include "grid/windows/StatusLine.h"
#include "grid/windows/ViewCommands.h"
#include "grid/windows/ZoomControl.h"
#include "grid/windows/frmDesignGrid.h"
#include "grid/windows/frmPopups.h"
#include "grid/windows/frmZoom.h"
#include "settings/windows/frmOptions.h"

namespace zol {

void frmDesignGrid::SetUpParts() {
    setAcceptDrops(true);
    m_commands = std::make_unique<MainCommands>(*this, m_workshop.Context);
    m_menus = std::make_unique<MainMenus>(*this, *m_commands);
    auto* desk = new QWidget(this);
    auto* layout = new QVBoxLayout(desk);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    m_area = new GridArea(m_painter, desk);
    m_strip = new PaletteStrip(desk);
    layout->addWidget(m_area, 1);
    layout->addWidget(m_strip);
    setCentralWidget(desk);
    m_status = new StatusLine(this);
    setStatusBar(m_status);
    m_workshop.Context.Progress = m_status;
    m_bars = std::make_unique<MainToolBars>(*this, *m_commands, m_area->Zoom().Box());
    setMinimumSize(640, 480);
}

void frmDesignGrid::SetUpTools() {
    m_toolView = std::make_unique<GridToolView>(
        *m_area, *m_status,
        GridToolView::Followers{[this] { m_area->SetOverlay(m_modes->GetOverlay()); },
                                [this] { FollowDesign(); },
                                [this](int lineStyle) { m_popups->OpenLineMenu(lineStyle); },
                                [this] {
                                    m_modes->Box().DropEditBox(true);
                                    EndTool();
                                },
                                [this] {
                                    m_strip->Refresh();
                                    m_modes->PaletteChanged();
                                }});
    m_workshop.Steps.SetView(m_toolView.get());
    m_drawing = std::make_unique<DrawingCommands>(
        *m_commands, DrawingCommands::Followers{
                         [this] { FollowTool(); }, [this] { FollowCurrentColor(); },
                         [this] {
                             m_design->RefreshEnabling();
                             m_workshop.AutoSave.AutoSaveTick(false, false);
                         },
                         [this](bool anchored) {
                             m_workshop.Settings.AnchorBackstitches = anchored;
                             m_workshop.Store.WriteSetting("Design Grid Opts", "AnchorBackstitches",
                                                           anchored ? "TRUE" : "FALSE");
                         }});
    const ToolDesk tools{m_workshop.Open, m_workshop.Steps, m_mirror, m_choice, *m_toolView};
    m_modes = std::make_unique<DrawModes>(tools, *m_drawing);
    m_popups = std::make_unique<frmPopups>(m_modes->Lines(), m_workshop.Context, this);
    m_drawing->Connect(*m_modes, tools);
}

void frmDesignGrid::SetUpFiles() {
    m_files = std::make_unique<FileCommands>(FileCommandsDesk{
        m_workshop.Open, m_workshop.CurrentPattern, m_workshop.Context, m_workshop.Settings,
        m_workshop.Store, m_workshop.Messages, m_workshop.Files, m_workshop.Steps, *this,
        [this](const std::string& path) { m_workshop.RecentFiles.AddToMRU(path); },
        [this](int index) {
            return m_workshop.RecentFiles.MRUFiles().at(static_cast<std::size_t>(index));
        },
        [this] { m_workshop.AutoSave.ClearAutoSave(); }});
    m_fileMenu =
        std::make_unique<FileMenu>(*m_commands, *m_menus, *m_files, m_workshop.RecentFiles);
    // The program that the file came from waits until the drop returns, and a question may follow.
    connect(this, &frmDesignGrid::FileDropped, this, &frmDesignGrid::OpenDropped,
            Qt::QueuedConnection);
    m_workshop.AutoSave.SetView(this);
    m_autoSaveTimer = new QTimer(this);
    m_autoSaveTimer->setObjectName(QStringLiteral("timAutoSave"));
    m_autoSaveTimer->setInterval(std::chrono::minutes(1));
    connect(m_autoSaveTimer, &QTimer::timeout, this, [this] { SaveByTimer(); });
    m_autoSaveTimer->start();
}

void frmDesignGrid::SetUpCommands() {
    m_view = std::make_unique<ViewCommands>(*m_commands, m_workshop.Settings, m_workshop.Store,
                                            ViewCommands::Followers{[this] { FollowOptions(); },
                                                                    [this] { FollowPainting(); },
                                                                    [this] { FollowDesign(); }});
    m_design = std::make_unique<DesignCommands>(
        *m_commands, *m_menus, m_workshop.Open, m_workshop.Steps,
        DesignCommands::Followers{[this] { EndTool(); }, [this] { m_modes->CancelDrag(); },
                                  [this] { FollowDesign(); },
                                  [this] {
                                      m_area->ArrangeGrid();
                                      m_modes->Box().RefreshSelection();
                                      FollowTool();
                                      m_design->RefreshEnabling();
                                  }});
    m_properties = std::make_unique<PropertiesCommands>(
        *m_commands, m_workshop, *this,
        PropertiesCommands::Followers{[this] { EndTool(); },
                                      [this] {
                                          FollowDesign();
                                          ShowSummary(
                                              FileCommandTexts::Summary(m_workshop.Open.Design()));
                                      }});
    m_edit = std::make_unique<EditCommands>(
        *m_commands, *m_menus, *m_modes,
        EditCommands::Desk{m_workshop.Open, m_workshop.Messages, m_workshop.Files, *m_status},
        [this] { m_design->RefreshEnabling(); });
    m_sizing = std::make_unique<SizingCommands>(
        *m_commands, *this,
        frmAddRows::Desk{m_workshop.Open, m_workshop.Steps, m_workshop.Messages, m_workshop.Store},
        SizingCommands::Followers{[this] { EndTool(); }, [this] { FollowDesign(); }});
    m_palette = std::make_unique<PaletteCommands>(
        *m_commands, m_workshop, *m_modes, m_choice, *this,
        PaletteCommands::Followers{[this] { EndTool(); }, [this] { FollowDesign(); }});
    m_import = std::make_unique<ImportCommands>(
        *m_commands, m_workshop, *m_modes, *this,
        ImportCommands::Followers{
            [this] { EndTool(); }, [this] { FollowDesign(); },
            [this](const std::string& text) { m_status->ShowNote(QString::fromStdString(text)); }});
    m_commands->Connect("mnuFileExit", this, [this] { close(); });
    SetUpZoomCommands();
    SetUpOptions();
    SetUpPrinting();
}

void frmDesignGrid::SetUpOptions() {
    m_options = std::make_unique<OptionsCommand>(
        *m_commands,
        OptionsDesk{m_workshop.Settings, m_workshop.Store, m_workshop.Context,
                    [this] {
                        FollowOptions();
                        m_view->ShowOptions();
                        m_area->ArrangeGrid();
                    },
                    [this](bool hold) { m_area->HoldGridPaint(hold); }},
        *this);
    m_paletteFiles = std::make_unique<PaletteFileCommands>(
        *m_commands,
        PaletteFilesDesk{m_workshop.Open, m_workshop.Context, m_workshop.Settings,
                         m_workshop.Messages, m_workshop.Files, m_workshop.Steps},
        PaletteFileCommands::Followers{
            [this] { EndTool(); }, [this] { FollowDesign(); },
            [this](const std::string& text) { m_toolView->ShowSummary(text); }});
}

void frmDesignGrid::SetUpPrinting() {
    m_print = std::make_unique<PrintCommands>(
        *m_commands, m_workshop, m_modes->Box(), *this,
        [this](QWidget* parent) { m_options->Open(frmOptions::PrintoutsPage, parent); });
    m_reports = std::make_unique<ReportCommands>(*m_commands, m_print->Desk(), *this);
}

void frmDesignGrid::SetUpZoomCommands() {
    ZoomControl& zoom = m_area->Zoom();
    m_commands->Connect("ZoomIn", this, [&zoom] { zoom.ZoomIn(); });
    m_commands->Connect("ZoomOut", this, [&zoom] { zoom.ZoomOut(); });
    m_commands->Connect("ZoomPrevious", this, [&zoom] { zoom.RestorePreviousZoom(); });
    m_commands->Connect("mnuZoom", this, [this] { ChooseZoom(); });
    m_commands->Connect("ZoomTool", this, [this, &zoom] {
        if (m_modes->GetDrawMode() == DrawZoom) {
            zoom.RememberScroll();
        }
    });
    connect(&zoom, &ZoomControl::BoxLeft, this, [this] { m_area->Canvas().setFocus(); });
    connect(m_status, &StatusLine::ZoomChosen, &zoom, &ZoomControl::ChangeZoom);
    connect(m_area, &GridArea::ZoomChanged, m_status, &StatusLine::ShowZoom);
    m_status->ShowZoom(zoom.GridZoom());
    auto* steps = new QMenu(this);
    QAction* fit = steps->addAction(QStringLiteral("To Fit"));
    connect(fit, &QAction::triggered, &zoom, &ZoomControl::ZoomToFit);
    for (const int percent : {10, 25, 50, 100, 200, 400, 600}) {
        QAction* step = steps->addAction(QString::number(percent) + QLatin1Char('%'));
        connect(step, &QAction::triggered, &zoom, [&zoom, percent] { zoom.ChangeZoom(percent); });
    }
    QToolButton& button = m_bars->At("ZOOMSETTING");
    button.setMenu(steps);
    button.setPopupMode(QToolButton::InstantPopup);
    m_commands->CarryOut("ZoomSetting");
}

void frmDesignGrid::ChooseZoom() {
    m_area->HoldGridPaint(true);
    frmZoom dialog(m_area->Zoom().GridZoom(), this);
    const bool chosen = dialog.exec() == QDialog::Accepted;
    m_area->HoldGridPaint(false);
    if (chosen && dialog.Percent() != m_area->Zoom().GridZoom()) {
        m_area->Zoom().ChangeZoom(dialog.Percent());
    }
}

void frmDesignGrid::ConnectGrid() {
    connect(m_area, &GridArea::Pressed, this,
            [this](const PointerEvent& event) { m_modes->Press(event); });
    connect(m_area, &GridArea::Moved, this,
            [this](const PointerEvent& event) { m_modes->Move(event); });
    connect(m_area, &GridArea::Released, this,
            [this](const PointerEvent& event) { m_modes->Release(event); });
    connect(m_area, &GridArea::PointerLeft, this, [this] { m_toolView->PointerLeft(); });
    connect(m_area, &GridArea::EscapePressed, this, [this] { m_modes->Escape(); });
    connect(m_area, &GridArea::ArrowPressed, this, [this](int columns, int rows) {
        if (!m_modes->Nudge(columns, rows)) {
            m_area->ScrollGrid(m_area->FirstColumn() + columns, m_area->FirstRow() + rows, false);
        }
        m_design->RefreshEnabling();
    });
    connect(m_area, &GridArea::EnterPressed, this, [this] { m_modes->Confirm(); });
}

void frmDesignGrid::ConnectPalette() {
    connect(m_strip, &PaletteStrip::FlossPicked, this,
            [this](int index) { m_modes->SetCurrentColor(index); });
    connect(m_strip, &PaletteStrip::PaletteEditorRequested, this,
            [this] { m_commands->At("mnuOptionsPalette").trigger(); });
}

void frmDesignGrid::OrderTabs() {
    setTabOrder(&m_bars->Commands(), &m_bars->Stitches());
    setTabOrder(&m_bars->Stitches(), m_area);
    setTabOrder(m_area, m_strip);
    m_area->Canvas().setFocus();
}

} // namespace zol
