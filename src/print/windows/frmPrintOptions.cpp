// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/frmPrintOptions.h"

#include <QLayout>
#include <QPushButton>

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "print/KeptRange.h"
#include "print/windows/JobPrinting.h"
#include "print/windows/PdfSaving.h"
#include "print/windows/PrinterChoice.h"
#include "print/windows/frmPreview.h"
#include "print/windows/ui_frmPrintOptions.h"
#include "settings/basCommonFunctions.h"
#include "settings/basPrinterOptions.h"
#include "windowkit/ComboItems.h"
#include "windowkit/DialogSize.h"
#include "windowkit/NumericFilter.h"
#include "windowkit/SelectOnFocus.h"
#include "windowkit/Spelling.h"

namespace zol {

using basCommonFunctions::FieldText;
using basCommonFunctions::FieldValue;

namespace {

constexpr int PageDigits = 5;
constexpr int SizeDigits = 4;
constexpr int SizeDecimals = 2;

Paper PaperOf(const PrinterDoor& printers) {
    const QPageLayout layout = printers.Paper();
    return Paper(layout.pageSize(), layout.orientation() == QPageLayout::Landscape);
}

int PageIn(const QLineEdit& field) {
    return static_cast<int>(FieldValue(field.text()));
}

/// The fields behind them begin in one column.
void MakeEquallyWide(std::initializer_list<QWidget*> labels) {
    const auto width = [](const QWidget* label) { return label->sizeHint().width(); };
    const QWidget* widest = *std::max_element(
        labels.begin(), labels.end(),
        [&](const QWidget* one, const QWidget* other) { return width(one) < width(other); });
    for (QWidget* label : labels) {
        label->setMinimumWidth(width(widest));
    }
}

} // namespace

frmPrintOptions::frmPrintOptions(PrintDesk& desk, PrintPlan::Form form, QWidget* parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmPrintOptions>()),
      m_desk(desk),
      m_paper(PaperOf(desk.Printers)),
      m_selection(desk.Selection ? desk.Selection() : std::nullopt),
      m_plan(desk.OptionsNow(), Device(), desk.Open.Design(), form) {
    m_ui->setupUi(this);
    SetUpControls();
    Spell(*this, m_desk.Context); // before a printer's name stands there
    LoadCombos();
    ShowPrinter();
    ShowSize();
    ShowPages();
    ConnectControls();
    MakeEquallyWide({m_ui->optPages1, m_ui->lblGSPI, m_ui->lblStitchesAs, m_ui->lblBackStitchesAs});
    m_ui->cmdPrint->setFocus();
    if (m_plan.IsKeyOnly()) {
        layout()->setSizeConstraint(QLayout::SetFixedSize);
        return;
    }
    resize(sizeHint());
    RememberSize(*this, m_desk.Store);
}

frmPrintOptions::~frmPrintOptions() = default;

void frmPrintOptions::PreferPdf() {
    m_ui->cmdSavePdf->setDefault(true);
    m_ui->cmdSavePdf->setFocus();
}

PageDevice& frmPrintOptions::Device() {
    PageDevice* printer = m_desk.Printers.Printer();
    return printer != nullptr ? *printer : m_paper;
}

void frmPrintOptions::SetUpControls() {
    const bool keyOnly = m_plan.IsKeyOnly();
    setWindowTitle(keyOnly ? QStringLiteral("Print Color Key") : QStringLiteral("Print Pattern"));
    for (QWidget* frame : {m_ui->fraPageRange, m_ui->fraSize, m_ui->fraOptions}) {
        frame->setVisible(!keyOnly);
    }
    new NumericFilter(m_ui->txtFromPage, PageDigits, 0);
    new NumericFilter(m_ui->txtToPage, PageDigits, 0);
    new NumericFilter(m_ui->txtGSPI, SizeDigits, SizeDecimals);
    for (QLineEdit* field : {m_ui->txtFromPage, m_ui->txtToPage, m_ui->txtGSPI}) {
        new SelectOnFocus(field);
    }
    for (QWidget* part : std::initializer_list<QWidget*>{m_ui->lblGSPI, m_ui->txtGSPI}) {
        // What is below stays where it is when they are hidden.
        QSizePolicy policy = part->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        part->setSizePolicy(policy);
    }
    m_ui->chkPrintGridLines->setChecked(m_desk.Settings.PrintGridLines);
    m_ui->chkPrintColorKey->setChecked(m_plan.Job().Options().PrintColorKey);
    m_ui->chkSelectedOnly->setEnabled(m_selection.has_value());
    m_ui->txtFromPage->setText(QStringLiteral("1"));
}

void frmPrintOptions::ConnectControls() {
    connect(m_ui->optPages1, &QRadioButton::toggled, this, &frmPrintOptions::ChooseRange);
    connect(m_ui->chkFitPage, &QCheckBox::toggled, this, &frmPrintOptions::FitPage);
    connect(m_ui->txtGSPI, &QLineEdit::textEdited, this, &frmPrintOptions::TypeGSPI);
    connect(m_ui->chkPrintGridLines, &QCheckBox::toggled, this, [this](bool print) {
        basPrinterOptions::SetPrintGridLines(m_desk.Settings, m_desk.Store, print);
        m_plan.SetOptions(m_desk.OptionsNow());
    });
    connect(m_ui->chkSelectedOnly, &QCheckBox::toggled, this, &frmPrintOptions::PrintSelectedOnly);
    connect(m_ui->chkPrintColorKey, &QCheckBox::toggled, this, [this](bool print) {
        m_plan.SetPrintColorKey(print);
        ShowPages();
    });
    connect(m_ui->cmbStitchesAs, &QComboBox::activated, this, &frmPrintOptions::ChooseStyles);
    connect(m_ui->cmbBackStitchesAs, &QComboBox::activated, this, &frmPrintOptions::ChooseStyles);
    connect(m_ui->cmdAdvanced, &QPushButton::clicked, this, &frmPrintOptions::SetUpAdvanced);
    connect(m_ui->cmdPrinterSetup, &QPushButton::clicked, this, &frmPrintOptions::SetUpPrinter);
    connect(m_ui->cmdSavePdf, &QPushButton::clicked, this, &frmPrintOptions::SavePdf);
    connect(m_ui->cmdPreview, &QPushButton::clicked, this, &frmPrintOptions::Preview);
    connect(m_ui->cmdPrint, &QPushButton::clicked, this, &frmPrintOptions::Print);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &frmPrintOptions::reject);
}

