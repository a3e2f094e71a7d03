// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <array>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "grid/painting/PixelMasks.h"
#include "grid/painting/StyledLine.h"

namespace zol {

/// How much of each pixel something long and thin covers, without what is bare. Places count from
/// the pixel where the line begins. One flat list for all scan lines: a list for each would end
/// after so few pixels that to foresee where costs more than to blend them.
struct CoverMask {
    /// Pixels side by side that are blended together; bare ones may be among them.
    struct Four {
        std::int16_t X = 0;
        std::int16_t Y = 0;
        std::array<std::uint8_t, 4> Cover{};
    };
    /// Many pixels side by side that are covered wholly.
    struct Stretch {
        std::int16_t X = 0;
        std::int16_t Y = 0;
        std::int32_t Length = 0;
    };
    std::vector<Four> Fours; ///< from top to bottom, as the next
    std::vector<Stretch> Stretches;
    QRect Bounds; ///< of all their pixels

    [[nodiscard]] std::size_t Bytes() const {
        return Fours.size() * sizeof(Four) + Stretches.size() * sizeof(Stretch);
    }
};

/// Mixes a colour into the scan lines `top` to `bottom` by a mask that begins at `place`; what
/// falls outside is cut.
void BlendCover(const PixelBuffer& target, int top, int bottom, QPoint place, const CoverMask& mask,
                QRgb colour);

/// A line in its style: what hides the ground, and the line on top of it.
struct LineMask {
    CoverMask Under;
    CoverMask Over;
    QRect Bounds; ///< of both
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
    static constexpr std::size_t Budget = std::size_t{64} << 20U;

    [[nodiscard]] const LineMask& Make(std::uint64_t key, QPoint span, const QSize& size,
                                       int style);

    std::unordered_map<std::uint64_t, LineMask> m_masks;
    std::size_t m_bytes = 0;
    LinePen m_look; ///< its width and squares are those of all lines
    int m_margin = 0;
    bool m_antialias = true;
};

} // namespace zol
