// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/PdfSaving.h"

#include "model/SafeFile.h"
#include "print/PdfJob.h"
#include "print/windows/frmPrinting.h"

namespace zol {

namespace {

constexpr char Title[] = "Save as PDF";

/// The design's file with another ending, in the folder of the last save.
FileChoice ChoiceFor(PrintDesk& desk) {
    FileChoice choice;
    choice.Title = Title;
    choice.Filter = "PDF Files|*.pdf";
    choice.DefaultExtension = "pdf";
    const std::filesystem::path file = PathOf(desk.Open.Get().FileName());
    choice.Folder =
        file.has_parent_path() ? file.parent_path() : PathOf(desk.Settings.LastPatSaveLoc);
    choice.SuggestedName = file.empty() ? "chart.pdf" : PathText(file.stem()) + ".pdf";
    return choice;
}

} // namespace

bool SaveJobAsPdf(PrintDesk& desk, PrintFuncs& job, QWidget* parent) {
    const auto path = desk.Files.AskSaveFile(ChoiceFor(desk));
    if (!path) {
        return false;
    }
    PdfResult result;
    frmPrinting window(parent);
    window.setWindowTitle(QLatin1String(Title));
    window.Run([&](ProgressDoor& progress) { result = WritePdf(job, *path, &progress); });
    if (!result.ErrorText.empty()) {
        desk.Messages.TellMore(result.ErrorText,
                               "The PDF was not written. A file of that name is as it was.",
                               MessageIcon::Exclamation, Title);
    }
    return result.IsWhole();
}

} // namespace zol
