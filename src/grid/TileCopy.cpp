// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "grid/TileCopy.h"

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

} // namespace

TileCopier TileCopierFor(int width) {
    static constexpr auto copiers = MakeCopiers(std::make_integer_sequence<int, KnownWidths>());
    return width >= 0 && width < KnownWidths ? copiers[static_cast<std::size_t>(width)]
                                             : CopyWideRows;
}

} // namespace zol
