// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/PaletteSwatches.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>

#include "flosses/windows/FlossText.h"

namespace zol {

namespace {

/// Columns that one notch of a wheel scrolls, and how far it turns.
constexpr double ColumnsPerNotch = 3;
constexpr double NotchAngle = 120;
/// After this long without a key a number begins anew.
constexpr int TypingPauseMs = 1200;

bool IsPickKey(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space ||
           key == Qt::Key_Select;
}

bool IsTyped(const QKeyEvent& event) {
    return !event.text().isEmpty() && event.text().at(0).isPrint() &&
           event.text().at(0) != QLatin1Char(' ') &&
           (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
}

} // namespace

PaletteSwatches::PaletteSwatches(QWidget* parent) : QWidget(parent), m_typingPause(this) {
    setObjectName(QStringLiteral("picPalette"));
    // A click picks a floss and leaves the keyboard to the cloth.
    setFocusPolicy(Qt::TabFocus);
    // It leaves no pixel out, so scrolling moves what is there.
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_typingPause.setObjectName(QStringLiteral("typingPause"));
    m_typingPause.setSingleShot(true);
    m_typingPause.setInterval(TypingPauseMs);
    connect(&m_typingPause, &QTimer::timeout, this, [this] { m_typed.clear(); });
}

void PaletteSwatches::SetPattern(Pattern* pattern) {
    m_pattern = pattern;
    m_cursor = 0;
    Refresh();
}

void PaletteSwatches::SetCurrent(int paletteIndex) {
    m_cursor = m_pattern != nullptr ? m_pattern->GetPalette().GetSortedPosition(paletteIndex) : 0;
    if (paletteIndex != m_current) {
        update(RectOfFloss(m_current));
        m_current = paletteIndex;
        update(RectOfFloss(m_current));
    }
    DescribeCursor();
}

void PaletteSwatches::SetRows(int rows) {
    m_layout.Rows = rows;
    Refresh();
}

void PaletteSwatches::SetSide(int pixels) {
    m_layout.Side = pixels;
    Refresh();
}

void PaletteSwatches::ShowSymbols(bool on) {
    m_showSymbols = on;
    update();
}

void PaletteSwatches::Refresh() {
    m_layout.Count = m_pattern != nullptr ? m_pattern->GetPalette().GetEntriesCount() : 0;
    m_cursor = std::min(m_cursor, m_layout.Count);
    resize(m_layout.Size());
    DescribeCursor();
    update();
}

int PaletteSwatches::FlossAt(int position) const {
    return m_pattern != nullptr ? m_pattern->GetPalette().GetSortIndex(position) : 0;
}

QRect PaletteSwatches::RectOfFloss(int paletteIndex) const {
    const int position =
        m_pattern != nullptr ? m_pattern->GetPalette().GetSortedPosition(paletteIndex) : 0;
    return position > 0 ? m_layout.RectOf(position) : QRect();
}

void PaletteSwatches::PaintSwatch(QPainter& painter, int position) {
    const QRect rect = m_layout.RectOf(position);
    const zol::Palette& flosses = m_pattern->GetPalette();
    const int floss = FlossAt(position);
    const bool isCurrent = floss == m_current && floss > 0;
    m_swatches.Paint(painter, rect, flosses, floss, m_showSymbols, palette());
    if (isCurrent) {
        SwatchPainter::PaintFrame(painter, rect, flosses, floss, palette());
    }
    if (hasFocus() && position == m_cursor) {
        SwatchPainter::PaintFocus(painter, rect, isCurrent, palette());
    }
}

void PaletteSwatches::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().color(QPalette::Window));
    if (m_pattern == nullptr) {
        return;
    }
    m_swatches.TakeFont(m_pattern->GetPalette());
    const int first = event->rect().left() / m_layout.Pitch() * m_layout.Rows + 1;
    const int last = (event->rect().right() / m_layout.Pitch() + 1) * m_layout.Rows;
    for (int position = first; position <= std::min(last, m_layout.Count); ++position) {
        if (event->region().intersects(m_layout.RectOf(position))) {
            PaintSwatch(painter, position);
        }
    }
}

void PaletteSwatches::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_pressed = true;
    m_dragging = false;
    m_pressedAt = event->globalPosition().toPoint();
    m_draggedTo = m_pressedAt;
}

void PaletteSwatches::mouseMoveEvent(QMouseEvent* event) {
    if (!m_pressed || (event->buttons() & Qt::LeftButton) == 0) {
        m_pressed = false;
        return;
    }
    const QPoint at = event->globalPosition().toPoint();
    m_dragging =
        m_dragging || (at - m_pressedAt).manhattanLength() >= QApplication::startDragDistance();
    if (m_dragging) {
        const int way = at.x() - m_draggedTo.x();
        m_draggedTo = at;
        Q_EMIT Dragged(way);
    }
}

