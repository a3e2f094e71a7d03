// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/SystemPrinter.h"

#include <QDialogButtonBox>
#include <QLocale>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrintEngine>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>

#include <algorithm>

#include "print/Paper.h"

namespace zol {

namespace {

/// Under this key the print engine keeps what was chosen among the options of the print server, as
/// a list of names and values by turns. Qt gives it no public name.
constexpr auto CupsOptionsKey = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00);

QByteArray SidesOf(const QPrinter& printer) {
    const bool portrait = printer.pageLayout().orientation() == QPageLayout::Portrait;
    switch (printer.duplex()) {
    case QPrinter::DuplexLongSide:
        return "two-sided-long-edge";
    case QPrinter::DuplexShortSide:
        return "two-sided-short-edge";
    case QPrinter::DuplexAuto:
        return portrait ? "two-sided-long-edge" : "two-sided-short-edge";
    case QPrinter::DuplexNone:
        break;
    }
    return "one-sided";
}

/// Margins that a layout takes: none lies in the printer's border.
QMarginsF OutsideBorder(const QMarginsF& margins, const QMarginsF& border) {
    return {std::max(margins.left(), border.left()), std::max(margins.top(), border.top()),
            std::max(margins.right(), border.right()), std::max(margins.bottom(), border.bottom())};
}

} // namespace

SystemPrinter::SystemPrinter()
    : m_pages([this](const std::filesystem::path& pdf) { return HandOver(pdf); }) {
    m_pages.SetPaper(zol::Paper(QLocale()).Layout());
}

SystemPrinter::~SystemPrinter() = default;

bool SystemPrinter::IsPrinterDefined() {
    const QStringList names = QPrinterInfo::availablePrinterNames();
    if (names.isEmpty()) {
        m_printer.reset();
        FollowPaper();
        return false;
    }
    if (m_printer == nullptr || !names.contains(m_printer->printerName())) {
        const QString usual = QPrinterInfo::defaultPrinterName();
        Take(names.contains(usual) ? usual : names.first());
    }
    return true;
}

void SystemPrinter::Take(const QString& deviceName) {
    m_printer =
        std::make_unique<QPrinter>(QPrinterInfo::printerInfo(deviceName), QPrinter::HighResolution);
    FollowPaper();
}

void SystemPrinter::FollowPaper() {
    QPageLayout paper = m_pages.Paper();
    if (m_printer == nullptr) {
        paper = QPageLayout(paper.pageSize(), paper.orientation(), QMarginsF(), QPageLayout::Point);
    } else {
        QPageLayout layout = m_printer->pageLayout();
        layout.setUnits(QPageLayout::Point);
        paper = QPageLayout(layout.pageSize(), layout.orientation(), layout.minimumMargins(),
                            QPageLayout::Point);
    }
    m_pages.SetPaper(paper);
}

QString SystemPrinter::DeviceName() const {
    return m_printer == nullptr ? QString() : m_printer->printerName();
}

PageDevice* SystemPrinter::Printer() {
    return m_printer == nullptr ? nullptr : &m_pages;
}

bool SystemPrinter::ChoosePrinter(QWidget* parent) {
    if (m_printer == nullptr) {
        return false;
    }
    QPrintDialog dialog(m_printer.get(), parent);
    dialog.setObjectName(QStringLiteral("dlgPrinter"));
    dialog.setWindowTitle(QStringLiteral("Printer Setup"));
    dialog.setOptions(QAbstractPrintDialog::PrintCollateCopies |
                      QAbstractPrintDialog::PrintShowPageSize);
    // Nothing is printed from here yet.
    if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
        if (QPushButton* ok = buttons->button(QDialogButtonBox::Ok)) {
            ok->setText(QStringLiteral("&Use Printer"));
        }
    }
    const bool chosen = dialog.exec() == QDialog::Accepted;
    if (chosen) {
        FollowPaper();
    }
    return chosen;
}

void SystemPrinter::NameDocument(const QString& name) {
    m_document = name;
    m_pages.SetTitle(name);
}

bool SystemPrinter::SelectPrinter(const QString& deviceName) {
    if (deviceName == DeviceName() && !deviceName.isEmpty()) {
        return true;
    }
    if (deviceName.isEmpty() || !QPrinterInfo::availablePrinterNames().contains(deviceName)) {
        return false;
    }
    Take(deviceName);
    return true;
}

PrinterState SystemPrinter::State() {
    return m_printer == nullptr ? PrinterState::Gone : CupsQueue::StateOf(DeviceName());
}

std::optional<QMarginsF> SystemPrinter::SetUpPage(QWidget* parent, const QMarginsF& margins) {
    std::unique_ptr<QPrinter> paperOnly;
    if (m_printer == nullptr) {
        paperOnly = std::make_unique<QPrinter>(QPrinter::HighResolution);
        paperOnly->setOutputFormat(QPrinter::PdfFormat);
        paperOnly->setPageLayout(m_pages.Paper());
    }
    QPrinter& printer = m_printer != nullptr ? *m_printer : *paperOnly;
    QPageLayout layout = printer.pageLayout();
    layout.setUnits(QPageLayout::Inch);
    layout.setMargins(OutsideBorder(margins, layout.minimumMargins()));
    printer.setPageLayout(layout);
    QPageSetupDialog dialog(&printer, parent);
    dialog.setObjectName(QStringLiteral("dlgPageSetup"));
    if (dialog.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    if (paperOnly != nullptr) {
        m_pages.SetPaper(paperOnly->pageLayout());
    }
    FollowPaper();
    return printer.pageLayout().margins(QPageLayout::Inch);
}

CupsQueue::JobOptions SystemPrinter::OptionsOfJob() const {
    const QPageLayout layout = m_printer->pageLayout();
    CupsQueue::JobOptions options{{"media", layout.pageSize().key().toLocal8Bit()},
                                  {"sides", SidesOf(*m_printer)}};
    if (m_printer->copyCount() > 1) {
        options.emplace_back("copies", QByteArray::number(m_printer->copyCount()));
        options.emplace_back("Collate", m_printer->collateCopies() ? "True" : "False");
    }
    if (m_printer->colorMode() == QPrinter::GrayScale) {
        options.emplace_back("print-color-mode", "monochrome");
    }
    if (m_printer->pageOrder() == QPrinter::LastPageFirst) {
        options.emplace_back("outputorder", "reverse");
    }
    if (layout.orientation() == QPageLayout::Landscape) {
        options.emplace_back("landscape", "");
    }
    const QStringList chosen = m_printer->printEngine()->property(CupsOptionsKey).toStringList();
    for (qsizetype i = 0; i + 1 < chosen.size(); i += 2) {
        options.emplace_back(chosen[i].toLocal8Bit(), chosen[i + 1].toLocal8Bit());
    }
    return options;
}

std::string SystemPrinter::HandOver(const std::filesystem::path& pdf) const {
    if (m_printer == nullptr) {
        return "There is no printer any more.";
    }
    return CupsQueue::Submit(DeviceName(), pdf, m_document, OptionsOfJob());
}

} // namespace zol
