// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/ZoomBox.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include <algorithm>
#include <utility>

#include "import/windows/PictureView.h"
#include "settings/basCommonFunctions.h"
#include "windowkit/IconFamily.h"
#include "windowkit/NumericFilter.h"

namespace zol {

namespace {

/// Percentage points of a click on a button.
constexpr int Step = 25;
/// Where clicks stop on the way down.
constexpr double SmallestStep = 10;

QString FitText() {
    return QStringLiteral("To Fit");
}

QString TextOf(double percent) {
    return QString::number(qRound(percent)) + QLatin1Char('%');
}

/// What a click comes to; the same again where it ends.
double Stepped(double percent, int points) {
    const double wanted = percent + points;
    if (wanted < 1) {
        return std::min(percent, SmallestStep);
    }
    return std::min(wanted, PictureView::MaxZoom);
}

} // namespace

ZoomBox::ZoomBox(QWidget* parent) : QWidget(parent) {
    m_out = MakeButton("cmdZoomOut", "zoom-out", tr("Zoom Out"));
    MakeBox();
    m_in = MakeButton("cmdZoomIn", "zoom-in", tr("Zoom In"));
    connect(m_out, &QToolButton::clicked, this, [this] { StepBy(-Step); });
    connect(m_in, &QToolButton::clicked, this, [this] { StepBy(Step); });
    auto* label = new QLabel(tr("&Zoom:"), this);
    label->setBuddy(m_box);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(label);
    layout->addWidget(m_out);
    layout->addWidget(m_box);
    layout->addWidget(m_in);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    ShowZoom();
}

void ZoomBox::FollowInTabOrder(QWidget& before) {
    setTabOrder(&before, m_out);
    setTabOrder(m_out, m_box);
    setTabOrder(m_box, m_in);
}

void ZoomBox::MakeBox() {
    m_box = new QComboBox(this);
    m_box->setObjectName(QStringLiteral("cmbZoomLevel"));
    m_box->setAccessibleName(tr("Zoom"));
    m_box->setEditable(true);
    m_box->setInsertPolicy(QComboBox::NoInsert);
    m_box->setCompleter(nullptr);
    m_box->setMinimumContentsLength(6);
    m_box->addItem(FitText());
    for (const int percent : {10, 25, 50, 100, 200, 300}) {
        m_box->addItem(TextOf(percent));
    }
    new NumericFilter(m_box->lineEdit(), basCommonFunctions::NoLimit, 0);
    // Filters see events in the reverse order: Enter comes here first.
    m_box->lineEdit()->installEventFilter(this);
    m_box->installEventFilter(this);
    connect(m_box, &QComboBox::activated, this, &ZoomBox::TakeText);
}

QToolButton* ZoomBox::MakeButton(const char* name, const char* icon, const QString& tip) {
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setIcon(IconFamily::Icon(QLatin1String(icon)));
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void ZoomBox::Attach(PictureView& view) {
    m_views.emplace_back(&view);
    connect(&view, &PictureView::ZoomChanged, this, [this, &view] { FollowView(view); });
    if (m_views.size() > 1) {
        FollowView(*m_views.front());
    }
    ShowZoom();
}

void ZoomBox::ZoomToFit() {
    for (const QPointer<PictureView>& view : m_views) {
        if (view) {
            view->ZoomToFit();
        }
    }
    ShowZoom();
}

void ZoomBox::SetZoom(double percent) {
    for (const QPointer<PictureView>& view : m_views) {
        if (view) {
            view->SetZoom(percent);
        }
    }
    ShowZoom();
}

double ZoomBox::Zoom() const {
    return m_views.empty() || !m_views.front() ? 100 : m_views.front()->Zoom();
}

/// A number counts with or without its sign; anything else leaves the zoom as it was.
void ZoomBox::TakeText() {
    const QString text = m_box->currentText().trimmed();
    if (text == m_shown) {
        return; // what is shown is rounded
    }
    const double percent = basCommonFunctions::FieldValue(text);
    if (text.compare(FitText(), Qt::CaseInsensitive) == 0) {
        ZoomToFit();
    } else if (percent > 0) {
        SetZoom(percent);
    } else {
        ShowZoom();
    }
}

void ZoomBox::StepBy(int points) {
    SetZoom(Stepped(Zoom(), points));
}

/// Views that fit do so each by itself.
void ZoomBox::FollowView(const PictureView& view) {
    if (std::exchange(m_following, true)) {
        return;
    }
    for (const QPointer<PictureView>& other : m_views) {
        if (!other || other == &view || (view.IsToFit() && other->IsToFit())) {
            continue;
        }
        if (view.IsToFit()) {
            other->ZoomToFit();
        } else {
            other->SetZoom(view.Zoom());
        }
    }
    m_following = false;
    ShowZoom();
}

void ZoomBox::ShowZoom() {
    const bool fits = m_views.empty() || !m_views.front() || m_views.front()->IsToFit();
    const double percent = Zoom();
    m_shown = fits ? FitText() : TextOf(percent);
    m_box->setEditText(m_shown);
    m_box->setToolTip(fits ? tr("Zoom (%1)").arg(TextOf(percent)) : tr("Zoom"));
    m_in->setEnabled(Stepped(percent, Step) > percent);
    m_out->setEnabled(Stepped(percent, -Step) < percent);
}

bool ZoomBox::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        TakeText();
    }
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
        const QString before = m_box->currentText();
        if (enter) {
            TakeText();
        } else if (key == Qt::Key_Escape) {
            ShowZoom();
        }
        // Enter is for the box, and Escape takes back what was typed before it leaves the window.
        if (enter || (key == Qt::Key_Escape && m_box->currentText() != before)) {
            m_box->lineEdit()->selectAll();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace zol
