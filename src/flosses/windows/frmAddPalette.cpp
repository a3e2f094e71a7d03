// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/frmAddPalette.h"

#include <QPushButton>

#include "flosses/windows/ui_frmAddPalette.h"
#include "windowkit/DialogSize.h"
#include "windowkit/Spelling.h"

namespace zol {

frmAddPalette::frmAddPalette(Colour mixed, bool maySave, const ProgramContext& context,
                             SettingsDoor& store, QWidget* parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmAddPalette>()),
      m_mixed(mixed) {
    m_ui->setupUi(this);
    // The one with quotation marks is the name of a catalogue.
    const QString saving = m_ui->chkMyColors->text();
    Spell(*this, context);
    m_ui->chkMyColors->setText(saving);
    QPushButton* add = m_ui->buttonBox->button(QDialogButtonBox::Ok);
    add->setObjectName(QStringLiteral("cmdOK"));
    add->setText(QStringLiteral("Add"));
    m_ui->buttonBox->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    m_ui->picColor->SetColor(mixed);
    m_ui->chkMyColors->setVisible(maySave);
    m_ui->chkMyColors->setChecked(false);
    m_ui->txtDescription->setText(QStringLiteral("<Enter Description>"));
    m_ui->txtDescription->selectAll();
    m_ui->txtID->setFocus();
    adjustSize();
    RememberSize(*this, store);
}

frmAddPalette::~frmAddPalette() = default;

CustomFloss frmAddPalette::Floss() const {
    return {m_mixed, m_ui->txtID->text().toStdString(), m_ui->txtDescription->text().toStdString(),
            m_ui->chkMyColors->isChecked()};
}

} // namespace zol
