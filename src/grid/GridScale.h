// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <cmath>

namespace zol {

/// The device pixel that a measure in twips falls into. A hair is added, so that twips which are
/// whole pixels stay so where a pixel is no whole number of twips.
[[nodiscard]] inline int ToPixel(double twips, double twipsPerPixel) {
    const double pixels = twips / twipsPerPixel;
    return static_cast<int>(std::trunc(pixels + std::copysign(1e-6, pixels)));
}

/// The device pixel nearest to a point that was snapped to one, half a pixel counting as none.
/// Such a point is in whole twips, which its pixel's edge need not be: cutting would often give
/// the pixel before it.
[[nodiscard]] inline int ToNearestPixel(double twips, double twipsPerPixel) {
    const double pixels = twips / twipsPerPixel;
    return static_cast<int>(std::trunc(pixels + std::copysign(0.5 - 1e-6, pixels)));
}

/// How large the squares of a grid are on a device: the ideal size of a square in twips, and the
/// device's pixels. Edges of squares are found from it by GridViewport, which rounds each of them
/// apart, so that errors never add up.
struct GridScale {
    double SquareTwipsX = 0;
    double SquareTwipsY = 0;
    double TwipsPerPixelX = 15;
    double TwipsPerPixelY = 15;
    double LineBaseTwips = 0; ///< the square's width that widths of lines are percentages of

    /// On the screen: at 100 percent a square has its true size on cloth.
    [[nodiscard]] static GridScale ForZoom(double percent, int clothCountX, int clothCountY,
                                           double twipsPerPixelX = 15, double twipsPerPixelY = 15);
    /// On paper: whole twips, `squaresPerInch` across and by the cloth's ratio down.
    [[nodiscard]] static GridScale ForPrint(double squaresPerInch, int clothCountX, int clothCountY,
                                            double twipsPerPixelX, double twipsPerPixelY);
    /// In a picture: every square `pixels` wide and round(pixels x countX / countY) high, at
    /// least 1.
    [[nodiscard]] static GridScale ForPicture(int pixels, int clothCountX, int clothCountY);

    friend bool operator==(const GridScale&, const GridScale&) = default;
};

} // namespace zol
