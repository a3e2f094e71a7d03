// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/PaletteStrip.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>

#include <algorithm>
#include <array>
#include <cmath>

#include "grid/windows/CurrentFloss.h"
#include "grid/windows/PaletteSwatches.h"
#include "windowkit/IconFamily.h"

namespace zol {

namespace {

constexpr std::array<int, 3> SwatchSides{24, 32, 40};
/// A press scrolls at once; held, it begins to repeat after the first of these.
constexpr int FirstScrollMs = 300;
constexpr int NextScrollMs = 50;
constexpr int ArrowWidth = 20;

QToolButton* MakeArrow(QWidget* parent, const QString& name, const QString& icon,
                       const QString& tip) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setIcon(IconFamily::Icon(icon));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    button->setSizePolicy(policy);
    return button;
}

} // namespace

PaletteStrip::PaletteStrip(QWidget* parent) : QWidget(parent) {
    SetUpParts();
    ConnectParts();
    SetSquareSize(1);
}

void PaletteStrip::SetUpParts() {
    m_currentFloss = new CurrentFloss(this);
    m_left = MakeArrow(this, QStringLiteral("cmdPaletteLeft"), QStringLiteral("palette-left"),
                       QStringLiteral("Earlier flosses"));
    m_right = MakeArrow(this, QStringLiteral("cmdPaletteRight"), QStringLiteral("palette-right"),
                        QStringLiteral("Later flosses"));
    m_holder = new QWidget(this);
    m_holder->setObjectName(QStringLiteral("picPaletteHolder"));
    m_holder->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_holder->setMinimumWidth(SwatchSides.back());
    m_swatches = new PaletteSwatches(m_holder);
    m_scrollTimer = new QTimer(this);
    m_scrollTimer->setObjectName(QStringLiteral("timPaletteScroll"));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 4, 6, 4);
    row->setSpacing(2);
    row->addWidget(m_currentFloss);
    row->addSpacing(6);
    row->addWidget(m_left, 0, Qt::AlignVCenter);
    row->addWidget(m_holder, 1, Qt::AlignVCenter);
    row->addWidget(m_right, 0, Qt::AlignVCenter);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusProxy(m_swatches);
}

void PaletteStrip::ConnectParts() {
    m_holder->installEventFilter(this);
    connect(m_left, &QToolButton::pressed, this, [this] { StartScrolling(-1); });
    connect(m_right, &QToolButton::pressed, this, [this] { StartScrolling(1); });
    connect(m_left, &QToolButton::released, m_scrollTimer, &QTimer::stop);
    connect(m_right, &QToolButton::released, m_scrollTimer, &QTimer::stop);
    connect(m_scrollTimer, &QTimer::timeout, this, [this] { StepScrolling(); });

    connect(m_currentFloss, &CurrentFloss::clicked, this, &PaletteStrip::PaletteEditorRequested);
    connect(m_swatches, &PaletteSwatches::FlossPicked, this, &PaletteStrip::FlossPicked);
    connect(m_swatches, &PaletteSwatches::EditorRequested, this,
            &PaletteStrip::PaletteEditorRequested);
    connect(m_swatches, &PaletteSwatches::Dragged, this, [this](int way) { ScrollBy(-way); });
    connect(m_swatches, &PaletteSwatches::Wheeled, this, &PaletteStrip::ScrollByWheel);
    connect(m_swatches, &PaletteSwatches::PageRequested, this, &PaletteStrip::ScrollPage);
    connect(m_swatches, &PaletteSwatches::Reached, this, &PaletteStrip::ShowRect);
}

void PaletteStrip::SetPattern(Pattern* pattern) {
    m_currentFloss->SetPattern(pattern);
    m_swatches->SetPattern(pattern);
    m_offset = 0;
    Arrange();
    ShowCurrent();
}

void PaletteStrip::SetCurrent(int paletteIndex) {
    m_currentFloss->SetFloss(paletteIndex);
    m_swatches->SetCurrent(paletteIndex);
    ShowCurrent();
}

int PaletteStrip::Current() const {
    return m_swatches->Current();
}

void PaletteStrip::SetRows(int rows) {
    m_swatches->SetRows(std::clamp(rows, 1, MostRows));
    Arrange();
    ShowCurrent();
}

void PaletteStrip::SetSquareSize(int size) {
    const int last = static_cast<int>(SwatchSides.size()) - 1;
    m_swatches->SetSide(SwatchSides[static_cast<std::size_t>(std::clamp(size - 1, 0, last))]);
    Arrange();
    ShowCurrent();
}

void PaletteStrip::ShowSymbols(bool on) {
    m_currentFloss->ShowSymbol(on);
    m_swatches->ShowSymbols(on);
}

void PaletteStrip::Refresh() {
    m_currentFloss->Refresh();
    m_swatches->Refresh();
    Arrange();
    ShowCurrent();
}

void PaletteStrip::Arrange() {
    const int height = m_swatches->Layout().Size().height();
    m_holder->setFixedHeight(height);
    m_left->setFixedSize(ArrowWidth, height);
    m_right->setFixedSize(ArrowWidth, height);
    ScrollTo(m_offset);
}

int PaletteStrip::LastOffset() const {
    return std::max(0, m_swatches->width() - m_holder->width());
}

void PaletteStrip::ScrollTo(int offset) {
    const int last = LastOffset();
    m_offset = std::clamp(offset, 0, last);
    m_swatches->move(-m_offset, 0);
    m_left->setVisible(last > 0);
    m_right->setVisible(last > 0);
    m_left->setEnabled(m_offset > 0);
    m_right->setEnabled(m_offset < last);
}

void PaletteStrip::StartScrolling(int direction) {
    m_direction = direction;
    ScrollBy(direction * m_swatches->Layout().Pitch());
    m_scrollTimer->start(FirstScrollMs);
}

void PaletteStrip::StepScrolling() {
    ScrollBy(m_direction * m_swatches->Layout().Pitch());
    if (m_offset == 0 || m_offset == LastOffset()) {
        m_scrollTimer->stop();
    } else {
        m_scrollTimer->setInterval(NextScrollMs);
    }
}

void PaletteStrip::ScrollByWheel(double columns) {
    // What a fine wheel turns is kept until it makes a pixel.
    m_wheelRest += columns * m_swatches->Layout().Pitch();
    const double whole = std::trunc(m_wheelRest);
    m_wheelRest -= whole;
    ScrollBy(static_cast<int>(whole));
}

void PaletteStrip::ScrollPage(int direction) {
    const int pitch = m_swatches->Layout().Pitch();
    ScrollBy(direction * std::max(pitch, m_holder->width() / pitch * pitch));
}

void PaletteStrip::ShowRect(const QRect& swatch) {
    if (swatch.isNull()) {
        return;
    }
    if (swatch.left() < m_offset) {
        ScrollTo(swatch.left());
    } else if (swatch.right() >= m_offset + m_holder->width()) {
        ScrollTo(swatch.right() + 1 - m_holder->width());
    }
}

void PaletteStrip::ShowCurrent() {
    ShowRect(m_swatches->RectOfFloss(m_swatches->Current()));
}

bool PaletteStrip::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_holder && event->type() == QEvent::Resize) {
        ScrollTo(m_offset);
        ShowCurrent();
    }
    return QWidget::eventFilter(watched, event);
}

void PaletteStrip::hideEvent(QHideEvent* event) {
    // A button that vanishes under the pointer is never let go.
    m_scrollTimer->stop();
    QWidget::hideEvent(event);
}

} // namespace zol