void frmPrintOptions::LoadCombos() {
    const std::string word = m_desk.Context.ColorWord();
    FillCombo(*m_ui->cmbStitchesAs, OptionLists::PrintStitchStyles(word));
    FillCombo(*m_ui->cmbBackStitchesAs, OptionLists::PrintLineStyles(word));
    SetCombo(*m_ui->cmbStitchesAs, m_desk.Settings.StitchSymbol);
    SetCombo(*m_ui->cmbBackStitchesAs, m_desk.Settings.BackStitchSymbol);
}

void frmPrintOptions::ShowPrinter() {
    const bool isThere = m_desk.Printers.Printer() != nullptr;
    // The blank behind the name keeps it clear of what stands beside it.
    m_ui->lblPrinter->setText(isThere ? m_desk.Printers.DeviceName() + QLatin1Char(' ')
                                      : QStringLiteral("No printer"));
    m_ui->cmdPrint->setEnabled(isThere);
    m_ui->cmdPrint->setToolTip(isThere ? QString()
                                       : tr("There is no printer; a PDF can be saved without one"));
    m_ui->cmdPrinterSetup->setEnabled(isThere);
}

void frmPrintOptions::ShowSize() {
    const bool inches = m_desk.Settings.UsesInches();
    QString label = QString::fromStdString(GSPILabel(inches));
    m_ui->lblGSPI->setText(label.insert(label.indexOf(QLatin1Char('q')), QLatin1Char('&')));
    m_ui->txtGSPI->setText(FieldText(GSPIFieldText(m_plan.GSPI(), inches)));
}

void frmPrintOptions::ShowPages() {
    const int last = m_plan.LastPage();
    m_ui->optPages0->setText(QString::fromStdString(AllPagesCaption(last)));
    m_ui->txtToPage->setText(QString::number(last));
    if (m_plan.FitsPage()) {
        m_desk.GSPI = m_plan.GSPI();
        ShowSize();
    }
}

void frmPrintOptions::ChooseRange() {
    const bool range = m_ui->optPages1->isChecked();
    for (QLineEdit* field : {m_ui->txtFromPage, m_ui->txtToPage}) {
        field->setEnabled(range);
    }
    if (range) {
        m_ui->txtFromPage->setText(QStringLiteral("1"));
        m_ui->txtToPage->setText(QString::number(m_plan.LastPage()));
    }
}

void frmPrintOptions::TypeGSPI(const QString& text) {
    const double typed = FieldValue(text);
    if (text.isEmpty() || typed <= 0) {
        return;
    }
    m_desk.GSPI = GSPIFromField(typed, m_desk.Settings.UsesInches());
    m_plan.SetGSPI(m_desk.GSPI);
    ShowPages();
}

