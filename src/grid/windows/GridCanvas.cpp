// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/windows/GridCanvas.h"

#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>

#include <algorithm>
#include <cmath>

#include "grid/painting/BackStitchLines.h"
#include "grid/painting/GridPainter.h"
#include "grid/painting/PaintColors.h"
#include "grid/painting/ViewPass.h"
#include "grid/tools/OverlayPainter.h"
#include "grid/windows/GridCursors.h"
#include "windowkit/DevicePixels.h"
#include "windowkit/Theme.h"

namespace zol {

namespace {

PointerButton ButtonOf(Qt::MouseButton button) {
    return button == Qt::LeftButton    ? PointerButton::Left
           : button == Qt::RightButton ? PointerButton::Right
                                       : PointerButton::None;
}

Qt::MouseButton QtButtonOf(PointerButton button) {
    return button == PointerButton::Left    ? Qt::LeftButton
           : button == PointerButton::Right ? Qt::RightButton
                                            : Qt::NoButton;
}

} // namespace

GridCanvas::GridCanvas(GridPainter& painter, QWidget* parent)
    : QWidget(parent),
      m_painter(painter) {
    setObjectName(QStringLiteral("picGrid"));
    setAccessibleName(tr("Design"));
    // Every pixel is painted in each paint, so that scrolling can move what is there.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    resize(0, 0);
}

GridCanvas::~GridCanvas() = default;

void GridCanvas::SetPattern(const Pattern* pattern) {
    m_pattern = pattern;
    m_dirty = {1, 1, 0, 0};
    m_behind.Forget();
    update();
}

void GridCanvas::SetPaintOptions(const PaintOptions& options) {
    if (m_options != options) {
        m_options = options;
        m_behind.Forget();
        update();
    }
}

void GridCanvas::ArrangeAt(int zoom) {
    const double ratio = devicePixelRatioF();
    const GridGeometry geometry =
        m_pattern != nullptr ? GridGeometry(*m_pattern, zoom, ratio) : GridGeometry();
    if (geometry != m_geometry) {
        m_geometry = geometry;
        m_behind.Forget();
        update();
    }
    const QSize pixels = m_pattern != nullptr ? m_geometry.GridSize() : QSize(0, 0);
    resize(DevicePixels::WindowLength(pixels.width(), ratio),
           DevicePixels::WindowLength(pixels.height(), ratio));
}

GridView GridCanvas::View() const {
    GridView view;
    view.Source = m_pattern;
    view.Scale = m_geometry.Scale();
    view.Options = m_options;
    return view;
}

void GridCanvas::RedrawSquares(const SquareRect& rect) {
    // A knot reaches half a square out, and so do at most the ties of a line; both have pens.
    const GridScale& scale = m_geometry.Scale();
    const int pen = GetBackStitchPenWidth(View()) + 1;
    const int across = static_cast<int>(std::ceil(scale.SquareTwipsX / scale.TwipsPerPixelX / 2));
    const int down = static_cast<int>(std::ceil(scale.SquareTwipsY / scale.TwipsPerPixelY / 2));
    Redraw(rect, {across + pen, down + pen});
}

void GridCanvas::RedrawStitches(const SquareRect& rect) {
    Redraw(rect, {0, 0});
}

void GridCanvas::Redraw(const SquareRect& rect, const QSize& reach) {
    const SquareRect all = m_geometry.Everything();
    const SquareRect cut{std::max(rect.Left, all.Left), std::max(rect.Top, all.Top),
                         std::min(rect.Right, all.Right), std::min(rect.Bottom, all.Bottom)};
    if (cut.IsEmpty()) {
        return;
    }
    if (m_hold) {
        m_dirty = m_dirty.IsEmpty()
                      ? cut
                      : SquareRect{std::min(m_dirty.Left, cut.Left), std::min(m_dirty.Top, cut.Top),
                                   std::max(m_dirty.Right, cut.Right),
                                   std::max(m_dirty.Bottom, cut.Bottom)};
        return;
    }
    const QRect pixels = m_geometry.PixelsOf(cut).adjusted(-reach.width(), -reach.height(),
                                                           reach.width(), reach.height());
    m_behind.Forget(pixels);
    UpdatePixels(pixels);
}

void GridCanvas::HoldGridPaint(bool hold) {
    const SquareRect collected = m_dirty;
    m_hold = hold;
    m_dirty = {1, 1, 0, 0};
    if (!hold) {
        RedrawSquares(collected);
    }
}

void GridCanvas::SetOverlay(const Overlay& overlay) {
    if (overlay == m_overlay) {
        return;
    }
    UpdatePixels(OverlayOf(m_overlay).Covered());
    m_overlay = overlay;
    UpdatePixels(OverlayOf(m_overlay).Covered());
    if (!m_overlay.Content) {
        m_behind.Forget();
        m_floating.Clear();
    }
}

OverlayPainter GridCanvas::OverlayOf(const Overlay& overlay) const {
    OverlayStyle style;
    // It lies on the cloth, whatever the window's colours are.
    const QColor cloth(ToRgb(m_options.ClothColor));
    style.Accent = Theme::AccentOn(cloth);
    style.Casing = Theme::Contrast(Qt::white, style.Accent) >= 3 ? QColor(Qt::white)
                                                                 : QColor(0x1B, 0x1B, 0x1C);
    style.LineWidth = GetBackStitchPenWidth(View());
    return {overlay, m_geometry, style};
}

void GridCanvas::SetGridCursor(GridCursor kind) {
    m_cursor = kind;
    ShowCursor();
}

void GridCanvas::SetHand(std::optional<Qt::CursorShape> shape) {
    m_hand = shape;
    ShowCursor();
}

void GridCanvas::ShowCursor() {
    setCursor(m_hand ? QCursor(*m_hand) : GridCursors::Cursor(m_cursor, devicePixelRatioF()));
}

QPointF GridCanvas::DevicePixelAt(QPointF place) const {
    const QPointF pixel = DevicePixels::At(*this, place);
    const QSize grid = m_geometry.GridSize();
    if (grid.isEmpty() || !QRectF(rect()).contains(place)) {
        return pixel;
    }
    // The widget's edges may lie a part of a pixel beside the grid's.
    return {std::clamp(pixel.x(), 0.0, grid.width() - 0.5),
            std::clamp(pixel.y(), 0.0, grid.height() - 0.5)};
}

void GridCanvas::UpdatePixels(const QRegion& pixels) {
    QRegion region;
    for (const QRect& rect : pixels) {
        region += DevicePixels::WindowRect(rect, m_geometry.PixelRatio());
    }
    update(region);
}

void GridCanvas::paintEvent(QPaintEvent* event) {
    try {
        PaintExposed(event->region());
    } catch (const std::exception&) {
        // Memory ran out, say: the window stays as it is and the program goes on.
    }
    m_pass.reset();
}

PointerEvent GridCanvas::EventOf(const QMouseEvent& event, PointerButton button) const {
    PointerEvent made;
    made.At = m_geometry.SpotAt(DevicePixelAt(event.position()));
    made.Button = button;
    made.Shift = event.modifiers().testFlag(Qt::ShiftModifier);
    made.Ctrl = event.modifiers().testFlag(Qt::ControlModifier);
    return made;
}

void GridCanvas::mousePressEvent(QMouseEvent* event) {
    const PointerButton button = ButtonOf(event->button());
    if (button == m_held || !event->buttons().testFlag(QtButtonOf(m_held))) {
        // Its release went to a menu that the press opened.
        m_held = PointerButton::None;
    }
    if (m_pattern == nullptr || button == PointerButton::None || m_held != PointerButton::None) {
        return;
    }
    m_held = button;
    Q_EMIT Pressed(EventOf(*event, button));
}

void GridCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    // Strokes come quickly one after the other.
    mousePressEvent(event);
}

