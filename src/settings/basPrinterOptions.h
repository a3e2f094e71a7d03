// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "model/Doors.h"
#include "settings/Options.h"

/// What is chosen where charts are printed: it holds for the running program and, as a default, for
/// later runs. The options dialog edits the same values.
namespace zol::basPrinterOptions {

void SetPrintGridLines(Options& options, SettingsDoor& store, bool print);
/// Codes of print styles; -1 prints none.
void SetStitchSymbol(Options& options, SettingsDoor& store, int style);
void SetBackStitchSymbol(Options& options, SettingsDoor& store, int style);

/// In inches.
struct Margins {
    double Left = 0;
    double Right = 0;
    double Top = 0;
    double Bottom = 0;
};
void SetMargins(Options& options, SettingsDoor& store, const Margins& margins);

/// The printer that was used last; empty if none was chosen yet.
[[nodiscard]] std::string GetPrinterName(const SettingsDoor& store);
void SetPrinterName(SettingsDoor& store, const std::string& name);

} // namespace zol::basPrinterOptions
