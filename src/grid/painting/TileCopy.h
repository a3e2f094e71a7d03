// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

#include <array>
#include <cstddef>
#include <cstring>

namespace zol {

/// Copies `rows` rows of `width` pixels that lie without gaps into rows of `stride` pixels.
using TileCopier = void (*)(const QRgb* from, QRgb* to, std::ptrdiff_t stride, int rows, int width);

/// The copier for a width. Squares are a few pixels wide, where a general copy costs more than
/// its bytes.
[[nodiscard]] TileCopier TileCopierFor(int width);

/// Copies row `row` of each of `count` tiles, which are `width` (1 to 8) pixels wide, to places
/// `pitch` pixels apart.
void CopyTileRows(const QRgb* const* tiles, std::size_t count, int width, int row, QRgb* pixels,
                  std::ptrdiff_t pitch);

/// Sets `pitch` pixels to each of `count` colours, one after the other.
void SpreadColours(const QRgb* colours, std::size_t count, QRgb* pixels, int pitch);

/// Sets `count` pixels, of which there are few: by fours, the last four over what is set already.
inline void FillSpan(QRgb* pixels, int count, QRgb colour) {
    if (count < 4) {
        for (int i = 0; i < count; ++i) {
            pixels[i] = colour;
        }
        return;
    }
    const std::array<QRgb, 4> four{colour, colour, colour, colour};
    for (int i = 0; i + 4 < count; i += 4) {
        std::memcpy(pixels + i, four.data(), sizeof four);
    }
    std::memcpy(pixels + count - 4, four.data(), sizeof four);
}

} // namespace zol