void GridCanvas::mouseMoveEvent(QMouseEvent* event) {
    if (!event->buttons().testFlag(QtButtonOf(m_held))) {
        m_held = PointerButton::None;
    }
    const bool alone = event->buttons() == QtButtonOf(m_held);
    if (m_pattern != nullptr) {
        Q_EMIT Moved(EventOf(*event, alone ? m_held : PointerButton::None));
    }
}

void GridCanvas::mouseReleaseEvent(QMouseEvent* event) {
    const PointerButton button = ButtonOf(event->button());
    if (button == PointerButton::None || button != m_held) {
        return;
    }
    m_held = PointerButton::None;
    if (m_pattern != nullptr) {
        Q_EMIT Released(EventOf(*event, button));
    }
}

void GridCanvas::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        Q_EMIT EscapePressed();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT EnterPressed();
        break;
    case Qt::Key_Left:
        Q_EMIT ArrowPressed(-1, 0);
        break;
    case Qt::Key_Right:
        Q_EMIT ArrowPressed(1, 0);
        break;
    case Qt::Key_Up:
        Q_EMIT ArrowPressed(0, -1);
        break;
    case Qt::Key_Down:
        Q_EMIT ArrowPressed(0, 1);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void GridCanvas::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    Q_EMIT PointerLeft();
}

} // namespace zol
