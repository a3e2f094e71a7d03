// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/PaletteGrid.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

#include "flosses/windows/FlossText.h"
#include "grid/painting/PaintColors.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

constexpr int LeastCell = 24;
constexpr int LargestCellHeight = 40;
constexpr int RowsOfAPage = 4;
/// After this long without a key a number begins anew.
constexpr int TypingPauseMs = 1200;

bool IsTyped(const QKeyEvent& event) {
    return !event.text().isEmpty() && event.text().at(0).isPrint() &&
           event.text().at(0) != QLatin1Char(' ') &&
           (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
}

} // namespace

PaletteGrid::PaletteGrid(QWidget* parent) : QWidget(parent), m_drag(this), m_typingPause(this) {
    setFocusPolicy(Qt::StrongFocus);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setMinimumWidth(Columns * LeastCell);
    m_typingPause.setSingleShot(true);
    m_typingPause.setInterval(TypingPauseMs);
    connect(&m_typingPause, &QTimer::timeout, this, [this] { m_typed.clear(); });
    connect(&m_drag, &FlossDrag::Dropped, this,
            [this](const QPoint& globalPos) { Q_EMIT DroppedAt(m_dragged, globalPos); });
}

void PaletteGrid::SetPalette(const Palette& palette) {
    m_palette = &palette;
}

void PaletteGrid::Refresh(int selected) {
    m_selected = selected;
    updateGeometry();
    Describe();
    update();
    if (selected > 0) {
        Q_EMIT Reached(RectOf(selected));
    }
}

int PaletteGrid::Count() const {
    return m_palette != nullptr ? m_palette->GetEntriesCount() : 0;
}

int PaletteGrid::CellHeight(int width) const {
    return std::min(width / Columns, LargestCellHeight);
}

int PaletteGrid::heightForWidth(int width) const {
    return (Count() + Columns - 1) / Columns * CellHeight(width);
}

QSize PaletteGrid::sizeHint() const {
    constexpr int side = 34;
    return {Columns * side, heightForWidth(Columns * side)};
}

QRect PaletteGrid::RectAt(int position) const {
    const int column = (position - 1) % Columns;
    const int row = (position - 1) / Columns;
    const int left = column * width() / Columns;
    const int height = CellHeight(width());
    // One pixel stays free between cells.
    return {left, row * height, (column + 1) * width() / Columns - left - 1, height - 1};
}

QRect PaletteGrid::RectOf(int entry) const {
    const int position = m_palette != nullptr ? m_palette->GetSortedPosition(entry) : 0;
    return position > 0 ? RectAt(position) : QRect();
}

int PaletteGrid::EntryAt(QPoint place) const {
    if (Count() == 0 || !rect().contains(place) || CellHeight(width()) == 0) {
        return 0;
    }
    const int column = std::min(place.x() * Columns / width(), Columns - 1);
    return m_palette->GetSortIndex(place.y() / CellHeight(width()) * Columns + column + 1);
}

void PaletteGrid::ShowDropTarget(int entry) {
    if (entry != m_dropTarget) {
        m_dropTarget = entry;
        update();
    }
}

void PaletteGrid::paintEvent(QPaintEvent* event) {
    if (Count() == 0) {
        return;
    }
    QPainter painter(this);
    m_swatches.TakeFont(*m_palette);
    for (int position = 1; position <= Count(); ++position) {
        if (event->rect().intersects(RectAt(position))) {
            m_swatches.Paint(painter, RectAt(position), *m_palette,
                             m_palette->GetSortIndex(position), true, palette());
        }
    }
    DrawSelectedBox(painter);
}

void PaletteGrid::DrawSelectedBox(QPainter& painter) const {
    if (m_selected > 0) {
        SwatchPainter::PaintFrame(painter, RectOf(m_selected), *m_palette, m_selected, palette());
        if (hasFocus()) {
            SwatchPainter::PaintFocus(painter, RectOf(m_selected), true, palette());
        }
    }
    if (m_dropTarget > 0) {
        SwatchPainter::PaintFocus(painter, RectOf(m_dropTarget), m_dropTarget == m_selected,
                                  palette());
    }
}

void PaletteGrid::SelectAt(int position) {
    const int entry = m_palette->GetSortIndex(position);
    if (entry > 0 && entry != m_selected) {
        Refresh(entry);
        Q_EMIT EntrySelected(entry);
    }
}

void PaletteGrid::mousePressEvent(QMouseEvent* event) {
    m_drag.Press(*event);
    m_dragged = EntryAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && m_dragged > 0) {
        SelectAt(m_palette->GetSortedPosition(m_dragged));
    }
}

void PaletteGrid::mouseMoveEvent(QMouseEvent* event) {
    if (m_dragged > 0) {
        m_drag.Move(*event, ToQColor(m_palette->GetFlossRGB(m_dragged)));
    }
}

void PaletteGrid::mouseReleaseEvent(QMouseEvent* event) {
    m_drag.Release(*event);
    m_dragged = 0;
}

int PaletteGrid::PositionAfterKey(int key) const {
    const int at = std::max(m_palette->GetSortedPosition(m_selected), 1);
    switch (key) {
    case Qt::Key_Left:
        return at - 1;
    case Qt::Key_Right:
        return at + 1;
    case Qt::Key_Up:
        return at - Columns;
    case Qt::Key_Down:
        return at + Columns;
    case Qt::Key_PageUp:
        return std::max(at - RowsOfAPage * Columns, (at - 1) % Columns + 1);
    case Qt::Key_PageDown:
        return std::min(at + RowsOfAPage * Columns, Count());
    case Qt::Key_Home:
        return 1;
    case Qt::Key_End:
        return Count();
    default:
        return 0;
    }
}

void PaletteGrid::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && m_drag.IsDragging()) {
        m_drag.Cancel();
        return;
    }
    if (Count() == 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    constexpr std::array moves{Qt::Key_Left, Qt::Key_Right,  Qt::Key_Up,  Qt::Key_Down,
                               Qt::Key_Home, Qt::Key_PageUp, Qt::Key_End, Qt::Key_PageDown};
    if (std::find(moves.begin(), moves.end(), event->key()) != moves.end()) {
        SelectAt(PositionAfterKey(event->key()));
    } else if (event->key() == Qt::Key_Delete) {
        Q_EMIT RemoveRequested();
    } else if (IsTyped(*event)) {
        Type(event->text());
    } else {
        QWidget::keyPressEvent(event);
    }
}

void PaletteGrid::Type(const QString& text) {
    m_typed += text;
    m_typingPause.start();
    SelectAt(FlossText::PositionOfNumber(*m_palette, m_typed));
}

void PaletteGrid::Describe() {
    setAccessibleName(m_selected > 0 ? FlossText::LongDescription(*m_palette, m_selected)
                                     : QStringLiteral("Flosses of the palette"));
    setAccessibleDescription(QStringLiteral("Floss %1 of %2")
                                 .arg(m_selected > 0 ? m_palette->GetSortedPosition(m_selected) : 0)
                                 .arg(Count()));
}

bool PaletteGrid::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && m_palette != nullptr) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const int entry = EntryAt(help->pos());
        QToolTip::showText(help->globalPos(), FlossText::LongDescription(*m_palette, entry), this,
                           RectOf(entry));
        return true;
    }
    return QWidget::event(event);
}

void PaletteGrid::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    if (m_selected == 0 && Count() > 0) {
        SelectAt(1);
    }
    update();
}

void PaletteGrid::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

} // namespace zol
