// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/CurrentFloss.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

#include "flosses/windows/FlossText.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

constexpr int LeastSide = 40;
constexpr int LargestSide = 64;
constexpr int Gap = 8;
constexpr int TextCharacters = 30;

} // namespace

CurrentFloss::CurrentFloss(QWidget* parent) : QAbstractButton(parent) {
    setObjectName(QStringLiteral("picCurrentFlossColor"));
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setStatusTip(QStringLiteral("The floss you draw with; click to change the palette"));
    connect(this, &QAbstractButton::clicked, this, [this] { m_sinceClick.start(); });
    Refresh();
}

void CurrentFloss::SetPattern(Pattern* pattern) {
    m_pattern = pattern;
    Refresh();
}

void CurrentFloss::SetFloss(int paletteIndex) {
    m_floss = paletteIndex;
    Refresh();
}

void CurrentFloss::ShowSymbol(bool on) {
    m_showSymbol = on;
    update();
}

bool CurrentFloss::HasFloss() const {
    return m_pattern != nullptr && m_floss >= 1 &&
           m_floss <= m_pattern->GetPalette().GetEntriesCount();
}

void CurrentFloss::Refresh() {
    setAccessibleName(HasFloss()
                          ? QString(QStringLiteral("Current floss ") +
                                    FlossText::LongDescription(m_pattern->GetPalette(), m_floss))
                          : QStringLiteral("No current floss"));
    setAccessibleDescription(QStringLiteral("Opens the floss palette"));
    update();
}

QSize CurrentFloss::sizeHint() const {
    return {LargestSide + Gap + TextCharacters * fontMetrics().averageCharWidth(),
            std::max(LeastSide, 2 * fontMetrics().lineSpacing())};
}

QRect CurrentFloss::SwatchRect() const {
    const int side = std::clamp(height(), LeastSide, LargestSide);
    return {0, (height() - side) / 2, side, side};
}

void CurrentFloss::PaintTexts(QPainter& painter) const {
    const QRect text = rect().adjusted(SwatchRect().right() + 1 + Gap, 0, 0, 0);
    const int line = fontMetrics().lineSpacing();
    const int top = text.center().y() + 1 - line;
    if (!HasFloss()) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(text, Qt::AlignVCenter, QStringLiteral("No floss"));
        return;
    }
    QFont bold = font();
    bold.setBold(true);
    const zol::Palette& flosses = m_pattern->GetPalette();
    const auto drawLine = [&](int y, const QFont& lineFont, const QString& words) {
        painter.setFont(lineFont);
        const QString cut = QFontMetrics(lineFont).elidedText(words, Qt::ElideRight, text.width());
        painter.drawText(QRect(text.left(), y, text.width(), line), Qt::AlignVCenter, cut);
    };
    painter.setPen(palette().color(QPalette::WindowText));
    drawLine(top, bold, FlossText::Number(flosses, m_floss));
    drawLine(top + line, font(), FlossText::Name(flosses, m_floss));
}

void CurrentFloss::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QRect swatch = SwatchRect();
    if (HasFloss()) {
        m_swatches.TakeFont(m_pattern->GetPalette());
        m_swatches.Paint(painter, swatch, m_pattern->GetPalette(), m_floss, m_showSymbol,
                         palette());
    } else {
        painter.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DotLine));
        painter.drawRect(swatch.adjusted(0, 0, -1, -1));
    }
    PaintTexts(painter);
    if (hasFocus()) {
        painter.setPen(QPen(Theme::Accent(palette()), 1, Qt::DashLine));
        painter.drawRect(rect().adjusted(swatch.width() + 3, 0, -1, -1));
    }
}

void CurrentFloss::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void CurrentFloss::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
    // The first click has asked as a rule, and once is enough.
    if (!m_sinceClick.isValid() || m_sinceClick.hasExpired(QApplication::doubleClickInterval())) {
        click();
    }
}

bool CurrentFloss::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && HasFloss()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           FlossText::Tip(*m_pattern, m_floss), this);
        return true;
    }
    return QAbstractButton::event(event);
}

} // namespace zol
