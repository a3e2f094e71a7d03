// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "import/ImportWork.h"
#include "model/Doors.h"
#include "model/ProgramContext.h"
#include "settings/Options.h"

namespace zol {

class Pattern;
class ScannerDoor;

/// What the screens of the import wizard work with. Everything outlives the wizard, but for the
/// work, which is the wizard's own. A screen is made with the desk and a parent.
struct ImportDesk {
    ImportWork& Work;
    ProgramContext& Context;
    const Pattern& Design; ///< the design that the import goes into, as it stands
    SettingsDoor& Store;
    const Options& Settings;
    MessageDoor& Messages;
    FileDoor& Files;
    ScannerDoor* Scanners = nullptr; ///< null: nothing can be scanned
};

} // namespace zol
