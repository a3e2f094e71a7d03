// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/JobPrinting.h"

#include "print/windows/PrinterChoice.h"
#include "print/windows/frmPrinting.h"

namespace zol {

PrintJob::State PrintOnPrinter(PrintDesk& desk, PrintFuncs& job, QWidget* parent) {
    PageDevice* printer = desk.Printers.Printer();
    if (printer == nullptr || !PrinterChoice::MayPrint(desk)) {
        return PrintJob::State::Cancelled;
    }
    job.SetPreviewMode(false);
    desk.Printers.NameDocument(QString::fromStdString(desk.Open.Get().WindowTitle()));
    frmPrinting window(parent);
    std::string fault;
    PrintJob::State state = PrintJob::State::Failed;
    window.Run([&](ProgressDoor& progress) {
        PrintJob pages(job, *printer, &progress);
        state = pages.Run();
        fault = pages.ErrorText();
    });
    if (state == PrintJob::State::Failed) {
        desk.Messages.TellMore(fault,
                               "Nothing was printed, and all choices stay as they are. The "
                               "pages can be saved as a PDF.",
                               MessageIcon::Exclamation, "Print");
    }
    return state;
}

} // namespace zol
