// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/PrinterChoice.h"

#include "settings/basPrinterOptions.h"

namespace zol::PrinterChoice {

namespace {

constexpr char Title[] = "Print";
constexpr char NothingLost[] =
    "Nothing was printed, and all choices stay as they are. Choose another printer with Printer "
    "Setup, or save the pages as a PDF.";

} // namespace

bool FindPrinter(PrintDesk& desk) {
    if (!desk.Printers.IsPrinterDefined()) {
        return false;
    }
    const std::string name = basPrinterOptions::GetPrinterName(desk.Store);
    if (!name.empty()) {
        desk.Printers.SelectPrinter(QString::fromStdString(name));
    }
    return desk.Printers.Printer() != nullptr;
}

bool NeedPrinter(PrintDesk& desk) {
    if (FindPrinter(desk)) {
        return true;
    }
    TellNoPrinter(desk);
    return false;
}

void TellNoPrinter(PrintDesk& desk) {
    desk.Messages.TellMore(NoPrinterText,
                           "The pages can be saved as a PDF: choose Save Chart as PDF in the File "
                           "menu.",
                           MessageIcon::Exclamation, Title);
}

bool ChoosePrinter(PrintDesk& desk, QWidget* parent) {
    if (!desk.Printers.ChoosePrinter(parent)) {
        return false;
    }
    basPrinterOptions::SetPrinterName(desk.Store, desk.Printers.DeviceName().toStdString());
    return true;
}

bool MayPrint(PrintDesk& desk) {
    const std::string name = desk.Printers.DeviceName().toStdString();
    switch (desk.Printers.State()) {
    case PrinterState::Ready:
        return true;
    case PrinterState::Paused:
        return desk.Messages.Ask("The printer \"" + name +
                                     "\" is paused.  The pages will wait until it goes on.\n\n"
                                     "Do you wish to print all the same?",
                                 MessageIcon::Question, MessageButtons::YesNo,
                                 Title) == MessageAnswer::Yes;
    case PrinterState::Refusing:
        desk.Messages.TellMore("The printer \"" + name + "\" takes no jobs at present.",
                               NothingLost, MessageIcon::Exclamation, Title);
        return false;
    case PrinterState::Gone:
        break;
    }
    desk.Messages.TellMore("The printer \"" + name + "\" is not there any more.", NothingLost,
                           MessageIcon::Exclamation, Title);
    return false;
}

bool WantsRaisedMargins(PrintDesk& desk, const PrintFuncs& job) {
    return job.CheckPrintMargins() &&
           desk.Messages.Ask(MarginQuestion, MessageIcon::Question, MessageButtons::YesNo, Title) ==
               MessageAnswer::Yes;
}

void KeepMargins(PrintDesk& desk, const PrintFuncs& job) {
    const PrintOptions& options = job.Options();
    basPrinterOptions::SetMargins(
        desk.Settings, desk.Store,
        {options.LeftMargin, options.RightMargin, options.TopMargin, options.BottomMargin});
}

} // namespace zol::PrinterChoice
