// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMainWindow>

#include <memory>
#include <string>

#include "files/FileCommandsView.h"
#include "grid/MirrorMode.h"
#include "grid/painting/GridPainter.h"
#include "grid/tools/ToolDesk.h"
#include "grid/windows/Workshop.h"

class QTimer;

namespace zol {

class DesignCommands;
class DrawingCommands;
class DrawModes;
class EditCommands;
class FileCommands;
class FileMenu;
class frmPopups;
class GridArea;
class GridToolView;
class ImportCommands;
class MainCommands;
class MainMenus;
class MainToolBars;
class OptionsCommand;
class PaletteCommands;
class PaletteFileCommands;
class PaletteStrip;
class PrintCommands;
class PropertiesCommands;
class ReportCommands;
class SizingCommands;
class StatusLine;
class ViewCommands;

/// The main window: it owns the parts that the user sees and the groups of commands, and ties them
/// together. What a command does is the group's, what the pointer does is the draw modes'.
class frmDesignGrid final : public QMainWindow, private FileCommandsView, private AutoSaveView {
    Q_OBJECT

public:
    static constexpr const char* ProgramTitle = "Korvanta";

    explicit frmDesignGrid(Workshop workshop);
    ~frmDesignGrid() override;

    /// The last step of the start: the tools that the designer begins with.
    void BeginDrawing();
    /// Asks about work that a run left behind that ended badly. True if it stands open now.
    bool OfferRecovery();
    /// What the program was started with. True if a design was opened.
    bool OpenCommandLine(const std::string& text);

    /// Writes what would be lost if the program ended now to the recovery file; without changes
    /// there is nothing to recover. What floats lands first, unless something else works with it.
    void KeepForRecovery();

    [[nodiscard]] GridArea& Area() { return *m_area; }
    [[nodiscard]] DrawModes& Modes() { return *m_modes; }

Q_SIGNALS:
    /// From a file manager; one local file.
    void FileDropped(const QString& name);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    // FileCommandsView and AutoSaveView
    void SetBusy(bool busy) override;
    void ResetTools() override;
    void SettleFloating() override;
    void ShowDesign() override;
    void SetWindowTitle(const std::string& name) override;
    void ShowSummary(const std::string& text) override;
    [[nodiscard]] std::optional<NewPattern> AskNewPattern(const NewPattern& defaults) override;
    [[nodiscard]] bool IsInLongMode() const override;

    void SetUpParts();
    void SetUpTools();
    void SetUpFiles();
    void SetUpCommands();
    void SetUpZoomCommands();
    void SetUpOptions();
    void SetUpImport();
    /// A window that has to be answered first is up, or long work goes on.
    [[nodiscard]] static bool IsElsewhere();
    void OpenDropped(const QString& name);
    void SaveByTimer();
    void SetUpPrinting();
    void ConnectGrid();
    void ConnectPalette();
    void OrderTabs();

    /// Parts of the window by the options: bars, rulers, strip, painting.
    void FollowOptions();
    void FollowPainting();
    /// Stitches, flosses or size have changed everywhere.
    void FollowDesign();
    void FollowTool();
    void FollowCurrentColor();
    /// Whatever the tool has under way is let go; the draw mode stays.
    void EndTool();
    void ChooseZoom();
    void CloseOtherWindows();

    Workshop m_workshop;
    GridPainter m_painter;
    MirrorMode m_mirror;
    DrawingChoice m_choice;
    GridArea* m_area = nullptr;
    PaletteStrip* m_strip = nullptr;
    StatusLine* m_status = nullptr;
    QTimer* m_autoSaveTimer = nullptr;
    std::unique_ptr<GridToolView> m_toolView;
    std::unique_ptr<MainCommands> m_commands;
    std::unique_ptr<MainMenus> m_menus;
    std::unique_ptr<MainToolBars> m_bars;
    std::unique_ptr<DrawingCommands> m_drawing;
    std::unique_ptr<DrawModes> m_modes;
    std::unique_ptr<frmPopups> m_popups;
    std::unique_ptr<FileCommands> m_files;
    std::unique_ptr<FileMenu> m_fileMenu;
    std::unique_ptr<ViewCommands> m_view;
    std::unique_ptr<DesignCommands> m_design;
    std::unique_ptr<PropertiesCommands> m_properties;
    std::unique_ptr<PaletteCommands> m_palette;
    std::unique_ptr<EditCommands> m_edit;
    std::unique_ptr<SizingCommands> m_sizing;
    std::unique_ptr<OptionsCommand> m_options;
    std::unique_ptr<PaletteFileCommands> m_paletteFiles;
    std::unique_ptr<ImportCommands> m_import;
    std::unique_ptr<PrintCommands> m_print;
    std::unique_ptr<ReportCommands> m_reports;
};

} // namespace zol
