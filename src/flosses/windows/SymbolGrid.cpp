// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/SymbolGrid.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

#include "windowkit/Theme.h"

namespace zol {

namespace {

constexpr int LeastCell = 24;
constexpr int Cell = 30;
constexpr int Rows = Palette::SymbolCount / SymbolGrid::Columns;
constexpr double SymbolScale = 0.7;

void PaintGlyph(QPainter& painter, SymbolText& symbols, const QRect& rect, int code,
                const QColor& color) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(symbols.Outline(rect, code, SymbolScale, false), color);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace

SymbolGrid::SymbolGrid(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(Columns * LeastCell, Rows * LeastCell);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SymbolGrid::SetChoice(SymbolChoice& choice, const Palette& palette) {
    m_choice = &choice;
    m_symbols.SetFont(palette);
    m_cursor = std::max(choice.Chosen(), 1);
    Describe();
    update();
}

QSize SymbolGrid::sizeHint() const {
    return {Columns * Cell, Rows * Cell};
}

QRect SymbolGrid::RectOf(int place) const {
    const int column = (place - 1) % Columns;
    const int row = (place - 1) / Columns;
    const QPoint from(column * width() / Columns, row * height() / Rows);
    const QPoint to((column + 1) * width() / Columns - 1, (row + 1) * height() / Rows - 1);
    return {from, to};
}

int SymbolGrid::PlaceAt(QPoint point) const {
    return rect().contains(point)
               ? point.y() * Rows / height() * Columns + point.x() * Columns / width() + 1
               : 0;
}

void SymbolGrid::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().color(QPalette::Base));
    for (int place = 1; m_choice != nullptr && place <= Palette::SymbolCount; ++place) {
        if (event->rect().intersects(RectOf(place))) {
            PaintSymbol(painter, place);
        }
    }
}

void SymbolGrid::PaintSymbol(QPainter& painter, int place) {
    const QRect rect = RectOf(place);
    const QColor text = palette().color(QPalette::Text);
    const QColor ground = palette().color(QPalette::Base);
    const bool taken = m_choice->IsTaken(place);
    painter.setPen(Theme::Mix(ground, text, 0.15));
    painter.drawRect(rect);
    PaintGlyph(painter, m_symbols, rect, SymbolChoice::CodeAt(place),
               taken ? Theme::Mix(ground, text, 0.4) : text);
    if (taken) {
        painter.setPen(Theme::Mix(ground, text, 0.4));
        painter.drawLine(rect.bottomLeft() + QPoint(3, -3), rect.topRight() + QPoint(-3, 3));
    }
    const QRect ring = rect.adjusted(1, 1, -1, -1);
    if (place == m_choice->Chosen()) {
        painter.setPen(
            QPen(Theme::Accent(palette()), 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(ring);
    } else if (hasFocus() && place == m_cursor) {
        painter.setPen(QPen(Theme::Accent(palette()), 1, Qt::DashLine));
        painter.drawRect(ring);
    }
}

void SymbolGrid::Choose(int place) {
    MoveCursor(place);
    m_choice->Choose(place);
    Describe();
    update();
    Q_EMIT Chosen();
}

void SymbolGrid::MoveCursor(int place) {
    m_cursor = std::clamp(place, 1, Palette::SymbolCount);
    Describe();
    update();
}

void SymbolGrid::mousePressEvent(QMouseEvent* event) {
    const int place = PlaceAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && place > 0 && m_choice != nullptr) {
        Choose(place);
    }
}

void SymbolGrid::mouseDoubleClickEvent(QMouseEvent* event) {
    const int place = PlaceAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && m_choice != nullptr && place > 0 &&
        place == m_choice->Chosen()) {
        Q_EMIT Taken();
    }
}

void SymbolGrid::keyPressEvent(QKeyEvent* event) {
    const auto moveTo = [this](int place) {
        if (place < 1 || place > Palette::SymbolCount) {
            return;
        }
        // A taken symbol is passed over without a word; a click or the space bar asks for it.
        if (m_choice->IsTaken(place)) {
            MoveCursor(place);
        } else {
            Choose(place);
        }
    };
    switch (event->key()) {
    case Qt::Key_Left:
        return moveTo(m_cursor - 1);
    case Qt::Key_Right:
        return moveTo(m_cursor + 1);
    case Qt::Key_Up:
        return moveTo(m_cursor - Columns);
    case Qt::Key_Down:
        return moveTo(m_cursor + Columns);
    case Qt::Key_Home:
        return moveTo(1);
    case Qt::Key_End:
        return moveTo(Palette::SymbolCount);
    case Qt::Key_Space:
        return Choose(m_cursor);
    default:
        QWidget::keyPressEvent(event);
    }
}

void SymbolGrid::Describe() {
    const int code = SymbolChoice::CodeAt(m_cursor);
    QString name = QStringLiteral("Symbol %1 of %2, code %3")
                       .arg(m_cursor)
                       .arg(Palette::SymbolCount)
                       .arg(code);
    if (m_choice->IsTaken(m_cursor)) {
        name += QStringLiteral(", taken");
    } else if (m_cursor == m_choice->Chosen()) {
        name += QStringLiteral(", chosen");
    }
    setAccessibleDescription(name);
}

void SymbolGrid::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void SymbolGrid::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

// --- One symbol ---------------------------------------------------------------------------------

SymbolPicture::SymbolPicture(QWidget* parent) : QWidget(parent) {
    setFixedSize(SymbolPicture::sizeHint());
}

void SymbolPicture::SetSymbol(const Palette& palette, int code) {
    m_symbols.SetFont(palette);
    m_code = code;
    update();
}

void SymbolPicture::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(Theme::Edge(palette()));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (m_code != 0) {
        PaintGlyph(painter, m_symbols, rect(), m_code, palette().color(QPalette::Text));
    }
}

} // namespace zol
