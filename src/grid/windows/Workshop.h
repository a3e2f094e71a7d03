// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "grid/tools/Undo.h"
#include "import/scan/ScannerDoor.h"
#include "model/Doors.h"
#include "model/OpenDesign.h"
#include "model/ProgramContext.h"
#include "print/windows/PrinterDoor.h"
#include "settings/MRUFuncs.h"
#include "settings/Options.h"
#include "settings/RunFolder.h"
#include "settings/basAutoSave.h"

namespace zol {

/// What the main window works with. All of it belongs to the program and outlives the window.
struct Workshop {
    ProgramContext& Context;
    SettingsDoor& Store;
    Options& Settings;
    MessageDoor& Messages;
    FileDoor& Files;
    PrinterDoor& Printers;
    ScannerDoor& Scanners;
    Pattern& CurrentPattern; ///< lives for the whole run; loads refill it
    DesignHolder& Open;
    Undo& Steps;
    MRUFuncs& RecentFiles;
    basAutoSave& AutoSave;
};

} // namespace zol
