// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/PictureView.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>
#include <utility>

#include "windowkit/DevicePixels.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

/// No side is painted longer than that, so that places stay whole numbers.
constexpr double LongestSide = 1 << 28;
/// What is blended at the edge of a change reaches that many device pixels.
constexpr int BlendReach = 3;

int Side(double pixels) {
    return std::max(1, static_cast<int>(std::lround(std::min(pixels, LongestSide))));
}

QSize Hint(const QWidget& widget, int across, int down) {
    const int em = widget.fontMetrics().height();
    return {across * em, down * em};
}

/// The same pixels as a picture of their own, which the system copies at once; a part of a picture
/// it shares out among its threads, and to wake one takes longer than to copy a strip.
QImage PartOf(const QImage& picture, const QRect& part) {
    return {picture.constScanLine(part.top()) + qsizetype{part.left()} * 4, part.width(),
            part.height(), picture.bytesPerLine(), picture.format()};
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

void PictureView::ZoomToFit() {
    m_toFit = true;
    Arrange();
}

void PictureView::SetZoom(double percent) {
    SetZoom(percent, QRectF(viewport()->rect()).center());
}

void PictureView::SetZoom(double percent, QPointF keep) {
    const QPointF place = m_place.IsEmpty() ? QPointF() : InPicture(keep);
    m_toFit = false;
    m_percent = std::clamp(percent, MinZoom, MaxZoom);
    Arrange();
    if (!m_place.IsEmpty()) {
        const QPointF moved = m_place.OnView(place) - DevicePixels::At(*viewport(), keep);
        horizontalScrollBar()->setValue(
            static_cast<int>(std::lround(horizontalScrollBar()->value() + moved.x())));
        verticalScrollBar()->setValue(
            static_cast<int>(std::lround(verticalScrollBar()->value() + moved.y())));
    }
}

double PictureView::Zoom() const {
    return m_toFit && m_levels.HasPicture() ? PercentThatFits() : m_percent;
}

void PictureView::SetBaseScale(QSizeF scale) {
    if (m_baseScale != scale && scale.width() > 0 && scale.height() > 0) {
        m_baseScale = scale;
        Arrange();
    }
}

void PictureView::SetRealSize(int clothCountX, int clothCountY) {
    SetBaseScale({static_cast<double>(logicalDpiX()) / std::max(1, clothCountX),
                  static_cast<double>(logicalDpiY()) / std::max(1, clothCountY)});
}

QPointF PictureView::InPicture(QPointF viewportPlace) const {
    return m_place.IsEmpty() ? QPointF()
                             : m_place.InPicture(DevicePixels::At(*viewport(), viewportPlace));
}

QPointF PictureView::OnViewport(QPointF imagePlace) const {
    if (m_place.IsEmpty()) {
        return {};
    }
    const QPointF corner = DevicePixels::At(*viewport(), {});
    return (m_place.OnView(imagePlace) - corner) / m_place.Ratio;
}

void PictureView::ShowPlace(QPointF imagePlace) {
    const QPointF place = m_place.OnView(imagePlace);
    const QSize view = DeviceSize(viewport()->size());
    const auto missing = [](double at, int size) {
        return static_cast<int>(std::floor(at < 0 ? at : std::max(0.0, at - size + 1)));
    };
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() +
                                    missing(place.x(), view.width()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + missing(place.y(), view.height()));
}

void PictureView::ScrollWith(PictureView& other) {
    const auto follow = [](QScrollBar* one, QScrollBar* two) {
        connect(one, &QScrollBar::valueChanged, two, &QScrollBar::setValue);
        connect(two, &QScrollBar::valueChanged, one, &QScrollBar::setValue);
    };
    follow(horizontalScrollBar(), other.horizontalScrollBar());
    follow(verticalScrollBar(), other.verticalScrollBar());
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

QSize PictureView::ImageSize() const {
    return m_levels.HasPicture() ? QSize(Shown()->ImageWidth(), Shown()->ImageHeight()) : QSize();
}

QSize PictureView::DeviceSize(QSize window) const {
    const double ratio = devicePixelRatioF();
    return {static_cast<int>(std::ceil(window.width() * ratio)),
            static_cast<int>(std::ceil(window.height() * ratio))};
}

double PictureView::PercentThatFits() const {
    const QSize image = ImageSize();
    const QSize view = maximumViewportSize();
    return 100 * std::min(view.width() / (image.width() * m_baseScale.width()),
                          view.height() / (image.height() * m_baseScale.height()));
}

/// Sizes the picture for the zoom, and the scroll bars for what does not fit.
void PictureView::Arrange() {
    const QSize image = ImageSize();
    const double percent = Zoom();
    const double scale = percent / 100 * devicePixelRatioF();
    const QSize content = image.isEmpty()
                              ? QSize()
                              : QSize(Side(image.width() * scale * m_baseScale.width()),
                                      Side(image.height() * scale * m_baseScale.height()));
    const QSize most = DeviceSize(maximumViewportSize());
    const bool fits =
        m_toFit || (content.width() <= most.width() && content.height() <= most.height());
    const QSize view = fits ? most : DeviceSize(viewport()->size());
    const auto range = [&](QScrollBar* bar, int size, int room) {
        bar->setRange(0, fits ? 0 : std::max(0, size - room));
        bar->setPageStep(room);
        bar->setSingleStep(std::max(1, room / 20));
    };
    range(horizontalScrollBar(), content.width(), view.width());
    range(verticalScrollBar(), content.height(), view.height());
    PlaceContent(content);
    if (m_shownPercent != percent) {
        m_shownPercent = percent;
        Q_EMIT ZoomChanged();
    }
}

void PictureView::PlaceContent(QSize content) {
    const QSize view = DeviceSize(viewport()->size());
    const auto start = [](int size, int room, const QScrollBar* bar) {
        return size < room ? (room - size) / 2 : -bar->value();
    };
    const QPoint corner(start(content.width(), view.width(), horizontalScrollBar()),
                        start(content.height(), view.height(), verticalScrollBar()));
    const PicturePlace place{QRect(corner, content), ImageSize(), devicePixelRatioF()};
    if (!(place == m_place)) {
        m_place = place;
        Repaint();
    }
}

/// Everything is painted anew.
void PictureView::Repaint() {
    m_stale = QRect(QPoint(), DeviceSize(viewport()->size()));
    viewport()->update();
}

PictureGround PictureView::Ground() const {
    PictureGround ground;
    ground.Desk = Theme::Desk(palette()).rgb();
    const QColor base = palette().color(QPalette::Base);
    const QColor cloth = m_cloth.value_or(base);
    ground.Light = cloth.rgb();
    ground.Dark =
        m_cloth ? cloth.rgb() : Theme::Mix(base, palette().color(QPalette::Text), 0.14).rgb();
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
    QPainter painter(viewport());
    const DevicePixels pixels(painter);
    // One by one: a clip of several rectangles makes each piece of the overlay dear.
    for (const QRect& rect : event->region()) {
        const QRect exposed = pixels.Covering(rect) & m_painted.rect();
        if (exposed.isEmpty()) {
            continue;
        }
        painter.drawImage(exposed.topLeft(), PartOf(m_painted, exposed));
        if (m_overlay && !m_place.IsEmpty()) {
            painter.setClipRect(exposed);
            m_overlay(painter, m_place);
            painter.setClipping(false);
        }
    }
}

void PictureView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    Arrange();
}

void PictureView::scrollContentsBy(int /*dx*/, int /*dy*/) {
    PlaceContent(m_place.Content.size());
}

void PictureView::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        Arrange();
        Repaint();
    }
}

} // namespace zol
