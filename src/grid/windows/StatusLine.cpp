// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/StatusLine.h"

#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>

#include "grid/windows/ZoomPanel.h"
#include "windowkit/BusyScope.h"
#include "windowkit/ElidedLabel.h"
#include "windowkit/FeltDelay.h"

namespace zol {

namespace {

/// The window lives about thirty times a second.
constexpr int YieldEveryMs = 33;
constexpr int BarWidth = 180;

ElidedLabel* MakePanel(QWidget* parent, const QString& name, const QString& meaning) {
    auto* panel = new ElidedLabel(parent);
    panel->setObjectName(name);
    panel->setAccessibleDescription(meaning);
    return panel;
}

int WidthOf(const QWidget& widget, const QString& text) {
    return widget.fontMetrics().horizontalAdvance(text);
}

} // namespace

StatusLine::StatusLine(QWidget* parent) : QStatusBar(parent) {
    setObjectName(QStringLiteral("sbStatusBar"));
    setSizeGripEnabled(false);
    setMinimumHeight(fontMetrics().lineSpacing() + 12);
    SetUpPanels();
    SetUpProgress();
}

StatusLine::~StatusLine() = default;

void StatusLine::SetUpPanels() {
    m_place = MakePanel(this, QStringLiteral("placePanel"), QStringLiteral("Place"));
    m_selection = MakePanel(this, QStringLiteral("selectionPanel"), QStringLiteral("Selection"));
    m_floss =
        MakePanel(this, QStringLiteral("flossPanel"), QStringLiteral("Floss under the pointer"));
    m_zoom = new ZoomPanel(this);
    m_place->setContentsMargins(6, 0, 0, 0);
    m_place->setMinimumWidth(WidthOf(*this, QStringLiteral("0000, 0000")) + 12);
    m_selection->setMinimumWidth(WidthOf(*this, QStringLiteral("000 × 000 squares")) + 12);
    m_place->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    m_floss->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    addWidget(m_place);
    addWidget(m_selection);
    addWidget(m_floss, 1);
    // Status tips lay themselves over the panels, but not over the zoom.
    addPermanentWidget(m_zoom);
    connect(m_zoom, &ZoomPanel::ZoomChosen, this, &StatusLine::ZoomChosen);
}

void StatusLine::SetUpProgress() {
    m_progress = new QWidget(this);
    m_progress->setAutoFillBackground(true);
    m_task = MakePanel(m_progress, QStringLiteral("lblStatus"), QStringLiteral("Task"));
    m_bar = new QProgressBar(m_progress);
    m_bar->setObjectName(QStringLiteral("pbStatus"));
    m_bar->setFixedWidth(BarWidth);
    m_bar->setTextVisible(false);
    m_cancel = new QPushButton(QStringLiteral("Cancel"), m_progress);
    m_cancel->setObjectName(QStringLiteral("cmdCancel"));
    m_cancel->setFocusPolicy(Qt::NoFocus);
    auto* row = new QHBoxLayout(m_progress);
    row->setContentsMargins(0, 2, 6, 2);
    row->setSpacing(6);
    row->addWidget(m_task);
    row->addWidget(m_bar);
    row->addWidget(m_cancel);
    row->addStretch(1);
    m_progress->hide();
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        m_cancelled = true;
        m_cancel->setEnabled(false);
    });
}

void StatusLine::ShowPlace(int column, int row) {
    m_place->ShowText(QString::number(column) + QStringLiteral(", ") + QString::number(row));
}

void StatusLine::ShowNote(const QString& text) {
    m_place->ShowText(text);
}

void StatusLine::ShowSelection(int columns, int rows) {
    m_selection->ShowText(columns == 0 || rows == 0
                              ? QString()
                              : QStringLiteral("%1 × %2 squares").arg(columns).arg(rows));
}

void StatusLine::ShowFloss(const QString& description) {
    m_floss->ShowText(description);
}

void StatusLine::ShowZoom(int percent) {
    m_zoom->ShowZoom(percent);
}

void StatusLine::StartStatus(const std::string& text, int maximum) {
    const QString task = QStringLiteral("     ") + QString::fromStdString(text);
    m_task->ShowText(task);
    m_place->ShowText(task);
    m_bar->setRange(0, std::max(maximum, 0));
    m_bar->setValue(0);
    m_cancel->setEnabled(true);
    m_cancelled = false;
    m_running = true;
    m_sinceStart.start();
    m_sinceYield.start();
}

void StatusLine::UpdateStatus(int value) {
    if (!m_running) {
        return;
    }
    if (IsDue()) {
        ShowProgress();
    }
    m_bar->setValue(std::clamp(value, m_bar->minimum(), m_bar->maximum()));
}

void StatusLine::StopStatus() {
    m_running = false;
    m_cancelled = false;
    m_progress->hide();
    m_task->ShowText({});
    m_place->ShowText({});
    if (m_shownForWork) {
        m_shownForWork = false;
        hide();
    }
}

bool StatusLine::MayGoOn() {
    if (m_sinceYield.isValid() && !m_sinceYield.hasExpired(YieldEveryMs)) {
        return !m_cancelled;
    }
    if (m_running && IsDue()) {
        ShowProgress();
    }
    {
        const BusyScope scope(m_cancel);
        BusyScope::LetEventsThrough();
    }
    m_sinceYield.start();
    return !m_cancelled;
}

bool StatusLine::IsDue() const {
    return m_progress->isHidden() && m_sinceStart.hasExpired(FeltDelay.count());
}

void StatusLine::ShowProgress() {
    if (isHidden()) {
        m_shownForWork = true;
        show();
    }
    LayProgress();
    m_progress->show();
    m_progress->raise();
    m_progress->repaint();
}

void StatusLine::LayProgress() {
    m_progress->setGeometry(0, 0, m_zoom->isVisible() ? m_zoom->x() : width(), height());
}

void StatusLine::resizeEvent(QResizeEvent* event) {
    QStatusBar::resizeEvent(event);
    LayProgress();
}

} // namespace zol
