// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QRect>

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

#include "grid/painting/PixelMasks.h"
#include "model/ZOLTypes.h"

class QPainter;

namespace zol {

class LineMasks;
struct LineMask;

/// How a backstitch line is drawn, in device pixels.
struct LinePen {
    int Style = LineStraight; ///< a LineStyle
    Colour Floss = 0;
    Colour Ground = 0xFFFFFF; ///< hides what lies beneath a broken line
    int Width = 1;
    double SquareWidth = 10;
    double SquareHeight = 10;
};

/// What lines are drawn on. Ends are pixels; a pen of an odd width has its middle in theirs.
class LineCanvas {
public:
    LineCanvas() = default;
    virtual ~LineCanvas() = default;
    LineCanvas(const LineCanvas&) = delete;
    LineCanvas& operator=(const LineCanvas&) = delete;

    /// One line in its style between two pixels. The pattern of a dash or squiggle starts at the
    /// line's left end. A line of no length is a dot or nothing.
    virtual void Line(QPoint start, QPoint end, const LinePen& pen);
    /// A straight piece with round ends.
    virtual void Piece(const QLine& line, int width, Colour colour) = 0;
    /// A run of Bezier curves through one more than a multiple of three points.
    virtual void Wave(const std::vector<QPoint>& points, int width, Colour colour) = 0;
    /// What can be seen of lines; null if that is not known.
    [[nodiscard]] virtual QRect Visible() const = 0;
    /// Whether what lies outside the repainted squares is left alone without being cut off lines.
    [[nodiscard]] virtual bool Clips() const { return false; }
};

/// Draws on any QPainter.
class PainterCanvas : public LineCanvas {
public:
    explicit PainterCanvas(QPainter& painter) : m_painter(painter) {}
    void Piece(const QLine& line, int width, Colour colour) override;
    void Wave(const std::vector<QPoint>& points, int width, Colour colour) override;
    [[nodiscard]] QRect Visible() const override;

private:
    QPainter& m_painter;
};

/// Draws straight into pixels. Lines are collected and painted by Flush(), a band of the image at a
/// time, so that its pixels stay in the cache however many lines cross it, together with what lies
/// behind them.
class PixelCanvas : public LineCanvas {
public:
    /// Paints the rows `top` to `bottom` of the buffer, before any line comes there. Called from
    /// several threads at once, each a worker of its own.
    using PaintBehind = std::function<void(int worker, int top, int bottom)>;

    /// How the buffer is painted.
    struct Bands {
        std::vector<int> Rows; ///< where bands begin, the first 0, and the end of the last
        PaintBehind Behind;
        int Workers = 1; ///< that may be at work at once
    };

    /// `origin` is the place of the buffer's first pixel on the device.
    PixelCanvas(const PixelBuffer& target, QPoint origin, LineMasks& masks, bool antialias,
                Bands bands)
        : m_target(target),
          m_origin(origin),
          m_masks(masks),
          m_antialias(antialias),
          m_bands(std::move(bands)) {}
    /// Most lines by masks, which are made once and blended wherever such a line lies.
    void Line(QPoint start, QPoint end, const LinePen& pen) override;
    void Piece(const QLine& line, int width, Colour colour) override;
    void Wave(const std::vector<QPoint>& points, int width, Colour colour) override;
    [[nodiscard]] QRect Visible() const override;
    [[nodiscard]] bool Clips() const override { return true; }
    /// To be called after the last line.
    void Flush();

private:
    /// A line whose mask is known, where it lies in the target.
    struct Placed {
        QPoint Place;
        const LineMask* Mask;
        Colour Ground;
        Colour Floss;
    };

    /// Numbers of the placed lines, band by band.
    [[nodiscard]] std::vector<std::vector<std::uint32_t>> LinesOfBands() const;
    void PaintBand(int worker, int top, int bottom, const std::vector<std::uint32_t>& lines);
    void CoverCurve(const std::vector<QPointF>& curve, int width, Colour colour);

    PixelBuffer m_target;
    QPoint m_origin;
    LineMasks& m_masks;
    bool m_antialias;
    Bands m_bands; ///< Behind is null once all of it is painted
    PixelMask m_scratch;
    std::vector<Placed> m_placed;
};

/// LineCanvas::Line on a QPainter.
void DrawStyledLine(QPainter& painter, QPoint start, QPoint end, const LinePen& pen);

} // namespace zol
