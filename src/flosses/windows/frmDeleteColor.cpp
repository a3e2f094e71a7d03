// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/frmDeleteColor.h"

#include <QPushButton>

#include "flosses/windows/FlossText.h"

#include "flosses/windows/ui_frmDeleteColor.h"
#include "windowkit/DialogSize.h"
#include "windowkit/Spelling.h"

namespace zol {

frmDeleteColor::frmDeleteColor(const Palette& palette, const RemovalQuestion& question,
                               SettingsDoor& store, QWidget* parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmDeleteColor>()) {
    m_ui->setupUi(this);
    Spell(*this, palette.Context());
    QPushButton* remove = m_ui->buttonBox->button(QDialogButtonBox::Ok);
    remove->setObjectName(QStringLiteral("cmdOK"));
    remove->setText(QStringLiteral("Remove"));
    m_ui->buttonBox->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    m_ui->lblStitches->setText(Spelled(QString::fromStdString(question.Text), palette.Context()));
    m_ui->picDeleteColor->SetColor(palette.GetFlossRGB(question.Entry));
    m_ui->lblDeleteDesc->setText(FlossText::LongDescription(palette, question.Entry));
    m_ui->picReplaceColor->SetColor(palette.GetFlossRGB(question.Closest));
    m_ui->lblReplaceDesc->setText(FlossText::LongDescription(palette, question.Closest));
    m_ui->optReplaceStitches->setFocus();
    adjustSize();
    RememberSize(*this, store);
}

frmDeleteColor::~frmDeleteColor() = default;

RemovalAnswer frmDeleteColor::Answer() const {
    return m_ui->optReplaceStitches->isChecked() ? RemovalAnswer::ReplaceStitches
                                                 : RemovalAnswer::DeleteStitches;
}

} // namespace zol
