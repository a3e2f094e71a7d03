// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QColor>
#include <QCursor>
#include <QImage>
#include <QPointF>
#include <QRegion>
#include <QSizeF>
#include <QString>

#include <functional>
#include <optional>

#include "import/PictureLevels.h"
#include "import/windows/PicturePainter.h"
#include "import/windows/PicturePlace.h"

class QPainter;

namespace zol {

/// Shows a picture to fit or at a zoom, with scroll bars when it is larger, and says where the
/// pointer is in it. Keeps what it shows as painted, so that what lies over the picture moves at a
/// cost of its own size, whatever the picture's.
///
/// Ctrl and the wheel zoom at the pointer; the middle button, or the blank's key with the left
/// one, drags the picture; arrows, Page Up and Down, Home and End scroll it. While the left button
/// is held with the pointer past the edge of the view, the picture scrolls on, up to its own edge.
class PictureView : public QAbstractScrollArea {
    Q_OBJECT

public:
    /// The zoom's limits in percent.
    static constexpr double MinZoom = 1;
    static constexpr double MaxZoom = 3200;

    /// Paints what lies over the picture. The painter's unit is a pixel of the device; what is
    /// wanted lies within its clip.
    using OverlayPainter = std::function<void(QPainter&, const PicturePlace&)>;

    explicit PictureView(QWidget* parent = nullptr);

    /// Shows another picture at the same zoom; null or empty for none. One of the same size stays
    /// scrolled as it is.
    void ShowPicture(SharedPicture picture);
    /// Said in the middle while there is no picture; nothing unless set.
    void SetEmptyText(const QString& text);
    /// Pixels of the picture that is shown have changed within a rectangle.
    void PictureChanged(const QRect& imageRect);
    [[nodiscard]] const SharedPicture& Shown() const { return m_levels.Source(); }

    /// Which pixels are empty squares: pure white, or in a picture as it was decoded transparent
    /// ones only. White unless set.
    void SetEmpty(PictureLevels::Empty empty);
    /// What shows through empty squares; nothing for a quiet checker.
    void SetCloth(std::optional<QColor> cloth);

    void ZoomToFit();
    /// Percent of the base scale; what is in the middle, or at a place of the viewport, stays
    /// there.
    void SetZoom(double percent);
    void SetZoom(double percent, QPointF keep);
    [[nodiscard]] bool IsToFit() const { return m_toFit; }
    /// The percentage that is shown, also when it comes from fitting.
    [[nodiscard]] double Zoom() const;
    /// Pixels of the window that a pixel of the picture takes at 100 percent, each way; 1 by 1
    /// unless set.
    void SetBaseScale(QSizeF scale);
    /// At 100 percent a pixel is as large as a stitch on that cloth, in squares to the inch.
    void SetRealSize(int clothCountX, int clothCountY);

    /// Where the picture lies now.
    [[nodiscard]] const PicturePlace& Place() const { return m_place; }
    /// A place of the viewport as one in the picture, also outside it; and back.
    [[nodiscard]] QPointF InPicture(QPointF viewportPlace) const;
    [[nodiscard]] QPointF OnViewport(QPointF imagePlace) const;
    /// Scrolls as little as needed for a place in the picture to show.
    void ShowPlace(QPointF imagePlace);
    /// The two scroll alike from now on, as long as both live.
    void ScrollWith(PictureView& other);

    /// The pointer over the picture while it is not being dragged about.
    void SetPointer(const QCursor& pointer);
    void SetOverlay(OverlayPainter paint);
    /// What lies over a rectangle of the picture has changed, and `reach` device pixels round it.
    void UpdateOverlay(const QRectF& imageRect, int reach = 2);
    /// The same over pixels of the device.
    void UpdateOverlay(const QRegion& devicePixels);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The left button, in places of the picture, also outside it.
    void Pressed(QPointF place, Qt::KeyboardModifiers modifiers);
    void Released(QPointF place);
    /// The pointer has moved, or the picture under it; `dragging` from a press to its release.
    void Moved(QPointF place, bool dragging);
    /// The pointer has left the view.
    void Left();
    /// The zoom has changed, or what fits.
    void ZoomChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    [[nodiscard]] QSize ImageSize() const;
    [[nodiscard]] QSize DeviceSize(QSize window) const;
    [[nodiscard]] double PercentThatFits() const;
    void Arrange();
    void PlaceContent(QSize content);
    void Refresh();
    void Repaint();
    void PaintPicture(const QRegion& region);
    void PaintEmptyText();
    void PaintFocus();
    void SetPanning(bool panning, QPoint at = {});
    void ShowPointer();
    void ScrollOn();
    [[nodiscard]] PictureGround Ground() const;

    PictureLevels m_levels;
    PicturePainter m_painter;
    PicturePlace m_place;
    PictureLevels::Empty m_empty = PictureLevels::Empty::White;
    std::optional<QColor> m_cloth;
    QString m_emptyText;
    OverlayPainter m_overlay;

    bool m_toFit = true;
    double m_percent = 100;
    double m_shownPercent = 0;
    QSizeF m_baseScale{1, 1};

    QImage m_painted; ///< the viewport as painted, without what lies over it
    QRegion m_stale;  ///< of it, in device pixels

    bool m_dragging = false; ///< the left button works on the picture
    bool m_panning = false;
    bool m_blankHeld = false;
    QPoint m_panFrom;
    QPointF m_dragAt;        ///< where in the viewport the pointer drags
    QBasicTimer m_scrolling; ///< while it drags past the edge
    QCursor m_pointer;
};

} // namespace zol
