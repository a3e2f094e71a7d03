// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/MainCommands.h"

#include <QKeySequence>
#include <QWidget>

#include <cstdlib>

#include "model/ProgramContext.h"
#include "windowkit/IconFamily.h"
#include "windowkit/Spelling.h"

namespace zol {

namespace {

constexpr MainCommand Table[] = {
    // clang-format off
    {"mnuFileNew", "&New", "Begin a new pattern", "Ctrl+N", "file-new", false, true},
    {"mnuFileOpen", "&Open...", "Open a pattern file", "Ctrl+O", "file-open", false, true},
    {"mnuFileBrowse", "&Browse Patterns...", "Look through pattern files as pictures", "", "file-browse", false, true},
    {"mnuImport", "&Import Picture...", "Turn a picture into stitches", "Ctrl+I", "import", false, true},
    {"mnuExport", "&Export...", "Give out the pattern as a picture or a document", "Ctrl+E", "export", false, true},
    {"mnuFileSave", "&Save", "Save the pattern to its file", "Ctrl+S", "file-save", false, true},
    {"mnuFileSaveAs", "Save &As...", "Save the pattern under another name", "Ctrl+Shift+S", "", false, true},
    {"mnuFilePageSetup", "Page Set&up...", "Choose how the chart is printed", "", "page-setup", false, true},
    {"mnuFilePrintPreview", "&Print...", "See the chart's pages and print them", "Ctrl+P", "file-print", false, true},
    {"mnuFileSavePdf", "Save Chart as P&DF...", "Save the chart's pages as a PDF; no printer is needed", "", "", false, true},
    {"mnuPrintColorKey", "Print &Color Key...", "Print the key of flosses and symbols alone", "", "color-key", false, true},
    {"mnuFileExit", "E&xit", "Leave the program", "Ctrl+Q", "exit", false, true},
    {"mnuEditUndo", "Undo", "Take the last step back", "Ctrl+Z", "edit-undo", false, false},
    {"mnuEditCut", "Cu&t", "Move the edit box's content to the clipboard", "Ctrl+X", "edit-cut", false, false},
    {"mnuEditCopy", "&Copy", "Copy the edit box's content to the clipboard", "Ctrl+C", "edit-copy", false, false},
    {"mnuEditPaste", "&Paste", "Put the clipboard's content onto the grid", "Ctrl+V", "edit-paste", false, false},
    {"mnuSelectAll", "Select &All", "Put the edit box round the whole design", "Ctrl+A", "select-all", false, true},
    {"mnuFlipHorizontal", "&Horizontal", "Mirror the edit box's content left to right", "", "flip-horizontal", false, false},
    {"mnuFlipVertical", "&Vertical", "Mirror the edit box's content top to bottom", "", "flip-vertical", false, false},
    {"mnuRotate90", "&90 Degrees", "Turn the edit box's content a quarter to the right", "", "rotate-90", false, false},
    {"mnuRotate270", "&270 Degrees", "Turn the edit box's content a quarter to the left", "", "rotate-270", false, false},
    {"mnuRotate180", "&180 Degrees", "Turn the edit box's content upside down", "", "rotate-180", false, false},
    {"mnuEditErase", "&Erase", "Take away all stitches in the edit box", "Del", "erase-selection", false, false},
    {"mnuEditCopyTo", "Copy T&o File...", "Save the edit box's content as a pattern", "", "copy-to", false, false},
    {"mnuEditPasteFrom", "Paste &From File...", "Put a pattern file onto the grid", "", "paste-from", false, true},
    {"mnuOptionsFlexBackstitch", "Flexible &Backstitch", "Let lines end at corners, edges and middles of squares", "", "flex-backstitch", true, true},
    {"mnuOptionsPalette", "&Palette...", "Choose the flosses of this pattern", "Ctrl+L", "palette", false, true},
    {"mnuSaveDefaultpalette", "Save as &Default Palette", "Begin new patterns with these flosses", "", "default-palette", false, true},
    {"mnuSavePalette", "&Save Palette As...", "Save the flosses to a file", "", "save-palette", false, true},
    {"mnuLoadPalette", "&Load Palette...", "Take the flosses from a file", "", "load-palette", false, true},
    {"mnuDrawModeStitches", "&Stitches", "Draw stitches", "F2", "draw-stitches", true, true},
    {"mnuDrawModeLines", "Backstitch &Lines", "Draw and change backstitch lines", "F3", "draw-lines", true, true},
    {"mnuDrawModeEditBox", "&Edit Box", "Select squares to move, copy and turn", "F4", "draw-editbox", true, true},
    {"mnuStitchWhole", "&Whole Stitch", "Draw whole cross stitches", "Ctrl+1", "stitch-whole", true, true},
    {"mnuStitchHalfT2B", "Half Stitch, &Top to Bottom", "Draw half stitches from the upper left to the lower right", "Ctrl+2", "stitch-tbh", true, true},
    {"mnuStitchHalfB2T", "Half Stitch, &Bottom to Top", "Draw half stitches from the lower left to the upper right", "Ctrl+3", "stitch-bth", true, true},
    {"mnuStitch3Quarter", "&Smart 3/4 Stitch", "Draw three-quarter stitches with the short leg where you click", "Ctrl+4", "stitch-s3q", true, true},
    {"mnuStitch3QuarterUL", "3/4 Stitch, Upper Left", "Draw three-quarter stitches with the short leg in the upper left", "", "stitch-ul3q", true, true},
    {"mnuStitch3QuarterUR", "3/4 Stitch, Upper Right", "Draw three-quarter stitches with the short leg in the upper right", "", "stitch-ur3q", true, true},
    {"mnuStitch3QuarterLL", "3/4 Stitch, Lower Left", "Draw three-quarter stitches with the short leg in the lower left", "", "stitch-ll3q", true, true},
    {"mnuStitch3QuarterLR", "3/4 Stitch, Lower Right", "Draw three-quarter stitches with the short leg in the lower right", "", "stitch-lr3q", true, true},
    {"mnuStitchQuarter", "Smart 1/4 Stitch", "Draw quarter stitches where you click", "Ctrl+5", "stitch-sq", true, true},
    {"mnuStitchQuarterUL", "1/4 Stitch, Upper Left", "Draw quarter stitches in the upper left", "", "stitch-ulq", true, true},
    {"mnuStitchQuarterUR", "1/4 Stitch, Upper Right", "Draw quarter stitches in the upper right", "", "stitch-urq", true, true},
    {"mnuStitchQuarterLL", "1/4 Stitch, Lower Left", "Draw quarter stitches in the lower left", "", "stitch-llq", true, true},
    {"mnuStitchQuarterLR", "1/4 Stitch, Lower Right", "Draw quarter stitches in the lower right", "", "stitch-lrq", true, true},
    {"mnuStitchFrenchKnot", "French &Knot", "Set French knots", "Ctrl+6", "stitch-fknot", true, true},
    {"mnuCustomStitch", "&Custom Stitch", "Set a stitch of your own shape", "", "stitch-custom", true, false},
    {"mnuFK0", "&Normal", "Set round knots", "", "knot-normal", true, true},
    {"mnuFK1", "&Horizontal Oval", "Set knots that lie across", "", "knot-horizontal", true, true},
    {"mnuFK2", "Upper &Left Diagonal", "Set knots that lean to the upper left", "", "knot-ul-diagonal", true, true},
    {"mnuFK3", "&Vertical Oval", "Set knots that stand upright", "", "knot-vertical", true, true},
    {"mnuFK4", "Upper &Right Diagonal", "Set knots that lean to the upper right", "", "knot-ur-diagonal", true, true},
    {"mnuViewPattern", "View &Pattern...", "See the design as it looks when stitched", "", "view-pattern", false, true},
    {"mnuViewToolbar", "&Toolbar", "Show the row of commands", "", "toolbar", true, true},
    {"mnuStitchToolbar", "&Stitch Toolbar", "Show the column of stitches", "", "toolbar", true, true},
    {"mnuViewRulers", "&Rulers", "Show the rulers along the cloth", "", "rulers", true, true},
    {"mnuViewStatusBar", "Status &Bar", "Show the line at the bottom", "", "status-bar", true, true},
    {"mnuViewGridLines", "&Grid Lines", "Show the lines between squares", "Ctrl+G", "grid-lines", true, true},
    {"mnuZoom", "&Zoom...", "Choose how large the squares are", "", "zoom", false, true},
    {"mnuViewRefresh", "Re&fresh", "Paint the design anew", "F5", "refresh", false, true},
    {"mnuViewOptions", "&Options...", "Change how the program works and looks", "", "options", false, true},
    {"mnuStitchColorSquares", "Coloured Squares", "Show each stitch as a shape in its floss's color", "", "display-color-squares", true, true},
    {"mnuStitchBlackSymbols", "&Black && White Symbols", "Show each stitch as its symbol in black", "", "display-black-symbols", true, true},
    {"mnuStitchColorSymbols", "Coloured Symbols", "Show each stitch as its symbol in its floss's color", "", "display-color-symbols", true, true},
    {"mnuStitchColorBlocksSymbols", "Coloured Blocks && Visible Symbols", "Show shapes in the flosses' colors with their symbols", "", "display-blocks-symbols", true, true},
    {"mnuStitchColorStitch", "Coloured Stitches", "Show the threads of each stitch", "", "display-color-stitches", true, true},
    {"mnuStitchVStitches", "&Virtual Stitches", "Show stitches as they look on cloth", "", "display-virtual-stitches", true, true},
    {"mnuMirrorNone", "&None", "Draw every stitch once", "", "mirror-none", true, true},
    {"mnuMirrorHorizontal", "&Horizontal", "Draw a second stitch mirrored top to bottom", "Ctrl+Shift+H", "mirror-horizontal", true, true},
    {"mnuMirrorVertical", "&Vertical", "Draw a second stitch mirrored left to right", "Ctrl+Shift+V", "mirror-vertical", true, true},
    {"mnuPaintOnce", "Paint &Once", "Fill an area with the current stitch, then go back to stitches", "", "paint-once", true, true},
    {"mnuPaintMode", "&Paint Mode", "Fill area after area with the current stitch", "P", "paint", true, true},
    {"mnuCenterVertical", "&Vertical", "Move the design to the middle, up or down", "", "center-vertical", false, true},
    {"mnuCenterHorizontal", "&Horizontal", "Move the design to the middle, left or right", "", "center-horizontal", false, true},
    {"mnuCenterBoth", "&Both", "Move the design to the middle of the cloth", "", "center-both", false, true},
    {"mnuClearPalette", "&Clear Unused Palette Colors", "Take flosses without stitches out of the palette", "", "clear-palette", false, true},
    {"mnuEraseMode", "&Erase Mode", "Take stitches or lines away", "E", "erase", true, true},
    {"mnuColorPicker", "Color Pic&ker", "Take the floss of a stitch as the current one", "I", "color-picker", true, true},
    {"mnuToolsFlossUsage", "Floss &Usage...", "See how much of each floss the design takes", "Ctrl+U", "floss-usage", false, true},
    {"mnuAddRows", "&Add Rows or Columns...", "Make the cloth larger", "", "add-rows", false, true},
    {"mnuDelRows", "&Delete Rows or Columns...", "Make the cloth smaller", "", "delete-rows", false, true},
    {"mnuToolsShrink", "&Crop Design Area", "Cut the cloth down to the design", "", "shrink", false, true},
    {"mnuInstallLibrary", "Install &Library...", "Add a pattern library to the program", "", "install-library", false, true},
    {"mnuInstallFont", "Install &Font...", "Add a stitched font to the program", "", "install-font", false, true},
    {"mnuText", "&Text...", "Write with stitches", "Ctrl+T", "draw-text", false, true},
    {"mnuStitchedFonts", "Stitched Fo&nts...", "Draw the letters of stitched fonts", "", "stitched-fonts", false, true},
    {"mnuInsertLibraryPat", "&Insert Library Pattern...", "Put a pattern of a library onto the grid", "", "insert-library", false, true},
    {"mnuCustomStitchSelect", "&Select Custom Stitch...", "Choose the custom stitch to draw with", "", "stitch-custom", false, true},
    {"mnuCustomStitches", "Custom Stitc&hes...", "Draw stitches of your own shape", "", "custom-stitches", false, true},
    {"mnuPatternInfo", "P&attern Properties...", "Title, designer, cloth and size of this pattern", "Alt+Return", "pattern-info", false, true},
    {"mnuLibGetPattern", "&Get Pattern...", "Put a pattern of a library onto the grid", "", "insert-library", false, true},
    {"mnuLibsAdd", "&Add Pattern...", "Put this pattern into a library", "", "library-add", false, true},
    {"mnuLibAddEditBox", "Add Edit &Box...", "Put the edit box's content into a library", "", "library-add-box", false, false},
    {"mnuLibMaint", "&Maintain Libraries...", "Order, rename and delete libraries", "", "library-maint", false, true},
    {"mnuLibInstall", "&Install Library...", "Add a pattern library to the program", "", "library-install", false, true},
    {"mnuHelpContents", "&Contents", "Read how the program is used", "F1", "help", false, true},
    {"mnuHelpSearch", "&Search...", "Look for a word in the help", "", "help-search", false, true},
    {"mnuHelpUpdate", "Check for &Updates...", "See whether there is a newer version", "", "help-update", false, true},
    {"mnuHelpTutorials", "&Tutorials", "Learn the program step by step", "", "help-tutorials", false, true},
    {"mnuShowTips", "Ti&p of the Day...", "Read a short hint", "", "tips", false, true},
    {"mnuHelpAbout", "&About Korvanta...", "Version and makers of the program", "", "about", false, true},
    // Tool buttons that no menu shows.
    {"ZoomTool", "Zoom Tool", "Drag a frame round what you want to see larger", "Z", "zoom-tool", true, true},
    {"ZoomIn", "Zoom In", "Make the squares larger", "Ctrl++; Ctrl+=", "zoom-in", false, true},
    {"ZoomOut", "Zoom Out", "Make the squares smaller", "Ctrl+-", "zoom-out", false, true},
    {"ZoomPrevious", "Previous Zoom", "Go back to the size and place before", "Ctrl+0", "zoom-previous", false, true},
    {"ZoomSetting", "Zoom Steps", "Choose how large the squares are", "", "zoom-setting", false, true},
    // clang-format on
};

/// What a button shows that stands still under the pointer: its words and its key.
QString ToolTipOf(const QAction& action) {
    QString words = action.text().remove(QLatin1Char('&'));
    if (words.endsWith(QLatin1String("..."))) {
        words.chop(3);
    }
    const QString key = action.shortcut().toString(QKeySequence::NativeText);
    return key.isEmpty() ? words : words + QStringLiteral(" (") + key + QLatin1Char(')');
}

QAction* MakeAction(const MainCommand& command, QWidget& owner, const ProgramContext& context) {
    auto* action = new QAction(Spelled(QString::fromUtf8(command.Caption), context), &owner);
    action->setObjectName(QLatin1String(command.Name));
    action->setStatusTip(Spelled(QString::fromUtf8(command.StatusTip), context));
    action->setCheckable(command.Checkable);
    action->setEnabled(false);
    action->setMenuRole(QAction::NoRole);
    if (*command.Shortcut != '\0') {
        action->setShortcuts(QKeySequence::listFromString(QLatin1String(command.Shortcut),
                                                          QKeySequence::PortableText));
    }
    action->setToolTip(ToolTipOf(*action));
    if (*command.Icon != '\0') {
        action->setIcon(IconFamily::Icon(QLatin1String(command.Icon)));
    }
    return action;
}

} // namespace

std::span<const MainCommand> MainCommandTable() {
    return Table;
}

MainCommands::MainCommands(QWidget& owner, const ProgramContext& context) {
    for (const MainCommand& command : Table) {
        QAction* action = MakeAction(command, owner, context);
        owner.addAction(action);
        m_entries.emplace(command.Name, Entry{action, command.Enabled, false});
    }
}

QAction& MainCommands::At(std::string_view name) const {
    const auto found = m_entries.find(name);
    if (found == m_entries.end()) {
        std::abort();
    }
    return *found->second.Action;
}

void MainCommands::CarryOut(std::string_view name) {
    Entry& entry = m_entries.at(name);
    entry.IsCarriedOut = true;
    entry.Action->setEnabled(entry.IsWanted);
}

void MainCommands::SetEnabled(std::initializer_list<std::string_view> names, bool enabled) {
    for (const std::string_view name : names) {
        Entry& entry = m_entries.at(name);
        entry.IsWanted = enabled;
        entry.Action->setEnabled(enabled && entry.IsCarriedOut);
    }
}

void MainCommands::SetChecked(std::string_view name, bool checked) {
    At(name).setChecked(checked);
}

} // namespace zol
