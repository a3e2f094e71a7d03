// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <vector>

#include "import/Picture.h"

namespace zol {

/// How a picture was before it was changed: its tiles, each kept before the first change to it, so
/// that one step can be taken back at the cost of what it touched.
class KeptTiles {
public:
    /// What comes is a new step.
    void Forget() { m_tiles.clear(); }
    [[nodiscard]] bool IsEmpty() const { return m_tiles.empty(); }
    /// To be called before pixels of that rectangle, which lies in the picture, change.
    void Keep(const Picture& image, const PixelRect& rect);
    /// Writes what was kept into a picture of the same size; answers the rectangle round it.
    PixelRect PutBack(Picture& image) const;

private:
    struct Place {
        int Row = 0;
        int Column = 0;
        friend auto operator<=>(const Place&, const Place&) = default;
    };
    [[nodiscard]] static PixelRect RectOf(const Picture& image, Place place);
    [[nodiscard]] static std::vector<Colour> PixelsOf(const Picture& image, const PixelRect& rect);

    std::map<Place, std::vector<Colour>> m_tiles;
};

} // namespace zol
