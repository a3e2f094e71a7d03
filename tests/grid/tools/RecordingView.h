// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "grid/painting/GridPainter.h"
#include "grid/tools/ToolView.h"

namespace zol::test {

/// Remembers what tools ask of the window, and can paint what was asked: those squares and no more,
/// so that a tool that asks for too little leaves a wrong picture behind.
class RecordingView : public ToolView {
public:
    static constexpr int Zoom = 250; ///< squares of 20 pixels on a cloth of 12

    explicit RecordingView(const Pattern& pattern)
        : m_pattern(pattern),
          m_geometry(pattern, Zoom, 1) {
        m_view.Source = &pattern;
        m_view.Options.StitchStyle = ShowVStitches;
        PaintAfresh();
    }

    [[nodiscard]] const GridGeometry& Geometry() const override { return m_geometry; }
    void RedrawSquares(const SquareRect& rect) override {
        // The pens of knots stand out by a pixel, which is the window's to know.
        Redraw(rect, 1);
    }
    void RedrawStitches(const SquareRect& rect) override { Redraw(rect, 0); }
    void OverlayChanged() override { ++overlayChanges; }
    void DesignChanged() override {
        ++designChanges;
        m_geometry = GridGeometry(m_pattern, Zoom, 1);
        m_screen = QImage();
    }
    void FlossesChanged() override { ++flossChanges; }
    void SetGridCursor(GridCursor kind) override { cursors.push_back(kind); }
    void SetBusy(bool busy) override {
        busyDepth += busy ? 1 : -1;
        timesBusy += busy ? 1 : 0;
    }
    void ShowPlace(const std::string& text) override { places.push_back(text); }
    void ShowFloss(const std::string& text) override { flosses.push_back(text); }
    void ZoomToFrame(const SquareRect& frame) override { zooms.push_back(frame); }
    [[nodiscard]] SquareRect VisibleRange() const override { return visible; }
    void ScrollTowards(const SquareRect& rect) override { scrolledTo.push_back(rect); }
    void OpenLineMenu(int lineStyle) override {
        lineMenus.push_back(lineStyle);
        if (whileMenuIsOpen) {
            whileMenuIsOpen();
        }
    }

    /// How the squares are shown from here on.
    void SetStyle(int stitchStyle) {
        m_view.Options.StitchStyle = stitchStyle;
        PaintAfresh();
    }
    /// Paints all of the design, as after an expose of the whole window.
    void PaintAfresh() {
        m_pending.clear();
        m_screen = FreshPicture();
    }
    /// The window after it has painted what was asked for since the last time.
    [[nodiscard]] const QImage& Screen() {
        if (m_screen.isNull()) {
            PaintAfresh();
        }
        for (const auto& [rect, reach] : std::exchange(m_pending, {})) {
            PaintSquares(m_screen, rect, reach);
        }
        return m_screen;
    }
    [[nodiscard]] QImage FreshPicture() {
        QImage image(m_geometry.GridSize(), QImage::Format_RGB32);
        PaintSquares(image, m_geometry.Everything(), 0);
        return image;
    }
    /// Every square that lies in a redraw.
    [[nodiscard]] std::vector<SquarePos> RedrawnSquares() const {
        std::vector<SquarePos> squares;
        for (const SquareRect& rect : redraws) {
            for (int x = rect.Left; x <= rect.Right; ++x) {
                for (int y = rect.Top; y <= rect.Bottom; ++y) {
                    if (std::find(squares.begin(), squares.end(), SquarePos{x, y}) ==
                        squares.end()) {
                        squares.push_back({x, y});
                    }
                }
            }
        }
        return squares;
    }

    std::vector<SquareRect> redraws;
    int overlayChanges = 0;
    int designChanges = 0;
    int flossChanges = 0;
    SquareRect visible{1, 1, 24, 24};
    std::vector<SquareRect> scrolledTo;
    std::vector<GridCursor> cursors;
    int busyDepth = 0;
    int timesBusy = 0;
    std::vector<std::string> places;
    std::vector<std::string> flosses;
    std::vector<SquareRect> zooms;
    std::vector<int> lineMenus;
    std::function<void()> whileMenuIsOpen;

private:
    void Redraw(const SquareRect& rect, int reach) {
        redraws.push_back(rect);
        m_pending.emplace_back(rect, reach);
    }
    /// The pixels of these squares and so many around, with whatever reaches into them.
    void PaintSquares(QImage& image, const SquareRect& rect, int reach) {
        const QRect pixels =
            m_geometry.PixelsOf(rect).adjusted(-reach, -reach, reach, reach) & image.rect();
        const QRect around =
            m_geometry.PixelsOf({rect.Left - 1, rect.Top - 1, rect.Right + 1, rect.Bottom + 1});
        QImage part(around.size(), QImage::Format_RGB32);
        part.fill(Qt::magenta);
        m_view.Scale = m_geometry.Scale();
        m_painter.PaintImage(part, around.topLeft(), m_view, m_geometry.Everything());
        QPainter(&image).drawImage(pixels, part, pixels.translated(-around.topLeft()));
    }

    const Pattern& m_pattern;
    GridGeometry m_geometry;
    GridView m_view;
    GridPainter m_painter;
    QImage m_screen;
    std::vector<std::pair<SquareRect, int>> m_pending; ///< and pixels around them
};

} // namespace zol::test
