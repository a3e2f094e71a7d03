// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "import/ImportWork.h"
#include "import/windows/ImportDesk.h"
#include "model/Pattern.h"
#include "model/ProgramContext.h"
#include "settings/Options.h"
#include "support/RecordingDoors.h"
#include "support/ScriptedUser.h"

namespace zol::test {

/// All that a screen of the import wizard works with, each a fresh one.
struct DeskKit {
    ProgramContext Context;
    ImportWork Work{Context};
    Pattern Design{Context};
    MapSettings Store;
    Options Settings;
    ScriptedUser User;
    ImportDesk Desk{Work, Context, Design, Store, Settings, User, User};
};

} // namespace zol::test
