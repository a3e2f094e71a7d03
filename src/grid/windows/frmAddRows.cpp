// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/frmAddRows.h"

#include <QPushButton>

#include "grid/windows/ui_frmAddRows.h"
#include "model/Rounding.h"
#include "windowkit/DialogSize.h"
#include "windowkit/NumericFilter.h"

namespace zol {

namespace {

constexpr int MostDigits = 5;

double NumberIn(const QLineEdit& field) {
    return LeadingNumber(field.text().toStdString());
}

} // namespace

frmAddRows::frmAddRows(Desk desk, bool deleteMode, QWidget* parent)
    : QDialog(parent),
      m_desk(desk),
      m_deleteMode(deleteMode),
      m_ui(std::make_unique<Ui::frmAddRows>()) {
    m_ui->setupUi(this);
    QPushButton* ok = m_ui->buttonBox->button(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("cmdOK"));
    m_ui->buttonBox->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    setWindowTitle(deleteMode ? tr("Delete Rows/Columns") : tr("Add Rows/Columns"));
    ok->setText(deleteMode ? tr("&Delete") : tr("&Add"));
    if (deleteMode) {
        m_ui->lblAddDelete->setText(tr("Delete"));
    }
    new NumericFilter(m_ui->txtHowMany, MostDigits, 0);
    new NumericFilter(m_ui->txtStartRow, MostDigits, 0);
    connect(m_ui->cmbRowCol, &QComboBox::currentIndexChanged, this, &frmAddRows::ShowBand);
    ShowBand();
    m_ui->txtHowMany->setFocus();
    RememberSize(*this, m_desk.Store);
}

frmAddRows::~frmAddRows() = default;

RowsAndColumns::Band frmAddRows::Band() const {
    return m_ui->cmbRowCol->currentIndex() == 0 ? RowsAndColumns::Band::Rows
                                                : RowsAndColumns::Band::Columns;
}

void frmAddRows::ShowBand() {
    QString one = m_ui->cmbRowCol->currentText();
    one.chop(1);
    m_ui->lblAfter->setText((m_deleteMode ? tr("starting at ") : tr("after ")) + one);
    m_ui->txtStartRow->setAccessibleName(m_ui->lblAfter->text());
}

bool frmAddRows::ValidateAddRows() {
    const auto fault =
        RowsAndColumns::ValidateAddRows(m_desk.Open.Design(), Band(), m_deleteMode,
                                        NumberIn(*m_ui->txtStartRow), NumberIn(*m_ui->txtHowMany));
    if (!fault) {
        return true;
    }
    m_desk.Messages.TellMore(fault->Text, fault->More, MessageIcon::Exclamation, {});
    QLineEdit* field =
        fault->Where == RowsAndColumns::Field::HowMany ? m_ui->txtHowMany : m_ui->txtStartRow;
    field->setFocus();
    field->selectAll();
    return false;
}

void frmAddRows::accept() {
    if (ValidateAddRows()) {
        Change();
        QDialog::accept();
    }
}

void frmAddRows::Change() {
    const bool rows = Band() == RowsAndColumns::Band::Rows;
    const int start = RoundToInt(NumberIn(*m_ui->txtStartRow));
    const int howMany = RoundToInt(NumberIn(*m_ui->txtHowMany));
    Pattern& design = m_desk.Open.Design();
    if (m_deleteMode) {
        const UndoStep step(m_desk.Steps, UndoKind::Snapshot,
                            rows ? "Delete Rows" : "Delete Columns");
        RowsAndColumns::Delete(design, Band(), start, howMany);
    } else {
        const UndoStep step(m_desk.Steps, UndoKind::Snapshot, rows ? "Add Rows" : "Add Columns");
        RowsAndColumns::Add(design, Band(), start, howMany);
    }
}

} // namespace zol
