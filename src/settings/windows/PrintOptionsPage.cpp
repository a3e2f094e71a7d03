// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/windows/PrintOptionsPage.h"

#include <QFontDialog>
#include <QPushButton>

#include "settings/ColorLists.h"
#include "settings/Margins.h"
#include "settings/windows/ui_PrintOptionsPage.h"
#include "windowkit/ComboItems.h"

namespace zol {

namespace {

/// The members of the record that make a font.
struct FontMembers {
    std::string Options::*Name;
    bool Options::*Bold;
    bool Options::*Italic;
    bool Options::*Underline;
    int Options::*Size;
};

constexpr FontMembers InfoFont{&Options::TextInfoFontName, &Options::TextInfoFontBold,
                               &Options::TextInfoFontItalic, &Options::TextInfoFontUnderline,
                               &Options::TextInfoFontSize};
constexpr FontMembers SymbolFont{&Options::SymbolFontName, &Options::SymbolFontBold,
                                 &Options::SymbolFontItalic, &Options::SymbolFontUnderline,
                                 &Options::SymbolFontSize};

QFont FontOf(const Options& options, const FontMembers& members) {
    QFont font(QString::fromStdString(options.*members.Name), qMax(options.*members.Size, 1));
    font.setBold(options.*members.Bold);
    font.setItalic(options.*members.Italic);
    font.setUnderline(options.*members.Underline);
    return font;
}

void PutFont(const QFont& font, Options& options, const FontMembers& members) {
    options.*members.Name = font.family().toStdString();
    options.*members.Bold = font.bold();
    options.*members.Italic = font.italic();
    options.*members.Underline = font.underline();
    options.*members.Size = qMax(font.pointSize(), 1);
}

} // namespace

PrintOptionsPage::PrintOptionsPage(const OptionsDesk& desk, QWidget* parent)
    : OptionsPage(desk, parent),
      m_ui(std::make_unique<Ui::PrintOptionsPage>()) {
    m_ui->setupUi(this);
    OptionBindings& bindings = Bindings();
    bindings.Bind(*m_ui->cmbPSDA, &Options::StitchSymbol);
    bindings.Bind(*m_ui->cmbPLDA, &Options::BackStitchSymbol);
    bindings.Bind(*m_ui->chkPrintGridLines, &Options::PrintGridLines);
    bindings.Bind(*m_ui->chkPrintPageNumbers, &Options::PrintPageNumbers);
    bindings.Bind(*m_ui->cmbPNormalGLWidth, &Options::PrintGridLineWidthPercentage1);
    bindings.Bind(*m_ui->cmbPNormalGLColor, &Options::PrintGridlineColor1Index);
    bindings.Bind(*m_ui->cmbPBoldGLWidth, &Options::PrintGridLineWidthPercentage2);
    bindings.Bind(*m_ui->cmbPBoldGLColor, &Options::PrintGridlineColor2Index);
    bindings.Bind(*m_ui->cmbPBackStitchWidth, &Options::PrintBackStitchLineWidthPercentage);
    bindings.Bind(*m_ui->ChkPrintManuID, &Options::PrintManuID);
    bindings.Bind(*m_ui->ChkPrintManuDesc, &Options::PrintManuDesc);
    bindings.Bind(*m_ui->Chkstrandcount, &Options::PrintStrands);
    for (const ColorChoice& choice : ColorChoices()) {
        ConnectCustomize(choice);
    }
    connect(m_ui->cmdPatInfofont, &QPushButton::clicked, this, [this] { ChooseFont(m_infoFont); });
    connect(m_ui->cmdSymbolFont, &QPushButton::clicked, this, [this] { ChooseFont(m_symbolFont); });
}

PrintOptionsPage::~PrintOptionsPage() = default;

std::vector<OptionsPage::ColorChoice> PrintOptionsPage::ColorChoices() const {
    return {{m_ui->cmbPNormalGLColor, m_ui->cmdPNormalGLCust, ColorLists::PrintNormalList},
            {m_ui->cmbPBoldGLColor, m_ui->cmdPBoldGLCust, ColorLists::PrintBoldList}};
}

std::array<PrintOptionsPage::Margin, 4> PrintOptionsPage::MarginFields() const {
    return {{{m_ui->txtLeftMargin, &Options::LeftMargin},
             {m_ui->txtRightMargin, &Options::RightMargin},
             {m_ui->txtTopMargin, &Options::TopMargin},
             {m_ui->txtBottomMargin, &Options::BottomMargin}}};
}

void PrintOptionsPage::FillOptionLists() {
    FillCombo(*m_ui->cmbPSDA, OptionLists::PrintStitchStyles(ColorWord()));
    FillCombo(*m_ui->cmbPLDA, OptionLists::PrintLineStyles(ColorWord()));
    for (QComboBox* widths :
         {m_ui->cmbPNormalGLWidth, m_ui->cmbPBoldGLWidth, m_ui->cmbPBackStitchWidth}) {
        FillCombo(*widths, OptionLists::WidthPercents());
    }
    for (const ColorChoice& choice : ColorChoices()) {
        FillColors(choice);
    }
}

void PrintOptionsPage::LoadOptionControls(const Options& options) {
    OptionsPage::LoadOptionControls(options);
    m_inches = options.UsesInches();
    for (const Margin& margin : MarginFields()) {
        margin.Field->setText(Margins::Text(options.*margin.Member, m_inches));
    }
    m_infoFont = FontOf(options, InfoFont);
    m_symbolFont = FontOf(options, SymbolFont);
    ShowUnit();
    ShowFonts();
}

void PrintOptionsPage::ApplyOptionControls(Options& options) const {
    OptionsPage::ApplyOptionControls(options);
    for (const Margin& margin : MarginFields()) {
        options.*margin.Member =
            Margins::Inches(margin.Field->text(), m_inches, options.*margin.Member);
    }
    PutFont(m_infoFont, options, InfoFont);
    PutFont(m_symbolFont, options, SymbolFont);
    if (Desk().Context.FontCharSet) {
        options.SymbolFontCharSet = Desk().Context.FontCharSet(options.SymbolFontName);
    }
}

void PrintOptionsPage::ChangeUnits(bool inches) {
    if (inches == m_inches) {
        return;
    }
    m_inches = inches;
    for (const Margin& margin : MarginFields()) {
        margin.Field->setText(Margins::Convert(margin.Field->text(), inches));
    }
    ShowUnit();
}

void PrintOptionsPage::ShowUnit() {
    m_ui->lblMargins->setText(m_inches ? QStringLiteral("Printer Margins (Inches):")
                                       : QStringLiteral("Printer Margins (Centimetres):"));
}

void PrintOptionsPage::ChooseFont(QFont& font) {
    QFontDialog dialog(font, this);
    dialog.setObjectName(QStringLiteral("dlgFont"));
    if (dialog.exec() == QDialog::Accepted) {
        font = dialog.selectedFont();
        ShowFonts();
    }
}

void PrintOptionsPage::ShowFonts() {
    m_ui->lblPatInfoFont->setText(m_infoFont.family() + QLatin1Char(' ') +
                                  QString::number(m_infoFont.pointSize()));
    m_ui->lblSymbolFont->setText(m_symbolFont.family());
}

} // namespace zol
