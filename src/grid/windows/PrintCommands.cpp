// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/PrintCommands.h"

#include <utility>

#include "grid/tools/EditBox.h"
#include "grid/windows/MainCommands.h"
#include "print/windows/PrinterChoice.h"
#include "print/windows/frmPrintOptions.h"
#include "settings/basPrinterOptions.h"

namespace zol {

PrintCommands::PrintCommands(MainCommands& commands, const Workshop& workshop, EditBox& box,
                             QWidget& window, std::function<void(QWidget* parent)> openOptions)
    : m_box(box),
      m_window(window),
      m_desk{workshop.Open,
             workshop.Context,
             workshop.Settings,
             workshop.Store,
             workshop.Messages,
             workshop.Files,
             workshop.Printers,
             m_gspi,
             [this] { return Selection(); },
             std::move(openOptions)} {
    commands.Connect("mnuFilePrintPreview", &window, [this] { Print(PrintPlan::Form::Pattern); });
    commands.Connect("mnuFileSavePdf", &window, [this] { SavePdf(); });
    commands.Connect("mnuPrintColorKey", &window, [this] { Print(PrintPlan::Form::ColorKey); });
    commands.Connect("mnuFilePageSetup", &window, [this] { SetUpPage(); });
}

std::optional<SelectedArea> PrintCommands::Selection() {
    Pattern* content = m_box.ContentWithHeader();
    if (content == nullptr) {
        return std::nullopt;
    }
    const SquareRect rect = m_box.GetEditBoxRect();
    return SelectedArea{content, {rect.Left, rect.Top}};
}

void PrintCommands::Print(PrintPlan::Form form) {
    if (!PrinterChoice::NeedPrinter(m_desk)) {
        return;
    }
    frmPrintOptions dialog(m_desk, form, &m_window);
    dialog.exec();
}

void PrintCommands::SavePdf() {
    // The paper is the printer's where there is one, but none is needed.
    PrinterChoice::FindPrinter(m_desk);
    frmPrintOptions dialog(m_desk, PrintPlan::Form::Pattern, &m_window);
    dialog.PreferPdf();
    dialog.exec();
}

void PrintCommands::SetUpPage() {
    PrinterChoice::FindPrinter(m_desk);
    const Options& settings = m_desk.Settings;
    const auto margins =
        m_desk.Printers.SetUpPage(&m_window, {settings.LeftMargin, settings.TopMargin,
                                              settings.RightMargin, settings.BottomMargin});
    if (margins) {
        basPrinterOptions::SetMargins(
            m_desk.Settings, m_desk.Store,
            {margins->left(), margins->right(), margins->top(), margins->bottom()});
    }
}

} // namespace zol
