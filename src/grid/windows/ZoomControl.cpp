// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/ZoomControl.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <utility>

#include "grid/GridViewport.h"
#include "model/Rounding.h"
#include "settings/basCommonFunctions.h"
#include "windowkit/NumericFilter.h"

namespace zol {

namespace {

constexpr int StepDelay = 150; ///< milliseconds: what follows sooner costs no repaint of its own
/// A number that is being typed is not cut off in its middle.
constexpr int TypingDelay = 1000;

QString FitText() {
    return QStringLiteral("To Fit");
}

QString TextOf(int percent) {
    return QString::number(percent) + QLatin1Char('%');
}

} // namespace

ZoomControl::ZoomControl(ZoomSite& site, QWidget* boxParent) : QObject(boxParent), m_site(site) {
    m_timer.setObjectName(QStringLiteral("timResize"));
    m_timer.setParent(this);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ZoomControl::RunChange);
    MakeBox(boxParent);
}

void ZoomControl::MakeBox(QWidget* parent) {
    m_box = new QComboBox(parent);
    m_box->setObjectName(QStringLiteral("cmbZoom"));
    m_box->setAccessibleName(tr("Zoom"));
    m_box->setToolTip(tr("Zoom"));
    m_box->hide();
    m_box->setEditable(true);
    m_box->setInsertPolicy(QComboBox::NoInsert);
    m_box->setCompleter(nullptr);
    m_box->setMinimumContentsLength(6);
    m_box->addItem(FitText());
    for (const int percent : {10, 25, 50, 100, 200, 400, 600}) {
        m_box->addItem(TextOf(percent));
    }
    new NumericFilter(m_box->lineEdit(), basCommonFunctions::NoLimit, 0);
    // Filters see events in the reverse order: Enter comes here first.
    m_box->lineEdit()->installEventFilter(this);
    m_box->installEventFilter(this);
    m_box->view()->installEventFilter(this);
    connect(m_box->lineEdit(), &QLineEdit::textEdited, this, [this] {
        m_scrollToRestore.reset();
        m_timer.start(TypingDelay);
    });
    connect(m_box, &QComboBox::activated, this, [this] {
        m_scrollToRestore.reset();
        m_timer.start(StepDelay);
    });
    ShowText(NormalText());
}

QString ZoomControl::NormalText() const {
    return m_showsFit ? FitText() : TextOf(m_zoom);
}

void ZoomControl::ShowText(const QString& text) {
    if (m_box && m_box->currentText() != text) {
        m_box->setEditText(text);
    }
}

/// A new text of the program's own, which takes effect soon.
void ZoomControl::SetText(const QString& text) {
    ShowText(text);
    m_scrollToRestore.reset();
    m_timer.start(StepDelay);
}

void ZoomControl::SetZoom(int percent) {
    const int zoom = GridViewport::ClampZoom(percent);
    if (zoom != m_previous) {
        m_previous = m_zoom;
        m_savedScroll = m_site.ScrollPosition();
        if (m_beforeChange) {
            m_beforeChange();
        }
    }
    m_zoom = zoom;
    m_showsFit = false;
    ShowText(NormalText());
}

void ZoomControl::ChangeZoom(int percent) {
    m_timer.stop();
    m_scrollToRestore.reset();
    SetZoom(percent);
    m_site.ShowZoom();
    Q_EMIT ZoomChanged(m_zoom);
}

int ZoomControl::SteppingFrom() const {
    return m_timer.isActive() && m_box ? GridViewport::ClampZoom(NumberOf(m_box->currentText()))
                                       : m_zoom;
}

void ZoomControl::ZoomIn() {
    const int from = SteppingFrom();
    if (from < GridViewport::MaxZoom) {
        SetText(TextOf(GridViewport::ZoomIn(from)));
    }
}

void ZoomControl::ZoomOut() {
    const int from = SteppingFrom();
    const int to = GridViewport::ZoomOut(from);
    if (to != from) {
        SetText(TextOf(to));
    }
}

void ZoomControl::ZoomToFit() {
    SetText(FitText());
}

void ZoomControl::RestorePreviousZoom() {
    if (m_previous == m_zoom) {
        return;
    }
    SetText(TextOf(m_previous));
    m_scrollToRestore = m_savedScroll;
    m_previous = m_zoom;
}

int ZoomControl::NumberOf(const QString& text) const {
    if (text == FitText()) {
        return m_site.ZoomThatFits();
    }
    QString number = text;
    number.remove(QLatin1Char('%'));
    if (number.isEmpty()) {
        return m_zoom;
    }
    number.replace(basCommonFunctions::DecimalSeparator(), QLatin1Char('.'));
    const double value = LeadingNumber(number.toStdString());
    return RoundToInt(std::clamp(value, 0.0, GridViewport::MaxZoom + 1.0));
}

void ZoomControl::RunChange() {
    m_timer.stop();
    const QString text = m_box ? m_box->currentText() : NormalText();
    const SquarePos scroll =
        std::exchange(m_scrollToRestore, std::nullopt).value_or(m_site.ScrollPosition());
    const int zoom = GridViewport::ClampZoom(NumberOf(text));
    const bool differs = zoom != m_zoom;
    SetZoom(zoom);
    m_showsFit = text == FitText();
    ShowText(NormalText());
    if (differs) {
        m_site.ShowZoom();
        m_site.ScrollTo(scroll);
        Q_EMIT ZoomChanged(m_zoom);
    }
}

bool ZoomControl::eventFilter(QObject* watched, QEvent* event) {
    if (!m_box) {
        return false;
    }
    if (watched == m_box->view()) {
        if (event->type() == QEvent::Hide) {
            Q_EMIT BoxLeft();
        }
        return false;
    }
    if (event->type() == QEvent::FocusOut && m_box->currentText() != NormalText()) {
        m_timer.start(StepDelay);
    }
    return event->type() == QEvent::KeyPress && TakeKey(static_cast<QKeyEvent*>(event)->key());
}

bool ZoomControl::TakeKey(int key) {
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        RunChange();
        m_box->lineEdit()->selectAll();
        return true;
    case Qt::Key_Escape:
        m_timer.stop();
        ShowText(NormalText());
        Q_EMIT BoxLeft();
        return true;
    default:
        return false;
    }
}

} // namespace zol
