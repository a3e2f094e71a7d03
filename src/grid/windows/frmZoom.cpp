// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/frmZoom.h"

#include <QPushButton>

#include <algorithm>
#include <array>
#include <utility>

#include "grid/GridViewport.h"
#include "grid/windows/ui_frmZoom.h"
#include "model/Rounding.h"
#include "windowkit/NumericFilter.h"

namespace zol {

namespace {

std::array<std::pair<QRadioButton*, int>, 6> Options(const Ui::frmZoom& ui) {
    return {{{ui.optZoom0, 25},
             {ui.optZoom1, 50},
             {ui.optZoom2, 100},
             {ui.optZoom3, 150},
             {ui.optZoom4, 200},
             {ui.optZoom5, 300}}};
}

} // namespace

frmZoom::frmZoom(int gridZoom, QWidget* parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmZoom>()) {
    m_ui->setupUi(this);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
    m_ui->buttonBox->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    new NumericFilter(m_ui->txtCustomZoom, 4, 0);
    connect(m_ui->optZoom6, &QRadioButton::toggled, this, &frmZoom::EnableCustom);
    for (const auto& [option, percent] : Options(*m_ui)) {
        if (percent == gridZoom) {
            option->setChecked(true);
            option->setFocus();
            return;
        }
    }
    m_ui->txtCustomZoom->setText(QString::number(gridZoom));
    m_ui->optZoom6->setChecked(true);
}

frmZoom::~frmZoom() = default;

void frmZoom::EnableCustom(bool custom) {
    m_ui->txtCustomZoom->setEnabled(custom);
    if (custom) {
        m_ui->txtCustomZoom->setFocus();
        m_ui->txtCustomZoom->selectAll();
    }
}

int frmZoom::Percent() const {
    for (const auto& [option, percent] : Options(*m_ui)) {
        if (option->isChecked()) {
            return percent;
        }
    }
    const double value = LeadingNumber(m_ui->txtCustomZoom->text().toStdString());
    return RoundToInt(std::clamp(value, 0.0, GridViewport::MaxZoom + 1.0));
}

} // namespace zol
