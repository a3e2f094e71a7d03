// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

// Where the picture lies in its view: zoom, scroll bars, places.

#include "import/windows/PictureView.h"

#include <QScrollBar>

#include <algorithm>
#include <cmath>

#include "windowkit/DevicePixels.h"

namespace zol {

namespace {

/// No side is painted longer than that, so that places stay whole numbers.
constexpr double LongestSide = 1 << 28;
int Side(double pixels) {
    return std::max(1, static_cast<int>(std::lround(std::min(pixels, LongestSide))));
}

} // namespace

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

void PictureView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    Arrange();
}

void PictureView::scrollContentsBy(int /*dx*/, int /*dy*/) {
    PlaceContent(m_place.Content.size());
}

} // namespace zol
