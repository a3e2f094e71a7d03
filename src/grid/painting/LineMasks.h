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

/// How much of each pixel something long and thin covers: runs of pixels along scan lines, which
/// leave out what is bare. Places count from the pixel where the line begins.
struct RunMask {
    struct Run {
        std::int16_t X = 0;
        std::int16_t Y = 0;
        std::uint16_t Count = 0;
        bool Solid = false; ///< covers its pixels wholly
    };
    std::vector<Run> Runs;           ///< from top to bottom
    std::vector<std::uint8_t> Cover; ///< of the runs that are not solid, one after the other

    [[nodiscard]] std::size_t Bytes() const { return Runs.size() * sizeof(Run) + Cover.size(); }
};

/// Mixes a colour into pixels by a mask that begins at `place`; what falls outside is cut.
void BlendRuns(const PixelBuffer& target, QPoint place, const RunMask& mask, QRgb colour);

/// A line in its style: what hides the ground, and the line on top of it.
struct LineMask {
    RunMask Under;
    RunMask Over;
};

/// Lines of a pattern as masks, each made once and blended wherever such a line lies, in whatever
/// colour. Lines repeat a few spans, and a view is painted over and over.
class LineMasks {
public:
    /// The mask of a line from (0, 0) to `span`, which leads to the right or straight up or down;
    /// null for a line too large to keep. Good until the next call.
    [[nodiscard]] const LineMask* Find(QPoint span, const LinePen& pen, bool antialias);

private:
    /// Memory that the masks may hold.
    static constexpr std::size_t Budget = std::size_t{48} << 20U;

    /// Forgets all when lines now look different.
    void TakeLook(const LinePen& pen, bool antialias);
    [[nodiscard]] const LineMask& Make(std::uint64_t key, QPoint span, const QSize& size,
                                       const LinePen& pen);

    std::unordered_map<std::uint64_t, LineMask> m_masks;
    std::size_t m_bytes = 0;
    int m_width = 0;
    double m_squareWidth = 0;
    double m_squareHeight = 0;
    bool m_antialias = true;
};

} // namespace zol
