// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QSize>

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "grid/painting/PixelMasks.h"
#include "grid/painting/StyledLine.h"

namespace zol {

/// How much of each pixel something long and thin covers: spans along scan lines, which leave out
/// what is bare. Places count from the pixel where the line begins.
struct SpanMask {
    /// Pixels side by side: some at an edge, some covered wholly, some at the other edge. Edges are
    /// multiples of four pixels, which are blended together, so bare ones may be among them.
    struct Span {
        std::int16_t X = 0;
        std::uint16_t Lead = 0;
        std::uint16_t Solid = 0;
        std::uint16_t Trail = 0;
        std::uint32_t Cover = 0; ///< where the cover of Lead and Trail begins
    };
    int Top = 0;                     ///< of the first scan line
    int Left = 0;                    ///< of the first pixel of all spans
    int Right = 0;                   ///< one past the last
    std::vector<std::uint32_t> Rows; ///< the first span of each scan line, and one past the last
    std::vector<Span> Spans;
    std::vector<std::uint8_t> Cover;

    [[nodiscard]] int Height() const {
        return Rows.empty() ? 0 : static_cast<int>(Rows.size()) - 1;
    }
    [[nodiscard]] std::size_t Bytes() const {
        return Rows.size() * sizeof(std::uint32_t) + Spans.size() * sizeof(Span) + Cover.size();
    }
};

/// Mixes a colour into the scan lines `top` to `bottom` by a mask that begins at `place`; what
/// falls outside is cut.
void BlendSpans(const PixelBuffer& target, int top, int bottom, QPoint place, const SpanMask& mask,
                QRgb colour);

/// A line in its style: what hides the ground, and the line on top of it.
struct LineMask {
    SpanMask Under;
    SpanMask Over;
};

/// Lines of a pattern as masks, each made once and blended wherever such a line lies, in whatever
/// colour. Lines repeat a few spans, and a view is painted over and over.
class LineMasks {
public:
    /// To be called before lines are looked up: forgets all when lines now look different.
    void TakeLook(const LinePen& pen, bool antialias);
    /// How far lines may reach to their sides, in pixels.
    [[nodiscard]] int Margin() const { return m_margin; }
    /// Whether they hold as much memory as they may. Clear() makes room.
    [[nodiscard]] bool IsFull() const { return m_bytes > Budget; }
    void Clear();

    /// The mask of a line in a style from (0, 0) to `span`, which leads to the right or straight up
    /// or down; null for a line too large to keep. Good until Clear().
    [[nodiscard]] const LineMask* Find(QPoint span, int style);

private:
    /// Memory that the masks may hold.
    static constexpr std::size_t Budget = std::size_t{48} << 20U;

    [[nodiscard]] const LineMask& Make(std::uint64_t key, QPoint span, const QSize& size,
                                       int style);

    std::unordered_map<std::uint64_t, LineMask> m_masks;
    std::size_t m_bytes = 0;
    LinePen m_look; ///< its width and squares are those of all lines
    int m_margin = 0;
    bool m_antialias = true;
};

} // namespace zol
