// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/frmDesignGrid.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMimeData>
#include <QToolBar>
#include <QUrl>

#include "files/CommandLineFile.h"
#include "files/FileCommands.h"
#include "grid/GridOptions.h"
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
#include "grid/windows/WindowPlace.h"
#include "grid/windows/frmPopups.h"
#include "import/PictureFiles.h"
#include "model/SafeFile.h"
#include "windowkit/BusyScope.h"

namespace zol {

namespace {

/// A move would let the program that the file comes from delete it.
void AcceptCopy(QDropEvent& event) {
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

} // namespace

frmDesignGrid::frmDesignGrid(Workshop workshop) : m_workshop(workshop) {
    setObjectName(QStringLiteral("frmDesignGrid"));
    SetUpParts();
    SetUpTools();
    SetUpFiles();
    SetUpCommands();
    ConnectGrid();
    ConnectPalette();
    OrderTabs();
    FollowOptions();
    ShowDesign();
    SetWindowTitle(m_workshop.Open.Get().WindowTitle());
    WindowPlace::Restore(*this, m_workshop.Store);
}

frmDesignGrid::~frmDesignGrid() {
    // Parts that go last still say where pointer and focus went; nobody is left to hear it.
    m_area->disconnect(this);
    m_strip->disconnect(this);
    m_status->disconnect(this);
    m_workshop.Steps.SetView(nullptr);
    m_workshop.AutoSave.SetView(nullptr);
    if (m_workshop.Context.Progress == m_status) {
        m_workshop.Context.Progress = nullptr;
    }
}

void frmDesignGrid::BeginDrawing() {
    m_modes->SetDrawMode(DrawStitches);
    m_modes->SetStitchType(m_choice.CurrentStitchType);
}

bool frmDesignGrid::OfferRecovery() {
    std::unique_ptr<OpenDesign> design =
        m_workshop.AutoSave.CheckForRecovery(m_workshop.Messages, m_files->RecoveryMakers());
    if (design == nullptr) {
        return false;
    }
    m_files->ShowRecovered(std::move(design));
    return true;
}

bool frmDesignGrid::OpenCommandLine(const std::string& text) {
    CommandLineFile file(*m_files, m_workshop.Messages, m_workshop.Context.AppPath);
    return file.Run(text) == CommandLineFile::Outcome::Loaded;
}

void frmDesignGrid::closeEvent(QCloseEvent* event) {
    if (BusyScope::IsAnyAlive() || !m_files->CheckSave()) {
        event->ignore();
        return;
    }
    WindowPlace::Store(*this, m_workshop.Store);
    CloseOtherWindows();
    event->accept();
}

void frmDesignGrid::CloseOtherWindows() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (auto window = windows.crbegin(); window != windows.crend(); ++window) {
        if (*window != this && (*window)->isVisible()) {
            (*window)->close();
        }
    }
}

void frmDesignGrid::dragEnterEvent(QDragEnterEvent* event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (!IsElsewhere() && urls.size() == 1 && urls.first().isLocalFile()) {
        AcceptCopy(*event);
    }
}

void frmDesignGrid::dropEvent(QDropEvent* event) {
    AcceptCopy(*event);
    // The other program may have taken back by now what it offered when the pointer came in.
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() == 1 && urls.first().isLocalFile()) {
        Q_EMIT FileDropped(urls.first().toLocalFile());
    }
}

bool frmDesignGrid::IsElsewhere() {
    return QApplication::activeModalWidget() != nullptr || BusyScope::IsAnyAlive();
}

void frmDesignGrid::OpenDropped(const QString& name) {
    // The drop waited in the queue, and a window may have come up in between that works with the
    // design as it stands.
    if (IsElsewhere()) {
        return;
    }
    const std::string file = name.toStdString();
    if (PictureFiles::HasPictureName(PathOf(file))) {
        m_import->ImportFile(PathOf(file));
    } else {
        m_files->OpenDropped(file);
    }
}

void frmDesignGrid::SetBusy(bool busy) {
    ShowBusy(busy);
}

