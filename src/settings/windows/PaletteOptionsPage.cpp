// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/windows/PaletteOptionsPage.h"

#include "flosses/CatalogueList.h"
#include "settings/windows/ui_PaletteOptionsPage.h"
#include "windowkit/ComboItems.h"

namespace zol {

PaletteOptionsPage::PaletteOptionsPage(const OptionsDesk& desk, QWidget* parent)
    : OptionsPage(desk, parent),
      m_ui(std::make_unique<Ui::PaletteOptionsPage>()) {
    m_ui->setupUi(this);
    OptionBindings& bindings = Bindings();
    bindings.Bind(*m_ui->cmbSortPaletteBy, &Options::PaletteSortOrder);
    bindings.Bind(*m_ui->cmbPaletteRows, &Options::PaletteDisplayRows);
    bindings.Bind(*m_ui->cmbPaletteSize, &Options::PaletteDisplaySize);
    bindings.Bind(*m_ui->chkDisplayPaletteSymbol, &Options::DisplaySymbolInPalette);
    bindings.Bind(*m_ui->chkRecolorPatterns, &Options::RecolorPatterns);
    connect(m_ui->cmbFlossFamily, &QComboBox::activated, this, &PaletteOptionsPage::ChangeFamily);
}

PaletteOptionsPage::~PaletteOptionsPage() = default;

void PaletteOptionsPage::FillOptionLists() {
    FillCombo(*m_ui->cmbSortPaletteBy, OptionLists::SortOrders(ColorWord()));
    FillCombo(*m_ui->cmbPaletteRows, OptionLists::PaletteRows());
    FillCombo(*m_ui->cmbPaletteSize, OptionLists::PaletteSizes());
    m_ui->cmbFlossFamily->clear();
    for (const CatalogueName& catalogue : ListCatalogues(Desk().Context)) {
        m_ui->cmbFlossFamily->addItem(QString::fromStdString(catalogue.Name),
                                      QString::fromStdString(catalogue.FileName));
    }
}

void PaletteOptionsPage::LoadOptionControls(const Options& options) {
    OptionsPage::LoadOptionControls(options);
    SetCombo(*m_ui->cmbFlossFamily, QString::fromStdString(options.DefaultFlossFile));
    SetupMappingList(options.MapFlosses);
}

void PaletteOptionsPage::ApplyOptionControls(Options& options) const {
    OptionsPage::ApplyOptionControls(options);
    if (m_ui->cmbFlossFamily->currentIndex() >= 0) {
        options.FlossFamily = m_ui->cmbFlossFamily->currentText().toStdString();
        options.DefaultFlossFile = m_ui->cmbFlossFamily->currentData().toString().toStdString();
    }
    options.MapFlosses = MapFlosses();
}

void PaletteOptionsPage::SetupMappingList(const std::string& mapped) {
    m_mapped = mapped;
    m_hidden = m_ui->cmbFlossFamily->currentData().toString().toStdString();
    m_ui->lvMapFlosses->clear();
    for (const CatalogueName& catalogue : ListCatalogues(Desk().Context)) {
        if (catalogue.FileName == m_hidden) {
            continue;
        }
        auto* item =
            new QListWidgetItem(QString::fromStdString(catalogue.Name), m_ui->lvMapFlosses);
        item->setData(Qt::UserRole, QString::fromStdString(catalogue.FileName));
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        const bool ticked = IsMappedFloss(mapped, catalogue.FileName);
        item->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
    }
}

std::string PaletteOptionsPage::MapFlosses() const {
    std::vector<std::string> ticked;
    for (int row = 0; row < m_ui->lvMapFlosses->count(); ++row) {
        const QListWidgetItem* item = m_ui->lvMapFlosses->item(row);
        if (item->checkState() == Qt::Checked) {
            ticked.push_back(item->data(Qt::UserRole).toString().toStdString());
        }
    }
    return JoinMapFlosses(ticked);
}

void PaletteOptionsPage::ChangeFamily() {
    // The family that is left comes into the list as it was mapped before.
    std::string mapped = MapFlosses();
    if (IsMappedFloss(m_mapped, m_hidden)) {
        mapped += "|" + m_hidden;
    }
    SetupMappingList(mapped);
}

} // namespace zol
