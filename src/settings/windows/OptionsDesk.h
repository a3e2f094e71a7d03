// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "model/Doors.h"
#include "model/ProgramContext.h"
#include "settings/Options.h"

namespace zol {

/// What the options dialog works with. All of it outlives the dialog.
struct OptionsDesk {
    Options& Settings;
    SettingsDoor& Store;
    ProgramContext& Context;
    /// The record has changed: bars, rulers, grid, strip follow.
    std::function<void()> Applied;
    /// Painting of the grid is held, or let go; may be empty.
    std::function<void(bool hold)> HoldPainting;
};

} // namespace zol
