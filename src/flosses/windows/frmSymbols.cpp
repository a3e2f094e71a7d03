// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/frmSymbols.h"

#include <QApplication>
#include <QPushButton>

#include "flosses/windows/ui_frmSymbols.h"
#include "windowkit/DialogSize.h"
#include "windowkit/Spelling.h"

namespace zol {

frmSymbols::frmSymbols(const Palette& palette, int entry, const std::optional<FlossLook>& look,
                       MessageDoor& messages, SettingsDoor& store, QWidget* parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmSymbols>()),
      m_palette(palette),
      m_choice(palette, entry, messages) {
    m_ui->setupUi(this);
    Spell(*this, palette.Context());
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
    m_ui->buttonBox->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    m_ui->picGrid->SetChoice(m_choice, palette);
    m_ui->picFlossColor->setVisible(look.has_value());
    m_ui->lblFlossDesc->setText(look ? QString::fromStdString(look->Description)
                                     : QStringLiteral("New floss"));
    if (look) {
        m_ui->picFlossColor->SetColor(look->RGB);
    }
    connect(m_ui->picGrid, &SymbolGrid::Chosen, this, &frmSymbols::ShowChoice);
    connect(m_ui->picGrid, &SymbolGrid::Taken, this, &QDialog::accept);
    ShowChoice();
    m_ui->picGrid->setFocus();
    adjustSize();
    RememberSize(*this, store);
}

frmSymbols::~frmSymbols() = default;

void frmSymbols::ShowChoice() {
    const int place = m_choice.Chosen();
    m_ui->picSymbol->SetSymbol(m_palette, place > 0 ? SymbolChoice::CodeAt(place) : 0);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(place > 0);
}

std::optional<std::string> SymbolWindow::ChooseSymbol(const Palette& palette) {
    frmSymbols window(palette, SymbolChoice::NewEntry, std::nullopt, m_messages, m_store,
                      QApplication::activeWindow());
    return window.exec() == QDialog::Accepted ? std::optional(window.Symbol()) : std::nullopt;
}

} // namespace zol
