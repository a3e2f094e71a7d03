// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>

#include "model/Doors.h"
#include "model/OpenDesign.h"
#include "model/ProgramContext.h"
#include "print/PrintFuncs.h"
#include "print/windows/PrinterDoor.h"
#include "settings/Options.h"

class QWidget;

namespace zol {

/// The edit box's squares as a pattern of its own.
struct SelectedArea {
    Pattern* Content; ///< never null
    SquarePos Corner; ///< its upper left square on the whole pattern
};

/// What the print windows work with. All of it outlives them.
struct PrintDesk {
    DesignHolder& Open;
    ProgramContext& Context;
    Options& Settings; ///< of the running program: what the windows change holds for this run
    SettingsDoor& Store;
    MessageDoor& Messages;
    FileDoor& Files;
    PrinterDoor& Printers;
    double& GSPI; ///< grid squares per inch; kept for the run and not stored
    /// The selected area; nothing without an edit box.
    std::function<std::optional<SelectedArea>()> Selection;
    /// Opens the options dialog on the tab of printouts.
    std::function<void(QWidget* parent)> OpenOptions;

    /// The options of a print job as they stand now, with the run's grid squares per inch.
    [[nodiscard]] PrintOptions OptionsNow() const {
        PrintOptions options = PrintOptionsOf(Settings);
        options.GSPI = GSPI;
        return options;
    }
};

} // namespace zol
