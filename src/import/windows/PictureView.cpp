// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/PictureView.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

#include "windowkit/DevicePixels.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

/// What is blended at the edge of a change reaches that many device pixels.
constexpr int BlendReach = 3;

QSize Hint(const QWidget& widget, int across, int down) {
    const int em = widget.fontMetrics().height();
    return {across * em, down * em};
}

} // namespace

PictureView::PictureView(QWidget* parent) : QAbstractScrollArea(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Picture"));
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setAttribute(Qt::WA_NoSystemBackground);
}

QSize PictureView::sizeHint() const {
    return Hint(*this, 28, 20);
}

QSize PictureView::minimumSizeHint() const {
    return Hint(*this, 8, 6);
}

void PictureView::SetEmptyText(const QString& text) {
    m_emptyText = text;
    if (!m_levels.HasPicture()) {
        viewport()->update();
    }
}

void PictureView::ShowPicture(SharedPicture picture) {
    m_levels.Take(std::move(picture), m_empty);
    Arrange();
    Repaint();
}

void PictureView::PictureChanged(const QRect& imageRect) {
    const QRect rect = imageRect & QRect(QPoint(), ImageSize());
    if (rect.isEmpty()) {
        return;
    }
    m_levels.Changed({rect.left(), rect.top(), rect.width(), rect.height()});
    const QRect changed = m_place.OnView(QRectF(rect))
                              .toAlignedRect()
                              .adjusted(-BlendReach, -BlendReach, BlendReach, BlendReach);
    m_stale += changed & m_painted.rect();
    viewport()->update(DevicePixels::WindowRect(changed, m_place.Ratio));
}

void PictureView::SetEmpty(PictureLevels::Empty empty) {
    if (m_empty != empty) {
        m_empty = empty;
        ShowPicture(Shown());
    }
}

void PictureView::SetCloth(std::optional<QColor> cloth) {
    m_cloth = cloth;
    Repaint();
}

void PictureView::SetOverlay(OverlayPainter paint) {
    m_overlay = std::move(paint);
    viewport()->update();
}

void PictureView::UpdateOverlay(const QRectF& imageRect, int reach) {
    if (m_place.IsEmpty()) {
        return;
    }
    const QRect touched = m_place.OnView(imageRect.normalized())
                              .toAlignedRect()
                              .adjusted(-reach, -reach, reach, reach);
    viewport()->update(DevicePixels::WindowRect(touched, m_place.Ratio));
}

void PictureView::UpdateOverlay(const QRegion& devicePixels) {
    QRegion touched;
    for (const QRect& rect : devicePixels& m_painted.rect()) {
        touched += DevicePixels::WindowRect(rect, m_place.Ratio);
    }
    viewport()->update(touched);
}

/// Everything is painted anew.
void PictureView::Repaint() {
    m_stale = QRect(QPoint(), DeviceSize(viewport()->size()));
    viewport()->update();
}

PictureGround PictureView::Ground() const {
    PictureGround ground;
    ground.Desk = Theme::Desk(palette()).rgb();
    if (m_cloth) {
        ground.Light = ground.Dark = m_cloth->rgb();
    } else {
        // In a dark window the checker lies half-way to the text: empty places shall stand apart
        // from the dark ones of a picture.
        const QColor base = palette().color(QPalette::Base);
        const QColor text = palette().color(QPalette::Text);
        const double start = base.lightness() < text.lightness() ? 0.55 : 0;
        ground.Light = Theme::Mix(base, text, start).rgb();
        ground.Dark = Theme::Mix(base, text, start + 0.14).rgb();
    }
    ground.CheckSide = std::max(1, static_cast<int>(std::lround(8 * m_place.Ratio)));
    return ground;
}

/// Brings what is kept of the view up to date.
void PictureView::Refresh() {
    const QSize size = DeviceSize(viewport()->size());
    if (m_painted.size() != size) {
        m_painted = QImage(size, QImage::Format_RGB32);
        m_stale = m_painted.rect();
    }
    const PictureGround ground = Ground();
    for (const QRect& rect : m_stale) {
        m_painter.Paint(m_painted, rect, m_levels, m_place, ground);
    }
    m_stale = {};
}

void PictureView::paintEvent(QPaintEvent* event) {
    Refresh();
    PaintPicture(event->region());
    if (!m_levels.HasPicture()) {
        PaintEmptyText();
    }
    // As with other widgets: somebody who clicks knows where.
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        PaintFocus();
    }
}

void PictureView::PaintPicture(const QRegion& region) {
    QPainter painter(viewport());
    const DevicePixels pixels(painter);
    // One by one, each in a clip of its own: what the system cuts by several rectangles it hands to
    // its threads, and to wake one takes longer than to paint a strip.
    for (const QRect& rect : region) {
        const QRect exposed = pixels.Covering(rect) & m_painted.rect();
        if (exposed.isEmpty()) {
            continue;
        }
        painter.setClipRect(exposed);
        painter.drawImage(exposed.topLeft(), m_painted, exposed);
        if (m_overlay && !m_place.IsEmpty()) {
            m_overlay(painter, m_place);
        }
    }
}

void PictureView::PaintEmptyText() {
    constexpr int margin = 12;
    constexpr double quietness = 0.25;
    QPainter painter(viewport());
    painter.setPen(
        Theme::Mix(palette().color(QPalette::WindowText), Theme::Desk(palette()), quietness));
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
}

/// In two colours, of which one stands apart from any picture.
void PictureView::PaintFocus() {
    QPainter painter(viewport());
    const QRect edge = viewport()->rect();
    const auto frame = [&painter](const QRect& rect, int width, const QColor& color) {
        const QRect inner = rect.adjusted(width, width, -width, -width);
        for (const QRect& side : QRegion(rect) - inner) {
            painter.fillRect(side, color);
        }
    };
    frame(edge, 2, Theme::Accent(palette()));
    frame(edge.adjusted(2, 2, -2, -2), 1, palette().color(QPalette::Base));
}

void PictureView::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        Arrange();
        Repaint();
    }
}

} // namespace zol
