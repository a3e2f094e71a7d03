// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "windowkit/JobStatus.h"

#include <QEvent>
#include <QPainter>
#include <QShortcut>

#include <algorithm>

#include "windowkit/FeltDelay.h"
#include "windowkit/LatestJob.h"
#include "windowkit/Theme.h"
#include "windowkit/ui_JobStatus.h"

namespace zol {

namespace {

constexpr int WidthInCharacters = 48;
constexpr int Margin = 12;

} // namespace

JobStatus::JobStatus(QWidget* over)
    : QFrame(over),
      m_ui(std::make_unique<Ui::JobStatus>()),
      m_over(over) {
    m_ui->setupUi(this);
    setObjectName(QStringLiteral("picStatus"));
    hide();
    // Ours, so that a busy scope that lets this strip live lets it come up too.
    m_delay.setParent(this);
    m_delay.setSingleShot(true);
    connect(&m_delay, &QTimer::timeout, this, &JobStatus::Appear);
    connect(m_ui->cmdCancelStatus, &QPushButton::clicked, this, &JobStatus::CancelWork);
    // A shortcut is looked at before the window, which would close on Escape.
    auto* escape = new QShortcut(Qt::Key_Escape, this);
    connect(escape, &QShortcut::activated, this, &JobStatus::CancelWork);
    m_over->installEventFilter(this);
}

JobStatus::~JobStatus() = default;

void JobStatus::Follow(LatestJob& job, const QString& text) {
    connect(&job, &LatestJob::Began, this, [this, &job, text] { Await(job, text); });
    connect(&job, &LatestJob::StatusStarted, this,
            [this](const QString& what, int maximum) { SetStatus(what, maximum); });
    connect(&job, &LatestJob::StatusUpdated, this, &JobStatus::UpdateStatus);
    connect(&job, &LatestJob::Ended, this, &JobStatus::StopStatus);
}

void JobStatus::Await(LatestJob& job, const QString& text) {
    m_job = &job;
    // In place of an older job the strip stays as it is: a slider that is dragged starts many.
    if (!isVisible() && !m_delay.isActive()) {
        SetStatus(text, 0);
        m_delay.start(FeltDelay);
    }
}

void JobStatus::StartStatus(const QString& text, int maximum) {
    SetStatus(text, maximum);
    Appear();
}

void JobStatus::SetStatus(const QString& text, int maximum) {
    m_ui->lblStatus->setText(text);
    m_ui->pbStatus->setRange(0, maximum);
    m_ui->pbStatus->setValue(0);
}

void JobStatus::UpdateStatus(int value) {
    m_ui->pbStatus->setValue(value);
}

void JobStatus::StopStatus() {
    m_delay.stop();
    m_job.clear();
    hide();
}

void JobStatus::CancelWork() {
    if (m_job != nullptr) {
        m_job->Cancel();
    }
    Q_EMIT CancelClicked();
}

void JobStatus::Appear() {
    Centre();
    raise();
    show();
}

void JobStatus::Centre() {
    const int wished = fontMetrics().averageCharWidth() * WidthInCharacters;
    const int room = m_over->width() - 2 * Margin;
    const QSize size(std::max(minimumSizeHint().width(), std::min(wished, room)),
                     sizeHint().height());
    const QSize free = m_over->size() - size;
    setGeometry(QRect(QPoint(free.width() / 2, free.height() / 2), size));
}

bool JobStatus::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_over && event->type() == QEvent::Resize && isVisible()) {
        Centre();
    }
    return QFrame::eventFilter(watched, event);
}

void JobStatus::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.setPen(Theme::Edge(palette()));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace zol
