// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/GridRulers.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

#include "model/Rounding.h"
#include "windowkit/DevicePixels.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

constexpr double TwipsPerPixel = 15;

} // namespace

/// One painting of a ruler, in device pixels. "Along" runs from the grid's first square on,
/// "depth" from the outer edge to the grid.
class GridRuler::Sheet {
public:
    Sheet(QPainter& painter, GridRuler& ruler)
        : m_ruler(ruler),
          m_device(painter),
          m_painter(painter),
          m_across(ruler.m_orientation == Qt::Horizontal),
          m_depth(static_cast<int>(std::ceil(Thickness * m_device.Ratio()))),
          m_text(ruler.palette().color(QPalette::WindowText)),
          m_ground(ruler.palette().color(QPalette::Window)),
          m_digits(ruler.m_digits) {}

    void Paint(const QRect& exposed) {
        const QRect pixels = m_device.Covering(exposed);
        m_painter.fillRect(pixels, m_ground);
        const int step = StepOf(m_ruler.m_scale);
        if (step > 0) {
            PaintTicks(step, pixels);
        }
        PaintMiddle();
    }

private:
    [[nodiscard]] int ToPixels(double twips) const {
        return TruncToInt(twips / TwipsPerPixel * m_device.Ratio() + 1e-6);
    }
    /// A rectangle told along the ruler and in its depth.
    void Fill(int along, int depth, int length, int height, const QColor& color) {
        m_painter.fillRect(m_across ? QRect(along, depth, length, height)
                                    : QRect(depth, along, height, length),
                           color);
    }

    void PaintTicks(int step, const QRect& pixels) {
        const double perPixel = TwipsPerPixel / m_device.Ratio();
        // A number stands behind its tick, so some that come before are painted too.
        const int first = (m_across ? pixels.left() : pixels.top()) - 4 * m_depth;
        const int last = m_across ? pixels.right() : pixels.bottom();
        const int count = m_ruler.m_scale.Inches ? 16 : 10;
        const QColor color = Theme::Mix(m_ground, m_text, 0.6);
        const int from = std::max(0, TruncToInt(first * perPixel / step) - 1);
        const int to =
            std::min(m_ruler.m_lengthTwips / step, TruncToInt(last * perPixel / step) + 1);
        const int width = std::max(1, TruncToInt(m_device.Ratio()));
        for (int tick = from; tick <= to; ++tick) {
            const double start = TickStart(m_ruler.m_scale.Inches, tick % count);
            if (start >= 0) {
                const int depth = ToPixels(start);
                Fill(ToPixels(static_cast<double>(tick) * step), depth, width, m_depth - depth,
                     color);
            }
        }
        const int every = NumberEvery(ToPixels(static_cast<double>(step) * count));
        for (int number = std::max(1, from / count); number * count <= to; ++number) {
            if (number % every == 0) {
                PaintNumber(number, ToPixels(static_cast<double>(number) * count * step));
            }
        }
    }

    /// Which counts have room: each, every second, fifth, tenth and so on.
    [[nodiscard]] int NumberEvery(int unit) const {
        const int room = (m_across ? m_digits.WidthOfThree() : m_digits.Ascent()) + m_depth / 3;
        int every = 1;
        for (int turn = 0; every * std::max(1, unit) < room; ++turn) {
            every = turn % 3 == 1 ? every * 5 / 2 : every * 2;
        }
        return every;
    }

    void PaintNumber(int number, int along) {
        const RulerDigits::Number& text = m_digits.Of(number);
        const int gap = std::max(2, TruncToInt(2 * m_device.Ratio()));
        const int edge = std::max(1, TruncToInt(m_device.Ratio()));
        const QPoint corner =
            m_across ? QPoint(along + gap + edge, edge) : QPoint(edge, along + gap + edge);
        const QRect box(corner, QSize(text.Width, m_digits.Box().height()));
        if ((m_across ? box.right() : box.bottom()) >= ToPixels(m_ruler.m_lengthTwips)) {
            return; // half a number behind the end of the cloth tells nothing
        }
        m_painter.fillRect(box.adjusted(0, 0, edge, edge), m_ground);
        m_painter.setPen(m_text);
        m_painter.drawGlyphRun(corner - QPoint(0, m_digits.Box().top()), text.Glyphs);
    }

    /// A small triangle marks the middle of the grid.
    void PaintMiddle() {
        const double middle = m_ruler.m_lengthTwips / 2.0;
        const int top = ToPixels(ThicknessTwips / 2.0);
        for (int depth = top; depth < m_depth; ++depth) {
            const double half = 75.0 * (depth - top) / std::max(1, m_depth - 1 - top);
            const int from = ToPixels(std::max(0.0, middle - half));
            Fill(from, depth, ToPixels(middle + half) - from + 1, 1, m_text);
        }
    }

    GridRuler& m_ruler;
    DevicePixels m_device;
    QPainter& m_painter;
    bool m_across;
    int m_depth;
    QColor m_text;
    QColor m_ground;
    RulerDigits& m_digits;
};

GridRuler::GridRuler(Qt::Orientation orientation, QWidget* parent)
    : QWidget(parent),
      m_orientation(orientation) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(0, 0);
}

void GridRuler::Arrange(const RulerScale& scale, int lengthTwips, int length) {
    resize(m_orientation == Qt::Horizontal ? QSize(length, Thickness) : QSize(Thickness, length));
    if (m_scale != scale || m_lengthTwips != lengthTwips) {
        m_scale = scale;
        m_lengthTwips = lengthTwips;
        update();
    }
}

int GridRuler::StepOf(const RulerScale& scale) {
    const double zoom = scale.Zoom / 100.0;
    return scale.Inches ? RoundToInt(zoom * 1440 / 16) : RoundToInt(zoom * 567 / 10);
}

double GridRuler::TickStart(bool inches, int index) {
    if (index == 0) {
        return 27.5;
    }
    if (!inches) {
        return index == 5 ? 82.5 : -1;
    }
    return index % 2 == 1 ? 220 : index == 8 ? 82.5 : index % 4 == 0 ? 137.5 : 165;
}

void GridRuler::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    m_digits.SetFont(font(), std::max(1, RoundToInt(10 * devicePixelRatioF())), *this);
    Sheet(painter, *this).Paint(event->rect());
}

} // namespace zol
