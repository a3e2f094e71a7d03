// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include <memory>

#include "grid/windows/GridCanvas.h"
#include "grid/windows/GridRulers.h"
#include "grid/windows/ZoomControl.h"

class QScrollBar;

namespace zol {

class GridNavigator;

/// The middle of the main window: the cloth in its holder, rulers and scroll bars, on a desk. It
/// arranges them, scrolls by whole squares and zooms. What the pointer does on the cloth passes
/// through as squares; the drawing itself is the tools'.
class GridArea : public QWidget, private ZoomSite {
    Q_OBJECT

public:
    /// The painter outlives the area.
    explicit GridArea(GridPainter& painter, QWidget* parent = nullptr);
    ~GridArea() override;

    [[nodiscard]] GridCanvas& Canvas() { return *m_canvas; }
    [[nodiscard]] ZoomControl& Zoom() { return m_zoom; }

    /// Another pattern, or the same one with everything in it new: back to square (1, 1). The
    /// pattern outlives the area or is replaced before it goes.
    void SetPattern(const Pattern* pattern);
    void SetPaintOptions(const PaintOptions& options) { m_canvas->SetPaintOptions(options); }
    void SetRulers(bool visible, bool inches);
    /// The pattern's size, its cloth count or all of its content has changed.
    void DesignChanged();

    [[nodiscard]] const GridGeometry& Geometry() const { return m_canvas->Geometry(); }
    void RedrawSquares(const SquareRect& rect) { m_canvas->RedrawSquares(rect); }
    void RedrawStitches(const SquareRect& rect) { m_canvas->RedrawStitches(rect); }
    void SetOverlay(const Overlay& overlay) { m_canvas->SetOverlay(overlay); }
    void SetGridCursor(GridCursor kind) { m_canvas->SetGridCursor(kind); }
    void HoldGridPaint(bool hold) { m_canvas->HoldGridPaint(hold); }
    /// Shows these squares as large as the room allows, the upper left one in the corner.
    void ZoomToFrame(const SquareRect& frame);

    /// Sizes and places everything anew, for the present zoom and room.
    void ArrangeGrid();
    /// Brings a square to the upper left corner, as far as the scroll bars go. Without `force`
    /// nothing happens if it is there.
    void ScrollGrid(int column, int row, bool force);
    [[nodiscard]] int FirstColumn() const { return m_first.X; }
    [[nodiscard]] int FirstRow() const { return m_first.Y; }
    /// One square further, across and down, towards squares that do not show whole.
    void ScrollTowards(const SquareRect& rect);
    /// The squares that show, also in part; empty without a pattern.
    [[nodiscard]] SquareRect GetVisibleRange() const;
    /// The largest percent at which the squares fit the room; not brought into 1 to 1000.
    [[nodiscard]] int ZoomToRect(const SquareRect& rect) const;
    /// Zooms so that the square at a place of the area stays there.
    void ZoomAt(QPointF place, int percent);

    /// A square's size in window pixels.
    [[nodiscard]] QSizeF SquareSize() const;

Q_SIGNALS:
    void Pressed(const zol::PointerEvent& event);
    void Moved(const zol::PointerEvent& event);
    void Released(const zol::PointerEvent& event);
    void PointerLeft();
    void EscapePressed();
    void ArrowPressed(int columns, int rows);
    void EnterPressed();
    void ZoomChanged(int percent);
    /// The square at the upper left corner has changed.
    void Scrolled();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    class Holder;
    /// What arranging works out for one axis, in window pixels.
    struct AxisRoom {
        int Room = 0;   ///< for the grid
        int Holder = 0; ///< length of the holder
    };

    [[nodiscard]] SquarePos ScrollPosition() const override { return m_first; }
    [[nodiscard]] int ZoomThatFits() const override;
    void ShowZoom() override;
    void ScrollTo(SquarePos square) override;

    void MakeParts(GridPainter& painter);
    void ConnectParts();
    void PlaceParts();
    void ArrangeBar(QScrollBar& bar, int room, int holder, Qt::Orientation orientation);
    void ArrangeRulers();
    [[nodiscard]] int FirstFor(int device, int square, Qt::Orientation orientation) const;

    Holder* m_holder = nullptr;
    GridCanvas* m_canvas = nullptr;
    QScrollBar* m_across = nullptr;
    QScrollBar* m_down = nullptr;
    QWidget* m_rulerAcross = nullptr;
    QWidget* m_rulerDown = nullptr;
    GridRuler* m_bigRulerAcross = nullptr;
    GridRuler* m_bigRulerDown = nullptr;
    ZoomControl m_zoom;
    /// Goes before the area does: it watches events, and closing a window sends some.
    std::unique_ptr<GridNavigator> m_navigator;
    SquarePos m_first{1, 1};
    bool m_scrollBusy = false;
    bool m_rulersVisible = true;
    bool m_inches = true;
};

} // namespace zol
