// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/windows/GridOptionsPage.h"

#include "settings/ColorLists.h"
#include "settings/windows/ui_GridOptionsPage.h"
#include "windowkit/ComboItems.h"

namespace zol {

GridOptionsPage::GridOptionsPage(const OptionsDesk& desk, QWidget* parent)
    : OptionsPage(desk, parent),
      m_ui(std::make_unique<Ui::GridOptionsPage>()) {
    m_ui->setupUi(this);
    OptionBindings& bindings = Bindings();
    bindings.Bind(*m_ui->cmbSDA, &Options::StitchesDisplayAs);
    bindings.Bind(*m_ui->cmbClothColor, &Options::ClothColorIndex);
    bindings.Bind(*m_ui->cmbNormalGLWidth, &Options::GridLineWidthPercentage1);
    bindings.Bind(*m_ui->cmbNormalGLColor, &Options::GridlineColor1Index);
    bindings.Bind(*m_ui->cmbBoldGLWidth, &Options::GridLineWidthPercentage2);
    bindings.Bind(*m_ui->cmbBoldGLColor, &Options::GridlineColor2Index);
    bindings.Bind(*m_ui->cmbBackStitchWidth, &Options::BackStitchLineWidthPercentage);
    bindings.Bind(*m_ui->chkGridLines, &Options::GridlinesVisible);
    bindings.Bind(*m_ui->chkRulers, &Options::RulersVisible);
    // A backstitch that bends is one that is not anchored.
    bindings.Bind(*m_ui->chkFlexBackstitch, &Options::AnchorBackstitches,
                  OptionBindings::Sense::Reversed);
    bindings.Bind(*m_ui->ChksUseSmart3QS, &Options::UseSmart3QS);
    bindings.Bind(*m_ui->ChksUseSmartQS, &Options::UseSmartQS);
    for (const ColorChoice& choice : ColorChoices()) {
        ConnectCustomize(choice);
    }
}

GridOptionsPage::~GridOptionsPage() = default;

std::vector<OptionsPage::ColorChoice> GridOptionsPage::ColorChoices() const {
    return {{m_ui->cmbClothColor, m_ui->cmdClothColorCust, ColorLists::ClothList},
            {m_ui->cmbNormalGLColor, m_ui->cmdNormalGLColorCust, ColorLists::NormalList},
            {m_ui->cmbBoldGLColor, m_ui->cmdBoldGLColorCust, ColorLists::BoldList}};
}

void GridOptionsPage::FillOptionLists() {
    FillCombo(*m_ui->cmbSDA, OptionLists::DisplayStyles(ColorWord()));
    for (QComboBox* widths :
         {m_ui->cmbNormalGLWidth, m_ui->cmbBoldGLWidth, m_ui->cmbBackStitchWidth}) {
        FillCombo(*widths, OptionLists::WidthPercents());
    }
    for (const ColorChoice& choice : ColorChoices()) {
        FillColors(choice);
    }
}

} // namespace zol
