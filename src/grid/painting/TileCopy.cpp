// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/painting/TileCopy.h"

#include <array>
#include <cstring>
#include <utility>

namespace zol {

namespace {

constexpr int KnownWidths = 49;

template<int Width>
void CopyRows(const QRgb* from, QRgb* to, std::ptrdiff_t stride, int rows, int) {
    for (int row = 0; row < rows; ++row) {
        std::memcpy(to, from, Width * sizeof(QRgb));
        from += Width;
        to += stride;
    }
}

void CopyWideRows(const QRgb* from, QRgb* to, std::ptrdiff_t stride, int rows, int width) {
    for (int row = 0; row < rows; ++row) {
        std::memcpy(to, from, static_cast<std::size_t>(width) * sizeof(QRgb));
        from += width;
        to += stride;
    }
}

template<int... Widths>
constexpr std::array<TileCopier, sizeof...(Widths)>
MakeCopiers(std::integer_sequence<int, Widths...>) {
    return {CopyRows<Widths>...};
}

template<std::size_t Pitch>
void Spread(const QRgb* colours, std::size_t count, QRgb* pixels) {
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t j = 0; j < Pitch; ++j) {
            pixels[i * Pitch + j] = colours[i];
        }
    }
}

template<int Width>
void CopyTileRow(const QRgb* const* tiles, std::size_t count, int row, QRgb* pixels,
                 std::ptrdiff_t pitch) {
    const std::ptrdiff_t skipped = std::ptrdiff_t{row} * Width;
    for (std::size_t i = 0; i < count; ++i, pixels += pitch) {
        std::memcpy(pixels, tiles[i] + skipped, Width * sizeof(QRgb));
    }
}

using TileRowCopier = void (*)(const QRgb* const*, std::size_t, int, QRgb*, std::ptrdiff_t);
constexpr std::array<TileRowCopier, 9> rowCopiers{CopyTileRow<0>, CopyTileRow<1>, CopyTileRow<2>,
                                                  CopyTileRow<3>, CopyTileRow<4>, CopyTileRow<5>,
                                                  CopyTileRow<6>, CopyTileRow<7>, CopyTileRow<8>};

} // namespace

void CopyTileRows(const QRgb* const* tiles, std::size_t count, int width, int row, QRgb* pixels,
                  std::ptrdiff_t pitch) {
    rowCopiers[static_cast<std::size_t>(width)](tiles, count, row, pixels, pitch);
}

TileCopier TileCopierFor(int width) {
    static constexpr auto copiers = MakeCopiers(std::make_integer_sequence<int, KnownWidths>());
    return width >= 0 && width < KnownWidths ? copiers[static_cast<std::size_t>(width)]
                                             : CopyWideRows;
}

void SpreadColours(const QRgb* colours, std::size_t count, QRgb* pixels, int pitch) {
    switch (pitch) {
    case 1:
        return Spread<1>(colours, count, pixels);
    case 2:
        return Spread<2>(colours, count, pixels);
    case 3:
        return Spread<3>(colours, count, pixels);
    case 4:
        return Spread<4>(colours, count, pixels);
    default:
        for (std::size_t i = 0; i < count; ++i, pixels += pitch) {
            FillSpan(pixels, pitch, colours[i]);
        }
    }
}

} // namespace zol
