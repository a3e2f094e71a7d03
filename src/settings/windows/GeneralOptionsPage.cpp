// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "settings/windows/GeneralOptionsPage.h"

#include "settings/windows/ui_GeneralOptionsPage.h"
#include "windowkit/ComboItems.h"

namespace zol {

GeneralOptionsPage::GeneralOptionsPage(const OptionsDesk& desk, QWidget* parent)
    : OptionsPage(desk, parent),
      m_ui(std::make_unique<Ui::GeneralOptionsPage>()) {
    m_ui->setupUi(this);
    OptionBindings& bindings = Bindings();
    bindings.Bind(*m_ui->chkToolbar, &Options::ToolbarVisible);
    bindings.Bind(*m_ui->chkStitchToolbar, &Options::StitchToolbarVisible);
    bindings.Bind(*m_ui->chkStatusBar, &Options::StatusbarVisible);
    bindings.Bind(*m_ui->Chkshowtips, &Options::ShowTipsAtStartup);
    bindings.Bind(*m_ui->cmbupdate, &Options::UpdateInterval);
    connect(m_ui->cmbUnits, &QComboBox::currentIndexChanged, this,
            [this] { Q_EMIT UnitsChanged(UsesInches()); });
}

GeneralOptionsPage::~GeneralOptionsPage() = default;

void GeneralOptionsPage::FillOptionLists() {
    FillCombo(*m_ui->cmbupdate, OptionLists::UpdateIntervals());
    m_ui->cmbUnits->clear();
    m_ui->cmbUnits->addItem(QStringLiteral("Inches"), QStringLiteral("inches"));
    m_ui->cmbUnits->addItem(QStringLiteral("Centimetres"), QStringLiteral("centimetres"));
}

void GeneralOptionsPage::LoadOptionControls(const Options& options) {
    OptionsPage::LoadOptionControls(options);
    m_ui->cmbUnits->setCurrentIndex(options.UsesInches() ? 0 : 1);
}

void GeneralOptionsPage::ApplyOptionControls(Options& options) const {
    OptionsPage::ApplyOptionControls(options);
    options.Units = m_ui->cmbUnits->currentData().toString().toStdString();
}

bool GeneralOptionsPage::UsesInches() const {
    return m_ui->cmbUnits->currentIndex() <= 0;
}

} // namespace zol
