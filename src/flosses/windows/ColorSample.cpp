// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "flosses/windows/ColorSample.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

#include "flosses/ColorMixing.h"
#include "grid/painting/PaintColors.h"
#include "model/Rounding.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

constexpr int ArrowWidth = 13;
constexpr int ArrowHeight = 9;
constexpr int PageStep = 10;
constexpr int WheelNotch = 120; ///< eighths of a degree

/// The pointer below the strip.
class Arrow : public QWidget {
public:
    explicit Arrow(QWidget* parent) : QWidget(parent) {
        setObjectName(QStringLiteral("picArrow"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFixedSize(ArrowWidth, ArrowHeight);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const bool focused = parentWidget()->hasFocus();
        painter.setPen(Qt::NoPen);
        painter.setBrush(focused ? Theme::Accent(palette()) : palette().color(QPalette::Text));
        painter.drawPolygon(
            QPolygonF{{ArrowWidth / 2.0, 0}, {ArrowWidth, ArrowHeight}, {0, ArrowHeight}});
    }
};

} // namespace

ColorSample::ColorSample(QWidget* parent) : QWidget(parent) {
    setMinimumSize(24, 18);
}

void ColorSample::SetColor(std::optional<Colour> color) {
    m_color = color;
    update();
}

void ColorSample::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(Theme::Edge(palette()));
    painter.setBrush(m_color ? QBrush(ToQColor(*m_color)) : QBrush(Qt::NoBrush));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

QIcon SwatchIcon(Colour color) {
    // Large enough for the densest screens; the list scales it down.
    QPixmap patch(4 * QSize(32, 20));
    patch.fill(ToQColor(color));
    QPainter painter(&patch);
    painter.setPen(QPen(QColor(128, 128, 128), 4));
    painter.drawRect(patch.rect().adjusted(2, 2, -2, -2));
    painter.end();
    QIcon icon(patch);
    // A selected line shows the colour as it is, not mixed with that of the selection.
    icon.addPixmap(patch, QIcon::Selected);
    return icon;
}

// --- Brightness ---------------------------------------------------------------------------------

BrightnessStrip::BrightnessStrip(QWidget* parent) : QWidget(parent), m_arrow(new Arrow(this)) {
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(120, 30);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void BrightnessStrip::SetColor(Colour color) {
    m_color = color;
    update();
}

void BrightnessStrip::SetPercent(int percent) {
    m_percent = std::clamp(percent, 0, ColorMixing::LargestPercent);
    PlaceArrow();
    update();
}

void BrightnessStrip::PlaceArrow() {
    const int room = width() - ArrowWidth;
    m_arrow->move(room * m_percent / ColorMixing::LargestPercent, height() - ArrowHeight);
}

int BrightnessStrip::PercentAt(double x) const {
    const double room = std::max(width() - ArrowWidth, 1);
    const double share = std::clamp((x - ArrowWidth / 2.0) / room, 0.0, 1.0);
    return RoundToInt(share * ColorMixing::LargestPercent);
}

void BrightnessStrip::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const int bottom = height() - ArrowHeight - 3;
    for (int x = 0; x < width(); ++x) {
        painter.fillRect(x, 0, 1, bottom, ToQColor(ColorMixing::Scale(m_color, PercentAt(x))));
    }
    painter.setPen(Theme::Edge(palette()));
    painter.drawRect(0, 0, width() - 1, bottom - 1);
    m_arrow->update();
}

void BrightnessStrip::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    PlaceArrow();
}

void BrightnessStrip::Choose(int percent) {
    const int before = m_percent;
    SetPercent(percent);
    if (m_percent != before) {
        Q_EMIT PercentChosen(m_percent);
    }
}

void BrightnessStrip::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        Choose(PercentAt(event->position().x()));
    }
}

void BrightnessStrip::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) != 0) {
        Choose(PercentAt(event->position().x()));
    }
}

void BrightnessStrip::wheelEvent(QWheelEvent* event) {
    Choose(m_percent + event->angleDelta().y() / WheelNotch);
    event->accept();
}

void BrightnessStrip::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        return Choose(m_percent - 1);
    case Qt::Key_Right:
    case Qt::Key_Up:
        return Choose(m_percent + 1);
    case Qt::Key_PageDown:
        return Choose(m_percent - PageStep);
    case Qt::Key_PageUp:
        return Choose(m_percent + PageStep);
    case Qt::Key_Home:
        return Choose(0);
    case Qt::Key_End:
        return Choose(ColorMixing::LargestPercent);
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace zol
