// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/windows/ScanAreaBand.h"

#include <QPainter>
#include <QPalette>

#include "import/windows/PictureView.h"

namespace zol {

namespace {

// Of the window: how near to a side a press takes hold of it.
constexpr double ReachPixels = 6.0;
// A click draws no area; only a drag of so much does.
constexpr double LeastDrag = 3.0;

Qt::CursorShape PointerFor(const AreaDrag& drag) {
    switch (drag.Holds()) {
    case AreaDrag::Grip::New:
        return Qt::CrossCursor;
    case AreaDrag::Grip::Move:
        return Qt::SizeAllCursor;
    case AreaDrag::Grip::Sides:
        break;
    }
    if (drag.HoldsAcross() && drag.HoldsDown()) {
        return drag.HoldsFallingCorner() ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
    }
    return drag.HoldsAcross() ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

} // namespace

ScanAreaBand::ScanAreaBand(PictureView& view) : QObject(&view), m_view(view) {
    m_view.SetOverlay(
        [this](QPainter& painter, const PicturePlace& place) { Paint(painter, place); });
    connect(&m_view, &PictureView::Pressed, this, &ScanAreaBand::Press);
    connect(&m_view, &PictureView::Moved, this, &ScanAreaBand::Move);
    connect(&m_view, &PictureView::Released, this, &ScanAreaBand::Release);
}

void ScanAreaBand::SetBed(const std::optional<ScanArea>& bed) {
    m_bed = bed;
    m_area = bed.value_or(ScanArea());
    m_drag.reset();
    Refresh();
}

void ScanAreaBand::SetArea(const ScanArea& area) {
    if (m_bed && !(area == m_area)) {
        m_area = AreaDrag::Within(*m_bed, area);
        Refresh();
    }
}

void ScanAreaBand::SetShown(bool shown) {
    m_isShown = shown;
    m_drag.reset();
    Refresh();
}

void ScanAreaBand::Press(QPointF place, Qt::KeyboardModifiers /*modifiers*/) {
    if (IsActive()) {
        m_drag = DragFrom(place);
        m_pressedAt = place;
        m_hasMoved = false;
    }
}

void ScanAreaBand::Move(QPointF place, bool dragging) {
    if (!IsActive()) {
        m_view.SetPointer(Qt::ArrowCursor);
        return;
    }
    if (!dragging || !m_drag) {
        m_view.SetPointer(PointerFor(DragFrom(place)));
        return;
    }
    const QPointF way = m_view.OnViewport(place) - m_view.OnViewport(m_pressedAt);
    m_hasMoved = m_hasMoved || way.manhattanLength() >= LeastDrag;
    if (m_hasMoved) {
        const QPointF at = OnBed(place);
        m_area = m_drag->To(at.x(), at.y());
        Refresh();
        Q_EMIT AreaChanged();
    }
}

void ScanAreaBand::Release() {
    m_drag.reset();
}

QPointF ScanAreaBand::OnBed(QPointF place) const {
    const QSize picture = m_view.Place().Picture;
    return picture.isEmpty() ? QPointF()
                             : QPointF(place.x() * m_bed->Width / picture.width(),
                                       place.y() * m_bed->Height / picture.height());
}

/// In millimetres.
double ScanAreaBand::Reach() const {
    const QPointF corner = OnBed(m_view.InPicture({0.0, 0.0}));
    const QPointF beside = OnBed(m_view.InPicture({ReachPixels, 0.0}));
    return beside.x() - corner.x();
}

AreaDrag ScanAreaBand::DragFrom(QPointF place) const {
    const QPointF at = OnBed(place);
    return {*m_bed, m_area, at.x(), at.y(), Reach()};
}

void ScanAreaBand::Refresh() {
    m_view.viewport()->update();
}

void ScanAreaBand::Paint(QPainter& painter, const PicturePlace& place) const {
    if (!IsActive() || place.IsEmpty()) {
        return;
    }
    const double acrossScale = place.Content.width() / m_bed->Width;
    const double downScale = place.Content.height() / m_bed->Height;
    const QRect area = QRectF(place.Content.x() + m_area.Left * acrossScale,
                              place.Content.y() + m_area.Top * downScale,
                              m_area.Width * acrossScale, m_area.Height * downScale)
                           .toRect();
    painter.save();
    QColor shade = m_view.palette().color(QPalette::Window);
    constexpr float outsideShade = 0.6F;
    shade.setAlphaF(outsideShade);
    painter.setClipRegion(QRegion(place.Content).subtracted(area));
    painter.fillRect(place.Content, shade);
    painter.setClipping(false);
    const int line = qRound(2 * place.Ratio);
    painter.setPen(QPen(m_view.palette().color(QPalette::Highlight), line));
    painter.drawRect(area.adjusted(line / 2, line / 2, -line / 2, -line / 2));
    painter.restore();
}

} // namespace zol