void frmPrintOptions::FitPage(bool fit) {
    m_ui->lblGSPI->setHidden(fit);
    m_ui->txtGSPI->setHidden(fit);
    m_plan.SetFitPage(fit);
    ShowPages();
}

void frmPrintOptions::PrintSelectedOnly(bool selected) {
    if (selected && m_selection) {
        m_plan.PrintSelection(*m_selection->Content, m_selection->Corner);
    } else {
        m_plan.PrintWhole(m_desk.Open.Design());
    }
    ShowPages();
}

void frmPrintOptions::ChooseStyles() {
    basPrinterOptions::SetStitchSymbol(m_desk.Settings, m_desk.Store,
                                       m_ui->cmbStitchesAs->currentData().toInt());
    basPrinterOptions::SetBackStitchSymbol(m_desk.Settings, m_desk.Store,
                                           m_ui->cmbBackStitchesAs->currentData().toInt());
    m_plan.SetOptions(m_desk.OptionsNow());
    ShowPages();
}

void frmPrintOptions::SetUpPrinter() {
    if (PrinterChoice::ChoosePrinter(m_desk, this)) {
        m_plan.SetPrinter(Device());
        ShowPrinter();
        ShowPages();
    }
}

void frmPrintOptions::SetUpAdvanced() {
    m_desk.OpenOptions(this);
    LoadCombos();
    m_ui->chkPrintGridLines->setChecked(m_desk.Settings.PrintGridLines);
    m_plan.SetOptions(m_desk.OptionsNow());
    ShowSize();
    ShowPages();
}

PrintRequest frmPrintOptions::Request() {
    PrintRequest request;
    request.GSPI = m_plan.FitsPage() ? m_plan.GSPI() : FieldValue(m_ui->txtGSPI->text());
    if (m_ui->optPages1->isChecked()) {
        request.FromPage = PageIn(*m_ui->txtFromPage);
        request.ToPage = PageIn(*m_ui->txtToPage);
    } else {
        request.ToPage = m_plan.LastPage();
    }
    return request;
}

bool frmPrintOptions::Validate() {
    const PrintRequestFault fault = m_plan.Check(Request());
    if (fault.Text.empty()) {
        return true;
    }
    m_desk.Messages.Tell(fault.Text, MessageIcon::Exclamation, "Print");
    const auto focus = [](QLineEdit* field) {
        field->setFocus();
        field->selectAll();
    };
    switch (fault.Field) {
    case PrintField::GSPI:
        focus(m_ui->txtGSPI);
        break;
    case PrintField::FromPage:
        focus(m_ui->txtFromPage);
        break;
    case PrintField::ToPage:
        focus(m_ui->txtToPage);
        break;
    case PrintField::None:
        break;
    }
    return false;
}

bool frmPrintOptions::PrepareJob() {
    if (!Validate()) {
        return false;
    }
    if (PrinterChoice::WantsRaisedMargins(m_desk, m_plan.Job())) {
        m_plan.RaisePrintMargins();
        PrinterChoice::KeepMargins(m_desk, m_plan.Job());
        const QString to = m_ui->txtToPage->text();
        ShowPages();
        if (m_ui->optPages1->isChecked()) {
            m_ui->txtToPage->setText(to);
        }
        // Less room may take more pages, or leave none.
        if (!Validate()) {
            return false;
        }
    }
    const PrintRequest request = Request();
    m_plan.Job().SetPrintRange(request.FromPage, request.ToPage, m_plan.IsKeyOnly());
    m_plan.Job().SetPrintCancelled(false);
    return true;
}

void frmPrintOptions::Preview() {
    if (!PrepareJob()) {
        return;
    }
    frmPreview(m_desk, m_plan.Job(), this).exec();
}

void frmPrintOptions::Print() {
    if (!PrepareJob()) {
        return;
    }
    const KeptRange kept(m_plan.Job());
    if (PrintOnPrinter(m_desk, m_plan.Job(), this) == PrintJob::State::Done) {
        accept();
    }
}

void frmPrintOptions::SavePdf() {
    if (!Validate()) {
        return;
    }
    const PrintRequest request = Request();
    m_plan.Job().SetPrintRange(request.FromPage, request.ToPage, m_plan.IsKeyOnly());
    if (SaveJobAsPdf(m_desk, m_plan.Job(), this)) {
        accept();
    }
}

} // namespace zol
