// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/frmPrinting.h"

#include <QGuiApplication>
#include <QPushButton>

#include <utility>

#include "print/windows/ui_frmPrinting.h"
#include "windowkit/BusyScope.h"

namespace zol {

frmPrinting::frmPrinting(QWidget* parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmPrinting>()) {
    m_ui->setupUi(this);
    setModal(true);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &frmPrinting::Begin);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmPrinting::reject);
}

frmPrinting::~frmPrinting() = default;

void frmPrinting::Run(Work work) {
    m_work = std::move(work);
    m_cancelled = false;
    m_fault = nullptr;
    m_ui->cmdCancel->setEnabled(true);
    m_timer.start(0);
    exec();
    if (m_fault != nullptr) {
        std::rethrow_exception(std::exchange(m_fault, nullptr));
    }
}

void frmPrinting::Begin() {
    {
        const BusyScope busy(m_ui->cmdCancel);
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        try {
            m_work(*this);
        } catch (...) {
            m_fault = std::current_exception();
        }
        QGuiApplication::restoreOverrideCursor();
    }
    QDialog::accept();
}

void frmPrinting::reject() {
    // The window goes when the work has noticed.
    m_cancelled = true;
    m_ui->cmdCancel->setEnabled(false);
}

void frmPrinting::StartStatus(const std::string& text, int maximum) {
    m_ui->lblPrinting->setText(QString::fromStdString(text));
    m_ui->ProgressBar1->setRange(0, maximum);
    m_ui->ProgressBar1->setValue(0);
}

void frmPrinting::UpdateStatus(int value) {
    m_ui->ProgressBar1->setValue(value);
}

void frmPrinting::StopStatus() {
    m_ui->ProgressBar1->setValue(m_ui->ProgressBar1->maximum());
}

bool frmPrinting::MayGoOn() {
    BusyScope::LetEventsThrough();
    return !m_cancelled;
}

} // namespace zol