void frmDesignGrid::SettleFloating() {
    m_modes->SettleFloating();
}

void frmDesignGrid::ResetTools() {
    m_modes->Box().DropEditBox(true);
    m_modes->SetDrawMode(DrawStitches);
    m_area->SetOverlay(m_modes->GetOverlay());
}

void frmDesignGrid::ShowDesign() {
    Pattern& design = m_workshop.Open.Design();
    m_area->SetPattern(&design);
    m_strip->SetPattern(&design);
    m_modes->PaletteChanged();
    FollowCurrentColor();
    FollowTool();
    m_design->EnableForNewDesign();
    m_import->ForgetEditBox();
    m_edit->UpdateEditMenus();
}

void frmDesignGrid::SetWindowTitle(const std::string& name) {
    setWindowTitle(QString::fromUtf8(ProgramTitle) + QStringLiteral(" - ") +
                   QString::fromStdString(name));
}

void frmDesignGrid::ShowSummary(const std::string& text) {
    m_toolView->ShowSummary(text);
}

std::optional<NewPattern> frmDesignGrid::AskNewPattern(const NewPattern& defaults) {
    return m_properties->AskNewPattern(defaults);
}

bool frmDesignGrid::IsInLongMode() const {
    // Half a stroke is no work to come back to, and a design without its floating block neither.
    return QGuiApplication::mouseButtons() != Qt::NoButton || BusyScope::IsAnyAlive() ||
           m_modes->Box().HasPattern();
}

void frmDesignGrid::SaveByTimer() {
    if (QGuiApplication::mouseButtons() == Qt::NoButton && !IsElsewhere()) {
        // A release that went to another program leaves a line hanging, which is in no save.
        m_modes->Lines().PutBackTakenUp();
    }
    m_workshop.AutoSave.AutoSaveTick(false, true);
}

void frmDesignGrid::KeepForRecovery() {
    if (!IsElsewhere()) {
        SettleFloating();
    }
    if (m_workshop.Open.Design().IsChanged() || m_modes->Box().HasPattern()) {
        m_workshop.AutoSave.AutoSaveTick(true, true);
    } else {
        m_workshop.AutoSave.ClearAutoSave();
    }
}

void frmDesignGrid::FollowOptions() {
    const Options& options = m_workshop.Settings;
    m_bars->Commands().setVisible(options.ToolbarVisible);
    m_bars->Stitches().setVisible(options.StitchToolbarVisible);
    m_bars->UseSmartStitches(options.UseSmart3QS != 0, options.UseSmartQS != 0);
    m_modes->OfferSmartStitches(options.UseSmart3QS != 0, options.UseSmartQS != 0);
    m_status->setVisible(options.StatusbarVisible);
    m_area->SetRulers(options.RulersVisible, options.UsesInches());
    m_strip->SetRows(options.PaletteDisplayRows);
    m_strip->SetSquareSize(options.PaletteDisplaySize);
    m_strip->ShowSymbols(options.DisplaySymbolInPalette);
    m_drawing->SetAnchorBackstitches(options.AnchorBackstitches);
    FollowPainting();
}

void frmDesignGrid::FollowPainting() {
    m_area->SetPaintOptions(GridPaintOptions(m_workshop.Settings));
}

void frmDesignGrid::FollowDesign() {
    SetWindowTitle(m_workshop.Open.Get().WindowTitle());
    m_area->DesignChanged();
    m_strip->Refresh();
    m_modes->PaletteChanged();
    m_modes->Box().RefreshSelection();
    FollowTool();
    m_design->RefreshEnabling();
}

void frmDesignGrid::FollowTool() {
    m_area->SetOverlay(m_modes->GetOverlay());
    m_area->SetGridCursor(m_modes->Cursor());
}

void frmDesignGrid::FollowCurrentColor() {
    m_strip->SetCurrent(m_choice.CurrentPaletteIndex);
}

void frmDesignGrid::EndTool() {
    m_modes->SetDrawMode(m_modes->GetDrawMode());
}

} // namespace zol
