// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "import/KeptTiles.h"

#include <algorithm>
#include <limits>

#include "import/PictureOps.h"

namespace zol {

namespace {

constexpr int Side = 64;

} // namespace

PixelRect KeptTiles::RectOf(const Picture& image, Place place) {
    return ClipToPicture({place.Column * Side, place.Row * Side, Side, Side}, image.ImageWidth(),
                         image.ImageHeight());
}

std::vector<Colour> KeptTiles::PixelsOf(const Picture& image, const PixelRect& rect) {
    std::vector<Colour> pixels;
    pixels.reserve(static_cast<std::size_t>(rect.Width) * static_cast<std::size_t>(rect.Height));
    for (int y = rect.Top; y < rect.Top + rect.Height; ++y) {
        const Colour* from = image.Row(y) + rect.Left;
        pixels.insert(pixels.end(), from, from + rect.Width);
    }
    return pixels;
}

void KeptTiles::Keep(const Picture& image, const PixelRect& rect) {
    if (rect.Width < 1 || rect.Height < 1) {
        return;
    }
    for (int row = rect.Top / Side; row <= (rect.Top + rect.Height - 1) / Side; ++row) {
        for (int column = rect.Left / Side; column <= (rect.Left + rect.Width - 1) / Side;
             ++column) {
            const Place place{row, column};
            if (!m_tiles.contains(place)) {
                // Whole before it is kept: memory may end half-way.
                m_tiles.emplace(place, PixelsOf(image, RectOf(image, place)));
            }
        }
    }
}

PixelRect KeptTiles::PutBack(Picture& image) const {
    int left = std::numeric_limits<int>::max();
    int top = left;
    int right = 0;
    int bottom = 0;
    for (const auto& [place, pixels] : m_tiles) {
        const PixelRect part = RectOf(image, place);
        auto from = pixels.begin();
        for (int y = part.Top; y < part.Top + part.Height; ++y) {
            std::copy_n(from, part.Width, image.Row(y) + part.Left);
            from += part.Width;
        }
        left = std::min(left, part.Left);
        top = std::min(top, part.Top);
        right = std::max(right, part.Left + part.Width);
        bottom = std::max(bottom, part.Top + part.Height);
    }
    return m_tiles.empty() ? PixelRect{} : PixelRect{left, top, right - left, bottom - top};
}

} // namespace zol