void PaletteSwatches::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !m_pressed) {
        return;
    }
    m_pressed = false;
    const int floss = FlossAt(m_layout.PositionAt(event->position().toPoint()));
    if (!m_dragging && floss > 0) {
        Q_EMIT FlossPicked(floss);
    }
}

void PaletteSwatches::mouseDoubleClickEvent(QMouseEvent* event) {
    const int floss = FlossAt(m_layout.PositionAt(event->position().toPoint()));
    if (event->button() != Qt::LeftButton || floss == 0) {
        return;
    }
    // The first click has picked the floss as a rule.
    if (floss != m_current) {
        Q_EMIT FlossPicked(floss);
    }
    Q_EMIT EditorRequested();
}

void PaletteSwatches::wheelEvent(QWheelEvent* event) {
    const QPoint angle = event->angleDelta();
    const int turned = std::abs(angle.x()) > std::abs(angle.y()) ? angle.x() : angle.y();
    Q_EMIT Wheeled(-turned / NotchAngle * ColumnsPerNotch);
    event->accept();
}

bool PaletteSwatches::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        ShowTip(help->pos(), help->globalPos());
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride && IsTyped(*static_cast<QKeyEvent*>(event))) {
        // Digits typed here are a floss's number, whatever they are short for elsewhere.
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void PaletteSwatches::ShowTip(QPoint at, QPoint globalAt) {
    const int position = m_layout.PositionAt(at);
    if (position == 0) {
        QToolTip::hideText();
        return;
    }
    QToolTip::showText(globalAt, FlossText::Tip(*m_pattern, FlossAt(position)), this,
                       m_layout.RectOf(position));
}

void PaletteSwatches::keyPressEvent(QKeyEvent* event) {
    if (m_layout.Count > 0) {
        if (MoveByKey(event->key())) {
            return;
        }
        if (IsPickKey(event->key())) {
            PickAtCursor();
            return;
        }
        if (IsTyped(*event)) {
            Type(event->text());
            return;
        }
    }
    QWidget::keyPressEvent(event);
}

bool PaletteSwatches::MoveByKey(int key) {
    const int at = std::max(m_cursor, 1);
    switch (key) {
    case Qt::Key_Left:
        MoveColumns(-1);
        return true;
    case Qt::Key_Right:
        MoveColumns(1);
        return true;
    case Qt::Key_Up:
        MoveCursor(at - 1);
        return true;
    case Qt::Key_Down:
        MoveCursor(at + 1);
        return true;
    case Qt::Key_Home:
        MoveCursor(1);
        return true;
    case Qt::Key_End:
        MoveCursor(m_layout.Count);
        return true;
    case Qt::Key_PageUp:
        Q_EMIT PageRequested(-1);
        return true;
    case Qt::Key_PageDown:
        Q_EMIT PageRequested(1);
        return true;
    default:
        return false;
    }
}

void PaletteSwatches::MoveCursor(int position) {
    update(m_layout.RectOf(std::max(m_cursor, 1)));
    m_cursor = std::clamp(position, 1, std::max(m_layout.Count, 1));
    update(m_layout.RectOf(m_cursor));
    DescribeCursor();
    Q_EMIT Reached(m_layout.RectOf(m_cursor));
}

void PaletteSwatches::MoveColumns(int columns) {
    const int at = std::max(m_cursor, 1);
    const int target = at + columns * m_layout.Rows;
    // The last column may be short; its end is then the nearest there is.
    const bool isShortColumn =
        target > m_layout.Count && (at - 1) / m_layout.Rows + 1 < m_layout.Columns();
    if (isShortColumn || (target >= 1 && target <= m_layout.Count)) {
        MoveCursor(std::min(target, m_layout.Count));
    }
}

void PaletteSwatches::PickAtCursor() {
    const int floss = FlossAt(m_cursor);
    if (floss > 0) {
        Q_EMIT FlossPicked(floss);
    }
}

void PaletteSwatches::Type(const QString& text) {
    m_typed += text;
    m_typingPause.start();
    const int position = FlossText::PositionOfNumber(m_pattern->GetPalette(), m_typed);
    if (position > 0) {
        MoveCursor(position);
    }
}

void PaletteSwatches::DescribeCursor() {
    const int floss = FlossAt(m_cursor);
    if (floss == 0) {
        setAccessibleName(QStringLiteral("Flosses"));
        setAccessibleDescription({});
        return;
    }
    setAccessibleName(FlossText::LongDescription(m_pattern->GetPalette(), floss));
    QString place = QStringLiteral("Floss %1 of %2").arg(m_cursor).arg(m_layout.Count);
    if (floss == m_current) {
        place += QStringLiteral(", current floss");
    }
    setAccessibleDescription(place);
}

void PaletteSwatches::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    if (m_layout.Count > 0) {
        MoveCursor(std::max(m_cursor, 1));
    }
}

void PaletteSwatches::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update(m_layout.RectOf(std::max(m_cursor, 1)));
}

} // namespace zol
