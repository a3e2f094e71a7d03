// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/frmReplaceColor.h"

#include <QPushButton>

#include "flosses/Palette.h"
#include "flosses/windows/FlossText.h"

#include "flosses/windows/ui_frmReplaceColor.h"
#include "windowkit/DialogSize.h"
#include "windowkit/Spelling.h"

namespace zol {

frmReplaceColor::frmReplaceColor(const Palette& palette, const AvailableFlosses& available,
                                 const ReplacementQuestion& question, SettingsDoor& store,
                                 QWidget* parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmReplaceColor>()) {
    m_ui->setupUi(this);
    Spell(*this, palette.Context());
    QPushButton* replace = m_ui->buttonBox->button(QDialogButtonBox::Ok);
    replace->setObjectName(QStringLiteral("cmdOK"));
    replace->setText(QStringLiteral("Replace"));
    m_ui->buttonBox->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    m_ui->lblReplace->setText(QStringLiteral("Replace ") +
                              FlossText::LongDescription(palette, question.Entry) +
                              QStringLiteral(" with"));
    m_ui->lblAvailableColor->setText(
        Spelled(QStringLiteral("No available color is selected"), palette.Context()));
    LoadImageList(palette, question.Entry);
    ShowAvailable(available, question.AvailableRow);
    connect(m_ui->optReplacewith0, &QRadioButton::toggled, this, &frmReplaceColor::EnableParts);
    connect(m_ui->imgPaletteColors, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    EnableParts();
    adjustSize();
    RememberSize(*this, store);
}

frmReplaceColor::~frmReplaceColor() = default;

void frmReplaceColor::LoadImageList(const Palette& palette, int except) {
    for (int position = 1; position <= palette.GetEntriesCount(); ++position) {
        const int entry = palette.GetSortIndex(position);
        if (entry == except) {
            continue;
        }
        auto* item =
            new QListWidgetItem(SwatchIcon(palette.GetFlossRGB(entry)),
                                FlossText::LongDescription(palette, entry), m_ui->imgPaletteColors);
        item->setData(Qt::UserRole, entry);
    }
    const bool any = m_ui->imgPaletteColors->count() > 0;
    m_ui->imgPaletteColors->setCurrentRow(any ? 0 : -1);
    m_ui->optReplacewith0->setEnabled(any);
    m_ui->optReplacewith0->setChecked(any);
}

void frmReplaceColor::ShowAvailable(const AvailableFlosses& available, int row) {
    m_ui->optReplacewith1->setEnabled(row > 0);
    if (row > 0) {
        const FlossLook look = available.LookOf(row);
        m_ui->lblAvailableColor->setText(QString::fromStdString(look.Description));
        m_ui->picColor->SetColor(look.RGB);
        m_ui->optReplacewith1->setChecked(!m_ui->optReplacewith0->isChecked());
    }
}

void frmReplaceColor::EnableParts() {
    const bool fromPalette = m_ui->optReplacewith0->isChecked();
    m_ui->imgPaletteColors->setEnabled(fromPalette);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)
        ->setEnabled(fromPalette || m_ui->optReplacewith1->isChecked());
    if (fromPalette) {
        m_ui->imgPaletteColors->setFocus();
    }
}

ReplacementAnswer frmReplaceColor::Answer() const {
    const QListWidgetItem* item = m_ui->imgPaletteColors->currentItem();
    return m_ui->optReplacewith0->isChecked() && item != nullptr
               ? ReplacementAnswer{item->data(Qt::UserRole).toInt()}
               : ReplacementAnswer{};
}

} // namespace zol
