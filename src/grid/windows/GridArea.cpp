// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/GridArea.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

#include "grid/GridViewport.h"
#include "grid/windows/GridNavigator.h"
#include "model/Rounding.h"
#include "windowkit/DevicePixels.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

constexpr int TwipsPerPixel = 15;
constexpr int Margin = 60 / TwipsPerPixel; ///< the holder is larger than the room for the grid
constexpr int Edge = 1;                    ///< the line at the cloth's upper and left side
constexpr int FitMargin = 50;              ///< twips left free by ZoomToRect

} // namespace

/// The window onto the cloth: desk where the cloth ends, and the cloth's edge there.
class GridArea::Holder : public QWidget {
public:
    explicit Holder(QWidget* parent) : QWidget(parent) {
        setObjectName(QStringLiteral("picGridHolder"));
        setAttribute(Qt::WA_OpaquePaintEvent);
    }
    void SetCloth(const QWidget* cloth) { m_cloth = cloth; }

protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        painter.fillRect(event->rect(), Theme::Desk(palette()));
        const QRect cloth = m_cloth->geometry();
        if (!cloth.isEmpty()) {
            painter.fillRect(cloth.adjusted(0, 0, Edge, Edge), Theme::Edge(palette()));
        }
    }

private:
    const QWidget* m_cloth = nullptr;
};

GridArea::GridArea(GridPainter& painter, QWidget* parent) : QWidget(parent), m_zoom(*this, this) {
    MakeParts(painter);
    ConnectParts();
    m_navigator = std::make_unique<GridNavigator>(*this);
}

GridArea::~GridArea() = default;

void GridArea::MakeParts(GridPainter& painter) {
    m_holder = new Holder(this);
    m_canvas = new GridCanvas(painter, m_holder);
    m_holder->SetCloth(m_canvas);
    m_across = new QScrollBar(Qt::Horizontal, this);
    m_across->setObjectName(QStringLiteral("hsbGrid"));
    m_across->setAccessibleName(tr("Scroll columns"));
    m_down = new QScrollBar(Qt::Vertical, this);
    m_down->setObjectName(QStringLiteral("vsbGrid"));
    m_down->setAccessibleName(tr("Scroll rows"));
    for (QScrollBar* bar : {m_across, m_down}) {
        bar->setRange(1, 1);
        bar->setEnabled(false);
        // The desk lies beneath them, so that a bar without a way to go is not seen.
        bar->setAttribute(Qt::WA_OpaquePaintEvent, false);
    }
    m_rulerAcross = new QWidget(this);
    m_rulerAcross->setObjectName(QStringLiteral("picHRuler"));
    m_rulerDown = new QWidget(this);
    m_rulerDown->setObjectName(QStringLiteral("picVRuler"));
    m_bigRulerAcross = new GridRuler(Qt::Horizontal, m_rulerAcross);
    m_bigRulerAcross->setObjectName(QStringLiteral("picBigHRuler"));
    m_bigRulerDown = new GridRuler(Qt::Vertical, m_rulerDown);
    m_bigRulerDown->setObjectName(QStringLiteral("picBigVRuler"));
}

void GridArea::ConnectParts() {
    connect(m_canvas, &GridCanvas::Pressed, this, &GridArea::Pressed);
    connect(m_canvas, &GridCanvas::Moved, this, &GridArea::Moved);
    connect(m_canvas, &GridCanvas::Released, this, &GridArea::Released);
    connect(m_canvas, &GridCanvas::PointerLeft, this, &GridArea::PointerLeft);
    connect(m_canvas, &GridCanvas::EscapePressed, this, &GridArea::EscapePressed);
    connect(m_canvas, &GridCanvas::ArrowPressed, this, &GridArea::ArrowPressed);
    connect(m_canvas, &GridCanvas::EnterPressed, this, &GridArea::EnterPressed);
    connect(&m_zoom, &ZoomControl::ZoomChanged, this, &GridArea::ZoomChanged);
    connect(m_across, &QScrollBar::valueChanged, this,
            [this](int column) { ScrollGrid(column, m_first.Y, false); });
    connect(m_down, &QScrollBar::valueChanged, this,
            [this](int row) { ScrollGrid(m_first.X, row, false); });
}

