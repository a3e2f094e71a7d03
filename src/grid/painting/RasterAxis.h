// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <vector>

#include "grid/painting/GridLines.h"

namespace zol {

/// The columns (or rows) of squares that show in an image, and the distinct sizes among them.
struct RasterAxis {
    /// One column or row; pixels are those of the image.
    struct Stretch {
        int Number;
        int Edge;  ///< where the line before it begins
        int First; ///< behind the line
        int Last;
        std::size_t Size; ///< which of the sizes along its axis
        bool Cut;         ///< not wholly in the painted area
    };
    std::vector<Stretch> Shown;
    std::vector<int> Sizes;
    int From = 0;             ///< the first number looked at
    std::vector<int> PlaceOf; ///< by number less From: place in Shown, -1 if not there
    int Pitch = 0;            ///< pixels from each edge to the next; 0 if they differ

    /// Looks at the numbers `from` to `to`. The image begins at device pixel `position`; of it the
    /// pixels `areaFirst` to `areaLast` are painted.
    void Find(const SquareSpans& spans, int from, int to, int position, int areaFirst,
              int areaLast);
    /// Null for one that does not show.
    [[nodiscard]] const Stretch* At(int number) const {
        const auto at = static_cast<std::size_t>(number - From);
        return number < From || at >= PlaceOf.size() || PlaceOf[at] < 0
                   ? nullptr
                   : &Shown[static_cast<std::size_t>(PlaceOf[at])];
    }
    /// Those of the numbers looked at that do not show but touch a stretch of device pixels.
    [[nodiscard]] std::vector<int> Around(const SquareSpans& spans, int firstPixel,
                                          int lastPixel) const;

private:
    void FindPitch();
};

} // namespace zol
