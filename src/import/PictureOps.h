// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "import/Picture.h"

namespace zol {

/// A channel brought to 5 bits and back to 8.
[[nodiscard]] constexpr unsigned DepthOf16Bits(unsigned channel) {
    const unsigned v = channel >> 3U;
    return (v << 3U) | (v >> 2U);
}

/// Brings a picture to the colours of 16 bits a pixel; transparent pixels keep their mark.
void ReduceDepth(Picture& image);

/// A colour of that opacity (0 to 255) as it shows over white; of no opacity: TransparentPixel.
[[nodiscard]] constexpr Colour OverWhite(Colour colour, unsigned alpha) {
    if (alpha == 0) {
        return TransparentPixel;
    }
    const auto mix = [alpha](unsigned channel) {
        return 255U - ((255U - channel) * alpha + 127U) / 255U;
    };
    return MakeColour(mix(colour & 255U), mix((colour >> 8U) & 255U), mix((colour >> 16U) & 255U));
}

/// The part of `rect` that lies on a picture of that size; of no width if none does.
[[nodiscard]] PixelRect ClipToPicture(const PixelRect& rect, int width, int height);

/// The pixels of a rectangle. Nothing is taken for a rectangle without pixels in the picture:
/// then the whole picture comes back.
[[nodiscard]] Picture CropPicture(const Picture& image, const PixelRect& rect);

/// Pure white becomes WhiteStandIn, and transparent pixels become erased ones: from here on no
/// pure white is left but what is to stay empty.
void RemapWhite(Picture& image);

/// Erased pixels get the mark of transparent ones, so that the next RemapWhite leaves them empty.
void MarkErased(Picture& image);

/// Each pixel takes the source pixel under its middle. A size below 1 becomes 1.
[[nodiscard]] Picture ResampleNearest(const Picture& image, int width, int height);

} // namespace zol