void GridArea::SetPattern(const Pattern* pattern) {
    m_canvas->SetPattern(pattern);
    ArrangeGrid();
    ScrollGrid(1, 1, true);
}

void GridArea::SetRulers(bool visible, bool inches) {
    m_rulersVisible = visible;
    m_inches = inches;
    ArrangeGrid();
}

void GridArea::DesignChanged() {
    ArrangeGrid();
    m_canvas->RedrawSquares(m_canvas->Geometry().Everything());
}

QSizeF GridArea::SquareSize() const {
    const GridScale& scale = Geometry().Scale();
    return {scale.SquareTwipsX / TwipsPerPixel, scale.SquareTwipsY / TwipsPerPixel};
}

void GridArea::ArrangeGrid() {
    m_canvas->ArrangeAt(m_zoom.GridZoom());
    PlaceParts();
    ArrangeRulers();
    ScrollGrid(m_first.X, m_first.Y, true);
    m_holder->update();
    update();
}

void GridArea::PlaceParts() {
    const int ruler = m_rulersVisible ? GridRuler::Thickness : 0;
    const int start = ruler + Edge;
    const int barWidth = m_down->sizeHint().width();
    const int barHeight = m_across->sizeHint().height();
    const QSize room(std::max(1, width() - start - barWidth - Margin),
                     std::max(1, height() - start - barHeight - Margin));
    const QSize holder = room.boundedTo(m_canvas->size()) + QSize(Margin, Margin);
    m_holder->setGeometry(QRect(QPoint(start, start), holder));
    m_rulerAcross->setGeometry(start, 0, holder.width(), GridRuler::Thickness);
    m_rulerDown->setGeometry(0, start, GridRuler::Thickness, holder.height());
    m_rulerAcross->setVisible(m_rulersVisible);
    m_rulerDown->setVisible(m_rulersVisible);
    m_across->setGeometry(start, height() - barHeight, width() - start - barWidth, barHeight);
    m_down->setGeometry(width() - barWidth, start, barWidth, height() - start - barHeight);
    ArrangeBar(*m_across, room.width(), holder.width(), Qt::Horizontal);
    ArrangeBar(*m_down, room.height(), holder.height(), Qt::Vertical);
}

void GridArea::ArrangeBar(QScrollBar& bar, int room, int holder, Qt::Orientation orientation) {
    const Pattern* pattern = m_canvas->GetPattern();
    const bool across = orientation == Qt::Horizontal;
    const int length = across ? m_canvas->width() : m_canvas->height();
    int last = 1;
    const bool wider = pattern != nullptr && length > room;
    if (wider) {
        const int zoom = m_zoom.GridZoom();
        const int count =
            across ? pattern->GetPatternClothCountX() : pattern->GetPatternClothCountY();
        const int squares = across ? pattern->GetPatternWidth() : pattern->GetPatternHeight();
        const int twips = GridViewport::GetGridWidthTwips(squares, count, zoom);
        const int square = std::max(1, GridViewport::SquareTwips(zoom, count));
        last = RoundToInt(static_cast<double>(twips - room * TwipsPerPixel) / square + 1);
        // Rounded squares may fall short of the end, which has to come into view all the same.
        const int device = RoundToInt(holder * Geometry().PixelRatio());
        last = std::clamp(std::max(last, FirstFor(device, squares, orientation)), 1, squares);
    }
    m_scrollBusy = true;
    bar.setRange(1, last);
    bar.setPageStep(
        std::max(1, static_cast<int>(room / std::max(0.01, across ? SquareSize().width()
                                                                  : SquareSize().height()))));
    bar.setEnabled(last > 1);
    m_scrollBusy = false;
}

