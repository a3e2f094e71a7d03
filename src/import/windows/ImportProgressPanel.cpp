// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/ImportProgressPanel.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

#include "windowkit/BusyScope.h"

namespace zol {

namespace {

constexpr int ShowAfterMs = 150;
constexpr int YieldEveryMs = 30;
constexpr int BarWidth = 260;

} // namespace

ImportProgressPanel::ImportProgressPanel(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("picStatus"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    m_task = new QLabel(this);
    m_task->setObjectName(QStringLiteral("lblStatus"));
    m_bar = new QProgressBar(this);
    m_bar->setObjectName(QStringLiteral("pbStatus"));
    m_bar->setAccessibleName(QStringLiteral("Progress"));
    m_bar->setTextVisible(false);
    m_bar->setMinimumWidth(BarWidth);
    m_cancel = new QPushButton(QStringLiteral("Cancel"), this);
    m_cancel->setObjectName(QStringLiteral("cmdCancelStatus"));
    m_cancel->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(m_bar, 1);
    row->addWidget(m_cancel);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(18, 12, 18, 12);
    column->setSpacing(6);
    column->addWidget(m_task);
    column->addLayout(row);
    hide();
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        m_cancelled = true;
        m_cancel->setEnabled(false);
    });
}

void ImportProgressPanel::StartStatus(const std::string& text, int maximum) {
    m_task->setText(QString::fromStdString(text));
    m_bar->setRange(0, std::max(maximum, 0));
    m_bar->setValue(0);
    if (!m_running) {
        m_cancel->setEnabled(true);
        m_cancelled = false;
        m_sinceStart.start();
    }
    m_running = true;
}

void ImportProgressPanel::UpdateStatus(int value) {
    if (m_running) {
        m_bar->setValue(std::clamp(value, m_bar->minimum(), m_bar->maximum()));
    }
}

void ImportProgressPanel::StopStatus() {
    m_running = false;
    hide();
}

bool ImportProgressPanel::MayGoOn() {
    if (m_sinceYield.isValid() && !m_sinceYield.hasExpired(YieldEveryMs)) {
        return !m_cancelled;
    }
    ShowIfDue();
    {
        const BusyScope scope(m_cancel);
        BusyScope::LetEventsThrough();
    }
    m_sinceYield.start();
    return !m_cancelled;
}

void ImportProgressPanel::ShowIfDue() {
    if (!m_running || isVisible() || !m_sinceStart.hasExpired(ShowAfterMs)) {
        return;
    }
    adjustSize();
    move((parentWidget()->width() - width()) / 2, (parentWidget()->height() - height()) / 2);
    show();
    raise();
    repaint();
}

} // namespace zol
