// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/frmColorListItem.h"

#include <QPushButton>

#include "flosses/windows/ColorDialog.h"
#include "flosses/windows/ui_frmColorListItem.h"
#include "windowkit/Spelling.h"

namespace zol {

frmColorListItem::frmColorListItem(const std::optional<ColorLists::NamedColor>& line,
                                   MessageDoor& messages, const ProgramContext& context,
                                   QWidget* parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmColorListItem>()),
      m_messages(messages) {
    m_ui->setupUi(this);
    Spell(*this, context);
    QPushButton* ok = m_ui->buttonBox->button(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("cmdOK"));
    m_ui->buttonBox->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    if (line) {
        m_ui->txtDesc->setText(QString::fromStdString(line->Description));
        m_ui->picColor->SetColor(line->Value);
    } else {
        ok->setText(QStringLiteral("&Add"));
    }
    connect(m_ui->cmdColor, &QPushButton::clicked, this, &frmColorListItem::ChooseColor);
    connect(m_ui->buttonBox, &QDialogButtonBox::accepted, this, &frmColorListItem::accept);
}

frmColorListItem::~frmColorListItem() = default;

ColorLists::NamedColor frmColorListItem::Line() const {
    return {m_ui->txtDesc->text().trimmed().toStdString(), m_ui->picColor->Color().value_or(0)};
}

void frmColorListItem::ChooseColor() {
    if (const auto color = AskColor(m_ui->picColor->Color().value_or(0), this)) {
        m_ui->picColor->SetColor(color);
    }
}

void frmColorListItem::accept() {
    if (Line().Description.empty()) {
        m_messages.Tell("You must provide a description.", MessageIcon::Exclamation, "Colors");
        m_ui->txtDesc->setFocus();
        m_ui->txtDesc->selectAll();
        return;
    }
    QDialog::accept();
}

} // namespace zol
