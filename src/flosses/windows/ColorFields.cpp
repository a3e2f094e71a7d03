// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/ColorFields.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <utility>

#include "flosses/windows/ColorDialog.h"
#include "grid/painting/PaintColors.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

constexpr double MarkRadius = 5;
constexpr double SmallStep = 0.01;
constexpr double LargeStep = 0.1;

} // namespace

ColorField::ColorField(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(180, 100);
    setCursor(Qt::CrossCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ColorField::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        PickAt(event->position());
    }
}

void ColorField::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) != 0) {
        PickAt(event->position());
    }
}

void ColorField::keyPressEvent(QKeyEvent* event) {
    const bool large = (event->modifiers() & Qt::ShiftModifier) != 0;
    switch (event->key()) {
    case Qt::Key_Left:
        return Step({-1, 0}, large);
    case Qt::Key_Right:
        return Step({1, 0}, large);
    case Qt::Key_Up:
        return Step({0, -1}, large);
    case Qt::Key_Down:
        return Step({0, 1}, large);
    default:
        QWidget::keyPressEvent(event);
    }
}

void ColorField::PaintMark(QPainter& painter, const QRectF& mark) const {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::black, 3));
    painter.drawRect(mark);
    painter.setPen(QPen(hasFocus() ? Theme::AccentOn(Qt::black) : QColor(Qt::white), 1.5));
    painter.drawRect(mark);
}

// --- Hue and saturation -------------------------------------------------------------------------

HueField::HueField(QWidget* parent) : ColorField(parent) {}

void HueField::ShowColor(Colour color) {
    const QColor shown = ToQColor(color);
    // A grey has no hue: the mark stays in its column.
    m_hue = shown.hueF() < 0 ? m_hue : static_cast<double>(shown.hueF());
    m_saturation = static_cast<double>(shown.saturationF());
    update();
}

void HueField::resizeEvent(QResizeEvent* event) {
    ColorField::resizeEvent(event);
    m_picture = QImage(size(), QImage::Format_RGB32);
    const double across = std::max(width() - 1, 1);
    const double down = std::max(height() - 1, 1);
    for (int y = 0; y < m_picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(m_picture.scanLine(y));
        for (int x = 0; x < m_picture.width(); ++x) {
            line[x] = QColor::fromHsvF(static_cast<float>(x / across),
                                       static_cast<float>(1 - y / down), 1)
                          .rgb();
        }
    }
}

void HueField::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.drawImage(rect(), m_picture);
    painter.setPen(Theme::Edge(palette()));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const QPointF centre(m_hue * (width() - 1), (1 - m_saturation) * (height() - 1));
    const QPointF corner(MarkRadius, MarkRadius);
    PaintMark(painter, QRectF(centre - corner, centre + corner));
}

void HueField::PickAt(QPointF place) {
    m_hue = std::clamp(place.x() / std::max(width() - 1, 1), 0.0, 1.0);
    m_saturation = 1 - std::clamp(place.y() / std::max(height() - 1, 1), 0.0, 1.0);
    update();
    Q_EMIT ColorPicked(
        ColourOf(QColor::fromHsvF(static_cast<float>(m_hue), static_cast<float>(m_saturation), 1)));
}

void HueField::Step(QPoint direction, bool large) {
    const double step = large ? LargeStep : SmallStep;
    PickAt({(m_hue + direction.x() * step) * (width() - 1),
            (1 - m_saturation + direction.y() * step) * (height() - 1)});
}

// --- Single colours -----------------------------------------------------------------------------

SwatchField::SwatchField(QWidget* parent) : ColorField(parent) {}

void SwatchField::SetColors(std::vector<Colour> colors, int columns) {
    m_colors = std::move(colors);
    m_columns = std::max(columns, 1);
    m_chosen = -1;
    update();
}

int SwatchField::Rows() const {
    return std::max((static_cast<int>(m_colors.size()) + m_columns - 1) / m_columns, 1);
}

QRect SwatchField::CellOf(int index) const {
    const int column = index % m_columns;
    const int row = index / m_columns;
    const int left = width() * column / m_columns;
    const int top = height() * row / Rows();
    return {QPoint(left, top),
            QPoint(width() * (column + 1) / m_columns - 1, height() * (row + 1) / Rows() - 1)};
}

void SwatchField::ShowColor(Colour color) {
    int nearest = std::numeric_limits<int>::max();
    m_chosen = -1;
    for (std::size_t i = 0; i < m_colors.size(); ++i) {
        int distance = 0;
        for (const unsigned shift : {0U, 8U, 16U}) {
            distance += std::abs(static_cast<int>((m_colors[i] >> shift) & 0xFFU) -
                                 static_cast<int>((color >> shift) & 0xFFU));
        }
        if (distance < nearest) {
            nearest = distance;
            m_chosen = static_cast<int>(i);
        }
    }
    update();
}

void SwatchField::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    for (std::size_t i = 0; i < m_colors.size(); ++i) {
        painter.fillRect(CellOf(static_cast<int>(i)), ToQColor(m_colors[i]));
    }
    painter.setPen(Theme::Edge(palette()));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (m_chosen >= 0) {
        PaintMark(painter, QRectF(CellOf(m_chosen)).adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

void SwatchField::Pick(int index) {
    if (index >= 0 && index < static_cast<int>(m_colors.size())) {
        m_chosen = index;
        update();
        Q_EMIT ColorPicked(m_colors[static_cast<std::size_t>(index)]);
    }
}

void SwatchField::PickAt(QPointF place) {
    for (int i = 0; i < static_cast<int>(m_colors.size()); ++i) {
        const QPoint inside(std::clamp(static_cast<int>(place.x()), 0, width() - 1),
                            std::clamp(static_cast<int>(place.y()), 0, height() - 1));
        if (CellOf(i).contains(inside)) {
            return Pick(i);
        }
    }
}

void SwatchField::Step(QPoint direction, bool large) {
    const int step = large ? 4 : 1;
    Pick(std::max(m_chosen, 0) + direction.x() * step + direction.y() * step * m_columns);
}

} // namespace zol
