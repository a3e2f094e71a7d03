// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/frmClothColors.h"

#include <QPushButton>

#include "flosses/windows/ColorDialog.h"
#include "flosses/windows/ColorSample.h"
#include "flosses/windows/ui_frmClothColors.h"
#include "model/ProgramContext.h"
#include "windowkit/DialogSize.h"
#include "windowkit/Spelling.h"

namespace zol {

frmClothColors::frmClothColors(int list, SettingsDoor& store, const ProgramContext& context,
                               QWidget* parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmClothColors>()),
      m_list(list),
      m_store(store),
      m_lines(ColorLists::LoadColorsList(store, list)) {
    m_ui->setupUi(this);
    m_ui->buttonBox->button(QDialogButtonBox::Close)->setObjectName(QStringLiteral("cmdClose"));
    setWindowTitle(QString::fromStdString(ColorLists::CaptionOf(list, context.BritishSpelling)));
    Spell(*this, context);
    ShowColorsList();
    connect(m_ui->picList, &QListWidget::currentRowChanged, this, &frmClothColors::ShowSelected);
    connect(m_ui->txtDescription, &QLineEdit::textEdited, this, &frmClothColors::ChangeText);
    connect(m_ui->cmdReMix, &QPushButton::clicked, this, &frmClothColors::ReMix);
    m_ui->picList->setCurrentRow(0);
    resize(sizeHint());
    RememberSize(*this, store);
}

frmClothColors::~frmClothColors() = default;

void frmClothColors::ShowColorsList() {
    m_ui->picList->clear();
    for (const ColorLists::NamedColor& line : m_lines) {
        new QListWidgetItem(SwatchIcon(line.Value), QString::fromStdString(line.Description),
                            m_ui->picList);
    }
}

ColorLists::NamedColor& frmClothColors::Selected() {
    return m_lines[static_cast<std::size_t>(m_ui->picList->currentRow())];
}

void frmClothColors::ShowSelected() {
    m_ui->txtDescription->setText(QString::fromStdString(Selected().Description));
    m_ui->picSelected->SetColor(Selected().Value);
}

void frmClothColors::ChangeText(const QString& text) {
    Selected().Description = text.toStdString();
    UpdateListEntry();
}

void frmClothColors::ReMix() {
    if (const auto color = AskColor(Selected().Value, this)) {
        Selected().Value = *color;
        m_ui->picSelected->SetColor(*color);
        UpdateListEntry();
    }
}

void frmClothColors::UpdateListEntry() {
    QListWidgetItem* item = m_ui->picList->currentItem();
    item->setText(QString::fromStdString(Selected().Description));
    item->setIcon(SwatchIcon(Selected().Value));
}

void frmClothColors::done(int result) {
    ColorLists::SaveColorsList(m_store, m_list, m_lines);
    QDialog::done(result);
}

} // namespace zol
