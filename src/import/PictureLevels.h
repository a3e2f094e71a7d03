// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

#include "import/ImportWork.h"

namespace zol {

/// A pixel as it goes onto the screen: 0xAARRGGBB, channels multiplied by the opacity. An empty
/// square has none, so that whatever lies behind the picture shows there.
using ScreenPixel = std::uint32_t;

/// A picture together with versions of it of half the size, a quarter and so on, from which it is
/// painted small without looking at each of its pixels again. A version is made when it is asked
/// for first; after a change only the part of it that changed is made anew.
class PictureLevels {
public:
    /// Which pixels stand for no stitch. In a picture as it was decoded pure white is a white to
    /// be stitched, and only transparent pixels are empty; later pure white is empty too.
    enum class Empty { Transparent, White };

    /// Shows another picture; null or empty for none.
    void Take(SharedPicture picture, Empty empty);
    /// Pixels of the picture itself have changed within a rectangle.
    void Changed(const PixelRect& rect);

    [[nodiscard]] const SharedPicture& Source() const { return m_picture; }
    [[nodiscard]] bool HasPicture() const { return m_picture && !m_picture->IsEmpty(); }

    /// The level to paint from when a pixel of the picture takes `scale` pixels of the screen:
    /// the smallest version that is not smaller than what is painted; 0 is the picture itself.
    [[nodiscard]] int LevelFor(double scale) const;
    [[nodiscard]] int WidthOf(int level) const;
    [[nodiscard]] int HeightOf(int level) const;
    /// `count` pixels of a row from `left` on, which the caller sees to lie on that level. They
    /// stay as they are until the next change; level 0 is written into `scratch`.
    [[nodiscard]] const ScreenPixel* Row(int level, int y, int left, int count,
                                         std::vector<ScreenPixel>& scratch);
    [[nodiscard]] ScreenPixel PixelAt(int x, int y) const {
        return OnScreen(m_picture->ImagePixel(x, y));
    }

private:
    struct Level {
        int Width = 0;
        int Height = 0;
        std::vector<ScreenPixel> Pixels;
    };

    [[nodiscard]] ScreenPixel OnScreen(Colour colour) const;
    void MakeUpTo(int level);
    void Reduce(int level, const PixelRect& rect);

    SharedPicture m_picture;
    Empty m_empty = Empty::White;
    std::vector<Level> m_levels; ///< the first is of half the size
    std::vector<ScreenPixel> m_upper;
    std::vector<ScreenPixel> m_lower;
};

} // namespace zol
