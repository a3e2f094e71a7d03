// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/frmPrinting.h"

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
    Prepare(std::move(work));
    m_timer.start(0);
    exec();
    ThrowOn();
}

void frmPrinting::RunLate(Work work, std::chrono::milliseconds delay) {
    Prepare(std::move(work));
    m_showAfter = delay;
    m_lasting.start();
    Begin();
    m_showAfter.reset();
    ThrowOn();
}

void frmPrinting::Prepare(Work work) {
    m_work = std::move(work);
    m_cancelled = false;
    m_fault = nullptr;
    m_ui->cmdCancel->setEnabled(true);
}

void frmPrinting::Begin() {
    {
        const BusyScope busy(m_ui->cmdCancel);
        if (!m_showAfter) {
            m_cursor.emplace();
        }
        try {
            m_work(*this);
        } catch (...) {
            m_fault = std::current_exception();
        }
        m_cursor.reset();
    }
    QDialog::accept();
}

void frmPrinting::ThrowOn() {
    if (m_fault != nullptr) {
        std::rethrow_exception(std::exchange(m_fault, nullptr));
    }
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
    if (m_showAfter) {
        if (m_lasting.elapsed() < m_showAfter->count()) {
            return true;
        }
        m_showAfter.reset();
        m_cursor.emplace();
        show();
    }
    BusyScope::LetEventsThrough();
    return !m_cancelled;
}

} // namespace zol
