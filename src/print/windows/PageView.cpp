// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "print/windows/PageView.h"

#include <QGridLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include "model/Rounding.h"
#include "windowkit/DevicePixels.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

constexpr int DeskMargin = 18; ///< of desk around the paper
constexpr int Edge = 1;        ///< the paper's, in the screen's pixels
constexpr double WheelStep = 120;

} // namespace

PagePaper::PagePaper(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("Picture1"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Page"));
}

void PagePaper::SetPaperSize(const QSize& pixels) {
    m_pixels = pixels;
    const double ratio = devicePixelRatioF();
    setFixedSize(DevicePixels::WindowLength(pixels.width() + 2 * Edge, ratio),
                 DevicePixels::WindowLength(pixels.height() + 2 * Edge, ratio));
    update();
}

void PagePaper::SetPage(const QImage& page) {
    m_page = page;
    update();
}

void PagePaper::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Theme::Edge(palette()));
    const DevicePixels pixels(painter);
    const QRect paper(QPoint(Edge, Edge), m_pixels);
    if (m_page.isNull()) {
        painter.fillRect(paper, Qt::white);
    } else if (m_page.size() == m_pixels) {
        painter.drawImage(paper.topLeft(), m_page);
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(paper, m_page);
    }
}

PageView::PageView(QWidget* parent)
    : QScrollArea(parent),
      m_desk(new QWidget),
      m_paper(new PagePaper) {
    setObjectName(QStringLiteral("Picture2"));
    setFrameShape(QFrame::NoFrame);
    setAlignment(Qt::AlignCenter);
    auto* layout = new QGridLayout(m_desk);
    layout->setContentsMargins(DeskMargin, DeskMargin, DeskMargin, DeskMargin);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(m_paper);
    setWidget(m_desk);
    QPalette colors = palette();
    colors.setColor(QPalette::Window, Theme::Desk(colors));
    setPalette(colors);
    m_desk->setAutoFillBackground(false);
    m_paper->installEventFilter(this);
    m_paper->setCursor(Qt::OpenHandCursor);
}

QSize PageView::Room(bool forWidth) const {
    const QSize all = maximumViewportSize();
    const int bar = forWidth ? verticalScrollBar()->sizeHint().width() : 0;
    const double ratio = devicePixelRatioF();
    const auto length = [ratio](int room) {
        return static_cast<int>((room - 2 * DeskMargin) * ratio) - 2 * Edge;
    };
    return {length(all.width() - bar), length(all.height())};
}

void PageView::SetPaperSize(const QSize& pixels, std::optional<QPoint> anchor) {
    const QPoint middle(viewport()->width() / 2, viewport()->height() / 2);
    const QPoint at = anchor.value_or(middle);
    const QPointF place = m_paper->mapFrom(viewport(), at);
    const QSizeF before = m_paper->size();
    m_paper->SetPaperSize(pixels);
    m_desk->adjustSize();
    const QPoint now = m_paper->mapTo(
        viewport(), QPoint(RoundToInt(place.x() * m_paper->width() / before.width()),
                           RoundToInt(place.y() * m_paper->height() / before.height())));
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + now.x() - at.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + now.y() - at.y());
}

void PageView::ScrollToTop() {
    verticalScrollBar()->setValue(0);
}

bool PageView::eventFilter(QObject* watched, QEvent* event) {
    const auto* mouse = dynamic_cast<QMouseEvent*>(event);
    if (watched != m_paper || mouse == nullptr) {
        return QScrollArea::eventFilter(watched, event);
    }
    const QPoint place = mouse->globalPosition().toPoint();
    if (event->type() == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton) {
        m_dragFrom = place;
        m_paper->setCursor(Qt::ClosedHandCursor);
        return true;
    }
    if (event->type() == QEvent::MouseMove && m_dragFrom) {
        Drag(place);
        return true;
    }
    if (event->type() == QEvent::MouseButtonRelease && m_dragFrom) {
        m_dragFrom.reset();
        m_paper->setCursor(Qt::OpenHandCursor);
        return true;
    }
    return QScrollArea::eventFilter(watched, event);
}

void PageView::Drag(const QPoint& to) {
    const QPoint by = to - *m_dragFrom;
    m_dragFrom = to;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - by.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - by.y());
}

void PageView::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    Q_EMIT Resized();
}

void PageView::wheelEvent(QWheelEvent* event) {
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        Q_EMIT ZoomWanted(event->angleDelta().y() / WheelStep,
                          viewport()->mapFromGlobal(event->globalPosition().toPoint()));
        event->accept();
        return;
    }
    QScrollArea::wheelEvent(event);
}

} // namespace zol