/// The first column (or row) that has to be at the edge for a square to end within so many device
/// pixels from there.
int GridArea::FirstFor(int device, int square, Qt::Orientation orientation) const {
    const GridGeometry& geometry = Geometry();
    if (orientation == Qt::Horizontal) {
        const int start = geometry.LeftOf(square + 1) - device;
        const int column = geometry.ColumnAt(start);
        return geometry.LeftOf(column) < start ? column + 1 : column;
    }
    const int start = geometry.TopOf(square + 1) - device;
    const int row = geometry.RowAt(start);
    return geometry.TopOf(row) < start ? row + 1 : row;
}

void GridArea::ArrangeRulers() {
    const Pattern* pattern = m_canvas->GetPattern();
    const int zoom = m_zoom.GridZoom();
    int width = 0;
    int height = 0;
    if (pattern != nullptr) {
        width = GridViewport::GetGridWidthTwips(pattern->GetPatternWidth(),
                                                pattern->GetPatternClothCountX(), zoom);
        height = GridViewport::GetGridHeightTwips(pattern->GetPatternHeight(),
                                                  pattern->GetPatternClothCountY(), zoom);
    }
    const RulerScale scale{zoom, m_inches};
    m_bigRulerAcross->Arrange(scale, width, m_canvas->width() + Margin);
    m_bigRulerDown->Arrange(scale, height, m_canvas->height() + Margin);
}

void GridArea::ScrollGrid(int column, int row, bool force) {
    if (m_scrollBusy) {
        return;
    }
    m_scrollBusy = true;
    const SquarePos to{std::clamp(column, 1, m_across->maximum()),
                       std::clamp(row, 1, m_down->maximum())};
    if (!force && to == m_first) {
        m_scrollBusy = false;
        return;
    }
    const bool moved = to != m_first;
    const double ratio = Geometry().PixelRatio();
    const QPoint corner(-static_cast<int>(std::floor(Geometry().LeftOf(to.X) / ratio)),
                        -static_cast<int>(std::floor(Geometry().TopOf(to.Y) / ratio)));
    m_canvas->move(corner);
    m_bigRulerAcross->move(corner.x(), 0);
    m_bigRulerDown->move(0, corner.y());
    m_across->setValue(to.X);
    m_down->setValue(to.Y);
    m_first = to;
    m_scrollBusy = false;
    if (moved) {
        Q_EMIT Scrolled();
    }
}

void GridArea::ScrollTowards(const SquareRect& rect) {
    const SquareRect shown = GetVisibleRange();
    // One that reaches out on both sides stays.
    const auto step = [](int first, int last, int from, int to) {
        return (last > to ? 1 : 0) - (first < from ? 1 : 0);
    };
    ScrollGrid(m_first.X + step(rect.Left, rect.Right, shown.Left, shown.Right),
               m_first.Y + step(rect.Top, rect.Bottom, shown.Top, shown.Bottom), false);
}

SquareRect GridArea::GetVisibleRange() const {
    const double ratio = Geometry().PixelRatio();
    const QPoint corner(Geometry().LeftOf(m_first.X), Geometry().TopOf(m_first.Y));
    const QSize shown(static_cast<int>(std::ceil(m_holder->width() * ratio)),
                      static_cast<int>(std::ceil(m_holder->height() * ratio)));
    SquareRect range = Geometry().SquaresIn(QRect(corner, shown));
    if (range.IsEmpty()) {
        return range;
    }
    // Squares smaller than a pixel: all that share one are meant.
    const SquareRect all = Geometry().Everything();
    const QSize grid = Geometry().GridSize();
    range.Left = m_first.X;
    range.Top = m_first.Y;
    range.Right = corner.x() + shown.width() >= grid.width() ? all.Right : range.Right;
    range.Bottom = corner.y() + shown.height() >= grid.height() ? all.Bottom : range.Bottom;
    return range;
}

