// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/windows/PatternOptionsPage.h"

#include "settings/windows/ui_PatternOptionsPage.h"
#include "windowkit/ComboItems.h"

namespace zol {

PatternOptionsPage::PatternOptionsPage(const OptionsDesk& desk, QWidget* parent)
    : OptionsPage(desk, parent),
      m_ui(std::make_unique<Ui::PatternOptionsPage>()) {
    m_ui->setupUi(this);
    OptionBindings& bindings = Bindings();
    bindings.Bind(*m_ui->txtTitle, &Options::Title);
    bindings.Bind(*m_ui->txtAuthor, &Options::Author);
    bindings.Bind(*m_ui->txtCopyright, &Options::Copyright);
    bindings.Bind(*m_ui->txtFabric, &Options::Fabric);
    bindings.Bind(*m_ui->cmbClothCountX, &Options::PatternClothCountX);
    bindings.Bind(*m_ui->cmbClothCountY, &Options::PatternClothCountY);
    bindings.Bind(*m_ui->cmbStitchStrands, &Options::StitchStrands);
    bindings.Bind(*m_ui->cmbBackStitchStrands, &Options::BackStitchStrands);
    bindings.Bind(*m_ui->chkFlossUsage, &Options::PrintFlossUsage);
}

PatternOptionsPage::~PatternOptionsPage() = default;

void PatternOptionsPage::FillOptionLists() {
    for (QComboBox* counts : {m_ui->cmbClothCountX, m_ui->cmbClothCountY}) {
        FillCombo(*counts, OptionLists::ClothCounts());
    }
    for (QComboBox* strands : {m_ui->cmbStitchStrands, m_ui->cmbBackStitchStrands}) {
        FillCombo(*strands, OptionLists::Strands());
    }
}

} // namespace zol
