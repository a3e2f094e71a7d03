// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/basPrinterOptions.h"

#include "settings/basOptions.h"

namespace zol::basPrinterOptions {

namespace {

constexpr const char* PrinterSection = "Printer Opts";
constexpr const char* PrinterName = "PrinterName";

} // namespace

void SetPrintGridLines(Options& options, SettingsDoor& store, bool print) {
    options.PrintGridLines = print;
    basOptions::SaveOption(options, store, PrinterSection, "PrintGridLines");
}

void SetStitchSymbol(Options& options, SettingsDoor& store, int style) {
    options.StitchSymbol = style;
    basOptions::SavePrintStyles(options, store);
}

void SetBackStitchSymbol(Options& options, SettingsDoor& store, int style) {
    options.BackStitchSymbol = style;
    basOptions::SavePrintStyles(options, store);
}

void SetMargins(Options& options, SettingsDoor& store, const Margins& margins) {
    options.LeftMargin = margins.Left;
    options.RightMargin = margins.Right;
    options.TopMargin = margins.Top;
    options.BottomMargin = margins.Bottom;
    for (const char* name : {"LeftMargin", "RightMargin", "TopMargin", "BottomMargin"}) {
        basOptions::SaveOption(options, store, PrinterSection, name);
    }
}

std::string GetPrinterName(const SettingsDoor& store) {
    return store.ReadSetting(PrinterSection, PrinterName, "");
}

void SetPrinterName(SettingsDoor& store, const std::string& name) {
    store.WriteSetting(PrinterSection, PrinterName, name);
}

} // namespace zol::basPrinterOptions