int GridArea::ZoomToRect(const SquareRect& rect) const {
    const Pattern* pattern = m_canvas->GetPattern();
    if (pattern == nullptr) {
        return m_zoom.GridZoom();
    }
    const TwipsSize room{
        static_cast<double>((m_down->x() - m_holder->x()) * TwipsPerPixel - FitMargin),
        static_cast<double>((m_across->y() - m_holder->y()) * TwipsPerPixel - FitMargin)};
    return GridViewport::ZoomToRect(rect, room, pattern->GetPatternClothCountX(),
                                    pattern->GetPatternClothCountY());
}

int GridArea::ZoomThatFits() const {
    return ZoomToRect(Geometry().Everything());
}

void GridArea::ShowZoom() {
    // Sizes and places change one after the other; it is painted once, when all are right.
    m_holder->setUpdatesEnabled(false);
    ArrangeGrid();
    m_holder->setUpdatesEnabled(true);
}

void GridArea::ScrollTo(SquarePos square) {
    ScrollGrid(square.X, square.Y, true);
}

void GridArea::ZoomToFrame(const SquareRect& frame) {
    m_zoom.ChangeZoom(ZoomToRect(frame));
    ScrollGrid(frame.Left, frame.Top, true);
}

void GridArea::ZoomAt(QPointF place, int percent) {
    if (m_canvas->size().isEmpty() || GridViewport::ClampZoom(percent) == m_zoom.GridZoom()) {
        return;
    }
    const QPointF inHolder = place - m_holder->pos();
    const QPointF before = m_canvas->DevicePixelAt(inHolder - m_canvas->pos());
    const SquarePos square{Geometry().ColumnAt(before.x()), Geometry().RowAt(before.y())};
    m_zoom.ChangeZoom(percent);
    // Exactly one square can be the first so that this one lies under the place again.
    const double ratio = Geometry().PixelRatio();
    const double x = Geometry().LeftOf(square.X + 1) - inHolder.x() * ratio - 1;
    const double y = Geometry().TopOf(square.Y + 1) - inHolder.y() * ratio - 1;
    ScrollGrid(Geometry().ColumnAt(x), Geometry().RowAt(y), true);
    // At broken ratios the window's pixels may shift it by one.
    const QPointF after = m_canvas->DevicePixelAt(inHolder - m_canvas->pos());
    ScrollGrid(m_first.X + square.X - Geometry().ColumnAt(after.x()),
               m_first.Y + square.Y - Geometry().RowAt(after.y()), false);
}

void GridArea::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    ArrangeGrid();
}

bool GridArea::event(QEvent* event) {
    const bool done = QWidget::event(event);
    // The pixels of another screen may be of another size.
    if (event->type() == QEvent::ScreenChangeInternal || event->type() == QEvent::Show ||
        event->type() == QEvent::StyleChange) {
        ArrangeGrid();
    }
    return done;
}

void GridArea::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Theme::Desk(palette()));
    const QRect holder = m_holder->geometry();
    if (m_canvas->size().isEmpty()) {
        return;
    }
    const QColor edge = Theme::Edge(palette());
    const int cloth = std::min(holder.width(), m_canvas->geometry().right() + 1 + Edge);
    const int clothDown = std::min(holder.height(), m_canvas->geometry().bottom() + 1 + Edge);
    painter.fillRect(holder.x() - Edge, holder.y() - Edge, cloth + Edge, Edge, edge);
    painter.fillRect(holder.x() - Edge, holder.y() - Edge, Edge, clothDown + Edge, edge);
    if (m_rulersVisible) {
        const QColor ground = palette().color(QPalette::Window);
        painter.fillRect(0, 0, width(), GridRuler::Thickness, ground);
        painter.fillRect(0, 0, GridRuler::Thickness, height(), ground);
    }
}

} // namespace zol
