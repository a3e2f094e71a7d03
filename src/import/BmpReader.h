// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "import/Picture.h"
#include "model/ByteStream.h"

namespace zol {

/// What the headers of a BMP file say, checked: 1, 4, 8, 16, 24 or 32 bits a pixel, plain, run
/// length coded or with channel masks, rows from the bottom or from the top.
struct BmpHeader {
    enum Compression : std::uint32_t {
        Plain = 0,
        RunLength8 = 1,
        RunLength4 = 2,
        Masks = 3,
        MasksWithAlpha = 6,
    };

    int Width = 0;
    int Height = 0;
    bool TopDown = false;
    int BitCount = 0;
    std::uint32_t Coding = Plain;
    std::uint32_t PixelOffset = 0;               ///< from the start of the file
    std::array<std::uint32_t, 4> ChannelMasks{}; ///< red, green, blue, alpha (0: opaque)
    std::vector<Colour> ColourTable; ///< as many as BitCount can name, for 8 bits or less
};

/// Reads BMP pictures. Nothing is allocated for more pixels than the headers name, and those are
/// bounded by the caller between the two steps.
namespace BmpReader {

/// Throws RunTimeError: 62 for a file that ends inside its headers, 321 for anything that is not
/// understood.
[[nodiscard]] BmpHeader ReadHeader(ByteReader& stream);
/// Pixels of 8 bits a channel; transparent ones as TransparentPixel, partly transparent ones over
/// white. Throws RunTimeError 62 for missing pixels.
[[nodiscard]] Picture ReadPixels(ByteReader& stream, const BmpHeader& header);

} // namespace BmpReader
} // namespace zol
