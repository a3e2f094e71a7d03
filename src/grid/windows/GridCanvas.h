// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QRegion>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "grid/GridGeometry.h"
#include "grid/painting/GridView.h"
#include "grid/tools/FloatingPicture.h"
#include "grid/tools/Tool.h"
#include "grid/windows/ClothBehind.h"

namespace zol {

class DevicePixels;
class GridPainter;
class OverlayPainter;
class ViewPass;

/// The design as a widget, `picGrid`: as large as the whole grid at the present zoom, and moved
/// inside its holder to scroll. It keeps no picture of itself; what the system exposes is painted
/// anew, the overlay last. What the pointer does leaves it as squares.
class GridCanvas : public QWidget {
    Q_OBJECT

public:
    /// The painter outlives the canvas.
    GridCanvas(GridPainter& painter, QWidget* parent);
    ~GridCanvas() override;

    /// The pattern outlives the canvas or is replaced before it goes; null shows nothing.
    void SetPattern(const Pattern* pattern);
    [[nodiscard]] const Pattern* GetPattern() const { return m_pattern; }
    void SetPaintOptions(const PaintOptions& options);
    [[nodiscard]] const PaintOptions& GetPaintOptions() const { return m_options; }
    /// Takes the grid's measures anew at this zoom and becomes as large as the grid is.
    void ArrangeAt(int zoom);
    [[nodiscard]] const GridGeometry& Geometry() const { return m_geometry; }
    /// What GridPainter is asked to paint.
    [[nodiscard]] GridView View() const;

    /// The squares' content has changed. They are painted soon, with what reaches out of them.
    void RedrawSquares(const SquareRect& rect);
    /// The same where only stitches have changed: they stay inside of their squares' pixels.
    void RedrawStitches(const SquareRect& rect);
    /// While on, the two only collect into DirtyRect; going off, all of it is painted.
    void HoldGridPaint(bool hold);
    [[nodiscard]] bool IsPaintHeld() const { return m_hold; }
    /// What is to be painted once the hold ends; empty if nothing.
    [[nodiscard]] const SquareRect& DirtyRect() const { return m_dirty; }

    /// Repaints where the old and the new one lie and nothing else.
    void SetOverlay(const Overlay& overlay);
    [[nodiscard]] const Overlay& GetOverlay() const { return m_overlay; }
    void SetGridCursor(GridCursor kind);
    /// A pointer that stands in for the tool's, while the cloth is dragged.
    void SetHand(std::optional<Qt::CursorShape> shape);

    /// The device pixel of a place in the widget, counted from square (1, 1).
    [[nodiscard]] QPointF DevicePixelAt(QPointF place) const;

Q_SIGNALS:
    /// Only the button that went down first; others are ignored until it comes up.
    void Pressed(const zol::PointerEvent& event);
    /// With the held button, or None while the pointer only hovers.
    void Moved(const zol::PointerEvent& event);
    void Released(const zol::PointerEvent& event);
    /// The pointer has left the cloth.
    void PointerLeft();
    void EscapePressed();
    /// Which way: one of the two is 1 or -1.
    void ArrowPressed(int columns, int rows);
    void EnterPressed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    /// Bytes of the pixels that a band holds.
    static constexpr int BandBytes = 1024 * 1024;

    void PaintExposed(const QRegion& region);
    /// A rectangle of device pixels from top to bottom in pieces that stay in the cache until they
    /// are on the screen.
    [[nodiscard]] std::vector<QRect> BandsOf(const QRect& part) const;
    /// An image for a band, good until the next one.
    [[nodiscard]] QImage BandImage(const QSize& size);
    /// What a paint puts over the design, and where.
    struct Layers {
        const OverlayPainter& Over;
        QRegion Covered; ///< by the overlay
        QRect Shown;     ///< all of the grid that shows
    };
    /// The design and all that lies over it, into all of an image that shows these pixels.
    void PaintPart(QImage& image, const QRect& pixels, const Layers& layers);
    /// The design into all of an image; its upper left pixel is `corner` of the grid.
    void PaintCloth(QImage& image, QPoint corner);
    /// Pixels from one of the grid's on.
    struct Piece {
        QImage& Image; // one that is shared would be copied before it is painted into
        QPoint Corner;
    };
    /// Brings what is exposed of a band onto the screen: into the window's own pixels, or by the
    /// painter if that piece is null.
    static void ShowBand(QPainter& painter, const Piece& window, const Piece& band,
                         const QRegion& exposed);
    /// The squares' pixels and so many of the device's on each side.
    void Redraw(const SquareRect& rect, const QSize& reach);
    void UpdatePixels(const QRegion& pixels);
    [[nodiscard]] OverlayPainter OverlayOf(const Overlay& overlay) const;
    [[nodiscard]] PointerEvent EventOf(const QMouseEvent& event, PointerButton button) const;
    void ShowCursor();

    GridPainter& m_painter;
    const Pattern* m_pattern = nullptr;
    PaintOptions m_options;
    GridGeometry m_geometry;
    Overlay m_overlay;
    bool m_hold = false;
    SquareRect m_dirty{1, 1, 0, 0};
    PointerButton m_held = PointerButton::None;
    GridCursor m_cursor = GridCursor::Default;
    std::optional<Qt::CursorShape> m_hand;
    std::unique_ptr<ViewPass> m_pass;  ///< while a paint is in work
    std::vector<std::uint32_t> m_band; ///< pixels on their way to the screen
    ClothBehind m_behind;              ///< holds something while a block floats, as the next does
    FloatingPicture m_floating;
};

} // namespace zol
