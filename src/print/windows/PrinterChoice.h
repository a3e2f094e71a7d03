// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "print/windows/PrintDesk.h"

/// What every window does that prints.
namespace zol::PrinterChoice {

/// Looks for a printer and takes the one that was used last, if it is still there. False if there
/// is none.
bool FindPrinter(PrintDesk& desk);
/// The same, and the user is told if there is none.
[[nodiscard]] bool NeedPrinter(PrintDesk& desk);
void TellNoPrinter(PrintDesk& desk);
/// Shows the printer dialog; a new choice is remembered. False if nothing was chosen.
bool ChoosePrinter(PrintDesk& desk, QWidget* parent);
/// Whether a job can be sent now. Says what is in the way, and asks where it is only that the
/// pages would have to wait.
[[nodiscard]] bool MayPrint(PrintDesk& desk);

/// Asks whether margins in the printer's border shall be raised. The answer no leaves them.
[[nodiscard]] bool WantsRaisedMargins(PrintDesk& desk, const PrintFuncs& job);
/// Takes the job's margins into the settings.
void KeepMargins(PrintDesk& desk, const PrintFuncs& job);

} // namespace zol::PrinterChoice
